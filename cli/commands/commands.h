#pragma once

#include "cli/arguments.h"
#include "cli/console.h"

namespace vl::cli {

// What the rows of the catalogue run; each in a file of its name.
ExitStatus runRender(const Arguments &arguments, Console &console);

} // namespace vl::cli
