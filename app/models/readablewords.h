#pragma once

#include <QtCore/QString>

namespace vl::app {

/// What people call a member of the project's files; null for one that no file has.
QString readableLabel(const QString &key);

/// What people call one of the values that such a member can have; others as they are.
QString readableChoice(const QString &key, const QString &value);

} // namespace vl::app
