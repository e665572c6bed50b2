#pragma once

#include <QtCore/QString>

namespace vl::desktop {

/// The text with invisible places to break its paths and its longest words at, so that a label can
/// wrap what is longer than a line; dates stay whole.
QString breakable(const QString &text);

} // namespace vl::desktop
