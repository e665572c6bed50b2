#pragma once

#include "core/id.h"

#include <map>

namespace vl::core {

/// The records of a project that are neither content objects nor categories.
enum class ProjectRecord
{
    Pinned,
    SavedSearches,
    EntityTemplates,
    Audiences,
    PlotThreads,
    ContinuityRules,
    TimelineEras,
    TimelineMarkers,
    TimelineBookmarks,
    BeatSheet,
    Mounts,
    WritingLog,
    WritingGoal,
    Calendar,
    Reckonings,
    TimelineView,
    TimelineViewPresets,
};

/// What a change of the model touched, so that a panel refreshes those rows and a save rewrites
/// those files.
class ChangeSet
{
public:
    enum class Change
    {
        Added,
        Removed,
        Changed
    };
    using Changes = std::map<ContentId, Change>;

    const Changes &objects() const { return m_objects; }
    const Changes &categories() const { return m_categories; }
    bool touches(ProjectRecord record) const { return m_records & bit(record); }
    bool touchesAnyRecord() const { return m_records != 0; }
    bool isEmpty() const { return m_objects.empty() && m_categories.empty() && m_records == 0; }

    void touchObject(const ContentId &id, Change change) { note(m_objects, id, change); }
    void touchCategory(const ContentId &id, Change change) { note(m_categories, id, change); }
    void touch(ProjectRecord record) { m_records |= bit(record); }

    /// Adds what a later change touched: added, then removed comes to nothing.
    void append(const ChangeSet &later);
    /// What undoing this change touches: what was added is removed, and the other way round.
    ChangeSet inverted() const;
    void clear() { *this = ChangeSet(); }

private:
    static quint32 bit(ProjectRecord record) { return 1U << static_cast<quint32>(record); }
    static void note(Changes &changes, const ContentId &id, Change change);

    Changes m_objects;
    Changes m_categories;
    quint32 m_records = 0;
};

} // namespace vl::core
