#pragma once

#include "app/models/backupkeeper.h"
#include "app/models/recentlydeleted.h"
#include "desktop/panels/panelcontext.h"
#include "desktop/shell/crashrecovery.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

namespace vl::app {
class ProjectFlows;
}

namespace vl::desktop {

class BackupsDialog;

/// What is kept beside the open project so that nothing in it is lost, and the entries of the menu
/// that lead to it.
class ProjectCare final : public QObject
{
    Q_OBJECT

public:
    /// Everything handed in outlives it; the window shows the dialogs.
    ProjectCare(const PanelContext &context, app::ProjectFlows &flows, QWidget *window);
    ~ProjectCare() override;

    /// The window closes; what the user did not save is given up.
    void closing() { m_crash.closing(); }
    /// The program ends without a question; what the user did not save is offered the next time.
    void cutOff() { m_crash.cutOff(); }

private:
    void followSettings();
    void listen();
    void showRecentlyDeleted();
    void backUpNow();
    void showBackups();
    void openCopy(const QString &backupPath);
    void restoreDocument(const QString &backupPath);

    PanelContext m_context;
    app::ProjectFlows &m_flows;
    QWidget *m_window;
    app::BackupKeeper m_backups;
    CrashRecovery m_crash;
    app::RecentlyDeleted m_deleted;
    QPointer<BackupsDialog> m_list; ///< while it is shown
};

} // namespace vl::desktop
