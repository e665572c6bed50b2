#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace vl::core {
class Project;
}

namespace vl::app {

/// The file of a project as text for people: the title, what else is set in words, and the text
/// below. Other objects and dates are told as the project, where there is one, knows them. What is
/// no JSON object is shown as it is; the text is never empty.
QString readableFile(const QByteArray &bytes, const core::Project *project = nullptr);

/// The same of a file that is cut off or damaged, as far as it can be read; may be empty.
QString readableRemains(const QByteArray &bytes);

/// Two versions of a file as text for people.
struct ReadableVersions
{
    QString before; ///< empty when there is no such version
    QString after;  ///< empty when there is no such version
};

/// The two versions with their titles and texts, and of all else only what differs between them.
ReadableVersions readableVersions(const std::optional<QByteArray> &before,
                                  const std::optional<QByteArray> &after,
                                  const core::Project *project = nullptr);

/// What a file is about: the title or name in it, or else its path.
QString readableName(const QString &path, const QByteArray &bytes);

} // namespace vl::app
