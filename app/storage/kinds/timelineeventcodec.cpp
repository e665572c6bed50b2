#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/timeline.h"

#include <algorithm>

namespace vl::app {

using core::DateQualifier;
using core::EventConstraint;
using core::TimelineEvent;
using core::TimelineEventData;

template<>
struct JsonEnum<DateQualifier>
{
    static constexpr const auto &texts = core::dateQualifierTexts;
};

template<>
struct JsonRecord<EventConstraint>
{
    static constexpr auto fields = sortedFields<EventConstraint>({
        member<EventConstraint, &EventConstraint::kind>("kind"),
        member<EventConstraint, &EventConstraint::otherId>("otherId"),
    });
};

static constexpr std::string_view constraintKinds[] = {"after", "before", "during"};

/// A constraint that names no event, or demands what is not known, is dropped.
static bool isElement(const JsonValue &json, const EventConstraint &constraint)
{
    const JsonValue kind = json.member("kind");
    return !constraint.otherId.isNull()
           && std::any_of(std::begin(constraintKinds), std::end(constraintKinds),
                          [&kind](std::string_view known) { return kind.equals(known); });
}

static constexpr auto fields = sortedFields<TimelineEventData>({
    member<TimelineEventData, &TimelineEventData::collapsed>("collapsed"),
    member<TimelineEventData, &TimelineEventData::constraints>("constraints"),
    member<TimelineEventData, &TimelineEventData::dateQualifier>("dateQualifier"),
    member<TimelineEventData, &TimelineEventData::description>("description"),
    member<TimelineEventData, &TimelineEventData::durationMinutes>("durationMinutes"),
    member<TimelineEventData, &TimelineEventData::layer>("layer"),
    member<TimelineEventData, &TimelineEventData::locationId>("locationId"),
    member<TimelineEventData, &TimelineEventData::ordinal>("ordinal"),
    member<TimelineEventData, &TimelineEventData::parentId>("parentId"),
    member<TimelineEventData, &TimelineEventData::participants>("participants"),
    member<TimelineEventData, &TimelineEventData::sceneIds>("sceneIds"),
    member<TimelineEventData, &TimelineEventData::startMinute>("startMinute"),
    member<TimelineEventData, &TimelineEventData::styleColor>("styleColor"),
    member<TimelineEventData, &TimelineEventData::styleLabel>("styleLabel"),
    member<TimelineEventData, &TimelineEventData::timelineId>("timelineId"),
    member<TimelineEventData, &TimelineEventData::title>("title"),
});

std::unique_ptr<core::ContentObject> readTimelineEvent(const core::ContentId &id,
                                                       const JsonValue &json)
{
    return readDataOf<core::TimelineEvent>(id, json, fields);
}

bool writeTimelineEvent(JsonWriter &json, const core::ContentObject &object)
{
    return writeDataOf<core::TimelineEvent>(json, object, fields);
}

} // namespace vl::app
