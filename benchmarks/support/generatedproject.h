#pragma once

#include "core/project.h"

#include <memory>

namespace vl::bench {

/// A project of that many objects as a large novel with its world has them: two thirds documents of
/// about 2 KB in a tree of parts and chapters, the rest entities, timeline events, comments and
/// tasks; 10 000 objects come to some 20 MB of files. The same count gives the same project, to the
/// byte.
std::unique_ptr<core::Project> generateProject(int objects);

} // namespace vl::bench
