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

} // namespace vl::app
