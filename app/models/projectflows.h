#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

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
    /// Asks for a place when the project has none.
    bool save();
    bool saveAs();
    bool saveAsFolder();
    /// Whether the present project may go: it is clean, was saved now, or is given up.
    bool mayClose();

private:
    bool report(const QString &title, const QString &message);

    Workspace &m_workspace;
    Prompts &m_prompts;
    Settings &m_settings;
};

} // namespace vl::app
