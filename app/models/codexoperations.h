#pragma once

#include "core/content/contentobject.h"
#include "core/taxonomy.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>

#include <memory>

class QMimeData;

namespace vl::core {
class Command;
class Entity;
class Project;
struct EntityTemplate;
} // namespace vl::core

namespace vl::app {

class Workspace;

/// The format in which rows of the codex travel over the clipboard and in a drag.
QString codexMimeType();

/// The fields that an entity of the category fills: those of the categories above it first, from
/// the top, then its own. Of two with one key the one of the nearer category counts.
QList<core::FieldDefinition> codexFields(const core::Project &project,
                                         const core::ContentId &categoryId);

/// What can be done with the codex: each call that changes something is one undoable step.
class CodexOperations
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::CodexOperations)

public:
    using Ids = QList<core::ContentId>;

    explicit CodexOperations(Workspace &workspace)
        : m_workspace(workspace)
    {
    }

    /// The category itself, or that of an entity; null for all else.
    core::ContentId categoryAt(const core::ContentId &id) const;
    bool isCategory(const core::ContentId &id) const;
    /// Those that are entities, in the order given, each once.
    Ids entitiesOf(const Ids &ids) const;
    Ids categoriesOf(const Ids &ids) const;

    /// These give the id of what was added; an empty name stands for "New Category" and the like.
    core::ContentId addCategory(const core::ContentId &parent, const QString &name = {});
    core::ContentId addEntity(const core::ContentId &category, const QString &name = {});
    /// An entity that starts with what the template holds, in the template's category or, when that
    /// is gone, in the one given. Null for a place outside the list of templates.
    core::ContentId addFromTemplate(qsizetype position, const core::ContentId &otherwise);
    core::ContentId addTask(const core::ContentId &target, const QString &title);
    /// Adds a field, with a key made from its label; false for an empty label.
    bool addField(const core::ContentId &category, core::FieldDefinition field);

    /// False, and nothing happens, for an empty name or the present one.
    bool rename(const core::ContentId &id, const QString &name);

    /// The question before a removal, what else there is to know, and the button that does it.
    QString removalQuestion(const Ids &ids) const;
    QString removalDetail(const Ids &ids) const;
    QString removalAction(const Ids &ids) const;
    /// Removes entities, and categories whose contents move up to their parents.
    void remove(const Ids &ids);

    /// Copies of the entities, right beside them; gives their ids.
    Ids duplicate(const Ids &ids);

    bool canMove(const Ids &ids, const core::ContentId &category) const;
    /// Puts entities and categories under a category, or at the top level for the null id.
    void move(const Ids &ids, const core::ContentId &category);

    /// Pins the entities, or takes the pins away when all have one.
    void togglePin(const Ids &ids);
    /// The tags that all of the entities have.
    core::StringSet commonTags(const Ids &ids) const;
    /// Makes these the tags they have in common; those that only some have stay.
    void setCommonTags(const Ids &ids, const core::StringSet &tags);

    /// Keeps the values of the entity as a template of this name, in place of one so called.
    void saveAsTemplate(const core::ContentId &id, const QString &name);
    void setTemplates(const QList<core::EntityTemplate> &templates);

    /// The entities and categories for the clipboard: their ids, and their names as text.
    QMimeData *mimeData(const Ids &ids, bool isCut = false) const;
    static Ids idsFrom(const QMimeData *data);
    bool canPaste(const QMimeData *data) const;
    /// Moves what was cut and copies what was copied; gives what is there now.
    Ids paste(const QMimeData *data, const core::ContentId &category);

private:
    using Commands = std::vector<std::unique_ptr<core::Command>>;

    core::Entity *entity(const core::ContentId &id) const;
    core::ContentId copyOf(const core::Entity &original, const core::ContentId &category,
                           const QString &name, Commands &commands) const;
    void pushAll(const QString &label, Commands commands);

    Workspace &m_workspace;
};

} // namespace vl::app
