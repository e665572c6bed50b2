#include "core/changeset.h"

namespace vl::core {

void ChangeSet::note(Changes &changes, const ContentId &id, Change change)
{
    const auto [place, isNew] = changes.try_emplace(id, change);
    if (isNew)
        return;
    Change &before = place->second;
    if (before == Change::Added && change == Change::Removed)
        changes.erase(place);
    else if (before == Change::Removed && change == Change::Added)
        before = Change::Changed;
    else if (before == Change::Changed)
        before = change;
}

void ChangeSet::append(const ChangeSet &later)
{
    for (const auto &[id, change] : later.m_objects)
        note(m_objects, id, change);
    for (const auto &[id, change] : later.m_categories)
        note(m_categories, id, change);
    m_records |= later.m_records;
}

ChangeSet ChangeSet::inverted() const
{
    ChangeSet result = *this;
    for (Changes *changes : {&result.m_objects, &result.m_categories}) {
        for (auto &[id, change] : *changes) {
            if (change == Change::Added)
                change = Change::Removed;
            else if (change == Change::Removed)
                change = Change::Added;
        }
    }
    return result;
}

} // namespace vl::core
