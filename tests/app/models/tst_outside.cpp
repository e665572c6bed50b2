#include "tests/app/models/outsidedesk.h"

#include "app/storage/bundle.h"
#include "core/commands/projectcommands.h"
#include "core/content/media.h"

using namespace vl;
using app::OutsideOffer;
using test::addKindRows;
using test::original;
using Desk = test::OutsideDesk;
using Kind = OutsideOffer::Kind;

class TestOutside : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
    void savingOverTheirsKeepsABackup_data();
    void savingOverTheirsKeepsABackup();
    void whatIsLeftUndecidedIsKept_data();
    void whatIsLeftUndecidedIsKept();
    void typedWordsTakePart();
    void failuresChangeNothing();
    void putOffWhenOpened();
    void media();
    void mediaInABundle_data();
    void mediaInABundle();
};

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

void TestOutside::whatIsLeftUndecidedIsKept_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::addColumn<bool>("isClosed"); // or another project is opened
    QTest::newRow("folder, closed") << false << true;
    QTest::newRow("folder, another") << false << false;
    QTest::newRow("bundle, closed") << true << true;
    QTest::newRow("bundle, another") << true << false;
}

/// A client that puts an older version back takes away what was saved.
void TestOutside::whatIsLeftUndecidedIsKept()
{
    QFETCH(bool, asBundle);
    QFETCH(bool, isClosed);
    Desk desk(asBundle);
    desk.write(0, QStringLiteral("Saved by me."));
    QVERIFY(desk.project().save());
    desk.othersWrite(0, original);
    desk.check();
    QVERIFY(desk.kind() != Kind::None);
    QVERIFY(!desk.backups().contains("Saved by me."));
    if (isClosed)
        desk.monitor.reset();
    else
        desk.workspace.replaceProject(std::make_unique<app::OpenProject>());
    QVERIFY(desk.backups().contains("Saved by me."));
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

void TestOutside::putOffWhenOpened()
{
    Desk desk;
    desk.monitor->watcher().setOpeningDelay(300);
    desk.reopen(desk.project().path());
    desk.othersWrite(1, QStringLiteral("Theirs."));
    desk.monitor->lookSoon(); // does not make the first look the only one that fails to come
    QTRY_COMPARE(desk.kind(), Kind::Notice);
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
    QVERIFY(!desk.monitor->hasChangedMedia());

    // What comes back as it was shown last is no news either.
    QVERIFY(QFile::remove(assets + QStringLiteral("map.png")));
    QTRY_COMPARE(desk.media->last().first().toInt(), 1);
    test::putFile(assets + QStringLiteral("map.png"), "other");
    QTRY_COMPARE(desk.media->last().first().toInt(), 0);
    QVERIFY(!desk.monitor->hasChangedMedia());
}

void TestOutside::mediaInABundle_data()
{
    QTest::addColumn<bool>("isReplaced"); // or only taken out
    QTest::addColumn<bool>("isDirty");
    QTest::newRow("replaced") << true << false;
    QTest::newRow("replaced, unsaved edits here") << true << true;
    QTest::newRow("taken out") << false << false;
    QTest::newRow("taken out, unsaved edits here") << false << true;
}

// Others wrote the file anew, and none of its texts is another: nothing is asked, nothing stands in
// the way of the next save, and what they brought is not written over.
void TestOutside::mediaInABundle()
{
    QFETCH(bool, isReplaced);
    QFETCH(bool, isDirty);
    Desk desk(true, false);
    const QString map = QStringLiteral("/assets/map.png");
    test::putFile(desk.project().folder() + map, "first");
    desk.workspace.push<core::AddObjectCommand>(
        desk.workspace.project(),
        std::make_unique<core::Media>(test::numberedId(5), QStringLiteral("image"), map.mid(1)));
    QVERIFY(desk.project().save());
    desk.start();
    if (isDirty)
        desk.write(0, QStringLiteral("Mine."));
    const QString path = desk.project().path();
    const QString unpacked = desk.dir.filePath(QStringLiteral("unpacked"));
    QVERIFY(app::extractBundle(path, unpacked));
    if (isReplaced)
        test::putFile(unpacked + map, "other");
    else
        QVERIFY(QFile::remove(unpacked + map));
    QVERIFY(app::packFolder(unpacked, path));
    QTRY_VERIFY(!desk.project().meetsOutsideChanges());
    QTRY_COMPARE(desk.media->size(), isReplaced ? 1 : 0);
    QCOMPARE(desk.kind(), Kind::None);
    QCOMPARE(desk.failed->size(), 0);
    QCOMPARE(desk.project().isDirty(), isDirty);
    const QByteArray wanted = isReplaced ? "other" : "first";
    QCOMPARE(test::fileBytes(desk.project().folder() + map), wanted);
    QCOMPARE(desk.backups().contains("first"), isReplaced);

    desk.monitor->reloadMedia();
    desk.write(1, QStringLiteral("Later."));
    QVERIFY(desk.project().save());
    desk.check();
    QCOMPARE(desk.kind(), Kind::None);
    const auto again = app::OpenProject::openReadOnly(path);
    QVERIFY(again);
    QCOMPARE(test::fileBytes((*again)->folder() + map), wanted);
    QCOMPARE(desk.bodyOnDisk(0), isDirty ? QStringLiteral("Mine.") : original);
}

QTEST_GUILESS_MAIN(TestOutside)
#include "tst_outside.moc"
