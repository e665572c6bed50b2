#include "app/storage/lcs.h"

#include "app/storage/lcsbits.h"

#include <algorithm>
#include <optional>

namespace vl::app {
namespace {

using Pairs = std::vector<MatchedPair>;
using Sequence = std::span<const int>;

constexpr int maxDifferences = 2000;          ///< that the greedy search follows
constexpr int maxDifferencesOfDistinct = 128; ///< the same where the sparse search is quick as well
constexpr qint64 maxSparsePairs = 4'000'000;  ///< equal pairs that the sparse search remembers
constexpr qint64 sparsePairCost = 30;         ///< in steps of the bit vectors
constexpr qint64 maxBitSteps = 500'000'000;   ///< about half a second
constexpr qint64 firstLook = 512;             ///< columns to each side of the diagonal
constexpr int rarePairs = 16;                 ///< a number with at most so many equal pairs is rare

/// The greedy search along diagonals of Myers (1986): fast where little differs.
class GreedySearch
{
public:
    GreedySearch(Sequence first, Sequence second)
        : m_first(first)
        , m_second(second)
        , n(int(first.size()))
        , m(int(second.size()))
    {
    }

    /// Nothing when more than `limit` numbers would have to be taken out or put in.
    std::optional<Pairs> align(int limit)
    {
        const int rounds = search(limit);
        return rounds < 0 ? std::nullopt : std::optional(wayBack(rounds));
    }

private:
    int search(int limit);
    Pairs wayBack(int rounds) const;

    Sequence m_first;
    Sequence m_second;
    int n;
    int m;
    std::vector<int> m_trace; ///< of round d the d + 1 furthest rows, diagonals -d, -d + 2, …, d
};

/// The number of differences, or -1 when there are more or it takes too long to tell.
int GreedySearch::search(int limit)
{
    const int bound = int(std::min(qint64(limit), qint64(n) + m));
    qint64 budget = 16 * (qint64(n) + m) + qint64(limit) * limit;
    std::vector<int> reach(2 * size_t(bound) + 3, 0);
    int *const at = reach.data() + bound + 1;
    for (int d = 0; d <= bound && budget >= 0; ++d) {
        for (int k = -d; k <= d; k += 2) {
            const bool down = k == -d || (k != d && at[k - 1] < at[k + 1]);
            int x = d == 0 ? 0 : (down ? at[k + 1] : at[k - 1] + 1);
            const int from = x;
            while (x < n && x - k < m && m_first[size_t(x)] == m_second[size_t(x - k)])
                ++x;
            budget -= x - from + 1;
            at[k] = x;
            m_trace.push_back(x);
            if (x >= n && x - k >= m)
                return d;
        }
    }
    return -1;
}

Pairs GreedySearch::wayBack(int rounds) const
{
    Pairs pairs;
    int x = n;
    int y = m;
    for (int d = rounds; d > 0; --d) {
        const int *before = m_trace.data() + size_t(d - 1) * size_t(d) / 2; // of round d - 1
        const auto reached = [&](int k) { return before[(k + d - 1) / 2]; };
        const int k = x - y;
        const bool down = k == -d || (k != d && reached(k - 1) < reached(k + 1));
        const int startX = down ? reached(k + 1) : reached(k - 1) + 1;
        while (x > startX)
            pairs.push_back({--x, --y});
        if (down)
            --y;
        else
            --x;
    }
    while (x > 0 && y > 0)
        pairs.push_back({--x, --y});
    std::reverse(pairs.begin(), pairs.end());
    return pairs;
}

/// The search over the equal pairs alone of Hunt and Szymanski (1977): fast where numbers seldom
/// repeat. Only numbers that `uses` accepts are looked at.
template<typename Uses>
Pairs alignSparse(Sequence first, const Occurrences &second, Uses uses)
{
    struct Node
    {
        MatchedPair pair;
        int before; ///< the last pair of the alignment that this one extends, or -1
    };
    std::vector<Node> nodes;
    std::vector<int> ends; // ends[k]: the leftmost end of an alignment of k + 1 pairs
    std::vector<int> last; // last[k]: the node of that alignment's last pair
    for (size_t i = 0; i < first.size(); ++i) {
        if (!uses(first[i]))
            continue;
        const std::span<const int> positions = second.of(first[i]);
        for (size_t at = positions.size(); at-- > 0;) {
            const int position = positions[at];
            const bool atEnd = ends.empty() || ends.back() < position;
            const size_t k =
                atEnd ? ends.size()
                      : size_t(std::lower_bound(ends.begin(), ends.end(), position) - ends.begin());
            if (!atEnd && ends[k] == position)
                continue;
            if (atEnd) {
                ends.push_back(0);
                last.push_back(0);
            }
            ends[k] = position;
            last[k] = int(nodes.size());
            nodes.push_back({{int(i), position}, k > 0 ? last[k - 1] : -1});
        }
    }
    Pairs pairs(ends.size());
    int node = last.empty() ? -1 : last.back();
    for (size_t k = pairs.size(); k-- > 0; node = nodes[size_t(node)].before)
        pairs[k] = nodes[size_t(node)].pair;
    return pairs;
}

/// Extends an alignment into the gaps between its pairs: forth from each pair, back from the next.
Pairs fillGaps(Sequence first, Sequence second, const Pairs &anchors)
{
    Pairs pairs;
    MatchedPair from; // the gap's beginning
    for (size_t i = 0; i <= anchors.size(); ++i) {
        const MatchedPair to =
            i < anchors.size() ? anchors[i] : MatchedPair{int(first.size()), int(second.size())};
        while (from.first < to.first && from.second < to.second
               && first[size_t(from.first)] == second[size_t(from.second)])
            pairs.push_back({from.first++, from.second++});
        int same = 0;
        while (to.first - same > from.first && to.second - same > from.second
               && first[size_t(to.first - same - 1)] == second[size_t(to.second - same - 1)])
            ++same;
        for (; same > 0; --same)
            pairs.push_back({to.first - same, to.second - same});
        if (i < anchors.size())
            pairs.push_back(to);
        from = {to.first + 1, to.second + 1};
    }
    return pairs;
}

/// The search by bit vectors, inside the narrowest band that is known to hold every longest
/// alignment; where that is too much work, inside as wide a band as the work allows.
/// `rows` is not shorter than `columns`; `known` is any alignment.
Pairs alignByBits(Sequence rows, Sequence columns, const Occurrences &columnIndex, int symbolCount,
                  Pairs known)
{
    const auto n = qint64(rows.size());
    const auto m = qint64(columns.size());
    const BitLcs bits(rows, columns, columnIndex, symbolCount);
    // With l pairs at least, n - l rows and m - l columns at most stand alone.
    const auto bandOfLongest = [&] {
        return LcsBand{1, 1, n - qint64(known.size()), m - qint64(known.size())};
    };
    const auto tryWithin = [&](qint64 width) {
        Pairs pairs = bits.align({m, n, width, width});
        if (pairs.size() > known.size())
            known = std::move(pairs);
    };
    // Looks along the diagonal cost little and often narrow the band by far.
    for (qint64 width = firstLook; width < m / 8; width *= 4) {
        const qint64 cost = bits.cost({m, n, width, width});
        const size_t length = known.size();
        if (cost > maxBitSteps || bits.cost(bandOfLongest()) < 4 * cost)
            break;
        tryWithin(width);
        if (known.size() == length)
            break;
    }
    if (bits.cost(bandOfLongest()) <= maxBitSteps)
        return bits.align(bandOfLongest());
    qint64 width = m;
    while (width > 0 && bits.cost({m, n, width, width}) > maxBitSteps)
        width /= 2;
    tryWithin(width);
    return known;
}

} // namespace

std::vector<MatchedPair> longestCommonSubsequence(std::span<const int> first,
                                                  std::span<const int> second, int symbolCount)
{
    if (first.empty() || second.empty())
        return {};
    if (first.size() < second.size()) {
        Pairs pairs = longestCommonSubsequence(second, first, symbolCount);
        for (MatchedPair &pair : pairs)
            std::swap(pair.first, pair.second);
        return pairs;
    }
    const Occurrences firstIndex(first, symbolCount);
    const Occurrences secondIndex(second, symbolCount);
    qint64 equalPairs = 0;
    for (int symbol = 0; symbol < symbolCount; ++symbol)
        equalPairs += qint64(firstIndex.count(symbol)) * secondIndex.count(symbol);
    const bool distinct = equalPairs <= 4 * qint64(first.size() + second.size());

    GreedySearch greedy(first, second);
    if (auto pairs = greedy.align(distinct ? maxDifferencesOfDistinct : maxDifferences))
        return std::move(*pairs);
    const qint64 table = qint64(first.size()) * qint64(second.size()) / 64;
    if (distinct || (equalPairs <= maxSparsePairs && equalPairs * sparsePairCost <= table))
        return alignSparse(first, secondIndex, [](int) { return true; });

    const Pairs anchors = alignSparse(first, secondIndex, [&](int symbol) {
        return qint64(firstIndex.count(symbol)) * secondIndex.count(symbol) <= rarePairs;
    });
    return alignByBits(first, second, secondIndex, symbolCount, fillGaps(first, second, anchors));
}

} // namespace vl::app
