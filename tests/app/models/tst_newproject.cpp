#include "app/base/settings.h"
#include "app/models/newproject.h"
#include "app/models/projectflows.h"
#include "app/models/workspace.h"
#include "app/story/beatsheettemplates.h"
#include "app/story/projecttemplates.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "tests/support/fakeprompts.h"
#include "tests/support/fingerprint.h"

#include <QtTest/QtTest>

using namespace vl;
using app::NewProject;
using app::ProjectMaker;

namespace {

QStringList filesIn(const QString &folder)
{
    QStringList files;
    QDirIterator each(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (each.hasNext())
        files.append(QDir(folder).relativeFilePath(each.next()));
    files.sort();
    return files;
}

} // namespace

class TestNewProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void templatesAreWhole_data();
    void templatesAreWhole();
    void namesAndPlaces_data();
    void namesAndPlaces();
    void nothingIsWrittenOver();
    void aProjectIsMadeAndOpened_data();
    void aProjectIsMadeAndOpened();
    void unsavedWorkIsAskedAbout();
    void copiesHaveNamesOfTheirOwn();
};

void TestNewProject::templatesAreWhole_data()
{
    QTest::addColumn<QString>("id");
    for (const app::ProjectTemplate &each : app::projectTemplates())
        QTest::newRow(qPrintable(each.id)) << each.id;
}

void TestNewProject::templatesAreWhole()
{
    QFETCH(QString, id);
    core::Project project;
    QVERIFY(app::fillFromTemplate(id, project));
    if (id == u"blank") {
        QCOMPARE(project.size(), 0);
        QCOMPARE(project.taxonomy().size(), 0);
        return;
    }
    QVERIFY(project.size() > 8);
    QVERIFY(project.taxonomy().size() >= 3);
    for (const core::ContentId &category : project.taxonomy().ids()) {
        const core::Category &each = *project.taxonomy().find(category);
        QVERIFY(!each.name.isEmpty());
        QVERIFY2(!each.fields.isEmpty(), qPrintable(each.name));
        QSet<QString> keys;
        for (const core::FieldDefinition &field : each.fields) {
            QVERIFY(!field.key.isEmpty() && !field.label.isEmpty());
            QVERIFY2(!keys.contains(field.key), qPrintable(field.key));
            keys.insert(field.key);
            QCOMPARE(field.type == core::FieldType::Choice, field.options.size() > 1);
        }
    }
    for (const core::Document *document : project.all<core::Document>()) {
        QVERIFY(!document->title().isEmpty());
        QVERIFY(document->parentId().isNull() || project.contains(document->parentId()));
        for (const QString &audience : document->visibleTo())
            QVERIFY(project.audiences().contains(audience));
    }
    // What stands on the beat sheet stands on beats that there are.
    const app::BeatSheetTemplate *sheet =
        app::findBeatSheetTemplate(project.beatSheet().templateId);
    for (const core::BeatAssignment &assignment : project.beatSheet().assignments) {
        QVERIFY(sheet);
        QVERIFY(project.find<core::Document>(assignment.documentId));
        QVERIFY2(
            std::any_of(sheet->beats.begin(), sheet->beats.end(),
                        [&](const app::Beat &beat) { return beat.name == assignment.beatName; }),
            qPrintable(assignment.beatName));
    }
    for (const core::EntityTemplate &each : project.entityTemplates())
        for (const auto &[key, value] : each.fieldValues)
            QVERIFY(std::any_of(
                project.taxonomy().find(each.categoryId)->fields.begin(),
                project.taxonomy().find(each.categoryId)->fields.end(),
                [&key = key](const core::FieldDefinition &field) { return field.key == key; }));
}

void TestNewProject::namesAndPlaces_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<QString>("file"); // empty where it is refused
    QTest::newRow("file") << "My Tale" << false << "My Tale.vellum";
    QTest::newRow("folder") << "My Tale" << true << "My Tale";
    QTest::newRow("blanks around") << "  Élan 🐉 " << false << "Élan 🐉.vellum";
    QTest::newRow("with its ending") << "Tale.VELLUM" << false << "Tale.vellum";
    QTest::newRow("nothing") << "   " << false << "";
    QTest::newRow("an ending alone") << ".vellum" << false << "";
    QTest::newRow("a way out") << "../Tale" << true << "";
    QTest::newRow("here") << "." << true << "";
    QTest::newRow("signs that some systems refuse") << "What?" << false << "";
    QTest::newRow("line end") << "a\nb" << false << "";
    QTest::newRow("too long") << QString(121, u'a') << false << "";
    QTest::newRow("taken") << "taken" << true << "";
    QTest::newRow("taken by a dead link") << "link" << true << "";
}

void TestNewProject::namesAndPlaces()
{
    QFETCH(QString, name);
    QFETCH(bool, isFolder);
    QFETCH(QString, file);
    QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/ivorel nëw-XXXXXX"));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("taken")));
    QVERIFY(
        QFile::link(dir.filePath(QStringLiteral("nowhere")), dir.filePath(QStringLiteral("link"))));
    const auto path = ProjectMaker::pathFor({QStringLiteral("blank"), name, dir.path(), isFolder});
    QCOMPARE(bool(path), !file.isEmpty());
    if (path)
        QCOMPARE(*path, dir.filePath(file));
    else
        QVERIFY(!path.message().isEmpty());
}

void TestNewProject::nothingIsWrittenOver()
{
    QTemporaryDir dir;
    QFile taken(dir.filePath(QStringLiteral("Tale.vellum")));
    QVERIFY(taken.open(QIODevice::WriteOnly));
    taken.write("precious");
    taken.close();
    QVERIFY(!ProjectMaker::make({QStringLiteral("novel"), QStringLiteral("Tale"), dir.path(), {}}));
    // Nor is a file taken for a folder, or a template for another.
    QVERIFY(!ProjectMaker::make(
        {QStringLiteral("novel"), QStringLiteral("Tale"), taken.fileName(), true}));
    QVERIFY(!ProjectMaker::make(
        {QStringLiteral("no such"), QStringLiteral("Other"), dir.path(), true}));
    QCOMPARE(filesIn(dir.path()), QStringList{QStringLiteral("Tale.vellum")});
    QVERIFY(taken.open(QIODevice::ReadOnly));
    QCOMPARE(taken.readAll(), QByteArray("precious"));
}

void TestNewProject::aProjectIsMadeAndOpened_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("file") << false;
    QTest::newRow("folder") << true;
}

void TestNewProject::aProjectIsMadeAndOpened()
{
    QFETCH(bool, isFolder);
    QTemporaryDir dir;
    app::Settings settings(dir.filePath(QStringLiteral("settings.ini")));
    test::FakePrompts prompts;
    app::Workspace workspace;
    app::ProjectFlows flows(workspace, prompts, settings);
    const NewProject wanted{QStringLiteral("campaign"), QStringLiteral("Täle"),
                            dir.filePath(QStringLiteral("new/place")), isFolder};
    QVERIFY(flows.create(wanted));
    QCOMPARE(prompts.errors, QStringList());
    QCOMPARE(workspace.current().name(), QStringLiteral("Täle"));
    QCOMPARE(workspace.current().isBundle(), !isFolder);
    QVERIFY(!workspace.current().isDirty());
    QVERIFY(workspace.project().size() > 8);
    QCOMPARE(settings.recentProjects().first(), workspace.current().path());
    // The same once more is refused, and the one that is open stays.
    QVERIFY(!flows.create(wanted));
    QCOMPARE(prompts.errors.size(), 1);
    QCOMPARE(workspace.current().name(), QStringLiteral("Täle"));
}

void TestNewProject::unsavedWorkIsAskedAbout()
{
    QTemporaryDir dir;
    app::Settings settings(dir.filePath(QStringLiteral("settings.ini")));
    test::FakePrompts prompts;
    app::Workspace workspace;
    app::ProjectFlows flows(workspace, prompts, settings);
    workspace.history().markUnrecoverablyDirty();
    prompts.unsaved = app::Prompts::Unsaved::Cancel;
    QVERIFY(!flows.create({QStringLiteral("blank"), QStringLiteral("Tale"), dir.path(), true}));
    QCOMPARE(prompts.questions.size(), 1);
    QVERIFY(!QFileInfo::exists(dir.filePath(QStringLiteral("Tale"))));
}

void TestNewProject::copiesHaveNamesOfTheirOwn()
{
    QTemporaryDir dir;
    const auto original =
        ProjectMaker::make({QStringLiteral("novel"), QStringLiteral("One"), dir.path(), true});
    QVERIFY(original);
    QVERIFY(QDir(*original).mkdir(QStringLiteral("assets")));
    QFile asset(*original + QStringLiteral("/assets/a.png"));
    QVERIFY(asset.open(QIODevice::WriteOnly));
    asset.write("picture");
    asset.close();
    const QStringList files = filesIn(*original);
    const QString place = dir.filePath(QStringLiteral("copies"));
    QStringList names;
    for (int i = 0; i < 3; ++i) {
        const auto copied = ProjectMaker::copy(*original, place, QStringLiteral("Sample"));
        QVERIFY2(copied, qPrintable(copied ? QString() : copied.message()));
        names.append(QFileInfo(*copied).fileName());
        QVERIFY(QFileInfo::exists(*copied + QStringLiteral("/assets/a.png")));
        const auto one = app::OpenProject::open(*original);
        const auto other = app::OpenProject::open(*copied);
        QVERIFY(one && other);
        QVERIFY(test::fingerprint((*one)->project()) == test::fingerprint((*other)->project()));
    }
    QCOMPARE(names, (QStringList{QStringLiteral("Sample"), QStringLiteral("Sample 2"),
                                 QStringLiteral("Sample 3")}));
    QCOMPARE(filesIn(*original), files);
    QVERIFY(!ProjectMaker::copy(dir.filePath(QStringLiteral("none")), place, QStringLiteral("X")));
}

QTEST_GUILESS_MAIN(TestNewProject)
#include "tst_newproject.moc"
