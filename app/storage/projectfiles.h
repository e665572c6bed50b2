#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <vector>

namespace vl::app {

/// One file of a project in memory.
struct ProjectFile
{
    QString path; ///< relative to the project folder, with "/" as separator
    QByteArray bytes;

    bool operator==(const ProjectFile &) const = default;
};

/// All files that a project is read from or written as, each path once.
using ProjectFiles = std::vector<ProjectFile>;

} // namespace vl::app
