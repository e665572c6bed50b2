// A long novel as manuscript RTF, beside pandoc on the same Markdown. The text is made up from a
// fixed seed; IVOREL_BENCH_NOVEL names a file to try instead.

#include "app/text/export/manuscriptrtf.h"

#include <benchmark/benchmark.h>

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QStandardPaths>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

using namespace vl::app;

namespace {

QString madeUpParagraph(QRandomGenerator &random)
{
    static const QStringList words{
        QStringLiteral("the"),       QStringLiteral("of"),         QStringLiteral("evening"),
        QStringLiteral("she"),       QStringLiteral("said"),       QStringLiteral("Natásha’s"),
        QStringLiteral("and"),       QStringLiteral("regiment"),   QStringLiteral("*never*"),
        QStringLiteral("with"),      QStringLiteral("a"),          QStringLiteral("window"),
        QStringLiteral("horses—he"), QStringLiteral("“Well,"),     QStringLiteral("once”"),
        QStringLiteral("**loud**"),  QStringLiteral("understood"), QStringLiteral("in"),
        QStringLiteral("countess"),  QStringLiteral("to")};
    QString text;
    for (int i = random.bounded(20, 180); i > 0; --i)
        text += words[random.bounded(int(words.size()))] + QLatin1Char(' ');
    return text.trimmed() + QLatin1String(".\n\n");
}

/// About as long as the longest novels: 560 000 words in 365 chapters.
const QList<ManuscriptEntry> &novel()
{
    static const QList<ManuscriptEntry> entries = [] {
        QList<ManuscriptEntry> made;
        QFile file(qEnvironmentVariable("IVOREL_BENCH_NOVEL"));
        if (!file.fileName().isEmpty() && file.open(QIODevice::ReadOnly)) {
            made.append({1, QStringLiteral("Novel"), QString::fromUtf8(file.readAll()), {}, {}});
            return made;
        }
        QRandomGenerator random(1869);
        for (int chapter = 1; chapter <= 365; ++chapter) {
            ManuscriptEntry entry;
            entry.title = QStringLiteral("Chapter %1").arg(chapter);
            for (int i = 0; i < 15; ++i)
                entry.text += madeUpParagraph(random);
            made.append(entry);
        }
        return made;
    }();
    return entries;
}

void exportRtf(benchmark::State &state)
{
    qint64 characters = 0;
    for (const ManuscriptEntry &entry : novel())
        characters += entry.text.size();
    for (auto _ : state) {
        const QString rtf = exportManuscriptRtf(
            {QStringLiteral("A Novel"), QStringLiteral("A. Writer"), QString(), QString()},
            novel());
        const QByteArray bytes = rtf.toLatin1();
        benchmark::DoNotOptimize(bytes.constData());
    }
    state.SetBytesProcessed(state.iterations() * characters);
}
BENCHMARK(exportRtf)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();

void pandocRtf(benchmark::State &state)
{
    const QString pandoc = QStandardPaths::findExecutable(QStringLiteral("pandoc"));
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("novel.md")));
    if (pandoc.isEmpty() || !file.open(QIODevice::WriteOnly)) {
        state.SkipWithError("pandoc is not installed");
        return;
    }
    for (const ManuscriptEntry &entry : novel())
        file.write(QStringLiteral("# %1\n\n").arg(entry.title).toUtf8() + entry.text.toUtf8());
    file.close();
    const QStringList arguments{QStringLiteral("-f"),
                                QStringLiteral("markdown"),
                                QStringLiteral("-t"),
                                QStringLiteral("rtf"),
                                QStringLiteral("-s"),
                                QStringLiteral("-o"),
                                folder.filePath(QStringLiteral("novel.rtf")),
                                file.fileName()};
    for (auto _ : state) {
        if (QProcess::execute(pandoc, arguments) != 0)
            state.SkipWithError("pandoc failed");
    }
}
BENCHMARK(pandocRtf)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(5)
    ->UseRealTime()
    ->ReportAggregatesOnly();

} // namespace
