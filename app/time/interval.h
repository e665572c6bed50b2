#pragma once

#include <QtCore/QtGlobal>

#include <optional>

namespace vl::app {

/// A stretch of story time in minutes; a point where both ends are equal. An end before the start
/// is kept as it is.
struct Interval
{
    qint64 start = 0;
    qint64 end = 0;

    bool isPoint() const { return start == end; }
    bool operator==(const Interval &) const = default;
};

/// What two intervals have in common; nothing when they do not meet. Points meet only at the same
/// minute, a point meets a longer interval from its start until just before its end, and longer
/// ones that only touch do not meet.
std::optional<Interval> intersectIntervals(const Interval &a, const Interval &b);

} // namespace vl::app
