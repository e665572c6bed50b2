#include "app/models/outsidemonitor.h"
#include "app/models/workspace.h"
#include "app/storage/bundle.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectwriter.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commands/projectcommands.h"
#include "core/content/media.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"

#include <QtTest/QtTest>

using namespace vl;
using app::OutsideOffer;
using Kind = OutsideOffer::Kind;

class TestOutside : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ownSavesAreNoNews_data();
    void ownSavesAreNoNews();
    void noticesAndLoads_data();
    void noticesAndLoads();
    void mergesWithUnsavedEdits_data();
    void mergesWithUnsavedEdits();
    void conflictsWaitForTheUser_data();
    void conflictsWaitForTheUser();
    void keepsMine_data();
    void keepsMine();
    void waitsForWholeFiles();
    void clientsTemporaryNames();
    void secondVersionsOfAFile();
    void renamedFiles_data();
    void renamedFiles();
    void damagedFilesInABundle_data();
    void damagedFilesInABundle();
    void savingOverTheirsKeepsABackup_data();
    void savingOverTheirsKeepsABackup();
    void vanishedFilesAreNotDeletions_data();
    void vanishedFilesAreNotDeletions();
    void wholeFolderReplaced();
    void filesRewrittenInPlaceWithOldTimes();
    void typedWordsTakePart();
    void failuresChangeNothing();
    void media();
    void versionControl_data();
    void versionControl();
};

namespace {

/// A project with three scenes in a folder or bundle, open, and followed by a monitor.
struct Desk
{
    explicit Desk(bool asBundle = false, bool startsMonitor = true)
    {
        locations.root = dir.filePath(QStringLiteral("data"));
        app::OpenProject made;
        for (const core::ContentId &id : ids) {
            auto document = std::make_unique<core::Document>(id, core::DocumentKind::Prose,
                                                             QStringLiteral("Scene"));
            document->setBody(QStringLiteral("One.\n\nTwo.\n\nThree.\n\nFour.\n"));
            document->setSynopsis(QStringLiteral("Short."));
            made.push(
                std::make_unique<core::AddObjectCommand>(made.project(), std::move(document)));
        }
        const QString path =
            dir.filePath(asBundle ? QStringLiteral("Növel.vellum") : QStringLiteral("Növel"));
        const app::Result<> saved = asBundle ? made.saveAsBundle(path) : made.saveAsFolder(path);
        if (!saved)
            qFatal("%s", qPrintable(saved.message()));
        reopen(path);
        if (startsMonitor)
            start();
    }
    void reopen(const QString &path)
    {
        auto opened = app::OpenProject::open(path);
        if (!opened)
            qFatal("%s", qPrintable(opened.message()));
        workspace.replaceProject(*std::move(opened));
    }
    void start()
    {
        monitor = std::make_unique<app::OutsideMonitor>(workspace, locations);
        monitor->watcher().setDelays(20, 50);
        monitor->setPatience(300);
        offers = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::offerChanged);
        nothing = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::nothingFound);
        done = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::done);
        failed = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::failed);
        review = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::needsReview);
        media = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::mediaChanged);
        check();
    }
    app::OpenProject &project() { return workspace.current(); }
    core::Document &document(int i) { return *workspace.project().find<core::Document>(ids[i]); }
    void write(int i, const QString &body)
    {
        workspace.push<core::SetDocumentBodyCommand>(document(i), body);
    }
    QString path(int i) const
    {
        return workspace.current().path() + u'/' + app::objectPath(ids[i]);
    }
    Kind kind() const { return monitor->offer().kind; }
    /// Looks, and waits for the answer.
    void check()
    {
        const qsizetype before = nothing->size() + offers->size();
        monitor->check();
        QTRY_VERIFY_WITH_TIMEOUT(nothing->size() + offers->size() > before, 5000);
    }
    /// Others edit the document: they open the project on their own and save it.
    void others(const std::function<void(app::OpenProject &)> &edit)
    {
        auto theirs = app::OpenProject::open(workspace.current().path());
        if (!theirs)
            qFatal("%s", qPrintable(theirs.message()));
        edit(**theirs);
        const app::Result<> saved = (*theirs)->save();
        if (!saved)
            qFatal("%s", qPrintable(saved.message()));
    }
    void othersWrite(int i, const QString &body)
    {
        others([&](app::OpenProject &theirs) {
            theirs.push(std::make_unique<core::SetDocumentBodyCommand>(
                *theirs.project().find<core::Document>(ids[i]), body));
        });
    }
    QString bodyOnDisk(int i) const
    {
        const auto opened = app::OpenProject::open(workspace.current().path());
        if (!opened)
            return opened.message();
        const auto *document = (*opened)->project().find<core::Document>(ids[i]);
        return document ? document->body() : QStringLiteral("(none)");
    }
    /// All backups' bytes.
    QByteArray backups() const
    {
        QByteArray bytes;
        for (const QByteArray &file : test::filesUnder(locations.backupFolder()))
            bytes += file;
        return bytes;
    }

    QTemporaryDir dir{QDir::tempPath() + QStringLiteral("/ivorel öutside-XXXXXX")};
    app::StorageLocations locations;
    const core::ContentId ids[3] = {test::numberedId(1), test::numberedId(2), test::numberedId(3)};
    app::Workspace workspace;
    std::unique_ptr<app::OutsideMonitor> monitor;
    std::unique_ptr<QSignalSpy> offers, nothing, done, failed, review, media;
};

const QString original = QStringLiteral("One.\n\nTwo.\n\nThree.\n\nFour.\n");

void addKindRows()
{
    QTest::addColumn<bool>("asBundle");
    QTest::newRow("folder") << false;
    QTest::newRow("bundle") << true;
}

} // namespace

void TestOutside::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestOutside::ownSavesAreNoNews_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::addColumn<int>("saves");
    QTest::newRow("folder") << false << 1000;
    QTest::newRow("bundle") << true << 200;
}

void TestOutside::ownSavesAreNoNews()
{
    QFETCH(bool, asBundle);
    QFETCH(int, saves);
    Desk desk(asBundle);
    desk.monitor->watcher().setDelays(1, 20); // so that looks fall into saves as often as can be
    desk.monitor->setPatience(0);
    for (int i = 0; i < saves; ++i) {
        desk.write(i % 3, QStringLiteral("Text %1").arg(i));
        if (i % 10 == 0)
            desk.workspace.undo();
        if (i % 50 == 7)
            desk.workspace.push<core::RemoveObjectCommand>(desk.workspace.project(), desk.ids[2]),
                desk.workspace.undo();
        desk.project().saveInBackground();
        if (i % 2 == 0)
            desk.monitor->lookSoon();
        QCoreApplication::processEvents();
        if (i % 5 == 0)
            desk.project().finishSaving();
    }
    desk.project().finishSaving();
    QTest::qWait(100);
    desk.check();
    QCOMPARE(desk.offers->size(), 0);
    QCOMPARE(desk.kind(), Kind::None);
    QVERIFY(desk.nothing->size() >= 2);
}

void TestOutside::noticesAndLoads_data()
{
    addKindRows();
}

void TestOutside::noticesAndLoads()
{
    QFETCH(bool, asBundle);
    Desk desk(asBundle);
    desk.write(1, QStringLiteral("Mine, saved."));
    QVERIFY(desk.project().save());
    const core::ContentId added = test::numberedId(9);
    desk.others([&](app::OpenProject &theirs) {
        core::Project &project = theirs.project();
        theirs.push(std::make_unique<core::SetDocumentBodyCommand>(
            *project.find<core::Document>(desk.ids[0]), QStringLiteral("Theirs.")));
        theirs.push(std::make_unique<core::RemoveObjectCommand>(project, desk.ids[2]));
        theirs.push(std::make_unique<core::AddObjectCommand>(
            project, std::make_unique<core::Document>(added, core::DocumentKind::Note,
                                                      QStringLiteral("New"))));
        theirs.push(std::make_unique<core::SetAudiencesCommand>(
            project, QStringList{QStringLiteral("Players")}));
    });
    // It is noticed without being asked for.
    QTRY_COMPARE(desk.offers->size(), 1);
    QCOMPARE(desk.kind(), asBundle ? Kind::WholeProject : Kind::Notice);
    QCOMPARE(desk.monitor->offer().text,
             asBundle
                 ? QStringLiteral("The project changed outside Ivorel since you opened it.")
                 : QStringLiteral("4 project file(s) changed outside Ivorel since you opened it."));
    QCOMPARE(desk.document(0).body(), original); // nothing is loaded unasked

    desk.monitor->load();
    QTRY_COMPARE(desk.done->size(), 1);
    QCOMPARE(desk.done->last().first().toString(),
             QStringLiteral("Loaded the on-disk version of the project."));
    QCOMPARE(desk.document(0).body(), QStringLiteral("Theirs."));
    QCOMPARE(desk.document(1).body(), QStringLiteral("Mine, saved."));
    QVERIFY(!desk.workspace.project().contains(desk.ids[2]));
    QVERIFY(desk.workspace.project().contains(added));
    QCOMPARE(desk.workspace.project().audiences(), QStringList{QStringLiteral("Players")});
    QVERIFY(!desk.project().isDirty());
    QVERIFY(desk.backups().contains("One."));
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);

    // One undo brings back what was there, and a save of it takes their changes back too.
    desk.workspace.undo();
    QVERIFY(desk.project().isDirty());
    QCOMPARE(desk.document(0).body(), original);
    QVERIFY(desk.project().save());
    QCOMPARE(desk.bodyOnDisk(0), original);
    QCOMPARE(desk.bodyOnDisk(2), original);
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);
    desk.workspace.redo();
    QVERIFY(desk.project().isDirty());
    QVERIFY(desk.project().save());
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Theirs."));
    QCOMPARE(desk.bodyOnDisk(2), QStringLiteral("(none)"));
}

void TestOutside::mergesWithUnsavedEdits_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::addColumn<int>("mine");
    QTest::addColumn<QString>("myBody");
    QTest::addColumn<int>("theirs");
    QTest::addColumn<QString>("theirBody");
    QTest::addColumn<QString>("mergedBody"); // of the document that I wrote in
    for (const bool asBundle : {false, true}) {
        const char *where = asBundle ? "bundle" : "folder";
        QTest::addRow("two scenes, %s", where) << asBundle << 0 << "Mine." << 1 << "Theirs."
                                               << "Mine.";
        QTest::addRow("two paragraphs of one scene, %s", where)
            << asBundle << 0 << "One.\n\nTwo.\n\nThree.\n\nMine.\n"
            << 0 << "Theirs.\n\nTwo.\n\nThree.\n\nFour.\n"
            << "Theirs.\n\nTwo.\n\nThree.\n\nMine.\n";
        QTest::addRow("the same, %s", where) << asBundle << 0 << "Same." << 0 << "Same."
                                             << "Same.";
    }
}

void TestOutside::mergesWithUnsavedEdits()
{
    QFETCH(bool, asBundle);
    QFETCH(int, mine);
    QFETCH(QString, myBody);
    QFETCH(int, theirs);
    QFETCH(QString, theirBody);
    QFETCH(QString, mergedBody);
    Desk desk(asBundle);
    desk.write(mine, myBody);
    desk.othersWrite(theirs, theirBody);
    QTRY_COMPARE(desk.kind(), Kind::Merge);
    QCOMPARE(desk.monitor->offer().text,
             QStringLiteral("1 file(s) changed outside Ivorel and can be merged with your unsaved "
                            "edits here. Merge and reload now? Your current project is backed up "
                            "first."));
    QCOMPARE(desk.monitor->offer().conflicts, 0);
    desk.monitor->merge();
    QTRY_COMPARE(desk.done->size(), 1);
    desk.project().finishSaving();
    QVERIFY(!desk.project().isDirty());
    QCOMPARE(desk.document(mine).body(), mergedBody);
    QCOMPARE(desk.bodyOnDisk(mine), mergedBody);
    if (mine != theirs)
        QCOMPARE(desk.bodyOnDisk(theirs), theirBody);
    QVERIFY(desk.backups().contains(myBody.left(4).toUtf8()));
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);
    // Undone step by step it is what I had, and dirty all the way, for the disk holds the merge.
    while (desk.workspace.history().canUndo()) {
        desk.workspace.undo();
        QVERIFY(desk.project().isDirty());
    }
    QCOMPARE(desk.document(mine).body(), original);
}

void TestOutside::conflictsWaitForTheUser_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("result");
    for (const bool asBundle : {false, true}) {
        const char *where = asBundle ? "bundle" : "folder";
        QTest::addRow("mine, %s", where) << asBundle << "mine"
                                         << "Mine.";
        QTest::addRow("theirs, %s", where) << asBundle << "theirs"
                                           << "Theirs.";
        QTest::addRow("by hand, %s", where) << asBundle << "hand"
                                            << "Mine. Theirs.";
    }
}

void TestOutside::conflictsWaitForTheUser()
{
    QFETCH(bool, asBundle);
    QFETCH(QString, choice);
    QFETCH(QString, result);
    Desk desk(asBundle);
    desk.write(0, QStringLiteral("Mine."));
    desk.othersWrite(0, QStringLiteral("Theirs."));
    QTRY_COMPARE(desk.kind(), Kind::Merge);
    QCOMPARE(desk.monitor->offer().conflicts, 1);
    desk.monitor->merge();
    QTRY_COMPARE(desk.review->size(), 1);
    QCOMPARE(desk.document(0).body(), QStringLiteral("Mine."));
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Theirs.")); // neither written nor loaded
    // A save by the timer does not decide it either.
    QVERIFY(!desk.project().save());
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Theirs."));

    std::vector<app::ReconcileEntry> entries = desk.monitor->entries();
    QCOMPARE(entries.size(), std::size_t(1));
    desk.monitor->apply(entries);
    QTRY_COMPARE(desk.failed->size(), 1);
    QCOMPARE(desk.failed->last().first().toString(),
             QStringLiteral("the reconcile has conflicts to resolve first"));
    app::ReconcileEntry &entry = entries.front();
    if (choice == QLatin1String("mine"))
        entry.takeLocal();
    else if (choice == QLatin1String("theirs"))
        entry.takeRemote();
    else
        entry.takeText(QString(*entry.localText)
                           .replace(QStringLiteral("Mine."), QStringLiteral("Mine. Theirs.")));
    desk.monitor->apply(entries);
    QTRY_COMPARE(desk.done->size(), 1);
    desk.project().finishSaving();
    QCOMPARE(desk.document(0).body(), result);
    QCOMPARE(desk.bodyOnDisk(0), result);
    QVERIFY(!desk.project().isDirty());
    // What was not chosen is in a backup.
    QVERIFY(desk.backups().contains("Mine."));
    QVERIFY(choice == QLatin1String("theirs") || desk.backups().contains("Theirs."));
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);
}

void TestOutside::keepsMine_data()
{
    addKindRows();
}

void TestOutside::keepsMine()
{
    QFETCH(bool, asBundle);
    Desk desk(asBundle);
    const core::ContentId added = test::numberedId(9);
    desk.others([&](app::OpenProject &theirs) {
        core::Project &project = theirs.project();
        theirs.push(std::make_unique<core::SetDocumentBodyCommand>(
            *project.find<core::Document>(desk.ids[0]), QStringLiteral("Theirs.")));
        theirs.push(std::make_unique<core::RemoveObjectCommand>(project, desk.ids[1]));
        theirs.push(std::make_unique<core::AddObjectCommand>(
            project, std::make_unique<core::Document>(added, core::DocumentKind::Note,
                                                      QStringLiteral("New note"))));
    });
    QTRY_VERIFY(desk.kind() != Kind::None);
    desk.monitor->keepMine();
    QTRY_COMPARE(desk.done->size(), 1);
    QCOMPARE(desk.done->last().first().toString(),
             QStringLiteral("Keeping your version — your next save will overwrite the on-disk "
                            "changes."));
    QVERIFY(desk.project().isDirty());
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Theirs."));
    QVERIFY(desk.backups().contains("Theirs."));
    QVERIFY(desk.backups().contains("New note"));
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);
    QVERIFY(desk.project().save());
    for (const int i : {0, 1, 2})
        QCOMPARE(desk.bodyOnDisk(i), original);
    const auto opened = app::OpenProject::open(desk.project().path());
    QVERIFY(opened && !(*opened)->project().contains(added));
}

void TestOutside::waitsForWholeFiles()
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

void TestOutside::clientsTemporaryNames()
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

void TestOutside::secondVersionsOfAFile()
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

void TestOutside::renamedFiles_data()
{
    QTest::addColumn<bool>("isDirty");
    QTest::addColumn<bool>("isEdited"); // by whoever renamed it
    QTest::newRow("nothing else") << false << false;
    QTest::newRow("edited here") << true << false;
    QTest::newRow("edited there") << false << true;
    QTest::newRow("edited on both sides") << true << true;
}

void TestOutside::renamedFiles()
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

void TestOutside::damagedFilesInABundle_data()
{
    QTest::addColumn<bool>("keepsMine");
    QTest::newRow("loaded") << false;
    QTest::newRow("kept mine") << true;
}

void TestOutside::damagedFilesInABundle()
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

void TestOutside::savingOverTheirsKeepsABackup_data()
{
    addKindRows();
}

void TestOutside::savingOverTheirsKeepsABackup()
{
    QFETCH(bool, asBundle);
    Desk desk(asBundle, false);
    desk.locations = app::StorageLocations::standard();
    desk.write(0, QStringLiteral("Mine."));
    const QByteArray mark = QUuid::createUuid().toByteArray();
    desk.othersWrite(0, QString::fromUtf8(mark));
    QVERIFY(desk.project().meetsOutsideChanges());
    QVERIFY(!desk.project().save());
    QVERIFY(!desk.backups().contains(mark));
    QVERIFY(desk.project().save(app::OutsideChanges::Overwrite));
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Mine."));
    QVERIFY(desk.backups().contains(mark));
}

void TestOutside::vanishedFilesAreNotDeletions_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::addColumn<bool>("leavesFolder");
    QTest::newRow("the folder gone") << false << false;
    QTest::newRow("an empty folder left, as of a disk that is not mounted") << false << true;
    QTest::newRow("the bundle gone") << true << false;
}

void TestOutside::vanishedFilesAreNotDeletions()
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

void TestOutside::wholeFolderReplaced()
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

void TestOutside::filesRewrittenInPlaceWithOldTimes()
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

void TestOutside::typedWordsTakePart()
{
    // What is still in a field is handed in before the merge looks at the model.
    Desk desk;
    desk.monitor->setPatience(60000);
    desk.write(0, QStringLiteral("Mine."));
    desk.othersWrite(1, QStringLiteral("Theirs."));
    QTRY_COMPARE(desk.kind(), Kind::Merge);
    int flushes = 0;
    connect(&desk.workspace, &app::Workspace::flushRequested, &desk.workspace, [&] {
        if (++flushes == 1)
            desk.write(0, QStringLiteral("Mine, and more."));
    });
    desk.monitor->merge();
    QTRY_COMPARE(desk.done->size(), 1);
    desk.project().finishSaving();
    QVERIFY(flushes > 0);
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Mine, and more."));
    QCOMPARE(desk.bodyOnDisk(1), QStringLiteral("Theirs."));

    // Words that come in while the model takes over what others wrote are unsaved, not lost.
    desk.othersWrite(2, QStringLiteral("Theirs too."));
    QTRY_COMPARE(desk.kind(), Kind::Notice);
    bool isFirst = true;
    connect(&desk.project(), &app::OpenProject::changed, &desk.workspace, [&] {
        if (std::exchange(isFirst, false))
            desk.write(1, QStringLiteral("Typed meanwhile."));
    });
    desk.monitor->load();
    QTRY_COMPARE(desk.done->size(), 2);
    desk.project().finishSaving();
    if (desk.project().isDirty())
        QVERIFY(desk.project().save());
    QCOMPARE(desk.bodyOnDisk(1), QStringLiteral("Typed meanwhile."));
}

void TestOutside::failuresChangeNothing()
{
    Desk desk;
    desk.write(0, QStringLiteral("Mine."));
    desk.othersWrite(1, QStringLiteral("Theirs."));
    QTRY_COMPARE(desk.kind(), Kind::Merge);
    // A file stands where the backups belong.
    test::putFile(desk.locations.backupFolder(), "in the way");
    const qsizetype steps = desk.workspace.history().undoCount();
    desk.monitor->merge();
    QTRY_COMPARE(desk.failed->size(), 1);
    QCOMPARE(desk.workspace.history().undoCount(), steps);
    QCOMPARE(desk.document(1).body(), original);
    QCOMPARE(desk.kind(), Kind::Merge);
    QVERIFY(QFile::remove(desk.locations.backupFolder()));
    // They write again between the offer and the answer: nobody has seen that yet.
    desk.monitor->watcher().setDelays(60000, 60000);
    desk.othersWrite(2, QStringLiteral("Theirs too."));
    desk.monitor->merge();
    QTRY_COMPARE(desk.failed->size(), 2);
    QCOMPARE(desk.document(1).body(), original);
    desk.check();
    QCOMPARE(desk.monitor->offer().files, 2);
    // The save after the merge fails: the merge stays in the window, unsaved.
    const QString blocked = desk.path(0);
    QVERIFY(QFile::rename(blocked, blocked + u'x')
            && QDir().mkpath(blocked + QStringLiteral("/y")));
    desk.check();
    QVERIFY(QDir(blocked).removeRecursively() && QFile::rename(blocked + u'x', blocked));
    desk.check();
    desk.monitor->merge();
    QTRY_COMPARE(desk.done->size(), 1);
    desk.project().finishSaving();
    QCOMPARE(desk.bodyOnDisk(0), QStringLiteral("Mine."));
    QCOMPARE(desk.bodyOnDisk(2), QStringLiteral("Theirs too."));
}

void TestOutside::media()
{
    Desk desk(false, false);
    const QString assets = desk.project().path() + QStringLiteral("/assets/");
    test::putFile(assets + QStringLiteral("map.png"), "first");
    const core::ContentId id = test::numberedId(5);
    desk.workspace.push<core::AddObjectCommand>(
        desk.workspace.project(), std::make_unique<core::Media>(id, QStringLiteral("image"),
                                                                QStringLiteral("assets/map.png")));
    QVERIFY(desk.project().save());
    desk.start();
    QCOMPARE(desk.media->size(), 0);
    // Touched is not changed.
    QFile picture(assets + QStringLiteral("map.png"));
    QVERIFY(picture.open(QIODevice::ReadWrite) && picture.seek(0) && picture.write("first") == 5);
    picture.close();
    // What the window itself brings in is no news.
    test::putFile(assets + QStringLiteral("own.png"), "mine");
    desk.workspace.push<core::AddObjectCommand>(
        desk.workspace.project(),
        std::make_unique<core::Media>(test::numberedId(6), QStringLiteral("image"),
                                      QStringLiteral("assets/own.png")));
    QVERIFY(desk.project().save());
    desk.check();
    QCOMPARE(desk.media->size(), 0);

    test::putFile(assets + QStringLiteral("map.png"), "other");
    test::putFile(assets + QStringLiteral("new.png"), "new");
    QTRY_VERIFY(!desk.media->isEmpty());
    QTRY_COMPARE(desk.media->last().first().toInt(), 2);
    QCOMPARE(desk.kind(), Kind::None); // told apart from the project's own files
    QSignalSpy changed(&desk.workspace, &app::Workspace::changed);
    desk.monitor->reloadMedia();
    QCOMPARE(changed.size(), 1);
    QVERIFY(changed.first().first().value<core::ChangeSet>().objects().contains(id));
    QVERIFY(!desk.project().isDirty());
}

void TestOutside::versionControl_data()
{
    QTest::addColumn<bool>("ownDriver");
    QTest::newRow("as it comes") << false;
    QTest::newRow("with our merge driver") << true;
}

void TestOutside::versionControl()
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

QTEST_GUILESS_MAIN(TestOutside)
#include "tst_outside.moc"
