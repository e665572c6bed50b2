#include "desktop/shell/safekeeping.h"

#include "app/models/autosavecontroller.h"
#include "app/models/prompts.h"
#include "app/models/workspace.h"
#include "app/storage/projectpaths.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/dialogs/externalchangesdialog.h"
#include "desktop/shell/notices.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>

namespace vl::desktop {

namespace {

constexpr int openingMilliseconds = 2000; // in which the window has the processor to itself
const QLatin1String outsideNotice("outsideChanges");
const QLatin1String mediaNotice("outsideMedia");
const QLatin1String readOnlyNotice("readOnly");
const QLatin1String recordsNotice("missingRecords");

/// Nothing is put in place of what is under the user's hands: what is dragged or selected with the
/// mouse, a menu, a dialog.
bool areHandsFree()
{
    return QGuiApplication::mouseButtons() == Qt::NoButton && !QApplication::activePopupWidget()
           && !QApplication::activeModalWidget();
}

} // namespace

SafeKeeping::SafeKeeping(const PanelContext &context, QWidget *window)
    : m_context(context)
    , m_window(window)
    , m_outside(context.workspace)
{
    connect(&context.workspace, &app::Workspace::projectReplaced, this,
            &SafeKeeping::followProject);
    connect(&context.workspace, &app::Workspace::locationChanged, this, &SafeKeeping::tellReadOnly);
    m_outside.setMayChange(&areHandsFree);
    m_outside.watcher().setOpeningDelay(openingMilliseconds);
    connect(&m_outside, &app::OutsideMonitor::offerChanged, this, &SafeKeeping::showOffer);
    connect(&m_outside, &app::OutsideMonitor::nothingFound, this, [this] {
        m_isAsked = false;
        m_context.notices.show(app::OutsideOffer::nothingText());
    });
    connect(&m_outside, &app::OutsideMonitor::needsReview, this, &SafeKeeping::review);
    connect(&m_outside, &app::OutsideMonitor::done, this, &SafeKeeping::tell);
    connect(&m_outside, &app::OutsideMonitor::failed, this, [this](const QString &message) {
        m_savesOwn = false;
        m_context.prompts.showError(tr("External Changes"), message);
    });
    connect(&m_outside, &app::OutsideMonitor::mediaChanged, this, &SafeKeeping::askAboutMedia);
    context.actions.bind("file.checkExternal", this, &SafeKeeping::check);
    // The notice says that saving shows the media that are there now.
    connect(context.actions["file.save"], &QAction::triggered, this, [this] {
        if (m_outside.hasChangedMedia())
            reloadMedia();
        keepOwnBySaving();
    });
    // Who comes back to the window from another program may have changed something there.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    m_outside.lookSoon();
            });
    followProject();
}

SafeKeeping::~SafeKeeping() = default;

void SafeKeeping::followProject()
{
    m_autosave = std::make_unique<app::AutosaveController>(m_context.workspace.current());
    connect(m_autosave.get(), &app::AutosaveController::aboutToSave, &m_context.workspace,
            &app::Workspace::flush);
    m_autosave->start();
    tellReadOnly();
    tellMissingRecords();
}

/// A folder without the file loads as if nothing had ever been set in it.
void SafeKeeping::tellMissingRecords()
{
    const app::OpenProject &project = m_context.workspace.current();
    m_context.notices.withdraw(recordsNotice);
    const QFileInfo records(QDir(project.path()).filePath(app::recordsPath()));
    if (!project.hasLocation() || project.isBundle() || project.project().size() == 0
        || records.exists())
        return;
    m_context.notices.ask(
        recordsNotice,
        tr("“%1” is missing in the folder of this project: its calendar, plot threads, goals, pins "
           "and saved searches stand as in a new one. A backup may still have them.")
            .arg(app::recordsPath()),
        {{tr("Show &Backups…"), [this] { m_context.actions["file.backups"]->trigger(); }}});
}

/// Nobody writes for an hour into what is saved nowhere without having been told.
void SafeKeeping::tellReadOnly()
{
    const app::OpenProject &project = m_context.workspace.current();
    if (!project.isReadOnly()) {
        m_context.notices.withdraw(readOnlyNotice);
        return;
    }
    m_context.notices.ask(
        readOnlyNotice,
        tr("“%1” is open to be read only. What you change here is saved nowhere until you save "
           "it under another name.")
            .arg(QFileInfo(project.origin()).completeBaseName()),
        {{tr("Save &As…"), [this] {
              m_context.actions["file.saveAs"]->trigger();
              tellReadOnly(); // stays while it is so
          }}});
}

void SafeKeeping::check()
{
    if (!m_context.workspace.current().hasLocation()) {
        m_context.notices.show(tr("The project is not saved yet: there is nothing on disk to "
                                  "compare it with."));
        return;
    }
    m_isAsked = true;
    m_outside.check();
}

void SafeKeeping::showOffer()
{
    const app::OutsideOffer &offer = m_outside.offer();
    using Kind = app::OutsideOffer::Kind;
    if (offer.kind == Kind::None) {
        m_context.notices.withdraw(outsideNotice);
        return;
    }
    askAbout(offer);
    const bool canReview =
        offer.kind == Kind::Notice || offer.kind == Kind::Merge || offer.kind == Kind::WholeProject;
    if (std::exchange(m_isAsked, false) && canReview)
        review();
}

void SafeKeeping::askAbout(const app::OutsideOffer &offer)
{
    using Kind = app::OutsideOffer::Kind;
    QList<NoticeAction> answers;
    const NoticeAction compare{offer.conflicts > 0 ? tr("&Compare and Merge…") : tr("&Compare…"),
                               [this] { review(); }};
    const NoticeAction keep{tr("&Keep My Version"), [this] { m_outside.keepMine(); }};
    switch (offer.kind) {
    case Kind::None:
        break;
    case Kind::Notice:
    case Kind::WholeProject:
        if (offer.conflicts == 0)
            answers.append({tr("&Load On-Disk Version"), [this] { load(); }});
        answers += {compare, keep};
        break;
    case Kind::Merge:
        if (offer.conflicts == 0)
            answers.append({tr("&Merge and Reload"), [this] { merge(); }});
        answers += {compare, keep};
        break;
    case Kind::Vanished:
        answers = {{tr("Save &As…"), [this] { m_context.actions["file.saveAs"]->trigger(); }},
                   keep};
        break;
    case Kind::Unreadable:
        answers = {{tr("&Check Again"), [this] { check(); }}};
        break;
    }
    const QString text = offer.advice.isEmpty() ? offer.text : offer.text + u'\n' + offer.advice;
    m_context.notices.ask(outsideNotice, text, answers);
}

void SafeKeeping::askAboutMedia(int files)
{
    m_isAsked = m_isAsked && files == 0;
    if (files == 0)
        m_context.notices.withdraw(mediaNotice);
    else
        m_context.notices.ask(mediaNotice, app::OutsideOffer::mediaText(files),
                              {{tr("&Reload Media"), [this] { reloadMedia(); }}});
}

void SafeKeeping::reloadMedia()
{
    m_outside.reloadMedia();
    m_context.notices.show(app::OutsideOffer::mediaReloadedText());
}

void SafeKeeping::load()
{
    if (mayRemoveMuch())
        m_outside.load();
    else
        showOffer();
}

void SafeKeeping::merge()
{
    if (mayRemoveMuch())
        m_outside.merge();
    else
        showOffer();
}

bool SafeKeeping::mayRemoveMuch()
{
    return !m_outside.removesMuch()
           || m_context.prompts.confirm(
               tr("More than half of the project is gone from the disk."),
               tr("%n file(s) would be removed here as well. The project is backed up first.",
                  nullptr, m_outside.offer().deletions),
               tr("Remove"));
}

void SafeKeeping::review()
{
    if (m_dialog)
        return;
    m_context.workspace.flush();
    ExternalChangesDialog dialog(m_outside.state(), m_outside.entries(), &m_context.workspace,
                                 m_window);
    m_dialog = &dialog;
    if (dialog.exec() == QDialog::Accepted && mayRemoveMuch())
        m_outside.apply(dialog.resolution());
    else
        showOffer(); // the question stays until it is answered
}

/// The notice says that saving keeps one's own version: also of files that nobody changed here,
/// which a save leaves as they are.
void SafeKeeping::keepOwnBySaving()
{
    using Kind = app::OutsideOffer::Kind;
    const app::OpenProject &project = m_context.workspace.current();
    const Kind kind = m_outside.offer().kind;
    const bool isNotice = kind == Kind::Notice || kind == Kind::WholeProject;
    if (!isNotice || project.isBundle() || project.isDirty())
        return; // a bundle is asked about by the save itself
    const auto text = [](const char *source) {
        return QCoreApplication::translate("vl::app::ProjectFlows", source);
    };
    m_savesOwn = m_context.prompts.confirm(
        text("The project changed outside Ivorel since you opened it."),
        text("Saving puts your version in place of what was changed there. To keep both, save "
             "under another name."),
        text("Save My Version"));
    if (m_savesOwn)
        m_outside.keepMine();
}

void SafeKeeping::tell(const QString &message)
{
    m_context.notices.withdraw(outsideNotice);
    if (std::exchange(m_savesOwn, false)) {
        m_context.workspace.current().saveInBackground();
        return;
    }
    m_context.notices.show(message);
    // What came of it says more than that it was saved.
    if (m_context.workspace.current().isSaving())
        connect(
            &m_context.workspace, &app::Workspace::saved, this,
            [this, message] { m_context.notices.show(message); },
            Qt::ConnectionType(Qt::AutoConnection | Qt::SingleShotConnection));
}

} // namespace vl::desktop
