#pragma once

#include "app/storage/keptfiles.h"
#include "app/storage/workingcopy.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <vector>

namespace vl::app {

/// A journal whose program is gone, or one that the user decided about.
struct FoundJournal
{
    QString path;
    QString projectPath; ///< empty for a project that was never saved
    QDateTime time;      ///< UTC, when it was decided about; invalid when it was not, or is unknown

    bool operator==(const FoundJournal &) const = default;
};

/// The journals that the programs of this user wrote: those at work, those that a crash left, and,
/// for a while, those that the user decided about. Works on files alone.
class JournalShelf
{
public:
    /// How many journals are kept at most after they were decided about.
    static constexpr int mostKept = 200;

    explicit JournalShelf(StorageLocations locations);

    /// A path under which no journal stands, for the project at that path. In the order of the
    /// names the later one comes last.
    QString newPath(const QString &projectPath) const;
    /// The media files of a project that was never saved stand in a folder beside its journal.
    static QString mediaFolderOf(const QString &journalPath);
    static QString journalOf(const QString &mediaFolder);

    /// What a crash left, the earliest first. Where it came while a journal was written anew, the
    /// later of the two that is whole stands afterwards.
    std::vector<FoundJournal> left() const;
    /// Puts a journal, and the media beside it, where they are kept for a while; false when it
    /// stays where it was.
    bool keep(const QString &path) const;
    /// What the user decided about, the latest first.
    std::vector<FoundJournal> kept() const;
    /// Removes what was kept long enough, or is too much.
    void thin() const;

private:
    void mend(const QString &nextPath) const;
    void removeLonelyMedia() const;

    StorageLocations m_locations;
    QString m_keptFolder;
    KeptFiles m_kept;
};

} // namespace vl::app
