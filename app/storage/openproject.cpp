#include "app/storage/openproject.h"

#include "app/base/files.h"
#include "app/storage/assets.h"
#include "app/storage/projectstore.h"
#include "app/storage/readonlyplace.h"
#include "app/storage/runningsave.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QUuid>

namespace vl::app {

OpenProject::OpenProject(const StorageLocations &locations)
    : OpenProject(std::make_unique<core::Project>(), nullptr)
{
    m_mediaFolder =
        QStringLiteral("%1/untitled-%2.files")
            .arg(locations.workingFolder(), QUuid::createUuid().toString(QUuid::WithoutBraces));
}

OpenProject::OpenProject(std::unique_ptr<core::Project> project,
                         std::unique_ptr<ProjectStore> store)
    : m_project(std::move(project))
    , m_store(std::move(store))
{
    listen();
}

OpenProject::~OpenProject()
{
    if (m_running)
        m_running->watcher.waitForFinished();
    m_history.setListener(nullptr);
    if (!m_mediaFolder.isEmpty() && !m_leavesMedia)
        QDir(m_mediaFolder).removeRecursively();
}

void OpenProject::listen()
{
    m_history.setListener([this](const core::ChangeSet &changes) {
        if (!changes.isEmpty()) {
            if (!std::exchange(m_nextIsOnDisk, false))
                m_unsaved.append(changes);
            Q_EMIT changed(changes);
        }
        Q_EMIT historyChanged();
    });
}

Result<std::unique_ptr<OpenProject>> OpenProject::open(const QString &path)
{
    Result<OpenedStore> opened = openStore(path);
    if (!opened)
        return opened.asFailure();
    return std::unique_ptr<OpenProject>(
        new OpenProject(std::move(opened->project), std::move(opened->store)));
}

Result<std::unique_ptr<OpenProject>> OpenProject::openReadOnly(const QString &path)
{
    Result<ReadOnlyProject> read = readReadOnly(path);
    if (!read)
        return read.asFailure();
    std::unique_ptr<OpenProject> opened(new OpenProject(std::move(read->project), nullptr));
    opened->m_readOnly = std::move(read->place);
    return opened;
}

QString OpenProject::path() const
{
    return m_store ? m_store->path() : QString();
}

bool OpenProject::isBundle() const
{
    return m_store && m_store->isBundle();
}

QString OpenProject::folder() const
{
    if (m_readOnly)
        return m_readOnly->folder;
    return m_store ? m_store->folder() : m_mediaFolder;
}

QString OpenProject::origin() const
{
    return m_readOnly ? m_readOnly->path : path();
}

Result<QString> OpenProject::addMedia(const QString &file)
{
    if (m_readOnly)
        return failure(tr("“%1” was opened to be read only. Save it under another name first; "
                          "pictures are kept beside the text.")
                           .arg(QFileInfo(m_readOnly->path).completeBaseName()));
    if (!m_store && !makePrivateFolder(m_mediaFolder))
        return failure(withPath(tr("Cannot create project folder: %1"), m_mediaFolder));
    // A working copy is whole before anything comes into it.
    const QString carried = carriedFolder();
    return importAsset(file, carried.isEmpty() ? folder() : carried);
}

QString OpenProject::carriedFolder() const
{
    if (m_readOnly)
        return m_readOnly->folder;
    if (m_store)
        return m_store->carriedFolder();
    return QFileInfo(m_mediaFolder).isDir() ? m_mediaFolder : QString();
}

QString OpenProject::name() const
{
    if (m_readOnly)
        return tr("%1 (read-only)").arg(QFileInfo(m_readOnly->path).completeBaseName());
    if (!m_store)
        return tr("Untitled");
    const QFileInfo info(m_store->path());
    return m_store->isBundle() ? info.completeBaseName() : info.fileName();
}

std::unique_ptr<OpenProject::RunningSave> OpenProject::beginSave(ProjectStore &store,
                                                                 bool everything)
{
    ++m_filesGeneration;
    auto save = std::make_unique<RunningSave>(store);
    save->pending = store.prepare(*m_project, everything ? nullptr : &m_unsaved);
    save->touched = std::exchange(m_unsaved, {});
    // Half a group is no state that the history can come back to.
    save->cleanIndex = m_history.isGroupOpen() ? -1 : m_history.undoCount();
    save->branch = m_history.branch();
    return save;
}

Result<> OpenProject::endSave(RunningSave &save, const Result<> &result)
{
    ++m_filesGeneration;
    save.store.finished(*save.pending, bool(result));
    if (!result) {
        save.touched.append(m_unsaved);
        m_unsaved = std::move(save.touched);
        Q_EMIT saveFailed(result.message());
        return result;
    }
    m_writesAnew = false;
    // Steps thrown away meanwhile may have been those that led to the saved state.
    m_history.setCleanIndex(save.branch == m_history.branch() ? save.cleanIndex : -1);
    Q_EMIT saved();
    return result;
}

Result<> OpenProject::save(OutsideChanges outside)
{
    Q_EMIT aboutToSave();
    finishSaving();
    if (!m_store)
        return failure(tr("This project has no save location yet; use saveAs()."));
    if (m_writesAnew)
        outside = OutsideChanges::Overwrite;
    const std::unique_ptr<RunningSave> save =
        beginSave(*m_store, outside == OutsideChanges::Overwrite);
    return endSave(*save, save->pending->commit(outside));
}

void OpenProject::saveInBackground(OutsideChanges outside)
{
    Q_EMIT aboutToSave();
    if (!m_store) {
        Q_EMIT saveFailed(tr("This project has no save location yet; use saveAs()."));
        return;
    }
    if (m_running) {
        if (m_next != OutsideChanges::Overwrite)
            m_next = outside;
        return;
    }
    if (m_writesAnew)
        outside = OutsideChanges::Overwrite;
    m_running = beginSave(*m_store, outside == OutsideChanges::Overwrite);
    connect(&m_running->watcher, &QFutureWatcherBase::finished, this,
            &OpenProject::backgroundSaveEnded);
    m_running->watcher.setFuture(QtConcurrent::run(
        [pending = m_running->pending.get(), outside] { return pending->commit(outside); }));
}

void OpenProject::backgroundSaveEnded()
{
    if (!m_running)
        return; // it was waited for
    const std::unique_ptr<RunningSave> ended = std::move(m_running);
    const Result<> result = endSave(*ended, ended->watcher.result());
    const std::optional<OutsideChanges> next = std::exchange(m_next, {});
    // One that the user allowed to write over others' changes may succeed where this one did not.
    if (next && (result || next == OutsideChanges::Overwrite) && isDirty())
        saveInBackground(*next);
}

void OpenProject::finishSaving()
{
    while (m_running) {
        m_running->watcher.waitForFinished();
        backgroundSaveEnded();
    }
}

bool OpenProject::meetsOutsideChanges()
{
    // While a save runs, what stands there may be its own; it looks for itself, and so does the
    // next.
    return m_store && !m_running && m_store->prepare(*m_project, &m_unsaved)->meetsOutsideChanges();
}

Result<> OpenProject::saveAsBundle(const QString &path, Carry carry)
{
    Q_EMIT aboutToSave();
    finishSaving();
    Result<std::unique_ptr<ProjectStore>> store = newBundleStore(path, carriedFolder(), carry);
    return store ? saveInto(*std::move(store)) : Result<>(store.asFailure());
}

Result<> OpenProject::saveAsFolder(const QString &folder, Carry carry)
{
    // Where it stands already, only its own store knows which files are of objects that are gone.
    if (m_store && !isBundle() && QDir::cleanPath(QFileInfo(folder).absoluteFilePath()) == path())
        return save(OutsideChanges::Overwrite);
    Q_EMIT aboutToSave();
    finishSaving();
    Result<std::unique_ptr<ProjectStore>> store = newFolderStore(folder, carriedFolder(), carry);
    return store ? saveInto(*std::move(store)) : Result<>(store.asFailure());
}

QStringList OpenProject::unreadableFiles() const
{
    const QString folder = carriedFolder();
    return folder.isEmpty() ? QStringList() : readCarriedFiles(folder).unreadable;
}

Result<> OpenProject::saveInto(std::unique_ptr<ProjectStore> store)
{
    const std::unique_ptr<RunningSave> save = beginSave(*store, true);
    Result<> result = save->pending->commit(OutsideChanges::Overwrite);
    if (result) {
        store->finished(*save->pending, true);
        m_readOnly.reset();
        std::swap(m_store, store); // the old one goes at the end of this call
        m_writesAnew = false;
        ++m_filesGeneration;
        m_history.setClean();
        Q_EMIT saved();
        Q_EMIT locationChanged();
        return result;
    }
    // The project stays where it was, with all that it had not saved there.
    store->finished(*save->pending, false);
    m_unsaved = std::move(save->touched);
    Q_EMIT saveFailed(result.message());
    return result;
}

} // namespace vl::app
