#include "app/models/projectflows.h"

#include "app/base/settings.h"
#include "app/models/prompts.h"
#include "app/models/repairflow.h"
#include "app/models/workspace.h"

namespace vl::app {

bool ProjectFlows::newProject()
{
    if (!mayClose())
        return false;
    m_workspace.replaceProject(std::make_unique<OpenProject>());
    return true;
}

bool ProjectFlows::chooseAndOpen()
{
    const QString path = m_prompts.chooseProjectToOpen();
    return !path.isEmpty() && openHere(path);
}

bool ProjectFlows::chooseAndOpenFolder()
{
    const QString path = m_prompts.chooseProjectFolderToOpen();
    return !path.isEmpty() && openHere(path);
}

bool ProjectFlows::openHere(const QString &path)
{
    return mayClose() && open(path);
}

bool ProjectFlows::open(const QString &path)
{
    Result<std::unique_ptr<OpenProject>> opened = OpenProject::open(path);
    if (!opened)
        return RepairFlow(m_prompts, StorageLocations::standard(),
                          [this](const QString &other) { return open(other); })
            .offer(path, opened.message());
    m_workspace.replaceProject(*std::move(opened));
    m_settings.addRecentProject(path);
    return true;
}

bool ProjectFlows::save()
{
    if (!m_workspace.current().hasLocation())
        return saveAs();
    const std::optional<OutsideChanges> outside = askOutsideChanges();
    if (!outside)
        return false;
    const Result<> saved = m_workspace.current().save(*outside);
    return saved || report(tr("Save Project"), saved.message());
}

bool ProjectFlows::saveInBackground()
{
    if (!m_workspace.current().hasLocation())
        return saveAs();
    const std::optional<OutsideChanges> outside = askOutsideChanges();
    if (outside)
        m_workspace.current().saveInBackground(*outside);
    return outside.has_value();
}

std::optional<OutsideChanges> ProjectFlows::askOutsideChanges()
{
    m_workspace.flush();
    if (!m_workspace.current().meetsOutsideChanges())
        return OutsideChanges::Refuse;
    const bool keepsOwn =
        m_prompts.confirm(tr("The project changed outside Ivorel since you opened it."),
                          tr("Saving puts your version in place of what was changed there. To keep "
                             "both, save under another name."),
                          tr("Save My Version"));
    return keepsOwn ? std::optional(OutsideChanges::Overwrite) : std::nullopt;
}

bool ProjectFlows::saveAs()
{
    const QString path = m_prompts.chooseBundleToSave(m_workspace.current().name());
    if (path.isEmpty())
        return false;
    const Result<> saved = m_workspace.current().saveAsBundle(path);
    if (!saved)
        return report(tr("Save Project"), saved.message());
    m_settings.addRecentProject(path);
    return true;
}

bool ProjectFlows::saveAsFolder()
{
    const QString folder = m_prompts.chooseFolderToSave(m_workspace.current().name());
    if (folder.isEmpty())
        return false;
    const Result<> saved = m_workspace.current().saveAsFolder(folder);
    if (!saved)
        return report(tr("Save Project"), saved.message());
    m_settings.addRecentProject(folder);
    return true;
}

bool ProjectFlows::mayClose()
{
    m_workspace.flush();
    m_workspace.current().finishSaving(); // what is on its way to the disk is no question
    if (!m_workspace.current().isDirty())
        return true;
    switch (m_prompts.askUnsaved(m_workspace.current().name())) {
    case Prompts::Unsaved::Save:
        return save();
    case Prompts::Unsaved::Discard:
        return true;
    case Prompts::Unsaved::Cancel:
        break;
    }
    return false;
}

bool ProjectFlows::report(const QString &title, const QString &message)
{
    m_prompts.showError(title, message);
    return false;
}

} // namespace vl::app
