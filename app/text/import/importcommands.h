#pragma once

#include "app/text/import/importeddocument.h"
#include "core/id.h"

#include <memory>

namespace vl::core {
class Command;
class CommandStack;
class Project;
} // namespace vl::core

namespace vl::app {

/// One command that adds all documents of an import below `parent` (the null id for the top level),
/// behind those that stand there already. Null when there is nothing to add.
std::unique_ptr<core::Command> importCommand(core::Project &project,
                                             const ImportedManuscript &manuscript,
                                             const core::ContentId &parent = {});

/// Adds an import to the project as one step of the history; gives the number of documents added.
int importIntoProject(core::Project &project, core::CommandStack &history,
                      const ImportedManuscript &manuscript, const core::ContentId &parent = {});

} // namespace vl::app
