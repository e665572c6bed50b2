#pragma once

#include "app/base/settings.h"
#include "app/models/projectflows.h"
#include "app/models/workspace.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/dialogs/dialogprompts.h"

#include <QtWidgets/QMainWindow>

namespace vl::desktop {

class Appearance;
class ElidedLabel;
class Layouts;
class Notices;
class PanelHost;
class ProjectCare;
class ProjectTools;
class SafeKeeping;

/// The window: puts the project, the panels, the menus and the flows together.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// The settings outlive the window. Tests hand in prompts of their own, which outlive it too.
    explicit MainWindow(app::Settings &settings, app::Prompts *prompts = nullptr);
    ~MainWindow() override;

    /// Opens a project, telling the user when it does not load.
    bool openProject(const QString &path);
    /// Keeps what was written and how the window looks, for a program that has to end without
    /// asking anything.
    void keepAll();
    app::Workspace &workspace() { return m_workspace; }
    app::ProjectFlows &flows() { return m_flows; }
    app::Prompts &prompts() { return m_prompts; }
    Notices &notices() { return *m_notices; }
    SafeKeeping &safeKeeping() { return *m_safeKeeping; }
    ActionRegistry &actions() { return m_actions; }
    const ActionRegistry &actions() const { return m_actions; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildCentre();
    void bindActions();
    void buildMenus();
    void restoreWindow();
    void keepLook();
    void updateTitle();
    void updateSteps();
    void tellSaved();
    void tellPlace(bool isSaved);
    QString usualPlace() const;
    void tellSaveFailed(const QString &reason);

    app::Settings &m_settings;
    DialogPrompts m_dialogs;
    app::Prompts &m_prompts;
    app::Workspace m_workspace;
    app::ProjectFlows m_flows;
    ActionRegistry m_actions;
    Notices *m_notices = nullptr;
    Appearance *m_appearance = nullptr;
    PanelHost *m_panels = nullptr;
    Layouts *m_layouts = nullptr;
    std::unique_ptr<ProjectTools> m_tools;
    std::unique_ptr<SafeKeeping> m_safeKeeping;
    std::unique_ptr<ProjectCare> m_care;
    ElidedLabel *m_saveFault = nullptr; ///< why the last save failed, until one succeeds
    bool m_isAskedFor = false;          ///< the save that runs was asked for by the user
};

} // namespace vl::desktop
