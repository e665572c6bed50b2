#pragma once

#include <QtCore/QString>

namespace vl::app {

/// Negative when version `a` is lower than `b`, positive when it is higher, 0 when they are equal.
/// Versions are numbers of any length with dots between them; a part that is missing or no number
/// counts as 0.
int compareVersions(const QString &a, const QString &b);

/// Whether a day lies between the last check and now, both as ISO 8601 texts. Without a time now
/// there is no check, without one of the last there is.
bool shouldCheckForUpdates(const QString &last, const QString &now);

} // namespace vl::app
