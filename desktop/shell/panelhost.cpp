#include "desktop/shell/panelhost.h"

#include "app/base/settingskeys.h"
#include "app/models/workspace.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/shell/dockstyle.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/grid.h"

#include <DockAreaTitleBar.h>
#include <DockAreaWidget.h>
#include <DockManager.h>
#include <DockSplitter.h>
#include <DockWidget.h>
#include <DockWidgetTab.h>
#include <FloatingDockContainer.h>
#include <IconProvider.h>

#include <QtCore/QCryptographicHash>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QShortcut>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLayout>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QSplitter>

#include <algorithm>

namespace vl::desktop {

namespace {

constexpr int layoutVersion = 1;
constexpr int checkSize = 20;       ///< a state is kept behind its SHA-1, which tells damage
constexpr int reachablePixels = 64; ///< of a window's upper edge, so that it can be taken hold of

ads::DockWidgetArea areaOf(DockSide side)
{
    switch (side) {
    case DockSide::Left:
    case DockSide::LeftBelow:
        return ads::LeftDockWidgetArea;
    case DockSide::Right:
        return ads::RightDockWidgetArea;
    case DockSide::Bottom:
        return ads::BottomDockWidgetArea;
    case DockSide::Center:
        break;
    }
    return ads::CenterDockWidgetArea;
}

/// Gives the focus to what the panel wants it for, else to its first control, else to its dock.
void focusInto(ads::CDockWidget *dock)
{
    QWidget *panel = dock->widget();
    const auto takesFocus = [panel](const QWidget *widget) {
        return (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled()
               && widget->isVisibleTo(panel);
    };
    QWidget *target = panel->focusProxy();
    if (!target || !takesFocus(target)) {
        target = panel->nextInFocusChain();
        while (target != panel && !(panel->isAncestorOf(target) && takesFocus(target)))
            target = target->nextInFocusChain();
    }
    (target == panel ? dock : target)->setFocus(Qt::TabFocusReason);
}

void nameButtons(ads::CDockWidget *dock)
{
    const auto buttons = dock->tabWidget()->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons)
        button->setAccessibleName(
            QCoreApplication::translate("Panels", "Close %1").arg(dock->windowTitle()));
}

void nameAreaButtons(ads::CDockAreaWidget *area)
{
    const auto buttons = area->titleBar()->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons)
        if (button->accessibleName().isEmpty())
            button->setAccessibleName(button->toolTip().isEmpty() ? QCoreApplication::translate(
                                          "Panels", "Panel area button")
                                                                  : button->toolTip());
}

/// The letters of the menu bar lead to its menus from a panel that floats too.
void addMenuKeys(QWidget *floating, QWidget *window)
{
    const auto *main = qobject_cast<QMainWindow *>(window);
    if (!main)
        return;
    QMenuBar *bar = main->menuBar();
    for (QAction *title : bar->actions()) {
        auto *key = new QShortcut(QKeySequence::mnemonic(title->text()), floating);
        QObject::connect(key, &QShortcut::activated, bar, [bar, title] {
            bar->window()->activateWindow();
            bar->setActiveAction(title);
        });
    }
}

} // namespace

PanelHost::PanelHost(QWidget *parent, const PanelContext &context)
    : QObject(parent)
{
    ads::CDockManager::setConfigFlags(ads::CDockManager::DefaultOpaqueConfig
                                      | ads::CDockManager::FocusHighlighting);
    ads::CDockManager::setConfigFlag(ads::CDockManager::DockAreaHasUndockButton, false);
    ads::CDockManager::setConfigFlag(ads::CDockManager::DockAreaHasCloseButton, false);
    ads::CDockManager::setConfigFlag(ads::CDockManager::DockAreaHasTabsMenuButton, false);
    ads::CDockManager::iconProvider().registerCustomIcon(ads::TabCloseIcon,
                                                         icon(QStringLiteral("close")));
    m_manager = new ads::CDockManager(parent);
    parent->layout()->addWidget(m_manager);
    m_manager->ensurePolished();  // or the library's own sheet stays with what it drew already
    m_manager->setStyleSheet({}); // ours comes when all is in its place: see dress()

    // Where the system is not X11, the library keeps what floats on top by a flag that hides it for
    // a moment, and what is hidden counts as closed.
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        m_manager->window()->removeEventFilter(m_manager);
    connect(m_manager, &ads::CDockManager::dockAreaCreated, this, nameAreaButtons);
    // A panel that is pulled off asks for its own window while it still lies in this one. Without
    // these two, each widget above it and beside those would have to be a window of the system too.
    QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
    connect(m_manager, &ads::CDockManager::floatingWidgetCreated, this,
            [this, &actions = context.actions](ads::CFloatingDockContainer *floating) {
                floating->setAttribute(Qt::WA_DontCreateNativeAncestors);
                // The keys of the window work in it too.
                for (QAction *action : actions.all())
                    floating->addAction(action);
                addMenuKeys(floating, m_manager->window());
            });

    makeDocks(context);
    connect(&context.workspace, &app::Workspace::inspectRequested, this,
            [this] { showPanel(QStringLiteral("inspector")); });
    connect(&context.workspace, &app::Workspace::writeRequested, this,
            [this] { showPanel(QStringLiteral("editor")); });
    drawIcons();
    followSettings(context.settings);
    m_firstLayout = saveLayout();
    stretchCentre();
    sizeAreas();
}

PanelHost::~PanelHost() = default;

void PanelHost::makeDocks(const PanelContext &context)
{
    // The middle first: the sides are split off from it.
    for (const DockSide side : {DockSide::Center, DockSide::Left, DockSide::LeftBelow,
                                DockSide::Right, DockSide::Bottom}) {
        for (const PanelRow &row : panelCatalogue()) {
            if (row.side != side)
                continue;
            auto *dock = new ads::CDockWidget(QCoreApplication::translate("Panels", row.title));
            dock->setObjectName(QLatin1String(row.objectName));
            dock->setWidget(row.make(context, dock), ads::CDockWidget::ForceNoScrollArea);
            place(dock, row);
            nameButtons(dock);
        }
    }
}

void PanelHost::followSettings(const app::Settings &settings)
{
    // A tab keeps the pixels of its icon, in the colour and the size they once had. Whoever applies
    // what the settings say goes first.
    connect(
        &settings.changes(), &app::SettingsChanges::changed, this,
        [this](const QString &key) {
            const bool isScale = key == QLatin1String(app::settings::fontScale.name);
            if (!isScale && key != QLatin1String(app::settings::theme.name))
                return;
            drawIcons();
            // The style sheet keeps the colours that the palette had, and the font.
            if (!m_manager->styleSheet().isEmpty())
                m_manager->setStyleSheet(dockStyleSheet());
            if (isScale && isCramped())
                sizeAreas();
        },
        Qt::QueuedConnection);
}

void PanelHost::drawIcons()
{
    for (const PanelRow &row : panelCatalogue())
        if (ads::CDockWidget *dock = m_manager->findDockWidget(QLatin1String(row.objectName)))
            dock->setIcon(icon(QLatin1String(row.icon)));
}

void PanelHost::addToggles(QMenu *menu) const
{
    for (const PanelRow &row : panelCatalogue())
        if (const ads::CDockWidget *dock = m_manager->findDockWidget(QLatin1String(row.objectName)))
            menu->addAction(dock->toggleViewAction());
}

void PanelHost::bindFloating(ActionRegistry &actions)
{
    actions.bind("view.floatPanel", this, &PanelHost::floatPanel);
    actions.bind("view.dockPanels", this, &PanelHost::dockPanels);
    const auto enable = [this, floating = actions["view.floatPanel"],
                         docking = actions["view.dockPanels"]] {
        floating->setEnabled(panelToFloat());
        docking->setEnabled(!floatingPanels().isEmpty());
    };
    connect(qApp, &QApplication::focusChanged, this, [this, enable](QWidget *, QWidget *now) {
        for (QWidget *widget = now; widget; widget = widget->parentWidget())
            if (auto *dock = qobject_cast<ads::CDockWidget *>(widget))
                m_focused = dock;
        enable();
    });
    for (const ads::CDockWidget *dock : m_manager->dockWidgetsMap()) {
        connect(dock, &ads::CDockWidget::topLevelChanged, this, enable);
        connect(dock, &ads::CDockWidget::viewToggled, this, enable);
    }
    connect(m_manager, &ads::CDockManager::stateRestored, this, enable);
    connect(this, &PanelHost::docked, this, enable);
    enable();
}

ads::CDockWidget *PanelHost::panelToFloat() const
{
    const bool canFloat = m_focused && !m_focused->isClosed() && !m_focused->isInFloatingContainer()
                          && m_manager->openedDockAreas().size() > 1;
    return canFloat ? m_focused.data() : nullptr;
}

QList<ads::CDockWidget *> PanelHost::floatingPanels() const
{
    QList<ads::CDockWidget *> floating;
    for (ads::CDockWidget *dock : m_manager->dockWidgetsMap())
        if (!dock->isClosed() && dock->isInFloatingContainer())
            floating.append(dock);
    return floating;
}

void PanelHost::floatPanel()
{
    if (ads::CDockWidget *dock = panelToFloat()) {
        dock->setFloating();
        dock->window()->activateWindow();
        focusInto(dock);
    }
}

void PanelHost::dockPanels()
{
    const QList<ads::CDockWidget *> floating = floatingPanels();
    findAreas();
    const std::size_t sides = m_areas.size();
    for (const PanelRow &row : panelCatalogue())
        if (auto *dock = m_manager->findDockWidget(QLatin1String(row.objectName));
            floating.contains(dock))
            place(dock, row);
    stretchCentre();
    if (m_areas.size() != sides)
        sizeAreas();
    Q_EMIT docked();
}

void PanelHost::place(ads::CDockWidget *dock, const PanelRow &row)
{
    QPointer<ads::CDockAreaWidget> &area = m_areas[row.side];
    if (area) {
        m_manager->addDockWidgetTabToArea(dock, area);
        // The first panel of a side stays in front.
        area->setCurrentIndex(0);
    } else if (row.side == DockSide::LeftBelow && m_areas[DockSide::Left]) {
        area = m_manager->addDockWidget(ads::BottomDockWidgetArea, dock, m_areas[DockSide::Left]);
    } else if (row.side == DockSide::Left && m_areas[DockSide::LeftBelow]) {
        area = m_manager->addDockWidget(ads::TopDockWidgetArea, dock, m_areas[DockSide::LeftBelow]);
    } else {
        area = m_manager->addDockWidget(areaOf(row.side), dock);
    }
    if (row.firstState == FirstState::Closed)
        dock->toggleView(false);
}

void PanelHost::findAreas()
{
    m_areas.clear();
    for (const PanelRow &row : panelCatalogue())
        if (const auto *dock = m_manager->findDockWidget(QLatin1String(row.objectName)))
            if (dock->dockAreaWidget() && !dock->isInFloatingContainer())
                m_areas[row.side] = dock->dockAreaWidget();
}

void PanelHost::placeStrays()
{
    findAreas();
    for (const PanelRow &row : panelCatalogue()) {
        auto *dock = m_manager->findDockWidget(QLatin1String(row.objectName));
        if (dock && !dock->dockAreaWidget())
            place(dock, row);
    }
    stretchCentre();
}

int PanelHost::widthNeeded(std::initializer_list<DockSide> sides) const
{
    int need = 0;
    for (const PanelRow &row : panelCatalogue())
        if (const auto *dock = m_manager->findDockWidget(QLatin1String(row.objectName));
            dock && !dock->isClosed()
            && std::find(sides.begin(), sides.end(), row.side) != sides.end())
            need = qMax(need, dock->widget()->minimumSizeHint().width());
    return need;
}

bool PanelHost::isCramped() const
{
    const auto rows = panelCatalogue();
    return std::any_of(rows.begin(), rows.end(), [this](const PanelRow &row) {
        const auto *dock = m_manager->findDockWidget(QLatin1String(row.objectName));
        return dock && dock->isVisible()
               && dock->width() < dock->widget()->minimumSizeHint().width();
    });
}

void PanelHost::sizeAreas()
{
    const int width = m_manager->window()->width();
    // Large texts must not push the manuscript out between the sides, nor be cut themselves.
    const int most = width * 28 / 100;
    sizeAreas(qMin(std::clamp(width * 23 / 100, grid(60), grid(84)), most),
              qMin(std::clamp(width * 22 / 100, grid(60), grid(88)), most), 40);
}

void PanelHost::sizeAreas(int left, int right, int leftBelow)
{
    const auto isShown = [this](DockSide side) {
        return m_areas[side] && !m_areas[side]->isHidden();
    };
    const bool showsLeft = isShown(DockSide::Left) || isShown(DockSide::LeftBelow);
    const bool showsRight = isShown(DockSide::Right);
    left = qMax(left, widthNeeded({DockSide::Left, DockSide::LeftBelow}));
    right = qMax(right, widthNeeded({DockSide::Right}));
    const int centre =
        m_manager->window()->width() - (showsLeft ? left : 0) - (showsRight ? right : 0);
    // A side that is closed keeps its place in the row.
    QList<int> sizes;
    if (m_areas[DockSide::Left] || m_areas[DockSide::LeftBelow])
        sizes.append(left);
    sizes.append(centre);
    if (m_areas[DockSide::Right])
        sizes.append(right);
    if (m_areas[DockSide::Center])
        m_manager->setSplitterSizes(m_areas[DockSide::Center], sizes);
    if (m_areas[DockSide::LeftBelow])
        m_manager->setSplitterSizes(m_areas[DockSide::LeftBelow], {100 - leftBelow, leftBelow});
}

void PanelHost::stretchCentre()
{
    // When the window grows, the text gains the room and the sides keep theirs.
    QWidget *child = m_areas[DockSide::Center];
    for (QWidget *parent = child ? child->parentWidget() : nullptr; parent;
         child = parent, parent = parent->parentWidget())
        if (auto *splitter = qobject_cast<QSplitter *>(parent))
            for (int i = 0; i < splitter->count(); ++i)
                splitter->setStretchFactor(i, splitter->widget(i) == child ? 1 : 0);
}

void PanelHost::fetchFloating()
{
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    for (ads::CFloatingDockContainer *floating : m_manager->floatingWidgets()) {
        const QRect frame = floating->frameGeometry();
        const QRect reachable = reachableFrame(frame, screens);
        if (reachable != frame)
            floating->setGeometry(reachable);
    }
}

void PanelHost::resetLayout()
{
    m_manager->restoreState(m_firstLayout.mid(checkSize), layoutVersion);
    placeStrays();
    sizeAreas();
    dress();
}

void PanelHost::arrange(const Arrangement &arrangement)
{
    m_manager->restoreState(m_firstLayout.mid(checkSize), layoutVersion);
    placeStrays();
    const auto &panels = arrangement.panels;
    for (const PanelRow &row : panelCatalogue()) {
        const bool isOpen = std::any_of(panels.begin(), panels.end(), [&row](const char *name) {
            return QLatin1String(name) == QLatin1String(row.objectName);
        });
        if (ads::CDockWidget *dock = m_manager->findDockWidget(QLatin1String(row.objectName)))
            dock->toggleView(isOpen);
    }
    const int width = m_manager->window()->width();
    sizeAreas(width * arrangement.left / 100, width * arrangement.right / 100,
              arrangement.leftBelow);
    dress();
}

void PanelHost::dress()
{
    // Under a style sheet every move of a widget polishes all that is in it; without one the window
    // is built in half the time.
    if (m_manager->styleSheet().isEmpty())
        m_manager->setStyleSheet(dockStyleSheet());
}

QByteArray PanelHost::saveLayout() const
{
    const QByteArray state = m_manager->saveState(layoutVersion);
    return QCryptographicHash::hash(state, QCryptographicHash::Sha1) + state;
}

bool PanelHost::restoreLayout(const QByteArray &layout)
{
    const QByteArray state = layout.mid(checkSize);
    const bool isWhole =
        !state.isEmpty()
        && layout.startsWith(QCryptographicHash::hash(state, QCryptographicHash::Sha1));
    if (layout.isEmpty()) { // what was built stands as it is
        sizeAreas();
        dress();
        return false;
    }
    if (!isWhole || !m_manager->restoreState(state, layoutVersion)) {
        resetLayout();
        return false;
    }
    placeStrays();
    fetchFloating();
    dress();
    return true;
}

void PanelHost::showPanel(const QString &objectName)
{
    if (ads::CDockWidget *dock = m_manager->findDockWidget(objectName)) {
        dock->toggleView(true);
        dock->setAsCurrentTab();
        dock->window()->activateWindow();
        focusInto(dock);
    }
}

void PanelHost::focusSide(DockSide side)
{
    for (const DockSide candidate : {side, DockSide::Left, DockSide::Center})
        for (const PanelRow &row : panelCatalogue()) {
            ads::CDockWidget *dock = m_manager->findDockWidget(QLatin1String(row.objectName));
            if (row.side == candidate && dock && !dock->isClosed()) {
                // A panel that floats came up last, and has the keys.
                if (QGuiApplication::applicationState() == Qt::ApplicationActive)
                    dock->window()->activateWindow();
                focusInto(dock);
                return;
            }
        }
}

void PanelHost::moveFocus(int step)
{
    const QWidget *focused = QApplication::focusWidget();
    std::vector<ads::CDockWidget *> open;
    qsizetype current = -1;
    for (const PanelRow &row : panelCatalogue()) {
        ads::CDockWidget *dock = m_manager->findDockWidget(QLatin1String(row.objectName));
        if (!dock || dock->isClosed() || !dock->isVisible())
            continue;
        if (focused && (dock == focused || dock->isAncestorOf(focused)))
            current = qsizetype(open.size());
        open.push_back(dock);
    }
    if (open.empty())
        return;
    const auto count = qsizetype(open.size());
    const qsizetype next =
        current < 0 ? (step > 0 ? 0 : count - 1) : (current + step + count) % count;
    open[size_t(next)]->window()->activateWindow(); // it may float
    focusInto(open[size_t(next)]);
}

QRect reachableFrame(const QRect &frame, const QList<QRect> &screens)
{
    for (const QRect &screen : screens) {
        const QRect seen = screen & frame;
        if (seen.width() >= reachablePixels && seen.height() >= reachablePixels
            && frame.top() >= screen.top())
            return frame;
    }
    if (screens.isEmpty())
        return frame;
    QRect moved(QPoint(), frame.size().boundedTo(screens.first().size()));
    moved.moveCenter(screens.first().center());
    return moved;
}

} // namespace vl::desktop
