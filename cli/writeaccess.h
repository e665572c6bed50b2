#pragma once

#include "app/base/result.h"
#include "app/storage/lock.h"

#include <QtCore/QString>

namespace vl::cli {

/// Keeps a project to this program while a command writes to it.
class WriteAccess
{
public:
    /// Fails when another program has the project open, and tells which and since when. `anyway`
    /// goes on where nobody can tell whether that program still runs, never where it does.
    static app::Result<WriteAccess> to(const QString &path, bool anyway = false);

private:
    explicit WriteAccess(std::unique_ptr<app::ProjectLock> lock)
        : m_lock(std::move(lock))
    {
    }

    std::unique_ptr<app::ProjectLock> m_lock; ///< null where there is nothing to lock
};

} // namespace vl::cli
