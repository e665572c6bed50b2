#pragma once

#include "app/base/result.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace vl::app {

/// How far a written file has come when the call returns.
enum class Durability
{
    Atomic, ///< old or new as a whole for every reader, whenever the program ends; a power cut may
            ///< lose it
    Synced, ///< on the disk as well, and so is its entry in the folder
};

/// What a failed write tells the user; "%1" stands for the path in native separators.
struct WriteMessages
{
    QString cannotOpen;  ///< nothing could be begun at that path
    QString cannotWrite; ///< begun, but not all of it reached its place
};

/// The largest file that is read into memory unless a caller allows another size, in bytes.
inline constexpr qint64 defaultReadLimit = qint64(1) << 30;

/// What to do with a symbolic link where a file is to be read.
enum class Links
{
    Follow, ///< read the regular file at its end
    Refuse, ///< fail
};

/// Reads a regular file of at most `maxBytes` bytes; never waits on a pipe or a device. Any failure
/// gives `message`, where "%1" stands for the path.
Result<QByteArray> readRegularFile(const QString &path, const QString &message,
                                   qint64 maxBytes = defaultReadLimit, Links links = Links::Follow);

/// Whether a regular file stands there with exactly these bytes.
bool fileHolds(const QString &path, QByteArrayView bytes);

/// The message with the path, in native separators, in place of "%1"; an empty one stays empty.
QString withPath(const QString &message, const QString &path);

/// Whether anything stands there, be it only a link that leads nowhere.
bool isThere(const QString &path);

/// Makes a folder and its parents; true when it exists afterwards.
bool makeFolder(const QString &path, Durability durability = Durability::Synced);

/// Makes a folder that only this user may look into, and its parents; one that exists is left as it
/// is. True when it exists afterwards.
bool makePrivateFolder(const QString &path);

/// Forces a folder's entries (new, renamed and removed files) to the disk; false when that failed.
bool syncFolder(const QString &path);

/// Removes a file and, when synced, makes that last; true when it is gone afterwards.
bool removeFile(const QString &path, Durability durability = Durability::Synced);

/// Renames a file or folder within one file system, over a file or an empty folder; false on
/// failure.
bool renamePath(const QString &from, const QString &to, Durability durability = Durability::Synced);

/// Whether the file name is that of an unfinished write, left over when the program was killed.
bool isUnfinishedFileName(const QString &fileName);

/// Removes what unfinished writes of this one file left beside it. Only for a file that no other
/// program is writing.
void removeUnfinishedFilesOf(const QString &path);

/// Removes what unfinished writes left directly in the folder. Only for a folder that no other
/// program is writing to.
void removeUnfinishedFiles(const QString &folder);

/// Writes a file where none stands, directly under its name: for folders that nobody reads before
/// all of them is there. Removes the file again when it could not be written whole.
Result<> createFile(const QString &path, QByteArrayView bytes, const WriteMessages &messages);

/// Forces everything written to the file system of this folder to the disk; false when that failed.
bool syncFileSystem(const QString &folder);

/// What the system tells of a file that stays the same as long as nobody replaces or writes it.
struct FileIdentity
{
    quint64 device = 0;
    quint64 node = 0;
    qint64 size = -1;    ///< in bytes; -1 when there is no regular file
    qint64 modified = 0; ///< in nanoseconds, like `changed`
    qint64 changed = 0;

    static FileIdentity of(const QString &path);
    bool isFile() const { return size >= 0; }
    bool operator==(const FileIdentity &) const = default;
};

/// The number that the file system gave to what stands at this path, be it a file, a folder or a
/// socket; 0 when nothing stands there or the system has no such numbers.
quint64 entryNode(const QString &path);

/// Whether the two paths lead to one and the same existing file.
bool areSameFile(const QString &a, const QString &b);

/// One file being replaced as a whole: bytes go to a temporary beside it, which takes its name on
/// commit. Unless committed the temporary is removed and the old file stays as it was. A symbolic
/// link is followed and kept; the permissions of the replaced file are kept too.
class AtomicFile
{
public:
    AtomicFile(QString path, WriteMessages messages);
    ~AtomicFile();
    Q_DISABLE_COPY_MOVE(AtomicFile)

    /// Makes the temporary. Fails when the path names anything but a writable regular file or
    /// nothing.
    Result<> open();
    /// Appends bytes.
    Result<> write(QByteArrayView bytes);
    /// Brings all of it to the disk ahead of commit(), which then only has to rename; nothing can
    /// be written after it.
    Result<> sync() { return finishWriting(true); }
    /// Puts the written bytes in the file's place. After a failure of the very last step, the sync
    /// of the folder, the new file stands already; at any other failure the old one does.
    Result<> commit(Durability durability = Durability::Synced);
    /// Whether the new file stands under its name.
    bool isInPlace() const { return m_isInPlace; }

private:
    friend class FileBatch;
    struct Handle;

    Result<> finishWriting(bool sync);
    Result<> moveIntoPlace();
    Result<> openFailure() const;
    Result<> writeFailure();
    void discard();

    QString m_path;
    WriteMessages m_messages;
    std::unique_ptr<Handle> m_handle;
    bool m_isInPlace = false;
};

/// Replaces one file as a whole.
Result<> writeFile(const QString &path, QByteArrayView bytes, const WriteMessages &messages,
                   Durability durability = Durability::Synced);

/// Many files replaced together: all are written beside their targets first, so that a full disk
/// changes none of them, and the disk is waited for once rather than once a file. Files that hold
/// the right bytes already are left alone.
class FileBatch
{
public:
    FileBatch(WriteMessages messages, Durability durability);
    ~FileBatch();
    Q_DISABLE_COPY_MOVE(FileBatch)

    /// Writes the bytes beside the file unless it holds them already. Its folder must exist.
    Result<> add(const QString &path, QByteArrayView bytes);
    /// The same for a file that is known to be absent or different: does not look at it first.
    Result<> addChanged(const QString &path, QByteArrayView bytes);
    /// Puts every file in place, in the order in which they were added. When this fails, some may
    /// stand already, each as a whole; the message names the first that does not.
    Result<> commit();
    /// The number of files that differed, hence are or were to be written.
    int count() const { return int(m_files.size()); }

private:
    Result<> syncAll();

    WriteMessages m_messages;
    Durability m_durability;
    std::vector<std::unique_ptr<AtomicFile>> m_files;
    int m_fileSystem = -1; ///< an open folder whose file system is synced as a whole; -1 for none
};

} // namespace vl::app
