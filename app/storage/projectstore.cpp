#include "app/storage/projectstore.h"

#include "app/storage/bundleprojectstore.h"
#include "app/storage/folderbackup.h"
#include "app/storage/projectfolder.h"
#include "app/storage/workingcopy.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace vl::app {

PendingSave::~PendingSave() = default;
ProjectStore::~ProjectStore() = default;

QString ProjectStore::carriedFolder() const
{
    return QFileInfo(folder()).isDir() ? folder() : QString();
}

namespace {

struct StoreText
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ProjectStore)
};

class PendingFolderSave final : public PendingSave
{
public:
    PendingFolderSave(FolderSave save, QString carryFrom, Carry carry)
        : save(std::move(save))
        , m_carryFrom(std::move(carryFrom))
        , m_carry(carry)
    {
    }

    bool meetsOutsideChanges() const override { return !outsideChanges(save).empty(); }

    Result<> commit(OutsideChanges outside) override
    {
        // What the project refers to comes first, so that no saved project lacks its pictures.
        if (!m_carryFrom.isEmpty()) {
            if (Result<> carried = copyCarriedFiles(m_carryFrom, save.folder, m_carry); !carried)
                return carried;
        }
        // As with a bundle, what others wrote is kept before it is written over.
        if (outside == OutsideChanges::Overwrite && QFileInfo(save.folder).isDir()
            && meetsOutsideChanges()) {
            const Result<QString> kept = backUpProjectFolder(
                StorageLocations::standard().backups(), bundleBaseName(save.folder), save.folder);
            if (!kept)
                return kept.asFailure();
        }
        return commitFolderSave(save, outside);
    }

    FolderSave save;

private:
    QString m_carryFrom;
    Carry m_carry;
};

class PendingFolderScan final : public PendingScan
{
public:
    explicit PendingFolderScan(FolderScan scan)
        : m_scan(std::move(scan))
    {
    }

    OutsideState run() override { return scanFolder(m_scan); }

private:
    FolderScan m_scan;
};

/// The files with some of them put in, in place of those of the same path or of the other paths
/// that a save would take away; in path order.
ProjectFiles overlaid(const BaseFiles &base, const FolderSave &save)
{
    BaseFiles files = base;
    for (const auto &[from, to] : save.renames)
        files.remove(from);
    for (const FolderSave::Target &target : save.removals)
        files.remove(target.path);
    for (const FolderSave::Target &target : save.writes)
        files.insert(target.path, target.bytes);
    ProjectFiles list;
    list.reserve(std::size_t(files.size()));
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        list.push_back({file.key(), file.value()});
    std::sort(list.begin(), list.end(),
              [](const ProjectFile &a, const ProjectFile &b) { return a.path < b.path; });
    return list;
}

class FolderProjectStore final : public ProjectStore
{
public:
    FolderProjectStore(const QString &folder, QString carryFrom, Carry carry)
        : m_files(folder)
        , m_carryFrom(std::move(carryFrom))
        , m_carry(carry)
    {
    }

    FolderStore &files() { return m_files; }

    QString path() const override { return m_files.folder(); }
    bool isBundle() const override { return false; }
    QString folder() const override { return m_files.folder(); }

    std::unique_ptr<PendingSave> prepare(const core::Project &project,
                                         const core::ChangeSet *touched) override
    {
        return std::make_unique<PendingFolderSave>(touched ? m_files.prepare(project, *touched)
                                                           : m_files.prepare(project),
                                                   m_carryFrom, m_carry);
    }

    void finished(PendingSave &save, bool succeeded) override
    {
        const FolderSave &files = static_cast<PendingFolderSave &>(save).save;
        if (!succeeded) {
            m_files.failed(files);
            return;
        }
        m_files.saved(files);
        m_carryFrom.clear();
    }

    FilesSnapshot snapshot(const core::Project &project,
                           const core::ChangeSet &touched) const override
    {
        return [base = m_files.base(), save = m_files.prepare(project, touched)] {
            return overlaid(base, save);
        };
    }

    std::unique_ptr<PendingScan> prepareScan() const override
    {
        return std::make_unique<PendingFolderScan>(
            FolderScan{m_files.folder(), m_files.base(), m_files.maybeOwn(), m_media});
    }

    std::function<Result<>()> prepareAdoption(const OutsideState & /*state*/) const override
    {
        return [] { return Result<>(); };
    }

    void adopt(const OutsideState &state) override
    {
        for (const OutsideFile &file : state.files) {
            if (file.remote)
                m_files.adopt(file.path, file.id, *file.remote);
            else
                m_files.forget(file.path);
        }
    }

    void note(const OutsideState &state) override
    {
        if (state.mediaStamps)
            m_media = state.mediaStamps;
    }

private:
    FolderStore m_files;
    std::shared_ptr<const MediaStamps> m_media; ///< null until they were looked at
    QString m_carryFrom; ///< the folder to take assets from with the first save
    Carry m_carry;
};

Result<OpenedStore> openFolder(const QString &path)
{
    auto store = std::make_unique<FolderProjectStore>(path, QString(), Carry::Everything);
    Result<std::unique_ptr<core::Project>> project = store->files().load();
    if (!project)
        return project.asFailure();
    return OpenedStore{std::move(store), *std::move(project)};
}

} // namespace

Result<OpenedStore> openStore(const QString &path)
{
    const QFileInfo info(path);
    const QString absolute = QDir::cleanPath(info.absoluteFilePath());
    if (info.isDir())
        return openFolder(absolute);
    if (info.suffix().compare(QLatin1String("vellum"), Qt::CaseInsensitive) == 0)
        return openBundleStore(absolute);
    if (info.exists())
        return failure(withPath(StoreText::tr("Not a valid Ivorel project file: %1"), absolute));
    return openFolder(absolute);
}

Result<std::unique_ptr<ProjectStore>> newFolderStore(const QString &folder,
                                                     const QString &carryFrom, Carry carry)
{
    const QString absolute = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    const bool isOwn = absolute == carryFrom;
    const QDir dir(absolute);
    if (!isOwn && dir.exists()
        && !dir.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        return failure(withPath(StoreText::tr("The folder is not empty: %1"), absolute));
    return std::unique_ptr<ProjectStore>(
        std::make_unique<FolderProjectStore>(absolute, isOwn ? QString() : carryFrom, carry));
}

} // namespace vl::app
