#include "app/models/documentoperations.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/content/entity.h"
#include "desktop/dialogs/palette.h"
#include "desktop/editor/editorsession.h"
#include "desktop/panels/editorpanel.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/shell/mainwindow.h"
#include "tests/support/deskwindow.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>

using namespace vl;
using core::ContentId;

namespace {

struct Window : test::DeskWindow
{
    ContentId addEntity(const QString &name)
    {
        const ContentId id = ContentId::create();
        workspace.push<core::AddObjectCommand>(
            workspace.project(), std::make_unique<core::Entity>(id, ContentId(), name));
        return id;
    }
    QLineEdit *openPalette()
    {
        window.actions()["file.quickOpen"]->trigger();
        auto *field = window.findChild<QLineEdit *>(QStringLiteral("paletteField"));
        return field && field->hasFocus() ? field : nullptr;
    }
    const desktop::Palette *palette() const { return window.findChild<desktop::Palette *>(); }
    QListView *list() const { return window.findChild<QListView *>(QStringLiteral("paletteList")); }
};

} // namespace

class TestPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterOpensADocument();
    void ctrlEnterGoesOn();
    void choosingAnEntitySelectsIt();
    void actionsAreTriggered();
    void headingsLeadIntoTheText();
    void theArrowsGoRound();
    void escapeLeavesEverythingAsItIs();
};

void TestPalette::enterOpensADocument()
{
    Window desk;
    const ContentId storm = desk.addDocument(QStringLiteral("Storm"), QStringLiteral("rain")).id();
    desk.addDocument(QStringLiteral("Calm"), QStringLiteral("sun"));
    QLineEdit *field = desk.openPalette();
    QVERIFY(field);
    QCOMPARE(field->placeholderText(), QStringLiteral("Search documents and entities…"));
    QTest::keyClicks(field, QStringLiteral("stor"));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(!desk.palette()->isVisible());
    QCOMPARE(desk.workspace.selection(), QList<ContentId>{storm});
    QCOMPARE(desk.window.findChild<desktop::EditorPanel *>()->session()->documentId(), storm);
    // It opens empty again, with the place before as its first row.
    field = desk.openPalette();
    QVERIFY(field && field->text().isEmpty());
}

void TestPalette::ctrlEnterGoesOn()
{
    Window desk;
    const ContentId storm =
        desk.addDocument(QStringLiteral("Storm one"), QStringLiteral("rain")).id();
    const ContentId second =
        desk.addDocument(QStringLiteral("Storm two"), QStringLiteral("sun")).id();
    QLineEdit *field = desk.openPalette();
    QVERIFY(field);
    QTest::keyClicks(field, QStringLiteral("storm"));
    QSet<ContentId> shown;
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(field, Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(desk.palette()->isVisible() && field->hasFocus());
        shown.insert(desk.window.findChild<desktop::EditorPanel *>()->session()->documentId());
        QTest::keyClick(field, Qt::Key_Down);
    }
    QCOMPARE(shown, (QSet<ContentId>{storm, second}));
}

void TestPalette::choosingAnEntitySelectsIt()
{
    Window desk;
    const ContentId lamp = desk.addEntity(QStringLiteral("Lamplighter"));
    QLineEdit *field = desk.openPalette();
    QVERIFY(field);
    QTest::keyClicks(field, QStringLiteral("lampl"));
    QTest::mouseClick(desk.list()->viewport(), Qt::LeftButton, {},
                      desk.list()->visualRect(desk.list()->model()->index(0, 0)).center());
    QCOMPARE(desk.workspace.selection(), QList<ContentId>{lamp});
}

void TestPalette::actionsAreTriggered()
{
    Window desk;
    const ContentId storm = desk.addDocument(QStringLiteral("Storm"), {}).id();
    const auto documents = desk.workspace.project().size();
    QLineEdit *field = desk.openPalette();
    QVERIFY(field);
    QTest::keyClicks(field, QStringLiteral(">doc.add"));
    QTest::keyClick(field, Qt::Key_Enter);
    QCOMPARE(desk.workspace.project().size(), documents + 1);

    // One that is not to be had is listed, tells why, and does nothing.
    desk.workspace.undo();
    while (desk.workspace.history().canRedo())
        desk.workspace.redo();
    field = desk.openPalette();
    QTest::keyClicks(field, QStringLiteral(">edit.redo"));
    const QModelIndex row = desk.list()->model()->index(0, 0);
    QVERIFY(!row.data(app::QuickOpenModel::IsEnabledRole).toBool());
    QVERIFY(!row.data(app::QuickOpenModel::DetailRole).toString().isEmpty());
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(desk.palette()->isVisible());
    // What nobody carries out is not listed at all.
    field->setText(QStringLiteral(">"));
    QStringList listed;
    for (int i = 0; i < desk.list()->model()->rowCount(); ++i)
        listed.append(desk.list()->model()->index(i, 0).data().toString());
    QVERIFY(listed.contains(QStringLiteral("Find in Project…")));
    for (const QAction *action : desk.window.actions().all())
        if (!action->property("bound").toBool())
            QVERIFY2(!listed.contains(action->text().remove(u'&')), qPrintable(action->text()));
    // Entries of sub-menus are found by their names.
    field->clear();
    QTest::keyClicks(field, QStringLiteral(">sepia"));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(desk.settings.text(QStringLiteral("appearance/theme")), QStringLiteral("Sepia"));
    // And panels.
    desk.workspace.select(storm);
    field = desk.openPalette();
    QTest::keyClicks(field, QStringLiteral(">panel editor"));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(desk.window.findChild<desktop::EditorTextWidget *>()->hasFocus());
}

void TestPalette::headingsLeadIntoTheText()
{
    Window desk;
    desk.workspace.select(
        desk.addDocument(QStringLiteral("Scene"), QStringLiteral("One\r\n\r\n# Two\r\nthree"))
            .id());
    QLineEdit *field = desk.openPalette();
    QVERIFY(field);
    QTest::keyClicks(field, QStringLiteral("@two"));
    QTest::keyClick(field, Qt::Key_Return);
    const auto *text = desk.window.findChild<desktop::EditorTextWidget *>();
    QCOMPARE(text->textCursor().selectedText(), QStringLiteral("# Two"));
}

void TestPalette::theArrowsGoRound()
{
    Window desk;
    for (const char *title : {"Storm A", "Storm B", "Storm C"})
        desk.addDocument(QLatin1String(title), {});
    QLineEdit *field = desk.openPalette();
    QVERIFY(field);
    QTest::keyClicks(field, QStringLiteral("storm"));
    const auto current = [&desk] { return desk.list()->currentIndex().row(); };
    QCOMPARE(current(), 0);
    QTest::keyClick(field, Qt::Key_Down);
    QCOMPARE(current(), 1);
    QTest::keyClick(field, Qt::Key_Up);
    QTest::keyClick(field, Qt::Key_Up);
    QCOMPARE(current(), 2);
    QTest::keyClick(field, Qt::Key_Tab);
    QCOMPARE(current(), 0);
    QTest::keyClick(field, Qt::Key_PageDown);
    QCOMPARE(current(), 2);
    QVERIFY(field->hasFocus());
}

void TestPalette::escapeLeavesEverythingAsItIs()
{
    Window desk;
    const ContentId id = desk.addDocument(QStringLiteral("Storm"), QStringLiteral("rain")).id();
    desk.workspace.select(id);
    auto *text = desk.window.findChild<desktop::EditorTextWidget *>();
    text->setFocus();
    const auto steps = desk.workspace.history().undoCount();
    QLineEdit *field = desk.openPalette();
    QVERIFY(field);
    QTest::keyClicks(field, QStringLiteral("zzz"));
    QCOMPARE(desk.list()->model()->rowCount(), 0);
    QTest::keyClick(field, Qt::Key_Return); // nothing to open
    QVERIFY(desk.palette()->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(!desk.palette()->isVisible());
    QVERIFY(text->hasFocus());
    QCOMPARE(desk.workspace.history().undoCount(), steps);
    // It goes when the user turns elsewhere.
    field = desk.openPalette();
    QVERIFY(field);
    text->setFocus();
    QVERIFY(!desk.palette()->isVisible());
}

QTEST_MAIN(TestPalette)
#include "tst_palette.moc"
