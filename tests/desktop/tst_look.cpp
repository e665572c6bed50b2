#include "app/base/settingskeys.h"
#include "app/models/documentoperations.h"
#include "app/models/workspace.h"
#include "desktop/dialogs/backupsdialog.h"
#include "desktop/dialogs/damagedprojectdialog.h"
#include "desktop/dialogs/fielddialog.h"
#include "desktop/dialogs/pickdialog.h"
#include "desktop/dialogs/restoredocumentdialog.h"
#include "desktop/preferences/catalogue.h"
#include "desktop/preferences/preferencesdialog.h"
#include "desktop/shell/appearance.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/notices.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"
#include "desktop/widgets/programstyle.h"
#include "tests/support/fakeprompts.h"
#include "tests/support/uiwalk.h"

#include <QtCore/QTranslator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QKeySequenceEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTreeWidget>

using namespace vl;

namespace {

struct Desk
{
    QTemporaryDir dir;
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    test::FakePrompts prompts;
    desktop::ActionRegistry actions{settings};
    desktop::MainWindow window{settings, &prompts};
};

using MakeSurface = std::function<QWidget *(Desk &)>;

/// The window or dialog that an action opens.
QWidget *opened(Desk &desk, const char *action)
{
    desk.window.show();
    desk.window.actions()[action]->trigger();
    for (QWidget *other : QApplication::topLevelWidgets())
        if (other->isVisible() && other != &desk.window && desk.window.isAncestorOf(other))
            return other;
    return &desk.window;
}

/// Everything the user can look at; a new dialog is a new line.
QList<std::pair<QString, MakeSurface>> surfaces()
{
    QList<std::pair<QString, MakeSurface>> list;
    list.append(
        {QStringLiteral("window with nothing in it"), [](Desk &desk) { return &desk.window; }});
    list.append({QStringLiteral("window with a document and notices"), [](Desk &desk) {
                     app::Workspace &workspace = desk.window.workspace();
                     workspace.select(
                         app::DocumentOperations(workspace).add(core::DocumentKind::Prose, {}));
                     auto *notices = desk.window.findChild<desktop::Notices *>();
                     notices->offerUndo(QStringLiteral("Deleted “The Count at Dusk”."));
                     notices->ask(QStringLiteral("outside"),
                                  QStringLiteral("Another program changed three files."),
                                  {{QStringLiteral("Look at the Changes"), {}},
                                   {QStringLiteral("Keep Mine"), {}}});
                     return &desk.window;
                 }});
    for (size_t page = 0; page < desktop::preferencesCatalogue().size(); ++page)
        list.append({QLatin1String("preferences, ")
                         + QLatin1String(desktop::preferencesCatalogue()[page].title),
                     [page](Desk &desk) {
                         auto *dialog = new desktop::PreferencesDialog(
                             {desk.settings, desk.actions, desk.prompts}, &desk.window);
                         dialog->findChild<QListWidget *>()->setCurrentRow(int(page));
                         return dialog;
                     }});
    const auto add = [&list](const char *name, const MakeSurface &make) {
        list.append({QLatin1String(name), make});
    };
    for (const char *id : {"file.quickOpen", "edit.findInProject", "edit.find", "file.new",
                           "help.welcome", "help.about"})
        add(id, [id](Desk &desk) { return opened(desk, id); });
    add("new field", [](Desk &desk) {
        return new desktop::FieldDialog(QStringLiteral("New Field in “People”"), {},
                                        QStringLiteral("Add Field"), &desk.window);
    });
    add("choice of a name", [](Desk &desk) {
        return new desktop::PickDialog(
            QStringLiteral("Merge Entity"), QStringLiteral("Merge “Mara Tolvey” into:"),
            {QStringLiteral("Ilen Dask")}, QStringLiteral("Merge"), &desk.window);
    });
    add("damaged project", [](Desk &desk) {
        app::DamagedProject project;
        project.path = QStringLiteral("/home/someone/Books/The Low Lamps.vellum");
        project.message = QStringLiteral("Invalid JSON in file: objects/1.json");
        project.hasBackup = true;
        project.isRepairable = true;
        return new desktop::DamagedProjectDialog(project, &desk.window);
    });
    add("document of a backup", [](Desk &desk) {
        app::BackupDocument document;
        document.title = QStringLiteral("The Count at Dusk");
        document.after = QStringLiteral("The lamps of Vessarine were lit from the water upward.");
        return new desktop::RestoreDocumentDialog({document}, &desk.window);
    });
    add("backups", [](Desk &desk) {
        const app::StorageLocations locations{desk.dir.path()};
        return new desktop::BackupsDialog(
            app::AutoBackups(desk.dir.filePath(QStringLiteral("a.vellum")), locations,
                             [](const core::Project &) { return app::BackupSummary(); }),
            &desk.window);
    });
    return list;
}

} // namespace

class TestLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void everyControlHasAName_data();
    void everyControlHasAName();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void textIsLegible_data();
    void textIsLegible();
    void aThemeLeavesNothingOfTheOneBefore();
    void preferencesAreFoundAndReset();
    void shortcutsAreRecordedWithTheirConflicts();
};

void TestLook::initTestCase()
{
    QApplication::setStyle(new desktop::ProgramStyle);
}

void TestLook::cleanup()
{
    desktop::applyFontScale(1.0);
}

void TestLook::everyControlHasAName_data()
{
    QTest::addColumn<int>("surface");
    const auto all = surfaces();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(qPrintable(all.at(i).first)) << i;
}

void TestLook::everyControlHasAName()
{
    QFETCH(int, surface);
    Desk desk;
    QWidget *shown = surfaces().at(surface).second(desk);
    shown->show();
    const QStringList unnamed = test::unnamedControls(shown);
    QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u'\n')));
}

void TestLook::nothingIsClipped_data()
{
    QTest::addColumn<int>("surface");
    QTest::addColumn<QString>("language");
    QTest::addColumn<double>("scale");
    const auto all = surfaces();
    for (int i = 0; i < all.size(); ++i)
        for (const char *language : {"en", "es"})
            for (const double scale : {1.0, 2.0})
                QTest::addRow("%s, %s, %g", qPrintable(all.at(i).first), language, scale)
                    << i << QString(QLatin1String(language)) << scale;
}

void TestLook::nothingIsClipped()
{
    QFETCH(int, surface);
    QFETCH(QString, language);
    QFETCH(double, scale);
    QTranslator texts;
    QVERIFY(texts.load(QStringLiteral(IVOREL_TRANSLATIONS "/ivorel_%1.qm").arg(language)));
    QCoreApplication::installTranslator(&texts);
    desktop::applyFontScale(scale);
    {
        Desk desk;
        desk.window.resize(1280, 800);
        QWidget *shown = surfaces().at(surface).second(desk);
        shown->show();
        QVERIFY(QTest::qWaitForWindowExposed(shown));
        QCoreApplication::processEvents();
        QVERIFY2(shown->width() <= 1280 && shown->height() <= 800,
                 qPrintable(QStringLiteral("%1x%2").arg(shown->width()).arg(shown->height())));
        const QStringList clipped = test::clippedTexts(shown);
        QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(u'\n')));
    }
    QCoreApplication::removeTranslator(&texts);
}

void TestLook::textIsLegible_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("least");
    for (const desktop::Theme &theme : desktop::themes()) {
        const QString name = QLatin1String(theme.name);
        QTest::newRow(theme.name) << name << (name == u"High Contrast" ? 7.0 : 4.5);
    }
}

void TestLook::textIsLegible()
{
    QFETCH(QString, name);
    QFETCH(double, least);
    const desktop::Theme &theme = desktop::themeNamed(name);
    const QPalette palette = desktop::paletteOf(theme);
    const QPalette texts = desktop::textPaletteOf(theme);
    const auto role = [](const QPalette &from, QPalette::ColorRole which) {
        return from.color(QPalette::Active, which);
    };
    const QColor window = role(palette, QPalette::Window);
    const QColor base = role(palette, QPalette::Base);
    const QColor text = role(palette, QPalette::Text);
    const std::tuple<const char *, QColor, QColor> pairs[] = {
        {"window text", role(palette, QPalette::WindowText), window},
        {"text", text, base},
        {"text of every second row", text, role(palette, QPalette::AlternateBase)},
        {"title of a panel", text, window},
        {"button", role(palette, QPalette::ButtonText), role(palette, QPalette::Button)},
        {"placeholder", role(palette, QPalette::PlaceholderText), base},
        {"link", role(palette, QPalette::Link), base},
        {"visited link", role(palette, QPalette::LinkVisited), base},
        {"tool tip", role(palette, QPalette::ToolTipText), role(palette, QPalette::ToolTipBase)},
        {"selection", role(texts, QPalette::HighlightedText), role(texts, QPalette::Highlight)},
        {"secondary column", desktop::mix(text, base, desktop::quietAmount), base},
        {"secondary column of every second row", desktop::mix(text, base, desktop::quietAmount),
         role(palette, QPalette::AlternateBase)},
        {"question in the bar", role(palette, QPalette::WindowText),
         desktop::mix(role(palette, QPalette::Highlight), window, desktop::noticeTint)},
    };
    for (const auto &[what, over, under] : pairs) {
        const double found = desktop::contrast(over, under);
        QVERIFY2(found >= least,
                 qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(what)).arg(found)));
    }
    // What is no text but has to be made out.
    const double ring = desktop::contrast(desktop::focusColour(palette), window);
    QVERIFY2(ring >= 3.0, qPrintable(QString::number(ring)));
}

void TestLook::aThemeLeavesNothingOfTheOneBefore()
{
    QPlainTextEdit text;
    text.show();
    for (const char *name : {"Sepia", "Light", "High Contrast", "Dark"}) {
        const desktop::Theme &theme = desktop::themeNamed(QLatin1String(name));
        desktop::applyTheme(theme);
        QCoreApplication::processEvents(); // the widgets are told from the event loop
        QCOMPARE(text.palette().color(QPalette::Highlight),
                 desktop::textPaletteOf(theme).color(QPalette::Highlight));
        QCOMPARE(text.palette().color(QPalette::Base), QColor(theme.base));
        QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor(theme.highlight));
    }
    desktop::applyTheme(desktop::themeNamed(QStringLiteral("Light")));
}

void TestLook::preferencesAreFoundAndReset()
{
    Desk desk;
    desktop::PreferencesDialog dialog({desk.settings, desk.actions, desk.prompts}, &desk.window);
    dialog.show();
    auto *list = dialog.findChild<QListWidget *>();
    auto *search = dialog.findChild<QLineEdit *>();
    const auto shown = [list] {
        QStringList titles;
        for (int i = 0; i < list->count(); ++i)
            if (!list->item(i)->isHidden())
                titles.append(list->item(i)->text());
        return titles;
    };
    search->setText(QStringLiteral("sepia"));
    QCOMPARE(shown(), QStringList{QStringLiteral("Appearance")});
    QCOMPARE(list->currentItem()->text(), QStringLiteral("Appearance"));
    search->setText(QStringLiteral("spacing line"));
    QCOMPARE(shown(), QStringList{QStringLiteral("Editor")});
    search->setText(QStringLiteral("zzz"));
    QCOMPARE(shown(), QStringList());
    search->setText(QStringLiteral("font scale"));

    QSpinBox *scale = nullptr;
    for (QSpinBox *box : dialog.findChildren<QSpinBox *>())
        if (box->maximum() == 200)
            scale = box;
    QVERIFY(scale);
    for (const auto &[entry, percent] : {std::pair("1.5", 150), std::pair("nan", 100),
                                         std::pair("9", 200), std::pair("wide", 100)}) {
        desk.settings.set(app::settings::fontScale, QLatin1String(entry));
        QCOMPARE(scale->value(), percent);
        QCOMPARE(desk.settings.text(app::settings::fontScale), QLatin1String(entry));
    }
    desktop::applyFontScale(1.0);

    desk.settings.set(app::settings::theme, QStringLiteral("Dark"));
    desk.settings.set(app::settings::editorFontSize, QStringLiteral("20"));
    for (QPushButton *button : dialog.findChildren<QPushButton *>())
        if (button->text() == u"&Reset Page")
            button->click();
    QVERIFY(!desk.settings.contains(QLatin1String(app::settings::theme.name)));
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
    // The other pages keep theirs.
    QCOMPARE(desk.settings.text(app::settings::editorFontSize), QStringLiteral("20"));
}

void TestLook::shortcutsAreRecordedWithTheirConflicts()
{
    Desk desk;
    desktop::PreferencesDialog dialog({desk.settings, desk.actions, desk.prompts}, &desk.window);
    dialog.findChild<QListWidget *>()->setCurrentRow(3);
    dialog.show();
    auto *tree = dialog.findChild<QTreeWidget *>();
    auto *keys = dialog.findChild<QKeySequenceEdit *>();
    QVERIFY(tree && keys);
    QVERIFY(!keys->isEnabled());
    tree->setCurrentItem(
        tree->findItems(QStringLiteral("Welcome"), Qt::MatchContains | Qt::MatchRecursive)
            .value(0));
    const auto press = [keys](const QString &sequence) {
        keys->setKeySequence(QKeySequence(sequence));
        Q_EMIT keys->editingFinished();
    };
    press(QStringLiteral("Ctrl+Alt+W"));
    QCOMPARE(desk.settings.text(QStringLiteral("shortcuts/help.welcome")),
             QStringLiteral("Ctrl+Alt+W"));
    press(QStringLiteral("Ctrl+P")); // shown as a conflict, not taken
    QCOMPARE(desk.settings.text(QStringLiteral("shortcuts/help.welcome")),
             QStringLiteral("Ctrl+Alt+W"));
    QPushButton *take = nullptr;
    for (QPushButton *button : dialog.findChildren<QPushButton *>())
        if (button->text() == u"&Use It Here")
            take = button;
    QVERIFY(take && take->isVisible());
    take->click();
    QCOMPARE(desk.actions["help.welcome"]->shortcut(), QKeySequence(QStringLiteral("Ctrl+P")));
    QVERIFY(desk.actions["file.quickOpen"]->shortcuts().isEmpty());
    for (QPushButton *button : dialog.findChildren<QPushButton *>())
        if (button->text() == u"&Reset Page")
            button->click();
    QCOMPARE(desk.actions["file.quickOpen"]->shortcut(), QKeySequence(QStringLiteral("Ctrl+P")));
}

QTEST_MAIN(TestLook)
#include "tst_look.moc"
