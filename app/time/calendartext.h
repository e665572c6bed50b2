#pragma once

#include "core/calendar.h"

#include <QtCore/QString>

namespace vl::app {

// Names of months and eras stand in these texts as they are, also where they hold percent signs.
// All of them are defined for every 64-bit instant.

/// The full date of an instant: "3 March, Year 1270 AR, 07:30", without the time at midnight and
/// without an era name that is empty.
QString formatInstant(const core::Calendar &calendar, qint64 instant);

/// The year in decimal, followed by the era name when there is one: "1270 AR".
QString yearText(const core::Calendar &calendar, qint64 year);

/// The name of the month with this number from 1, or the other text when there is no such month.
QString monthText(const core::Calendar &calendar, qint32 month, const QString &otherwise);

/// Hours and minutes of two digits each: "07:30".
QString timeOfDayText(qint32 hour, qint32 minute);

/// The word before the year in a full date, in the interface language; typed dates may hold it.
QString yearWord();

} // namespace vl::app
