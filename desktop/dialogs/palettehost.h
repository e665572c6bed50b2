#pragma once

#include "app/models/quickopenmodel.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QAction>

class QMainWindow;
class QMenu;

namespace vl::desktop {

class Palette;
class PanelHost;

/// Opens the palette when it is asked for, tells it of the commands of the window, and carries out
/// what is chosen.
class PaletteHost final : public QObject
{
    Q_OBJECT

public:
    /// The panels and the window outlive it.
    PaletteHost(const PanelContext &context, PanelHost &panels, QMainWindow *window);

    void open();

private:
    QList<app::QuickOpenCommand> commands();
    void addMenu(const QMenu &menu, const QString &path, QList<app::QuickOpenCommand> &list);
    void add(QAction *action, const QString &id, const QString &group,
             QList<app::QuickOpenCommand> &list);
    void carryOut(const app::QuickOpenModel::Choice &choice);

    PanelContext m_context;
    PanelHost &m_panels;
    QMainWindow *m_window;
    app::QuickOpenModel m_model;
    Palette *m_palette = nullptr;                ///< made when it is first opened
    QHash<QString, QPointer<QAction>> m_actions; ///< of the commands listed now
};

} // namespace vl::desktop
