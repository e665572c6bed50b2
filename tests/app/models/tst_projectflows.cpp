#include "app/base/settings.h"
#include "app/models/projectflows.h"
#include "app/models/workspace.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "tests/support/fakeprompts.h"
#include "tests/support/folders.h"

#include <QtTest/QtTest>

using namespace vl;
using app::Prompts;

class TestProjectFlows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesAndOpensAgain_data();
    void savesAndOpensAgain();
    void asksBeforeWorkGoes_data();
    void asksBeforeWorkGoes();
    void aFolderWithOtherThingsGetsOneMore();
    void savesWithoutWhatCannotBeRead_data();
    void savesWithoutWhatCannotBeRead();
    void failuresKeepTheProject();
    void savesInTheBackground();
    void outsideChangesAreNotOverwrittenUnasked();

private:
    core::Document &addDocument(app::Workspace &workspace, const QString &title);
};

namespace {

struct Place
{
    QTemporaryDir dir{QDir::tempPath() + QStringLiteral("/ivorel flöws-XXXXXX")};
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    test::FakePrompts prompts;
    app::Workspace workspace;
    app::ProjectFlows flows{workspace, prompts, settings};
};

} // namespace

core::Document &TestProjectFlows::addDocument(app::Workspace &workspace, const QString &title)
{
    const core::ContentId id = core::ContentId::create();
    workspace.push<core::AddObjectCommand>(
        workspace.project(),
        std::make_unique<core::Document>(id, core::DocumentKind::Prose, title));
    return *workspace.project().find<core::Document>(id);
}

void TestProjectFlows::savesAndOpensAgain_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("asBundle");
    QTest::newRow("folder") << "My Wörld" << false;
    QTest::newRow("bundle") << "My Wörld.vellum" << true;
}

void TestProjectFlows::savesAndOpensAgain()
{
    QFETCH(QString, name);
    QFETCH(bool, asBundle);
    Place place;
    place.prompts.path = place.dir.filePath(name);
    core::Document &document = addDocument(place.workspace, QStringLiteral("One"));
    QVERIFY(asBundle ? place.flows.save() : place.flows.saveAsFolder()); // without a place it asks
    QCOMPARE(place.prompts.errors, QStringList());
    QVERIFY(!place.workspace.current().isDirty());
    QCOMPARE(place.workspace.current().name(), QStringLiteral("My Wörld"));

    // A picture that came in by other means travels with every save.
    QDir().mkpath(place.workspace.current().folder() + QStringLiteral("/assets"));
    QFile picture(place.workspace.current().folder() + QStringLiteral("/assets/map.png"));
    QVERIFY(picture.open(QIODevice::WriteOnly) && picture.write("picture") == 7);
    picture.close();
    place.workspace.push<core::SetDocumentBodyCommand>(document, QStringLiteral("Text."));
    QVERIFY(place.flows.save());
    place.workspace.undo();
    QVERIFY(place.workspace.current().isDirty());
    place.workspace.redo();
    QVERIFY(!place.workspace.current().isDirty());

    QVERIFY(place.flows.newProject());
    QCOMPARE(place.workspace.project().size(), 0);
    QVERIFY(place.flows.chooseAndOpen());
    QCOMPARE(place.workspace.project().all<core::Document>().front()->body(),
             QStringLiteral("Text."));
    QVERIFY(QFile::exists(place.workspace.current().folder() + QStringLiteral("/assets/map.png")));
    QCOMPARE(place.settings.recentProjects(), QStringList{place.prompts.path});

    // Into the other form, where the picture comes along.
    place.prompts.path =
        place.dir.filePath(asBundle ? QStringLiteral("copy") : QStringLiteral("copy.vellum"));
    QVERIFY(asBundle ? place.flows.saveAsFolder() : place.flows.saveAs());
    QCOMPARE(place.workspace.current().isBundle(), !asBundle);
    QVERIFY(place.flows.openHere(place.prompts.path));
    QVERIFY(QFile::exists(place.workspace.current().folder() + QStringLiteral("/assets/map.png")));
    QCOMPARE(place.workspace.project().size(), 1);
}

void TestProjectFlows::asksBeforeWorkGoes_data()
{
    QTest::addColumn<Prompts::Unsaved>("answer");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("goes");
    QTest::newRow("cancel") << Prompts::Unsaved::Cancel << "place" << false;
    QTest::newRow("discard") << Prompts::Unsaved::Discard << "place" << true;
    QTest::newRow("save") << Prompts::Unsaved::Save << "place.vellum" << true;
    QTest::newRow("save, then no place chosen") << Prompts::Unsaved::Save << "" << false;
}

void TestProjectFlows::asksBeforeWorkGoes()
{
    QFETCH(Prompts::Unsaved, answer);
    QFETCH(QString, path);
    QFETCH(bool, goes);
    Place place;
    addDocument(place.workspace, QStringLiteral("One"));
    place.prompts.unsaved = answer;
    place.prompts.path = path.isEmpty() ? path : place.dir.filePath(path);
    QCOMPARE(place.flows.newProject(), goes);
    QCOMPARE(place.prompts.questions.size(), 1);
    QCOMPARE(place.workspace.project().size(), goes ? 0 : 1);
    QCOMPARE(QFile::exists(place.dir.filePath(QStringLiteral("place.vellum"))),
             answer == Prompts::Unsaved::Save && goes);
}

void TestProjectFlows::aFolderWithOtherThingsGetsOneMore()
{
    Place place;
    place.prompts.path = place.dir.filePath(QStringLiteral("folder"));
    QVERIFY(place.flows.saveAsFolder()); // there was none
    QCOMPARE(place.workspace.current().path(), place.prompts.path);
    const QString books = place.dir.filePath(QStringLiteral("books"));
    QVERIFY(QDir().mkpath(books + QStringLiteral("/another")));
    place.prompts.path = books;
    QVERIFY(place.flows.saveAsFolder());
    QCOMPARE(place.workspace.current().path(), books + QStringLiteral("/folder"));
    // But not in the middle of another project; its own folder is saved to again.
    for (const QString &taken : {place.dir.filePath(QStringLiteral("folder")), books}) {
        place.prompts.path = taken;
        place.prompts.errors.clear();
        QCOMPARE(place.flows.saveAsFolder(), taken == books);
        QCOMPARE(place.prompts.errors.size(), taken == books ? 0 : 1);
        QCOMPARE(place.workspace.current().path(), books + QStringLiteral("/folder"));
    }
}

void TestProjectFlows::savesWithoutWhatCannotBeRead_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<bool>("toBundle");
    for (const char *from : {"Növel", "Növel.vellum"}) {
        QTest::addRow("%s as a folder", from) << QString::fromUtf8(from) << false;
        QTest::addRow("%s as a bundle", from) << QString::fromUtf8(from) << true;
    }
}

void TestProjectFlows::savesWithoutWhatCannotBeRead()
{
    QFETCH(QString, from);
    QFETCH(bool, toBundle);
    Place place;
    core::Document &document = addDocument(place.workspace, QStringLiteral("One"));
    place.prompts.path = place.dir.filePath(from);
    QVERIFY(from == QLatin1String("Növel") ? place.flows.saveAsFolder() : place.flows.saveAs());
    const QString assets = place.workspace.current().folder() + QStringLiteral("/assets/");
    test::putFile(assets + QStringLiteral("a/map.png"), "map");
    QVERIFY(QFile::link(QStringLiteral("nowhere"), assets + QStringLiteral("b.png")));
    // What is part of the model is written from there, wherever its file may lie.
    const QString file = QStringLiteral("%1/objects/%2.json")
                             .arg(place.workspace.current().folder(), document.id().toString());
    const QString moved = place.dir.filePath(QStringLiteral("moved.json"));
    QVERIFY(QFile::rename(file, moved) && QFile::link(moved, file));
    place.workspace.push<core::SetDocumentBodyCommand>(document, QStringLiteral("Text."));

    const QString target =
        place.dir.filePath(toBundle ? QStringLiteral("copy.vellum") : QStringLiteral("copy"));
    const auto saveAs = [&] {
        return toBundle ? place.flows.saveAs() : place.flows.saveAsFolder();
    };
    place.prompts.path = target;
    QVERIFY(!saveAs()); // called off
    QCOMPARE(place.prompts.questions,
             QStringList{QStringLiteral("1 file(s) beside the text cannot be read.")});
    QCOMPARE(place.prompts.errors, QStringList());
    QCOMPARE(place.workspace.current().path(), place.dir.filePath(from));
    QVERIFY(test::filesUnder(target).isEmpty());

    place.prompts.confirms = true;
    QVERIFY(saveAs());
    QCOMPARE(place.prompts.errors, QStringList());
    QCOMPARE(place.workspace.current().path(), target);
    const auto again = app::OpenProject::openReadOnly(target);
    QVERIFY(again);
    QCOMPARE((*again)->project().all<core::Document>().front()->body(), QStringLiteral("Text."));
    QCOMPARE(test::fileBytes((*again)->folder() + QStringLiteral("/assets/a/map.png")), "map");
}

void TestProjectFlows::failuresKeepTheProject()
{
    Place place;
    core::Document &document = addDocument(place.workspace, QStringLiteral("One"));
    QVERIFY(!place.flows.open(place.dir.filePath(QStringLiteral("missing"))));
    QCOMPARE(place.workspace.project().size(), 1);
    QCOMPARE(place.prompts.errors.size(), 1);
    QVERIFY(place.prompts.errors.first().contains(QStringLiteral("missing")));
    QFile notes(place.dir.filePath(QStringLiteral("notes.txt"))); // it is there, but no project
    QVERIFY(notes.open(QIODevice::WriteOnly));
    QVERIFY(!place.flows.open(notes.fileName()));
    QVERIFY(place.prompts.errors.last().contains(
        QStringLiteral("Not a valid Ivorel project file: %1").arg(notes.fileName())));
    place.prompts.errors.removeLast();

    place.prompts.path = place.dir.filePath(QStringLiteral("folder"));
    QVERIFY(place.flows.saveAsFolder());
    // A folder stands where the document's file belongs.
    const QString file = place.prompts.path + QStringLiteral("/objects/") + document.id().toString()
                         + QStringLiteral(".json");
    QVERIFY(QFile::remove(file) && QDir().mkpath(file + QStringLiteral("/x")));
    place.workspace.push<core::SetDocumentTitleCommand>(document, QStringLiteral("Two"));
    QVERIFY(!place.flows.save());
    QVERIFY(place.workspace.current().isDirty());
    QVERIFY(place.prompts.errors.last().contains(QDir::toNativeSeparators(file)));
    // What failed is still to be saved once the way is free.
    QVERIFY(QDir(file).removeRecursively());
    QVERIFY(place.flows.save());
    QVERIFY(place.flows.open(place.prompts.path));
    QCOMPARE(place.workspace.project().all<core::Document>().front()->title(),
             QStringLiteral("Two"));
}

void TestProjectFlows::savesInTheBackground()
{
    Place place;
    core::Document &document = addDocument(place.workspace, QStringLiteral("One"));
    place.prompts.path = place.dir.filePath(QStringLiteral("folder"));
    QVERIFY(place.flows.saveAsFolder());
    QSignalSpy saved(&place.workspace.current(), &app::OpenProject::saved);

    place.workspace.push<core::SetDocumentTitleCommand>(document, QStringLiteral("Two"));
    place.workspace.current().saveInBackground();
    // What happens while it runs is neither saved nor forgotten.
    place.workspace.push<core::SetDocumentTitleCommand>(document, QStringLiteral("Three"));
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(place.workspace.current().isDirty());
    place.workspace.undo();
    QVERIFY(!place.workspace.current().isDirty());
    place.workspace.redo();
    place.workspace.current().saveInBackground();
    place.workspace.current().saveInBackground();
    place.workspace.current().finishSaving();
    QVERIFY(!place.workspace.current().isDirty());
    QVERIFY(place.flows.open(place.prompts.path));
    QCOMPARE(place.workspace.project().all<core::Document>().front()->title(),
             QStringLiteral("Three"));
}

void TestProjectFlows::outsideChangesAreNotOverwrittenUnasked()
{
    Place place;
    core::Document &document = addDocument(place.workspace, QStringLiteral("One"));
    place.prompts.path = place.dir.filePath(QStringLiteral("folder"));
    QVERIFY(place.flows.saveAsFolder());
    QFile file(place.prompts.path + QStringLiteral("/objects/") + document.id().toString()
               + QStringLiteral(".json"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray theirs = file.readAll().replace("One", "Their own");
    QVERIFY(file.seek(0) && file.write(theirs) == theirs.size());
    file.close();

    place.workspace.push<core::SetDocumentTitleCommand>(document, QStringLiteral("Mine"));
    QVERIFY(!place.flows.save());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), theirs);
    file.close();
    QVERIFY(place.workspace.current().isDirty());

    place.prompts.confirms = true;
    QVERIFY(place.flows.save());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("Mine"));
}

QTEST_GUILESS_MAIN(TestProjectFlows)
#include "tst_projectflows.moc"
