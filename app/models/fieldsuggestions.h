#pragma once

#include <QtCore/QStringList>

namespace vl::core {
class Project;
}

namespace vl::app {

/// Values in use and others that suggest themselves for a field ("status", "pointOfView", "tags",
/// "threads", "visibleTo"), sorted, each once.
QStringList suggestionsFor(const core::Project &project, const QString &key);

} // namespace vl::app
