#include "app/base/settingskeys.h"
#include "app/models/documentoperations.h"
#include "app/models/workspace.h"
#include "desktop/panels/catalogue.h"
#include "desktop/panels/inspectorpanel.h"
#include "desktop/preferences/preferencesdialog.h"
#include "desktop/shell/appearance.h"
#include "desktop/shell/layouts.h"
#include "desktop/shell/maintoolbar.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/noticebar.h"
#include "desktop/shell/panelhost.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/altletters.h"
#include "desktop/widgets/caretrest.h"
#include "desktop/widgets/grid.h"
#include "tests/support/fakeprompts.h"

#include <QtGui/QTextDocumentFragment>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTreeView>

using namespace vl;

namespace {

struct Desk
{
    QTemporaryDir dir;
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    test::FakePrompts prompts;
    std::unique_ptr<desktop::MainWindow> window;

    void open() { window = std::make_unique<desktop::MainWindow>(settings, &prompts); }
    QMenu *menu(const QString &title) const
    {
        for (QMenu *menu : window->findChildren<QMenu *>())
            if (menu->title() == title)
                return menu;
        return nullptr;
    }
    QAction *entry(const QString &title, const QString &text) const
    {
        const QMenu *found = menu(title);
        for (QAction *action : found ? found->actions() : QList<QAction *>())
            if (action->text() == text)
                return action;
        return nullptr;
    }
    QAction *action(const char *id) const { return window->actions()[id]; }
};

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void menusStandInOrder();
    void recentProjectsAreListed();
    void themesAndLanguagesAreTicked();
    void layoutsAreKeptUnderTheirNames();
    void shippedLayouts_data();
    void shippedLayouts();
    void aLayoutThatDoesNotFitGivesTheFirst_data();
    void aLayoutThatDoesNotFitGivesTheFirst();
    void theFirstLayoutGivesTheTextItsRoom_data();
    void theFirstLayoutGivesTheTextItsRoom();
    void theKeyboardReachesEveryPanel_data();
    void theKeyboardReachesEveryPanel();
    void theKeysWorkInAPanelThatFloats();
    void panelsFloatAndComeBack();
    void aPanelPulledOffIsTheOnlyNewWindow();
    void windowsAreBroughtBack_data();
    void windowsAreBroughtBack();
    void ownKeysStandOverBuiltInOnes_data();
    void ownKeysStandOverBuiltInOnes();
    void keysAreTakenAndGivenBack();
    void theToolBarShowsWhatTheSettingsSay();
    void theFontScaleReachesWhatIsOpen();
    void aLetterRunsTheOnlyEntryThatCanRun();
    void theCaretRests();
};

void TestShell::cleanup()
{
    desktop::applyFontScale(1.0);
}

void TestShell::menusStandInOrder()
{
    Desk desk;
    desk.open();
    const auto texts = [](const QWidget *menu) {
        QStringList list;
        for (const QAction *action : menu->actions())
            if (!action->isSeparator())
                list.append(action->text());
        return list;
    };
    QCOMPARE(texts(desk.window->menuBar()).join(u' '),
             QStringLiteral("&File &Edit &View &AI &Help"));
    QCOMPARE(texts(desk.menu(QStringLiteral("&File"))).mid(16).join(u'|'),
             QStringLiteral("Open PD&F…|&Import|&Export|&Recent Projects|Q&uit"));
    QStringList view{QStringLiteral("&Distraction-Free Mode"),
                     QStringLiteral("&Page Layout View"),
                     QStringLiteral("&Theme"),
                     QStringLiteral("Interface &Language"),
                     QStringLiteral("&Save Current Layout As…"),
                     QStringLiteral("Appl&y Perspective"),
                     QStringLiteral("&Delete Perspective…"),
                     QStringLiteral("&Reset Layout"),
                     QStringLiteral("&Float Panel"),
                     QStringLiteral("Doc&k Floating Panels"),
                     QStringLiteral("Ne&xt Panel"),
                     QStringLiteral("Pre&vious Panel")};
    for (const desktop::PanelRow &row : desktop::panelCatalogue())
        view.append(QString::fromLatin1(row.title));
    QCOMPARE(texts(desk.menu(QStringLiteral("&View"))), view);
}

void TestShell::recentProjectsAreListed()
{
    Desk desk;
    const QString there = desk.dir.filePath(QStringLiteral("Salt & Oil.vellum"));
    QFile file(there);
    QVERIFY(file.open(QIODevice::WriteOnly));
    desk.settings.addRecentProject(there);
    desk.settings.addRecentProject(desk.dir.filePath(QStringLiteral("gone.vellum")));
    desk.open();
    QMenu *menu = desk.menu(QStringLiteral("&Recent Projects"));
    QVERIFY(menu);
    QVERIFY(menu->actions().at(0)->text().startsWith(QLatin1String("&1 gone")));
    QVERIFY(menu->actions().at(1)->text().startsWith(QLatin1String("&2 Salt && Oil")));
    QTRY_VERIFY(menu->actions().at(0)->text().endsWith(QLatin1String("(not found)")));
    QVERIFY(!menu->actions().at(1)->text().contains(QLatin1String("(not found)")));
    const QString toolTip = menu->actions().at(1)->toolTip();
    QVERIFY(Qt::mightBeRichText(toolTip)); // else it would show how it is escaped
    QCOMPARE(QTextDocumentFragment::fromHtml(toolTip).toPlainText(),
             QDir::toNativeSeparators(there));

    for (int i = 0; i < 12; ++i)
        desk.settings.addRecentProject(desk.dir.filePath(QString::number(i)));
    QCOMPARE(menu->actions().size(), 8 + 2); // a separator and what clears them
    QVERIFY(menu->actions().at(0)->text().startsWith(QLatin1String("&1 11")));
    desk.action("file.clearRecent")->trigger();
    QCOMPARE(menu->actions().size(), 2);
    QCOMPARE(desk.settings.recentProjects(), QStringList());
}

void TestShell::themesAndLanguagesAreTicked()
{
    Desk desk;
    desk.settings.set(app::settings::theme, QStringLiteral("No such theme"));
    desk.open();
    const QString themes = QStringLiteral("&Theme");
    QVERIFY(desk.entry(themes, QStringLiteral("Light"))->isChecked());
    desk.entry(themes, QStringLiteral("Sepia"))->trigger();
    QCOMPARE(desk.settings.text(app::settings::theme), QStringLiteral("Sepia"));
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(0xfa, 0xf3, 0xe0));
    const auto tabIcons = [&desk] {
        QSet<qint64> drawn;
        for (const QLabel *label : desk.window->findChildren<QLabel *>())
            if (label->parent()->inherits("ads::CDockWidgetTab") && !label->pixmap().isNull())
                drawn.insert(label->pixmap().cacheKey());
        return drawn;
    };
    const QSet<qint64> inSepia = tabIcons();
    QCOMPARE(size_t(inSepia.size()), desktop::panelCatalogue().size());
    desk.settings.set(app::settings::theme, QStringLiteral("Dark")); // as the preferences do
    QTRY_VERIFY(!tabIcons().intersects(inSepia));
    QVERIFY(desk.entry(themes, QStringLiteral("Dark"))->isChecked());
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(0x1e, 0x1e, 0x1e));

    const QString languages = QStringLiteral("Interface &Language");
    QCOMPARE(desk.menu(languages)->actions().constFirst()->text(), QStringLiteral("English"));
    desk.entry(languages, QStringLiteral("Español"))->trigger();
    QCOMPARE(desk.settings.text(app::settings::language), QStringLiteral("es"));
    QVERIFY(desk.entry(languages, QStringLiteral("Español"))->isChecked());
    const auto *notice = desk.window->findChild<desktop::NoticeBar *>()->findChild<QLabel *>();
    QVERIFY(notice);
    QCOMPARE(
        notice->text(),
        QStringLiteral("The interface language will change to “Español” when you restart Ivorel."));

    const double size = QApplication::font().pointSizeF();
    desk.settings.set(app::settings::fontScale, QStringLiteral("2.0"));
    QCOMPARE(QApplication::font().pointSizeF(), 2 * size);
    QCOMPARE(desktop::grid(2), 16);
    desk.settings.set(app::settings::fontScale, QStringLiteral("large"));
    QVERIFY(QApplication::font().pointSizeF() > size / 3);
}

void TestShell::layoutsAreKeptUnderTheirNames()
{
    Desk desk;
    desk.open();
    const QString name = QStringLiteral("Drafts / 100 % & more");
    const QString menu = QStringLiteral("Appl&y Perspective");
    QVERIFY(!desk.action("view.deleteLayout")->isEnabled());
    QAction *documents = desk.entry(QStringLiteral("&View"), QStringLiteral("Documents"));
    documents->trigger();
    desk.prompts.text = name;
    desk.action("view.saveLayout")->trigger();
    documents->trigger();
    QVERIFY(documents->isChecked());
    QAction *entry = desk.entry(menu, QStringLiteral("Drafts / 100 % && more"));
    QVERIFY(entry);
    entry->trigger();
    QVERIFY(!documents->isChecked());

    desk.action("view.resetLayout")->trigger();
    QVERIFY(documents->isChecked());
    desk.action("view.saveLayout")->trigger(); // asks, and the answer is no
    QCOMPARE(desk.prompts.questions.size(), 1);
    desk.open(); // the next session
    desk.entry(menu, QStringLiteral("Drafts / 100 % && more"))->trigger();
    QVERIFY(!desk.entry(QStringLiteral("&View"), QStringLiteral("Documents"))->isChecked());
    desk.action("view.deleteLayout")->trigger();
    QVERIFY(!desk.entry(menu, QStringLiteral("Drafts / 100 % && more")));
    QVERIFY(!desk.action("view.deleteLayout")->isEnabled());
}

void TestShell::shippedLayouts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QStringList>("open");
    const QString documents = QStringLiteral("manuscript");
    const QString codex = QStringLiteral("codex");
    const QString editor = QStringLiteral("editor");
    const QString inspector = QStringLiteral("inspector");
    for (const QSize size : {QSize(1280, 800), QSize(1920, 1080)}) {
        const auto row = [&size](const char *name, const QStringList &open) {
            QTest::addRow("%s at %d", name, size.width())
                << QString::fromLatin1(name) << size << open;
        };
        row("Write", {documents, editor});
        row("Plan", {documents, editor, inspector});
        row("World", {codex, editor, inspector});
        row("Play", {codex, documents, editor, inspector});
        row("Edit", {documents, editor, inspector});
    }
}

void TestShell::shippedLayouts()
{
    QFETCH(QString, name);
    QFETCH(QSize, window);
    QFETCH(QStringList, open);
    Desk desk;
    desk.open();
    desk.window->resize(window);
    desk.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(desk.window.get()));
    desk.entry(QStringLiteral("&View"), QStringLiteral("Editor"))->trigger(); // closed before
    desk.entry(QStringLiteral("Appl&y Perspective"), name)->trigger();
    QCoreApplication::processEvents();
    QStringList shown;
    int used = 0;
    for (const desktop::PanelRow &row : desktop::panelCatalogue()) {
        const auto *dock = desk.window->findChild<QWidget *>(QLatin1String(row.objectName));
        if (!dock || !dock->isVisible())
            continue;
        shown.append(dock->objectName());
        QVERIFY(dock->width() >= dock->minimumSizeHint().width());
        used = qMax(used, dock->mapTo(desk.window.get(), QPoint(dock->width(), 0)).x());
        if (dock->objectName() == QLatin1String("editor"))
            QVERIFY2(dock->width() >= window.width() * 35 / 100,
                     qPrintable(QString::number(dock->width())));
    }
    shown.sort();
    open.sort();
    QCOMPARE(shown, open);
    QVERIFY(used > window.width() * 98 / 100); // no gap at the right

    // It is not the user's to replace.
    desk.prompts.text = name.toLower();
    desk.action("view.saveLayout")->trigger();
    QCOMPARE(desk.prompts.errors.size(), 1);
    QVERIFY(!desk.action("view.deleteLayout")->isEnabled());
}

void TestShell::aLayoutThatDoesNotFitGivesTheFirst_data()
{
    QTest::addColumn<int>("cut"); // bytes left, -1 for all
    QTest::addColumn<int>("flipped");
    QTest::addColumn<bool>("isOfOtherVersion");
    QTest::newRow("nothing") << 0 << -1 << false;
    QTest::newRow("a check and no state") << 20 << -1 << false;
    QTest::newRow("half") << 200 << -1 << false;
    QTest::newRow("a bit of the state") << -1 << 60 << false;
    QTest::newRow("a bit of the check") << -1 << 3 << false;
    QTest::newRow("whole, of another version") << -1 << -1 << true;
}

void TestShell::aLayoutThatDoesNotFitGivesTheFirst()
{
    QFETCH(int, cut);
    QFETCH(int, flipped);
    QFETCH(bool, isOfOtherVersion);
    Desk desk;
    desk.open();
    desk.entry(QStringLiteral("&View"), QStringLiteral("Documents"))->trigger();
    desk.window->close();
    const QString key = QStringLiteral("general/layout");
    QByteArray state = desk.settings.bytes(key);
    QVERIFY(state.size() > 200);
    if (cut >= 0)
        state.truncate(cut);
    if (flipped >= 0)
        state[flipped] = char(state[flipped] ^ 4);
    if (isOfOtherVersion) {
        constexpr int checkSize = 20; // of the SHA-1 before the state
        QByteArray text = qUncompress(state.mid(checkSize));
        const QByteArray version("UserVersion=\"1\"");
        QVERIFY(text.contains(version));
        const QByteArray other = qCompress(text.replace(version, "UserVersion=\"2\""));
        state = QCryptographicHash::hash(other, QCryptographicHash::Sha1) + other;
    }
    desk.settings.setBytes(key, state);
    desk.open();
    QVERIFY(desk.entry(QStringLiteral("&View"), QStringLiteral("Documents"))->isChecked());
    QVERIFY(desk.entry(QStringLiteral("&View"), QStringLiteral("Editor"))->isChecked());
}

void TestShell::theFirstLayoutGivesTheTextItsRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("least"); // of the editor's width, in pixels
    QTest::newRow("small screen") << QSize(1280, 800) << 600;
    QTest::newRow("large screen") << QSize(1920, 1080) << 1000;
}

void TestShell::theFirstLayoutGivesTheTextItsRoom()
{
    QFETCH(QSize, size);
    QFETCH(int, least);
    Desk desk;
    desk.open();
    desk.window->resize(size);
    desk.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(desk.window.get()));
    desk.action("view.resetLayout")->trigger();
    QCoreApplication::processEvents();
    const auto area = [&](const char *panel) {
        const auto *dock = desk.window->findChild<QWidget *>(QLatin1String(panel));
        return dock && dock->isVisible()
                   ? QRect(dock->mapTo(desk.window.get(), QPoint()), dock->size())
                   : QRect();
    };
    const QRect text = area("editor");
    QVERIFY2(text.width() >= least, qPrintable(QString::number(text.width())));
    QVERIFY(area("manuscript").isValid() && area("codex").isValid());
    QVERIFY(area("manuscript").right() < text.left());
    QVERIFY(area("manuscript").bottom() < area("codex").top());
    QCOMPARE(area("codex").left(), area("manuscript").left());
    QVERIFY(area("inspector").left() > text.right());
}

void TestShell::theKeyboardReachesEveryPanel_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    const auto row = [](const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::newRow(name) << int(key) << int(modifiers);
    };
    row("F6", Qt::Key_F6, Qt::NoModifier);
    row("Shift+F6", Qt::Key_F6, Qt::ShiftModifier);
    row("Ctrl+Tab", Qt::Key_Tab, Qt::ControlModifier);
    row("Ctrl+Shift+Tab", Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
}

void TestShell::theKeyboardReachesEveryPanel()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    Desk desk;
    desk.open();
    desk.window->show();
    desk.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk.window.get()));
    // The keys go through every sort of control that a panel gives the focus to.
    app::Workspace &workspace = desk.window->workspace();
    workspace.select(app::DocumentOperations(workspace).add(core::DocumentKind::Prose, {}));
    QSet<QString> visited;
    for (size_t i = 0; i < desktop::panelCatalogue().size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key),
                        Qt::KeyboardModifiers(modifiers));
        for (const QWidget *widget = QApplication::focusWidget(); widget;
             widget = widget->parentWidget())
            for (const desktop::PanelRow &row : desktop::panelCatalogue())
                if (widget->objectName() == QLatin1String(row.objectName))
                    visited.insert(widget->objectName());
    }
    QSet<QString> open;
    for (const desktop::PanelRow &row : desktop::panelCatalogue())
        if (row.firstState == desktop::FirstState::Open)
            open.insert(QLatin1String(row.objectName));
    QCOMPARE(visited, open);
}

void TestShell::theKeysWorkInAPanelThatFloats()
{
    Desk desk;
    desk.open();
    desk.window->show();
    QVERIFY(QTest::qWaitForWindowActive(desk.window.get()));
    app::Workspace &workspace = desk.window->workspace();
    workspace.select(app::DocumentOperations(workspace).add(core::DocumentKind::Prose, {}));
    auto *panel = desk.window->findChild<desktop::InspectorPanel *>();
    auto *dock = desk.window->findChild<QWidget *>(QStringLiteral("inspector"));
    QVERIFY(panel && dock && QMetaObject::invokeMethod(dock, "setFloating"));
    QVERIFY(panel->window() != desk.window.get());
    panel->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel->window()));
    QApplication::setActiveWindow(panel->window());
    panel->setFocus();
    const auto isIn = [&] { return panel->isAncestorOf(QApplication::focusWidget()); };
    QTRY_VERIFY(isIn());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("One"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    const auto steps = workspace.history().undoCount();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(workspace.history().undoCount(), steps - 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    QTRY_VERIFY(desk.window->isActiveWindow() && !isIn());
}

void TestShell::panelsFloatAndComeBack()
{
    Desk desk;
    desk.open();
    desk.window->show();
    QVERIFY(QTest::qWaitForWindowActive(desk.window.get()));
    QVERIFY(!desk.action("view.dockPanels")->isEnabled());
    QSet<const QWidget *> panels;
    for (const char *name : {"inspector", "codex", "editor"}) {
        auto *dock = desk.window->findChild<QWidget *>(QLatin1String(name));
        const auto goesThere = [&] {
            if (!dock->isAncestorOf(QApplication::focusWidget()))
                desk.action("view.nextPanel")->trigger();
            return dock->isAncestorOf(QApplication::focusWidget());
        };
        QTRY_VERIFY(goesThere());
        QVERIFY(desk.action("view.floatPanel")->isEnabled());
        desk.action("view.floatPanel")->trigger();
        QVERIFY(dock->window() != desk.window.get());
        QTRY_VERIFY(dock->isAncestorOf(QApplication::focusWidget()));
        QVERIFY(!desk.action("view.floatPanel")->isEnabled()); // it does already
        panels.insert(dock);
    }
    // The letters of the menus lead into them from there, and write nothing.
    const desktop::AltLetters letters;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::AltModifier);
    QMenu *view = desk.menu(QStringLiteral("&View"));
    QTRY_VERIFY(view->isVisible());
    view->close();
    auto *field =
        desk.window->findChild<QWidget *>(QStringLiteral("codex"))->findChild<QLineEdit *>();
    QApplication::setActiveWindow(field->window());
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
    QTest::keyClick(field, Qt::Key_Q, Qt::AltModifier); // which no menu has
    QTest::keyClick(field, Qt::Key_R);
    QCOMPARE(field->text(), QStringLiteral("r"));
    QVERIFY(desk.action("view.dockPanels")->isEnabled());
    desk.action("view.dockPanels")->trigger();
    for (const QWidget *dock : panels) {
        QCOMPARE(dock->window(), desk.window.get());
        QTRY_VERIFY2(dock->isVisible(), qPrintable(dock->objectName()));
        QTRY_VERIFY(dock->width() > 100);
    }
    QVERIFY(!desk.action("view.dockPanels")->isEnabled());
}

void TestShell::aPanelPulledOffIsTheOnlyNewWindow()
{
    Desk desk;
    desk.open();
    desk.window->show();
    for (QWidget *widget : desk.window->findChildren<QWidget *>())
        if (widget->inherits("ads::CDockWidgetTab") && widget->isVisible()) {
            QTest::mouseDClick(widget, Qt::LeftButton);
            break;
        }
    int floating = 0;
    for (const QWidget *widget : QApplication::allWidgets()) {
        floating += widget->inherits("ads::CFloatingDockContainer") && widget->isVisible() ? 1 : 0;
        QVERIFY2(widget->isWindow() || !widget->windowHandle(), widget->metaObject()->className());
    }
    QCOMPARE(floating, 1);
}

void TestShell::windowsAreBroughtBack_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<bool>("stays");
    QTest::newRow("on the second screen") << QRect(1400, 100, 300, 300) << true;
    QTest::newRow("partly out") << QRect(1180, 500, 300, 300) << true;
    QTest::newRow("its title above the screen") << QRect(100, -200, 300, 300) << false;
    QTest::newRow("of a screen that is gone") << QRect(5000, 100, 300, 300) << false;
    QTest::newRow("a sliver at the edge") << QRect(-290, 100, 300, 300) << false;
    QTest::newRow("larger than the screen") << QRect(9000, 0, 4000, 4000) << false;
}

void TestShell::windowsAreBroughtBack()
{
    QFETCH(QRect, frame);
    QFETCH(bool, stays);
    const QRect first(0, 0, 1280, 800);
    const QRect reachable = desktop::reachableFrame(frame, {first, QRect(1280, 0, 1280, 800)});
    if (stays)
        QCOMPARE(reachable, frame);
    else
        QVERIFY(first.contains(reachable));
}

void TestShell::ownKeysStandOverBuiltInOnes_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("keys");
    QTest::newRow("a key") << "Ctrl+Alt+J"
                           << "Ctrl+Alt+J";
    QTest::newRow("two strokes") << "Ctrl+K, Ctrl+P"
                                 << "Ctrl+K, Ctrl+P";
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("nonsense") << "Ctrl+Nonsense"
                              << "Ctrl+P";
}

void TestShell::ownKeysStandOverBuiltInOnes()
{
    QFETCH(QString, entry);
    QFETCH(QString, keys);
    Desk desk;
    desk.settings.set(QStringLiteral("shortcuts/file.quickOpen"), entry);
    desk.settings.set(QStringLiteral("shortcuts/no.such.action"), QStringLiteral("Ctrl+S"));
    desk.open();
    QCOMPARE(desk.action("file.quickOpen")->shortcut().toString(), keys);
    QCOMPARE(desk.action("file.save")->shortcut(), QKeySequence(QKeySequence::Save));
}

void TestShell::keysAreTakenAndGivenBack()
{
    Desk desk;
    desktop::ActionRegistry actions(desk.settings);
    const QKeySequence taken(QStringLiteral("Ctrl+P"));
    QCOMPARE(actions.userOf(taken, "edit.find"), actions["file.quickOpen"]);
    actions.setKeys("edit.find", taken);
    QCOMPARE(actions["edit.find"]->shortcuts(), QList{taken});
    QVERIFY(actions["file.quickOpen"]->shortcuts().isEmpty());
    actions.setKeys("help.about", taken); // from an action with keys of its own
    QVERIFY(actions["edit.find"]->shortcuts().isEmpty());
    actions.resetKeys("help.about");
    QVERIFY(!desk.settings.contains(QStringLiteral("shortcuts/help.about")));
    QCOMPARE(actions["file.quickOpen"]->shortcuts(), QList{taken});
    actions.resetAllKeys();
    QCOMPARE(actions["edit.find"]->shortcut(), QKeySequence(QKeySequence::Find));
}

void TestShell::theToolBarShowsWhatTheSettingsSay()
{
    Desk desk;
    desk.settings.set(QStringLiteral("toolbars/file.open"), QStringLiteral("0"));
    desk.settings.set(QStringLiteral("toolbars/file.save"), QStringLiteral("damaged"));
    desk.settings.set(QStringLiteral("toolbars/edit.undo"), QString());
    desk.open();
    const auto *bar = desk.window->findChild<QToolBar *>(QStringLiteral("primaryToolBar"));
    QVERIFY(bar);
    QCOMPARE(bar->windowTitle(), QStringLiteral("Main"));
    QVERIFY(!bar->actions().contains(desk.action("file.open")));
    QVERIFY(bar->actions().contains(desk.action("file.save")));
    QVERIFY(bar->actions().contains(desk.action("edit.undo")));
    for (const desktop::ToolBarRow &row : desktop::toolBarCatalogue()) {
        QVERIFY2(!desk.action(row.id)->icon().isNull(), row.id);
        desk.settings.set(desktop::toolBarKey(row.id), QStringLiteral("0"));
    }
    QVERIFY(bar->actions().isEmpty()); // no separators are left over
    desk.settings.set(QStringLiteral("toolbars/file.open"), QStringLiteral("1"));
    QCOMPARE(bar->actions().size(), 1);
}

void TestShell::theFontScaleReachesWhatIsOpen()
{
    Desk desk;
    desk.open();
    desk.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(desk.window.get()));
    desktop::PreferencesDialog dialog({desk.settings, desk.window->actions(), desk.prompts},
                                      desk.window.get());
    dialog.show();
    const auto *tree = desk.window->findChild<QTreeView *>(QStringLiteral("documentsTree"));
    const auto *pages = dialog.findChild<QListWidget *>(QStringLiteral("pages"));
    QVERIFY(tree && pages);
    for (const char *scale : {"2.0", "1.0"}) {
        desk.settings.set(app::settings::fontScale, QLatin1String(scale));
        QTRY_COMPARE(tree->font().pointSizeF(), QApplication::font().pointSizeF());
        QTRY_VERIFY(pages->sizeHintForColumn(0) <= pages->viewport()->width());
    }
    // Tab goes from the names of the pages into the page that is shown.
    QWidget *next = pages->nextInFocusChain();
    while (!next->isVisible() || !(next->focusPolicy() & Qt::TabFocus))
        next = next->nextInFocusChain();
    QVERIFY(dialog.findChild<QStackedWidget *>()->isAncestorOf(next));
}

void TestShell::aLetterRunsTheOnlyEntryThatCanRun()
{
    Desk desk;
    desk.open();
    desk.window->show();
    desk.prompts.path = desk.dir.filePath(QStringLiteral("saved"));
    const auto press = [](QMenu *menu, Qt::Key key) {
        menu->popup({});
        QTest::keyClick(menu, key);
    };
    QMenu *file = desk.menu(QStringLiteral("&File"));
    press(file, Qt::Key_L); // "Mounted &Libraries…" is off
    QTRY_VERIFY(desk.window->workspace().current().hasLocation());
    QVERIFY(!file->isVisible());
    // Both can run: the menu only goes to the first.
    desk.action("file.mountedLibraries")->setEnabled(true);
    press(file, Qt::Key_L);
    QVERIFY(file->isVisible());
    QCOMPARE(file->activeAction(), desk.action("file.saveAsFolder"));
    file->close();
}

void TestShell::theCaretRests()
{
    const int flashTime = QApplication::cursorFlashTime();
    QVERIFY(flashTime > 0);
    QLineEdit field;
    field.show();
    {
        const desktop::CaretRest rest(1);
        QTRY_COMPARE(QApplication::cursorFlashTime(), 0);
        QTest::keyClick(&field, Qt::Key_A);
        QCOMPARE(QApplication::cursorFlashTime(), flashTime);
        QTRY_COMPARE(QApplication::cursorFlashTime(), 0);
    }
    QCOMPARE(QApplication::cursorFlashTime(), flashTime);
}

QTEST_MAIN(TestShell)
#include "tst_shell.moc"
