#pragma once

#include "app/base/result.h"
#include "app/storage/reconcile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <map>
#include <vector>

namespace vl::app {

/// What became of one file of three project folders.
struct FolderMergeFile
{
    QString path; ///< relative to the folders, with "/" as separator
    ReconcileState state = ReconcileState::Unchanged;

    bool operator==(const FolderMergeFile &) const = default;
};

/// The reconcile of three project folders. Of each folder it takes the regular files that are not
/// hidden; links are left out, and so is what lies in folders such as ".git".
/// Files under "assets/", and files that are not UTF-8 text in one of the folders, are never
/// merged: they are compared byte by byte, and in conflict when both sides changed them
/// differently.
class FolderMerge
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::FolderMerge)

public:
    /// Reads and compares the folders. Fails when one does not exist or a file cannot be read.
    static Result<FolderMerge> compare(const QString &base, const QString &local,
                                       const QString &remote);

    /// One entry, in path order, for each path that exists locally or remotely.
    const std::vector<FolderMergeFile> &files() const { return m_files; }
    bool hasConflicts() const;
    /// Whether the merged folder could be written; the message is that of Reconcile::apply().
    Result<> check() const;
    /// Writes the merged folder, which must be empty or not exist yet. Nothing is put in place
    /// before everything is written beside it.
    Result<> write(const QString &folder) const;

private:
    using Paths = std::map<QString, QString>; ///< full path by relative path

    Result<> compareFiles(const Paths &base, const Paths &local, const Paths &remote);
    Result<> compareBinaryFile(const QString &path, const QString *base, const QString *local,
                               const QString *remote);

    std::vector<FolderMergeFile> m_files;
    std::vector<ReconcileEntry> m_texts;
    Paths m_binaries; ///< the files to be copied: their source by their path
};

} // namespace vl::app
