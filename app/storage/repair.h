#pragma once

#include "app/base/result.h"
#include "app/storage/projectfiles.h"
#include "app/storage/workingcopy.h"
#include "core/id.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <map>
#include <vector>

namespace vl::app {

/// A file that a repaired copy of its project does not hold.
struct LeftOutFile
{
    QString path; ///< in the project
    QString reason;
    QByteArray bytes = {}; ///< what is left of it, where anything can be read

    bool operator==(const LeftOutFile &) const = default;
};

/// A file that carries the id of another one and not the name that belongs to the id: what clients
/// that keep folders in step make when two machines changed one file. In an archive also an earlier
/// file of a name that comes again; its path here has a number.
struct ConflictingCopy
{
    QString path;     ///< in the project
    QString original; ///< the path of the file that stays
    QByteArray bytes;
    QByteArray originalBytes;
};

/// A project that does not load, looked at file by file. Reads only.
class ProjectRepair
{
public:
    /// Looks at a folder or a ".vellum" file. What is damaged in a file is taken from its working
    /// copy where that still has it. Fails when there is nothing to be read.
    static Result<ProjectRepair> examine(const QString &path, const StorageLocations &locations);

    const QString &path() const { return m_path; }
    /// What a repaired copy leaves out, in the order of the paths; conflicting copies are among
    /// them.
    const std::vector<LeftOutFile> &leftOut() const { return m_leftOut; }
    /// Files that were taken from the working copy.
    const QStringList &fromWorkingCopy() const { return m_fromWorkingCopy; }
    const std::vector<ConflictingCopy> &conflicts() const { return m_conflicts; }
    /// Whether all that is wrong are conflicting copies.
    bool hasConflictsOnly() const
    {
        return m_leftOut.size() == m_conflicts.size() && m_fromWorkingCopy.isEmpty();
    }
    /// Whether a copy would differ from what stands there.
    bool isOfUse() const
    {
        return !m_leftOut.empty() || !m_fromWorkingCopy.isEmpty() || m_isSalvaged;
    }

    /// Whether the list of what an archive held is lost, so that more may be missing than is known.
    bool isCutOff() const { return m_isSalvaged; }
    /// Whether a repaired copy has a file of this path, of those that the project is read from.
    bool holds(const QString &path) const;

    /// Writes a copy that loads, as a ".vellum" file or as a folder by the ending of its path,
    /// where nothing stands yet or an empty folder.
    Result<> writeCopy(const QString &path) const;

    /// Moves the conflicting copies out of the way, into the folder "conflicting copies" of the
    /// project, where nothing reads them. A ".vellum" file is backed up first.
    Result<> setConflictsAside(const StorageLocations &locations) const;

private:
    explicit ProjectRepair(QString path)
        : m_path(std::move(path))
    {
    }

    Result<> readFolder();
    Result<> readBundleFile(const StorageLocations &locations);
    Result<> rewriteBundle(const StorageLocations &locations) const;
    void fillFromWorkingCopy(const StorageLocations &locations, const QStringList &damaged,
                             bool isComplete);
    void takeRepeated(const ProjectFile &file, ProjectFiles &read);
    void judge(ProjectFiles files);
    void leaveOutDuplicates(std::map<core::ContentId, std::vector<std::size_t>> byId,
                            const ProjectFiles &files, bool areObjects,
                            std::vector<bool> &isLeftOut);

    QString m_path; ///< absolute
    bool m_isFolder = false;
    bool m_isSalvaged = false;              ///< the archive's directory is of no use
    std::map<QString, QString> m_repeated;  ///< the names of earlier files, by their paths here
    QByteArray m_sha256;                    ///< of the archive's bytes
    ProjectFiles m_good;                    ///< those read by the model that load
    ProjectFiles m_carried;                 ///< of an archive, the others
    std::vector<QByteArray> m_carriedPaths; ///< of a folder, the others
    std::vector<LeftOutFile> m_leftOut;
    std::vector<ConflictingCopy> m_conflicts;
    QStringList m_fromWorkingCopy;
};

} // namespace vl::app
