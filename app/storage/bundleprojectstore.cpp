#include "app/storage/bundleprojectstore.h"

#include "app/base/sha256.h"
#include "app/storage/bundlestore.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace vl::app {

namespace {

struct BundleText
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::BundleProjectStore)
};

class PendingBundleSave final : public PendingSave
{
public:
    PendingBundleSave(BundleSave save, StorageLocations locations)
        : save(std::move(save))
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
        if (isNew) {
            Result<OpenedBundle> written = saveBundleAs(save, carryFrom, m_locations);
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

    BundleSave save;
    bool isNew = false;
    QString carryFrom;
    SaveReport report;
    OpenedBundle opened;

private:
    StorageLocations m_locations;
};

bool pathIsBefore(const ProjectFile &file, const QString &path)
{
    return file.path < path;
}

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
    void setReadPaths(QStringList paths) { m_readPaths = std::move(paths); }
    void setCarryFrom(const QString &folder) { m_carryFrom = folder; }

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
        // What was read may have been written by other hands in another form; the first save
        // writes everything as the program does.
        if (touched && m_isSerialized)
            serializeTouched(project, *touched);
        else
            serializeAll(project);

        BundleSave save;
        save.bundlePath = m_bundlePath;
        save.workingFolder = m_workingFolder;
        save.files = m_files;
        save.readPaths = m_readPaths;
        save.known = m_known;
        auto pending = std::make_unique<PendingBundleSave>(std::move(save), m_locations);
        pending->isNew = m_isNew;
        pending->carryFrom = m_carryFrom;
        return pending;
    }

    void finished(PendingSave &save, bool succeeded) override
    {
        const auto &pending = static_cast<PendingBundleSave &>(save);
        if (pending.isNew) {
            if (succeeded)
                take(pending.opened);
        } else {
            // After a failure too this tells what stands there now.
            m_known = pending.report.known;
        }
        if (!succeeded)
            return;
        m_readPaths.clear();
        m_readPaths.reserve(qsizetype(pending.save.files.size()));
        for (const ProjectFile &file : pending.save.files)
            m_readPaths.append(file.path);
        m_carryFrom.clear();
    }

private:
    void serializeAll(const core::Project &project)
    {
        m_files.clear();
        serializeProject(project, [this](const QString &path, const QByteArray &bytes) {
            m_files.push_back({path, bytes});
        });
        std::sort(m_files.begin(), m_files.end(),
                  [](const ProjectFile &a, const ProjectFile &b) { return a.path < b.path; });
        m_isSerialized = true;
    }

    void serializeTouched(const core::Project &project, const core::ChangeSet &touched)
    {
        for (const auto &[id, change] : touched.objects()) {
            const core::ContentObject *object = project.find(id);
            setFile(objectPath(id), object ? serializeObject(*object) : QByteArray());
        }
        for (const auto &[id, change] : touched.categories()) {
            const core::Category *category = project.taxonomy().find(id);
            setFile(categoryPath(id), category ? serializeCategory(*category) : QByteArray());
        }
        if (touched.touchesAnyRecord())
            setFile(recordsPath(), serializeProjectRecords(project));
    }

    /// No bytes take the file away.
    void setFile(const QString &path, const QByteArray &bytes)
    {
        const auto place = std::lower_bound(m_files.begin(), m_files.end(), path, pathIsBefore);
        const bool isThere = place != m_files.end() && place->path == path;
        if (bytes.isEmpty()) {
            if (isThere)
                m_files.erase(place);
        } else if (isThere) {
            place->bytes = bytes;
        } else {
            m_files.insert(place, {path, bytes});
        }
    }

    StorageLocations m_locations;
    QString m_bundlePath;
    QString m_workingFolder;
    KnownBundle m_known;
    ProjectFiles m_files; ///< by path, as the model is written; from the first save on
    bool m_isSerialized = false;
    QStringList m_readPaths;
    QString m_carryFrom; ///< the folder to take assets from with the first save
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
    QStringList paths;
    for (const ProjectFile &file : opened->files)
        paths.append(file.path);
    auto store = std::make_unique<BundleProjectStore>(path);
    store->take(*opened);
    store->setReadPaths(std::move(paths));
    return OpenedStore{std::move(store), *std::move(project)};
}

Result<std::unique_ptr<ProjectStore>> newBundleStore(const QString &path, const QString &carryFrom)
{
    auto store = std::make_unique<BundleProjectStore>(path);
    store->setCarryFrom(carryFrom);
    return std::unique_ptr<ProjectStore>(std::move(store));
}

} // namespace vl::app
