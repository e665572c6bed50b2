#include "core/taxonomy.h"

#include <QtCore/QSet>

#include <algorithm>

namespace vl::core {

namespace {

bool standsBefore(const Category *a, const Category *b)
{
    const int order = a->name.compare(b->name, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a->id < b->id;
}

using ChildLists = QHash<ContentId, std::vector<const Category *>>;

/// Appends the category and all below it, each that is not seen yet.
void appendFrom(const Category *root, const ChildLists &childLists, QSet<ContentId> &seen,
                std::vector<Taxonomy::Place> &places)
{
    std::vector<Taxonomy::Place> stack{{root, 0}};
    while (!stack.empty()) {
        const Taxonomy::Place place = stack.back();
        stack.pop_back();
        if (seen.contains(place.category->id))
            continue;
        seen.insert(place.category->id);
        places.push_back(place);
        const auto below = childLists.constFind(place.category->id);
        if (below == childLists.constEnd())
            continue;
        for (auto child = below->rbegin(); child != below->rend(); ++child)
            stack.push_back({*child, place.depth + 1});
    }
}

} // namespace

const Category *Taxonomy::find(const ContentId &id) const
{
    const auto found = m_categories.find(id);
    return found == m_categories.end() ? nullptr : &found->second;
}

Category *Taxonomy::editable(const ContentId &id)
{
    const auto found = m_categories.find(id);
    return found == m_categories.end() ? nullptr : &found->second;
}

std::vector<ContentId> Taxonomy::ids() const
{
    std::vector<ContentId> ids;
    ids.reserve(m_categories.size());
    for (const auto &[id, category] : m_categories)
        ids.push_back(id);
    return ids;
}

std::vector<const Category *> Taxonomy::children(const ContentId &parentId) const
{
    std::vector<const Category *> list;
    for (const auto &[id, category] : m_categories)
        if (category.parentId == parentId)
            list.push_back(&category);
    std::sort(list.begin(), list.end(), standsBefore);
    return list;
}

std::vector<Taxonomy::Place> Taxonomy::inTreeOrder() const
{
    std::vector<const Category *> sorted;
    for (const auto &[id, category] : m_categories)
        sorted.push_back(&category);
    std::sort(sorted.begin(), sorted.end(), standsBefore);

    ChildLists childLists;
    for (const Category *category : sorted)
        childLists[category->parentId].push_back(category);

    std::vector<Place> places;
    QSet<ContentId> seen;
    for (const Category *category : sorted)
        if (category->parentId.isNull())
            appendFrom(category, childLists, seen, places);
    for (const Category *category : sorted)
        if (!category->parentId.isNull() && !contains(category->parentId))
            appendFrom(category, childLists, seen, places);
    for (const Category *category : sorted)
        appendFrom(category, childLists, seen, places); // a cycle of parents is opened here
    return places;
}

bool Taxonomy::isWithin(const ContentId &id, const ContentId &ancestorId) const
{
    QSet<ContentId> seen;
    for (const Category *category = find(id); category && !seen.contains(category->id);
         category = find(category->parentId)) {
        if (category->id == ancestorId)
            return true;
        seen.insert(category->id);
    }
    return false;
}

bool Taxonomy::add(const Category &category)
{
    return !category.id.isNull() && m_categories.try_emplace(category.id, category).second;
}

std::optional<Category> Taxonomy::take(const ContentId &id)
{
    const auto found = m_categories.find(id);
    if (found == m_categories.end())
        return std::nullopt;
    Category taken = std::move(found->second);
    m_categories.erase(found);
    return taken;
}

std::optional<Category> Taxonomy::remove(const ContentId &id)
{
    std::optional<Category> taken = take(id);
    if (!taken)
        return taken;
    // A category may name itself, or its own child, as its parent: files hold what they hold.
    const ContentId above = taken->parentId == id ? ContentId() : taken->parentId;
    for (auto &[otherId, category] : m_categories)
        if (category.parentId == id)
            category.parentId = above == otherId ? ContentId() : above;
    return taken;
}

bool Taxonomy::rename(const ContentId &id, const QString &name)
{
    Category *category = editable(id);
    if (!category)
        return false;
    category->name = name;
    return true;
}

bool Taxonomy::setParent(const ContentId &id, const ContentId &parentId)
{
    Category *category = editable(id);
    if (!category)
        return false;
    category->parentId = parentId;
    return true;
}

bool Taxonomy::insertField(const ContentId &id, qsizetype position, const FieldDefinition &field)
{
    Category *category = editable(id);
    if (!category || position < 0 || position > category->fields.size())
        return false;
    category->fields.insert(position, field);
    return true;
}

bool Taxonomy::setField(const ContentId &id, qsizetype position, const FieldDefinition &field)
{
    Category *category = editable(id);
    if (!category || position < 0 || position >= category->fields.size())
        return false;
    category->fields[position] = field;
    return true;
}

bool Taxonomy::removeField(const ContentId &id, qsizetype position)
{
    Category *category = editable(id);
    if (!category || position < 0 || position >= category->fields.size())
        return false;
    category->fields.removeAt(position);
    return true;
}

bool Taxonomy::moveField(const ContentId &id, qsizetype from, qsizetype to)
{
    Category *category = editable(id);
    if (!category || from < 0 || from >= category->fields.size() || to < 0
        || to >= category->fields.size())
        return false;
    category->fields.move(from, to);
    return true;
}

} // namespace vl::core
