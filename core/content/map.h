#pragma once

#include "core/content/contentobject.h"

#include <QtCore/QList>

namespace vl::core {

/// A place on a picture.
struct MapPoint
{
    double x = 0;
    double y = 0;

    bool operator==(const MapPoint &) const = default;
};

struct MapRegion
{
    QString label;
    QList<MapPoint> points;
    bool revealed = false;
    QString layer;
    ContentId linkedEntityId;
    ContentId linkedMapId;

    bool operator==(const MapRegion &) const = default;
};

/// A way between two places, as long as its distance in the map's unit.
struct MapRoute
{
    ContentId fromEntityId;
    ContentId toEntityId;
    double distance = 0;

    bool operator==(const MapRoute &) const = default;
};

struct MapPin
{
    double x = 0;
    double y = 0;
    QString label;
    QString note;

    bool operator==(const MapPin &) const = default;
};

struct MapToken
{
    double x = 0;
    double y = 0;
    QString label;
    QString color;
    ContentId linkedEntityId;

    bool operator==(const MapToken &) const = default;
};

enum class MapGridKind
{
    None,
    Square,
    Hex
};
inline constexpr auto mapGridKindTexts = makeEnumTexts<MapGridKind>("none", "square", "hex");

struct MapGrid
{
    MapGridKind kind = MapGridKind::None;
    qint32 columns = 0;

    bool operator==(const MapGrid &) const = default;
};

/// How far apart things on the map are, and how fast one travels there.
struct MapTravelSettings
{
    double travelSpeedPerHour = 0; ///< in the distance unit; 0 while unset
    QString distanceUnit;
    double widthDistance = 0; ///< the distance that the picture's width stands for

    bool operator==(const MapTravelSettings &) const = default;
};

/// A picture of a land with what lies on it.
class Map final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::Map;

    Map(const ContentId &id, const QString &title)
        : ContentObject(id, staticKind)
        , m_title(title)
    {
    }

    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    /// The path of the picture, under "assets/".
    const QString &imageAssetPath() const { return m_imageAssetPath; }
    void setImageAssetPath(const QString &path) { m_imageAssetPath = path; }

    const QList<MapPin> &pins() const { return m_pins; }
    void setPins(const QList<MapPin> &pins) { m_pins = pins; }

    const QList<MapRegion> &regions() const { return m_regions; }
    void setRegions(const QList<MapRegion> &regions) { m_regions = regions; }

    const QList<MapRoute> &routes() const { return m_routes; }
    void setRoutes(const QList<MapRoute> &routes) { m_routes = routes; }

    const QList<MapToken> &tokens() const { return m_tokens; }
    void setTokens(const QList<MapToken> &tokens) { m_tokens = tokens; }

    const MapGrid &grid() const { return m_grid; }
    void setGrid(const MapGrid &grid) { m_grid = grid; }

    const MapTravelSettings &travelSettings() const { return m_travelSettings; }
    void setTravelSettings(const MapTravelSettings &settings) { m_travelSettings = settings; }

private:
    QString m_title;
    QString m_imageAssetPath;
    QList<MapPin> m_pins;
    QList<MapRegion> m_regions;
    QList<MapRoute> m_routes;
    QList<MapToken> m_tokens;
    MapGrid m_grid;
    MapTravelSettings m_travelSettings;
};

} // namespace vl::core
