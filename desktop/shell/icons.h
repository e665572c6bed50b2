#pragma once

#include <QtCore/QStringList>
#include <QtGui/QIcon>

namespace vl::desktop {

/// One icon of the program's own family, by the name of its file in desktop/icons. It is drawn when
/// it is first painted, in the text colour of the application's palette at that moment, so it
/// follows a change of theme by itself. An unknown name gives a null icon and a warning in the log.
QIcon icon(const QString &name);

/// The names that icon() knows, sorted.
QStringList iconNames();

/// The program's own picture, for windows and the desktop, in its own colours.
QIcon applicationIcon();

} // namespace vl::desktop
