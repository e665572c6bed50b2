#include "app/models/codexoperations.h"
#include "app/models/inspectormodel.h"
#include "app/models/referencesmodel.h"
#include "app/models/timedvaluesmodel.h"
#include "app/models/workspace.h"
#include "app/time/calendartext.h"
#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commands/projectcommands.h"
#include "tests/support/projectbuilder.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

using namespace vl;
using app::FieldEditing;
using app::InspectorModel;
using core::ContentId;
using core::Document;
using core::DocumentKind;
using core::Entity;
using core::FieldType;

namespace {

/// A workspace with a category that has a field of every type, three entities in it, one in a
/// category below it, and two documents.
struct Desk
{
    app::Workspace workspace;
    ContentId people = ContentId::create();
    ContentId dead = ContentId::create();
    Entity *ann = add(people, "Ann");
    Entity *bob = add(people, "Bob");
    Entity *zed = add(dead, "Zed");
    Document *first = addDocument("First");
    Document *second = addDocument("Second");

    Desk()
    {
        core::Category category{people, QStringLiteral("People"), {}, {}};
        const auto field = [&](const char *key, FieldType type) {
            category.fields.append({QLatin1String(key), QLatin1String(key), type, false, {}, {}});
        };
        field("text", FieldType::Text);
        field("number", FieldType::Number);
        field("boolean", FieldType::Boolean);
        field("date", FieldType::Date);
        field("reference", FieldType::Reference);
        field("choice", FieldType::Choice);
        field("url", FieldType::Url);
        category.fields[5].options = {QStringLiteral("red"), QStringLiteral("blue")};
        workspace.project().editTaxonomy().add(category);
        workspace.project().editTaxonomy().add(
            {dead,
             QStringLiteral("Dead"),
             people,
             {{QStringLiteral("grave"), QStringLiteral("Grave"), FieldType::Text, true, {}, {}}}});
    }
    core::CommandStack &history() const { return workspace.history(); }
    QStringList keys(const InspectorModel &model) const
    {
        QStringList list;
        for (const app::InspectorField &field : model.fields())
            list.append(field.key);
        return list;
    }

private:
    Entity *add(const ContentId &category, const char *name)
    {
        auto entity = std::make_unique<Entity>(ContentId::create(), category, QLatin1String(name));
        Entity *added = entity.get();
        workspace.project().add(std::move(entity));
        return added;
    }
    Document *addDocument(const char *title)
    {
        auto document = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose,
                                                   QLatin1String(title));
        Document *added = document.get();
        workspace.project().add(std::move(document));
        return added;
    }
};

} // namespace

class TestInspectorModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldTypeIsEdited_data();
    void everyFieldTypeIsEdited();
    void refusesAndKeepsDrafts();
    void references();
    void severalAtOnce();
    void sharedTokens();
    void theFormFollowsTheFields();
    void tellsOfItsOwnFieldsAlone();
    void handsInBeforeItSwitches();
    void documents();
    void everyKindHasAForm();
    void timedValues();
    void unfinishedTimedValuesAreKept();
};

void TestInspectorModel::everyFieldTypeIsEdited_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("typed");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("isFine");

    const auto row = [](const char *title, const char *key, const QVariant &typed,
                        const char *stored, bool isFine = true) {
        QTest::newRow(title) << QStringLiteral("field:%1").arg(QLatin1String(key)) << typed
                             << QString::fromUtf8(stored) << isFine;
    };
    const auto text = [](const char *utf8) { return QVariant(QString::fromUtf8(utf8)); };
    row("text with lines", "text", text(" a\n\tb "), " a\n\tb ");
    row("emoji and right to left", "text", text("\U0001F469‍\U0001F680 אב"),
        "\U0001F469‍\U0001F680 אב");
    row("number", "number", text(" -12.5 "), "-12.5");
    row("no number is kept", "number", text("about ten"), "about ten", false);
    row("yes", "boolean", text("yes"), "yes");
    row("date", "date", text("3 March 1270"), "3 March 1270");
    row("no date is kept", "date", text("long ago"), "long ago", false);
    row("choice", "choice", text("blue"), "blue");
    row("address", "url", text("https://example.org/a?b"), "https://example.org/a?b");
    row("no address is kept", "url", text("javascript:alert(1)"), "javascript:alert(1)", false);
}

void TestInspectorModel::everyFieldTypeIsEdited()
{
    QFETCH(QString, key);
    QFETCH(QVariant, typed);
    QFETCH(QString, stored);
    QFETCH(bool, isFine);
    Desk desk;
    desk.workspace.select(desk.ann->id());
    InspectorModel model(desk.workspace);
    QVERIFY(model.setValue(key, typed));
    const QString fieldKey = key.mid(6);
    QCOMPARE(desk.ann->value(fieldKey).value_or(QString()), stored);
    QCOMPARE(model.value(key).toString(), stored);
    QCOMPARE(model.problem(key).isEmpty(), isFine);
    QCOMPARE(desk.history().undoCount(), 1);
    QVERIFY(model.setValue(key, stored)); // the same again is no step
    QCOMPARE(desk.history().undoCount(), 1);
    desk.workspace.undo();
    QVERIFY(!desk.ann->value(fieldKey));
    QCOMPARE(model.value(key).toString(), QString());
}

void TestInspectorModel::refusesAndKeepsDrafts()
{
    Desk desk;
    const QString birth = QStringLiteral("birth");
    const QString name = QStringLiteral("name");
    desk.workspace.select(desk.ann->id());
    InspectorModel model(desk.workspace);
    QVERIFY(model.setValue(birth, QStringLiteral("3 March 1270")));
    QCOMPARE(model.value(birth).toString(), QStringLiteral("3 March, Year 1270"));
    QVERIFY(!model.setValue(birth, QStringLiteral("31 Febtember")));
    QVERIFY(!model.setValue(name, QStringLiteral("  ")));
    QVERIFY(!model.problem(birth).isEmpty());
    QCOMPARE(desk.ann->name(), QStringLiteral("Ann"));
    QCOMPARE(desk.history().undoCount(), 1);

    // What was refused is there again after a look elsewhere.
    desk.workspace.select(desk.bob->id());
    QCOMPARE(model.value(birth).toString(), QString());
    desk.workspace.select(desk.ann->id());
    QCOMPARE(model.value(birth).toString(), QStringLiteral("31 Febtember"));
    QVERIFY(!model.problem(birth).isEmpty());
    model.revert(birth);
    QCOMPARE(model.value(birth).toString(), QStringLiteral("3 March, Year 1270"));
    QVERIFY(model.problem(birth).isEmpty());
    QVERIFY(model.setValue(name, QStringLiteral("Anna")));
    QVERIFY(model.setValue(birth, QString()));
    QVERIFY(!desk.ann->lifespan().birthInstant);
}

void TestInspectorModel::references()
{
    Desk desk;
    const QString key = QStringLiteral("field:reference");
    desk.bob->setAliases({QStringLiteral("Röbert")});
    desk.workspace.select(desk.ann->id());
    InspectorModel model(desk.workspace);
    QVERIFY(model.setValue(key, QStringLiteral("robert")));
    QCOMPARE(desk.ann->value(QStringLiteral("reference")).value_or(QString()),
             desk.bob->id().toString());
    QCOMPARE(model.value(key).toString(), QStringLiteral("Bob"));
    QCOMPARE(model.referenced(key), desk.bob->id());
    QVERIFY(!model.setValue(key, QStringLiteral("Nobody")));

    QSignalSpy changed(&model, &InspectorModel::fieldChanged);
    model.revert(key);
    desk.workspace.push<core::SetEntityNameCommand>(*desk.bob, QStringLiteral("Bobby"));
    QCOMPARE(model.value(key).toString(), QStringLiteral("Bobby"));
    QVERIFY(changed.size() >= 1);

    desk.workspace.push<core::SetEntityNameCommand>(*desk.zed, QStringLiteral("Bobby"));
    QVERIFY(!model.setValue(key, QStringLiteral("bobby"))); // which of the two?
    model.setReference(key, desk.zed->id());
    QCOMPARE(model.referenced(key), desk.zed->id());
    QVERIFY(model.problem(key).isEmpty());
    desk.workspace.push<core::RemoveObjectCommand>(desk.workspace.project(), desk.zed->id());
    QVERIFY(!model.problem(key).isEmpty());
    QVERIFY(model.referenced(key).isNull());
    desk.workspace.undo();
    QCOMPARE(model.referenced(key), desk.zed->id());

    app::ReferencesModel names(desk.workspace);
    const QAbstractItemModelTester tester(&names);
    names.refresh();
    QStringList list;
    for (int row = 0; row < names.rowCount(); ++row)
        list.append(names.index(row).data().toString());
    QCOMPARE(list.join(u'|'), QStringLiteral("Ann|Bobby (People › Dead)|Bobby (People)"));
    QCOMPARE(names.idAt(names.index(1)), desk.zed->id());
}

void TestInspectorModel::severalAtOnce()
{
    Desk desk;
    desk.ann->setValue(QStringLiteral("choice"), QStringLiteral("red"));
    desk.workspace.select({desk.ann->id(), desk.bob->id(), desk.zed->id()});
    InspectorModel model(desk.workspace);
    const QString choice = QStringLiteral("field:choice");
    QVERIFY(model.isMixed(choice));
    QVERIFY(model.value(choice).toString().isEmpty());
    QVERIFY(model.isMixed(QStringLiteral("name")));
    QVERIFY(!desk.keys(model).contains(QStringLiteral("field:grave"))); // not all have it
    QVERIFY(model.setValue(choice, QStringLiteral("red")));
    QCOMPARE(desk.history().undoCount(), 1);
    QVERIFY(!model.isMixed(choice));
    for (const Entity *entity : {desk.ann, desk.bob, desk.zed})
        QCOMPARE(entity->value(QStringLiteral("choice")).value_or(QString()),
                 QStringLiteral("red"));
    QVERIFY(model.setValue(QStringLiteral("category"), desk.dead.toString()));
    QCOMPARE(desk.ann->categoryId(), desk.dead);
    desk.workspace.undo();
    desk.workspace.undo();
    QVERIFY(!desk.bob->value(QStringLiteral("choice")));
    QVERIFY(model.isMixed(choice));

    desk.workspace.select({desk.ann->id(), desk.first->id()});
    QCOMPARE(desk.keys(model).join(u' '), QStringLiteral("tags aiExcluded"));
    QVERIFY(model.setValue(QStringLiteral("aiExcluded"), true));
    QVERIFY(desk.first->isAiExcluded() && desk.ann->isAiExcluded());
    QCOMPARE(desk.history().undoCount(), 1);
}

void TestInspectorModel::sharedTokens()
{
    Desk desk;
    desk.ann->setTags({QStringLiteral("a"), QStringLiteral("both")});
    desk.bob->setTags({QStringLiteral("b"), QStringLiteral("both")});
    desk.workspace.select({desk.ann->id(), desk.bob->id()});
    InspectorModel model(desk.workspace);
    const QString tags = QStringLiteral("tags");
    QCOMPARE(model.value(tags).toStringList(), QStringList{QStringLiteral("both")});
    QVERIFY(model.isMixed(tags));
    QVERIFY(model.setValue(tags, QStringList{QStringLiteral("new")}));
    QCOMPARE(desk.ann->tags(), (core::StringSet{QStringLiteral("a"), QStringLiteral("new")}));
    QCOMPARE(desk.bob->tags(), (core::StringSet{QStringLiteral("b"), QStringLiteral("new")}));
    desk.workspace.undo();
    QCOMPARE(model.suggestions(tags).join(u' '), QStringLiteral("a b both"));

    desk.workspace.select(desk.ann->id());
    const QStringList order{QStringLiteral("z"), QStringLiteral("Ann, the Keeper")};
    QVERIFY(model.setValue(QStringLiteral("aliases"), order));
    QCOMPARE(desk.ann->aliases(), order);
}

void TestInspectorModel::theFormFollowsTheFields()
{
    Desk desk;
    desk.zed->setValue(QStringLiteral("old"), QStringLiteral("kept"));
    desk.workspace.select(desk.zed->id());
    InspectorModel model(desk.workspace);
    QSignalSpy form(&model, &InspectorModel::formChanged);
    const QStringList keys = desk.keys(model);
    QVERIFY(keys.indexOf(QStringLiteral("field:text"))
            < keys.indexOf(QStringLiteral("field:grave")));           // those from above first
    QVERIFY(keys.contains(QStringLiteral("field:old")));              // nothing is out of sight
    QVERIFY(!model.problem(QStringLiteral("field:grave")).isEmpty()); // to be filled

    desk.workspace.push<core::RemoveFieldCommand>(desk.workspace.project(), desk.people,
                                                  QStringLiteral("url"));
    QCOMPARE(form.size(), 1);
    QVERIFY(!desk.keys(model).contains(QStringLiteral("field:url")));
    desk.workspace.undo();
    QCOMPARE(desk.keys(model), keys);

    desk.workspace.select(desk.people);
    QVERIFY(model.isCategory());
    QVERIFY(model.setValue(QStringLiteral("name"), QStringLiteral("Folk")));
    QCOMPARE(desk.workspace.project().taxonomy().find(desk.people)->name, QStringLiteral("Folk"));
    for (const app::FieldOption &option : model.fields().at(1).options)
        QVERIFY(option.value != desk.dead.toString()); // not under what lies below it
    desk.workspace.select(desk.dead);
    QVERIFY(model.setValue(QStringLiteral("parent"), QString()));
    QVERIFY(desk.workspace.project().taxonomy().find(desk.dead)->parentId.isNull());
}

void TestInspectorModel::tellsOfItsOwnFieldsAlone()
{
    Desk desk;
    desk.workspace.select(desk.ann->id());
    InspectorModel model(desk.workspace);
    QSignalSpy form(&model, &InspectorModel::formChanged);
    QSignalSpy changed(&model, &InspectorModel::fieldChanged);
    desk.workspace.push<core::SetFieldValueCommand>(*desk.bob, QStringLiteral("text"),
                                                    QStringLiteral("x"));
    desk.workspace.push<core::SetDocumentBodyCommand>(*desk.first, QStringLiteral("x"));
    QCOMPARE(changed.size() + form.size(), 0);
    desk.workspace.push<core::SetFieldValueCommand>(*desk.ann, QStringLiteral("text"),
                                                    QStringLiteral("x"));
    QStringList keys;
    for (const auto &signal : std::as_const(changed))
        keys.append(signal.first().toString());
    QCOMPARE(keys.join(u' '), QStringLiteral("field:text timed gallery"));
    QCOMPARE(form.size(), 0);
}

void TestInspectorModel::handsInBeforeItSwitches()
{
    Desk desk;
    desk.workspace.select(desk.ann->id());
    InspectorModel model(desk.workspace);
    connect(&model, &InspectorModel::aboutToSwitch, &model, [&] {
        if (model.only() == desk.ann->id())
            model.setValue(QStringLiteral("field:text"), QStringLiteral("typed"));
    });
    desk.workspace.select(desk.bob->id());
    QCOMPARE(desk.ann->value(QStringLiteral("text")).value_or(QString()), QStringLiteral("typed"));
    QVERIFY(!desk.bob->value(QStringLiteral("text")));
    QCOMPARE(model.only(), desk.bob->id());

    // An object that goes is let go of, and comes back when it is selected again.
    desk.workspace.push<core::RemoveObjectCommand>(desk.workspace.project(), desk.bob->id());
    QVERIFY(model.fields().isEmpty());
    QVERIFY(!model.setValue(QStringLiteral("name"), QStringLiteral("x")));
    desk.workspace.undo();
    desk.workspace.select(desk.bob->id());
    QCOMPARE(model.value(QStringLiteral("name")).toString(), QStringLiteral("Bob"));
    desk.workspace.replaceProject(std::make_unique<app::OpenProject>());
    QVERIFY(model.fields().isEmpty());
}

void TestInspectorModel::documents()
{
    Desk desk;
    desk.second->setStatus(QStringLiteral("Draft"));
    desk.second->setPointOfView(QStringLiteral("The cat"));
    desk.first->setBody(QStringLiteral("one two three"));
    desk.workspace.select(desk.first->id());
    InspectorModel model(desk.workspace);
    QCOMPARE(model.words(), 3);
    QCOMPARE(model.suggestions(QStringLiteral("status")), QStringList{QStringLiteral("Draft")});
    // Values in use, and the characters: those of a category named so and of all below it.
    QCOMPARE(model.suggestions(QStringLiteral("pointOfView")).join(u'|'),
             QStringLiteral("Ann|Bob|The cat|Zed"));
    QVERIFY(model.setValue(QStringLiteral("tension"), 99));
    QCOMPARE(desk.first->tensionLevel(), 10);
    QVERIFY(model.setValue(QStringLiteral("target"), -5));
    QCOMPARE(desk.first->wordCountTarget(), 0);
    QVERIFY(model.setValue(QStringLiteral("sceneInstant"), QStringLiteral("1 January 2 07:30")));
    QCOMPARE(desk.first->sceneInstant().value_or(0), (365 * 24 + 7) * 60 + 30);
    QVERIFY(model.setValue(QStringLiteral("kind"), QStringLiteral("2")));
    QCOMPARE(desk.first->documentKind(), DocumentKind::Note);
    desk.workspace.push<core::SetPlotThreadsCommand>(
        desk.workspace.project(), QList<core::PlotThread>{{QStringLiteral("Main"), {}, {}, {}}});
    QVERIFY(desk.keys(model).contains(QStringLiteral("threads")));
    QCOMPARE(model.suggestions(QStringLiteral("threads")).join(u' '), QStringLiteral("Main"));

    desk.workspace.select({desk.first->id(), desk.second->id()});
    QVERIFY(model.isMixed(QStringLiteral("status")));
    QVERIFY(model.setValue(QStringLiteral("status"), QStringLiteral("Done")));
    QCOMPARE(desk.second->status(), QStringLiteral("Done"));
    QVERIFY(model.setValue(QStringLiteral("title"), QString(10000, u't')));
    QCOMPARE(desk.second->title().size(), 10000);
}

void TestInspectorModel::everyKindHasAForm()
{
    app::Workspace workspace;
    const std::unique_ptr<core::Project> full = test::fullProject(3);
    for (const ContentId &id : full->ids())
        workspace.project().add(full->take(id));
    InspectorModel model(workspace);
    int kinds = 0;
    for (const ContentId &id : workspace.project().ids()) {
        workspace.select(id);
        ++kinds;
        QVERIFY(!model.heading().isEmpty());
        QVERIFY(model.fields().size() >= 2);
        const QString text = QStringLiteral("changed & <b> %1");
        const QList<app::InspectorField> fields = model.fields(); // an edit makes them anew
        for (const app::InspectorField &field : fields) {
            if (field.editing != FieldEditing::Line && field.editing != FieldEditing::Text)
                continue;
            const auto steps = workspace.history().undoCount();
            QVERIFY2(model.setValue(field.key, text), qPrintable(field.key));
            QCOMPARE(model.value(field.key).toString(), text);
            QCOMPARE(workspace.history().undoCount(), steps + 1);
        }
    }
    QVERIFY(kinds >= 15);
}

void TestInspectorModel::timedValues()
{
    Desk desk;
    app::TimedValuesModel rows(desk.workspace);
    const QAbstractItemModelTester tester(&rows);
    desk.ann->setTimedValues({{QStringLiteral("text"), QStringLiteral("child"), 0}});
    rows.show(desk.ann->id());
    QCOMPARE(rows.rowCount(), 1);
    const auto set = [&](int row, int column, const char *text) {
        return rows.setData(rows.index(row, column), QString::fromUtf8(text));
    };
    QVERIFY(set(0, app::TimedValuesModel::ValueColumn, "grown"));
    QVERIFY(set(0, app::TimedValuesModel::FromColumn, "1 February 1"));
    QCOMPARE(desk.history().undoCount(), 2);
    QCOMPARE(
        desk.ann->timedValues(),
        (QList<core::TimedValue>{{QStringLiteral("text"), QStringLiteral("grown"), 31 * 24 * 60}}));
    QVERIFY(!set(0, app::TimedValuesModel::ValueColumn, "grown"));

    QCOMPARE(rows.addRow(), 1);
    QVERIFY(set(1, app::TimedValuesModel::FieldColumn, "reference"));
    QVERIFY(rows.setData(rows.index(1, 1), desk.bob->id().toString()));
    QCOMPARE(desk.history().undoCount(), 2); // not before it has a date
    QVERIFY(!rows.index(1, 0).data(app::TimedValuesModel::ProblemRole).toString().isEmpty());
    QVERIFY(set(1, app::TimedValuesModel::FromColumn, "3"));
    QCOMPARE(desk.history().undoCount(), 3);
    QCOMPARE(rows.index(1, 1).data().toString(), QStringLiteral("Bob"));
    rows.removeRows({0});
    QCOMPARE(desk.ann->timedValues().size(), 1);
    desk.workspace.undo();
    desk.workspace.undo();
    rows.refresh();
    QCOMPARE(rows.rowCount(), 1);
}

void TestInspectorModel::unfinishedTimedValuesAreKept()
{
    Desk desk;
    app::TimedValuesModel rows(desk.workspace);
    desk.ann->setTimedValues({{QStringLiteral("text"), QStringLiteral("a"), 0},
                              {QStringLiteral("text"), QStringLiteral("b"), 60}});
    rows.show(desk.ann->id());
    const int from = app::TimedValuesModel::FromColumn;
    rows.setData(rows.index(0, from), QStringLiteral("the flood"));
    rows.addRow();
    rows.setData(rows.index(2, 1), QStringLiteral("c"));
    QCOMPARE(desk.history().undoCount(), 0);
    QCOMPARE(desk.ann->timedValues().size(), 2);
    rows.show(desk.bob->id());
    QCOMPARE(rows.rowCount(), 0);
    rows.show(desk.ann->id());
    QCOMPARE(rows.rowCount(), 3);
    QVERIFY(rows.index(0, from).data().toString().contains(QLatin1String("the flood")));
    QCOMPARE(rows.index(2, 1).data().toString(), QStringLiteral("c"));
    // Another row is removed; what is unfinished stays with its own.
    rows.removeRows({1});
    QCOMPARE(desk.ann->timedValues().size(), 1);
    QVERIFY(rows.index(0, from).data().toString().contains(QLatin1String("the flood")));
    QCOMPARE(rows.rowCount(), 2);
    rows.setData(rows.index(0, from), QStringLiteral("7"));
    QCOMPARE(desk.ann->timedValues().first().value, QStringLiteral("a"));
    QCOMPARE(rows.index(0, 0).data(app::TimedValuesModel::ProblemRole).toString(), QString());
}

QTEST_GUILESS_MAIN(TestInspectorModel)
#include "tst_inspectormodel.moc"
