#pragma once

#include "core/changeset.h"
#include "core/project.h"

#include <QtCore/QStringList>

namespace vl::test {

/// Everything that an object holds, one line a property.
QStringList fingerprint(const core::ContentObject &object);
/// Everything that a category holds, as one line.
QString fingerprint(const core::Category &category);

/// A whole project in values that can be compared piece by piece.
struct ProjectPrint
{
    std::map<core::ContentId, QString> objects;
    std::map<core::ContentId, QString> categories;
    std::map<core::ProjectRecord, QString> records;

    bool operator==(const ProjectPrint &) const = default;
};
ProjectPrint fingerprint(const core::Project &project);

} // namespace vl::test
