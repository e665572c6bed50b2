#include "app/models/journalkeeper.h"

#include "app/base/files.h"
#include "app/storage/projectkey.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectwriter.h"
#include "core/content/document.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace vl::app {

namespace {

/// So many bytes, and so many objects, are chosen at a time; then the interface has its turn.
constexpr qsizetype turnBytes = qsizetype(256) * 1024;
constexpr std::size_t turnObjects = 256;

std::optional<QByteArray> readBase(const QString &folder, const QString &path)
{
    if (folder.isEmpty())
        return std::nullopt;
    const Result<QByteArray> bytes = readRegularFile(folder + u'/' + path, QString());
    return bytes ? std::optional(*bytes) : std::nullopt;
}

/// Whether the journal goes on from a file that stands in the folder: that of a project which was
/// moved, as no two projects have files in common.
bool goesOnFrom(const FoundJournal &found, const QString &folder)
{
    const Result<Journal> journal = readJournal(found.path);
    return journal
           && std::any_of(journal->files.begin(), journal->files.end(), [&](const auto &entry) {
                  const auto present = readBase(folder, entry.first);
                  return present && entry.second.goesOnFrom(present);
              });
}

} // namespace

JournalKeeper::JournalKeeper(Workspace &workspace, StorageLocations locations, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_locations(std::move(locations))
    , m_shelf(m_locations)
{
    m_pool.setMaxThreadCount(1);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &JournalKeeper::writeDue);
    connect(&workspace, &Workspace::changed, this, [this](const core::ChangeSet &changes) {
        m_due.append(changes);
        schedule(delay);
    });
    connect(&workspace, &Workspace::typed, this, [this] { schedule(delay); });
    // What a save takes is written down first, so that the journal never stands behind the files.
    connect(&workspace, &Workspace::flushRequested, this, &JournalKeeper::writeDue);
    connect(&workspace, &Workspace::saved, this, &JournalKeeper::forgetSaved);
    connect(&workspace, &Workspace::projectReplaced, this, [this] {
        giveUp();
        enter();
    });
    connect(&workspace, &Workspace::locationChanged, this, [this] {
        const OpenProject &project = m_workspace.current();
        if (project.origin() != m_origin || project.folder() != m_folder) {
            giveUp();
            enter();
        }
    });
    m_pool.start([shelf = m_shelf] { shelf.thin(); });
    enter();
}

JournalKeeper::~JournalKeeper()
{
    if (m_workspace.current().isDirty())
        writeDue();
    m_pool.waitForDone();
    if (m_hasJournal)
        m_workspace.current().leaveMedia();
}

QString JournalKeeper::newJournalPath() const
{
    const OpenProject &project = m_workspace.current();
    if (!project.origin().isEmpty())
        return m_shelf.newPath(project.origin());
    // Its media stand beside it.
    return m_locations.workingFolder() + u'/'
           + QFileInfo(JournalShelf::journalOf(project.folder())).fileName();
}

void JournalKeeper::enter()
{
    const OpenProject &project = m_workspace.current();
    m_origin = project.origin();
    m_folder = project.folder();
    lookForJournals();
    m_writer = std::make_shared<JournalWriter>(
        newJournalPath(), JournalHeader{m_origin, LockHolder::current()},
        [folder = m_folder](const QString &path) { return readBase(folder, path); });
    m_hasJournal = false;
    Q_EMIT foundChanged();
}

void JournalKeeper::lookForJournals()
{
    m_found.clear();
    m_foundElsewhere.clear();
    const QString here = m_origin.isEmpty() ? QString() : absoluteProjectPath(m_origin);
    for (FoundJournal &journal : m_shelf.left()) {
        const bool isHere =
            !here.isEmpty() && !journal.projectPath.isEmpty()
            && (absoluteProjectPath(journal.projectPath) == here
                || (!QFileInfo::exists(journal.projectPath) && goesOnFrom(journal, m_folder)));
        if (isHere)
            m_found.append(journal.path);
        else
            m_foundElsewhere.push_back(std::move(journal));
    }
}

void JournalKeeper::adopt(const QStringList &journals)
{
    std::erase_if(m_foundElsewhere, [&](const FoundJournal &journal) {
        const bool isMeant = journals.contains(journal.path);
        if (isMeant)
            m_found.append(journal.path);
        return isMeant;
    });
    Q_EMIT foundChanged();
}

void JournalKeeper::settle(const QStringList &journals)
{
    for (const QString &path : journals) {
        m_shelf.keep(path);
        m_found.removeAll(path);
        std::erase_if(m_foundElsewhere,
                      [&path](const FoundJournal &journal) { return journal.path == path; });
    }
}

void JournalKeeper::giveUp()
{
    m_timer.stop();
    m_due.clear();
    m_dueObjects.clear();
    m_pending.clear();
    m_isBehind = false;
    if (!std::exchange(m_fault, QString()).isEmpty())
        Q_EMIT caughtUp();
    if (std::exchange(m_hasJournal, false))
        m_pool.start([writer = m_writer] { writer->clear(); });
}

bool JournalKeeper::finish()
{
    while (m_timer.isActive() || hasDue()) {
        m_timer.stop();
        writeDue();
    }
    m_pool.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall); // how it ended
    return m_fault.isEmpty();
}

void JournalKeeper::schedule(int milliseconds)
{
    if (!m_timer.isActive())
        m_timer.start(milliseconds);
}

void JournalKeeper::forgetSaved()
{
    if (m_workspace.current().isDirty())
        return;
    giveUp();
    schedule(delay); // for what was typed while it was saved
}

void JournalKeeper::writeDue()
{
    PendingTexts pending;
    Q_EMIT m_workspace.peekRequested(pending);
    if (!m_workspace.current().isDirty() && pending.isEmpty()) {
        giveUp(); // undone back to what is saved
        return;
    }
    std::vector<UnwrittenFile> files = chooseDue();
    addPending(files, pending);
    if (!files.empty() || std::exchange(m_isBehind, false))
        post(std::move(files));
    m_timer.stop();
    if (hasDue())
        schedule(0);
}

/// Takes from what is due as much as may be done in one turn.
std::vector<UnwrittenFile> JournalKeeper::chooseDue()
{
    const core::Project &project = m_workspace.project();
    std::vector<UnwrittenFile> files;
    if (m_dueObjects.empty()) {
        m_dueObjects.reserve(m_due.objects().size());
        for (auto entry = m_due.objects().rbegin(); entry != m_due.objects().rend(); ++entry)
            m_dueObjects.push_back(entry->first);
        for (const auto &[id, change] : m_due.categories()) {
            const core::Category *category = project.taxonomy().find(id);
            files.emplace_back(categoryPath(id), category
                                                     ? std::optional(serializeCategory(*category))
                                                     : std::nullopt);
        }
        if (m_due.touchesAnyRecord())
            files.emplace_back(recordsPath(), serializeProjectRecords(project));
        m_due.clear();
    }
    qsizetype bytes = 0;
    for (std::size_t objects = 0;
         !m_dueObjects.empty() && bytes <= turnBytes && objects < turnObjects; ++objects) {
        const core::ContentId id = m_dueObjects.back();
        m_dueObjects.pop_back();
        files.emplace_back(id, project.find(id));
        bytes += files.back().size();
        m_pending.remove(id);
    }
    return files;
}

/// Writes documents down with what stands in an editor and is no step of the history yet.
void JournalKeeper::addPending(std::vector<UnwrittenFile> &files, const PendingTexts &pending)
{
    QSet<core::ContentId> typed;
    for (const PendingText &text : pending) {
        const auto *document = m_workspace.project().find<core::Document>(text.documentId);
        if (!document)
            continue;
        files.emplace_back(*document, text);
        typed.insert(document->id());
    }
    // What was typed and taken back again leaves the document as it is.
    const auto untyped = m_pending - typed;
    for (const core::ContentId &id : untyped) {
        if (const core::ContentObject *object = m_workspace.project().find(id))
            files.emplace_back(id, object);
    }
    m_pending = typed;
}

void JournalKeeper::post(std::vector<UnwrittenFile> files)
{
    m_hasJournal = true;
    // The pool is waited for before this goes.
    m_pool.start([this, writer = m_writer, files = std::move(files)]() mutable {
        std::vector<FileChange> changes;
        changes.reserve(files.size());
        for (UnwrittenFile &file : files)
            changes.push_back(file.take());
        const Result<> result = writer->write(changes);
        QMetaObject::invokeMethod(
            this, [this, writer, result] { written(writer, result); }, Qt::QueuedConnection);
    });
}

void JournalKeeper::written(const std::shared_ptr<JournalWriter> &writer, const Result<> &result)
{
    if (writer != m_writer || !m_hasJournal)
        return;
    if (result) {
        m_isBehind = false;
        if (!std::exchange(m_fault, QString()).isEmpty())
            Q_EMIT caughtUp();
        return;
    }
    m_isBehind = true;
    schedule(delay);
    if (std::exchange(m_fault, result.message()) != m_fault)
        Q_EMIT fellBehind(m_fault);
}

} // namespace vl::app
