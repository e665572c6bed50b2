#pragma once

#include "desktop/panels/panelcontext.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>

#include <memory>
#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace ads {
class CDockManager;
class CDockWidget;
} // namespace ads

namespace vl::desktop {

/// Makes a dock of each panel of the catalogue. The only place that knows the docking library.
class PanelHost final : public QObject
{
    Q_OBJECT

public:
    /// Fills the layout of the parent, which is in its window already.
    PanelHost(QWidget *parent, const PanelContext &context);
    ~PanelHost() override;

    /// One entry a panel, ticked while it is open.
    void addToggles(QMenu *menu) const;
    void resetLayout();
    QByteArray saveLayout() const;
    /// Leaves the layout as it is when the state is not one of this version's.
    void restoreLayout(const QByteArray &state);
    void showPanel(const QString &objectName);
    /// Moves the focus to the next or previous open panel.
    void focusNext() { moveFocus(1); }
    void focusPrevious() { moveFocus(-1); }

private:
    void moveFocus(int step);

    ads::CDockManager *m_manager;
    std::vector<ads::CDockWidget *> m_docks;
    QByteArray m_firstLayout;
};

} // namespace vl::desktop
