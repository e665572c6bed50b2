#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/source.h"

namespace vl::app {

using core::SourceData;

static constexpr auto fields = sortedFields<SourceData>({
    member<SourceData, &SourceData::citationKey>("citationKey"),
    member<SourceData, &SourceData::fields>("fields"),
    member<SourceData, &SourceData::sourceType>("sourceType"),
    member<SourceData, &SourceData::title>("title"),
});

std::unique_ptr<core::ContentObject> readSource(const core::ContentId &id, const JsonValue &json)
{
    return readDataOf<core::Source>(id, json, fields);
}

bool writeSource(JsonWriter &json, const core::ContentObject &object)
{
    return writeDataOf<core::Source>(json, object, fields);
}

} // namespace vl::app
