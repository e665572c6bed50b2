#include "app/models/journalkeeper.h"
#include "app/models/recovery.h"
#include "app/models/workspace.h"
#include "app/storage/journal.h"
#include "app/storage/projectwriter.h"
#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commands/projectcommands.h"
#include "tests/support/fingerprint.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"

#include <QtCore/QProcess>
#include <QtTest/QtTest>

#include <csignal>

using namespace vl;
using namespace vl::app;
using namespace vl::test;

namespace {

/// A program that ran on this machine and is gone.
LockHolder goneProgram()
{
    LockHolder holder = LockHolder::current();
    holder.processStart = QStringLiteral("1");
    return holder;
}

/// Opens a project in the workspace.
void open(Workspace &workspace, const QString &path)
{
    auto opened = OpenProject::open(path);
    if (!opened)
        QFAIL(qPrintable(opened.message()));
    workspace.replaceProject(*std::move(opened));
}

QStringList untitledOf(const JournalKeeper &keeper)
{
    QStringList paths;
    for (const FoundJournal &journal : keeper.foundElsewhere()) {
        if (journal.projectPath.isEmpty())
            paths.append(journal.path);
    }
    return paths;
}

/// The titles and bodies of the documents, sorted: "title=body".
QStringList texts(const Workspace &workspace)
{
    QStringList list;
    for (const core::Document *document : workspace.project().all<core::Document>())
        list.append(document->title() + u'=' + document->body());
    list.sort();
    return list;
}

} // namespace

class TestRecovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void survivesKilling_data();
    void survivesKilling();
    void mediaOfANewProjectSurvive();
    void goneAfterASave_data();
    void goneAfterASave();
    void typedText();
    void restoresEveryKind();
    void leftAloneWhileItsProgramRuns();
    void laterChangesAreKept_data();
    void laterChangesAreKept();
    void secondCrashBeforeTheFirstIsDecided_data();
    void secondCrashBeforeTheFirstIsDecided();
    void projectsThatMoved_data();
    void projectsThatMoved();
    void tellsWhatCannotBeWritten();
    void decidedWorkIsKept();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    QStringList journals() const
    {
        return QDir(m_locations.workingFolder())
            .entryList({QStringLiteral("*.journal*")}, QDir::Files);
    }
    QString onlyJournal() const { return m_locations.workingFolder() + u'/' + journals().first(); }
    core::Document &addDocument(Workspace &workspace, const QString &title);
    void writeAndCrash(const QString &project, const core::ContentId &id, const QString &body);
    int runAndKill(const QStringList &arguments);
    core::ContentId makeProject(const QString &path, const QString &body);

    std::unique_ptr<QTemporaryDir> m_folder;
    StorageLocations m_locations;
};

void TestRecovery::init()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/recóvery of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
    m_locations = {};
    m_locations.root = at(QStringLiteral("data"));
}

core::Document &TestRecovery::addDocument(Workspace &workspace, const QString &title)
{
    const auto id = core::ContentId::create();
    workspace.push<core::AddObjectCommand>(
        workspace.project(),
        std::make_unique<core::Document>(id, core::DocumentKind::Prose, title));
    return *workspace.project().find<core::Document>(id);
}

/// Makes a project of one document and gives its id.
core::ContentId TestRecovery::makeProject(const QString &path, const QString &body)
{
    Workspace workspace;
    core::Document &document = addDocument(workspace, QStringLiteral("Scene"));
    document.setBody(body);
    const core::ContentId id = document.id();
    const bool isBundle = path.endsWith(QLatin1String(".vellum"));
    const Result<> saved =
        isBundle ? workspace.current().saveAsBundle(path) : workspace.current().saveAsFolder(path);
    return saved ? id : core::ContentId();
}

/// Leaves the journal of a program that wrote this body and was cut off.
void TestRecovery::writeAndCrash(const QString &project, const core::ContentId &id,
                                 const QString &body)
{
    auto opened = OpenProject::open(project);
    QVERIFY(opened);
    core::Document &document = *(*opened)->project().find<core::Document>(id);
    document.setBody(body);
    const QString folder = (*opened)->folder();
    JournalWriter journal(
        JournalShelf(m_locations).newPath(project), {project, goneProgram()},
        [&folder](const QString &path) { return std::optional(fileBytes(folder + u'/' + path)); });
    QVERIFY(journal.write(
        {{QStringLiteral("objects/%1.json").arg(id.toString()), serializeObject(document)}}));
}

/// Lets a program type until it wrote twenty words, and kills it; the number of its last word.
int TestRecovery::runAndKill(const QStringList &arguments)
{
    int last = -1;
#ifdef IVOREL_JOURNAL_CHILD
    QProcess child;
    child.start(QStringLiteral(IVOREL_JOURNAL_CHILD), arguments);
    while (last < 20) {
        if (!child.waitForReadyRead()) {
            qWarning("%s", child.readAllStandardError().constData());
            return -1;
        }
        while (child.canReadLine())
            last = child.readLine().trimmed().toInt();
    }
    ::kill(pid_t(child.processId()), SIGKILL);
    child.waitForFinished();
    while (child.canReadLine())
        last = child.readLine().trimmed().toInt();
#endif
    return last;
}

void TestRecovery::survivesKilling_data()
{
    QTest::addColumn<QString>("project"); // empty: never saved
    QTest::addColumn<bool>("isReadOnly");
    QTest::newRow("folder") << "novel" << false;
    QTest::newRow("bundle") << "novel.vellum" << false;
    QTest::newRow("never saved") << "" << false;
    QTest::newRow("folder, to be read only") << "novel" << true;
    QTest::newRow("bundle, to be read only") << "novel.vellum" << true;
}

void TestRecovery::survivesKilling()
{
#ifdef IVOREL_JOURNAL_CHILD
    QFETCH(QString, project);
    QFETCH(bool, isReadOnly);
    const QString path = project.isEmpty() ? QString() : at(project);
    if (!path.isEmpty())
        QVERIFY(!makeProject(path, QString()).isNull());
    const FileMap before = filesUnder(m_folder->path());
    QStringList arguments{m_locations.root};
    if (!path.isEmpty())
        arguments.append(path);
    if (isReadOnly)
        arguments.append(QStringLiteral("--read-only"));
    const int last = runAndKill(arguments);
    QVERIFY(last >= 20);

    Workspace workspace;
    JournalKeeper keeper(workspace, m_locations);
    QStringList found = untitledOf(keeper);
    if (!path.isEmpty()) {
        QCOMPARE(found, QStringList());
        QCOMPARE(keeper.foundElsewhere().at(0).projectPath, path);
        open(workspace, path);
        found = keeper.found();
    }
    QCOMPARE(found.size(), 1);
    // Nothing of the user's was written to.
    for (auto it = before.begin(); it != before.end(); ++it)
        QCOMPARE(fileBytes(at(it.key())), it.value());

    const Recovery recovery = Recovery::read(found, workspace);
    QCOMPARE(recovery.files().size(), 1U);
    QVERIFY(recovery.comesBackAsItWas());
    QCOMPARE(recovery.summary(), QStringLiteral("“Scene”"));
    const qsizetype steps = workspace.history().undoCount();
    QVERIFY(recovery.restore(workspace, recovery.advisedPaths()));
    QCOMPARE(workspace.history().undoCount(), steps + 1);
    const QString body = workspace.project().all<core::Document>().front()->body();
    for (int i = 0; i <= last; ++i)
        QVERIFY2(body.contains(QStringLiteral("word%1 ").arg(i)), qPrintable(body));
    workspace.undo();
    QCOMPARE(workspace.project().size(), path.isEmpty() ? 0 : 1);

    // Undecided it is offered again, by a program that was itself cut off in between.
    Workspace again;
    QCOMPARE(JournalKeeper(again, m_locations).foundElsewhere().size(), 1U);
    keeper.settle(found);
    keeper.giveUp();
    keeper.finish();
    QCOMPARE(journals(), QStringList());
    QCOMPARE(JournalKeeper(again, m_locations).foundElsewhere().size(), 0U);
#else
    QSKIP("There is no signal that cannot be caught.");
#endif
}

void TestRecovery::mediaOfANewProjectSurvive()
{
#ifdef IVOREL_JOURNAL_CHILD
    const QString picture = at(QStringLiteral("map.png"));
    putFile(picture, "picture");
    QVERIFY(runAndKill({m_locations.root, QStringLiteral("--picture"), picture}) >= 20);
    QVERIFY(QFile::remove(picture));

    Workspace workspace;
    workspace.replaceProject(std::make_unique<OpenProject>(m_locations));
    JournalKeeper keeper(workspace, m_locations);
    const QStringList found = untitledOf(keeper);
    QCOMPARE(found.size(), 1);
    const Recovery recovery = Recovery::read(found, workspace);
    QVERIFY(Recovery::restoreMedia(found.first(), workspace.current()));
    QVERIFY(recovery.restore(workspace, recovery.advisedPaths()));
    QVERIFY(workspace.project().all<core::Document>().front()->body().contains(
        QStringLiteral("![](assets/map.png)")));
    const QString novel = at(QStringLiteral("novel"));
    QVERIFY(workspace.current().saveAsFolder(novel));
    QCOMPARE(fileBytes(novel + QStringLiteral("/assets/map.png")), QByteArray("picture"));
    // What was kept for the crash goes with the project; what was found stays for a while.
    const QString media = JournalShelf::mediaFolderOf(found.first());
    keeper.settle(found);
    QVERIFY(!QFile::exists(media));
    workspace.replaceProject(std::make_unique<OpenProject>(m_locations));
    QCOMPARE(QDir(m_locations.workingFolder()).entryList({QStringLiteral("*.files")}, QDir::Dirs),
             QStringList());
    QCOMPARE(fileBytes(JournalShelf::mediaFolderOf(keeper.shelf().kept().at(0).path)
                       + QStringLiteral("/assets/map.png")),
             QByteArray("picture"));
#else
    QSKIP("There is no signal that cannot be caught.");
#endif
}

void TestRecovery::goneAfterASave_data()
{
    QTest::addColumn<QString>("fate");
    QTest::newRow("saved") << "saved";
    QTest::newRow("undone") << "undone";
    QTest::newRow("given up") << "given up";
    QTest::newRow("another project is opened") << "replaced";
}

void TestRecovery::goneAfterASave()
{
    QFETCH(QString, fate);
    Workspace workspace;
    QVERIFY(workspace.current().saveAsFolder(at(QStringLiteral("novel"))));
    JournalKeeper keeper(workspace, m_locations);
    addDocument(workspace, QStringLiteral("One"));
    keeper.finish();
    QCOMPARE(journals().size(), 1);
    if (fate == QLatin1String("saved"))
        QVERIFY(workspace.current().save());
    else if (fate == QLatin1String("undone"))
        workspace.undo();
    else if (fate == QLatin1String("replaced"))
        workspace.replaceProject(std::make_unique<OpenProject>());
    else
        keeper.giveUp();
    keeper.finish();
    QCOMPARE(journals(), QStringList());
}

void TestRecovery::typedText()
{
    Workspace workspace;
    QVERIFY(workspace.current().saveAsFolder(at(QStringLiteral("novel"))));
    JournalKeeper keeper(workspace, m_locations);
    core::Document &document = addDocument(workspace, QStringLiteral("One"));
    workspace.push<core::SetDocumentBodyCommand>(document, QStringLiteral("a\r\nb"));
    QVERIFY(workspace.current().save());
    std::optional<PendingText> typed;
    connect(&workspace, &Workspace::peekRequested, this, [&](PendingTexts &texts) {
        if (typed)
            texts.append(*typed);
    });
    const auto written = [&] {
        keeper.finish();
        if (journals().isEmpty())
            return QString();
        const Result<Journal> read = readJournal(onlyJournal());
        const ReadContents contents = contentsOf({read->files.begin()->second.change});
        return static_cast<const core::Document &>(*contents.contents.objects.front()).body();
    };
    // What the editor does not touch keeps its bytes, whether it hands over all or what differs.
    for (const PendingText &form : {PendingText{document.id(), 3, 0, QStringLiteral(" and c")},
                                    PendingText{document.id(), 0, 0, QStringLiteral("a\nb or c")},
                                    PendingText{document.id(), 2, 1, QStringLiteral("no ")}}) {
        typed = form;
        Q_EMIT workspace.typed();
        const QString shown = QStringLiteral("a\nb");
        QCOMPARE(written().remove(u'\r'),
                 shown.first(form.head) + form.typed + shown.last(form.tail));
        QVERIFY(written().startsWith(QLatin1String("a\r\n")));
    }
    // The model knows nothing of it yet.
    QCOMPARE(document.body(), QStringLiteral("a\r\nb"));
    QVERIFY(!workspace.current().isDirty());
    typed.reset();
    Q_EMIT workspace.typed(); // taken back again
    QCOMPARE(written(), QString());
}

void TestRecovery::restoresEveryKind()
{
    // A project of every kind whose every part was changed, added or removed.
    Workspace workspace;
    QVERIFY(workspace.current().saveAsFolder(at(QStringLiteral("novel"))));
    auto keeper = std::make_unique<JournalKeeper>(workspace, m_locations);
    const std::unique_ptr<core::Project> full = fullProject();
    std::vector<FileChange> files;
    serializeProject(*full, [&](const QString &path, const QByteArray &bytes) {
        files.push_back({path, bytes});
    });
    const ProjectPrint before = fingerprint(workspace.project());
    ReadContents read = contentsOf(files);
    QCOMPARE(read.unreadable, QStringList());
    workspace.push<core::ReplaceContentsCommand>(workspace.project(), std::move(read.contents),
                                                 QStringLiteral("All"));
    const ProjectPrint after = fingerprint(workspace.project());
    QVERIFY(!(before == after));
    keeper->finish();
    const QString journal = onlyJournal();

    Workspace other;
    const Recovery recovery = Recovery::read({journal}, other);
    QCOMPARE(recovery.files().size(), files.size());
    QVERIFY(recovery.restore(other, recovery.advisedPaths()));
    QVERIFY(fingerprint(other.project()) == after);
    other.undo();
    QVERIFY(fingerprint(other.project()) == before);
}

void TestRecovery::leftAloneWhileItsProgramRuns()
{
    QProcess program;
    program.start(QStringLiteral("sleep"), {QStringLiteral("60")});
    QVERIFY(program.waitForStarted());
    LockHolder holder = LockHolder::current();
    holder.process = program.processId();
    QFile stat(QStringLiteral("/proc/%1/stat").arg(holder.process));
    QVERIFY(stat.open(QIODevice::ReadOnly));
    holder.processStart = QString::fromUtf8(stat.readAll()).section(u' ', 21, 21);
    JournalWriter journal(m_locations.workingFolder() + QStringLiteral("/untitled-1.journal"),
                          {QString(), holder}, [](const QString &) { return std::nullopt; });
    QVERIFY(journal.write({{QStringLiteral("project.json"), QByteArray("{}")}}));
    Workspace workspace;
    QCOMPARE(untitledOf(JournalKeeper(workspace, m_locations)), QStringList());
    program.kill();
    program.waitForFinished();
    QCOMPARE(untitledOf(JournalKeeper(workspace, m_locations)).size(), 1);
}

void TestRecovery::laterChangesAreKept_data()
{
    QTest::addColumn<QString>("unsaved"); // the body when the program was cut off
    QTest::addColumn<QString>("theirs");  // the body that others made of it; null: deleted
    QTest::addColumn<bool>("areTyped");   // the others' changes are the user's, before the answer
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<bool>("isPlain");
    const QString one = QStringLiteral("One.\n\nTwo.\n\nThree.");
    const QString mine = QStringLiteral("One, mine.\n\nTwo.\n\nThree.");
    const QString theirs = QStringLiteral("One.\n\nTwo.\n\nThree, theirs.");
    const QString clash = QStringLiteral("One, theirs.\n\nTwo.\n\nThree.");
    const QString both = QStringLiteral("Scene=One, mine.\n\nTwo.\n\nThree, theirs.");
    const QStringList beside{QStringLiteral("Scene (unsaved work)=") + mine,
                             QStringLiteral("Scene=") + clash};
    for (const bool typed : {false, true}) {
        const char *who = typed ? "typed before the answer" : "by others";
        QTest::addRow("nothing, %s", who)
            << mine << one << typed << QStringList{QStringLiteral("Scene=") + mine} << true;
        QTest::addRow("another place, %s", who)
            << mine << theirs << typed << QStringList{both} << false;
        QTest::addRow("the same place, %s", who) << mine << clash << typed << beside << false;
        QTest::addRow("the same change, %s", who)
            << mine << mine << typed << QStringList{QStringLiteral("Scene=") + mine} << true;
    }
    QTest::newRow("deleted by others")
        << mine << QString() << false << QStringList{QStringLiteral("Scene=") + mine} << true;
}

void TestRecovery::laterChangesAreKept()
{
    QFETCH(QString, unsaved);
    QFETCH(QString, theirs);
    QFETCH(bool, areTyped);
    QFETCH(QStringList, after);
    QFETCH(bool, isPlain);
    const QString novel = at(QStringLiteral("novel"));
    const core::ContentId id = makeProject(novel, QStringLiteral("One.\n\nTwo.\n\nThree."));
    writeAndCrash(novel, id, unsaved);
    const auto changeIt = [&](Workspace &workspace) {
        if (theirs.isNull())
            workspace.push<core::RemoveObjectCommand>(workspace.project(), id);
        else
            workspace.push<core::SetDocumentBodyCommand>(
                *workspace.project().find<core::Document>(id), theirs);
    };
    if (!areTyped) {
        Workspace others;
        open(others, novel);
        changeIt(others);
        QVERIFY(others.current().save());
    }
    Workspace workspace;
    JournalKeeper keeper(workspace, m_locations);
    open(workspace, novel);
    if (areTyped)
        changeIt(workspace);
    const QStringList before = texts(workspace);
    const Recovery recovery = Recovery::read(keeper.found(), workspace);
    QCOMPARE(recovery.comesBackAsItWas(), isPlain);
    QCOMPARE(recovery.advisedPaths().size(), qsizetype(recovery.files().size()));
    QCOMPARE(recovery.restore(workspace, recovery.advisedPaths()), !recovery.files().empty());
    QCOMPARE(texts(workspace), after);
    if (!recovery.files().empty())
        workspace.undo();
    QCOMPARE(texts(workspace), before);
}

void TestRecovery::secondCrashBeforeTheFirstIsDecided_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QStringList>("after");
    const QString mine = QStringLiteral("One, first.\n\nTwo.\n\nThree.");
    QTest::newRow("in other places")
        << mine << "One.\n\nTwo.\n\nThree, second."
        << QStringList{QStringLiteral("Scene=One, first.\n\nTwo.\n\nThree, second.")};
    QTest::newRow("in the same place")
        << mine << "One, second.\n\nTwo.\n\nThree."
        << QStringList{QStringLiteral("Scene (unsaved work)=") + mine,
                       QStringLiteral("Scene=One, second.\n\nTwo.\n\nThree.")};
    QTest::newRow("the same") << mine << mine << QStringList{QStringLiteral("Scene=") + mine};
}

void TestRecovery::secondCrashBeforeTheFirstIsDecided()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QStringList, after);
    const QString novel = at(QStringLiteral("novel"));
    const core::ContentId id = makeProject(novel, QStringLiteral("One.\n\nTwo.\n\nThree."));
    writeAndCrash(novel, id, first);
    writeAndCrash(novel, id, second);
    Workspace workspace;
    JournalKeeper keeper(workspace, m_locations);
    open(workspace, novel);
    QCOMPARE(keeper.found().size(), 2);
    const Recovery recovery = Recovery::read(keeper.found(), workspace);
    QVERIFY(recovery.restore(workspace, recovery.advisedPaths()));
    QCOMPARE(texts(workspace), after);
}

void TestRecovery::projectsThatMoved_data()
{
    QTest::addColumn<QString>("fate");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("moved") << "moved" << true;
    QTest::newRow("copied") << "copied" << false;
    QTest::newRow("deleted, and another is opened") << "other" << false;
}

void TestRecovery::projectsThatMoved()
{
    QFETCH(QString, fate);
    QFETCH(bool, isFound);
    const QString novel = at(QStringLiteral("novel"));
    const QString other = at(QStringLiteral("other"));
    const core::ContentId id = makeProject(novel, QStringLiteral("One."));
    writeAndCrash(novel, id, QStringLiteral("One, unsaved."));
    if (fate == QLatin1String("other")) {
        makeProject(other, QStringLiteral("One."));
        QVERIFY(QDir(novel).removeRecursively());
    } else if (fate == QLatin1String("moved")) {
        QVERIFY(QDir().rename(novel, other));
    } else {
        const FileMap files = filesUnder(novel);
        for (auto it = files.begin(); it != files.end(); ++it) {
            QVERIFY(QDir().mkpath(QFileInfo(other + u'/' + it.key()).path()));
            putFile(other + u'/' + it.key(), it.value());
        }
    }
    Workspace workspace;
    JournalKeeper keeper(workspace, m_locations);
    open(workspace, other);
    QCOMPARE(keeper.found().size(), isFound ? 1 : 0);
    QCOMPARE(keeper.foundElsewhere().size(), isFound ? 0U : 1U);
    if (isFound) {
        const Recovery recovery = Recovery::read(keeper.found(), workspace);
        QVERIFY(recovery.restore(workspace, recovery.advisedPaths()));
        QCOMPARE(texts(workspace), QStringList{QStringLiteral("Scene=One, unsaved.")});
    }
}

void TestRecovery::tellsWhatCannotBeWritten()
{
    Workspace workspace;
    QVERIFY(workspace.current().saveAsFolder(at(QStringLiteral("novel"))));
    putFile(m_locations.root, "no folder");
    JournalKeeper keeper(workspace, m_locations);
    const QSignalSpy behind(&keeper, &JournalKeeper::fellBehind);
    const QSignalSpy caughtUp(&keeper, &JournalKeeper::caughtUp);
    addDocument(workspace, QStringLiteral("One"));
    QVERIFY(!keeper.finish());
    addDocument(workspace, QStringLiteral("Two"));
    QVERIFY(!keeper.finish());
    QCOMPARE(behind.size(), 1); // told once
    QVERIFY(!behind.first().first().toString().isEmpty());
    QCOMPARE(caughtUp.size(), 0);
    QVERIFY(QFile::remove(m_locations.root));
    QTRY_COMPARE(caughtUp.size(), 1); // by itself
    QCOMPARE(readJournal(onlyJournal())->files.size(), 2U);

    QVERIFY(QDir(m_locations.root).removeRecursively());
    putFile(m_locations.root, "no folder");
    addDocument(workspace, QStringLiteral("Three"));
    QVERIFY(!keeper.finish());
    QCOMPARE(behind.size(), 2);
    QVERIFY(workspace.current().save()); // is safe without it
    QCOMPARE(caughtUp.size(), 2);
}

void TestRecovery::decidedWorkIsKept()
{
    const QString novel = at(QStringLiteral("novel"));
    const core::ContentId id = makeProject(novel, QStringLiteral("One."));
    writeAndCrash(novel, id, QStringLiteral("One, unsaved."));
    Workspace workspace;
    JournalKeeper keeper(workspace, m_locations);
    open(workspace, novel);
    keeper.settle(keeper.found());
    QCOMPARE(keeper.found(), QStringList());
    const std::vector<FoundJournal> kept = keeper.shelf().kept();
    QCOMPARE(kept.size(), 1U);
    QCOMPARE(kept.front().projectPath, novel);
    QVERIFY(kept.front().time.isValid());
    const Recovery recovery = Recovery::read({kept.front().path}, workspace);
    QVERIFY(recovery.restore(workspace, recovery.advisedPaths()));
    QCOMPARE(texts(workspace), QStringList{QStringLiteral("Scene=One, unsaved.")});
}

QTEST_GUILESS_MAIN(TestRecovery)
#include "tst_recovery.moc"
