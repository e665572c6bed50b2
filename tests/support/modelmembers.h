#pragma once

#include "core/content/canvas.h"
#include "core/content/chart.h"
#include "core/content/comment.h"
#include "core/content/entity.h"
#include "core/content/language.h"
#include "core/content/map.h"
#include "core/content/media.h"
#include "core/content/randomtable.h"
#include "core/content/source.h"
#include "core/content/spreadsheet.h"
#include "core/content/statblock.h"
#include "core/content/task.h"
#include "core/content/timeline.h"
#include "core/project.h"

#include <concepts>
#include <tuple>

namespace vl::core {

template<typename Record, typename T>
concept RecordOf = std::same_as<std::remove_const_t<Record>, T>;

// The members of every record of the model, named once for all tests that fill or print records.
// clang-format off
auto members(RecordOf<SavedSearch> auto &r) { return std::tie(r.name, r.query); }
auto members(RecordOf<EntityTemplate> auto &r) { return std::tie(r.name, r.categoryId, r.fieldValues); }
auto members(RecordOf<PlotThread> auto &r) { return std::tie(r.name, r.description, r.characterId, r.color); }
auto members(RecordOf<ContinuityRule> auto &r) { return std::tie(r.name, r.entityId, r.fieldKey, r.value, r.comparison, r.instant); }
auto members(RecordOf<TimelineEra> auto &r) { return std::tie(r.name, r.color, r.startMinute, r.endMinute); }
auto members(RecordOf<TimelineMarker> auto &r) { return std::tie(r.name, r.instant, r.isNow); }
auto members(RecordOf<TimelineBookmark> auto &r) { return std::tie(r.name, r.startMinute, r.endMinute); }
auto members(RecordOf<BeatAssignment> auto &r) { return std::tie(r.documentId, r.beatName); }
auto members(RecordOf<BeatSheet> auto &r) { return std::tie(r.templateId, r.assignments); }
auto members(RecordOf<LibraryMount> auto &r) { return std::tie(r.path, r.writable); }
auto members(RecordOf<WritingGoal> auto &r) { return std::tie(r.dailyWordTarget, r.manuscriptWordTarget, r.deadline); }
auto members(RecordOf<CalendarMonth> auto &r) { return std::tie(r.name, r.days); }
auto members(RecordOf<Calendar> auto &r) { return std::tie(r.name, r.months, r.weekdays, r.eraName); }
auto members(RecordOf<Reckoning> auto &r) { return std::tie(r.name, r.epochOffsetMinutes, r.calendar); }
auto members(RecordOf<LaneArrangement> auto &r) { return std::tie(r.groupBy, r.label, r.hidden, r.collapsed); }
auto members(RecordOf<SeriesArrangement> auto &r) { return std::tie(r.label, r.hidden); }
auto members(RecordOf<TimelineViewSettings> auto &r)
{
    return std::tie(r.colorBy, r.groupBy, r.density, r.rowHeight, r.eventSize, r.showLabels,
                    r.labelPlacement, r.labelFormat, r.showGridlines, r.showDensityStrip,
                    r.showConflictMarks, r.ordinalMode, r.seriesShape, r.laneArrangements,
                    r.seriesArrangements);
}
auto members(RecordOf<TimelineViewPreset> auto &r) { return std::tie(r.name, r.settings); }
auto members(RecordOf<FieldDefinition> auto &r) { return std::tie(r.key, r.label, r.type, r.required, r.options, r.description); }
auto members(RecordOf<Category> auto &r) { return std::tie(r.id, r.name, r.parentId, r.fields); }

auto members(RecordOf<DocumentVersion> auto &r) { return std::tie(r.label, r.createdAt, r.body); }
auto members(RecordOf<DocumentVariant> auto &r) { return std::tie(r.name, r.body); }
auto members(RecordOf<DocumentVariants> auto &r) { return std::tie(r.variants, r.activeVariant); }
auto members(RecordOf<Footnote> auto &r) { return std::tie(r.id, r.text, r.endnote); }
auto members(RecordOf<Lifespan> auto &r) { return std::tie(r.birthInstant, r.deathInstant); }
auto members(RecordOf<TimedValue> auto &r) { return std::tie(r.key, r.value, r.instant); }
auto members(RecordOf<CellPosition> auto &r) { return std::tie(r.row, r.column); }
auto members(RecordOf<CellFormat> auto &r)
{
    return std::tie(r.bold, r.italic, r.underline, r.strikeOut, r.fontFamily, r.fontPointSize,
                    r.textColor, r.backgroundColor, r.alignment, r.numberFormat, r.decimalPlaces);
}
auto members(RecordOf<SpreadsheetGrid> auto &r) { return std::tie(r.rowCount, r.columnCount, r.cells); }
auto members(RecordOf<SpreadsheetSizes> auto &r) { return std::tie(r.columnWidths, r.rowHeights); }
auto members(RecordOf<ChartSeries> auto &r) { return std::tie(r.name, r.values); }
auto members(RecordOf<ChartData> auto &r)
{
    return std::tie(r.title, r.kind, r.categories, r.series, r.valueAxisTitle, r.categoryAxisTitle);
}
auto members(RecordOf<MapPoint> auto &r) { return std::tie(r.x, r.y); }
auto members(RecordOf<MapRegion> auto &r)
{
    return std::tie(r.label, r.points, r.revealed, r.layer, r.linkedEntityId, r.linkedMapId);
}
auto members(RecordOf<MapRoute> auto &r) { return std::tie(r.fromEntityId, r.toEntityId, r.distance); }
auto members(RecordOf<MapPin> auto &r) { return std::tie(r.x, r.y, r.label, r.note); }
auto members(RecordOf<MapToken> auto &r) { return std::tie(r.x, r.y, r.label, r.color, r.linkedEntityId); }
auto members(RecordOf<MapGrid> auto &r) { return std::tie(r.kind, r.columns); }
auto members(RecordOf<MapTravelSettings> auto &r)
{
    return std::tie(r.travelSpeedPerHour, r.distanceUnit, r.widthDistance);
}
auto members(RecordOf<EventConstraint> auto &r) { return std::tie(r.otherId, r.kind); }
auto members(RecordOf<TimelineEventData> auto &r)
{
    return std::tie(r.timelineId, r.title, r.startMinute, r.durationMinutes, r.ordinal,
                    r.dateQualifier, r.participants, r.locationId, r.parentId, r.collapsed,
                    r.constraints, r.sceneIds, r.description, r.styleColor, r.styleLabel, r.layer);
}
auto members(RecordOf<MediaAnnotation> auto &r)
{
    return std::tie(r.type, r.x1, r.y1, r.x2, r.y2, r.color, r.text);
}
auto members(RecordOf<MediaCrop> auto &r) { return std::tie(r.x1, r.y1, r.x2, r.y2); }
auto members(RecordOf<SourceData> auto &r) { return std::tie(r.sourceType, r.title, r.citationKey, r.fields); }
auto members(RecordOf<TaskSubmission> auto &r) { return std::tie(r.recipient, r.kind, r.submittedOn, r.notes); }
auto members(RecordOf<CanvasCard> auto &r) { return std::tie(r.objectId, r.x, r.y); }
auto members(RecordOf<CanvasConnection> auto &r) { return std::tie(r.a, r.b); }
auto members(RecordOf<CommentData> auto &r)
{
    return std::tie(r.parentId, r.anchor, r.author, r.body, r.createdAt, r.updatedAt, r.resolved);
}
auto members(RecordOf<LexiconEntry> auto &r) { return std::tie(r.word, r.gloss, r.partOfSpeech, r.notes); }
auto members(RecordOf<LanguageData> auto &r)
{
    return std::tie(r.name, r.consonants, r.vowels, r.patterns, r.minSyllables, r.maxSyllables,
                    r.grammarNotes, r.lexicon);
}
auto members(RecordOf<RandomTableEntry> auto &r) { return std::tie(r.text, r.weight); }
auto members(RecordOf<RandomTableData> auto &r) { return std::tie(r.title, r.entries); }
auto members(RecordOf<StatBlockStat> auto &r) { return std::tie(r.label, r.value); }
auto members(RecordOf<StatBlockAction> auto &r) { return std::tie(r.name, r.text); }
auto members(RecordOf<StatBlockData> auto &r) { return std::tie(r.title, r.system, r.notes, r.stats, r.actions); }
// clang-format on

template<typename T>
concept Record = requires(T &record)
{
    members(record);
};

} // namespace vl::core
