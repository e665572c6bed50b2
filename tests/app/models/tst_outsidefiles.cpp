#include "tests/app/models/outsidedesk.h"

#include "app/storage/bundle.h"

#include <QtCore/QProcess>

using namespace vl;
using app::OutsideOffer;
using test::addKindRows;
using test::original;
using Desk = test::OutsideDesk;
using Kind = OutsideOffer::Kind;

class TestOutsideFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void waitsForWholeFiles();
    void clientsTemporaryNames();
    void secondVersionsOfAFile();
    void secondVersionsWithoutTheFirst();
    void renamedFiles_data();
    void renamedFiles();
    void othersGiveAFileItsName();
    void damagedFilesInABundle_data();
    void damagedFilesInABundle();
    void vanishedFilesAreNotDeletions_data();
    void vanishedFilesAreNotDeletions();
    void wholeFolderReplaced();
    void filesRewrittenInPlaceWithOldTimes();
    void versionControl_data();
    void versionControl();
};

void TestOutsideFiles::waitsForWholeFiles()
{
    Desk desk;
    const QByteArray whole =
        test::fileBytes(desk.path(0)).replace("One.", "A longer one, from afar.");
    desk.monitor->setPatience(60000);
    for (qsizetype cut = 0; cut < whole.size(); cut += 97) {
        test::putFile(desk.path(0), whole.left(cut));
        desk.monitor->lookSoon();
        QTest::qWait(30);
        QCOMPARE(desk.kind(), Kind::None);
    }
    test::putFile(desk.path(0), whole);
    QTRY_COMPARE(desk.kind(), Kind::Notice);
    QCOMPARE(desk.monitor->offer().files, 1);

    // One that stays cut is told of and never loaded; what is whole beside it is.
    desk.monitor->setPatience(200);
    test::putFile(desk.path(0), whole.left(40));
    QTRY_COMPARE(desk.kind(), Kind::Unreadable);
    QCOMPARE(desk.monitor->state().unsettled, QStringList{app::objectPath(desk.ids[0])});
    desk.monitor->load();
    QTRY_COMPARE(desk.done->size(), 1);
    QCOMPARE(desk.document(0).body(), original);
    test::putFile(desk.path(0), whole);
    QTRY_COMPARE(desk.kind(), Kind::Notice);
}

void TestOutsideFiles::clientsTemporaryNames()
{
    // Names that clients write under before they rename, and what else they leave about.
    Desk desk;
    const QString folder = desk.project().path() + QStringLiteral("/objects/");
    const QByteArray theirs = test::fileBytes(desk.path(0)).replace("One.", "Theirs.");
    for (const char *name :
         {".~half.json", "x.json.tmp", "~$x.json.part", "x.json~", ".stfolder", "Thumbs.db"})
        test::putFile(folder + QString::fromLatin1(name), theirs.left(30));
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);
    QVERIFY(QFile::remove(desk.path(0)));
    QVERIFY(QFile::rename(folder + QStringLiteral("x.json.tmp"), desk.path(0)));
    test::putFile(desk.path(0), theirs);
    QTRY_COMPARE(desk.kind(), Kind::Notice);
    QCOMPARE(desk.monitor->offer().files, 1);
    desk.monitor->load();
    QTRY_COMPARE(desk.document(0).body(), QStringLiteral("Theirs.\n\nTwo.\n\nThree.\n\nFour.\n"));
    QVERIFY(QFile::exists(folder + QStringLiteral("Thumbs.db")));
}

void TestOutsideFiles::secondVersionsOfAFile()
{
    Desk desk;
    const QString copy = desk.path(0).chopped(5) + QStringLiteral(" (conflicted copy).json");
    test::putFile(copy, test::fileBytes(desk.path(0)).replace("One.", "Theirs."));
    QTRY_COMPARE(desk.kind(), Kind::Notice);
    QCOMPARE(desk.monitor->offer().conflicts, 1);
    desk.monitor->load(); // which of the two is for the user to say
    QTRY_COMPARE(desk.review->size(), 1);
    QCOMPARE(desk.document(0).body(), original);

    std::vector<app::ReconcileEntry> entries = desk.monitor->entries();
    QCOMPARE(entries.size(), std::size_t(1));
    entries.front().takeRemote();
    desk.monitor->apply(entries);
    QTRY_COMPARE(desk.done->size(), 1);
    desk.project().finishSaving();
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Theirs.\n\nTwo.\n\nThree.\n\nFour.\n"));
    QVERIFY(!QFile::exists(copy)); // its words are in the document, and mine in a backup
    QVERIFY(desk.backups().contains("One."));
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);
}

void TestOutsideFiles::secondVersionsWithoutTheFirst()
{
    // Two files of one id, and none with its name: one after the other, each is asked about.
    Desk desk;
    const QString start = desk.path(0).chopped(5);
    const QByteArray bytes = test::fileBytes(desk.path(0));
    desk.monitor->watcher().setDelays(60000, 60000);
    QVERIFY(QFile::rename(desk.path(0), start + QStringLiteral(" (mine).json")));
    test::putFile(start + QStringLiteral(" (copy).json"), QByteArray(bytes).replace("One.", "1."));
    desk.check();
    QCOMPARE(desk.monitor->offer().conflicts, 0);
    desk.monitor->load();
    QTRY_COMPARE(desk.done->size(), 1);
    QCOMPARE(desk.document(0).body(),
             QString(original).replace(QLatin1String("One"), QLatin1String("1")));
    desk.check();
    QCOMPARE(desk.monitor->offer().conflicts, 1);
    std::vector<app::ReconcileEntry> entries = desk.monitor->entries();
    entries.front().takeLocal();
    desk.monitor->apply(entries);
    QTRY_COMPARE(desk.done->size(), 2);
    desk.project().finishSaving();
    QVERIFY(!desk.project().isDirty());
    QCOMPARE(desk.bodyOnDisk(0), desk.document(0).body()); // it opens: nothing is there twice
    QVERIFY(desk.bodyOnDisk(0).startsWith(QLatin1String("1.")));
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);
}

void TestOutsideFiles::renamedFiles_data()
{
    QTest::addColumn<bool>("isDirty");
    QTest::addColumn<bool>("isEdited"); // by whoever renamed it
    QTest::newRow("nothing else") << false << false;
    QTest::newRow("edited here") << true << false;
    QTest::newRow("edited there") << false << true;
    QTest::newRow("edited on both sides") << true << true;
}

void TestOutsideFiles::renamedFiles()
{
    QFETCH(bool, isDirty);
    QFETCH(bool, isEdited);
    Desk desk;
    const QString mine = QStringLiteral("One.\n\nTwo.\n\nThree.\n\nMine.\n");
    const QString other = desk.path(0).chopped(5) + QStringLiteral(" (1).json");
    const auto theirs = [&](const QString &body) {
        return isEdited ? QString(body).replace(QStringLiteral("One."), QStringLiteral("Theirs."))
                        : body;
    };
    // There and back again: the name is not what makes a file the same.
    for (int turn = 0; turn < 2; ++turn) {
        const QString from = turn == 0 ? desk.path(0) : other;
        const QString to = turn == 0 ? other : desk.path(0);
        const QString before = desk.document(0).body();
        if (isDirty)
            desk.write(0, turn == 0 ? mine : QString(before).replace(u'M', u'm'));
        const QString local = desk.document(0).body();
        desk.monitor->watcher().setDelays(60000, 60000);
        QByteArray bytes = test::fileBytes(from);
        if (isEdited)
            bytes.replace("One.", "Theirs.");
        test::putFile(to, bytes);
        QVERIFY(QFile::remove(from));
        desk.check();
        QVERIFY(desk.kind() != Kind::None);
        QCOMPARE(desk.monitor->offer().conflicts, 0);
        QCOMPARE(desk.monitor->offer().deletions, 0);
        desk.done->clear();
        desk.monitor->load();
        QTRY_COMPARE(desk.done->size(), 1);
        desk.project().finishSaving();
        QVERIFY(!desk.project().isDirty());
        QCOMPARE(desk.document(0).body(), theirs(local));
        QCOMPARE(desk.bodyOnDisk(0), theirs(local));
        if (isDirty) { // saving brought the name back
            QVERIFY(!QFile::exists(other) && QFile::exists(desk.path(0)));
            break;
        }
    }
    while (desk.workspace.history().canUndo())
        desk.workspace.undo();
    QCOMPARE(desk.document(0).body(), original);
    if (desk.project().isDirty())
        QVERIFY(desk.project().save());
    QCOMPARE(desk.bodyOnDisk(0), original);
}

void TestOutsideFiles::othersGiveAFileItsName()
{
    // The working copy here has the file under the name it had before.
    Desk desk(true, false);
    const QString path = desk.project().path();
    const QString folder = desk.dir.filePath(QStringLiteral("unpacked"));
    QVERIFY(app::extractBundle(path, folder));
    QVERIFY(QFile::rename(folder + u'/' + app::objectPath(desk.ids[0]),
                          folder + QStringLiteral("/objects/a scene.json")));
    QVERIFY(app::packFolder(folder, path));
    desk.reopen(path);
    desk.start();
    const QString theirs = desk.dir.filePath(QStringLiteral("theirs.vellum"));
    QVERIFY(QFile::copy(path, theirs));
    auto other = app::OpenProject::open(theirs);
    QVERIFY(other);
    (*other)->push(std::make_unique<core::SetDocumentBodyCommand>(
        *(*other)->project().find<core::Document>(desk.ids[1]), QStringLiteral("Theirs.")));
    QVERIFY((*other)->save());
    test::putFile(path, test::fileBytes(theirs));
    desk.check();
    desk.monitor->load();
    QTRY_COMPARE(desk.done->size(), 1);
    desk.write(0, QStringLiteral("Mine."));
    QVERIFY(desk.project().save());
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Mine."));
    QCOMPARE(desk.bodyOnDisk(1), QStringLiteral("Theirs."));
}

void TestOutsideFiles::damagedFilesInABundle_data()
{
    QTest::addColumn<bool>("keepsMine");
    QTest::newRow("loaded") << false;
    QTest::newRow("kept mine") << true;
}

void TestOutsideFiles::damagedFilesInABundle()
{
    // One scene in their bundle is damaged: whatever is decided about the rest, mine stays.
    QFETCH(bool, keepsMine);
    Desk desk(true);
    desk.monitor->setPatience(0);
    const QString path = desk.project().path();
    const QString folder = desk.dir.filePath(QStringLiteral("unpacked"));
    QVERIFY(app::extractBundle(path, folder));
    const QString damaged = folder + u'/' + app::objectPath(desk.ids[0]);
    const QString edited = folder + u'/' + app::objectPath(desk.ids[1]);
    test::putFile(damaged, test::fileBytes(damaged).left(50));
    test::putFile(edited, test::fileBytes(edited).replace("One.", "Theirs."));
    QVERIFY(app::packFolder(folder, path));
    QTRY_VERIFY(desk.kind() != Kind::None);
    QCOMPARE(desk.monitor->offer().files, 1);
    if (keepsMine)
        desk.monitor->keepMine();
    else
        desk.monitor->load();
    QTRY_COMPARE(desk.done->size(), 1);
    desk.project().finishSaving();
    if (keepsMine)
        QVERIFY(desk.project().save());
    QVERIFY(!desk.project().isDirty());
    QCOMPARE(desk.document(0).body(), original);
    QCOMPARE(desk.bodyOnDisk(0), original);
    QCOMPARE(desk.bodyOnDisk(1), desk.document(1).body());
    QCOMPARE(desk.bodyOnDisk(1).startsWith(QLatin1String("Theirs.")), !keepsMine);
}

void TestOutsideFiles::vanishedFilesAreNotDeletions_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::addColumn<bool>("leavesFolder");
    QTest::newRow("the folder gone") << false << false;
    QTest::newRow("an empty folder left, as of a disk that is not mounted") << false << true;
    QTest::newRow("the bundle gone") << true << false;
}

void TestOutsideFiles::vanishedFilesAreNotDeletions()
{
    QFETCH(bool, asBundle);
    QFETCH(bool, leavesFolder);
    Desk desk(asBundle);
    const QString path = desk.project().path();
    const QString away = desk.dir.filePath(QStringLiteral("away"));
    QVERIFY(QFile::rename(path, away));
    if (leavesFolder)
        QVERIFY(QDir().mkpath(path));
    QTRY_COMPARE(desk.kind(), Kind::Vanished);
    desk.write(0, QStringLiteral("Mine."));
    QVERIFY(!desk.project().save()); // no lone file is written into the void
    QVERIFY(leavesFolder ? QDir(path).isEmpty() : !QFile::exists(path));
    desk.monitor->load();
    desk.monitor->merge();
    QCOMPARE(desk.failed->size() + desk.review->size(), 2);
    QVERIFY(!desk.monitor->isBusy());
    QCOMPARE(desk.workspace.project().size(), 3);

    // It comes back, and all goes on.
    if (leavesFolder)
        QVERIFY(QDir().rmdir(path));
    QVERIFY(QFile::rename(away, path));
    desk.monitor->lookSoon();
    QTRY_COMPARE(desk.kind(), Kind::None);
    QVERIFY(desk.project().save());
    // It does not, and the user wants all of it there again.
    if (asBundle)
        QVERIFY(QFile::remove(path));
    else
        QVERIFY(QDir(path).removeRecursively());
    QTRY_COMPARE(desk.kind(), Kind::Vanished);
    desk.monitor->keepMine();
    QTRY_COMPARE(desk.done->size(), 1);
    QVERIFY(desk.project().isDirty());
    QVERIFY(desk.project().save());
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Mine."));
    QCOMPARE(desk.bodyOnDisk(2), original);
}

void TestOutsideFiles::wholeFolderReplaced()
{
    Desk desk;
    const QString path = desk.project().path();
    const test::FileMap before = test::filesUnder(path);
    desk.monitor->setPatience(60000);
    for (const char *body : {"Theirs.", "Theirs again."}) {
        test::FileMap files = before;
        for (QByteArray &bytes : files)
            bytes.replace("One.", body);
        const QString fresh = desk.dir.filePath(QStringLiteral("fresh"));
        test::putFiles(fresh, files);
        QVERIFY(QDir(path).removeRecursively());
        QTest::qWait(60); // for a moment there is nothing
        QCOMPARE(desk.kind(), Kind::None);
        QVERIFY(QFile::rename(fresh, path));
        QTRY_COMPARE(desk.kind(), Kind::Notice);
        QCOMPARE(desk.monitor->offer().files, 3);
        desk.monitor->load();
        QTRY_VERIFY(desk.document(2).body().startsWith(QString::fromLatin1(body)));
        QTRY_COMPARE(desk.kind(), Kind::None);
    }
}

void TestOutsideFiles::filesRewrittenInPlaceWithOldTimes()
{
    // Neither a folder entry, nor the size, nor the time tells of it.
    Desk desk;
    QFile file(desk.path(1));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime time = file.fileTime(QFileDevice::FileModificationTime);
    const QByteArray theirs = file.readAll().replace("One.", "Uno.");
    QVERIFY(file.seek(0) && file.write(theirs) == theirs.size() && file.flush());
    QVERIFY(file.setFileTime(time.addYears(-30), QFileDevice::FileModificationTime));
    file.close();
    QTRY_COMPARE(desk.kind(), Kind::Notice);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time.addYears(300), QFileDevice::FileModificationTime));
    file.close();
    desk.monitor->load();
    QTRY_COMPARE(desk.document(1).body(), QStringLiteral("Uno.\n\nTwo.\n\nThree.\n\nFour.\n"));
}

void TestOutsideFiles::versionControl_data()
{
    QTest::addColumn<bool>("ownDriver");
    QTest::newRow("as it comes") << false;
    QTest::newRow("with our merge driver") << true;
}

void TestOutsideFiles::versionControl()
{
    QFETCH(bool, ownDriver);
    if (QStandardPaths::findExecutable(QStringLiteral("git")).isEmpty())
        QSKIP("there is no version control here");
    Desk desk;
    const QString mine = desk.project().path();
    const QString shared = desk.dir.filePath(QStringLiteral("shared.git"));
    const QString theirs = desk.dir.filePath(QStringLiteral("theirs"));
    const auto git = [](const QString &folder, const QStringList &arguments) {
        QProcess process;
        process.setWorkingDirectory(folder);
        process.start(QStringLiteral("git"),
                      QStringList{QStringLiteral("-c"), QStringLiteral("user.name=A"),
                                  QStringLiteral("-c"), QStringLiteral("user.email=a@example.org"),
                                  QStringLiteral("-c"), QStringLiteral("init.defaultBranch=main"),
                                  QStringLiteral("-c"), QStringLiteral("pull.rebase=false")}
                          + arguments);
        process.waitForFinished();
        return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    };
    const auto words = [](const char *text) { return QString::fromLatin1(text).split(u' '); };
    QVERIFY(git(desk.dir.path(), {QStringLiteral("init"), QStringLiteral("--bare"), shared}));
    QVERIFY(git(mine, words("init")) && git(mine, words("add .")));
    QVERIFY(git(mine, words("commit -m first"))
            && git(mine, {QStringLiteral("push"), shared, QStringLiteral("main")}));
    QVERIFY(git(desk.dir.path(), {QStringLiteral("clone"), shared, theirs}));
    if (ownDriver) {
        QVERIFY(git(
            mine, {QStringLiteral("config"), QStringLiteral("merge.ivorel.driver"),
                   QStringLiteral("'" IVOREL_CLI "' merge-file --output %A --path %P %O %A %B")}));
        test::putFile(mine + QStringLiteral("/.git/info/attributes"), "*.json merge=ivorel\n");
    }
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);

    // The co-author works on two scenes in her clone and pushes.
    {
        auto open = app::OpenProject::open(theirs);
        QVERIFY(open);
        core::Project &project = (*open)->project();
        (*open)->push(std::make_unique<core::SetDocumentBodyCommand>(
            *project.find<core::Document>(desk.ids[1]), QStringLiteral("Hers.")));
        (*open)->push(std::make_unique<core::SetDocumentTitleCommand>(
            *project.find<core::Document>(desk.ids[0]), QStringLiteral("Her title")));
        QVERIFY((*open)->save());
        QVERIFY(git(theirs, words("commit -am hers")) && git(theirs, words("push origin main")));
    }
    // I save and commit one thing, leave another unsaved in the window, and pull.
    desk.workspace.push<core::SetDocumentPointOfViewCommand>(desk.document(0),
                                                             QStringLiteral("Anna"));
    QVERIFY(desk.project().save());
    QVERIFY(git(mine, words("commit -am mine")));
    desk.write(2, QStringLiteral("Unsaved."));
    QVERIFY(git(mine, {QStringLiteral("pull"), QStringLiteral("--no-edit"), shared,
                       QStringLiteral("main")}));
    QTRY_COMPARE(desk.kind(), Kind::Merge);
    QTRY_COMPARE(desk.monitor->offer().files, 2);
    desk.monitor->merge();
    QTRY_COMPARE(desk.done->size(), 1);
    desk.project().finishSaving();
    QVERIFY(!desk.project().isDirty());
    QCOMPARE(desk.document(0).title(), QStringLiteral("Her title"));
    QCOMPARE(desk.document(0).pointOfView(), QStringLiteral("Anna"));
    QCOMPARE(desk.document(1).body(), QStringLiteral("Hers."));
    QCOMPARE(desk.bodyOnDisk(2), QStringLiteral("Unsaved."));

    // A merge that the tool itself leaves with markers in a file is waited for, never loaded.
    {
        auto open = app::OpenProject::open(theirs);
        QVERIFY(open);
        (*open)->push(std::make_unique<core::SetDocumentBodyCommand>(
            *(*open)->project().find<core::Document>(desk.ids[2]), QStringLiteral("Her third.")));
        QVERIFY((*open)->save());
        QVERIFY(git(theirs, words("commit -am third")) && git(theirs, words("push origin main")));
    }
    QVERIFY(git(mine, words("commit -am unsaved")));
    QVERIFY(!git(mine, {QStringLiteral("pull"), QStringLiteral("--no-edit"), shared,
                        QStringLiteral("main")}));
    QVERIFY(test::fileBytes(desk.path(2)).contains("<<<<<<<"));
    QTRY_COMPARE(desk.kind(), Kind::Unreadable);
    QCOMPARE(desk.document(2).body(), QStringLiteral("Unsaved."));
    QVERIFY(git(mine, words("checkout --theirs .")));
    QTRY_COMPARE(desk.kind(), Kind::Notice);
    desk.monitor->load();
    QTRY_COMPARE(desk.document(2).body(), QStringLiteral("Her third."));
    QVERIFY(!desk.project().isDirty());
}

QTEST_GUILESS_MAIN(TestOutsideFiles)
#include "tst_outsidefiles.moc"
