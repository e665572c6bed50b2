#include "app/storage/lcsbits.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace vl::app {
namespace {

constexpr quint64 allOnes = ~quint64(0);
constexpr qint64 maskMemory = qint64(64) << 20; ///< bytes
constexpr int wordBits = 64;

/// One row of the bit-vector recurrence; a bit is 0 where the length of the common subsequence
/// grows.
void addRow(quint64 *words, const quint64 *mask, int count)
{
    quint64 carry = 0;
    for (int i = 0; i < count; ++i) {
        const quint64 v = words[i];
        const quint64 hit = v & mask[i];
        quint64 sum = 0;
        const bool over = __builtin_add_overflow(v, hit, &sum);
        quint64 total = 0;
        const bool overAgain = __builtin_add_overflow(sum, carry, &total);
        carry = quint64(over) | quint64(overAgain);
        words[i] = total | (v & ~mask[i]);
    }
}

} // namespace

Occurrences::Occurrences(std::span<const int> sequence, int symbolCount)
    : m_start(size_t(symbolCount) + 1, 0)
    , m_positions(sequence.size())
{
    for (const int symbol : sequence)
        ++m_start[size_t(symbol) + 1];
    for (size_t i = 1; i < m_start.size(); ++i)
        m_start[i] += m_start[i - 1];
    std::vector<int> next(m_start.begin(), m_start.end() - 1);
    for (size_t i = 0; i < sequence.size(); ++i)
        m_positions[size_t(next[size_t(sequence[i])]++)] = int(i);
}

BitLcs::BitLcs(std::span<const int> rows, std::span<const int> columns,
               const Occurrences &columnIndex, int symbolCount)
    : m_rows(rows)
    , m_columns(columns)
    , m_index(columnIndex)
    , m_wordCount(int((columns.size() + wordBits - 1) / wordBits))
    , m_maskOf(size_t(symbolCount), -1)
{
    const auto size = qint64(columns.size());
    const qint64 maskBytes = qint64(m_wordCount) * 8;
    // A number that fills fewer columns than this is cheaper to enter one column at a time.
    const qint64 frequent = std::max({qint64(32), size / 256, size * maskBytes / maskMemory});
    int masks = 0;
    for (const int symbol : rows) {
        if (m_index.count(symbol) < frequent) {
            m_rarePairs += m_index.count(symbol);
            continue;
        }
        ++m_frequentRows;
        if (m_maskOf[size_t(symbol)] < 0)
            m_maskOf[size_t(symbol)] = masks++;
    }
    m_masks.resize(size_t(masks) * size_t(m_wordCount), 0);
    for (size_t i = 0; i < columns.size(); ++i) {
        const int mask = m_maskOf[size_t(columns[i])];
        if (mask >= 0)
            m_masks[size_t(mask) * size_t(m_wordCount) + i / wordBits] |= quint64(1)
                                                                          << (i % wordBits);
    }
}

qint64 BitLcs::cost(const LcsBand &band) const
{
    const qint64 width = std::min(band.below + band.above + 1, qint64(m_columns.size()));
    const double share = double(width) / double(m_columns.size());
    // Entering one column takes about as long as ten words of a row.
    return m_frequentRows * (width / wordBits + 2) + qint64(double(m_rarePairs) * share * 10)
           + qint64(m_rows.size());
}

BitLcs::Window BitLcs::window(const LcsBand &band, int row) const
{
    const qint64 centre = qint64(row) * band.numerator / band.denominator;
    const qint64 last = qint64(m_columns.size()) - 1;
    const qint64 from = std::clamp(centre - band.below, qint64(0), last);
    const qint64 to = std::clamp(centre + band.above, from, last);
    return {int(from / wordBits), int(to / wordBits)};
}

void BitLcs::advanceSparse(std::span<const int> positions, quint64 *words, Window range) const
{
    const int from = range.first * wordBits;
    const auto first = std::lower_bound(positions.begin(), positions.end(), from);
    const auto last = std::lower_bound(first, positions.end(), qint64(range.last + 1) * wordBits,
                                       [](int position, qint64 end) { return position < end; });
    // From right to left, so that a match never builds on another of the same row.
    for (auto it = last; it != first;) {
        const int column = *--it - from;
        const quint64 bit = quint64(1) << (column % wordBits);
        int word = column / wordBits;
        if (!(words[word] & bit))
            continue;
        const int end = range.last - range.first;
        quint64 growth = ~words[word] & ~(bit - 1);
        words[word] &= ~bit;
        while (growth == 0 && word < end)
            growth = ~words[++word];
        if (growth != 0)
            words[word] |= growth & (~growth + 1);
    }
}

/// Turns the row before `row` into the row itself; `words` begins at the window's first word.
void BitLcs::advance(int row, quint64 *words, Window range) const
{
    const int symbol = m_rows[size_t(row)];
    const int mask = m_maskOf[size_t(symbol)];
    if (mask < 0) {
        advanceSparse(m_index.of(symbol), words, range);
        return;
    }
    const quint64 *bits = m_masks.data() + size_t(mask) * size_t(m_wordCount) + range.first;
    addRow(words, bits, range.last - range.first + 1);
}

std::vector<MatchedPair> BitLcs::align(const LcsBand &band) const
{
    const int rowCount = int(m_rows.size());
    const int blockSize = std::max(1, int(std::sqrt(double(rowCount))));
    std::vector<Row> kept; // the state before rows 0, blockSize, 2 * blockSize…
    std::vector<quint64> current(size_t(m_wordCount), allOnes);
    Window range;
    for (int row = 0; row < rowCount; ++row) {
        if (row % blockSize == 0)
            kept.push_back(
                {range, {current.begin() + range.first, current.begin() + range.last + 1}});
        range = window(band, row);
        advance(row, current.data() + range.first, range);
    }
    current = {};

    std::vector<MatchedPair> pairs;
    std::vector<Row> block(size_t(blockSize) + 1); // block[k]: after k rows of the block
    int column = int(m_columns.size());            // columns < column are still to be aligned
    for (int index = int(kept.size()) - 1; index >= 0 && column > 0; --index) {
        const int begin = index * blockSize;
        const int count = std::min(blockSize, rowCount - begin);
        block[0] = std::move(kept[size_t(index)]);
        for (int k = 1; k <= count; ++k) {
            Window next = window(band, begin + k - 1);
            next.last = std::min(next.last, (column - 1) / wordBits);
            follow(block[size_t(k) - 1], begin + k - 1, next, block[size_t(k)]);
        }
        column = walkBack(block, begin, count, column, pairs);
    }
    std::reverse(pairs.begin(), pairs.end());
    return pairs;
}

/// Makes the row `number` from the one before it, as far as its window goes.
void BitLcs::follow(const Row &before, int number, Window range, Row &row) const
{
    row.range = range;
    row.words.assign(size_t(std::max(0, range.last - range.first + 1)), allOnes);
    const int shared = std::min(range.last, before.range.last) - range.first + 1;
    if (shared > 0)
        std::copy_n(before.words.begin() + (range.first - before.range.first), shared,
                    row.words.begin());
    if (!row.words.empty())
        advance(number, row.words.data(), range);
}

/// Collects the pairs of a block's rows from its end to its beginning, starting left of `column`;
/// gives the column left of which the rows before the block go on.
int BitLcs::walkBack(const std::vector<Row> &block, int begin, int count, int column,
                     std::vector<MatchedPair> &pairs)
{
    // Whether the length does not grow at a column. Columns left of a window are as they were in
    // the row before; columns right of it have not grown yet.
    const auto isFlat = [](const Row &row, int at) {
        const int word = at / wordBits;
        return word > row.range.last
               || ((row.words[size_t(word - row.range.first)] >> (at % wordBits)) & 1) != 0;
    };
    for (int k = count; k > 0 && column > 0;) {
        const Row &row = block[size_t(k)];
        if ((column - 1) / wordBits < row.range.first) {
            --k;
        } else if (isFlat(row, column - 1)) {
            --column;
        } else {
            // It grows here: by a match in this very row unless it did so in the row before too.
            if (isFlat(block[size_t(k) - 1], column - 1))
                pairs.push_back({begin + k - 1, --column});
            --k;
        }
    }
    return column;
}

} // namespace vl::app
