#include "app/time/calendartext.h"
#include "app/time/dateparser.h"

#include <QtTest/QtTest>

using namespace vl::app;
using vl::core::Calendar;

Q_DECLARE_METATYPE(vl::app::CalendarDate)

namespace {

using Expected = std::optional<CalendarDate>;

QString shown(const Expected &date)
{
    if (!date)
        return QStringLiteral("no date");
    return QStringLiteral("%1-%2-%3 %4")
        .arg(QString::number(date->year), QString::number(date->month), QString::number(date->day),
             timeOfDayText(date->hour, date->minute));
}

Calendar odd()
{
    Calendar calendar;
    calendar.months = {
        {QStringLiteral("Frost"), 10},    {QStringLiteral("Frostfall"), 10},
        {QStringLiteral("Élan"), 10},     {QStringLiteral("Void"), -3},
        {QStringLiteral("Twin"), 10},     {QStringLiteral("Twin"), 20},
        {QStringLiteral("Deep Low"), 10}, {QStringLiteral("99999999999999999999"), 10},
        {QStringLiteral("Year"), 10},     {QStringLiteral("AR"), 10},
        {QStringLiteral("Twine"), 10},    {QStringLiteral("77"), 10}};
    calendar.eraName = QStringLiteral("ar");
    return calendar;
}

/// What the parser is to do, step after step, with the toolkit's own means.
Expected parseSlowly(const Calendar &calendar, QString text)
{
    static const QRegularExpression timePattern(QStringLiteral("\\b(\\d{1,2}):(\\d{2})\\b"));
    CalendarDate date;
    if (const QRegularExpressionMatch match = timePattern.match(text); match.hasMatch()) {
        date.hour = match.captured(1).toInt();
        date.minute = match.captured(2).toInt();
        if (date.hour > 23 || date.minute > 59)
            return {};
        text.remove(match.capturedStart(), match.capturedLength());
    }
    QList<qint64> numbers;
    int month = 0;
    bool isNumberFirst = false;
    const QStringList pieces = text.replace(QLatin1Char(','), QLatin1Char(' '))
                                   .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        const QString lower = piece.toLower();
        if (lower == QLatin1String("year"))
            continue;
        if (!calendar.eraName.isEmpty() && lower == calendar.eraName.toLower())
            continue;
        bool isNumber = false;
        numbers.append(piece.toLongLong(&isNumber));
        if (isNumber) {
            if (qAbs(numbers.last()) > 1'000'000'000'000)
                return {};
            continue;
        }
        numbers.removeLast();
        QList<int> exact;
        QList<int> starting;
        for (int i = 1; i <= calendar.months.size(); ++i) {
            const QString name = calendar.months[i - 1].name.toLower();
            if (name == lower)
                exact.append(i);
            if (name.startsWith(lower))
                starting.append(i);
        }
        if (month != 0 || (exact.isEmpty() && starting.size() != 1))
            return {};
        month = exact.isEmpty() ? starting.first() : exact.first();
        isNumberFirst = !numbers.isEmpty();
    }
    if (numbers.size() != (month != 0 && numbers.size() == 2 ? 2 : 1))
        return {};
    if (numbers.size() == 1 && month != 0 && isNumberFirst)
        return {};
    date.month = month != 0 ? month : 1;
    date.year = numbers.last();
    if (numbers.size() == 2) {
        if (numbers[0] < 1 || numbers[0] > calendar.months[month - 1].days)
            return {};
        date.day = int(numbers[0]);
    }
    return date;
}

} // namespace

class TestDateParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses_data();
    void parses();
    void parsesOddCalendars_data();
    void parsesOddCalendars();
    void parsesAsSlowlyDescribed();
    void readsBackWhatIsShown();
};

void TestDateParser::parses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("date");

    const auto row = [](const char *text, const char *date) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromLatin1(date);
    };
    row("", "no date");
    row(" \t\n ", "no date");
    row(",,,", "no date");
    row("1250", "1250-1-1 00:00");
    row("-3", "-3-1-1 00:00");
    row("+5", "5-1-1 00:00");
    row("Year 5", "5-1-1 00:00");
    row("yEaR -0", "0-1-1 00:00");
    row("Year", "no date");
    row("1 2", "no date");
    row("March", "no date");
    row("March 1270", "1270-3-1 00:00");
    row("mar 1270", "1270-3-1 00:00");
    row("Ju 1270", "no date");
    row("Jul 1270", "1270-7-1 00:00");
    row("3 March", "no date");
    row("3 March 1270", "1270-3-3 00:00");
    row("March 3 1270", "1270-3-3 00:00");
    row("3 1270 March", "1270-3-3 00:00");
    row("3,March,,1270", "1270-3-3 00:00");
    row("3\xc2\xa0March\t1270", "1270-3-3 00:00");
    row("3 March, Year 1270, 07:30", "1270-3-3 07:30");
    row("1 March 3", "3-3-1 00:00");
    row("31 February 1270", "no date");
    row("0 March 1270", "no date");
    row("-1 March 1270", "no date");
    row("31 March -1270", "-1270-3-31 00:00");
    row("3 March April 1270", "no date");
    row("1 2 March 3", "no date");
    row("7:05 1250", "1250-1-1 07:05");
    row("1250 23:59", "1250-1-1 23:59");
    row("25:00 1 March 3", "no date");
    row("24:00 3", "no date");
    row("23:60 3", "no date");
    row("12:5 March 3", "no date");
    row("12:345 3", "no date");
    row("123:45 3", "no date");
    row("x12:30 3", "no date");
    row("12:30", "no date");
    row("1:02:03 3", "no date");
    row("12:30 13:30 3", "no date");
    row("3,12:30,March 5", "5-3-3 12:30");
    row("1000000000000", "1000000000000-1-1 00:00");
    row("-1000000000000", "-1000000000000-1-1 00:00");
    row("1000000000001", "no date");
    row("9223372036854775807", "no date");
    row("9223372036854775808", "no date");
    row("-9223372036854775809", "no date");
    row("+", "no date");
    row("--5", "no date");
    row("5.0", "no date");
    row("\xd9\xa5", "no date");
    row("99 Smarch 1270", "no date");
}

void TestDateParser::parses()
{
    QFETCH(QString, text);
    QTEST(shown(parseInstant(Calendar::defaultCalendar(), text)), "date");
}

void TestDateParser::parsesOddCalendars_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("date");

    const auto row = [](const char *text, const char *date) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromLatin1(date);
    };
    row("FROST 5", "5-1-1 00:00");
    row("Frostf 5", "5-2-1 00:00");
    row("Fros 5", "no date");
    row("\xc3\xa9lan 5", "5-3-1 00:00");
    row("Void 5", "5-4-1 00:00");
    row("1 Void 5", "no date");
    row("15 Twin 5", "no date");
    row("9 Twin 5", "5-5-9 00:00");
    row("Twi 5", "no date");
    row("Deep 5", "5-7-1 00:00");
    row("Deep Low 5", "no date");
    row("99999999999999999999 5", "5-8-1 00:00");
    row("99999999999999999999 -5", "-5-8-1 00:00");
    row("Year 5 AR", "5-1-1 00:00");
    row("A 5", "5-10-1 00:00");
    row("77 5", "no date");
}

void TestDateParser::parsesOddCalendars()
{
    QFETCH(QString, text);
    QTEST(shown(parseInstant(odd(), text)), "date");
}

void TestDateParser::parsesAsSlowlyDescribed()
{
    const QStringList tokens =
        QStringLiteral("3|12|1270|-5|+7|:|12:30|7:05|25:00|1:2|99:99|March|mar|J|YEAR|AR|,|_|"
                       "\u00e9|\u0665|a|x|Twin|99999999999999999999|1000000000001|77")
            .split(QLatin1Char('|'));
    QRandomGenerator random(5);
    int dates = 0;
    for (int i = 0; i < 40'000; ++i) {
        QString text;
        for (int count = random.bounded(6); count >= 0; --count)
            text += tokens[random.bounded(int(tokens.size()))]
                    + QString(random.bounded(5) / 2, QLatin1Char(' '));
        const Calendar calendar = i % 2 ? odd() : Calendar::defaultCalendar();
        const Expected expected = parseSlowly(calendar, text);
        dates += expected.has_value();
        QVERIFY2(parseInstant(calendar, text) == expected, qPrintable(text));
    }
    QVERIFY(dates > 1000);
}

void TestDateParser::readsBackWhatIsShown()
{
    Calendar calendar = Calendar::defaultCalendar();
    QRandomGenerator random(9);
    for (const char *era : {"", "AR", "%1"}) {
        calendar.eraName = QString::fromLatin1(era);
        for (int i = 0; i < 200; ++i) {
            const qint64 instant = qint64(random.generate64()) >> (12 + random.bounded(50));
            const Expected date = parseInstant(calendar, formatInstant(calendar, instant));
            if (calendar.eraName == QLatin1String("7") && !date)
                continue; // the day 7 is the era
            QVERIFY(date);
            QCOMPARE(shown(date), shown(breakDown(calendar, instant)));
        }
    }
}

QTEST_GUILESS_MAIN(TestDateParser)
#include "tst_dateparser.moc"
