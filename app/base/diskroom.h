#pragma once

#include <QtCore/QString>

namespace vl::app {

/// Whether the disk on which the file or folder is has no room for another file like it; false when
/// that cannot be told.
bool isDiskFull(const QString &path);

} // namespace vl::app
