#pragma once

#include "app/base/files.h"

#ifndef Q_OS_UNIX
#include <QtCore/QSaveFile>
#endif

namespace vl::app {

/// What an atomic file holds on to while it is being written.
struct AtomicFile::Handle
{
#ifdef Q_OS_UNIX
    QByteArray target;
    QByteArray temporary; ///< empty when there is none (any more)
    QByteArray gathered;
    int file = -1;
#else
    std::unique_ptr<QSaveFile> file;
#endif
};

} // namespace vl::app
