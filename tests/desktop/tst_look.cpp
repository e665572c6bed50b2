#include "app/base/settingskeys.h"
#include "app/text/markdownstyle.h"
#include "desktop/editor/editorstyle.h"
#include "desktop/preferences/preferencesdialog.h"
#include "desktop/shell/appearance.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/noticebar.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"
#include "desktop/widgets/programstyle.h"
#include "tests/support/fakeprompts.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QKeySequenceEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPlainTextEdit>
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

} // namespace

class TestLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
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
    const Desk desk;
    const desktop::EditorStyle style(desk.settings, texts);
    const QColor link = style.format(app::LinkText, 0).foreground().color();
    const QColor mark = style.format(app::MarkText, 0).foreground().color();
    const QColor code = style.codeGround();
    const desktop::DifferenceColours lines = desktop::differenceColours(texts);
    const std::tuple<const char *, QColor, QColor> pairs[] = {
        {"link in the editor", link, base},
        {"mark in the editor", mark, base},
        {"code in the editor", text, code},
        {"link in code", link, code},
        {"mark in code", mark, code},
        {"text that was found", text, style.hitGround()},
        {"link that was found", link, style.hitGround()},
        {"mark that was found", mark, style.hitGround()},
        {"line that goes", text, lines.removed},
        {"line that comes", text, lines.added},
        {"word that goes", text, lines.removedWord},
        {"word that comes", text, lines.addedWord},
        {"picture of a button", role(palette, QPalette::ButtonText), window},
        {"picture of a row", role(palette, QPalette::ButtonText), base},
        {"hint on the window", role(palette, QPalette::PlaceholderText), window},
        {"menu entry under the mouse", role(texts, QPalette::HighlightedText),
         role(texts, QPalette::Highlight)},
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
    // What is no text, or tells only that it cannot be used, but has to be made out.
    const auto off = [&palette](QPalette::ColorRole which) {
        return palette.color(QPalette::Disabled, which);
    };
    const std::tuple<const char *, QColor, QColor> signs[] = {
        {"focus ring", desktop::focusColour(palette), window},
        {"focus ring in a view", desktop::focusColour(palette), base},
        {"text that is off", off(QPalette::Text), base},
        {"label that is off", off(QPalette::WindowText), window},
        {"button that is off", off(QPalette::ButtonText), role(palette, QPalette::Button)},
    };
    for (const auto &[what, over, under] : signs) {
        const double found = desktop::contrast(over, under);
        QVERIFY2(found >= 3.0,
                 qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(what)).arg(found)));
    }
    // Where all grounds are one, only their edges part them.
    if (window == role(palette, QPalette::Button))
        QVERIFY(desktop::contrast(role(palette, QPalette::Dark), window) >= 4.5);
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
        const std::pair<QPalette::ColorRole, QRgb> roles[] = {
            {QPalette::Window, theme.window},
            {QPalette::WindowText, theme.windowText},
            {QPalette::Base, theme.base},
            {QPalette::Text, theme.text},
            {QPalette::Button, theme.button},
            {QPalette::ButtonText, theme.buttonText},
            {QPalette::Highlight, theme.highlight},
            {QPalette::HighlightedText, theme.highlightedText},
            {QPalette::Link, theme.link},
        };
        for (const auto &[role, colour] : roles)
            QCOMPARE(QApplication::palette().color(role), QColor(colour));
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
    // Nobody could write with these any more.
    for (const char *plain : {"A", "Shift+A", "Return", "Space", "Left", "Ctrl+C", "Ctrl+V"}) {
        press(QLatin1String(plain));
        QCOMPARE(desk.settings.text(QStringLiteral("shortcuts/help.welcome")),
                 QStringLiteral("Ctrl+Alt+W"));
        QTest::keyClick(keys, Qt::Key_Escape); // back to what it has
        QCOMPARE(keys->keySequence(), QKeySequence(QStringLiteral("Ctrl+Alt+W")));
    }
    press(QStringLiteral("Shift+F7"));
    QCOMPARE(desk.settings.text(QStringLiteral("shortcuts/help.welcome")),
             QStringLiteral("Shift+F7"));
    press(QStringLiteral("Ctrl+Alt+W"));
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
