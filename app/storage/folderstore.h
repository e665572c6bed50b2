#pragma once

#include "app/base/files.h"
#include "app/base/result.h"
#include "app/storage/filestamp.h"
#include "app/storage/outsidescan.h"
#include "app/storage/projectfiles.h"
#include "core/changeset.h"
#include "core/project.h"

#include <QtCore/QHash>

#include <map>
#include <memory>
#include <span>
#include <vector>

namespace vl::app {

struct LoadedFile;

/// What a save of a folder is to do, as plain values: chosen on the interface thread, carried out
/// on any thread.
struct FolderSave
{
    /// A file, and what may stand there without anybody else having changed it.
    struct Target
    {
        QString path; ///< relative to the folder
        QByteArray bytes;
        std::vector<FileStamp> known;
    };

    QString folder;
    std::vector<Target> writes;   ///< in the order of writing
    std::vector<Target> removals; ///< without bytes
    std::vector<std::pair<QString, QString>>
        renames; ///< from, to: files whose name is not their id
};

/// What to do with a file that others have changed since it was last read or written here.
enum class OutsideChanges
{
    Refuse, ///< save nothing at all
    Overwrite,
};

/// The files of the save that others have changed, added or, where the save removes them, edited;
/// their paths relative to the folder. A file that others removed is not among them: writing it
/// again loses nothing; but "project.json" is, since without it the whole folder is gone.
std::vector<QString> outsideChanges(const FolderSave &save);

/// Carries the save out: all files are written beside their targets first, then put in place in
/// order; files that are right already are left alone; removals come last. On failure each file is
/// the old or the new one, as a whole, and the message names the first that could not be done.
Result<> commitFolderSave(const FolderSave &save, OutsideChanges outside,
                          Durability durability = Durability::Synced);

/// Knows which files of a project folder are the program's own and what it last read from or wrote
/// to each, so that a save writes what changed, removes the files of what is gone, and notices what
/// others changed. Lives on one thread.
class FolderStore
{
public:
    explicit FolderStore(const QString &folder);

    const QString &folder() const { return m_folder; }

    /// Reads the project in the folder; from then on its files are known.
    Result<std::unique_ptr<core::Project>> load();
    /// The same from files in memory, which are those that stand in the folder.
    Result<std::unique_ptr<core::Project>> load(std::span<const ProjectFile> files);

    /// A save of the whole project. It removes the known files of objects and categories that are
    /// gone, and those whose name is not their id; never one that is not known.
    FolderSave prepare(const core::Project &project) const;
    /// A save of what was touched since the last one; of everything when the folder is gone.
    FolderSave prepare(const core::Project &project, const core::ChangeSet &changes) const;

    /// Notes that a save succeeded: its files are known as it wrote them.
    void saved(const FolderSave &save);
    /// Notes that a save failed: each of its files may be the old or the new one. The caller keeps
    /// what was touched, and prepares it again.
    void failed(const FolderSave &save);

    /// What the known files held when they were last read or written.
    const BaseFiles &base() const { return m_base; }
    /// What failed saves may have written or, with null bytes, removed.
    const BaseFiles &maybeOwn() const { return m_maybeOwn; }

    /// Notes what someone else left in the file of an object, a category or, with a null id, the
    /// records, once the user's side has taken it over.
    void adopt(const QString &path, const core::ContentId &id, const QByteArray &bytes);
    /// Notes that someone else removed a file, once the user's side has followed.
    void forget(const QString &path);

private:
    using Strays = std::multimap<core::ContentId, QString>;

    void learn(std::span<const LoadedFile> files);
    void addStray(const core::ContentId &id, const QString &path);
    void dropStrays(const QString &path);
    std::vector<FileStamp> known(const QString &path) const { return m_known.value(path); }
    void addWrite(FolderSave &save, const QString &path, const QByteArray &bytes,
                  const Strays &strays, const core::ContentId &id) const;
    void addRemovals(FolderSave &save, const QString &path, const Strays &strays,
                     const core::ContentId &id) const;
    void addRemoval(FolderSave &save, const QString &path) const;

    QString m_folder;                               ///< absolute
    QHash<QString, std::vector<FileStamp>> m_known; ///< by relative path
    BaseFiles m_base;
    BaseFiles m_maybeOwn;
    Strays m_strayObjects;    ///< read from a file with another name than their id; its path
    Strays m_strayCategories; ///< the same
};

} // namespace vl::app
