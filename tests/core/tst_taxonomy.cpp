#include "core/taxonomy.h"

#include <QtTest/QtTest>

using namespace vl::core;

namespace {

/// Ids in the order of the letters; "-" is the null id.
ContentId idOf(QChar letter)
{
    return letter == QLatin1Char('-')
               ? ContentId()
               : ContentId(QUuid(letter.unicode(), 0, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, 0));
}

/// Categories from words of id, parent and optionally another name: "a-", "ba", "ca:Zoo".
Taxonomy taxonomyOf(const QString &text)
{
    Taxonomy taxonomy;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        Category category;
        category.id = idOf(word.at(0));
        category.parentId = idOf(word.at(1));
        category.name = word.size() > 3 ? word.mid(3) : QString(word.at(0));
        taxonomy.add(category);
    }
    return taxonomy;
}

QString treeOf(const Taxonomy &taxonomy)
{
    QString text;
    for (const Taxonomy::Place &place : taxonomy.inTreeOrder())
        text += QString(place.depth, QLatin1Char('.')) + place.category->name + QLatin1Char(' ');
    return text.trimmed();
}

QStringList keysOf(const Category &category)
{
    QStringList keys;
    for (const FieldDefinition &field : category.fields)
        keys.append(field.key);
    return keys;
}

} // namespace

class TestTaxonomy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void treeOrder_data();
    void treeOrder();
    void removing_data();
    void removing();
    void within();
    void unknownAndTakenIds();
    void fields();
};

void TestTaxonomy::treeOrder_data()
{
    QTest::addColumn<QString>("categories");
    QTest::addColumn<QString>("tree");

    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("by name without regard to case")
        << QStringLiteral("a-:zoo b-:Apes c-:apes d-:Bears")
        << QStringLiteral("Apes apes Bears zoo");
    QTest::newRow("depth first") << QStringLiteral("a- b- ca db ea fc")
                                 << QStringLiteral("a .c ..f .e b .d");
    QTest::newRow("a lost parent makes a root at the end")
        << QStringLiteral("ax ba c-") << QStringLiteral("c a .b");
    QTest::newRow("a circle of parents is opened once")
        << QStringLiteral("ab ba cb d-") << QStringLiteral("d a .b ..c");
    QTest::newRow("its own parent") << QStringLiteral("aa b-") << QStringLiteral("b a");
}

void TestTaxonomy::treeOrder()
{
    QFETCH(const QString, categories);
    QFETCH(const QString, tree);
    QCOMPARE(treeOf(taxonomyOf(categories)), tree);
}

void TestTaxonomy::removing_data()
{
    QTest::addColumn<QString>("categories");
    QTest::addColumn<QString>("tree");

    QTest::newRow("children move up to its parent")
        << QStringLiteral("b- ab ca da ec") << QStringLiteral("b .c ..e .d");
    QTest::newRow("to the top level") << QStringLiteral("a- ba ca") << QStringLiteral("b c");
    QTest::newRow("its parent is its child")
        << QStringLiteral("ab ba ca") << QStringLiteral("b .c");
    QTest::newRow("its own parent") << QStringLiteral("aa ba") << QStringLiteral("b");
}

void TestTaxonomy::removing()
{
    QFETCH(const QString, categories);
    QFETCH(const QString, tree);
    Taxonomy taxonomy = taxonomyOf(categories);
    const std::optional<Category> taken = taxonomy.remove(idOf(u'a'));
    QVERIFY(taken);
    QCOMPARE(taken->name, QStringLiteral("a"));
    QVERIFY(!taxonomy.contains(idOf(u'a')));
    QCOMPARE(treeOf(taxonomy), tree);
    for (const ContentId &id : taxonomy.ids()) {
        const ContentId parentId = taxonomy.find(id)->parentId;
        QVERIFY(parentId.isNull() || taxonomy.contains(parentId));
    }
}

void TestTaxonomy::within()
{
    const Taxonomy taxonomy = taxonomyOf(QStringLiteral("a- ba cb de ed"));
    QVERIFY(taxonomy.isWithin(idOf(u'c'), idOf(u'a')));
    QVERIFY(taxonomy.isWithin(idOf(u'a'), idOf(u'a')));
    QVERIFY(!taxonomy.isWithin(idOf(u'a'), idOf(u'c')));
    QVERIFY(!taxonomy.isWithin(idOf(u'd'), idOf(u'a'))); // and it comes back from a circle
    QVERIFY(!taxonomy.isWithin(idOf(u'x'), idOf(u'x')));
}

void TestTaxonomy::unknownAndTakenIds()
{
    Taxonomy taxonomy = taxonomyOf(QStringLiteral("a-"));
    QVERIFY(!taxonomy.add(Category{idOf(u'a'), QStringLiteral("other"), {}, {}}));
    QVERIFY(!taxonomy.add(Category{ContentId(), QStringLiteral("null"), {}, {}}));
    QVERIFY(!taxonomy.remove(idOf(u'x')));
    QVERIFY(!taxonomy.rename(idOf(u'x'), QStringLiteral("new")));
    QVERIFY(!taxonomy.setParent(idOf(u'x'), idOf(u'a')));
    QVERIFY(!taxonomy.insertField(idOf(u'x'), 0, {}));
    QCOMPARE(treeOf(taxonomy), QStringLiteral("a"));
}

void TestTaxonomy::fields()
{
    Taxonomy taxonomy = taxonomyOf(QStringLiteral("a-"));
    const ContentId id = idOf(u'a');
    const auto field = [](const char *key) {
        FieldDefinition definition;
        definition.key = QString::fromLatin1(key);
        return definition;
    };
    QVERIFY(taxonomy.insertField(id, 0, field("one")));
    QVERIFY(taxonomy.insertField(id, 1, field("three")));
    QVERIFY(taxonomy.insertField(id, 1, field("two")));
    QVERIFY(!taxonomy.insertField(id, 4, field("far")));
    QVERIFY(!taxonomy.insertField(id, -1, field("negative")));
    QVERIFY(taxonomy.moveField(id, 0, 2));
    QCOMPARE(keysOf(*taxonomy.find(id)),
             (QStringList{QStringLiteral("two"), QStringLiteral("three"), QStringLiteral("one")}));
    QVERIFY(!taxonomy.moveField(id, 0, 3));
    QVERIFY(!taxonomy.moveField(id, -1, 0));
    QVERIFY(taxonomy.removeField(id, 1));
    QVERIFY(!taxonomy.removeField(id, 2));
    QVERIFY(taxonomy.setField(id, 1, field("uno")));
    QVERIFY(!taxonomy.setField(id, 2, field("far")));
    QCOMPARE(keysOf(*taxonomy.find(id)),
             (QStringList{QStringLiteral("two"), QStringLiteral("uno")}));
}

QTEST_GUILESS_MAIN(TestTaxonomy)
#include "tst_taxonomy.moc"
