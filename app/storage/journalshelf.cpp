#include "app/storage/journalshelf.h"

#include "app/base/files.h"
#include "app/storage/journal.h"
#include "app/storage/projectkey.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QUuid>

#include <algorithm>

namespace vl::app {

namespace {

const QLatin1String extension(".journal");
const QLatin1String mediaExtension(".files");
constexpr int numberDigits = 6;

bool isRunning(const LockHolder &writer)
{
    return stateOf(writer, LockHolder::current()) == HolderState::Running;
}

QStringList filesIn(const QString &folder, const QString &pattern)
{
    return QDir(folder).entryList({pattern}, QDir::Files | QDir::NoSymLinks, QDir::Name);
}

} // namespace

JournalShelf::JournalShelf(StorageLocations locations)
    : m_locations(std::move(locations))
    , m_keptFolder(m_locations.root + QStringLiteral("/unsaved"))
    , m_kept(m_keptFolder, extension, m_locations.now)
{
}

QString JournalShelf::newPath(const QString &projectPath) const
{
    static const QRegularExpression numbered(QStringLiteral("\\.(\\d{6})-[^.]*\\.journal\\z"));
    int latest = 0;
    const QStringList names = filesIn(m_locations.workingFolder(), QStringLiteral("*") + extension);
    for (const QString &name : names)
        latest = std::max(latest, numbered.match(name).captured(1).toInt());
    return QStringLiteral("%1/%2.%3-%4%5")
        .arg(m_locations.workingFolder(), projectKey(projectPath))
        .arg(latest + 1, numberDigits, 10, QLatin1Char('0'))
        .arg(QUuid::createUuid().toString(QUuid::Id128), extension);
}

QString JournalShelf::mediaFolderOf(const QString &journalPath)
{
    return journalPath.chopped(extension.size()) + mediaExtension;
}

QString JournalShelf::journalOf(const QString &mediaFolder)
{
    return mediaFolder.chopped(mediaExtension.size()) + extension;
}

/// A journal that was written anew counts when it is whole and the other is not ahead of it.
void JournalShelf::mend(const QString &nextPath) const
{
    const QString path = nextPath.chopped(nextJournalPath(QString()).size());
    const Result<Journal> next = readJournal(nextPath);
    if (next && isRunning(next->header.writer))
        return;
    const Result<Journal> present = readJournal(path);
    if (present && isRunning(present->header.writer))
        return;
    const bool isUsed = next && !next->isTorn && !next->files.empty()
                        && (!present || present->pieces <= next->pieces);
    if (!isUsed || !renamePath(nextPath, path, Durability::Atomic))
        removeFile(nextPath, Durability::Atomic);
}

std::vector<FoundJournal> JournalShelf::left() const
{
    const QString folder = m_locations.workingFolder() + u'/';
    const QStringList anew = filesIn(folder, QStringLiteral("*") + nextJournalPath(extension));
    for (const QString &name : anew)
        mend(folder + name);
    std::vector<std::pair<QString, FoundJournal>> found; // by what orders them
    const QStringList names = filesIn(folder, QStringLiteral("*") + extension);
    for (const QString &name : names) {
        const std::optional<JournalHeader> header = readJournalHeader(folder + name);
        if (!header)
            keep(folder + name); // cut off before anything stood in it, or damaged
        else if (!isRunning(header->writer))
            found.push_back({name.section(u'.', -2), {folder + name, header->projectPath, {}}});
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<FoundJournal> journals;
    for (auto &[order, journal] : found)
        journals.push_back(std::move(journal));
    return journals;
}

bool JournalShelf::keep(const QString &path) const
{
    if (QFileInfo(path).size() == 0)
        return removeFile(path, Durability::Atomic);
    const QString target =
        m_keptFolder + u'/' + m_kept.newName(QFileInfo(path).fileName().chopped(extension.size()));
    if (!makePrivateFolder(m_keptFolder))
        return false;
    // The media first: a journal that is still offered has them, or is not offered any more.
    if (const QString media = mediaFolderOf(path);
        QFileInfo(media).isDir() && !renamePath(media, mediaFolderOf(target), Durability::Atomic))
        return false;
    if (renamePath(path, target, Durability::Atomic))
        return true;
    renamePath(mediaFolderOf(target), mediaFolderOf(path), Durability::Atomic);
    return false;
}

std::vector<FoundJournal> JournalShelf::kept() const
{
    std::vector<FoundJournal> journals;
    const QStringList names = m_kept.names();
    for (const QString &name : names) {
        const QString path = m_keptFolder + u'/' + name;
        if (const std::optional<JournalHeader> header = readJournalHeader(path))
            journals.push_back({path, header->projectPath, m_kept.timeIn(name)});
    }
    return journals;
}

void JournalShelf::thin() const
{
    for (const QString &name : m_kept.outworn(mostKept)) {
        const QString path = m_keptFolder + u'/' + name;
        QDir(mediaFolderOf(path)).removeRecursively();
        removeFile(path, Durability::Atomic);
    }
    removeLonelyMedia();
}

/// Media of a project whose program ended before anything else of it was written down: nothing can
/// refer to them. A program that has just begun may still do.
void JournalShelf::removeLonelyMedia() const
{
    const QDateTime now = m_locations.now();
    const QFileInfoList folders =
        QDir(m_locations.workingFolder())
            .entryInfoList({QStringLiteral("untitled-*") + mediaExtension},
                           QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders) {
        if (!QFile::exists(journalOf(folder.filePath()))
            && folder.lastModified().daysTo(now) > KeptFiles::days)
            QDir(folder.filePath()).removeRecursively();
    }
}

} // namespace vl::app
