#pragma once

#include "app/base/files.h"
#include "app/base/result.h"
#include "core/project.h"

#include <QtCore/QByteArray>

#include <functional>

namespace vl::app {

/// The bytes of one object's file.
QByteArray serializeObject(const core::ContentObject &object);
/// The bytes of one category's file.
QByteArray serializeCategory(const core::Category &category);
/// The bytes of "project.json".
QByteArray serializeProjectRecords(const core::Project &project);

/// Takes a file of a project: its path relative to the project folder, and its bytes.
using ProjectFileSink = std::function<void(const QString &path, const QByteArray &bytes)>;
/// Hands every file of the project to the sink, in ascending order of the paths.
void serializeProject(const core::Project &project, const ProjectFileSink &sink);

/// Writes the whole project into a folder, which is made when needed: first the objects, then the
/// categories, then "project.json". What is right already is left alone. Nothing is removed: of the
/// files that stand there otherwise this function does not know whose they are; see FolderStore.
Result<> saveProject(const core::Project &project, const QString &folder,
                     Durability durability = Durability::Synced);

} // namespace vl::app
