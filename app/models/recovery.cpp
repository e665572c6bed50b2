#include "app/models/recovery.h"

#include "app/base/files.h"
#include "app/base/sha256.h"
#include "app/models/workspace.h"
#include "app/storage/journalshelf.h"
#include "app/storage/jsonmerge.h"
#include "app/storage/projectpaths.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QLocale>

#include <algorithm>
#include <map>

namespace vl::app {

namespace {

constexpr int namedAtMost = 3;

using Bytes = std::optional<QByteArray>;

/// The file as this program would write it now; as it is when it cannot be read.
QByteArray inOwnForm(const QString &path, const QByteArray &bytes)
{
    ReadContents read = contentsOf({{path, bytes}});
    if (read.contents.isEmpty())
        return bytes;
    core::Project project;
    core::ReplaceContentsCommand(project, std::move(read.contents), QString()).redo();
    return presentFile(project, path).value_or(bytes);
}

/// Empty for a file that is not there.
QByteArray sumOf(const Bytes &bytes)
{
    return bytes ? Sha256::of(*bytes) : QByteArray();
}

/// What one journal, or several that go on from each other, make of a file.
struct Branch
{
    JournalFile file;
    /// Takes over what a later journal says; false when that began elsewhere and changed the same
    /// places.
    bool goOn(const JournalFile &later);
};

bool Branch::goOn(const JournalFile &later)
{
    const bool isNext = file.change.bytes == later.change.bytes
                        || (later.hasBase && later.baseSha256 == sumOf(file.change.bytes))
                        || (later.base && file.goesOnFrom(later.base)
                            && !(file.hasBase && file.baseSha256 == later.baseSha256));
    if (isNext) {
        const JournalFile earlier = std::exchange(file, later);
        file.hasBase = earlier.hasBase;
        file.base = earlier.base;
        file.baseSha256 = earlier.baseSha256;
        file.versions.insert(file.versions.begin(), earlier.versions.begin(),
                             earlier.versions.end());
        return true;
    }
    // Both began from the same: the earlier was not decided about while the later was written.
    if (!file.base || file.base != later.base || !file.change.bytes || !later.change.bytes)
        return false;
    const Bytes merged =
        mergeMembers(file.change.path, *file.base, *file.change.bytes, *later.change.bytes);
    if (!merged)
        return false;
    file.change.bytes = merged;
    file.versions.insert(file.versions.end(), later.versions.begin(), later.versions.end());
    return true;
}

/// The same object under an id of its own, with a name that tells it from the other.
FileChange besideOther(const QByteArray &bytes, const QString &name)
{
    QJsonObject json = QJsonDocument::fromJson(bytes).object();
    const auto id = core::ContentId::create();
    json[QLatin1String("id")] = id.toString();
    for (const QLatin1String key : {QLatin1String("title"), QLatin1String("name")}) {
        if (json.contains(key))
            json[key] = name;
    }
    return {objectPath(id), QJsonDocument(json).toJson()};
}

} // namespace

/// Holds what the journals say against the project.
class Recovery::Reader
{
public:
    explicit Reader(const OpenProject &project)
        : m_project(project)
    {
    }

    void add(const JournalFile &file, std::vector<RecoveredFile> &files, bool isOverruled) const
    {
        const QString &path = file.change.path;
        const Bytes present = presentFile(m_project.project(), path);
        if (present == file.change.bytes)
            return;
        RecoveredFile recovered;
        recovered.change = file.change;
        if (isOverruled || !isUntouched(file, present))
            bringTogether(file, present, recovered, isOverruled);
        if (recovered.change.bytes == present && recovered.change.path == path)
            return; // the project has all of it, and more
        recovered.name = readableName(path, file.change.bytes ? *file.change.bytes
                                                              : present.value_or(QByteArray()));
        recovered.versions =
            readableVersions(present, recovered.change.bytes, &m_project.project());
        files.push_back(std::move(recovered));
    }

private:
    /// Whether the project has what the journal goes on from.
    bool isUntouched(const JournalFile &file, const Bytes &present) const
    {
        if (file.goesOnFrom(present))
            return true;
        const Result<QByteArray> onDisk =
            readRegularFile(m_project.folder() + u'/' + file.change.path, QString());
        // The file may be written otherwise than this program would.
        return onDisk && present && file.goesOnFrom(*onDisk)
               && inOwnForm(file.change.path, *onDisk) == *present;
    }

    static void bringTogether(const JournalFile &file, const Bytes &present,
                              RecoveredFile &recovered, bool isOverruled)
    {
        using Way = RecoveredFile::Way;
        const QString &path = file.change.path;
        if (!present || !file.change.bytes) {
            // A text comes back where others deleted it; a deletion does not go over a newer text.
            recovered.way = present ? Way::Instead : Way::AsItWas;
            return;
        }
        const Bytes merged =
            file.base && !isOverruled
                ? mergeMembers(path, inOwnForm(path, *file.base), *file.change.bytes, *present)
                : std::nullopt;
        if (merged) {
            recovered.way = Way::Merged;
            recovered.change.bytes = merged;
        } else if (!objectIdOf(path).isNull()) {
            recovered.way = Way::Beside;
            recovered.change = besideOther(
                *file.change.bytes,
                Recovery::tr("%1 (unsaved work)").arg(readableName(path, *file.change.bytes)));
        } else {
            recovered.way = Way::Instead;
        }
    }

    const OpenProject &m_project;
};

Recovery Recovery::read(const QStringList &journals, const Workspace &workspace)
{
    std::map<QString, std::vector<Branch>> branches; // of each file, the earliest first
    for (const QString &path : journals) {
        const Result<Journal> journal = readJournal(path);
        if (!journal)
            continue;
        for (const auto &[name, file] : journal->files) {
            std::vector<Branch> &known = branches[name];
            if (known.empty() || !known.back().goOn(file))
                known.push_back({file});
        }
    }
    Recovery recovery;
    const Reader reader(workspace.current());
    for (const auto &[name, known] : branches) {
        for (const Branch &branch : known) {
            // Of two that were never brought together the later counts, the other stands beside it.
            const bool isOverruled = &branch != &known.back();
            if (!isOverruled || (branch.file.change.bytes && !objectIdOf(name).isNull()))
                reader.add(branch.file, recovery.m_files, isOverruled);
        }
    }
    return recovery;
}

QStringList Recovery::advisedPaths() const
{
    QStringList paths;
    for (const RecoveredFile &file : m_files) {
        if (file.way != RecoveredFile::Way::Instead)
            paths.append(file.change.path);
    }
    return paths;
}

QString Recovery::summary() const
{
    QStringList names;
    for (const RecoveredFile &file : m_files) {
        if (names.size() < namedAtMost && file.name != file.change.path)
            names.append(tr("“%1”").arg(file.name));
    }
    const QString all = QLocale().createSeparatedList(names);
    const int others = int(m_files.size()) - int(names.size());
    if (names.isEmpty())
        return tr("%n change(s)", nullptr, others);
    return others > 0 ? tr("%1 and %n other(s)", nullptr, others).arg(all) : all;
}

bool Recovery::restore(Workspace &workspace, const QStringList &paths) const
{
    std::vector<FileChange> changes;
    for (const RecoveredFile &file : m_files) {
        if (paths.contains(file.change.path))
            changes.push_back(file.change);
    }
    ReadContents read = contentsOf(changes);
    if (read.contents.isEmpty())
        return false;
    workspace.flush();
    workspace.push<core::ReplaceContentsCommand>(workspace.project(), std::move(read.contents),
                                                 tr("Restore unsaved work"));
    return true;
}

bool Recovery::comesBackAsItWas() const
{
    return std::all_of(m_files.begin(), m_files.end(), [](const RecoveredFile &file) {
        return file.way == RecoveredFile::Way::AsItWas;
    });
}

Result<> Recovery::restoreMedia(const QString &journal, const OpenProject &project)
{
    const QString failed = tr("Cannot write file: %1");
    const QString from = JournalShelf::mediaFolderOf(journal) + u'/';
    const QString to = project.folder() + u'/';
    Result<> result;
    QDirIterator files(from, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next().mid(from.size());
        const Result<QByteArray> bytes = readRegularFile(from + path, tr("Cannot read file: %1"));
        Result<> copied = bytes ? Result<>() : Result<>(bytes.asFailure());
        if (copied && !makePrivateFolder(QFileInfo(to + path).path()))
            copied = failure(withPath(failed, to + path));
        if (copied && !isThere(to + path))
            copied = writeFile(to + path, *bytes, {failed, failed});
        if (!copied)
            result = copied;
    }
    return result;
}

} // namespace vl::app
