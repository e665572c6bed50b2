#include "app/base/settingskeys.h"
#include "desktop/panels/inspectorpanel.h"
#include "desktop/shell/theme.h"
#include "desktop/startup/toolkittexts.h"
#include "desktop/widgets/focusring.h"
#include "desktop/widgets/grid.h"
#include "desktop/widgets/programstyle.h"
#include "tests/desktop/surfaces.h"
#include "tests/support/uiwalk.h"

#include <QtCore/QDirIterator>
#include <QtCore/QTemporaryFile>
#include <QtCore/QTranslator>
#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFocusFrame>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

using namespace vl;

namespace {

// Markup, an entity and a mnemonic at once.
const QString probe = QStringLiteral("<b>x&amp;y</b>");

/// Asks the catalogues before this one, and keeps what the toolkit asked for.
class ToolkitListener final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const QByteArray asker(context);
        // A mark of the title, a sign of the direction, why a picture is not there: none is shown.
        const bool isShown =
            asker != "QWidget" && asker != "QGuiApplication" && asker != "QImageReader";
        if (isShown && asker.startsWith('Q'))
            asked.insert({asker, QByteArray(text)});
        return {};
    }
    mutable QSet<std::pair<QByteArray, QByteArray>> asked;
};

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList foundIn(const QString &text, const char *pattern)
{
    const QRegularExpression expression(QLatin1String(pattern),
                                        QRegularExpression::MultilineOption);
    QStringList found;
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found.append(match.next().captured(1));
    return found;
}

QMap<QString, QString> sources()
{
    QMap<QString, QString> files;
    const QString root = QStringLiteral(IVOREL_SOURCE_DIR "/");
    QDirIterator paths(root + QLatin1String("desktop"),
                       {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        const QString path = paths.next();
        files.insert(path.mid(root.size()), read(path));
    }
    return files;
}

/// The letters that are reached with Alt, and by what.
class Mnemonics
{
public:
    void add(const QString &text)
    {
        // These texts stand as they are; the letter goes from one to the next.
        static const QSet<QString> settled{
            QStringLiteral("Mounted &Libraries…"),
            QStringLiteral("&Replace…"),
            QStringLiteral("&Preferences…"),
            QStringLiteral("&Delete Perspective…"),
            QStringLiteral("Generate &Codex from Manuscript…"),
            QStringLiteral("&Generate Image…"),
            QStringLiteral("Generate &Speech…"),
            QStringLiteral("Batch AI Co&mmand…"),
        };
        const QKeySequence keys = QKeySequence::mnemonic(text);
        if (keys.isEmpty() || settled.contains(text))
            return;
        QString &taken = m_taken[keys.toString()];
        if (!taken.isEmpty() && taken != text)
            clashes.append(QStringLiteral("%1: “%2” and “%3”").arg(keys.toString(), taken, text));
        taken = text;
    }
    QStringList clashes;

private:
    QHash<QString, QString> m_taken;
};

QStringList clashesIn(const QMenu &menu)
{
    Mnemonics letters;
    QStringList clashes;
    for (const QAction *entry : menu.actions()) {
        letters.add(entry->text());
        if (entry->menu())
            clashes += clashesIn(*entry->menu());
    }
    return clashes + letters.clashes;
}

/// Of what stands in a window at one time.
QStringList clashesIn(const QWidget *window)
{
    Mnemonics letters;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != window)
            continue;
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            letters.add(button->text());
        else if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            letters.add(label->text());
        else if (const auto *bar = qobject_cast<const QMenuBar *>(widget))
            for (const QAction *menu : bar->actions())
                letters.add(menu->text());
    }
    return letters.clashes;
}

bool takesFocus(const QWidget *widget)
{
    return widget->isVisible() && widget->isEnabled()
           && (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget->focusProxy();
}

/// Every text that an item view would show as a tool tip.
void addToolTips(const QAbstractItemModel &model, const QModelIndex &parent, QStringList &tips)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column)
            tips.append(model.index(row, column, parent).data(Qt::ToolTipRole).toString());
        addToolTips(model, model.index(row, 0, parent), tips);
    }
}

/// The texts of the user that would be taken for something else.
QStringList mistakenTexts(const QWidget *window)
{
    QStringList mistaken;
    QStringList tips;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        tips.append(widget->toolTip());
        const auto *label = qobject_cast<const QLabel *>(widget);
        if (label && label->text().contains(QLatin1String("<b>x"))) {
            if (label->textFormat() != Qt::PlainText)
                mistaken.append(QStringLiteral("markup: ") + test::placeOf(label));
            if (label->buddy() && label->text().contains(probe))
                mistaken.append(QStringLiteral("mnemonic: ") + test::placeOf(label));
        }
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        if (button && button->text().contains(probe))
            mistaken.append(QStringLiteral("mnemonic: ") + test::placeOf(button));
        if (const auto *view = qobject_cast<const QAbstractItemView *>(widget);
            view && view->model())
            addToolTips(*view->model(), {}, tips);
    }
    for (const QAction *action : window->findChildren<QAction *>()) {
        tips.append(action->toolTip());
        if (action->text().contains(probe))
            mistaken.append(QStringLiteral("mnemonic: ") + action->text());
    }
    for (const QString &tip : qAsConst(tips))
        if (tip.contains(QLatin1String("<b>x")))
            mistaken.append(QStringLiteral("tool tip: ") + tip);
    return mistaken;
}

} // namespace

class TestSurfaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void noneIsForgotten();
    void controlsCanBeNamedAndReached_data();
    void controlsCanBeNamedAndReached();
    void nothingIsClippedAndNoLetterIsTwice_data();
    void nothingIsClippedAndNoLetterIsTwice();
    void textIsLegible_data();
    void textIsLegible();
    void aThemeLooksTheSameHoweverItCame_data();
    void aThemeLooksTheSameHoweverItCame();
    void textOfTheUserIsPlain_data();
    void textOfTheUserIsPlain();
    void menusHaveEachLetterOnce_data();
    void menusHaveEachLetterOnce();
    void theToolkitIsTranslated();

private:
    std::unique_ptr<desktop::FocusRing> m_ring;
};

void TestSurfaces::initTestCase()
{
    QApplication::setStyle(new desktop::ProgramStyle);
    m_ring = std::make_unique<desktop::FocusRing>();
}

void TestSurfaces::cleanup()
{
    desktop::applyFontScale(1.0);
    desktop::applyTheme(desktop::themeNamed(QStringLiteral("Light")));
}

/// A new dialog or question has to be shown by `surfaces()`.
void TestSurfaces::noneIsForgotten()
{
    QStringList wanted = foundIn(read(QStringLiteral(IVOREL_SOURCE_DIR "/app/models/prompts.h")),
                                 R"(^    virtual [^~].*?(\w+)\()");
    const QMap<QString, QString> files = sources();
    for (auto file = files.begin(); file != files.end(); ++file) {
        wanted += foundIn(*file, R"(^class (\w+)[^;{]*: public Q(?:Dialog|Wizard|MessageBox)\b)");
        if (file.key().startsWith(u"desktop/dialogs/") && file.key().endsWith(u".h"))
            wanted += foundIn(*file, R"(^(?:std::.*)?(ask\w+)\()");
        // Boxes of the toolkit are for the prompts alone, where they are walked.
        const bool mayAsk = file.key() == u"desktop/dialogs/dialogprompts.cpp";
        const QStringList boxes = foundIn(
            *file, R"(\b(Q(?:MessageBox|InputDialog|ColorDialog|FontDialog|ErrorMessage))\b)");
        QVERIFY2(mayAsk || boxes.isEmpty(), qPrintable(file.key()));
    }
    for (const char *base : {"Sheet", "Box"}) // which the functions that ask are made with
        wanted.removeAll(QLatin1String(base));
    QVERIFY(wanted.size() > 25);
    QSet<QString> shown;
    for (const test::Surface &surface : test::surfaces())
        shown.insert(surface.shows);
    for (const QString &name : qAsConst(wanted))
        QVERIFY2(shown.contains(name), qPrintable(name));
}

void TestSurfaces::controlsCanBeNamedAndReached_data()
{
    QTest::addColumn<int>("surface");
    const auto all = test::surfaces();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(qPrintable(all.at(i).name)) << i;
}

void TestSurfaces::controlsCanBeNamedAndReached()
{
    QFETCH(int, surface);
    const test::Surface shown = test::surfaces().at(surface);
    QStringList faults;
    test::Desk desk;
    shown.open(desk, [&](QWidget *window) {
        faults += test::unnamedControls(window);
        const auto *dialog = qobject_cast<QDialog *>(window);
        // In the window, Tab leads through the form; the keys between the panels are others.
        QWidget *walked = dialog ? window : window->findChild<desktop::InspectorPanel *>();
        if (!walked || !walked->isVisible())
            return;
        if (dialog && !shown.shows.isEmpty() && shown.shows.front().isUpper()
            && !QByteArray(window->metaObject()->className()).endsWith(shown.shows.toLatin1()))
            faults.append(QLatin1String(window->metaObject()->className()));
        // Tab leads through all, and where it stands can be seen.
        QSet<QWidget *> left;
        for (QWidget *widget : walked->findChildren<QWidget *>())
            if (takesFocus(widget) && !qobject_cast<QRadioButton *>(widget)
                && !widget->inherits("QFileDialogLineEdit"))
                left.insert(widget);
        QApplication::setActiveWindow(window);
        if (!dialog)
            walked->setFocus();
        const auto steps = 2 * left.size() + 4;
        for (qsizetype step = 0; step < steps && !left.isEmpty(); ++step) {
            QCoreApplication::processEvents(); // what is out of sight is scrolled to
            QWidget *focused = QApplication::focusWidget();
            left.remove(focused);
            const auto *ring = window->findChild<QFocusFrame *>();
            if (focused && !(ring && ring->isVisible() && ring->widget() == focused))
                faults.append(QStringLiteral("no ring round ") + test::placeOf(focused));
            QTest::keyClick(focused ? focused : window, Qt::Key_Tab);
        }
        for (const QWidget *widget : qAsConst(left))
            faults.append(QStringLiteral("Tab does not reach ") + test::placeOf(widget));
        if (!dialog)
            return;
        QTest::keyClick(window, Qt::Key_Escape);
        if (window->isVisible())
            faults.append(QStringLiteral("Esc does not close it"));
    });
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestSurfaces::nothingIsClippedAndNoLetterIsTwice_data()
{
    QTest::addColumn<int>("surface");
    QTest::addColumn<QString>("language");
    QTest::addColumn<double>("scale");
    const auto all = test::surfaces();
    for (int i = 0; i < all.size(); ++i)
        for (const char *language : {"en", "es"})
            for (const double scale : {1.0, 2.0})
                QTest::addRow("%s, %s, %g", qPrintable(all.at(i).name), language, scale)
                    << i << QString(QLatin1String(language)) << scale;
}

void TestSurfaces::nothingIsClippedAndNoLetterIsTwice()
{
    QFETCH(int, surface);
    QFETCH(QString, language);
    QFETCH(double, scale);
    QTranslator texts;
    QVERIFY(texts.load(QStringLiteral(IVOREL_TRANSLATIONS "/ivorel_%1.qm").arg(language)));
    QCoreApplication::installTranslator(&texts);
    desktop::applyFontScale(scale);
    QStringList faults;
    {
        test::Desk desk;
        desk.window.resize(1280, 800);
        test::surfaces().at(surface).open(desk, [&](const QWidget *window) {
            if (window->width() > 1280 || window->height() > 800)
                faults.append(QStringLiteral("%1x%2").arg(window->width()).arg(window->height()));
            faults += test::clippedTexts(window);
            faults += clashesIn(window);
        });
    }
    QCoreApplication::removeTranslator(&texts);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestSurfaces::textIsLegible_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<int>("surface");
    const auto all = test::surfaces();
    for (const desktop::Theme &theme : desktop::themes())
        for (int i = 0; i < all.size(); ++i)
            QTest::addRow("%s, %s", theme.name, qPrintable(all.at(i).name))
                << QString(QLatin1String(theme.name)) << i;
}

void TestSurfaces::textIsLegible()
{
    QFETCH(QString, theme);
    QFETCH(int, surface);
    const double least = theme == u"High Contrast" ? 7.0 : 4.5;
    QStringList faults;
    test::Desk desk;
    desk.settings.set(app::settings::theme, theme);
    desktop::applyTheme(desktop::themeNamed(theme));
    test::surfaces().at(surface).open(desk, [&](const QWidget *window) {
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            if (!widget->isVisible() || !widget->isEnabled())
                continue;
            const QPalette palette = widget->palette();
            const double found = desktop::contrast(palette.color(widget->foregroundRole()),
                                                   palette.color(widget->backgroundRole()));
            if (found < least)
                faults.append(QStringLiteral("%1: %2").arg(found).arg(test::placeOf(widget)));
        }
    });
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestSurfaces::aThemeLooksTheSameHoweverItCame_data()
{
    QTest::addColumn<int>("surface");
    const auto all = test::surfaces();
    // Those that stay open while the theme is changed in the preferences or the menu.
    for (int i = 0; i < all.size(); ++i)
        if (all.at(i).name.startsWith(u"window ")
            || (all.at(i).name.startsWith(u"preferences") && !all.at(i).name.endsWith(u"Backups"))
            || all.at(i).name.startsWith(u"edit.") || all.at(i).name == u"view.pageLayout")
            QTest::newRow(qPrintable(all.at(i).name)) << i;
}

/// Nothing keeps a colour of the theme before.
void TestSurfaces::aThemeLooksTheSameHoweverItCame()
{
    QFETCH(int, surface);
    QApplication::setCursorFlashTime(0);
    const auto picture = [surface](const QString &first, const QString &then) {
        desktop::applyTheme(desktop::themeNamed(first));
        QCoreApplication::processEvents();
        test::Desk desk;
        desk.settings.set(app::settings::theme, first);
        QImage seen;
        test::surfaces().at(surface).open(desk, [&](QWidget *window) {
            desk.settings.set(app::settings::theme, then);
            for (int turn = 0; turn < 4; ++turn) // what is told is told later
                QCoreApplication::processEvents();
            seen = window->grab().toImage();
        });
        return seen;
    };
    for (const desktop::Theme &theme : desktop::themes()) {
        const QString name = QLatin1String(theme.name);
        const QString before = theme.isDark ? QStringLiteral("Sepia") : QStringLiteral("Dark");
        const QImage fresh = picture(name, name);
        const QImage changed = picture(before, name);
        QCOMPARE(changed.size(), fresh.size());
        QRect where;
        for (int y = 0; y < fresh.height(); ++y)
            for (int x = 0; x < fresh.width(); ++x)
                if (fresh.pixel(x, y) != changed.pixel(x, y))
                    where |= QRect(x, y, 1, 1);
        QVERIFY2(where.isEmpty(), qPrintable(QStringLiteral("%1: %2x%3 at %4, %5")
                                                 .arg(name)
                                                 .arg(where.width())
                                                 .arg(where.height())
                                                 .arg(where.x())
                                                 .arg(where.y())));
    }
}

void TestSurfaces::textOfTheUserIsPlain_data()
{
    controlsCanBeNamedAndReached_data();
}

void TestSurfaces::textOfTheUserIsPlain()
{
    QFETCH(int, surface);
    QStringList mistaken;
    test::Desk desk;
    test::surfaces(probe).at(surface).open(
        desk, [&](const QWidget *window) { mistaken += mistakenTexts(window); });
    QVERIFY2(mistaken.isEmpty(), qPrintable(mistaken.join(u'\n')));
}

void TestSurfaces::menusHaveEachLetterOnce_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "en";
    QTest::newRow("Spanish") << "es";
}

void TestSurfaces::menusHaveEachLetterOnce()
{
    QFETCH(QString, language);
    QTranslator texts;
    QVERIFY(texts.load(QStringLiteral(IVOREL_TRANSLATIONS "/ivorel_%1.qm").arg(language)));
    QCoreApplication::installTranslator(&texts);
    QStringList clashes;
    {
        test::Desk desk;
        desk.openSample(QStringLiteral("The Count at Dusk"));
        for (const QMenu *menu : desk.window.findChildren<QMenu *>())
            if (!qobject_cast<const QMenu *>(menu->parent()))
                clashes += clashesIn(*menu);
    }
    QCoreApplication::removeTranslator(&texts);
    QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(u'\n')));
}

/// Whatever the toolkit shows in this program is in the program's own catalogues.
void TestSurfaces::theToolkitIsTranslated()
{
    ToolkitListener listener;
    QCoreApplication::installTranslator(&listener);
    const auto all = test::surfaces();
    for (const test::Surface &surface : all) {
        test::Desk desk;
        surface.open(desk, [](QWidget *window) {
            for (QWidget *widget : window->findChildren<QWidget *>()) {
                std::unique_ptr<QMenu> menu;
                if (auto *line = qobject_cast<QLineEdit *>(widget))
                    menu.reset(line->createStandardContextMenu());
                else if (auto *text = qobject_cast<QPlainTextEdit *>(widget))
                    menu.reset(text->createStandardContextMenu());
                else if (auto *rich = qobject_cast<QTextEdit *>(widget))
                    menu.reset(rich->createStandardContextMenu());
            }
        });
    }
    QCoreApplication::removeTranslator(&listener);
    QSet<std::pair<QByteArray, QByteArray>> known;
    for (const desktop::ToolkitText &text : desktop::toolkitTexts())
        known.insert({text.context, text.text});
    QStringList missing;
    for (const auto &[context, text] : qAsConst(listener.asked))
        if (!known.contains({context, text}))
            missing.append(
                QStringLiteral("%1: %2").arg(QLatin1String(context), QString::fromUtf8(text)));
    missing.sort();
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'\n')));
}

/// On the smallest screen that the program is made for.
int main(int argc, char **argv)
{
    QTemporaryFile screen;
    if (!screen.open())
        return 1;
    screen.write(R"({"screens": [{"name": "small", "width": 1280, "height": 800,
                     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    screen.close();
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screen.fileName()));
    QApplication application(argc, argv);
    TestSurfaces test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_surfaces.moc"
