#include "cli/projectwriting.h"

#include "app/base/files.h"
#include "app/storage/bundle.h"
#include "app/storage/folderstore.h"
#include "app/storage/projectfolder.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectwriter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>

#include <algorithm>

namespace vl::cli {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::cli::ProjectWriting)
};

app::ProjectFiles modelFiles(const core::Project &project)
{
    app::ProjectFiles files;
    files.reserve(std::size_t(project.size() + project.taxonomy().size() + 1));
    app::serializeProject(project, [&files](const QString &path, const QByteArray &bytes) {
        files.push_back({path, bytes});
    });
    return files;
}

/// What a bundle holds beside the model. The bytes are those of the archive and live as long as it.
app::ProjectFiles carriedFiles(const app::Archive &archive)
{
    app::ProjectFiles files;
    for (const app::Archive::Entry &entry : archive.entries())
        if (!app::isReadPath(entry.name))
            if (std::optional<QByteArray> bytes = archive.content(entry))
                files.push_back({QString::fromUtf8(entry.name), *std::move(bytes)});
    return files;
}

app::Result<> writeCarried(const app::ProjectFiles &files, const QString &folder)
{
    const QString unwritten = Texts::tr("Could not write a project file: %1");
    app::FileBatch batch({unwritten, unwritten}, app::Durability::Synced);
    for (const app::ProjectFile &file : files) {
        const QString path = folder + u'/' + file.path;
        if (!app::makeFolder(path.left(path.lastIndexOf(u'/'))))
            return app::failure(
                app::withPath(Texts::tr("Could not create the folder for: %1"), path));
        if (app::Result<> added = batch.add(path, file.bytes); !added)
            return added;
    }
    return batch.commit();
}

app::Result<> writeBundle(const core::Project &project, const app::ProjectFiles &carried,
                          const QString &carryFrom, const QStringList &readPaths,
                          const QString &path)
{
    app::ProjectFiles files = modelFiles(project);
    files.insert(files.end(), carried.begin(), carried.end());
    app::Result<app::BundleSource> source = app::BundleSource::ofProject(
        std::move(files), carryFrom, readPaths, app::Repositories::LeaveOut);
    if (!source)
        return source.asFailure();
    source->leaveOut(path);
    return app::BundleWriter(path).write(*source);
}

/// Makes a folder beside the target, of a name that nothing has yet; empty when that fails.
QString makeStagingFolder(const QString &target)
{
    if (!app::makeFolder(QFileInfo(target).absolutePath()))
        return {};
    for (int attempt = 0; attempt < 16; ++attempt) {
        QString path = target + QStringLiteral(".unfinished-")
                       + QString::number(QRandomGenerator::global()->generate(), 16);
        if (QDir().mkdir(path))
            return path;
    }
    return {};
}

/// Writes a folder that is not there yet: under another name first, so that it appears as a whole.
template<typename Write>
app::Result<> writeFreshFolder(const QString &path, const Write &write)
{
    const QString target = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    const app::Failure failed =
        app::failure(app::withPath(Texts::tr("Cannot create project folder: %1"), path));
    const QString staged = makeStagingFolder(target);
    if (staged.isEmpty())
        return failed;
    app::Result<> written = write(staged);
    if (written && !app::renamePath(staged, target))
        written = failed;
    if (!written)
        QDir(staged).removeRecursively();
    return written;
}

/// Brings a folder that holds an older state of the project up to date.
app::Result<> rewriteFolder(const core::Project &project, const QString &path)
{
    app::FolderStore store(path);
    if (const auto older = store.load(); !older)
        return older.asFailure();
    return app::commitFolderSave(store.prepare(project), app::OutsideChanges::Refuse);
}

/// Refuses to write over what is no project, or another one.
app::Result<> checkReplaceable(const core::Project &project, const QString &path)
{
    // Any folder loads, as an empty project if need be; but one without records is none of ours.
    if (!isBundlePath(path) && !QFileInfo(path + u'/' + app::recordsPath()).isFile())
        return app::failure(app::withPath(
            Texts::tr("The folder is not an Ivorel project (no project.json): %1"), path));
    const app::Result<ProjectSource> older = ProjectSource::open(path);
    if (!older)
        return older.asFailure();
    const core::Project &other = older->project();
    const std::vector<core::ContentId> categories = other.taxonomy().ids();
    const auto isSharedObject = [&other](const auto &object) {
        return other.contains(object.first);
    };
    const auto isSharedCategory = [&project](const core::ContentId &id) {
        return project.taxonomy().contains(id);
    };
    const bool isRelated =
        (other.size() == 0 && categories.empty())
        || std::any_of(project.objects().begin(), project.objects().end(), isSharedObject)
        || std::any_of(categories.begin(), categories.end(), isSharedCategory);
    return isRelated
               ? app::Result<>()
               : app::failure(app::withPath(Texts::tr("Another project stands there: %1"), path));
}

} // namespace

bool isFreeForProject(const QString &path)
{
    const QFileInfo info(path);
    if (info.isSymLink() && !info.exists())
        return false;
    return !info.exists()
           || (info.isDir()
               && QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System
                                     | QDir::NoDotAndDotDot));
}

app::Result<> writeNewProject(const core::Project &project, const QString &path,
                              const app::ProjectFiles &carried)
{
    if (isBundlePath(path))
        return writeBundle(project, carried, {}, {}, path);
    return writeFreshFolder(path, [&](const QString &folder) {
        const app::Result<> saved = app::saveProject(project, folder);
        return saved ? writeCarried(carried, folder) : saved;
    });
}

app::Result<> convertProject(const ProjectSource &source, const QString &path)
{
    const bool isOwnPlace =
        QFileInfo::exists(path)
        && QFileInfo(path).canonicalFilePath() == QFileInfo(source.path()).canonicalFilePath();
    const bool isFree = isFreeForProject(path);
    if (!isFree && !isOwnPlace)
        if (app::Result<> checked = checkReplaceable(source.project(), path); !checked)
            return checked;
    app::ProjectFiles carried;
    if (source.archive())
        carried = carriedFiles(*source.archive());
    const QString carryFrom = source.archive() ? QString() : source.path();
    if (isBundlePath(path))
        return writeBundle(source.project(), carried, carryFrom, source.readPaths(), path);

    const auto writeOthers = [&](const QString &folder) {
        if (isOwnPlace)
            return app::Result<>();
        return source.archive() ? writeCarried(carried, folder)
                                : app::copyCarriedFiles(carryFrom, folder);
    };
    if (isFree)
        return writeFreshFolder(path, [&](const QString &folder) {
            const app::Result<> saved = app::saveProject(source.project(), folder);
            return saved ? writeOthers(folder) : saved;
        });
    const app::Result<> rewritten = rewriteFolder(source.project(), path);
    return rewritten ? writeOthers(path) : rewritten;
}

} // namespace vl::cli
