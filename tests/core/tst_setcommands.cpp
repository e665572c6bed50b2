#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commands/projectcommands.h"
#include "core/commands/workcommands.h"
#include "core/commands/worldcommands.h"
#include "core/commandstack.h"
#include "tests/support/fingerprint.h"
#include "tests/support/randomvalues.h"

#include <QtTest/QtTest>

#include <functional>

using namespace vl::core;
using namespace vl::test;

using Check = std::function<void(const QString &text)>;
Q_DECLARE_METATYPE(Check)

namespace {

/// How many lines of two prints differ.
int differingLines(const QStringList &before, const QStringList &after)
{
    int count = 0;
    for (qsizetype i = 0; i < before.size(); ++i)
        count += before.at(i) != after.at(i);
    return before.size() == after.size() ? count : -1;
}

template<typename Value>
Value differentFrom(const Value &present, RandomValues &random)
{
    for (;;)
        if (Value value = random.make<Value>(); value != present)
            return value;
}

template<typename Object>
Object &targetIn(const Project &project)
{
    if constexpr (std::is_same_v<Object, ContentObject>)
        return *project.objects().begin()->second;
    else
        return *project.all<Object>().front();
}

/// One command that sets a value of an object: what it sets, what it tells, and the way back.
template<typename SetCommand, auto Getter>
void checkObjectCommand(const QString &text)
{
    using Object = typename GetterTraits<decltype(Getter)>::ObjectType;
    RandomValues random(qHash(text));
    Project project;
    fillRandomly(project, random);
    Object &object = targetIn<Object>(project);
    const auto first = (object.*Getter)();
    const auto second = differentFrom(first, random);
    const auto third =
        std::is_same_v<decltype(first), const bool> ? first : differentFrom(second, random);
    const ProjectPrint before = fingerprint(project);
    const QStringList linesBefore = fingerprint(static_cast<const ContentObject &>(object));

    // The old value is the one met when the command runs, not when it was made.
    auto late = std::make_unique<SetCommand>(object, third);
    CommandStack stack;
    ChangeSet heard;
    stack.setListener([&heard](const ChangeSet &changes) { heard = changes; });
    stack.push(std::make_unique<SetCommand>(object, second));
    QVERIFY((object.*Getter)() == second);
    QCOMPARE(stack.undoText(), text);
    QCOMPARE(heard.objects(), (ChangeSet::Changes{{object.id(), ChangeSet::Change::Changed}}));
    QVERIFY(heard.categories().empty() && !heard.touchesAnyRecord());
    QCOMPARE(differingLines(linesBefore, fingerprint(static_cast<const ContentObject &>(object))),
             1);
    const ProjectPrint after = fingerprint(project);

    stack.push(std::move(late));
    QVERIFY((object.*Getter)() == third);
    stack.undo();
    QVERIFY(fingerprint(project) == after);
    stack.undo();
    QVERIFY(fingerprint(project) == before);
    stack.redo();
    QVERIFY(fingerprint(project) == after);
    stack.redo();
    QVERIFY((object.*Getter)() == third);
}

template<ProjectRecord Record, typename SetCommand, auto Getter>
void checkRecordCommand(const QString &text)
{
    RandomValues random(qHash(text));
    Project project;
    fillRandomly(project, random);
    const auto first = (project.*Getter)();
    const auto second = differentFrom(first, random);
    const auto third = differentFrom(second, random);
    const ProjectPrint before = fingerprint(project);

    auto late = std::make_unique<SetCommand>(project, third);
    CommandStack stack;
    ChangeSet heard;
    stack.setListener([&heard](const ChangeSet &changes) { heard = changes; });
    stack.push(std::make_unique<SetCommand>(project, second));
    QVERIFY((project.*Getter)() == second);
    QCOMPARE(stack.undoText(), text);
    QVERIFY(heard.objects().empty() && heard.categories().empty());
    const ProjectPrint after = fingerprint(project);
    for (const auto &[record, print] : before.records) {
        QCOMPARE(after.records.at(record) != print, record == Record);
        QCOMPARE(heard.touches(record), record == Record);
    }
    QVERIFY(after.objects == before.objects && after.categories == before.categories);

    stack.push(std::move(late));
    stack.undo();
    QVERIFY(fingerprint(project) == after);
    stack.undo();
    QVERIFY(fingerprint(project) == before);
    stack.redo();
    QVERIFY(fingerprint(project) == after);
}

template<typename SetCommand, auto Getter>
void row(const char *text)
{
    QTest::newRow(text) << QString::fromLatin1(text)
                        << Check(checkObjectCommand<SetCommand, Getter>);
}

template<ProjectRecord Record, typename SetCommand, auto Getter>
void recordRow(const char *text)
{
    QTest::newRow(text) << QString::fromLatin1(text)
                        << Check(checkRecordCommand<Record, SetCommand, Getter>);
}

} // namespace

class TestSetCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setting_data();
    void setting();
    void bodyKeepsTheDifference_data();
    void bodyKeepsTheDifference();
};

void TestSetCommands::setting_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Check>("check");

    row<SetAiExclusionCommand, &ContentObject::isAiExcluded>("Set AI exclusion");
    row<SetObjectTagsCommand, &ContentObject::tags>("Set tags");
    row<SetObjectVisibilityCommand, &ContentObject::visibleTo>("Set visibility");

    row<SetDocumentTitleCommand, &Document::title>("Rename document");
    row<SetDocumentBodyCommand, &Document::body>("Edit document body");
    row<SetDocumentKindCommand, &Document::documentKind>("Change document kind");
    row<SetDocumentSynopsisCommand, &Document::synopsis>("Edit synopsis");
    row<SetDocumentStatusCommand, &Document::status>("Edit status");
    row<SetDocumentPointOfViewCommand, &Document::pointOfView>("Edit point of view");
    row<SetDocumentTensionLevelCommand, &Document::tensionLevel>("Edit tension");
    row<SetDocumentSceneInstantCommand, &Document::sceneInstant>("Set scene date");
    row<SetDocumentTargetCommand, &Document::wordCountTarget>("Set word-count target");
    row<SetDocumentSourcesCommand, &Document::sourceIds>("Cite source");
    row<SetDocumentPlotThreadsCommand, &Document::plotThreadIds>("Tag scene plot threads");
    row<SetDocumentRevisionBaselineCommand, &Document::revisionBaseline>(
        "Mark screenplay revision");
    row<SetDocumentVersionsCommand, &Document::versions>("Edit version history");
    row<SetDocumentVariantsCommand, &Document::variants>("Edit document variants");
    row<SetDocumentFootnotesCommand, &Document::footnotes>("Edit footnotes");

    row<SetEntityNameCommand, &Entity::name>("Rename entity");
    row<SetEntityCategoryCommand, &Entity::categoryId>("Move entity");
    row<SetEntityAliasesCommand, &Entity::aliases>("Set aliases");
    row<SetEntityGalleryCommand, &Entity::gallery>("Set entity gallery");
    row<SetEntityLifespanCommand, &Entity::lifespan>("Edit lifespan");
    row<SetEntityTimedValuesCommand, &Entity::timedValues>("Set state over time");

    using R = ProjectRecord;
    recordRow<R::EntityTemplates, SetEntityTemplatesCommand, &Project::entityTemplates>(
        "Update entity templates");
    recordRow<R::SavedSearches, SetSavedSearchesCommand, &Project::savedSearches>(
        "Update saved searches");
    recordRow<R::Audiences, SetAudiencesCommand, &Project::audiences>("Edit audiences");
    recordRow<R::PlotThreads, SetPlotThreadsCommand, &Project::plotThreads>("Edit plot threads");
    recordRow<R::ContinuityRules, SetContinuityRulesCommand, &Project::continuityRules>(
        "Set continuity rules");
    recordRow<R::Calendar, SetCalendarCommand, &Project::calendar>("Set calendar");
    recordRow<R::Reckonings, SetReckoningsCommand, &Project::reckonings>("Set reckonings");
    recordRow<R::TimelineEras, SetTimelineErasCommand, &Project::timelineEras>("Set timeline eras");
    recordRow<R::TimelineMarkers, SetTimelineMarkersCommand, &Project::timelineMarkers>(
        "Set timeline markers");
    recordRow<R::TimelineBookmarks, SetTimelineBookmarksCommand, &Project::timelineBookmarks>(
        "Set timeline bookmarks");
    recordRow<R::TimelineView, SetTimelineViewSettingsCommand, &Project::timelineView>(
        "Change timeline view");
    recordRow<R::TimelineViewPresets, SetTimelineViewPresetsCommand, &Project::timelineViewPresets>(
        "Update timeline view presets");
    recordRow<R::BeatSheet, SetBeatSheetCommand, &Project::beatSheet>("Edit beat sheet");
    recordRow<R::WritingGoal, SetWritingGoalCommand, &Project::writingGoal>("Set writing goal");
    recordRow<R::Mounts, SetLibraryMountsCommand, &Project::mounts>("Update mounted libraries");

    row<SetTimelineTitleCommand, &Timeline::title>("Rename timeline");
    row<SetTimelineEventCommand, &TimelineEvent::data>("Edit timeline event");
    row<SetCanvasTitleCommand, &Canvas::title>("Rename canvas");
    row<SetChartCommand, &Chart::data>("Edit chart");
    row<SetCommentCommand, &Comment::data>("Edit comment");
    row<SetCommentTargetCommand, &Comment::targetId>("Move comment");
    row<SetLanguageCommand, &Language::data>("Edit language");
    row<SetMediaCaptionCommand, &Media::caption>("Edit caption");
    row<SetMediaCropCommand, &Media::crop>("Crop image");
    row<SetMapTitleCommand, &Map::title>("Rename map");
    row<SetMapImageCommand, &Map::imageAssetPath>("Set map image");
    row<SetMapPinsCommand, &Map::pins>("Edit map pins");
    row<SetMapRegionsCommand, &Map::regions>("Edit map regions");
    row<SetMapRoutesCommand, &Map::routes>("Edit map routes");
    row<SetMapTokensCommand, &Map::tokens>("Edit map tokens");
    row<SetMapGridCommand, &Map::grid>("Edit map grid");
    row<SetMapTravelSettingsCommand, &Map::travelSettings>("Set map travel settings");
    row<SetRandomTableCommand, &RandomTable::data>("Edit random table");
    row<SetSourceCommand, &Source::data>("Edit source");
    row<SetStatBlockCommand, &StatBlock::data>("Edit stat block");

    row<SetSpreadsheetTitleCommand, &Spreadsheet::title>("Rename spreadsheet");
    row<SetSpreadsheetGridCommand, &Spreadsheet::grid>("Update spreadsheet");
    row<SetSpreadsheetSizesCommand, &Spreadsheet::sizes>("Resize");
    row<SetSpreadsheetLinkedCategoryCommand, &Spreadsheet::linkedCategoryId>(
        "Bind spreadsheet to category");

    row<SetTaskTitleCommand, &Task::title>("Rename task");
    row<SetTaskDescriptionCommand, &Task::description>("Edit task details");
    row<SetTaskDueDateCommand, &Task::dueDate>("Change task due date");
    row<SetTaskPriorityCommand, &Task::priority>("Change task priority");
    row<SetTaskStatusCommand, &Task::status>("Change task status");
    row<SetTaskBoardCommand, &Task::board>("Move task to board");
    row<SetTaskSubmissionCommand, &Task::submission>("Change submission details");
    row<SetTaskTargetCommand, &Task::targetId>("Link task");
}

void TestSetCommands::setting()
{
    QFETCH(const QString, text);
    QFETCH(const Check, check);
    check(text);
}

void TestSetCommands::bodyKeepsTheDifference_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<qsizetype>("position");
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("inserted");

    const auto row = [](const char *name, const char *before, const char *after, qsizetype position,
                        const char *removed, const char *inserted) {
        QTest::newRow(name) << QString::fromUtf8(before) << QString::fromUtf8(after) << position
                            << QString::fromUtf8(removed) << QString::fromUtf8(inserted);
    };
    row("a word in the middle", "the red sea", "the blue sea", 4, "red", "blue");
    row("typed at the end", "the se", "the sea", 6, "", "a");
    row("typed at the start", "he sea", "the sea", 0, "", "t");
    row("nothing", "same", "same", 4, "", "");
    row("from empty", "", "sea", 0, "", "sea");
    row("to empty", "sea", "", 0, "sea", "");
    row("one letter of a row less", "aaaa", "aaa", 3, "a", "");
    row("one letter of a row more", "aaa", "aaaa", 3, "", "a");
    row("start and end overlap", "abab", "ab", 2, "ab", "");
    row("half of a surrogate pair differs", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x81", 1, nullptr,
        nullptr);
}

void TestSetCommands::bodyKeepsTheDifference()
{
    QFETCH(const QString, before);
    QFETCH(const QString, after);
    QFETCH(const qsizetype, position);
    QFETCH(const QString, removed);
    QFETCH(const QString, inserted);
    Document document(ContentId::create(), DocumentKind::Prose, QString());
    document.setBody(before);
    SetDocumentBodyCommand command(document, after);
    for (int round = 0; round < 3; ++round) {
        command.redo();
        QCOMPARE(document.body(), after);
        QCOMPARE(command.position(), position);
        if (!removed.isNull()) {
            QCOMPARE(command.removedText(), removed);
            QCOMPARE(command.insertedText(), inserted);
        }
        command.undo();
        QCOMPARE(document.body(), before);
    }
}

QTEST_GUILESS_MAIN(TestSetCommands)
#include "tst_setcommands.moc"
