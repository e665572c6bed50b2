#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/chart.h"

namespace vl::app {

using core::ChartData;
using core::ChartSeries;

template<>
struct JsonRecord<ChartSeries>
{
    static constexpr auto fields = sortedFields<ChartSeries>({
        member<ChartSeries, &ChartSeries::name>("name"),
        member<ChartSeries, &ChartSeries::values>("values"),
    });
};

static constexpr auto fields = sortedFields<ChartData>({
    member<ChartData, &ChartData::categories>("categories"),
    member<ChartData, &ChartData::categoryAxisTitle>("categoryAxisTitle"),
    member<ChartData, &ChartData::kind>("kind"),
    member<ChartData, &ChartData::series>("series"),
    member<ChartData, &ChartData::title>("title"),
    member<ChartData, &ChartData::valueAxisTitle>("valueAxisTitle"),
});

std::unique_ptr<core::ContentObject> readChart(const core::ContentId &id, const JsonValue &json)
{
    return readDataOf<core::Chart>(id, json, fields);
}

bool writeChart(JsonWriter &json, const core::ContentObject &object)
{
    return writeDataOf<core::Chart>(json, object, fields);
}

} // namespace vl::app
