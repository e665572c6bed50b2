#pragma once

#include <QtCore/QString>

namespace vl::core {
class ContentObject;
class Project;
} // namespace vl::core

namespace vl::app {

/// What an object of a kind without a form of its own consists of, in a few short lines.
QString summaryOf(const core::Project &project, const core::ContentObject &object);

} // namespace vl::app
