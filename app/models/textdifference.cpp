#include "app/models/textdifference.h"

#include "app/storage/linediff.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

namespace vl::app {

namespace {

QStringList linesOf(const QString &text)
{
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}

std::vector<int> numbered(const QStringList &lines, QHash<QString, int> &numbers)
{
    std::vector<int> result;
    result.reserve(std::size_t(lines.size()));
    for (const QString &line : lines) {
        const auto place = numbers.constFind(line);
        if (place != numbers.constEnd()) {
            result.push_back(*place);
        } else {
            result.push_back(int(numbers.size()));
            numbers.insert(line, result.back());
        }
    }
    return result;
}

} // namespace

std::vector<DifferenceLine> differenceLines(const QString &before, const QString &after,
                                            int context)
{
    const QStringList old = linesOf(before);
    const QStringList changed = linesOf(after);
    QHash<QString, int> numbers;
    const std::vector<int> base = numbered(old, numbers);
    const std::vector<int> side = numbered(changed, numbers);

    std::vector<DifferenceLine> lines;
    const std::vector<LineHunk> hunks = diffLines(base, side, int(numbers.size()));
    const auto addSame = [&](int begin, int end, bool isFirst, bool isLast) {
        const int head = isFirst ? 0 : context;
        const int tail = isLast ? 0 : context;
        const bool skips = context >= 0 && end - begin > head + tail + 1;
        for (int i = begin; i < end; ++i) {
            if (skips && i == begin + head) {
                lines.push_back({DifferenceLine::Kind::Skipped, {}});
                i = end - tail;
                if (i >= end)
                    break;
            }
            lines.push_back({DifferenceLine::Kind::Same, old.at(i)});
        }
    };
    int done = 0;
    for (const LineHunk &hunk : hunks) {
        addSame(done, hunk.baseBegin, done == 0, false);
        for (int i = hunk.baseBegin; i < hunk.baseEnd; ++i)
            lines.push_back({DifferenceLine::Kind::Removed, old.at(i)});
        for (int i = hunk.sideBegin; i < hunk.sideEnd; ++i)
            lines.push_back({DifferenceLine::Kind::Added, changed.at(i)});
        done = hunk.baseEnd;
    }
    addSame(done, int(old.size()), done == 0, true);
    return lines;
}

WordDifference wordDifference(const QString &before, const QString &after)
{
    const auto wordsOf = [](const QString &line) {
        QStringList words;
        qsizetype begin = 0;
        for (qsizetype i = 1; i <= line.size(); ++i) {
            const bool isInside =
                i < line.size() && line[i].isLetterOrNumber() && line[i - 1].isLetterOrNumber();
            const bool isPair = i < line.size() && line[i].isLowSurrogate();
            if (isInside || isPair)
                continue;
            words.append(line.mid(begin, i - begin));
            begin = i;
        }
        return words;
    };
    const QStringList old = wordsOf(before);
    const QStringList changed = wordsOf(after);
    QHash<QString, int> numbers;
    const std::vector<int> base = numbered(old, numbers);
    const std::vector<int> side = numbered(changed, numbers);

    WordDifference difference;
    qsizetype kept = 0; // characters that both have
    const auto add = [](std::vector<TextRun> &runs, const QStringList &words, int begin, int end,
                        qsizetype position) {
        qsizetype length = 0;
        for (int i = begin; i < end; ++i)
            length += words.at(i).size();
        if (length > 0)
            runs.push_back({position, length});
        return length;
    };
    qsizetype oldAt = 0;
    qsizetype newAt = 0;
    int done = 0;
    const auto pass = [&](int end) {
        for (; done < end; ++done) {
            oldAt += old.at(done).size();
            newAt += old.at(done).size();
            kept += old.at(done).trimmed().size();
        }
    };
    for (const LineHunk &hunk : diffLines(base, side, int(numbers.size()))) {
        pass(hunk.baseBegin);
        oldAt += add(difference.removed, old, hunk.baseBegin, hunk.baseEnd, oldAt);
        newAt += add(difference.added, changed, hunk.sideBegin, hunk.sideEnd, newAt);
        done = hunk.baseEnd;
    }
    pass(int(old.size()));
    constexpr qsizetype least = 4; // so that a quarter of the longer line is common
    if (kept * least < std::max(before.size(), after.size()))
        return {};
    return difference;
}

} // namespace vl::app
