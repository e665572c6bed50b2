#pragma once

#include "app/storage/lcs.h"

#include <QtCore/qglobal.h>

#include <span>
#include <vector>

namespace vl::app {

/// Where each number stands in a sequence: the positions of one number are contiguous and
/// ascending.
class Occurrences
{
public:
    /// Indexes the sequence, whose numbers lie in [0, symbolCount).
    Occurrences(std::span<const int> sequence, int symbolCount);

    std::span<const int> of(int symbol) const
    {
        return {m_positions.data() + m_start[symbol], m_positions.data() + m_start[symbol + 1]};
    }
    int count(int symbol) const { return m_start[symbol + 1] - m_start[symbol]; }

private:
    std::vector<int> m_start;
    std::vector<int> m_positions;
};

/// The part of the table of all position pairs that an alignment may use: in row r the columns from
/// r * numerator / denominator - below to r * numerator / denominator + above.
struct LcsBand
{
    qint64 numerator = 1;
    qint64 denominator = 1;
    qint64 below = 0;
    qint64 above = 0;
};

/// Longest common subsequence by bit vectors, 64 columns a step, inside a band of the table.
/// Every 1/sqrt(rows) of the rows is kept and the rows between are computed again on the way back,
/// so memory is about rows * columns / sqrt(rows) / 4 bytes.
class BitLcs
{
public:
    /// Keeps references to the sequences; both are not empty.
    BitLcs(std::span<const int> rows, std::span<const int> columns, const Occurrences &columnIndex,
           int symbolCount);

    /// The steps, in machine words or the like, that a band costs; grows with its width.
    qint64 cost(const LcsBand &band) const;
    /// A longest alignment among those that stay in the band.
    std::vector<MatchedPair> align(const LcsBand &band) const;

private:
    /// A run of words of a row, both ends included; empty when last < first.
    struct Window
    {
        int first = 0;
        int last = -1;
    };
    /// The words of a row that its window holds.
    struct Row
    {
        Window range;
        std::vector<quint64> words;
    };
    Window window(const LcsBand &band, int row) const;
    void advance(int row, quint64 *words, Window range) const;
    void advanceSparse(std::span<const int> positions, quint64 *words, Window range) const;
    void follow(const Row &before, int number, Window range, Row &row) const;
    static int walkBack(const std::vector<Row> &block, int begin, int count, int column,
                        std::vector<MatchedPair> &pairs);

    std::span<const int> m_rows;
    std::span<const int> m_columns;
    const Occurrences &m_index;
    int m_wordCount = 0;
    std::vector<int> m_maskOf;    ///< for each symbol its place in m_masks, or -1 when it is rare
    std::vector<quint64> m_masks; ///< m_wordCount words for each frequent symbol
    qint64 m_frequentRows = 0;    ///< rows whose symbol has a mask
    qint64 m_rarePairs = 0;       ///< pairs of equal symbols without a mask
};

} // namespace vl::app
