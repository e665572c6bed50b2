#include "app/story/beatsheettemplates.h"

#include <QtCore/QSet>
#include <QtTest/QtTest>

using namespace vl::app;

class TestBeatSheetTemplates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void structures_data();
    void structures();
    void lookup_data();
    void lookup();
};

void TestBeatSheetTemplates::structures_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description"); // or a word of it
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("firstBeat");
    QTest::addColumn<double>("firstPosition");
    QTest::addColumn<QString>("lastBeat");

    QTest::newRow("0") << "three-act"
                       << "Three-Act Structure"
                       << "The classic setup / confrontation / resolution shape." << 7 << "Setup"
                       << 0.0 << "Resolution";
    QTest::newRow("1") << "heros-journey"
                       << "The Hero's Journey"
                       << "twelve-stage monomyth" << 12 << "Ordinary World" << 0.0
                       << "Return with the Elixir";
    QTest::newRow("2") << "save-the-cat"
                       << "Save the Cat!"
                       << "fifteen-beat sheet" << 15 << "Opening Image" << 1.0 << "Final Image";
    QTest::newRow("3") << "snowflake"
                       << "The Snowflake Method"
                       << "ten escalating" << 10 << "One-Sentence Summary" << 0.0 << "First Draft";
}

void TestBeatSheetTemplates::structures()
{
    QCOMPARE(beatSheetTemplates().size(), 4);
    const BeatSheetTemplate &structure =
        beatSheetTemplates().at(QString::fromLatin1(QTest::currentDataTag()).toInt());
    QTEST(structure.id, "id");
    QTEST(structure.name, "name");
    QFETCH(QString, description);
    QVERIFY(structure.description.contains(description));
    QVERIFY(structure.description.endsWith(QLatin1Char('.')));
    QFETCH(int, count);
    QCOMPARE(structure.beats.size(), count);
    QTEST(structure.beats.first().name, "firstBeat");
    QTEST(structure.beats.first().position, "firstPosition");
    QTEST(structure.beats.last().name, "lastBeat");
    QCOMPARE(structure.beats.last().position, 100.0);

    QSet<QString> names;
    double previous = -1;
    for (const Beat &beat : structure.beats) {
        QVERIFY2(beat.position > previous, qPrintable(beat.name));
        QVERIFY(!beat.description.isEmpty());
        previous = beat.position;
        names.insert(beat.name);
    }
    QCOMPARE(names.size(), structure.beats.size());
}

void TestBeatSheetTemplates::lookup_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("index"); // -1: none

    QTest::newRow("first") << "three-act" << 0;
    QTest::newRow("last") << "snowflake" << 3;
    QTest::newRow("other case") << "Three-Act" << -1;
    QTest::newRow("part of an id") << "three" << -1;
    QTest::newRow("blank behind") << "snowflake " << -1;
    QTest::newRow("empty") << "" << -1;
}

void TestBeatSheetTemplates::lookup()
{
    QFETCH(QString, id);
    QFETCH(int, index);
    const BeatSheetTemplate *found = findBeatSheetTemplate(id);
    QCOMPARE(found, index < 0 ? nullptr : &beatSheetTemplates().at(index));
}

QTEST_GUILESS_MAIN(TestBeatSheetTemplates)
#include "tst_beatsheettemplates.moc"
