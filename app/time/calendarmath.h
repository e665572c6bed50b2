#pragma once

#include "core/calendar.h"

#include <QtCore/QtGlobal>

namespace vl::app {

/// An instant broken down by a calendar; never stored.
struct CalendarDate
{
    qint64 year = 1;
    qint32 month = 1;  ///< from 1, an index into the calendar's months
    qint32 day = 1;    ///< from 1, within the month
    qint32 hour = 0;   ///< 0 to 23
    qint32 minute = 0; ///< 0 to 59

    bool operator==(const CalendarDate &) const = default;
};

/// The exact sum of the months' day counts; below 1 when the calendar counts no days at all.
qint64 yearLength(const core::Calendar &calendar);

/// The days of a year in 32 bits; a sum beyond them stops at their end (dates use the exact sum).
qint32 daysPerYear(const core::Calendar &calendar);

/// The date and time of an instant, defined for every 64-bit minute; toInstant() gives it back. A
/// month of no days, or of fewer, is passed over. A calendar whose year has less than one day puts
/// every instant on day 1 of month 1 of Year 1, with its time of day.
CalendarDate breakDown(const core::Calendar &calendar, qint64 instant);

/// The instant of a date, defined for every value of its members: a day beyond its month runs on
/// into the next one, and an instant that leaves 64 bits stops at their end.
qint64 toInstant(const core::Calendar &calendar, const CalendarDate &date);

} // namespace vl::app
