#include "app/models/documentoperations.h"
#include "core/commands/documentcommands.h"
#include "desktop/dialogs/findinproject.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/shell/mainwindow.h"
#include "tests/support/deskwindow.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

using namespace vl;
using core::ContentId;
using core::Document;

namespace {

struct Window : test::DeskWindow
{
    void open() const { window.actions()["edit.findInProject"]->trigger(); }
    desktop::FindInProject *dialog() const { return window.findChild<desktop::FindInProject *>(); }
    QLineEdit *field(const char *name) const
    {
        return dialog()->findChild<QLineEdit *>(QLatin1String(name));
    }
    QListView *list() const { return dialog()->findChild<QListView *>(); }
    int rows() const { return list()->model()->rowCount(); }
    QPushButton *replaceButton() const
    {
        const auto buttons = dialog()->findChildren<QPushButton *>();
        for (QPushButton *button : buttons)
            if (button->text().startsWith(QLatin1String("Replace")))
                return button;
        return nullptr;
    }
};

} // namespace

class TestFindInProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatIsTyped();
    void replacesWhatIsTicked();
    void followsTheProject();
    void everyControlHasAName();
};

void TestFindInProject::findsWhatIsTyped()
{
    Window desk;
    const Document &scene = desk.addDocument(QStringLiteral("Scene"), QStringLiteral("a lamp"));
    desk.workspace.select(desk.addDocument(QStringLiteral("Other"), QStringLiteral("dark")).id());
    // What is in the editor and not handed in yet is found too.
    auto *text = desk.window.findChild<desktop::EditorTextWidget *>();
    text->setFocus();
    text->moveCursor(QTextCursor::End);
    QTest::keyClicks(text, QStringLiteral(" lamps"));
    desk.open();
    QVERIFY(desk.dialog()->isVisible());
    QLineEdit *pattern = desk.field("findInProjectPattern");
    QTest::keyClicks(pattern, QStringLiteral("lamp"));
    QTRY_COMPARE(desk.rows(), 4);
    QTest::keyClick(pattern, Qt::Key_Down);
    QTest::keyClick(desk.list(), Qt::Key_Down);
    QTest::keyClick(desk.list(), Qt::Key_Return);
    QCOMPARE(desk.workspace.selection(), QList<ContentId>{scene.id()});
    QCOMPARE(text->textCursor().selectedText(), QStringLiteral("lamp"));
    QVERIFY(desk.dialog()->isVisible());

    // What is selected in the text is what is searched for when it is opened again.
    text->setFocus();
    text->selectAll();
    QApplication::setActiveWindow(&desk.window);
    text->setFocus();
    desk.open();
    QCOMPARE(pattern->text(), QStringLiteral("a lamp"));
    QTRY_COMPARE(desk.rows(), 2);
    QTest::keyClick(desk.dialog(), Qt::Key_Escape);
    QVERIFY(!desk.dialog()->isVisible());
}

void TestFindInProject::replacesWhatIsTicked()
{
    Window desk;
    const Document &scene = desk.addDocument(QStringLiteral("Scene"), QStringLiteral("lamp, lamp"));
    desk.open();
    QTest::keyClicks(desk.field("findInProjectPattern"), QStringLiteral("lamp"));
    QTRY_COMPARE(desk.rows(), 3);
    QVERIFY(!desk.replaceButton()->isVisible());
    desk.dialog()->findChild<QCheckBox *>()->click();
    QTest::keyClicks(desk.field("findInProjectReplacement"), QStringLiteral("sun"));
    desk.list()->setFocus();
    desk.list()->setCurrentIndex(desk.list()->model()->index(1, 0));
    QTest::keyClick(desk.list(), Qt::Key_Space); // takes the tick away
    const auto steps = desk.workspace.history().undoCount();
    QTRY_VERIFY(desk.replaceButton()->isEnabled());
    QTest::mouseClick(desk.replaceButton(), Qt::LeftButton);
    QCOMPARE(scene.body(), QStringLiteral("lamp, sun"));
    QCOMPARE(desk.workspace.history().undoCount(), steps + 1);
    QTRY_COMPARE(desk.rows(), 2);
    desk.list()->setFocus();
    QTest::keyClick(desk.list(), Qt::Key_Z, Qt::ControlModifier); // in the dialog itself
    QCOMPARE(scene.body(), QStringLiteral("lamp, lamp"));
}

void TestFindInProject::followsTheProject()
{
    Window desk;
    Document &scene = desk.addDocument(QStringLiteral("Scene"), QStringLiteral("lamp"));
    desk.open();
    QTest::keyClicks(desk.field("findInProjectPattern"), QStringLiteral("lamp"));
    QTRY_COMPARE(desk.rows(), 2);
    desk.workspace.push<core::SetDocumentBodyCommand>(scene, QStringLiteral("lamp lamp"));
    QTRY_COMPARE(desk.rows(), 3);
    desk.workspace.replaceProject(std::make_unique<app::OpenProject>());
    QCOMPARE(desk.rows(), 0);
}

void TestFindInProject::everyControlHasAName()
{
    Window desk;
    desk.open();
    int seen = 0;
    const auto widgets = desk.dialog()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool isField = qobject_cast<const QLineEdit *>(widget)
                             || qobject_cast<const QAbstractItemView *>(widget);
        if ((!button && !isField) || qobject_cast<const QLineEdit *>(widget->parent()))
            continue;
        ++seen;
        QVERIFY2(!widget->accessibleName().isEmpty() || (button && !button->text().isEmpty()),
                 widget->metaObject()->className());
    }
    QVERIFY(seen > 8);
}

QTEST_MAIN(TestFindInProject)
#include "tst_findinproject.moc"
