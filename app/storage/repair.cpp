#include "app/storage/repair.h"

#include "app/base/files.h"
#include "app/base/sha256.h"
#include "app/storage/archivesalvage.h"
#include "app/storage/bundle.h"
#include "app/storage/lock.h"
#include "app/storage/projectfolder.h"
#include "app/storage/projectkey.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectreader.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <set>

namespace vl::app {

namespace {

struct RepairText
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ProjectRepair)
};

const QLatin1String asideFolder("conflicting copies");

bool isBundleName(const QString &path)
{
    return path.endsWith(QLatin1String(".vellum"), Qt::CaseInsensitive);
}

bool isFree(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return true;
    return info.isDir() && !isBundleName(path)
           && QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System
                                 | QDir::NoDotAndDotDot);
}

/// All paths under the folder, links and devices too, relative to it and in order.
QStringList everythingUnder(const QString &folder)
{
    QStringList paths;
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo info = entries.fileInfo();
        if (isLockPath(entries.filePath().mid(folder.size() + 1).toUtf8()))
            continue;
        if ((!info.isDir() || info.isSymLink()) && !isUnfinishedFileName(info.fileName()))
            paths.append(entries.filePath().mid(folder.size() + 1));
    }
    paths.sort();
    return paths;
}

QString unreadable(const QString &folder, const QString &path)
{
    return withPath(RepairText::tr("Could not read a project file: %1"), folder + u'/' + path);
}

/// The path with the first number from 2 that makes it one of its own.
template<typename IsTaken>
QString numberedPath(const QString &path, const IsTaken &isTaken)
{
    const qsizetype dot = path.lastIndexOf(u'.');
    const qsizetype end = dot > path.lastIndexOf(u'/') + 1 ? dot : path.size();
    QString free;
    for (int i = 2; free.isEmpty() || isTaken(free); ++i)
        free = QStringLiteral("%1-%2%3").arg(path.left(end), QString::number(i), path.mid(end));
    return free;
}

/// Where a conflicting copy is put: under its own name, with a number when that is taken.
template<typename IsTaken>
QString asidePath(const QString &path, const IsTaken &isTaken)
{
    const QString wanted = asideFolder + u'/' + path.section(u'/', -1);
    return isTaken(wanted) ? numberedPath(wanted, isTaken) : wanted;
}

QString repeatedReason(const QString &path)
{
    return RepairText::tr("The project file holds “%1” more than once; this is an earlier one.")
        .arg(path);
}

} // namespace

Result<ProjectRepair> ProjectRepair::examine(const QString &path, const StorageLocations &locations)
{
    ProjectRepair repair(absoluteProjectPath(path));
    repair.m_isFolder = QFileInfo(repair.m_path).isDir();
    const Result<> read =
        repair.m_isFolder ? repair.readFolder() : repair.readBundleFile(locations);
    if (!read)
        return read.asFailure();
    std::sort(repair.m_leftOut.begin(), repair.m_leftOut.end(),
              [](const LeftOutFile &a, const LeftOutFile &b) { return a.path < b.path; });
    return repair;
}

Result<> ProjectRepair::readFolder()
{
    ProjectFiles read;
    for (const QString &path : everythingUnder(m_path)) {
        const QByteArray name = path.toUtf8();
        if (isRepositoryPath(name))
            continue; // it stays with the folder that it is about
        if (!isSafeEntryName(name)) {
            m_leftOut.push_back({path, unreadable(m_path, path)});
        } else if (isReadPath(name)) {
            Result<QByteArray> bytes = readProjectFile(m_path, name);
            if (bytes)
                read.push_back({path, *std::move(bytes)});
            else
                m_leftOut.push_back({path, bytes.message()});
        } else {
            const QFileInfo info(m_path + u'/' + path);
            if (info.isFile() && !info.isSymLink()
                && QFile(info.filePath()).open(QIODevice::ReadOnly))
                m_carriedPaths.push_back(name);
            else
                m_leftOut.push_back({path, unreadable(m_path, path)});
        }
    }
    judge(std::move(read));
    return {};
}

Result<> ProjectRepair::readBundleFile(const StorageLocations &locations)
{
    const Result<QByteArray> bytes =
        readRegularFile(m_path, RepairText::tr("Could not open the project file: %1"),
                        ArchiveWriter::maxBytes + 65535);
    if (!bytes)
        return bytes.asFailure();
    m_sha256 = Sha256::of(*bytes);
    SalvagedArchive salvaged = salvageArchive(*bytes);
    ProjectFiles read;
    for (ProjectFile &file : salvaged.files)
        (isReadPath(file.path.toUtf8()) ? read : m_carried).push_back(std::move(file));
    for (const ProjectFile &file : salvaged.repeated)
        takeRepeated(file, read);
    m_isSalvaged = !salvaged.isComplete;
    judge(std::move(read));
    for (const QString &name : std::as_const(salvaged.damaged))
        m_leftOut.push_back(
            {name, RepairText::tr("Its bytes in the project file are damaged or missing."),
             salvaged.remains.value(name)});
    fillFromWorkingCopy(locations, salvaged.damaged, salvaged.isComplete);
    if (m_good.empty() && m_carried.empty())
        return failure(withPath(RepairText::tr("Nothing in this file can be read: %1"), m_path));
    return {};
}

/// An earlier file comes along under a name of its own, so that it can be compared.
void ProjectRepair::takeRepeated(const ProjectFile &file, ProjectFiles &read)
{
    const auto isTaken = [&](const QString &path) {
        const auto hasPath = [&path](const ProjectFile &other) { return other.path == path; };
        return std::any_of(read.begin(), read.end(), hasPath)
               || std::any_of(m_carried.begin(), m_carried.end(), hasPath)
               || m_repeated.contains(path);
    };
    const QString path = numberedPath(file.path, isTaken);
    if (file.path == recordsPath()) { // there is but one, and no other name is read as such
        const auto kept = std::find_if(read.begin(), read.end(), [](const ProjectFile &other) {
            return other.path == recordsPath();
        });
        m_leftOut.push_back({path, repeatedReason(file.path)});
        m_conflicts.push_back({path, kept->path, file.bytes, kept->bytes});
    } else {
        (isReadPath(file.path.toUtf8()) ? read : m_carried).push_back({path, file.bytes});
    }
    m_repeated.emplace(path, file.path);
}

/// Of a file whose directory is lost nobody knows what it held, so all that the copy has is taken.
void ProjectRepair::fillFromWorkingCopy(const StorageLocations &locations,
                                        const QStringList &damaged, bool isComplete)
{
    const QString folder = WorkingCopy::of(m_path, locations).folder();
    if ((damaged.isEmpty() && isComplete) || !QFileInfo(folder).isDir())
        return;
    std::set<QString> known;
    for (const ProjectFiles *files : {&m_good, &m_carried}) {
        for (const ProjectFile &file : *files)
            known.insert(file.path);
    }
    for (const QString &path : everythingUnder(folder)) {
        const QByteArray name = path.toUtf8();
        if (known.contains(path) || (isComplete && !damaged.contains(path))
            || !isSafeEntryName(name))
            continue;
        const Result<QByteArray> bytes = readProjectFile(folder, name);
        const ProjectFile file{path, bytes ? *bytes : QByteArray()};
        if (!bytes || (isReadPath(name) && !loadProjectFiles(folder, std::span(&file, 1))))
            continue;
        (isReadPath(name) ? m_good : m_carried).push_back(file);
        m_fromWorkingCopy.append(path);
        std::erase_if(m_leftOut, [&](const LeftOutFile &left) { return left.path == path; });
    }
}

/// Tries each file by itself, then those together that load alone.
void ProjectRepair::judge(ProjectFiles files)
{
    std::vector<bool> isLeftOut(files.size());
    std::map<core::ContentId, std::vector<std::size_t>> objects;
    std::map<core::ContentId, std::vector<std::size_t>> categories;
    for (std::size_t i = 0; i < files.size(); ++i) {
        const Result<LoadedProject> alone = loadProjectFiles(m_path, std::span(&files[i], 1));
        if (!alone) {
            m_leftOut.push_back({files[i].path, alone.message(), files[i].bytes});
            isLeftOut[i] = true;
        } else if (!alone->files.empty() && !alone->files.front().id.isNull()) {
            const bool isObject = files[i].path.startsWith(objectsFolder() + u'/');
            (isObject ? objects : categories)[alone->files.front().id].push_back(i);
        }
    }
    leaveOutDuplicates(std::move(objects), files, true, isLeftOut);
    leaveOutDuplicates(std::move(categories), files, false, isLeftOut);
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (!isLeftOut[i])
            m_good.push_back(std::move(files[i]));
    }
}

/// Of the files of one id the one stays that has its name, else the first.
void ProjectRepair::leaveOutDuplicates(std::map<core::ContentId, std::vector<std::size_t>> byId,
                                       const ProjectFiles &files, bool areObjects,
                                       std::vector<bool> &isLeftOut)
{
    for (auto &[id, places] : byId) {
        if (places.size() < 2)
            continue;
        std::sort(places.begin(), places.end(),
                  [&](std::size_t a, std::size_t b) { return files[a].path < files[b].path; });
        const QString ownPath = areObjects ? objectPath(id) : categoryPath(id);
        const auto own = std::find_if(places.begin(), places.end(), [&](std::size_t place) {
            return files[place].path == ownPath;
        });
        const std::size_t kept = own == places.end() ? places.front() : *own;
        for (const std::size_t place : places) {
            if (place == kept)
                continue;
            const ProjectFile &copy = files[place];
            isLeftOut[place] = true;
            const auto repeated = m_repeated.find(copy.path);
            m_leftOut.push_back(
                {copy.path, repeated != m_repeated.end()
                                ? repeatedReason(repeated->second)
                                : RepairText::tr("Duplicate object id %1 in %2")
                                      .arg(id.toString(),
                                           QDir::toNativeSeparators(m_path + u'/' + copy.path))});
            m_conflicts.push_back({copy.path, files[kept].path, copy.bytes, files[kept].bytes});
        }
    }
}

bool ProjectRepair::holds(const QString &path) const
{
    return std::any_of(m_good.begin(), m_good.end(),
                       [&path](const ProjectFile &file) { return file.path == path; });
}

Result<> ProjectRepair::writeCopy(const QString &givenPath) const
{
    const QString path = absoluteProjectPath(givenPath);
    if (!isFree(path))
        return failure(withPath(RepairText::tr("Something stands there already: %1"), path));
    ProjectFiles files = m_good;
    files.insert(files.end(), m_carried.begin(), m_carried.end());
    const bool hasRecords = std::any_of(files.begin(), files.end(), [](const ProjectFile &file) {
        return file.path == recordsPath();
    });
    if (!hasRecords) // no file is read as a bundle without them
        files.push_back({recordsPath(), QByteArrayLiteral("{\n}\n")});
    const Result<BundleSource> source =
        BundleSource::ofFiles(m_path, m_carriedPaths, std::move(files));
    if (!source)
        return source.asFailure();
    if (isBundleName(path)) {
        if (Result<> written = BundleWriter(path).write(*source); !written)
            return written;
        const Result<ReadBundle> copy = readBundle(path);
        if (!copy)
            return copy.asFailure();
        const auto loaded = loadProject(path, projectFilesIn(copy->archive));
        return loaded ? Result<>() : Result<>(loaded.asFailure());
    }
    QByteArray bytes;
    const auto sink = [&bytes](QByteArrayView piece) {
        bytes.append(piece);
        return Result<>();
    };
    if (Result<> packed = source->packInto(sink, path); !packed)
        return packed;
    const std::optional<Archive> archive = Archive::parse(std::move(bytes));
    if (!archive)
        return failure(withPath(RepairText::tr("Could not write a project file: %1"), path));
    if (Result<> extracted = extractArchive(*archive, path); !extracted)
        return extracted;
    const auto loaded = loadProject(path);
    return loaded ? Result<>() : Result<>(loaded.asFailure());
}

Result<> ProjectRepair::setConflictsAside(const StorageLocations &locations) const
{
    const auto failed = [this](const QString &path) {
        return failure(
            withPath(RepairText::tr("Could not move the file: %1"), m_path + u'/' + path));
    };
    if (m_isFolder) {
        if (!makeFolder(m_path + u'/' + asideFolder))
            return failed(asideFolder);
        for (const ConflictingCopy &copy : m_conflicts) {
            const QString target = asidePath(copy.path, [this](const QString &path) {
                return QFileInfo::exists(m_path + u'/' + path);
            });
            if (!renamePath(m_path + u'/' + copy.path, m_path + u'/' + target))
                return failed(copy.path);
        }
        return {};
    }
    return rewriteBundle(locations);
}

/// Writes the bundle anew, of what can be read of it, with the conflicting copies under new paths.
Result<> ProjectRepair::rewriteBundle(const StorageLocations &locations) const
{
    ProjectFiles files = m_good;
    files.insert(files.end(), m_carried.begin(), m_carried.end());
    const auto isTaken = [&files](const QString &path) {
        return std::any_of(files.begin(), files.end(),
                           [&](const ProjectFile &file) { return file.path == path; });
    };
    for (const ConflictingCopy &copy : m_conflicts)
        files.push_back({asidePath(copy.path, isTaken), copy.bytes});
    const Result<BundleSource> source = BundleSource::ofFiles(m_path, {}, std::move(files));
    if (!source)
        return source.asFailure();
    const Result<QByteArray> before =
        readRegularFile(m_path, RepairText::tr("Could not open the project file: %1"),
                        ArchiveWriter::maxBytes + 65535);
    if (!before)
        return before.asFailure();
    if (Sha256::of(*before) != m_sha256)
        return failure(RepairText::tr("The project changed outside Ivorel since you opened it."));
    const Result<QString> backup = locations.backups().addBytes(bundleBaseName(m_path), *before);
    return backup ? BundleWriter(m_path).write(*source) : Result<>(backup.asFailure());
}

} // namespace vl::app
