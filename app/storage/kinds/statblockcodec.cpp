#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/statblock.h"

namespace vl::app {

using core::StatBlockAction;
using core::StatBlockData;
using core::StatBlockStat;

template<>
struct JsonRecord<StatBlockStat>
{
    static constexpr auto fields = sortedFields<StatBlockStat>({
        member<StatBlockStat, &StatBlockStat::label>("label"),
        member<StatBlockStat, &StatBlockStat::value>("value"),
    });
};

template<>
struct JsonRecord<StatBlockAction>
{
    static constexpr auto fields = sortedFields<StatBlockAction>({
        member<StatBlockAction, &StatBlockAction::name>("name"),
        member<StatBlockAction, &StatBlockAction::text>("text"),
    });
};

static constexpr auto fields = sortedFields<StatBlockData>({
    member<StatBlockData, &StatBlockData::actions>("actions"),
    member<StatBlockData, &StatBlockData::notes>("notes"),
    member<StatBlockData, &StatBlockData::stats>("stats"),
    member<StatBlockData, &StatBlockData::system>("system"),
    member<StatBlockData, &StatBlockData::title>("title"),
});

std::unique_ptr<core::ContentObject> readStatBlock(const core::ContentId &id, const JsonValue &json)
{
    return readDataOf<core::StatBlock>(id, json, fields);
}

bool writeStatBlock(JsonWriter &json, const core::ContentObject &object)
{
    return writeDataOf<core::StatBlock>(json, object, fields);
}

} // namespace vl::app
