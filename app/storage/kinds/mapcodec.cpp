#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/map.h"

namespace vl::app {

using core::Map;
using core::MapGrid;
using core::MapGridKind;
using core::MapPin;
using core::MapPoint;
using core::MapRegion;
using core::MapRoute;
using core::MapToken;
using core::MapTravelSettings;

template<>
struct JsonEnum<MapGridKind>
{
    static constexpr const auto &texts = core::mapGridKindTexts;
};

template<>
struct JsonRecord<MapPoint>
{
    static constexpr auto fields = sortedFields<MapPoint>({
        member<MapPoint, &MapPoint::x>("x"),
        member<MapPoint, &MapPoint::y>("y"),
    });
};

template<>
struct JsonRecord<MapRegion>
{
    static constexpr auto fields = sortedFields<MapRegion>({
        member<MapRegion, &MapRegion::label>("label"),
        member<MapRegion, &MapRegion::layer>("layer"),
        member<MapRegion, &MapRegion::linkedEntityId>("linkedEntityId"),
        member<MapRegion, &MapRegion::linkedMapId>("linkedMapId"),
        member<MapRegion, &MapRegion::points>("points"),
        member<MapRegion, &MapRegion::revealed>("revealed"),
    });
};

template<>
struct JsonRecord<MapRoute>
{
    static constexpr auto fields = sortedFields<MapRoute>({
        member<MapRoute, &MapRoute::distance>("distance"),
        member<MapRoute, &MapRoute::fromEntityId>("fromEntityId"),
        member<MapRoute, &MapRoute::toEntityId>("toEntityId"),
    });
};

template<>
struct JsonRecord<MapPin>
{
    static constexpr auto fields = sortedFields<MapPin>({
        member<MapPin, &MapPin::label>("label"),
        member<MapPin, &MapPin::note>("note"),
        member<MapPin, &MapPin::x>("x"),
        member<MapPin, &MapPin::y>("y"),
    });
};

template<>
struct JsonRecord<MapToken>
{
    static constexpr auto fields = sortedFields<MapToken>({
        member<MapToken, &MapToken::color>("color"),
        member<MapToken, &MapToken::label>("label"),
        member<MapToken, &MapToken::linkedEntityId>("linkedEntityId"),
        member<MapToken, &MapToken::x>("x"),
        member<MapToken, &MapToken::y>("y"),
    });
};

static constexpr auto fields = sortedFields<Map>({
    part<Map, &Map::travelSettings, &Map::setTravelSettings, &MapTravelSettings::distanceUnit>(
        "distanceUnit"),
    part<Map, &Map::grid, &Map::setGrid, &MapGrid::columns>("gridColumns"),
    part<Map, &Map::grid, &Map::setGrid, &MapGrid::kind>("gridKind"),
    field<Map, &Map::imageAssetPath, &Map::setImageAssetPath>("imageAssetPath"),
    field<Map, &Map::pins, &Map::setPins>("pins"),
    field<Map, &Map::regions, &Map::setRegions>("regions"),
    field<Map, &Map::routes, &Map::setRoutes>("routes"),
    field<Map, &Map::title, &Map::setTitle>("title"),
    field<Map, &Map::tokens, &Map::setTokens>("tokens"),
    part<Map, &Map::travelSettings, &Map::setTravelSettings,
         &MapTravelSettings::travelSpeedPerHour>("travelSpeedPerHour"),
    part<Map, &Map::travelSettings, &Map::setTravelSettings, &MapTravelSettings::widthDistance>(
        "widthDistance"),
});

std::unique_ptr<core::ContentObject> readMap(const core::ContentId &id, const JsonValue &json)
{
    auto object = std::make_unique<Map>(id, QString());
    readFields<Map>(json, fields, *object);
    return object;
}

bool writeMap(JsonWriter &json, const core::ContentObject &object)
{
    return writeAs<Map>(json, object, fields);
}

} // namespace vl::app
