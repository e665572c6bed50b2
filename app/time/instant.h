#pragma once

#include <QtCore/QtGlobal>

#include <limits>

namespace vl::app {

inline constexpr qint64 minutesPerHour = 60;
inline constexpr qint64 minutesPerDay = 1440;

/// Wide enough for the sums and products of any two 64-bit values.
__extension__ typedef __int128 Wide; // NOLINT(modernize-use-using): __extension__ takes no using

/// The nearest 64-bit value.
constexpr qint64 saturated(Wide value)
{
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    constexpr qint64 highest = std::numeric_limits<qint64>::max();
    return value < lowest ? lowest : value > highest ? highest : qint64(value);
}

/// The sum of two instants or durations in minutes; one that leaves 64 bits stops at their end.
constexpr qint64 saturatedSum(qint64 a, qint64 b)
{
    return saturated(Wide(a) + b);
}

/// The difference a - b in minutes; one that leaves 64 bits stops at their end.
constexpr qint64 saturatedDifference(qint64 a, qint64 b)
{
    return saturated(Wide(a) - b);
}

/// Division toward negative infinity; the divisor is positive.
constexpr Wide floorDivide(Wide value, Wide divisor)
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

/// The minutes from minute 0 to the beginning of a day counted from day 0. Days that are out of
/// range by far, whatever may be added, are brought nearer, so that nothing overflows.
constexpr Wide minutesToDay(Wide day)
{
    constexpr Wide farAway = Wide(1) << 70;
    return (day < -farAway ? -farAway : day > farAway ? farAway : day) * minutesPerDay;
}

/// The instant at a minute of a day counted from day 0; one that leaves 64 bits stops at their end.
constexpr qint64 instantOfDay(Wide day, qint64 minutes = 0)
{
    return saturated(minutesToDay(day) + minutes);
}

} // namespace vl::app
