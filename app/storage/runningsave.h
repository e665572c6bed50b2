#pragma once

#include "app/storage/openproject.h"
#include "app/storage/projectstore.h"

#include <QtCore/QFutureWatcher>

namespace vl::app {

/// A save on its way, and the state of the history that it holds.
struct OpenProject::RunningSave
{
    explicit RunningSave(ProjectStore &store)
        : store(store)
    {
    }

    ProjectStore &store;
    std::unique_ptr<PendingSave> pending;
    core::ChangeSet touched;  ///< unsaved again when the save fails
    qsizetype cleanIndex = 0; ///< -1 when it holds no state of the history
    quint64 branch = 0;
    QFutureWatcher<Result<>> watcher;
};

} // namespace vl::app
