#pragma once

#include "core/project.h"

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace vl::test {

/// The files of a folder: their paths relative to it, and their bytes.
using FileMap = QMap<QString, QByteArray>;

/// Writes the files under the folder, making folders as needed; ends the test program on failure.
void putFiles(const QString &folder, const FileMap &files);
/// Writes one file.
void putFile(const QString &path, const QByteArray &bytes);
/// The bytes of a file, or "(none)".
QByteArray fileBytes(const QString &path);
/// All files under the folder, hidden ones too.
FileMap filesUnder(const QString &folder);
/// The files that a project is saved as.
FileMap filesOf(const core::Project &project);
/// The names of everything directly in the folder, hidden or not, in order.
QStringList namesIn(const QString &folder);

} // namespace vl::test
