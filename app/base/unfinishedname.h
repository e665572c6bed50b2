#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

namespace vl::app {

/// How the names of all temporaries for a file of this name begin.
QByteArray unfinishedNameStart(QByteArrayView fileName);

/// A name for a new temporary of a file with this name, to stand beside it.
QByteArray newUnfinishedName(QByteArrayView fileName);

} // namespace vl::app
