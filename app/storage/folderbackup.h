#pragma once

#include "app/base/result.h"
#include "app/storage/backups.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <vector>

namespace vl::app {

/// The media under a project folder that an archive can hold, by their paths relative to it.
std::vector<QByteArray> mediaPathsIn(const QString &folder);

/// Puts a project folder as it stands, sound or not, into a backup: the files that a project is
/// read from, and its media. Whatever else lies there is left out.
Result<QString> backUpProjectFolder(const Backups &backups, const QString &baseName,
                                    const QString &folder);

} // namespace vl::app
