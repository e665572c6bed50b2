#include "core/calendar.h"

namespace vl::core {

Calendar Calendar::defaultCalendar()
{
    Calendar calendar;
    calendar.months = {
        {QStringLiteral("January"), 31},   {QStringLiteral("February"), 28},
        {QStringLiteral("March"), 31},     {QStringLiteral("April"), 30},
        {QStringLiteral("May"), 31},       {QStringLiteral("June"), 30},
        {QStringLiteral("July"), 31},      {QStringLiteral("August"), 31},
        {QStringLiteral("September"), 30}, {QStringLiteral("October"), 31},
        {QStringLiteral("November"), 30},  {QStringLiteral("December"), 31},
    };
    calendar.weekdays = {
        QStringLiteral("Monday"),   QStringLiteral("Tuesday"), QStringLiteral("Wednesday"),
        QStringLiteral("Thursday"), QStringLiteral("Friday"),  QStringLiteral("Saturday"),
        QStringLiteral("Sunday"),
    };
    return calendar;
}

} // namespace vl::core
