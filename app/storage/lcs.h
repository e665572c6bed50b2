#pragma once

#include <span>
#include <vector>

namespace vl::app {

/// Two positions, one in each of two sequences, that hold the same number.
struct MatchedPair
{
    int first = 0;
    int second = 0;

    bool operator==(const MatchedPair &) const = default;
};

/// Pairs equal numbers of two sequences, both positions ascending, as many of them as can be.
/// The numbers lie in [0, symbolCount). Time and memory are bounded whatever the input: the result
/// is a longest common subsequence except for sequences of some hundred thousand numbers that have
/// little in common but numbers repeating often, where it may be a shorter one.
/// The same two sequences give the same pairs always.
std::vector<MatchedPair> longestCommonSubsequence(std::span<const int> first,
                                                  std::span<const int> second, int symbolCount);

} // namespace vl::app
