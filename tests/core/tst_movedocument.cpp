#include "core/commands/documentcommands.h"
#include "core/commandstack.h"
#include "tests/support/fingerprint.h"
#include "tests/support/treetext.h"

#include <QtTest/QtTest>

using namespace vl::core;
using namespace vl::test;

class TestMoveDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void move_data();
    void move();
    void refused_data();
    void refused();
    void renumbersBothFamilies();
    void severalSteps();
};

void TestMoveDocument::move_data()
{
    QTest::addColumn<QString>("before"); // the tree as treeText() prints it
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("newParent"); // empty for the top level
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("after");

    const auto row = [](const char *name, const char *before, const char *title,
                        const char *newParent, int position, const char *after) {
        QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(title)
                            << QString::fromLatin1(newParent) << position
                            << QString::fromLatin1(after);
    };
    row("out to the end", "A\nB\n C\n", "C", "", -1, "A\nB\nC\n");
    row("out to the start", "A\nB\n C\n", "C", "", 0, "C\nA\nB\n");
    row("past the end appends", "A\nB\nC\n", "A", "", 9, "B\nC\nA\n");
    row("just past the end", "A\nB\nC\n", "A", "", 2, "B\nC\nA\n");
    row("the position counts the others only", "A\nB\nC\n", "A", "", 1, "B\nA\nC\n");
    row("to the place it has", "A\nB\nC\n", "B", "", 1, "A\nB\nC\n");
    row("into an empty one", "A\nB\n", "B", "A", -1, "A\n B\n");
    row("between two", "A\n B\n C\nD\n", "D", "A", 1, "A\n B\n D\n C\n");
    row("with all below it", "A\n B\n  C\n   D\nE\n", "B", "E", 0, "A\nE\n B\n  C\n   D\n");
    row("up to its grandparent", "A\n B\n  C\n  D\n", "C", "A", 0, "A\n C\n B\n  D\n");
    row("under its own sibling", "A\n B\n C\n", "B", "C", 0, "A\n C\n  B\n");
}

void TestMoveDocument::move()
{
    QFETCH(const QString, before);
    QFETCH(const QString, title);
    QFETCH(const QString, newParent);
    QFETCH(const int, position);
    QFETCH(const QString, after);
    Project project;
    buildTree(project, before);
    const ProjectPrint printBefore = fingerprint(project);
    const Document *parent = documentTitled(project, newParent);
    CommandStack stack;
    ChangeSet changes;
    stack.setListener([&changes](const ChangeSet &heard) { changes = heard; });
    stack.push(std::make_unique<MoveDocumentCommand>(project, documentTitled(project, title)->id(),
                                                     parent ? parent->id() : ContentId(),
                                                     position));
    QCOMPARE(treeText(project), after);
    QCOMPARE(stack.undoText(), QStringLiteral("Move document"));
    const ProjectPrint printAfter = fingerprint(project);
    for (const auto &[id, print] : printAfter.objects)
        QVERIFY(print == printBefore.objects.at(id) || changes.objects().contains(id));
    QCOMPARE(walkHistory(stack, {before, after}, [&] { return treeText(project); }), QString());
    QVERIFY(fingerprint(project) == printAfter);
    stack.undo();
    QVERIFY(fingerprint(project) == printBefore);
}

void TestMoveDocument::refused_data()
{
    QTest::addColumn<QString>("title"); // "?" for an unknown id
    QTest::addColumn<QString>("newParent");

    QTest::newRow("under itself") << QStringLiteral("A") << QStringLiteral("A");
    QTest::newRow("under its own child") << QStringLiteral("A") << QStringLiteral("B");
    QTest::newRow("under its grandchild") << QStringLiteral("A") << QStringLiteral("C");
    QTest::newRow("an unknown document") << QStringLiteral("?") << QStringLiteral("A");
    QTest::newRow("under an unknown one") << QStringLiteral("A") << QStringLiteral("?");
}

void TestMoveDocument::refused()
{
    QFETCH(const QString, title);
    QFETCH(const QString, newParent);
    Project project;
    buildTree(project, QStringLiteral("A\n B\n  C\nD\n"));
    const auto idOf = [&](const QString &name) {
        const Document *document = documentTitled(project, name);
        return document ? document->id() : ContentId::create();
    };
    const ProjectPrint before = fingerprint(project);
    MoveDocumentCommand command(project, idOf(title), idOf(newParent), 0);
    command.redo();
    QVERIFY(fingerprint(project) == before);
    QVERIFY(command.changes().isEmpty());
    command.undo();
    QVERIFY(fingerprint(project) == before);
}

void TestMoveDocument::renumbersBothFamilies()
{
    Project project;
    buildTree(project, QStringLiteral("A\n a\n b\n c\nB\n d\n e\n"));
    // Gaps, ties and negative numbers, as files may hold them.
    const auto setIndex = [&](const char *title, qint32 index) {
        documentTitled(project, QString::fromLatin1(title))->setSortIndex(index);
    };
    setIndex("a", -3);
    setIndex("b", 5);
    setIndex("c", 90);
    setIndex("d", 7);
    setIndex("e", 8);
    const ProjectPrint before = fingerprint(project);
    MoveDocumentCommand command(project, documentTitled(project, QStringLiteral("b"))->id(),
                                documentTitled(project, QStringLiteral("B"))->id(), 1);
    command.redo();
    QCOMPARE(treeText(project), QStringLiteral("A\n a\n c\nB\n d\n b\n e\n"));
    const QList<std::pair<const char *, qint32>> expected{
        {"a", 0}, {"c", 1}, {"d", 0}, {"b", 1}, {"e", 2}};
    for (const auto &[title, index] : expected)
        QCOMPARE(documentTitled(project, QString::fromLatin1(title))->sortIndex(), index);
    command.undo();
    QVERIFY(fingerprint(project) == before);
}

void TestMoveDocument::severalSteps()
{
    Project project;
    buildTree(project, QStringLiteral("A\n B\n C\nD\n"));
    CommandStack stack;
    QStringList states{treeText(project)};
    const auto move = [&](const char *title, const char *parent, int position) {
        const Document *above = documentTitled(project, QString::fromLatin1(parent));
        stack.push(std::make_unique<MoveDocumentCommand>(
            project, documentTitled(project, QString::fromLatin1(title))->id(),
            above ? above->id() : ContentId(), position));
        states.append(treeText(project));
    };
    move("C", "D", 0);
    move("A", "C", 0);
    move("B", "", 0);
    move("D", "B", -1);
    QCOMPARE(states.last(), QStringLiteral("B\n D\n  C\n   A\n"));
    QCOMPARE(walkHistory(stack, states, [&] { return treeText(project); }), QString());
}

QTEST_GUILESS_MAIN(TestMoveDocument)
#include "tst_movedocument.moc"
