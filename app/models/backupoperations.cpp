#include "app/models/backupoperations.h"

#include "app/base/wordcount.h"
#include "app/models/objectreplacement.h"
#include "app/models/readablefile.h"
#include "app/models/workspace.h"
#include "app/storage/projectwriter.h"

namespace vl::app {

namespace {

/// The kept document as it comes back: in the place of the one that is there, or where it stood.
std::unique_ptr<core::ContentObject> comingBack(const core::Document &kept,
                                                const core::Project &project)
{
    std::unique_ptr<core::ContentObject> object = copyOf(kept);
    auto *document = core::contentCast<core::Document>(object.get());
    if (const auto *present = project.find<core::Document>(kept.id())) {
        document->setParentId(present->parentId());
        document->setSortIndex(present->sortIndex());
    } else if (!project.find<core::Document>(document->parentId())) {
        document->setParentId({});
    }
    return object;
}

} // namespace

QList<BackupDocument> BackupOperations::documents(const core::Project &backup) const
{
    QList<BackupDocument> documents;
    for (const auto &place : backup.documentTree().inOrder()) {
        const core::Document &kept = *place.document;
        const core::Project &project = m_workspace.project();
        const auto *present = project.find<core::Document>(kept.id());
        BackupDocument document{.id = kept.id(),
                                .depth = place.depth,
                                .title = kept.title(),
                                .words = countWords(kept.body()),
                                .standing = DocumentStanding::Same,
                                .before = {},
                                .after = {}};
        const QByteArray after = serializeObject(*comingBack(kept, project));
        const QByteArray before = present ? serializeObject(*present) : QByteArray();
        if (before != after) {
            document.standing = present ? DocumentStanding::Changed : DocumentStanding::Missing;
            const ReadableVersions texts =
                readableVersions(present ? std::optional(before) : std::nullopt, after, &project);
            document.before = texts.before;
            document.after = texts.after;
        }
        documents.append(document);
    }
    return documents;
}

bool BackupOperations::restore(const core::Project &backup, const core::ContentId &id)
{
    const auto *kept = backup.find<core::Document>(id);
    if (!kept)
        return false;
    m_workspace.flush();
    core::Project &project = m_workspace.project();
    auto step = std::make_unique<core::CompositeCommand>(tr("Restore “%1”").arg(kept->title()));
    appendReplacement(*step, project, comingBack(*kept, project));
    m_workspace.push(std::move(step));
    return true;
}

} // namespace vl::app
