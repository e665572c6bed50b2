#pragma once

#include "core/project.h"

#include <QtCore/QStringList>

namespace vl::app {

/// What stands above an object, from the outside in: the parents of a document, the categories of
/// an entity; nothing for any other.
QStringList objectPath(const core::Project &project, const core::ContentId &id);

/// The parts of a path as one line.
QString pathLine(const QStringList &path);

} // namespace vl::app
