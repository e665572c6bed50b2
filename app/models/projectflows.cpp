#include "app/models/projectflows.h"

#include "app/base/settings.h"
#include "app/models/newproject.h"
#include "app/models/outsideoffer.h"
#include "app/models/prompts.h"
#include "app/models/repairflow.h"
#include "app/models/workspace.h"
#include "app/storage/lock.h"
#include "app/storage/projectpaths.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace vl::app {

namespace {

constexpr int mostNamed = 8; ///< files in a message

/// A folder that holds other things gets one for the project among them.
QString roomFor(const QString &folder, const QString &name)
{
    const QDir dir(folder);
    const bool isEmpty = dir.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    return isEmpty || dir.exists(recordsPath()) ? folder : dir.filePath(name);
}

/// The names, a line each, as far as a message has room for them.
QString shortList(const QStringList &names)
{
    return QStringList(names.mid(0, mostNamed)).join(u'\n')
           + (names.size() > mostNamed ? QStringLiteral("\n…") : QString());
}

} // namespace

ProjectFlows::ProjectFlows(Workspace &workspace, Prompts &prompts, Settings &settings)
    : m_workspace(workspace)
    , m_prompts(prompts)
    , m_settings(settings)
{
}

ProjectFlows::~ProjectFlows() = default;

bool ProjectFlows::newProject()
{
    if (!mayClose())
        return false;
    m_lock.reset();
    m_workspace.replaceProject(std::make_unique<OpenProject>());
    return true;
}

bool ProjectFlows::create(const NewProject &wanted)
{
    const Result<QString> possible = ProjectMaker::pathFor(wanted);
    if (!possible)
        return report(tr("New Project"), possible.message());
    if (!mayClose())
        return false;
    const Result<QString> path = ProjectMaker::make(wanted);
    return path ? open(*path) : report(tr("New Project"), path.message());
}

bool ProjectFlows::openCopy(const QString &path, const QString &folder, const QString &name)
{
    if (!mayClose())
        return false;
    const Result<QString> copied = ProjectMaker::copy(path, folder, name);
    return copied ? open(*copied) : report(tr("Open Project"), copied.message());
}

bool ProjectFlows::chooseAndOpen()
{
    const QString path = m_prompts.chooseProjectToOpen();
    return !path.isEmpty() && openHere(path);
}

bool ProjectFlows::chooseAndOpenFolder()
{
    const QString path = m_prompts.chooseProjectFolderToOpen();
    return !path.isEmpty() && openHere(path);
}

bool ProjectFlows::openHere(const QString &path)
{
    return mayClose() && open(path);
}

bool ProjectFlows::openRecent(const QString &path)
{
    if (QFileInfo::exists(path))
        return openHere(path);
    const QString message =
        tr("The project could not be found: %1").arg(QDir::toNativeSeparators(path));
    const int answer =
        m_prompts.choose(tr("Open Project"), message, {tr("&Locate…"), tr("&Remove from List")});
    if (answer == 1)
        m_settings.removeRecentProject(path);
    if (answer != 0)
        return false;
    const bool isBundle = path.endsWith(QLatin1String(".vellum"), Qt::CaseInsensitive);
    const QString found =
        isBundle ? m_prompts.chooseProjectToOpen() : m_prompts.chooseProjectFolderToOpen();
    if (found.isEmpty() || !openHere(found))
        return false;
    m_settings.removeRecentProject(path);
    return true;
}

bool ProjectFlows::open(const QString &givenPath)
{
    std::optional<Access> access = askAccess(givenPath);
    if (!access)
        return false;
    const QString path = access->path;
    Result<std::unique_ptr<OpenProject>> opened =
        access->isReadOnly ? OpenProject::openReadOnly(path) : OpenProject::open(path);
    if (!opened) {
        // What is still open keeps its lock, any other is free again.
        if (access->lock && access->lock->isFor(m_workspace.current().path()))
            m_lock = std::move(access->lock);
        access->lock.reset();
        return RepairFlow(m_prompts, StorageLocations::of(m_settings),
                          [this](const QString &other) { return open(other); })
            .offer(path, opened.message());
    }
    m_workspace.replaceProject(*std::move(opened));
    m_lock = std::move(access->lock);
    m_settings.addRecentProject(path);
    return true;
}

std::optional<ProjectFlows::Access> ProjectFlows::askAccess(const QString &path)
{
    Access access;
    access.path = path;
    if (!QFileInfo::exists(path)) // opening tells that
        return access;
    if (m_lock && m_lock->isFor(path)) {
        // The open project is read again; while it is, nobody else gets in between.
        access.lock = std::move(m_lock);
        return access;
    }
    const LockHolder self = LockHolder::current();
    LockAttempt attempt = ProjectLock::take(path, self);
    access.lock = std::move(attempt.lock);
    if (!attempt.holder)
        return access;
    switch (m_prompts.askLocked(QFileInfo(path).completeBaseName(), *attempt.holder,
                                attempt.holderState)) {
    case Prompts::Locked::OpenCopy:
        access.path = copyElsewhere(path);
        if (access.path.isEmpty())
            return std::nullopt;
        return askAccess(access.path);
    case Prompts::Locked::ReadOnly:
        access.isReadOnly = true;
        return access;
    case Prompts::Locked::OpenAnyway:
        access.lock = ProjectLock::takeOver(path, self).lock;
        return access;
    case Prompts::Locked::Cancel:
        break;
    }
    return std::nullopt;
}

QString ProjectFlows::copyName(const QString &path)
{
    return tr("%1 (copy)").arg(QFileInfo(path).completeBaseName());
}

QString ProjectFlows::copyElsewhere(const QString &path)
{
    QString target =
        m_prompts.chooseBundleToSave(QFileInfo(path).absoluteDir().filePath(copyName(path)));
    if (target.isEmpty())
        return {};
    const Result<ProjectRepair> source = ProjectRepair::examine(path, StorageLocations::standard());
    const Result<> copied = source ? source->writeCopy(target) : Result<>(source.asFailure());
    if (!copied) {
        report(tr("Open Project"), copied.message());
        return {};
    }
    QStringList leftOut;
    for (const LeftOutFile &file : source->leftOut())
        leftOut.append(file.path);
    if (!leftOut.isEmpty())
        m_prompts.showInformation(
            tr("Open Project"),
            tr("The copy leaves out %n file(s) that cannot be read:", nullptr, int(leftOut.size()))
                + u'\n' + shortList(leftOut));
    return target;
}

bool ProjectFlows::lockToSave(const QString &path, std::unique_ptr<ProjectLock> &lock)
{
    if (m_lock && m_lock->isFor(path))
        return true;
    LockAttempt attempt = ProjectLock::take(path, LockHolder::current());
    lock = std::move(attempt.lock);
    if (!attempt.holder || attempt.holderState == HolderState::Unknown)
        return true; // the user chose to replace what stands there
    return report(
        tr("Save Project"),
        tr("This project is open in another window: %1").arg(QDir::toNativeSeparators(path)));
}

bool ProjectFlows::save()
{
    if (!m_workspace.current().hasLocation())
        return saveAs();
    const std::optional<OutsideChanges> outside = askOutsideChanges();
    if (!outside)
        return false;
    const Result<> saved = m_workspace.current().save(*outside);
    return saved || report(tr("Save Project"), saved.message());
}

bool ProjectFlows::saveInBackground()
{
    if (!m_workspace.current().hasLocation())
        return saveAs();
    const std::optional<OutsideChanges> outside = askOutsideChanges();
    if (outside)
        m_workspace.current().saveInBackground(*outside);
    return outside.has_value();
}

std::optional<OutsideChanges> ProjectFlows::askOutsideChanges()
{
    m_workspace.flush();
    if (!m_workspace.current().meetsOutsideChanges())
        return OutsideChanges::Refuse;
    const QString path = m_workspace.current().path();
    if (!QFileInfo::exists(path)) {
        const bool writesAnew = m_prompts.confirm(
            OutsideOffer::goneText(path),
            tr("Saving writes everything there again that is open here; pictures and other media "
               "that were only there are not brought back. If the disk or the sync folder may "
               "come back, wait for it, or save under another name."),
            tr("Save There Again"));
        return writesAnew ? std::optional(OutsideChanges::Overwrite) : std::nullopt;
    }
    const bool keepsOwn =
        m_prompts.confirm(tr("The project changed outside Ivorel since you opened it."),
                          tr("Saving puts your version in place of what was changed there. To keep "
                             "both, save under another name."),
                          tr("Save My Version"));
    return keepsOwn ? std::optional(OutsideChanges::Overwrite) : std::nullopt;
}

bool ProjectFlows::saveAs()
{
    const OpenProject &project = m_workspace.current();
    const QString path = m_prompts.chooseBundleToSave(
        project.isReadOnly() ? copyName(project.origin()) : project.name());
    if (path.isEmpty())
        return false;
    std::unique_ptr<ProjectLock> lock;
    if (!lockToSave(path, lock))
        return false;
    if (!saveElsewhere(
            [&](Carry carry) { return m_workspace.current().saveAsBundle(path, carry); }))
        return false;
    if (lock || !m_lock || !m_lock->isFor(path))
        m_lock = std::move(lock);
    m_settings.addRecentProject(path);
    return true;
}

bool ProjectFlows::saveAsFolder()
{
    const QString name = m_workspace.current().name();
    const QString chosen = m_prompts.chooseFolderToSave(name);
    if (chosen.isEmpty())
        return false;
    const QString folder = roomFor(chosen, name);
    std::unique_ptr<ProjectLock> lock;
    // A folder to be saved to is empty: it can be locked only afterwards, unless it is locked now.
    if (QFileInfo::exists(ProjectLock::filePath(folder)) && !lockToSave(folder, lock))
        return false;
    if (!saveElsewhere(
            [&](Carry carry) { return m_workspace.current().saveAsFolder(folder, carry); }))
        return false;
    if (lock || !m_lock || !m_lock->isFor(folder))
        m_lock = lock ? std::move(lock) : ProjectLock::take(folder, LockHolder::current()).lock;
    m_settings.addRecentProject(folder);
    return true;
}

bool ProjectFlows::saveElsewhere(const std::function<Result<>(Carry)> &save)
{
    const Result<> saved = save(Carry::Everything);
    if (saved)
        return true;
    const QStringList unreadable = m_workspace.current().unreadableFiles();
    if (unreadable.isEmpty())
        return report(tr("Save Project"), saved.message());
    const bool goesWithout = m_prompts.confirm(
        tr("%n file(s) beside the text cannot be read.", nullptr, int(unreadable.size())),
        shortList(unreadable) + u'\n'
            + tr("Everything you wrote is saved; what cannot be read stays where it is."),
        tr("Save the Rest"));
    if (!goesWithout)
        return false;
    const Result<> savedWithout = save(Carry::WhatCanBeRead);
    return savedWithout || report(tr("Save Project"), savedWithout.message());
}

bool ProjectFlows::mayClose()
{
    m_workspace.flush();
    m_workspace.current().finishSaving(); // what is on its way to the disk is no question
    if (!m_workspace.current().isDirty())
        return true;
    switch (m_prompts.askUnsaved(m_workspace.current().name())) {
    case Prompts::Unsaved::Save:
        return save();
    case Prompts::Unsaved::Discard:
        return true;
    case Prompts::Unsaved::Cancel:
        break;
    }
    return false;
}

bool ProjectFlows::report(const QString &title, const QString &message)
{
    m_prompts.showError(title, message);
    return false;
}

} // namespace vl::app
