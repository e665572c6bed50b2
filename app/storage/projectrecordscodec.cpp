#include "app/storage/projectrecordscodec.h"

#include "app/storage/json/jsonfields.h"

namespace vl::app {

using core::BeatAssignment;
using core::BeatSheet;
using core::Calendar;
using core::CalendarMonth;
using core::ContinuityRule;
using core::EntityTemplate;
using core::LaneArrangement;
using core::LibraryMount;
using core::PlotThread;
using core::Project;
using core::Reckoning;
using core::SavedSearch;
using core::SeriesArrangement;
using core::TimelineBookmark;
using core::TimelineEra;
using core::TimelineMarker;
using core::TimelineViewPreset;
using core::TimelineViewSettings;
using core::WritingGoal;

namespace {

struct LogEntry
{
    QDate date;
    qint32 words = 0;
};

} // namespace

template<>
struct JsonEnum<core::RuleComparison>
{
    static constexpr const auto &texts = core::ruleComparisonTexts;
};

template<>
struct JsonRecord<SavedSearch>
{
    static constexpr auto fields = sortedFields<SavedSearch>({
        member<SavedSearch, &SavedSearch::name>("name"),
        member<SavedSearch, &SavedSearch::query>("query"),
    });
};

template<>
struct JsonRecord<EntityTemplate>
{
    static constexpr auto fields = sortedFields<EntityTemplate>({
        member<EntityTemplate, &EntityTemplate::categoryId, Presence::WhenSet>("categoryId"),
        member<EntityTemplate, &EntityTemplate::fieldValues>("fieldValues"),
        member<EntityTemplate, &EntityTemplate::name>("name"),
    });
};

template<>
struct JsonRecord<PlotThread>
{
    static constexpr auto fields = sortedFields<PlotThread>({
        member<PlotThread, &PlotThread::characterId, Presence::WhenSet>("characterId"),
        member<PlotThread, &PlotThread::color>("color"),
        member<PlotThread, &PlotThread::description>("description"),
        member<PlotThread, &PlotThread::name>("name"),
    });
};

template<>
struct JsonRecord<ContinuityRule>
{
    static constexpr auto fields = sortedFields<ContinuityRule>({
        member<ContinuityRule, &ContinuityRule::comparison>("comparison"),
        member<ContinuityRule, &ContinuityRule::entityId>("entityId"),
        member<ContinuityRule, &ContinuityRule::fieldKey>("fieldKey"),
        member<ContinuityRule, &ContinuityRule::instant, Presence::WhenSet>("instant"),
        member<ContinuityRule, &ContinuityRule::name>("name"),
        member<ContinuityRule, &ContinuityRule::value>("value"),
    });
};

template<>
struct JsonRecord<TimelineEra>
{
    static constexpr auto fields = sortedFields<TimelineEra>({
        member<TimelineEra, &TimelineEra::color>("color"),
        member<TimelineEra, &TimelineEra::endMinute>("endMinute"),
        member<TimelineEra, &TimelineEra::name>("name"),
        member<TimelineEra, &TimelineEra::startMinute>("startMinute"),
    });
};

template<>
struct JsonRecord<TimelineMarker>
{
    static constexpr auto fields = sortedFields<TimelineMarker>({
        member<TimelineMarker, &TimelineMarker::instant>("instant"),
        member<TimelineMarker, &TimelineMarker::isNow>("isNow"),
        member<TimelineMarker, &TimelineMarker::name>("name"),
    });
};

template<>
struct JsonRecord<TimelineBookmark>
{
    static constexpr auto fields = sortedFields<TimelineBookmark>({
        member<TimelineBookmark, &TimelineBookmark::endMinute>("endMinute"),
        member<TimelineBookmark, &TimelineBookmark::name>("name"),
        member<TimelineBookmark, &TimelineBookmark::startMinute>("startMinute"),
    });
};

template<>
struct JsonRecord<BeatAssignment>
{
    static constexpr auto fields = sortedFields<BeatAssignment>({
        member<BeatAssignment, &BeatAssignment::beatName>("beatName"),
        member<BeatAssignment, &BeatAssignment::documentId>("documentId"),
    });
};

template<>
struct JsonRecord<BeatSheet>
{
    static constexpr auto fields = sortedFields<BeatSheet>({
        member<BeatSheet, &BeatSheet::assignments>("assignments"),
        member<BeatSheet, &BeatSheet::templateId>("templateId"),
    });
};

template<>
struct JsonRecord<LibraryMount>
{
    static constexpr auto fields = sortedFields<LibraryMount>({
        member<LibraryMount, &LibraryMount::path>("path"),
        member<LibraryMount, &LibraryMount::writable>("writable"),
    });
};

template<>
struct JsonRecord<LogEntry>
{
    static constexpr auto fields = sortedFields<LogEntry>({
        member<LogEntry, &LogEntry::date>("date"),
        member<LogEntry, &LogEntry::words>("words"),
    });
};

template<>
struct JsonRecord<WritingGoal>
{
    static constexpr auto fields = sortedFields<WritingGoal>({
        member<WritingGoal, &WritingGoal::dailyWordTarget>("dailyWordTarget"),
        member<WritingGoal, &WritingGoal::deadline>("deadline"),
        member<WritingGoal, &WritingGoal::manuscriptWordTarget>("manuscriptWordTarget"),
    });
};

template<>
struct JsonRecord<CalendarMonth>
{
    static constexpr auto fields = sortedFields<CalendarMonth>({
        member<CalendarMonth, &CalendarMonth::days>("days"),
        member<CalendarMonth, &CalendarMonth::name>("name"),
    });
};

template<>
struct JsonRecord<Calendar>
{
    static constexpr auto fields = sortedFields<Calendar>({
        member<Calendar, &Calendar::eraName>("eraName"),
        member<Calendar, &Calendar::months>("months"),
        member<Calendar, &Calendar::name>("name"),
        member<Calendar, &Calendar::weekdays>("weekdays"),
    });
};

template<>
struct JsonRecord<Reckoning>
{
    static constexpr auto fields = sortedFields<Reckoning>({
        member<Reckoning, &Reckoning::calendar>("calendar"),
        member<Reckoning, &Reckoning::epochOffsetMinutes>("epochOffsetMinutes"),
        member<Reckoning, &Reckoning::name>("name"),
    });
};

template<>
struct JsonRecord<LaneArrangement>
{
    static constexpr auto fields = sortedFields<LaneArrangement>({
        member<LaneArrangement, &LaneArrangement::collapsed>("collapsed"),
        member<LaneArrangement, &LaneArrangement::groupBy>("groupBy"),
        member<LaneArrangement, &LaneArrangement::hidden>("hidden"),
        member<LaneArrangement, &LaneArrangement::label>("label"),
    });
};

template<>
struct JsonRecord<SeriesArrangement>
{
    static constexpr auto fields = sortedFields<SeriesArrangement>({
        member<SeriesArrangement, &SeriesArrangement::hidden>("hidden"),
        member<SeriesArrangement, &SeriesArrangement::label>("label"),
    });
};

template<>
struct JsonRecord<TimelineViewSettings>
{
    static constexpr auto fields = sortedFields<TimelineViewSettings>({
        member<TimelineViewSettings, &TimelineViewSettings::colorBy>("colorBy"),
        member<TimelineViewSettings, &TimelineViewSettings::density>("density"),
        member<TimelineViewSettings, &TimelineViewSettings::eventSize>("eventSize"),
        member<TimelineViewSettings, &TimelineViewSettings::groupBy>("groupBy"),
        member<TimelineViewSettings, &TimelineViewSettings::labelFormat>("labelFormat"),
        member<TimelineViewSettings, &TimelineViewSettings::labelPlacement>("labelPlacement"),
        member<TimelineViewSettings, &TimelineViewSettings::laneArrangements>("laneArrangements"),
        member<TimelineViewSettings, &TimelineViewSettings::ordinalMode>("ordinalMode"),
        member<TimelineViewSettings, &TimelineViewSettings::rowHeight>("rowHeight"),
        member<TimelineViewSettings, &TimelineViewSettings::seriesArrangements>(
            "seriesArrangements"),
        member<TimelineViewSettings, &TimelineViewSettings::seriesShape>("seriesShape"),
        member<TimelineViewSettings, &TimelineViewSettings::showConflictMarks>("showConflictMarks"),
        member<TimelineViewSettings, &TimelineViewSettings::showDensityStrip>("showDensityStrip"),
        member<TimelineViewSettings, &TimelineViewSettings::showGridlines>("showGridlines"),
        member<TimelineViewSettings, &TimelineViewSettings::showLabels>("showLabels"),
    });
};

template<>
struct JsonRecord<TimelineViewPreset>
{
    static constexpr auto fields = sortedFields<TimelineViewPreset>({
        member<TimelineViewPreset, &TimelineViewPreset::name>("name"),
        member<TimelineViewPreset, &TimelineViewPreset::settings>("settings"),
    });
};

static void toJson(JsonWriter &json, const core::WritingLog &log)
{
    json.beginArray();
    for (const auto &[date, words] : log)
        toJson(json, LogEntry{date, words});
    json.endArray();
}
/// Of several entries of one day the last counts; those without a day are dropped.
static void fromJson(const JsonValue &json, core::WritingLog &log)
{
    for (const JsonValue element : json.elements()) {
        LogEntry entry;
        fromJson(element, entry);
        if (entry.date.isValid())
            log.insert_or_assign(log.end(), entry.date, entry.words);
    }
}

static constexpr auto fields = sortedFields<Project>({
    field<Project, &Project::audiences, &Project::setAudiences>("audiences"),
    field<Project, &Project::beatSheet, &Project::setBeatSheet>("beatSheet"),
    field<Project, &Project::calendar, &Project::setCalendar>("calendar"),
    field<Project, &Project::continuityRules, &Project::setContinuityRules>("continuityRules"),
    field<Project, &Project::entityTemplates, &Project::setEntityTemplates>("entityTemplates"),
    field<Project, &Project::mounts, &Project::setMounts>("mounts"),
    field<Project, &Project::pinned, &Project::setPinned>("pinned"),
    field<Project, &Project::plotThreads, &Project::setPlotThreads>("plotThreads"),
    field<Project, &Project::reckonings, &Project::setReckonings>("reckonings"),
    field<Project, &Project::savedSearches, &Project::setSavedSearches>("savedSearches"),
    field<Project, &Project::timelineBookmarks, &Project::setTimelineBookmarks>(
        "timelineBookmarks"),
    field<Project, &Project::timelineEras, &Project::setTimelineEras>("timelineEras"),
    field<Project, &Project::timelineMarkers, &Project::setTimelineMarkers>("timelineMarkers"),
    field<Project, &Project::timelineView, &Project::setTimelineView>("timelineView"),
    field<Project, &Project::timelineViewPresets, &Project::setTimelineViewPresets>(
        "timelineViewPresets"),
    field<Project, &Project::writingGoal, &Project::setWritingGoal>("writingGoal"),
    field<Project, &Project::writingLog, &Project::setWritingLog>("writingLog"),
});

void readProjectRecords(const JsonValue &json, Project &project)
{
    readFields<Project>(json, fields, project);
}

void writeProjectRecords(JsonWriter &json, const Project &project)
{
    json.beginObject();
    writeFields<Project>(json, fields, project);
    json.endObject();
}

} // namespace vl::app
