#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/randomtable.h"

namespace vl::app {

using core::RandomTableData;
using core::RandomTableEntry;

template<>
struct JsonRecord<RandomTableEntry>
{
    static constexpr auto fields = sortedFields<RandomTableEntry>({
        member<RandomTableEntry, &RandomTableEntry::text>("text"),
        member<RandomTableEntry, &RandomTableEntry::weight>("weight"),
    });
};

static constexpr auto fields = sortedFields<RandomTableData>({
    member<RandomTableData, &RandomTableData::entries>("entries"),
    member<RandomTableData, &RandomTableData::title>("title"),
});

std::unique_ptr<core::ContentObject> readRandomTable(const core::ContentId &id,
                                                     const JsonValue &json)
{
    return readDataOf<core::RandomTable>(id, json, fields);
}

bool writeRandomTable(JsonWriter &json, const core::ContentObject &object)
{
    return writeDataOf<core::RandomTable>(json, object, fields);
}

} // namespace vl::app
