#pragma once

#include "app/base/result.h"
#include "app/storage/backups.h"
#include "app/storage/bundle.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QString>

#include <functional>
#include <optional>

namespace vl::app {

class Settings;

/// Where working copies and backups are kept, and the clock that dates the backups.
struct StorageLocations
{
    QString root; ///< a private folder of this user
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTimeUtc(); };
    /// Milliseconds since some moment, which only ever grow, whatever is done to the clock.
    std::function<qint64()> uptime = [] { return QDeadlineTimer::current().deadline(); };
    /// Where the user wants the backups that are made without being asked; empty for below `root`.
    QString chosenAutoBackups = {};

    /// The system's folder for this program's data, and its clock.
    static StorageLocations standard();
    /// The same with what the user chose instead.
    static StorageLocations of(const Settings &settings);

    QString standardAutoBackups() const { return root + QStringLiteral("/autobackups"); }
    QString autoBackups() const
    {
        return chosenAutoBackups.isEmpty() ? standardAutoBackups() : chosenAutoBackups;
    }
    QString workingFolder() const { return root + QStringLiteral("/working"); }
    QString backupFolder() const { return root + QStringLiteral("/backups"); }
    Backups backups() const { return Backups(backupFolder(), now); }
};

/// What stands in a working copy's folder, compared with its bundle.
enum class WorkingCopyState
{
    Absent,     ///< nothing
    Same,       ///< exactly the bundle's files
    Modified,   ///< a project, but another one
    Unreadable, ///< something that cannot be packed
};

/// The unpacked copy of a bundle, and the marker beside it that tells which bundle it was last
/// equal to. The marker is only there while the copy is whole: it is removed before the copy is
/// touched and written after everything else.
class WorkingCopy
{
public:
    /// The copy that belongs to the bundle. Paths that differ only in the case of letters share a
    /// copy's name; where they are different files, the one that the marker does not name has a
    /// copy under a longer name.
    static WorkingCopy of(const QString &bundlePath, const StorageLocations &locations);
    /// The copy in which the bundle was opened.
    static WorkingCopy at(const QString &bundlePath, const QString &folder);

    const QString &folder() const { return m_folder; }
    const QString &baseName() const { return m_baseName; }

    WorkingCopyState stateAgainst(const Archive &archive) const;

    /// Whether the marker says that the copy was made from, or saved as, a bundle with this sum.
    bool markerMatches(const QByteArray &sha256) const;
    /// Removes the marker; false when it is still there, or could come back.
    bool removeMarker() const;
    /// Writes the marker, unless it tells that already.
    Result<> writeMarker(const QByteArray &sha256) const;

    /// Removes what an interrupted opening left beside the copy; all of it was made from a bundle,
    /// or is in a backup.
    void removeLeftovers() const;
    /// Removes the copy, of which there is a backup.
    Result<> clear() const;
    /// Fills the absent copy from the archive: it appears whole, and on the disk.
    Result<> fill(const Archive &archive) const;
    /// Brings the copy's files to what has just been written as the bundle.
    Result<> update(const BundleSource &source) const;

    /// "Could not prepare the project's working folder: %1"
    Failure prepareFailure() const;

private:
    struct Marker
    {
        QString bundlePath;
        QByteArray sha256;
    };

    WorkingCopy(QString bundlePath, QString folder, QString baseName);

    QString markerPath() const { return m_folder + QStringLiteral(".json"); }
    std::optional<Marker> readMarker() const;

    QString m_bundlePath; ///< absolute and clean
    QString m_folder;
    QString m_baseName;
};

/// The path of a bundle as its working copy and its marker know it: absolute and clean.
QString absoluteBundlePath(const QString &path);

/// What a working copy is called after: the bundle's base name with unsafe characters taken out.
QString bundleBaseName(const QString &path);

} // namespace vl::app
