#include "app/time/interval.h"

#include <algorithm>

namespace vl::app {

namespace {

bool meet(const Interval &a, const Interval &b)
{
    if (a.isPoint() && b.isPoint())
        return a.start == b.start;
    if (a.isPoint())
        return b.start <= a.start && a.start < b.end;
    if (b.isPoint())
        return a.start <= b.start && b.start < a.end;
    return a.start < b.end && b.start < a.end;
}

} // namespace

std::optional<Interval> intersectIntervals(const Interval &a, const Interval &b)
{
    if (!meet(a, b))
        return std::nullopt;
    return Interval{std::max(a.start, b.start), std::min(a.end, b.end)};
}

} // namespace vl::app
