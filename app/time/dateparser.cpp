#include "app/time/dateparser.h"

#include "app/time/calendartext.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <limits>

namespace vl::app {

namespace {

constexpr qint64 farthestNumber = 1'000'000'000'000;

bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isAsciiWord(QChar c)
{
    const char16_t lower = c.unicode() | 0x20U;
    return isAsciiDigit(c) || (lower >= u'a' && lower <= u'z') || c == QLatin1Char('_');
}

bool equal(QStringView a, QStringView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

struct TimeOfDay
{
    qsizetype position = 0; ///< where it stands in the text
    qsizetype length = 0;   ///< 0 when the text holds none
    qint32 hour = 0;
    qint32 minute = 0;
};

/// The first "7:30" or "07:30" that no letter, digit or underscore of ASCII adjoins.
TimeOfDay findTimeOfDay(QStringView text)
{
    const auto value = [text](qsizetype at) { return qint32(text[at].unicode() - u'0'); };
    for (qsizetype colon = text.indexOf(u':'); colon >= 0; colon = text.indexOf(u':', colon + 1)) {
        qsizetype begin = colon;
        while (begin > 0 && colon - begin < 2 && isAsciiDigit(text[begin - 1]))
            --begin;
        const qsizetype end = colon + 3;
        if (begin == colon || (begin > 0 && isAsciiWord(text[begin - 1])))
            continue;
        if (end > text.size() || !isAsciiDigit(text[end - 1]) || !isAsciiDigit(text[end - 2]))
            continue;
        if (end < text.size() && isAsciiWord(text[end]))
            continue;

        TimeOfDay time{begin, end - begin, value(colon - 1), value(end - 2) * 10 + value(end - 1)};
        if (colon - begin == 2)
            time.hour += value(begin) * 10;
        return time;
    }
    return {};
}

/// A decimal 64-bit integer in ASCII digits, with or without a sign.
std::optional<qint64> integer(QStringView piece)
{
    const bool isSigned = piece.startsWith(u'-') || piece.startsWith(u'+');
    const QStringView digits = piece.mid(isSigned ? 1 : 0);
    if (digits.isEmpty())
        return std::nullopt;
    const bool isNegative = piece.startsWith(u'-');
    qint64 value = 0;
    for (const QChar c : digits) {
        const qint64 digit = c.unicode() - u'0';
        if (!isAsciiDigit(c) || __builtin_mul_overflow(value, 10, &value)
            || __builtin_add_overflow(value, isNegative ? -digit : digit, &value))
            return std::nullopt;
    }
    return value;
}

/// The number from 1 of the month that the piece names; 0 when it names none or may mean several.
qint32 monthNamed(const core::Calendar &calendar, QStringView piece)
{
    qint32 number = 0;
    qint32 found = 0;
    bool isUnique = true;
    for (const core::CalendarMonth &month : calendar.months) {
        ++number;
        if (!month.name.startsWith(piece, Qt::CaseInsensitive))
            continue;
        if (equal(month.name, piece))
            return number;
        isUnique = found == 0;
        found = number;
    }
    return isUnique ? found : 0;
}

/// The words and numbers of a typed date.
struct Pieces
{
    QList<qint64> numbers;
    qint32 month = 0; ///< from 1; 0 while none is named
    qsizetype numbersBeforeMonth = 0;
};

/// Takes up one piece of the text; false when it has no place in a date.
bool takePiece(const core::Calendar &calendar, QStringView piece, Pieces &pieces)
{
    if (equal(piece, u"Year") || equal(piece, yearWord()))
        return true;
    if (!calendar.eraName.isEmpty() && equal(piece, calendar.eraName))
        return true;
    if (const std::optional<qint64> number = integer(piece)) {
        pieces.numbers.append(*number);
        return *number >= -farthestNumber && *number <= farthestNumber;
    }
    if (pieces.month != 0)
        return false;
    pieces.month = monthNamed(calendar, piece);
    pieces.numbersBeforeMonth = pieces.numbers.size();
    return pieces.month != 0;
}

std::optional<CalendarDate> interpret(const core::Calendar &calendar, const Pieces &pieces)
{
    CalendarDate date;
    if (pieces.month == 0) {
        if (pieces.numbers.size() != 1)
            return std::nullopt;
        date.year = pieces.numbers[0];
        return date;
    }
    date.month = pieces.month;
    if (pieces.numbers.size() == 1) {
        if (pieces.numbersBeforeMonth != 0)
            return std::nullopt; // a day without a year
        date.year = pieces.numbers[0];
        return date;
    }
    if (pieces.numbers.size() != 2)
        return std::nullopt;
    const qint64 day = pieces.numbers[0];
    if (day < 1 || day > calendar.months[pieces.month - 1].days)
        return std::nullopt;
    date.day = qint32(day);
    date.year = pieces.numbers[1];
    return date;
}

} // namespace

std::optional<CalendarDate> parseInstant(const core::Calendar &calendar, QStringView text)
{
    QString rest = text.trimmed().toString();
    if (rest.isEmpty())
        return std::nullopt;
    const TimeOfDay time = findTimeOfDay(rest);
    if (time.hour > 23 || time.minute > 59)
        return std::nullopt;
    rest.remove(time.position, time.length);

    Pieces pieces;
    const auto isBlank = [](QChar c) { return c == QLatin1Char(',') || c.isSpace(); };
    for (qsizetype begin = 0; begin < rest.size();) {
        qsizetype end = begin;
        while (end < rest.size() && !isBlank(rest[end]))
            ++end;
        const QStringView piece = QStringView(rest).mid(begin, end - begin);
        if (!piece.isEmpty() && !takePiece(calendar, piece, pieces))
            return std::nullopt;
        begin = end + 1;
    }
    std::optional<CalendarDate> date = interpret(calendar, pieces);
    if (!date)
        return std::nullopt;
    date->hour = time.hour;
    date->minute = time.minute;
    return date;
}

} // namespace vl::app
