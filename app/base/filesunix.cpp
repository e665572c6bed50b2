// What files.h promises, on systems with the calls of Unix.

#include "app/base/atomicfilehandle.h"
#include "app/base/files.h"
#include "app/base/unfinishedname.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace vl::app {

// The toolkit's save-file waits for the disk at every commit, which costs 14 s and more for the
// 10 000 files of a large project, and takes a failed wait for success. So the few system calls
// that a safe replacement needs are made here, each one checked.

namespace {

/// Small pieces are gathered to this many bytes before they go to the system.
constexpr qsizetype gatherSize = qsizetype(256) * 1024;
/// Up to here each file of a batch is synced by itself; beyond, one sync of the file system is
/// cheaper.
constexpr int singleSyncs = 8;
/// Some systems refuse to move 2 GiB or more in one call.
constexpr qint64 largestTransfer = qint64(1) << 30;

int openFile(const QByteArray &path, int flags, mode_t mode = 0)
{
    int handle = -1;
    do {
        handle = ::open(path.constData(), flags | O_CLOEXEC, mode);
    } while (handle < 0 && errno == EINTR);
    return handle;
}

/// True also where the file system knows no sync for such a file: then there is nothing to wait
/// for.
bool syncHandle(int handle, bool dataOnly)
{
    int result = 0;
    do {
#if defined(Q_OS_MACOS)
        Q_UNUSED(dataOnly);
        result = ::fcntl(handle, F_FULLFSYNC);
        if (result != 0)
            result = ::fsync(handle);
#else
        result = dataOnly ? ::fdatasync(handle) : ::fsync(handle);
#endif
    } while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool writeAll(int handle, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written =
            ::write(handle, bytes.data(), size_t(qMin<qint64>(bytes.size(), largestTransfer)));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

/// Opens a regular file for reading. Without blocking, since opening a pipe would wait for a
/// writer.
int openRegular(const QString &path, Links links, struct stat *status)
{
    const int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | (links == Links::Refuse ? O_NOFOLLOW : 0);
    const int handle = openFile(QFile::encodeName(path), flags);
    if (handle < 0)
        return -1;
    if (::fstat(handle, status) != 0 || !S_ISREG(status->st_mode)) {
        ::close(handle);
        return -1;
    }
    return handle;
}

/// Reads up to `size` bytes; fewer at the end of the file, -1 on failure.
qint64 readUpTo(int handle, char *data, qint64 size)
{
    qint64 done = 0;
    while (done < size) {
        const ssize_t count =
            ::read(handle, data + done, size_t(qMin(size - done, largestTransfer)));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        done += count;
    }
    return done;
}

QByteArray folderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0)
        return QByteArrayLiteral(".");
    return slash == 0 ? QByteArrayLiteral("/") : path.left(slash);
}

/// Where a chain of symbolic links ends, whether a file stands there or not; empty for a circle.
QByteArray followLinks(QByteArray path)
{
    for (int step = 0; step < 40; ++step) {
        struct stat status = {};
        if (::lstat(path.constData(), &status) != 0 || !S_ISLNK(status.st_mode))
            return path;
        QByteArray target(4096, Qt::Uninitialized);
        const ssize_t length = ::readlink(path.constData(), target.data(), size_t(target.size()));
        if (length <= 0 || length >= target.size())
            return {};
        target.truncate(length);
        path = target.startsWith('/') ? target : folderOf(path) + '/' + target;
    }
    return {};
}

bool syncFolderAt(const QByteArray &path)
{
    const int handle = openFile(path, O_RDONLY | O_DIRECTORY);
    if (handle < 0)
        return false;
    const bool done = syncHandle(handle, false);
    ::close(handle);
    return done;
}

} // namespace

Result<QByteArray> readRegularFile(const QString &path, const QString &message, qint64 maxBytes,
                                   Links links)
{
    struct stat status = {};
    const int handle = openRegular(path, links, &status);
    if (handle < 0)
        return failure(withPath(message, path));
    QByteArray bytes;
    bool whole = status.st_size <= maxBytes;
    if (whole) {
        // One byte more than the file has shows at once whether it ends where it said.
        bytes.resize(status.st_size + 1);
        qint64 count = readUpTo(handle, bytes.data(), bytes.size());
        while (count == bytes.size()
               && count <= maxBytes) { // it grew meanwhile, or never tells its size
            bytes.resize(qMin(bytes.size() * 2, maxBytes + 1));
            const qint64 more = readUpTo(handle, bytes.data() + count, bytes.size() - count);
            count = more < 0 ? -1 : count + more;
        }
        whole = count >= 0 && count <= maxBytes;
        bytes.truncate(qMax<qint64>(count, 0));
    }
    ::close(handle);
    if (!whole)
        return failure(withPath(message, path));
    return bytes;
}

bool fileHolds(const QString &path, QByteArrayView bytes)
{
    struct stat status = {};
    const int handle = openRegular(path, Links::Follow, &status);
    if (handle < 0)
        return false;
    bool same = status.st_size == bytes.size();
    char block[64 * 1024];
    while (same) {
        const qint64 count = readUpTo(handle, block, qint64(sizeof block));
        if (count == 0)
            break;
        same = count > 0 && count <= bytes.size()
               && std::memcmp(block, bytes.data(), size_t(count)) == 0;
        if (same)
            bytes = bytes.sliced(count);
    }
    ::close(handle);
    return same && bytes.isEmpty();
}

bool syncFolder(const QString &path)
{
    return syncFolderAt(QFile::encodeName(path));
}

bool makeFolder(const QString &path, Durability durability)
{
    const QFileInfo info(path);
    if (info.exists())
        return info.isDir();
    const QString parent = info.absolutePath();
    if (parent == info.absoluteFilePath() || !makeFolder(parent, durability))
        return false;
    if (::mkdir(QFile::encodeName(info.absoluteFilePath()).constData(), 0777) != 0)
        return errno == EEXIST && QFileInfo(path).isDir();
    return durability == Durability::Atomic || syncFolder(parent);
}

bool removeFile(const QString &path, Durability durability)
{
    const QByteArray name = QFile::encodeName(path);
    if (::unlink(name.constData()) != 0)
        return errno == ENOENT;
    return durability == Durability::Atomic || syncFolderAt(folderOf(name));
}

bool renamePath(const QString &from, const QString &to, Durability durability)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::rename(source.constData(), target.constData()) != 0)
        return false;
    if (durability == Durability::Atomic)
        return true;
    return syncFolderAt(folderOf(target))
           && (folderOf(source) == folderOf(target) || syncFolderAt(folderOf(source)));
}

Result<> createFile(const QString &path, QByteArrayView bytes, const WriteMessages &messages)
{
    const QByteArray name = QFile::encodeName(path);
    const int handle = openFile(name, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (handle < 0)
        return failure(withPath(messages.cannotOpen, path));
    bool written = writeAll(handle, bytes);
#ifndef Q_OS_LINUX
    written = written && syncHandle(handle, true); // no way to do it for all of them later
#endif
    if ((::close(handle) != 0 && errno != EINTR) || !written) {
        ::unlink(name.constData());
        return failure(withPath(messages.cannotWrite, path));
    }
    return {};
}

bool syncFileSystem(const QString &folder)
{
#ifdef Q_OS_LINUX
    const int handle = openFile(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY);
    if (handle < 0)
        return false;
    const bool done = ::syncfs(handle) == 0;
    ::close(handle);
    return done;
#else
    return syncFolder(folder);
#endif
}

FileIdentity FileIdentity::of(const QString &path)
{
    FileIdentity identity;
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return identity;
    const auto nanoseconds = [](const timespec &time) {
        return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
    };
    identity.device = quint64(status.st_dev);
    identity.node = quint64(status.st_ino);
    identity.size = status.st_size;
#ifdef Q_OS_MACOS
    identity.modified = nanoseconds(status.st_mtimespec);
    identity.changed = nanoseconds(status.st_ctimespec);
#else
    identity.modified = nanoseconds(status.st_mtim);
    identity.changed = nanoseconds(status.st_ctim);
#endif
    return identity;
}

quint64 entryNode(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return 0;
    return quint64(status.st_ino);
}

bool areSameFile(const QString &a, const QString &b)
{
    const FileIdentity first = FileIdentity::of(a);
    const FileIdentity second = FileIdentity::of(b);
    return first.isFile() && second.isFile() && first.device == second.device
           && first.node == second.node;
}

Result<> AtomicFile::open()
{
    Handle &handle = *m_handle;
    handle.target = followLinks(QFile::encodeName(m_path));
    if (handle.target.isEmpty())
        return openFailure();
    struct stat old = {};
    const bool replaces = ::stat(handle.target.constData(), &old) == 0;
    // A rename would go over a file that was made read-only on purpose.
    if (replaces && (!S_ISREG(old.st_mode) || ::access(handle.target.constData(), W_OK) != 0))
        return openFailure();

    const QByteArray folder = folderOf(handle.target);
    const auto name = QByteArrayView(handle.target).sliced(handle.target.lastIndexOf('/') + 1);
    for (int attempt = 0; attempt < 16 && handle.file < 0; ++attempt) {
        handle.temporary = folder + '/' + newUnfinishedName(name);
        handle.file = openFile(handle.temporary, O_WRONLY | O_CREAT | O_EXCL, 0666);
        if (handle.file < 0 && errno != EEXIST)
            break;
    }
    if (handle.file < 0) {
        handle.temporary.clear(); // never remove what was not made here
        return openFailure();
    }
    if (replaces) {
        // The owner can rarely be kept; when it cannot, the file belongs to whoever saved it.
        if ((old.st_uid != ::geteuid() || old.st_gid != ::getegid())
            && ::fchown(handle.file, old.st_uid, old.st_gid) != 0)
            errno = 0;
        // Some mounted shares know no modes: then there is nothing to keep.
        if (::fchmod(handle.file, old.st_mode & 07777) != 0 && errno != ENOTSUP && errno != ENOSYS
            && errno != EPERM) {
            discard();
            return openFailure();
        }
    }
    return {};
}

Result<> AtomicFile::write(QByteArrayView bytes)
{
    Handle &handle = *m_handle;
    if (handle.file < 0)
        return writeFailure();
    if (handle.gathered.size() + bytes.size() <= gatherSize) {
        handle.gathered.append(bytes);
        return {};
    }
    if (!writeAll(handle.file, handle.gathered))
        return writeFailure();
    handle.gathered.clear();
    if (bytes.size() < gatherSize / 2) {
        handle.gathered.reserve(gatherSize);
        handle.gathered.append(bytes);
    } else if (!writeAll(handle.file, bytes)) {
        return writeFailure();
    }
    return {};
}

Result<> AtomicFile::finishWriting(bool sync)
{
    Handle &handle = *m_handle;
    if (handle.file < 0 || !writeAll(handle.file, handle.gathered)
        || (sync && !syncHandle(handle.file, true)))
        return writeFailure();
    handle.gathered = {};
    const int file = std::exchange(handle.file, -1);
    if (::close(file) != 0 && errno != EINTR) // network file systems tell a failed write only here
        return writeFailure();
    return {};
}

Result<> AtomicFile::moveIntoPlace()
{
    Handle &handle = *m_handle;
    if (::rename(handle.temporary.constData(), handle.target.constData()) != 0)
        return writeFailure();
    handle.temporary.clear();
    m_isInPlace = true;
    return {};
}

Result<> AtomicFile::commit(Durability durability)
{
    const bool isFinished = m_handle->file < 0 && !m_handle->temporary.isEmpty();
    if (!isFinished) {
        if (Result<> written = finishWriting(durability == Durability::Synced); !written)
            return written;
    }
    if (Result<> moved = moveIntoPlace(); !moved)
        return moved;
    if (durability == Durability::Synced && !syncFolderAt(folderOf(m_handle->target)))
        return writeFailure();
    return {};
}

void AtomicFile::discard()
{
    if (m_handle->file >= 0)
        ::close(std::exchange(m_handle->file, -1));
    if (!m_handle->temporary.isEmpty())
        ::unlink(m_handle->temporary.constData());
    m_handle->temporary.clear();
}

FileBatch::~FileBatch()
{
    m_files.clear();
    if (m_fileSystem >= 0)
        ::close(m_fileSystem);
}

Result<> FileBatch::addChanged(const QString &path, QByteArrayView bytes)
{
    auto file = std::make_unique<AtomicFile>(path, m_messages);
    if (Result<> opened = file->open(); !opened)
        return opened;
    if (Result<> written = file->write(bytes); !written)
        return written;
    bool syncNow = m_durability == Durability::Synced;
#ifdef Q_OS_LINUX
    if (syncNow && m_files.size() >= singleSyncs) {
        // Opened before the files are written: it reports every write-back that fails from here on.
        if (m_fileSystem < 0)
            m_fileSystem = openFile(folderOf(file->m_handle->target), O_RDONLY | O_DIRECTORY);
        // A link may have led to a file system of its own.
        syncNow = m_fileSystem < 0 || file->m_handle->target != QFile::encodeName(path);
    }
#endif
    if (Result<> finished = file->finishWriting(syncNow); !finished)
        return finished;
    m_files.push_back(std::move(file));
    return {};
}

Result<> FileBatch::syncAll()
{
#ifdef Q_OS_LINUX
    if (m_fileSystem >= 0 && ::syncfs(m_fileSystem) != 0)
        return m_files.back()->writeFailure();
#endif
    return {};
}

Result<> FileBatch::commit()
{
    if (Result<> synced = syncAll(); !synced)
        return synced;
    std::set<QByteArray> folders;
    for (const auto &file : m_files) {
        if (Result<> moved = file->moveIntoPlace(); !moved)
            return moved;
        if (m_durability == Durability::Synced)
            folders.insert(folderOf(file->m_handle->target));
    }
    for (const QByteArray &folder : folders) {
        if (!syncFolderAt(folder))
            return failure(withPath(m_messages.cannotWrite, QFile::decodeName(folder)));
    }
    return {};
}

} // namespace vl::app
