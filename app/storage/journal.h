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
};

/// What a journal says of one file, after all its records.
struct JournalFile
{
    FileChange change;
    bool hasBase = false;  ///< it is known what stood there before
    QByteArray baseSha256; ///< of what stood there; empty where there was no file
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
};

/// Reads a journal, with distrust: a record that is not whole ends it. Nothing when the text does
/// not begin as a journal does.
std::optional<Journal> parseJournal(const QByteArray &bytes);
Result<Journal> readJournal(const QString &path);

/// Keeps what is not saved yet in a file that is only ever added to: each piece holds what differs
/// from the piece before, its length and its checksum. Lives on one thread, any but that of the
/// interface.
class JournalWriter
{
public:
    /// Gives what stands on disk under a path of the project; nothing when there is no file.
    using ReadBase = std::function<std::optional<QByteArray>(const QString &path)>;

    JournalWriter(QString path, JournalHeader header, ReadBase readBase);

    /// Adds what changed, as one piece: after a crash all of it is there, or none. Failing costs
    /// nothing: what stood in the journal stays, and the next piece holds what is missing too.
    bool write(const std::vector<FileChange> &changes);
    /// Removes the journal: everything in it is saved, or given up.
    void clear();
    bool sync() { return m_file.sync(); }

    const QString &path() const { return m_path; }

private:
    bool begin();
    bool compact();
    QByteArray pieceOf(const std::map<QString, FileChange> &changes);

    QString m_path;
    JournalHeader m_header;
    ReadBase m_readBase;
    AppendFile m_file;
    std::map<QString, QByteArray> m_bases;               ///< sums of what stood there before
    std::map<QString, std::optional<QByteArray>> m_last; ///< as the journal has it
    std::map<QString, FileChange> m_missing;             ///< what could not be written yet, by path
    qint64 m_lastSize = 0;                               ///< bytes in m_last
    int m_pieces = 0;
};

} // namespace vl::app
