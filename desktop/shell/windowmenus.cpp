#include "desktop/shell/windowmenus.h"

#include "app/base/settingskeys.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/shell/appearance.h"
#include "desktop/shell/layouts.h"
#include "desktop/shell/notices.h"
#include "desktop/shell/panelhost.h"
#include "desktop/shell/recentmenu.h"
#include "desktop/widgets/focusring.h"
#include "desktop/widgets/menuletters.h"

#include <QtGui/QActionGroup>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>

namespace vl::desktop {

WindowMenus::WindowMenus(QMainWindow *window, const Parts &parts)
    : QObject(window)
    , m_window(window)
    , m_parts(parts)
{
    const ActionRegistry &actions = m_parts.actions;
    FocusRing::leaveTo(window->menuBar()); // the title that has the keys is lit
    buildFile();
    actions.fill(addMenu(tr("&Edit")), Menu::Edit);
    buildView();
    actions.fill(addMenu(tr("&AI")), Menu::Ai);
    actions.fill(addMenu(tr("&Help")), Menu::Help);
}

QMenu *WindowMenus::addMenu(const QString &title)
{
    QMenu *menu = m_window->menuBar()->addMenu(title);
    menu->setToolTipsVisible(true);
    new MenuLetters(menu);
    return menu;
}

void WindowMenus::buildFile()
{
    const ActionRegistry &actions = m_parts.actions;
    QMenu *file = addMenu(tr("&File"));
    actions.fill(file, Menu::File);
    file->addSeparator();
    QMenu *imports = file->addMenu(tr("&Import"));
    imports->setToolTipsVisible(true);
    actions.fill(imports, Menu::Import);
    QMenu *exports = file->addMenu(tr("&Export"));
    exports->setToolTipsVisible(true);
    actions.fill(exports, Menu::Export);
    QMenu *recent = file->addMenu(tr("&Recent Projects"));
    actions.fill(recent, Menu::Recent);
    auto *projects = new RecentMenu(recent, actions["file.clearRecent"], m_parts.settings);
    connect(projects, &RecentMenu::chosen, this, &WindowMenus::recentChosen);
    actions.fill(file, Menu::Leave);
}

void WindowMenus::buildView()
{
    QMenu *view = addMenu(tr("&View"));
    m_parts.actions.fill(view, Menu::View);
    view->addSeparator();
    m_parts.appearance.addThemes(view->addMenu(tr("&Theme")));
    addLanguages(view->addMenu(tr("Interface &Language")));
    m_parts.actions.fill(view, Menu::Layouts);
    QMenu *layouts = new QMenu(tr("Appl&y Perspective"), view);
    view->insertMenu(m_parts.actions["view.deleteLayout"], layouts);
    m_parts.layouts.showIn(layouts);
    view->addSeparator();
    m_parts.panels.addToggles(view);
}

void WindowMenus::addLanguages(QMenu *menu)
{
    auto *group = new QActionGroup(menu);
    for (const InterfaceLanguage &language : interfaceLanguages()) {
        const QString code = QLatin1String(language.code);
        QAction *entry = menu->addAction(QString::fromUtf8(language.name));
        entry->setCheckable(true);
        entry->setData(code);
        group->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, language, code] {
            m_parts.settings.set(app::settings::language, code);
            m_parts.notices.ask(QStringLiteral("language"), languageNotice(language), {});
        });
    }
    const auto tick = [this, group] {
        const QString present = presentLanguage(m_parts.settings);
        for (QAction *entry : group->actions())
            entry->setChecked(entry->data().toString() == present);
    };
    connect(&m_parts.settings.changes(), &app::SettingsChanges::changed, group, tick);
    tick();
}

} // namespace vl::desktop
