#pragma once

#include "app/base/result.h"

#include <QtCore/QString>

#include <functional>

namespace vl::app {

/// The path, relative to the project folder, under which a new file is kept: "assets/" and its own
/// name, or, when that is taken, the name with the first free number from 1 on: "map.png",
/// "map-1.png", "map-2.png". Characters that not every file system or archive takes become "_".
QString newAssetPath(const QString &fileName,
                     const std::function<bool(const QString &path)> &isTaken);

/// Copies a file into the "assets" folder of a project; its path relative to the project folder.
Result<QString> importAsset(const QString &sourcePath, const QString &projectFolder);

} // namespace vl::app
