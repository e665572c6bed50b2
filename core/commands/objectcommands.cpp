#include "core/commands/objectcommands.h"

namespace vl::core {

AddObjectCommand::AddObjectCommand(Project &project, std::unique_ptr<ContentObject> object)
    : m_project(project)
    , m_id(object ? object->id() : ContentId())
    , m_object(std::move(object))
{
}

AddObjectCommand::~AddObjectCommand() = default;

void AddObjectCommand::redo()
{
    m_changes.clear();
    if (m_project.add(std::move(m_object)))
        m_changes.touchObject(m_id, ChangeSet::Change::Added);
}

void AddObjectCommand::undo()
{
    // An object that was refused (its id was taken) is still here, and its namesake stays.
    if (!m_changes.isEmpty())
        m_object = m_project.take(m_id);
}

QString AddObjectCommand::text() const
{
    return Command::tr("Add object");
}

RemoveObjectCommand::RemoveObjectCommand(Project &project, const ContentId &id)
    : m_project(project)
    , m_id(id)
{
}

RemoveObjectCommand::~RemoveObjectCommand() = default;

void RemoveObjectCommand::redo()
{
    m_changes.clear();
    m_object = m_project.take(m_id);
    if (m_object)
        m_changes.touchObject(m_id, ChangeSet::Change::Removed);
}

void RemoveObjectCommand::undo()
{
    m_project.add(std::move(m_object));
}

QString RemoveObjectCommand::text() const
{
    return Command::tr("Remove object");
}

SetPinnedCommand::SetPinnedCommand(Project &project, const ContentId &id, bool pinned)
    : m_project(project)
    , m_id(id)
    , m_pinned(pinned)
{
    m_changes.touch(ProjectRecord::Pinned);
}

void SetPinnedCommand::redo()
{
    m_wasPinned = m_project.isPinned(m_id);
    m_project.pin(m_id, m_pinned);
}

void SetPinnedCommand::undo()
{
    m_project.pin(m_id, m_wasPinned);
}

QString SetPinnedCommand::text() const
{
    return m_pinned ? Command::tr("Pin") : Command::tr("Unpin");
}

} // namespace vl::core
