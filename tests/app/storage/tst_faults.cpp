#include "app/storage/bundlestore.h"
#include "app/storage/folderstore.h"
#include "tests/app/storage/faultwork.h"
#include "tests/support/folders.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace vl::app;
using namespace vl::test;

namespace {

const QString asset = QStringLiteral("assets/map.png");
const QString records = QStringLiteral("project.json");

FileMap oldFiles()
{
    return {{asset, QByteArray(2000, 'm')},
            {changedObject(), QByteArray(3000, 'o')},
            {goneObject(), "to be deleted"},
            {records, "{}"}};
}

FileMap newFiles()
{
    FileMap files{{asset, oldFiles().value(asset)}};
    for (const ProjectFile &file : newProjectFiles())
        files.insert(file.path, file.bytes);
    return files;
}

FileMap editedFiles()
{
    FileMap files = oldFiles();
    files.insert(asset, "changed in the working copy");
    return files;
}

FileMap unreadableFiles()
{
    return {{asset, "a copy without its records"}};
}

QByteArray bundleOf(const FileMap &files)
{
    QByteArray bytes;
    ArchiveWriter writer([&bytes](QByteArrayView piece) {
        bytes += piece;
        return Result<>();
    });
    for (auto it = files.begin(); it != files.end(); ++it)
        if (!writer.add(it.key().toUtf8(), it.value()))
            qFatal("cannot pack");
    if (!writer.finish())
        qFatal("cannot pack");
    return bytes;
}

bool holdsUnfinishedFiles(const QString &folder)
{
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        if (isUnfinishedFileName(it.fileName()))
            return true;
    }
    return false;
}

/// What the program that was to fail told; nothing when it was killed.
struct Told
{
    bool killed = false;
    bool fired = false;
    bool succeeded = false;
    QString message;
};

} // namespace

/// Every piece of work is done again and again with its first, second, third… file call going
/// wrong, until it ends undisturbed.
class TestFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void works_data();
    void works();
    void journal_data() { modes(); }
    void journal();
    void backup_data() { modes(); }
    void backup();

private:
    static void modes();
    void disturb(const QString &work, const QString &mode, const std::function<void()> &prepareWork,
                 const std::function<void(const Told &)> &checkWork);
    void prepare(const QString &start) const;
    Told runChild(const QString &work, int at, const QString &mode) const;
    void check(const QString &work, const QString &start, const Told &told,
               const QString &mode) const;
    void checkOpened(const QString &start) const;
    void checkOther(const QString &work, const Told &told) const;
    void checkFolder(const Told &told) const;
    bool isKept(const FileMap &files) const;

    QString m_root;
};

void TestFaults::works_data()
{
    QTest::addColumn<QString>("work");
    QTest::addColumn<QString>("start"); // the state of the working copy, and its marker
    QTest::addColumn<QString>("mode");
    const char *const works[][2] = {
        {"save", "same"},           {"save folder", "absent"},    {"open", "absent"},
        {"open", "same, unmarked"}, {"open", "edited, marked"},   {"open", "edited, unmarked"},
        {"open", "unreadable"},     {"reload", "edited, marked"}, {"save as", "absent"},
        {"pack", "absent"},         {"extract", "absent"},
    };
    for (const auto &[work, start] : works) {
        for (const char *mode : {"kill", "once", "full", "refused"}) {
            QTest::addRow("%s (%s): %s", work, start, mode)
                << QString::fromLatin1(work) << QString::fromLatin1(start)
                << QString::fromLatin1(mode);
        }
    }
}

void TestFaults::works()
{
    QFETCH(QString, work);
    QFETCH(QString, start);
    QFETCH(QString, mode);
    const auto prepareStart = [&] { prepare(start); };
    disturb(work, mode, prepareStart, [&](const Told &told) { check(work, start, told, mode); });
}

/// Does the work with each of its calls going wrong; looks at the outcome of each.
void TestFaults::disturb(const QString &work, const QString &mode,
                         const std::function<void()> &prepareWork,
                         const std::function<void(const Told &)> &checkWork)
{
    // In memory, since thousands of syncs would take minutes.
    const QString memory = QStringLiteral("/dev/shm");
    const QString place = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    int calls = 0;
    for (int at = 1;; ++at) {
        QVERIFY2(at < 500, "it never ends undisturbed");
        const QTemporaryDir folder(place + QStringLiteral("/fàults of a test-XXXXXX"));
        m_root = folder.path();
        prepareWork();
        const Told told = runChild(work, at, mode);
        checkWork(told);
        if (QTest::currentTestFailed()) {
            qWarning("at call %d: %s", at, qPrintable(told.message));
            return;
        }
        if (!told.killed && !told.fired) {
            QVERIFY2(told.succeeded, qPrintable(told.message));
            break;
        }
        calls = at;
    }
    QVERIFY2(calls >= 4, "hardly anything was disturbed");
}

void TestFaults::modes()
{
    QTest::addColumn<QString>("mode");
    for (const char *mode : {"kill", "once", "passing", "full", "refused"})
        QTest::newRow(mode) << QString::fromLatin1(mode);
}

/// The torn end of a journal costs nothing that stands before it, and what could not be written at
/// first is written later.
void TestFaults::journal()
{
    QFETCH(QString, mode);
    // What the journal says after so many pieces.
    QList<std::map<QString, std::optional<QByteArray>>> states(1);
    for (int i = 1; i <= journalPieces; ++i) {
        states.append(states.last());
        for (const FileChange &change : journalPiece(i))
            states.last()[change.path] = change.bytes;
    }
    qsizetype best = 0;
    disturb(
        QStringLiteral("journal"), mode, [] {},
        [&](const Told &told) {
            const QString path = FaultPaths(m_root).journal;
            std::map<QString, std::optional<QByteArray>> found;
            if (const Result<Journal> read = readJournal(path)) {
                for (const auto &[name, file] : read->files)
                    found[name] = file.change.bytes;
            }
            const qsizetype state = states.indexOf(found);
            QVERIFY2(state >= 0, "a mixture");
            QVERIFY2(!told.succeeded || state == journalPieces, "a false success");
            // The later the end came the more is there.
            const bool endsThere =
                mode != QLatin1String("once") && mode != QLatin1String("passing");
            QVERIFY2(!endsThere || state >= best, "something written before is lost");
            best = std::max(best, state);
        });
    QCOMPARE(best, qsizetype(journalPieces));
}

/// A backup that fails leaves no half one, and none of the others goes for it.
void TestFaults::backup()
{
    QFETCH(QString, mode);
    StorageLocations locations;
    QStringList before;
    disturb(
        QStringLiteral("backup"), mode,
        [&] {
            const QString novel = FaultPaths(m_root).novel;
            locations.root = FaultPaths(m_root).data;
            before.clear();
            for (int i = 0; i <= AutoBackups::lastKept; ++i) {
                putFiles(novel, {{records, "{\n}\n"}, {asset, QByteArray(3000 + i, 'm')}});
                if (i == AutoBackups::lastKept)
                    return;
                const auto made = AutoBackups(novel, locations, &nothingCounted)
                                      .add({novel, {}}, BackupReason::Opened);
                QVERIFY(made && *made);
                before.append((*made)->path);
            }
        },
        [&](const Told &told) {
            const AutoBackups backups(FaultPaths(m_root).novel, locations, &nothingCounted);
            const std::vector<BackupInfo> list = backups.list();
            for (const BackupInfo &backup : list)
                QVERIFY2(loadBackup(backup.path), qPrintable(backup.path));
            const auto isOld = [&](const BackupInfo &backup) {
                return before.contains(backup.path);
            };
            const auto old = std::count_if(list.begin(), list.end(), isOld);
            const bool stands = list.size() > std::size_t(old);
            QVERIFY(old >= before.size() - (stands ? 1 : 0));
            QVERIFY(!told.succeeded || stands);
            if (told.killed || told.succeeded)
                return;
            QVERIFY2(told.message.contains(QDir::toNativeSeparators(m_root)),
                     qPrintable(told.message));
            // Where removing failed too, the next backup clears away what is left.
            if (mode == QLatin1String("once") || mode == QLatin1String("full"))
                QVERIFY(!holdsUnfinishedFiles(backups.folder()));
        });
}

void TestFaults::prepare(const QString &start) const
{
    const FaultPaths paths(m_root);
    putFile(paths.bundle, bundleOf(oldFiles()));
    putFile(paths.otherBundle, bundleOf(oldFiles()));
    putFiles(paths.folder, oldFiles());
    StorageLocations locations;
    locations.root = paths.data;
    if (start == QLatin1String("absent"))
        return;
    const Result<OpenedBundle> opened = openBundle(paths.bundle, locations);
    QVERIFY(opened);
    if (start.startsWith(QLatin1String("edited")))
        putFiles(opened->workingFolder, editedFiles());
    if (start == QLatin1String("unreadable")) {
        QVERIFY(QDir(opened->workingFolder).removeRecursively());
        putFiles(opened->workingFolder, unreadableFiles());
    }
    if (start.endsWith(QLatin1String("unmarked")))
        QVERIFY(QFile::remove(opened->workingFolder + QStringLiteral(".json")));
}

Told TestFaults::runChild(const QString &work, int at, const QString &mode) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(IVOREL_FAULT_SHIM));
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       QStringLiteral("verify_asan_link_order=0:detect_leaks=0"));
    environment.insert(QStringLiteral("IVOREL_FAULT_ROOT"), m_root);
    environment.insert(QStringLiteral("IVOREL_FAULT_AT"), QString::number(at));
    environment.insert(QStringLiteral("IVOREL_FAULT_MODE"), mode);
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QStringLiteral(IVOREL_FAULT_CHILD), {work, m_root});
    if (!child.waitForFinished(60000))
        qFatal("the program does not end");
    Told told;
    told.killed = child.exitStatus() == QProcess::CrashExit;
    const QJsonObject line = QJsonDocument::fromJson(child.readAllStandardOutput()).object();
    told.fired = line.value(QStringLiteral("fired")).toBool();
    told.succeeded = line.value(QStringLiteral("succeeded")).toBool();
    told.message = line.value(QStringLiteral("message")).toString();
    if (told.killed != (mode == QLatin1String("kill") && line.isEmpty()))
        qFatal("the program ended in an unforeseen way");
    return told;
}

void TestFaults::check(const QString &work, const QString &start, const Told &told,
                       const QString &mode) const
{
    const FaultPaths paths(m_root);
    if (!told.killed && !told.succeeded) {
        QVERIFY2(told.message.contains(QDir::toNativeSeparators(m_root))
                     || told.message.contains(QStringLiteral("not readable right now")),
                 qPrintable(told.message));
        // Where removing was refused too, nothing could be cleared away.
        if (mode != QLatin1String("refused")) {
            QCOMPARE(namesIn(m_root + QStringLiteral("/books")),
                     QStringList{QStringLiteral("Novel.vellum")});
            QCOMPARE(namesIn(m_root + QStringLiteral("/other")),
                     QStringList{QStringLiteral("Copy.vellum")});
            QVERIFY(!holdsUnfinishedFiles(m_root));
            QVERIFY(!QFileInfo::exists(paths.target));
        }
    }
    // An opening may pass over what it could not clear away; nothing else may pass over anything.
    // When a save's words are safe but its copy is not up to date, the message tells.
    const bool passesOver = work.startsWith(QLatin1String("open"))
                            || work == QLatin1String("reload") || work == QLatin1String("save as");
    if (told.fired && told.succeeded && !passesOver)
        QVERIFY2(work == QLatin1String("save") && !told.message.isEmpty(), "a false success");
    const QByteArray bundle = fileBytes(paths.bundle);
    QVERIFY(bundle == bundleOf(oldFiles()) || bundle == bundleOf(newFiles())
            || bundle == bundleOf(editedFiles()));
    if (work == QLatin1String("save")) {
        QVERIFY(!told.succeeded || bundle == bundleOf(newFiles()));
        QVERIFY(bundle != bundleOf(editedFiles()));
    }
    if (work == QLatin1String("save folder"))
        checkFolder(told);
    else
        checkOther(work, told);
    if (!QTest::currentTestFailed())
        checkOpened(start);
}

/// The next opening, undisturbed, finds a whole state, and what was ever in the copy still exists.
void TestFaults::checkOpened(const QString &start) const
{
    const FaultPaths paths(m_root);
    StorageLocations locations;
    locations.root = paths.data;
    const QByteArray before = fileBytes(paths.bundle);
    const Result<OpenedBundle> opened = openBundle(paths.bundle, locations);
    QVERIFY2(opened, opened ? "" : qPrintable(opened.message()));
    const FileMap files = filesUnder(opened->workingFolder);
    QCOMPARE(fileBytes(paths.bundle), bundleOf(files));
    if (opened->origin != WorkingCopyOrigin::Restored)
        QCOMPARE(fileBytes(paths.bundle), before);
    else
        QCOMPARE(files, editedFiles());
    QCOMPARE(namesIn(m_root + QStringLiteral("/books")),
             QStringList{QStringLiteral("Novel.vellum")});
    const QStringList copies = namesIn(locations.workingFolder()).filter(QStringLiteral("Novel-"));
    QCOMPARE(copies.size(), 2); // the copy and its marker

    if (start.startsWith(QLatin1String("edited")))
        QVERIFY(files == editedFiles() || isKept(editedFiles()));
    if (files == editedFiles())
        QVERIFY(isKept(oldFiles()));
    if (start == QLatin1String("unreadable"))
        QVERIFY(isKept(unreadableFiles()));
}

/// Whether a backup, or a folder beside the backups, holds exactly these files.
bool TestFaults::isKept(const FileMap &files) const
{
    const QString folder = FaultPaths(m_root).data + QStringLiteral("/backups");
    for (const QString &name : namesIn(folder)) {
        const QString path = folder + QLatin1Char('/') + name;
        if (QFileInfo(path).isDir() ? filesUnder(path) == files
                                    : fileBytes(path) == bundleOf(files))
            return true;
    }
    return false;
}

void TestFaults::checkOther(const QString &work, const Told &told) const
{
    const FaultPaths paths(m_root);
    const QByteArray other = fileBytes(paths.otherBundle);
    QVERIFY(other == bundleOf(oldFiles()) || other == bundleOf(newFiles()));
    if (!told.succeeded)
        return;
    if (work == QLatin1String("save as"))
        QCOMPARE(other, bundleOf(newFiles()));
    if (work == QLatin1String("extract"))
        QCOMPARE(filesUnder(paths.target), oldFiles());
}

/// In a folder each file is the old one or the new one, and saving again finishes what was begun.
void TestFaults::checkFolder(const Told &told) const
{
    const FaultPaths paths(m_root);
    const FileMap wanted = newFiles();
    const FileMap before = oldFiles();
    const FileMap found = filesUnder(paths.folder);
    for (auto it = found.begin(); it != found.end(); ++it) {
        const bool whole = wanted.value(it.key(), "(none)") == it.value()
                           || before.value(it.key(), "(none)") == it.value()
                           || isUnfinishedFileName(QFileInfo(it.key()).fileName());
        QVERIFY2(whole, qPrintable(it.key()));
    }
    QCOMPARE(found.value(asset), before.value(asset));
    if (told.succeeded)
        QCOMPARE(found, wanted);

    FolderSave again;
    again.folder = paths.folder;
    for (const ProjectFile &file : newProjectFiles())
        again.writes.push_back({file.path, file.bytes, {}});
    again.removals.push_back({goneObject(), {}, {}});
    QVERIFY(commitFolderSave(again, OutsideChanges::Overwrite));
    QCOMPARE(filesUnder(paths.folder), wanted);
}

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
