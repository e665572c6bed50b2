#include "app/models/backupkeeper.h"

#include "app/base/wordcount.h"
#include "app/models/workspace.h"
#include "app/storage/projectwriter.h"
#include "app/text/manuscript.h"
#include "core/content/document.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

namespace vl::app {

namespace {

constexpr qint64 dayMilliseconds = 24 * 60 * 60 * 1000;
/// How often a folder is read again when a save came between.
constexpr int tries = 3;
constexpr unsigned long pauseMilliseconds = 200; ///< after a reading that failed

/// Makes a backup; of a folder that was being saved meanwhile another one, since the first may hold
/// some of its files as they were before and some as they were after.
Result<std::optional<BackupInfo>> addUndisturbed(const AutoBackups &backups,
                                                 const BackupContent &content, BackupReason reason,
                                                 const std::atomic<int> &saves)
{
    Result<std::optional<BackupInfo>> result = std::optional<BackupInfo>();
    for (int i = 0; i < tries; ++i) {
        const int before = saves;
        Result<std::optional<BackupInfo>> made = backups.add(content, reason);
        if (i == 0 || !result || !made || *made)
            result = std::move(made);
        if (result && before == saves)
            break;
        if (!result && i + 1 < tries)
            QThread::msleep(pauseMilliseconds); // a save that runs may have taken a file away
    }
    return result;
}

} // namespace

BackupSummary summarizeBackup(const core::Project &project)
{
    BackupSummary summary;
    for (const core::Document *document : project.all<core::Document>()) {
        ++summary.documents;
        if (document->documentKind() != core::DocumentKind::Note
            && !project.documentTree().hasChildren(document->id()))
            ++summary.scenes;
    }
    for (const ManuscriptEntry &entry : readManuscript(project).entries)
        summary.words += countWords(entry.text);
    return summary;
}

BackupKeeper::BackupKeeper(Workspace &workspace, StorageLocations locations, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_locations(std::move(locations))
    , m_saves(std::make_shared<std::atomic<int>>(0))
{
    m_pool.setMaxThreadCount(1);
    m_opening.setSingleShot(true);
    connect(&m_opening, &QTimer::timeout, this, &BackupKeeper::backUpOpened);
    connect(&workspace, &Workspace::projectReplaced, this, [this] {
        leave();
        enter();
    });
    connect(&workspace, &Workspace::locationChanged, this, [this] {
        if (m_workspace.current().path() != m_path || !m_workspace.current().hasLocation()) {
            leave();
            enter();
        }
    });
    connect(&workspace, &Workspace::flushRequested, this, [this] {
        endOpeningDelay();
        ++*m_saves;
        lookAtDay();
    });
    connect(&workspace, &Workspace::saved, this, [this] {
        ++*m_saves;
        m_savedSince = true;
        lookAtDay();
    });
    enter();
}

void BackupKeeper::setFolder(const QString &folder)
{
    m_locations.chosenAutoBackups = folder;
    m_toldFault.clear();
    if (m_owed)
        m_lastTime -= patience; // what could not be made there may be made here
}

BackupKeeper::~BackupKeeper()
{
    m_workspace.current().finishSaving();
    leave();
    finish();
}

AutoBackups BackupKeeper::backups() const
{
    return {m_workspace.current().path(), m_locations, &summarizeBackup};
}

void BackupKeeper::finish()
{
    endOpeningDelay();
    m_pool.waitForDone();
}

void BackupKeeper::backUpOpened()
{
    if (m_isAutomatic)
        run(m_path, {m_path, {}}, BackupReason::Opened);
}

void BackupKeeper::endOpeningDelay()
{
    if (!m_opening.isActive())
        return;
    m_opening.stop();
    backUpOpened();
}

void BackupKeeper::leave()
{
    endOpeningDelay();
    if (!m_path.isEmpty() && m_isAutomatic && (m_savedSince || m_owed))
        run(m_path, {m_path, {}}, BackupReason::Closed);
    m_path.clear();
    m_owed.reset();
    m_toldFault.clear();
}

void BackupKeeper::enter()
{
    m_savedSince = false;
    const OpenProject &project = m_workspace.current();
    if (!project.hasLocation())
        return;
    m_path = project.path();
    if (m_opening.interval() > 0)
        m_opening.start();
    else
        backUpOpened();
}

/// Any other day will do, and 24 hours whatever the day: neither a clock that is set back nor one
/// that stands still makes backups fail to appear.
bool BackupKeeper::isNewDay() const
{
    return m_locations.now().date() != m_lastDay
           || m_locations.uptime() - m_lastTime >= dayMilliseconds;
}

void BackupKeeper::lookAtDay()
{
    if (m_path.isEmpty() || !m_isAutomatic || m_running > 0)
        return;
    if (m_owed) {
        if (m_locations.uptime() - m_lastTime >= patience)
            run(m_path, {m_path, {}}, *m_owed);
    } else if (m_savedSince && isNewDay()) {
        run(m_path, {m_path, {}}, BackupReason::Daily);
    }
}

void BackupKeeper::backUpNow()
{
    m_workspace.flush();
    const OpenProject &project = m_workspace.current();
    if (!project.hasLocation())
        return;
    BackupContent content{project.path(), {}};
    if (project.isDirty()) {
        content.path = project.folder();
        serializeProject(project.project(),
                         [&content](const QString &path, const QByteArray &bytes) {
                             content.files.push_back({path, bytes});
                         });
    }
    run(project.path(), std::move(content), BackupReason::ByHand);
}

void BackupKeeper::run(const QString &projectPath, BackupContent content, BackupReason reason)
{
    m_savedSince = m_savedSince && reason == BackupReason::ByHand;
    m_lastDay = m_locations.now().date();
    m_lastTime = m_locations.uptime();
    ++m_running;
    const AutoBackups backups(projectPath, m_locations, &summarizeBackup);
    QtConcurrent::run(&m_pool, [backups, content = std::move(content), reason, saves = m_saves] {
        return addUndisturbed(backups, content, reason, *saves);
    }).then(this, [this, projectPath, reason](const Result<std::optional<BackupInfo>> &result) {
        report(projectPath, reason, result);
    });
}

void BackupKeeper::report(const QString &projectPath, BackupReason reason,
                          const Result<std::optional<BackupInfo>> &result)
{
    --m_running;
    const bool isPresent = projectPath == m_path;
    if (!result) {
        // That it is gone was told while it was open; there is nothing left to be done about it.
        if (reason == BackupReason::Closed && !isPresent && !QFileInfo::exists(projectPath))
            return;
        const bool isAsked = reason == BackupReason::ByHand;
        if (isPresent && !isAsked)
            m_owed = reason;
        if (isAsked || std::exchange(m_toldFault, result.message()) != result.message())
            Q_EMIT failed(reason, result.message());
        return;
    }
    if (isPresent) {
        m_owed.reset();
        m_toldFault.clear();
    }
    if (*result)
        Q_EMIT made(reason);
    else
        Q_EMIT unchanged(reason);
}

} // namespace vl::app
