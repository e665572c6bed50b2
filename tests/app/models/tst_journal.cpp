#include "app/models/journalkeeper.h"
#include "app/models/recovery.h"
#include "app/models/workspace.h"
#include "app/storage/journal.h"
#include "app/storage/projectkey.h"
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

/// The changes of a journal, one a blank: "path=bytes", or "path-" for one that goes.
QString changesIn(const Journal &journal)
{
    QStringList texts;
    for (const auto &[path, file] : journal.files)
        texts.append(path
                     + (file.change.bytes ? u'=' + QString::fromUtf8(*file.change.bytes)
                                          : QStringLiteral("-")));
    return texts.join(u' ');
}

FileChange change(const char *path, const char *bytes)
{
    return {QString::fromLatin1(path), bytes ? std::optional(QByteArray(bytes)) : std::nullopt};
}

} // namespace

class TestJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writtenAndRead_data();
    void writtenAndRead();
    void tornAnywhere();
    void everyByteWrong();
    void staysSmall();
    void knowsWhatItGoesOnFrom_data();
    void knowsWhatItGoesOnFrom();
    void survivesKilling_data();
    void survivesKilling();
    void goneAfterASave_data();
    void goneAfterASave();
    void typedText();
    void restoresEveryKind();
    void leftAloneWhileItsProgramRuns();
    void newerFilesAreNotAdvised();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    JournalWriter writer(const FileMap &base = {})
    {
        return {at(QStringLiteral("x.journal")),
                {QStringLiteral("/a/novel"), LockHolder::current()},
                [base](const QString &path) {
                    return base.contains(path) ? std::optional(base.value(path)) : std::nullopt;
                }};
    }
    QStringList journals() const
    {
        return QDir(m_locations.workingFolder())
            .entryList({QStringLiteral("*.journal*")}, QDir::Files);
    }
    core::Document &addDocument(Workspace &workspace, const QString &title);

    std::unique_ptr<QTemporaryDir> m_folder;
    StorageLocations m_locations;
};

void TestJournal::init()
{
    QStandardPaths::setTestModeEnabled(true);
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/jóurnal of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
    m_locations.root = at(QStringLiteral("data"));
}

core::Document &TestJournal::addDocument(Workspace &workspace, const QString &title)
{
    const auto id = core::ContentId::create();
    workspace.push<core::AddObjectCommand>(
        workspace.project(),
        std::make_unique<core::Document>(id, core::DocumentKind::Prose, title));
    return *workspace.project().find<core::Document>(id);
}

void TestJournal::writtenAndRead_data()
{
    using Pieces = QList<std::vector<FileChange>>;
    QTest::addColumn<Pieces>("pieces");
    QTest::addColumn<QString>("read");
    QTest::newRow("nothing") << Pieces{{}} << "(none)";
    QTest::newRow("one") << Pieces{{change("a", "text")}} << "a=text";
    QTest::newRow("grows") << Pieces{{change("a", "text")}, {change("a", "text and more")}}
                           << "a=text and more";
    QTest::newRow("in the middle")
        << Pieces{{change("a", "one two three")}, {change("a", "one 2 three")}} << "a=one 2 three";
    QTest::newRow("repetition") << Pieces{{change("a", "aaaa")},
                                          {change("a", "aaaaaa")},
                                          {change("a", "aaa")}}
                                << "a=aaa";
    QTest::newRow("to nothing and back")
        << Pieces{{change("a", "x")}, {change("a", "")}, {change("a", "y")}} << "a=y";
    QTest::newRow("gone") << Pieces{{change("a", "x"), change("b", "y")}, {change("a", nullptr)}}
                          << "a- b=y";
    QTest::newRow("gone and back")
        << Pieces{{change("a", nullptr)}, {change("a", "again")}} << "a=again";
    QTest::newRow("the same again") << Pieces{{change("a", "x")}, {change("a", "x")}} << "a=x";
}

void TestJournal::writtenAndRead()
{
    using Pieces = QList<std::vector<FileChange>>;
    QFETCH(Pieces, pieces);
    QFETCH(QString, read);
    JournalWriter journal = writer();
    for (const auto &piece : pieces)
        QVERIFY(journal.write(piece));
    const Result<Journal> result = readJournal(journal.path());
    QCOMPARE(result ? changesIn(*result) : QStringLiteral("(none)"), read);
    if (result) {
        QCOMPARE(result->header.projectPath, QStringLiteral("/a/novel"));
        QVERIFY(!result->isTorn);
    }
    journal.clear();
    QVERIFY(!QFile::exists(journal.path()));
    QVERIFY(journal.write({change("c", "after")}));
    QCOMPARE(changesIn(*readJournal(journal.path())), QStringLiteral("c=after"));
}

void TestJournal::tornAnywhere()
{
    JournalWriter journal = writer();
    QList<qsizetype> ends; // of the pieces
    for (const char *text : {"one", "one two", "two"}) {
        QVERIFY(journal.write({change("a", text), change("b", text)}));
        ends.append(fileBytes(journal.path()).size());
    }
    const QByteArray whole = fileBytes(journal.path());
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const std::optional<Journal> read = parseJournal(whole.first(size));
        QString expected;
        if (size >= ends.at(1))
            expected = QStringLiteral("a=one two b=one two");
        else if (size >= ends.at(0))
            expected = QStringLiteral("a=one b=one");
        QCOMPARE(read ? changesIn(*read) : QString(), expected);
        if (read)
            QCOMPARE(read->isTorn, !read->files.empty() && !ends.contains(size));
        if (read && read->files.empty())
            return; // the head alone
    }
}

void TestJournal::everyByteWrong()
{
    JournalWriter journal = writer();
    QVERIFY(journal.write({change("a", "one")}));
    QVERIFY(journal.write({change("a", "one two")}));
    const QByteArray whole = fileBytes(journal.path());
    for (qsizetype i = 0; i < whole.size(); ++i) {
        QByteArray wrong = whole;
        wrong[i] = char(wrong.at(i) ^ 0x20);
        const std::optional<Journal> read = parseJournal(wrong);
        const QString changes = read ? changesIn(*read) : QString();
        QVERIFY(changes.isEmpty() || changes == QLatin1String("a=one"));
    }
}

void TestJournal::staysSmall()
{
    JournalWriter journal = writer();
    QByteArray text(20000, 'x');
    for (int i = 0; i < 5000; ++i) {
        text[i] = 'y';
        QVERIFY(
            journal.write({{QStringLiteral("a"), text}, {QStringLiteral("b%1").arg(i % 3), text}}));
    }
    QVERIFY(QFileInfo(journal.path()).size() < 20'000'000);
    const Result<Journal> read = readJournal(journal.path());
    QCOMPARE(*read->files.at(QStringLiteral("a")).change.bytes, text);
    QCOMPARE(namesIn(m_folder->path()).size(), 1);
}

void TestJournal::knowsWhatItGoesOnFrom_data()
{
    QTest::addColumn<QString>("present"); // null: there is no file
    QTest::addColumn<bool>("goesOn");
    QTest::newRow("as before") << "base" << true;
    QTest::newRow("saved in between") << "first" << true;
    QTest::newRow("as the journal ends") << "second" << true;
    QTest::newRow("newer") << "third" << false;
    QTest::newRow("removed") << QString() << false;
}

void TestJournal::knowsWhatItGoesOnFrom()
{
    QFETCH(QString, present);
    QFETCH(bool, goesOn);
    JournalWriter journal = writer({{QStringLiteral("a"), "base"}});
    QVERIFY(journal.write({change("a", "first"), change("new", "x")}));
    QVERIFY(journal.write({change("a", "second")}));
    const Result<Journal> read = readJournal(journal.path());
    const auto bytes = present.isNull() ? std::nullopt : std::optional(present.toUtf8());
    QCOMPARE(read->files.at(QStringLiteral("a")).goesOnFrom(bytes), goesOn);
    QVERIFY(read->files.at(QStringLiteral("new")).goesOnFrom(std::nullopt));
}

void TestJournal::survivesKilling_data()
{
    QTest::addColumn<QString>("project"); // empty: never saved
    QTest::newRow("folder") << "novel";
    QTest::newRow("bundle") << "novel.vellum";
    QTest::newRow("never saved") << "";
}

void TestJournal::survivesKilling()
{
#ifdef IVOREL_JOURNAL_CHILD
    QFETCH(QString, project);
    const QString path = project.isEmpty() ? QString() : at(project);
    if (!path.isEmpty()) {
        Workspace workspace;
        addDocument(workspace, QStringLiteral("Scene"));
        QVERIFY(project.contains(u'.') ? workspace.current().saveAsBundle(path)
                                       : workspace.current().saveAsFolder(path));
    }
    const FileMap before = filesUnder(m_folder->path());
    QProcess child;
    QStringList arguments{m_locations.root};
    if (!path.isEmpty())
        arguments.append(path);
    child.start(QStringLiteral(IVOREL_JOURNAL_CHILD), arguments);
    int last = -1;
    while (last < 20) {
        QVERIFY2(child.waitForReadyRead(), child.readAllStandardError().constData());
        while (child.canReadLine())
            last = child.readLine().trimmed().toInt();
    }
    ::kill(pid_t(child.processId()), SIGKILL);
    child.waitForFinished();
    while (child.canReadLine())
        last = child.readLine().trimmed().toInt();

    Workspace workspace;
    JournalKeeper keeper(workspace, m_locations);
    QStringList found = keeper.foundUntitled();
    if (!path.isEmpty()) {
        auto opened = OpenProject::open(path);
        QVERIFY(opened);
        workspace.replaceProject(*std::move(opened));
        found = keeper.found();
    }
    QCOMPARE(found.size(), 1);
    // Nothing of the user's was written to.
    for (auto it = before.begin(); it != before.end(); ++it)
        QCOMPARE(fileBytes(at(it.key())), it.value());

    const Recovery recovery = Recovery::read(found, workspace);
    QCOMPARE(recovery.files().size(), 1U);
    QCOMPARE(recovery.advisedPaths().size(), 1);
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
    {
        Workspace again;
        JournalKeeper other(again, m_locations);
        if (path.isEmpty())
            QCOMPARE(other.foundUntitled(), found);
    }
    path.isEmpty() ? keeper.removeFoundUntitled() : keeper.removeFound();
    keeper.giveUp();
    keeper.finish();
    QCOMPARE(journals(), QStringList());
#else
    QSKIP("There is no signal that cannot be caught.");
#endif
}

void TestJournal::goneAfterASave_data()
{
    QTest::addColumn<QString>("fate");
    QTest::newRow("saved") << "saved";
    QTest::newRow("undone") << "undone";
    QTest::newRow("given up") << "given up";
    QTest::newRow("another project is opened") << "replaced";
}

void TestJournal::goneAfterASave()
{
    QFETCH(QString, fate);
    Workspace workspace;
    QVERIFY(workspace.current().saveAsFolder(at(QStringLiteral("novel"))));
    JournalKeeper keeper(workspace, m_locations);
    addDocument(workspace, QStringLiteral("One"));
    keeper.finish();
    QCOMPARE(journals().size(), 1);
    QVERIFY(journals().first().startsWith(projectKey(at(QStringLiteral("novel")))));
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

void TestJournal::typedText()
{
    Workspace workspace;
    QVERIFY(workspace.current().saveAsFolder(at(QStringLiteral("novel"))));
    JournalKeeper keeper(workspace, m_locations);
    core::Document &document = addDocument(workspace, QStringLiteral("One"));
    workspace.push<core::SetDocumentBodyCommand>(document, QStringLiteral("a\r\nb"));
    QVERIFY(workspace.current().save());
    QString typed = QStringLiteral("a\nb and c");
    connect(&workspace, &Workspace::peekRequested, this, [&](PendingTexts &texts) {
        if (!typed.isNull())
            texts.append({document.id(), typed});
    });
    const auto written = [&] {
        keeper.finish();
        if (journals().isEmpty())
            return QString();
        const Result<Journal> read =
            readJournal(m_locations.workingFolder() + u'/' + journals().first());
        const ReadContents contents = contentsOf({read->files.begin()->second.change});
        return static_cast<const core::Document &>(*contents.contents.objects.front()).body();
    };
    Q_EMIT workspace.typed();
    // What the editor does not touch keeps its bytes; the model knows nothing of it yet.
    QCOMPARE(written(), QStringLiteral("a\r\nb and c"));
    QCOMPARE(document.body(), QStringLiteral("a\r\nb"));
    QVERIFY(!workspace.current().isDirty());
    typed = QString();
    Q_EMIT workspace.typed(); // taken back again
    QCOMPARE(written(), QString());
}

void TestJournal::restoresEveryKind()
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
    const QString journal = m_locations.workingFolder() + u'/' + journals().first();

    Workspace other;
    const Recovery recovery = Recovery::read({journal}, other);
    QCOMPARE(recovery.files().size(), files.size());
    QVERIFY(recovery.restore(other, recovery.advisedPaths()));
    QVERIFY(fingerprint(other.project()) == after);
    other.undo();
    QVERIFY(fingerprint(other.project()) == before);
}

void TestJournal::leftAloneWhileItsProgramRuns()
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
    QVERIFY(journal.write({change("project.json", "{}")}));
    Workspace workspace;
    QCOMPARE(JournalKeeper(workspace, m_locations).foundUntitled(), QStringList());
    program.kill();
    program.waitForFinished();
    QCOMPARE(JournalKeeper(workspace, m_locations).foundUntitled().size(), 1);
}

void TestJournal::newerFilesAreNotAdvised()
{
    const QString folder = at(QStringLiteral("novel"));
    Workspace workspace;
    core::Document &document = addDocument(workspace, QStringLiteral("One"));
    QVERIFY(workspace.current().saveAsFolder(folder));
    JournalKeeper keeper(workspace, m_locations);
    workspace.push<core::SetDocumentBodyCommand>(document, QStringLiteral("here"));
    keeper.finish();
    const QString journal = m_locations.workingFolder() + u'/' + journals().first();

    // Meanwhile the file came from another machine.
    document.setBody(QStringLiteral("there"));
    const QString path = QStringLiteral("/objects/%1.json").arg(document.id().toString());
    putFile(folder + path, serializeObject(document));
    Workspace other;
    auto opened = OpenProject::open(folder);
    QVERIFY(opened);
    other.replaceProject(*std::move(opened));
    const Recovery recovery = Recovery::read({journal}, other);
    QCOMPARE(recovery.files().size(), 1U);
    QVERIFY(recovery.files().front().changedElsewhere);
    QCOMPARE(recovery.advisedPaths(), QStringList());
    QVERIFY(recovery.files().front().before.contains(QStringLiteral("there")));
    QVERIFY(recovery.files().front().after.contains(QStringLiteral("here")));
}

QTEST_GUILESS_MAIN(TestJournal)
#include "tst_journal.moc"
