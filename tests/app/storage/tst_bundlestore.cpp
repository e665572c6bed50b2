#include "tests/app/storage/bundlefixture.h"

#include <QtTest/QtTest>

using namespace vl::app;
using namespace vl::test;

class TestBundleStore : public QObject, protected BundleFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(setUp()); }
    void open_data();
    void open();
    void openFails_data();
    void openFails();
    void interruptedOpeningIsCleared();
    void reload_data();
    void reload();
    void backupsAreThinned_data();
    void backupsAreThinned();
    void names_data();
    void names();
    void pathsDifferingInCase();

private:
    void putMarker(const QString &folder, const QString &bundlePath, const QByteArray &sum) const;
};

void TestBundleStore::putMarker(const QString &folder, const QString &bundlePath,
                                const QByteArray &sum) const
{
    const QJsonObject marker{{QStringLiteral("bundlePath"), bundlePath},
                             {QStringLiteral("bundleSha256"), QString::fromLatin1(sum)}};
    putFile(folder + QStringLiteral(".json"), QJsonDocument(marker).toJson());
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
