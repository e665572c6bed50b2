#include "app/storage/projectstore.h"

#include "app/storage/bundleprojectstore.h"
#include "app/storage/projectfolder.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

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
    PendingFolderSave(FolderSave save, QString carryFrom)
        : save(std::move(save))
        , m_carryFrom(std::move(carryFrom))
    {
    }

    bool meetsOutsideChanges() const override { return !outsideChanges(save).empty(); }

    Result<> commit(OutsideChanges outside) override
    {
        // What the project refers to comes first, so that no saved project lacks its pictures.
        if (!m_carryFrom.isEmpty()) {
            if (Result<> carried = copyCarriedFiles(m_carryFrom, save.folder); !carried)
                return carried;
        }
        return commitFolderSave(save, outside);
    }

    FolderSave save;

private:
    QString m_carryFrom;
};

class FolderProjectStore final : public ProjectStore
{
public:
    FolderProjectStore(const QString &folder, QString carryFrom)
        : m_files(folder)
        , m_carryFrom(std::move(carryFrom))
    {
    }

    FolderStore &files() { return m_files; }

    QString path() const override { return m_files.folder(); }
    bool isBundle() const override { return false; }
    QString folder() const override { return m_files.folder(); }

    std::unique_ptr<PendingSave> prepare(const core::Project &project,
                                         const core::ChangeSet *touched) override
    {
        return std::make_unique<PendingFolderSave>(
            touched ? m_files.prepare(project, *touched) : m_files.prepare(project), m_carryFrom);
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

private:
    FolderStore m_files;
    QString m_carryFrom; ///< the folder to take assets from with the first save
};

Result<OpenedStore> openFolder(const QString &path)
{
    auto store = std::make_unique<FolderProjectStore>(path, QString());
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
    return info.isDir() ? openFolder(absolute)
           : info.suffix().compare(QLatin1String("vellum"), Qt::CaseInsensitive) == 0
               ? openBundleStore(absolute)
               : openFolder(absolute);
}

Result<std::unique_ptr<ProjectStore>> newFolderStore(const QString &folder,
                                                     const QString &carryFrom)
{
    const QString absolute = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    const bool isOwn = absolute == carryFrom;
    const QDir dir(absolute);
    if (!isOwn && dir.exists()
        && !dir.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        return failure(withPath(StoreText::tr("The folder is not empty: %1"), absolute));
    return std::unique_ptr<ProjectStore>(
        std::make_unique<FolderProjectStore>(absolute, isOwn ? QString() : carryFrom));
}

} // namespace vl::app
