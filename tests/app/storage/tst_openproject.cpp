#include "app/storage/bundle.h"
#include "app/storage/openproject.h"
#include "app/storage/repair.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/content/document.h"
#include "tests/support/folders.h"

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThreadPool>
#include <QtTest/QtTest>

using namespace vl::app;
using namespace vl::test;
using vl::core::ContentId;
using vl::core::Document;
using vl::core::DocumentKind;
using vl::core::SetDocumentTitleCommand;

namespace {

bool remove(const QString &path)
{
    return QFileInfo(path).isDir() ? QDir(path).removeRecursively() : QFile::remove(path);
}

} // namespace

class TestOpenProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesElsewhereWhenItsPlaceIsGone_data();
    void savesElsewhereWhenItsPlaceIsGone();
    void leavesTheRepositoryBehind_data();
    void leavesTheRepositoryBehind();
    void writesNothingTwice_data();
    void writesNothingTwice();
    void savesAsTheFolderThatItIs();
    void leavesConflictingCopiesBehind_data();
    void leavesConflictingCopiesBehind();
    void ownSavesAreNoOutsideChanges_data();
    void ownSavesAreNoOutsideChanges();
    void queuedSaveWritesOverOthersWhenAllowed();
    void namesTheBackupOfWhatDoesNotLoad();
};

void TestOpenProject::savesElsewhereWhenItsPlaceIsGone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("losesPlace");
    QTest::addColumn<bool>("losesFolder");
    QTest::addColumn<bool>("keepsAssets");
    const auto row = [](const char *name, const char *place, bool losesPlace, bool losesFolder,
                        bool keepsAssets) {
        for (const char *target : {"copy", "copy.vellum"})
            QTest::addRow("%s, into %s", name, target)
                << place << target << losesPlace << losesFolder << keepsAssets;
    };
    row("a folder", "book", false, false, true);
    row("a folder that is gone", "book", true, true, false);
    row("a bundle that is gone", "book.vellum", true, false, true);
    row("a bundle without its copy", "book.vellum", false, true, true);
    row("a bundle gone with its copy", "book.vellum", true, true, false);
}

void TestOpenProject::savesElsewhereWhenItsPlaceIsGone()
{
    QFETCH(QString, name);
    QFETCH(QString, target);
    QFETCH(bool, losesPlace);
    QFETCH(bool, losesFolder);
    QFETCH(bool, keepsAssets);
    QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/wörk in progress-XXXXXX"));
    QVERIFY(dir.isValid());
    {
        OpenProject made;
        made.project().add(
            std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, name));
        const QString path = dir.filePath(name);
        QVERIFY(name.endsWith(QLatin1String(".vellum")) ? made.saveAsBundle(path)
                                                        : made.saveAsFolder(path));
        putFile(made.folder() + QStringLiteral("/assets/map.png"), "picture");
        QVERIFY(made.save());
    }
    const auto opened = OpenProject::open(dir.filePath(name));
    QVERIFY(opened);
    OpenProject &open = **opened;
    const QString folder = open.folder();
    QVERIFY(!losesPlace || remove(open.path()));
    QVERIFY(!losesFolder || !QFileInfo::exists(folder) || remove(folder));

    const QString path = dir.filePath(target);
    const Result<> saved = target.endsWith(QLatin1String(".vellum")) ? open.saveAsBundle(path)
                                                                     : open.saveAsFolder(path);
    QVERIFY2(saved, qPrintable(saved ? QString() : saved.message()));
    const auto again = OpenProject::open(path);
    QVERIFY(again);
    QCOMPARE((*again)->project().size(), 1);
    QCOMPARE(QFile::exists((*again)->folder() + QStringLiteral("/assets/map.png")), keepsAssets);
}

void TestOpenProject::leavesTheRepositoryBehind_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isRepair");
    for (const char *target : {"copy", "copy.vellum"}) {
        QTest::addRow("saved as %s", target) << target << false;
        QTest::addRow("repaired into %s", target) << target << true;
    }
}

void TestOpenProject::leavesTheRepositoryBehind()
{
    QFETCH(QString, target);
    QFETCH(bool, isRepair);
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("book"));
    putFiles(folder, {{QStringLiteral("project.json"), "{\n}\n"},
                      {QStringLiteral(".gitattributes"), "*.json merge=ivorel\n"},
                      {QStringLiteral("notes/.git"), "gitdir: elsewhere\n"},
                      {QStringLiteral(".git/objects/a0/b1"), "history"}});
    // A running program's socket is no file either.
    QVERIFY(QFile::link(QStringLiteral("nowhere"), folder + QStringLiteral("/.git/daemon.ipc")));
    const QString path = dir.filePath(target);
    if (isRepair) {
        const auto repair = ProjectRepair::examine(folder, StorageLocations::standard());
        QVERIFY(repair);
        QVERIFY(repair->leftOut().empty());
        QVERIFY(repair->writeCopy(path));
    } else {
        const auto open = OpenProject::open(folder);
        QVERIFY(open);
        const Result<> saved = target.endsWith(QLatin1String(".vellum"))
                                   ? (*open)->saveAsBundle(path)
                                   : (*open)->saveAsFolder(path);
        QVERIFY2(saved, qPrintable(saved ? QString() : saved.message()));
    }
    const auto again = OpenProject::open(path);
    QVERIFY(again);
    const QStringList files = filesUnder((*again)->folder()).keys();
    QVERIFY2(files.contains(QStringLiteral(".gitattributes")), qPrintable(files.join(u' ')));
    QVERIFY2(files.filter(QStringLiteral(".git/")).isEmpty(), qPrintable(files.join(u' ')));
    QVERIFY(!files.contains(QStringLiteral("notes/.git")));
    QVERIFY(QFile::exists(folder + QStringLiteral("/.git/objects/a0/b1")));
}

void TestOpenProject::writesNothingTwice_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("comesLater");
    for (const char *target : {"copy", "copy.vellum"}) {
        QTest::addRow("from a folder, as %s", target) << "book" << target << false;
        QTest::addRow("from a bundle, as %s", target) << "book.vellum" << target << false;
        QTest::addRow("from a folder where it came later, as %s", target)
            << "book" << target << true;
    }
}

// A file whose name is not its id is read like any other: saved elsewhere it must not stand beside
// the one that has the name.
void TestOpenProject::writesNothingTwice()
{
    QFETCH(QString, from);
    QFETCH(QString, target);
    QFETCH(bool, comesLater);
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("book"));
    const ContentId id = ContentId::create();
    {
        OpenProject made;
        made.project().add(
            std::make_unique<Document>(id, DocumentKind::Prose, QStringLiteral("Scene")));
        QVERIFY(made.saveAsFolder(folder));
    }
    const QString proper = folder + QStringLiteral("/objects/%1.json").arg(id.toString());
    const QString foreign = folder + QStringLiteral("/objects/a scene.json");
    if (!comesLater)
        QVERIFY(QFile::rename(proper, foreign));
    if (from != QLatin1String("book"))
        QVERIFY(packFolder(folder, dir.filePath(from)));
    const auto opened = OpenProject::open(dir.filePath(from));
    QVERIFY(opened);
    if (comesLater)
        QVERIFY(QFile::copy(proper, foreign));
    const QString path = dir.filePath(target);
    const Result<> saved = target.endsWith(QLatin1String(".vellum"))
                               ? (*opened)->saveAsBundle(path)
                               : (*opened)->saveAsFolder(path);
    QVERIFY2(saved, qPrintable(saved ? QString() : saved.message()));
    const auto again = OpenProject::open(path);
    QVERIFY2(again, qPrintable(again ? QString() : again.message()));
    QCOMPARE((*again)->project().size(), 1);
}

void TestOpenProject::savesAsTheFolderThatItIs()
{
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("book"));
    OpenProject open;
    QVERIFY(open.saveAsFolder(folder));
    open.push(std::make_unique<vl::core::AddObjectCommand>(
        open.project(),
        std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, QString())));
    QVERIFY(open.save());
    open.history().undo();
    QVERIFY(open.saveAsFolder(folder + u'/'));
    QVERIFY(!open.isDirty());
    const auto again = OpenProject::open(folder);
    QVERIFY(again);
    QCOMPARE((*again)->project().size(), 0);
}

void TestOpenProject::leavesConflictingCopiesBehind_data()
{
    QTest::addColumn<QString>("target");
    for (const char *target : {"copy", "copy.vellum"})
        QTest::addRow("saved as %s", target) << target;
}

void TestOpenProject::leavesConflictingCopiesBehind()
{
    QFETCH(QString, target);
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("book"));
    putFiles(folder, {{QStringLiteral("project.json"), "{\n}\n"}});
    const auto open = OpenProject::open(folder);
    QVERIFY(open);
    const ContentId id = ContentId::create();
    (*open)->push(std::make_unique<vl::core::AddObjectCommand>(
        (*open)->project(), std::make_unique<Document>(id, DocumentKind::Prose, QString())));
    QVERIFY((*open)->save());
    const QString object = id.toString() + QStringLiteral(".json");
    const QString copy = folder + QStringLiteral("/objects/(conflicted copy) ") + object;
    QVERIFY(QFile::copy(folder + QStringLiteral("/objects/") + object, copy));

    const QString path = dir.filePath(target);
    QVERIFY(target.endsWith(QLatin1String(".vellum")) ? (*open)->saveAsBundle(path)
                                                      : (*open)->saveAsFolder(path));
    const auto again = OpenProject::open(path);
    QVERIFY2(again, qPrintable(again ? QString() : again.message()));
    QVERIFY((*again)->project().find(id));
    QVERIFY(QFile::exists(copy));
}

void TestOpenProject::ownSavesAreNoOutsideChanges_data()
{
    QTest::addColumn<bool>("isBundle");
    QTest::newRow("folder") << false;
    QTest::newRow("bundle") << true;
}

void TestOpenProject::ownSavesAreNoOutsideChanges()
{
    QFETCH(bool, isBundle);
    QTemporaryDir dir;
    OpenProject open;
    auto made = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, QString());
    Document &document = *made;
    open.project().add(std::move(made));
    QVERIFY(isBundle ? open.saveAsBundle(dir.filePath(QStringLiteral("book.vellum")))
                     : open.saveAsFolder(dir.filePath(QStringLiteral("book"))));
    const auto rename = [&](const char *title) {
        open.push(std::make_unique<SetDocumentTitleCommand>(document, QLatin1String(title)));
    };
    rename("first");
    open.saveInBackground();
    QThreadPool::globalInstance()->waitForDone(); // written, but the project does not know yet
    rename("second");
    QVERIFY(open.isSaving());
    QVERIFY(!open.meetsOutsideChanges());
    QVERIFY(open.save());
    QVERIFY(!open.isDirty());
    QVERIFY(!open.meetsOutsideChanges());
}

void TestOpenProject::queuedSaveWritesOverOthersWhenAllowed()
{
    QTemporaryDir dir;
    OpenProject open;
    auto made = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, QString());
    Document &document = *made;
    open.project().add(std::move(made));
    QVERIFY(open.saveAsFolder(dir.filePath(QStringLiteral("book"))));
    const QString file =
        open.folder() + QStringLiteral("/objects/%1.json").arg(document.id().toString());
    putFile(file, "{}");
    open.push(std::make_unique<SetDocumentTitleCommand>(document, QStringLiteral("mine")));
    open.saveInBackground();
    open.saveInBackground(OutsideChanges::Overwrite);
    open.saveInBackground();
    open.finishSaving();
    QVERIFY(!open.isDirty());
    QVERIFY(fileBytes(file).contains("mine"));
}

// Changes that were never saved come from a copy that a crash may have cut short.
void TestOpenProject::namesTheBackupOfWhatDoesNotLoad()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("book.vellum"));
    QString file;
    {
        OpenProject made;
        const ContentId id = ContentId::create();
        made.project().add(std::make_unique<Document>(id, DocumentKind::Prose, QString()));
        QVERIFY(made.saveAsBundle(path));
        file = made.folder() + QStringLiteral("/objects/%1.json").arg(id.toString());
    }
    const QByteArray before = fileBytes(path);
    putFile(file, "{");
    const auto opened = OpenProject::open(path);
    QVERIFY(!opened);
    const QString message = opened.message();
    QVERIFY2(message.startsWith(QStringLiteral("Invalid JSON in file: ") + file),
             qPrintable(message));
    const QString backup = message.mid(message.lastIndexOf(QLatin1String(": ")) + 2);
    QCOMPARE(fileBytes(backup), before);
}

QTEST_GUILESS_MAIN(TestOpenProject)
#include "tst_openproject.moc"
