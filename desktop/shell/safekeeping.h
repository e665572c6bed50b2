#pragma once

#include <QtCore/QObject>

#include <memory>

namespace vl::app {
class AutosaveController;
class Workspace;
} // namespace vl::app

namespace vl::desktop {

/// Keeps the work in the window safe: saves the open project at regular times.
class SafeKeeping final : public QObject
{
    Q_OBJECT

public:
    /// The workspace outlives it.
    explicit SafeKeeping(app::Workspace &workspace);
    ~SafeKeeping() override;

    app::AutosaveController &autosave() const { return *m_autosave; }

private:
    void followProject();

    app::Workspace &m_workspace;
    std::unique_ptr<app::AutosaveController> m_autosave; ///< of the open project
};

} // namespace vl::desktop
