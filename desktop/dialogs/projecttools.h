#pragma once

#include "desktop/dialogs/palettehost.h"

#include <QtCore/QObject>

namespace vl::desktop {

/// The dialogs that belong to the window as a whole, each bound to its action and made when it is
/// first asked for.
class ProjectTools final : public QObject
{
    Q_OBJECT

public:
    /// The panels and the window outlive it.
    ProjectTools(const PanelContext &context, PanelHost &panels, QMainWindow *window);

private:
    void findInProject();

    PanelContext m_context;
    PanelHost &m_panels;
    QMainWindow *m_window;
    PaletteHost m_palette;
};

} // namespace vl::desktop
