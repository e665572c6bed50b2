#pragma once

#include "app/storage/autobackups.h"

#include <QtCore/QObject>
#include <QtCore/QThreadPool>
#include <QtCore/QTimer>

#include <atomic>
#include <memory>

namespace vl::app {

class Workspace;

/// Counts what the list of backups shows.
BackupSummary summarizeBackup(const core::Project &project);

/// Makes the backups that nobody asks for: when a project is opened, when it is closed and once a
/// day. The work is done on a thread of its own; a backup of what did not change is not made.
class BackupKeeper final : public QObject
{
    Q_OBJECT

public:
    BackupKeeper(Workspace &workspace, StorageLocations locations, QObject *parent = nullptr);
    /// Makes the backup at closing and waits for it.
    ~BackupKeeper() override;

    /// The backups of the open project.
    AutoBackups backups() const;
    /// Makes a backup of the project as it is in the window, saved or not; it must have a place.
    void backUpNow();
    /// Looks whether a day has begun; runs by itself each hour and after each save.
    void lookAtDay();
    /// Waits for the backups that are being made.
    void finish();

Q_SIGNALS:
    /// A backup stands, and was read back.
    void made(vl::app::BackupReason reason);
    /// The newest backup holds the same already.
    void unchanged(vl::app::BackupReason reason);
    void failed(vl::app::BackupReason reason, const QString &message);

private:
    void leave();
    void enter();
    void run(const QString &projectPath, BackupContent content, BackupReason reason);
    void report(BackupReason reason, const Result<std::optional<BackupInfo>> &result);

    Workspace &m_workspace;
    StorageLocations m_locations;
    QThreadPool m_pool; ///< of one thread, so that one backup follows the other
    QTimer m_hourly;
    QString m_path;            ///< of the project whose backups are made; empty for none
    bool m_savedSince = false; ///< since the last backup
    QDate m_lastDay;           ///< of the last backup in this run, or of its try
    std::shared_ptr<std::atomic<int>> m_saves; ///< begun or ended, told to the other thread
};

} // namespace vl::app
