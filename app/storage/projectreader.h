#pragma once

#include "app/base/result.h"
#include "app/storage/filestamp.h"
#include "app/storage/projectfiles.h"
#include "core/project.h"

#include <memory>
#include <span>
#include <vector>

namespace vl::app {

/// A file from which an object, a category or the records of a project were read.
struct LoadedFile
{
    QString path;       ///< relative to the project folder, with "/" as separator
    core::ContentId id; ///< of the object or category in it; null for the records
    FileStamp stamp;
    QByteArray bytes;
};

struct LoadedProject
{
    std::unique_ptr<core::Project> project;
    std::vector<LoadedFile> files; ///< objects, categories, records; each group in name order
};

/// Reads the project in a folder: its "objects", its "taxonomy", its "project.json", each of which
/// may be missing. In the two sub-folders every regular file that ends in ".json" counts, in any
/// case of letters, unless it is hidden (its name begins with a dot); they are taken in the order
/// of their names by UTF-16 code unit. The failure is that of the first file in this order.
Result<std::unique_ptr<core::Project>> loadProject(const QString &folder);
/// The same from files in memory, in any order; the folder only names them in messages.
Result<std::unique_ptr<core::Project>> loadProject(const QString &folder,
                                                   std::span<const ProjectFile> files);

/// The same two, telling also which files were read.
Result<LoadedProject> loadProjectFiles(const QString &folder);
Result<LoadedProject> loadProjectFiles(const QString &folder, std::span<const ProjectFile> files);

/// The paths, relative to the folder, of the files that a project in it is read from, in the order
/// in which they are read.
Result<QStringList> listReadPaths(const QString &folder);

} // namespace vl::app
