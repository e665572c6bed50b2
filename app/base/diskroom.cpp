#include "app/base/diskroom.h"

#include <QtCore/QFileInfo>
#include <QtCore/QStorageInfo>

#include <algorithm>

namespace vl::app {

bool isDiskFull(const QString &path)
{
    constexpr qint64 littleRoom = qint64(1) << 20;
    const qint64 room = QStorageInfo(path).bytesAvailable();
    return room >= 0 && room < std::max(littleRoom, QFileInfo(path).size());
}

} // namespace vl::app
