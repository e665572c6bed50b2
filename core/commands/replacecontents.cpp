#include "core/commands/replacecontents.h"

namespace vl::core {

namespace {

ChangeSet::Change changeBetween(bool wasThere, bool isThere)
{
    if (!wasThere)
        return ChangeSet::Change::Added;
    return isThere ? ChangeSet::Change::Changed : ChangeSet::Change::Removed;
}

} // namespace

ReplaceContentsCommand::ReplaceContentsCommand(Project &project, NewContents contents, QString text)
    : m_project(project)
    , m_records(std::move(contents.records))
    , m_text(std::move(text))
{
    for (const ContentId &id : contents.goneObjects)
        m_objects.push_back({id, nullptr});
    for (std::unique_ptr<ContentObject> &object : contents.objects) {
        const ContentId id = object->id();
        m_objects.push_back({id, std::move(object)});
    }
    for (const ContentId &id : contents.goneCategories)
        m_categories.push_back({id, std::nullopt});
    for (const Category &category : contents.categories)
        m_categories.push_back({category.id, category});
}

ReplaceContentsCommand::~ReplaceContentsCommand() = default;

void ReplaceContentsCommand::redo()
{
    m_changes.clear();
    for (ObjectSlot &slot : m_objects)
        swapObject(slot, m_changes);
    for (CategorySlot &slot : m_categories)
        swapCategory(slot, m_changes);
    if (m_records)
        swapRecords(m_changes);
}

/// From the last to the first: an id may be among what goes and among what comes.
void ReplaceContentsCommand::undo()
{
    ChangeSet changes;
    if (m_records)
        swapRecords(changes);
    for (auto slot = m_categories.rbegin(); slot != m_categories.rend(); ++slot)
        swapCategory(*slot, changes);
    for (auto slot = m_objects.rbegin(); slot != m_objects.rend(); ++slot)
        swapObject(*slot, changes);
}

void ReplaceContentsCommand::swapObject(ObjectSlot &slot, ChangeSet &changes)
{
    const bool isThere = slot.other != nullptr;
    std::unique_ptr<ContentObject> old = m_project.take(slot.id);
    if (!old && !isThere)
        return;
    if (isThere)
        m_project.add(std::move(slot.other));
    changes.touchObject(slot.id, changeBetween(old != nullptr, isThere));
    slot.other = std::move(old);
}

void ReplaceContentsCommand::swapCategory(CategorySlot &slot, ChangeSet &changes)
{
    const bool isThere = slot.other.has_value();
    std::optional<Category> old = m_project.editTaxonomy().take(slot.id);
    if (!old && !isThere)
        return;
    if (isThere)
        m_project.editTaxonomy().add(*slot.other);
    changes.touchCategory(slot.id, changeBetween(old.has_value(), isThere));
    slot.other = std::move(old);
}

void ReplaceContentsCommand::swapRecords(ChangeSet &changes)
{
    const auto swap = [&](ProjectRecord record, const auto get, const auto set) {
        const auto mine = (m_project.*get)();
        const auto other = (m_records.get()->*get)();
        if (mine == other)
            return;
        (m_project.*set)(other);
        (m_records.get()->*set)(mine);
        changes.touch(record);
    };
    using enum ProjectRecord;
    swap(Pinned, &Project::pinned, &Project::setPinned);
    swap(SavedSearches, &Project::savedSearches, &Project::setSavedSearches);
    swap(EntityTemplates, &Project::entityTemplates, &Project::setEntityTemplates);
    swap(Audiences, &Project::audiences, &Project::setAudiences);
    swap(PlotThreads, &Project::plotThreads, &Project::setPlotThreads);
    swap(ContinuityRules, &Project::continuityRules, &Project::setContinuityRules);
    swap(TimelineEras, &Project::timelineEras, &Project::setTimelineEras);
    swap(TimelineMarkers, &Project::timelineMarkers, &Project::setTimelineMarkers);
    swap(TimelineBookmarks, &Project::timelineBookmarks, &Project::setTimelineBookmarks);
    swap(BeatSheet, &Project::beatSheet, &Project::setBeatSheet);
    swap(Mounts, &Project::mounts, &Project::setMounts);
    swap(WritingLog, &Project::writingLog, &Project::setWritingLog);
    swap(WritingGoal, &Project::writingGoal, &Project::setWritingGoal);
    swap(Calendar, &Project::calendar, &Project::setCalendar);
    swap(Reckonings, &Project::reckonings, &Project::setReckonings);
    swap(TimelineView, &Project::timelineView, &Project::setTimelineView);
    swap(TimelineViewPresets, &Project::timelineViewPresets, &Project::setTimelineViewPresets);
}

} // namespace vl::core
