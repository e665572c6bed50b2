// Three-way merges of 100 000-line files, each as the whole path (read three files, merge, print):
// by git merge-file, by ivorel-cli merge-file and by the merge in this process.

#include "app/storage/linemerge.h"

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

using Lines = std::vector<QByteArray>;
using Random = std::mt19937;

constexpr int lineCount = 100'000;

struct Texts
{
    Lines base;
    Lines local;
    Lines remote;
};

int below(Random &random, size_t end)
{
    return int(random() % end);
}

QByteArray sentence(Random &random, const char *who)
{
    return QByteArray(who) + " went down to the harbour at " + QByteArray::number(quint32(random()))
           + " and counted the ships";
}

Lines distinctLines(Random &random)
{
    Lines lines(lineCount);
    std::generate(lines.begin(), lines.end(), [&] { return sentence(random, "She"); });
    return lines;
}

Lines prose(Random &random)
{
    Lines lines = distinctLines(random);
    for (size_t i = 1; i < lines.size(); i += 2)
        lines[i].clear();
    return lines;
}

Lines sixLines(Random &random)
{
    static const Lines six = {"{", "}", "[", "]", "\"a\": 1,", ""};
    Lines lines(lineCount);
    std::generate(lines.begin(), lines.end(), [&] { return six[size_t(below(random, 6))]; });
    return lines;
}

/// Changes, takes out and puts in lines at so many places each.
void scatter(Lines &lines, Random &random, int places, const Lines &fresh)
{
    for (int i = 0; i < places; ++i) {
        lines[size_t(below(random, lines.size()))] = fresh[size_t(below(random, fresh.size()))];
        lines.erase(lines.begin() + below(random, lines.size()));
        lines.insert(lines.begin() + below(random, lines.size()),
                     fresh[size_t(below(random, fresh.size()))]);
    }
}

void cross(Lines &lines, Random &random)
{
    for (int i = 0; i < 5000; ++i) {
        const size_t at = size_t(below(random, lines.size() - 50));
        std::swap(lines[at], lines[at + 1 + size_t(below(random, 40))]);
    }
}

void moveBlocks(Lines &lines, Random &random)
{
    for (int i = 0; i < 10; ++i) {
        const auto from = lines.begin() + below(random, lines.size() - 2000);
        const Lines block(from, from + 2000);
        lines.erase(from, from + 2000);
        lines.insert(lines.begin() + below(random, lines.size()), block.begin(), block.end());
    }
}

Texts makeTexts(const QByteArray &shape)
{
    Random random(20);
    Texts texts;
    texts.base = shape.startsWith("six")     ? sixLines(random)
                 : shape.startsWith("prose") ? prose(random)
                                             : distinctLines(random);
    texts.local = texts.remote = texts.base;
    const Lines fresh = shape.startsWith("six") ? texts.base : distinctLines(random);
    for (Lines *side : {&texts.local, &texts.remote}) {
        if (shape.endsWith("scattered"))
            scatter(*side, random, 1000, fresh);
        else if (shape.endsWith("rewritten"))
            scatter(*side, random, 10'000, fresh);
        else if (shape.endsWith("crossing"))
            cross(*side, random);
        else if (shape.endsWith("moved"))
            moveBlocks(*side, random);
        else
            *side = shape.startsWith("six")     ? sixLines(random)
                    : shape.startsWith("prose") ? prose(random)
                                                : distinctLines(random);
    }
    return texts;
}

/// Three files on a memory file system where there is one.
class Files
{
public:
    explicit Files(const QByteArray &shape)
        : m_folder((QFileInfo(QStringLiteral("/dev/shm")).isWritable() ? QStringLiteral("/dev/shm")
                                                                       : QDir::tempPath())
                   + QStringLiteral("/merge-XXXXXX"))
    {
        const Texts texts = makeTexts(shape);
        write("base", texts.base);
        write("local", texts.local);
        write("remote", texts.remote);
    }

    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QStringList paths(std::initializer_list<const char *> names) const
    {
        QStringList result;
        for (const char *name : names)
            result.append(path(name));
        return result;
    }

private:
    void write(const char *name, const Lines &lines) const
    {
        QByteArray text;
        for (const QByteArray &line : lines)
            text += line + '\n';
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write the test files");
    }

    QTemporaryDir m_folder;
};

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void runProgram(benchmark::State &state, const Files &files, const QString &program,
                const QStringList &arguments)
{
    for (auto _ : state) {
        QProcess process;
        process.setStandardOutputFile(files.path("merged"));
        process.start(program, arguments);
        if (!process.waitForFinished(600'000) || process.exitStatus() != QProcess::NormalExit)
            state.SkipWithError("the program did not run");
    }
}

void byGit(benchmark::State &state, const char *shape)
{
    const Files files(shape);
    runProgram(state, files, QStringLiteral("git"),
               QStringList{QStringLiteral("merge-file"), QStringLiteral("-p")}
                   + files.paths({"local", "base", "remote"}));
}

void byCli(benchmark::State &state, const char *shape)
{
    const QString program = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()
                            + QStringLiteral("/../../bin/ivorel-cli");
    const Files files(shape);
    runProgram(state, files, QDir::cleanPath(program),
               QStringList{QStringLiteral("merge-file")}
                   + files.paths({"base", "local", "remote"}));
}

void inProcess(benchmark::State &state, const char *shape)
{
    const Files files(shape);
    for (auto _ : state) {
        const auto merged =
            vl::app::mergeLines(QByteArrayView(read(files.path("base"))), read(files.path("local")),
                                read(files.path("remote")));
        QFile file(files.path("merged"));
        if (!file.open(QIODevice::WriteOnly) || file.write(merged.text) != merged.text.size())
            state.SkipWithError("cannot write the result");
        state.counters["conflicts"] = merged.conflicts;
    }
}

#define MERGE_BENCHMARK(function, shape)                                                           \
    BENCHMARK_CAPTURE(function, shape, #shape)                                                     \
        ->Iterations(1)                                                                            \
        ->Repetitions(5)                                                                           \
        ->ReportAggregatesOnly()                                                                   \
        ->UseRealTime()                                                                            \
        ->Unit(benchmark::kMillisecond)
#define MERGE_BENCHMARKS(shape)                                                                    \
    MERGE_BENCHMARK(byGit, shape);                                                                 \
    MERGE_BENCHMARK(byCli, shape);                                                                 \
    MERGE_BENCHMARK(inProcess, shape)

MERGE_BENCHMARKS(scattered);
MERGE_BENCHMARKS(crossing);
MERGE_BENCHMARKS(moved);
MERGE_BENCHMARKS(different);
MERGE_BENCHMARKS(prose_scattered);
MERGE_BENCHMARKS(prose_rewritten);
MERGE_BENCHMARKS(prose_moved);
MERGE_BENCHMARKS(prose_different);
MERGE_BENCHMARKS(six_lines_scattered);
MERGE_BENCHMARKS(six_lines_rewritten);
MERGE_BENCHMARKS(six_lines_different);

} // namespace
