#pragma once

#include "app/time/calendarmath.h"

#include <QtCore/QStringView>

#include <optional>

namespace vl::app {

/// Reads a typed date: a year ("1250"), a month and a year ("March 1270") or all three, the day
/// before the year ("3 March, Year 1270", "March 3 1270"), with a time of day ("07:30") anywhere.
/// Months may be cut short as long as one alone begins so; the calendar's era name and the word
/// "Year" (in English and in the interface language) are passed over; case never matters; commas
/// and any white space separate. Nothing when the text is no such date, names a day that the month
/// has not, or a number beyond 1 000 000 000 000 on either side of 0.
std::optional<CalendarDate> parseInstant(const core::Calendar &calendar, QStringView text);

} // namespace vl::app
