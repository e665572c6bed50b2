#pragma once

#include "app/base/result.h"
#include "app/storage/bundle.h"
#include "app/storage/projectfiles.h"
#include "app/storage/workingcopy.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace vl::app {

/// How a working copy came to hold what it holds.
enum class WorkingCopyOrigin
{
    Extracted, ///< there was none: filled from the bundle
    Reused,    ///< it held the bundle's files already
    Restored,  ///< it held changes that were never saved, which are in the bundle now
    Replaced,  ///< it held something else, which was put away; filled from the bundle
};

/// A bundle that is ready to be worked on.
struct OpenedBundle
{
    QString bundlePath; ///< absolute and clean
    QString workingFolder;
    KnownBundle known;
    ProjectFiles files; ///< what the project is read from, as the bundle and its copy hold it
    WorkingCopyOrigin origin = WorkingCopyOrigin::Reused;
    QString
        backupPath; ///< when restored, the bundle as it was; when replaced, what stood in the copy
};

// The caller holds the lock of the bundle during each of these. They take and give values only, and
// run on any thread.

/// Makes the bundle's working copy ready, restoring unsaved changes from it or putting it away.
Result<OpenedBundle> openBundle(const QString &bundlePath, const StorageLocations &locations);

/// Reads the bundle again into its working copy; what differs there goes to a backup first.
Result<OpenedBundle> reloadBundle(const QString &bundlePath, const StorageLocations &locations);

/// What a save is to write.
struct BundleSave
{
    QString bundlePath;
    /// The copy in which the bundle was opened.
    QString workingFolder;
    /// Every file that the model is written as.
    ProjectFiles files;
    /// Paths that the project was read from, if only once; what is not written there any more is
    /// removed. Those named by an id need not be among them.
    QStringList readPaths;
    /// The bundle as it was last opened or saved.
    KnownBundle known;
    /// Writes over what others wrote meanwhile, once that is in a backup.
    bool overwritesOutsideChanges = false;
};

enum class SaveOutcome
{
    Saved,
    ChangedOutside, ///< nothing was written: someone else has written the bundle since
    Missing,        ///< nothing was written: the bundle is gone
    Failed,         ///< the old bundle stands
};

/// What became of a save.
struct SaveReport
{
    SaveOutcome outcome = SaveOutcome::Failed;
    QString message;    ///< why it failed; when saved, what could not be done besides, or empty
    KnownBundle known;  ///< the bundle as it stands now, for the next save
    QString backupPath; ///< what others wrote, when it was overwritten
};

/// Writes the bundle and what else its working copy holds; the copy itself follows afterwards.
SaveReport saveBundle(const BundleSave &save, const StorageLocations &locations);

/// Writes a bundle at another place, with what is to be carried along from the folder that the
/// project lived in (empty for none), and opens it there. An older file there goes to a backup.
Result<OpenedBundle> saveBundleAs(const BundleSave &save, const QString &carryFrom,
                                  const StorageLocations &locations,
                                  Carry carry = Carry::Everything);

} // namespace vl::app
