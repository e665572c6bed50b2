#pragma once

#include <QtCore/QString>

namespace vl::desktop {

/// The style sheet of the docking area: flat tabs, hairlines between the panels, a line in the
/// highlight colour over the panel that has the focus. All colours come from the palette.
QString dockStyleSheet();

} // namespace vl::desktop
