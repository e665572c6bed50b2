#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace vl::app {

/// One file of a project in memory.
struct ProjectFile
{
    QString path; ///< relative to the project folder, with "/" as separator
    QByteArray bytes;

    bool operator==(const ProjectFile &) const = default;
};

} // namespace vl::app
