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

} // namespace vl::app
