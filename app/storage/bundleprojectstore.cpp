#include "app/storage/bundleprojectstore.h"

#include "app/base/sha256.h"
#include "app/storage/bundlestore.h"
#include "app/storage/ownform.h"
#include "app/storage/projectfolder.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"

#include <QtConcurrent/QtConcurrentMap>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>
#include <QtCore/QThreadPool>

#include <algorithm>
#include <map>

namespace vl::app {

namespace {

struct BundleText
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::BundleProjectStore)
};

bool pathIsBefore(const ProjectFile &a, const ProjectFile &b)
{
    return a.path < b.path;
}

/// Adds the paths of files whose name is not the id of what is in them.
void addForeignPaths(QSet<QString> &paths, const ProjectFiles &files)
{
    for (const ProjectFile &file : files)
        if (!isOwnPath(file.path.toUtf8()))
            paths.insert(file.path);
}

/// All files of a project as values: those last read or written, and what changed since.
struct BundleFiles
{
    std::shared_ptr<const ProjectFiles> base;
    /// Files that were read may have been written by other hands in another form. With the first
    /// save all are written as the program does.
    bool isOwnForm = false;
    bool isWhole = false;                  ///< the changes are all there is
    std::map<QString, QByteArray> changes; ///< files without bytes go

    ProjectFiles compose() const;
};

ProjectFiles BundleFiles::compose() const
{
    ProjectFiles files;
    if (!isWhole)
        files = *base;
    if (!isWhole && !isOwnForm) {
        constexpr qsizetype filesPerPiece = 512;
        QList<qsizetype> pieces;
        for (qsizetype first = 0; first < qsizetype(files.size()); first += filesPerPiece)
            pieces.append(first);
        QtConcurrent::blockingMap(pieces, [&files](qsizetype first) {
            JsonParser parser;
            const auto end = std::min(std::size_t(first + filesPerPiece), files.size());
            for (auto i = std::size_t(first); i < end; ++i)
                files[i] = inOwnForm(parser, files[i]);
        });
        std::sort(files.begin(), files.end(), pathIsBefore);
    }
    ProjectFiles added;
    for (const auto &[path, bytes] : changes) {
        const auto place =
            std::lower_bound(files.begin(), files.end(), ProjectFile{path, {}}, pathIsBefore);
        if (place != files.end() && place->path == path)
            place->bytes = bytes;
        else if (!bytes.isEmpty())
            added.push_back({path, bytes});
    }
    std::erase_if(files, [](const ProjectFile &file) { return file.bytes.isEmpty(); });
    const auto middle = files.insert(files.end(), std::make_move_iterator(added.begin()),
                                     std::make_move_iterator(added.end()));
    std::inplace_merge(files.begin(), middle, files.end(), pathIsBefore);
    return files;
}

class PendingBundleSave final : public PendingSave
{
public:
    PendingBundleSave(BundleSave save, BundleFiles files, StorageLocations locations)
        : save(std::move(save))
        , m_files(std::move(files))
        , m_locations(std::move(locations))
    {
    }

    bool meetsOutsideChanges() const override
    {
        if (isNew || FileIdentity::of(save.bundlePath) == save.known.identity)
            return false;
        // Touched is not changed.
        const Result<QByteArray> bytes =
            readRegularFile(save.bundlePath, QString(), maxBundleBytes);
        return !bytes || Sha256::of(*bytes) != save.known.sha256;
    }

    Result<> commit(OutsideChanges outside) override
    {
        save.files = m_files.compose();
        addForeignPaths(foreignPaths, *m_files.base);
        save.readPaths = foreignPaths.values();
        Result<> done = write(outside);
        written = std::make_shared<const ProjectFiles>(std::move(save.files));
        // Thousands of small texts are let go here rather than on the interface thread.
        m_files.base.reset();
        return done;
    }

    BundleSave save;
    bool isNew = false;
    QString carryFrom;
    Carry carry = Carry::Everything;
    QSet<QString> foreignPaths; ///< see BundleProjectStore
    SaveReport report;
    OpenedBundle opened;
    std::shared_ptr<const ProjectFiles> written; ///< after the commit: the files of the bundle

private:
    Result<> write(OutsideChanges outside)
    {
        if (isNew) {
            Result<OpenedBundle> written = saveBundleAs(save, carryFrom, m_locations, carry);
            if (!written)
                return written.asFailure();
            opened = *std::move(written);
            return {};
        }
        save.overwritesOutsideChanges = outside == OutsideChanges::Overwrite;
        report = saveBundle(save, m_locations);
        switch (report.outcome) {
        case SaveOutcome::Saved:
            return {};
        case SaveOutcome::ChangedOutside:
            return failure(
                BundleText::tr("The project changed outside Ivorel since you opened it."));
        case SaveOutcome::Missing:
            return failure(
                withPath(BundleText::tr("The project file is gone: %1"), save.bundlePath));
        case SaveOutcome::Failed:
            break;
        }
        return failure(report.message);
    }

    BundleFiles m_files;
    StorageLocations m_locations;
};

class PendingBundleScan final : public PendingScan
{
public:
    PendingBundleScan(QString path, KnownBundle known, std::shared_ptr<const ProjectFiles> base,
                      QString workingFolder)
        : m_path(std::move(path))
        , m_known(std::move(known))
        , m_base(std::move(base))
        , m_workingFolder(std::move(workingFolder))
    {
    }

    OutsideState run() override { return scanBundle(m_path, m_known, *m_base, m_workingFolder); }

private:
    QString m_path;
    KnownBundle m_known;
    std::shared_ptr<const ProjectFiles> m_base;
    QString m_workingFolder;
};

/// A bundle with its working copy. The bytes of every file are kept, so that a save serialises
/// what was touched and nothing else.
class BundleProjectStore final : public ProjectStore
{
public:
    explicit BundleProjectStore(const QString &path)
        : m_locations(StorageLocations::standard())
        , m_bundlePath(absoluteBundlePath(path))
    {
    }

    /// Fits the store to a bundle that was opened or newly written.
    void take(const OpenedBundle &opened)
    {
        m_isNew = false;
        m_workingFolder = opened.workingFolder;
        m_known = opened.known;
    }
    void setBase(ProjectFiles files)
    {
        std::sort(files.begin(), files.end(), pathIsBefore);
        m_base = std::make_shared<const ProjectFiles>(std::move(files));
        m_isOwnForm = false;
    }
    void setCarryFrom(const QString &folder, Carry carry)
    {
        m_carryFrom = folder;
        m_carry = carry;
    }

    QString path() const override { return m_bundlePath; }
    bool isBundle() const override { return true; }
    QString folder() const override { return m_workingFolder; }

    /// Where the copy was swept away, the bundle gives it back.
    QString carriedFolder() const override
    {
        if (!m_isNew && !QFileInfo(m_workingFolder).isDir()) {
            if (const Result<ReadBundle> bundle = readBundle(m_bundlePath)) {
                const WorkingCopy copy = WorkingCopy::at(m_bundlePath, m_workingFolder);
                if (const Result<> filled = copy.fill(bundle->archive); !filled)
                    return {};
            }
        }
        return ProjectStore::carriedFolder();
    }

    std::unique_ptr<PendingSave> prepare(const core::Project &project,
                                         const core::ChangeSet *touched) override
    {
        BundleSave save;
        save.bundlePath = m_bundlePath;
        save.workingFolder = m_workingFolder;
        save.known = m_known;
        auto pending = std::make_unique<PendingBundleSave>(
            std::move(save), touched ? serializeTouched(project, *touched) : serializeAll(project),
            m_locations);
        pending->isNew = m_isNew;
        pending->carryFrom = m_carryFrom;
        pending->carry = m_carry;
        pending->foreignPaths = m_foreignPaths;
        return pending;
    }

    void finished(PendingSave &save, bool succeeded) override
    {
        auto &pending = static_cast<PendingBundleSave &>(save);
        if (pending.isNew) {
            if (succeeded)
                take(pending.opened);
        } else {
            // After a failure too this tells what stands there now.
            m_known = pending.report.known;
        }
        if (!succeeded)
            return;
        m_foreignPaths = std::move(pending.foreignPaths);
        QThreadPool::globalInstance()->start(
            [old = std::exchange(m_base, pending.written)]() mutable { old.reset(); });
        m_isOwnForm = true;
        m_carryFrom.clear();
    }

    FilesSnapshot snapshot(const core::Project &project,
                           const core::ChangeSet &touched) const override
    {
        return [files = serializeTouched(project, touched)] { return files.compose(); };
    }

    std::unique_ptr<PendingScan> prepareScan() const override
    {
        return std::make_unique<PendingBundleScan>(m_bundlePath, m_known, m_base, m_workingFolder);
    }

    std::function<Result<>()> prepareAdoption(const OutsideState &state) const override
    {
        if (!state.bundle || state.media.isEmpty())
            return [] { return Result<>(); };
        return [path = m_bundlePath, sum = state.bundle->sha256, folder = m_workingFolder] {
            return takeOverMedia(path, sum, folder);
        };
    }

    void adopt(const OutsideState &state) override
    {
        if (!state.bundleFiles)
            return;
        addForeignPaths(m_foreignPaths, *m_base);
        m_isOwnForm = false;
        m_known = *state.bundle;
        if (state.unsettled.isEmpty()) {
            m_base = state.bundleFiles;
            return;
        }
        // Of what is not taken over, the next save writes what was here.
        ProjectFiles files = *state.bundleFiles;
        for (const QString &path : state.unsettled) {
            const ProjectFile wanted{path, {}};
            const auto mine =
                std::lower_bound(m_base->begin(), m_base->end(), wanted, pathIsBefore);
            const auto theirs = std::lower_bound(files.begin(), files.end(), wanted, pathIsBefore);
            if (mine != m_base->end() && mine->path == path && theirs != files.end()
                && theirs->path == path)
                theirs->bytes = mine->bytes;
        }
        m_base = std::make_shared<const ProjectFiles>(std::move(files));
    }

    void note(const OutsideState &state) override
    {
        if (state.bundle && state.bundle->sha256 == m_known.sha256)
            m_known = *state.bundle;
    }

private:
    BundleFiles serializeAll(const core::Project &project) const
    {
        BundleFiles files;
        files.base = m_base;
        files.isWhole = true;
        serializeProject(project, [&files](const QString &path, const QByteArray &bytes) {
            files.changes.insert_or_assign(path, bytes);
        });
        return files;
    }

    BundleFiles serializeTouched(const core::Project &project, const core::ChangeSet &touched) const
    {
        BundleFiles files;
        files.base = m_base;
        files.isOwnForm = m_isOwnForm;
        for (const auto &[id, change] : touched.objects()) {
            const core::ContentObject *object = project.find(id);
            files.changes.insert_or_assign(objectPath(id),
                                           object ? serializeObject(*object) : QByteArray());
        }
        for (const auto &[id, change] : touched.categories()) {
            const core::Category *category = project.taxonomy().find(id);
            files.changes.insert_or_assign(categoryPath(id),
                                           category ? serializeCategory(*category) : QByteArray());
        }
        if (touched.touchesAnyRecord())
            files.changes.insert_or_assign(recordsPath(), serializeProjectRecords(project));
        return files;
    }

    StorageLocations m_locations;
    QString m_bundlePath;
    QString m_workingFolder;
    KnownBundle m_known;
    /// The files as they were last read or written, by path.
    std::shared_ptr<const ProjectFiles> m_base = std::make_shared<const ProjectFiles>();
    bool m_isOwnForm = false; ///< the base is as the program writes it
    QString m_carryFrom;      ///< the folder to take assets from with the first save
    Carry m_carry = Carry::Everything;
    /// What the working copy may still have long after it got its proper name: paths from which
    /// the project was ever read.
    QSet<QString> m_foreignPaths;
    bool m_isNew = true;
};

} // namespace

Result<OpenedStore> openBundleStore(const QString &path)
{
    Result<OpenedBundle> opened = openBundle(path, StorageLocations::standard());
    if (!opened)
        return opened.asFailure();
    Result<std::unique_ptr<core::Project>> project =
        loadProject(opened->workingFolder, opened->files);
    if (!project && opened->origin == WorkingCopyOrigin::Restored)
        return failure(BundleText::tr("%1 The file as it was before its unsaved changes were put "
                                      "back is kept as: %2")
                           .arg(project.message(), QDir::toNativeSeparators(opened->backupPath)));
    if (!project)
        return project.asFailure();
    auto store = std::make_unique<BundleProjectStore>(path);
    store->take(*opened);
    store->setBase(std::move(opened->files));
    return OpenedStore{std::move(store), *std::move(project)};
}

Result<std::unique_ptr<ProjectStore>> newBundleStore(const QString &path, const QString &carryFrom,
                                                     Carry carry)
{
    auto store = std::make_unique<BundleProjectStore>(path);
    store->setCarryFrom(carryFrom, carry);
    return std::unique_ptr<ProjectStore>(std::move(store));
}

} // namespace vl::app
