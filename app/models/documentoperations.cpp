#include "app/models/documentoperations.h"

#include "app/base/wordcount.h"
#include "app/models/workspace.h"
#include "core/commands/compositecommand.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"

#include <QtCore/QLocale>
#include <QtCore/QSet>

#include <algorithm>

namespace vl::app {

using core::ContentId;
using core::Document;
using core::DocumentKind;

namespace {

QSet<ContentId> setOf(const QList<ContentId> &ids)
{
    return {ids.cbegin(), ids.cend()};
}

} // namespace

Document *DocumentOperations::find(const ContentId &id) const
{
    return m_workspace.project().find<Document>(id);
}

int DocumentOperations::positionOf(const Document &document) const
{
    const auto siblings = m_workspace.project().documentTree().children(document.parentId());
    return int(std::find(siblings.begin(), siblings.end(), &document) - siblings.begin());
}

ContentId DocumentOperations::insert(DocumentKind kind, const ContentId &parent, int position,
                                     const QString &title, const QString &body)
{
    m_workspace.flush(); // what was typed before is the earlier step
    auto document = std::make_unique<Document>(ContentId::create(), kind, title);
    const ContentId id = document->id();
    document->setParentId(parent);
    document->setBody(body);
    // Behind its siblings first; the move then numbers the family.
    const auto siblings = m_workspace.project().documentTree().children(parent);
    document->setSortIndex(siblings.empty() ? 0 : siblings.back()->sortIndex());

    const MacroScope macro(m_workspace,
                           kind == DocumentKind::Note ? tr("Add note") : tr("Add document"));
    m_workspace.push<core::AddObjectCommand>(m_workspace.project(), std::move(document));
    m_workspace.push<core::MoveDocumentCommand>(m_workspace.project(), id, parent, position);
    return id;
}

ContentId DocumentOperations::add(DocumentKind kind, const ContentId &behind)
{
    const QString title = kind == DocumentKind::Note ? tr("New Note") : tr("New Document");
    const Document *before = find(behind);
    return before ? insert(kind, before->parentId(), positionOf(*before) + 1, title, {})
                  : insert(kind, {}, -1, title, {});
}

ContentId DocumentOperations::addChild(DocumentKind kind, const ContentId &parent)
{
    const QString title = kind == DocumentKind::Note ? tr("New Note") : tr("New Document");
    return insert(kind, find(parent) ? parent : ContentId(), -1, title, {});
}

QList<ContentId> DocumentOperations::topmost(const QList<ContentId> &ids) const
{
    const QSet<ContentId> wanted = setOf(ids);
    QList<ContentId> list;
    int coveredDepth = -1; // depth of the chosen document whose branch is being passed
    for (const auto &place : m_workspace.project().documentTree().inOrder()) {
        if (coveredDepth >= 0 && place.depth > coveredDepth)
            continue;
        coveredDepth = -1;
        if (wanted.contains(place.document->id())) {
            list.append(place.document->id());
            coveredDepth = place.depth;
        }
    }
    return list;
}

QList<ContentId> DocumentOperations::withAllBelow(const QList<ContentId> &ids) const
{
    const QSet<ContentId> wanted = setOf(ids);
    QList<ContentId> list;
    int coveredDepth = -1;
    for (const auto &place : m_workspace.project().documentTree().inOrder()) {
        if (coveredDepth >= 0 && place.depth <= coveredDepth)
            coveredDepth = -1;
        if (coveredDepth < 0 && wanted.contains(place.document->id()))
            coveredDepth = place.depth;
        if (coveredDepth >= 0)
            list.append(place.document->id());
    }
    return list;
}

QString DocumentOperations::removalQuestion(const QList<ContentId> &ids) const
{
    const QList<ContentId> all = withAllBelow(ids);
    qsizetype words = 0;
    qsizetype notes = 0;
    bool hasChapters = false;
    for (const ContentId &id : all) {
        const Document *document = find(id);
        words += countWords(document->body());
        notes += document->documentKind() == DocumentKind::Note;
        hasChapters = hasChapters || m_workspace.project().documentTree().hasChildren(id);
    }
    const int count = int(all.size());
    QString what;
    if (notes == all.size())
        what = tr("%n note(s)", nullptr, count);
    else if (notes > 0 || hasChapters)
        what = tr("%n document(s)", nullptr, count);
    else
        what = tr("%n scene(s)", nullptr, count);
    // The number of words comes in the plural form's own sentence, with the locale's separators.
    const QString amount =
        tr("%n word(s)", "with the number written out by the program", int(words))
            .replace(QString::number(words), QLocale().toString(qlonglong(words)));
    return tr("Delete %1, %2?").arg(what, amount);
}

void DocumentOperations::remove(const QList<ContentId> &ids)
{
    m_workspace.flush(); // what was typed in them goes along, and comes back with them
    QList<ContentId> all = withAllBelow(ids);
    if (all.isEmpty())
        return;
    const MacroScope macro(m_workspace, tr("Delete %n document(s)", nullptr, int(all.size())));
    // From the leaves up, so that at no moment a document stands without its parent.
    std::reverse(all.begin(), all.end());
    for (const ContentId &id : all)
        m_workspace.push<core::RemoveObjectCommand>(m_workspace.project(), id);
}

bool DocumentOperations::canMove(const QList<ContentId> &ids, const ContentId &parent) const
{
    if (ids.isEmpty())
        return false;
    const QSet<ContentId> moved = setOf(ids);
    QSet<ContentId> seen;
    for (const Document *above = find(parent); above && !seen.contains(above->id());
         above = find(above->parentId())) {
        if (moved.contains(above->id()))
            return false;
        seen.insert(above->id());
    }
    return std::all_of(ids.begin(), ids.end(), [this](const ContentId &id) { return find(id); });
}

void DocumentOperations::move(const QList<ContentId> &ids, const ContentId &parent,
                              const ContentId &before)
{
    if (!canMove(ids, parent))
        return;
    const QList<ContentId> moved = topmost(ids);
    const QSet<ContentId> movedSet = setOf(moved);
    const core::DocumentTree &tree = m_workspace.project().documentTree();

    // The first child at or behind the place that stays; those dropped stand before it.
    const auto siblings = tree.children(parent);
    auto anchor = std::find_if(siblings.begin(), siblings.end(),
                               [&](const Document *d) { return d->id() == before; });
    while (anchor != siblings.end() && movedSet.contains((*anchor)->id()))
        ++anchor;
    const ContentId anchorId = anchor == siblings.end() ? ContentId() : (*anchor)->id();

    const MacroScope macro(m_workspace, tr("Move %n document(s)", nullptr, int(moved.size())));
    for (const ContentId &id : moved) {
        auto family = tree.children(parent);
        std::erase_if(family, [&](const Document *d) { return d->id() == id; });
        const auto place = std::find_if(family.begin(), family.end(),
                                        [&](const Document *d) { return d->id() == anchorId; });
        const int position = anchorId.isNull() ? -1 : int(place - family.begin());
        m_workspace.push<core::MoveDocumentCommand>(m_workspace.project(), id, parent, position);
    }
}

void DocumentOperations::shift(const QList<ContentId> &ids, int direction)
{
    QList<ContentId> moved = topmost(ids);
    const QSet<ContentId> movedSet = setOf(moved);
    if (direction > 0)
        std::reverse(moved.begin(), moved.end());

    std::vector<std::pair<ContentId, int>> steps;
    QSet<ContentId> stuck; // at the edge already, and so are those that lean on them
    for (const ContentId &id : moved) {
        const Document *document = find(id);
        const auto siblings = m_workspace.project().documentTree().children(document->parentId());
        const int target = positionOf(*document) + direction;
        const bool isOutside = target < 0 || target >= int(siblings.size());
        if (isOutside || stuck.contains(siblings[size_t(target)]->id()))
            stuck.insert(id);
        else
            steps.emplace_back(id, target);
    }
    if (steps.empty())
        return;
    const MacroScope macro(m_workspace, tr("Move %n document(s)", nullptr, int(steps.size())));
    for (const auto &[id, target] : steps)
        m_workspace.push<core::MoveDocumentCommand>(m_workspace.project(), id, find(id)->parentId(),
                                                    target);
}

void DocumentOperations::promote(const QList<ContentId> &ids)
{
    QList<ContentId> moved = topmost(ids);
    moved.removeIf([this](const ContentId &id) { return !find(find(id)->parentId()); });
    if (moved.isEmpty())
        return;
    const MacroScope macro(m_workspace, tr("Promote %n document(s)", nullptr, int(moved.size())));
    // The last one first: each comes to stand right behind the parent.
    std::reverse(moved.begin(), moved.end());
    for (const ContentId &id : moved) {
        const Document *parent = find(find(id)->parentId());
        m_workspace.push<core::MoveDocumentCommand>(m_workspace.project(), id, parent->parentId(),
                                                    positionOf(*parent) + 1);
    }
}

void DocumentOperations::demote(const QList<ContentId> &ids)
{
    const QList<ContentId> moved = topmost(ids);
    const QSet<ContentId> movedSet = setOf(moved);
    std::vector<std::pair<ContentId, ContentId>> steps; // document, new parent
    for (const ContentId &id : moved) {
        const Document *document = find(id);
        const auto siblings = m_workspace.project().documentTree().children(document->parentId());
        int before = positionOf(*document) - 1;
        while (before >= 0 && movedSet.contains(siblings[size_t(before)]->id()))
            --before;
        if (before >= 0)
            steps.emplace_back(id, siblings[size_t(before)]->id());
    }
    if (steps.empty())
        return;
    const MacroScope macro(m_workspace, tr("Demote %n document(s)", nullptr, int(steps.size())));
    for (const auto &[id, parent] : steps)
        m_workspace.push<core::MoveDocumentCommand>(m_workspace.project(), id, parent, -1);
}

void DocumentOperations::setKind(const QList<ContentId> &ids, DocumentKind kind)
{
    QList<Document *> changed;
    for (const ContentId &id : ids)
        if (Document *document = find(id); document && document->documentKind() != kind)
            changed.append(document);
    if (changed.isEmpty())
        return;
    const MacroScope macro(m_workspace, tr("Change document kind"));
    for (Document *document : changed)
        m_workspace.push<core::SetDocumentKindCommand>(*document, kind);
}

ContentId DocumentOperations::split(const ContentId &id, qsizetype position)
{
    Document *document = find(id);
    if (!document || position <= 0 || position >= document->body().size())
        return {};
    const QString head = document->body().left(position);
    const QString tail = document->body().mid(position);
    const MacroScope macro(m_workspace, tr("Split document"));
    m_workspace.push<core::SetDocumentBodyCommand>(*document, head);
    const ContentId newId =
        insert(document->documentKind(), document->parentId(), positionOf(*document) + 1,
               tr("%1 (continued)").arg(document->title()), tail);
    // Both halves are told by the same person and are at the same stage of work.
    if (Document *second = find(newId)) {
        if (!document->status().isEmpty())
            m_workspace.push<core::SetDocumentStatusCommand>(*second, document->status());
        if (!document->pointOfView().isEmpty())
            m_workspace.push<core::SetDocumentPointOfViewCommand>(*second, document->pointOfView());
    }
    return newId;
}

} // namespace vl::app
