#include "app/models/autosavecontroller.h"
#include "app/models/documentoperations.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectwriter.h"
#include "core/content/document.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/notices.h"
#include "desktop/shell/safekeeping.h"
#include "tests/support/folders.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>

using namespace vl;
using core::Document;
using core::DocumentKind;

namespace {

/// The window with a project of three scenes that is saved as a folder.
struct Desk
{
    QTemporaryDir dir{QDir::tempPath() + QStringLiteral("/ivorel säfe-XXXXXX")};
    bool isApart = qputenv("XDG_DATA_HOME", QFile::encodeName(dir.path()));
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    desktop::MainWindow window{settings};
    desktop::EditorTextWidget *text = window.findChild<desktop::EditorTextWidget *>();
    QTreeView *tree = window.findChild<QTreeView *>(QStringLiteral("documentsTree"));
    app::AutosaveController &autosave = window.safeKeeping().autosave();
    app::OutsideMonitor &outside = window.safeKeeping().outside();
    QList<core::ContentId> ids;

    Desk()
    {
        window.resize(1000, 700);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("the window does not show");
        for (const char *title : {"One", "Two", "Three"}) {
            ids.append(app::DocumentOperations(window.workspace()).add(DocumentKind::Prose, {}));
            document(ids.last())->setTitle(QString::fromLatin1(title));
        }
        window.workspace().select(ids.first());
        if (!current().saveAsFolder(dir.filePath(QStringLiteral("folder"))))
            qFatal("no place");
        QCoreApplication::processEvents();
    }
    app::OpenProject &current() { return window.workspace().current(); }
    Document *document(const core::ContentId &id)
    {
        return window.workspace().project().find<Document>(id);
    }
    QString bodyOnDisk(const core::ContentId &id)
    {
        const auto opened = app::OpenProject::openReadOnly(current().path());
        const auto *found = opened ? (*opened)->project().find<Document>(id) : nullptr;
        return found ? found->body() : QString();
    }
    /// What a co-author does: another body for the second scene, and a fourth one.
    core::ContentId changeOutside()
    {
        const auto put = [this](const core::ContentId &id, const char *title) {
            Document theirs(id, DocumentKind::Prose, QString::fromLatin1(title));
            theirs.setBody(QStringLiteral("Theirs."));
            theirs.setSortIndex(7);
            test::putFile(current().path() + u'/' + app::objectPath(id),
                          app::serializeObject(theirs));
        };
        const auto id = core::ContentId::create();
        put(ids.at(1), "Two");
        put(id, "Four");
        return id;
    }
    void type(const char *words)
    {
        text->setFocus();
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, QString::fromLatin1(words));
    }
};

} // namespace

class TestSafeKeeping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesBehindADialog();
    void savesBesideAnOfferToUndo();
    void savingKeepsOnesOwnVersion_data();
    void savingKeepsOnesOwnVersion();
    void theCaretStaysInAMerge();
    void waitsForTheUsersHands_data();
    void waitsForTheUsersHands();
};

void TestSafeKeeping::savesBehindADialog()
{
    Desk desk;
    desk.type("Typed, and not handed in.");
    QSignalSpy saved(&desk.autosave, &app::AutosaveController::saved);
    bool isSavedBehind = false;
    QTimer::singleShot(0, &desk.window, [&] {
        auto *dialog = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        auto *field = dialog->findChild<QLineEdit *>();
        QTest::keyClicks(field, QStringLiteral("A na"));
        desk.autosave.setInterval(10);
        desk.autosave.start();
        isSavedBehind =
            saved.wait(10000) && dialog->isVisible() && field->hasFocus()
            && desk.bodyOnDisk(desk.ids.first()) == QStringLiteral("Typed, and not handed in.");
        QTest::keyClicks(field, QStringLiteral("me"));
        QTest::keyClick(field, Qt::Key_Return);
    });
    const std::optional<QString> answer =
        desk.window.prompts().askText(QStringLiteral("Rename"), QStringLiteral("Name:"), QString());
    QVERIFY(isSavedBehind);
    QCOMPARE(answer.value_or(QString()), QStringLiteral("A name"));
    QVERIFY(!desk.current().isDirty());
}

void TestSafeKeeping::savesBesideAnOfferToUndo()
{
    Desk desk;
    app::DocumentOperations(desk.window.workspace()).remove({desk.ids.last()});
    desk.window.notices().offerUndo(QStringLiteral("Deleted 1 document."));
    QToolButton *undo = nullptr;
    for (auto *button : desk.window.statusBar()->findChildren<QToolButton *>())
        if (button->text() == QLatin1String("Undo"))
            undo = button;
    QVERIFY(undo);
    QSignalSpy saved(&desk.autosave, &app::AutosaveController::saved);
    desk.autosave.saveNow();
    QVERIFY(saved.wait(10000));
    QVERIFY(undo->isVisible());
    bool isShown = false;
    desk.window.notices().showNext(QStringLiteral("No backup was made."), QStringLiteral("Show"),
                                   [&isShown] { isShown = true; });
    undo->click();
    QVERIFY(desk.document(desk.ids.last()));
    QVERIFY(undo->isVisible()); // and offers what waited
    undo->click();
    QVERIFY(isShown);
    // Who saves is told so.
    desk.window.notices().offerUndo(QStringLiteral("Done."));
    QSignalSpy wanted(&desk.window.workspace(), &app::Workspace::saved);
    desk.window.actions()["file.save"]->trigger();
    QVERIFY(wanted.wait(10000));
    QVERIFY(!undo->isVisible());
}

void TestSafeKeeping::savingKeepsOnesOwnVersion_data()
{
    QTest::addColumn<bool>("confirms");
    QTest::newRow("confirmed") << true;
    QTest::newRow("called off") << false;
}

void TestSafeKeeping::savingKeepsOnesOwnVersion()
{
    QFETCH(bool, confirms);
    Desk desk;
    const core::ContentId fourth = desk.changeOutside();
    desk.outside.lookSoon();
    QTRY_COMPARE_WITH_TIMEOUT(desk.outside.offer().kind, app::OutsideOffer::Kind::Notice, 20000);
    QVERIFY(!desk.current().isDirty());
    bool isAnswered = false;
    QTimer::singleShot(0, &desk.window, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        for (QAbstractButton *button : box->buttons()) {
            if ((box->buttonRole(button) == QMessageBox::DestructiveRole) != confirms)
                continue;
            isAnswered = true;
            button->click();
            return;
        }
    });
    desk.window.actions()["file.save"]->trigger();
    QVERIFY(isAnswered);
    if (confirms)
        QTRY_COMPARE_WITH_TIMEOUT(desk.bodyOnDisk(desk.ids.at(1)), QString(), 20000);
    desk.current().finishSaving();
    QTRY_COMPARE(desk.outside.offer().kind,
                 confirms ? app::OutsideOffer::Kind::None : app::OutsideOffer::Kind::Notice);
    QVERIFY(!desk.current().isDirty());
    const QString theirs = confirms ? QString() : QStringLiteral("Theirs.");
    QCOMPARE(desk.bodyOnDisk(desk.ids.at(1)), theirs);
    QCOMPARE(desk.bodyOnDisk(fourth), theirs);
}

void TestSafeKeeping::theCaretStaysInAMerge()
{
    Desk desk;
    desk.type("It was night. The lamps were lit.");
    QVERIFY(desk.current().save());
    desk.text->select(14, 17);
    Document theirs(desk.ids.first(), DocumentKind::Prose, QStringLiteral("One"));
    theirs.setBody(QStringLiteral("It was a dark night. The lamps were lit."));
    test::putFile(desk.current().path() + u'/' + app::objectPath(desk.ids.first()),
                  app::serializeObject(theirs));
    desk.outside.lookSoon();
    QTRY_VERIFY_WITH_TIMEOUT(desk.outside.offer().kind != app::OutsideOffer::Kind::None, 20000);
    QSignalSpy done(&desk.outside, &app::OutsideMonitor::done);
    desk.outside.load();
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 20000);
    QCOMPARE(desk.text->text(), theirs.body());
    QCOMPARE(desk.text->textCursor().selectedText(), QStringLiteral("The"));
    // A step back leads to what it takes away.
    desk.window.workspace().undo();
    QCOMPARE(desk.text->caret(), qsizetype(7));
}

void TestSafeKeeping::waitsForTheUsersHands_data()
{
    QTest::addColumn<QString>("hands"); // what they are at
    QTest::newRow("a drag") << "drag";
    QTest::newRow("a dialog") << "dialog";
    QTest::newRow("a menu") << "menu";
}

/// While a row is dragged, or a dialog asks about one, a merge that was begun is put off; the
/// autosave goes on. Then it is done, on top of what the user did.
void TestSafeKeeping::waitsForTheUsersHands()
{
    QFETCH(QString, hands);
    Desk desk;
    const core::ContentId fourth = desk.changeOutside();
    desk.outside.lookSoon();
    QTRY_VERIFY_WITH_TIMEOUT(desk.outside.offer().kind != app::OutsideOffer::Kind::None, 20000);
    QSignalSpy done(&desk.outside, &app::OutsideMonitor::done);
    QSignalSpy saved(&desk.autosave, &app::AutosaveController::saved);
    QAbstractItemModel &model = *desk.tree->model();
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);
    desk.type("Mine.");

    QString fault = QStringLiteral("it never began");
    const auto whileBusy = [&] {
        desk.outside.load();
        desk.autosave.saveNow();
        QTest::qWait(600); // a merge takes a small part of that
        fault = !done.isEmpty()                           ? QStringLiteral("merged")
                : saved.isEmpty()                         ? QStringLiteral("not saved")
                : !resets.isEmpty() || !inserts.isEmpty() ? QStringLiteral("rows changed")
                : !layouts.isEmpty()                      ? QStringLiteral("rows moved")
                                                          : QString();
    };
    if (hands == QLatin1String("drag")) {
        // The drag ends at once on this platform, but the button is held; others want a true mouse.
        if (QGuiApplication::platformName() != QLatin1String("offscreen"))
            QSKIP("nobody moves the mouse");
        QWindow *handle = desk.window.windowHandle();
        const auto place = [&](int row) {
            const QPoint centre = desk.tree->visualRect(model.index(row, 0)).center();
            return desk.tree->viewport()->mapTo(&desk.window, centre);
        };
        const QPoint from = place(0);
        const QPoint to = place(2);
        bool isOver = false;
        QTest::mousePress(handle, Qt::LeftButton, {}, from);
        QTest::mouseMove(handle, from + QPoint(0, 4));
        QTimer::singleShot(100, &desk.window, [&] {
            whileBusy();
            QTest::mouseMove(handle, to);
            QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
            isOver = true;
        });
        QTest::mouseMove(handle, from + QPoint(0, 40));
        QTRY_VERIFY_WITH_TIMEOUT(isOver, 20000);
    } else if (hands == QLatin1String("dialog")) {
        QTimer::singleShot(0, &desk.window, [&] {
            whileBusy();
            QApplication::activeModalWidget()->close();
        });
        desk.window.prompts().askText(QStringLiteral("Rename"), QStringLiteral("Name:"), {});
    } else {
        QMenu menu(&desk.window);
        menu.addAction(QStringLiteral("Rename"));
        QTimer::singleShot(0, &desk.window, [&] {
            whileBusy();
            menu.close();
        });
        menu.exec(desk.window.mapToGlobal(QPoint(10, 10)));
    }
    QCOMPARE(fault, QString());
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 20000);
    QVERIFY(desk.document(fourth));
    QCOMPARE(desk.document(desk.ids.at(1))->body(), QStringLiteral("Theirs."));
    QCOMPARE(desk.document(desk.ids.first())->body(), QStringLiteral("Mine."));
}

QTEST_MAIN(TestSafeKeeping)
#include "tst_safekeeping.moc"
