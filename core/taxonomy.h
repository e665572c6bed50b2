#pragma once

#include "core/enumtexts.h"
#include "core/id.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <map>
#include <optional>
#include <vector>

namespace vl::core {

enum class FieldType
{
    Text,
    Number,
    Boolean,
    Date,
    Reference,
    Choice,
    Url
};
inline constexpr auto fieldTypeTexts =
    makeEnumTexts<FieldType>("text", "number", "boolean", "date", "reference", "choice", "url");

/// One field that the entities of a category fill.
struct FieldDefinition
{
    QString key; ///< unique within the category; entities store their values under it
    QString label;
    FieldType type = FieldType::Text;
    bool required = false;
    QStringList options; ///< what a choice field allows
    QString description;

    bool operator==(const FieldDefinition &) const = default;
};

/// A sort of entities, with the fields that they fill. Categories form a tree.
struct Category
{
    ContentId id;
    QString name;
    ContentId parentId; ///< null at the top level
    QList<FieldDefinition> fields;

    bool operator==(const Category &) const = default;
};

/// The categories of the codex.
class Taxonomy
{
public:
    /// The category, or null when there is none with this id; it stays good until the category
    /// goes.
    const Category *find(const ContentId &id) const;
    bool contains(const ContentId &id) const { return m_categories.contains(id); }
    qsizetype size() const { return qsizetype(m_categories.size()); }
    /// The ids of all categories, in id order.
    std::vector<ContentId> ids() const;
    /// The categories right below one, or at the top level for the null id: by name without regard
    /// to case, equal ones in id order.
    std::vector<const Category *> children(const ContentId &parentId) const;

    struct Place
    {
        const Category *category = nullptr;
        int depth = 0; ///< 0 at each root
    };
    /// All categories, depth first, each once. One whose parent is lost, or that only a cycle of
    /// parents holds, stands at the end as a root.
    std::vector<Place> inTreeOrder() const;
    /// Whether the category is the ancestor itself or lies somewhere below it.
    bool isWithin(const ContentId &id, const ContentId &ancestorId) const;

    /// Adds a category; false, and nothing changes, when its id is null or taken.
    bool add(const Category &category);
    /// Takes a category out; its child categories move up to its parent. Nothing for an unknown id.
    std::optional<Category> remove(const ContentId &id);
    /// Takes a category out and leaves all others as they are, also those that name it as parent.
    std::optional<Category> take(const ContentId &id);
    /// These give false, and change nothing, for an unknown category or a place outside its fields.
    bool rename(const ContentId &id, const QString &name);
    bool setParent(const ContentId &id, const ContentId &parentId);
    bool insertField(const ContentId &id, qsizetype position, const FieldDefinition &field);
    bool setField(const ContentId &id, qsizetype position, const FieldDefinition &field);
    bool removeField(const ContentId &id, qsizetype position);
    bool moveField(const ContentId &id, qsizetype from, qsizetype to);

private:
    Category *editable(const ContentId &id);

    std::map<ContentId, Category> m_categories;
};

} // namespace vl::core
