#include "desktop/shell/safekeeping.h"

#include "app/models/autosavecontroller.h"
#include "app/models/workspace.h"

namespace vl::desktop {

SafeKeeping::SafeKeeping(app::Workspace &workspace)
    : m_workspace(workspace)
{
    connect(&workspace, &app::Workspace::projectReplaced, this, &SafeKeeping::followProject);
    followProject();
}

SafeKeeping::~SafeKeeping() = default;

void SafeKeeping::followProject()
{
    m_autosave = std::make_unique<app::AutosaveController>(m_workspace.current());
    connect(m_autosave.get(), &app::AutosaveController::aboutToSave, &m_workspace,
            &app::Workspace::flush);
    m_autosave->start();
}

} // namespace vl::desktop
