#include "app/storage/linediff.h"

#include "app/storage/lcs.h"

#include <QtCore/qglobal.h>

#include <algorithm>

namespace vl::app {
namespace {

using Sequence = std::span<const int>;

/// What is left of two texts to compare, with the place of each line in the whole text.
struct Remainder
{
    std::vector<int> lines;
    std::vector<int> places;

    void take(Sequence from, size_t begin, size_t end, const std::vector<int> &wanted)
    {
        for (size_t i = begin; i < end; ++i) {
            if (wanted[size_t(from[i])] == 0)
                continue;
            lines.push_back(from[i]);
            places.push_back(int(i));
        }
    }
};

std::vector<int> countLines(Sequence lines, int symbolCount)
{
    std::vector<int> counts(size_t(symbolCount), 0);
    for (const int line : lines)
        ++counts[size_t(line)];
    return counts;
}

/// Aligns the texts: the side's line for each line of the base, or -1. Equal beginnings and ends,
/// and lines that the other text has not, go first: they cannot make an alignment longer or
/// shorter.
std::vector<int> alignLines(Sequence base, Sequence side, int symbolCount)
{
    std::vector<int> partner(base.size(), -1);
    const size_t shorter = std::min(base.size(), side.size());
    size_t begin = 0;
    while (begin < shorter && base[begin] == side[begin]) {
        partner[begin] = int(begin);
        ++begin;
    }
    size_t same = 0;
    while (same < shorter - begin && base[base.size() - 1 - same] == side[side.size() - 1 - same]) {
        ++same;
        partner[base.size() - same] = int(side.size() - same);
    }
    const size_t baseEnd = base.size() - same;
    const size_t sideEnd = side.size() - same;
    if (begin == baseEnd || begin == sideEnd)
        return partner;

    Remainder left;
    Remainder right;
    left.take(base, begin, baseEnd, countLines(side.subspan(begin, sideEnd - begin), symbolCount));
    right.take(side, begin, sideEnd, countLines(base.subspan(begin, baseEnd - begin), symbolCount));
    for (const MatchedPair &pair : longestCommonSubsequence(left.lines, right.lines, symbolCount))
        partner[size_t(left.places[size_t(pair.first)])] = right.places[size_t(pair.second)];
    return partner;
}

std::vector<LineHunk> hunksBetween(const std::vector<int> &partner, int sideSize)
{
    std::vector<LineHunk> hunks;
    LineHunk open; // from the line after the last pair
    for (size_t i = 0; i <= partner.size(); ++i) {
        const bool atEnd = i == partner.size();
        if (!atEnd && partner[i] < 0)
            continue;
        open.baseEnd = int(i);
        open.sideEnd = atEnd ? sideSize : partner[i];
        if (open.baseBegin < open.baseEnd || open.sideBegin < open.sideEnd)
            hunks.push_back(open);
        open = {open.baseEnd + 1, 0, open.sideEnd + 1, 0};
    }
    return hunks;
}

/// Moves runs put in or taken out down over equal lines; runs that come to touch become one. So the
/// same edit stands at the same place in both sides of a merge, whatever else they changed.
std::vector<LineHunk> slideDown(const std::vector<LineHunk> &hunks, Sequence base, Sequence side)
{
    auto budget = 64 * (qint64(base.size()) + qint64(side.size()));
    std::vector<LineHunk> done; // from the end of the text on
    for (size_t i = hunks.size(); i-- > 0;) {
        LineHunk hunk = hunks[i];
        for (;;) {
            if (!done.empty() && done.back().baseBegin == hunk.baseEnd) {
                hunk.baseEnd = done.back().baseEnd;
                hunk.sideEnd = done.back().sideEnd;
                done.pop_back();
            }
            const bool isInsertion = hunk.baseBegin == hunk.baseEnd;
            const bool isDeletion = hunk.sideBegin == hunk.sideEnd;
            if (isInsertion == isDeletion || hunk.baseEnd == int(base.size()) || budget == 0)
                break;
            const int first =
                isInsertion ? side[size_t(hunk.sideBegin)] : base[size_t(hunk.baseBegin)];
            if (first != base[size_t(hunk.baseEnd)])
                break;
            ++hunk.baseBegin;
            ++hunk.baseEnd;
            ++hunk.sideBegin;
            ++hunk.sideEnd;
            --budget;
        }
        done.push_back(hunk);
    }
    std::reverse(done.begin(), done.end());
    return done;
}

} // namespace

std::vector<LineHunk> diffLines(std::span<const int> base, std::span<const int> side,
                                int symbolCount)
{
    const std::vector<int> partner = alignLines(base, side, symbolCount);
    return slideDown(hunksBetween(partner, int(side.size())), base, side);
}

} // namespace vl::app
