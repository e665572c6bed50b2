#pragma once

#include "core/commands/setmember.h"
#include "core/content/entity.h"

#include <optional>

namespace vl::core {

using SetEntityNameCommand = SetMember<&Entity::name, &Entity::setName,
                                       QT_TRANSLATE_NOOP("vl::core::Command", "Rename entity")>;
using SetEntityCategoryCommand = SetMember<&Entity::categoryId, &Entity::setCategoryId,
                                           QT_TRANSLATE_NOOP("vl::core::Command", "Move entity")>;
using SetEntityAliasesCommand = SetMember<&Entity::aliases, &Entity::setAliases,
                                          QT_TRANSLATE_NOOP("vl::core::Command", "Set aliases")>;
using SetEntityGalleryCommand =
    SetMember<&Entity::gallery, &Entity::setGallery,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set entity gallery")>;
using SetEntityLifespanCommand = SetMember<&Entity::lifespan, &Entity::setLifespan,
                                           QT_TRANSLATE_NOOP("vl::core::Command", "Edit lifespan")>;
using SetEntityTimedValuesCommand =
    SetMember<&Entity::timedValues, &Entity::setTimedValues,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set state over time")>;

/// Sets the value of one field of an entity.
class SetFieldValueCommand final : public Command
{
public:
    SetFieldValueCommand(Entity &entity, const QString &fieldKey, const QString &value);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Entity &m_entity;
    QString m_fieldKey;
    QString m_new;
    std::optional<QString> m_old;
};

class AddCategoryCommand final : public Command
{
public:
    AddCategoryCommand(Project &project, const Category &category);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    Category m_category;
    bool m_wasAdded = false;
};

/// Removes a category; its child categories move up to its parent. Moving its entities up is the
/// caller's, in the same group.
class RemoveCategoryCommand final : public Command
{
public:
    RemoveCategoryCommand(Project &project, const ContentId &categoryId);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_categoryId;
    std::optional<Category> m_category;
    std::vector<ContentId> m_childIds;
};

class RenameCategoryCommand final : public Command
{
public:
    RenameCategoryCommand(Project &project, const ContentId &categoryId, const QString &name);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_categoryId;
    QString m_new;
    QString m_old;
};

/// Puts a category under another one; refused when that would close a circle.
class MoveCategoryCommand final : public Command
{
public:
    MoveCategoryCommand(Project &project, const ContentId &categoryId, const ContentId &parentId);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_categoryId;
    ContentId m_new;
    ContentId m_old;
    bool m_wasMoved = false;
};

/// Adds a field at the end of a category's fields. A key that the category has already is refused.
class AddFieldCommand final : public Command
{
public:
    AddFieldCommand(Project &project, const ContentId &categoryId, const FieldDefinition &field);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_categoryId;
    FieldDefinition m_field;
    qsizetype m_position = -1; ///< -1 while the field was not added
};

/// Removes a field; the values that entities hold under its key stay.
class RemoveFieldCommand final : public Command
{
public:
    RemoveFieldCommand(Project &project, const ContentId &categoryId, const QString &key);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_categoryId;
    QString m_key;
    FieldDefinition m_field;
    qsizetype m_position = -1;
};

/// Moves a field to another place in the list; a place outside the list is taken as its nearest
/// end.
class MoveFieldCommand final : public Command
{
public:
    MoveFieldCommand(Project &project, const ContentId &categoryId, const QString &key,
                     int newPosition);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_categoryId;
    QString m_key;
    int m_newPosition;
    qsizetype m_from = -1;
    qsizetype m_to = -1;
};

/// Changes what a field is: its label, type, options and description. Its key stays.
class SetFieldCommand final : public Command
{
public:
    SetFieldCommand(Project &project, const ContentId &categoryId, const FieldDefinition &field);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_categoryId;
    FieldDefinition m_new;
    FieldDefinition m_old;
    qsizetype m_position = -1;
};

} // namespace vl::core
