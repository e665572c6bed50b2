#include "app/storage/bundlestore.h"

#include "app/base/files.h"
#include "app/base/sha256.h"
#include "app/storage/projectfolder.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace vl::app {

namespace {

/// One opening: a bundle in memory, its working copy, and what is done about the two.
class Opening
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::Opening)

public:
    Opening(const QString &bundlePath, const StorageLocations &locations)
        : m_locations(locations)
        , m_copy(WorkingCopy::of(bundlePath, locations))
    {
        m_opened.bundlePath = absoluteBundlePath(bundlePath);
        m_opened.workingFolder = m_copy.folder();
    }

    Result<OpenedBundle> open();
    Result<OpenedBundle> reload();

private:
    Result<WorkingCopyState> begin();
    Result<> restore();
    Result<> replace(WorkingCopyState state);
    Result<> extract();
    Result<OpenedBundle> finish();

    StorageLocations m_locations;
    WorkingCopy m_copy;
    OpenedBundle m_opened;
    std::optional<ReadBundle> m_bundle;
};

/// Reads the bundle and compares it with the copy, while another core sums it.
Result<WorkingCopyState> Opening::begin()
{
    Result<ReadBundle> bundle = readBundle(m_opened.bundlePath);
    if (!bundle)
        return bundle.asFailure();
    m_bundle = *std::move(bundle);
    m_copy.removeLeftovers();
    removeUnfinishedFilesOf(m_opened.bundlePath);
    const QByteArray bytes = m_bundle->archive.bytes();
    QFuture<QByteArray> sum = QtConcurrent::run([bytes] { return Sha256::of(bytes); });
    const WorkingCopyState state = m_copy.stateAgainst(m_bundle->archive);
    m_opened.known = {sum.result(), m_bundle->identity};
    return state;
}

Result<OpenedBundle> Opening::open()
{
    const Result<WorkingCopyState> state = begin();
    if (!state)
        return state.asFailure();
    Result<> done;
    const bool isCurrent = m_copy.markerMatches(m_opened.known.sha256);
    switch (*state) {
    case WorkingCopyState::Absent:
        m_opened.origin = WorkingCopyOrigin::Extracted;
        done = extract();
        break;
    case WorkingCopyState::Same:
        m_opened.origin = WorkingCopyOrigin::Reused;
        // Without its marker the copy may come from a run that was cut off before all was on the
        // disk.
        if (!isCurrent) {
            removeUnfinishedFilesUnder(m_copy.folder());
            done = syncFileSystem(m_copy.folder()) ? Result<>() : m_copy.prepareFailure();
        }
        break;
    case WorkingCopyState::Modified:
        done = isCurrent ? restore() : replace(*state);
        break;
    case WorkingCopyState::Unreadable:
        done = replace(*state);
        break;
    }
    if (!done)
        return done.asFailure();
    return finish();
}

Result<OpenedBundle> Opening::reload()
{
    const Result<WorkingCopyState> state = begin();
    if (!state)
        return failure(tr("The project file is not readable right now; try again."));
    Result<> done;
    if (*state == WorkingCopyState::Absent)
        done = extract();
    else if (*state != WorkingCopyState::Same)
        done = replace(*state);
    Result<OpenedBundle> opened = done ? finish() : Result<OpenedBundle>(done.asFailure());
    if (!opened)
        return failure(
            withPath(tr("Could not refresh the project's working folder: %1"), m_copy.folder()));
    return opened;
}

/// Puts the changes that were never saved into the bundle, of which a backup is made first.
Result<> Opening::restore()
{
    m_opened.origin = WorkingCopyOrigin::Restored;
    const Result<QString> backup =
        m_locations.backups().addBytes(m_copy.baseName(), m_bundle->archive.bytes());
    if (!backup)
        return backup.asFailure();
    m_opened.backupPath = *backup;

    const auto failed = [this] {
        return failure(withPath(tr("Could not restore unsaved changes into the project file: %1"),
                                m_opened.bundlePath));
    };
    const Result<BundleSource> source = BundleSource::ofFolder(m_copy.folder());
    if (!source)
        return failed();
    BundleWriter writer(m_opened.bundlePath);
    if (!writer.write(*source))
        return failed();
    m_opened.known = *writer.written();
    Result<ReadBundle> written = readBundle(m_opened.bundlePath);
    if (!written || Sha256::of(written->archive.bytes()) != m_opened.known.sha256)
        return failed();
    m_bundle = *std::move(written);
    return {};
}

/// Puts the copy away, as a backup or as it is, and fills it from the bundle.
Result<> Opening::replace(WorkingCopyState state)
{
    m_opened.origin = WorkingCopyOrigin::Replaced;
    const Backups backups = m_locations.backups();
    if (state == WorkingCopyState::Modified) {
        const Result<QString> backup = backups.addFolder(m_copy.baseName(), m_copy.folder());
        if (!backup)
            return backup.asFailure();
        m_opened.backupPath = *backup;
    }
    if (!m_copy.removeMarker())
        return m_copy.prepareFailure();
    if (state == WorkingCopyState::Modified) {
        if (Result<> cleared = m_copy.clear(); !cleared)
            return cleared;
    } else {
        const Result<QString> moved = backups.moveAside(m_copy.baseName(), m_copy.folder());
        if (!moved)
            return moved.asFailure();
        m_opened.backupPath = *moved;
    }
    return m_copy.fill(m_bundle->archive);
}

Result<> Opening::extract()
{
    if (!m_copy.removeMarker())
        return m_copy.prepareFailure();
    return m_copy.fill(m_bundle->archive);
}

Result<OpenedBundle> Opening::finish()
{
    if (const Result<> marked = m_copy.writeMarker(m_opened.known.sha256); !marked)
        return marked.asFailure();
    m_opened.files = projectFilesIn(m_bundle->archive);
    return std::move(m_opened);
}

/// Puts what stands under the bundle's name into a backup, whether it is a sound bundle or a
/// damaged one, of which something may yet be saved.
Result<QString> keepBytes(const QString &bundlePath, const StorageLocations &locations)
{
    const Result<QByteArray> bytes = readRegularFile(
        bundlePath,
        QCoreApplication::translate("vl::app::Saving", "Could not open the project file: %1"),
        maxBundleBytes);
    if (!bytes)
        return bytes.asFailure();
    return locations.backups().addBytes(bundleBaseName(bundlePath), *bytes);
}

/// One save of a bundle that is open.
class Saving
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::Saving)

public:
    Saving(const BundleSave &save, StorageLocations locations)
        : m_save(save)
        , m_locations(std::move(locations))
        , m_copy(WorkingCopy::at(save.bundlePath, save.workingFolder))
    {
        m_report.known = save.known;
    }

    SaveReport run();

private:
    enum class Standing
    {
        AsKnown,
        Changed,
        Gone
    };

    Standing standing();
    Result<> keepOutsideChanges();
    Result<> write(Standing standing, const FileIdentity &seen);
    Result<> putInPlace(const BundleSource &source, const FileIdentity &seen);
    Result<> updateCopy(const BundleSource &source) const;

    const BundleSave &m_save;
    StorageLocations m_locations;
    WorkingCopy m_copy;
    SaveReport m_report;
};

SaveReport Saving::run()
{
    if (m_save.bundlePath.isEmpty()) {
        m_report.message = tr("This project has no save location yet; use saveAs().");
        return m_report;
    }
    removeUnfinishedFilesOf(m_save.bundlePath);
    const FileIdentity seen = FileIdentity::of(m_save.bundlePath);
    const Standing found = standing();
    if (found != Standing::AsKnown && !m_save.overwritesOutsideChanges) {
        m_report.outcome =
            found == Standing::Gone ? SaveOutcome::Missing : SaveOutcome::ChangedOutside;
        return m_report;
    }
    Result<> done;
    if (found == Standing::Changed)
        done = keepOutsideChanges();
    if (done)
        done = write(found, seen);
    if (!done)
        m_report.message = done.message();
    return m_report;
}

Saving::Standing Saving::standing()
{
    const FileIdentity identity = FileIdentity::of(m_save.bundlePath);
    if (!identity.isFile())
        return QFileInfo::exists(m_save.bundlePath) ? Standing::Changed : Standing::Gone;
    if (identity == m_save.known.identity)
        return Standing::AsKnown;
    // Touched or copied, but maybe not changed.
    const Result<QByteArray> bytes = readRegularFile(m_save.bundlePath, QString(), maxBundleBytes);
    if (!bytes || Sha256::of(*bytes) != m_save.known.sha256)
        return Standing::Changed;
    return Standing::AsKnown;
}

Result<> Saving::keepOutsideChanges()
{
    const Result<QString> backup = keepBytes(m_save.bundlePath, m_locations);
    if (!backup)
        return backup.asFailure();
    m_report.backupPath = *backup;
    return {};
}

Result<> Saving::write(Standing standing, const FileIdentity &seen)
{
    const QString folder = m_copy.folder();
    // Where the copy was swept away, what it would carry along is still in the bundle.
    if (standing == Standing::AsKnown && !QFileInfo::exists(folder)) {
        const Result<ReadBundle> bundle = readBundle(m_save.bundlePath);
        if (!bundle)
            return bundle.asFailure();
        if (Result<> filled = m_copy.fill(bundle->archive); !filled)
            return filled;
    }
    const bool hasCopy = QFileInfo(folder).isDir();
    const Result<BundleSource> source =
        BundleSource::ofProject(m_save.files, hasCopy ? folder : QString(), m_save.readPaths);
    if (!source)
        return source.asFailure();

    if (Result<> written = putInPlace(*source, seen); !written)
        return written;

    // From here on the words are safe. A copy that cannot be brought up to date stays without a
    // marker, so that the next opening takes the bundle.
    m_report.outcome = SaveOutcome::Saved;
    if (const Result<> updated = updateCopy(*source); !updated)
        m_report.message = updated.message();
    return {};
}

/// Writes the bundle beside the old one, and puts it in its place unless somebody else has replaced
/// that one meanwhile.
Result<> Saving::putInPlace(const BundleSource &source, const FileIdentity &seen)
{
    const QString &path = m_save.bundlePath;
    if (!makeFolder(QFileInfo(path).absolutePath()))
        return failure(withPath(
            QCoreApplication::translate("vl::app::Bundle", "Could not create the folder for: %1"),
            path));
    const QString message =
        QCoreApplication::translate("vl::app::Bundle", "Could not write the project file: %1");
    AtomicFile file(path, {message, message});
    if (Result<> opened = file.open(); !opened)
        return opened;
    Sha256 sum;
    const auto sink = [&](QByteArrayView bytes) {
        sum.add(bytes);
        return file.write(bytes);
    };
    if (Result<> packed = source.packInto(sink, path); !packed)
        return packed;
    if (Result<> synced = file.sync(); !synced) // the slow part, before the last look
        return synced;
    if (FileIdentity::of(path) != seen) {
        m_report.outcome = SaveOutcome::ChangedOutside;
        return failure(QString());
    }
    Result<> committed = file.commit();
    if (file.isInPlace())
        m_report.known = {sum.finish(), FileIdentity::of(path)};
    return committed;
}

Result<> Saving::updateCopy(const BundleSource &source) const
{
    if (!m_copy.removeMarker())
        return m_copy.prepareFailure();
    removeUnfinishedOwnFiles(m_copy.folder());
    if (Result<> updated = m_copy.update(source); !updated)
        return updated;
    return m_copy.writeMarker(m_report.known.sha256);
}

} // namespace

Result<OpenedBundle> openBundle(const QString &bundlePath, const StorageLocations &locations)
{
    return Opening(bundlePath, locations).open();
}

Result<OpenedBundle> reloadBundle(const QString &bundlePath, const StorageLocations &locations)
{
    if (bundlePath.isEmpty())
        return failure(QCoreApplication::translate(
            "vl::app::Opening", "This project has no save location to reload from."));
    return Opening(bundlePath, locations).reload();
}

SaveReport saveBundle(const BundleSave &save, const StorageLocations &locations)
{
    return Saving(save, locations).run();
}

Result<OpenedBundle> saveBundleAs(const BundleSave &save, const QString &carryFrom,
                                  const StorageLocations &locations, Carry carry)
{
    const Result<BundleSource> source =
        carry == Carry::WhatCanBeRead
            ? BundleSource::ofFiles(carryFrom, readCarriedFiles(carryFrom).paths, save.files)
            : BundleSource::ofProject(save.files, carryFrom, save.readPaths,
                                      Repositories::LeaveOut);
    if (!source)
        return source.asFailure();
    if (FileIdentity::of(save.bundlePath).size > 0) {
        const Result<QString> backup = keepBytes(save.bundlePath, locations);
        if (!backup)
            return backup.asFailure();
    }
    BundleWriter writer(save.bundlePath);
    if (const Result<> written = writer.write(*source); !written)
        return written.asFailure();
    return openBundle(save.bundlePath, locations);
}

} // namespace vl::app
