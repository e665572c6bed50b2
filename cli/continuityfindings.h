#pragma once

#include "app/time/continuitychecker.h"
#include "cli/projectsource.h"

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

namespace vl::cli {

/// What the continuity checker finds in a project with its mounted libraries.
struct ContinuityFindings
{
    QList<app::TimelineConflict> timeline;
    QList<app::TimelineConflict> rules;
    QStringList unreadLibraries; ///< one message for each mounted library that does not load

    bool isEmpty() const { return timeline.isEmpty() && rules.isEmpty(); }
    /// As scripts read them: "timeline" and "rules", each with message and eventIds.
    QJsonObject toJson() const;
};

ContinuityFindings findContinuityFaults(const ProjectSource &source);

} // namespace vl::cli
