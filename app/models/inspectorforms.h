#pragma once

#include "app/models/inspectorfield.h"

namespace vl::core {
class Project;
}

namespace vl::app {

/// The form for some objects of a project: of one kind all that they have in common, of several
/// kinds what all objects have. The values are those of the folder format: instants are numbers,
/// references id texts.
QList<InspectorAccess> inspectorForm(core::Project &project,
                                     const QList<core::ContentObject *> &objects);

/// What an object of a kind without a form of its own consists of, in a few short lines.
QString summaryOf(const core::Project &project, const core::ContentObject &object);

/// Values in use and others that suggest themselves for a field ("status", "pointOfView", "tags",
/// "threads", "visibleTo"), sorted, each once.
QStringList suggestionsFor(const core::Project &project, const QString &key);

/// The category with those above it: "People › The Drowned".
QString categoryPathText(const core::Project &project, const core::ContentId &id);

} // namespace vl::app
