#pragma once

#include "app/storage/journal.h"
#include "core/commands/replacecontents.h"

#include <QtCore/QStringList>

#include <vector>

namespace vl::app {

/// What files of a project come to, to be put into a project as one step.
struct ReadContents
{
    core::NewContents contents;
    QStringList unreadable; ///< paths of files that are none of a project, or damaged
};

ReadContents contentsOf(const std::vector<FileChange> &files);

/// The bytes that the project has for a path, as it would be saved; nothing when it has none.
std::optional<QByteArray> presentFile(const core::Project &project, const QString &path);

/// The path's id when it is that of an object, or of a category; null for others.
core::ContentId objectIdOf(const QString &path);
core::ContentId categoryIdOf(const QString &path);

} // namespace vl::app
