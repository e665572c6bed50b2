#include "app/storage/projectfolder.h"

#include "app/storage/archive.h"
#include "app/storage/lock.h"
#include "app/storage/projectpaths.h"
#include "core/id.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <filesystem>
#include <set>

namespace vl::app {

namespace fs = std::filesystem;

namespace {

struct ProjectFolder
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ProjectFolder)

public:
    static QString unreadable() { return tr("Could not read a project file: %1"); }
};

fs::path toSystemPath(const QString &path)
{
#ifdef Q_OS_WIN
    return {path.toStdU16String()};
#else
    return {QFile::encodeName(path).toStdString()};
#endif
}

QByteArray fromSystemPath(const fs::path &path)
{
    const std::u8string text = path.generic_u8string();
    return {reinterpret_cast<const char *>(text.data()), qsizetype(text.size())};
}

/// What the entry is, links not followed. The listing itself tells it on most file systems, which
/// saves a call for each of the files.
fs::file_type typeOf(const fs::directory_entry &entry, std::error_code &error)
{
    if (entry.is_symlink(error))
        return fs::file_type::symlink;
    if (!error && entry.is_directory(error))
        return fs::file_type::directory;
    return !error && entry.is_regular_file(error) ? fs::file_type::regular : fs::file_type::unknown;
}

/// The name directly inside "objects/" or "taxonomy/", without ".json"; empty for other paths and
/// hidden files.
QByteArrayView objectName(QByteArrayView path)
{
    for (const QByteArrayView folder : {QByteArrayView("objects/"), QByteArrayView("taxonomy/")}) {
        if (path.startsWith(folder) && path.indexOf('/', folder.size()) < 0
            && path.size() > folder.size() + 5 && path[folder.size()] != '.'
            && path.last(5).compare(QByteArrayView(".json"), Qt::CaseInsensitive) == 0)
            return path.sliced(folder.size()).chopped(5);
    }
    return {};
}

} // namespace

bool isOwnPath(QByteArrayView path)
{
    if (path == "project.json")
        return true;
    const QByteArrayView name = objectName(path);
    const QString text = QString::fromLatin1(name);
    return name.size() == 36 && path.endsWith(".json")
           && core::uuidToText(core::uuidFromText(text)) == text;
}

bool isReadPath(QByteArrayView path)
{
    return path == "project.json" || !objectName(path).isEmpty();
}

bool isRepositoryPath(QByteArrayView path)
{
    for (qsizetype from = 0; from < path.size();) {
        const qsizetype slash = path.indexOf('/', from);
        const QByteArrayView part = path.sliced(from, (slash < 0 ? path.size() : slash) - from);
        if (part == ".git" || part == ".hg" || part == ".svn")
            return true;
        from += part.size() + 1;
    }
    return false;
}

Result<std::vector<QByteArray>> listProjectFolder(const QString &folder, Repositories repositories)
{
    if (!QDir(folder).exists())
        return failure(ProjectFolder::tr("The project folder does not exist: %1")
                           .arg(QDir::toNativeSeparators(folder)));
    const fs::path root = toSystemPath(folder);
    const QByteArray::size_type skipped = fromSystemPath(root / "x").size() - 1;
    std::vector<QByteArray> paths;
    std::error_code error;
    fs::recursive_directory_iterator it(root, error);
    QString current = folder;
    for (; !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
        const QByteArray path = fromSystemPath(it->path()).mid(skipped);
        current = pathInFolder(folder, path);
        const fs::file_type type = typeOf(*it, error);
        if (error)
            break;
        if (repositories == Repositories::LeaveOut && isRepositoryPath(path)) {
            it.disable_recursion_pending();
            continue;
        }
        if (type == fs::file_type::directory)
            continue;
        const qsizetype slash = path.lastIndexOf('/');
        if (isLockPath(path))
            continue;
        if (isUnfinishedFileName(QString::fromUtf8(QByteArrayView(path).sliced(slash + 1))))
            continue;
        // At another place the model stands for its files, whatever they are here.
        const bool isModels = repositories == Repositories::LeaveOut && isReadPath(path);
        if (!isModels && (type != fs::file_type::regular || !isSafeEntryName(path)))
            return failure(withPath(ProjectFolder::unreadable(), current));
        paths.push_back(path);
    }
    if (error)
        return failure(withPath(ProjectFolder::unreadable(), current));
    std::sort(paths.begin(), paths.end());
    return paths;
}

void removeUnfinishedOwnFiles(const QString &folder)
{
    for (const QString &name : {QString(), objectsFolder(), taxonomyFolder()})
        removeUnfinishedFiles(folder + u'/' + name);
}

void removeUnfinishedFilesUnder(const QString &folder)
{
    QDirIterator it(folder, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                    QDirIterator::Subdirectories);
    removeUnfinishedFiles(folder);
    while (it.hasNext())
        removeUnfinishedFiles(it.next());
}

Result<QByteArray> readProjectFile(const QString &folder, const QByteArray &path)
{
    return readRegularFile(pathInFolder(folder, path), ProjectFolder::unreadable(),
                           ArchiveWriter::maxBytes, Links::Refuse);
}

QString pathInFolder(const QString &folder, QByteArrayView path)
{
    return folder + QLatin1Char('/') + QString::fromUtf8(path);
}

CarriedFiles readCarriedFiles(const QString &folder)
{
    CarriedFiles carried;
    const fs::path root = toSystemPath(folder);
    const QByteArray::size_type skipped = fromSystemPath(root / "x").size() - 1;
    std::error_code error;
    fs::recursive_directory_iterator it(root, fs::directory_options::skip_permission_denied, error);
    for (; !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
        const QByteArray path = fromSystemPath(it->path()).mid(skipped);
        if (isRepositoryPath(path)) {
            it.disable_recursion_pending();
            continue;
        }
        std::error_code unknown;
        const fs::file_type type = typeOf(*it, unknown);
        const QString name = QString::fromUtf8(path);
        const bool isOpenFolder =
            type == fs::file_type::directory && QFileInfo(pathInFolder(folder, path)).isReadable();
        if (isOpenFolder || isReadPath(path) || isLockPath(path)
            || isUnfinishedFileName(name.section(u'/', -1)))
            continue;
        if (type == fs::file_type::regular && isSafeEntryName(path)
            && readProjectFile(folder, path))
            carried.paths.push_back(path);
        else
            carried.unreadable.append(name);
    }
    std::sort(carried.paths.begin(), carried.paths.end());
    carried.unreadable.sort();
    return carried;
}

namespace {

/// What was made at a place; goes again unless it is kept.
class Made
{
public:
    explicit Made(QString folder)
        : m_folder(std::move(folder))
    {
    }
    ~Made()
    {
        for (const QString &file : m_files)
            removeFile(file, Durability::Atomic);
        // Inner ones come last; one that holds something else stays.
        std::for_each(m_folders.crbegin(), m_folders.crend(),
                      [](const QString &folder) { QDir().rmdir(folder); });
    }
    Q_DISABLE_COPY_MOVE(Made)

    void add(const QString &file)
    {
        m_files.append(file);
        for (qsizetype slash = file.lastIndexOf(u'/'); slash > m_folder.size();
             slash = file.lastIndexOf(u'/', slash - 1))
            m_folders.insert(file.left(slash));
    }
    void keep()
    {
        m_files.clear();
        m_folders.clear();
    }

private:
    QString m_folder;
    QStringList m_files;
    std::set<QString> m_folders;
};

} // namespace

Result<> copyCarriedFiles(const QString &from, const QString &to, Carry carry)
{
    const Result<std::vector<QByteArray>> paths =
        carry == Carry::Everything ? listProjectFolder(from, Repositories::LeaveOut)
                                   : Result<std::vector<QByteArray>>(readCarriedFiles(from).paths);
    if (!paths)
        return paths.asFailure();
    const QString unwritten = ProjectFolder::tr("Could not write a project file: %1");
    Made made(to);
    for (const QByteArray &path : *paths) {
        if (isReadPath(path))
            continue;
        const Result<QByteArray> bytes = readProjectFile(from, path);
        if (!bytes)
            return bytes.asFailure();
        const QString target = pathInFolder(to, path);
        if (!makeFolder(target.left(target.lastIndexOf(QLatin1Char('/')))))
            return failure(
                withPath(ProjectFolder::tr("Could not create the folder for: %1"), target));
        if (fileHolds(target, *bytes))
            continue;
        if (!isThere(target))
            made.add(target);
        if (Result<> written = writeFile(target, *bytes, {unwritten, unwritten}); !written)
            return written;
    }
    made.keep();
    return {};
}

} // namespace vl::app
