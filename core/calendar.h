#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace vl::core {

/// One month of a calendar.
struct CalendarMonth
{
    QString name;
    qint32 days = 0;

    bool operator==(const CalendarMonth &) const = default;
};

/// How a project counts days: its months in the order of the year, its weekdays and its era.
/// Every year has the same length, the sum of the months' days.
struct Calendar
{
    QString name;
    QList<CalendarMonth> months;
    QStringList weekdays;
    QString eraName; ///< appended to years; may be empty

    bool operator==(const Calendar &) const = default;

    /// Twelve months, 365 days a year, weeks from Monday, no era name.
    static Calendar defaultCalendar();
};

/// Dates the same instants from another epoch, with a calendar of its own.
struct Reckoning
{
    QString name;
    qint64 epochOffsetMinutes = 0; ///< the instant at which its own Year 1 begins
    Calendar calendar;

    bool operator==(const Reckoning &) const = default;
};

} // namespace vl::core
