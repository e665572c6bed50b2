#include "app/storage/outsidescan.h"

#include "app/base/sha256.h"
#include "app/storage/categorycodec.h"
#include "app/storage/json/jsonparser.h"
#include "app/storage/kindcodecs.h"
#include "app/storage/projectfolder.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectreader.h"
#include "app/storage/workingcopy.h"

#include <QtConcurrent/QtConcurrentMap>
#include <QtCore/QCoreApplication>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <algorithm>
#include <map>
#include <set>

namespace vl::app {

namespace {

struct ScanText
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::OutsideScan)
};

/// A file as it is on disk now, where that is not what the base holds.
struct Difference
{
    QString path;
    std::optional<QByteArray> remote;
};

constexpr qsizetype filesPerPiece = 512;
constexpr qint64 sampleBytes = 65536;

bool isObjectPath(const QString &path)
{
    return path.startsWith(objectsFolder() + u'/');
}

QString properPath(const QString &path, const core::ContentId &id)
{
    return isObjectPath(path) ? objectPath(id) : categoryPath(id);
}

/// The id in the name of a file that the program named itself; null for others.
core::ContentId idInName(const QString &path)
{
    const QString name = path.mid(path.indexOf(u'/') + 1).chopped(5);
    return name.size() == 36 ? core::ContentId::fromString(name) : core::ContentId();
}

/// The id of what the bytes describe; nothing when that is no whole object, category or record.
std::optional<core::ContentId> idIn(JsonParser &parser, const QString &path,
                                    const QByteArray &bytes)
{
    const std::optional<JsonValue> json = parser.parseObject(bytes);
    if (!json)
        return std::nullopt;
    if (path == recordsPath())
        return core::ContentId();
    if (isObjectPath(path)) {
        const std::unique_ptr<core::ContentObject> object = readObject(*json);
        return object ? std::optional(object->id()) : std::nullopt;
    }
    core::Category category;
    return readCategory(*json, category) == CategoryFault::None ? std::optional(category.id)
                                                                : std::nullopt;
}

/// The ids in known files that are there under another name than their id. Only the bytes tell: so
/// it is asked for when a file comes that may be a second one of its id.
std::set<core::ContentId> idsUnderOtherNames(JsonParser &parser,
                                             const std::vector<Difference> &differences,
                                             const BaseFiles &base,
                                             const std::set<QString> &remotePaths)
{
    std::map<QString, const QByteArray *> strays;
    for (auto file = base.cbegin(); file != base.cend(); ++file)
        if (file.key() != recordsPath() && idInName(file.key()).isNull()
            && remotePaths.contains(file.key()))
            strays.emplace(file.key(), &*file);
    for (const Difference &difference : differences)
        if (const auto stray = strays.find(difference.path); stray != strays.end())
            stray->second = difference.remote ? &*difference.remote : nullptr;
    std::set<core::ContentId> ids;
    for (const auto &[path, bytes] : strays)
        if (const auto id = bytes ? idIn(parser, path, *bytes) : std::nullopt)
            ids.insert(*id);
    return ids;
}

/// Tells files that are gone from those whose object or category has come to stand in another file,
/// which is no deletion: there it is compared with what it was before.
void followRenames(OutsideState &state, const std::set<QString> &remotePaths)
{
    std::map<QString, OutsideFile *> arrived; // by the path that their id should have
    for (OutsideFile &file : state.files)
        if (file.remote && !file.base && !file.isCopy && !file.id.isNull())
            arrived.emplace(properPath(file.path, file.id), &file);
    for (OutsideFile &file : state.files) {
        if (file.remote || file.id.isNull())
            continue;
        const QString proper = properPath(file.path, file.id);
        if (const auto found = arrived.find(proper); found != arrived.end()) {
            found->second->base = file.base;
            found->second->baseId = file.baseId;
        } else if (proper == file.path || !remotePaths.contains(proper)) {
            continue;
        }
        file.isCopy = true;
        --state.goneFiles;
    }
}

/// Sorts the differences into what can be taken over and what cannot, and finds second versions.
void judge(OutsideState &state, std::vector<Difference> differences, const BaseFiles &base,
           const std::set<QString> &remotePaths)
{
    std::sort(differences.begin(), differences.end(),
              [](const Difference &a, const Difference &b) { return a.path < b.path; });
    JsonParser parser;
    std::set<core::ContentId> seen;
    const bool hasNew =
        std::any_of(differences.begin(), differences.end(), [&base](const Difference &difference) {
            return difference.remote && !base.contains(difference.path);
        });
    if (hasNew)
        seen = idsUnderOtherNames(parser, differences, base, remotePaths);
    for (Difference &difference : differences) {
        OutsideFile file;
        file.path = difference.path;
        if (const auto known = base.constFind(file.path); known != base.constEnd()) {
            file.base = *known;
            file.baseId = idIn(parser, file.path, *known).value_or(idInName(file.path));
        }
        if (difference.remote) {
            const auto id = idIn(parser, file.path, *difference.remote);
            if (!id) {
                state.unsettled.append(file.path);
                continue;
            }
            file.id = *id;
        } else {
            file.id = file.baseId;
        }
        if (difference.remote && !file.id.isNull()) {
            const QString proper = properPath(file.path, file.id);
            file.isCopy = (proper != file.path && remotePaths.contains(proper))
                          || (!file.base && !seen.insert(file.id).second);
        }
        file.remote = std::move(difference.remote);
        state.files.push_back(std::move(file));
    }
    followRenames(state, remotePaths);
}

FileStamp sampleOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {-1, 0};
    const qint64 size = file.size();
    QByteArray bytes;
    for (const qint64 from : {qint64(0), size / 2, size - sampleBytes}) {
        if (file.seek(std::max<qint64>(0, from)))
            bytes += file.read(sampleBytes);
    }
    FileStamp stamp = FileStamp::of(bytes);
    stamp.size = size;
    return stamp;
}

void scanMedia(OutsideState &state, const QString &folder,
               const std::shared_ptr<const MediaStamps> &before)
{
    auto stamps = std::make_shared<MediaStamps>();
    QDirIterator it(folder + u'/' + assetsFolder(), QDir::Files | QDir::NoSymLinks,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString full = it.next();
        if (isUnfinishedFileName(it.fileName()))
            continue;
        const QString path = full.mid(folder.size() + 1);
        MediaStamp stamp{FileIdentity::of(full), {}};
        const auto known = before ? before->constFind(path) : MediaStamps::const_iterator();
        const bool isKnown = before && known != before->constEnd();
        if (isKnown && known->identity == stamp.identity)
            stamp.sample = known->sample;
        else
            stamp.sample = sampleOf(full);
        if (before && !(isKnown && known->sample == stamp.sample))
            (isKnown ? state.media : state.addedMedia).append(path);
        stamps->insert(path, stamp);
    }
    if (before) {
        for (auto known = before->keyBegin(); known != before->keyEnd(); ++known)
            if (!stamps->contains(*known))
                state.media.append(*known);
    }
    state.media += state.addedMedia;
    state.media.sort();
    state.mediaStamps = std::move(stamps);
}

} // namespace

PendingScan::~PendingScan() = default;

quint64 diskSignature(const QString &path)
{
    const auto signatureOf = [](const QString &file) {
        const FileIdentity identity = FileIdentity::of(file);
        return quint64(
            qHashMulti(0, file, identity.node, identity.size, identity.modified, identity.changed));
    };
    if (!QFileInfo(path).isDir())
        return signatureOf(path);
    const Result<QStringList> listed = listReadPaths(path);
    if (!listed)
        return 0;
    quint64 signature = 1;
    for (const QString &file : *listed)
        signature = signature * 31 + signatureOf(path + u'/' + file);
    QDirIterator assets(path + u'/' + assetsFolder(), QDir::Files | QDir::NoSymLinks,
                        QDirIterator::Subdirectories);
    while (assets.hasNext())
        signature += signatureOf(assets.next()); // in whatever order they come
    return signature;
}

OutsideState scanFolder(const FolderScan &scan)
{
    const QString &folder = scan.folder;
    const BaseFiles &base = scan.base;
    const auto isOwn = [&scan](const QString &path, const QByteArray &bytes) {
        const auto known = scan.base.constFind(path);
        if (known != scan.base.constEnd() && *known == bytes)
            return true;
        const auto maybe = scan.maybeOwn.constFind(path);
        return maybe != scan.maybeOwn.constEnd() && !maybe->isNull() && *maybe == bytes;
    };
    OutsideState state;
    state.knownFiles = base.size();
    if (!QFileInfo(folder).isDir()) {
        state.place = OutsideState::Place::Missing;
        state.goneFiles = base.size();
        return state;
    }
    const Result<QStringList> listed = listReadPaths(folder);
    if (!listed) {
        state.place = OutsideState::Place::Unreadable;
        state.message = listed.message();
        return state;
    }

    struct Piece
    {
        qsizetype first = 0;
        std::vector<Difference> found;
        std::vector<QString> gone; ///< listed, then not there any more
    };
    QList<Piece> pieces;
    for (qsizetype first = 0; first < listed->size(); first += filesPerPiece)
        pieces.append({first, {}, {}});
    const auto work = [&](Piece &piece) {
        const qsizetype end = std::min(piece.first + filesPerPiece, listed->size());
        for (qsizetype i = piece.first; i < end; ++i) {
            const QString &path = listed->at(i);
            Result<QByteArray> bytes = readRegularFile(folder + u'/' + path, QString());
            if (!bytes) {
                piece.gone.push_back(path);
                continue;
            }
            if (!isOwn(path, *bytes))
                piece.found.push_back({path, *std::move(bytes)});
        }
    };
    if (pieces.size() > 1)
        QtConcurrent::blockingMap(pieces, work);
    else
        std::for_each(pieces.begin(), pieces.end(), work);

    std::set<QString> paths(listed->begin(), listed->end());
    std::vector<Difference> differences;
    for (Piece &piece : pieces) {
        std::move(piece.found.begin(), piece.found.end(), std::back_inserter(differences));
        for (const QString &path : piece.gone) {
            // There is something, but nothing that can be read.
            if (QFileInfo::exists(folder + u'/' + path))
                state.unsettled.append(path);
            else
                paths.erase(path);
        }
    }
    for (auto known = base.keyBegin(); known != base.keyEnd(); ++known) {
        const auto maybe = scan.maybeOwn.constFind(*known);
        const bool isOwnRemoval = maybe != scan.maybeOwn.constEnd() && maybe->isNull();
        if (!paths.contains(*known) && !isOwnRemoval) {
            differences.push_back({*known, std::nullopt});
            ++state.goneFiles;
        }
    }
    judge(state, std::move(differences), base, paths);
    scanMedia(state, folder, scan.media);
    return state;
}

OutsideState scanBundle(const QString &bundlePath, const KnownBundle &known,
                        const ProjectFiles &base, const QString &workingFolder)
{
    OutsideState state;
    state.knownFiles = qsizetype(base.size());
    const FileIdentity identity = FileIdentity::of(bundlePath);
    if (identity == known.identity && identity.isFile())
        return state;
    if (!QFileInfo::exists(bundlePath)) {
        state.place = OutsideState::Place::Missing;
        state.goneFiles = state.knownFiles;
        return state;
    }
    const Result<ReadBundle> read = readBundle(bundlePath);
    if (!read) {
        state.place = OutsideState::Place::Unreadable;
        state.message = read.message();
        return state;
    }
    state.bundle = KnownBundle{Sha256::of(read->archive.bytes()), read->identity};
    if (state.bundle->sha256 == known.sha256)
        return state;

    BaseFiles baseFiles;
    baseFiles.reserve(qsizetype(base.size()));
    for (const ProjectFile &file : base)
        baseFiles.insert(file.path, file.bytes);
    auto files = std::make_shared<ProjectFiles>(projectFilesIn(read->archive));
    std::sort(files->begin(), files->end(),
              [](const ProjectFile &a, const ProjectFile &b) { return a.path < b.path; });
    std::set<QString> paths;
    std::vector<Difference> differences;
    for (const ProjectFile &file : *files) {
        paths.insert(file.path);
        const auto before = baseFiles.constFind(file.path);
        if (before == baseFiles.constEnd() || *before != file.bytes)
            differences.push_back({file.path, file.bytes});
    }
    for (const ProjectFile &file : base) {
        if (!paths.contains(file.path)) {
            differences.push_back({file.path, std::nullopt});
            ++state.goneFiles;
        }
    }
    judge(state, std::move(differences), baseFiles, paths);
    state.bundleFiles = std::move(files);
    for (const Archive::Entry &entry : read->archive.entries()) {
        if (isReadPath(entry.name))
            continue;
        const std::optional<QByteArray> bytes = read->archive.content(entry);
        if (bytes && !fileHolds(pathInFolder(workingFolder, entry.name), *bytes))
            state.media.append(QString::fromUtf8(entry.name));
    }
    return state;
}

Result<> takeOverMedia(const QString &bundlePath, const QByteArray &sha256,
                       const QString &workingFolder)
{
    const Result<ReadBundle> read = readBundle(bundlePath);
    if (!read)
        return read.asFailure();
    if (Sha256::of(read->archive.bytes()) != sha256)
        return failure(ScanText::tr("The project file is not readable right now; try again."));
    const WorkingCopy copy = WorkingCopy::at(bundlePath, workingFolder);
    bool isTouched = false;
    for (const Archive::Entry &entry : read->archive.entries()) {
        if (isReadPath(entry.name))
            continue;
        const std::optional<QByteArray> bytes = read->archive.content(entry);
        const QString path = pathInFolder(workingFolder, entry.name);
        if (!bytes || fileHolds(path, *bytes))
            continue;
        if (!std::exchange(isTouched, true) && !copy.removeMarker())
            return copy.prepareFailure();
        const QString message = ScanText::tr("Could not refresh the project's working folder: %1");
        if (!makeFolder(path.left(path.lastIndexOf(u'/'))))
            return failure(withPath(message, workingFolder));
        if (Result<> written = writeFile(path, *bytes, {message, message}); !written)
            return written;
    }
    return {};
}

} // namespace vl::app
