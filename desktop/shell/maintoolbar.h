#pragma once

#include <QtWidgets/QToolBar>

#include <span>

namespace vl::app {
class Settings;
}

namespace vl::desktop {

class ActionRegistry;

/// An entry of the main tool bar.
struct ToolBarRow
{
    const char *id;   ///< of the action
    bool startsGroup; ///< a separator stands before it
};

/// What the main tool bar can show, from left to right.
std::span<const ToolBarRow> toolBarCatalogue();
/// The key of the settings that shows or hides the entry of an action.
QString toolBarKey(const char *actionId);
/// Anything but "0" shows the entry.
bool isInToolBar(const app::Settings &settings, const char *actionId);

/// The tool bar of the window; the settings say which of its entries are shown.
class MainToolBar final : public QToolBar
{
    Q_OBJECT

public:
    /// Both outlive the tool bar.
    MainToolBar(const ActionRegistry &actions, const app::Settings &settings,
                QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();

    const ActionRegistry &m_actions;
    const app::Settings &m_settings;
};

} // namespace vl::desktop
