#include "desktop/shell/crashrecovery.h"

#include "app/models/projectflows.h"
#include "app/models/prompts.h"
#include "app/models/recovery.h"
#include "app/models/workspace.h"
#include "core/content/document.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/dialogs/pickdialog.h"
#include "desktop/dialogs/recoverydialog.h"
#include "desktop/shell/notices.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>

#include <map>

namespace vl::desktop {

namespace {

constexpr int othersMilliseconds = 1500;
constexpr int mostQuestions = 3; // about other projects at a time
const QLatin1String openQuestion("unsavedWork");

QString nameOf(const QString &projectPath)
{
    const QFileInfo info(projectPath);
    return info.suffix() == QLatin1String("vellum") ? info.completeBaseName() : info.fileName();
}

QString summaryOf(const QStringList &journals)
{
    return app::Recovery::read(journals, app::Workspace()).summary();
}

} // namespace

CrashRecovery::CrashRecovery(const PanelContext &context, app::ProjectFlows &flows, QWidget *window)
    : m_context(context)
    , m_flows(flows)
    , m_window(window)
    , m_journal(context.workspace, app::StorageLocations::standard())
{
    connect(&m_journal, &app::JournalKeeper::foundChanged, this, &CrashRecovery::askAll);
    connect(&m_journal, &app::JournalKeeper::fellBehind, this, &CrashRecovery::tellBehind);
    connect(&m_journal, &app::JournalKeeper::caughtUp, this,
            [this] { m_context.notices.stand({}, {}); });
    context.actions.bind("file.unsavedWork", this, &CrashRecovery::showAll);
    m_othersLater.setSingleShot(true);
    m_othersLater.setInterval(othersMilliseconds);
    connect(&m_othersLater, &QTimer::timeout, this, &CrashRecovery::askAboutOthers);
    askAll();
}

CrashRecovery::~CrashRecovery() = default;

void CrashRecovery::tellBehind(const QString &message)
{
    m_context.notices.stand(
        tr("⚠ Not safe from a crash: %1").arg(message),
        tr("What is not saved cannot be written to %1: %2. It is tried again every second; what "
           "you save is safe.")
            .arg(QDir::toNativeSeparators(app::StorageLocations::standard().workingFolder()),
                 message));
}

void CrashRecovery::ask(const QString &id, const QString &text, const QList<NoticeAction> &answers)
{
    m_asked.append(id);
    m_context.notices.ask(id, text, answers);
}

void CrashRecovery::askAll()
{
    for (const QString &id : std::exchange(m_asked, {}))
        m_context.notices.withdraw(id);
    askAboutOpen();
    m_othersLater.start();
}

/// Nothing is put into the project before the user says so.
void CrashRecovery::askAboutOpen()
{
    if (m_journal.found().isEmpty())
        return;
    const app::Recovery recovery = app::Recovery::read(m_journal.found(), m_context.workspace);
    if (recovery.files().empty()) { // all of it reached the files
        m_journal.settle(m_journal.found());
        return;
    }
    ask(openQuestion,
        tr("Ivorel was cut off before all was saved. Unsaved work was found: %1.")
            .arg(recovery.summary()),
        {{tr("&Compare and Restore…"), [this] { restoreHere(Look::First); }},
         {tr("&Restore"), [this] { restoreHere(Look::Skip); }}});
}

void CrashRecovery::askAboutOthers()
{
    std::map<QString, QStringList> projects;
    int questions = 0;
    for (const app::FoundJournal &journal : m_journal.foundElsewhere()) {
        if (!journal.projectPath.isEmpty())
            projects[journal.projectPath].append(journal.path);
        else if (questions++ < mostQuestions)
            askAboutUntitled(journal);
    }
    for (const auto &[path, journals] : projects) {
        if (questions++ < mostQuestions)
            askAboutProject(path, journals);
    }
}

void CrashRecovery::askAboutUntitled(const app::FoundJournal &journal)
{
    const QStringList journals{journal.path};
    ask(journal.path,
        tr("A project that was never saved was found after Ivorel was cut off: %1.")
            .arg(summaryOf(journals)),
        {{tr("&Look and Restore…"), [this, journals] { restoreAsNew(journals, Look::First); }},
         {tr("&Restore"), [this, journals] { restoreAsNew(journals, Look::Skip); }},
         {tr("&Discard"), [this, journals] { discard(journals); }}});
}

void CrashRecovery::askAboutProject(const QString &path, const QStringList &journals)
{
    const QString name = nameOf(path);
    if (QFileInfo::exists(path)) {
        ask(path,
            tr("Unsaved work of “%1” was found after Ivorel was cut off: %2.")
                .arg(name, summaryOf(journals)),
            {{tr("&Open “%1”").arg(QString(name).replace(u'&', QLatin1String("&&"))), [this, path] {
                  if (!m_flows.openHere(path))
                      askAll();
              }}});
        return;
    }
    ask(path,
        tr("Unsaved work of “%1” was found after Ivorel was cut off: %2. The project is not there "
           "any more: %3")
            .arg(name, summaryOf(journals), QDir::toNativeSeparators(path)),
        {{tr("&Find the Project…"), [this, path, journals] { findProject(path, journals); }},
         {tr("Restore as a &New Project"),
          [this, journals] { restoreAsNew(journals, Look::First); }},
         {tr("&Discard"), [this, journals] { discard(journals); }}});
}

void CrashRecovery::findProject(const QString &path, const QStringList &journals)
{
    const QString found = QFileInfo(path).suffix() == QLatin1String("vellum")
                              ? m_context.prompts.chooseProjectToOpen()
                              : m_context.prompts.chooseProjectFolderToOpen();
    if (found.isEmpty() || !m_flows.openHere(found)) {
        askAll();
        return;
    }
    m_journal.adopt(journals);
}

void CrashRecovery::discard(const QStringList &journals)
{
    m_journal.settle(journals);
    m_context.notices.show(tr("Discarded. File › Unsaved Work… keeps it for %n day(s).", nullptr,
                              app::KeptFiles::days));
    askAll();
}

/// Puts what was found into the open project. It is offered until it is written down again.
void CrashRecovery::bringBack(const app::Recovery &recovery, const QStringList &paths,
                              const QStringList &journals)
{
    if (!recovery.restore(m_context.workspace, paths)) {
        m_context.prompts.showError(tr("Unsaved Work"),
                                    tr("What was found cannot be read, and nothing was restored."));
        return;
    }
    if (m_journal.finish())
        m_journal.settle(journals);
    showOne(paths);
    m_context.notices.offerUndo(tr("The unsaved work is restored."));
}

/// Where nothing is shown yet, a document that came back is.
void CrashRecovery::showOne(const QStringList &paths)
{
    app::Workspace &workspace = m_context.workspace;
    for (const QString &path : paths) {
        const core::ContentId id = app::objectIdOf(path);
        if (workspace.selection().isEmpty() && workspace.project().find<core::Document>(id))
            workspace.select(id);
    }
}

void CrashRecovery::restoreHere(Look look)
{
    m_context.workspace.flush();
    const QStringList journals = m_journal.found();
    const app::Recovery recovery = app::Recovery::read(journals, m_context.workspace);
    // What meets later work wants a look.
    if (look == Look::Skip && recovery.comesBackAsItWas()) {
        bringBack(recovery, recovery.advisedPaths(), journals);
        return;
    }
    RecoveryDialog dialog(recovery, RecoveryDialog::Occasion::AfterCrash, m_window);
    dialog.exec();
    switch (dialog.answer()) {
    case RecoveryDialog::Answer::Restore:
        bringBack(recovery, dialog.chosenPaths(), journals);
        break;
    case RecoveryDialog::Answer::Discard:
        discard(journals);
        break;
    case RecoveryDialog::Answer::Later:
        askAll();
        break;
    }
}

void CrashRecovery::restoreAsNew(const QStringList &journals, Look look)
{
    const app::Workspace empty;
    const app::Recovery recovery = app::Recovery::read(journals, empty);
    QStringList paths = recovery.advisedPaths();
    if (look == Look::First) {
        RecoveryDialog dialog(recovery, RecoveryDialog::Occasion::AfterCrash, m_window);
        dialog.exec();
        if (dialog.answer() == RecoveryDialog::Answer::Discard)
            discard(journals);
        if (dialog.answer() == RecoveryDialog::Answer::Later)
            askAll();
        if (dialog.answer() != RecoveryDialog::Answer::Restore)
            return;
        paths = dialog.chosenPaths();
    }
    app::Workspace &workspace = m_context.workspace;
    const bool isFresh = workspace.current().origin().isEmpty() && !workspace.current().isDirty()
                         && workspace.project().size() == 0;
    if (!isFresh && !m_flows.newProject()) {
        askAll();
        return;
    }
    for (const QString &journal : journals) {
        const app::Result<> media = app::Recovery::restoreMedia(journal, workspace.current());
        if (!media)
            m_context.prompts.showError(tr("Unsaved Work"), media.message());
    }
    bringBack(recovery, paths, journals);
    askAll();
}

/// All that there is: what was found and nobody decided about, and what is kept for a while.
void CrashRecovery::showAll()
{
    std::vector<app::FoundJournal> journals;
    for (const QString &path : m_journal.found())
        journals.push_back({path, m_context.workspace.current().origin(), {}});
    const auto &elsewhere = m_journal.foundElsewhere();
    journals.insert(journals.end(), elsewhere.begin(), elsewhere.end());
    for (const app::FoundJournal &kept : m_journal.shelf().kept())
        journals.push_back(kept);
    QStringList names;
    std::vector<app::FoundJournal> offered;
    for (const app::FoundJournal &journal : journals) {
        const app::Recovery all = app::Recovery::read({journal.path}, app::Workspace());
        if (all.files().empty())
            continue;
        const QString project =
            journal.projectPath.isEmpty() ? tr("Untitled") : nameOf(journal.projectPath);
        const QString when = journal.time.isValid() ? QLocale().toString(journal.time.toLocalTime(),
                                                                         QLocale::ShortFormat)
                                                    : tr("not decided");
        names.append(
            tr("%1 (%2): %3", "project, time, what it holds").arg(project, when, all.summary()));
        offered.push_back(journal);
    }
    if (offered.empty()) {
        m_context.notices.show(
            tr("Nothing unsaved was found in the last %n day(s).", nullptr, app::KeptFiles::days));
        return;
    }
    const int chosen =
        PickDialog::pick(tr("Unsaved Work"), tr("Work that was not saved when Ivorel was cut off:"),
                         names, tr("&Show"), m_window);
    if (chosen >= 0)
        showKept(offered[std::size_t(chosen)]);
}

void CrashRecovery::showKept(const app::FoundJournal &journal)
{
    if (m_journal.found().contains(journal.path)) {
        restoreHere(Look::First);
        return;
    }
    const bool isThere = !journal.projectPath.isEmpty() && QFileInfo::exists(journal.projectPath);
    const bool isOpen = m_context.workspace.current().origin() == journal.projectPath;
    if (!isThere) {
        restoreAsNew({journal.path}, Look::First);
        return;
    }
    if (!isOpen && !m_flows.openHere(journal.projectPath))
        return;
    m_context.workspace.flush();
    const app::Recovery recovery = app::Recovery::read({journal.path}, m_context.workspace);
    if (recovery.files().empty()) {
        m_context.notices.show(tr("All of it is in the project."));
        return;
    }
    RecoveryDialog dialog(recovery, RecoveryDialog::Occasion::Decided, m_window);
    dialog.exec();
    if (dialog.answer() == RecoveryDialog::Answer::Restore)
        bringBack(recovery, dialog.chosenPaths(), {});
}

} // namespace vl::desktop
