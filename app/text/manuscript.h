#pragma once

#include "core/id.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace vl::app {

/// One piece of the manuscript, a part, a chapter or a scene, in the order of reading.
struct ManuscriptEntry
{
    qint32 level = 1; ///< 0 a part, 1 a chapter, 2 and above a scene
    QString title;
    QString text;               ///< Markdown
    core::ContentId documentId; ///< the document it was read from; null when there is none

    bool operator==(const ManuscriptEntry &) const = default;
};

/// What every exporter reads: the text of a project in the order of reading, without its notes.
struct Manuscript
{
    QList<ManuscriptEntry> entries;
};

} // namespace vl::app
