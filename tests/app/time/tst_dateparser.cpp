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

} // namespace

class TestDateParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses_data();
    void parses();
    void parsesOddCalendars_data();
    void parsesOddCalendars();
    void findsTheTimeAsItsPatternDoes();
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

void TestDateParser::findsTheTimeAsItsPatternDoes()
{
    static const QRegularExpression pattern(QStringLiteral("\\b(\\d{1,2}):(\\d{2})\\b"));
    const QString letters = QStringLiteral("0123::::  _a\u00e9\u0665,-");
    QRandomGenerator random(5);
    int withTime = 0;
    for (int i = 0; i < 20'000; ++i) {
        QString text;
        for (int length = random.bounded(12); length >= 0; --length)
            text += letters[random.bounded(int(letters.size()))];
        const QRegularExpressionMatch match = pattern.match(text);
        // What is left may be anything: only the time itself is compared, beside a plain year.
        QString year = text;
        year.replace(QRegularExpression(QStringLiteral("[^0-9:_a\u00e9\u0665-]")),
                     QStringLiteral(" "));
        Expected expected;
        QString rest = year;
        const bool isTime = match.hasMatch() && match.capturedView(1).toInt() <= 23
                            && match.capturedView(2).toInt() <= 59;
        if (isTime)
            rest.remove(match.capturedStart(), match.capturedLength());
        if (!match.hasMatch() || isTime)
            expected = parseInstant(Calendar::defaultCalendar(), rest);
        if (isTime && expected) {
            if (expected->hour != 0 || expected->minute != 0)
                continue; // a second time of day
            expected->hour = match.capturedView(1).toInt();
            expected->minute = match.capturedView(2).toInt();
            ++withTime;
        } else if (isTime && pattern.match(rest).hasMatch()) {
            continue;
        }
        QVERIFY2(parseInstant(Calendar::defaultCalendar(), text) == expected, qPrintable(text));
    }
    QVERIFY(withTime > 100);
}

void TestDateParser::readsBackWhatIsShown()
{
    Calendar calendar = Calendar::defaultCalendar();
    QRandomGenerator random(9);
    for (const char *era : {"", "AR", "%1", "7"}) {
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
