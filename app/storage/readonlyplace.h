#pragma once

#include "app/base/result.h"
#include "core/project.h"

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

namespace vl::app {

/// Where a project stands that was opened to be read.
struct ReadOnlyPlace
{
    QString path;                            ///< of its folder or file
    QString folder;                          ///< under which its assets stand
    std::unique_ptr<QTemporaryDir> unpacked; ///< of a ".vellum" file, goes with this
};

/// A project and where it was read from.
struct ReadOnlyProject
{
    std::unique_ptr<ReadOnlyPlace> place;
    std::unique_ptr<core::Project> project;
};

/// Reads a project; writes nothing where it stands.
Result<ReadOnlyProject> readReadOnly(const QString &path);

} // namespace vl::app
