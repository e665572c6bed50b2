#include "app/models/unwrittenfile.h"

#include "app/models/editortext.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectwriter.h"

#include <algorithm>

namespace vl::app {

namespace {

std::shared_ptr<core::Document> copyOf(const core::Document &document)
{
    auto copy =
        std::make_shared<core::Document>(document.id(), document.documentKind(), document.title());
    copy->setVisibleTo(document.visibleTo());
    copy->setTags(document.tags());
    copy->setAiExcluded(document.isAiExcluded());
    copy->setBody(document.body());
    copy->setSynopsis(document.synopsis());
    copy->setStatus(document.status());
    copy->setPointOfView(document.pointOfView());
    copy->setTensionLevel(document.tensionLevel());
    copy->setSceneInstant(document.sceneInstant());
    copy->setWordCountTarget(document.wordCountTarget());
    copy->setParentId(document.parentId());
    copy->setSortIndex(document.sortIndex());
    copy->setSourceIds(document.sourceIds());
    copy->setPlotThreadIds(document.plotThreadIds());
    copy->setRevisionBaseline(document.revisionBaseline());
    copy->setVersions(document.versions());
    copy->setVariants(document.variants());
    copy->setFootnotes(document.footnotes());
    return copy;
}

QString withTyped(const QString &body, const PendingText &typed)
{
    const QString shown = shownText(body);
    const qsizetype head = std::clamp<qsizetype>(typed.head, 0, shown.size());
    const qsizetype tail = std::clamp<qsizetype>(typed.tail, 0, shown.size() - head);
    QString edited = shown;
    edited.replace(head, shown.size() - head - tail, typed.typed);
    return bodyAfterEdit(body, edited);
}

} // namespace

UnwrittenFile::UnwrittenFile(const core::ContentId &id, const core::ContentObject *object)
    : m_path(objectPath(id))
{
    if (const auto *document = core::contentCast<core::Document>(object))
        m_document = copyOf(*document);
    else if (object)
        m_bytes = serializeObject(*object);
}

UnwrittenFile::UnwrittenFile(const core::Document &document, PendingText typed)
    : m_path(objectPath(document.id()))
    , m_document(copyOf(document))
    , m_typed(std::move(typed))
{
}

UnwrittenFile::UnwrittenFile(QString path, std::optional<QByteArray> bytes)
    : m_path(std::move(path))
    , m_bytes(std::move(bytes))
{
}

FileChange UnwrittenFile::take()
{
    if (!m_document)
        return {std::move(m_path), std::move(m_bytes)};
    if (m_typed)
        m_document->setBody(withTyped(m_document->body(), *m_typed));
    return {std::move(m_path), serializeObject(*m_document)};
}

} // namespace vl::app
