#include "app/base/sha256.h"
#include "app/storage/bundlestore.h"
#include "tests/support/folders.h"
#include "tests/support/zipbuilder.h"

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace vl::app;
using namespace vl::test;

namespace {

const QString objectFile = QStringLiteral("objects/0f8b2a34-5c6d-4e7f-8a9b-0c1d2e3f4a5b.json");
const QString otherObject = QStringLiteral("objects/1a2b3c4d-5e6f-4a7b-8c9d-0e1f2a3b4c5d.json");
const QString asset = QStringLiteral("assets/map.png");
const QString records = QStringLiteral("project.json");

FileMap sampleFiles()
{
    return {{asset, QByteArray(5000, 'm')}, {objectFile, "first"}, {records, "{}"}};
}

FileMap with(FileMap files, const QString &path, const QByteArray &bytes)
{
    files.insert(path, bytes);
    return files;
}

QByteArray bundleOf(const FileMap &files)
{
    QByteArray bytes;
    ArchiveWriter writer([&bytes](QByteArrayView piece) {
        bytes += piece;
        return Result<>();
    });
    QMap<QByteArray, QByteArray> sorted;
    for (auto it = files.begin(); it != files.end(); ++it)
        sorted.insert(it.key().toUtf8(), it.value());
    for (auto it = sorted.begin(); it != sorted.end(); ++it)
        if (!writer.add(it.key(), it.value()))
            qFatal("cannot pack");
    if (!writer.finish())
        qFatal("cannot pack");
    return bytes;
}

/// The project's own files among these.
ProjectFiles own(const FileMap &files)
{
    ProjectFiles result;
    for (auto it = files.begin(); it != files.end(); ++it)
        if (!it.key().startsWith(QLatin1String("assets/")))
            result.push_back({it.key(), it.value()});
    return result;
}

} // namespace

class TestBundleStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void open_data();
    void open();
    void openFails_data();
    void openFails();
    void interruptedOpeningIsCleared();
    void deflatedBundleIsReplacedOnSave();
    void save();
    void saveRemovesWhatIsGone();
    void saveNoticesOthers_data();
    void saveNoticesOthers();
    void saveWithoutPlace();
    void saveFailsAndCopyStays();
    void saveWithoutCopyTakesTheBundlesAssets();
    void brokenCopyDoesNotFailTheSave();
    void saveLeavesAssetsBeingImported();
    void saveAs_data();
    void saveAs();
    void reload_data();
    void reload();
    void backupsAreThinned_data();
    void backupsAreThinned();
    void names_data();
    void names();
    void pathsDifferingInCase();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    OpenedBundle opened();
    void putMarker(const QString &folder, const QString &bundlePath, const QByteArray &sum) const;
    QByteArray markedSum(const OpenedBundle &bundle) const;
    QStringList backups() const { return namesIn(m_locations.backupFolder()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    StorageLocations m_locations;
    QDateTime m_now;
    QString m_path;
};

void TestBundleStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/bündles of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
    m_now = QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9, 10), Qt::UTC);
    m_locations.root = at(QStringLiteral("data"));
    m_locations.now = [this] { return m_now; };
    m_path = at(QStringLiteral("books/Nóvel.vellum"));
    putFile(m_path, bundleOf(sampleFiles()));
}

OpenedBundle TestBundleStore::opened()
{
    Result<OpenedBundle> bundle = openBundle(m_path, m_locations);
    if (!bundle)
        qFatal("%s", qPrintable(bundle.message()));
    return *std::move(bundle);
}

void TestBundleStore::putMarker(const QString &folder, const QString &bundlePath,
                                const QByteArray &sum) const
{
    const QJsonObject marker{{QStringLiteral("bundlePath"), bundlePath},
                             {QStringLiteral("bundleSha256"), QString::fromLatin1(sum)}};
    putFile(folder + QStringLiteral(".json"), QJsonDocument(marker).toJson());
}

QByteArray TestBundleStore::markedSum(const OpenedBundle &bundle) const
{
    const QJsonObject marker =
        QJsonDocument::fromJson(fileBytes(bundle.workingFolder + QStringLiteral(".json"))).object();
    if (marker.size() != 2 || marker.value(QStringLiteral("bundlePath")) != bundle.bundlePath)
        return "(other)";
    return marker.value(QStringLiteral("bundleSha256")).toString().toLatin1();
}

void TestBundleStore::open_data()
{
    QTest::addColumn<FileMap>("copy"); // empty: there is none
    QTest::addColumn<QString>("marker");
    QTest::addColumn<int>("origin");
    QTest::addColumn<FileMap>("after");
    QTest::addColumn<FileMap>("backup"); // empty: there is none
    const FileMap bundle = sampleFiles();
    const FileMap edited = with(bundle, objectFile, "edited after the last save");
    const FileMap broken{{objectFile, "no records"}};
    const int extracted = int(WorkingCopyOrigin::Extracted);
    const int reused = int(WorkingCopyOrigin::Reused);
    const int restored = int(WorkingCopyOrigin::Restored);
    const int replaced = int(WorkingCopyOrigin::Replaced);
    const QString none = QStringLiteral("none");
    const QString right = QStringLiteral("right");
    const QString other = QStringLiteral("other");

    QTest::newRow("no copy") << FileMap() << none << extracted << bundle << FileMap();
    QTest::newRow("no copy, old marker") << FileMap() << right << extracted << bundle << FileMap();
    QTest::newRow("same, no marker") << bundle << none << reused << bundle << FileMap();
    QTest::newRow("same, marker") << bundle << right << reused << bundle << FileMap();
    QTest::newRow("same, other marker") << bundle << other << reused << bundle << FileMap();
    QTest::newRow("modified, marker") << edited << right << restored << edited << bundle;
    QTest::newRow("modified, other marker") << edited << other << replaced << bundle << edited;
    QTest::newRow("modified, no marker") << edited << none << replaced << bundle << edited;
    QTest::newRow("modified, damaged marker")
        << edited << QStringLiteral("damaged") << replaced << bundle << edited;
    QTest::newRow("unreadable, marker") << broken << right << replaced << bundle << broken;
    QTest::newRow("unreadable, no marker") << broken << none << replaced << bundle << broken;
}

void TestBundleStore::open()
{
    QFETCH(FileMap, copy);
    QFETCH(QString, marker);
    QFETCH(FileMap, after);
    QFETCH(FileMap, backup);
    const QString folder = WorkingCopy::of(m_path, m_locations).folder();
    if (!copy.isEmpty())
        putFiles(folder, copy);
    if (marker == QLatin1String("right"))
        putMarker(folder, m_path, Sha256::of(fileBytes(m_path)));
    if (marker == QLatin1String("other"))
        putMarker(folder, m_path, Sha256::of("other"));
    if (marker == QLatin1String("damaged"))
        putFile(folder + QStringLiteral(".json"), "{\"bundlePath\": \"x\", \"bundleSha256\": 5");

    const Result<OpenedBundle> result = openBundle(m_path, m_locations);
    QVERIFY2(result, result ? "" : qPrintable(result.message()));
    QTEST(int(result->origin), "origin");
    QCOMPARE(result->workingFolder, folder);
    QCOMPARE(filesUnder(folder), after);
    QCOMPARE(fileBytes(m_path), bundleOf(after));
    QCOMPARE(result->files, own(after));
    QCOMPARE(result->known.sha256, Sha256::of(fileBytes(m_path)));
    QCOMPARE(markedSum(*result), result->known.sha256);
    QCOMPARE(namesIn(m_locations.workingFolder()).size(), 2); // the copy and its marker
    QCOMPARE(namesIn(at(QStringLiteral("books"))).size(), 1);

    QCOMPARE(backups().size(), backup.isEmpty() ? 0 : 1);
    QCOMPARE(result->backupPath.isEmpty(), backup.isEmpty());
    if (QFileInfo(result->backupPath).isDir())
        QCOMPARE(filesUnder(result->backupPath), backup);
    else if (!backup.isEmpty())
        QCOMPARE(fileBytes(result->backupPath), bundleOf(backup));

    // Whatever it was, opened again all is well.
    QCOMPARE(opened().origin, WorkingCopyOrigin::Reused);
    QCOMPARE(filesUnder(folder), after);
}

void TestBundleStore::openFails_data()
{
    QTest::addColumn<QByteArray>("bundle");
    QTest::addColumn<QString>("blocked");
    QTest::addColumn<QString>("message");
    const QByteArray good = bundleOf(sampleFiles());
    const QString invalid = QStringLiteral("Not a valid Ivorel project file: %1");
    const QString unprepared = QStringLiteral("Could not prepare the project's working folder: %1");
    QTest::newRow("no bundle") << QByteArray() << QString()
                               << QStringLiteral("Could not open the project file: %1");
    QTest::newRow("cut") << good.chopped(5) << QString() << invalid;
    QTest::newRow("wrong checksum")
        << QByteArray(good).replace("first", "frist") << QString() << invalid;
    QTest::newRow("no records") << bundleOf({{asset, "x"}}) << QString() << invalid;
    QTest::newRow("no place for copies") << good << QStringLiteral("data") << unprepared;
    QTest::newRow("no place for the marker") << good << QStringLiteral("marker") << unprepared;
}

void TestBundleStore::openFails()
{
    QFETCH(QByteArray, bundle);
    QFETCH(QString, blocked);
    QFETCH(QString, message);
    const WorkingCopy copy = WorkingCopy::of(m_path, m_locations);
    QVERIFY(QFile::remove(m_path));
    if (!bundle.isEmpty())
        putFile(m_path, bundle);
    if (blocked == QLatin1String("data"))
        putFile(m_locations.root, "a file");
    if (blocked == QLatin1String("marker"))
        QVERIFY(QDir().mkpath(copy.folder() + QStringLiteral(".json/in the way")));
    const FileMap books = filesUnder(at(QStringLiteral("books")));
    const Result<OpenedBundle> result = openBundle(m_path, m_locations);
    QVERIFY(result.hasFailed());
    QCOMPARE(result.message(),
             message.arg(QDir::toNativeSeparators(blocked.isEmpty() ? m_path : copy.folder())));
    QCOMPARE(filesUnder(at(QStringLiteral("books"))), books);
    QVERIFY(!QFileInfo::exists(copy.folder()));
}

void TestBundleStore::interruptedOpeningIsCleared()
{
    const QString folder = WorkingCopy::of(m_path, m_locations).folder();
    putFiles(folder + QStringLiteral(".part"), {{records, "half"}});
    putFiles(folder + QStringLiteral(".discarded"), {{asset, "half"}});
    QCOMPARE(opened().origin, WorkingCopyOrigin::Extracted);
    QCOMPARE(namesIn(m_locations.workingFolder()).size(), 2);
    QCOMPARE(filesUnder(folder), sampleFiles());
    QCOMPARE(backups(), QStringList());
}

void TestBundleStore::deflatedBundleIsReplacedOnSave()
{
    const QByteArray text(40000, 't');
    ZipEntry entry{objectFile.toUtf8(), qCompress(text).mid(6).chopped(4)};
    entry.method = 8;
    entry.size = quint32(text.size());
    entry.crc = crc32(text);
    putFile(m_path, ZipArchive{{entry, ZipEntry{"project.json", "{}"}}}.bytes());
    OpenedBundle bundle = opened();
    QCOMPARE(bundle.files, (ProjectFiles{{objectFile, text}, {records, "{}"}}));
    QCOMPARE(filesUnder(bundle.workingFolder), (FileMap{{objectFile, text}, {records, "{}"}}));
    // Packed as the program does it the copy has other bytes, with nothing lost.
    bundle = opened();
    QCOMPARE(bundle.origin, WorkingCopyOrigin::Restored);
    QCOMPARE(fileBytes(m_path), bundleOf({{objectFile, text}, {records, "{}"}}));
}

void TestBundleStore::save()
{
    const OpenedBundle bundle = opened();
    putFile(bundle.workingFolder + QStringLiteral("/assets/new.png"), "imported");
    putFile(bundle.workingFolder + QStringLiteral("/.notes"), "unknown");
    FileMap wanted = with(sampleFiles(), QStringLiteral("assets/new.png"), "imported");
    wanted.insert(QStringLiteral(".notes"), "unknown");
    SaveReport report;
    report.known = bundle.known;
    for (const QByteArray &text :
         {QByteArray("second"), QByteArray("second"), QByteArray("third")}) {
        wanted.insert(objectFile, text);
        wanted.insert(otherObject, "added");
        ProjectFiles files = own(wanted);
        std::erase_if(files,
                      [](const ProjectFile &file) { return file.path == QLatin1String(".notes"); });
        std::reverse(files.begin(), files.end());
        report = saveBundle({m_path, bundle.workingFolder, files, {}, report.known}, m_locations);
        QVERIFY2(report.outcome == SaveOutcome::Saved, qPrintable(report.message));
        QCOMPARE(report.message, QString());
        QCOMPARE(fileBytes(m_path), bundleOf(wanted));
        QCOMPARE(fileBytes(m_path), *packFolder(bundle.workingFolder));
        QCOMPARE(filesUnder(bundle.workingFolder), wanted);
        QCOMPARE(report.known.sha256, Sha256::of(fileBytes(m_path)));
        QCOMPARE(markedSum(bundle), report.known.sha256);
        QCOMPARE(namesIn(at(QStringLiteral("books"))).size(), 1);
    }
    QCOMPARE(opened().origin, WorkingCopyOrigin::Reused);
    QCOMPARE(backups(), QStringList());
}

void TestBundleStore::saveRemovesWhatIsGone()
{
    const QString stray = QStringLiteral("objects/stray.json");
    FileMap files = with(sampleFiles(), otherObject, "to be deleted");
    files.insert(stray, "read from here");
    files.insert(QStringLiteral("objects/unknown.txt"), "not ours");
    putFile(m_path, bundleOf(files));
    const OpenedBundle bundle = opened();
    QStringList readPaths;
    for (const ProjectFile &file : bundle.files)
        readPaths.append(file.path);
    QVERIFY(readPaths.contains(stray));

    const SaveReport report = saveBundle(
        {m_path, bundle.workingFolder, own(sampleFiles()), readPaths, bundle.known}, m_locations);
    QCOMPARE(report.outcome, SaveOutcome::Saved);
    const FileMap wanted = with(sampleFiles(), QStringLiteral("objects/unknown.txt"), "not ours");
    QCOMPARE(fileBytes(m_path), bundleOf(wanted));
    QCOMPARE(filesUnder(bundle.workingFolder), wanted);
}

void TestBundleStore::saveNoticesOthers_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("outcome");
    QTest::addColumn<bool>("keepsTheirs");
    QTest::newRow("written again, same bytes")
        << QStringLiteral("same") << int(SaveOutcome::Saved) << false;
    QTest::newRow("written with other bytes")
        << QStringLiteral("other") << int(SaveOutcome::ChangedOutside) << true;
    QTest::newRow("damaged") << QStringLiteral("damaged") << int(SaveOutcome::ChangedOutside)
                             << true;
    QTest::newRow("removed") << QStringLiteral("removed") << int(SaveOutcome::Missing) << false;
    QTest::newRow("removed with its folder")
        << QStringLiteral("folder") << int(SaveOutcome::Missing) << false;
}

void TestBundleStore::saveNoticesOthers()
{
    QFETCH(QString, change);
    QFETCH(int, outcome);
    QFETCH(bool, keepsTheirs);
    const OpenedBundle bundle = opened();
    QByteArray theirs = fileBytes(m_path);
    QVERIFY(QFile::remove(m_path));
    if (change == QLatin1String("other"))
        theirs = bundleOf(with(sampleFiles(), objectFile, "theirs"));
    if (change == QLatin1String("damaged"))
        theirs.chop(1);
    if (change == QLatin1String("folder"))
        QVERIFY(QDir().rmdir(at(QStringLiteral("books"))));
    else if (change != QLatin1String("removed"))
        putFile(m_path, theirs);
    const FileMap before = filesUnder(at(QStringLiteral("books")));

    const FileMap ours = with(sampleFiles(), objectFile, "ours");
    BundleSave save{m_path, bundle.workingFolder, own(ours), {}, bundle.known};
    SaveReport report = saveBundle(save, m_locations);
    QCOMPARE(int(report.outcome), outcome);
    if (report.outcome != SaveOutcome::Saved) {
        QCOMPARE(filesUnder(at(QStringLiteral("books"))), before);
        QCOMPARE(filesUnder(bundle.workingFolder), sampleFiles());
        save.overwritesOutsideChanges = true;
        report = saveBundle(save, m_locations);
        QCOMPARE(report.outcome, SaveOutcome::Saved);
    }
    QCOMPARE(fileBytes(m_path), bundleOf(ours));
    QCOMPARE(!report.backupPath.isEmpty(), keepsTheirs);
    QCOMPARE(backups().size(), keepsTheirs ? 1 : 0);
    if (keepsTheirs)
        QCOMPARE(fileBytes(report.backupPath), theirs);
}

void TestBundleStore::saveWithoutPlace()
{
    QCOMPARE(saveBundle({{}, {}, own(sampleFiles()), {}, {}}, m_locations).message,
             QStringLiteral("This project has no save location yet; use saveAs()."));
    QCOMPARE(reloadBundle({}, m_locations).message(),
             QStringLiteral("This project has no save location to reload from."));
}

void TestBundleStore::saveFailsAndCopyStays()
{
    const OpenedBundle bundle = opened();
    QVERIFY(QFile::remove(m_path));
    QVERIFY(QDir().mkpath(m_path + QStringLiteral("/in the way")));
    BundleSave save{m_path,
                    bundle.workingFolder,
                    own(with(sampleFiles(), objectFile, "new")),
                    {},
                    bundle.known};
    QCOMPARE(saveBundle(save, m_locations).outcome, SaveOutcome::ChangedOutside);
    save.overwritesOutsideChanges = true;
    const SaveReport report = saveBundle(save, m_locations);
    QCOMPARE(report.outcome, SaveOutcome::Failed);
    QVERIFY(report.message.endsWith(QDir::toNativeSeparators(m_path)));
    QCOMPARE(report.known.sha256, bundle.known.sha256);
    QCOMPARE(filesUnder(bundle.workingFolder), sampleFiles());
    QCOMPARE(markedSum(bundle), bundle.known.sha256);
    QCOMPARE(namesIn(at(QStringLiteral("books"))).size(), 1);
}

void TestBundleStore::saveWithoutCopyTakesTheBundlesAssets()
{
    const OpenedBundle bundle = opened();
    QVERIFY(QDir(bundle.workingFolder).removeRecursively());
    const FileMap wanted = with(sampleFiles(), objectFile, "new");
    const SaveReport report =
        saveBundle({m_path, bundle.workingFolder, own(wanted), {}, bundle.known}, m_locations);
    QVERIFY2(report.outcome == SaveOutcome::Saved, qPrintable(report.message));
    QCOMPARE(fileBytes(m_path), bundleOf(wanted));
    QCOMPARE(filesUnder(bundle.workingFolder), wanted);
}

void TestBundleStore::brokenCopyDoesNotFailTheSave()
{
    const OpenedBundle bundle = opened();
    // A folder where a file of the copy should go: the words are in the bundle all the same.
    QVERIFY(QFile::remove(bundle.workingFolder + QLatin1Char('/') + objectFile));
    QVERIFY(QDir().mkpath(bundle.workingFolder + QLatin1Char('/') + objectFile));
    const FileMap wanted = with(sampleFiles(), objectFile, "new");
    const SaveReport report =
        saveBundle({m_path, bundle.workingFolder, own(wanted), {}, bundle.known}, m_locations);
    QCOMPARE(report.outcome, SaveOutcome::Saved);
    QVERIFY(report.message.endsWith(QDir::toNativeSeparators(bundle.workingFolder)));
    QCOMPARE(fileBytes(m_path), bundleOf(wanted));
    QCOMPARE(report.known.sha256, Sha256::of(fileBytes(m_path)));
    QVERIFY(!QFileInfo::exists(bundle.workingFolder + QStringLiteral(".json")));
    QCOMPARE(opened().files, own(wanted));
    QCOMPARE(fileBytes(m_path), bundleOf(wanted));
}

// A save runs beside the interface thread, where an asset may be half written.
void TestBundleStore::saveLeavesAssetsBeingImported()
{
    const OpenedBundle bundle = opened();
    AtomicFile import(bundle.workingFolder + QStringLiteral("/assets/new.png"), {});
    QVERIFY(import.open() && import.write("imported"));
    const FileMap wanted = with(sampleFiles(), objectFile, "second");
    const SaveReport report =
        saveBundle({m_path, bundle.workingFolder, own(wanted), {}, bundle.known}, m_locations);
    QVERIFY2(report.outcome == SaveOutcome::Saved, qPrintable(report.message));
    QCOMPARE(fileBytes(m_path), bundleOf(wanted));
    QVERIFY(import.commit());
    // Until the next save the copy is ahead of the bundle, which the next opening would make good.
    QCOMPARE(opened().origin, WorkingCopyOrigin::Restored);
    QCOMPARE(fileBytes(m_path),
             bundleOf(with(wanted, QStringLiteral("assets/new.png"), "imported")));
}

void TestBundleStore::saveAs_data()
{
    QTest::addColumn<QByteArray>("older");
    QTest::newRow("over another project") << bundleOf({{records, "another project"}});
    QTest::newRow("over a damaged one") << bundleOf({{records, "another project"}}).chopped(1);
}

void TestBundleStore::saveAs()
{
    QFETCH(QByteArray, older);
    const OpenedBundle bundle = opened();
    const QString other = at(QStringLiteral("elsewhere/Copy.vellum"));
    putFile(other, older);
    const FileMap wanted = with(sampleFiles(), objectFile, "new");
    const Result<OpenedBundle> copy =
        saveBundleAs({other, {}, own(wanted), {}, {}}, bundle.workingFolder, m_locations);
    QVERIFY(copy);
    QVERIFY(copy->workingFolder != bundle.workingFolder);
    QCOMPARE(fileBytes(other), bundleOf(wanted));
    QCOMPARE(filesUnder(copy->workingFolder), wanted);
    QCOMPARE(fileBytes(m_path), bundleOf(sampleFiles()));
    QCOMPARE(filesUnder(bundle.workingFolder), sampleFiles());
    QCOMPARE(backups().size(), 1);
    QCOMPARE(fileBytes(m_locations.backupFolder() + QLatin1Char('/') + backups().constFirst()),
             older);
}

void TestBundleStore::reload_data()
{
    QTest::addColumn<bool>("theirsChanged");
    QTest::addColumn<bool>("oursChanged");
    QTest::newRow("nothing changed") << false << false;
    QTest::newRow("bundle replaced") << true << false;
    QTest::newRow("copy changed") << false << true;
    QTest::newRow("both") << true << true;
}

void TestBundleStore::reload()
{
    QFETCH(bool, theirsChanged);
    QFETCH(bool, oursChanged);
    const OpenedBundle bundle = opened();
    const FileMap theirs =
        theirsChanged ? with(sampleFiles(), objectFile, "theirs") : sampleFiles();
    const FileMap ours = oursChanged ? with(sampleFiles(), asset, "ours") : sampleFiles();
    putFile(m_path, bundleOf(theirs));
    putFiles(bundle.workingFolder, ours);
    const Result<OpenedBundle> again = reloadBundle(m_path, m_locations);
    QVERIFY(again);
    QCOMPARE(fileBytes(m_path), bundleOf(theirs));
    QCOMPARE(filesUnder(again->workingFolder), theirs);
    QCOMPARE(again->files, own(theirs));
    QCOMPARE(markedSum(*again), Sha256::of(fileBytes(m_path)));
    QCOMPARE(backups().size(), theirs == ours ? 0 : 1);
    if (theirs != ours)
        QCOMPARE(fileBytes(again->backupPath), bundleOf(ours));

    for (const QByteArray &broken : {QByteArray(), bundleOf(theirs).chopped(9)}) {
        QFile::remove(m_path);
        if (!broken.isEmpty())
            putFile(m_path, broken);
        QCOMPARE(reloadBundle(m_path, m_locations).message(),
                 QStringLiteral("The project file is not readable right now; try again."));
    }
    QCOMPARE(filesUnder(again->workingFolder), theirs);
}

void TestBundleStore::backupsAreThinned_data()
{
    QTest::addColumn<QString>("baseName");
    QTest::addColumn<qint64>("step"); // of the clock, in milliseconds, from one backup to the next
    QTest::newRow("the clock goes on") << QStringLiteral("Novel") << qint64(1);
    QTest::newRow("the clock stands still") << QStringLiteral("Novel") << qint64(0);
    QTest::newRow("the clock runs back") << QStringLiteral("Novel") << qint64(-86400000);
    QTest::newRow("a name that is a pattern") << QStringLiteral("[draft]*") << qint64(5);
}

void TestBundleStore::backupsAreThinned()
{
    QFETCH(QString, baseName);
    QFETCH(qint64, step);
    const Backups store = m_locations.backups();
    // Of other names, however much they look alike.
    QStringList others;
    for (const char *name :
         {"%1-2-20200101T000000000Z-0000.vlbackup", "%1-20200101T000000000Z-000.vlbackup",
          "%1-20201301T000000000Z-0000.vlbackup", "%1-20200101T000000000Z-0000.vlbackup.txt",
          "d-20200101T000000000Z-0000.vlbackup", "%1-mine.vlbackup"}) {
        QString other = QString::fromLatin1(name);
        other.replace(QStringLiteral("%1"), baseName);
        putFile(m_locations.backupFolder() + QLatin1Char('/') + other, "other");
        others.append(other);
    }
    QStringList made;
    for (int i = 0; i < 18; ++i) {
        const Result<QString> path = store.addBytes(baseName, QByteArray::number(i));
        QVERIFY(path);
        QVERIFY2(made.isEmpty() || *path > made.last(), qPrintable(*path));
        made.append(*path);
        m_now = m_now.addMSecs(step);
        QCOMPARE(store.list(baseName), made.mid(qMax(0, int(made.size()) - Backups::kept)));
        QCOMPARE(fileBytes(*path), QByteArray::number(i));
    }
    for (const QString &other : others)
        QVERIFY2(backups().contains(other), qPrintable(other));
}

void TestBundleStore::names_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("baseName");
    QTest::newRow("plain") << QStringLiteral("/a/Novel.vellum") << QStringLiteral("Novel");
    QTest::newRow("two extensions")
        << QStringLiteral("/a/Novel.v2.vellum") << QStringLiteral("Novel.v2");
    QTest::newRow("letters of all scripts")
        << QStringLiteral("/a/Ünïcode 小説.vellum") << QStringLiteral("Ünïcode 小説");
    QTest::newRow("not safe") << QStringLiteral("/a/a:b?c*\td.vellum")
                              << QStringLiteral("a_b_c__d");
    QTest::newRow("only an extension") << QStringLiteral("/a/.vellum") << QStringLiteral("project");
    QTest::newRow("dots and blanks around")
        << QStringLiteral("/a/.. x ..vellum") << QStringLiteral("x");
    QTest::newRow("long") << QStringLiteral("/a/") + QString(240, QChar(u'é'))
                                 + QStringLiteral(".vellum")
                          << QString(75, QChar(u'é'));
}

void TestBundleStore::names()
{
    QFETCH(QString, path);
    QFETCH(QString, baseName);
    QCOMPARE(bundleBaseName(path), baseName);
    const QString folder = WorkingCopy::of(path, m_locations).folder();
    QCOMPARE(folder, m_locations.workingFolder() + QLatin1Char('/') + baseName + QLatin1Char('-')
                         + QString::fromLatin1(Sha256::of(path.toLower().toUtf8()).first(12)));
}

void TestBundleStore::pathsDifferingInCase()
{
    const QString twin = at(QStringLiteral("Books/Nóvel.vellum"));
    const OpenedBundle first = opened();
    putFile(first.workingFolder + QLatin1Char('/') + asset, "unsaved");
    putFile(twin, bundleOf(with(sampleFiles(), objectFile, "another book")));
    if (fileBytes(m_path) == fileBytes(twin))
        QSKIP("this file system does not tell the two paths apart");
    const Result<OpenedBundle> second = openBundle(twin, m_locations);
    QVERIFY(second);
    QVERIFY(second->workingFolder != first.workingFolder);
    QCOMPARE(fileBytes(first.workingFolder + QLatin1Char('/') + asset), QByteArray("unsaved"));
    QCOMPARE(opened().workingFolder, first.workingFolder);
    QCOMPARE(fileBytes(m_path), bundleOf(with(sampleFiles(), asset, "unsaved")));
    QCOMPARE(openBundle(twin, m_locations)->workingFolder, second->workingFolder);
    // A folder renamed in case only: the bundle finds the copy it had.
    QVERIFY(QFile::remove(twin));
    QVERIFY(QFile::rename(m_path, twin));
    QCOMPARE(openBundle(twin, m_locations)->workingFolder, first.workingFolder);
}

QTEST_GUILESS_MAIN(TestBundleStore)
#include "tst_bundlestore.moc"
