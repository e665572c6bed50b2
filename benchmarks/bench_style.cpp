#include "app/text/stylechecker.h"
#include "tests/support/styleoracle.h"

#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>

#include <benchmark/benchmark.h>

using namespace vl::app;

namespace {

constexpr qsizetype proseSize = 10'000'000; // UTF-16 units, as many bytes in UTF-8 for English

/// Ten million characters of a text file named by IVOREL_BENCH_TEXT, or of made-up English.
const QString &prose()
{
    static const QString text = [] {
        QFile file(qEnvironmentVariable("IVOREL_BENCH_TEXT"));
        QString made;
        if (!file.fileName().isEmpty() && file.open(QIODevice::ReadOnly)) {
            const QString read = QString::fromUtf8(file.readAll());
            if (!read.isEmpty())
                made = read.repeated(proseSize / read.size() + 1);
            made.truncate(proseSize);
            return made;
        }
        const QStringList words =
            QStringLiteral(
                "the the the the of of of and and and to to a a in he was was he said that it "
                "his her with for as had not at on but is were be which by this from they all "
                "one so there what who would him she my been out could when princess looked "
                "horse general window remembered carriage evening answered together battle "
                "people regiment something opened thought always café naïve returned don’t")
                .split(u' ');
        // Sown in thinly, so that about as much is found as in a novel.
        const QStringList weakWords =
            QStringLiteral(
                "very|really|just|quite|quickly|suddenly|only|in order to|taken|at the end")
                .split(u'|');
        QRandomGenerator random(1812);
        made.reserve(proseSize + 100);
        qsizetype previous = 0;
        while (made.size() < proseSize) {
            for (int left = 4 + random.bounded(26); left > 0; --left) {
                qsizetype next = random.bounded(int(words.size()));
                if (words[next] == words[previous])
                    next = words.size() - 1;
                previous = next;
                made += random.bounded(40) ? words[next]
                                           : weakWords[random.bounded(int(weakWords.size()))];
                made += QString::fromUtf16(left == 1 ? u". " : random.bounded(9) ? u" " : u", ");
            }
            if (random.bounded(5) == 0)
                made += u'\n';
        }
        return made;
    }();
    return text;
}

void allRulesInOneWalk(benchmark::State &state)
{
    const StyleChecker checker;
    const QString &text = prose();
    qsizetype issues = 0;
    for (auto _ : state)
        issues = checker.check(text).size();
    state.counters["issues"] = double(issues);
}

/// Only the matching: the expressions make no issues and no messages, and count no words.
void sevenExpressions(benchmark::State &state)
{
    const StyleOracle oracle;
    const QString &text = prose();
    qsizetype matchCount = 0;
    for (auto _ : state) {
        matchCount = 0;
        for (const StyleOracle::Rule &rule : oracle.rules()) {
            for (auto matches = rule.expression.globalMatch(text); matches.hasNext();
                 matches.next())
                ++matchCount;
        }
    }
    state.counters["matches"] = double(matchCount);
}

void uniformText(benchmark::State &state, const char16_t *piece, qsizetype size)
{
    const StyleChecker checker;
    const QString text = QString::fromUtf16(piece).repeated(size / QStringView(piece).size());
    qsizetype issues = 0;
    for (auto _ : state)
        issues = checker.check(text).size();
    state.counters["issues"] = double(issues);
}

} // namespace

BENCHMARK(allRulesInOneWalk)->Unit(benchmark::kMillisecond);
BENCHMARK(sevenExpressions)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(uniformText, one_letter_1M, u"a", 1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(uniformText, one_letter_4M, u"a", 4'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(uniformText, a_blank_1M, u"a ", 1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(uniformText, a_blank_4M, u"a ", 4'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(uniformText, very_1M, u"very ", 1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(uniformText, very_4M, u"very ", 4'000'000)->Unit(benchmark::kMillisecond);
