#include "tests/app/storage/bundlefixture.h"
#include "tests/support/zipbuilder.h"

#include <QtTest/QtTest>

using namespace vl::app;
using namespace vl::test;

class TestBundleSave : public QObject, protected BundleFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(setUp()); }
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
};

void TestBundleSave::deflatedBundleIsReplacedOnSave()
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

void TestBundleSave::save()
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

void TestBundleSave::saveRemovesWhatIsGone()
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

void TestBundleSave::saveNoticesOthers_data()
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

void TestBundleSave::saveNoticesOthers()
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

void TestBundleSave::saveWithoutPlace()
{
    QCOMPARE(saveBundle({{}, {}, own(sampleFiles()), {}, {}}, m_locations).message,
             QStringLiteral("This project has no save location yet; use saveAs()."));
    QCOMPARE(reloadBundle({}, m_locations).message(),
             QStringLiteral("This project has no save location to reload from."));
}

void TestBundleSave::saveFailsAndCopyStays()
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

void TestBundleSave::saveWithoutCopyTakesTheBundlesAssets()
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

void TestBundleSave::brokenCopyDoesNotFailTheSave()
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
void TestBundleSave::saveLeavesAssetsBeingImported()
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

void TestBundleSave::saveAs_data()
{
    QTest::addColumn<QByteArray>("older");
    QTest::newRow("over another project") << bundleOf({{records, "another project"}});
    QTest::newRow("over a damaged one") << bundleOf({{records, "another project"}}).chopped(1);
}

void TestBundleSave::saveAs()
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

QTEST_GUILESS_MAIN(TestBundleSave)
#include "tst_bundlesave.moc"
