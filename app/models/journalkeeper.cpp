#include "app/models/journalkeeper.h"

#include "app/base/files.h"
#include "app/models/editortext.h"
#include "app/storage/projectkey.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectwriter.h"
#include "core/content/document.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QUuid>

namespace vl::app {

namespace {

const QLatin1String extension(".journal");
const QLatin1String foundMark(".found");
const QString untitledStart = QStringLiteral("untitled-");
/// So many bytes are chosen at a time; then the interface has its turn.
constexpr qsizetype turnBytes = 256 * 1024;

std::optional<QByteArray> readBase(const QString &folder, const QString &path)
{
    if (folder.isEmpty())
        return std::nullopt;
    const Result<QByteArray> bytes = readRegularFile(folder + u'/' + path, QString());
    return bytes ? std::optional(*bytes) : std::nullopt;
}

} // namespace

JournalKeeper::JournalKeeper(Workspace &workspace, StorageLocations locations, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_locations(std::move(locations))
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
        if (!m_writer || m_writer->path() != journalPath()) {
            giveUp();
            enter();
        }
    });
    collectUntitled();
    enter();
}

JournalKeeper::~JournalKeeper()
{
    if (m_workspace.current().isDirty())
        writeDue();
    m_pool.waitForDone();
}

QString JournalKeeper::journalPath() const
{
    const OpenProject &project = m_workspace.current();
    const QString name = project.hasLocation() ? projectKey(project.path()) : m_untitled;
    return m_locations.workingFolder() + u'/' + name + extension;
}

void JournalKeeper::enter()
{
    const OpenProject &project = m_workspace.current();
    m_found = project.hasLocation() ? collect(journalPath()) : QStringList();
    if (!project.hasLocation())
        m_untitled = untitledStart + QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QString folder = project.folder();
    m_writer = std::make_shared<JournalWriter>(
        journalPath(), JournalHeader{project.path(), LockHolder::current()},
        [folder](const QString &path) { return readBase(folder, path); });
    m_hasJournal = false;
    Q_EMIT foundChanged();
}

void JournalKeeper::collectUntitled()
{
    const QDir folder(m_locations.workingFolder());
    const QStringList names = folder.entryList({untitledStart + u'*'}, QDir::Files, QDir::Name);
    QStringList journals;
    for (const QString &name : names)
        journals.append(name.left(name.indexOf(extension) + extension.size()));
    journals.removeDuplicates();
    for (const QString &name : std::as_const(journals))
        m_foundUntitled += collect(folder.filePath(name));
}

/// Puts a journal aside whose program is gone, so that a new one can be begun; gives it and those
/// put aside earlier that nobody decided about.
QStringList JournalKeeper::collect(const QString &journalPath)
{
    if (const Result<Journal> journal = readJournal(journalPath)) {
        const LockHolder self = LockHolder::current();
        const LockHolder &writer = journal->header.writer;
        // This program has the project of its own journal open no more, or would not open it; of
        // one without a place it may have another window.
        const bool isOwn = writer.process == self.process && writer.boot == self.boot
                           && writer.processStart == self.processStart;
        const bool isInUse = isOwn ? journal->header.projectPath.isEmpty()
                                   : stateOf(writer, self) == HolderState::Running;
        if (isInUse)
            return {};
        int number = 0;
        QString aside;
        do
            aside = journalPath + foundMark + QString::number(++number);
        while (QFile::exists(aside));
        renamePath(journalPath, aside, Durability::Atomic);
    }
    const QFileInfo info(journalPath);
    QStringList found;
    const QStringList names = QDir(info.path()).entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        if (name.startsWith(info.fileName() + foundMark))
            found.append(info.path() + u'/' + name);
    }
    return found;
}

void JournalKeeper::removeFound()
{
    for (const QString &path : std::as_const(m_found))
        removeFile(path, Durability::Atomic);
    m_found.clear();
}

void JournalKeeper::removeFoundUntitled()
{
    for (const QString &path : std::as_const(m_foundUntitled))
        removeFile(path, Durability::Atomic);
    m_foundUntitled.clear();
}

void JournalKeeper::giveUp()
{
    m_timer.stop();
    m_due.clear();
    m_pending.clear();
    m_isBehind = false;
    if (std::exchange(m_hasJournal, false))
        m_pool.start([writer = m_writer] { writer->clear(); });
}

void JournalKeeper::finish()
{
    while (m_timer.isActive() || !m_due.isEmpty()) {
        m_timer.stop();
        writeDue();
    }
    m_pool.waitForDone();
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
    std::vector<FileChange> changes = chooseDue();
    addPending(changes, pending);
    if (!changes.empty() || std::exchange(m_isBehind, false))
        post(std::move(changes));
    m_timer.stop();
    if (!m_due.isEmpty())
        schedule(0);
}

/// Takes from what is due as much as may be done in one turn.
std::vector<FileChange> JournalKeeper::chooseDue()
{
    const core::Project &project = m_workspace.project();
    std::vector<FileChange> changes;
    core::ChangeSet rest;
    qsizetype bytes = 0;
    for (const auto &[id, change] : m_due.objects()) {
        if (bytes > turnBytes) {
            rest.touchObject(id, change);
            continue;
        }
        const core::ContentObject *object = project.find(id);
        changes.push_back(
            {objectPath(id), object ? std::optional(serializeObject(*object)) : std::nullopt});
        bytes += object ? changes.back().bytes->size() : 0;
        m_pending.remove(id);
    }
    for (const auto &[id, change] : m_due.categories()) {
        const core::Category *category = project.taxonomy().find(id);
        changes.push_back({categoryPath(id),
                           category ? std::optional(serializeCategory(*category)) : std::nullopt});
    }
    if (m_due.touchesAnyRecord())
        changes.push_back({recordsPath(), serializeProjectRecords(project)});
    m_due = rest;
    return changes;
}

/// Writes documents down with what stands in an editor and is no step of the history yet.
void JournalKeeper::addPending(std::vector<FileChange> &changes, const PendingTexts &pending)
{
    QSet<core::ContentId> typed;
    for (const PendingText &text : pending) {
        auto *document = m_workspace.project().find<core::Document>(text.documentId);
        if (!document)
            continue;
        // For the length of this call the document holds what it is about to; nobody is told.
        const QString body = document->body();
        document->setBody(bodyAfterEdit(body, text.shownText));
        changes.push_back({objectPath(document->id()), serializeObject(*document)});
        document->setBody(body);
        typed.insert(document->id());
    }
    // What was typed and taken back again leaves the document as it is.
    for (const core::ContentId &id : m_pending - typed) {
        if (const core::ContentObject *object = m_workspace.project().find(id))
            changes.push_back({objectPath(id), serializeObject(*object)});
    }
    m_pending = typed;
}

void JournalKeeper::post(std::vector<FileChange> changes)
{
    m_hasJournal = true;
    // The pool is waited for before this goes.
    m_pool.start([this, writer = m_writer, changes = std::move(changes)] {
        if (writer->write(changes)) {
            writer->sync();
            return;
        }
        const auto tryAgain = [this, writer] {
            if (writer != m_writer || !m_hasJournal)
                return;
            m_isBehind = true;
            schedule(delay);
        };
        QMetaObject::invokeMethod(this, tryAgain, Qt::QueuedConnection);
    });
}

} // namespace vl::app
