#include "cli/batchops.h"

#include "app/time/calendarmath.h"
#include "app/time/calendartext.h"
#include "app/time/dateparser.h"
#include "app/time/timeruler.h"

namespace vl::cli {

namespace {

using app::CalendarDate;
using app::TickStep;
using app::TickUnit;
using core::Calendar;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::cli::Batch)
};

/// The calendar of the request; the default one when there is none.
Calendar readCalendar(BatchMembers &request)
{
    if (!request.has("calendar"))
        return Calendar::defaultCalendar();
    BatchMembers given = request.members("calendar");
    Calendar calendar;
    calendar.name = given.optionalText("name");
    calendar.eraName = given.optionalText("eraName");
    if (given.has("months")) {
        const QJsonArray months = given.array("months");
        for (qsizetype i = 0; i < months.size(); ++i) {
            BatchMembers month = given.element("months", months, i);
            const QString name = month.text("name");
            calendar.months.append({name, month.integer32("days")});
        }
    }
    if (given.has("weekdays")) {
        const QJsonArray weekdays = given.array("weekdays");
        for (qsizetype i = 0; i < weekdays.size(); ++i)
            calendar.weekdays.append(given.elementText("weekdays", weekdays, i));
    }
    return calendar;
}

TickUnit readUnit(BatchMembers &request)
{
    const QString text = request.text("unit");
    const std::optional<TickUnit> unit = app::tickUnitTexts.value(text);
    if (!unit)
        request.refuse(Texts::tr("Unknown unit: %1").arg(text));
    return unit.value_or(TickUnit::Minute);
}

TickStep readStep(BatchMembers &request)
{
    TickStep step;
    step.unit = readUnit(request);
    step.count = request.integer("count");
    return step;
}

CalendarDate readDate(BatchMembers date)
{
    CalendarDate result;
    result.year = date.integer("year");
    result.month = date.integer32("month");
    result.day = date.integer32("day");
    result.hour = date.integer32("hour");
    result.minute = date.integer32("minute");
    return result;
}

QJsonObject toJson(const CalendarDate &date)
{
    return {{QStringLiteral("year"), date.year},
            {QStringLiteral("month"), date.month},
            {QStringLiteral("day"), date.day},
            {QStringLiteral("hour"), date.hour},
            {QStringLiteral("minute"), date.minute}};
}

app::Result<QJsonValue> breakDown(BatchMembers &request)
{
    const Calendar calendar = readCalendar(request);
    const qint64 instant = request.integer("instant");
    if (request.hasFailed())
        return request.failure();
    return QJsonValue(toJson(app::breakDown(calendar, instant)));
}

app::Result<QJsonValue> toInstant(BatchMembers &request)
{
    const Calendar calendar = readCalendar(request);
    const CalendarDate date = readDate(request.members("date"));
    if (request.hasFailed())
        return request.failure();
    return QJsonValue(app::toInstant(calendar, date));
}

app::Result<QJsonValue> format(BatchMembers &request)
{
    const Calendar calendar = readCalendar(request);
    const qint64 instant = request.integer("instant");
    if (request.hasFailed())
        return request.failure();
    return QJsonValue(app::formatInstant(calendar, instant));
}

app::Result<QJsonValue> parse(BatchMembers &request)
{
    const Calendar calendar = readCalendar(request);
    const QString text = request.text("text");
    if (request.hasFailed())
        return request.failure();
    const std::optional<CalendarDate> date = app::parseInstant(calendar, text);
    return date ? QJsonValue(toJson(*date)) : QJsonValue(QJsonValue::Null);
}

template<auto label>
app::Result<QJsonValue> labelOf(BatchMembers &request)
{
    const Calendar calendar = readCalendar(request);
    const TickUnit unit = readUnit(request);
    const qint64 instant = request.integer("instant");
    if (request.hasFailed())
        return request.failure();
    return QJsonValue(label(calendar, unit, instant));
}

template<auto widest>
app::Result<QJsonValue> widestOf(BatchMembers &request)
{
    const Calendar calendar = readCalendar(request);
    const TickUnit unit = readUnit(request);
    if (request.hasFailed())
        return request.failure();
    return QJsonValue(widest(calendar, unit));
}

app::Result<QJsonValue> nominalLength(BatchMembers &request)
{
    const Calendar calendar = readCalendar(request);
    const TickStep step = readStep(request);
    if (request.hasFailed())
        return request.failure();
    return QJsonValue(app::nominalLength(calendar, step));
}

app::Result<QJsonValue> firstTick(BatchMembers &request)
{
    const Calendar calendar = readCalendar(request);
    const TickStep step = readStep(request);
    const qint64 instant = request.integer("instant");
    if (request.hasFailed())
        return request.failure();
    return QJsonValue(app::firstTick(calendar, step, instant));
}

app::Result<QJsonValue> ticks(BatchMembers &request)
{
    const Calendar calendar = readCalendar(request);
    const TickStep step = readStep(request);
    const qint64 start = request.integer("start");
    const qint64 end = request.integer("end");
    if (request.hasFailed())
        return request.failure();
    QJsonArray list;
    for (const qint64 tick : app::ticksInRange(calendar, step, start, end))
        list.append(tick);
    return QJsonValue(list);
}

app::Result<QJsonValue> steps(BatchMembers &)
{
    QJsonArray list;
    for (const TickStep &step : app::tickSteps())
        list.append(QJsonObject{{QStringLiteral("unit"), app::tickUnitTexts.text(step.unit)},
                                {QStringLiteral("count"), step.count}});
    return QJsonValue(list);
}

const BatchOp rows[] = {
    {"calendar.breakDown", breakDown},
    {"calendar.toInstant", toInstant},
    {"calendar.format", format},
    {"calendar.parse", parse},
    {"calendar.tickLabel", labelOf<app::tickLabel>},
    {"calendar.contextLabel", labelOf<app::contextLabel>},
    {"calendar.widestLabel", widestOf<app::widestLabel>},
    {"calendar.widestContext", widestOf<app::widestContext>},
    {"calendar.nominalLength", nominalLength},
    {"calendar.firstTick", firstTick},
    {"calendar.ticks", ticks},
    {"calendar.steps", steps},
};

} // namespace

std::span<const BatchOp> batchCalendarOps()
{
    return rows;
}

} // namespace vl::cli
