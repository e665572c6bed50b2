#pragma once

#include "desktop/panels/catalogue.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>

#include <map>

class QMenu;
class QWidget;

namespace ads {
class CDockAreaWidget;
class CDockManager;
class CDockWidget;
} // namespace ads

namespace vl::desktop {

class ActionRegistry;

/// Which panels are open and how much of the window's width the sides take.
struct Arrangement
{
    std::initializer_list<const char *> panels; ///< object names, each on the side of the catalogue
    int left;                                   ///< in percent, like the others
    int right;
    int leftBelow; ///< of the left side's height
};

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
    /// Lets the actions pull the panel off that has or had the focus, and put back all that float.
    void bindFloating(ActionRegistry &actions);
    void resetLayout();
    /// Begins from the first layout, then opens these panels alone.
    void arrange(const Arrangement &arrangement);
    QByteArray saveLayout() const;
    /// Shows the first layout, and gives false, when the state is damaged or of another version.
    bool restoreLayout(const QByteArray &state);
    void showPanel(const QString &objectName);
    /// Gives the focus to the first open panel of this side, or else of the other sides, also
    /// before the window is shown.
    void focusSide(DockSide side);
    /// Moves the focus to the next or previous open panel.
    void focusNext() { moveFocus(1); }
    void focusPrevious() { moveFocus(-1); }

Q_SIGNALS:
    /// Panels that floated are docked.
    void docked();

private:
    void makeDocks(const PanelContext &context);
    void followSettings(const app::Settings &settings);
    void drawIcons();
    void moveFocus(int step);
    void place(ads::CDockWidget *dock, const PanelRow &row);
    void findAreas();
    void placeStrays();
    /// Whether a panel has less room than its texts need.
    bool isCramped() const;
    void sizeAreas();
    void sizeAreas(int left, int right, int leftBelow);
    int widthNeeded(std::initializer_list<DockSide> sides) const;
    void dress();
    void fetchFloating();
    void stretchCentre();
    void floatPanel();
    void dockPanels();
    /// The open panel in the window that has or had the focus last; null when there is none.
    ads::CDockWidget *panelToFloat() const;
    QList<ads::CDockWidget *> floatingPanels() const;

    ads::CDockManager *m_manager;
    std::map<DockSide, QPointer<ads::CDockAreaWidget>> m_areas; ///< where new panels go
    QPointer<ads::CDockWidget> m_focused; ///< the panel that has or had the focus last
    QByteArray m_firstLayout;
};

/// Where a window of this frame goes so that it can be reached: where it is if enough of it lies in
/// one of the screens, else into the first of them.
QRect reachableFrame(const QRect &frame, const QList<QRect> &screens);

} // namespace vl::desktop
