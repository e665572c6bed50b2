#include "app/models/workspace.h"

#include <QtCore/QScopedValueRollback>

#include <algorithm>

namespace vl::app {

Workspace::Workspace()
    : m_current(std::make_unique<OpenProject>())
{
    connect(this, &Workspace::typed, this, [this] { m_hasTyped = true; });
    connect(this, &Workspace::flushRequested, this, [this] { m_hasTyped = false; });
    listen();
}

Workspace::~Workspace() = default;

void Workspace::replaceProject(std::unique_ptr<OpenProject> project)
{
    Q_ASSERT(project);
    // Panels still refer to the old project until they heard of the new one.
    const std::unique_ptr<OpenProject> old = std::exchange(m_current, std::move(project));
    old->disconnect(this);
    m_selection.clear();
    m_lostSelection.clear();
    m_hasTyped = false;
    listen();
    Q_EMIT projectReplaced();
    Q_EMIT selectionChanged();
    Q_EMIT historyChanged();
    Q_EMIT locationChanged();
}

void Workspace::listen()
{
    connect(m_current.get(), &OpenProject::changed, this, [this](const core::ChangeSet &changes) {
        dropLostSelection(changes);
        Q_EMIT changed(changes);
        takeLostSelection();
    });
    connect(m_current.get(), &OpenProject::historyChanged, this, &Workspace::historyChanged);
    connect(m_current.get(), &OpenProject::locationChanged, this, &Workspace::locationChanged);
    connect(m_current.get(), &OpenProject::saved, this, &Workspace::saved);
    connect(m_current.get(), &OpenProject::saveFailed, this, &Workspace::saveFailed);
    connect(m_current.get(), &OpenProject::aboutToSave, this, &Workspace::flushRequested);
}

void Workspace::flush()
{
    Q_EMIT flushRequested();
}

void Workspace::undo()
{
    flush();
    const QScopedValueRollback<bool> stepping(m_isStepping, true);
    history().undo();
}

void Workspace::redo()
{
    flush();
    const QScopedValueRollback<bool> stepping(m_isStepping, true);
    history().redo();
}

void Workspace::select(const QList<core::ContentId> &ids)
{
    QList<core::ContentId> there = ids;
    // A list may come to what is gone too, and not gone from it yet, when its own row goes.
    there.removeIf([this](const core::ContentId &id) {
        return !project().find(id) && !project().taxonomy().find(id);
    });
    if (there == m_selection)
        return;
    m_selection = there;
    if (!there.isEmpty())
        m_lostSelection.clear();
    Q_EMIT selectionChanged();
}

void Workspace::reveal(const core::ContentId &documentId, qsizetype position, qsizetype length)
{
    select(documentId);
    Q_EMIT revealRequested(documentId, position, length);
}

void Workspace::dropLostSelection(const core::ChangeSet &changes)
{
    const auto isLost = [&](const core::ContentId &id) {
        const auto removedFrom = [&id](const core::ChangeSet::Changes &map) {
            const auto found = map.find(id);
            return found != map.end() && found->second == core::ChangeSet::Change::Removed;
        };
        return removedFrom(changes.objects()) || removedFrom(changes.categories());
    };
    const QList<core::ContentId> before = m_selection;
    if (m_selection.removeIf(isLost) == 0)
        return;
    if (m_lostSelection.isEmpty()) // a group removes one after the other
        m_lostSelection = before;
    Q_EMIT selectionChanged();
}

/// What is deleted and comes back with an undo is what the user was at.
void Workspace::takeLostSelection()
{
    if (!m_isStepping || !m_selection.isEmpty() || m_lostSelection.isEmpty())
        return;
    const auto isBack = [&](const core::ContentId &id) {
        return project().find(id) || project().taxonomy().contains(id);
    };
    const QList<core::ContentId> lost = m_lostSelection;
    if (std::all_of(lost.begin(), lost.end(), isBack))
        select(lost);
}

} // namespace vl::app
