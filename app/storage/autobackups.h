#pragma once

#include "app/base/result.h"
#include "app/storage/bundle.h"
#include "app/storage/workingcopy.h"
#include "core/project.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <functional>
#include <optional>
#include <vector>

namespace vl::app {

/// What a backup was made for.
enum class BackupReason
{
    Opened,
    Closed,
    Daily,
    ByHand,
    Replaced, ///< what stood there before something else took its place; see Backups
};

/// What stands in a backup, as the list of backups tells it.
struct BackupSummary
{
    qint64 documents = 0;
    qint64 scenes = 0; ///< documents of the manuscript with none below them
    qint64 words = 0;

    bool operator==(const BackupSummary &) const = default;
};

/// One backup that is kept.
struct BackupInfo
{
    QString path;
    QDateTime time; ///< UTC; invalid when unknown, or in the future
    BackupReason reason = BackupReason::Opened;
    qint64 size = 0; ///< in bytes
};

/// What is packed into a backup: the project as its folder or its file holds it.
struct BackupContent
{
    QString path; ///< the ".vellum" file or the folder
    /// When not empty the model's files as they are in memory, which take the place of those in the
    /// folder, or the working copy, that `path` names.
    ProjectFiles files;
};

/// The backups of one project that are made without being asked, and by hand: in a folder of their
/// own, apart from those of what was replaced, so that neither pushes the other out. Those made
/// before the user chose another folder stay where they are and are still listed. Works on files
/// alone and may be used on any thread, by one at a time.
class AutoBackups
{
public:
    using Summarize = std::function<BackupSummary(const core::Project &)>;

    /// These many of the newest are kept whatever their age, and so many made by hand.
    static constexpr int lastKept = 5;
    static constexpr int byHandKept = 15;
    /// One a day is kept for so many days, and one a week for so many.
    static constexpr int dailyDays = 7;
    static constexpr int weeklyDays = 62;

    /// The project is named by its path, an unsaved one by another text. `summarize` counts what
    /// the list shows.
    AutoBackups(const QString &projectPath, const StorageLocations &locations, Summarize summarize);

    QString folder() const { return m_folder; }

    /// Makes a backup, reads it back and thins out the old ones; nothing when the newest holds the
    /// same. One that cannot be read back is not kept, and nothing is thinned out then.
    Result<std::optional<BackupInfo>> add(const BackupContent &content, BackupReason reason) const;

    /// All that are kept, those of what was replaced too, the newest first.
    std::vector<BackupInfo> list() const;
    /// What stands in a backup: remembered beside it, or read from it.
    Result<BackupSummary> summary(const BackupInfo &backup) const;

private:
    struct Kept;

    std::vector<Kept> keptIn(const QString &folder) const;
    std::vector<Kept> kept() const;
    Result<> makeFolderFor(qint64 bytes) const;
    Result<QByteArray> sumOf(const Kept &backup) const;
    Result<BackupSummary> verify(const QString &path, const QByteArray &sha256) const;
    void thin() const;

    QString m_projectPath;
    QString m_folder;
    QString m_earlierFolder; ///< where they lay before the user chose another place, or empty
    QString m_baseName;
    StorageLocations m_locations;
    Summarize m_summarize;
};

/// Reads the project in a backup.
Result<std::unique_ptr<core::Project>> loadBackup(const QString &path);

/// Copies a backup to where a project is to stand; it must load. What stands there is put away as
/// a replaced version first; one that a program of this machine has open is not replaced.
Result<> copyBackup(const QString &backupPath, const QString &bundlePath,
                    const StorageLocations &locations);

} // namespace vl::app
