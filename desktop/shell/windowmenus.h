#pragma once

#include <QtCore/QObject>

class QMainWindow;
class QMenu;

namespace vl::app {
class Settings;
}

namespace vl::desktop {

class ActionRegistry;
class Appearance;
class Layouts;
class Notices;
class PanelHost;

/// Builds the menu bar of the window from the catalogue of actions and what comes and goes with the
/// settings: recent projects, themes, languages, layouts, panels.
class WindowMenus final : public QObject
{
    Q_OBJECT

public:
    struct Parts
    {
        ActionRegistry &actions;
        app::Settings &settings;
        Appearance &appearance;
        Layouts &layouts;
        PanelHost &panels;
        Notices &notices;
    };

    /// The parts outlive the menus.
    WindowMenus(QMainWindow *window, const Parts &parts);

Q_SIGNALS:
    void recentChosen(const QString &path);

private:
    QMenu *addMenu(const QString &title);
    void buildFile();
    void buildView();
    void addLanguages(QMenu *menu);

    QMainWindow *m_window;
    Parts m_parts;
};

} // namespace vl::desktop
