#include "app/storage/projectreader.h"

#include "app/base/files.h"
#include "app/storage/categorycodec.h"
#include "app/storage/json/jsonparser.h"
#include "app/storage/kindcodecs.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectrecordscodec.h"

#include <QtConcurrent/QtConcurrentMap>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>
#include <QtCore/QThreadPool>

#include <algorithm>
#include <atomic>
#include <filesystem>

namespace vl::app {

namespace {

/// From this many files on the work is spread over the cores.
constexpr std::size_t parallelFrom = 64;
/// How many read from the disk at a time: files that are not in the machine's memory come together
/// then, and not one after another.
constexpr int diskWorkers = 8;
/// Files that a worker takes at a time.
constexpr std::size_t batchSize = 16;

/// A file to be read, from disk or, when it has bytes, from memory.
struct SourceFile
{
    QString path; ///< relative to the project folder
    const QByteArray *bytes = nullptr;
};

struct Source
{
    QString folder; ///< absolute
    std::vector<SourceFile> objects;
    std::vector<SourceFile> categories;
    std::vector<SourceFile> records; ///< "project.json", or nothing when there is none

    QString fullPath(const SourceFile &file) const { return folder + u'/' + file.path; }
};

/// What became of one object's file.
struct ObjectSlot
{
    std::unique_ptr<core::ContentObject> object;
    FileStamp stamp;
    QByteArray bytes;
    QString message; ///< why there is no object
};

class ProjectReader
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ProjectReader)

public:
    explicit ProjectReader(Source source)
        : m_source(std::move(source))
    {
    }

    Result<LoadedProject> load();

    static Result<Source> listFolder(const QString &folder);
    static Source listFiles(const QString &folder, std::span<const ProjectFile> files);

private:
    static Result<std::vector<SourceFile>> list(const QString &folder, const QString &subfolder);

    /// Reads and parses the file; `bytes` becomes what it holds.
    Result<JsonValue> readJson(JsonParser &parser, const SourceFile &file, QByteArray &bytes) const;
    ObjectSlot readSlot(JsonParser &parser, const SourceFile &file) const;
    Result<> readObjects();
    Result<> readCategory(JsonParser &parser, const SourceFile &file);
    Result<> readRecords(JsonParser &parser, const SourceFile &file);
    Failure duplicate(const core::ContentId &id, const SourceFile &file) const;

    Source m_source;
    LoadedProject m_loaded;
};

bool isRead(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)
           && !fileName.startsWith(u'.');
}

void sortByPath(std::vector<SourceFile> &files)
{
    std::sort(files.begin(), files.end(),
              [](const SourceFile &a, const SourceFile &b) { return a.path < b.path; });
}

/// Calls `work(parser, index)` for 0, 1, … on so many threads until it gives false: then for every
/// index below, and for some above. Gives the first index for which it was false, or the count.
template<typename Work>
std::size_t forEachIndex(std::size_t count, int workers, const Work &work)
{
    std::atomic<std::size_t> next = 0;
    std::atomic<std::size_t> stop = count;
    const auto run = [&](int) {
        JsonParser parser;
        for (;;) {
            const std::size_t first = next.fetch_add(batchSize);
            const std::size_t last = std::min(first + batchSize, count);
            for (std::size_t i = first; i < last; ++i) {
                if (i >= stop)
                    return;
                if (work(parser, i))
                    continue;
                std::size_t before = stop;
                while (i < before && !stop.compare_exchange_weak(before, i)) {
                }
            }
            if (last == count || first >= count)
                return;
        }
    };
    if (count < parallelFrom || workers <= 1) {
        run(0);
    } else {
        QThreadPool pool;
        pool.setMaxThreadCount(workers);
        QList<int> numbers(workers);
        QtConcurrent::blockingMap(&pool, numbers, run);
    }
    return stop;
}

Result<std::vector<SourceFile>> ProjectReader::list(const QString &folder, const QString &subfolder)
{
    std::vector<SourceFile> files;
    const QString path = folder + u'/' + subfolder;
#ifdef Q_OS_WIN
    const std::filesystem::path nativePath(path.toStdWString());
#else
    const std::filesystem::path nativePath(QFile::encodeName(path).toStdString());
#endif
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::symlink_status(nativePath, error);
    if (status.type() == std::filesystem::file_type::not_found)
        return files;
    std::filesystem::directory_iterator at(nativePath, error);
    for (; !error && at != std::filesystem::directory_iterator(); at.increment(error)) {
        const auto native = at->path().filename().native();
#ifdef Q_OS_WIN
        const QString name = QString::fromStdWString(native);
#else
        const QByteArray bytes = QByteArray::fromStdString(native);
        const QString name = QFile::decodeName(bytes);
        // A name in another encoding is none of a project's, nor can the file be reached by it.
        if (QFile::encodeName(name) != bytes)
            continue;
#endif
        std::error_code unknown;
        if (isRead(name) && at->is_regular_file(unknown))
            files.push_back({subfolder + u'/' + name, nullptr});
    }
    if (error)
        return failure(withPath(tr("Cannot read file: %1"), path));
    sortByPath(files);
    return files;
}

Result<Source> ProjectReader::listFolder(const QString &folder)
{
    const QFileInfo info(folder);
    Source source{.folder = QDir::cleanPath(info.absoluteFilePath()),
                  .objects = {},
                  .categories = {},
                  .records = {}};
    if (!info.isDir())
        return failure(withPath(tr("The project folder does not exist: %1"), source.folder));
    Result<std::vector<SourceFile>> objects = list(source.folder, objectsFolder());
    if (!objects)
        return objects.asFailure();
    source.objects = *std::move(objects);
    Result<std::vector<SourceFile>> categories = list(source.folder, taxonomyFolder());
    if (!categories)
        return categories.asFailure();
    source.categories = *std::move(categories);
    // A link to nowhere is a file that cannot be read.
    if (isThere(source.folder + u'/' + recordsPath()))
        source.records.push_back({recordsPath(), nullptr});
    return source;
}

Source ProjectReader::listFiles(const QString &folder, std::span<const ProjectFile> files)
{
    Source source{.folder = QDir::cleanPath(QFileInfo(folder).absoluteFilePath()),
                  .objects = {},
                  .categories = {},
                  .records = {}};
    for (const ProjectFile &file : files) {
        const qsizetype slash = file.path.indexOf(u'/');
        const QString subfolder = file.path.left(slash);
        const QString name = file.path.mid(slash + 1);
        if (file.path == recordsPath())
            source.records.push_back({file.path, &file.bytes});
        else if (slash < 0 || name.contains(u'/') || !isRead(name))
            continue;
        else if (subfolder == objectsFolder())
            source.objects.push_back({file.path, &file.bytes});
        else if (subfolder == taxonomyFolder())
            source.categories.push_back({file.path, &file.bytes});
    }
    sortByPath(source.objects);
    sortByPath(source.categories);
    return source;
}

Result<JsonValue> ProjectReader::readJson(JsonParser &parser, const SourceFile &file,
                                          QByteArray &bytes) const
{
    Result<QByteArray> read =
        file.bytes ? Result<QByteArray>(*file.bytes)
                   : readRegularFile(m_source.fullPath(file), tr("Cannot read file: %1"));
    if (!read)
        return read.asFailure();
    bytes = *std::move(read);
    const std::optional<JsonValue> json = parser.parseObject(bytes);
    if (!json)
        return failure(withPath(tr("Invalid JSON in file: %1"), m_source.fullPath(file)));
    return *json;
}

ObjectSlot ProjectReader::readSlot(JsonParser &parser, const SourceFile &file) const
{
    ObjectSlot slot;
    const Result<JsonValue> json = readJson(parser, file, slot.bytes);
    if (!json) {
        slot.message = json.message();
        return slot;
    }
    slot.stamp = FileStamp::of(slot.bytes);
    slot.object = readObject(*json);
    if (!slot.object)
        slot.message = withPath(tr("Malformed object file: %1"), m_source.fullPath(file));
    return slot;
}

Failure ProjectReader::duplicate(const core::ContentId &id, const SourceFile &file) const
{
    return failure(tr("Duplicate object id %1 in %2")
                       .arg(id.toString(), QDir::toNativeSeparators(m_source.fullPath(file))));
}

Result<> ProjectReader::readObjects()
{
    std::vector<ObjectSlot> slotList(m_source.objects.size());
    const bool isInMemory = !slotList.empty() && m_source.objects.front().bytes;
    const int workers = isInMemory ? QThread::idealThreadCount()
                                   : std::max(QThread::idealThreadCount(), diskWorkers);
    const std::size_t count =
        forEachIndex(slotList.size(), workers, [&](JsonParser &parser, std::size_t i) {
            slotList[i] = readSlot(parser, m_source.objects[i]);
            return slotList[i].object != nullptr;
        });
    for (std::size_t i = 0; i < count; ++i) {
        const core::ContentId id = slotList[i].object->id();
        if (!m_loaded.project->add(std::move(slotList[i].object)))
            return duplicate(id, m_source.objects[i]);
        m_loaded.files.push_back(
            {m_source.objects[i].path, id, slotList[i].stamp, std::move(slotList[i].bytes)});
    }
    return count < slotList.size() ? Result<>(failure(slotList[count].message)) : Result<>();
}

Result<> ProjectReader::readCategory(JsonParser &parser, const SourceFile &file)
{
    QByteArray bytes;
    const Result<JsonValue> json = readJson(parser, file, bytes);
    if (!json)
        return json.asFailure();
    core::Category category;
    switch (app::readCategory(*json, category)) {
    case CategoryFault::Category:
        return failure(withPath(tr("Malformed category file: %1"), m_source.fullPath(file)));
    case CategoryFault::Field:
        return failure(tr("Malformed field in category: %1").arg(category.name));
    case CategoryFault::None:
        break;
    }
    if (!m_loaded.project->editTaxonomy().add(category))
        return duplicate(category.id, file);
    m_loaded.files.push_back({file.path, category.id, FileStamp::of(bytes), bytes});
    return {};
}

Result<> ProjectReader::readRecords(JsonParser &parser, const SourceFile &file)
{
    QByteArray bytes;
    const Result<JsonValue> json = readJson(parser, file, bytes);
    if (!json)
        return json.asFailure();
    readProjectRecords(*json, *m_loaded.project);
    m_loaded.files.push_back({file.path, {}, FileStamp::of(bytes), bytes});
    return {};
}

Result<LoadedProject> ProjectReader::load()
{
    m_loaded.project = std::make_unique<core::Project>();
    m_loaded.files.reserve(m_source.objects.size() + m_source.categories.size() + 1);
    if (const Result<> objects = readObjects(); !objects)
        return objects.asFailure();
    JsonParser parser;
    for (const SourceFile &file : m_source.categories)
        if (const Result<> category = readCategory(parser, file); !category)
            return category.asFailure();
    for (const SourceFile &file : m_source.records)
        if (const Result<> records = readRecords(parser, file); !records)
            return records.asFailure();
    return std::move(m_loaded);
}

Result<std::unique_ptr<core::Project>> projectOf(Result<LoadedProject> loaded)
{
    if (!loaded)
        return loaded.asFailure();
    return std::move(loaded->project);
}

} // namespace

Result<LoadedProject> loadProjectFiles(const QString &folder)
{
    Result<Source> source = ProjectReader::listFolder(folder);
    if (!source)
        return source.asFailure();
    return ProjectReader(*std::move(source)).load();
}

Result<LoadedProject> loadProjectFiles(const QString &folder, std::span<const ProjectFile> files)
{
    return ProjectReader(ProjectReader::listFiles(folder, files)).load();
}

Result<QStringList> listReadPaths(const QString &folder)
{
    const Result<Source> source = ProjectReader::listFolder(folder);
    if (!source)
        return source.asFailure();
    QStringList paths;
    paths.reserve(qsizetype(source->objects.size() + source->categories.size() + 1));
    for (const auto *files : {&source->objects, &source->categories, &source->records})
        for (const SourceFile &file : *files)
            paths.append(file.path);
    return paths;
}

Result<std::unique_ptr<core::Project>> loadProject(const QString &folder)
{
    return projectOf(loadProjectFiles(folder));
}

Result<std::unique_ptr<core::Project>> loadProject(const QString &folder,
                                                   std::span<const ProjectFile> files)
{
    return projectOf(loadProjectFiles(folder, files));
}

} // namespace vl::app
