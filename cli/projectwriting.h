#pragma once

#include "app/base/result.h"
#include "app/storage/projectfiles.h"
#include "cli/projectsource.h"

#include <QtCore/QString>

namespace vl::cli {

/// Whether a new project may be made at the path: nothing stands there, or an empty folder.
bool isFreeForProject(const QString &path);

/// Writes a project where none is yet, in the form that the path asks for. The files come along
/// that are no part of the model, by their path in the project.
app::Result<> writeNewProject(const core::Project &project, const QString &path,
                              const app::ProjectFiles &carried = {});

/// Writes a project that was read from one place to another, or again to its own, with its assets
/// and whatever else lies beside the model. A project that stands there already is replaced when it
/// is empty or a state of the same one; one that has no object in common with the source stays, and
/// that is a failure.
app::Result<> convertProject(const ProjectSource &source, const QString &path);

} // namespace vl::cli
