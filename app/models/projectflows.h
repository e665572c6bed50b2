#pragma once

#include "app/storage/folderstore.h"
#include "app/storage/projectfolder.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <functional>
#include <memory>
#include <optional>

namespace vl::app {

class ProjectLock;
struct NewProject;
class Prompts;
class Settings;
class Workspace;

/// New, open, save and close as the user goes through them, with the questions on the way.
class ProjectFlows
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ProjectFlows)

public:
    ProjectFlows(Workspace &workspace, Prompts &prompts, Settings &settings);
    ~ProjectFlows();
    Q_DISABLE_COPY_MOVE(ProjectFlows)

    /// Each gives false when the user called it off or it failed, which the user was told.
    bool newProject();
    /// Makes a project on the disk and opens it.
    bool create(const NewProject &wanted);
    /// Copies a project under a free name into a folder and opens the copy.
    bool openCopy(const QString &path, const QString &folder, const QString &name);
    bool chooseAndOpen();
    bool chooseAndOpenFolder();
    /// Asks what becomes of unsaved work, then opens.
    bool openHere(const QString &path);
    /// The same for one of the recent projects. When it is gone, the user may tell where it is now,
    /// or have it taken from the list.
    bool openRecent(const QString &path);
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
    /// The lock that opening needs, or how to do without; nothing when the user calls it off.
    struct Access
    {
        std::unique_ptr<ProjectLock> lock;
        bool isReadOnly = false;
        QString path; ///< of what is to be opened
    };
    std::optional<Access> askAccess(const QString &path);
    /// What a copy of the project is called at first.
    static QString copyName(const QString &path);
    QString copyElsewhere(const QString &path);
    /// Locks a place that is about to be saved to; false when somebody else has it open.
    bool lockToSave(const QString &path, std::unique_ptr<ProjectLock> &lock);
    /// Saves to another place; when not all that the project carries can be read, it asks whether
    /// to go without the rest.
    bool saveElsewhere(const std::function<Result<>(Carry)> &save);
    bool report(const QString &title, const QString &message);

    Workspace &m_workspace;
    Prompts &m_prompts;
    Settings &m_settings;
    std::unique_ptr<ProjectLock> m_lock; ///< of the open project; null where none can be had
};

} // namespace vl::app
