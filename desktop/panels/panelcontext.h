#pragma once

namespace vl::app {
class Prompts;
class Settings;
class Workspace;
} // namespace vl::app

namespace vl::desktop {

class ActionRegistry;
class Notices;

/// What every panel is handed; all of it outlives the panels.
struct PanelContext
{
    app::Workspace &workspace;
    ActionRegistry &actions;
    app::Settings &settings;
    app::Prompts &prompts;
    Notices &notices;
};

} // namespace vl::desktop
