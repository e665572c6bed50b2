#pragma once

#include "core/content/document.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace vl::core {
class Project;
}

namespace vl::app {

/// One piece of the manuscript, a part, a chapter or a scene, in the order of reading.
struct ManuscriptEntry
{
    qint32 level = 1; ///< 0 a part, 1 a chapter, 2 and above a scene
    QString title;
    QString text;               ///< Markdown
    core::ContentId documentId; ///< the document it was read from; null when there is none
    core::DocumentKind kind = core::DocumentKind::Prose; ///< prose or screenplay

    bool operator==(const ManuscriptEntry &) const = default;
};

/// What every exporter reads: the text of a project in the order of reading, without its notes.
struct Manuscript
{
    QList<ManuscriptEntry> entries;
};

/// Reads the manuscript of a project: its prose and screenplay documents in tree order, each with
/// the variant that is shown. A note is left out, but what stands below it is not: it takes the
/// note's place. A document at the top is a part when its children have children of their own, or
/// when the title of one of them says that it is a chapter ("Chapter 4", or "I"); else it is a
/// chapter and its children are scenes. Below a part stand chapters, and scenes below these,
/// however deep. Documents whose parent is lost, or that are parents of each other, follow at the
/// top level.
Manuscript readManuscript(const core::Project &project);

} // namespace vl::app
