#pragma once

#include "desktop/dialogs/palettehost.h"
#include "desktop/dialogs/welcome.h"

#include <QtCore/QObject>

namespace vl::app {
class ProjectFlows;
}

namespace vl::desktop {

/// The dialogs that belong to the window as a whole, each bound to its action and made when it is
/// first asked for. None of them stops the program while it is open.
class ProjectTools final : public QObject
{
    Q_OBJECT

public:
    /// The flows, the panels and the window outlive it.
    ProjectTools(const PanelContext &context, app::ProjectFlows &flows, PanelHost &panels,
                 QMainWindow *window);

    /// The first sight; from then on it is known that the user saw it.
    void showWelcome();

private:
    void findInProject();
    void newProject();
    void showAbout();
    void begin(WelcomeDialog::Choice choice);

    PanelContext m_context;
    app::ProjectFlows &m_flows;
    PanelHost &m_panels;
    QMainWindow *m_window;
    PaletteHost m_palette;
};

} // namespace vl::desktop
