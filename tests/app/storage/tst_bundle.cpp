#include "app/storage/bundle.h"
#include "app/storage/projectfolder.h"
#include "tests/support/folders.h"
#include "tests/support/zipbuilder.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace vl::app;
using namespace vl::test;

namespace {

const QString objectFile = QStringLiteral("objects/0f8b2a34-5c6d-4e7f-8a9b-0c1d2e3f4a5b.json");
const QString otherObject = QStringLiteral("objects/1a2b3c4d-5e6f-4a7b-8c9d-0e1f2a3b4c5d.json");

FileMap sampleFiles()
{
    return {{QStringLiteral(".hidden/.too"), "h"},
            {QStringLiteral("assets/map.png"), QByteArray(70000, '\x89')},
            {QStringLiteral("assets/née/deep/er.txt"), ""},
            {objectFile, "{\n}\n"},
            {QStringLiteral("objects/note.txt"), "not an object"},
            {QStringLiteral("project.json"), "{}"}};
}

QString native(const QString &message, const QString &path)
{
    return message.arg(QDir::toNativeSeparators(path));
}

} // namespace

class TestBundle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void packedFolderComesBack();
    void packingIsRepeatable();
    void bundleInItsOwnFolder();
    void packRefuses_data();
    void packRefuses();
    void tooManyFilesLeaveTheOldBundle();
    void unfinishedWritesAreNotPacked();
    void projectFilesReplaceThoseOfTheFolder();
    void extractRefuses_data();
    void extractRefuses();
    void hostileArchivesWriteNothing_data();
    void hostileArchivesWriteNothing();
    void failedExtractionLeavesNothing();
    void comparison_data();
    void comparison();
    void paths_data();
    void paths();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestBundle::init()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/bündles of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
}

void TestBundle::packedFolderComesBack()
{
    const QString bundle = at(QStringLiteral("new folder/Novel.vellum"));
    putFiles(at(QStringLiteral("project")), sampleFiles());
    QVERIFY(QDir().mkpath(at(QStringLiteral("project/empty/folder"))));
    QVERIFY(packFolder(at(QStringLiteral("project")), bundle));
    QCOMPARE(fileBytes(bundle), *packFolder(at(QStringLiteral("project"))));
    QCOMPARE(namesIn(at(QStringLiteral("new folder"))),
             QStringList{QStringLiteral("Novel.vellum")});

    QVERIFY(QDir().mkpath(at(QStringLiteral("empty"))));
    for (const QString &target :
         {at(QStringLiteral("made/on/the/way")), at(QStringLiteral("empty"))}) {
        QVERIFY(extractBundle(bundle, target));
        QCOMPARE(filesUnder(target), sampleFiles());
        QCOMPARE(*packFolder(target), fileBytes(bundle));
    }
}

void TestBundle::packingIsRepeatable()
{
    // Made in another order, at another time, with other modes: the same bytes.
    const FileMap files = sampleFiles();
    putFiles(at(QStringLiteral("one")), files);
    const QStringList paths = files.keys();
    for (auto it = paths.crbegin(); it != paths.crend(); ++it)
        putFile(at(QStringLiteral("two/") + *it), files.value(*it));
    QFile changed(at(QStringLiteral("two/project.json")));
    QVERIFY(changed.open(QIODevice::ReadWrite));
    QVERIFY(changed.setFileTime(QDateTime(QDate(2001, 2, 3), QTime(4, 5)),
                                QFileDevice::FileModificationTime));
    QVERIFY(changed.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    QCOMPARE(*packFolder(at(QStringLiteral("one"))), *packFolder(at(QStringLiteral("two"))));
}

void TestBundle::bundleInItsOwnFolder()
{
    const QString folder = at(QStringLiteral("project"));
    putFiles(folder, sampleFiles());
    const QByteArray wanted = *packFolder(folder);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(packFolder(folder, folder + QStringLiteral("/Novel.vellum")));
        QCOMPARE(fileBytes(folder + QStringLiteral("/Novel.vellum")), wanted);
    }
}

void TestBundle::packRefuses_data()
{
    QTest::addColumn<QString>("trouble");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("path");
    const QString unreadable = QStringLiteral("Could not read a project file: %1");
    QTest::newRow("no folder") << "absent"
                               << QStringLiteral("The project folder does not exist: %1")
                               << QStringLiteral("project");
    QTest::newRow("a file in its place")
        << "file" << QStringLiteral("The project folder does not exist: %1")
        << QStringLiteral("project");
    QTest::newRow("no project.json")
        << "no records"
        << QStringLiteral("The folder is not an Ivorel project (no project.json): %1")
        << QStringLiteral("project");
#ifdef Q_OS_UNIX
    const QString thing = QStringLiteral("project/assets/thing");
    QTest::newRow("a link to a file") << "link to file" << unreadable << thing;
    QTest::newRow("a link to a folder") << "link to folder" << unreadable << thing;
    QTest::newRow("a link to nothing") << "link to nothing" << unreadable << thing;
    QTest::newRow("a pipe") << "pipe" << unreadable << thing;
    QTest::newRow("a backslash in a name")
        << "backslash" << unreadable << QStringLiteral("project/a\\b");
    QTest::newRow("project.json is a link")
        << "records link" << unreadable << QStringLiteral("project/project.json");
#endif
}

void TestBundle::packRefuses()
{
    QFETCH(QString, trouble);
    QFETCH(QString, message);
    QFETCH(QString, path);
    const QString folder = at(QStringLiteral("project"));
    if (trouble == QLatin1String("file"))
        putFile(folder, "x");
    else if (trouble != QLatin1String("absent"))
        putFiles(folder, sampleFiles());
    if (trouble == QLatin1String("no records"))
        QVERIFY(QFile::rename(folder + QStringLiteral("/project.json"),
                              folder + QStringLiteral("/Project.json")));
#ifdef Q_OS_UNIX
    const QString thing = folder + QStringLiteral("/assets/thing");
    if (trouble == QLatin1String("link to file"))
        QVERIFY(QFile::link(QStringLiteral("map.png"), thing));
    if (trouble == QLatin1String("link to folder"))
        QVERIFY(QFile::link(QStringLiteral("."), thing));
    if (trouble == QLatin1String("link to nothing"))
        QVERIFY(QFile::link(QStringLiteral("nothing"), thing));
    if (trouble == QLatin1String("pipe"))
        QCOMPARE(::mkfifo(QFile::encodeName(thing).constData(), 0600), 0);
    if (trouble == QLatin1String("backslash"))
        putFile(folder + QStringLiteral("/a\\b"), "x");
    if (trouble == QLatin1String("records link")) {
        QVERIFY(QFile::remove(folder + QStringLiteral("/project.json")));
        QVERIFY(QFile::link(objectFile, folder + QStringLiteral("/project.json")));
    }
#endif
    const QString bundle = at(QStringLiteral("out/Novel.vellum"));
    putFile(bundle, "old");
    const Result<> result = packFolder(folder, bundle);
    QVERIFY(result.hasFailed());
    QCOMPARE(result.message(), native(message, at(path)));
    QCOMPARE(filesUnder(at(QStringLiteral("out"))),
             (FileMap{{QStringLiteral("Novel.vellum"), "old"}}));
}

void TestBundle::tooManyFilesLeaveTheOldBundle()
{
    ProjectFiles files{{QStringLiteral("project.json"), "{}"}};
    for (int i = 0; i < 65534; ++i)
        files.push_back({QStringLiteral("objects/%1").arg(i), {}});
    const QString bundle = at(QStringLiteral("Novel.vellum"));
    {
        const Result<BundleSource> source = BundleSource::ofProject(files, {}, {});
        QVERIFY(source);
        BundleWriter writer(bundle);
        QVERIFY(writer.write(*source));
        QVERIFY(readBundle(bundle));
    }
    const QByteArray before = fileBytes(bundle);
    files.push_back({QStringLiteral("one too many"), {}});
    const Result<BundleSource> source = BundleSource::ofProject(files, {}, {});
    QVERIFY(source);
    BundleWriter writer(bundle);
    const Result<> result = writer.write(*source);
    QVERIFY(result.hasFailed());
    QVERIFY(result.message().contains(QStringLiteral("65535")));
    QVERIFY(result.message().endsWith(QDir::toNativeSeparators(bundle)));
    QVERIFY(!writer.written());
    QCOMPARE(fileBytes(bundle), before);
}

void TestBundle::unfinishedWritesAreNotPacked()
{
    putFiles(at(QStringLiteral("project")), sampleFiles());
    const QByteArray wanted = *packFolder(at(QStringLiteral("project")));
    AtomicFile unfinished(at(QStringLiteral("project/assets/map.png")), {});
    QVERIFY(unfinished.open());
    QCOMPARE(filesUnder(at(QStringLiteral("project"))).size(), sampleFiles().size() + 1);
    QCOMPARE(*packFolder(at(QStringLiteral("project"))), wanted);
    removeUnfinishedFilesUnder(at(QStringLiteral("project")));
    QCOMPARE(filesUnder(at(QStringLiteral("project"))), sampleFiles());
}

void TestBundle::projectFilesReplaceThoseOfTheFolder()
{
    const QString folder = at(QStringLiteral("project"));
    FileMap there = sampleFiles();
    there.insert(otherObject, "gone");
    there.insert(QStringLiteral("objects/stray.json"), "was read");
    there.insert(QStringLiteral("objects/unknown.json"), "came later");
    putFiles(folder, there);
    // As the project would be written into an empty folder, with what is not the model's beside it.
    FileMap wanted = sampleFiles();
    wanted.insert(QStringLiteral("objects/unknown.json"), "came later");
    wanted.insert(objectFile, "new");
    wanted.insert(QStringLiteral("project.json"), "{new}");
    putFiles(at(QStringLiteral("wanted")), wanted);

    const ProjectFiles files{{QStringLiteral("project.json"), "{new}"}, {objectFile, "new"}};
    const Result<BundleSource> source = BundleSource::ofProject(
        files, folder,
        {objectFile, QStringLiteral("objects/stray.json"), QStringLiteral("project.json")});
    QVERIFY(source);
    BundleWriter writer(at(QStringLiteral("Novel.vellum")));
    QVERIFY(writer.write(*source));
    QCOMPARE(fileBytes(at(QStringLiteral("Novel.vellum"))),
             *packFolder(at(QStringLiteral("wanted"))));
    QStringList gone = source->goneFiles();
    gone.sort();
    QCOMPARE(gone, (QStringList{folder + QLatin1Char('/') + otherObject,
                                folder + QStringLiteral("/objects/stray.json")}));
}

void TestBundle::extractRefuses_data()
{
    QTest::addColumn<QByteArray>("bundle");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("path");
    const QByteArray good = ZipArchive{{ZipEntry{"project.json", "{}"}}}.bytes();
    const QString invalid = QStringLiteral("Not a valid Ivorel project file: %1");
    const QString novel = QStringLiteral("Novel.vellum");
    const QString target = QStringLiteral("target");
    QTest::newRow("no bundle") << QByteArray() << target
                               << QStringLiteral("Could not open the project file: %1") << novel;
    QTest::newRow("no archive") << QByteArray("PK and so on") << target << invalid << novel;
    QTest::newRow("no project.json")
        << ZipArchive{{ZipEntry{"a/project.json", "{}"}}}.bytes() << target << invalid << novel;
    QTest::newRow("a folder project.json")
        << ZipArchive{{ZipEntry{"project.json/"}}}.bytes() << target << invalid << novel;
    QTest::newRow("cut") << good.chopped(1) << target << invalid << novel;
    QTest::newRow("target not empty")
        << good << QStringLiteral("full")
        << QStringLiteral("The extraction folder is not empty: %1") << QStringLiteral("full");
    QTest::newRow("target holds a hidden file")
        << good << QStringLiteral("hidden")
        << QStringLiteral("The extraction folder is not empty: %1") << QStringLiteral("hidden");
    QTest::newRow("target is a file")
        << good << QStringLiteral("full/file") << QStringLiteral("Could not create the folder: %1")
        << QStringLiteral("full/file");
    QTest::newRow("target in a file")
        << good << QStringLiteral("full/file/a/b")
        << QStringLiteral("Could not create the folder: %1") << QStringLiteral("full/file/a/b");
}

void TestBundle::extractRefuses()
{
    QFETCH(QByteArray, bundle);
    QFETCH(QString, target);
    QFETCH(QString, message);
    QFETCH(QString, path);
    if (!bundle.isEmpty())
        putFile(at(QStringLiteral("Novel.vellum")), bundle);
    putFile(at(QStringLiteral("full/file")), "x");
    putFile(at(QStringLiteral("hidden/.file")), "x");
    const FileMap before = filesUnder(m_folder->path());
    const Result<> result = extractBundle(at(QStringLiteral("Novel.vellum")), at(target));
    QVERIFY(result.hasFailed());
    QCOMPARE(result.message(), native(message, at(path)));
    QCOMPARE(filesUnder(m_folder->path()), before);
    QVERIFY(!QFileInfo::exists(at(QStringLiteral("target"))));
}

void TestBundle::hostileArchivesWriteNothing_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<quint32>("attributes");
    QTest::newRow("climbing") << QByteArray("../climbed") << 0U;
    QTest::newRow("climbing later") << QByteArray("assets/../../climbed") << 0U;
    QTest::newRow("absolute") << QByteArray("/tmp/ivorel-climbed") << 0U;
    QTest::newRow("drive") << QByteArray("C:/climbed") << 0U;
    QTest::newRow("backslashes") << QByteArray("..\\climbed") << 0U;
    QTest::newRow("a link") << QByteArray("assets/link") << (0120777U << 16);
    QTest::newRow("project.json as a folder") << QByteArray("project.json/x") << 0U;
    QTest::newRow("project.json again") << QByteArray("project.json") << 0U;
}

void TestBundle::hostileArchivesWriteNothing()
{
    QFETCH(QByteArray, name);
    QFETCH(quint32, attributes);
    ZipEntry evil{name, "evil"};
    evil.externalAttributes = attributes;
    const QString bundle = at(QStringLiteral("Novel.vellum"));
    putFile(bundle, ZipArchive{{ZipEntry{"project.json", "{}"}, ZipEntry{"a", "x"}, evil}}.bytes());
    const Result<> result = extractBundle(bundle, at(QStringLiteral("in/target")));
    QVERIFY(result.hasFailed());
    QCOMPARE(result.message(),
             native(QStringLiteral("Not a valid Ivorel project file: %1"), bundle));
    QCOMPARE(namesIn(m_folder->path()), QStringList{QStringLiteral("Novel.vellum")});
    QVERIFY(!QFileInfo::exists(QStringLiteral("/tmp/ivorel-climbed")));
}

void TestBundle::failedExtractionLeavesNothing()
{
    // A name that no file system takes, after others that it does.
    const QString bundle = at(QStringLiteral("Novel.vellum"));
    const auto refused = [&](const QByteArray &name, const char *message) {
        putFile(bundle, ZipArchive{{ZipEntry{"project.json", "{}"}, ZipEntry{"a/b/c", "x"},
                                    ZipEntry{name, "y"}}}
                            .bytes());
        const Result<> result = extractBundle(bundle, at(QStringLiteral("in/target")));
        QVERIFY(result.hasFailed());
        QCOMPARE(result.message(), native(QString::fromLatin1(message),
                                          pathInFolder(at(QStringLiteral("in/target")), name)));
        QCOMPARE(namesIn(m_folder->path()), QStringList{QStringLiteral("Novel.vellum")});
    };
    refused(QByteArray(300, 'z'), "Could not write a project file: %1");
    refused("z/" + QByteArray(300, 'z') + "/z", "Could not create the folder for: %1");
    refused(QByteArray("zz/").repeated(20000) + "z", "Could not create the folder for: %1");
}

void TestBundle::comparison_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("result");
    QTest::newRow("none") << QString() << int(FolderComparison::Same);
    QTest::newRow("an empty folder more")
        << QStringLiteral("folder") << int(FolderComparison::Same);
    QTest::newRow("other bytes") << QStringLiteral("bytes") << int(FolderComparison::Different);
    QTest::newRow("a file more at the end")
        << QStringLiteral("more") << int(FolderComparison::Different);
    QTest::newRow("a file less") << QStringLiteral("less") << int(FolderComparison::Different);
    QTest::newRow("the archive in other order")
        << QStringLiteral("order") << int(FolderComparison::Different);
    QTest::newRow("no project.json")
        << QStringLiteral("no records") << int(FolderComparison::Unreadable);
#ifdef Q_OS_UNIX
    QTest::newRow("a link after a difference")
        << QStringLiteral("link") << int(FolderComparison::Unreadable);
#endif
}

void TestBundle::comparison()
{
    QFETCH(QString, change);
    QFETCH(int, result);
    const QString folder = at(QStringLiteral("project"));
    putFiles(folder, sampleFiles());
    QByteArray bytes = *packFolder(folder);
    if (change == QLatin1String("folder"))
        QVERIFY(QDir().mkpath(folder + QStringLiteral("/zz")));
    if (change == QLatin1String("bytes") || change == QLatin1String("link"))
        putFile(folder + QStringLiteral("/.hidden/.too"), "i");
    if (change == QLatin1String("more"))
        putFile(folder + QStringLiteral("/zz"), "");
    if (change == QLatin1String("less"))
        QVERIFY(QFile::remove(folder + QStringLiteral("/.hidden/.too")));
    if (change == QLatin1String("no records"))
        QVERIFY(QFile::remove(folder + QStringLiteral("/project.json")));
    if (change == QLatin1String("link"))
        QVERIFY(QFile::link(QStringLiteral("x"), folder + QStringLiteral("/zz")));
    if (change == QLatin1String("order")) {
        const FileMap files = sampleFiles();
        std::vector<ZipEntry> entries;
        for (auto it = files.begin(); it != files.end(); ++it)
            entries.insert(entries.begin(), ZipEntry{it.key().toUtf8(), it.value()});
        bytes = ZipArchive{entries}.bytes();
    }
    const std::optional<Archive> archive = Archive::parse(bytes);
    QVERIFY(archive);
    QCOMPARE(int(compareFolder(folder, *archive)), result);
}

void TestBundle::paths_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<bool>("own");
    QTest::addColumn<bool>("read");
    QTest::newRow("records") << QByteArray("project.json") << true << true;
    QTest::newRow("object") << objectFile.toUtf8() << true << true;
    QTest::newRow("category") << QByteArray("taxonomy/0f8b2a34-5c6d-4e7f-8a9b-0c1d2e3f4a5b.json")
                              << true << true;
    QTest::newRow("another name") << QByteArray("objects/mine.json") << false << true;
    QTest::newRow("upper case") << objectFile.toUpper().toUtf8().replace("OBJECTS", "objects")
                                << false << true;
    QTest::newRow("another ending") << QByteArray("objects/mine.txt") << false << false;
    QTest::newRow("hidden") << QByteArray("objects/.json.json") << false << false;
    QTest::newRow("deeper") << QByteArray("objects/a/0f8b2a34-5c6d-4e7f-8a9b-0c1d2e3f4a5b.json")
                            << false << false;
    QTest::newRow("asset") << QByteArray("assets/0f8b2a34-5c6d-4e7f-8a9b-0c1d2e3f4a5b.json")
                           << false << false;
    QTest::newRow("elsewhere") << QByteArray("a/project.json") << false << false;
}

void TestBundle::paths()
{
    QFETCH(QByteArray, path);
    QTEST(isOwnPath(path), "own");
    QTEST(isReadPath(path), "read");
}

QTEST_GUILESS_MAIN(TestBundle)
#include "tst_bundle.moc"
