#include "app/models/codexoperations.h"
#include "app/models/documentoperations.h"
#include "core/commands/documentcommands.h"
#include "core/content/task.h"
#include "desktop/inspector/fieldeditor.h"
#include "desktop/panels/catalogue.h"
#include "desktop/panels/documentspanel.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/shell/icons.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/notices.h"
#include "tests/support/deskwindow.h"

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

using namespace vl;
using core::Document;
using core::DocumentKind;

namespace {

struct Window : test::DeskWindow
{
    desktop::EditorTextWidget *text = window.findChild<desktop::EditorTextWidget *>();
    QTreeView *tree = window.findChild<QTreeView *>(QStringLiteral("documentsTree"));

    Document &add(const QString &body) { return openDocument(body); }
};

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyActionIsUniqueAndBoundOrOff();
    void undoIsOffWithNothingToTakeBack();
    void typingBecomesStepsOfTheHistory();
    void nothingTypedIsLost();
    void oddCharactersSurviveTheWidget();
    void theTreeMovesAndRenames();
    void nothingGoneIsSelected();
    void theTextHasTheFocus();
    void aClosedPanelComesWhenItIsNeeded_data();
    void aClosedPanelComesWhenItIsNeeded();
    void theDocumentsOfferWhatCanBeDone();
    void closingAsks();
    void theLayoutComesBack();
    void noticesOfferAndAsk();
};

void TestMainWindow::everyActionIsUniqueAndBoundOrOff()
{
    const Window desk;
    QSet<QString> ids;
    QHash<QString, QString> keys;
    for (const QAction *action : desk.window.actions().all()) {
        QVERIFY2(!ids.contains(action->objectName()), qPrintable(action->objectName()));
        ids.insert(action->objectName());
        QVERIFY2(action->property("bound").toBool() || !action->isEnabled(),
                 qPrintable(action->objectName()));
        for (const QKeySequence &shortcut : action->shortcuts()) {
            QVERIFY2(shortcut.isEmpty() || !keys.contains(shortcut.toString()),
                     qPrintable(shortcut.toString()));
            keys.insert(shortcut.toString(), action->objectName());
        }
    }
    QSet<QString> panels;
    for (const desktop::PanelRow &row : desktop::panelCatalogue()) {
        panels.insert(QLatin1String(row.objectName));
        QVERIFY2(desktop::iconNames().contains(QLatin1String(row.icon)), row.objectName);
    }
    QCOMPARE(size_t(panels.size()), desktop::panelCatalogue().size());
}

void TestMainWindow::undoIsOffWithNothingToTakeBack()
{
    Window desk;
    const QAction *undo = desk.window.actions()["edit.undo"];
    QVERIFY(!undo->isEnabled());
    desk.add(QStringLiteral("Once"));
    QVERIFY(undo->isEnabled());
    while (desk.window.workspace().history().canUndo())
        desk.window.actions()["edit.undo"]->trigger();
    QVERIFY(!undo->isEnabled());

    desk.prompts.path = desk.dir.filePath(QStringLiteral("saved"));
    desk.add(QStringLiteral("Once"));
    desk.window.actions()["file.saveAsFolder"]->trigger();
    QVERIFY(desk.window.openProject(desk.prompts.path));
    QVERIFY(!undo->isEnabled());
    QTRY_VERIFY(desk.text->hasFocus());
    QTest::keyClicks(desk.text, QStringLiteral("x")); // no step yet
    QVERIFY(!desk.window.workspace().history().canUndo() && undo->isEnabled());
    desk.window.actions()["edit.undo"]->trigger();
    QCOMPARE(desk.text->text(), QStringLiteral("Once"));
    QVERIFY(!undo->isEnabled());
    QTest::keyClicks(desk.text, QStringLiteral("x"));
    QTest::keyClick(desk.text, Qt::Key_Backspace); // and it comes to nothing
    desk.window.actions()["edit.undo"]->trigger();
    QVERIFY(!undo->isEnabled());
    for (const auto *field : desk.window.findChildren<desktop::FieldEditor *>())
        if (field->key() == u"title" && field->isVisible())
            QTest::keyClicks(field->focusProxy(), QStringLiteral("x"));
    QVERIFY(!desk.window.workspace().history().canUndo() && undo->isEnabled());
}

void TestMainWindow::typingBecomesStepsOfTheHistory()
{
    Window desk;
    Document &document = desk.add(QStringLiteral("Once"));
    core::CommandStack &history = desk.window.workspace().history();
    const auto steps = history.undoCount();
    desk.text->setFocus();
    desk.text->moveCursor(QTextCursor::End);
    QTest::keyClicks(desk.text, QStringLiteral(" upon"));
    QCOMPARE(document.body(), QStringLiteral("Once"));
    QTest::qWait(1); // a key is not a pause
    QCOMPARE(history.undoCount(), steps);
    QTRY_COMPARE_WITH_TIMEOUT(history.undoCount(), steps + 1, 5000);
    QCOMPARE(document.body(), QStringLiteral("Once upon"));

    QTest::keyClicks(desk.text, QStringLiteral(" a time"));
    // One step back takes what was typed since the pause, whether it was handed in or not.
    QTest::keyClick(desk.text, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk.text->text(), QStringLiteral("Once upon"));
    QCOMPARE(desk.text->caret(), qsizetype(9));
    QTest::keyClick(desk.text, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk.text->text(), QStringLiteral("Once"));
    QTest::keySequence(desk.text, QKeySequence::Redo);
    QTest::keySequence(desk.text, QKeySequence::Redo);
    QCOMPARE(desk.text->text(), QStringLiteral("Once upon a time"));
    QCOMPARE(document.body(), desk.text->text());
}

void TestMainWindow::nothingTypedIsLost()
{
    Window desk;
    Document &first = desk.add(QStringLiteral("First."));
    Document &second = desk.add(QStringLiteral("Second."));
    desk.text->moveCursor(QTextCursor::End);
    QTest::keyClicks(desk.text, QStringLiteral(" More."));
    desk.window.workspace().select(first.id());
    QCOMPARE(desk.text->text(), QStringLiteral("First."));
    QCOMPARE(second.body(), QStringLiteral("Second. More."));

    // A step of somebody else meets what is typed and not handed in yet.
    desk.text->moveCursor(QTextCursor::End);
    QTest::keyClicks(desk.text, QStringLiteral(" Typed."));
    desk.window.workspace().push<core::SetDocumentBodyCommand>(first, QStringLiteral("The First."));
    QCOMPARE(desk.text->text(), QStringLiteral("The First. Typed."));
    desk.window.workspace().flush();
    QCOMPARE(first.body(), QStringLiteral("The First. Typed."));

    // A save hands in what is typed.
    QTest::keyClicks(desk.text, QStringLiteral("!"));
    desk.prompts.path = desk.dir.filePath(QStringLiteral("saved"));
    desk.window.actions()["file.saveAsFolder"]->trigger();
    QCOMPARE(desk.prompts.errors, QStringList());
    QVERIFY(desk.window.openProject(desk.prompts.path));
    QStringList bodies;
    for (const Document *document : desk.window.workspace().project().all<Document>())
        bodies.append(document->body());
    QVERIFY2(bodies.contains(QStringLiteral("The First. Typed.!")), qPrintable(bodies.join(u'|')));
}

void TestMainWindow::oddCharactersSurviveTheWidget()
{
    Window desk;
    const QString odd = QStringLiteral("a\u00a0b\u2028c\r\nd\u200be\tf \U0001F600 \u05d0\u05d1");
    Document &document = desk.add(odd);
    desk.text->moveCursor(QTextCursor::End);
    QTest::keyClicks(desk.text, QStringLiteral("!"));
    desk.window.workspace().flush();
    QCOMPARE(document.body(), odd + u'!');
}

void TestMainWindow::theTreeMovesAndRenames()
{
    Window desk;
    desk.add(QStringLiteral("one"));
    desk.add(QStringLiteral("two"));
    const QModelIndex first = desk.tree->model()->index(0, 0);
    desk.tree->setCurrentIndex(first);
    desk.tree->setFocus();
    QTest::keyClick(desk.tree, Qt::Key_F2);
    auto *field = desk.tree->viewport()->findChild<QLineEdit *>();
    QVERIFY(field);
    QCOMPARE(field->accessibleName(), QStringLiteral("Title"));
    // A save hands in half a name, which is written on, and Esc still takes it back.
    const QString title = first.data().toString();
    QTest::keyClicks(field, QStringLiteral("Half a "));
    desk.window.workspace().flush();
    QCOMPARE(first.data().toString(), QStringLiteral("Half a"));
    QCOMPARE(field->text(), QStringLiteral("Half a "));
    QTest::keyClick(field, Qt::Key_Escape);
    QTRY_VERIFY(!desk.tree->viewport()->findChild<QLineEdit *>());
    QCOMPARE(first.data().toString(), title);
    // What is written at an undo is the step that it takes back, and no later one.
    QTest::keyClick(desk.tree, Qt::Key_F2);
    field = desk.tree->viewport()->findChild<QLineEdit *>();
    QTest::keyClicks(field, QStringLiteral("Undone"));
    const auto steps = desk.window.workspace().history().undoCount();
    desk.window.actions()["edit.undo"]->trigger();
    QCOMPARE(first.data().toString(), title);
    QCOMPARE(desk.window.workspace().history().undoCount(), steps);
    QCOMPARE(field->text(), title);
    // Nor is it a step again where it is still seen, as below a filter.
    QLineEdit *filter = nullptr;
    for (auto *line : desk.window.findChildren<QLineEdit *>())
        filter = line->accessibleName() == u"Filter the documents by title" ? line : filter;
    QVERIFY(filter);
    filter->setText(title);
    QTest::keyClicks(field, QStringLiteral("x"));
    desk.window.actions()["edit.undo"]->trigger();
    desk.window.actions()["edit.undo"]->trigger();
    QCOMPARE(desk.window.workspace().history().undoCount(), steps - 1);
    filter->clear();
    QTRY_VERIFY(!desk.tree->viewport()->findChild<QLineEdit *>());
    desk.tree->setCurrentIndex(desk.tree->model()->index(0, 0));
    desk.tree->setFocus();
    QTest::keyClick(desk.tree, Qt::Key_F2);
    field = desk.tree->viewport()->findChild<QLineEdit *>();
    QVERIFY(field);
    field->setText(QStringLiteral("Renamed"));
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(desk.tree->model()->index(0, 0).data().toString(), QStringLiteral("Renamed"));

    QTest::keyClick(desk.tree, Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(desk.tree->model()->index(1, 0).data().toString(), QStringLiteral("Renamed"));
    QCOMPARE(desk.tree->currentIndex().data().toString(), QStringLiteral("Renamed"));

    QTest::keyClick(desk.tree, Qt::Key_Delete); // the answer is no
    QCOMPARE(desk.tree->model()->rowCount(), 2);
    QCOMPARE(desk.prompts.questions.size(), 1);
    desk.prompts.confirms = true;
    QTest::keyClick(desk.tree, Qt::Key_Delete);
    QCOMPARE(desk.tree->model()->rowCount(), 1);
    desk.window.workspace().undo();
    QCOMPARE(desk.tree->model()->rowCount(), 2);
    QCOMPARE(desk.tree->currentIndex().data().toString(), QStringLiteral("Renamed"));
    QCOMPARE(desk.window.workspace().selection().size(), 1);

    // A cell that closes while a step is undone makes no step of its own.
    const core::CommandStack &history = desk.window.workspace().history();
    const auto redoable = history.redoCount();
    const auto late =
        connect(&desk.window.workspace(), &app::Workspace::changed, &desk.window, [&] {
            desk.tree->model()->setData(desk.tree->model()->index(0, 0), QStringLiteral("Late"));
        });
    desk.window.workspace().undo();
    disconnect(late);
    QCOMPARE(history.redoCount(), redoable + 1);
    desk.window.workspace().redo();

    desk.tree->setCurrentIndex(desk.tree->model()->index(0, 0));
    desk.prompts.choice = 2; // of prose, screenplay, note
    desk.window.actions()["doc.changeKind"]->trigger();
    const core::ContentId current = desk.window.workspace().selection().value(0);
    const core::Project &project = desk.window.workspace().project();
    QVERIFY(project.find<Document>(current)->documentKind() == DocumentKind::Note);
    desk.prompts.text = QStringLiteral("Check the tides");
    desk.window.actions()["doc.addTask"]->trigger();
    QCOMPARE(project.all<core::Task>().size(), size_t(1));
    QCOMPARE(project.all<core::Task>().front()->targetId(), current);
}

void TestMainWindow::nothingGoneIsSelected()
{
    Window desk;
    app::Workspace &workspace = desk.window.workspace();
    QList<core::ContentId> added;
    {
        const app::MacroScope step(workspace, QStringLiteral("Add two"));
        for (int i = 0; i < 2; ++i)
            added += app::DocumentOperations(workspace).add(DocumentKind::Prose, {});
    }
    workspace.select(added.first());
    workspace.undo();
    QCOMPARE(workspace.selection(), QList<core::ContentId>());
    workspace.redo();
    workspace.select(added.last());
    workspace.undo();
    QCOMPARE(workspace.selection(), QList<core::ContentId>());
}

void TestMainWindow::theTextHasTheFocus()
{
    Window desk;
    QVERIFY(!desk.text->hasFocus()); // there is none
    QVERIFY(QApplication::focusWidget());
    desk.add(QStringLiteral("First."));
    desk.prompts.path = desk.dir.filePath(QStringLiteral("saved"));
    desk.window.actions()["file.saveAsFolder"]->trigger();
    QVERIFY(desk.window.openProject(desk.prompts.path));
    QTRY_VERIFY(desk.text->hasFocus());

    // From the tree back over the line that filters it.
    desk.tree->setFocus();
    QTest::keyClick(desk.tree, Qt::Key_Backtab, Qt::ShiftModifier);
    auto *filter = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(filter);
    QTest::keyClick(filter, Qt::Key_Tab);
    QVERIFY(desk.tree->hasFocus());
}

void TestMainWindow::aClosedPanelComesWhenItIsNeeded_data()
{
    QTest::addColumn<QString>("from"); // the panel that has the focus
    QTest::addColumn<QString>("by");
    QTest::addColumn<QString>("to"); // the panel that has it then
    QTest::newRow("Enter on a document") << "documentsTree"
                                         << "Enter"
                                         << "editor";
    QTest::newRow("double click on a document") << "documentsTree"
                                                << "double click"
                                                << "editor";
    QTest::newRow("Enter on an entity") << "codexTree"
                                        << "Enter"
                                        << "inspector";
    QTest::newRow("double click on an entity") << "codexTree"
                                               << "double click"
                                               << "inspector";
    QTest::newRow("find") << "documentsTree"
                          << "edit.find"
                          << "editor";
}

void TestMainWindow::aClosedPanelComesWhenItIsNeeded()
{
    QFETCH(QString, from);
    QFETCH(QString, by);
    QFETCH(QString, to);
    Window desk;
    app::CodexOperations(desk.workspace).addEntity({}, QStringLiteral("Ann"));
    desk.add(QStringLiteral("one"));
    auto *dock = desk.window.findChild<QWidget *>(to);
    auto *tree = desk.window.findChild<QTreeView *>(from);
    QVERIFY(dock && tree && QMetaObject::invokeMethod(dock, "toggleView", Q_ARG(bool, false)));
    QVERIFY(!dock->isVisible());
    tree->setFocus();
    const QModelIndex row = tree->model()->index(0, 0);
    tree->setCurrentIndex(row);
    const QPoint place = tree->visualRect(row).center();
    if (by == u"Enter") {
        QTest::keyClick(tree, Qt::Key_Return);
    } else if (by == u"double click") {
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, place);
    } else {
        desk.window.actions()[by.toLatin1().constData()]->trigger();
    }
    QVERIFY(dock->isVisible());
    QTRY_VERIFY(dock->isAncestorOf(QApplication::focusWidget()));
}

void TestMainWindow::theDocumentsOfferWhatCanBeDone()
{
    const Window desk;
    QSet<QAction *> offered;
    const auto *panel = desk.window.findChild<desktop::DocumentsPanel *>();
    QVERIFY(panel);
    for (const QToolButton *button : panel->findChildren<QToolButton *>())
        if (button->menu())
            for (QAction *action : button->menu()->actions())
                offered.insert(action);
    for (const char *id :
         {"doc.add", "doc.addNote", "doc.addTask", "doc.changeKind", "doc.unsupportedClaims",
          "doc.versionHistory", "doc.moveUp", "doc.moveDown", "doc.promote", "doc.demote"})
        QVERIFY2(offered.contains(desk.window.actions()[id]), id);
}

void TestMainWindow::closingAsks()
{
    Window desk;
    desk.add(QStringLiteral("one"));
    QVERIFY(!desk.window.close());
    QCOMPARE(desk.prompts.questions.size(), 1);
    desk.prompts.unsaved = app::Prompts::Unsaved::Discard;
    QVERIFY(desk.window.close());
}

void TestMainWindow::theLayoutComesBack()
{
    QTemporaryDir dir;
    app::Settings settings(dir.filePath(QStringLiteral("settings.ini")));
    test::FakePrompts prompts;
    const auto toggle = [](desktop::MainWindow &window) {
        // By the menus: a closed panel that shares its tabs with others leaves the window for a
        // time.
        for (const QMenu *menu : window.findChildren<QMenu *>())
            for (QAction *action : menu->actions())
                if (action->isCheckable() && action->text() == u"Documents")
                    return action;
        return static_cast<QAction *>(nullptr);
    };
    {
        desktop::MainWindow window(settings, &prompts);
        window.show();
        QVERIFY(toggle(window));
        toggle(window)->trigger();
        QVERIFY(!toggle(window)->isChecked());
        window.close();
    }
    desktop::MainWindow window(settings, &prompts);
    QVERIFY(!toggle(window)->isChecked());
    window.actions()["view.resetLayout"]->trigger();
    QVERIFY(toggle(window)->isChecked());
}

void TestMainWindow::noticesOfferAndAsk()
{
    Window desk;
    auto *notices = desk.window.findChild<desktop::Notices *>();
    QVERIFY(notices);
    const auto shownButton = [&](const QString &text) {
        for (QAbstractButton *button : desk.window.findChildren<QAbstractButton *>())
            if (button->text() == text && button->isVisible())
                return button;
        return static_cast<QAbstractButton *>(nullptr);
    };
    const QString undo = QStringLiteral("Undo");
    const auto offered = [&] { // the tool bar has a button of that name too
        int count = 0;
        for (const QAbstractButton *button :
             desk.window.statusBar()->findChildren<QAbstractButton *>())
            count += button->text() == undo && button->isVisible() ? 1 : 0;
        return count > 0;
    };

    const Document &kept = desk.add(QStringLiteral("one"));
    notices->offerUndo(QStringLiteral("Added a document."));
    QVERIFY(offered());
    const core::ContentId id = kept.id();
    for (QAbstractButton *button : desk.window.statusBar()->findChildren<QAbstractButton *>())
        if (button->text() == undo)
            button->click();
    QVERIFY(!desk.window.workspace().project().find<Document>(id));
    QVERIFY(!offered());
    // Once something else is done, the offer would take back the wrong step.
    desk.add(QStringLiteral("two"));
    notices->offerUndo(QStringLiteral("Added a document."));
    desk.add(QStringLiteral("three"));
    QVERIFY(!offered());

    QString answer;
    const auto ask = [&](const QString &question) {
        notices->ask(QStringLiteral("outside"), question,
                     {{QStringLiteral("Look"), [&] { answer = QStringLiteral("looked"); }},
                      {QStringLiteral("Keep Mine"), {}}});
    };
    // Nothing moves away under the mouse.
    QTest::mousePress(desk.window.statusBar(), Qt::LeftButton);
    ask(QStringLiteral("A file was changed."));
    QVERIFY(!shownButton(QStringLiteral("Look")));
    QTest::mouseRelease(desk.window.statusBar(), Qt::LeftButton);
    QTRY_VERIFY(shownButton(QStringLiteral("Look")));
    ask(QStringLiteral("Two files were changed.")); // in place of the first
    QVERIFY(shownButton(QStringLiteral("Look")));
    desk.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    QWidget *before = desk.window.focusWidget();
    QVERIFY(before);
    shownButton(QStringLiteral("Look"))->setFocus(Qt::MouseFocusReason);
    shownButton(QStringLiteral("Look"))->click();
    QCOMPARE(answer, QStringLiteral("looked"));
    QCOMPARE(desk.window.focusWidget(), before);
    QVERIFY(!shownButton(QStringLiteral("Look")));
    ask(QStringLiteral("A file was changed."));
    notices->withdraw(QStringLiteral("outside"));
    QVERIFY(!shownButton(QStringLiteral("Keep Mine")));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
