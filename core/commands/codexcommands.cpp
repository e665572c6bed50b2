#include "core/commands/codexcommands.h"

#include <algorithm>

namespace vl::core {

namespace {

/// The place of the field in its category, or -1 when either is not there.
qsizetype fieldPosition(const Project &project, const ContentId &categoryId, const QString &key)
{
    const Category *category = project.taxonomy().find(categoryId);
    if (!category)
        return -1;
    const auto found = std::find_if(category->fields.cbegin(), category->fields.cend(),
                                    [&](const FieldDefinition &field) { return field.key == key; });
    return found == category->fields.cend() ? -1 : found - category->fields.cbegin();
}

} // namespace

SetFieldValueCommand::SetFieldValueCommand(Entity &entity, const QString &fieldKey,
                                           const QString &value)
    : m_entity(entity)
    , m_fieldKey(fieldKey)
    , m_new(value)
{
    touchObject(entity.id());
}

void SetFieldValueCommand::redo()
{
    m_old = m_entity.value(m_fieldKey);
    m_entity.setValue(m_fieldKey, m_new);
}

void SetFieldValueCommand::undo()
{
    m_entity.setValue(m_fieldKey, m_old);
}

QString SetFieldValueCommand::text() const
{
    return Command::tr("Set field value");
}

AddCategoryCommand::AddCategoryCommand(Project &project, const Category &category)
    : m_project(project)
    , m_category(category)
{
}

void AddCategoryCommand::redo()
{
    m_changes.clear();
    m_wasAdded = m_project.editTaxonomy().add(m_category);
    if (m_wasAdded)
        m_changes.touchCategory(m_category.id, ChangeSet::Change::Added);
}

void AddCategoryCommand::undo()
{
    if (m_wasAdded)
        m_project.editTaxonomy().take(m_category.id);
}

QString AddCategoryCommand::text() const
{
    return Command::tr("Add category");
}

RemoveCategoryCommand::RemoveCategoryCommand(Project &project, const ContentId &categoryId)
    : m_project(project)
    , m_categoryId(categoryId)
{
}

void RemoveCategoryCommand::redo()
{
    m_changes.clear();
    m_childIds.clear();
    for (const Category *child : m_project.taxonomy().children(m_categoryId))
        m_childIds.push_back(child->id);
    m_category = m_project.editTaxonomy().remove(m_categoryId);
    if (!m_category) {
        m_childIds.clear();
        return;
    }
    m_changes.touchCategory(m_categoryId, ChangeSet::Change::Removed);
    for (const ContentId &id : m_childIds)
        if (id != m_categoryId)
            touchCategory(id);
}

void RemoveCategoryCommand::undo()
{
    if (!m_category)
        return;
    Taxonomy &taxonomy = m_project.editTaxonomy();
    taxonomy.add(*m_category);
    for (const ContentId &id : m_childIds)
        taxonomy.setParent(id, m_categoryId);
}

QString RemoveCategoryCommand::text() const
{
    return Command::tr("Remove category");
}

RenameCategoryCommand::RenameCategoryCommand(Project &project, const ContentId &categoryId,
                                             const QString &name)
    : m_project(project)
    , m_categoryId(categoryId)
    , m_new(name)
{
}

void RenameCategoryCommand::redo()
{
    m_changes.clear();
    const Category *category = m_project.taxonomy().find(m_categoryId);
    if (!category)
        return;
    m_old = category->name;
    m_project.editTaxonomy().rename(m_categoryId, m_new);
    touchCategory(m_categoryId);
}

void RenameCategoryCommand::undo()
{
    if (!m_changes.isEmpty())
        m_project.editTaxonomy().rename(m_categoryId, m_old);
}

QString RenameCategoryCommand::text() const
{
    return Command::tr("Rename category");
}

MoveCategoryCommand::MoveCategoryCommand(Project &project, const ContentId &categoryId,
                                         const ContentId &parentId)
    : m_project(project)
    , m_categoryId(categoryId)
    , m_new(parentId)
{
}

void MoveCategoryCommand::redo()
{
    m_changes.clear();
    const Taxonomy &taxonomy = m_project.taxonomy();
    const Category *category = taxonomy.find(m_categoryId);
    m_wasMoved = category
                 && (m_new.isNull()
                     || (taxonomy.contains(m_new) && !taxonomy.isWithin(m_new, m_categoryId)));
    if (!m_wasMoved)
        return;
    m_old = category->parentId;
    m_project.editTaxonomy().setParent(m_categoryId, m_new);
    touchCategory(m_categoryId);
}

void MoveCategoryCommand::undo()
{
    if (m_wasMoved)
        m_project.editTaxonomy().setParent(m_categoryId, m_old);
}

QString MoveCategoryCommand::text() const
{
    return Command::tr("Move category");
}

AddFieldCommand::AddFieldCommand(Project &project, const ContentId &categoryId,
                                 const FieldDefinition &field)
    : m_project(project)
    , m_categoryId(categoryId)
    , m_field(field)
{
}

void AddFieldCommand::redo()
{
    m_changes.clear();
    m_position = -1;
    const Category *category = m_project.taxonomy().find(m_categoryId);
    if (!category || fieldPosition(m_project, m_categoryId, m_field.key) >= 0)
        return;
    m_position = category->fields.size();
    m_project.editTaxonomy().insertField(m_categoryId, m_position, m_field);
    touchCategory(m_categoryId);
}

void AddFieldCommand::undo()
{
    if (m_position >= 0)
        m_project.editTaxonomy().removeField(m_categoryId, m_position);
}

QString AddFieldCommand::text() const
{
    return Command::tr("Add field");
}

RemoveFieldCommand::RemoveFieldCommand(Project &project, const ContentId &categoryId,
                                       const QString &key)
    : m_project(project)
    , m_categoryId(categoryId)
    , m_key(key)
{
}

void RemoveFieldCommand::redo()
{
    m_changes.clear();
    m_position = fieldPosition(m_project, m_categoryId, m_key);
    if (m_position < 0)
        return;
    m_field = m_project.taxonomy().find(m_categoryId)->fields.at(m_position);
    m_project.editTaxonomy().removeField(m_categoryId, m_position);
    touchCategory(m_categoryId);
}

void RemoveFieldCommand::undo()
{
    if (m_position >= 0)
        m_project.editTaxonomy().insertField(m_categoryId, m_position, m_field);
}

QString RemoveFieldCommand::text() const
{
    return Command::tr("Remove field");
}

MoveFieldCommand::MoveFieldCommand(Project &project, const ContentId &categoryId,
                                   const QString &key, int newPosition)
    : m_project(project)
    , m_categoryId(categoryId)
    , m_key(key)
    , m_newPosition(newPosition)
{
}

void MoveFieldCommand::redo()
{
    m_changes.clear();
    m_from = fieldPosition(m_project, m_categoryId, m_key);
    if (m_from < 0)
        return;
    const qsizetype last = m_project.taxonomy().find(m_categoryId)->fields.size() - 1;
    m_to = std::clamp<qsizetype>(m_newPosition, 0, last);
    m_project.editTaxonomy().moveField(m_categoryId, m_from, m_to);
    touchCategory(m_categoryId);
}

void MoveFieldCommand::undo()
{
    if (m_from >= 0)
        m_project.editTaxonomy().moveField(m_categoryId, m_to, m_from);
}

QString MoveFieldCommand::text() const
{
    return Command::tr("Move field");
}

SetFieldCommand::SetFieldCommand(Project &project, const ContentId &categoryId,
                                 const FieldDefinition &field)
    : m_project(project)
    , m_categoryId(categoryId)
    , m_new(field)
{
}

void SetFieldCommand::redo()
{
    m_changes.clear();
    m_position = fieldPosition(m_project, m_categoryId, m_new.key);
    if (m_position < 0)
        return;
    m_old = m_project.taxonomy().find(m_categoryId)->fields.at(m_position);
    m_project.editTaxonomy().setField(m_categoryId, m_position, m_new);
    touchCategory(m_categoryId);
}

void SetFieldCommand::undo()
{
    if (m_position >= 0)
        m_project.editTaxonomy().setField(m_categoryId, m_position, m_old);
}

QString SetFieldCommand::text() const
{
    return Command::tr("Edit field");
}

} // namespace vl::core
