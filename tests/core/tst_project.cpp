#include "core/changeset.h"
#include "core/content/task.h"
#include "core/project.h"
#include "tests/support/fingerprint.h"
#include "tests/support/randomvalues.h"
#include "tests/support/treetext.h"

#include <QtTest/QtTest>

using namespace vl::core;
using namespace vl::test;

class TestProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void duplicateIsRefused();
    void takenAndAddedBack();
    void listsInIdOrder();
    void treeOrder_data();
    void treeOrder();
    void treeFollowsTheDocuments();
    void changeSets_data();
    void changeSets();
};

void TestProject::startsEmpty()
{
    const Project project;
    QCOMPARE(project.size(), 0);
    QCOMPARE(project.find(ContentId::create()), nullptr);
    QCOMPARE(project.calendar(), Calendar::defaultCalendar());
    QCOMPARE(project.writingGoal(), WritingGoal());
    QVERIFY(!project.writingGoal().deadline.isValid());
    QCOMPARE(project.timelineView().density, QStringLiteral("comfortable"));
    QVERIFY(project.beatSheet().templateId.isEmpty());
}

void TestProject::duplicateIsRefused()
{
    Project project;
    const ContentId id = ContentId::create();
    QVERIFY(project.add(std::make_unique<Task>(id, QStringLiteral("first"))));
    std::unique_ptr<ContentObject> second =
        std::make_unique<Document>(id, DocumentKind::Note, QStringLiteral("second"));
    QVERIFY(!project.add(std::move(second)));
    QVERIFY2(second, "a refused object stays with the caller"); // NOLINT(bugprone-use-after-move)
    QCOMPARE(project.find<Task>(id)->title(), QStringLiteral("first"));
    QCOMPARE(project.find<Document>(id), nullptr);
    QVERIFY(treeText(project).isEmpty());
    QVERIFY(!project.add(nullptr));
    QCOMPARE(project.take(ContentId::create()), nullptr);
    QCOMPARE(project.size(), 1);
}

void TestProject::takenAndAddedBack()
{
    RandomValues random(7);
    Project project;
    fillRandomly(project, random);
    const ProjectPrint before = fingerprint(project);
    const QString tree = treeText(project);
    std::vector<std::unique_ptr<ContentObject>> taken;
    for (const ContentId &id : project.ids()) {
        const ContentObject *object = project.find(id);
        taken.push_back(project.take(id));
        QCOMPARE(taken.back().get(), object);
        QVERIFY(!project.contains(id));
    }
    QVERIFY(treeText(project).isEmpty());
    while (!taken.empty()) {
        QVERIFY(project.add(std::move(taken.back())));
        taken.pop_back();
    }
    QVERIFY(fingerprint(project) == before);
    QCOMPARE(treeText(project), tree);
}

void TestProject::listsInIdOrder()
{
    Project project;
    RandomValues random(1);
    fillRandomly(project, random);
    const std::vector<ContentId> ids = project.ids();
    QCOMPARE(ids.size(), std::size_t(project.size()));
    QVERIFY(std::is_sorted(ids.begin(), ids.end()));
    const std::vector<Document *> documents = project.all<Document>();
    QCOMPARE(documents.size(), std::size_t(2));
    QVERIFY(documents[0]->id() < documents[1]->id());
}

void TestProject::treeOrder_data()
{
    QTest::addColumn<QStringList>("documents"); // name, parent's name, sort index
    QTest::addColumn<QString>("tree");

    QTest::newRow("by sort index, not by coming")
        << QStringList{QStringLiteral("b - 1"), QStringLiteral("a - 0"), QStringLiteral("c b 0")}
        << QStringLiteral("a\nb\n c\n");
    QTest::newRow("equal indexes stand in id order")
        << QStringList{QStringLiteral("c - 0"), QStringLiteral("a - 0"), QStringLiteral("b - 0")}
        << QStringLiteral("a\nb\nc\n");
    QTest::newRow("negative index first")
        << QStringList{QStringLiteral("a - 0"), QStringLiteral("b - -5")}
        << QStringLiteral("b\na\n");
    QTest::newRow("one whose parent is lost stands at the end, with what is below it")
        << QStringList{QStringLiteral("a x 0"), QStringLiteral("b a 0"), QStringLiteral("c - 9")}
        << QStringLiteral("c\na\n b\n");
    QTest::newRow("a circle of parents is opened once")
        << QStringList{QStringLiteral("a b 0"), QStringLiteral("b a 0"), QStringLiteral("c b 1"),
                       QStringLiteral("d - 0")}
        << QStringLiteral("d\na\n b\n  c\n");
    QTest::newRow("its own parent")
        << QStringList{QStringLiteral("a a 0")} << QStringLiteral("a\n");
}

void TestProject::treeOrder()
{
    QFETCH(const QStringList, documents);
    QFETCH(const QString, tree);
    const auto idOf = [](const QString &name) {
        // In the order of their names.
        return name == QLatin1String("-")
                   ? ContentId()
                   : ContentId(QUuid(name.at(0).unicode(), 0, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, 0));
    };
    Project project;
    for (const QString &line : documents) {
        const QStringList parts = line.split(QLatin1Char(' '));
        auto document = std::make_unique<Document>(idOf(parts[0]), DocumentKind::Prose, parts[0]);
        document->setParentId(idOf(parts[1]));
        document->setSortIndex(parts[2].toInt());
        QVERIFY(project.add(std::move(document)));
    }
    QCOMPARE(treeText(project), tree);
}

void TestProject::treeFollowsTheDocuments()
{
    Project project;
    buildTree(project, QStringLiteral("a\n b\nc\n"));
    Document *b = documentTitled(project, QStringLiteral("b"));
    b->setParentId(documentTitled(project, QStringLiteral("c"))->id());
    QCOMPARE(treeText(project), QStringLiteral("a\nc\n b\n"));
    QVERIFY(
        !project.documentTree().hasChildren(documentTitled(project, QStringLiteral("a"))->id()));
    const std::unique_ptr<ContentObject> taken = project.take(b->id());
    b->setParentId(ContentId()); // outside the project it changes no tree
    QCOMPARE(treeText(project), QStringLiteral("a\nc\n"));
}

void TestProject::changeSets_data()
{
    QTest::addColumn<QString>("changes"); // one letter a change: added, removed, changed
    QTest::addColumn<QString>("sum");
    QTest::addColumn<QString>("inverted");

    const auto row = [](const char *changes, const char *sum, const char *inverted) {
        QTest::newRow(changes) << QString::fromLatin1(changes) << QString::fromLatin1(sum)
                               << QString::fromLatin1(inverted);
    };
    row("a", "a", "r");
    row("r", "r", "a");
    row("c", "c", "c");
    row("cc", "c", "c");
    row("ac", "a", "r");
    row("ar", "", "");
    row("acr", "", "");
    row("cr", "r", "a");
    row("ra", "c", "c");
    row("rac", "c", "c");
    row("rar", "r", "a");
    row("ara", "a", "r");
}

void TestProject::changeSets()
{
    QFETCH(const QString, changes);
    QFETCH(const QString, sum);
    QFETCH(const QString, inverted);
    using Change = ChangeSet::Change;
    const std::map<char, Change> letters{
        {'a', Change::Added}, {'r', Change::Removed}, {'c', Change::Changed}};
    const auto textOf = [&](const ChangeSet::Changes &noted) {
        QString text;
        for (const auto &[id, change] : noted)
            for (const auto &[letter, meant] : letters)
                if (meant == change)
                    text += QLatin1Char(letter);
        return text;
    };
    const ContentId id = ContentId::create();
    ChangeSet total;
    for (const QChar letter : changes) {
        ChangeSet one;
        one.touchObject(id, letters.at(letter.toLatin1()));
        one.touchCategory(id, letters.at(letter.toLatin1()));
        total.append(one);
    }
    QCOMPARE(textOf(total.objects()), sum);
    QCOMPARE(textOf(total.categories()), sum);
    QCOMPARE(textOf(total.inverted().objects()), inverted);
    QCOMPARE(textOf(total.inverted().categories()), inverted);
    QVERIFY(!total.touchesAnyRecord());
}

QTEST_GUILESS_MAIN(TestProject)
#include "tst_project.moc"
