#include "app/models/codexoperations.h"
#include "app/models/inspectormodel.h"
#include "app/models/objecttreemodel.h"
#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "desktop/inspector/fieldeditor.h"
#include "desktop/panels/objecttree.h"
#include "desktop/widgets/emptystate.h"
#include "tests/support/deskwindow.h"

#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtGui/QDragMoveEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeView>

using namespace vl;
using core::ContentId;
using core::Entity;

namespace {

struct Window : test::DeskWindow
{
    QTreeView *tree = window.findChild<QTreeView *>(QStringLiteral("codexTree"));
    app::CodexOperations codex{workspace};
    ContentId people = codex.addCategory({}, QStringLiteral("People"));
    ContentId ann = codex.addEntity(people, QStringLiteral("Ann"));
    ContentId bob = codex.addEntity(people, QStringLiteral("Bob"));

    Window()
    {
        using core::FieldType;
        for (const FieldType type :
             {FieldType::Text, FieldType::Number, FieldType::Boolean, FieldType::Date,
              FieldType::Reference, FieldType::Choice, FieldType::Url}) {
            core::FieldDefinition field;
            field.label = core::fieldTypeTexts.text(type);
            field.type = type;
            if (type == FieldType::Choice)
                field.options = {QStringLiteral("red")};
            codex.addField(people, field);
        }
        tree->expandAll();
    }
    Entity &entity(const ContentId &id) const { return *workspace.project().find<Entity>(id); }
    /// The control of a field of the form that is shown.
    template<typename Control>
    Control *control(const char *key) const
    {
        for (auto *editor : window.findChildren<desktop::FieldEditor *>())
            if (editor->key() == QLatin1String(key) && editor->isVisible())
                return qobject_cast<Control *>(editor->focusProxy());
        return nullptr;
    }
    QStringList rows() const
    {
        QStringList list;
        for (QModelIndex index = tree->model()->index(0, 0); index.isValid();
             index = tree->indexBelow(index))
            list.append(index.data().toString());
        return list;
    }
};

} // namespace

class TestCodexPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeRenamesDeletesAndCopies();
    void theFilterKeepsBranchesAndSelection();
    void whatFitsNoFilterIsSaid();
    void draggingOpensBranchesAndShutsNone();
    void tagsCanBeEmptiedInTheirDialog();
    void everyControlOfEveryFormHasAName();
    void everyControlIsSetByKeys_data();
    void everyControlIsSetByKeys();
    void typingIsHandedIn();
    void undoGoesThroughTheForm();
    void theWheelChangesNothing();
};

void TestCodexPanel::theTreeRenamesDeletesAndCopies()
{
    Window desk;
    desk.workspace.select(desk.ann);
    QCOMPARE(desk.tree->currentIndex().data().toString(), QStringLiteral("Ann"));
    desk.tree->setFocus();
    QTest::keyClick(desk.tree, Qt::Key_F2);
    auto *field = desk.tree->viewport()->findChild<QLineEdit *>();
    QVERIFY(field);
    field->setText(QStringLiteral("Zoe"));
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(desk.rows().join(u' '), QStringLiteral("People Bob Zoe"));
    QCOMPARE(desk.tree->currentIndex().data().toString(), QStringLiteral("Zoe"));

    QTRY_VERIFY(desk.tree->hasFocus()); // once the editor of the name has gone
    QTest::keyClick(desk.tree, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(desk.tree, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(desk.rows().join(u' '), QStringLiteral("People Bob Zoe Zoe (copy)"));
    QTest::keyClick(desk.tree, Qt::Key_Delete); // the answer is no
    QCOMPARE(desk.rows().size(), 4);
    QCOMPARE(desk.prompts.questions.last(), QStringLiteral("Delete “Zoe (copy)”?"));
    desk.prompts.confirms = true;
    QTest::keyClick(desk.tree, Qt::Key_Delete);
    QCOMPARE(desk.rows().size(), 3);
    desk.workspace.select(desk.people);
    QTest::keyClick(desk.tree, Qt::Key_Delete);
    QCOMPARE(desk.rows().join(u' '), QStringLiteral("Bob Zoe"));
    desk.workspace.undo();
    QCOMPARE(desk.workspace.project().find<Entity>(desk.bob)->categoryId(), desk.people);
}

void TestCodexPanel::theFilterKeepsBranchesAndSelection()
{
    Window desk;
    const ContentId places = desk.codex.addCategory({}, QStringLiteral("Places"));
    desk.codex.addEntity(places, QStringLiteral("Bobtown"));
    desk.workspace.select(desk.ann);
    desk.tree->collapseAll();
    desk.tree->expand(desk.tree->model()->index(0, 0));
    auto *filter = desk.tree->parentWidget()->parentWidget()->findChild<QLineEdit *>();
    QVERIFY(filter);
    QTest::keyClicks(filter, QStringLiteral("bob"));
    QCOMPARE(desk.rows().join(u' '), QStringLiteral("People Bob Places Bobtown"));
    QTest::keyClick(filter, Qt::Key_Escape);
    QCOMPARE(desk.rows().join(u' '), QStringLiteral("People Ann Bob Places"));
    QCOMPARE(desk.tree->currentIndex().data().toString(), QStringLiteral("Ann"));
}

void TestCodexPanel::whatFitsNoFilterIsSaid()
{
    Window desk;
    desk.addDocument(QStringLiteral("Storm"), {});
    auto *documents = desk.window.findChild<QTreeView *>(QStringLiteral("documentsTree"));
    for (QTreeView *tree : {desk.tree, documents}) {
        auto *pages = qobject_cast<desktop::TreePages *>(tree->parentWidget());
        QVERIFY(pages);
        auto *filter = pages->parentWidget()->findChild<QLineEdit *>();
        QTest::keyClicks(filter, QStringLiteral("zzz"));
        auto *empty = qobject_cast<desktop::EmptyState *>(pages->currentWidget());
        QVERIFY(empty);
        QTest::mouseClick(empty->button(), Qt::LeftButton);
        QCOMPARE(pages->currentWidget(), tree);
        QCOMPARE(filter->text(), QString());
        QVERIFY(tree->model()->rowCount() > 0);
    }
}

void TestCodexPanel::draggingOpensBranchesAndShutsNone()
{
    Window desk;
    const ContentId places = desk.codex.addCategory({}, QStringLiteral("Places"));
    desk.codex.addEntity(places, QStringLiteral("Harbour"));
    const QModelIndex open = desk.tree->model()->index(0, 0);
    const QModelIndex shut = desk.tree->model()->index(1, 0);
    desk.tree->collapse(shut);
    QVERIFY(desk.tree->isExpanded(open));
    const std::unique_ptr<QMimeData> dragged(desk.codex.mimeData({desk.bob}));
    const auto hover = [&](QTreeView &tree, const QModelIndex &row) {
        const QPoint place = tree.visualRect(row).center();
        QDragEnterEvent enter(place, Qt::MoveAction, dragged.get(), Qt::LeftButton, {});
        QApplication::sendEvent(tree.viewport(), &enter);
        QDragMoveEvent move(place, Qt::MoveAction, dragged.get(), Qt::LeftButton, {});
        QApplication::sendEvent(tree.viewport(), &move);
    };
    // Another tree that is hovered over later tells that the time of the first is over.
    desktop::ObjectTree other(
        desk.workspace, qobject_cast<app::ObjectTreeModel *>(desk.tree->model()), &desk.window);
    other.resize(200, 200);
    other.show();
    other.collapseAll();
    hover(*desk.tree, open);
    hover(other, open);
    QTRY_VERIFY(other.isExpanded(open));
    QVERIFY(desk.tree->isExpanded(open));
    hover(*desk.tree, shut);
    QTRY_VERIFY(desk.tree->isExpanded(shut));
}

void TestCodexPanel::tagsCanBeEmptiedInTheirDialog()
{
    Window desk;
    desk.entity(desk.ann).setTags({QStringLiteral("old")});
    desk.workspace.select(desk.ann);
    const auto editTags = [&] {
        for (QAction *action : desk.window.findChildren<QAction *>())
            if (action->text() == u"Edit Tags…")
                action->trigger();
        return QStringList(desk.entity(desk.ann).tags().begin(), desk.entity(desk.ann).tags().end())
            .join(u' ');
    };
    desk.prompts.isTextCalledOff = true;
    QCOMPARE(editTags(), QStringLiteral("old"));
    desk.prompts.isTextCalledOff = false;
    desk.prompts.text = QStringLiteral("one, two");
    QCOMPARE(editTags(), QStringLiteral("one two"));
    desk.prompts.text = QLatin1String("");
    QCOMPARE(editTags(), QString());
    desk.workspace.undo();
    QCOMPARE(desk.entity(desk.ann).tags().size(), std::size_t(2));
}

void TestCodexPanel::everyControlOfEveryFormHasAName()
{
    Window desk;
    const auto *document =
        new core::Document(ContentId::create(), core::DocumentKind::Prose, QStringLiteral("d"));
    const ContentId documentId = document->id();
    desk.workspace.project().add(
        std::unique_ptr<core::ContentObject>(const_cast<core::Document *>(document)));
    const QList<QList<ContentId>> selections{
        {desk.ann}, {desk.people}, {documentId}, {desk.ann, desk.bob}, {desk.ann, documentId}};
    for (const QList<ContentId> &ids : selections) {
        desk.workspace.select(ids);
        int seen = 0;
        for (QWidget *widget : desk.window.findChildren<QWidget *>()) {
            if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus
                || widget->objectName().startsWith(QLatin1String("qt_"))
                || QLatin1String(widget->metaObject()->className())
                       .startsWith(QLatin1String("ads::"))
                || !(qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget)
                     || qobject_cast<QComboBox *>(widget) || qobject_cast<QPlainTextEdit *>(widget)
                     || qobject_cast<QAbstractItemView *>(widget)))
                continue;
            ++seen;
            const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(),
                     widget->metaObject()->className());
        }
        QVERIFY(seen > 8);
    }
}

void TestCodexPanel::everyControlIsSetByKeys_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("last"); // the key after the text
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *kind, const char *key, const char *typed, Qt::Key last,
                        const QVariant &value) {
        QTest::addRow("%s, %s", kind, key)
            << QString(QLatin1String(kind)) << QString(QLatin1String(key))
            << QString(QLatin1String(typed)) << int(last) << value;
    };
    const auto text = [](const char *value) { return QVariant(QString(QLatin1String(value))); };
    const auto tokens = [](const char *value) {
        return QVariant(QStringList{QLatin1String(value)});
    };
    row("document", "title", "x", Qt::Key_Return, text("x"));
    row("document", "kind", "", Qt::Key_Down, text("1"));
    row("document", "synopsis", "short", Qt::Key_Tab, text("short"));
    row("document", "status", "Draft", Qt::Key_Return, text("Draft"));
    row("document", "pointOfView", "Ann", Qt::Key_Return, text("Ann"));
    row("document", "tension", "", Qt::Key_Right, 1);
    row("document", "sceneInstant", "3 March 1270", Qt::Key_Return, text("3 March, Year 1270"));
    row("document", "target", "500", Qt::Key_Return, 500);
    row("document", "threads", "The lamp", Qt::Key_Return, tokens("The lamp"));
    row("document", "tags", "wet", Qt::Key_Return, tokens("wet"));
    row("document", "visibleTo", "Players", Qt::Key_Return, tokens("Players"));
    row("document", "aiExcluded", "", Qt::Key_Space, true);
    row("entity", "name", "Zoe", Qt::Key_Return, text("Zoe"));
    row("entity", "category", "", Qt::Key_Up, text(""));
    row("entity", "aliases", "Annie", Qt::Key_Return, tokens("Annie"));
    row("entity", "field:text", "tall", Qt::Key_Tab, text("tall"));
    row("entity", "field:number", "7", Qt::Key_Return, text("7"));
    row("entity", "field:boolean", "", Qt::Key_Down, text("yes"));
    row("entity", "field:date", "3 March 1270", Qt::Key_Return, text("3 March 1270"));
    row("entity", "field:reference", "Bob", Qt::Key_Return, text("Bob"));
    row("entity", "field:choice", "", Qt::Key_Down, text("red"));
    row("entity", "field:url", "https://a.example", Qt::Key_Return, text("https://a.example"));
    row("entity", "birth", "3 March 1270", Qt::Key_Return, text("3 March, Year 1270"));
    row("entity", "death", "4 March 1270", Qt::Key_Return, text("4 March, Year 1270"));
    row("category", "name", "Folk", Qt::Key_Return, text("Folk"));
}

/// One step of the history each, and the next Tab leads out of the control.
void TestCodexPanel::everyControlIsSetByKeys()
{
    QFETCH(QString, kind);
    QFETCH(QString, key);
    QFETCH(QString, typed);
    QFETCH(int, last);
    QFETCH(QVariant, value);
    Window desk;
    desk.workspace.project().setAudiences({QStringLiteral("Players")});
    desk.workspace.project().setPlotThreads({{QStringLiteral("The lamp"), {}, {}, {}}});
    const ContentId document = desk.openDocument({}).id();
    desk.workspace.select(kind == u"document" ? document
                          : kind == u"entity" ? desk.ann
                                              : desk.people);
    auto *control = desk.control<QWidget>(key.toLatin1().constData());
    QVERIFY(control);
    control->setFocus(Qt::TabFocusReason);
    QVERIFY(control->hasFocus());
    const auto steps = desk.workspace.history().undoCount();
    if (!typed.isEmpty())
        QTest::keyClicks(control, typed);
    QTest::keyClick(control, Qt::Key(last));
    if (control->hasFocus())
        QTest::keyClick(control, Qt::Key_Tab);
    QVERIFY(!control->hasFocus());
    QCOMPARE(desk.window.findChild<app::InspectorModel *>()->value(key), value);
    QCOMPARE(desk.workspace.history().undoCount(), steps + 1);
}

void TestCodexPanel::typingIsHandedIn()
{
    Window desk;
    desk.workspace.select(desk.ann);
    auto *text = desk.control<QPlainTextEdit>("field:text");
    QVERIFY(text);
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("tall"));
    QVERIFY(!desk.entity(desk.ann).value(QStringLiteral("text")));
    desk.workspace.select(desk.bob); // another selection
    QCOMPARE(desk.entity(desk.ann).value(QStringLiteral("text")).value_or(QString()),
             QStringLiteral("tall"));
    QVERIFY(!desk.entity(desk.bob).value(QStringLiteral("text")));

    auto *name = desk.control<QLineEdit>("name");
    QVERIFY(name);
    name->setFocus();
    name->selectAll();
    QTest::keyClicks(name, QStringLiteral("Robert"));
    desk.workspace.flush(); // as before a save
    QCOMPARE(desk.entity(desk.bob).name(), QStringLiteral("Robert"));
    QTest::keyClicks(name, QStringLiteral("!"));
    QTest::keyClick(name, Qt::Key_Escape); // taken back
    QCOMPARE(name->text(), QStringLiteral("Robert"));

    auto *birth = desk.control<QLineEdit>("birth");
    QVERIFY(birth);
    birth->setFocus();
    QTest::keyClicks(birth, QStringLiteral("3 March 1270"));
    QTest::keyClick(birth, Qt::Key_Return);
    QCOMPARE(birth->text(), QStringLiteral("3 March, Year 1270"));
    birth->selectAll();
    QTest::keyClicks(birth, QStringLiteral("never"));
    name->setFocus();
    QCOMPARE(birth->text(), QStringLiteral("never")); // refused, not lost
    QVERIFY(desk.entity(desk.bob).lifespan().birthInstant);

    desk.workspace.select({desk.ann, desk.bob});
    name = desk.control<QLineEdit>("name");
    QVERIFY(name);
    QCOMPARE(name->text(), QString());
    QCOMPARE(name->placeholderText(), QStringLiteral("(mixed)"));
}

void TestCodexPanel::undoGoesThroughTheForm()
{
    Window desk;
    desk.workspace.select(desk.ann);
    auto *name = desk.control<QLineEdit>("name");
    QVERIFY(name);
    name->setFocus();
    QTest::keyClick(name, Qt::Key_End);
    QTest::keyClicks(name, QStringLiteral("abel"));
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(desk.entity(desk.ann).name(), QStringLiteral("Annabel"));
    name->setCursorPosition(2);
    desk.workspace.undo();
    QCOMPARE(name->text(), QStringLiteral("Ann"));
    QVERIFY(name->hasFocus());
    QCOMPARE(name->cursorPosition(), 2);
    desk.workspace.redo();
    QCOMPARE(name->text(), QStringLiteral("Annabel"));
    QCOMPARE(name, desk.control<QLineEdit>("name")); // no form was made anew
}

void TestCodexPanel::theWheelChangesNothing()
{
    Window desk;
    desk.workspace.select(desk.ann);
    auto *box = desk.control<QComboBox>("field:boolean");
    QVERIFY(box);
    const QPointF inside = box->rect().center();
    QWheelEvent wheel(inside, box->mapToGlobal(inside), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    QVERIFY(!box->hasFocus());
    QVERIFY(!desk.entity(desk.ann).value(QStringLiteral("boolean")));
}

QTEST_MAIN(TestCodexPanel)
#include "tst_codexpanel.moc"
