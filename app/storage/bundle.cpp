#include "app/storage/bundle.h"

#include "app/base/sha256.h"
#include "app/storage/projectfolder.h"
#include "app/storage/projectpaths.h"
#include "app/storage/readahead.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <set>

namespace vl::app {

namespace {

struct Bundle
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::Bundle)

public:
    static WriteMessages messages()
    {
        const QString message = tr("Could not write the project file: %1");
        return {message, message};
    }
};

QByteArray recordsName()
{
    return recordsPath().toUtf8();
}

} // namespace

Result<ReadBundle> readBundle(const QString &path)
{
    FileIdentity identity = FileIdentity::of(path);
    Result<QByteArray> bytes =
        readRegularFile(path, Bundle::tr("Could not open the project file: %1"), maxBundleBytes);
    if (!bytes)
        return bytes.asFailure();
    if (identity != FileIdentity::of(path))
        identity = {};
    std::optional<Archive> archive = Archive::parse(*std::move(bytes));
    if (!archive || !archive->find(recordsName()) || !archive->isSound())
        return failure(withPath(Bundle::tr("Not a valid Ivorel project file: %1"), path));
    return ReadBundle{*std::move(archive), identity};
}

ProjectFiles projectFilesIn(const Archive &archive)
{
    ProjectFiles files;
    for (const Archive::Entry &entry : archive.entries()) {
        if (!isReadPath(entry.name))
            continue;
        std::optional<QByteArray> bytes = archive.content(entry);
        if (!bytes)
            continue;    // cannot be: the archive was found sound
        bytes->detach(); // from the archive, which goes away
        files.push_back({QString::fromUtf8(entry.name), *std::move(bytes)});
    }
    return files;
}

Result<BundleSource> BundleSource::ofFolder(const QString &folder)
{
    Result<std::vector<QByteArray>> paths = listProjectFolder(folder);
    if (!paths)
        return paths.asFailure();
    if (!std::binary_search(paths->begin(), paths->end(), recordsName()))
        return failure(withPath(
            Bundle::tr("The folder is not an Ivorel project (no project.json): %1"), folder));
    BundleSource source;
    source.m_folder = folder;
    source.m_items.reserve(paths->size());
    for (QByteArray &path : *paths)
        source.m_items.push_back({std::move(path)});
    return source;
}

Result<BundleSource> BundleSource::ofFiles(const QString &folder, std::vector<QByteArray> paths,
                                           ProjectFiles files)
{
    BundleSource source;
    source.m_folder = folder;
    source.m_files = std::move(files);
    for (QByteArray &path : paths)
        source.m_items.push_back({std::move(path)});
    for (const ProjectFile &file : source.m_files)
        source.m_items.push_back({file.path.toUtf8(), int(&file - source.m_files.data())});
    std::sort(source.m_items.begin(), source.m_items.end(),
              [](const Item &a, const Item &b) { return a.path < b.path; });
    if (const Result<> checked = source.checkItems(); !checked)
        return checked.asFailure();
    return source;
}

Result<BundleSource> BundleSource::ofProject(ProjectFiles files, const QString &folder,
                                             const QStringList &readPaths,
                                             Repositories repositories)
{
    BundleSource source;
    source.m_folder = folder;
    source.m_files = std::move(files);
    std::set<QByteArray> own;
    for (const ProjectFile &file : source.m_files) {
        const QByteArray path = file.path.toUtf8();
        source.m_items.push_back({path, int(source.m_items.size())});
        own.insert(path);
    }
    if (!own.contains(recordsName()))
        return failure(withPath(
            Bundle::tr("The folder is not an Ivorel project (no project.json): %1"), folder));
    if (!folder.isEmpty()) {
        Result<std::vector<QByteArray>> paths = listProjectFolder(folder, repositories);
        if (!paths)
            return paths.asFailure();
        std::set<QByteArray> read;
        for (const QString &path : readPaths)
            read.insert(path.toUtf8());
        for (QByteArray &path : *paths) {
            if (own.contains(path))
                continue;
            // What came later under a name of its own stays where it is; at another place it would
            // be read as well.
            const bool isElsewhere = repositories == Repositories::LeaveOut;
            if (isOwnPath(path) || read.contains(path) || (isElsewhere && isReadPath(path)))
                source.m_gone.append(pathInFolder(folder, path));
            // What a sync client left beside an object keeps a project from being read, and a
            // project that was open by then is copied without it.
            else if (repositories == Repositories::Keep || !isReadPath(path))
                source.m_items.push_back({std::move(path)});
        }
    }
    std::sort(source.m_items.begin(), source.m_items.end(),
              [](const Item &a, const Item &b) { return a.path < b.path; });
    if (const Result<> checked = source.checkItems(); !checked)
        return checked.asFailure();
    return source;
}

/// What is packed here must be what the reader takes back.
Result<> BundleSource::checkItems() const
{
    const QString unreadable = Bundle::tr("Could not read a project file: %1");
    std::vector<QByteArrayView> names;
    names.reserve(m_items.size());
    for (const Item &item : m_items) {
        if (!isSafeEntryName(item.path))
            return failure(withPath(unreadable, pathInFolder(m_folder, item.path)));
        names.emplace_back(item.path);
    }
    if (!areDistinctNames(std::move(names)))
        return failure(withPath(unreadable, m_folder));
    return {};
}

void BundleSource::leaveOut(const QString &path)
{
    const QString inside = QFileInfo(m_folder).canonicalFilePath() + QLatin1Char('/');
    if (!QFileInfo(path).canonicalFilePath().startsWith(inside))
        return;
    std::erase_if(m_items, [&](const Item &item) {
        return item.file < 0 && item.path != recordsName()
               && areSameFile(pathInFolder(m_folder, item.path), path);
    });
}

Result<> BundleSource::packInto(const ArchiveWriter::Sink &sink, const QString &path) const
{
    const auto tooLarge = [&path] {
        return failure(withPath(
            Bundle::tr("The project has more than one file can hold (65535 files, 4 GiB); save it "
                       "as a folder instead. The file was left as it is: %1"),
            path));
    };
    if (qint64(m_items.size()) > ArchiveWriter::maxEntries)
        return tooLarge();
    std::vector<QByteArray> inFolder;
    for (const Item &item : m_items) {
        if (item.file < 0)
            inFolder.push_back(item.path);
    }
    ReadAhead reader(m_folder, std::move(inFolder));
    ArchiveWriter writer(sink);
    for (const Item &item : m_items) {
        const Result<QByteArray> bytes =
            item.file < 0 ? reader.next() : Result<QByteArray>(m_files[size_t(item.file)].bytes);
        if (!bytes)
            return bytes.asFailure();
        if (!writer.fits(item.path, bytes->size()))
            return tooLarge();
        if (Result<> added = writer.add(item.path, *bytes); !added)
            return added;
    }
    return writer.finish();
}

BundleWriter::BundleWriter(const QString &path)
    : m_path(path)
    , m_file(path, Bundle::messages())
{
}

Result<> BundleWriter::begin()
{
    if (!makeFolder(QFileInfo(m_path).absolutePath()))
        return failure(withPath(Bundle::tr("Could not create the folder for: %1"), m_path));
    return m_file.open();
}

Result<> BundleWriter::write(const BundleSource &source)
{
    if (Result<> begun = begin(); !begun)
        return begun;
    Sha256 sum;
    const auto sink = [&](QByteArrayView bytes) {
        sum.add(bytes);
        return m_file.write(bytes);
    };
    if (Result<> packed = source.packInto(sink, m_path); !packed)
        return packed;
    m_sha256 = sum.finish();
    return m_file.commit();
}

Result<> BundleWriter::write(QByteArrayView bytes)
{
    if (Result<> begun = begin(); !begun)
        return begun;
    if (Result<> written = m_file.write(bytes); !written)
        return written;
    m_sha256 = Sha256::of(bytes);
    return m_file.commit();
}

std::optional<KnownBundle> BundleWriter::written() const
{
    if (!m_file.isInPlace())
        return std::nullopt;
    return KnownBundle{m_sha256, FileIdentity::of(m_path)};
}

Result<QByteArray> packFolder(const QString &folder)
{
    const Result<BundleSource> source = BundleSource::ofFolder(folder);
    if (!source)
        return source.asFailure();
    QByteArray bytes;
    const auto sink = [&bytes](QByteArrayView piece) {
        bytes.append(piece);
        return Result<>();
    };
    if (const Result<> packed = source->packInto(sink, folder); !packed)
        return packed.asFailure();
    return bytes;
}

Result<> packFolder(const QString &folder, const QString &bundlePath)
{
    Result<BundleSource> source = BundleSource::ofFolder(folder);
    if (!source)
        return source.asFailure();
    if (FileIdentity::of(bundlePath).isFile())
        source->leaveOut(bundlePath);
    BundleWriter writer(bundlePath);
    return writer.write(*source);
}

Result<> writeBundle(const QString &path, const QByteArray &bytes)
{
    BundleWriter writer(path);
    return writer.write(bytes);
}

FolderComparison compareFolder(const QString &folder, const Archive &archive)
{
    const Result<BundleSource> source = BundleSource::ofFolder(folder);
    if (!source)
        return FolderComparison::Unreadable;
    // Packed into nothing: the pieces are held against the bytes there are. All of them even after
    // the first difference, since that alone tells whether the folder can be packed.
    QByteArrayView rest = archive.bytes();
    bool same = true;
    const auto sink = [&](QByteArrayView piece) {
        same = same && rest.startsWith(piece);
        if (same)
            rest = rest.sliced(piece.size());
        return Result<>();
    };
    if (!source->packInto(sink, folder))
        return FolderComparison::Unreadable;
    return same && rest.isEmpty() ? FolderComparison::Same : FolderComparison::Different;
}

} // namespace vl::app
