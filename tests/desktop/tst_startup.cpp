#include "app/base/settingskeys.h"
#include "app/storage/openproject.h"
#include "app/storage/workingcopy.h"
#include "core/commands/objectcommands.h"
#include "core/content/document.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/noticebar.h"
#include "desktop/startup/handover.h"
#include "desktop/startup/startup.h"
#include "tests/support/fakeprompts.h"

#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <csignal>

using namespace vl;
using namespace vl::desktop;

namespace {

/// A name that nothing else on the machine uses.
QString freshName()
{
    static int count = 0;
    return QStringLiteral("IvorelTest-%1-%2").arg(QCoreApplication::applicationPid()).arg(++count);
}

} // namespace

class TestStartUp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandLine_data();
    void commandLine();
    void optionValues();

    void handOver_data();
    void handOver();
    void handOverWaitsForDialog();
    void handOverDialogAsWorded();
    void aRunningWindowTakesOver();

    void theEndOfTheSessionLosesNothing();
    void opensWhatWasAskedFor_data();
    void opensWhatWasAskedFor();
    void capture_data();
    void capture();
    void recentProjects();
    void flags_data();
    void flags();
    void settingsComeBack_data();
    void settingsComeBack();
    void faultySettings_data();
    void faultySettings();
    void language_data();
    void language();
};

void TestStartUp::commandLine_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("newInstance");
    QTest::newRow("none") << ""
                          << "" << false;
    QTest::newRow("project") << "a.vellum"
                             << "a.vellum" << false;
    QTest::newRow("two projects") << "a.vellum b.vellum"
                                  << "a.vellum" << false;
    QTest::newRow("unknown options") << "--x a.vellum --y"
                                     << "a.vellum" << false;
    QTest::newRow("values are no projects") << "--lang es --capture f.png a"
                                            << "a" << false;
    QTest::newRow("option at the end") << "a --lang"
                                       << "a" << false;
    QTest::newRow("new instance") << "--new-instance a"
                                  << "a" << true;
    QTest::newRow("an option as a value") << "--capture --new-instance a"
                                          << "a" << false;
    QTest::newRow("one dash") << "-a"
                              << "-a" << false;
    QTest::newRow("a slash that the shell added") << "a/"
                                                  << "a/" << false;
}

void TestStartUp::commandLine()
{
    QFETCH(QString, arguments);
    QFETCH(QString, path);
    QFETCH(bool, newInstance);
    const QStringList list =
        QStringList{QStringLiteral("ivorel")} + arguments.split(u' ', Qt::SkipEmptyParts);
    QCOMPARE(parseCommandLine(list), (CommandLineOptions{path, newInstance}));
    const Launch launch = Launch::from(list);
    QCOMPARE(launch.options.projectPath,
             path.isEmpty() ? path : QDir::cleanPath(QDir::current().filePath(path)));
}

void TestStartUp::optionValues()
{
    const QStringList list{QStringLiteral("--lang"), QStringLiteral("--capture"),
                           QStringLiteral("a.png"), QStringLiteral("--lang")};
    QCOMPARE(optionValue(list, QStringLiteral("--capture")), QStringLiteral("a.png"));
    QVERIFY(!optionValue(list, QStringLiteral("--lang"))); // the first argument is the program
}

void TestStartUp::handOver_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("choice");
    QTest::addColumn<QStringList>("said");
    QTest::newRow("empty") << "" << 0 << QStringList();
    QTest::newRow("blank") << "  " << 0 << QStringList();
    QTest::newRow("missing") << "/no/such.vellum" << 0
                             << QStringList{QStringLiteral("error The project could not be found: "
                                                           "/no/such.vellum")};
    const QString question =
        QString::fromUtf8("question Ivorel is already open. Where should “My.Novel” open?");
    QTest::newRow("here") << "My.Novel.vellum" << 0
                          << QStringList{question, QStringLiteral("here")};
    QTest::newRow("new window") << "My.Novel.vellum" << 1
                                << QStringList{
                                       question, QStringLiteral("elsewhere"),
                                       QStringLiteral("error A new window could not be opened.")};
    QTest::newRow("cancel") << "My.Novel.vellum" << -1 << QStringList{question};
    QTest::newRow("folder with a slash") << "My.Novel.d/" << -1 << QStringList{question};
}

void TestStartUp::handOver()
{
    QFETCH(QString, path);
    QFETCH(int, choice);
    QTemporaryDir dir;
    if (path.startsWith(u'M')) {
        path = dir.filePath(path);
        QFile file(path);
        QVERIFY(path.endsWith(u'/') ? QDir().mkpath(path) : file.open(QIODevice::WriteOnly));
    }
    QWidget window;
    window.showMinimized();
    test::FakePrompts prompts;
    prompts.choice = choice;
    QStringList done;
    HandOver handler(
        &window, prompts,
        [&](const QString &opened) {
            QCOMPARE(opened, path);
            done.append(QStringLiteral("here"));
        },
        [&](const QString &) {
            done.append(QStringLiteral("elsewhere"));
            return false;
        });
    handler.receive(path);
    QVERIFY(window.isVisible() && !window.isMinimized());
    QStringList said;
    for (const QString &question : std::as_const(prompts.questions))
        said.append(QStringLiteral("question ") + question);
    said += done;
    for (const QString &error : std::as_const(prompts.errors))
        said.append(QStringLiteral("error ") + error);
    QTEST(said, "said");
}

void TestStartUp::handOverWaitsForDialog()
{
    QTemporaryDir dir;
    QWidget window;
    window.show();
    test::FakePrompts prompts;
    HandOver handler(
        &window, prompts, [](const QString &) {}, [](const QString &) { return true; });
    const QSignalSpy tries(handler.findChild<QTimer *>(), &QTimer::timeout);
    QMessageBox box(&window);
    box.addButton(QMessageBox::Ok);
    QTimer::singleShot(0, &box, [&] {
        handler.receive(dir.path());
        handler.receive(dir.path());
        QTRY_VERIFY(tries.size() >= 2);
        QCOMPARE(prompts.questions.size(), 0);
        box.accept();
    });
    box.exec();
    QTRY_COMPARE(prompts.questions.size(), 1);           // the same project twice is one question
    QVERIFY(!handler.findChild<QTimer *>()->isActive()); // and nothing is left to ask
}

void TestStartUp::handOverDialogAsWorded()
{
    QTemporaryDir dir;
    QWidget window;
    window.show();
    DialogPrompts prompts(&window);
    QString opened;
    HandOver handler(
        &window, prompts, [&](const QString &path) { opened = path; },
        [](const QString &) { return true; });
    QTimer::singleShot(0, &window, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), QStringLiteral("Open Project"));
        QCOMPARE(box->defaultButton()->text(), QStringLiteral("This Window"));
        QVERIFY(box->button(QMessageBox::Cancel) == box->escapeButton());
        QTest::keyClick(box, Qt::Key_Return);
    });
    handler.receive(dir.path());
    QCOMPARE(opened, dir.path());
}

namespace {

/// A start in a fresh home: settings of its own and a saved project.
struct Start
{
    QTemporaryDir dir{QDir::tempPath() + QString::fromUtf8("/ivorel é XXXXXX")};
    QString settingsFile = dir.filePath(QStringLiteral("settings.ini"));
    QString project = dir.filePath(QStringLiteral("My Novel.vellum"));
    test::FakePrompts prompts;

    Start()
    {
        app::OpenProject saved;
        if (!saved.saveAsBundle(project))
            qFatal("the project cannot be saved");
        app::Settings settings(settingsFile);
        settings.set(app::settings::autoUpdateCheck, false);
        settings.set(app::settings::welcomed, true);
    }
    /// The title of the window once everything is open.
    QString titleAfter(const QStringList &arguments)
    {
        app::Settings settings(settingsFile);
        StartUp startUp(Launch::from(QStringList{QStringLiteral("ivorel")} + arguments), settings,
                        &prompts);
        const QSignalSpy done(&startUp, &StartUp::done);
        if (startUp.handOver(freshName()))
            return QStringLiteral("handed over");
        startUp.showWindow();
        return QTest::qWaitFor([&] { return !done.isEmpty(); })
                   ? startUp.window().windowTitle().section(u'[', 0, 0)
                   : QStringLiteral("not done");
    }
};

} // namespace

void TestStartUp::aRunningWindowTakesOver()
{
    Start start;
    const QString other = start.dir.filePath(QStringLiteral("Other.vellum"));
    {
        app::OpenProject saved;
        QVERIFY(saved.saveAsBundle(other));
    }
    const QString name = freshName();
    app::Settings settings(start.settingsFile);
    StartUp startUp(Launch::from({QStringLiteral("ivorel"), start.project}), settings,
                    &start.prompts);
    QVERIFY(!startUp.handOver(name));
    startUp.showWindow();
    const QSignalSpy done(&startUp, &StartUp::done);
    QTRY_COMPARE(done.size(), 1);
    startUp.window().showMinimized();

    app::Settings laterSettings(start.settingsFile);
    StartUp later(Launch::from({QStringLiteral("ivorel"), other}), laterSettings, &start.prompts);
    QVERIFY(later.handOver(name));
    QTRY_COMPARE(startUp.window().workspace().current().name(), QStringLiteral("Other"));
    QVERIFY(!startUp.window().isMinimized());
    QCOMPARE(start.prompts.questions.size(), 1);
    StartUp newWindow(
        Launch::from({QStringLiteral("ivorel"), QStringLiteral("--new-instance"), other}),
        laterSettings, &start.prompts);
    QVERIFY(!newWindow.handOver(name));
}

void TestStartUp::theEndOfTheSessionLosesNothing()
{
#ifdef Q_OS_LINUX
    Start start;
    const QString words = QStringLiteral("Last words ") + start.dir.path().right(6);
    {
        app::OpenProject project;
        project.push(std::make_unique<core::AddObjectCommand>(
            project.project(),
            std::make_unique<core::Document>(core::ContentId::create(), core::DocumentKind::Prose,
                                             QStringLiteral("A"))));
        QVERIFY(project.saveAsBundle(start.project));
    }
    {
        app::Settings settings(start.settingsFile);
        StartUp startUp(Launch::from({QStringLiteral("ivorel"), start.project}), settings,
                        &start.prompts);
        QVERIFY(!startUp.handOver(freshName()));
        startUp.showWindow();
        const QSignalSpy done(&startUp, &StartUp::done);
        QTRY_COMPARE(done.size(), 1);
        MainWindow &window = startUp.window();
        window.workspace().select(window.workspace().project().all<core::Document>()[0]->id());
        QTest::keyClicks(window.findChild<EditorTextWidget *>(), words);
        QTimer::singleShot(0, [] { std::raise(SIGTERM); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(window.workspace().current().isDirty());
    }
    QCOMPARE(start.prompts.questions, QStringList()); // nobody was there to answer
    app::Settings settings(start.settingsFile);
    QVERIFY(!settings.bytes(QStringLiteral("general/layout")).isEmpty());
    const QDir working(app::StorageLocations::standard().workingFolder());
    bool isKept = false;
    for (const QFileInfo &journal : working.entryInfoList({QStringLiteral("*.journal")})) {
        QFile file(journal.filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        if (file.readAll().contains(words.toUtf8()))
            isKept = file.remove();
    }
    QVERIFY(isKept);
#endif
}

void TestStartUp::opensWhatWasAskedFor_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<bool>("isRecent");
    QTest::addColumn<bool>("reopens");
    QTest::addColumn<bool>("opens");
    QTest::addColumn<int>("errors");
    QTest::addColumn<bool>("welcomes"); // who was never welcomed before
    QTest::newRow("given") << "project" << false << false << true << 0 << false;
    QTest::newRow("the last one") << "" << true << true << true << 0 << true;
    QTest::newRow("not the last one") << "" << true << false << false << 0 << true;
    QTest::newRow("nothing") << "" << false << true << false << 0 << true;
    QTest::newRow("given and missing") << "/no/such.vellum" << true << true << true << 1 << true;
    QTest::newRow("given and damaged, and the last one too")
        << "damaged" << true << true << false << 1 << true;
}

void TestStartUp::opensWhatWasAskedFor()
{
    QFETCH(QString, argument);
    QFETCH(bool, isRecent);
    QFETCH(bool, reopens);
    QFETCH(bool, opens);
    QFETCH(int, errors);
    QFETCH(bool, welcomes);
    Start start;
    {
        app::Settings settings(start.settingsFile);
        settings.set(app::settings::reopenLast, reopens);
        if (isRecent)
            settings.addRecentProject(start.project);
    }
    if (argument == QLatin1String("damaged")) {
        QFile file(start.project);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write("none") == 4);
    }
    if (argument == QLatin1String("project") || argument == QLatin1String("damaged"))
        argument = start.project;
    const QString title =
        start.titleAfter(argument.isEmpty() ? QStringList() : QStringList{argument});
    QCOMPARE(title == QLatin1String("My Novel"), opens);
    // One that does not load may have a backup to offer.
    QCOMPARE(start.prompts.errors.size() + start.prompts.damaged.size(), errors);
    app::Settings settings(start.settingsFile);
    const QString welcomed = QLatin1String(app::settings::welcomed.name);
    QVERIFY(settings.contains(welcomed)); // as it was
    settings.remove(welcomed);
    start.titleAfter(argument.isEmpty() ? QStringList() : QStringList{argument});
    QCOMPARE(settings.contains(welcomed), welcomes);
    // Once everything stands there, and so long before it asks the server.
    QVERIFY(!settings.contains(QLatin1String(app::settings::lastUpdateCheck.name)));
    settings.set(app::settings::autoUpdateCheck, true);
    start.titleAfter({});
    QVERIFY(settings.contains(QLatin1String(app::settings::lastUpdateCheck.name)));
}

void TestStartUp::capture_data()
{
    QTest::addColumn<QString>("project");
    QTest::addColumn<int>("errors");
    QTest::newRow("a project") << "My Novel.vellum" << 0;
    QTest::newRow("one that is not there") << "None.vellum" << 1;
    QTest::newRow("none, though there is a last one") << "" << 0;
}

void TestStartUp::capture()
{
    QFETCH(QString, project);
    QFETCH(int, errors);
    Start start;
    start.prompts.leavesErrors = true;
    const QString picture = start.dir.filePath(QStringLiteral("shot.png"));
    app::Settings settings(start.settingsFile);
    settings.remove(QLatin1String(app::settings::welcomed.name));
    settings.addRecentProject(start.project);
    QStringList arguments{QStringLiteral("ivorel"), QStringLiteral("--capture"), picture};
    if (!project.isEmpty())
        arguments.append(start.dir.filePath(project));
    StartUp startUp(Launch::from(arguments), settings, &start.prompts);
    const QString name = freshName();
    const SingleInstanceServer running(name);
    QVERIFY(!startUp.handOver(name)); // though somebody listens
    startUp.showWindow();
    QCOMPARE(QCoreApplication::exec(), 0);
    const QImage image(picture);
    QCOMPARE(image.size(), startUp.window().size());
    QCOMPARE(start.prompts.errors.size(), errors);
    QCOMPARE(startUp.window().windowTitle().startsWith(QLatin1String("My Novel")),
             project.startsWith(QLatin1String("My Novel")));
    QVERIFY(!settings.contains(QLatin1String(app::settings::welcomed.name)));
}

void TestStartUp::flags_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("withDefaultOn");
    QTest::addColumn<bool>("withDefaultOff");
    QTest::newRow("on") << "true" << true << true;
    QTest::newRow("off") << "false" << false << false;
    QTest::newRow("empty") << "" << true << false;
    QTest::newRow("damaged") << "fals" << true << false;
}

void TestStartUp::flags()
{
    QFETCH(QString, entry);
    QTemporaryDir dir;
    app::Settings settings(dir.filePath(QStringLiteral("settings.ini")));
    for (const app::SettingKey &key :
         {app::settings::backupsByThemselves, app::settings::editorTypewriter})
        settings.set(key, entry);
    QTEST(settings.flag(app::settings::backupsByThemselves), "withDefaultOn");
    QTEST(settings.flag(app::settings::editorTypewriter), "withDefaultOff");
}

void TestStartUp::recentProjects()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("settings.ini"));
    app::Settings settings(file);
    settings.addRecentProject(QString());
    settings.addRecentProject(QStringLiteral("/books\n.vellum")); // would be two when it is read
    QCOMPARE(settings.recentProjects(), QStringList());
    settings.addRecentProject(QStringLiteral("/one/"));
    settings.addRecentProject(QStringLiteral("two"));
    settings.addRecentProject(QStringLiteral("/a/../one"));
    const QString two = QDir::current().filePath(QStringLiteral("two"));
    QCOMPARE(settings.recentProjects(), (QStringList{QStringLiteral("/one"), two}));

    // Another window has opened one meanwhile.
    QVERIFY(settings.areKept());
    QFile other(file);
    QVERIFY(other.open(QIODevice::WriteOnly | QIODevice::Truncate));
    other.write("[General]\nrecentProjects=/of the other window\n");
    other.close();
    settings.addRecentProject(QStringLiteral("/three"));
    QCOMPARE(settings.recentProjects(),
             (QStringList{QStringLiteral("/three"), QStringLiteral("/of the other window")}));
}

void TestStartUp::settingsComeBack_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"general/reopenLast", "general/layout", "appearance/theme",
                            "recentProjects", "shortcuts/file.open"})
        QTest::newRow(key) << QString(QLatin1String(key));
}

void TestStartUp::settingsComeBack()
{
    QFETCH(QString, key);
    Start start;
    {
        app::Settings settings(start.settingsFile);
        settings.set(key, QStringLiteral("kept"));
    }
    // Read from another file: what is in memory of the first is not asked.
    const QString copy = start.dir.filePath(QStringLiteral("copy.ini"));
    QVERIFY(QFile::copy(start.settingsFile, copy));
    app::Settings settings(copy);
    QVERIFY(settings.contains(key));
    QCOMPARE(settings.text(key), QStringLiteral("kept"));
    settings.remove(key);
    QVERIFY(!settings.contains(key));
}

void TestStartUp::faultySettings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("blocked"); // where something else stands
    QTest::addColumn<QString>("told");    // how it begins
    const QString damaged = QStringLiteral("The settings file was damaged.");
    const QString notKept = QStringLiteral("Settings are not kept: ");
    QTest::newRow("noise") << QByteArray("\x00\xff[\x01\x02]]\n==\n%general]\nx", 20) << ""
                           << damaged;
    QTest::newRow("cut off") << QByteArray("[General]\nrecentProjects=\"/a\\nb") << ""
                             << "";
    QTest::newRow("wrong values") << QByteArray(
        "[general]\nlayout=@ByteArray(\\x1\\x2garbage)\ngeometry=@Variant(\\0)\n"
        "[appearance]\ntheme=Mauve\nlanguage=!!\n[a11y]\nuiFontScale=nan\n")
                                  << ""
                                  << "";
    QTest::newRow("the file cannot be written") << QByteArray() << "file" << notKept;
    QTest::newRow("the folder cannot be written") << QByteArray() << "folder" << notKept;
}

void TestStartUp::faultySettings()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, blocked);
    QFETCH(QString, told);
    Start start;
    const QString folder = start.dir.filePath(QStringLiteral("config"));
    const QString place = folder + QStringLiteral("/settings.ini");
    if (blocked == QLatin1String("file")) {
        QVERIFY(QDir().mkpath(place + QStringLiteral("/x")));
    } else {
        QVERIFY(blocked == QLatin1String("folder") || QDir().mkpath(folder));
        QFile file(blocked == QLatin1String("folder") ? folder : place);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    app::Settings settings(place);
    settings.set(app::settings::autoUpdateCheck, false);
    StartUp startUp(Launch::from({QStringLiteral("ivorel"), start.project}), settings,
                    &start.prompts);
    const QSignalSpy settled(&startUp, &StartUp::settled);
    startUp.showWindow();
    QTRY_COMPARE(settled.size(), 1);
    QCOMPARE(startUp.window().workspace().current().name(), QStringLiteral("My Novel"));
    QVERIFY(start.prompts.errors.isEmpty());
    QStringList notices;
    for (const QLabel *label : startUp.window().findChild<NoticeBar *>()->findChildren<QLabel *>())
        notices.append(label->text());
    QCOMPARE(notices.size(), told.isEmpty() ? 0 : 1);
    if (!told.isEmpty())
        QVERIFY2(notices.constFirst().startsWith(told), qPrintable(notices.constFirst()));
    // What could not be read is not lost.
    const bool isPutAside = told == QLatin1String("The settings file was damaged.");
    QCOMPARE(QFile::exists(place + QStringLiteral(".damaged")), isPutAside);
    // What the user sets holds all the same, and the window closes as ever.
    settings.set(app::settings::theme, QStringLiteral("Sepia"));
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(0xfa, 0xf3, 0xe0));
    QVERIFY(startUp.window().close());
}

void TestStartUp::language_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("language");
    QTest::newRow("asked for") << "es"
                               << "en"
                               << "es_ES";
    QTest::newRow("chosen") << ""
                            << "es_MX"
                            << "es_MX";
    QTest::newRow("neither") << ""
                             << "" << QLocale::system().name();
}

void TestStartUp::language()
{
    QFETCH(QString, asked);
    QFETCH(QString, chosen);
    QTemporaryDir dir;
    app::Settings settings(dir.filePath(QStringLiteral("settings.ini")));
    settings.set(app::settings::language, chosen);
    QTEST(interfaceLocale(asked, settings).name(), "language");
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QTemporaryDir sockets;
    qputenv("TMPDIR", QFile::encodeName(sockets.path()));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    TestStartUp test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"
