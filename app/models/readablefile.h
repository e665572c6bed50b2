#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace vl::app {

/// The file of a project as text for people: one field a line, long texts as they read instead of
/// as JSON writes them. What is no JSON object is shown as it is.
QString readableFile(const QByteArray &bytes);

/// What a file is about: the title or name in it, or else its path.
QString readableName(const QString &path, const QByteArray &bytes);

} // namespace vl::app
