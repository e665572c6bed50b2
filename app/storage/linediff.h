#pragma once

#include <span>
#include <vector>

namespace vl::app {

/// A run of lines that differ, as long as can be: the base's lines [baseBegin, baseEnd) became the
/// side's lines [sideBegin, sideEnd). One of the two runs may be empty, not both.
struct LineHunk
{
    int baseBegin = 0;
    int baseEnd = 0;
    int sideBegin = 0;
    int sideEnd = 0;

    bool operator==(const LineHunk &) const = default;
};

/// The hunks between two texts whose lines are given as numbers in [0, symbolCount), equal lines as
/// equal numbers; hunks ascend and at least one line both have lies between two of them. A run that
/// was only put in or only taken out stands as far down as the repetition of lines lets it.
/// Bounded in time and memory as longestCommonSubsequence() is.
std::vector<LineHunk> diffLines(std::span<const int> base, std::span<const int> side,
                                int symbolCount);

} // namespace vl::app
