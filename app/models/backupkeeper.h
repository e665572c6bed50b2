#pragma once

#include "app/storage/autobackups.h"

#include <QtCore/QObject>
#include <QtCore/QThreadPool>
#include <QtCore/QTimer>

#include <atomic>
#include <memory>
#include <optional>

namespace vl::app {

class Workspace;

/// Counts what the list of backups shows.
BackupSummary summarizeBackup(const core::Project &project);

/// Makes the backups that nobody asks for: when a project is opened, when it is closed and once a
/// day, for which it looks at the clock whenever the editors hand in what is typed, as they do at
/// each autosave. The work is done on a thread of its own; a backup of what did not change is not
/// made, and one that failed is tried again after a while.
class BackupKeeper final : public QObject
{
    Q_OBJECT

public:
    /// How long it waits before it tries again what failed, in milliseconds.
    static constexpr qint64 patience = qint64(10) * 60 * 1000;

    BackupKeeper(Workspace &workspace, StorageLocations locations, QObject *parent = nullptr);
    /// Makes the backup at closing and waits for it.
    ~BackupKeeper() override;

    /// The backups of the open project.
    AutoBackups backups() const;
    /// Makes a backup of the project as it is in the window, saved or not; it must have a place.
    void backUpNow();
    /// Whether backups are made that nobody asked for; they are unless told otherwise.
    void setAutomatic(bool isAutomatic) { m_isAutomatic = isAutomatic; }
    /// Where they are made from now on; empty for the program's own folder.
    void setFolder(const QString &folder);
    /// How long the backup at opening is put off, in milliseconds, so that it takes nothing from
    /// the window that is being filled. It never comes later than the first save.
    void setOpeningDelay(int milliseconds) { m_opening.setInterval(milliseconds); }
    /// Makes the backup that is due: one that failed, or that of a new day.
    void lookAtDay();
    /// Waits for the backups that are being made, one that was put off among them.
    void finish();

Q_SIGNALS:
    /// A backup stands, and was read back.
    void made(vl::app::BackupReason reason);
    /// The newest backup holds the same already.
    void unchanged(vl::app::BackupReason reason);
    /// None was made. Of one that nobody asked for the same reason is told once, until one is made.
    void failed(vl::app::BackupReason reason, const QString &message);

private:
    void leave();
    void enter();
    void backUpOpened();
    void endOpeningDelay();
    void run(const QString &projectPath, BackupContent content, BackupReason reason);
    void report(const QString &projectPath, BackupReason reason,
                const Result<std::optional<BackupInfo>> &result);
    bool isNewDay() const;

    Workspace &m_workspace;
    StorageLocations m_locations;
    QThreadPool m_pool; ///< of one thread, so that one backup follows the other
    QTimer m_opening;   ///< runs while the backup at opening is put off
    bool m_isAutomatic = true;
    QString m_path;                     ///< of the project whose backups are made; empty for none
    bool m_savedSince = false;          ///< since the last backup
    int m_running = 0;                  ///< those that are being made
    QDate m_lastDay;                    ///< of the last backup in this run, or of its try
    qint64 m_lastTime = 0;              ///< the same by the clock that only grows
    std::optional<BackupReason> m_owed; ///< what the last one that failed was for
    QString m_toldFault;
    std::shared_ptr<std::atomic<int>> m_saves; ///< begun or ended, told to the other thread
};

} // namespace vl::app
