#pragma once

#include <QtCore/QString>

namespace vl::desktop {

/// Other names under which people look for an action, parted by commas, in the interface language;
/// empty when there are none. The id may be any.
QString paletteWords(const QString &actionId);

} // namespace vl::desktop
