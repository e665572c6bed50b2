#pragma once

#include "core/commands/setmember.h"

namespace vl::core {

using SetEntityTemplatesCommand =
    SetRecord<ProjectRecord::EntityTemplates, &Project::entityTemplates,
              &Project::setEntityTemplates,
              QT_TRANSLATE_NOOP("vl::core::Command", "Update entity templates")>;
using SetSavedSearchesCommand =
    SetRecord<ProjectRecord::SavedSearches, &Project::savedSearches, &Project::setSavedSearches,
              QT_TRANSLATE_NOOP("vl::core::Command", "Update saved searches")>;
using SetAudiencesCommand =
    SetRecord<ProjectRecord::Audiences, &Project::audiences, &Project::setAudiences,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit audiences")>;
using SetPlotThreadsCommand =
    SetRecord<ProjectRecord::PlotThreads, &Project::plotThreads, &Project::setPlotThreads,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit plot threads")>;
using SetContinuityRulesCommand =
    SetRecord<ProjectRecord::ContinuityRules, &Project::continuityRules,
              &Project::setContinuityRules,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set continuity rules")>;
using SetCalendarCommand =
    SetRecord<ProjectRecord::Calendar, &Project::calendar, &Project::setCalendar,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set calendar")>;
using SetReckoningsCommand =
    SetRecord<ProjectRecord::Reckonings, &Project::reckonings, &Project::setReckonings,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set reckonings")>;
using SetTimelineErasCommand =
    SetRecord<ProjectRecord::TimelineEras, &Project::timelineEras, &Project::setTimelineEras,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set timeline eras")>;
using SetTimelineMarkersCommand =
    SetRecord<ProjectRecord::TimelineMarkers, &Project::timelineMarkers,
              &Project::setTimelineMarkers,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set timeline markers")>;
using SetTimelineBookmarksCommand =
    SetRecord<ProjectRecord::TimelineBookmarks, &Project::timelineBookmarks,
              &Project::setTimelineBookmarks,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set timeline bookmarks")>;
using SetTimelineViewSettingsCommand =
    SetRecord<ProjectRecord::TimelineView, &Project::timelineView, &Project::setTimelineView,
              QT_TRANSLATE_NOOP("vl::core::Command", "Change timeline view")>;
using SetTimelineViewPresetsCommand =
    SetRecord<ProjectRecord::TimelineViewPresets, &Project::timelineViewPresets,
              &Project::setTimelineViewPresets,
              QT_TRANSLATE_NOOP("vl::core::Command", "Update timeline view presets")>;
using SetBeatSheetCommand =
    SetRecord<ProjectRecord::BeatSheet, &Project::beatSheet, &Project::setBeatSheet,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit beat sheet")>;
using SetWritingGoalCommand =
    SetRecord<ProjectRecord::WritingGoal, &Project::writingGoal, &Project::setWritingGoal,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set writing goal")>;
using SetLibraryMountsCommand =
    SetRecord<ProjectRecord::Mounts, &Project::mounts, &Project::setMounts,
              QT_TRANSLATE_NOOP("vl::core::Command", "Update mounted libraries")>;

} // namespace vl::core
