#include "desktop/shell/panelhost.h"

#include "desktop/panels/catalogue.h"

#include <DockAreaTitleBar.h>
#include <DockAreaWidget.h>
#include <DockManager.h>
#include <DockSplitter.h>
#include <DockWidget.h>
#include <DockWidgetTab.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLayout>
#include <QtWidgets/QMenu>

#include <algorithm>
#include <map>

namespace vl::desktop {

namespace {

constexpr int layoutVersion = 1;

ads::DockWidgetArea areaOf(DockSide side)
{
    switch (side) {
    case DockSide::Left:
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

} // namespace

PanelHost::PanelHost(QWidget *parent, const PanelContext &context)
    : QObject(parent)
{
    ads::CDockManager::setConfigFlags(ads::CDockManager::DefaultOpaqueConfig
                                      | ads::CDockManager::FocusHighlighting);
    ads::CDockManager::setConfigFlag(ads::CDockManager::DockAreaHasUndockButton, false);
    ads::CDockManager::setConfigFlag(ads::CDockManager::DockAreaHasCloseButton, false);
    ads::CDockManager::setConfigFlag(ads::CDockManager::DockAreaHasTabsMenuButton, false);
    m_manager = new ads::CDockManager(parent);
    parent->layout()->addWidget(m_manager);
    m_manager->setStyleSheet(
        m_manager->styleSheet()
        + QStringLiteral("\nads--CDockWidgetTab QLabel { color: palette(text); }\n"
                         "ads--CDockWidgetTab[focused=\"true\"] QLabel "
                         "{ color: palette(highlighted-text); }\n"));

    connect(m_manager, &ads::CDockManager::dockAreaCreated, this, nameAreaButtons);

    std::map<DockSide, ads::CDockAreaWidget *> areas;
    // The middle first: the sides are split off from it.
    for (const bool isCentre : {true, false}) {
        for (const PanelRow &row : panelCatalogue()) {
            if ((row.side == DockSide::Center) != isCentre)
                continue;
            auto *dock = new ads::CDockWidget(QCoreApplication::translate("Panels", row.title));
            dock->setObjectName(QLatin1String(row.objectName));
            dock->setWidget(row.make(context, dock), ads::CDockWidget::ForceNoScrollArea);
            ads::CDockAreaWidget *&area = areas[row.side];
            area = area ? m_manager->addDockWidgetTabToArea(dock, area)
                        : m_manager->addDockWidget(areaOf(row.side), dock);
            nameButtons(dock);
            if (row.firstState == FirstState::Closed)
                dock->toggleView(false);
            m_docks.push_back(dock);
        }
    }
    if (areas.contains(DockSide::Left))
        m_manager->setSplitterSizes(areas[DockSide::Left], {320, 960});
    m_firstLayout = saveLayout();
}

PanelHost::~PanelHost() = default;

void PanelHost::addToggles(QMenu *menu) const
{
    for (const PanelRow &row : panelCatalogue())
        if (const ads::CDockWidget *dock = m_manager->findDockWidget(QLatin1String(row.objectName)))
            menu->addAction(dock->toggleViewAction());
}

void PanelHost::resetLayout()
{
    restoreLayout(m_firstLayout);
}

QByteArray PanelHost::saveLayout() const
{
    return m_manager->saveState(layoutVersion);
}

void PanelHost::restoreLayout(const QByteArray &state)
{
    if (!state.isEmpty())
        m_manager->restoreState(state, layoutVersion);
}

void PanelHost::showPanel(const QString &objectName)
{
    if (ads::CDockWidget *dock = m_manager->findDockWidget(objectName)) {
        dock->toggleView(true);
        dock->setAsCurrentTab();
        dock->widget()->setFocus(Qt::ShortcutFocusReason);
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
        if (focused && dock->isAncestorOf(focused))
            current = qsizetype(open.size());
        open.push_back(dock);
    }
    if (open.empty())
        return;
    const auto count = qsizetype(open.size());
    const qsizetype next =
        current < 0 ? (step > 0 ? 0 : count - 1) : (current + step + count) % count;
    QWidget *panel = open[size_t(next)]->widget();
    if (QWidget *first = panel->focusProxy() ? panel->focusProxy() : panel->nextInFocusChain())
        first->setFocus(Qt::TabFocusReason);
}

} // namespace vl::desktop
