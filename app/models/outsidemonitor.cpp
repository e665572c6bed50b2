#include "app/models/outsidemonitor.h"

#include "app/models/workspace.h"
#include "app/storage/folderbackup.h"
#include "app/storage/jsonmerge.h"
#include "core/content/map.h"
#include "core/content/media.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <functional>
#include <set>

namespace vl::app {

namespace {

constexpr int patienceMilliseconds = 3000;
constexpr int lookAgainMilliseconds = 300;
constexpr int handsMilliseconds = 100;

/// What is put away before a decision is carried out; run on another thread.
struct BackupWork
{
    Backups backups;
    QString baseName;
    QString path; ///< the folder or the bundle
    bool isBundle = false;
    QString folder;                         ///< where the media are
    std::function<ProjectFiles()> ownFiles; ///< null when what is open needs no backup
    bool keepsTheirs = false;               ///< what is on disk goes to a backup too

    Result<> run() const;
};

Result<> BackupWork::run() const
{
    if (ownFiles) {
        const Result<BundleSource> source =
            BundleSource::ofFiles(folder, mediaPathsIn(folder), ownFiles());
        const Result<QString> added =
            source ? backups.addSource(baseName, *source) : Result<QString>(source.asFailure());
        if (!added)
            return added.asFailure();
    }
    if (!keepsTheirs || !QFileInfo::exists(path))
        return {};
    if (!isBundle) {
        const Result<QString> added = backUpProjectFolder(backups, baseName, path);
        return added ? Result<>() : added.asFailure();
    }
    const Result<QByteArray> bytes =
        readRegularFile(path, OutsideMonitor::tr("Could not open the project file: %1"));
    const Result<QString> added =
        bytes ? backups.addBytes(baseName, *bytes) : Result<QString>(bytes.asFailure());
    return added ? Result<>() : added.asFailure();
}

/// Whether the two looks found the same to decide on.
bool isSameFinding(const OutsideState &a, const OutsideState &b)
{
    return a.place == b.place && a.files == b.files && a.unsettled == b.unsettled;
}

/// Whether something else than what is on disk comes out somewhere.
bool dropsTheirs(const std::vector<ReconcileEntry> &entries)
{
    return std::any_of(entries.begin(), entries.end(), [](const ReconcileEntry &entry) {
        return entry.remoteText && (isDeletion(entry.state) || entry.result != entry.remoteText);
    });
}

/// Whether the decided entries are about the same versions of the same files as the fresh ones.
bool isAboutTheSame(const std::vector<ReconcileEntry> &decided,
                    const std::vector<ReconcileEntry> &fresh)
{
    return std::equal(decided.begin(), decided.end(), fresh.begin(), fresh.end(),
                      [](const ReconcileEntry &a, const ReconcileEntry &b) {
                          return a.path == b.path && a.localText == b.localText
                                 && a.remoteText == b.remoteText;
                      });
}

/// The paths of the media that the objects of the project show.
std::set<QString> shownMedia(const core::Project &project, core::ChangeSet *objects = nullptr,
                             const QStringList *among = nullptr)
{
    std::set<QString> paths;
    const auto add = [&](const core::ContentId &id, const QString &path) {
        paths.insert(path);
        if (objects && among && among->contains(path))
            objects->touchObject(id, core::ChangeSet::Change::Changed);
    };
    for (const auto *media : project.all<core::Media>())
        add(media->id(), media->assetPath());
    for (const auto *map : project.all<core::Map>())
        add(map->id(), map->imageAssetPath());
    return paths;
}

/// Whether the file is there in both with the same contents, or in neither.
bool isSameMedia(const MediaStamps &one, const MediaStamps &other, const QString &path)
{
    const auto here = one.constFind(path);
    const auto there = other.constFind(path);
    const bool isHere = here != one.constEnd();
    const bool isThere = there != other.constEnd();
    return isHere == isThere && (!isHere || here->sample == there->sample);
}

} // namespace

OutsideMonitor::OutsideMonitor(Workspace &workspace, StorageLocations locations, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_locations(std::move(locations))
    , m_patience(patienceMilliseconds)
{
    m_patienceTimer.setSingleShot(true);
    m_patienceTimer.setInterval(lookAgainMilliseconds);
    m_handsTimer.setSingleShot(true);
    m_handsTimer.setInterval(handsMilliseconds);
    connect(&m_handsTimer, &QTimer::timeout, this, &OutsideMonitor::decisionPrepared);
    connect(&m_patienceTimer, &QTimer::timeout, this, &OutsideMonitor::look);
    connect(&m_watcher, &OutsideWatcher::stirred, this, &OutsideMonitor::look);
    connect(&m_looking, &QFutureWatcherBase::finished, this, &OutsideMonitor::lookEnded);
    connect(&m_deciding, &QFutureWatcherBase::finished, this, &OutsideMonitor::decisionPrepared);
    connect(&workspace, &Workspace::projectReplaced, this, &OutsideMonitor::follow);
    connect(&workspace, &Workspace::locationChanged, this, &OutsideMonitor::follow);
    const auto saveEnded = [this] {
        if (std::exchange(m_looksAgain, false))
            m_watcher.stir();
    };
    connect(&workspace, &Workspace::saved, this, saveEnded);
    connect(&workspace, &Workspace::saveFailed, this, saveEnded);
    connect(&workspace, &Workspace::historyChanged, this, [this] {
        if (m_offer.kind != OutsideOffer::Kind::None
            && m_wasDirty != m_workspace.current().isDirty())
            renewOffer();
    });
    follow();
}

OutsideMonitor::~OutsideMonitor()
{
    m_looking.waitForFinished();
    m_deciding.waitForFinished();
    keepAside(m_workspace.current());
}

/// What was saved here and then changed by others stands nowhere else any more, once the project is
/// left without a decision.
void OutsideMonitor::keepAside(const OpenProject &project) const
{
    if (!project.hasLocation() || m_state.isUnchanged())
        return;
    const bool isOnlyHere =
        m_state.place != OutsideState::Place::There || !m_state.unsettled.isEmpty()
        || std::any_of(m_state.files.begin(), m_state.files.end(),
                       [](const OutsideFile &file) { return file.base.has_value(); });
    if (!isOnlyHere)
        return;
    const BackupWork backup{m_locations.backups(),
                            bundleBaseName(project.path()),
                            project.path(),
                            project.isBundle(),
                            project.folder(),
                            project.snapshot(),
                            false};
    if (const Result<> kept = backup.run(); !kept)
        qWarning("What is open was not backed up: %s", qPrintable(kept.message()));
}

void OutsideMonitor::follow()
{
    const OpenProject *current = &m_workspace.current();
    if (m_followed && m_followed != current)
        keepAside(*m_followed);
    m_followed = current;
    m_watcher.watch(m_workspace.current().path(), m_workspace.current().isBundle());
    m_waitingSince.invalidate();
    m_patienceTimer.stop();
    if (m_handsTimer.isActive()) // it was about the project that is gone
        m_decided.clear();
    m_handsTimer.stop();
    m_isPutOff = false;
    m_state = {};
    m_shownMedia.reset();
    m_seenMedia.reset();
    if (!m_changedMedia.isEmpty()) {
        m_changedMedia.clear();
        Q_EMIT mediaChanged(0);
    }
    renewOffer();
}

void OutsideMonitor::check()
{
    m_workspace.flush();
    m_isAsked = true;
    look();
}

void OutsideMonitor::look()
{
    OpenProject &project = m_workspace.current();
    if (isBusy() || project.isSaving()) {
        m_looksAgain = true;
        return;
    }
    m_watcher.renew(); // before the look, so that what comes after it is noticed
    std::shared_ptr<PendingScan> scan = project.prepareScan();
    if (!scan) {
        take({});
        return;
    }
    m_looksAgain = false;
    m_lookedGeneration = project.filesGeneration();
    m_looking.setFuture(QtConcurrent::run([scan] { return scan->run(); }));
}

void OutsideMonitor::lookEnded()
{
    const OpenProject &project = m_workspace.current();
    // What a save may have changed meanwhile, or another project, is no finding.
    const bool isStale = project.isSaving() || m_lookedGeneration != project.filesGeneration()
                         || m_watcher.path() != project.path();
    if (isStale || m_looksAgain) {
        m_looksAgain = project.isSaving();
        if (!m_looksAgain)
            m_watcher.stir();
        if (isStale)
            return;
    }
    OutsideState state = m_looking.result();
    if (state.isUnchanged()
        || (state.place == OutsideState::Place::There && state.unsettled.isEmpty()
            && !state.hasVanished()))
        m_waitingSince.invalidate();
    else if (waits())
        return;
    take(std::move(state));
}

/// Half a file, or a folder that is being replaced, is waited for.
bool OutsideMonitor::waits()
{
    if (!m_waitingSince.isValid())
        m_waitingSince.start();
    if (m_waitingSince.elapsed() >= m_patience)
        return false;
    m_patienceTimer.start();
    return true;
}

void OutsideMonitor::take(OutsideState state)
{
    m_workspace.current().note(state);
    tellMedia(state);
    m_state = std::move(state);
    const OutsideOffer before = m_offer;
    renewOffer();
    if (m_state.isUnchanged() && m_state.bundleFiles) {
        followBundle();
        if (!m_state.media.isEmpty())
            m_isAsked = false; // it is told of the media
    }
    if (!std::exchange(m_isAsked, false))
        return;
    if (m_offer.kind == OutsideOffer::Kind::None)
        Q_EMIT nothingFound();
    else if (m_offer == before)
        Q_EMIT offerChanged(); // it may have been put off
}

void OutsideMonitor::renewOffer()
{
    const OpenProject &project = m_workspace.current();
    m_wasDirty = project.isDirty();
    OutsideOffer offer;
    if (!m_state.isUnchanged())
        offer = OutsideOffer::of(m_state, entries(), m_wasDirty, project.path());
    if (offer == m_offer)
        return;
    m_offer = std::move(offer);
    Q_EMIT offerChanged();
}

std::vector<ReconcileEntry> OutsideMonitor::entries() const
{
    std::vector<ReconcileEntry> entries = m_workspace.current().reconcile(m_state);
    for (ReconcileEntry &entry : entries) {
        if (entry.state != ReconcileState::ConflictEdited)
            continue;
        const auto file =
            std::find_if(m_state.files.begin(), m_state.files.end(),
                         [&entry](const OutsideFile &f) { return f.path == entry.path; });
        if (file == m_state.files.end() || !file->base)
            continue;
        const std::optional<QByteArray> merged = mergeMembers(
            entry.path, *file->base, entry.localText->toUtf8(), entry.remoteText->toUtf8());
        if (merged)
            entry.takeText(QString::fromUtf8(*merged));
    }
    return entries;
}

bool OutsideMonitor::removesMuch() const
{
    constexpr qsizetype fewFiles = 4;
    return m_state.goneFiles > fewFiles && m_state.goneFiles * 2 > m_state.knownFiles;
}

void OutsideMonitor::merge()
{
    m_workspace.flush();
    std::vector<ReconcileEntry> settled = entries();
    if (std::any_of(settled.begin(), settled.end(),
                    [](const ReconcileEntry &entry) { return isConflict(entry.state); })) {
        Q_EMIT needsReview();
        return;
    }
    m_decided = std::move(settled);
    decide(Decision::Merge);
}

void OutsideMonitor::apply(const std::vector<ReconcileEntry> &entries)
{
    m_decided = entries;
    std::sort(m_decided.begin(), m_decided.end(),
              [](const ReconcileEntry &a, const ReconcileEntry &b) { return a.path < b.path; });
    decide(Decision::Merge);
}

/// Others wrote the bundle anew with the same texts. In a folder their media would stand there
/// already; from a bundle they are brought, so that the next save does not meet a foreign file.
void OutsideMonitor::followBundle()
{
    if (m_workspace.history().isGroupOpen()) {
        m_watcher.stir();
        return;
    }
    m_decided.clear();
    decide(Decision::Follow);
}

void OutsideMonitor::decide(Decision decision)
{
    OpenProject &project = m_workspace.current();
    if (m_deciding.isRunning() || m_handsTimer.isActive() || !project.hasLocation())
        return;
    if (project.history().isGroupOpen()) {
        Q_EMIT failed(tr("Something else is being done to the project; try again."));
        return;
    }
    // What is not there cannot be loaded, least of all as the removal of everything.
    if (decision != Decision::Keep
        && (m_state.hasVanished() || m_state.place != OutsideState::Place::There)) {
        Q_EMIT failed(m_offer.text);
        return;
    }
    m_workspace.flush();
    project.finishSaving();
    m_looking.waitForFinished();
    if (decision == Decision::Load) {
        m_decided = entries();
        if (std::any_of(m_decided.begin(), m_decided.end(),
                        [](const ReconcileEntry &entry) { return isConflict(entry.state); })) {
            Q_EMIT needsReview();
            return;
        }
    }
    m_decision = decision;
    m_decidedGeneration = project.filesGeneration();

    BackupWork backup{m_locations.backups(),
                      bundleBaseName(project.path()),
                      project.path(),
                      project.isBundle(),
                      project.folder(),
                      {},
                      false};
    const bool isKeep = decision == Decision::Keep;
    if (!isKeep && (decision != Decision::Follow || !m_state.media.isEmpty()))
        backup.ownFiles = project.snapshot();
    backup.keepsTheirs = isKeep || !m_state.unsettled.isEmpty() || dropsTheirs(m_decided);
    std::shared_ptr<PendingScan> scan = project.prepareScan();
    m_deciding.setFuture(QtConcurrent::run(
        [scan, backup, isKeep, expected = m_state, prepare = project.prepareTakeOver(m_state)] {
            Prepared prepared{scan->run(), {}};
            if (!isSameFinding(prepared.state, expected))
                return prepared;
            Result<> done = backup.run();
            if (done && !isKeep)
                done = prepare();
            if (!done)
                prepared.fault = done.message();
            return prepared;
        }));
}

bool OutsideMonitor::isStillTrue(const Prepared &prepared) const
{
    const OpenProject &project = m_workspace.current();
    return isSameFinding(prepared.state, m_state)
           && m_decidedGeneration == project.filesGeneration() && !project.isSaving()
           && !project.history().isGroupOpen()
           && (m_decision == Decision::Keep
               || isAboutTheSame(m_decided, project.reconcile(m_state)));
}

void OutsideMonitor::decisionPrepared()
{
    // What is being dragged, or asked about in a dialog, stays as it is until that is over.
    if (m_mayChange && !m_mayChange()) {
        m_isPutOff = true;
        m_handsTimer.start();
        return;
    }
    m_workspace.flush();
    const bool wasPutOff = std::exchange(m_isPutOff, false);
    OpenProject &project = m_workspace.current();
    Prepared prepared = m_deciding.result();
    if (wasPutOff && (project.isSaving() || m_decidedGeneration != project.filesGeneration())) {
        decide(m_decision); // a save came between, which is no reason to ask again
        return;
    }
    const bool isFollowing = m_decision == Decision::Follow;
    if (!isStillTrue(prepared)) {
        if (!isFollowing)
            Q_EMIT failed(
                tr("The project changed again meanwhile; look at the changes once more."));
        m_watcher.stir();
        return;
    }
    if (isFollowing && std::exchange(m_followFault, prepared.fault) == prepared.fault
        && !prepared.fault.isEmpty())
        return; // it was told
    if (!prepared.fault.isEmpty()) {
        Q_EMIT failed(prepared.fault);
        return;
    }
    m_state = std::move(prepared.state);
    if (isFollowing)
        carryOutFollowing();
    else
        carryOut();
}

void OutsideMonitor::carryOutFollowing()
{
    const OutsideState state = std::exchange(m_state, {});
    if (const Result<> taken = m_workspace.current().takeOver(state, {}, QString()); !taken) {
        Q_EMIT failed(taken.message());
        return;
    }
    if (state.media.isEmpty())
        return;
    m_changedMedia += state.media;
    m_changedMedia.removeDuplicates();
    Q_EMIT mediaChanged(int(m_changedMedia.size()));
}

void OutsideMonitor::carryOut()
{
    OpenProject &project = m_workspace.current();
    QString message;
    if (m_decision == Decision::Keep) {
        project.keepOwn(m_state);
        message = OutsideOffer::keptText();
    } else {
        const bool isLoad = m_decision == Decision::Load && !project.isDirty();
        const Result<> taken = project.takeOver(
            m_state, m_decided, isLoad ? tr("Load on-disk version") : tr("Merge on-disk changes"));
        if (!taken) {
            Q_EMIT failed(taken.message());
            return;
        }
        message = isLoad ? OutsideOffer::loadedText() : OutsideOffer::mergedText();
        if (!m_state.media.isEmpty())
            reloadMedia();
        if (project.isDirty())
            project.saveInBackground();
    }
    m_decided.clear();
    m_state = {};
    m_isAsked = false;
    renewOffer();
    m_watcher.stir(); // second versions of a file come after the first
    Q_EMIT done(message);
}

void OutsideMonitor::tellMedia(const OutsideState &state)
{
    if (m_workspace.current().isBundle() || !state.mediaStamps)
        return; // they come with the rest of the bundle, or could not be looked at
    // What the open project itself shows and was not there before is its own import.
    const std::set<QString> shown = shownMedia(m_workspace.project());
    QStringList changed;
    for (const QString &path : state.media)
        if (!shown.contains(path) || !state.addedMedia.contains(path))
            changed.append(path);
    const QStringList before = m_changedMedia;
    m_changedMedia += changed;
    m_changedMedia.removeDuplicates();
    // What is again as it was shown last is no news any more.
    m_changedMedia.removeIf([&](const QString &path) {
        return m_shownMedia && isSameMedia(*m_shownMedia, *state.mediaStamps, path);
    });
    m_seenMedia = state.mediaStamps;
    if (m_changedMedia.isEmpty())
        m_shownMedia = m_seenMedia;
    if (m_changedMedia != before || (!changed.isEmpty() && !m_changedMedia.isEmpty()))
        Q_EMIT mediaChanged(int(m_changedMedia.size()));
}

void OutsideMonitor::reloadMedia()
{
    const QStringList media = m_changedMedia + m_state.media;
    core::ChangeSet changes;
    shownMedia(m_workspace.project(), &changes, &media);
    m_changedMedia.clear();
    m_shownMedia = m_seenMedia;
    Q_EMIT mediaChanged(0);
    if (!changes.isEmpty())
        Q_EMIT m_workspace.changed(changes);
}

} // namespace vl::app
