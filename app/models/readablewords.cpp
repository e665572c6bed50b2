#include "app/models/readablewords.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace vl::app {

namespace {

struct Label
{
    const char *key;
    const char *context;
    const char *text;
};

struct Choice
{
    const char *key;
    const char *value;
    const char *context;
    const char *text;
};

// Where others have the word, it is the same.
const char forms[] = "vl::app::InspectorForms";
const char own[] = "vl::app::ReadableFile";
const char types[] = "FieldTypes";

// clang-format off
constexpr Label labels[] = {
    {"a", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "One end")},
    {"actions", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Actions")},
    {"activeVariant", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Wording shown")},
    {"aiExcluded", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Withhold from AI services")},
    {"aliases", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Aliases")},
    {"alignment", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Alignment")},
    {"anchor", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Place in the text")},
    {"annotations", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Annotations")},
    {"assetPath", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Media file")},
    {"assignments", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Scenes of the beats")},
    {"audiences", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Audiences")},
    {"author", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Author")},
    {"b", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Other end")},
    {"backgroundColor", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Background colour")},
    {"beatName", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Beat")},
    {"beatSheet", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Beat sheet")},
    {"birthInstant", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Born or begun")},
    {"board", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Board")},
    {"body", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Text")},
    {"bold", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Bold")},
    {"calendar", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Calendar")},
    {"caption", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Caption")},
    {"cards", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Cards")},
    {"categories", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Categories")},
    {"categoryAxisTitle", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Title of the category axis")},
    {"categoryId", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Category")},
    {"cells", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Cells")},
    {"characterId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Character")},
    {"citationKey", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Citation key")},
    {"collapsed", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Collapsed")},
    {"color", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Colour")},
    {"colorBy", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Coloured by")},
    {"column", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Column")},
    {"columnCount", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Columns")},
    {"columnWidths", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Column widths")},
    {"comparison", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Comparison")},
    {"connections", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Connections")},
    {"consonants", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Consonants")},
    {"constraints", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Order among the events")},
    {"continuityRules", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Continuity rules")},
    {"createdAt", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Made")},
    {"crop", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Crop")},
    {"dailyWordTarget", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Words a day")},
    {"date", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Date")},
    {"dateQualifier", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Certainty of the date")},
    {"days", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Days")},
    {"deadline", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Deadline")},
    {"deathInstant", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Died or ended")},
    {"decimalPlaces", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Decimal places")},
    {"density", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Density")},
    {"description", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Description")},
    {"distance", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Distance")},
    {"distanceUnit", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Unit of distance")},
    {"documentId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Document")},
    {"done", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Done")},
    {"dueDate", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Due")},
    {"durationMinutes", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Length in minutes")},
    {"endMinute", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "End")},
    {"endnote", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Endnote")},
    {"entityId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Entity")},
    {"entityTemplates", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Entity templates")},
    {"entries", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Entries")},
    {"epochOffsetMinutes", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Offset in minutes")},
    {"eraName", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Era")},
    {"eventSize", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Size of the events")},
    {"fieldKey", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Field")},
    {"fieldValues", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Values of the fields")},
    {"fields", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Fields")},
    {"fontFamily", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Font")},
    {"fontPointSize", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Font size")},
    {"footnotes", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Footnotes")},
    {"formats", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Formats")},
    {"fromEntityId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "From")},
    {"gallery", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Pictures")},
    {"gloss", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Meaning")},
    {"grammarNotes", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Grammar notes")},
    {"gridColumns", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Columns of the grid")},
    {"gridKind", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Grid")},
    {"groupBy", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Grouped by")},
    {"hidden", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Hidden")},
    {"id", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Mark")},
    {"imageAssetPath", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Media file")},
    {"index", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Number")},
    {"instant", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Date")},
    {"isNow", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Marks the present")},
    {"italic", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Italic")},
    {"key", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Field")},
    {"kind", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Kind")},
    {"label", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Label")},
    {"labelFormat", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Form of the labels")},
    {"labelPlacement", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Place of the labels")},
    {"laneArrangements", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Lanes")},
    {"layer", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Layer")},
    {"lexicon", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Lexicon")},
    {"linkedCategoryId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Linked category")},
    {"linkedEntityId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Linked entity")},
    {"linkedMapId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Linked map")},
    {"locationId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Place")},
    {"manuscriptWordTarget", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Words of the manuscript")},
    {"maxSyllables", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Most syllables")},
    {"minSyllables", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Fewest syllables")},
    {"months", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Months")},
    {"mounts", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Mounted libraries")},
    {"name", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Name")},
    {"note", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Note")},
    {"notes", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Notes")},
    {"numberFormat", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Number format")},
    {"objectId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Object")},
    {"options", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Options")},
    {"ordinal", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Place in the order")},
    {"ordinalMode", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Equal steps")},
    {"otherId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Event")},
    {"parentId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Under")},
    {"partOfSpeech", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Part of speech")},
    {"participants", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Who takes part")},
    {"path", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Path")},
    {"patterns", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Syllable patterns")},
    {"pinned", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Pinned")},
    {"pins", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Pins")},
    {"plotThreadIds", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Plot threads")},
    {"plotThreads", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Plot threads")},
    {"pointOfView", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Point of view")},
    {"points", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Corners")},
    {"priority", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Priority")},
    {"query", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Search")},
    {"recipient", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Recipient")},
    {"reckonings", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Reckonings")},
    {"regions", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Regions")},
    {"required", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Required")},
    {"resolved", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Resolved")},
    {"revealed", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Revealed")},
    {"revisionBaseline", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Text before the revision")},
    {"routes", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Routes")},
    {"row", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Row")},
    {"rowCount", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Rows")},
    {"rowHeight", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Row height")},
    {"rowHeights", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Row heights")},
    {"savedSearches", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Saved searches")},
    {"sceneIds", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Scenes")},
    {"sceneInstant", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Scene date")},
    {"series", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Series")},
    {"seriesArrangements", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Order of the series")},
    {"seriesShape", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Shape of the series")},
    {"settings", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Settings")},
    {"showConflictMarks", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Conflict marks shown")},
    {"showDensityStrip", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Density strip shown")},
    {"showGridlines", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Grid lines shown")},
    {"showLabels", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Labels shown")},
    {"size", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Size")},
    {"sortIndex", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Place in the order")},
    {"sourceIds", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Sources")},
    {"sourceType", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Kind of source")},
    {"startMinute", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Beginning")},
    {"stats", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Values")},
    {"status", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Status")},
    {"strikeOut", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Struck out")},
    {"styleColor", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Colour")},
    {"styleLabel", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Label")},
    {"submission", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Submission")},
    {"submittedOn", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Submitted")},
    {"synopsis", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Synopsis")},
    {"system", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Rule system")},
    {"tags", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Tags")},
    {"targetId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "About")},
    {"templateId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Template")},
    {"tensionLevel", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Tension")},
    {"text", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Text")},
    {"textColor", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Text colour")},
    {"timedValues", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "State over time")},
    {"timelineBookmarks", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Timeline bookmarks")},
    {"timelineEras", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Timeline eras")},
    {"timelineId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Timeline")},
    {"timelineMarkers", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Timeline markers")},
    {"timelineView", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Timeline view")},
    {"timelineViewPresets", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Timeline view presets")},
    {"title", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Title")},
    {"toEntityId", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "To")},
    {"tokens", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Tokens")},
    {"travelSpeedPerHour", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Travel speed an hour")},
    {"type", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Kind")},
    {"underline", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Underlined")},
    {"updatedAt", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Changed")},
    {"value", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Value")},
    {"valueAxisTitle", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Title of the value axis")},
    {"values", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Details")},
    {"variants", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Other wordings")},
    {"versions", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Earlier versions")},
    {"visibleTo", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Audiences")},
    {"vowels", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Vowels")},
    {"weekdays", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Days of the week")},
    {"weight", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Weight")},
    {"widthDistance", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Distance across the map")},
    {"word", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Word")},
    {"wordCountTarget", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Word-count target")},
    {"words", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Words")},
    {"writable", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Writable")},
    {"writingGoal", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Writing goal")},
    {"writingLog", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Writing log")},
};

constexpr Choice choices[] = {
    {"alignment", "center", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Centred")},
    {"alignment", "default", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "As the sheet has it")},
    {"alignment", "left", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Left")},
    {"alignment", "right", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Right")},
    {"comparison", "equals", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Is")},
    {"comparison", "notEquals", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Is not")},
    {"dateQualifier", "after", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "After")},
    {"dateQualifier", "before", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Before")},
    {"dateQualifier", "circa", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Around")},
    {"dateQualifier", "during", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "During")},
    {"dateQualifier", "exact", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Exact")},
    {"gridKind", "hex", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Hexagons")},
    {"gridKind", "none", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "None")},
    {"gridKind", "square", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Squares")},
    {"kind", "after", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "After")},
    {"kind", "area", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Area")},
    {"kind", "audio", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Sound")},
    {"kind", "bar", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Bars")},
    {"kind", "before", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Before")},
    {"kind", "during", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "During")},
    {"kind", "image", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Picture")},
    {"kind", "line", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Lines")},
    {"kind", "note", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Note")},
    {"kind", "pie", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Pie")},
    {"kind", "prose", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Prose")},
    {"kind", "scatter", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Points")},
    {"kind", "screenplay", forms, QT_TRANSLATE_NOOP("vl::app::InspectorForms", "Screenplay")},
    {"kind", "video", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Video")},
    {"numberFormat", "currency", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Currency")},
    {"numberFormat", "general", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "General")},
    {"numberFormat", "number", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Number")},
    {"numberFormat", "percent", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Percent")},
    {"numberFormat", "scientific", own, QT_TRANSLATE_NOOP("vl::app::ReadableFile", "Scientific")},
    {"type", "boolean", types, QT_TRANSLATE_NOOP("FieldTypes", "Yes or no")},
    {"type", "choice", types, QT_TRANSLATE_NOOP("FieldTypes", "Choice")},
    {"type", "date", types, QT_TRANSLATE_NOOP("FieldTypes", "Date")},
    {"type", "number", types, QT_TRANSLATE_NOOP("FieldTypes", "Number")},
    {"type", "reference", types, QT_TRANSLATE_NOOP("FieldTypes", "Reference")},
    {"type", "text", types, QT_TRANSLATE_NOOP("FieldTypes", "Text")},
    {"type", "url", types, QT_TRANSLATE_NOOP("FieldTypes", "Web address")},
};
// clang-format on

} // namespace

QString readableLabel(const QString &key)
{
    const auto *const label =
        std::find_if(std::begin(labels), std::end(labels),
                     [&](const Label &one) { return key == QLatin1String(one.key); });
    return label == std::end(labels) ? QString()
                                     : QCoreApplication::translate(label->context, label->text);
}

QString readableChoice(const QString &key, const QString &value)
{
    const auto *const choice =
        std::find_if(std::begin(choices), std::end(choices), [&](const Choice &one) {
            return key == QLatin1String(one.key)
                   && value.compare(QLatin1String(one.value), Qt::CaseInsensitive) == 0;
        });
    return choice == std::end(choices) ? value
                                       : QCoreApplication::translate(choice->context, choice->text);
}

} // namespace vl::app
