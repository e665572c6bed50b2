#pragma once

#include "app/models/outsideoffer.h"
#include "app/models/outsidewatcher.h"
#include "app/storage/outsidescan.h"
#include "app/storage/reconcile.h"
#include "app/storage/workingcopy.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFutureWatcher>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <functional>
#include <memory>
#include <vector>

namespace vl::app {

class OpenProject;
class Workspace;

/// Follows what others do to the files of the open project: notices it, offers what can be done
/// about it, and does what the user decides. The program's own writes are no news to it, since it
/// compares contents with what was last read or written. Nothing is loaded, removed or overwritten
/// unless the user says so.
class OutsideMonitor final : public QObject
{
    Q_OBJECT

public:
    /// The workspace outlives it. Backups go to the locations.
    explicit OutsideMonitor(Workspace &workspace,
                            StorageLocations locations = StorageLocations::standard(),
                            QObject *parent = nullptr);
    ~OutsideMonitor() override;

    /// What is offered now.
    const OutsideOffer &offer() const { return m_offer; }
    /// What the last look found.
    const OutsideState &state() const { return m_state; }
    /// The changed files against what the project would write now; what can be merged without a
    /// question is settled already.
    std::vector<ReconcileEntry> entries() const;
    /// Whether a look or a decision is on its way.
    bool isBusy() const
    {
        return m_looking.isRunning() || m_deciding.isRunning() || m_handsTimer.isActive();
    }
    /// Whether media files are others than those that are shown.
    bool hasChangedMedia() const { return !m_changedMedia.isEmpty(); }
    /// Whether loading what is on disk would take more than half of the project away.
    bool removesMuch() const;

    OutsideWatcher &watcher() { return m_watcher; }
    /// How long files that hold nothing whole, or are all gone, are waited for, in milliseconds.
    void setPatience(int milliseconds) { m_patience = milliseconds; }
    /// A decision is carried out only while this says that nothing is under the user's hands that
    /// it would change; until then it waits. Without it nothing is.
    void setMayChange(std::function<bool()> mayChange) { m_mayChange = std::move(mayChange); }

public Q_SLOTS:
    /// Looks now; nothingFound() comes when there is nothing to tell, else offerChanged().
    void check();
    /// Looks once things are quiet.
    void lookSoon() { m_watcher.stir(); }
    /// Takes over what is on disk. Unsaved edits stay, merged with it.
    void load() { decide(Decision::Load); }
    /// Merges and saves; asks for needsReview() when there are conflicts.
    void merge();
    /// Merges with these settled entries, which are those of entries(), and saves. When they are
    /// not about what is there any more, on disk or in the window, nothing is done.
    void apply(const std::vector<vl::app::ReconcileEntry> &entries);
    /// Keeps what is open; what others left goes to a backup.
    void keepMine() { decide(Decision::Keep); }
    /// Has the panels show the media anew; those that changed are news no more.
    void reloadMedia();

Q_SIGNALS:
    /// There is another offer, or none any more.
    void offerChanged();
    /// A check that was asked for found no change.
    void nothingFound();
    /// A merge waits until the conflicts are settled.
    void needsReview();
    /// A decision was carried out; the text says which.
    void done(const QString &message);
    /// A decision could not be carried out, and nothing was changed.
    void failed(const QString &message);
    /// So many media files were added, replaced or removed since they were shown; none when they
    /// are as they were again, or were shown anew.
    void mediaChanged(int files);

private:
    enum class Decision
    {
        Load,
        Merge,
        Keep,
        Follow, ///< of itself: none of the texts in the bundle is another
    };
    /// What another thread found before a decision is carried out.
    struct Prepared
    {
        OutsideState state;
        QString fault;
    };

    void follow();
    void keepAside(const OpenProject &project) const;
    void look();
    void lookEnded();
    bool waits();
    void take(OutsideState state);
    void renewOffer();
    void followBundle();
    void decide(Decision decision);
    void decisionPrepared();
    bool isStillTrue(const Prepared &prepared) const;
    void carryOut();
    void carryOutFollowing();
    void tellMedia(const OutsideState &state);

    Workspace &m_workspace;
    const OpenProject *m_followed = nullptr; ///< stands until the next is followed
    StorageLocations m_locations;
    OutsideWatcher m_watcher;
    OutsideState m_state;
    OutsideOffer m_offer;
    QFutureWatcher<OutsideState> m_looking;
    quint64 m_lookedGeneration = 0; ///< of the files when the look began
    bool m_looksAgain = false;
    bool m_isAsked = false; ///< the user waits for the result of the look
    QTimer m_patienceTimer;
    QElapsedTimer m_waitingSince; ///< for files to become whole
    int m_patience;

    std::function<bool()> m_mayChange;
    QTimer m_handsTimer;     ///< until the user's hands are looked at again
    bool m_isPutOff = false; ///< a decision waited for them

    QFutureWatcher<Prepared> m_deciding;
    quint64 m_decidedGeneration = 0; ///< of the files when the decision was begun
    Decision m_decision = Decision::Load;
    std::vector<ReconcileEntry> m_decided;
    QString m_followFault; ///< why a bundle could not be followed, as it was told
    bool m_wasDirty = false;
    QStringList m_changedMedia;                      ///< since they were last shown anew
    std::shared_ptr<const MediaStamps> m_shownMedia; ///< of the media as they were shown; or null
    std::shared_ptr<const MediaStamps> m_seenMedia;  ///< of the media at the last look; or null
};

} // namespace vl::app
