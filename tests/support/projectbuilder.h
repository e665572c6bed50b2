#pragma once

#include "core/project.h"

#include <memory>

namespace vl::test {

/// An id that the number stands for: the same in every run, a valid random-looking UUID.
core::ContentId numberedId(quint32 number);

/// A project with an object of every kind, a category tree and every record, in which every field
/// of all of them differs from its default. The same seed gives the same project, to the byte;
/// other seeds give other texts and numbers, among them ones that are hard to store: line breaks,
/// quotes, control characters, letters outside the first plane, the limits of integers.
std::unique_ptr<core::Project> fullProject(quint32 seed = 1);

} // namespace vl::test
