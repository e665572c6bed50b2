#include "app/base/settingskeys.h"
#include "app/models/newproject.h"
#include "desktop/dialogs/about.h"
#include "desktop/dialogs/newproject.h"
#include "desktop/dialogs/welcome.h"
#include "desktop/shell/mainwindow.h"
#include "tests/support/fakeprompts.h"

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextEdit>

using namespace vl;
using desktop::NewProjectDialog;
using desktop::WelcomeDialog;

namespace {

struct Window
{
    QTemporaryDir dir;
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    test::FakePrompts prompts;
    desktop::MainWindow window{settings, &prompts};

    Window() { window.show(); }
    template<typename Dialog>
    Dialog *open(const char *action)
    {
        window.actions().action(action)->trigger();
        return window.findChild<Dialog *>();
    }
};

} // namespace

class TestWelcome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWelcomeLeadsOn();
    void missingProjectsAreLookedFor();
    void aProjectIsMade();
    void aboutTellsWhatItStandsOn();
};

void TestWelcome::theWelcomeLeadsOn()
{
    Window desk;
    desk.settings.addRecentProject(desk.dir.filePath(QStringLiteral("a.vellum")));
    QVERIFY(!desk.settings.contains(QLatin1String(app::settings::welcomed.name)));
    auto *welcome = desk.open<WelcomeDialog>("help.welcome");
    QVERIFY(welcome && welcome->isVisible());
    QVERIFY(desk.settings.contains(QLatin1String(app::settings::welcomed.name)));
    auto *steps = welcome->findChild<QListWidget *>(QStringLiteral("welcomeSteps"));
    QVERIFY(steps);
    // The list with the keys shows what Enter takes, and is the only one that does.
    auto *recent = welcome->findChild<QListWidget *>(QStringLiteral("welcomeRecent"));
    QVERIFY(QTest::qWaitForWindowActive(welcome));
    recent->setFocus();
    QCOMPARE(recent->currentRow(), 0);
    QVERIFY(steps->selectedItems().isEmpty());
    steps->setFocus();
    QVERIFY(recent->selectedItems().isEmpty());
    QTest::keyClick(steps, Qt::Key_Return); // the first step is a new project
    QVERIFY(!welcome->isVisible());
    QVERIFY(desk.window.findChild<NewProjectDialog *>());
}

void TestWelcome::missingProjectsAreLookedFor()
{
    Window desk;
    const auto made = app::ProjectMaker::make(
        {QStringLiteral("novel"), QStringLiteral("Here"), desk.dir.path(), true});
    QVERIFY(made);
    desk.settings.addRecentProject(*made);
    desk.settings.addRecentProject(desk.dir.filePath(QStringLiteral("Gone.vellum")));
    auto *welcome = desk.open<WelcomeDialog>("help.welcome");
    QVERIFY(welcome);
    auto *recent = welcome->findChild<QListWidget *>(QStringLiteral("welcomeRecent"));
    QCOMPARE(recent->count(), 2);
    // The answer is to look for it, and it is found elsewhere.
    desk.prompts.path = *made;
    QTest::mouseClick(recent->viewport(), Qt::LeftButton, {},
                      recent->visualItemRect(recent->item(0)).center());
    QCOMPARE(desk.prompts.questions.size(), 1);
    QCOMPARE(desk.window.workspace().current().name(), QStringLiteral("Here"));
    QCOMPARE(desk.settings.recentProjects(), QStringList{*made});

    // Or to forget it.
    desk.settings.addRecentProject(desk.dir.filePath(QStringLiteral("Gone folder")));
    desk.prompts.choice = 1;
    QVERIFY(!desk.window.flows().openRecent(desk.settings.recentProjects().constFirst()));
    QCOMPARE(desk.settings.recentProjects(), QStringList{*made});
}

void TestWelcome::aProjectIsMade()
{
    Window desk;
    desk.settings.set(app::settings::newProjectPlace, desk.dir.path());
    auto *dialog = desk.open<NewProjectDialog>("file.new");
    QVERIFY(dialog);
    QPushButton *create = nullptr;
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        if (button->isDefault())
            create = button;
    QVERIFY(create && !create->isEnabled()); // it has no name yet
    auto *name = qobject_cast<QLineEdit *>(dialog->focusWidget());
    QVERIFY(name);
    QTest::keyClicks(name, QStringLiteral("a/b"));
    QVERIFY(!create->isEnabled());
    // What cannot be made leaves everything as it was filled in.
    auto *place = dialog->findChildren<QLineEdit *>().constLast();
    name->setText(QStringLiteral("Tale"));
    place->setText(QStringLiteral("/dev/null/none"));
    QVERIFY(create->isEnabled());
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(std::exchange(desk.prompts.errors, {}).size(), 1);
    QVERIFY(dialog->isVisible());
    QCOMPARE(name->text(), QStringLiteral("Tale"));
    // Nor does a long name without a gap pull the dialog apart.
    place->setText(desk.dir.path());
    name->setText(QString(120, u'W'));
    QVERIFY(create->isEnabled());
    QVERIFY(dialog->minimumSizeHint().width() <= dialog->width());
    name->setText(QStringLiteral("Tale"));
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(desk.prompts.errors, QStringList());
    QCOMPARE(desk.window.workspace().current().path(),
             desk.dir.filePath(QStringLiteral("Tale.vellum")));
    QVERIFY(desk.window.workspace().project().size() > 8);
}

void TestWelcome::aboutTellsWhatItStandsOn()
{
    Window desk;
    auto *about = desk.open<desktop::AboutDialog>("help.about");
    QVERIFY(about);
    const auto *licences = about->findChild<QTextEdit *>();
    QVERIFY(licences && licences->toPlainText().contains(QLatin1String("LGPL")));
}

QTEST_MAIN(TestWelcome)
#include "tst_welcome.moc"
