#include "desktop/dialogs/projecttools.h"

#include "desktop/actions/actionregistry.h"
#include "desktop/dialogs/findinproject.h"
#include "desktop/shell/panelhost.h"

#include <QtWidgets/QMainWindow>

namespace vl::desktop {

ProjectTools::ProjectTools(const PanelContext &context, PanelHost &panels, QMainWindow *window)
    : m_context(context)
    , m_panels(panels)
    , m_window(window)
    , m_palette(context, panels, window)
{
    context.actions.bind("edit.findInProject", this, &ProjectTools::findInProject);
}

void ProjectTools::findInProject()
{
    FindInProject::open(
        m_context, [this](const QString &panel) { m_panels.showPanel(panel); }, m_window);
}

} // namespace vl::desktop
