#pragma once

#include "cli/arguments.h"
#include "cli/console.h"

namespace vl::cli {

// What the rows of the catalogue run; each in a file of its name.
ExitStatus runBackups(const Arguments &arguments, Console &console);
ExitStatus runBatch(const Arguments &arguments, Console &console);
ExitStatus runConflicts(const Arguments &arguments, Console &console);
ExitStatus runConvert(const Arguments &arguments, Console &console);
ExitStatus runExport(const Arguments &arguments, Console &console);
ExitStatus runHealth(const Arguments &arguments, Console &console);
ExitStatus runImport(const Arguments &arguments, Console &console);
ExitStatus runInfo(const Arguments &arguments, Console &console);
ExitStatus runMerge(const Arguments &arguments, Console &console);
ExitStatus runMergeFile(const Arguments &arguments, Console &console);
ExitStatus runNew(const Arguments &arguments, Console &console);
ExitStatus runPack(const Arguments &arguments, Console &console);
ExitStatus runRender(const Arguments &arguments, Console &console);
ExitStatus runRepair(const Arguments &arguments, Console &console);
ExitStatus runStyle(const Arguments &arguments, Console &console);
ExitStatus runUnpack(const Arguments &arguments, Console &console);
ExitStatus runValidate(const Arguments &arguments, Console &console);

} // namespace vl::cli
