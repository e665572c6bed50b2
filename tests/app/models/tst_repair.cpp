#include "app/base/settings.h"
#include "app/models/backupkeeper.h"
#include "app/models/projectflows.h"
#include "app/models/readablefile.h"
#include "app/models/readablewords.h"
#include "app/models/workspace.h"
#include "app/storage/archivesalvage.h"
#include "app/storage/bundlestore.h"
#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"
#include "app/storage/repair.h"
#include "app/time/calendartext.h"
#include "core/content/document.h"
#include "tests/support/fakeprompts.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"
#include "tests/support/zipbuilder.h"

#include <QtTest/QtTest>

using namespace vl;
using namespace vl::app;
using namespace vl::test;

namespace {

QString objectFile(quint32 number)
{
    return QStringLiteral("objects/%1.json").arg(numberedId(number).toString());
}

QByteArray documentBytes(quint32 number, const QString &body)
{
    core::Document document(numberedId(number), core::DocumentKind::Prose,
                            QStringLiteral("Scene %1").arg(number));
    document.setBody(body);
    return serializeObject(document);
}

FileMap wholeProject()
{
    return {{objectFile(1), documentBytes(1, QStringLiteral("one"))},
            {objectFile(2), documentBytes(2, QStringLiteral("two"))},
            {QStringLiteral("assets/map.png"), QByteArray("picture PK\3\4 with a mark", 25)},
            {QStringLiteral("project.json"), "{\n}\n"}};
}

QByteArray packed(const FileMap &files)
{
    QTemporaryDir folder;
    putFiles(folder.path(), files);
    return *packFolder(folder.path());
}

} // namespace

class TestRepair : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void leavesOutWhatIsDamaged_data();
    void leavesOutWhatIsDamaged();
    void salvagesArchives_data();
    void salvagesArchives();
    void takesFromTheWorkingCopy();
    void neverWritesOverAnything();
    void repeatedEntries_data();
    void repeatedEntries();
    void setsConflictsAside_data();
    void setsConflictsAside();
    void flow_data();
    void flow();
    void readableFiles_data();
    void readableFiles();
    void everyMemberHasWords_data();
    void everyMemberHasWords();
    void readableVersions();
    void remains_data();
    void remains();
    void tellsWhatIsMissing();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    StorageLocations m_locations;
};

void TestRepair::init()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/répair of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
    m_locations.root = at(QStringLiteral("data"));
}

void TestRepair::leavesOutWhatIsDamaged_data()
{
    QTest::addColumn<FileMap>("damage"); // files put over a whole project
    QTest::addColumn<QString>("leftOut");
    QTest::addColumn<int>("conflicts");

    const QString copy =
        QStringLiteral("objects/%1 (conflicted copy).json").arg(numberedId(1).toString());
    const QString earlier = QStringLiteral("objects/%1 (conflict).json").arg(QStringLiteral("0"));
    const QString category = QStringLiteral("taxonomy/%1.json").arg(numberedId(3).toString());
    QTest::newRow("nothing") << FileMap() << "" << 0;
    QTest::newRow("cut off") << FileMap{{objectFile(2), "{\"id\": \""}} << objectFile(2) << 0;
    QTest::newRow("empty") << FileMap{{objectFile(2), ""}} << objectFile(2) << 0;
    QTest::newRow("unknown kind") << FileMap{{objectFile(2),
                                              "{\"id\": \"" + numberedId(2).toString().toLatin1()
                                                  + "\", \"type\": \"Document\"}"}}
                                  << objectFile(2) << 0;
    QTest::newRow("a sync client's copy")
        << FileMap{{copy, documentBytes(1, QStringLiteral("one, elsewhere"))}} << copy << 1;
    QTest::newRow("a copy that comes first by name")
        << FileMap{{earlier, documentBytes(1, QStringLiteral("one, elsewhere"))}} << earlier << 1;
    QTest::newRow("records") << FileMap{{QStringLiteral("project.json"), "{"}}
                             << QStringLiteral("project.json") << 0;
    QTest::newRow("category") << FileMap{{category, "{\"name\": \"no id\"}"}} << category << 0;
    QTest::newRow("two things") << FileMap{{objectFile(2), "no"}, {category, "no"}}
                                << objectFile(2) + u'|' + category << 0;
}

void TestRepair::leavesOutWhatIsDamaged()
{
    QFETCH(FileMap, damage);
    QFETCH(QString, leftOut);
    QFETCH(int, conflicts);
    const QString folder = at(QStringLiteral("novel"));
    putFiles(folder, wholeProject());
    putFiles(folder, damage);
    const FileMap before = filesUnder(folder);
    QCOMPARE(bool(loadProject(folder)), leftOut.isEmpty());
    const QString bundle = at(QStringLiteral("novel.vellum"));
    putFile(bundle, packed(before));

    for (const QString &source : {folder, bundle}) {
        const Result<ProjectRepair> repair = ProjectRepair::examine(source, m_locations);
        QVERIFY(repair);
        QStringList paths;
        for (const LeftOutFile &file : repair->leftOut()) {
            paths.append(file.path);
            QVERIFY(!file.reason.isEmpty());
        }
        QCOMPARE(paths.join(u'|'), leftOut);
        QCOMPARE(int(repair->conflicts().size()), conflicts);
        for (const QString &target :
             {source + QStringLiteral("-copy"), source + QStringLiteral("-copy.vellum")}) {
            const Result<> written = repair->writeCopy(target);
            QVERIFY2(written, qPrintable(written ? QString() : written.message()));
            const QString unpacked = target + QStringLiteral("-unpacked");
            if (QFileInfo(target).isFile())
                QVERIFY(extractBundle(target, unpacked));
            FileMap expected = before;
            for (const QString &path : std::as_const(paths))
                expected.remove(path);
            if (!expected.contains(QStringLiteral("project.json")))
                expected.insert(QStringLiteral("project.json"), "{\n}\n");
            QCOMPARE(filesUnder(QFileInfo(target).isDir() ? target : unpacked), expected);
        }
    }
    QCOMPARE(filesUnder(folder), before);
}

void TestRepair::salvagesArchives_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("whole");
    QTest::addColumn<QStringList>("damaged");

    const QByteArray archive = packed(wholeProject());
    const QStringList all = wholeProject().keys(); // in the order of the archive
    const QStringList none;
    QTest::newRow("whole") << archive << all << none;
    // The directory takes 46 bytes and the name for each, then 22.
    qint64 directory = 22;
    for (const QString &name : all)
        directory += 46 + name.size();
    QTest::newRow("without its end") << archive.chopped(22) << all << none;
    QTest::newRow("without its directory") << archive.chopped(directory) << all << none;
    QTest::newRow("cut in the last file")
        << archive.chopped(directory + 2) << all.first(3) << QStringList{all.at(3)};
    QByteArray flipped = archive;
    flipped[archive.indexOf("picture")] = 'P';
    QTest::newRow("a wrong byte") << flipped << all.mid(1) << QStringList{all.first()};
    QTest::newRow("a wrong byte and no directory")
        << flipped.chopped(directory) << all.mid(1) << QStringList{all.first()};
    QTest::newRow("bytes in front")
        << QByteArray("PK\3\4junk") + archive.chopped(22) << all << none;
    QTest::newRow("nothing at all") << QByteArray("PK") << none << none;
    QTest::newRow("no archive") << QByteArray(100, 'x') << none << none;
    // Names that lead out of the folder are no files.
    QByteArray outside = archive.chopped(22);
    outside.replace("assets/map.png", "../../map1.png");
    QTest::newRow("outside") << outside << all.mid(1) << none;
}

void TestRepair::salvagesArchives()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, whole);
    QFETCH(QStringList, damaged);
    const SalvagedArchive salvaged = salvageArchive(bytes);
    QStringList names;
    for (const ProjectFile &file : salvaged.files) {
        names.append(file.path);
        QCOMPARE(file.bytes, wholeProject().value(file.path));
    }
    QCOMPARE(names, whole);
    QCOMPARE(salvaged.damaged, damaged);
}

void TestRepair::takesFromTheWorkingCopy()
{
    const QString bundle = at(QStringLiteral("novel.vellum"));
    const QByteArray good = packed(wholeProject());
    putFile(bundle, good);
    QVERIFY(openBundle(bundle, m_locations));
    putFile(bundle, good.first(good.size() / 2)); // what a full disk leaves of a copied file
    const Result<ProjectRepair> repair = ProjectRepair::examine(bundle, m_locations);
    QVERIFY(repair);
    QVERIFY(repair->leftOut().empty());
    QVERIFY(!repair->fromWorkingCopy().isEmpty());
    QVERIFY(repair->writeCopy(at(QStringLiteral("copy"))));
    QCOMPARE(filesUnder(at(QStringLiteral("copy"))), wholeProject());
    QCOMPARE(fileBytes(bundle), good.first(good.size() / 2));
}

void TestRepair::neverWritesOverAnything()
{
    const QString folder = at(QStringLiteral("novel"));
    putFiles(folder, wholeProject());
    const Result<ProjectRepair> repair = ProjectRepair::examine(folder, m_locations);
    putFile(at(QStringLiteral("there.vellum")), "mine");
    QVERIFY(!repair->writeCopy(at(QStringLiteral("there.vellum"))));
    QVERIFY(!repair->writeCopy(folder));
    QCOMPARE(fileBytes(at(QStringLiteral("there.vellum"))), QByteArray("mine"));
    QVERIFY(!ProjectRepair::examine(at(QStringLiteral("nowhere.vellum")), m_locations));
    QVERIFY(!ProjectRepair::examine(at(QStringLiteral("there.vellum")), m_locations));
}

void TestRepair::repeatedEntries_data()
{
    QTest::addColumn<QString>("path"); // of what comes twice
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("last");
    QTest::addColumn<QString>("leftOut");
    const QByteArray one = documentBytes(1, QStringLiteral("one"));
    const QByteArray other = documentBytes(1, QStringLiteral("elsewhere"));
    const QString copy = objectFile(1).chopped(5) + QStringLiteral("-2.json");
    QTest::newRow("a scene, the same") << objectFile(1) << one << one << "";
    QTest::newRow("a scene, another") << objectFile(1) << other << one << copy;
    QTest::newRow("a scene, damaged at first") << objectFile(1) << QByteArray("{") << one << copy;
    QTest::newRow("the records") << "project.json" << QByteArray("{\"pinned\": []}")
                                 << QByteArray("{\n}\n") << "project-2.json";
}

/// Tools that add to an archive leave the older file of a name in it.
void TestRepair::repeatedEntries()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, last);
    QFETCH(QString, leftOut);
    FileMap files = wholeProject();
    ZipArchive archive;
    archive.entries.push_back({path.toUtf8(), first});
    files.insert(path, last);
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        archive.entries.push_back({file.key().toUtf8(), file.value()});
    const QString bundle = at(QStringLiteral("novel.vellum"));
    const QByteArray bytes = archive.bytes();
    putFile(bundle, bytes);
    QVERIFY(!OpenProject::open(bundle));

    const Result<ProjectRepair> repair = ProjectRepair::examine(bundle, m_locations);
    QVERIFY(repair && repair->isOfUse());
    QStringList paths;
    for (const LeftOutFile &file : repair->leftOut())
        paths.append(file.path);
    QCOMPARE(paths.join(u'|'), leftOut);
    QVERIFY(repair->writeCopy(at(QStringLiteral("copy"))));
    QCOMPARE(filesUnder(at(QStringLiteral("copy"))), files);
    QCOMPARE(fileBytes(bundle), bytes);
    const bool isConflict = !leftOut.isEmpty() && first != "{";
    QCOMPARE(int(repair->conflicts().size()), int(isConflict));
    if (!isConflict)
        return;
    QCOMPARE(repair->conflicts().front().bytes, first);
    QVERIFY(repair->hasConflictsOnly());
    QVERIFY(repair->setConflictsAside(m_locations));
    files.insert(QStringLiteral("conflicting copies/") + leftOut.section(u'/', -1), first);
    QVERIFY(extractBundle(bundle, at(QStringLiteral("unpacked"))));
    QCOMPARE(filesUnder(at(QStringLiteral("unpacked"))), files);
    const QStringList backups = m_locations.backups().list(QStringLiteral("novel"));
    QCOMPARE(backups.size(), 1);
    QCOMPARE(fileBytes(backups.first()), bytes);
    // What was put there meanwhile is not written over.
    putFile(bundle, "another one");
    QVERIFY(!repair->setConflictsAside(m_locations));
    QCOMPARE(fileBytes(bundle), QByteArray("another one"));
}

void TestRepair::setsConflictsAside_data()
{
    QTest::addColumn<bool>("asBundle");
    QTest::newRow("folder") << false;
    QTest::newRow("bundle") << true;
}

void TestRepair::setsConflictsAside()
{
    QFETCH(bool, asBundle);
    FileMap files = wholeProject();
    const QString name = QStringLiteral("Scene (conflicted copy).json");
    files.insert(QStringLiteral("objects/") + name, documentBytes(1, QStringLiteral("elsewhere")));
    files.insert(QStringLiteral("conflicting copies/") + name, "an earlier one");
    QString path = at(QStringLiteral("novel"));
    putFiles(path, files);
    if (asBundle) {
        path += QStringLiteral(".vellum");
        putFile(path, packed(files));
    }
    const Result<ProjectRepair> repair = ProjectRepair::examine(path, m_locations);
    QVERIFY(repair && repair->hasConflictsOnly());
    QVERIFY(repair->setConflictsAside(m_locations));
    files.insert(QStringLiteral("conflicting copies/Scene (conflicted copy)-2.json"),
                 files.take(QStringLiteral("objects/") + name));
    QString folder = path;
    if (asBundle) {
        folder = at(QStringLiteral("unpacked"));
        QVERIFY(extractBundle(path, folder));
        QCOMPARE(m_locations.backups().list(QStringLiteral("novel")).size(), 1);
    }
    QCOMPARE(filesUnder(folder), files);
    QVERIFY(loadProject(folder));
}

void TestRepair::flow_data()
{
    QTest::addColumn<DamageAnswer>("answer");
    QTest::addColumn<QString>("opened"); // the file that is open in the end
    QTest::newRow("close") << DamageAnswer::Close << "";
    QTest::newRow("backup") << DamageAnswer::OpenBackup << "chosen.vellum";
    QTest::newRow("repaired copy") << DamageAnswer::RepairedCopy << "chosen.vellum";
    QTest::newRow("set aside") << DamageAnswer::SetAside << "novel";
}

void TestRepair::flow()
{
    QFETCH(DamageAnswer, answer);
    QFETCH(QString, opened);
    Settings settings(at(QStringLiteral("settings.ini")));
    FakePrompts prompts;
    Workspace workspace;
    ProjectFlows flows(workspace, prompts, settings);
    const QString folder = at(QStringLiteral("novel"));
    putFiles(folder, wholeProject());
    const AutoBackups backups(folder, StorageLocations::standard(), &summarizeBackup);
    QVERIFY(backups.add({folder, {}}, BackupReason::Opened));
    putFile(folder + QStringLiteral("/objects/copy.json"), documentBytes(1, QString()));
    prompts.damageAnswer = answer;
    prompts.path = at(QStringLiteral("chosen.vellum"));
    QCOMPARE(flows.open(folder), !opened.isEmpty());
    QCOMPARE(prompts.damaged.size(), 1);
    QVERIFY(prompts.damaged.first().hasBackup);
    QCOMPARE(prompts.damaged.first().conflicts.size(), 1U);
    QCOMPARE(QFileInfo(workspace.current().path()).fileName(), opened);
    if (!opened.isEmpty())
        QCOMPARE(workspace.project().size(), 2);
    // One that is not there is an error as before.
    QVERIFY(!flows.open(at(QStringLiteral("nowhere"))));
    QCOMPARE(prompts.errors.size(), 1);
    QDir(backups.folder()).removeRecursively();
}

/// Of an archive that lost its end only a backup knows what else it held.
void TestRepair::tellsWhatIsMissing()
{
    Settings settings(at(QStringLiteral("settings.ini")));
    FakePrompts prompts;
    Workspace workspace;
    ProjectFlows flows(workspace, prompts, settings);
    const QString bundle = at(QStringLiteral("novel.vellum"));
    const QByteArray good = packed(wholeProject());
    putFile(bundle, good);
    const AutoBackups backups(bundle, StorageLocations::standard(), &summarizeBackup);
    QVERIFY(backups.add({bundle, {}}, BackupReason::Opened));
    putFile(bundle, good.first(good.indexOf(objectFile(2).toUtf8()) - 10));

    QVERIFY(!flows.open(bundle));
    QCOMPARE(prompts.damaged.size(), 1);
    const DamagedProject &damaged = prompts.damaged.first();
    QVERIFY(damaged.isCutOff);
    QStringList paths;
    for (const LeftOutFile &file : damaged.leftOut)
        paths.append(file.path);
    // In the order of the archive, which cuts before the first object.
    QCOMPARE(paths, QStringList({objectFile(2), objectFile(1), QStringLiteral("project.json")}));
    QCOMPARE(damaged.inBackup.value(objectFile(2)), documentBytes(2, QStringLiteral("two")));
    QDir(backups.folder()).removeRecursively();
}

void TestRepair::remains_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QByteArray whole("{\"body\": \"Rain, \\\"and rain.\", \"title\": \"Dusk\"}");
    QTest::newRow("in a text") << whole.first(16) << "Rain,\n";
    QTest::newRow("behind a backslash") << whole.first(17) << "Rain, \n";
    QTest::newRow("in a letter") << QByteArray("{\"body\": \"Caf\\u00") << "Caf\n";
    QTest::newRow("in a letter of two bytes")
        << QByteArray("{\"tags\": [\"a\", \"\xc3") << QStringLiteral("Tags: a, \uFFFD\n");
    QTest::newRow("in a key") << whole.first(34) << "Rain, \"and rain.\n";
    QTest::newRow("behind a colon") << whole.chopped(7) << "Rain, \"and rain.\n";
    QTest::newRow("the rest never written") << whole.first(16) + QByteArray(500, '\0') << "Rain,\n";
    QTest::newRow("nothing ever written") << QByteArray(500, '\0') << "";
    QTest::newRow("nothing but its beginning") << QByteArray("{\n") << "";
    const QByteArray marked = "<<<<<<< mine\n" + whole;
    QTest::newRow("marks of a merge") << marked << QString::fromUtf8(marked);
}

void TestRepair::remains()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(readableRemains(bytes), text);
}

void TestRepair::readableFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("no JSON") << QByteArray("half {") << "half {";
    QTest::newRow("fields") << QByteArray("{\"d\": \"x\", \"e\": 9007199254740993, \"f\": true}")
                            << "D: x\nE: 9007199254740993\nF: yes\n";
    QTest::newRow("the words of the inspector, the title first, the text last")
        << QByteArray(
               "{\"body\": \"It rains.\", \"pointOfView\": \"Mara\", \"id\": \"x\","
               " \"kind\": \"note\", \"sortIndex\": 0, \"wordCountTarget\": 5, \"title\": \"Rain\","
               " \"type\": \"document\"}")
        << "Title: Rain\nKind: Note\nPoint of view: Mara\nPlace in the order: 1\nWord-count "
           "target: 5\n\nIt rains.\n";
    QTest::newRow("nothing but a name for programs")
        << QByteArray("{\"id\": \"x\", \"aiExcluded\": false, \"synopsis\": \"\"}") << "(empty)\n";
    QTest::newRow("what its category calls its fields")
        << QByteArray("{\"values\": {\"öL\": \"x\", \"b\": \"one\\ntwo\"}}")
        << "Details:\n  b:\n    one\n    two\n  öL: x\n";
    QTest::newRow("other objects")
        << QByteArray("{\"sourceIds\": [\"3e74b8f6-0002-4002-9abc-0123456789ab\"]}")
        << "Sources: another object (3e74b8f6)\n";
    QTest::newRow("text of several lines")
        << QByteArray("{\"synopsis\": \"one\\ntwo\"}") << "Synopsis:\n  one\n  two\n";
    QTest::newRow("lists") << QByteArray("{\"tags\": [\"x\", \"y\"], \"none\": []}")
                           << "Tags: x, y\n";
    QTest::newRow("lists of objects")
        << QByteArray(
               "{\"footnotes\": [{\"id\": \"1\", \"text\": \"She waits.\", \"endnote\": true},"
               " {\"id\": \"2\", \"endnote\": false, \"text\": \"Or\\nnot.\"}]}")
        << "Footnotes:\n  • She waits., Endnote: yes, Mark: 1\n  • Mark: 2\n    Or\n    not.\n";
    QString steps;
    for (int depth = 0; depth < 30; ++depth)
        steps += QString(2 * std::min(depth, 20), u' ') + QStringLiteral("K:\n");
    QTest::newRow("no wider than a window, however deep")
        << QByteArray("{\"k\":").repeated(30) + "{\"d\": 1}" + QByteArray(30, '}')
        << steps + QString(40, u' ') + QStringLiteral("D: 1\n");
    QTest::newRow("cells") << QByteArray(
        "{\"cells\": [{\"column\": 27, \"row\": 1, \"text\": \"x\"}],"
        " \"rowHeights\": [{\"index\": 3, \"size\": 40}]}")
                           << "Cells:\n  • AB2, x\nRow heights:\n  • Number: 4, Size: 40\n";
    QTest::newRow("a chart") << QByteArray("{\"kind\": \"bar\", \"series\": [{\"name\": \"Rain\","
                                           " \"values\": [1, 2.5]}]}")
                             << "Kind: Bars\nSeries:\n  • Rain, Values: 1, 2.5\n";
    QTest::newRow("choices") << QByteArray("{\"dateQualifier\": \"circa\", \"constraints\":"
                                           " [{\"kind\": \"after\", \"otherId\": \"\"}]}")
                             << "Order among the events:\n  • Kind: After\nCertainty of the date: "
                                "Around\n";
    QTest::newRow("a field that the user named as a member")
        << QByteArray("{\"values\": {\"kind\": \"note\"}}") << "Details:\n  kind: note\n";
}

void TestRepair::everyMemberHasWords_data()
{
    QTest::addColumn<QString>("path");
    const QDir data(QStringLiteral(IVOREL_TEST_DATA));
    for (const char *folder : {"", "kinds", "taxonomy"}) {
        const QDir files(data.filePath(QLatin1String(folder)));
        for (const QString &name : files.entryList({QStringLiteral("*.json")}, QDir::Files))
            QTest::newRow(qPrintable(name)) << files.filePath(name);
    }
}

void TestRepair::everyMemberHasWords()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList missing;
    const std::function<void(const QJsonValue &)> walk = [&](const QJsonValue &value) {
        for (const QJsonValue item : value.toArray())
            walk(item);
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            static const QStringList places{QStringLiteral("x"),  QStringLiteral("y"),
                                            QStringLiteral("x1"), QStringLiteral("x2"),
                                            QStringLiteral("y1"), QStringLiteral("y2")};
            if (readableLabel(it.key()).isNull() && !places.contains(it.key()))
                missing.append(it.key());
            static const QStringList named{QStringLiteral("values"), QStringLiteral("fields"),
                                           QStringLiteral("fieldValues")};
            if (!named.contains(it.key()) || it->isArray())
                walk(*it);
        }
    };
    walk(QJsonDocument::fromJson(file.readAll()).object());
    QCOMPARE(missing, QStringList());
}

void TestRepair::readableFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(readableFile(bytes), text);
}

void TestRepair::readableVersions()
{
    core::Project project;
    const core::ContentId place = numberedId(1);
    QVERIFY(project.add(std::make_unique<core::Document>(place, core::DocumentKind::Prose,
                                                         QStringLiteral("Chapter 1"))));
    const QByteArray here = R"({"title": "Rain", "body": "a\nb\n", "tensionLevel": 4,
        "tags": ["x"], "sceneInstant": 0})";
    const QByteArray there = R"({"title": "Rain", "body": "a\nc\n", "tensionLevel": 4,
        "tags": ["y"], "sceneInstant": 0, "parentId": "%1"})";
    const ReadableVersions both = app::readableVersions(
        here, QString::fromUtf8(there).arg(place.toString()).toUtf8(), &project);
    QCOMPARE(both.before, QStringLiteral("Title: Rain\nTags: x\n\na\nb\n"));
    QCOMPARE(both.after, QStringLiteral("Title: Rain\nUnder: Chapter 1\nTags: y\n\na\nc\n"));
    // One that is alone is told whole, with its date.
    const ReadableVersions gone = app::readableVersions(here, std::nullopt, &project);
    QVERIFY(gone.after.isNull());
    QVERIFY(gone.before.contains(QStringLiteral("Tension: 4\n")));
    QVERIFY(gone.before.contains(formatInstant(project.calendar(), 0)));
}

QTEST_GUILESS_MAIN(TestRepair)
#include "tst_repair.moc"
