#pragma once

#include "app/base/appendfile.h"
#include "app/base/result.h"
#include "app/storage/filestamp.h"
#include "app/storage/lock.h"
#include "app/storage/projectfiles.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace vl::app {

/// What a file of a project is to become.
struct FileChange
{
    QString path;                    ///< in the project
    std::optional<QByteArray> bytes; ///< nothing: the file goes

    bool operator==(const FileChange &) const = default;
};

/// Whose changes a journal holds.
struct JournalHeader
{
    QString projectPath; ///< empty for a project that was never saved
    LockHolder writer;
    quint32 earlierPieces = 0; ///< that were written before the journal was written anew
};

/// What a journal says of one file, after all its records.
struct JournalFile
{
    FileChange change;
    bool hasBase = false;  ///< it is known what stood there before
    QByteArray baseSha256; ///< of what stood there; empty where there was no file
    /// What stood there itself, to be merged with what others make of it; left out where that is
    /// much.
    std::optional<QByteArray> base;
    /// What the file was in between, so that a save that came through can be told from a change by
    /// others.
    std::vector<FileStamp> versions;

    /// Whether the file as it stands (nothing: there is none) is one that the journal goes on from.
    bool goesOnFrom(const std::optional<QByteArray> &present) const;
};

struct Journal
{
    JournalHeader header;
    std::map<QString, JournalFile> files; ///< by path
    bool isTorn = false; ///< its end is missing or wrong; what stands before it counts
    quint32 pieces = 0;  ///< since it was begun, those before it was written anew among them
};

/// Reads a journal, with distrust: a record that is not whole ends it. Nothing when the text does
/// not begin as a journal does.
std::optional<Journal> parseJournal(const QByteArray &bytes);
Result<Journal> readJournal(const QString &path);
/// Reads its head alone; nothing when the file is no journal.
std::optional<JournalHeader> readJournalHeader(const QString &path);
/// Where a journal is written anew before it takes the place of the old one.
QString nextJournalPath(const QString &path);

/// Keeps what is not saved yet in a file that is only ever added to: each piece holds what differs
/// from the piece before, its length and its checksum. Lives on one thread, any but that of the
/// interface.
class JournalWriter
{
public:
    /// Gives what stands on disk under a path of the project; nothing when there is no file.
    using ReadBase = std::function<std::optional<QByteArray>(const QString &path)>;

    JournalWriter(QString path, JournalHeader header, ReadBase readBase);

    /// Adds what changed, as one piece, and waits until it is on the disk: after a crash all of it
    /// is there, or none. Failing costs nothing: what stood in the journal stays, and the next
    /// piece holds what is missing too.
    Result<> write(const std::vector<FileChange> &changes);
    /// Removes the journal: everything in it is saved, or given up.
    void clear();

    const QString &path() const { return m_path; }

private:
    struct Base
    {
        QByteArray sha256; ///< empty where there was no file
        std::optional<QByteArray> bytes;
    };
    using Last = std::optional<QByteArray>;

    bool begin();
    bool makeFolder();
    bool append(AppendFile &file, const QByteArray &bytes);
    bool sync(AppendFile &file);
    bool add();
    bool compact();
    bool isTooLarge() const;
    void addBase(const QString &path);
    void noteWritten();
    QByteArray missingPiece() const;

    QString m_path;
    JournalHeader m_header;
    ReadBase m_readBase;
    AppendFile m_file;
    std::map<QString, Base> m_bases;         ///< what stood there before
    std::map<QString, Last> m_last;          ///< as the journal has it
    std::map<QString, FileChange> m_missing; ///< what is not in the journal yet, by path
    qint64 m_baseSize = 0;                   ///< bytes in m_bases
    qint64 m_lastSize = 0;                   ///< bytes in m_last
    int m_pieces = 0;                        ///< since it was written anew
    quint32 m_allPieces = 0;
    bool m_isDoubtful = false; ///< the disk did not take all of it
    QString m_error;           ///< why the last write failed
};

} // namespace vl::app
