#include "core/project.h"

namespace vl::core {

namespace {

/// The place of an id in a list of objects that stand in id order.
auto placeOf(std::vector<ContentObject *> &objects, const ContentId &id)
{
    return std::lower_bound(
        objects.begin(), objects.end(), id,
        [](const ContentObject *object, const ContentId &wanted) { return object->id() < wanted; });
}

} // namespace

Project::Project() = default;
Project::~Project() = default;

bool Project::add(std::unique_ptr<ContentObject> &&object)
{
    if (!object)
        return false;
    ContentObject *added = object.get();
    // Objects mostly arrive in id order, as their files stand.
    const auto place = m_objects.lower_bound(added->id());
    if (place != m_objects.end() && place->first == added->id())
        return false;
    m_objects.emplace_hint(place, added->id(), std::move(object));
    std::vector<ContentObject *> &sameKind = m_byKind.at(std::size_t(added->kind()));
    if (sameKind.empty() || sameKind.back()->id() < added->id())
        sameKind.push_back(added);
    else
        sameKind.insert(placeOf(sameKind, added->id()), added);
    if (auto *document = contentCast<Document>(added))
        m_documentTree.insert(*document);
    return true;
}

std::unique_ptr<ContentObject> Project::take(const ContentId &id)
{
    const auto found = m_objects.find(id);
    if (found == m_objects.end())
        return nullptr;
    if (m_takeListener)
        m_takeListener(*found->second);
    std::unique_ptr<ContentObject> object = std::move(found->second);
    m_objects.erase(found);
    std::vector<ContentObject *> &sameKind = m_byKind.at(std::size_t(object->kind()));
    sameKind.erase(placeOf(sameKind, id));
    if (auto *document = contentCast<Document>(object.get()))
        m_documentTree.remove(*document);
    return object;
}

ContentObject *Project::find(const ContentId &id) const
{
    const auto found = m_objects.find(id);
    return found == m_objects.end() ? nullptr : found->second.get();
}

std::vector<ContentId> Project::ids() const
{
    std::vector<ContentId> ids;
    ids.reserve(m_objects.size());
    for (const auto &[id, object] : m_objects)
        ids.push_back(id);
    return ids;
}

void Project::pin(const ContentId &id, bool pinned)
{
    if (pinned)
        m_pinned.insert(id);
    else
        m_pinned.erase(id);
}

} // namespace vl::core
