#include "app/storage/folderstore.h"

#include "app/storage/projectfolder.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <set>

namespace vl::app {

namespace {

struct FolderWriter
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::FolderWriter)

public:
    static WriteMessages messages()
    {
        return {tr("Cannot write file: %1"), tr("Failed to write file: %1")};
    }
    static Result<> makeFolders(const QString &folder, Durability durability);
    static Result<> applyRenames(const FolderSave &save, Durability durability);
    static Result<> applyRemovals(const FolderSave &save, Durability durability);
    static Failure changedOutside(const QString &folder)
    {
        const QFileInfo info(folder);
        if (info.isDir())
            return failure(tr("The project changed outside Ivorel since you opened it."));
        return failure(withPath(info.exists() ? tr("Cannot create project folder: %1")
                                              : tr("The project folder does not exist: %1"),
                                folder));
    }
};

/// How a file on disk stands to what a save wants there.
enum class Standing
{
    Right,   ///< it holds those bytes already
    Missing, ///< there is none, or none that can be read
    Known,   ///< it is as it was last read or written
    Foreign, ///< someone else changed it
};

Standing standing(const QString &folder, const FolderSave::Target &target)
{
    const QString path = folder + u'/' + target.path;
    const Result<QByteArray> bytes = readRegularFile(path, QStringLiteral("%1"));
    // Where the records are gone the whole folder is: renamed, emptied, or on a disk that is away.
    if (!bytes && target.path == recordsPath() && !target.known.empty() && !isThere(path))
        return Standing::Foreign;
    if (!bytes)
        return Standing::Missing;
    if (*bytes == target.bytes)
        return Standing::Right;
    const bool isKnown = std::find(target.known.begin(), target.known.end(), FileStamp::of(*bytes))
                         != target.known.end();
    return isKnown ? Standing::Known : Standing::Foreign;
}

/// Adds the stamps that are not among them yet.
void append(std::vector<FileStamp> &stamps, const std::vector<FileStamp> &more)
{
    for (const FileStamp &stamp : more)
        if (std::find(stamps.begin(), stamps.end(), stamp) == stamps.end())
            stamps.push_back(stamp);
}

} // namespace

Result<> FolderWriter::makeFolders(const QString &folder, Durability durability)
{
    for (const QString &path : {folder, folder + u'/' + objectsFolder()})
        if (!makeFolder(path, durability))
            return failure(withPath(tr("Cannot create project folder: %1"), path));
    const QString taxonomy = folder + u'/' + taxonomyFolder();
    if (!makeFolder(taxonomy, durability))
        return failure(withPath(tr("Cannot create taxonomy folder: %1"), taxonomy));
    return {};
}

// Renaming first, then writing leaves no moment at which two files carry one id.
Result<> FolderWriter::applyRenames(const FolderSave &save, Durability durability)
{
    for (const auto &[from, to] : save.renames) {
        const QString source = save.folder + u'/' + from;
        const QString target = save.folder + u'/' + to;
        const bool isFree =
            from.compare(to, Qt::CaseInsensitive) == 0 || !QFileInfo::exists(target);
        if (isFree && QFileInfo(source).isFile() && !renamePath(source, target, durability))
            return failure(withPath(messages().cannotWrite, target));
    }
    return {};
}

Result<> FolderWriter::applyRemovals(const FolderSave &save, Durability durability)
{
    // Where case does not count, the name to be removed may be that of a file just written.
    std::set<QString> written;
    for (const FolderSave::Target &target : save.writes)
        if (!save.removals.empty())
            written.insert(target.path.toLower());
    std::set<QString> folders;
    for (const FolderSave::Target &target : save.removals) {
        if (written.contains(target.path.toLower()))
            continue;
        const QString path = save.folder + u'/' + target.path;
        if (!removeFile(path, Durability::Atomic))
            return failure(withPath(messages().cannotWrite, path));
        folders.insert(QFileInfo(path).absolutePath());
    }
    for (const QString &folder : folders)
        if (durability == Durability::Synced && !syncFolder(folder))
            return failure(withPath(messages().cannotWrite, folder));
    return {};
}

std::vector<QString> outsideChanges(const FolderSave &save)
{
    std::vector<QString> paths;
    for (const auto *targets : {&save.writes, &save.removals})
        for (const FolderSave::Target &target : *targets)
            if (standing(save.folder, target) == Standing::Foreign)
                paths.push_back(target.path);
    return paths;
}

Result<> commitFolderSave(const FolderSave &save, OutsideChanges outside, Durability durability)
{
    std::vector<bool> isRight(save.writes.size());
    for (std::size_t i = 0; i < save.writes.size(); ++i) {
        const Standing found = standing(save.folder, save.writes[i]);
        if (found == Standing::Foreign && outside == OutsideChanges::Refuse)
            return FolderWriter::changedOutside(save.folder);
        isRight[i] = found == Standing::Right;
    }
    if (outside == OutsideChanges::Refuse) {
        for (const FolderSave::Target &target : save.removals)
            if (standing(save.folder, target) == Standing::Foreign)
                return FolderWriter::changedOutside(save.folder);
    }

    if (Result<> made = FolderWriter::makeFolders(save.folder, durability); !made)
        return made;
    removeUnfinishedOwnFiles(save.folder); // of a save that was killed
    if (Result<> renamed = FolderWriter::applyRenames(save, durability); !renamed)
        return renamed;
    FileBatch batch(FolderWriter::messages(), durability);
    for (std::size_t i = 0; i < save.writes.size(); ++i) {
        if (isRight[i])
            continue;
        const FolderSave::Target &target = save.writes[i];
        Result<> added = batch.addChanged(save.folder + u'/' + target.path, target.bytes);
        if (!added)
            return added;
    }
    // What others put there while this was being written is not known either.
    if (outside == OutsideChanges::Refuse && !outsideChanges(save).empty())
        return FolderWriter::changedOutside(save.folder);
    if (Result<> written = batch.commit(); !written)
        return written;
    return FolderWriter::applyRemovals(save, durability);
}

FolderStore::FolderStore(const QString &folder)
    : m_folder(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()))
{
}

Result<std::unique_ptr<core::Project>> FolderStore::load()
{
    Result<LoadedProject> loaded = loadProjectFiles(m_folder);
    if (!loaded)
        return loaded.asFailure();
    learn(loaded->files);
    return std::move(loaded->project);
}

Result<std::unique_ptr<core::Project>> FolderStore::load(std::span<const ProjectFile> files)
{
    Result<LoadedProject> loaded = loadProjectFiles(m_folder, files);
    if (!loaded)
        return loaded.asFailure();
    learn(loaded->files);
    return std::move(loaded->project);
}

void FolderStore::learn(std::span<const LoadedFile> files)
{
    m_known.clear();
    m_base.clear();
    m_strayObjects.clear();
    m_strayCategories.clear();
    m_known.reserve(qsizetype(files.size()));
    m_base.reserve(qsizetype(files.size()));
    for (const LoadedFile &file : files) {
        m_known.insert(file.path, {file.stamp});
        m_base.insert(file.path, file.bytes);
        addStray(file.id, file.path);
    }
}

void FolderStore::addStray(const core::ContentId &id, const QString &path)
{
    const bool isObject = path.startsWith(objectsFolder() + u'/');
    if (!id.isNull() && path != (isObject ? objectPath(id) : categoryPath(id)))
        (isObject ? m_strayObjects : m_strayCategories).emplace(id, path);
}

void FolderStore::addWrite(FolderSave &save, const QString &path, const QByteArray &bytes,
                           const Strays &strays, const core::ContentId &id) const
{
    std::vector<FileStamp> stamps = known(path);
    if (const auto stray = strays.find(id); stray != strays.end()) {
        save.renames.emplace_back(stray->second, path);
        append(stamps, known(stray->second));
    }
    save.writes.push_back({path, bytes, std::move(stamps)});
    addRemovals(save, {}, strays, id); // where the name was taken, so that it was not renamed
}

/// Removes all files that are known of what has the id: under the path, and under other names.
void FolderStore::addRemovals(FolderSave &save, const QString &path, const Strays &strays,
                              const core::ContentId &id) const
{
    addRemoval(save, path);
    const auto [first, last] = strays.equal_range(id);
    for (auto stray = first; stray != last; ++stray)
        addRemoval(save, stray->second);
}

void FolderStore::addRemoval(FolderSave &save, const QString &path) const
{
    if (m_known.contains(path))
        save.removals.push_back({path, {}, known(path)});
}

FolderSave FolderStore::prepare(const core::Project &project) const
{
    FolderSave save;
    save.folder = m_folder;
    std::set<QString> current;
    FolderSave::Target records;
    serializeProject(project, [&](const QString &path, const QByteArray &bytes) {
        current.insert(path);
        if (path == recordsPath())
            records = {path, bytes, known(path)};
        else
            save.writes.push_back({path, bytes, known(path)});
    });
    save.writes.push_back(std::move(records)); // last of all

    std::map<QString, QString> renames; // the name that a file should have, and the one it has
    for (const auto *strays : {&m_strayObjects, &m_strayCategories}) {
        const bool isObject = strays == &m_strayObjects;
        for (const auto &[id, path] : *strays) {
            const QString proper = isObject ? objectPath(id) : categoryPath(id);
            if (current.contains(proper))
                renames.emplace(proper, path);
        }
    }
    for (FolderSave::Target &target : save.writes) {
        const auto rename = renames.find(target.path);
        if (rename == renames.end())
            continue;
        save.renames.emplace_back(rename->second, target.path);
        append(target.known, known(rename->second));
    }
    for (auto known = m_known.keyBegin(); known != m_known.keyEnd(); ++known)
        if (!current.contains(*known))
            addRemoval(save, *known);
    std::sort(save.removals.begin(), save.removals.end(),
              [](const auto &a, const auto &b) { return a.path < b.path; });
    return save;
}

FolderSave FolderStore::prepare(const core::Project &project, const core::ChangeSet &changes) const
{
    // A folder that is gone needs everything, should the user want it there again.
    if (m_known.contains(recordsPath()) && !isThere(m_folder + u'/' + recordsPath()))
        return prepare(project);
    FolderSave save;
    save.folder = m_folder;
    for (const auto &[id, change] : changes.objects()) {
        if (const core::ContentObject *object = project.find(id)) {
            addWrite(save, objectPath(id), serializeObject(*object), m_strayObjects, id);
        } else {
            addRemovals(save, objectPath(id), m_strayObjects, id);
        }
    }
    for (const auto &[id, change] : changes.categories()) {
        if (const core::Category *category = project.taxonomy().find(id)) {
            addWrite(save, categoryPath(id), serializeCategory(*category), m_strayCategories, id);
        } else {
            addRemovals(save, categoryPath(id), m_strayCategories, id);
        }
    }
    if (changes.touchesAnyRecord() || !m_known.contains(recordsPath()))
        save.writes.push_back(
            {recordsPath(), serializeProjectRecords(project), known(recordsPath())});
    return save;
}

void FolderStore::saved(const FolderSave &save)
{
    m_maybeOwn.clear();
    for (const FolderSave::Target &target : save.removals)
        forget(target.path);
    for (const auto &[from, to] : save.renames)
        forget(from);
    for (const FolderSave::Target &target : save.writes) {
        m_known.insert(target.path, {FileStamp::of(target.bytes)});
        m_base.insert(target.path, target.bytes);
    }
}

void FolderStore::failed(const FolderSave &save)
{
    for (const FolderSave::Target &target : save.writes) {
        std::vector<FileStamp> stamps = target.known;
        append(stamps, {FileStamp::of(target.bytes)});
        m_known.insert(target.path, stamps);
        m_maybeOwn.insert(target.path, target.bytes);
    }
    for (const FolderSave::Target &target : save.removals)
        m_maybeOwn.insert(target.path, QByteArray());
    for (const auto &[from, to] : save.renames)
        m_maybeOwn.insert(from, QByteArray());
}

void FolderStore::adopt(const QString &path, const core::ContentId &id, const QByteArray &bytes)
{
    forget(path);
    m_known.insert(path, {FileStamp::of(bytes)});
    m_base.insert(path, bytes);
    addStray(id, path);
}

void FolderStore::forget(const QString &path)
{
    m_known.remove(path);
    m_base.remove(path);
    m_maybeOwn.remove(path);
    dropStrays(path);
}

void FolderStore::dropStrays(const QString &path)
{
    for (Strays *strays : {&m_strayObjects, &m_strayCategories})
        std::erase_if(*strays, [&path](const auto &stray) { return stray.second == path; });
}

} // namespace vl::app
