#pragma once

#include "core/content/document.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>

namespace vl::app {

class Workspace;

/// What can be done with the documents of the manuscript: each call pushes one undoable step.
class DocumentOperations
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::DocumentOperations)

public:
    explicit DocumentOperations(Workspace &workspace)
        : m_workspace(workspace)
    {
    }

    /// Adds a document behind another one, under the same parent; at the end of the top level
    /// when there is none. Gives its id.
    core::ContentId add(core::DocumentKind kind, const core::ContentId &behind);
    /// Adds a document as the last one under another.
    core::ContentId addChild(core::DocumentKind kind, const core::ContentId &parent);

    /// The documents given and all below them, in the order of the manuscript, each once.
    QList<core::ContentId> withAllBelow(const QList<core::ContentId> &ids) const;
    /// The question before a removal, naming what goes ("Delete 3 scenes, 4,210 words?").
    QString removalQuestion(const QList<core::ContentId> &ids) const;
    /// Removes the documents and all below them.
    void remove(const QList<core::ContentId> &ids);

    /// Whether these can go under a parent (the null id for the top level): none of them may be
    /// the parent or stand above it.
    bool canMove(const QList<core::ContentId> &ids, const core::ContentId &parent) const;
    /// Moves documents under a parent, before one of its children, or to the end for the null id.
    /// They keep their order; one that lies below another of them travels along with it.
    void move(const QList<core::ContentId> &ids, const core::ContentId &parent,
              const core::ContentId &before);

    void moveUp(const QList<core::ContentId> &ids) { shift(ids, -1); }
    void moveDown(const QList<core::ContentId> &ids) { shift(ids, 1); }
    /// Out of its parent, to stand right behind it.
    void promote(const QList<core::ContentId> &ids);
    /// Under the document that stands before it.
    void demote(const QList<core::ContentId> &ids);

    void setKind(const QList<core::ContentId> &ids, core::DocumentKind kind);
    /// Cuts a document in two at a place of its body (UTF-16 units): what follows becomes a new
    /// document right behind it. Gives the id of the new one, null when there is nothing to cut.
    core::ContentId split(const core::ContentId &id, qsizetype position);

private:
    core::ContentId insert(core::DocumentKind kind, const core::ContentId &parent, int position,
                           const QString &title, const QString &body);
    /// Those of the documents that lie under no other of them, in the order of the manuscript.
    QList<core::ContentId> topmost(const QList<core::ContentId> &ids) const;
    void shift(const QList<core::ContentId> &ids, int direction);
    int positionOf(const core::Document &document) const;
    core::Document *find(const core::ContentId &id) const;

    Workspace &m_workspace;
};

} // namespace vl::app
