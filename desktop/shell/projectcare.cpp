#include "desktop/shell/projectcare.h"

#include "app/base/settingskeys.h"
#include "app/models/backupoperations.h"
#include "app/models/newcontents.h"
#include "app/models/projectflows.h"
#include "app/models/prompts.h"
#include "app/models/recovery.h"
#include "app/models/workspace.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/dialogs/backupsdialog.h"
#include "desktop/dialogs/recentlydeleteddialog.h"
#include "desktop/dialogs/recoverydialog.h"
#include "desktop/dialogs/restoredocumentdialog.h"
#include "desktop/shell/notices.h"

#include <QtCore/QFileInfo>

namespace vl::desktop {

namespace {

const QString crashNotice = QStringLiteral("unsavedWork");
const QString untitledNotice = QStringLiteral("untitledWork");

} // namespace

ProjectCare::ProjectCare(const PanelContext &context, app::ProjectFlows &flows, QWidget *window)
    : m_context(context)
    , m_flows(flows)
    , m_window(window)
    , m_backups(context.workspace, app::StorageLocations::of(context.settings))
    , m_journal(context.workspace, app::StorageLocations::standard())
    , m_deleted(context.workspace, app::StorageLocations::standard())
{
    followSettings();
    listen();
    askAboutUntitled();
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
    connect(&m_journal, &app::JournalKeeper::foundChanged, this, &ProjectCare::askAboutCrash);
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
                    m_context.notices.show(tr("No backup was made: %1").arg(message),
                                           tr("Show Backups"), [this] { showBackups(); });
            });
}

/// Nothing is put into the project before the user says so.
void ProjectCare::askAboutCrash()
{
    m_context.notices.withdraw(crashNotice);
    if (m_journal.found().isEmpty())
        return;
    const app::Recovery recovery = app::Recovery::read(m_journal.found(), m_context.workspace);
    if (recovery.files().empty()) { // all of it reached the files
        m_journal.removeFound();
        return;
    }
    m_context.notices.ask(
        crashNotice,
        tr("Ivorel was cut off before all was saved. Unsaved work was found: %1.")
            .arg(recovery.summary()),
        {{tr("Compare and Restore…"), [this] { compareRecovered(); }},
         {tr("Restore"), [this] {
              const app::Recovery again =
                  app::Recovery::read(m_journal.found(), m_context.workspace);
              // What is newer in the project than in the journal wants a look.
              if (again.advisedPaths().size() < qsizetype(again.files().size())) {
                  compareRecovered();
              } else if (again.restore(m_context.workspace, again.advisedPaths())) {
                  m_journal.removeFound();
                  m_context.notices.offerUndo(tr("The unsaved work is restored."));
              }
          }}});
}

void ProjectCare::compareRecovered()
{
    m_context.workspace.flush();
    const app::Recovery recovery = app::Recovery::read(m_journal.found(), m_context.workspace);
    RecoveryDialog dialog(recovery, m_window);
    dialog.exec();
    switch (dialog.answer()) {
    case RecoveryDialog::Answer::Restore:
        if (recovery.restore(m_context.workspace, dialog.chosenPaths())) {
            m_journal.removeFound();
            m_context.notices.offerUndo(tr("The unsaved work is restored."));
        }
        break;
    case RecoveryDialog::Answer::Discard:
        m_journal.removeFound();
        break;
    case RecoveryDialog::Answer::Later:
        askAboutCrash();
        break;
    }
}

void ProjectCare::askAboutUntitled()
{
    if (m_journal.foundUntitled().isEmpty())
        return;
    const app::Workspace empty;
    const app::Recovery recovery = app::Recovery::read(m_journal.foundUntitled(), empty);
    if (recovery.files().empty()) {
        m_journal.removeFoundUntitled();
        return;
    }
    m_context.notices.ask(
        untitledNotice,
        tr("A project that was never saved was found after Ivorel was cut off: %1.")
            .arg(recovery.summary()),
        {{tr("Restore"), [this] { restoreUntitled(); }},
         {tr("Discard"), [this] {
              if (m_context.prompts.confirm(tr("Discard the project that was never saved?"),
                                            tr("What was written in it is lost."), tr("Discard")))
                  m_journal.removeFoundUntitled();
              else
                  askAboutUntitled();
          }}});
}

void ProjectCare::restoreUntitled()
{
    app::Workspace &workspace = m_context.workspace;
    const bool isFresh = !workspace.current().hasLocation() && !workspace.current().isDirty()
                         && workspace.project().size() == 0;
    if (!isFresh && !m_flows.newProject()) {
        askAboutUntitled();
        return;
    }
    const app::Recovery recovery =
        app::Recovery::read(m_journal.foundUntitled(), m_context.workspace);
    QStringList paths;
    for (const app::RecoveredFile &file : recovery.files())
        paths.append(file.change.path);
    if (recovery.restore(workspace, paths))
        m_journal.removeFoundUntitled();
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
    if (!m_context.workspace.current().hasLocation() && !m_flows.saveAs())
        return;
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
    const QString target = m_context.prompts.chooseBundleToSave(
        tr("%1 (backup)").arg(m_context.workspace.current().name()));
    if (target.isEmpty())
        return;
    if (const app::Result<> copied = app::copyBackup(backupPath, target); !copied)
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
                                 m_list ? static_cast<QWidget *>(m_list) : m_window);
    if (dialog.exec() != QDialog::Accepted || !operations.restore(**backup, dialog.chosen()))
        return;
    m_context.workspace.select(dialog.chosen());
    m_context.notices.offerUndo(tr("The document is restored."));
    if (m_list)
        m_list->accept();
}

} // namespace vl::desktop
