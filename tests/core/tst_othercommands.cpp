#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commands/replacecontents.h"
#include "core/commands/workcommands.h"
#include "core/commands/worldcommands.h"
#include "core/commandstack.h"
#include "tests/support/fingerprint.h"
#include "tests/support/projectbuilder.h"
#include "tests/support/randomvalues.h"

#include <QtTest/QtTest>

#include <functional>

using namespace vl::core;
using namespace vl::test;

namespace {

/// The ids of everything here are named by one letter, in id order.
ContentId idOf(char16_t letter)
{
    return ContentId(QUuid(letter, 0, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, 0));
}

FieldDefinition fieldNamed(const char *key)
{
    FieldDefinition field;
    field.key = QString::fromLatin1(key);
    return field;
}

/// Categories a above b above c, with the fields x, y, z in a; and a category whose parent, q, is
/// not there.
void addCategories(Project &project)
{
    Taxonomy &taxonomy = project.editTaxonomy();
    taxonomy.add(
        {idOf(u'a'), QStringLiteral("a"), {}, {fieldNamed("x"), fieldNamed("y"), fieldNamed("z")}});
    taxonomy.add({idOf(u'b'), QStringLiteral("b"), idOf(u'a'), {}});
    taxonomy.add({idOf(u'c'), QStringLiteral("c"), idOf(u'b'), {}});
    taxonomy.add({idOf(u'd'), QStringLiteral("d"), idOf(u'b'), {}});
    taxonomy.add({idOf(u'o'), QStringLiteral("o"), idOf(u'q'), {}});
}

/// The categories with their parents and fields: "a(x,y,z) ba".
QString categoriesText(const Project &project)
{
    QStringList words;
    for (const ContentId &id : project.taxonomy().ids()) {
        const Category *category = project.taxonomy().find(id);
        QString word = category->name;
        if (!category->parentId.isNull())
            word += QChar(char16_t(category->parentId.uuid().data1));
        QStringList keys;
        for (const FieldDefinition &field : category->fields)
            keys.append(field.key + field.label);
        if (!keys.isEmpty())
            word += QLatin1Char('(') + keys.join(QLatin1Char(',')) + QLatin1Char(')');
        words.append(word);
    }
    return words.join(QLatin1Char(' '));
}

/// What a change set names: categories by letter and "+", "-" or "*".
QString namedCategories(const ChangeSet &changes)
{
    QString text;
    for (const auto &[id, change] : changes.categories()) {
        text += QChar(char16_t(id.uuid().data1));
        text += change == ChangeSet::Change::Added     ? QLatin1Char('+')
                : change == ChangeSet::Change::Removed ? QLatin1Char('-')
                                                       : QLatin1Char('*');
    }
    return text;
}

using MakeCommand = std::function<std::unique_ptr<Command>(Project &)>;

/// Runs a command forth and back three times over.
void checkWayBack(Project &project, Command &command)
{
    const ProjectPrint before = fingerprint(project);
    command.redo();
    const ProjectPrint after = fingerprint(project);
    command.undo();
    QVERIFY(fingerprint(project) == before);
    command.redo();
    QVERIFY(fingerprint(project) == after);
    command.undo();
    QVERIFY(fingerprint(project) == before);
    command.redo();
}

} // namespace

Q_DECLARE_METATYPE(MakeCommand)

class TestOtherCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void categories_data();
    void categories();
    void addObject();
    void addObjectWithATakenId();
    void addNoObject();
    void removeObject();
    void replacedContents();
    void replacedContentsAndEarlierSteps();
    void pins();
    void fieldValues();
    void taskDone();
    void cells();
    void cellFormats();
    void canvas();
    void annotations();
    void moveTask_data();
    void moveTask();
};

void TestOtherCommands::categories_data()
{
    QTest::addColumn<MakeCommand>("make");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("changes");

    const auto row = [](const char *name, const MakeCommand &make, const char *text,
                        const char *after, const char *changes) {
        QTest::newRow(name) << make << QString::fromLatin1(text) << QString::fromLatin1(after)
                            << QString::fromLatin1(changes);
    };
    const char *same = "a(x,y,z) ba cb db oq";
    const auto add = [](char16_t letter) {
        return MakeCommand([letter](Project &project) {
            return std::make_unique<AddCategoryCommand>(
                project, Category{idOf(letter), QString(QChar(letter)), idOf(u'a'), {}});
        });
    };
    row("add", add(u'e'), "Add category", "a(x,y,z) ba cb db ea oq", "e+");
    row("add one with a taken id", add(u'b'), "Add category", same, "");
    row("add the one that another named as its parent all along", add(u'q'), "Add category",
        "a(x,y,z) ba cb db oq qa", "q+");
    const auto remove = [](char16_t letter) {
        return MakeCommand([letter](Project &project) {
            return std::make_unique<RemoveCategoryCommand>(project, idOf(letter));
        });
    };
    row("remove one with children", remove(u'b'), "Remove category", "a(x,y,z) ca da oq", "b-c*d*");
    row("remove a leaf", remove(u'c'), "Remove category", "a(x,y,z) ba db oq", "c-");
    row("remove the root", remove(u'a'), "Remove category", "b cb db oq", "a-b*");
    row("remove an unknown one", remove(u'x'), "Remove category", same, "");
    const auto rename = [](char16_t letter) {
        return MakeCommand([letter](Project &project) {
            return std::make_unique<RenameCategoryCommand>(project, idOf(letter),
                                                           QStringLiteral("N"));
        });
    };
    row("rename", rename(u'c'), "Rename category", "a(x,y,z) ba Nb db oq", "c*");
    row("rename an unknown one", rename(u'x'), "Rename category", same, "");
    const auto move = [](char16_t letter, const ContentId &parentId) {
        return MakeCommand([letter, parentId](Project &project) {
            return std::make_unique<MoveCategoryCommand>(project, idOf(letter), parentId);
        });
    };
    row("move", move(u'd', idOf(u'c')), "Move category", "a(x,y,z) ba cb dc oq", "d*");
    row("move to the top", move(u'b', ContentId()), "Move category", "a(x,y,z) b cb db oq", "b*");
    row("move under its own child", move(u'a', idOf(u'c')), "Move category", same, "");
    row("move under an unknown one", move(u'a', idOf(u'q')), "Move category", same, "");
    const auto addField = [](char16_t letter, const char *key) {
        return MakeCommand([=](Project &project) {
            return std::make_unique<AddFieldCommand>(project, idOf(letter), fieldNamed(key));
        });
    };
    row("add a field", addField(u'a', "w"), "Add field", "a(x,y,z,w) ba cb db oq", "a*");
    row("add a field with a taken key", addField(u'a', "y"), "Add field", same, "");
    row("add a field to an unknown one", addField(u'x', "y"), "Add field", same, "");
    const auto removeField = [](const char *key) {
        return MakeCommand([=](Project &project) {
            return std::make_unique<RemoveFieldCommand>(project, idOf(u'a'),
                                                        QString::fromLatin1(key));
        });
    };
    row("remove a field", removeField("y"), "Remove field", "a(x,z) ba cb db oq", "a*");
    row("remove an unknown field", removeField("w"), "Remove field", same, "");
    const auto moveField = [](const char *key, int position) {
        return MakeCommand([=](Project &project) {
            return std::make_unique<MoveFieldCommand>(project, idOf(u'a'), QString::fromLatin1(key),
                                                      position);
        });
    };
    row("move a field", moveField("x", 1), "Move field", "a(y,x,z) ba cb db oq", "a*");
    row("move a field past the end", moveField("x", 9), "Move field", "a(y,z,x) ba cb db oq", "a*");
    row("move a field before the start", moveField("z", -4), "Move field", "a(z,x,y) ba cb db oq",
        "a*");
    row("move an unknown field", moveField("w", 0), "Move field", same, "");
    row(
        "edit a field",
        [](Project &project) {
            FieldDefinition field = fieldNamed("y");
            field.label = QStringLiteral("Y");
            return std::make_unique<SetFieldCommand>(project, idOf(u'a'), field);
        },
        "Edit field", "a(x,yY,z) ba cb db oq", "a*");
}

void TestOtherCommands::categories()
{
    QFETCH(const MakeCommand, make);
    QFETCH(const QString, text);
    QFETCH(const QString, after);
    QFETCH(const QString, changes);
    Project project;
    addCategories(project);
    const std::unique_ptr<Command> command = make(project);
    checkWayBack(project, *command);
    QCOMPARE(categoriesText(project), after);
    QCOMPARE(command->text(), text);
    QCOMPARE(namedCategories(command->changes()), changes);
    QVERIFY(command->changes().objects().empty() && !command->changes().touchesAnyRecord());
}

void TestOtherCommands::addObject()
{
    Project project;
    auto made = std::make_unique<Task>(idOf(u'a'), QStringLiteral("a"));
    const ContentObject *object = made.get();
    AddObjectCommand command(project, std::move(made));
    checkWayBack(project, command);
    QCOMPARE(project.find(idOf(u'a')), object); // the same one, so later steps may refer to it
    QCOMPARE(command.text(), QStringLiteral("Add object"));
    QCOMPARE(command.changes().objects(),
             (ChangeSet::Changes{{idOf(u'a'), ChangeSet::Change::Added}}));
}

void TestOtherCommands::addObjectWithATakenId()
{
    Project project;
    project.add(std::make_unique<Task>(idOf(u'a'), QStringLiteral("first")));
    AddObjectCommand command(project, std::make_unique<Task>(idOf(u'a'), QStringLiteral("second")));
    checkWayBack(project, command);
    QCOMPARE(project.find<Task>(idOf(u'a'))->title(), QStringLiteral("first"));
    QVERIFY(command.changes().isEmpty());
    command.undo(); // takes away neither
    QCOMPARE(project.find<Task>(idOf(u'a'))->title(), QStringLiteral("first"));
}

void TestOtherCommands::addNoObject()
{
    Project project;
    project.add(std::make_unique<Task>(ContentId(), QStringLiteral("null id")));
    AddObjectCommand command(project, nullptr);
    checkWayBack(project, command);
    QCOMPARE(project.size(), 1);
    QVERIFY(command.changes().isEmpty());
}

void TestOtherCommands::removeObject()
{
    RandomValues random(3);
    Project project;
    fillRandomly(project, random);
    for (const ContentId &id : project.ids()) {
        RemoveObjectCommand command(project, id);
        checkWayBack(project, command);
        QVERIFY(!project.contains(id));
        QCOMPARE(command.text(), QStringLiteral("Remove object"));
        QCOMPARE(command.changes().objects(),
                 (ChangeSet::Changes{{id, ChangeSet::Change::Removed}}));
        RemoveObjectCommand again(project, id);
        checkWayBack(project, again);
        QVERIFY(again.changes().isEmpty());
        command.undo();
    }
}

void TestOtherCommands::replacedContents()
{
    const std::unique_ptr<Project> full = fullProject(1);
    Project &project = *full;
    const std::unique_ptr<Project> other = fullProject(2);
    NewContents contents;
    ContentId gone = project.ids().front();
    contents.goneObjects = {gone, ContentId::create()}; // one of them unknown
    ChangeSet expected;
    expected.touchObject(gone, ChangeSet::Change::Removed);
    for (const ContentId &id : other->ids()) {
        if (id == gone)
            continue;
        expected.touchObject(id, project.contains(id) ? ChangeSet::Change::Changed
                                                      : ChangeSet::Change::Added);
        contents.objects.push_back(other->take(id));
    }
    for (const ContentId &id : other->taxonomy().ids())
        contents.categories.push_back(*other->taxonomy().find(id));
    const auto added = ContentId::create();
    contents.categories.push_back({added, QStringLiteral("Ships"), {}, {}});
    contents.records = fullProject(2);
    // An id that goes and comes, as when the file of an object was renamed.
    contents.goneObjects.push_back(contents.objects.front()->id());
    contents.goneCategories.push_back(contents.categories.front().id);
    ReplaceContentsCommand command(project, std::move(contents), QStringLiteral("Merge"));
    checkWayBack(project, command);
    QCOMPARE(command.text(), QStringLiteral("Merge"));
    QCOMPARE(command.changes().objects(), expected.objects());
    QCOMPARE(command.changes().categories().at(added), ChangeSet::Change::Added);
    QVERIFY(command.changes().touches(ProjectRecord::Calendar));
    QCOMPARE(project.savedSearches(), fullProject(2)->savedSearches());
}

void TestOtherCommands::replacedContentsAndEarlierSteps()
{
    // A step made before refers to the object that was replaced; undone, it finds it again.
    Project project;
    CommandStack history;
    history.push(std::make_unique<AddObjectCommand>(
        project, std::make_unique<Document>(idOf(u'a'), DocumentKind::Prose, QStringLiteral("A"))));
    history.push(std::make_unique<SetDocumentTitleCommand>(*project.find<Document>(idOf(u'a')),
                                                           QStringLiteral("B")));
    NewContents contents;
    contents.objects.push_back(
        std::make_unique<Document>(idOf(u'a'), DocumentKind::Prose, QStringLiteral("Theirs")));
    history.push(std::make_unique<ReplaceContentsCommand>(project, std::move(contents), QString()));
    history.push(std::make_unique<SetDocumentTitleCommand>(*project.find<Document>(idOf(u'a')),
                                                           QStringLiteral("C")));
    const auto title = [&] { return project.find<Document>(idOf(u'a'))->title(); };
    for (const char *expected : {"Theirs", "B", "A"}) {
        history.undo();
        QCOMPARE(title(), QString::fromLatin1(expected));
    }
    for (const char *expected : {"B", "Theirs", "C"}) {
        history.redo();
        QCOMPARE(title(), QString::fromLatin1(expected));
    }
}

void TestOtherCommands::pins()
{
    Project project;
    for (const bool was : {false, true})
        for (const bool pinned : {false, true}) {
            project.pin(idOf(u'a'), was);
            SetPinnedCommand command(project, idOf(u'a'), pinned);
            checkWayBack(project, command);
            QCOMPARE(project.isPinned(idOf(u'a')), pinned);
            QCOMPARE(command.text(), pinned ? QStringLiteral("Pin") : QStringLiteral("Unpin"));
            QVERIFY(command.changes().touches(ProjectRecord::Pinned));
            QVERIFY(command.changes().objects().empty());
        }
}

void TestOtherCommands::fieldValues()
{
    Project project;
    project.add(std::make_unique<Entity>(idOf(u'a'), ContentId(), QStringLiteral("a")));
    Entity &entity = *project.find<Entity>(idOf(u'a'));
    SetFieldValueCommand fresh(entity, QStringLiteral("eyes"), QStringLiteral("grey"));
    checkWayBack(project, fresh); // undo takes the key away, it does not leave an empty value
    QCOMPARE(entity.value(QStringLiteral("eyes")), QStringLiteral("grey"));
    SetFieldValueCommand over(entity, QStringLiteral("eyes"), QString());
    checkWayBack(project, over);
    QCOMPARE(entity.values().size(), std::size_t(1)); // an empty value is a value
    over.undo();
    QCOMPARE(entity.value(QStringLiteral("eyes")), QStringLiteral("grey"));
    QCOMPARE(over.text(), QStringLiteral("Set field value"));
    QCOMPARE(over.changes().objects(),
             (ChangeSet::Changes{{idOf(u'a'), ChangeSet::Change::Changed}}));
}

void TestOtherCommands::taskDone()
{
    Project project;
    project.add(std::make_unique<Task>(idOf(u'a'), QStringLiteral("a")));
    Task &task = *project.find<Task>(idOf(u'a'));
    SetTaskDoneCommand done(task, true);
    checkWayBack(project, done);
    QVERIFY(task.isDone());
    QCOMPARE(done.text(), QStringLiteral("Complete task"));
    SetTaskDoneCommand again(task, true);
    again.redo();
    again.undo();
    QVERIFY(task.isDone());
    SetTaskDoneCommand open(task, false);
    checkWayBack(project, open);
    QVERIFY(!task.isDone());
    QCOMPARE(open.text(), QStringLiteral("Reopen task"));
}

void TestOtherCommands::cells()
{
    Project project;
    project.add(std::make_unique<Spreadsheet>(idOf(u'a'), QStringLiteral("a")));
    Spreadsheet &sheet = *project.find<Spreadsheet>(idOf(u'a'));
    SetSpreadsheetCellCommand fill(sheet, {2, 3}, QStringLiteral("=A1"));
    checkWayBack(project, fill);
    QCOMPARE(sheet.cell({2, 3}), QStringLiteral("=A1"));
    QVERIFY(!sheet.cell({3, 2}));
    QCOMPARE(fill.text(), QStringLiteral("Edit cell"));
    SetSpreadsheetCellCommand empty(sheet, {2, 3}, QString());
    checkWayBack(project, empty);
    QVERIFY(sheet.grid().cells.empty());
}

void TestOtherCommands::cellFormats()
{
    Project project;
    project.add(std::make_unique<Spreadsheet>(idOf(u'a'), QStringLiteral("a")));
    Spreadsheet &sheet = *project.find<Spreadsheet>(idOf(u'a'));
    CellFormats formats;
    formats[{0, 1}].bold = true;
    SetCellFormatsCommand command(sheet, formats, QStringLiteral("Bold cells"));
    checkWayBack(project, command);
    QVERIFY(sheet.formats() == formats);
    QCOMPARE(command.text(), QStringLiteral("Bold cells"));
}

void TestOtherCommands::canvas()
{
    Project project;
    project.add(std::make_unique<Canvas>(idOf(u'a'), QStringLiteral("a")));
    Canvas &canvas = *project.find<Canvas>(idOf(u'a'));
    const CanvasCard card{idOf(u'x'), 1, 2};
    const CanvasCard moved{idOf(u'x'), 5, 6};
    const CanvasCard other{idOf(u'y'), 3, 4};
    const CanvasConnection line{idOf(u'x'), idOf(u'y')};
    const CanvasConnection back{idOf(u'y'), idOf(u'x')};

    std::vector<std::unique_ptr<Command>> commands;
    const auto run = [&](std::unique_ptr<Command> command, const char *text) {
        checkWayBack(project, *command);
        QCOMPARE(command->text(), QString::fromLatin1(text));
        QCOMPARE(command->changes().objects().size(), std::size_t(1));
        commands.push_back(std::move(command));
    };
    run(std::make_unique<SetCanvasCardCommand>(canvas, card), "Move card");
    run(std::make_unique<SetCanvasCardCommand>(canvas, other), "Move card");
    run(std::make_unique<SetCanvasCardCommand>(canvas, moved), "Move card");
    QCOMPARE(canvas.cards(), (QList<CanvasCard>{moved, other}));
    run(std::make_unique<AddCanvasConnectionCommand>(canvas, line), "Connect cards");
    run(std::make_unique<AddCanvasConnectionCommand>(canvas, back), "Connect cards");
    run(std::make_unique<AddCanvasConnectionCommand>(canvas, line), "Connect cards");
    run(std::make_unique<RemoveCanvasConnectionCommand>(canvas, line), "Disconnect cards");
    QCOMPARE(canvas.connections(), (QList<CanvasConnection>{back, line}));
    run(std::make_unique<RemoveCanvasCardCommand>(canvas, idOf(u'x')), "Remove card");
    QCOMPARE(canvas.cards(), QList<CanvasCard>{other});
    run(std::make_unique<RemoveCanvasCardCommand>(canvas, idOf(u'z')), "Remove card");
    while (!commands.empty()) {
        commands.back()->undo();
        commands.pop_back();
    }
    QVERIFY(canvas.cards().isEmpty() && canvas.connections().isEmpty());
}

void TestOtherCommands::annotations()
{
    Project project;
    project.add(std::make_unique<Media>(idOf(u'a'), QStringLiteral("image"),
                                        QStringLiteral("assets/a.png")));
    Media &media = *project.find<Media>(idOf(u'a'));
    MediaAnnotation arrow;
    arrow.type = QStringLiteral("arrow");
    MediaAnnotation box;
    box.type = QStringLiteral("box");
    AddMediaAnnotationCommand first(media, arrow);
    AddMediaAnnotationCommand second(media, box);
    checkWayBack(project, first);
    checkWayBack(project, second);
    QCOMPARE(media.annotations(), (QList<MediaAnnotation>{arrow, box}));
    QCOMPARE(first.text(), QStringLiteral("Add annotation"));
    for (const int outside : {-1, 2, 99}) {
        RemoveMediaAnnotationCommand nothing(media, outside);
        checkWayBack(project, nothing);
        QCOMPARE(media.annotations().size(), 2);
    }
    RemoveMediaAnnotationCommand remove(media, 0);
    checkWayBack(project, remove);
    QCOMPARE(media.annotations(), QList<MediaAnnotation>{box});
    QCOMPARE(remove.text(), QStringLiteral("Remove annotation"));
}

void TestOtherCommands::moveTask_data()
{
    QTest::addColumn<QString>("task");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("after");

    QTest::newRow("to the front") << QStringLiteral("c") << 0 << QStringLiteral("c0 a1 b2 | s7");
    QTest::newRow("to the end") << QStringLiteral("a") << -1 << QStringLiteral("b0 c1 a2 | s7");
    QTest::newRow("past the end") << QStringLiteral("a") << 12 << QStringLiteral("b0 c1 a2 | s7");
    QTest::newRow("between") << QStringLiteral("c") << 1 << QStringLiteral("a0 c1 b2 | s7");
    QTest::newRow("on the other board")
        << QStringLiteral("s") << 0 << QStringLiteral("a3 b3 c9 | s0");
    QTest::newRow("unknown") << QStringLiteral("x") << 0 << QStringLiteral("a3 b3 c9 | s7");
}

void TestOtherCommands::moveTask()
{
    QFETCH(const QString, task);
    QFETCH(const int, position);
    QFETCH(const QString, after);
    Project project;
    const auto add = [&](char16_t letter, qint32 index, const char *board) {
        auto made = std::make_unique<Task>(idOf(letter), QString(QChar(letter)));
        made->setSortIndex(index);
        made->setBoard(QString::fromLatin1(board));
        project.add(std::move(made));
    };
    add(u'a', 3, "Tasks");
    add(u'b', 3, "Tasks");
    add(u'c', 9, "Tasks");
    add(u's', 7, "Submissions");
    MoveTaskCommand command(project, idOf(task.at(0).unicode()), position);
    checkWayBack(project, command);
    QStringList boards;
    for (const char *board : {"Tasks", "Submissions"}) {
        std::map<std::pair<qint32, ContentId>, QString> words;
        for (const Task *each : project.all<Task>())
            if (each->board() == QLatin1String(board))
                words[{each->sortIndex(), each->id()}] =
                    each->title() + QString::number(each->sortIndex());
        QStringList list;
        for (const auto &[place, word] : words)
            list.append(word);
        boards.append(list.join(QLatin1Char(' ')));
    }
    QCOMPARE(boards.join(QStringLiteral(" | ")), after);
    QCOMPARE(command.text(), QStringLiteral("Move task"));
}

QTEST_GUILESS_MAIN(TestOtherCommands)
#include "tst_othercommands.moc"
