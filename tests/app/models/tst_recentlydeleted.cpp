#include "app/models/codexoperations.h"
#include "app/models/documentoperations.h"
#include "app/models/recentlydeleted.h"
#include "app/models/workspace.h"
#include "app/storage/deleted.h"
#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "tests/support/fingerprint.h"
#include "tests/support/folders.h"
#include "tests/support/treetext.h"

#include <QtTest/QtTest>

using namespace vl;
using namespace vl::app;
using namespace vl::test;

class TestRecentlyDeleted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bringsDocumentsBack_data();
    void bringsDocumentsBack();
    void bringsEntitiesBack();
    void bringsEntitiesBackIntoTheirCategory_data();
    void bringsEntitiesBackIntoTheirCategory();
    void undoneDeletionsAreNone();
    void followsTheProjectToAnotherPlace();
    void keptForAWhile_data();
    void keptForAWhile();
    void staysOutOfTheProject();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    core::ContentId add(Workspace &workspace, const QString &title, core::ContentId parent = {});

    std::unique_ptr<QTemporaryDir> m_folder;
    StorageLocations m_locations;
    QDateTime m_now;
};

void TestRecentlyDeleted::init()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/délèted of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
    m_now = QDateTime(QDate(2024, 5, 6), QTime(12, 0), Qt::UTC);
    m_locations.root = at(QStringLiteral("data"));
    m_locations.now = [this] { return m_now; };
}

core::ContentId TestRecentlyDeleted::add(Workspace &workspace, const QString &title,
                                         core::ContentId parent)
{
    auto document = std::make_unique<core::Document>(core::ContentId::create(),
                                                     core::DocumentKind::Prose, title);
    document->setParentId(parent);
    document->setBody(QStringLiteral("text of ") + title);
    document->setSortIndex(qint32(workspace.project().size()));
    const core::ContentId id = document->id();
    workspace.push<core::AddObjectCommand>(workspace.project(), std::move(document));
    return id;
}

void TestRecentlyDeleted::bringsDocumentsBack_data()
{
    QTest::addColumn<QString>("restored"); // the title of what is chosen; empty for all of the step
    QTest::addColumn<bool>("loseParent");  // before it is brought back
    QTest::addColumn<QString>("titles");
    QTest::newRow("all") << "" << false << "Part, Chapter, Scene 1, Scene 2";
    QTest::newRow("with what lay below") << "Chapter" << false << "Part, Chapter, Scene 1, Scene 2";
    QTest::newRow("one alone") << "Scene 2" << false << "Part, Scene 2";
    QTest::newRow("without its parent") << "Chapter" << true << "Chapter, Scene 1, Scene 2";
}

void TestRecentlyDeleted::bringsDocumentsBack()
{
    QFETCH(QString, restored);
    QFETCH(bool, loseParent);
    QFETCH(QString, titles);
    Workspace workspace;
    RecentlyDeleted deleted(workspace, m_locations);
    const auto part = add(workspace, QStringLiteral("Part"));
    const auto chapter = add(workspace, QStringLiteral("Chapter"), part);
    add(workspace, QStringLiteral("Scene 1"), chapter);
    add(workspace, QStringLiteral("Scene 2"), chapter);
    const ProjectPrint whole = fingerprint(workspace.project());
    DocumentOperations(workspace).remove({chapter});
    QCOMPARE(workspace.project().size(), 1);
    if (loseParent)
        DocumentOperations(workspace).remove({part});

    const std::vector<DeletedGroup> groups = deleted.groups();
    QCOMPARE(groups.size(), loseParent ? 2U : 1U);
    const DeletedGroup &group = groups.back();
    QCOMPARE(group.time, m_now);
    QCOMPARE(group.items.size(), 3U);
    QCOMPARE(group.items.front().name, QStringLiteral("Chapter"));
    QCOMPARE(group.items.back().depth, 1);
    QVERIFY(group.items.front().text.contains(QStringLiteral("text of Chapter")));
    QString path;
    for (const DeletedItem &item : group.items) {
        if (item.name == restored)
            path = item.path;
    }
    const qsizetype steps = workspace.history().undoCount();
    QVERIFY(deleted.restore(group, path));
    QCOMPARE(workspace.history().undoCount(), steps + 1);
    QStringList found;
    for (const auto &place : workspace.project().documentTree().inOrder())
        found.append(place.document->title());
    QCOMPARE(found.join(QStringLiteral(", ")), titles);
    if (restored.isEmpty())
        QVERIFY(fingerprint(workspace.project()) == whole);
    // What is there again is offered no more.
    for (const DeletedGroup &rest : deleted.groups()) {
        for (const DeletedItem &item : rest.items)
            QVERIFY(!found.contains(item.name));
    }
    workspace.undo();
    QCOMPARE(workspace.project().size(), loseParent ? 0 : 1);
    QCOMPARE(deleted.groups().size(), groups.size());
}

void TestRecentlyDeleted::bringsEntitiesBack()
{
    Workspace workspace;
    RecentlyDeleted deleted(workspace, m_locations);
    core::Project &project = workspace.project();
    core::Category category;
    category.id = core::ContentId::create();
    category.name = QStringLiteral("People");
    workspace.push<core::AddCategoryCommand>(project, category);
    const auto id = core::ContentId::create();
    auto entity = std::make_unique<core::Entity>(id, category.id, QStringLiteral("Mara"));
    workspace.push<core::AddObjectCommand>(project, std::move(entity));
    const ProjectPrint whole = fingerprint(project);
    workspace.push<core::RemoveObjectCommand>(project, id);
    workspace.push<core::RemoveCategoryCommand>(project, category.id);
    const std::vector<DeletedGroup> groups = deleted.groups();
    QCOMPARE(groups.size(), 2U);
    // The category that it needs comes along, from whichever step it went in.
    QVERIFY(deleted.restore(
        groups.at(0).items.front().name == QLatin1String("Mara") ? groups.at(0) : groups.at(1)));
    QVERIFY(fingerprint(project) == whole);
}

void TestRecentlyDeleted::bringsEntitiesBackIntoTheirCategory_data()
{
    QTest::addColumn<QString>("meanwhile"); // what becomes of the entity before it is restored
    QTest::addColumn<bool>("goesBack");
    QTest::newRow("nothing") << "" << true;
    QTest::newRow("renamed") << "rename" << true;
    QTest::newRow("moved elsewhere") << "move" << false;
    QTest::newRow("deleted too") << "delete" << true;
    QTest::newRow("the category went twice") << "twice" << true;
}

void TestRecentlyDeleted::bringsEntitiesBackIntoTheirCategory()
{
    QFETCH(QString, meanwhile);
    QFETCH(bool, goesBack);
    Workspace workspace;
    RecentlyDeleted deleted(workspace, m_locations);
    core::Project &project = workspace.project();
    CodexOperations codex(workspace);
    const auto world = codex.addCategory({}, QStringLiteral("World"));
    const auto people = codex.addCategory(world, QStringLiteral("People"));
    const auto sailors = codex.addCategory(people, QStringLiteral("Sailors"));
    const auto other = codex.addCategory({}, QStringLiteral("Other"));
    const auto mara = codex.addEntity(people, QStringLiteral("Mara"));
    const auto pinned = codex.addEntity(people, QStringLiteral("Ilen"));
    codex.togglePin({pinned});
    if (meanwhile == QLatin1String("twice")) {
        codex.remove({people});
        QVERIFY(deleted.restore(deleted.groups().front()));
    }
    const ProjectPrint whole = fingerprint(project);
    codex.remove({people, pinned});
    QCOMPARE(project.find<core::Entity>(mara)->categoryId(), world);
    QCOMPARE(project.taxonomy().find(sailors)->parentId, world);
    if (meanwhile == QLatin1String("rename"))
        codex.rename(mara, QStringLiteral("Mara T."));
    else if (meanwhile == QLatin1String("move"))
        codex.move({mara}, other);
    else if (meanwhile == QLatin1String("delete"))
        codex.remove({mara});

    for (const DeletedGroup &group : deleted.groups()) {
        const qsizetype steps = workspace.history().undoCount();
        QVERIFY(deleted.restore(group));
        QCOMPARE(workspace.history().undoCount(), steps + 1);
    }
    QCOMPARE(project.taxonomy().find(sailors)->parentId, people);
    QVERIFY(project.isPinned(pinned));
    const bool isSame = goesBack && meanwhile != QLatin1String("rename");
    QCOMPARE(fingerprint(project) == whole, isSame);
    if (meanwhile != QLatin1String("delete")) {
        QCOMPARE(project.find<core::Entity>(mara)->categoryId(), goesBack ? people : other);
        workspace.undo();
        QCOMPARE(project.find<core::Entity>(mara)->categoryId(), goesBack ? world : other);
        QVERIFY(!project.taxonomy().contains(people));
    }
}

void TestRecentlyDeleted::undoneDeletionsAreNone()
{
    Workspace workspace;
    RecentlyDeleted deleted(workspace, m_locations);
    const auto id = add(workspace, QStringLiteral("One"));
    workspace.undo(); // not added after all
    QCOMPARE(deleted.groups().size(), 0U);
    workspace.redo();
    DocumentOperations(workspace).remove({id});
    QCOMPARE(deleted.groups().size(), 1U);
    workspace.undo();
    QCOMPARE(deleted.groups().size(), 0U);
    workspace.redo();
    QCOMPARE(deleted.groups().size(), 1U);
    QCOMPARE(deleted.groups().front().items.size(), 1U);
}

void TestRecentlyDeleted::followsTheProjectToAnotherPlace()
{
    const QString first = at(QStringLiteral("first"));
    const QString second = at(QStringLiteral("second.vellum"));
    {
        Workspace workspace;
        RecentlyDeleted deleted(workspace, m_locations);
        DocumentOperations(workspace).remove({add(workspace, QStringLiteral("Early"))});
        QVERIFY(workspace.current().saveAsFolder(first));
        DocumentOperations(workspace).remove({add(workspace, QStringLiteral("Later"))});
        QVERIFY(workspace.current().saveAsBundle(second));
        QCOMPARE(deleted.groups().size(), 2U);
    }
    Workspace workspace;
    RecentlyDeleted deleted(workspace, m_locations);
    QCOMPARE(deleted.groups().size(), 0U);
    for (const QString &path : {first, second}) {
        auto opened = OpenProject::open(path);
        QVERIFY(opened);
        workspace.replaceProject(*std::move(opened));
        QCOMPARE(deleted.groups().size(), 2U);
    }
    workspace.replaceProject(std::make_unique<OpenProject>());
    QCOMPARE(deleted.groups().size(), 0U);
}

void TestRecentlyDeleted::keptForAWhile_data()
{
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<int>("steps");
    const QDateTime start(QDate(2024, 5, 6), QTime(12, 0), Qt::UTC);
    QTest::newRow("the same day") << start << 2;
    QTest::newRow("within the time") << start.addDays(30) << 2;
    QTest::newRow("one is too old") << start.addDays(31) << 1;
    QTest::newRow("all are") << start.addDays(40) << 0;
    QTest::newRow("a clock set back") << start.addYears(-20) << 2;
}

void TestRecentlyDeleted::keptForAWhile()
{
    QFETCH(QDateTime, now);
    QFETCH(int, steps);
    const DeletedStore store(QStringLiteral("novel"), m_locations);
    DeletedStep step;
    step.label = QStringLiteral("Delete");
    step.files = {{QStringLiteral("a"), "{}"}};
    QVERIFY(store.add(step));
    m_now = m_now.addDays(1);
    QVERIFY(store.add(step));
    m_now = now;
    const QString folder = m_locations.workingFolder() + QStringLiteral("/novel.deleted/");
    putFile(folder + QStringLiteral("notes.json"), "mine");
    store.thin(); // one day alone, whatever the clock says, removes nothing
    QCOMPARE(int(namesIn(folder).filter(QStringLiteral(".json")).size()), 3);
    QCOMPARE(int(store.list().size()), steps);
    QCOMPARE(fileBytes(folder + QStringLiteral("notes.json")), QByteArray("mine"));
    store.clear();
    QCOMPARE(store.list().size(), 0U);
}

void TestRecentlyDeleted::staysOutOfTheProject()
{
    const QString folder = at(QStringLiteral("novel"));
    Workspace workspace;
    RecentlyDeleted deleted(workspace, m_locations);
    const auto id = add(workspace, QStringLiteral("Secret"));
    QVERIFY(workspace.current().saveAsFolder(folder));
    DocumentOperations(workspace).remove({id});
    QVERIFY(workspace.current().save());
    deleted.finish();
    QCOMPARE(QStringList(filesUnder(folder).keys()), QStringList{QStringLiteral("project.json")});
}

QTEST_GUILESS_MAIN(TestRecentlyDeleted)
#include "tst_recentlydeleted.moc"
