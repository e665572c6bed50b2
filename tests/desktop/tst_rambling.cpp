#include "tests/desktop/rambler.h"

#include <QtTest/QtTest>

using namespace vl;

#ifdef __SANITIZE_ADDRESS__
// What the docking library drops when it puts one widget in the place of another.
extern "C" const char *__lsan_default_suppressions(); // NOLINT(bugprone-reserved-identifier)
extern "C" const char *__lsan_default_suppressions()  // NOLINT(bugprone-reserved-identifier)
{
    return "leak:QLayoutPrivate::createWidgetItem\nleak:QLayout::replaceWidget\n";
}
#endif

// To walk on: IVOREL_RAMBLE_SEED=7 IVOREL_RAMBLE_STEPS=5000 tst_rambling prints each step as it is
// done; IVOREL_RAMBLE_PROJECT names another project folder, of which a copy is used.
class TestRambling : public QObject
{
    Q_OBJECT

public:
    // No walk differs from the one before it.
    static void initMain() { QHashSeed::setDeterministicGlobalSeed(); }

private Q_SLOTS:
    void nothingBreaks_data();
    void nothingBreaks();
};

void TestRambling::nothingBreaks_data()
{
    QTest::addColumn<quint32>("seed");

    if (qEnvironmentVariableIsSet("IVOREL_RAMBLE_SEED")) {
        QTest::newRow("chosen") << quint32(qEnvironmentVariableIntValue("IVOREL_RAMBLE_SEED"));
        return;
    }
    for (const quint32 seed : {1U, 2U, 3U})
        QTest::addRow("seed %u", seed) << seed;
}

void TestRambling::nothingBreaks()
{
    QFETCH(const quint32, seed);
    const bool isChosen = qEnvironmentVariableIsSet("IVOREL_RAMBLE_SEED");
    const int steps =
        qMax(1, qEnvironmentVariable("IVOREL_RAMBLE_STEPS", QStringLiteral("150")).toInt());
    const QString project =
        qEnvironmentVariable("IVOREL_RAMBLE_PROJECT", QStringLiteral(IVOREL_SAMPLE));
    test::Rambler rambler(seed, project, isChosen);
    const QString fault = rambler.walk(steps, 25);
    if (!fault.isEmpty()) // the test library cuts long messages
        fprintf(stderr, "%s\nseed %u: %s\n", qPrintable(rambler.trail()), seed, qPrintable(fault));
    QVERIFY(fault.isEmpty());
}

QTEST_MAIN(TestRambling)
#include "tst_rambling.moc"
