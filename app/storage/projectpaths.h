#pragma once

#include "core/id.h"

namespace vl::app {

// Where the files of a project stand, relative to its folder.

inline QString objectsFolder()
{
    return QStringLiteral("objects");
}
inline QString taxonomyFolder()
{
    return QStringLiteral("taxonomy");
}
inline QString assetsFolder()
{
    return QStringLiteral("assets");
}
inline QString recordsPath()
{
    return QStringLiteral("project.json");
}
inline QString objectPath(const core::ContentId &id)
{
    return QStringLiteral("objects/%1.json").arg(id.toString());
}
inline QString categoryPath(const core::ContentId &id)
{
    return QStringLiteral("taxonomy/%1.json").arg(id.toString());
}

} // namespace vl::app
