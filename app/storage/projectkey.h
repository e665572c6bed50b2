#pragma once

#include <QtCore/QString>

namespace vl::app {

/// The file name under which the program keeps what belongs to the project at this path: the name
/// of the project, and digits that tell it from others of that name.
QString projectKey(const QString &projectPath);

/// The path of a ".vellum" file or a project folder from the root on, without detours.
QString absoluteProjectPath(const QString &path);

} // namespace vl::app
