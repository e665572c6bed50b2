#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/timeline.h"

namespace vl::app {

using core::Timeline;

static constexpr auto fields = sortedFields<Timeline>({
    field<Timeline, &Timeline::description, &Timeline::setDescription>("description"),
    field<Timeline, &Timeline::sortIndex, &Timeline::setSortIndex>("sortIndex"),
    field<Timeline, &Timeline::title, &Timeline::setTitle>("title"),
});

std::unique_ptr<core::ContentObject> readTimeline(const core::ContentId &id, const JsonValue &json)
{
    auto object = std::make_unique<Timeline>(id, QString());
    readFields<Timeline>(json, fields, *object);
    return object;
}

bool writeTimeline(JsonWriter &json, const core::ContentObject &object)
{
    return writeAs<Timeline>(json, object, fields);
}

} // namespace vl::app
