#include "app/base/settings.h"
#include "app/models/projectflows.h"
#include "app/models/workspace.h"
#include "app/storage/bundle.h"
#include "app/storage/lock.h"
#include "core/commands/objectcommands.h"
#include "core/content/document.h"
#include "tests/support/fakeprompts.h"
#include "tests/support/folders.h"

#include <QtCore/QProcess>
#include <QtTest/QtTest>

#include <csignal>

using namespace vl;
using namespace vl::app;
using namespace vl::test;

class TestLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void states_data();
    void states();
    void processes();
    void foreignTexts_data();
    void foreignTexts();
    void isNoPartOfTheProject();
    void placeThatCannotBeWritten();
    void copiedAlong();
    void takenOver();
    void linksAreNamesOfOneFile();
    void flow_data();
    void flow();
    void followsTheProject();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    LockHolder other() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestLock::init()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/löck of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
}

/// A program on another machine.
LockHolder TestLock::other() const
{
    LockHolder holder = LockHolder::current();
    holder.machine = QStringLiteral("elsewhere");
    holder.host = QStringLiteral("elsewhere");
    return holder;
}

void TestLock::states_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("state");
    const auto row = [](const char *name, const char *field, const char *value, HolderState state) {
        QTest::newRow(name) << QString::fromLatin1(field) << QString::fromLatin1(value)
                            << int(state);
    };
    row("this program", "", "", HolderState::Running);
    row("under another name of the machine", "host", "renamed", HolderState::Running);
    row("another machine", "machine", "other", HolderState::Unknown);
    row("the machine was started anew", "boot", "other", HolderState::Gone);
    row("in a container", "space", "pid:[1]", HolderState::Unknown);
    row("the number was given to another process", "processStart", "1", HolderState::Gone);
}

void TestLock::states()
{
    QFETCH(QString, field);
    QFETCH(QString, value);
    QFETCH(int, state);
    const LockHolder self = LockHolder::current();
    QJsonObject json = QJsonDocument::fromJson(self.toJson()).object();
    if (!field.isEmpty()) {
        QVERIFY(json.contains(field));
        json.insert(field, value);
    }
    // Whatever the clocks of the two say.
    for (const char *since : {"1970-01-01T00:00:00.000Z", "2199-01-01T00:00:00.000Z", "never"}) {
        json.insert(QStringLiteral("since"), QString::fromLatin1(since));
        const auto holder = LockHolder::fromJson(QJsonDocument(json).toJson());
        QVERIFY(holder);
        QCOMPARE(int(stateOf(*holder, self)), state);
    }
    LockHolder nameless = self;
    nameless.machine.clear();
    QCOMPARE(int(stateOf(nameless, nameless)), int(HolderState::Running));
}

void TestLock::processes()
{
    const QString path = at(QStringLiteral("Nóvel.vellum"));
    putFile(path, "a bundle");
    QProcess program;
    program.start(QStringLiteral("sleep"), {QStringLiteral("60")});
    QVERIFY(program.waitForStarted());
    LockHolder holder = LockHolder::current();
    holder.process = program.processId();
    QFile stat(QStringLiteral("/proc/%1/stat").arg(holder.process));
    QVERIFY(stat.open(QIODevice::ReadOnly));
    holder.processStart = QString::fromUtf8(stat.readAll()).section(u' ', 21, 21);
    putFile(ProjectLock::filePath(path), holder.toJson());

    const LockAttempt held = ProjectLock::take(path, LockHolder::current());
    QVERIFY(!held.lock);
    QCOMPARE(held.holder->process, program.processId());
    // Gone as soon as it has ended, before anybody has asked how.
    ::kill(pid_t(program.processId()), SIGKILL);
    QTRY_VERIFY(stateOf(holder, LockHolder::current()) == HolderState::Gone);
    const LockAttempt taken = ProjectLock::take(path, LockHolder::current());
    QVERIFY(taken.lock);
    QVERIFY(!taken.holder);
    // Nothing but the new lock stays of it.
    QCOMPARE(namesIn(m_folder->path()).size(), 2);
}

void TestLock::foreignTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << LockHolder::current().toJson().chopped(20);
    QTest::newRow("other JSON") << QByteArray("[1]");
    QTest::newRow("large") << QByteArray(1 << 20, 'x');
    QTest::newRow("no process") << QByteArray("{\"token\": \"x\", \"process\": -5}");
}

void TestLock::foreignTexts()
{
    QFETCH(QByteArray, text);
    const QString path = at(QStringLiteral("Novel.vellum"));
    putFile(ProjectLock::filePath(path), text);
    const LockAttempt attempt = ProjectLock::take(path, LockHolder::current());
    QVERIFY(!attempt.lock);
    QVERIFY(attempt.holder);
    QCOMPARE(int(attempt.holderState), int(HolderState::Unknown));
    QCOMPARE(fileBytes(ProjectLock::filePath(path)), text);
}

void TestLock::isNoPartOfTheProject()
{
    const QString folder = at(QStringLiteral("novel"));
    putFiles(folder, {{QStringLiteral("project.json"), "{}"}});
    const QByteArray before = *packFolder(folder);
    const LockAttempt attempt = ProjectLock::take(folder, LockHolder::current());
    QVERIFY(attempt.lock);
    QCOMPARE(namesIn(folder).size(), 2);
    QCOMPARE(*packFolder(folder), before);
}

void TestLock::placeThatCannotBeWritten()
{
    // A file in the folder's place: nothing can be made below it.
    putFile(at(QStringLiteral("place")), "");
    const LockAttempt attempt =
        ProjectLock::take(at(QStringLiteral("place/Novel.vellum")), LockHolder::current());
    QVERIFY(!attempt.lock);
    QVERIFY(!attempt.holder);
}

/// Version control and file managers take the lock along to where nobody has the project open.
void TestLock::copiedAlong()
{
    const QString folder = at(QStringLiteral("novel"));
    const QString copy = at(QStringLiteral("clone"));
    putFile(folder + QStringLiteral("/project.json"), "{}");
    const LockAttempt first = ProjectLock::take(folder, LockHolder::current());
    QVERIFY(first.lock);
    putFiles(copy, filesUnder(folder));
    QVERIFY(QFileInfo::exists(ProjectLock::filePath(copy)));
    QVERIFY(QFile::link(folder, at(QStringLiteral("link"))));
    {
        const LockAttempt second = ProjectLock::take(copy, LockHolder::current());
        QVERIFY(second.lock);
        QVERIFY(!second.holder);
    }
    QVERIFY(!QFileInfo::exists(ProjectLock::filePath(copy)));
    // Another way to the same place is no other place.
    QVERIFY(ProjectLock::take(at(QStringLiteral("link")), LockHolder::current()).holder);
    QVERIFY(ProjectLock::take(folder, LockHolder::current()).holder);
}

void TestLock::takenOver()
{
    const QString path = at(QStringLiteral("Novel.vellum"));
    putFile(ProjectLock::filePath(path), other().toJson());
    LockAttempt ours = ProjectLock::takeOver(path, LockHolder::current());
    QVERIFY(ours.lock);
    // Somebody takes it from us: releasing ours leaves theirs.
    putFile(ProjectLock::filePath(path), other().toJson());
    ours.lock.reset();
    QVERIFY(QFile::exists(ProjectLock::filePath(path)));
}

void TestLock::linksAreNamesOfOneFile()
{
    const QString path = at(QStringLiteral("Nóvel.vellum"));
    const QString link = at(QStringLiteral("elsewhere/Link.vellum"));
    putFile(path, "a bundle");
    QVERIFY(QDir().mkpath(at(QStringLiteral("elsewhere"))));
    QVERIFY(QFile::link(path, link));
    for (const auto &[first, second] : {std::pair(path, link), std::pair(link, path)}) {
        const LockAttempt attempt = ProjectLock::take(first, LockHolder::current());
        QVERIFY(attempt.lock);
        QVERIFY(attempt.lock->isFor(second));
        QVERIFY(ProjectLock::take(second, LockHolder::current()).holder);
    }
}

void TestLock::flow_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::addColumn<Prompts::Locked>("answer");
    QTest::addColumn<QString>("opened"); // the name of the project; empty for none
    QTest::addColumn<bool>("savesThere");
    for (const bool asBundle : {false, true}) {
        const char *form = asBundle ? "bundle" : "folder";
        QTest::addRow("%s, cancel", form) << asBundle << Prompts::Locked::Cancel << "" << false;
        QTest::addRow("%s, copy", form)
            << asBundle << Prompts::Locked::OpenCopy << "chosen" << false;
        QTest::addRow("%s, read-only", form)
            << asBundle << Prompts::Locked::ReadOnly << "novel (read-only)" << false;
        QTest::addRow("%s, anyway", form)
            << asBundle << Prompts::Locked::OpenAnyway << "novel" << true;
    }
}

void TestLock::flow()
{
    QFETCH(bool, asBundle);
    QFETCH(Prompts::Locked, answer);
    QFETCH(QString, opened);
    QFETCH(bool, savesThere);
    const QString path =
        asBundle ? at(QStringLiteral("novel.vellum")) : at(QStringLiteral("novel"));
    const QString folder = at(QStringLiteral("novel"));
    putFiles(folder, {{QStringLiteral("project.json"), "{}"},
                      {QStringLiteral("assets/map.png"), "picture"}});
    if (asBundle)
        QVERIFY(packFolder(folder, path));
    putFile(ProjectLock::filePath(path), other().toJson());
    const FileMap before = filesUnder(m_folder->path());

    Settings settings(at(QStringLiteral("settings.ini")));
    FakePrompts prompts;
    Workspace workspace;
    ProjectFlows flows(workspace, prompts, settings);
    prompts.lockedAnswer = answer;
    prompts.path = at(QStringLiteral("chosen.vellum"));
    QCOMPARE(flows.open(path), !opened.isEmpty());
    QCOMPARE(prompts.holders.size(), 1);
    QCOMPARE(prompts.holders.first().host, QStringLiteral("elsewhere"));
    if (opened.isEmpty()) {
        QVERIFY(!workspace.current().hasLocation());
        return;
    }
    QCOMPARE(workspace.current().name(), opened);
    QCOMPARE(fileBytes(workspace.current().folder() + QStringLiteral("/assets/map.png")),
             QByteArray("picture"));
    workspace.push<core::AddObjectCommand>(
        workspace.project(),
        std::make_unique<core::Document>(core::ContentId::create(), core::DocumentKind::Prose,
                                         QStringLiteral("New")));
    QVERIFY(flows.save());
    QCOMPARE(prompts.errors, QStringList());
    QCOMPARE(workspace.current().path(), savesThere ? path : prompts.path);
    QVERIFY(!workspace.current().isReadOnly());
    if (!savesThere) {
        for (auto it = before.begin(); it != before.end(); ++it)
            QCOMPARE(fileBytes(at(it.key())), it.value());
    }
}

void TestLock::followsTheProject()
{
    Settings settings(at(QStringLiteral("settings.ini")));
    FakePrompts prompts;
    const QString first = at(QStringLiteral("first.vellum"));
    const QString second = at(QStringLiteral("second"));
    {
        Workspace workspace;
        ProjectFlows flows(workspace, prompts, settings);
        prompts.path = first;
        QVERIFY(flows.saveAs());
        QVERIFY(QFile::exists(ProjectLock::filePath(first)));
        QVERIFY(flows.open(first)); // again: its own lock is no obstacle
        prompts.path = second;
        QVERIFY(flows.saveAsFolder());
        QVERIFY(!QFile::exists(ProjectLock::filePath(first)));
        QVERIFY(QFile::exists(ProjectLock::filePath(second)));

        // A second window of the same program.
        Workspace otherWorkspace;
        ProjectFlows otherFlows(otherWorkspace, prompts, settings);
        QVERIFY(!otherFlows.open(second));
        QCOMPARE(prompts.holders.size(), 1);
        QCOMPARE(prompts.holders.first().process, QCoreApplication::applicationPid());
        prompts.path = second;
        QVERIFY(!otherFlows.saveAsFolder());
        QCOMPARE(prompts.errors.size(), 1);

        // One that does not load leaves the lock of the open one, and none of its own.
        putFile(at(QStringLiteral("broken.vellum")), "no archive");
        QVERIFY(!flows.open(at(QStringLiteral("broken.vellum"))));
        QVERIFY(QFile::exists(ProjectLock::filePath(second)));
        QVERIFY(!QFile::exists(ProjectLock::filePath(at(QStringLiteral("broken.vellum")))));
        QVERIFY(flows.newProject());
        QVERIFY(!QFile::exists(ProjectLock::filePath(second)));
        QVERIFY(flows.open(first));
    }
    QVERIFY(!QFile::exists(ProjectLock::filePath(first)));
}

QTEST_GUILESS_MAIN(TestLock)
#include "tst_lock.moc"
