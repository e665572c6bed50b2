#pragma once

#include "app/models/unwrittenfile.h"
#include "app/models/workspace.h"
#include "app/storage/journal.h"
#include "app/storage/journalshelf.h"
#include "app/storage/workingcopy.h"

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QThreadPool>
#include <QtCore/QTimer>

#include <memory>

namespace vl::app {

/// Writes down what is not saved yet, so that a crash costs no more than the last two seconds. What
/// is written is chosen on the interface thread, a little at a time; another thread writes it.
class JournalKeeper final : public QObject
{
    Q_OBJECT

public:
    /// How long after a change it is written down, and after a failure tried again, in
    /// milliseconds.
    static constexpr int delay = 1000;

    /// The workspace outlives it.
    JournalKeeper(Workspace &workspace, StorageLocations locations, QObject *parent = nullptr);
    /// Leaves the journal when something in the project is neither saved nor given up.
    ~JournalKeeper() override;

    /// Journals that a crash left of the open project, the earliest first; also when it was moved
    /// since.
    const QStringList &found() const { return m_found; }
    /// Those of other projects, each with its path, and of projects that were never saved.
    const std::vector<FoundJournal> &foundElsewhere() const { return m_foundElsewhere; }
    /// The user says that they are of the open project.
    void adopt(const QStringList &journals);
    /// The user decided about what stands in them: they are offered no more, and kept for a while.
    void settle(const QStringList &journals);
    const JournalShelf &shelf() const { return m_shelf; }

    /// The window closes, and what is not saved is given up.
    void giveUp();
    /// Writes down what is due and waits until that is done; false when something could not be
    /// written.
    bool finish();

Q_SIGNALS:
    /// What was found is other now.
    void foundChanged();
    /// What is not saved could not be written down either; it is tried again. Once for a failure.
    void fellBehind(const QString &message);
    /// All of it is written down, or saved, after it had not been.
    void caughtUp();

private:
    void enter();
    void schedule(int milliseconds);
    void writeDue();
    bool hasDue() const { return !m_due.isEmpty() || !m_dueObjects.empty(); }
    std::vector<UnwrittenFile> chooseDue();
    void addPending(std::vector<UnwrittenFile> &files, const PendingTexts &pending);
    void forgetSaved();
    void post(std::vector<UnwrittenFile> files);
    void written(const std::shared_ptr<JournalWriter> &writer, const Result<> &result);
    QString newJournalPath() const;
    void lookForJournals();

    Workspace &m_workspace;
    StorageLocations m_locations;
    JournalShelf m_shelf;
    QThreadPool m_pool; ///< of one thread
    QTimer m_timer;
    std::shared_ptr<JournalWriter> m_writer; ///< used on the pool's thread only
    core::ChangeSet m_due;                   ///< changed and not written down yet
    std::vector<core::ContentId>
        m_dueObjects;                ///< the same of what is being chosen from, last first
    QSet<core::ContentId> m_pending; ///< documents written down with what is being typed
    QString m_origin;                ///< of the project that the journal is of
    QString m_folder;                ///< in which its files stand
    bool m_hasJournal = false;
    bool m_isBehind = false; ///< a piece could not be written
    QString m_fault;         ///< why, as it was told
    QStringList m_found;
    std::vector<FoundJournal> m_foundElsewhere;
};

} // namespace vl::app
