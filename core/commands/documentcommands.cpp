#include "core/commands/documentcommands.h"

#include <QtCore/QSet>

#include <algorithm>

namespace vl::core {

SetDocumentBodyCommand::SetDocumentBodyCommand(Document &document, const QString &body)
    : m_document(document)
    , m_body(body)
{
    touchObject(document.id());
}

void SetDocumentBodyCommand::redo()
{
    if (!m_hasRun) {
        m_hasRun = true;
        keepDifference(m_document.body(), m_body);
        m_document.setBody(m_body);
        m_body = QString();
        return;
    }
    QString body = m_document.body();
    body.replace(m_position, m_removed.size(), m_inserted);
    m_document.setBody(body);
}

void SetDocumentBodyCommand::undo()
{
    QString body = m_document.body();
    body.replace(m_position, m_inserted.size(), m_removed);
    m_document.setBody(body);
}

void SetDocumentBodyCommand::keepDifference(const QString &before, const QString &after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    const auto head = std::mismatch(before.cbegin(), before.cbegin() + shorter, after.cbegin());
    m_position = head.first - before.cbegin();
    const qsizetype room = shorter - m_position;
    const auto tail = std::mismatch(before.crbegin(), before.crbegin() + room, after.crbegin());
    const qsizetype same = tail.first - before.crbegin();
    m_removed = before.mid(m_position, before.size() - m_position - same);
    m_inserted = after.mid(m_position, after.size() - m_position - same);
}

QString SetDocumentBodyCommand::text() const
{
    return Command::tr("Edit document body");
}

MoveDocumentCommand::MoveDocumentCommand(Project &project, const ContentId &documentId,
                                         const ContentId &newParentId, int newPosition)
    : m_project(project)
    , m_documentId(documentId)
    , m_newParentId(newParentId)
    , m_newPosition(newPosition)
{
}

bool MoveDocumentCommand::isPossible() const
{
    if (!m_project.find<Document>(m_documentId))
        return false;
    if (m_newParentId.isNull())
        return true;
    const Document *above = m_project.find<Document>(m_newParentId);
    if (!above)
        return false;
    QSet<ContentId> seen; // the files may hold a cycle of parents
    for (; above && !seen.contains(above->id());
         above = m_project.find<Document>(above->parentId())) {
        if (above->id() == m_documentId)
            return false;
        seen.insert(above->id());
    }
    return true;
}

void MoveDocumentCommand::redo()
{
    m_snapshot.clear();
    m_changes.clear();
    if (!isPossible())
        return;

    auto *moved = m_project.find<Document>(m_documentId);
    const DocumentTree &tree = m_project.documentTree();
    const ContentId oldParentId = moved->parentId();
    std::vector<Document *> oldSiblings = tree.children(oldParentId);
    std::vector<Document *> newSiblings =
        oldParentId == m_newParentId ? oldSiblings : tree.children(m_newParentId);

    const auto record = [this](Document *document) {
        m_snapshot.push_back({document, document->parentId(), document->sortIndex()});
    };
    m_snapshot.reserve(oldSiblings.size() + newSiblings.size());
    std::for_each(oldSiblings.begin(), oldSiblings.end(), record);
    if (oldParentId != m_newParentId)
        std::for_each(newSiblings.begin(), newSiblings.end(), record);

    std::erase(newSiblings, moved);
    const auto count = qsizetype(newSiblings.size());
    const qsizetype position =
        m_newPosition < 0 || m_newPosition > count ? count : qsizetype(m_newPosition);
    newSiblings.insert(newSiblings.begin() + position, moved);

    moved->setParentId(m_newParentId);
    touchObject(m_documentId);
    renumber(newSiblings);
    if (oldParentId != m_newParentId) {
        std::erase(oldSiblings, moved);
        renumber(oldSiblings);
    }
}

void MoveDocumentCommand::renumber(const std::vector<Document *> &siblings)
{
    qint32 index = 0;
    for (Document *document : siblings) {
        if (document->sortIndex() != index) {
            document->setSortIndex(index);
            touchObject(document->id());
        }
        ++index;
    }
}

void MoveDocumentCommand::undo()
{
    for (const Place &place : m_snapshot) {
        place.document->setParentId(place.parentId);
        place.document->setSortIndex(place.sortIndex);
    }
}

QString MoveDocumentCommand::text() const
{
    return Command::tr("Move document");
}

} // namespace vl::core
