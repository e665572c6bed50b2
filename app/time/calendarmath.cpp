#include "app/time/calendarmath.h"

#include "app/time/instant.h"

#include <algorithm>

namespace vl::app {

qint64 yearLength(const core::Calendar &calendar)
{
    qint64 days = 0;
    for (const core::CalendarMonth &month : calendar.months)
        days += month.days;
    return days;
}

qint32 daysPerYear(const core::Calendar &calendar)
{
    constexpr qint64 lowest = std::numeric_limits<qint32>::min();
    constexpr qint64 highest = std::numeric_limits<qint32>::max();
    return qint32(std::clamp(yearLength(calendar), lowest, highest));
}

CalendarDate breakDown(const core::Calendar &calendar, qint64 instant)
{
    const auto day = qint64(floorDivide(instant, minutesPerDay));
    const auto minuteOfDay = qint32(Wide(instant) - Wide(day) * minutesPerDay);

    CalendarDate date;
    date.hour = minuteOfDay / qint32(minutesPerHour);
    date.minute = minuteOfDay % qint32(minutesPerHour);
    const qint64 length = yearLength(calendar);
    if (length < 1)
        return date;

    const auto years = qint64(floorDivide(day, length));
    date.year = years + 1;
    auto dayOfYear = qint64(Wide(day) - Wide(years) * length);
    for (const core::CalendarMonth &month : calendar.months) {
        if (dayOfYear < month.days) {
            date.day = qint32(dayOfYear) + 1;
            break;
        }
        dayOfYear -= month.days;
        ++date.month;
    }
    return date;
}

qint64 toInstant(const core::Calendar &calendar, const CalendarDate &date)
{
    Wide day = (Wide(date.year) - 1) * yearLength(calendar) + date.day - 1;
    const qsizetype monthsBefore =
        std::clamp<qsizetype>(qsizetype(date.month) - 1, 0, calendar.months.size());
    for (qsizetype i = 0; i < monthsBefore; ++i)
        day += calendar.months[i].days;
    return instantOfDay(day, qint64(date.hour) * minutesPerHour + date.minute);
}

} // namespace vl::app
