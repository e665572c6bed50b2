#pragma once

#include "core/commands/compositecommand.h"
#include "core/content/contentobject.h"
#include "core/project.h"

#include <memory>

namespace vl::app {

/// Another object with everything that the first one holds, its id too.
std::unique_ptr<core::ContentObject> copyOf(const core::ContentObject &object);

/// Adds to the step what puts the object into the project: in the place of the one with its id, or
/// anew.
void appendReplacement(core::CompositeCommand &step, core::Project &project,
                       std::unique_ptr<core::ContentObject> object);

} // namespace vl::app
