#include "app/time/calendarmath.h"
#include "app/time/calendartext.h"
#include "app/time/dateparser.h"
#include "app/time/instant.h"

#include <cstdlib>
#include <cstring>

using namespace vl::app;
using vl::core::Calendar;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// A calendar whose months, of any length, are named by the pieces of a text.
Calendar calendarOf(const QString &text)
{
    Calendar calendar;
    for (const QString &name : text.split(QLatin1Char(';'))) {
        const qint32 length = name.isEmpty() ? 0 : qint32(name[0].unicode()) - 64;
        const bool isHuge = name.size() == 3;
        calendar.months.append({name, isHuge ? length * 30'000 : length});
    }
    if (calendar.months.size() % 2 == 0)
        calendar.eraName = calendar.months.takeLast().name;
    return calendar;
}

/// Every date that was read is an instant that breaks down to the same date, and the date's own
/// text is read as the same date, unless names of the calendar stand in the way.
void check(const Calendar &calendar, const QString &text, bool hasPlainNames)
{
    const std::optional<CalendarDate> date = parseInstant(calendar, text);
    if (!date)
        return;
    require(date->hour >= 0 && date->hour < 24 && date->minute >= 0 && date->minute < 60);
    require(date->month >= 1 && date->month <= std::max<qsizetype>(1, calendar.months.size()));

    const qint64 instant = toInstant(calendar, *date);
    const CalendarDate back = breakDown(calendar, instant);
    const qint64 length = yearLength(calendar);
    bool isPlain = length >= 1 && calendar.months[date->month - 1].days >= date->day
                   && Wide(std::abs(date->year) + 1) * length < (Wide(1) << 50);
    for (const vl::core::CalendarMonth &month : calendar.months)
        isPlain = isPlain && month.days >= 0;
    if (isPlain)
        require(back == *date);
    if (length >= 1)
        require(toInstant(calendar, back) == instant);

    const QString shown = formatInstant(calendar, instant);
    if (hasPlainNames)
        require(parseInstant(calendar, shown) == back);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // The first line, in UTF-8, is the date; what follows names months, and an era at times.
    const auto *bytes = reinterpret_cast<const char *>(data);
    const auto *newline = static_cast<const char *>(std::memchr(bytes, '\n', size));
    const qsizetype lineEnd = newline ? newline - bytes : qsizetype(size);
    const QString text = QString::fromUtf8(bytes, lineEnd);
    check(Calendar::defaultCalendar(), text, true);
    if (newline) {
        check(calendarOf(QString::fromUtf8(newline + 1, qsizetype(size) - lineEnd - 1)), text,
              false);
    } else if (size % 2 == 0) {
        // Any pairs of bytes: lone surrogates among them.
        QString raw(qsizetype(size / 2), Qt::Uninitialized);
        if (size != 0)
            std::memcpy(raw.data(), data, size);
        check(Calendar::defaultCalendar(), raw, true);
    }
    return 0;
}
