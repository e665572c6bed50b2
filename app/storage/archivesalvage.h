#pragma once

#include "app/storage/projectfiles.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QStringList>

namespace vl::app {

/// What can still be had of a damaged archive.
struct SalvagedArchive
{
    ProjectFiles files;    ///< whole: their checksums are right
    ProjectFiles repeated; ///< whole too, with a name that a later one has with other bytes
    QStringList damaged;   ///< names of files of which some bytes are wrong or missing
    QHash<QString, QByteArray> remains; ///< of those what lies in their places, if not much
    bool isComplete = false;            ///< the directory could be read, so there are no others
};

/// Reads what it can of an archive, with distrust: every name is safe, and comes once among the
/// files. Where the directory cannot be read the files are looked for one after the other, which
/// finds those that are stored without compression.
SalvagedArchive salvageArchive(const QByteArray &bytes);

} // namespace vl::app
