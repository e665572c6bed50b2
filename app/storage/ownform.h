#pragma once

#include "app/storage/json/jsonparser.h"
#include "app/storage/projectfiles.h"

namespace vl::app {

/// The bytes as the program writes what it reads from them, and the path that it gives them. What
/// cannot be read as a whole object, category or set of records stays as it is.
ProjectFile inOwnForm(JsonParser &parser, const ProjectFile &file);

} // namespace vl::app
