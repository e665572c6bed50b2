// Opening, serialising and saving a project folder of 10 000 objects. The peer is the plain way:
// read the same files and parse them with the toolkit's JSON reader, on all cores.
//
// The folder is made in /dev/shm where there is one, so that the disk does not decide.

#include "app/storage/folderstore.h"
#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"
#include "benchmarks/support/generatedproject.h"
#include "core/content/document.h"

#include <QtConcurrent/QtConcurrentMap>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

#include <atomic>
#include <benchmark/benchmark.h>

using namespace vl::app;
using namespace vl::core;

namespace {

constexpr int objectCount = 10000;

class Folder
{
public:
    Folder()
        : m_folder((QFileInfo(QStringLiteral("/dev/shm")).isWritable() ? QStringLiteral("/dev/shm")
                                                                       : QDir::tempPath())
                   + QStringLiteral("/ivorel-bench-XXXXXX"))
    {
        const auto project = vl::bench::generateProject(objectCount);
        if (const Result<> saved = saveProject(*project, path(), Durability::Atomic); !saved)
            qFatal("%s", qPrintable(saved.message()));
        QDirIterator at(path(), QDir::Files, QDirIterator::Subdirectories);
        while (at.hasNext()) {
            m_files.append(at.next());
            m_bytes += at.fileInfo().size();
        }
    }

    QString path() const { return m_folder.filePath(QStringLiteral("project")); }
    const QStringList &files() const { return m_files; }
    qint64 bytes() const { return m_bytes; }

private:
    QTemporaryDir m_folder;
    QStringList m_files;
    qint64 m_bytes = 0;
};

const Folder &folder()
{
    static const Folder folder;
    return folder;
}

void parseWithToolkit(benchmark::State &state)
{
    const QStringList &files = folder().files();
    for (auto _ : state) {
        std::atomic<int> objects = 0;
        QStringList list = files;
        QtConcurrent::blockingMap(list, [&objects](const QString &path) {
            QFile file(path);
            if (file.open(QIODevice::ReadOnly)
                && QJsonDocument::fromJson(file.readAll()).isObject())
                ++objects;
        });
        if (objects != files.size())
            qFatal("files are missing");
    }
    state.counters["MB"] = double(folder().bytes()) / 1e6;
}

void openFolder(benchmark::State &state)
{
    const QString path = folder().path();
    for (auto _ : state) {
        auto project = loadProject(path);
        if (!project || (*project)->size() != objectCount)
            qFatal("the project does not load");
        state.PauseTiming(); // closing a project is not opening it
        project = failure(QString());
        state.ResumeTiming();
    }
}

void serializeAll(benchmark::State &state)
{
    const auto project = loadProject(folder().path());
    qint64 bytes = 0;
    for (auto _ : state)
        serializeProject(
            **project, [&bytes](const QString &, const QByteArray &file) { bytes += file.size(); });
    state.SetBytesProcessed(bytes);
}

void saveUnchanged(benchmark::State &state)
{
    FolderStore store(folder().path());
    const auto project = store.load();
    for (auto _ : state)
        if (!commitFolderSave(store.prepare(**project), OutsideChanges::Refuse, Durability::Atomic))
            qFatal("the save failed");
}

/// What one edit costs on the interface thread, and then on the pool thread.
void saveOneEdit(benchmark::State &state)
{
    FolderStore store(folder().path());
    const auto project = store.load();
    Document *document = (*project)->all<Document>()[100];
    ChangeSet changes;
    changes.touchObject(document->id(), ChangeSet::Change::Changed);
    const bool alsoWrites = state.range(0) != 0;
    for (auto _ : state) {
        document->setBody(document->body() + QLatin1Char('x'));
        const FolderSave save = store.prepare(**project, changes);
        if (alsoWrites && !commitFolderSave(save, OutsideChanges::Refuse, Durability::Atomic))
            qFatal("the save failed");
        if (alsoWrites)
            store.saved(save);
    }
}

} // namespace

BENCHMARK(parseWithToolkit)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(openFolder)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(serializeAll)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(saveUnchanged)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(saveOneEdit)
    ->ArgName("write")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();
