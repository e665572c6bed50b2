#pragma once

#include "app/base/files.h"
#include "app/storage/bundle.h"
#include "app/storage/filestamp.h"
#include "app/storage/projectfiles.h"
#include "core/id.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace vl::app {

/// What the files of a project held when they were last read or written here, by their paths
/// relative to the project.
using BaseFiles = QHash<QString, QByteArray>;

/// A file of the project that somebody else changed, added or removed.
struct OutsideFile
{
    QString path;
    core::ContentId id; ///< of the object or category in it, or that was in it; null for records
    core::ContentId baseId; ///< of what was in it before; null when there was nothing
    bool isCopy = false; ///< it carries an id that another file has: a sync client's second version
    std::optional<QByteArray> base;
    std::optional<QByteArray> remote; ///< nothing when it is gone

    bool operator==(const OutsideFile &) const = default;
};

/// Tells a media file from another without reading all of it.
struct MediaStamp
{
    FileIdentity identity; ///< while it stays the same the file is not looked into
    FileStamp sample;      ///< of its size and some of its bytes
};
using MediaStamps = QHash<QString, MediaStamp>;

/// What others did to a project's files, as one look at the disk found it.
struct OutsideState
{
    enum class Place
    {
        There,
        Missing,    ///< there is no such folder or file
        Unreadable, ///< it cannot be read; maybe it is being written
    };

    Place place = Place::There;
    QString message;                ///< why it cannot be read
    std::vector<OutsideFile> files; ///< those that can be taken over, in path order
    QStringList unsettled;          ///< changed files that hold no whole object, maybe not yet
    qsizetype knownFiles = 0;       ///< how many the project has here
    qsizetype goneFiles = 0;        ///< how many of them are gone

    QStringList media;      ///< media files that were added, replaced or removed, in order
    QStringList addedMedia; ///< those of them that were not there before
    std::shared_ptr<const MediaStamps> mediaStamps; ///< of the media now; null when not looked at

    // Of a bundle alone:
    std::optional<KnownBundle> bundle;               ///< as it stands now
    std::shared_ptr<const ProjectFiles> bundleFiles; ///< when its bytes are others: all its files

    bool isUnchanged() const
    {
        return place == Place::There && files.empty() && unsettled.isEmpty();
    }
    /// Whether no file of the project is left where there were some: more likely an unmounted disk
    /// or an emptied sync folder than somebody's wish.
    bool hasVanished() const
    {
        return place == Place::Missing || (knownFiles > 0 && goneFiles == knownFiles);
    }
};

/// Changes when a file of the project was touched: tells that a closer look is due, and nothing
/// else. `path` is a project folder or a bundle.
quint64 diskSignature(const QString &path);

/// A look at the disk that was prepared: only values, no part of the model.
class PendingScan
{
public:
    virtual ~PendingScan();
    PendingScan(const PendingScan &) = delete;
    PendingScan &operator=(const PendingScan &) = delete;

    /// Reads the files and compares their contents with the base. May run on any thread.
    virtual OutsideState run() = 0;

protected:
    PendingScan() = default;
};

/// What a look at a project folder compares it with.
struct FolderScan
{
    QString folder;
    BaseFiles base;
    /// What saves that failed may have written, or, with null bytes, removed all the same.
    BaseFiles maybeOwn;
    /// Of the media when they were last looked at; null when nobody did.
    std::shared_ptr<const MediaStamps> media;
};

/// Compares a project folder with the base. Every file of the project is read: times and sizes
/// prove nothing. Of the media it looks into those whose identity is not that of their stamp.
OutsideState scanFolder(const FolderScan &scan);

/// Compares a bundle with what it held, and its media with those in the working copy.
OutsideState scanBundle(const QString &bundlePath, const KnownBundle &known,
                        const ProjectFiles &base, const QString &workingFolder);

/// Puts the media of the bundle into the working copy, if its bytes still have this sum. Media that
/// the bundle lacks stay. Afterwards the copy has no marker: it is ahead of no bundle.
Result<> takeOverMedia(const QString &bundlePath, const QByteArray &sha256,
                       const QString &workingFolder);

} // namespace vl::app
