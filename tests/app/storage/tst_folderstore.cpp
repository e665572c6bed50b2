#include "app/storage/assets.h"
#include "app/storage/folderstore.h"
#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "core/content/timeline.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace vl::app;
using namespace vl::core;
using namespace vl::test;

namespace {

const QString anId = QStringLiteral("0b7e1c52-3f4a-4d6b-8c9d-0e1f2a3b4c5d");

QByteArray timelineFile()
{
    return R"({"type":"timeline","title":"t","id":")" + anId.toLatin1() + "\"}";
}

} // namespace

class TestFolderStore final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void saveFails_data();
    void saveFails();
    void saveLeavesRightFilesAlone();
    void storeWritesWhatChanged();
    void storeRemovesWhatIsGone();
    void storeRenamesStrays();
    void storeNoticesOutsideChanges();
    void storeNoticesThatTheFolderIsGone_data();
    void storeNoticesThatTheFolderIsGone();
    void assetNames_data();
    void assetNames();
    void importsAssets();

private:
    QString at(const QString &path) const { return m_folder->filePath(path); }
    QString folder() const { return at(QStringLiteral("project")); }
    void put(const QString &path, const QByteArray &bytes)
    {
        putFile(folder() + u'/' + path, bytes);
    }
    QByteArray fileAt(const QString &path) const { return fileBytes(folder() + u'/' + path); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFolderStore::init()
{
    m_folder =
        std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/ivorel é XXXXXX"));
    QVERIFY(m_folder->isValid());
}

void TestFolderStore::saveFails_data()
{
    QTest::addColumn<QString>("obstacle"); // a file, or a folder when it ends in "/"
    QTest::addColumn<QString>("message");
    const QString object = QStringLiteral("objects/%1.json").arg(numberedId(7).toString());
    QTest::newRow("project folder") << ""
                                    << "Cannot create project folder: /";
    QTest::newRow("objects folder") << "objects"
                                    << "Cannot create project folder: /objects";
    QTest::newRow("taxonomy folder") << "taxonomy"
                                     << "Cannot create taxonomy folder: /taxonomy";
    QTest::newRow("object") << object + u'/' << QStringLiteral("Cannot write file: /") + object;
    QTest::newRow("records") << "project.json/"
                             << "Cannot write file: /project.json";
}

void TestFolderStore::saveFails()
{
    QFETCH(QString, obstacle);
    QFETCH(QString, message);
    QVERIFY(QDir().mkpath(obstacle.isEmpty() ? m_folder->path() : folder()));
    const QString path = folder() + (obstacle.isEmpty() ? QString() : u'/' + obstacle);
    if (obstacle.endsWith(u'/')) {
        QVERIFY(QDir().mkpath(path));
    } else {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    Project project;
    project.add(std::make_unique<Timeline>(numberedId(7), QStringLiteral("t")));
    const Result<> saved = saveProject(project, folder());
    QVERIFY(!saved);
    QString native = folder() + message.mid(message.indexOf(u'/'));
    if (native.endsWith(u'/'))
        native.chop(1);
    QCOMPARE(saved.message(),
             message.left(message.indexOf(u'/')) + QDir::toNativeSeparators(native));
}

void TestFolderStore::saveLeavesRightFilesAlone()
{
    const auto project = fullProject();
    QVERIFY(saveProject(*project, folder()));
    QCOMPARE(filesUnder(folder()), filesOf(*project));
    put(QStringLiteral("objects/notes.txt"), "mine");

    const QString path = folder() + QStringLiteral("/project.json");
    const QDateTime longAgo(QDate(2020, 1, 1), QTime(0, 0), Qt::UTC);
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    }
    QVERIFY(saveProject(*project, folder()));
    QCOMPARE(QFileInfo(path).lastModified(), longAgo);
    QCOMPARE(fileAt(QStringLiteral("objects/notes.txt")), QByteArray("mine"));
}

void TestFolderStore::storeWritesWhatChanged()
{
    QVERIFY(saveProject(*fullProject(), folder()));
    FolderStore store(folder());
    const auto project = store.load();
    QVERIFY(project);
    Document *document = (*project)->all<Document>().front();
    document->setTitle(QStringLiteral("Renamed"));
    ChangeSet changes;
    changes.touchObject(document->id(), ChangeSet::Change::Changed);
    changes.touch(ProjectRecord::Audiences);

    const FolderSave save = store.prepare(**project, changes);
    QCOMPARE(save.writes.size(), size_t(2));
    QVERIFY(commitFolderSave(save, OutsideChanges::Refuse));
    store.saved(save);
    QCOMPARE(filesUnder(folder()), filesOf(**project));

    // The next save finds its own file as it left it.
    document->setTitle(QStringLiteral("Renamed again"));
    QVERIFY(commitFolderSave(store.prepare(**project, changes), OutsideChanges::Refuse));
    QCOMPARE(filesUnder(folder()), filesOf(**project));
}

void TestFolderStore::storeRemovesWhatIsGone()
{
    for (const bool whole : {true, false}) {
        QVERIFY(saveProject(*fullProject(), folder()));
        FolderStore store(folder());
        const auto project = store.load();
        QVERIFY(project);
        const QByteArray foreign = timelineFile();
        put(QStringLiteral("objects/foreign.json"), foreign);

        ChangeSet changes;
        for (const ContentId &id :
             {(*project)->all<Document>().front()->id(), (*project)->all<Entity>().front()->id()}) {
            (*project)->take(id);
            changes.touchObject(id, ChangeSet::Change::Removed);
        }
        const ContentId categoryId = (*project)->taxonomy().ids().front();
        (*project)->editTaxonomy().remove(categoryId);
        for (const ContentId &id : (*project)->taxonomy().ids())
            changes.touchCategory(id, ChangeSet::Change::Changed);
        changes.touchCategory(categoryId, ChangeSet::Change::Removed);

        const FolderSave save =
            whole ? store.prepare(**project) : store.prepare(**project, changes);
        QCOMPARE(save.removals.size(), size_t(3));
        QVERIFY(commitFolderSave(save, OutsideChanges::Refuse));
        FileMap expected = filesOf(**project);
        expected[QStringLiteral("objects/foreign.json")] = foreign;
        QCOMPARE(filesUnder(folder()), expected);
        QVERIFY(QDir(folder()).removeRecursively());
    }
}

void TestFolderStore::storeRenamesStrays()
{
    for (const bool whole : {true, false}) {
        put(QStringLiteral("objects/copy of it.json"), timelineFile());
        put(QStringLiteral("project.json"), "{}");
        FolderStore store(folder());
        const auto project = store.load();
        QVERIFY(project);
        ChangeSet changes;
        changes.touchObject(ContentId::fromString(anId), ChangeSet::Change::Changed);
        const FolderSave save =
            whole ? store.prepare(**project) : store.prepare(**project, changes);
        QVERIFY(commitFolderSave(save, OutsideChanges::Refuse));
        store.saved(save);
        QVERIFY(QFile::exists(folder() + QStringLiteral("/objects/%1.json").arg(anId)));
        QVERIFY(!QFile::exists(folder() + QStringLiteral("/objects/copy of it.json")));
        const auto again = loadProject(folder());
        QVERIFY(again);
        QCOMPARE(filesOf(**again), filesOf(**project));
        QVERIFY(QDir(folder()).removeRecursively());
    }
}

void TestFolderStore::storeNoticesOutsideChanges()
{
    Project project;
    project.add(std::make_unique<Timeline>(numberedId(7), QStringLiteral("t")));
    const QString path = QStringLiteral("objects/%1.json").arg(numberedId(7).toString());
    QVERIFY(saveProject(project, folder()));
    FolderStore store(folder());
    const auto loaded = store.load();
    QVERIFY(loaded);
    const QByteArray theirs = fileAt(path).replace("\"t\"", "\"theirs\"");
    put(path, theirs);

    ChangeSet changes;
    changes.touchObject(numberedId(7), ChangeSet::Change::Changed);
    (*loaded)->find<Timeline>(numberedId(7))->setTitle(QStringLiteral("ours"));
    const FolderSave save = store.prepare(**loaded, changes);
    QCOMPARE(outsideChanges(save), std::vector<QString>{path});
    const Result<> refused = commitFolderSave(save, OutsideChanges::Refuse);
    QVERIFY(!refused);
    QCOMPARE(refused.message(),
             QStringLiteral("The project changed outside Ivorel since you opened it."));
    QCOMPARE(fileAt(path), theirs);

    QVERIFY(commitFolderSave(save, OutsideChanges::Overwrite));
    store.failed(save); // as when a later step had failed: the file stands already
    (*loaded)->find<Timeline>(numberedId(7))->setTitle(QStringLiteral("ours again"));
    QVERIFY(commitFolderSave(store.prepare(**loaded, changes), OutsideChanges::Refuse));
    QVERIFY(fileAt(path).contains("ours again"));

    put(path, theirs);
    store.adopt(path, numberedId(7), theirs);
    QVERIFY(outsideChanges(store.prepare(**loaded, changes)).empty());
}

// A folder that was renamed, emptied or unmounted while it was open is not taken for one that needs
// only what was touched.
void TestFolderStore::storeNoticesThatTheFolderIsGone_data()
{
    QTest::addColumn<QStringList>("removed");
    QTest::addColumn<QString>("message");
    QTest::newRow("all of it") << QStringList{QString()} << "The project folder does not exist: %1";
    QTest::newRow("what is in it")
        << QStringList{QStringLiteral("objects"), QStringLiteral("taxonomy"),
                       QStringLiteral("project.json")}
        << "The project changed outside Ivorel since you opened it.";
}

void TestFolderStore::storeNoticesThatTheFolderIsGone()
{
    QFETCH(QStringList, removed);
    QFETCH(QString, message);
    QVERIFY(saveProject(*fullProject(), folder()));
    FolderStore store(folder());
    const auto project = store.load();
    QVERIFY(project);
    for (const QString &name : removed) {
        const QString path = folder() + u'/' + name;
        QVERIFY(QFileInfo(path).isDir() ? QDir(path).removeRecursively() : QFile::remove(path));
    }
    ChangeSet changes;
    changes.touchObject((*project)->all<Document>().front()->id(), ChangeSet::Change::Changed);
    const FolderSave save = store.prepare(**project, changes);
    QCOMPARE(outsideChanges(save), std::vector<QString>{QStringLiteral("project.json")});
    const Result<> refused = commitFolderSave(save, OutsideChanges::Refuse);
    QVERIFY(!refused);
    QCOMPARE(refused.message(), message.contains(u'%') ? withPath(message, folder()) : message);
    QVERIFY(filesUnder(folder()).empty());

    QVERIFY(commitFolderSave(save, OutsideChanges::Overwrite));
    QCOMPARE(filesUnder(folder()), filesOf(**project));
}

void TestFolderStore::assetNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("path");
    QTest::newRow("free") << "map.png" << QStringList() << "assets/map.png";
    QTest::newRow("taken") << "map.png" << QStringList{QStringLiteral("assets/map.png")}
                           << "assets/map-1.png";
    QTest::newRow("taken twice") << "a.tar.gz"
                                 << QStringList{QStringLiteral("assets/a.tar.gz"),
                                                QStringLiteral("assets/a.tar-1.gz")}
                                 << "assets/a.tar-2.gz";
    QTest::newRow("no extension") << "map" << QStringList{QStringLiteral("assets/map")}
                                  << "assets/map-1";
    QTest::newRow("a placeholder")
        << "%1.png" << QStringList{QStringLiteral("assets/%1.png")} << "assets/%1-1.png";
    QTest::newRow("climbing") << "../a\\b.png" << QStringList() << "assets/_a_b.png";
    QTest::newRow("only dots") << ".." << QStringList() << "assets/file";
}

void TestFolderStore::assetNames()
{
    QFETCH(QString, name);
    QFETCH(QStringList, taken);
    QTEST(newAssetPath(name, [&taken](const QString &path) { return taken.contains(path); }),
          "path");
}

void TestFolderStore::importsAssets()
{
    const QString source = at(QStringLiteral("source/map.png"));
    putFile(source, "picture");
    QVERIFY(QDir().mkpath(folder()));
    for (const QString &expected :
         {QStringLiteral("assets/map.png"), QStringLiteral("assets/map-1.png")}) {
        const Result<QString> path = importAsset(source, folder());
        QVERIFY(path);
        QCOMPARE(*path, expected);
        QCOMPARE(fileAt(*path), QByteArray("picture"));
    }
    QVERIFY(!importAsset(source + u'x', folder()));
}

QTEST_GUILESS_MAIN(TestFolderStore)
#include "tst_folderstore.moc"
