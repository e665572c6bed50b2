#pragma once

#include "app/base/result.h"
#include "app/storage/backups.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <vector>

namespace vl::app {

/// Whether so many files beside the text, of so many bytes, leave room for it in a backup, which is
/// one file. Where they do not, the text is worth a backup without them.
bool leavesRoomForText(qsizetype files, qint64 bytes);

/// The media under a project folder that a backup can hold, by their paths relative to it; none
/// when they leave no room for the text.
std::vector<QByteArray> mediaPathsIn(const QString &folder);

/// Puts a project folder as it stands, sound or not, into a backup: the files that a project is
/// read from, and its media. Whatever else lies there is left out.
Result<QString> backUpProjectFolder(const Backups &backups, const QString &baseName,
                                    const QString &folder);

} // namespace vl::app
