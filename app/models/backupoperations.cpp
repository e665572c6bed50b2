#include "app/models/backupoperations.h"

#include "app/base/wordcount.h"
#include "app/models/objectreplacement.h"
#include "app/models/workspace.h"

namespace vl::app {

namespace {

/// What the writer sees as the text of a document.
QString textOf(const core::Document &document)
{
    QString text = document.title() + u'\n';
    if (!document.synopsis().isEmpty())
        text += document.synopsis() + u'\n';
    return text + u'\n' + document.body();
}

} // namespace

QList<BackupDocument> BackupOperations::documents(const core::Project &backup) const
{
    QList<BackupDocument> documents;
    for (const auto &place : backup.documentTree().inOrder()) {
        const core::Document &kept = *place.document;
        const auto *present = m_workspace.project().find<core::Document>(kept.id());
        BackupDocument document{.id = kept.id(),
                                .depth = place.depth,
                                .title = kept.title(),
                                .words = countWords(kept.body()),
                                .standing = DocumentStanding::Missing,
                                .before = {},
                                .after = textOf(kept)};
        if (present) {
            document.before = textOf(*present);
            const bool isSame = document.before == document.after
                                && kept.variants() == present->variants()
                                && kept.versions() == present->versions()
                                && kept.footnotes() == present->footnotes();
            document.standing = isSame ? DocumentStanding::Same : DocumentStanding::Changed;
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
    std::unique_ptr<core::ContentObject> object = copyOf(*kept);
    auto *document = core::contentCast<core::Document>(object.get());
    if (const auto *present = project.find<core::Document>(id)) {
        document->setParentId(present->parentId());
        document->setSortIndex(present->sortIndex());
    } else if (!project.find<core::Document>(document->parentId())) {
        document->setParentId({});
    }
    auto step = std::make_unique<core::CompositeCommand>(tr("Restore “%1”").arg(kept->title()));
    appendReplacement(*step, project, std::move(object));
    m_workspace.push(std::move(step));
    return true;
}

} // namespace vl::app
