#pragma once

#include "app/storage/folderstore.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <optional>

namespace vl::app {

class Prompts;
class Settings;
class Workspace;

/// New, open, save and close as the user goes through them, with the questions on the way.
class ProjectFlows
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ProjectFlows)

public:
    ProjectFlows(Workspace &workspace, Prompts &prompts, Settings &settings)
        : m_workspace(workspace)
        , m_prompts(prompts)
        , m_settings(settings)
    {
    }

    /// Each gives false when the user called it off or it failed, which the user was told.
    bool newProject();
    bool chooseAndOpen();
    bool chooseAndOpenFolder();
    /// Asks what becomes of unsaved work, then opens.
    bool openHere(const QString &path);
    /// Opens without asking; a project that does not load leaves the present one open.
    bool open(const QString &path);
    /// Asks for a place when the project has none, and before it writes over what others changed.
    bool save();
    /// The same, but what is written is written while the user goes on; the workspace tells how it
    /// ended.
    bool saveInBackground();
    bool saveAs();
    bool saveAsFolder();
    /// Whether the present project may go: it is clean, was saved now, or is given up.
    bool mayClose();

private:
    /// What to do with what others changed; nothing when the user calls the save off.
    std::optional<OutsideChanges> askOutsideChanges();
    bool report(const QString &title, const QString &message);

    Workspace &m_workspace;
    Prompts &m_prompts;
    Settings &m_settings;
};

} // namespace vl::app
