#include "app/time/calendarmath.h"
#include "app/time/timeruler.h"

#include <QtTest/QtTest>

#include <limits>

using namespace vl::app;
using vl::core::Calendar;

Q_DECLARE_METATYPE(vl::app::TickStep)
Q_DECLARE_METATYPE(vl::app::TickUnit)

namespace {

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();
constexpr qint64 day = 1440;
constexpr qint64 year = 365 * day;
constexpr qint64 reach = 5'760'000'000'000'000;

Calendar plain()
{
    return Calendar::defaultCalendar();
}

/// Three months, two of the same longest name's length, and an era that looks like a placeholder.
Calendar strange()
{
    Calendar calendar;
    calendar.months = {
        {QStringLiteral("%1x"), 2}, {QStringLiteral("%2y"), 3}, {QStringLiteral("z"), 5}};
    calendar.eraName = QStringLiteral("%1");
    return calendar;
}

Calendar withDays(const QList<qint32> &days)
{
    Calendar calendar;
    for (const qint32 count : days)
        calendar.months.append({QStringLiteral("m"), count});
    return calendar;
}

} // namespace

class TestTimeRuler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labels_data();
    void labels();
    void measures_data();
    void measures();
    void listsItsSteps();
    void choosesAStep();
    void knowsNominalLengths_data();
    void knowsNominalLengths();
    void findsTheFirstTick_data();
    void findsTheFirstTick();
    void ticksARange_data();
    void ticksARange();
    void ticksAsTheFirstTickRuleSays();
};

void TestTimeRuler::labels_data()
{
    QTest::addColumn<Calendar>("calendar");
    QTest::addColumn<TickUnit>("unit");
    QTest::addColumn<qint64>("instant");
    QTest::addColumn<QString>("tick");
    QTest::addColumn<QString>("context");

    const auto row = [](const char *name, const Calendar &calendar, TickUnit unit, qint64 instant,
                        const char *tick, const char *context) {
        QTest::newRow(name) << calendar << unit << instant << QString::fromLatin1(tick)
                            << QString::fromLatin1(context);
    };
    const qint64 march = 1269 * year + 61 * day + 425;
    Calendar era = plain();
    era.eraName = QStringLiteral("AR");
    row("minute", plain(), TickUnit::Minute, march, "07:05", "3 March 1270");
    row("hour with era", era, TickUnit::Hour, march, "07:05", "3 March 1270 AR");
    row("day with era", era, TickUnit::Day, march, "3", "March 1270 AR");
    row("month with era", era, TickUnit::Month, march, "March", "1270 AR");
    row("year with era", era, TickUnit::Year, march, "1270 AR", "");
    row("before the beginning", plain(), TickUnit::Year, -1, "0", "");
    row("percent signs", strange(), TickUnit::Hour, 2 * day, "00:00", "1 %2y 1 %1");
    row("no months, hour", Calendar(), TickUnit::Hour, 90, "01:30", "1  1");
    row("no months, day", Calendar(), TickUnit::Day, 90, "1", " 1");
    row("no months, month", Calendar(), TickUnit::Month, 90, "1", "1");
}

void TestTimeRuler::labels()
{
    QFETCH(Calendar, calendar);
    QFETCH(TickUnit, unit);
    QFETCH(qint64, instant);
    QTEST(tickLabel(calendar, unit, instant), "tick");
    QTEST(contextLabel(calendar, unit, instant), "context");
}

void TestTimeRuler::measures_data()
{
    QTest::addColumn<Calendar>("calendar");
    QTest::addColumn<TickUnit>("unit");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("context");

    const auto row = [](const char *name, const Calendar &calendar, TickUnit unit,
                        const char *label, const char *context) {
        QTest::newRow(name) << calendar << unit << QString::fromLatin1(label)
                            << QString::fromLatin1(context);
    };
    row("minute", plain(), TickUnit::Minute, "00:00", "00 September -0000");
    row("hour", strange(), TickUnit::Hour, "00:00", "00 %1x -0000 %1");
    row("day", plain(), TickUnit::Day, "00", "September -0000");
    row("month", plain(), TickUnit::Month, "September", "-0000");
    row("the first of equal months", strange(), TickUnit::Month, "%1x", "-0000 %1");
    row("year", plain(), TickUnit::Year, "-0000", "");
    row("year with era", strange(), TickUnit::Year, "-0000 %1", "");
    row("no months", Calendar(), TickUnit::Month, "", "-0000");
}

void TestTimeRuler::measures()
{
    QFETCH(Calendar, calendar);
    QFETCH(TickUnit, unit);
    QTEST(widestLabel(calendar, unit), "label");
    QTEST(widestContext(calendar, unit), "context");
}

void TestTimeRuler::listsItsSteps()
{
    const QList<TickStep> &steps = tickSteps();
    QCOMPARE(steps.size(), 39);
    QCOMPARE(steps[14], (TickStep{TickUnit::Month, 6}));
    QCOMPARE(steps[15], (TickStep{TickUnit::Year, 1}));
    QCOMPARE(steps[19], (TickStep{TickUnit::Year, 20}));
    QCOMPARE(steps.last(), (TickStep{TickUnit::Year, 50'000'000}));
    for (qsizetype i = 1; i < steps.size(); ++i)
        QVERIFY(nominalLength(plain(), steps[i - 1]) < nominalLength(plain(), steps[i]));
}

void TestTimeRuler::choosesAStep()
{
    const auto needed = [](TickUnit unit) { return unit == TickUnit::Month ? 200.0 : 60.0; };
    QCOMPARE(chooseTickStep(plain(), 60, needed), (TickStep{TickUnit::Minute, 1}));
    QCOMPARE(chooseTickStep(plain(), 59.9, needed), (TickStep{TickUnit::Minute, 5}));
    QCOMPARE(chooseTickStep(plain(), 60.0 / (10 * day), needed), (TickStep{TickUnit::Day, 10}));
    QCOMPARE(chooseTickStep(plain(), 59.0 / (10 * day), needed), (TickStep{TickUnit::Month, 3}));
    QCOMPARE(chooseTickStep(plain(), 1e-30, needed), tickSteps().last());
}

void TestTimeRuler::knowsNominalLengths_data()
{
    QTest::addColumn<Calendar>("calendar");
    QTest::addColumn<TickStep>("step");
    QTest::addColumn<qint64>("length");

    QTest::newRow("minutes") << plain() << TickStep{TickUnit::Minute, 15} << qint64(15);
    QTest::newRow("hours") << plain() << TickStep{TickUnit::Hour, 6} << qint64(360);
    QTest::newRow("days") << plain() << TickStep{TickUnit::Day, 5} << 5 * day;
    QTest::newRow("months of 30 whole days") << plain() << TickStep{TickUnit::Month, 3} << 90 * day;
    QTest::newRow("years") << plain() << TickStep{TickUnit::Year, 20} << 20 * year;
    QTest::newRow("no months") << Calendar() << TickStep{TickUnit::Month, 3} << 3 * day;
    QTest::newRow("negative year") << withDays({-9, 2}) << TickStep{TickUnit::Year, 3} << 3 * day;
    QTest::newRow("more months than days")
        << withDays({1, 0, 0}) << TickStep{TickUnit::Month, 6} << qint64(0);
    QTest::newRow("count below 1") << plain() << TickStep{TickUnit::Hour, lowest} << qint64(60);
    for (const TickUnit unit :
         {TickUnit::Minute, TickUnit::Hour, TickUnit::Day, TickUnit::Month, TickUnit::Year})
        QTest::addRow("longest %d", int(unit)) << plain() << TickStep{unit, highest} << highest;
}

void TestTimeRuler::knowsNominalLengths()
{
    QFETCH(Calendar, calendar);
    QFETCH(TickStep, step);
    QTEST(nominalLength(calendar, step), "length");
}

void TestTimeRuler::findsTheFirstTick_data()
{
    QTest::addColumn<Calendar>("calendar");
    QTest::addColumn<TickStep>("step");
    QTest::addColumn<qint64>("instant");
    QTest::addColumn<qint64>("tick");

    const auto row = [](const char *name, const Calendar &calendar, TickStep step, qint64 instant,
                        qint64 tick) {
        QTest::newRow(name) << calendar << step << instant << tick;
    };
    row("on the quarter", plain(), {TickUnit::Minute, 15}, -15, -15);
    row("after the quarter", plain(), {TickUnit::Minute, 15}, -14, 0);
    row("days", plain(), {TickUnit::Day, 10}, 1, 10 * day);
    row("month", plain(), {TickUnit::Month, 1}, 1, 31 * day);
    row("quarter of Year 0", plain(), {TickUnit::Month, 3}, -1, 0);
    row("month on the grid", plain(), {TickUnit::Month, 3}, -92 * day, -92 * day);
    row("across a month without days", withDays({5, 0, 5}), {TickUnit::Month, 1}, 1, 5 * day);
    row("year", plain(), {TickUnit::Year, 1}, year + 1, 2 * year);
    row("round years", plain(), {TickUnit::Year, 10}, 0, 9 * year);
    row("round years before 0", plain(), {TickUnit::Year, 10}, -12 * year, -11 * year);
    row("no months", Calendar(), {TickUnit::Month, 3}, -5, 0);
    row("no months, afterwards", Calendar(), {TickUnit::Year, 5}, 5, 0);
    row("one step of all minutes", plain(), {TickUnit::Minute, highest}, 1, highest);
    row("first minute", plain(), {TickUnit::Hour, 1}, lowest, lowest + 8);
    row("last minute", plain(), {TickUnit::Hour, 1}, highest, highest);
    row("first month", plain(), {TickUnit::Month, highest}, lowest, -year);
    row("last month", plain(), {TickUnit::Month, highest}, highest, highest);
    row("first year", plain(), {TickUnit::Year, highest}, lowest, -year);
    row("last year", plain(), {TickUnit::Year, 1}, highest, highest);
    row("months that run back", withDays({3, 3, -5, 1}), {TickUnit::Month, 1}, lowest,
        lowest + 2528);
}

void TestTimeRuler::findsTheFirstTick()
{
    QFETCH(Calendar, calendar);
    QFETCH(TickStep, step);
    QFETCH(qint64, instant);
    QTEST(firstTick(calendar, step, instant), "tick");
}

void TestTimeRuler::ticksARange_data()
{
    QTest::addColumn<Calendar>("calendar");
    QTest::addColumn<TickStep>("step");
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("end");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QList<qint64>>("ticks");

    const auto row = [](const char *name, const Calendar &calendar, TickStep step, qint64 start,
                        qint64 end, int limit, const QList<qint64> &ticks) {
        QTest::newRow(name) << calendar << step << start << end << limit << ticks;
    };
    row("both ends", plain(), {TickUnit::Hour, 12}, -720, 720, 99, {-720, 0, 720});
    row("months", plain(), {TickUnit::Month, 1}, -1, 60 * day, 99, {0, 31 * day, 59 * day});
    row("years", plain(), {TickUnit::Year, 2}, -2 * year, 2 * year, 99, {-year, year});
    row("limited", plain(), {TickUnit::Minute, 1}, 0, 100, 3, {0, 1, 2});
    row("empty range", plain(), {TickUnit::Minute, 1}, 5, 5, 99, {});
    row("reversed range", plain(), {TickUnit::Minute, 1}, 5, 4, 99, {});
    row("starts too early", plain(), {TickUnit::Year, 1}, -reach - 1, 0, 99, {});
    row("ends too late", plain(), {TickUnit::Year, 1}, 0, reach + 1, 99, {});
    row("just reached", withDays({4'000}), {TickUnit::Day, 2'000'000'000'000}, -reach, reach, 99,
        {-2'880'000'000'000'000 * 2, -2'880'000'000'000'000, 0, 2'880'000'000'000'000, reach});
    row("the whole of time", plain(), {TickUnit::Minute, 1}, lowest, highest, 99, {});
    row("months without days add none", withDays({2, 0, 0, 1}), {TickUnit::Month, 1}, 0, 4 * day,
        99, {0, 2 * day, 3 * day});
    row("no months", Calendar(), {TickUnit::Month, 1}, -10, 10, 99, {0});
    row("no months, afterwards", Calendar(), {TickUnit::Month, 1}, 10, 20, 99, {});
    row("years that run back", withDays({-3}), {TickUnit::Year, 1}, -10 * day, 10 * day, 99, {0});
    row("no days in a hundred thousand months", withDays(QList<qint32>(100'000)),
        {TickUnit::Month, 1}, -day, day, 99, {0});
}

void TestTimeRuler::ticksARange()
{
    QFETCH(Calendar, calendar);
    QFETCH(TickStep, step);
    QFETCH(qint64, start);
    QFETCH(qint64, end);
    QFETCH(int, limit);
    QTEST(ticksInRange(calendar, step, start, end, limit), "ticks");
}

void TestTimeRuler::ticksAsTheFirstTickRuleSays()
{
    QRandomGenerator random(7);
    for (const TickStep &step : tickSteps()) {
        for (const Calendar &calendar : {plain(), strange()}) {
            const qint64 length = nominalLength(calendar, step);
            const qint64 start = random.bounded(-100, 100) * length + random.bounded(1000);
            const QList<qint64> ticks = ticksInRange(calendar, step, start, start + 30 * length);
            QVERIFY(ticks.size() >= 25);
            qint64 from = start;
            for (const qint64 tick : ticks) {
                QCOMPARE(tick, firstTick(calendar, step, from));
                from = tick + 1;
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestTimeRuler)
#include "tst_timeruler.moc"
