// Packing and unpacking a project of 10 000 objects, program against program: `ivorel-cli` and the
// ZIP tools of the system, both started anew each time. And, inside this program, what opening and
// saving a bundle costs beside reading the project.
//
// Everything lies in /dev/shm where there is one, so that the disk does not decide.

#include "app/storage/bundlestore.h"
#include "app/storage/projectwriter.h"
#include "benchmarks/support/generatedproject.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace vl::app;

namespace {

constexpr int objectCount = 10000;

class Place
{
public:
    Place()
        : m_folder((QFileInfo(QStringLiteral("/dev/shm")).isWritable() ? QStringLiteral("/dev/shm")
                                                                       : QDir::tempPath())
                   + QStringLiteral("/ivorel-bench-XXXXXX"))
    {
        const auto project = vl::bench::generateProject(objectCount);
        if (const Result<> saved = saveProject(*project, folder(), Durability::Atomic); !saved)
            qFatal("%s", qPrintable(saved.message()));
        if (const Result<> packed = packFolder(folder(), bundle()); !packed)
            qFatal("%s", qPrintable(packed.message()));
    }

    QString at(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QString folder() const { return at("project"); }
    QString bundle() const { return at("project.vellum"); }

private:
    QTemporaryDir m_folder;
};

const Place &place()
{
    static const Place place;
    return place;
}

/// Runs a program in a folder to its end.
void runProgram(const QString &workingFolder, const QStringList &command)
{
    std::vector<QByteArray> texts;
    for (const QString &argument : command)
        texts.push_back(QFile::encodeName(argument));
    std::vector<char *> arguments;
    for (QByteArray &text : texts)
        arguments.push_back(text.data());
    arguments.push_back(nullptr);
    const QByteArray folder = QFile::encodeName(workingFolder);
    const pid_t child = vfork();
    if (child == 0) {
        if (chdir(folder.constData()) == 0)
            execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0)
        qFatal("%s failed", texts.front().constData());
}

void runEach(benchmark::State &state, const QString &workingFolder, const QStringList &command,
             const QString &result)
{
    for (auto _ : state) {
        state.PauseTiming();
        if (QFileInfo(result).isDir())
            QDir(result).removeRecursively();
        else
            QFile::remove(result);
        state.ResumeTiming();
        runProgram(workingFolder, command);
        if (!QFileInfo::exists(result))
            qFatal("no result");
    }
}

const QString cli = QStringLiteral(IVOREL_CLI);

void packWithZip(benchmark::State &state)
{
    const QString result = place().at("other.zip");
    runEach(state, place().folder(),
            {QStringLiteral("zip"), QStringLiteral("-q"), QStringLiteral("-0"),
             QStringLiteral("-r"), result, QStringLiteral(".")},
            result);
}

void packWithUs(benchmark::State &state)
{
    const QString result = place().at("ours.vellum");
    runEach(state, place().folder(), {cli, QStringLiteral("pack"), place().folder(), result},
            result);
}

void convertToBundle(benchmark::State &state)
{
    const QString result = place().at("converted.vellum");
    runEach(state, place().folder(), {cli, QStringLiteral("convert"), place().folder(), result},
            result);
}

void unpackWithUnzip(benchmark::State &state)
{
    const QString result = place().at("unzipped");
    runEach(state, place().folder(),
            {QStringLiteral("unzip"), QStringLiteral("-q"), place().bundle(), QStringLiteral("-d"),
             result},
            result);
}

void unpackWithUs(benchmark::State &state)
{
    const QString result = place().at("unpacked");
    runEach(state, place().folder(), {cli, QStringLiteral("unpack"), place().bundle(), result},
            result);
}

/// A bundle whose working copy is as it was left.
void openAgain(benchmark::State &state)
{
    StorageLocations locations;
    locations.root = place().at("data");
    for (auto _ : state) {
        const Result<OpenedBundle> opened = openBundle(place().bundle(), locations);
        if (!opened)
            qFatal("%s", qPrintable(opened.message()));
        benchmark::DoNotOptimize(opened->files.size());
    }
}

/// The whole of a save after one edit, on whatever thread it runs.
void saveAfterOneEdit(benchmark::State &state)
{
    StorageLocations locations;
    locations.root = place().at("data");
    Result<OpenedBundle> opened = openBundle(place().bundle(), locations);
    if (!opened)
        qFatal("%s", qPrintable(opened.message()));
    BundleSave save{opened->bundlePath, opened->workingFolder, opened->files, {}, opened->known};
    char letter = 'a';
    for (auto _ : state) {
        QByteArray &bytes = save.files[save.files.size() / 2].bytes;
        bytes[bytes.size() / 2] = letter = letter == 'a' ? 'b' : 'a';
        const SaveReport report = saveBundle(save, locations);
        if (report.outcome != SaveOutcome::Saved || !report.message.isEmpty())
            qFatal("%s", qPrintable(report.message));
        save.known = report.known;
    }
}

BENCHMARK(packWithZip)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(packWithUs)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(convertToBundle)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(unpackWithUnzip)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(unpackWithUs)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(openAgain)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(saveAfterOneEdit)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
