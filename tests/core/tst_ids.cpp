#include "core/contentkind.h"
#include "core/id.h"

#include <QtTest/QtTest>

using namespace vl::core;

class TestIds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_data();
    void reading();
    void newIdsAreRandomAndReadBack();
    void order_data();
    void order();
    void kindTexts();
};

void TestIds::reading_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");

    const QString id = QStringLiteral("6ba7b810-9dad-11d1-80b4-00c04fd430c8");
    const QString null = QStringLiteral("00000000-0000-0000-0000-000000000000");
    QTest::newRow("plain") << id << id;
    QTest::newRow("upper case") << id.toUpper() << id;
    QTest::newRow("braces") << QStringLiteral("{%1}").arg(id) << id;
    QTest::newRow("opening brace alone") << QStringLiteral("{%1").arg(id) << null;
    QTest::newRow("closing brace alone") << QStringLiteral("%1}").arg(id) << null;
    QTest::newRow("text after it") << id + QStringLiteral("x") << null;
    QTest::newRow("blank before it") << QStringLiteral(" ") + id << null;
    QTest::newRow("line feed at the end") << id + QStringLiteral("\n") << null;
    QTest::newRow("text after the braces") << QStringLiteral("{%1}x").arg(id) << null;
    QTest::newRow("hyphens missing") << QString(id).remove(QLatin1Char('-')) << null;
    QTest::newRow("hyphen moved") << QStringLiteral("6ba7b81-09dad-11d1-80b4-00c04fd430c8") << null;
    QTest::newRow("no hexadecimal digit")
        << QStringLiteral("6ba7b810-9dad-11d1-80b4-00c04fd430cg") << null;
    QTest::newRow("digits of another script")
        << QStringLiteral("6ba7b81\u0660-9dad-11d1-80b4-00c04fd430c8") << null;
    QTest::newRow("empty") << QString() << null;
    QTest::newRow("null") << null << null;
}

void TestIds::reading()
{
    QFETCH(const QString, text);
    QFETCH(const QString, written);
    const ContentId id = ContentId::fromString(text);
    QCOMPARE(id.toString(), written);
    QCOMPARE(id.isNull(), written.startsWith(QLatin1String("00000000-0000")));
}

void TestIds::newIdsAreRandomAndReadBack()
{
    const ContentId a = ContentId::create();
    const ContentId b = ContentId::create();
    QVERIFY(a != b);
    QCOMPARE(a.uuid().version(), QUuid::Random);
    QCOMPARE(ContentId::fromString(a.toString()), a);
    QCOMPARE(a.toString().size(), 36);
}

void TestIds::order_data()
{
    QTest::addColumn<QString>("smaller");
    QTest::addColumn<QString>("larger");

    const QString tail = QStringLiteral("-0000-4000-8000-000000000000");
    QTest::newRow("first field") << QStringLiteral("00000001") + tail
                                 << QStringLiteral("f0000000") + tail;
    QTest::newRow("last byte") << QStringLiteral("00000001-0000-4000-8000-000000000001")
                               << QStringLiteral("00000001-0000-4000-8000-000000000002");
    QTest::newRow("the variant goes before the fields")
        << QStringLiteral("ffffffff-0000-4000-8000-000000000000")
        << QStringLiteral("00000001-0000-4000-c000-000000000000");
    QTest::newRow("null first") << QStringLiteral("00000000-0000-0000-0000-000000000000")
                                << QStringLiteral("00000001-0000-4000-8000-000000000000");
}

void TestIds::order()
{
    QFETCH(const QString, smaller);
    QFETCH(const QString, larger);
    const ContentId a = ContentId::fromString(smaller);
    const ContentId b = ContentId::fromString(larger);
    QVERIFY(a < b);
    QVERIFY(!(b < a));
    QVERIFY(a != b);
}

void TestIds::kindTexts()
{
    QCOMPARE(contentKindTexts.size(), std::size_t(15));
    QCOMPARE(contentKindTexts.text(ContentKind::TimelineEvent), QLatin1String("timeline_event"));
    QCOMPARE(contentKindTexts.text(ContentKind(15)), QLatin1String());
    QCOMPARE(contentKindTexts.text(ContentKind(-1)), QLatin1String());
    QCOMPARE(contentKindTexts.value(u"stat_block"), ContentKind::StatBlock);
    QVERIFY(!contentKindTexts.value(u"Document"));
    QVERIFY(!contentKindTexts.value(u""));
}

QTEST_GUILESS_MAIN(TestIds)
#include "tst_ids.moc"
