#include "app/models/backupkeeper.h"
#include "app/models/backupoperations.h"
#include "app/models/backupsmodel.h"
#include "app/models/textdifference.h"
#include "app/models/workspace.h"
#include "app/storage/autobackups.h"
#include "app/storage/folderbackup.h"
#include "app/storage/lock.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"

#include <QtCore/QProcess>
#include <QtTest/QtTest>

#include <cstdio>
#ifdef IVOREL_FAULT_SHIM
#include <dlfcn.h>
#endif

using namespace vl;
using namespace vl::app;
using namespace vl::test;

Q_DECLARE_METATYPE(vl::app::BackupReason)

class TestBackups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void thinsByAge_data();
    void thinsByAge();
    void clockThatJumps_data();
    void clockThatJumps();
    void namesAreMatchedWhole();
    void leavesTheOthersAlone();
    void keepsNothingThatCannotBeReadBack_data();
    void keepsNothingThatCannotBeReadBack();
    void mediaThatNoFileCanHold();
    void folderWithoutWhatIsHidden();
    void listsAndCounts();
    void madeWhenOpenedSavedAndClosed_data();
    void madeWhenOpenedSavedAndClosed();
    void saysNothingOfWhatIsGone();
    void putOffWhenOpened_data();
    void putOffWhenOpened();
    void dailyWhateverTheClock_data();
    void dailyWhateverTheClock();
    void triesAgainWhatFailed_data();
    void triesAgainWhatFailed();
    void madeOnlyWhereWanted();
    void fullDisk_data();
    void fullDisk();
    void byHandHoldsWhatIsNotSaved();
    void restoresADocument_data();
    void restoresADocument();
    void differences_data();
    void differences();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    AutoBackups backups(const QString &path) const { return {path, m_locations, &summarizeBackup}; }
    /// Puts a state of the project there that differs from the one before.
    void change(const QString &folder)
    {
        putFile(folder + QStringLiteral("/notes.txt"), QByteArray::number(++m_changes));
    }
    BackupInfo made(const QString &folder, BackupReason reason = BackupReason::Opened);
    QStringList daysKept(const QString &folder) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    StorageLocations m_locations;
    QDateTime m_now;
    qint64 m_uptime = 0; ///< milliseconds
    int m_changes = 0;
};

void TestBackups::init()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/bäckups of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
    m_now = QDateTime(QDate(2024, 5, 6), QTime(12, 0), Qt::UTC);
    m_locations.root = at(QStringLiteral("data"));
    m_locations.now = [this] { return m_now; };
    m_locations.uptime = [this] { return m_uptime; };
    m_locations.chosenAutoBackups.clear();
}

BackupInfo TestBackups::made(const QString &folder, BackupReason reason)
{
    change(folder);
    const Result<std::optional<BackupInfo>> result = backups(folder).add({folder, {}}, reason);
    if (!result || !*result)
        qFatal("%s", qPrintable(result ? QStringLiteral("unchanged") : result.message()));
    return **result;
}

QStringList TestBackups::daysKept(const QString &folder) const
{
    QStringList days;
    for (const BackupInfo &backup : backups(folder).list())
        days.append(backup.time.toString(QStringLiteral("MM-dd HH")));
    return days;
}

void TestBackups::thinsByAge_data()
{
    QTest::addColumn<int>("hours"); // between two backups
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("kept"); // month, day and hour;

    QTest::newRow("all within the last five")
        << 1 << 5 << "05-06 16, 05-06 15, 05-06 14, 05-06 13, 05-06 12";
    QTest::newRow("many in one day")
        << 1 << 9 << "05-06 20, 05-06 19, 05-06 18, 05-06 17, 05-06 16";
    // 4 a day for 4 days: the last five, then the last one of each day.
    QTest::newRow("some days")
        << 6 << 16
        << "05-10 06, 05-10 00, 05-09 18, 05-09 12, 05-09 06, 05-08 18, 05-07 18, 05-06 18";
    // One a day for 40 days: a week of days, then a week of each.
    QTest::newRow("weeks") << 24 << 40
                           << "06-14 12, 06-13 12, 06-12 12, 06-11 12, 06-10 12, 06-09 12, 06-08 "
                              "12, 06-02 12, 05-26 12, 05-19 12, 05-12 12";
    // One in ten days for 200: the last five, and those within two months.
    QTest::newRow("months")
        << 240 << 20 << "11-12 12, 11-02 12, 10-23 12, 10-13 12, 10-03 12, 09-23 12, 09-13 12";
}

void TestBackups::thinsByAge()
{
    QFETCH(int, hours);
    QFETCH(int, count);
    QFETCH(QString, kept);
    const QString folder = at(QStringLiteral("novel"));
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            m_now = m_now.addSecs(qint64(hours) * 3600);
        made(folder);
    }
    QCOMPARE(daysKept(folder).join(QStringLiteral(", ")), kept);
    // Each backup has its summary beside it, and nothing else stays.
    QCOMPARE(namesIn(backups(folder).folder()).size(), 2 * daysKept(folder).size());
}

void TestBackups::clockThatJumps_data()
{
    QTest::addColumn<QDateTime>("wrong");
    QTest::addColumn<int>("withWrongClock");
    QTest::addColumn<int>("lost"); // of the seven that stood before
    const QDateTime past(QDate(1975, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime future(QDate(2099, 1, 1), QTime(0, 0), Qt::UTC);
    QTest::newRow("years back") << past << 3 << 0;
    QTest::newRow("years ahead for one backup") << future << 1 << 2;
    QTest::newRow("no time at all") << QDateTime() << 3 << 0;
}

void TestBackups::clockThatJumps()
{
    QFETCH(QDateTime, wrong);
    QFETCH(int, withWrongClock);
    QFETCH(int, lost);
    const QString folder = at(QStringLiteral("novel"));
    QStringList before;
    for (int i = 0; i < 7; ++i) {
        before.append(made(folder).path);
        m_now = m_now.addDays(1);
    }
    const QDateTime right = m_now;
    m_now = wrong;
    QString newest;
    for (int i = 0; i < withWrongClock; ++i)
        newest = made(folder).path;
    // The newest is the one made last, whatever the clock says.
    QCOMPARE(backups(folder).list().front().path, newest);
    m_now = right;
    int gone = 0;
    for (const QString &path : before)
        gone += !QFile::exists(path);
    QCOMPARE(gone, lost);
    QVERIFY(!backups(folder).list().front().time.isValid() || wrong < right);
    newest = made(folder).path;
    QCOMPARE(backups(folder).list().front().path, newest);
}

void TestBackups::namesAreMatchedWhole()
{
    const QString folder = at(QStringLiteral("novel"));
    const BackupInfo backup = made(folder);
    const QString place = backups(folder).folder() + u'/';
    const QString name = QFileInfo(backup.path).fileName();
    for (const QString &other :
         {name + QStringLiteral("~"), QStringLiteral("my ") + name,
          QString(name).replace(QStringLiteral("-000001-"), QStringLiteral("-00001a-")),
          QString(name).replace(QStringLiteral("20240506"), QStringLiteral("20240536")),
          QString(name).replace(QStringLiteral("-opened"), QStringLiteral("-opened\n"))})
        putFile(place + other, "mine");
    QCOMPARE(backups(folder).list().size(), 1U);
    for (int i = 0; i < 8; ++i)
        made(folder);
    QCOMPARE(fileBytes(place + name + QStringLiteral("~")), QByteArray("mine"));
}

void TestBackups::leavesTheOthersAlone()
{
    // Two projects of one name, the backups of what was replaced, and those made by hand.
    const QString first = at(QStringLiteral("a/novel"));
    const QString second = at(QStringLiteral("b/novel"));
    made(second);
    for (int i = 0; i < 15; ++i) {
        putFile(first + QStringLiteral("/project.json"), "{}");
        QVERIFY(m_locations.backups().addFolder(QStringLiteral("novel"), first));
    }
    made(first, BackupReason::ByHand);
    for (int i = 0; i < 20; ++i) {
        m_now = m_now.addDays(30);
        made(first);
    }
    QCOMPARE(m_locations.backups().list(QStringLiteral("novel")).size(), 15);
    QCOMPARE(backups(second).list().size(), 1U + 15U);
    int byHand = 0;
    for (const BackupInfo &backup : backups(first).list())
        byHand += backup.reason == BackupReason::ByHand;
    QCOMPARE(byHand, 1);
}

void TestBackups::keepsNothingThatCannotBeReadBack_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    QTest::newRow("a file that is no JSON") << "objects/0f8b2a34-5c6d-4e7f-8a9b-0c1d2e3f4a5b.json"
                                            << QByteArray("half a fi") << "Invalid JSON in file: ";
    QTest::newRow("records that are none")
        << "project.json" << QByteArray("[]") << "Invalid JSON in file: ";
}

void TestBackups::keepsNothingThatCannotBeReadBack()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    const QString folder = at(QStringLiteral("novel"));
    const BackupInfo good = made(folder);
    putFile(folder + u'/' + path, bytes);
    const Result<std::optional<BackupInfo>> result =
        backups(folder).add({folder, {}}, BackupReason::Daily);
    QVERIFY(!result);
    QVERIFY2(result.message().startsWith(message), qPrintable(result.message()));
    QCOMPARE(backups(folder).list().size(), 1U);
    QCOMPARE(namesIn(backups(folder).folder()).size(), 2);

    // Neither does a place that cannot be written to cost the ones there are.
    QFile::remove(folder + u'/' + path);
    putFile(at(QStringLiteral("data2")), "a file in the folder's place");
    m_locations.root = at(QStringLiteral("data2"));
    QVERIFY(!backups(folder).add({folder, {}}, BackupReason::Daily));
}

void TestBackups::mediaThatNoFileCanHold()
{
    const QString folder = at(QStringLiteral("novel"));
    const QString video = QStringLiteral("/assets/film.mp4");
    putFiles(folder, {{QStringLiteral("project.json"), "{}"}, {video.mid(1), "short"}});
    const auto holdsVideo = [&](const QString &backup) {
        const Result<ReadBundle> read = readBundle(backup);
        if (!read)
            qFatal("%s", qPrintable(read.message()));
        return read->archive.find("assets/film.mp4") != nullptr;
    };
    const Backups replaced(at(QStringLiteral("replaced")), m_locations.now);
    QVERIFY(holdsVideo(made(folder).path));
    QVERIFY(holdsVideo(*backUpProjectFolder(replaced, QStringLiteral("novel"), folder)));
    // As large as a file in an archive can be; it takes no room on the disk.
    if (!QFile::resize(folder + video, qint64(4) << 30))
        QSKIP("no file can be that large here");
    QVERIFY(!holdsVideo(made(folder).path));
    const auto text = backUpProjectFolder(replaced, QStringLiteral("novel"), folder);
    QVERIFY2(text, qPrintable(text ? QString() : text.message()));
    QVERIFY(!holdsVideo(*text));
}

void TestBackups::folderWithoutWhatIsHidden()
{
    const QString folder = at(QStringLiteral("novel"));
    putFiles(folder, {{QStringLiteral(".git/objects/aa"), "blob"},
                      {QStringLiteral("assets/map.png"), "picture"}});
    QVERIFY(QFile::link(at(QStringLiteral("nowhere")), folder + QStringLiteral("/link")));
    const BackupInfo backup = made(folder); // it has no records either
    const QString copy = at(QStringLiteral("copy.vellum"));
    putFile(copy, "what stood there");
    {
        const LockAttempt open = ProjectLock::take(copy, LockHolder::current());
        QVERIFY(!copyBackup(backup.path, copy, m_locations));
        QCOMPARE(fileBytes(copy), QByteArray("what stood there"));
    }
    QVERIFY(copyBackup(backup.path, copy, m_locations));
    QVERIFY(filesUnder(m_locations.backupFolder()).values().contains("what stood there"));
    QVERIFY(extractBundle(copy, at(QStringLiteral("unpacked"))));
    QCOMPARE(QStringList(filesUnder(at(QStringLiteral("unpacked"))).keys()),
             (QStringList{QStringLiteral("assets/map.png"), QStringLiteral("notes.txt"),
                          QStringLiteral("project.json")}));
}

void TestBackups::listsAndCounts()
{
    const QString folder = at(QStringLiteral("novel"));
    Workspace workspace;
    const auto add = [&](core::DocumentKind kind, const QString &body, core::ContentId parent) {
        auto document = std::make_unique<core::Document>(core::ContentId::create(), kind, body);
        document->setBody(body);
        document->setParentId(parent);
        const core::ContentId id = document->id();
        workspace.push<core::AddObjectCommand>(workspace.project(), std::move(document));
        return id;
    };
    const core::ContentId chapter = add(core::DocumentKind::Prose, QStringLiteral("one two"), {});
    add(core::DocumentKind::Prose, QStringLiteral("three"), chapter);
    add(core::DocumentKind::Note, QStringLiteral("not counted as words"), chapter);
    QVERIFY(workspace.current().saveAsFolder(folder));
    made(folder);
    m_now = m_now.addDays(1);
    const BackupInfo damaged = made(folder, BackupReason::ByHand);
    QFile::remove(damaged.path + QStringLiteral(".json"));
    putFile(damaged.path, "not an archive any more");

    BackupsModel model(backups(folder));
    QAbstractItemModelTester tester(&model);
    model.finish();
    const auto text = [&](int row, int column) {
        return model.index(row, column).data().toString();
    };
    QTRY_COMPARE(text(0, BackupsModel::WordsColumn), QStringLiteral("damaged"));
    QCOMPARE(text(0, BackupsModel::ReasonColumn), QStringLiteral("By hand"));
    QTRY_COMPARE(text(1, BackupsModel::WordsColumn), QStringLiteral("3"));
    QCOMPARE(text(1, BackupsModel::ScenesColumn), QStringLiteral("1"));
    const Result<BackupSummary> summary = backups(folder).summary(model.backupAt(1));
    QCOMPARE(summary->documents, 3);
}

void TestBackups::madeWhenOpenedSavedAndClosed_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::newRow("folder") << false;
    QTest::newRow("bundle") << true;
}

void TestBackups::madeWhenOpenedSavedAndClosed()
{
    QFETCH(bool, asBundle);
    const QString path =
        asBundle ? at(QStringLiteral("novel.vellum")) : at(QStringLiteral("novel"));
    const auto reasons = [&] {
        QStringList texts;
        for (const BackupInfo &backup : backups(path).list())
            texts.prepend(BackupsModel::reasonText(backup.reason));
        return texts;
    };
    const QStringList opened{QStringLiteral("When opened")};
    const QStringList daily = opened + QStringList{QStringLiteral("Once a day")};
    {
        Workspace workspace;
        auto keeper = std::make_unique<BackupKeeper>(workspace, m_locations);
        const auto write = [&](const QString &title) {
            workspace.push<core::AddObjectCommand>(
                workspace.project(),
                std::make_unique<core::Document>(core::ContentId::create(),
                                                 core::DocumentKind::Prose, title));
        };
        write(QStringLiteral("One"));
        QVERIFY(asBundle ? workspace.current().saveAsBundle(path)
                         : workspace.current().saveAsFolder(path));
        keeper->finish();
        QCOMPARE(reasons(), opened);

        const auto settle = [&] {
            keeper->finish();
            QCoreApplication::processEvents();
        };
        settle();
        write(QStringLiteral("Two"));
        QVERIFY(workspace.current().save());
        workspace.flush(); // the same day still
        settle();
        QCOMPARE(reasons(), opened);
        m_now = m_now.addDays(1);
        workspace.flush(); // as each tick of the autosave does
        settle();
        QCOMPARE(reasons(), daily);

        write(QStringLiteral("Three"));
        QVERIFY(workspace.current().save());
        keeper.reset(); // as the window does when it closes
        QCOMPARE(reasons(), daily + QStringList{QStringLiteral("When closed")});
    }
    // Opened again there is nothing new, and closed neither.
    Workspace workspace;
    {
        BackupKeeper keeper(workspace, m_locations);
        QSignalSpy unchanged(&keeper, &BackupKeeper::unchanged);
        auto project = OpenProject::open(path);
        QVERIFY(project);
        workspace.replaceProject(*std::move(project));
        QTRY_VERIFY_WITH_TIMEOUT(!unchanged.isEmpty(), 60000);
    }
    QCOMPARE(reasons().size(), 3);
}

namespace {

/// An open project whose backups are kept, and what is told of them.
struct KeptProject
{
    KeptProject(const QString &folder, const StorageLocations &locations)
        : keeper(workspace, locations)
    {
        QObject::connect(&keeper, &BackupKeeper::made, &keeper,
                         [this](BackupReason reason) { made.append(reason); });
        QObject::connect(&keeper, &BackupKeeper::failed, &keeper,
                         [this](BackupReason, const QString &fault) { faults.append(fault); });
        write();
        if (!workspace.current().saveAsFolder(folder))
            qFatal("no place");
        settle();
    }
    void write()
    {
        workspace.push<core::AddObjectCommand>(
            workspace.project(),
            std::make_unique<core::Document>(core::ContentId::create(), core::DocumentKind::Prose,
                                             QStringLiteral("New")));
    }
    /// What the autosave does.
    void tick()
    {
        workspace.flush();
        settle(); // a save that comes between would be backed up too
        if (workspace.current().isDirty() && !workspace.current().save())
            qFatal("not saved");
        settle();
    }
    void settle()
    {
        keeper.finish();
        QCoreApplication::processEvents();
    }

    Workspace workspace;
    BackupKeeper keeper;
    QList<BackupReason> made;
    QStringList faults;
};

} // namespace

/// Who saves elsewhere because the folder is gone knows that it is.
void TestBackups::saysNothingOfWhatIsGone()
{
    KeptProject project(at(QStringLiteral("novel")), m_locations);
    project.write();
    QVERIFY(project.workspace.current().save());
    project.settle();
    QVERIFY(QDir(at(QStringLiteral("novel"))).removeRecursively());
    QVERIFY(project.workspace.current().saveAsFolder(at(QStringLiteral("second"))));
    project.settle();
    QCOMPARE(project.faults, QStringList());
}

void TestBackups::putOffWhenOpened_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("isMade");
    for (const char *end : {"save", "other project", "waited for", "time"})
        QTest::newRow(end) << QString::fromLatin1(end) << true;
    QTest::newRow("not wanted") << "not wanted" << false;
}

/// What was put off comes before whatever could change the files, and is not lost.
void TestBackups::putOffWhenOpened()
{
    QFETCH(QString, end);
    QFETCH(bool, isMade);
    KeptProject project(at(QStringLiteral("novel")), m_locations);
    project.made.clear();
    project.write(); // so that there is something new to back up
    QVERIFY(project.workspace.current().saveAsFolder(at(QStringLiteral("second"))));
    project.settle();
    project.made.clear();
    project.write();
    QVERIFY(project.workspace.current().save());
    project.keeper.setAutomatic(false); // at leaving
    project.workspace.replaceProject(std::make_unique<OpenProject>());
    project.keeper.setAutomatic(end != QLatin1String("not wanted"));
    project.keeper.setOpeningDelay(end == QLatin1String("time") ? 1 : 3600 * 1000);
    auto opened = OpenProject::open(at(QStringLiteral("second")));
    QVERIFY(opened);
    project.workspace.replaceProject(*std::move(opened));
    QCoreApplication::processEvents();
    if (end == QLatin1String("save"))
        project.workspace.flush();
    else if (end == QLatin1String("other project"))
        project.workspace.replaceProject(std::make_unique<OpenProject>());
    else if (end == QLatin1String("time"))
        QTRY_VERIFY(!project.made.isEmpty());
    project.settle();
    QCOMPARE(project.made,
             isMade ? QList<BackupReason>{BackupReason::Opened} : QList<BackupReason>());
}

void TestBackups::dailyWhateverTheClock_data()
{
    QTest::addColumn<int>("clock");  // hours by which it goes on, or back, for each day that passes
    QTest::addColumn<int>("uptime"); // hours
    QTest::newRow("open for days") << 24 << 24;
    QTest::newRow("asleep by night, when the other clock stands still") << 24 << 8;
    QTest::newRow("a clock that stands still") << 0 << 24;
    QTest::newRow("a clock that goes back") << -24 << 24;
    QTest::newRow("a clock that is years ahead") << 24 * 3000 << 24;
}

void TestBackups::dailyWhateverTheClock()
{
    QFETCH(int, clock);
    QFETCH(int, uptime);
    KeptProject project(at(QStringLiteral("novel")), m_locations);
    QCOMPARE(project.made, QList<BackupReason>{BackupReason::Opened});
    for (int day = 1; day <= 3; ++day) {
        m_now = m_now.addSecs(qint64(clock) * 3600);
        m_uptime += qint64(uptime) * 3600 * 1000;
        project.write();
        for (int i = 0; i < 4; ++i)
            project.tick();
        QCOMPARE(project.made.size(), 1 + day);
        QCOMPARE(project.made.last(), BackupReason::Daily);
    }
    m_uptime += 1000 * 3600 * 24;
    m_now = m_now.addDays(1);
    project.tick(); // nothing was written since
    QCOMPARE(project.made.size(), 4);
}

void TestBackups::triesAgainWhatFailed_data()
{
    QTest::addColumn<bool>("isChosen");
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("message");
    QTest::newRow("a file in the folder's place") << false << "file"
                                                  << "Could not create the folder for: ";
    QTest::newRow("the chosen folder is not there") << true << ""
                                                    << "The folder for backups does not exist: ";
    QTest::newRow("a file where the chosen folder was")
        << true << "file"
        << "The folder for backups does not exist: ";
}

void TestBackups::triesAgainWhatFailed()
{
    QFETCH(bool, isChosen);
    QFETCH(QString, obstacle);
    QFETCH(QString, message);
    const QString place = at(isChosen ? QStringLiteral("stick") : QStringLiteral("data"));
    if (isChosen)
        m_locations.chosenAutoBackups = place;
    if (!obstacle.isEmpty())
        putFile(place, "in the way");
    KeptProject project(at(QStringLiteral("novel")), m_locations);
    QCOMPARE(project.faults.size(), 1);
    QVERIFY2(project.faults.first().startsWith(message), qPrintable(project.faults.first()));
    // It is tried again now and then, without telling the same over and over.
    for (int i = 0; i < 5; ++i) {
        project.write();
        project.tick();
        m_uptime += BackupKeeper::patience;
    }
    QCOMPARE(project.faults.size(), 1);
    QFile::remove(place);
    QVERIFY(QDir().mkpath(place));
    project.tick();
    QCOMPARE(project.made, QList<BackupReason>{BackupReason::Opened});
    const std::vector<BackupInfo> list = backups(at(QStringLiteral("novel"))).list();
    QCOMPARE(list.size(), 1U);
    QVERIFY(list.front().path.startsWith(place));
    m_uptime += BackupKeeper::patience;
    project.tick();
    QCOMPARE(project.made.size(), 1);
}

void TestBackups::madeOnlyWhereWanted()
{
    const QString folder = at(QStringLiteral("novel"));
    const QString chosen = at(QStringLiteral("stick"));
    QVERIFY(QDir().mkpath(chosen));
    KeptProject project(folder, m_locations);
    QCOMPARE(project.made.size(), 1);
    const auto nextDay = [&] {
        m_now = m_now.addDays(1);
        project.write();
        project.tick();
        project.tick();
    };
    project.keeper.setAutomatic(false);
    nextDay();
    QCOMPARE(project.made.size(), 1);
    project.keeper.backUpNow(); // who asks gets one
    project.settle();
    QCOMPARE(project.made, (QList<BackupReason>{BackupReason::Opened, BackupReason::ByHand}));
    project.keeper.setAutomatic(true);
    project.keeper.setFolder(chosen);
    nextDay();
    QCOMPARE(project.made.size(), 3);
    // All are listed, whichever place they lie in.
    const std::vector<BackupInfo> list = project.keeper.backups().list();
    QCOMPARE(list.size(), 3U);
    QVERIFY(list.front().path.startsWith(chosen));
    QVERIFY(!list.back().path.startsWith(chosen));
    QCOMPARE(backups(folder).list().size(), 2U);
    // One that lies in the project would hold those before it.
    project.keeper.setFolder(folder);
    nextDay();
    QCOMPARE(project.made.size(), 3);
    QCOMPARE(project.faults.size(), 1);
    QVERIFY(project.faults.first().startsWith(
        QStringLiteral("The folder for backups lies in the project itself: ")));
}

void TestBackups::fullDisk_data()
{
    QTest::addColumn<QString>("mode");
    for (const char *mode : {"once", "full", "refused"})
        QTest::newRow(mode) << QString::fromLatin1(mode);
}

/// A backup is made again and again with its first, second, third… file call going wrong, until it
/// ends undisturbed.
void TestBackups::fullDisk()
{
#ifndef IVOREL_FAULT_SHIM
    QSKIP("there is no library here that makes file calls fail");
#else
    QFETCH(QString, mode);
    int at = 1;
    for (;; ++at) {
        QVERIFY2(at < 200, "it never ends undisturbed");
        const QTemporaryDir root(QDir::tempPath() + QStringLiteral("/ivorel fàults-XXXXXX"));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(IVOREL_FAULT_SHIM));
        environment.insert(QStringLiteral("ASAN_OPTIONS"),
                           QStringLiteral("verify_asan_link_order=0:detect_leaks=0"));
        environment.insert(QStringLiteral("IVOREL_FAULT_ROOT"), root.path());
        environment.insert(QStringLiteral("IVOREL_FAULT_AT"), QString::number(at));
        environment.insert(QStringLiteral("IVOREL_FAULT_MODE"), mode);
        QProcess child;
        child.setProcessEnvironment(environment);
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--fail"), root.path()});
        QVERIFY(child.waitForFinished(60000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        const QByteArray told = child.readAllStandardOutput();
        if (told == "undisturbed")
            break;
        QVERIFY2(told == "survived", told.constData());
    }
    QVERIFY2(at > 4, "hardly anything was disturbed");
#endif
}

#ifdef IVOREL_FAULT_SHIM
/// Makes a backup while a file call fails, then another when the disk is well again: what became of
/// it, in words.
static QByteArray backUpOnFailingDisk(const QString &root)
{
    const auto arm = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "ivorel_fault_arm"));
    const auto hasFired = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, "ivorel_fault_fired"));
    if (!arm || !hasFired)
        return "nothing makes calls fail";
    const QString folder = root + QStringLiteral("/novel");
    putFile(folder + QStringLiteral("/project.json"), "{}");
    putFile(folder + QStringLiteral("/assets/picture"), QByteArray(100000, 'p'));
    StorageLocations locations;
    locations.root = root + QStringLiteral("/data");
    const AutoBackups backups(folder, locations, &summarizeBackup);
    arm();
    const auto first = backups.add({folder, {}}, BackupReason::Opened);
    const bool isDisturbed = hasFired() != 0;
    if (!first && first.message().isEmpty())
        return "no message";
    for (const BackupInfo &backup : backups.list())
        if (!loadBackup(backup.path))
            return "half a backup is listed";
    if (first && backups.list().empty())
        return "a false success";
    // What is left over of it does not keep the next one from being made.
    if (!backups.add({folder, {}}, BackupReason::Daily))
        return "the next one failed";
    const std::vector<BackupInfo> list = backups.list();
    if (list.size() != 1)
        return "not one backup but " + QByteArray::number(int(list.size()));
    const auto bundle = readBundle(list.front().path);
    if (!bundle || bundle->archive.entries().size() != 2)
        return "a file is missing in it";
    return isDisturbed ? "survived" : "undisturbed";
}
#endif

void TestBackups::byHandHoldsWhatIsNotSaved()
{
    const QString path = at(QStringLiteral("novel"));
    Workspace workspace;
    BackupKeeper keeper(workspace, m_locations);
    QVERIFY(workspace.current().saveAsFolder(path));
    putFile(path + QStringLiteral("/assets/map.png"), "picture");
    const auto id = core::ContentId::create();
    workspace.push<core::AddObjectCommand>(
        workspace.project(),
        std::make_unique<core::Document>(id, core::DocumentKind::Prose, QStringLiteral("New")));
    keeper.backUpNow();
    keeper.finish();
    const BackupInfo newest = backups(path).list().front();
    QCOMPARE(newest.reason, BackupReason::ByHand);
    const auto kept = loadBackup(newest.path);
    QVERIFY(kept);
    QVERIFY((*kept)->contains(id));
    QVERIFY(workspace.current().isDirty());
}

void TestBackups::restoresADocument_data()
{
    QTest::addColumn<QString>("fate"); // of the document since the backup
    QTest::addColumn<DocumentStanding>("standing");
    QTest::newRow("edited") << "edited" << DocumentStanding::Changed;
    QTest::newRow("another status") << "status" << DocumentStanding::Changed;
    QTest::newRow("moved") << "moved" << DocumentStanding::Same;
    QTest::newRow("deleted") << "deleted" << DocumentStanding::Missing;
    QTest::newRow("deleted with its parent") << "all deleted" << DocumentStanding::Missing;
    QTest::newRow("untouched") << "" << DocumentStanding::Same;
}

void TestBackups::restoresADocument()
{
    QFETCH(QString, fate);
    QFETCH(DocumentStanding, standing);
    core::Project backup;
    auto parent = std::make_unique<core::Document>(numberedId(1), core::DocumentKind::Prose,
                                                   QStringLiteral("Part"));
    auto child = std::make_unique<core::Document>(numberedId(2), core::DocumentKind::Prose,
                                                  QStringLiteral("Scene"));
    child->setParentId(numberedId(1));
    child->setBody(QStringLiteral("as it was"));
    Workspace workspace;
    core::Project &project = workspace.project();
    for (const auto *document : {parent.get(), child.get()}) {
        auto copy = std::make_unique<core::Document>(document->id(), document->documentKind(),
                                                     document->title());
        copy->setParentId(document->parentId());
        copy->setBody(document->body());
        project.add(std::move(copy));
    }
    backup.add(std::move(parent));
    backup.add(std::move(child));
    auto *scene = project.find<core::Document>(numberedId(2));
    if (fate == QLatin1String("edited"))
        workspace.push<core::SetDocumentBodyCommand>(*scene, QStringLiteral("spoilt"));
    if (fate == QLatin1String("status"))
        workspace.push<core::SetDocumentStatusCommand>(*scene, QStringLiteral("Final"));
    if (fate == QLatin1String("moved"))
        workspace.push<core::MoveDocumentCommand>(project, scene->id(), core::ContentId(), 0);
    if (fate.contains(QLatin1String("deleted")))
        workspace.push<core::RemoveObjectCommand>(project, numberedId(2));
    if (fate == QLatin1String("all deleted"))
        workspace.push<core::RemoveObjectCommand>(project, numberedId(1));

    BackupOperations operations(workspace);
    const QList<BackupDocument> documents = operations.documents(backup);
    QCOMPARE(documents.size(), 2);
    QCOMPARE(documents.at(1).standing, standing);
    QCOMPARE(documents.at(1).depth, 1);
    QCOMPARE(documents.at(1).before.contains(QLatin1String("Final")),
             fate == QLatin1String("status"));
    const qsizetype steps = workspace.history().undoCount();
    QVERIFY(operations.restore(backup, numberedId(2)));
    QCOMPARE(workspace.history().undoCount(), steps + 1);
    const auto *restored = project.find<core::Document>(numberedId(2));
    QVERIFY(restored);
    QCOMPARE(restored->body(), QStringLiteral("as it was"));
    QCOMPARE(restored->parentId().isNull(),
             fate == QLatin1String("all deleted") || fate == QLatin1String("moved"));
    QCOMPARE(restored->status(), QString());
    while (workspace.history().canUndo())
        workspace.undo();
    QCOMPARE(project.find<core::Document>(numberedId(2))->body(), QStringLiteral("as it was"));
    while (workspace.history().canRedo())
        workspace.redo();
    QCOMPARE(project.find<core::Document>(numberedId(2))->body(), QStringLiteral("as it was"));
    QVERIFY(!operations.restore(backup, numberedId(9)));
}

void TestBackups::differences_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("shown"); // "=", "-", "+" or "~" and the line, divided by "|"
    QTest::newRow("nothing") << ""
                             << ""
                             << "";
    QTest::newRow("all new") << ""
                             << "a\nb"
                             << "+a|+b";
    QTest::newRow("replaced") << "a\nb\nc"
                              << "a\nx\nc"
                              << "=a|-b|+x|=c";
    QTest::newRow("far apart") << "1\n2\n3\n4\n5\n6\n7"
                               << "0\n2\n3\n4\n5\n6\n8"
                               << "-1|+0|=2|~|=6|-7|+8";
    QTest::newRow("one line is not skipped") << "1\n2\n3\n4\n5"
                                             << "0\n2\n3\n4\n6"
                                             << "-1|+0|=2|=3|=4|-5|+6";
    QTest::newRow("only in the middle") << "1\n2\n3\n4\n5\n6\n7"
                                        << "1\n2\n3\nx\n5\n6\n7"
                                        << "~|=3|-4|+x|=5|~";
}

void TestBackups::differences()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, shown);
    QStringList lines;
    for (const DifferenceLine &line : differenceLines(before, after, 1))
        lines.append(QStringLiteral("=-+~").mid(int(line.kind), 1) + line.text);
    QCOMPARE(lines.join(u'|'), shown);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
#ifdef IVOREL_FAULT_SHIM
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--fail")) {
        const QByteArray told = backUpOnFailingDisk(arguments.value(2));
        return std::fwrite(told.constData(), 1, size_t(told.size()), stdout) == size_t(told.size())
                   ? 0
                   : 1;
    }
#endif
    TestBackups test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_backups.moc"
