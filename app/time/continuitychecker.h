#pragma once

#include "core/id.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace vl::core {
class Project;
}

namespace vl::app {

/// A place where the story contradicts itself.
struct TimelineConflict
{
    QString message;                 ///< fit for the user, in the interface language
    QList<core::ContentId> eventIds; ///< the events it is about, one or two; none for a rule

    bool operator==(const TimelineConflict &) const = default;
};

/// How many findings a check gives at most.
inline constexpr qsizetype mostTimelineConflicts = 1'000'000;

/// What the events of all timelines contradict: dangling references, participants in two places at
/// once, before birth or after death, on journeys that no direct route allows in time, and broken
/// constraints; in this order, within each by event or participant in id order. Entities are looked
/// up in the project, then in the mounted libraries in their order; events and maps are the
/// project's own. An end that leaves 64 bits stops at their end. Findings beyond the limit are left
/// out. Reads only; the projects stay the caller's and may be read by others meanwhile.
QList<TimelineConflict> findTimelineConflicts(const core::Project &project,
                                              const QList<const core::Project *> &mounted = {},
                                              qsizetype limit = mostTimelineConflicts);

/// The continuity rules that do not hold, in the order of the rules. A rule with an instant looks
/// at the value that the field has then: that of the latest timed value up to it (of equal instants
/// the one later in the list), else the plain value. A rule without a name goes by its field key.
QList<TimelineConflict> checkContinuityRules(const core::Project &project);

} // namespace vl::app
