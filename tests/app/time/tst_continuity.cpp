#include "slowcontinuity.h"

#include <QtTest/QtTest>

#include <limits>

using namespace vl::app;
using namespace vl::core;

namespace {

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();

/// The id number n, in ascending order.
ContentId id(quint32 n)
{
    return ContentId(QUuid(n, 1, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, 0));
}

// The cast of all small stories below.
const ContentId ann = id(1);
const ContentId bob = id(2);
const ContentId nameless = id(3);
const ContentId town = id(11);
const ContentId port = id(12);
const ContentId keep = id(13);
const ContentId gone = id(99);
constexpr quint32 firstEvent = 1000;

void addEntity(Project &project, const ContentId &which, const char *name)
{
    QVERIFY(project.add(std::make_unique<Entity>(which, ContentId(), QString::fromLatin1(name))));
}

void addMap(Project &project, const ContentId &which, double speed, const QList<MapRoute> &routes)
{
    auto map = std::make_unique<Map>(which, QString());
    map->setTravelSettings({speed, {}, 0});
    map->setRoutes(routes);
    QVERIFY(project.add(std::move(map)));
}

TimelineEventData at(const ContentId &place, qint64 start, qint64 duration,
                     const QList<ContentId> &who = {ann})
{
    TimelineEventData data;
    data.startMinute = start;
    data.durationMinutes = duration;
    data.locationId = place;
    data.participants = who;
    return data;
}

TimelineEventData when(qint64 start, qint64 duration,
                       const QList<EventConstraint> &constraints = {})
{
    TimelineEventData data = at({}, start, duration, {});
    data.constraints = constraints;
    return data;
}

/// Two roads of 10 and 20 leagues at 5 an hour from the town, to the port and from the keep.
void fillWorld(Project &project)
{
    addEntity(project, ann, "Ann");
    addEntity(project, bob, "Bob %1 %2");
    addEntity(project, nameless, "");
    addEntity(project, town, "Town");
    addEntity(project, port, "Port");
    addEntity(project, keep, "");
    project.find<Entity>(bob)->setLifespan({1000, 2000});
    addMap(project, id(50), 5, {{town, port, 10}, {keep, town, 20}, {town, town, 999}});
    addMap(project, id(51), 1, {{port, town, 50}, {port, keep, -1}, {port, {}, 5}, {{}, keep, 5}});
    addMap(project, id(52), 0, {{port, keep, 100}});
    addMap(project, id(53), -3, {{port, keep, 100}});
}

QString text(const QList<TimelineConflict> &conflicts)
{
    QStringList lines;
    for (const TimelineConflict &conflict : conflicts) {
        QStringList numbers;
        for (const ContentId &event : conflict.eventIds)
            numbers.append(QString::number(event.uuid().data1 - firstEvent));
        lines.append(conflict.message + QStringLiteral(" [") + numbers.join(QLatin1Char(' '))
                     + QLatin1Char(']'));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

Q_DECLARE_METATYPE(vl::core::ContinuityRule)

class TestContinuity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void intersects_data();
    void intersects();
    void finds_data();
    void finds();
    void looksIntoMountedLibraries();
    void stopsAtItsLimit();
    void findsWhatAllPairsFind_data();
    void findsWhatAllPairsFind();
    void checksRules_data();
    void checksRules();
};

void TestContinuity::intersects_data()
{
    QTest::addColumn<qint64>("a0");
    QTest::addColumn<qint64>("a1");
    QTest::addColumn<qint64>("b0");
    QTest::addColumn<qint64>("b1");
    QTest::addColumn<QString>("common");

    const auto row = [](const char *name, qint64 a0, qint64 a1, qint64 b0, qint64 b1,
                        const char *common) {
        QTest::newRow(name) << a0 << a1 << b0 << b1 << QString::fromLatin1(common);
    };
    row("equal points", 5, 5, 5, 5, "5-5");
    row("other points", 5, 5, 6, 6, "");
    row("point at the start", 5, 5, 5, 9, "5-5");
    row("point within", 7, 7, 5, 9, "7-7");
    row("point at the end", 9, 9, 5, 9, "");
    row("overlap", 0, 7, 5, 9, "5-7");
    row("one within the other", 0, 20, 5, 9, "5-9");
    row("touching ends", 0, 5, 5, 9, "");
    row("reversed within a longer one", 0, 20, 9, 5, "9-5");
    row("reversed at the edge", 5, 20, 9, 5, "");
}

void TestContinuity::intersects()
{
    QFETCH(qint64, a0);
    QFETCH(qint64, a1);
    QFETCH(qint64, b0);
    QFETCH(qint64, b1);
    const auto shown = [](const std::optional<Interval> &found) {
        return found ? QStringLiteral("%1-%2").arg(found->start).arg(found->end) : QString();
    };
    QTEST(shown(intersectIntervals({a0, a1}, {b0, b1})), "common");
    QTEST(shown(intersectIntervals({b0, b1}, {a0, a1})), "common");
}

void TestContinuity::finds_data()
{
    QTest::addColumn<QList<TimelineEventData>>("events"); // titled A, B, C and so on
    QTest::addColumn<QString>("conflicts");

    using Events = QList<TimelineEventData>;
    const auto row = [](const char *name, const Events &events, const char *conflicts) {
        QTest::newRow(name) << events << QString::fromLatin1(conflicts);
    };
    row("nothing", {}, "");
    row("lost place and people", {at(gone, 0, 1, {gone, {}, ann, gone, id(98)})},
        "\"A\" happens at a location that no longer exists. [0]\n"
        "\"A\" lists a participant that no longer exists. [0]\n"
        "\"A\" lists a participant that no longer exists. [0]");
    row("a place and a person that are no entities", {at(id(50), 0, 1, {id(51)})},
        "\"A\" happens at a location that no longer exists. [0]\n"
        "\"A\" lists a participant that no longer exists. [0]");
    row("two places at one minute", {at(port, 5, 0), at(keep, 5, 0)},
        "Ann is in two places at once: \"A\" and \"B\". [0 1]");
    row("a lost place is elsewhere", {at(gone, 5, 9), at(keep, 6, 1)},
        "\"A\" happens at a location that no longer exists. [0]\n"
        "Ann is in two places at once: \"A\" and \"B\". [0 1]");
    row("the same place, no place", {at(town, 5, 9), at(town, 6, 1), at({}, 6, 1)}, "");
    row("people in id order, listed twice",
        {at(port, 9, 9, {nameless, ann, ann}), at(keep, 8, 9, {ann, nameless})},
        "Ann is in two places at once: \"A\" and \"B\". [0 1]\n"
        "An entity is in two places at once: \"A\" and \"B\". [0 1]");
    row("touching ends leave no time to travel", {at(town, 0, 10), at(port, 10, 10)},
        "Ann cannot travel from Town to Port in time between \"A\" and \"B\". [0 1]");
    row("just in time", {at(town, 0, 10), at(port, 130, 10)}, "");
    row("a minute late, later event first in the list", {at(port, 129, 10), at(town, 0, 10)},
        "Ann cannot travel from Town to Port in time between \"B\" and \"A\". [1 0]");
    row("the longer way, to a place without a name", {at(town, 0, 10), at(keep, 249, 10)},
        "Ann cannot travel from Town to An entity in time between \"A\" and \"B\". [0 1]");
    row("no chain of routes", {at(port, 0, 10), at(keep, 10, 10)}, "");
    row("negative duration, neither met nor in time", {at(town, 0, 100), at(port, 50, -60)},
        "Ann cannot travel from Town to Port in time between \"A\" and \"B\". [0 1]");
    row("equal starts, negative duration", {at(town, 50, 10), at(port, 50, -5)},
        "Ann cannot travel from Town to Port in time between \"A\" and \"B\". [0 1]");
    row("birth and death",
        {at({}, 999, 10, {bob}), at({}, 1000, 1000, {bob}), at({}, 2000, 1, {bob})},
        "Bob %1 %2 takes part in \"A\" before being born. [0]\n"
        "Bob %1 %2 takes part in \"C\" after death. [2]");
    row("constraints that hold",
        {when(10, 5, {{id(1001), QStringLiteral("before")}, {id(1002), QStringLiteral("during")}}),
         when(15, 5, {{id(1000), QStringLiteral("after")}}), when(10, 5)},
        "");
    row("constraints that do not hold",
        {when(10, 6, {{id(1001), QStringLiteral("before")}, {id(1002), QStringLiteral("during")}}),
         when(15, 5, {{id(1000), QStringLiteral("after")}}), when(10, 5)},
        "\"A\" must end before \"B\", but does not. [0 1]\n"
        "\"A\" must happen during \"C\", but does not. [0 2]\n"
        "\"B\" must start after \"A\", but does not. [1 0]");
    row("constraints that say nothing",
        {when(10, 6,
              {{id(1000), QStringLiteral("before")},
               {gone, QStringLiteral("after")},
               {ann, QStringLiteral("after")},
               {{}, QStringLiteral("after")},
               {id(1001), QStringLiteral("After")}}),
         when(10, 6)},
        "");
    row("the ends of time", {at(port, highest, highest, {ann}), at(keep, lowest, lowest, {ann})},
        "");
    row("for all time", {at(port, lowest, highest, {ann}), at(keep, -1, highest, {ann})}, "");
    Events passes = {at(town, 0, 500, {ann, gone}), at(port, 100, 900, {ann, bob}),
                     at(keep, 1000, 9)};
    passes[0].constraints = {{id(1001), QStringLiteral("after")}};
    row("the passes in their order", passes,
        "\"A\" lists a participant that no longer exists. [0]\n"
        "Ann is in two places at once: \"A\" and \"B\". [0 1]\n"
        "Bob %1 %2 takes part in \"B\" before being born. [1]\n"
        "\"A\" must start after \"B\", but does not. [0 1]");
}

void TestContinuity::finds()
{
    QFETCH(QList<TimelineEventData>, events);
    Project project;
    fillWorld(project);
    quint32 number = 0;
    for (TimelineEventData &event : events) {
        event.title = QString(QChar(char16_t(u'A' + number)));
        project.add(std::make_unique<TimelineEvent>(id(firstEvent + number++), event));
    }
    QTEST(text(findTimelineConflicts(project)), "conflicts");
    QCOMPARE(text(findTimelineConflicts(project)), text(SlowContinuity(project).run()));
}

void TestContinuity::looksIntoMountedLibraries()
{
    Project project;
    Project empty;
    Project library;
    fillWorld(library);
    addEntity(project, ann, "My own Ann");
    addMap(project, id(60), 5, {{town, port, 10}});
    TimelineEventData first = at(town, 0, 10, {ann, bob});
    first.title = QStringLiteral("%2");
    project.add(std::make_unique<TimelineEvent>(id(firstEvent), first));
    project.add(std::make_unique<TimelineEvent>(id(firstEvent + 1), at(port, 10, 10, {ann})));
    QCOMPARE(text(findTimelineConflicts(project, {&empty, &library})),
             QStringLiteral("Bob %1 %2 takes part in \"%2\" before being born. [0]\n"
                            "My own Ann cannot travel from Town to Port in time between \"%2\" and "
                            "\"Untitled event\". [0 1]"));
    QCOMPARE(findTimelineConflicts(project).size(), 4);
}

void TestContinuity::stopsAtItsLimit()
{
    Project project;
    fillWorld(project);
    for (quint32 i = 0; i < 40; ++i)
        project.add(std::make_unique<TimelineEvent>(
            id(firstEvent + i),
            at(i % 2 ? town : port, qint64(i * 7 % 40), i == 20 ? -5 : 500 * (i % 3))));
    const QList<TimelineConflict> all = findTimelineConflicts(project);
    QVERIFY(all.size() > 200);
    for (const qsizetype limit : {qsizetype(0), qsizetype(1), qsizetype(77), all.size() - 1})
        QCOMPARE(findTimelineConflicts(project, {}, limit), all.first(limit));
}

void TestContinuity::findsWhatAllPairsFind_data()
{
    QTest::addColumn<int>("events");
    QTest::addColumn<int>("people");
    QTest::addColumn<int>("places");
    QTest::addColumn<int>("span");      ///< starts lie within these minutes
    QTest::addColumn<int>("durations"); ///< up to these minutes, in half of the runs some negative

    QTest::newRow("few") << 12 << 3 << 3 << 60 << 20;
    QTest::newRow("crowded") << 120 << 2 << 4 << 40 << 6;
    QTest::newRow("points and equal starts") << 150 << 2 << 6 << 30 << 1;
    QTest::newRow("long stays") << 150 << 3 << 3 << 2000 << 1500;
    QTest::newRow("sparse") << 200 << 4 << 40 << 200'000 << 300;
    QTest::newRow("many places") << 200 << 1 << 100 << 3000 << 40;
}

void TestContinuity::findsWhatAllPairsFind()
{
    QFETCH(int, events);
    QFETCH(int, people);
    QFETCH(int, places);
    QFETCH(int, span);
    QFETCH(int, durations);
    qsizetype found = 0;
    for (quint32 seed = 1; seed <= 40; ++seed) {
        QRandomGenerator random(seed);
        const auto pick = [&random](quint32 first, int count) {
            return id(first + quint32(random.bounded(count + 1))); // the last one does not exist
        };
        Project project;
        for (int i = 0; i < people; ++i)
            addEntity(project, id(100 + quint32(i)), "P");
        for (int i = 0; i < places; ++i)
            addEntity(project, id(500 + quint32(i)), "L");
        project.find<Entity>(id(100))->setLifespan({span / 10, span * 9 / 10});
        QList<MapRoute> routes;
        for (int i = 0; i < places * 2; ++i)
            routes.append(
                {pick(500, places), pick(500, places), double(random.bounded(durations * 3))});
        addMap(project, id(1), 20 + random.bounded(100), routes);
        for (int i = 0; i < events; ++i) {
            qint64 duration = random.bounded(3) == 0 ? 0 : random.bounded(durations + 1);
            if (seed % 2 == 0 && random.bounded(seed % 4 == 0 ? 10 : 2) == 0)
                duration = -duration;
            TimelineEventData data = at(pick(500, places), random.bounded(span), duration,
                                        {pick(100, people), pick(100, people)});
            if (random.bounded(20) == 0)
                data.locationId = {};
            data.title = QString::number(i);
            data.constraints = {{pick(firstEvent, events), QStringLiteral("during")}};
            project.add(std::make_unique<TimelineEvent>(id(firstEvent + quint32(i)), data));
        }
        const QList<TimelineConflict> conflicts = findTimelineConflicts(project);
        if (conflicts != SlowContinuity(project).run())
            QCOMPARE(text(conflicts), text(SlowContinuity(project).run()));
        found += conflicts.size();
    }
    QVERIFY(found > 40 * events);
}

void TestContinuity::checksRules_data()
{
    QTest::addColumn<ContinuityRule>("rule");
    QTest::addColumn<QString>("conflict");

    const auto row = [](const char *name, const char *field, const char *value, bool notEquals,
                        std::optional<qint64> instant, const char *conflict) {
        QTest::newRow(name) << ContinuityRule{
            QStringLiteral("R%2"),
            bob,
            QString::fromLatin1(field),
            QString::fromLatin1(value),
            notEquals ? RuleComparison::NotEquals : RuleComparison::Equals,
            instant} << QString::fromLatin1(conflict);
    };
    const auto unlikeNow = "Rule \"R%2\": Bob %1 %2's eyes must be \"Blue\", but is \"blue\". []";
    row("holds", "eyes", "blue", false, {}, "");
    row("differs in case", "eyes", "Blue", false, {}, unlikeNow);
    row("must not be", "eyes", "blue", true, {},
        "Rule \"R%2\": Bob %1 %2's eyes must not be \"blue\", but is \"blue\". []");
    row("must not be, and is not", "eyes", "blue ", true, {}, "");
    row("unset", "hair", "%5", false, {},
        "Rule \"R%2\": Bob %1 %2's hair must be \"%5\", but is \"(unset)\". []");
    row("unset must not be", "hair", "red", true, {}, "");
    row("before all timed values", "eyes", "Blue", false, 9, unlikeNow);
    row("from the instant on", "eyes", "grey", false, 10, "");
    row("the later of equal instants", "eyes", "one", false, 25, "");
    row("the latest, not the last", "eyes", "black", false, highest, "");
    row("timed alone", "rank", "squire", false, 5, "");
    row("timed alone, before it", "rank", "squire", false, 4,
        "Rule \"R%2\": Bob %1 %2's rank must be \"squire\", but is \"(unset)\". []");
    row("timed alone, now", "rank", "squire", false, {},
        "Rule \"R%2\": Bob %1 %2's rank must be \"squire\", but is \"(unset)\". []");
    QTest::newRow("no entity") << ContinuityRule{QStringLiteral("R"), port, {}, {}, {}, {}}
                               << QStringLiteral(
                                      "Rule \"R\" refers to an entity that is no longer in "
                                      "the project. []");
    QTest::newRow("nameless") << ContinuityRule{{}, nameless, QStringLiteral("x"), {}, {}, {}}
                              << QStringLiteral("Rule \"x\": An entity's x must be \"\", but is "
                                                "\"(unset)\". []");
}

void TestContinuity::checksRules()
{
    QFETCH(ContinuityRule, rule);
    Project project;
    addEntity(project, bob, "Bob %1 %2");
    addEntity(project, nameless, "");
    addMap(project, port, 0, {});
    auto *entity = project.find<Entity>(bob);
    const QString eyes = QStringLiteral("eyes");
    entity->setValue(eyes, QStringLiteral("blue"));
    entity->setTimedValues({{eyes, QStringLiteral("black"), 30},
                            {eyes, QStringLiteral("grey"), 10},
                            {eyes, QStringLiteral("two"), 20},
                            {eyes, QStringLiteral("one"), 20},
                            {QStringLiteral("rank"), QStringLiteral("squire"), 5}});
    ContinuityRule fine = rule;
    fine.entityId = bob;
    fine.fieldKey = eyes;
    fine.comparison = RuleComparison::Equals;
    fine.instant.reset();
    fine.value = QStringLiteral("blue");
    project.setContinuityRules({fine, rule});
    QTEST(text(checkContinuityRules(project)), "conflict");
}

QTEST_GUILESS_MAIN(TestContinuity)
#include "tst_continuity.moc"
