#pragma once

#include "core/calendar.h"
#include "core/content/contentobject.h"
#include "core/documenttree.h"
#include "core/projectrecords.h"
#include "core/taxonomy.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace vl::core {

/// The whole model of one project, and the only owner of its content objects.
class Project
{
public:
    Project();
    ~Project();
    Project(const Project &) = delete;
    Project &operator=(const Project &) = delete;

    /// Takes the object in; false, and the caller keeps it, when its id is taken or it is null.
    bool add(std::unique_ptr<ContentObject> &&object);
    /// Hands the object over to the caller; null for an unknown id.
    std::unique_ptr<ContentObject> take(const ContentId &id);
    /// Has each object shown before it is taken out; null for nobody.
    void setTakeListener(std::function<void(const ContentObject &)> listener)
    {
        m_takeListener = std::move(listener);
    }
    /// The object, still owned by the project; null for an unknown id.
    ContentObject *find(const ContentId &id) const;
    /// The same, as its class; null too when it is of another kind.
    template<typename T>
    T *find(const ContentId &id) const
    {
        return contentCast<T>(find(id));
    }
    bool contains(const ContentId &id) const { return m_objects.contains(id); }
    qsizetype size() const { return qsizetype(m_objects.size()); }
    /// Every object's id, sorted.
    std::vector<ContentId> ids() const;
    /// All objects of a class, in id order.
    template<typename T>
    std::vector<T *> all() const
    {
        const std::vector<ContentObject *> &objects = m_byKind.at(std::size_t(T::staticKind));
        std::vector<T *> list(objects.size());
        std::transform(objects.begin(), objects.end(), list.begin(),
                       [](ContentObject *object) { return static_cast<T *>(object); });
        return list;
    }
    /// All objects by id.
    const std::map<ContentId, std::unique_ptr<ContentObject>> &objects() const { return m_objects; }

    const DocumentTree &documentTree() const { return m_documentTree; }

    const Taxonomy &taxonomy() const { return m_taxonomy; }
    Taxonomy &editTaxonomy() { return m_taxonomy; }

    const std::set<ContentId> &pinned() const { return m_pinned; }
    void setPinned(std::set<ContentId> ids) { m_pinned = std::move(ids); }
    bool isPinned(const ContentId &id) const { return m_pinned.contains(id); }
    void pin(const ContentId &id, bool pinned);

    const QList<SavedSearch> &savedSearches() const { return m_savedSearches; }
    void setSavedSearches(const QList<SavedSearch> &searches) { m_savedSearches = searches; }

    const QList<EntityTemplate> &entityTemplates() const { return m_entityTemplates; }
    void setEntityTemplates(const QList<EntityTemplate> &templates)
    {
        m_entityTemplates = templates;
    }

    const QStringList &audiences() const { return m_audiences; }
    void setAudiences(const QStringList &audiences) { m_audiences = audiences; }

    const QList<PlotThread> &plotThreads() const { return m_plotThreads; }
    void setPlotThreads(const QList<PlotThread> &threads) { m_plotThreads = threads; }

    const QList<ContinuityRule> &continuityRules() const { return m_continuityRules; }
    void setContinuityRules(const QList<ContinuityRule> &rules) { m_continuityRules = rules; }

    const QList<TimelineEra> &timelineEras() const { return m_timelineEras; }
    void setTimelineEras(const QList<TimelineEra> &eras) { m_timelineEras = eras; }

    const QList<TimelineMarker> &timelineMarkers() const { return m_timelineMarkers; }
    void setTimelineMarkers(const QList<TimelineMarker> &markers) { m_timelineMarkers = markers; }

    const QList<TimelineBookmark> &timelineBookmarks() const { return m_timelineBookmarks; }
    void setTimelineBookmarks(const QList<TimelineBookmark> &marks) { m_timelineBookmarks = marks; }

    const BeatSheet &beatSheet() const { return m_beatSheet; }
    void setBeatSheet(const BeatSheet &beatSheet) { m_beatSheet = beatSheet; }

    const QList<LibraryMount> &mounts() const { return m_mounts; }
    void setMounts(const QList<LibraryMount> &mounts) { m_mounts = mounts; }

    const WritingLog &writingLog() const { return m_writingLog; }
    void setWritingLog(WritingLog log) { m_writingLog = std::move(log); }

    const WritingGoal &writingGoal() const { return m_writingGoal; }
    void setWritingGoal(const WritingGoal &goal) { m_writingGoal = goal; }

    const Calendar &calendar() const { return m_calendar; }
    void setCalendar(const Calendar &calendar) { m_calendar = calendar; }

    const QList<Reckoning> &reckonings() const { return m_reckonings; }
    void setReckonings(const QList<Reckoning> &reckonings) { m_reckonings = reckonings; }

    const TimelineViewSettings &timelineView() const { return m_timelineView; }
    void setTimelineView(const TimelineViewSettings &settings) { m_timelineView = settings; }

    const QList<TimelineViewPreset> &timelineViewPresets() const { return m_timelineViewPresets; }
    void setTimelineViewPresets(const QList<TimelineViewPreset> &presets)
    {
        m_timelineViewPresets = presets;
    }

private:
    DocumentTree m_documentTree; ///< outlives the documents, which tell it of their moves
    std::map<ContentId, std::unique_ptr<ContentObject>> m_objects;
    /// The same objects apart by kind, in id order; the few tasks are found among all the scenes.
    std::array<std::vector<ContentObject *>, contentKindTexts.size()> m_byKind;
    Taxonomy m_taxonomy;
    std::set<ContentId> m_pinned;
    QList<SavedSearch> m_savedSearches;
    QList<EntityTemplate> m_entityTemplates;
    QStringList m_audiences;
    QList<PlotThread> m_plotThreads;
    QList<ContinuityRule> m_continuityRules;
    QList<TimelineEra> m_timelineEras;
    QList<TimelineMarker> m_timelineMarkers;
    QList<TimelineBookmark> m_timelineBookmarks;
    BeatSheet m_beatSheet;
    QList<LibraryMount> m_mounts;
    WritingLog m_writingLog;
    WritingGoal m_writingGoal;
    Calendar m_calendar = Calendar::defaultCalendar();
    QList<Reckoning> m_reckonings;
    TimelineViewSettings m_timelineView;
    QList<TimelineViewPreset> m_timelineViewPresets;
    std::function<void(const ContentObject &)> m_takeListener;
};

} // namespace vl::core
