#include "desktop/dialogs/projecttools.h"

#include "app/base/settingskeys.h"
#include "app/models/newproject.h"
#include "app/models/projectflows.h"
#include "app/storage/workingcopy.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/dialogs/about.h"
#include "desktop/dialogs/findinproject.h"
#include "desktop/dialogs/newproject.h"
#include "desktop/shell/panelhost.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QMainWindow>

namespace vl::desktop {

ProjectTools::ProjectTools(const PanelContext &context, app::ProjectFlows &flows, PanelHost &panels,
                           QMainWindow *window)
    : m_context(context)
    , m_flows(flows)
    , m_panels(panels)
    , m_window(window)
    , m_palette(context, panels, window)
{
    context.actions.bind("edit.findInProject", this, &ProjectTools::findInProject);
    context.actions.bind("file.new", this, &ProjectTools::newProject);
    context.actions.bind("help.welcome", this, &ProjectTools::showWelcome);
    context.actions.bind("help.about", this, &ProjectTools::showAbout);
}

void ProjectTools::findInProject()
{
    FindInProject::open(
        m_context, [this](const QString &panel) { m_panels.showPanel(panel); }, m_window);
}

void ProjectTools::newProject()
{
    QString place = m_context.settings.text(app::settings::newProjectPlace);
    if (place.isEmpty() || !QFileInfo(place).isDir())
        place = app::ProjectMaker::suggestedPlace();
    const auto make = [this](const app::NewProject &wanted) {
        const bool isMade = m_flows.create(wanted);
        if (isMade)
            m_context.settings.set(app::settings::newProjectPlace, wanted.place);
        return isMade;
    };
    auto *dialog = new NewProjectDialog(place, make, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void ProjectTools::showWelcome()
{
    WelcomeDialog::Offers offers;
    offers.recent = m_context.settings.recentProjects();
    offers.sample = !app::ProjectMaker::samplePath().isEmpty();
    offers.import = m_context.actions["file.import.plainText"]->isEnabled();
    auto *dialog = new WelcomeDialog(offers, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &WelcomeDialog::chosen, this, &ProjectTools::begin);
    connect(dialog, &WelcomeDialog::recentChosen, this,
            [this](const QString &path) { m_flows.openRecent(path); });
    dialog->open();
    m_context.settings.set(app::settings::welcomed, true);
}

void ProjectTools::begin(WelcomeDialog::Choice choice)
{
    using Choice = WelcomeDialog::Choice;
    switch (choice) {
    case Choice::New:
        return m_context.actions["file.new"]->trigger();
    case Choice::Open:
        return m_context.actions["file.open"]->trigger();
    case Choice::OpenFolder:
        return m_context.actions["file.openFolder"]->trigger();
    case Choice::Sample:
        m_flows.openCopy(app::ProjectMaker::samplePath(), app::ProjectMaker::suggestedPlace(),
                         tr("Ivorel Sample"));
        return;
    case Choice::Import:
        return m_context.actions["file.import.plainText"]->trigger();
    }
}

void ProjectTools::showAbout()
{
    auto *dialog = new AboutDialog(app::StorageLocations::of(m_context.settings), m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace vl::desktop
