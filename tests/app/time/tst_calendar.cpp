#include "app/time/calendarmath.h"
#include "app/time/calendartext.h"
#include "app/time/instant.h"
#include "app/time/reckoningview.h"

#include <QtTest/QtTest>

#include <limits>

using namespace vl::app;
using vl::core::Calendar;
using vl::core::Reckoning;

Q_DECLARE_METATYPE(vl::app::CalendarDate)

namespace {

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();
constexpr qint32 longMonth = std::numeric_limits<qint32>::max();

/// A calendar whose months are named A, B, C and so on.
Calendar withDays(const QList<qint32> &days, const QString &era = {})
{
    Calendar calendar;
    for (const qint32 count : days)
        calendar.months.append(
            {QString(QChar(char16_t(u'A' + calendar.months.size() % 26))), count});
    calendar.eraName = era;
    return calendar;
}

Calendar plain()
{
    return Calendar::defaultCalendar();
}

Calendar withEra(const QString &era)
{
    Calendar calendar = plain();
    calendar.eraName = era;
    return calendar;
}

} // namespace

class TestCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void breaksDownAndBack_data();
    void breaksDownAndBack();
    void givesBackEveryInstant();
    void takesAnyDate_data();
    void takesAnyDate();
    void countsDaysOfAYear_data();
    void countsDaysOfAYear();
    void formats_data();
    void formats();
    void countsFromAnotherEpoch();
};

void TestCalendar::breaksDownAndBack_data()
{
    QTest::addColumn<Calendar>("calendar");
    QTest::addColumn<qint64>("instant");
    QTest::addColumn<CalendarDate>("date");
    QTest::addColumn<qint64>("back");

    const auto row = [](const char *name, const Calendar &calendar, qint64 instant,
                        const CalendarDate &date) {
        QTest::newRow(name) << calendar << instant << date << instant;
    };
    row("the beginning", plain(), 0, {1, 1, 1, 0, 0});
    row("the minute before", plain(), -1, {0, 12, 31, 23, 59});
    row("the day before", plain(), -1440, {0, 12, 31, 0, 0});
    row("the year before", plain(), -525600, {0, 1, 1, 0, 0});
    row("a minute of the year before that", plain(), -525601, {-1, 12, 31, 23, 59});
    row("March follows the 28th", plain(), 59 * 1440, {1, 3, 1, 0, 0});
    row("the first minute of all", plain(), lowest, {-17548272520652, 11, 3, 5, 52});
    row("the last minute of all", plain(), highest, {17548272520653, 2, 28, 18, 7});
    row("one month of one day, first", withDays({1}), lowest, {-6405119470038038, 1, 1, 5, 52});
    row("one month of one day, last", withDays({1}), highest, {6405119470038039, 1, 1, 18, 7});
    row("a month without days is passed", withDays({0, 2, 0, 1}), 2 * 1440, {1, 4, 1, 0, 0});
    row("days beyond 32 bits", withDays({longMonth, longMonth, 5}),
        qint64(longMonth) * 2 * 1440 + 90, {1, 3, 1, 1, 30});
    row("the last day of a long month", withDays({longMonth}), (qint64(longMonth) - 1) * 1440,
        {1, 1, longMonth, 0, 0});
    row("a negative month gives its days on", withDays({2, -1, 4}), 3 * 1440, {1, 3, 3, 0, 0});

    QTest::newRow("no months") << withDays({}) << qint64(100'000) << CalendarDate{1, 1, 1, 10, 40}
                               << qint64(640);
    QTest::newRow("no days") << withDays({0, 0}) << qint64(-1) << CalendarDate{1, 1, 1, 23, 59}
                             << qint64(1439);
    QTest::newRow("fewer days than none")
        << withDays({-5}) << highest << CalendarDate{1, 1, 1, 18, 7} << qint64(1087);
    row("negative at the end", withDays({4, -2}), 3 * 1440, {2, 1, 2, 0, 0});
    row("negative at the beginning", withDays({-2, 1, 2}), 0, {1, 3, 2, 0, 0});
}

void TestCalendar::breaksDownAndBack()
{
    QFETCH(Calendar, calendar);
    QFETCH(qint64, instant);
    QFETCH(CalendarDate, date);
    QFETCH(qint64, back);

    const CalendarDate found = breakDown(calendar, instant);
    QCOMPARE(found.year, date.year);
    QCOMPARE(found.month, date.month);
    QCOMPARE(found.day, date.day);
    QCOMPARE(found.hour, date.hour);
    QCOMPARE(found.minute, date.minute);
    QCOMPARE(toInstant(calendar, found), back);
}

void TestCalendar::givesBackEveryInstant()
{
    QRandomGenerator random(31);
    QList<qint32> many(100'000, 1);
    many[50'000] = longMonth;
    const Calendar calendars[] = {plain(),
                                  withDays({1}),
                                  withDays({0, 7, 0, 0, 400, 1}),
                                  withDays({longMonth, longMonth, longMonth}),
                                  withDays(many),
                                  withDays({5, -9, 11, -3})};
    for (const Calendar &calendar : calendars) {
        for (int i = 0; i < 300; ++i) {
            const auto instant = qint64(random.generate64()) >> random.bounded(64);
            const CalendarDate date = breakDown(calendar, instant);
            QVERIFY(date.day >= 1 && date.day <= calendar.months.at(date.month - 1).days);
            QCOMPARE(toInstant(calendar, date), instant);
        }
    }
}

void TestCalendar::takesAnyDate_data()
{
    QTest::addColumn<Calendar>("calendar");
    QTest::addColumn<CalendarDate>("date");
    QTest::addColumn<qint64>("instant");

    constexpr qint32 least = std::numeric_limits<qint32>::min();
    constexpr qint32 most = std::numeric_limits<qint32>::max();
    QTest::newRow("day 40 runs on") << plain() << CalendarDate{1, 1, 40, 0, 0} << qint64(39 * 1440);
    QTest::newRow("day 0 runs back") << plain() << CalendarDate{1, 1, 0, 0, 0} << qint64(-1440);
    QTest::newRow("month 0 counts as the first")
        << plain() << CalendarDate{1, 0, 1, 0, 0} << qint64(0);
    QTest::newRow("month 99 is past the last")
        << plain() << CalendarDate{1, 99, 1, 0, 0} << qint64(525600);
    QTest::newRow("hours and minutes run on")
        << plain() << CalendarDate{1, 1, 1, 25, 61} << qint64(1440 + 121);
    QTest::newRow("the farthest future")
        << plain() << CalendarDate{highest, most, most, most, most} << highest;
    QTest::newRow("the farthest past")
        << plain() << CalendarDate{lowest, least, least, least, least} << lowest;
    QTest::newRow("long years of the future")
        << withDays({longMonth, longMonth}) << CalendarDate{highest, 1, 1, 0, 0} << highest;
    QTest::newRow("negative years turn round")
        << withDays({-longMonth, -longMonth}) << CalendarDate{highest, 1, 1, 0, 0} << lowest;
    QTest::newRow("no year counts without days")
        << withDays({}) << CalendarDate{highest, 7, 2, 0, 1} << qint64(1441);
}

void TestCalendar::takesAnyDate()
{
    QFETCH(Calendar, calendar);
    QFETCH(CalendarDate, date);
    QFETCH(qint64, instant);
    QCOMPARE(toInstant(calendar, date), instant);
}

void TestCalendar::countsDaysOfAYear_data()
{
    QTest::addColumn<Calendar>("calendar");
    QTest::addColumn<int>("days");

    QTest::newRow("default") << plain() << 365;
    QTest::newRow("none") << withDays({}) << 0;
    QTest::newRow("too many") << withDays({longMonth, 1}) << longMonth;
    QTest::newRow("too few") << withDays({-longMonth, -longMonth})
                             << std::numeric_limits<int>::min();
    QTest::newRow("back within bounds")
        << withDays({longMonth, longMonth, -longMonth}) << longMonth;
}

void TestCalendar::countsDaysOfAYear()
{
    QFETCH(Calendar, calendar);
    QFETCH(int, days);
    QCOMPARE(daysPerYear(calendar), days);
}

void TestCalendar::formats_data()
{
    QTest::addColumn<Calendar>("calendar");
    QTest::addColumn<qint64>("instant");
    QTest::addColumn<QString>("text");

    Calendar odd = withDays({10, 10}, QStringLiteral("%3 of %1"));
    odd.months[0].name = QStringLiteral("%2%1");
    const auto row = [](const char *name, const Calendar &calendar, qint64 instant,
                        const char *text) {
        QTest::newRow(name) << calendar << instant << QString::fromUtf8(text);
    };
    row("midnight", plain(), 0, "1 January, Year 1");
    row("next year", plain(), 525600, "1 January, Year 2");
    row("half past one", plain(), 90, "1 January, Year 1, 01:30");
    row("on the hour", plain(), 60 * 13, "1 January, Year 1, 13:00");
    row("before Year 0", plain(), -525601, "31 December, Year -1, 23:59");
    row("with an era", withEra(QStringLiteral("AR")), (1269 * 365 + 61) * 1440,
        "3 March, Year 1270 AR");
    row("era before the time", withEra(QStringLiteral("AR")), 5, "1 January, Year 1 AR, 00:05");
    row("percent signs in names", odd, 61, "1 %2%1, Year 1 %3 of %1, 01:01");
    row("no months", withDays({}), 600, "1 1, Year 1, 10:00");
    row("negative months", withDays({-2, 1, 2}), 0, "2 C, Year 1");
}

void TestCalendar::formats()
{
    QFETCH(Calendar, calendar);
    QFETCH(qint64, instant);
    QFETCH(QString, text);
    QCOMPARE(formatInstant(calendar, instant), text);
}

void TestCalendar::countsFromAnotherEpoch()
{
    Reckoning reckoning = newReckoning(withEra(QStringLiteral("of the Republic")));
    reckoning.epochOffsetMinutes = epochOfPrimaryYear(plain(), 1271);
    QCOMPARE(reckoning.name, QStringLiteral("New reckoning"));
    QCOMPARE(primaryYearOfEpoch(plain(), reckoning), 1271);
    QCOMPARE(formatInstant(reckoning, toInstant(plain(), {1271, 1, 1, 0, 0})),
             QStringLiteral("1 January, Year 1 of the Republic"));
    QCOMPARE(primaryInstant(reckoning, reckoningInstant(reckoning, -77)), -77);

    QCOMPARE(reckoningInstant(reckoning, lowest), lowest);
    QCOMPARE(primaryInstant(reckoning, highest), highest);
    for (const qint64 year : {lowestEpochYear, highestEpochYear})
        QCOMPARE(breakDown(plain(), epochOfPrimaryYear(plain(), year)).year, year);
}

QTEST_GUILESS_MAIN(TestCalendar)
#include "tst_calendar.moc"
