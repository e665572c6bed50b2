#pragma once

#include "app/models/workspace.h"
#include "app/storage/journal.h"
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

    /// Journals that a crash left: of the open project, and of projects that were never saved.
    /// They stay until they are removed.
    const QStringList &found() const { return m_found; }
    const QStringList &foundUntitled() const { return m_foundUntitled; }
    /// The user decided about what stands in them.
    void removeFound();
    void removeFoundUntitled();

    /// The window closes, and what is not saved is given up.
    void giveUp();
    /// Writes down what is due and waits until that is done.
    void finish();

Q_SIGNALS:
    /// Another project is open, and found() tells what a crash left of it.
    void foundChanged();

private:
    void enter();
    void schedule(int milliseconds);
    void writeDue();
    std::vector<FileChange> chooseDue();
    void addPending(std::vector<FileChange> &changes, const PendingTexts &pending);
    void forgetSaved();
    void post(std::vector<FileChange> changes);
    QString journalPath() const;
    void collectUntitled();
    static QStringList collect(const QString &journalPath);

    Workspace &m_workspace;
    StorageLocations m_locations;
    QThreadPool m_pool; ///< of one thread
    QTimer m_timer;
    std::shared_ptr<JournalWriter> m_writer; ///< used on the pool's thread only
    core::ChangeSet m_due;                   ///< changed and not written down yet
    QSet<core::ContentId> m_pending;         ///< documents written down with what is being typed
    QString m_untitled;                      ///< names the journal of a project without a place
    bool m_hasJournal = false;
    bool m_isBehind = false; ///< a piece could not be written
    QStringList m_found;
    QStringList m_foundUntitled;
};

} // namespace vl::app
