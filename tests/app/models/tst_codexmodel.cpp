#include "app/models/codexmerge.h"
#include "app/models/codexmodel.h"
#include "app/models/codexoperations.h"
#include "app/models/workspace.h"
#include "core/commands/codexcommands.h"
#include "core/commands/objectcommands.h"
#include "core/content/task.h"
#include "core/content/timeline.h"

#include <QtCore/QMimeData>
#include <QtCore/QRandomGenerator>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

using namespace vl;
using app::codexFields;
using app::CodexModel;
using app::CodexOperations;
using core::Category;
using core::ContentId;
using core::Entity;

namespace {

/// A workspace with a codex given as names, one a line, indented under their categories; a name
/// in capitals is a category.
struct Codex
{
    app::Workspace workspace;
    QHash<QString, ContentId> ids;

    explicit Codex(const QString &outline)
    {
        QList<ContentId> path;
        for (const QString &line : outline.split(u'\n', Qt::SkipEmptyParts)) {
            const QString name = line.trimmed();
            path.resize(line.indexOf(name));
            const ContentId parent = path.isEmpty() ? ContentId() : path.back();
            const ContentId id = ContentId::create();
            ids.insert(name, id);
            path.append(id);
            if (name == name.toUpper())
                workspace.project().editTaxonomy().add({id, name, parent, {}});
            else
                workspace.project().add(std::make_unique<Entity>(id, parent, name));
        }
    }
    QList<ContentId> all(const QString &names) const
    {
        QList<ContentId> list;
        for (const QString &name : names.split(u' ', Qt::SkipEmptyParts))
            list.append(ids.value(name));
        return list;
    }
    Entity &entity(const QString &name) const
    {
        return *workspace.project().find<Entity>(ids.value(name));
    }
};

QString printed(const QAbstractItemModel &model, const QModelIndex &parent = {}, int depth = 0)
{
    QString text;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        text += QString(depth, u' ') + index.data(Qt::EditRole).toString() + u'\n';
        text += printed(model, index, depth + 1);
    }
    return text;
}

QString world()
{
    return QStringLiteral("PEOPLE\n DEAD\n  zed\n ann\n bob\nPLACES\n hall\n"
                          "stray\n");
}

} // namespace

class TestCodexModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data();
    void operations();
    void asksBeforeItRemoves_data();
    void asksBeforeItRemoves();
    void touchesOnlyTheRowsOfAChange();
    void aRenamedRowMovesToItsPlace();
    void aLargeCategoryMovesUpAndComesBack();
    void filters_data();
    void filters();
    void theFilterFollowsEdits();
    void damagedTreesStayReachable();
    void oddNames_data();
    void oddNames();
    void fieldsComeFromAllCategoriesAbove();
    void tagsOfSeveral();
    void templatesFillNewEntities();
    void pastesWhatWasCutOrCopied();
    void mergesTwoIntoOne();
    void splitsOneIntoTwo();
    void followsAnyHistory_data();
    void followsAnyHistory();
};

void TestCodexModel::operations_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("after");

    const auto row = [](const char *title, const char *operation, const char *names,
                        const char *target, const char *after) {
        QTest::newRow(title) << operation << names << target << after;
    };
    row("move an entity", "move", "ann", "PLACES",
        "PEOPLE\n DEAD\n  zed\n bob\nPLACES\n ann\n hall\nstray\n");
    row("move to the top level", "move", "zed", "",
        "PEOPLE\n DEAD\n ann\n bob\nPLACES\n hall\nstray\nzed\n");
    row("a category takes along what lies in it", "move", "PEOPLE ann DEAD", "PLACES",
        "PLACES\n PEOPLE\n  DEAD\n   zed\n  ann\n  bob\n hall\nstray\n");
    row("no category into itself", "move", "PEOPLE", "DEAD",
        "PEOPLE\n DEAD\n  zed\n ann\n bob\nPLACES\n hall\nstray\n");
    row("remove entities", "remove", "ann zed", "", "PEOPLE\n DEAD\n bob\nPLACES\n hall\nstray\n");
    row("what lies in a removed category moves up", "remove", "DEAD", "",
        "PEOPLE\n ann\n bob\n zed\nPLACES\n hall\nstray\n");
    row("up to the top level", "remove", "PEOPLE", "",
        "DEAD\n zed\nPLACES\n hall\nann\nbob\nstray\n");
    row("past a parent that goes too", "remove", "PEOPLE DEAD", "",
        "PLACES\n hall\nann\nbob\nstray\nzed\n");
    row("a category and one of its entities", "remove", "PEOPLE ann", "",
        "DEAD\n zed\nPLACES\n hall\nbob\nstray\n");
    row("duplicate", "duplicate", "ann hall PEOPLE", "",
        "PEOPLE\n DEAD\n  zed\n ann\n ann (copy)\n bob\nPLACES\n hall\n hall (copy)\nstray\n");
    row("add a category", "addCategory", "", "PEOPLE",
        "PEOPLE\n DEAD\n  zed\n New Category\n ann\n bob\nPLACES\n hall\nstray\n");
    row("add an entity", "addEntity", "", "DEAD",
        "PEOPLE\n DEAD\n  New Entity\n  zed\n ann\n bob\nPLACES\n hall\nstray\n");
}

void TestCodexModel::operations()
{
    QFETCH(QString, operation);
    QFETCH(QString, names);
    QFETCH(QString, target);
    QFETCH(QString, after);

    Codex codex(world());
    CodexModel model(codex.workspace);
    const QAbstractItemModelTester tester(&model);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    CodexOperations operations(codex.workspace);
    const QString before = printed(model);
    const QList<ContentId> ids = codex.all(names);
    const ContentId category = codex.ids.value(target);
    if (operation == u"move")
        operations.move(ids, category);
    else if (operation == u"remove")
        operations.remove(ids);
    else if (operation == u"duplicate")
        operations.duplicate(ids);
    else if (operation == u"addCategory")
        operations.addCategory(category);
    else
        operations.addEntity(category);

    QCOMPARE(printed(model), after);
    QCOMPARE(codex.workspace.history().undoCount(), before == after ? 0 : 1);
    codex.workspace.undo();
    QCOMPARE(printed(model), before);
    codex.workspace.redo();
    QCOMPARE(printed(model), after);
    QCOMPARE(reset.size(), 0);
}

void TestCodexModel::asksBeforeItRemoves_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("question");
    QTest::addColumn<QString>("detail");

    QTest::newRow("category") << "PEOPLE"
                              << "Delete “PEOPLE”? Its entities move up to the parent. Edit › Undo "
                                 "will restore it."
                              << "2 entity(ies) move up.";
    QTest::newRow("entity") << "ann"
                            << "Delete “ann”?"
                            << "Edit › Undo will restore it.";
    QTest::newRow("entities") << "ann bob ann"
                              << "Delete 2 entity(ies)?"
                              << "Edit › Undo will restore it.";
    QTest::newRow("both") << "PEOPLE ann"
                          << "Delete 1 category(ies) and 1 entity(ies)?"
                          << "1 entity(ies) move up. Edit › Undo will restore it.";
}

void TestCodexModel::asksBeforeItRemoves()
{
    QFETCH(QString, names);
    Codex codex(world());
    const CodexOperations operations(codex.workspace);
    QTEST(operations.removalQuestion(codex.all(names)), "question");
    QTEST(operations.removalDetail(codex.all(names)), "detail");
}

void TestCodexModel::touchesOnlyTheRowsOfAChange()
{
    Codex codex(world());
    CodexModel model(codex.workspace);
    QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    const auto touched = [&] {
        QStringList names;
        for (const auto &signal : std::as_const(changed))
            names.append(signal.first().toModelIndex().siblingAtColumn(0).data().toString());
        changed.clear();
        names.sort();
        return names.join(u' ');
    };

    codex.workspace.push<core::SetFieldValueCommand>(codex.entity(QStringLiteral("ann")),
                                                     QStringLiteral("age"), QStringLiteral("7"));
    QCOMPARE(touched(), QStringLiteral("ann"));
    codex.workspace.push<core::SetEntityNameCommand>(codex.entity(QStringLiteral("ann")),
                                                     QStringLiteral("anna"));
    QCOMPARE(touched(), QStringLiteral("anna"));
    QCOMPARE(moved.size(), 0);
    codex.workspace.push<core::SetPinnedCommand>(codex.workspace.project(),
                                                 codex.ids.value(QStringLiteral("bob")), true);
    QCOMPARE(touched(), QStringLiteral("bob"));

    CodexOperations operations(codex.workspace);
    operations.move(codex.all(QStringLiteral("zed")), codex.ids.value(QStringLiteral("PLACES")));
    QCOMPARE(touched(), QStringLiteral("DEAD PEOPLE PLACES zed")); // the row, and the counts
    QCOMPARE(moved.size(), 1);
    operations.addEntity(codex.ids.value(QStringLiteral("DEAD")));
    QCOMPARE(touched(), QStringLiteral("DEAD PEOPLE"));
    QCOMPARE(inserted.size(), 1);
    codex.workspace.push<core::AddObjectCommand>(
        codex.workspace.project(),
        std::make_unique<core::Task>(ContentId::create(), QStringLiteral("t")));
    QCOMPARE(touched(), QString());
    QCOMPARE(reset.size() + layout.size(), 0);
}

void TestCodexModel::aRenamedRowMovesToItsPlace()
{
    Codex codex(QStringLiteral("A\n b\n d\n f\n"));
    CodexModel model(codex.workspace);
    const QAbstractItemModelTester tester(&model);
    const QPersistentModelIndex row = model.indexOf(codex.ids.value(QStringLiteral("d")));
    for (const auto &[name, order] : {std::pair{"a", "A\n a\n b\n f\n"},
                                      {"z", "A\n b\n f\n z\n"},
                                      {"c", "A\n b\n c\n f\n"},
                                      {"10", "A\n 10\n b\n f\n"},
                                      {"é", "A\n b\n é\n f\n"}}) {
        QVERIFY(model.setData(row, QString::fromUtf8(name)));
        QCOMPARE(printed(model), QString::fromUtf8(order));
        QCOMPARE(model.idAt(row), codex.ids.value(QStringLiteral("d")));
    }
    QVERIFY(!model.setData(row, QStringLiteral("  ")));
    QVERIFY(!model.setData(row, QStringLiteral(" é ")));
    QCOMPARE(codex.workspace.history().undoCount(), 5);
}

void TestCodexModel::aLargeCategoryMovesUpAndComesBack()
{
    QString outline = QStringLiteral("TOP\n BIG\n");
    for (int i = 0; i < 5000; ++i)
        outline += QStringLiteral("  e%1\n").arg(i);
    Codex codex(outline + QStringLiteral("OTHER\n x\n"));
    CodexModel model(codex.workspace);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const QString before = printed(model);
    const ContentId kept = codex.ids.value(QStringLiteral("e77"));
    const QPersistentModelIndex row = model.indexOf(kept);

    CodexOperations(codex.workspace).remove(codex.all(QStringLiteral("BIG")));
    QCOMPARE(codex.workspace.history().undoCount(), 1);
    const QModelIndex top = model.indexOf(codex.ids.value(QStringLiteral("TOP")));
    QCOMPARE(model.rowCount(top), 5000);
    QCOMPARE(top.data(CodexModel::EntityCountRole).toInt(), 5000);
    QCOMPARE(model.idAt(row), kept);
    QCOMPARE(model.parent(row), top);

    codex.workspace.undo();
    QCOMPARE(printed(model), before);
    QCOMPARE(model.idAt(row), kept);
    codex.workspace.redo();
    QCOMPARE(printed(model), printed(CodexModel(codex.workspace)));
    QCOMPARE(reset.size(), 0);
}

void TestCodexModel::filters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("first");

    QTest::newRow("nothing") << "  "
                             << "PEOPLE\n Ann Élan\n bob\nPLACES\n hall\n"
                             << "PEOPLE";
    QTest::newRow("a name") << "HAL"
                            << "PLACES\n hall\n"
                            << "hall";
    QTest::newRow("words in any order, without accents") << "elan an"
                                                         << "PEOPLE\n Ann Élan\n"
                                                         << "Ann Élan";
    QTest::newRow("an alias") << "robert"
                              << "PEOPLE\n bob\n"
                              << "bob";
    QTest::newRow("a tag") << "lead"
                           << "PEOPLE\n bob\n"
                           << "bob";
    QTest::newRow("a category") << "people"
                                << "PEOPLE\n"
                                << "PEOPLE";
    QTest::newRow("none") << "nobody" << QString() << QString();
    QTest::newRow("not a pattern") << ".*" << QString() << QString();
}

void TestCodexModel::filters()
{
    QFETCH(QString, filter);
    QFETCH(QString, after);
    QFETCH(QString, first);
    Codex codex(QStringLiteral("PEOPLE\n Ann Élan\n bob\nPLACES\n hall\n"));
    codex.entity(QStringLiteral("bob")).setAliases({QStringLiteral("Robert")});
    codex.entity(QStringLiteral("bob")).setTags({QStringLiteral("lead")});
    CodexModel model(codex.workspace);
    const QAbstractItemModelTester tester(&model);
    model.setFilter(QStringLiteral("x"));
    model.setFilter(filter);
    QCOMPARE(printed(model), after);
    QCOMPARE(model.firstMatch().data().toString(), first);
    model.setFilter({});
    QCOMPARE(printed(model), QStringLiteral("PEOPLE\n Ann Élan\n bob\nPLACES\n hall\n"));
}

void TestCodexModel::theFilterFollowsEdits()
{
    Codex codex(QStringLiteral("P\n ann\n bob\nQ\n R\n  hall\n"));
    CodexModel model(codex.workspace);
    const QAbstractItemModelTester tester(&model);
    model.setFilter(QStringLiteral("nn"));
    QCOMPARE(printed(model), QStringLiteral("P\n ann\n"));
    CodexOperations operations(codex.workspace);
    const auto id = [&](const char *name) { return codex.ids.value(QString::fromLatin1(name)); };
    operations.rename(id("hall"), QStringLiteral("inn"));
    QCOMPARE(printed(model), QStringLiteral("P\n ann\nQ\n R\n  inn\n"));
    QCOMPARE(model.indexOf(id("Q")).data(CodexModel::EntityCountRole).toInt(), 1);
    operations.move({id("ann")}, id("R"));
    QCOMPARE(printed(model), QStringLiteral("Q\n R\n  ann\n  inn\n"));
    operations.remove({id("Q")});
    QCOMPARE(printed(model), QStringLiteral("R\n ann\n inn\n"));
    operations.rename(id("ann"), QStringLiteral("eva"));
    operations.remove({id("hall")});
    QCOMPARE(printed(model), QString());
    while (codex.workspace.history().canUndo())
        codex.workspace.undo();
    QCOMPARE(printed(model), QStringLiteral("P\n ann\n"));
}

void TestCodexModel::damagedTreesStayReachable()
{
    Codex codex(QStringLiteral("A\n B\n  C\n   x\nL\n y\nz\n"));
    core::Taxonomy &taxonomy = codex.workspace.project().editTaxonomy();
    const auto id = [&](const char *name) { return codex.ids.value(QString::fromLatin1(name)); };
    taxonomy.setParent(id("A"), id("C")); // a circle of three
    taxonomy.setParent(id("L"), ContentId::create());
    codex.entity(QStringLiteral("z")).setCategoryId(ContentId::create());
    CodexModel model(codex.workspace);
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(printed(model).split(u'\n', Qt::SkipEmptyParts).size(), 7);
    QVERIFY(codexFields(codex.workspace.project(), id("A")).isEmpty()); // it ends

    CodexOperations operations(codex.workspace);
    operations.move({id("B")}, {});
    QCOMPARE(printed(model), QStringLiteral("B\n C\n  A\n  x\nL\n y\nz\n"));
    codex.workspace.undo();
    QCOMPARE(printed(model).split(u'\n', Qt::SkipEmptyParts).size(), 7);
    for (const char *name : {"A", "B", "C", "L"})
        operations.remove({id(name)});
    QCOMPARE(printed(model), QStringLiteral("x\ny\nz\n"));
    for (int i = 0; i < 4; ++i)
        codex.workspace.undo();
    QCOMPARE(printed(model).split(u'\n', Qt::SkipEmptyParts).size(), 7);
}

void TestCodexModel::oddNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("very long") << QString(10000, u'n');
    QTest::newRow("long, of pairs") << QStringLiteral("\U0001F600").repeated(5000);
    QTest::newRow("emoji") << QStringLiteral("\U0001F469\u200D\U0001F680 pilot");
    QTest::newRow("right to left") << QStringLiteral("\u05D0\u05D1 \u0639\u0631");
    QTest::newRow("marks") << QStringLiteral("<b>&amp; %1 %n");
}

void TestCodexModel::oddNames()
{
    QFETCH(QString, name);
    Codex codex(QStringLiteral("A\n e\n"));
    CodexModel model(codex.workspace);
    const QModelIndex row = model.indexOf(codex.ids.value(QStringLiteral("e")));
    QVERIFY(model.setData(row, name));
    QCOMPARE(codex.entity(QStringLiteral("e")).name(), name);
    QCOMPARE(row.data(Qt::EditRole).toString(), name);
    const QString shown = row.data().toString();
    QVERIFY(shown.size() <= 201);
    QVERIFY(shown.isValidUtf16());
    QVERIFY(!row.data(Qt::ToolTipRole).toString().contains(QLatin1String("<b><b>")));
    model.setFilter(name.right(8));
    QCOMPARE(model.entityCount(), 1);
    QVERIFY(model.indexOf(codex.ids.value(QStringLiteral("e"))).isValid());
}

void TestCodexModel::fieldsComeFromAllCategoriesAbove()
{
    Codex codex(QStringLiteral("A\n B\n"));
    CodexOperations operations(codex.workspace);
    const ContentId a = codex.ids.value(QStringLiteral("A"));
    const ContentId b = codex.ids.value(QStringLiteral("B"));
    const auto add = [&](const ContentId &category, const char *label) {
        core::FieldDefinition field;
        field.label = QString::fromUtf8(label);
        return operations.addField(category, field);
    };
    QVERIFY(add(a, "Eye colour"));
    QVERIFY(add(b, "eye  colour"));
    QVERIFY(add(b, "Größe (m)"));
    QVERIFY(add(b, "?!"));
    QVERIFY(!add(b, "  "));
    QStringList keys;
    for (const core::FieldDefinition &field : codexFields(codex.workspace.project(), b))
        keys.append(field.key);
    QCOMPARE(keys.join(u' '), QStringLiteral("eyeColour eyeColour2 größeM field"));
    QCOMPARE(codexFields(codex.workspace.project(), a).size(), 1);
}

void TestCodexModel::tagsOfSeveral()
{
    Codex codex(world());
    Entity &ann = codex.entity(QStringLiteral("ann"));
    Entity &bob = codex.entity(QStringLiteral("bob"));
    const auto set = [](const char *tags) {
        const QStringList list = QString::fromLatin1(tags).split(u' ', Qt::SkipEmptyParts);
        return core::StringSet(list.begin(), list.end());
    };
    ann.setTags(set("common own"));
    bob.setTags(set("common other"));
    CodexOperations operations(codex.workspace);
    const QList<ContentId> ids = codex.all(QStringLiteral("ann bob"));
    QCOMPARE(operations.commonTags(ids), set("common"));
    operations.setCommonTags(ids, set("new"));
    QCOMPARE(ann.tags(), set("new own"));
    QCOMPARE(bob.tags(), set("new other"));
    codex.workspace.undo();
    QCOMPARE(ann.tags(), set("common own"));
    operations.setCommonTags(ids, set("common"));
    QCOMPARE(codex.workspace.history().undoCount(), 0);

    operations.togglePin({ann.id()});
    operations.togglePin(ids); // not all are pinned: now all are
    QVERIFY(codex.workspace.project().isPinned(bob.id()));
    operations.togglePin(ids);
    QVERIFY(codex.workspace.project().pinned().empty());
    codex.workspace.undo();
    operations.remove({bob.id()});
    QVERIFY(!codex.workspace.project().isPinned(bob.id()));
    codex.workspace.undo();
    QVERIFY(codex.workspace.project().isPinned(bob.id()));
}

void TestCodexModel::templatesFillNewEntities()
{
    Codex codex(world());
    CodexOperations operations(codex.workspace);
    codex.entity(QStringLiteral("zed")).setValue(QStringLiteral("age"), QStringLiteral("9"));
    operations.saveAsTemplate(codex.ids.value(QStringLiteral("ann")), QStringLiteral("Ghost"));
    operations.saveAsTemplate(codex.ids.value(QStringLiteral("zed")), QStringLiteral("Ghost"));
    QCOMPARE(codex.workspace.project().entityTemplates().size(), 1);
    const auto *ghost = codex.workspace.project().find<Entity>(operations.addFromTemplate(0, {}));
    QVERIFY(ghost);
    QCOMPARE(ghost->name(), QStringLiteral("Ghost"));
    QCOMPARE(ghost->categoryId(), codex.ids.value(QStringLiteral("DEAD")));
    QCOMPARE(ghost->value(QStringLiteral("age")).value_or(QString()), QStringLiteral("9"));
    operations.remove(codex.all(QStringLiteral("DEAD")));
    const ContentId places = codex.ids.value(QStringLiteral("PLACES"));
    const auto *other =
        codex.workspace.project().find<Entity>(operations.addFromTemplate(0, places));
    QCOMPARE(other->categoryId(), places);
    QVERIFY(operations.addFromTemplate(1, places).isNull());
}

void TestCodexModel::pastesWhatWasCutOrCopied()
{
    Codex codex(world());
    CodexModel model(codex.workspace);
    CodexOperations operations(codex.workspace);
    const ContentId places = codex.ids.value(QStringLiteral("PLACES"));
    const std::unique_ptr<QMimeData> copied(operations.mimeData(codex.all(QStringLiteral("ann"))));
    QCOMPARE(copied->text(), QStringLiteral("ann"));
    operations.paste(copied.get(), places);
    operations.paste(copied.get(), codex.ids.value(QStringLiteral("PEOPLE")));
    QCOMPARE(printed(model), QStringLiteral("PEOPLE\n DEAD\n  zed\n ann\n ann (copy)\n bob\n"
                                            "PLACES\n ann\n hall\nstray\n"));
    const std::unique_ptr<QMimeData> cut(
        operations.mimeData(codex.all(QStringLiteral("bob")), true));
    operations.paste(cut.get(), places);
    QCOMPARE(codex.entity(QStringLiteral("bob")).categoryId(), places);
    const std::unique_ptr<QMimeData> dragged(
        model.mimeData({model.indexOf(codex.ids.value(QStringLiteral("PEOPLE")))}));
    const QModelIndex dead = model.indexOf(codex.ids.value(QStringLiteral("DEAD")));
    QVERIFY(!model.canDropMimeData(dragged.get(), Qt::MoveAction, -1, -1, dead));
    // Onto an entity means into its category.
    model.dropMimeData(dragged.get(), Qt::MoveAction, -1, -1,
                       model.indexOf(codex.ids.value(QStringLiteral("hall"))));
    QVERIFY(codex.workspace.project().taxonomy().isWithin(
        dead.isValid() ? model.idAt(dead) : ContentId(), places));
    QMimeData foreign;
    foreign.setText(QStringLiteral("text"));
    QVERIFY(!operations.canPaste(&foreign));
    QVERIFY(operations.paste(&foreign, places).isEmpty());
}

void TestCodexModel::mergesTwoIntoOne()
{
    Codex codex(world());
    core::Project &project = codex.workspace.project();
    Entity &ann = codex.entity(QStringLiteral("ann"));
    Entity &bob = codex.entity(QStringLiteral("bob"));
    Entity &zed = codex.entity(QStringLiteral("zed"));
    const QString annId = ann.id().toString();
    ann.setValues({{QStringLiteral("age"), QStringLiteral("7")},
                   {QStringLiteral("eyes"), QStringLiteral("grey")},
                   {QStringLiteral("job"), QStringLiteral("cook")}});
    bob.setValues({{QStringLiteral("age"), QStringLiteral("9")},
                   {QStringLiteral("eyes"), QStringLiteral("blue")}});
    ann.setTags({QStringLiteral("t")});
    ann.setAliases({QStringLiteral("bob"), QStringLiteral("Annie")});
    ann.setAiExcluded(true);
    zed.setValue(QStringLiteral("friend"), annId);
    zed.setTimedValues({{QStringLiteral("friend"), annId, 5}});
    core::TimelineEventData data;
    data.participants = {ann.id(), bob.id()};
    data.locationId = ann.id();
    const auto eventId = ContentId::create();
    project.add(std::make_unique<core::TimelineEvent>(eventId, data));
    project.setPlotThreads({{QStringLiteral("p"), {}, ann.id(), {}}});
    project.pin(ann.id(), true);

    app::CodexMerge merge(codex.workspace);
    QCOMPARE(merge.conflicts(ann.id(), bob.id()).size(), 2);
    QVERIFY(merge.conflicts(ann.id(), ann.id()).isEmpty());
    merge.merge(ann.id(), bob.id(), {QStringLiteral("eyes")});
    QCOMPARE(codex.workspace.history().undoCount(), 1);
    QVERIFY(!project.contains(codex.ids.value(QStringLiteral("ann"))));
    QCOMPARE(bob.value(QStringLiteral("age")).value_or(QString()), QStringLiteral("9"));
    QCOMPARE(bob.value(QStringLiteral("eyes")).value_or(QString()), QStringLiteral("grey"));
    QCOMPARE(bob.value(QStringLiteral("job")).value_or(QString()), QStringLiteral("cook"));
    QCOMPARE(bob.aliases().join(u' '), QStringLiteral("ann Annie"));
    QVERIFY(bob.isAiExcluded() && bob.tags().contains(QStringLiteral("t")));
    QCOMPARE(zed.value(QStringLiteral("friend")).value_or(QString()), bob.id().toString());
    QCOMPARE(zed.timedValues().first().value, bob.id().toString());
    const core::TimelineEventData &event = project.find<core::TimelineEvent>(eventId)->data();
    QCOMPARE(event.participants, QList<ContentId>{bob.id()});
    QCOMPARE(event.locationId, bob.id());
    QCOMPARE(project.plotThreads().first().characterId, bob.id());
    QVERIFY(project.isPinned(bob.id()));

    codex.workspace.undo();
    QCOMPARE(ann.name(), QStringLiteral("ann"));
    QCOMPARE(bob.value(QStringLiteral("eyes")).value_or(QString()), QStringLiteral("blue"));
    QCOMPARE(zed.value(QStringLiteral("friend")).value_or(QString()), annId);
    QCOMPARE(project.find<core::TimelineEvent>(eventId)->data().participants, data.participants);
    QVERIFY(project.isPinned(ann.id()) && !project.isPinned(bob.id()));
}

void TestCodexModel::splitsOneIntoTwo()
{
    Codex codex(world());
    Entity &ann = codex.entity(QStringLiteral("ann"));
    ann.setValues({{QStringLiteral("age"), QStringLiteral("7")},
                   {QStringLiteral("job"), QStringLiteral("cook")}});
    ann.setAliases({QStringLiteral("Annie"), QStringLiteral("The Cook")});
    ann.setTimedValues({{QStringLiteral("job"), QStringLiteral("maid"), 1},
                        {QStringLiteral("age"), QStringLiteral("8"), 2}});
    app::CodexMerge merge(codex.workspace);
    QVERIFY(merge.split(ann.id(), QStringLiteral(" "), {}, {}).isNull());
    const ContentId id = merge.split(ann.id(), QStringLiteral("Cook"), {QStringLiteral("job")},
                                     {QStringLiteral("The Cook")});
    const auto *part = codex.workspace.project().find<Entity>(id);
    QVERIFY(part);
    QCOMPARE(part->categoryId(), ann.categoryId());
    QCOMPARE(part->value(QStringLiteral("job")).value_or(QString()), QStringLiteral("cook"));
    QCOMPARE(part->timedValues().size(), 1);
    QCOMPARE(part->aliases().join(u' '), QStringLiteral("The Cook"));
    QVERIFY(ann.value(QStringLiteral("job")).value_or(QString()).isEmpty());
    QCOMPARE(ann.timedValues().size(), 1);
    QCOMPARE(ann.aliases().join(u' '), QStringLiteral("Annie"));
    codex.workspace.undo();
    QCOMPARE(ann.value(QStringLiteral("job")).value_or(QString()), QStringLiteral("cook"));
    QCOMPARE(ann.timedValues().size(), 2);
    QVERIFY(!codex.workspace.project().contains(id));
}

void TestCodexModel::followsAnyHistory_data()
{
    QTest::addColumn<QString>("filter");
    QTest::newRow("all") << QString();
    QTest::newRow("filtered") << QStringLiteral("b");
}

void TestCodexModel::followsAnyHistory()
{
    QFETCH(QString, filter);
    Codex codex(world());
    CodexModel model(codex.workspace);
    model.setFilter(filter);
    const QAbstractItemModelTester tester(&model);
    CodexOperations operations(codex.workspace);
    QRandomGenerator random(7);
    for (int step = 0; step < 600; ++step) {
        QList<ContentId> ids;
        for (const ContentId &id : codex.workspace.project().taxonomy().ids())
            ids.append(id);
        const QList<ContentId> categories = ids;
        for (const Entity *entity : codex.workspace.project().all<Entity>())
            ids.append(entity->id());
        const auto any = [&](const QList<ContentId> &list) {
            return list.isEmpty() ? ContentId() : list[random.bounded(list.size())];
        };
        const QString name(1 + random.bounded(2), QChar(u'a' + random.bounded(4)));
        switch (random.bounded(9)) {
        case 0:
            operations.addCategory(any(categories), name);
            break;
        case 1:
        case 2:
            operations.addEntity(any(categories), name);
            break;
        case 3:
        case 4:
            operations.move({any(ids), any(ids), any(ids)}, any(categories));
            break;
        case 5:
            operations.rename(any(ids), name);
            break;
        case 6:
            if (ids.size() > 8)
                operations.remove({any(ids), any(ids)});
            break;
        case 7:
            codex.workspace.redo();
            break;
        default:
            codex.workspace.undo();
        }
        CodexModel fresh(codex.workspace);
        fresh.setFilter(filter);
        QCOMPARE(printed(model), printed(fresh));
    }
}

QTEST_GUILESS_MAIN(TestCodexModel)
#include "tst_codexmodel.moc"
