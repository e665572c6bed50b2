#include "desktop/shell/projectcare.h"

#include "app/base/settingskeys.h"
#include "app/models/backupoperations.h"
#include "app/models/newcontents.h"
#include "app/models/projectflows.h"
#include "app/models/prompts.h"
#include "app/models/workspace.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/dialogs/backupsdialog.h"
#include "desktop/dialogs/recentlydeleteddialog.h"
#include "desktop/dialogs/restoredocumentdialog.h"
#include "desktop/shell/notices.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace vl::desktop {

namespace {

constexpr int openingMilliseconds = 2000; // in which the window has the processor to itself

} // namespace

ProjectCare::ProjectCare(const PanelContext &context, app::ProjectFlows &flows, QWidget *window)
    : m_context(context)
    , m_flows(flows)
    , m_window(window)
    , m_backups(context.workspace, app::StorageLocations::of(context.settings))
    , m_crash(context, flows, window)
    , m_deleted(context.workspace, app::StorageLocations::standard())
{
    m_backups.setOpeningDelay(openingMilliseconds);
    followSettings();
    listen();
    context.actions.bind("file.backUp", this, &ProjectCare::backUpNow);
    context.actions.bind("file.backups", this, &ProjectCare::showBackups);
    context.actions.bind("edit.recentlyDeleted", this, &ProjectCare::showRecentlyDeleted);
}

ProjectCare::~ProjectCare() = default;

void ProjectCare::followSettings()
{
    const auto follow = [this] {
        const app::Settings &settings = m_context.settings;
        m_backups.setAutomatic(settings.flag(app::settings::backupsByThemselves));
        m_backups.setFolder(app::StorageLocations::of(settings).chosenAutoBackups);
    };
    connect(&m_context.settings.changes(), &app::SettingsChanges::changed, this,
            [follow](const QString &key) {
                if (key.startsWith(QLatin1String("backups/")))
                    follow();
            });
    follow();
}

void ProjectCare::listen()
{
    connect(&m_backups, &app::BackupKeeper::made, this, [this](app::BackupReason reason) {
        if (reason == app::BackupReason::ByHand)
            m_context.notices.show(tr("The project is backed up."), tr("Show Backups"),
                                   [this] { showBackups(); });
        if (m_list)
            m_list->refresh();
    });
    connect(&m_backups, &app::BackupKeeper::unchanged, this, [this](app::BackupReason reason) {
        if (reason == app::BackupReason::ByHand)
            m_context.notices.show(tr("The newest backup holds the same already."),
                                   tr("Show Backups"), [this] { showBackups(); });
    });
    connect(&m_backups, &app::BackupKeeper::failed, this,
            [this](app::BackupReason reason, const QString &message) {
                if (reason == app::BackupReason::ByHand)
                    m_context.prompts.showError(tr("Back Up Project"), message);
                else
                    m_context.notices.showNext(tr("No backup was made: %1").arg(message),
                                               tr("Show Backups"), [this] { showBackups(); });
            });
}

void ProjectCare::showRecentlyDeleted()
{
    m_context.workspace.flush();
    RecentlyDeletedDialog dialog(m_deleted.groups(), m_window);
    if (dialog.exec() != QDialog::Accepted || !dialog.chosenGroup())
        return;
    if (m_deleted.restore(*dialog.chosenGroup(), dialog.chosenPath())) {
        if (const core::ContentId id = app::objectIdOf(dialog.chosenPath()); !id.isNull())
            m_context.workspace.select(id);
        m_context.notices.offerUndo(tr("What was deleted is restored."));
    }
}

void ProjectCare::backUpNow()
{
    // A project without a place has nothing that a backup could stand for.
    if (m_context.workspace.current().hasLocation() || m_flows.saveAs())
        m_backups.backUpNow();
}

void ProjectCare::showBackups()
{
    if (!m_context.workspace.current().hasLocation()) {
        m_context.notices.show(tr("The project is not saved yet: it has no backups."));
        return;
    }
    BackupsDialog dialog(m_backups.backups(), m_window);
    m_list = &dialog;
    QString copied;
    connect(&dialog, &BackupsDialog::backUpRequested, this, &ProjectCare::backUpNow);
    connect(&dialog, &BackupsDialog::restoreDocumentRequested, this, &ProjectCare::restoreDocument);
    connect(&dialog, &BackupsDialog::openCopyRequested, &dialog, [&](const QString &path) {
        copied = path;
        dialog.accept();
    });
    dialog.exec();
    if (!copied.isEmpty())
        openCopy(copied);
}

void ProjectCare::openCopy(const QString &backupPath)
{
    const app::OpenProject &project = m_context.workspace.current();
    const QString target = m_context.prompts.chooseBundleToSave(
        QFileInfo(project.path()).absoluteDir().filePath(tr("%1 (backup)").arg(project.name())));
    if (target.isEmpty())
        return;
    const app::Result<> copied =
        app::copyBackup(backupPath, target, app::StorageLocations::of(m_context.settings));
    if (!copied)
        m_context.prompts.showError(tr("Open a Copy"), copied.message());
    else
        m_flows.openHere(target);
}

void ProjectCare::restoreDocument(const QString &backupPath)
{
    const app::Result<std::unique_ptr<core::Project>> backup = app::loadBackup(backupPath);
    if (!backup) {
        m_context.prompts.showError(tr("Backups"), backup.message());
        return;
    }
    m_context.workspace.flush();
    app::BackupOperations operations(m_context.workspace);
    RestoreDocumentDialog dialog(operations.documents(**backup),
                                 m_context.workspace.selection().value(0),
                                 m_list ? static_cast<QWidget *>(m_list) : m_window);
    if (dialog.exec() != QDialog::Accepted || !operations.restore(**backup, dialog.chosen()))
        return;
    m_context.workspace.select(dialog.chosen());
    m_context.notices.offerUndo(tr("The document is restored."));
    if (m_list)
        m_list->accept();
}

} // namespace vl::desktop
