#pragma once

#include "app/base/result.h"
#include "app/storage/archive.h"
#include "app/storage/projectreader.h"
#include "core/project.h"

#include <QtCore/QStringList>

#include <memory>
#include <optional>

namespace vl::cli {

/// Whether a project at this path is a single file: what stands there decides, and for a path where
/// nothing stands its ending.
bool isBundlePath(const QString &path);

/// The path from the root on, as messages name it.
QString fullPath(const QString &path);

/// The folder's or the file's own name, without ".vellum".
QString projectName(const QString &path);

/// A project that was read and is left as it is: a bundle is read where it lies, without the
/// working copy that the desktop program has of it.
class ProjectSource
{
public:
    static app::Result<ProjectSource> open(const QString &givenPath);

    const QString &path() const { return m_path; }
    core::Project &project() const { return *m_project; }
    /// The archive of a bundle, null for a folder.
    const app::Archive *archive() const { return m_archive ? &*m_archive : nullptr; }
    /// The files that the project was read from, by their path in it.
    const QStringList &readPaths() const { return m_readPaths; }
    /// What the project takes on disk, in bytes: the file, or all files in the folder.
    qint64 bytesOnDisk() const;

private:
    ProjectSource(QString path, app::LoadedProject loaded, std::optional<app::Archive> archive);

    QString m_path;
    std::unique_ptr<core::Project> m_project;
    QStringList m_readPaths;
    std::optional<app::Archive> m_archive;
};

} // namespace vl::cli
