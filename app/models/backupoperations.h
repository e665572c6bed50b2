#pragma once

#include "core/content/document.h"
#include "core/project.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>

namespace vl::app {

class Workspace;

/// How a document of a backup stands to the open project.
enum class DocumentStanding
{
    Same,
    Changed, ///< it is there with another text, or anything else that is told of it
    Missing, ///< it is not there any more
};

/// A document of a backup, as it can be chosen to be restored.
struct BackupDocument
{
    core::ContentId id;
    int depth = 0; ///< 0 at the top level
    QString title;
    qint64 words = 0;
    DocumentStanding standing = DocumentStanding::Same;
    QString before; ///< what differs, as it is in the open project; empty when it is missing
    QString after;  ///< what differs, as it is in the backup
};

/// Brings single documents of a backup back into the open project.
class BackupOperations
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::BackupOperations)

public:
    explicit BackupOperations(Workspace &workspace)
        : m_workspace(workspace)
    {
    }

    /// The documents of a backup in the order of its manuscript.
    QList<BackupDocument> documents(const core::Project &backup) const;
    /// Copies the document from the backup into the project, in one step: in the place of the one
    /// that is there, which keeps its place in the manuscript, or anew where it stood.
    /// False when the backup has none of that id.
    bool restore(const core::Project &backup, const core::ContentId &id);

private:
    Workspace &m_workspace;
};

} // namespace vl::app
