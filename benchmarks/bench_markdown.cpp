#include "app/text/markdownrenderer.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QRandomGenerator>
#include <QtCore/QStringList>

#include <benchmark/benchmark.h>
#include <md4c-html.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace vl::app;

namespace {

constexpr qsizetype mixedSize = 10'000'000; // UTF-16 units

/// Writes Markdown of every kind the dialect has, the same at every run.
class MixedMarkdown
{
public:
    /// In dense text every few words are marked, else every third piece of some dozen words.
    explicit MixedMarkdown(bool isDense)
        : m_isDense(isDense)
    {
    }

    QString make()
    {
        m_text.reserve(mixedSize + 4000);
        while (m_text.size() < mixedSize) {
            switch (const int kind = m_random.bounded(20)) {
            case 0:
                m_text += QStringLiteral("#").repeated(1 + m_random.bounded(4)) + u' ';
                words(5);
                m_text += u'\n';
                break;
            case 1:
            case 2:
                lines(QLatin1String("- "), 3 + m_random.bounded(5));
                break;
            case 3:
                lines(QLatin1String("> "), 2 + m_random.bounded(3));
                break;
            case 4:
                table();
                break;
            case 5:
                footnote();
                break;
            case 6:
                m_text += QLatin1String("---\n");
                break;
            default:
                lines(QLatin1String(), kind < 15 ? 1 : 6);
            }
            m_text += u'\n';
        }
        return m_text;
    }

private:
    void words(int count)
    {
        static const QStringList plain =
            QStringLiteral("the of and to a in he was that it his her with for as had not at on "
                           "princess carriage evening answered suddenly together regiment window "
                           "remembered café naïve don’t Moscow nothing, always people. \"Well,\" "
                           "something & family; thought quickly whole — morning")
                .split(u' ');
        for (; count > 0; --count) {
            m_text += plain[m_random.bounded(int(plain.size()))];
            m_text += u' ';
        }
    }

    void marked()
    {
        static const QStringList marks = {QStringLiteral("**very bold** "),
                                          QStringLiteral("*stressed words* "),
                                          QStringLiteral("`code *span*` "),
                                          QStringLiteral("~~struck~~ "),
                                          QStringLiteral("\\*escaped\\* "),
                                          QStringLiteral("[link](https://a.example/b?c=d) "),
                                          QStringLiteral("![map](img/map.png) "),
                                          QStringLiteral("5 \\< 6 ")};
        m_text += marks[m_random.bounded(int(marks.size()))];
    }

    void lines(QLatin1String start, int count)
    {
        for (; count > 0; --count) {
            m_text += start;
            for (int pieces = 1 + m_random.bounded(6); pieces > 0; --pieces) {
                words(m_isDense ? 2 + m_random.bounded(4) : 6 + m_random.bounded(14));
                if (m_isDense || m_random.bounded(3) == 0)
                    marked();
            }
            m_text += u'\n';
        }
    }

    void table()
    {
        m_text += QLatin1String("| Name | Age | Place |\n|:-----|:---:|------:|\n");
        for (int row = 3 + m_random.bounded(6); row > 0; --row) {
            for (int cell = 0; cell < 3; ++cell) {
                m_text += QLatin1String("| ");
                words(1 + m_random.bounded(3));
            }
            m_text += QLatin1String("|\n");
        }
    }

    void footnote()
    {
        const QString id = QStringLiteral("fn%1").arg(++m_footnotes);
        words(12);
        m_text += QLatin1String("[^") + id + QLatin1String("] ");
        words(12);
        m_text += QLatin1String("\n\n[^") + id + QLatin1String("]: ");
        words(10);
        m_text += u'\n';
    }

    QRandomGenerator m_random{1605};
    QString m_text;
    int m_footnotes = 0;
    bool m_isDense;
};

std::string renderedByMd4c(const QByteArray &markdown)
{
    std::string html;
    html.reserve(size_t(markdown.size()) * 5 / 4);
    const auto append = [](const MD_CHAR *text, MD_SIZE size, void *to) {
        static_cast<std::string *>(to)->append(text, size);
    };
    md_html(markdown.constData(), MD_SIZE(markdown.size()), append, &html,
            MD_FLAG_TABLES | MD_FLAG_STRIKETHROUGH, 0);
    return html;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

/// Both renderers by turns on ten million units of mixed Markdown; the counters hold the medians.
void mixedAgainstMd4c(benchmark::State &state, bool isDense)
{
    const QString text = MixedMarkdown(isDense).make();
    const QByteArray utf8 = text.toUtf8();
    std::vector<double> ours;
    std::vector<double> md4c;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        benchmark::DoNotOptimize(MarkdownRenderer::toHtml(text));
        ours.push_back(double(timer.nsecsElapsed()) / 1e6);
        timer.start();
        benchmark::DoNotOptimize(renderedByMd4c(utf8));
        md4c.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    state.counters["growth"] = double(MarkdownRenderer::toHtml(text).size()) / double(text.size());
    state.counters["ours_ms"] = median(ours);
    state.counters["md4c_ms"] = median(md4c);
    state.counters["ratio"] = median(ours) / median(md4c);
}

void hostile(benchmark::State &state, const char16_t *piece, const char16_t *start)
{
    const QString unit = QString::fromUtf16(piece);
    const QString text = QString::fromUtf16(start) + unit.repeated(1'000'000 / unit.size());
    for (auto _ : state)
        benchmark::DoNotOptimize(MarkdownRenderer::toHtml(text));
}

void wideSeparator(benchmark::State &state)
{
    const QString text = QStringLiteral("a|").repeated(100'000) + u'\n'
                         + QStringLiteral("-|").repeated(100'000) + u'\n'
                         + QStringLiteral("b|").repeated(100'000);
    for (auto _ : state)
        benchmark::DoNotOptimize(MarkdownRenderer::toHtml(text));
}

} // namespace

BENCHMARK_CAPTURE(mixedAgainstMd4c, mixed, false)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(mixedAgainstMd4c, dense, true)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(wideSeparator)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, brackets, u"[", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, asterisks, u"*", u"a")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, backticks, u"`", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, bars, u"|", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, parentheses, u"((((", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, linkedParentheses, u"(((( ", u"[a](")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, code, u"`a ", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, images, u"![", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, footnotes, u"[^", u"[^a]: b\nc[^a]")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, references, u"[^a]", u"[^a]: b\nc")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, definitions, u"[^a]: \n", u"[^a]\n")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, tildes, u"~~", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, strong, u"**a", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, targets, u"[a](", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, longTarget, u"(a)", u"![![![![a](")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, imageTargets, u"![]((a)", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, escapes, u"\\:", u"")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, escapedBars, u"\\|", u"|\n-|-\n|")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(hostile, blanks, u" [^", u"")->Unit(benchmark::kMillisecond);
