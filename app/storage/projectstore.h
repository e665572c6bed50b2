#pragma once

#include "app/base/result.h"
#include "app/storage/folderstore.h"
#include "app/storage/outsidescan.h"
#include "app/storage/projectfolder.h"
#include "core/changeset.h"
#include "core/project.h"

#include <functional>
#include <memory>

namespace vl::app {

/// Gives all files that the model is written as, by path; may be called once, on any thread.
using FilesSnapshot = std::function<ProjectFiles()>;

/// A save that was chosen and not yet carried out: only values, no part of the model.
class PendingSave
{
public:
    virtual ~PendingSave();
    PendingSave(const PendingSave &) = delete;
    PendingSave &operator=(const PendingSave &) = delete;

    /// Whether others changed what the save would write over since it was last read or written.
    virtual bool meetsOutsideChanges() const = 0;
    /// Writes the files. May run on any thread; touches nothing that others share.
    virtual Result<> commit(OutsideChanges outside) = 0;

protected:
    PendingSave() = default;
};

/// The place where a project is kept: a folder, or a ".vellum" file with its working copy. Lives
/// on the interface thread; only its pending saves leave it.
class ProjectStore
{
public:
    virtual ~ProjectStore();
    ProjectStore(const ProjectStore &) = delete;
    ProjectStore &operator=(const ProjectStore &) = delete;

    /// The folder or the file that the user named, absolute.
    virtual QString path() const = 0;
    virtual bool isBundle() const = 0;
    /// The folder that holds the project's files now, "assets" among them.
    virtual QString folder() const = 0;
    /// The same when there is such a folder, to take along what it carries; else empty.
    virtual QString carriedFolder() const;

    /// Chooses what a save writes: everything, or, given what was touched, only that.
    virtual std::unique_ptr<PendingSave> prepare(const core::Project &project,
                                                 const core::ChangeSet *touched) = 0;
    /// Notes how the save ended. Pending saves end in the order in which they were prepared.
    virtual void finished(PendingSave &save, bool succeeded) = 0;

    /// Every file of the project as a save would leave it now.
    virtual FilesSnapshot snapshot(const core::Project &project,
                                   const core::ChangeSet &touched) const = 0;

    /// A look for what others did to the files.
    virtual std::unique_ptr<PendingScan> prepareScan() const = 0;
    /// What has to be done, on any thread, before what a look found is taken over.
    virtual std::function<Result<>()> prepareAdoption(const OutsideState &state) const = 0;
    /// Takes what a look found for what was last read: the model follows it, or is going to be
    /// written over it.
    virtual void adopt(const OutsideState &state) = 0;
    /// Takes note of media that a look found, and of files that were touched and not changed.
    virtual void note(const OutsideState &state) = 0;

protected:
    ProjectStore() = default;
};

/// A store and the project that was read from it.
struct OpenedStore
{
    std::unique_ptr<ProjectStore> store;
    std::unique_ptr<core::Project> project;
};

/// Opens a ".vellum" file or a project folder.
Result<OpenedStore> openStore(const QString &path);
/// A store for a project that is to be saved at a new place. The files that the project carries
/// beside the program's own, "assets" above all, are taken from the other folder when it is named.
Result<std::unique_ptr<ProjectStore>> newBundleStore(const QString &path, const QString &carryFrom,
                                                     Carry carry);
Result<std::unique_ptr<ProjectStore>> newFolderStore(const QString &folder,
                                                     const QString &carryFrom, Carry carry);

} // namespace vl::app
