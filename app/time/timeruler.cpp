#include "app/time/timeruler.h"

#include "app/time/calendarmath.h"
#include "app/time/calendartext.h"
#include "app/time/instant.h"

#include <algorithm>
#include <vector>

namespace vl::app {

namespace {

constexpr qint64 rulerReach = 5'760'000'000'000'000; ///< minutes to either side of minute 0

/// The ticks of one step, numbered by consecutive multiples of it.
class TickGrid
{
public:
    TickGrid(const core::Calendar &calendar, TickStep step)
        : m_calendar(calendar)
        , m_step{step.unit, std::max<qint64>(1, step.count)}
        , m_yearLength(yearLength(calendar))
    {
        if (step.unit != TickUnit::Month)
            return;
        qint64 days = 0;
        m_daysBefore.push_back(0);
        for (qsizetype i = 0; i + 1 < calendar.months.size(); ++i)
            m_daysBefore.push_back(days += calendar.months[i].days);
    }

    /// The number of the multiple at or before the instant.
    Wide multipleBefore(qint64 instant) const
    {
        switch (m_step.unit) {
        case TickUnit::Month: {
            const CalendarDate date = breakDown(m_calendar, instant);
            return floorDivide(monthsOfYear() * date.year + (date.month - 1), m_step.count);
        }
        case TickUnit::Year:
            return floorDivide(breakDown(m_calendar, instant).year, m_step.count);
        default:
            return floorDivide(instant, minutes());
        }
    }

    /// The instant of a multiple, which may lie beyond 64 bits.
    Wide at(Wide multiple) const
    {
        const Wide position = multiple * m_step.count;
        switch (m_step.unit) {
        case TickUnit::Month: {
            const Wide year = floorDivide(position, monthsOfYear());
            const auto month = size_t(position - monthsOfYear() * year);
            return minutesToDay((year - 1) * m_yearLength + m_daysBefore[month]);
        }
        case TickUnit::Year:
            return minutesToDay((position - 1) * m_yearLength);
        default:
            return multiple * minutes();
        }
    }

    /// The number of the first multiple at or after the instant.
    Wide firstMultiple(qint64 instant) const
    {
        const Wide multiple = multipleBefore(instant);
        return at(multiple) < instant ? multiple + 1 : multiple;
    }

private:
    Wide monthsOfYear() const { return Wide(m_daysBefore.size()); }
    Wide minutes() const
    {
        const qint64 ofUnit = m_step.unit == TickUnit::Minute ? 1
                              : m_step.unit == TickUnit::Hour ? minutesPerHour
                                                              : minutesPerDay;
        return Wide(m_step.count) * ofUnit;
    }

    const core::Calendar &m_calendar;
    TickStep m_step;
    qint64 m_yearLength;
    std::vector<qint64> m_daysBefore; ///< by month, at least one; only filled for steps of months
};

QString longestMonthName(const core::Calendar &calendar)
{
    QString longest;
    for (const core::CalendarMonth &month : calendar.months) {
        if (month.name.size() > longest.size())
            longest = month.name;
    }
    return longest;
}

} // namespace

QString tickLabel(const core::Calendar &calendar, TickUnit unit, qint64 instant)
{
    const CalendarDate date = breakDown(calendar, instant);
    switch (unit) {
    case TickUnit::Minute:
    case TickUnit::Hour:
        return timeOfDayText(date.hour, date.minute);
    case TickUnit::Day:
        return QString::number(date.day);
    case TickUnit::Month:
        return monthText(calendar, date.month, QString::number(date.month));
    case TickUnit::Year:
        return yearText(calendar, date.year);
    }
    return {};
}

QString contextLabel(const core::Calendar &calendar, TickUnit unit, qint64 instant)
{
    const CalendarDate date = breakDown(calendar, instant);
    QString year = yearText(calendar, date.year);
    QString monthAndYear = monthText(calendar, date.month, {}) + QLatin1Char(' ') + year;
    switch (unit) {
    case TickUnit::Minute:
    case TickUnit::Hour:
        return QString::number(date.day) + QLatin1Char(' ') + monthAndYear;
    case TickUnit::Day:
        return monthAndYear;
    case TickUnit::Month:
        return year;
    case TickUnit::Year:
        break;
    }
    return {};
}

QString widestLabel(const core::Calendar &calendar, TickUnit unit)
{
    switch (unit) {
    case TickUnit::Minute:
    case TickUnit::Hour:
        return QStringLiteral("00:00");
    case TickUnit::Day:
        return QStringLiteral("00");
    case TickUnit::Month:
        return longestMonthName(calendar);
    case TickUnit::Year:
        break;
    }
    const QString year = QStringLiteral("-0000");
    return calendar.eraName.isEmpty() ? year : year + QLatin1Char(' ') + calendar.eraName;
}

QString widestContext(const core::Calendar &calendar, TickUnit unit)
{
    QString year = widestLabel(calendar, TickUnit::Year);
    QString monthAndYear = longestMonthName(calendar) + QLatin1Char(' ') + year;
    switch (unit) {
    case TickUnit::Minute:
    case TickUnit::Hour:
        return QStringLiteral("00 ") + monthAndYear;
    case TickUnit::Day:
        return monthAndYear;
    case TickUnit::Month:
        return year;
    case TickUnit::Year:
        break;
    }
    return {};
}

qint64 nominalLength(const core::Calendar &calendar, TickStep step)
{
    const Wide count = std::max<qint64>(1, step.count);
    switch (step.unit) {
    case TickUnit::Minute:
        return saturated(count);
    case TickUnit::Hour:
        return saturated(count * minutesPerHour);
    case TickUnit::Day:
        return saturated(count * minutesPerDay);
    case TickUnit::Month: {
        const qint64 months = std::max<qint64>(1, calendar.months.size());
        return instantOfDay(std::max<qint64>(1, yearLength(calendar)) / months * count);
    }
    case TickUnit::Year:
        break;
    }
    return instantOfDay(std::max<qint64>(1, yearLength(calendar)) * count);
}

const QList<TickStep> &tickSteps()
{
    static const QList<TickStep> steps = [] {
        QList<TickStep> list;
        const auto add = [&list](TickUnit unit, std::initializer_list<qint64> counts) {
            for (const qint64 count : counts)
                list.append({unit, count});
        };
        add(TickUnit::Minute, {1, 5, 15, 30});
        add(TickUnit::Hour, {1, 3, 6, 12});
        add(TickUnit::Day, {1, 2, 5, 10});
        add(TickUnit::Month, {1, 3, 6});
        for (qint64 power = 1; power <= 10'000'000; power *= 10)
            add(TickUnit::Year, {power, 2 * power, 5 * power});
        return list;
    }();
    return steps;
}

TickStep chooseTickStep(const core::Calendar &calendar, double pixelsPerMinute,
                        const std::function<double(TickUnit)> &neededSpacing)
{
    for (const TickStep &step : tickSteps()) {
        const double pixels = double(nominalLength(calendar, step)) * pixelsPerMinute;
        if (pixels >= neededSpacing(step.unit))
            return step;
    }
    return tickSteps().last();
}

qint64 firstTick(const core::Calendar &calendar, TickStep step, qint64 instant)
{
    const TickGrid grid(calendar, step);
    return saturated(grid.at(grid.firstMultiple(instant)));
}

QList<qint64> ticksInRange(const core::Calendar &calendar, TickStep step, qint64 start, qint64 end,
                           qsizetype limit)
{
    QList<qint64> ticks;
    if (end <= start || start < -rulerReach || end > rulerReach)
        return ticks;

    const TickGrid grid(calendar, step);
    // A calendar without a year's length repeats itself for ever; others only for months without
    // days, of which no calendar that anybody counts by has very many.
    int idleSteps = yearLength(calendar) < 1 && step.unit >= TickUnit::Month ? 0 : 1'000'000;
    for (Wide multiple = grid.firstMultiple(start); ticks.size() < limit; ++multiple) {
        const qint64 tick = grid.at(multiple);
        if (tick > end)
            break;
        if (tick >= start && (ticks.isEmpty() || tick > ticks.last()))
            ticks.append(tick);
        else if (--idleSteps < 0)
            break;
    }
    return ticks;
}

} // namespace vl::app
