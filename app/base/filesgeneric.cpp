// What files.h promises, with what the toolkit offers everywhere.

#include "app/base/atomicfilehandle.h"
#include "app/base/files.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace vl::app {

Result<QByteArray> readRegularFile(const QString &path, const QString &message, qint64 maxBytes,
                                   Links links)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || (links == Links::Refuse && info.isSymLink()) || info.size() > maxBytes
        || !file.open(QIODevice::ReadOnly))
        return failure(withPath(message, path));
    QByteArray bytes = file.read(maxBytes + 1);
    if (file.error() != QFileDevice::NoError || bytes.size() > maxBytes)
        return failure(withPath(message, path));
    return bytes;
}

bool fileHolds(const QString &path, QByteArrayView bytes)
{
    const QFileInfo info(path);
    if (!info.isFile() || info.size() != bytes.size())
        return false;
    const Result<QByteArray> there = readRegularFile(path, QString(), bytes.size());
    return there && *there == bytes;
}

bool syncFolder(const QString &)
{
    return true; // the system keeps folder entries in its journal
}

bool makeFolder(const QString &path, Durability)
{
    return QDir().mkpath(path);
}

bool removeFile(const QString &path, Durability)
{
    return QFile::remove(path) || !QFile::exists(path);
}

bool renamePath(const QString &from, const QString &to, Durability)
{
    if (QFileInfo(to).isDir())
        QDir().rmdir(to);
    return QDir().rename(from, to);
}

Result<> createFile(const QString &path, QByteArrayView bytes, const WriteMessages &messages)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return failure(withPath(messages.cannotOpen, path));
    if (file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush()) {
        file.remove();
        return failure(withPath(messages.cannotWrite, path));
    }
    return {};
}

bool syncFileSystem(const QString &)
{
    return true;
}

FileIdentity FileIdentity::of(const QString &path)
{
    FileIdentity identity;
    const QFileInfo info(path);
    if (!info.isFile())
        return identity;
    identity.size = info.size();
    identity.modified = info.lastModified().toMSecsSinceEpoch() * 1'000'000;
    identity.changed = info.birthTime().toMSecsSinceEpoch() * 1'000'000;
    return identity;
}

quint64 entryNode(const QString & /*path*/)
{
    return 0;
}

bool areSameFile(const QString &a, const QString &b)
{
    const QString first = QFileInfo(a).canonicalFilePath();
    return !first.isEmpty() && first == QFileInfo(b).canonicalFilePath();
}

Result<> AtomicFile::open()
{
    m_handle->file = std::make_unique<QSaveFile>(m_path);
    return m_handle->file->open(QIODevice::WriteOnly) ? Result<>() : openFailure();
}

Result<> AtomicFile::write(QByteArrayView bytes)
{
    const bool whole =
        m_handle->file && m_handle->file->write(bytes.data(), bytes.size()) == bytes.size();
    return whole ? Result<>() : writeFailure();
}

Result<> AtomicFile::finishWriting(bool)
{
    // What the buffer still holds must be out before commit(), which overlooks a failure there.
    return m_handle->file && m_handle->file->flush() ? Result<>() : writeFailure();
}

Result<> AtomicFile::moveIntoPlace()
{
    m_isInPlace = m_handle->file->commit();
    return m_isInPlace ? Result<>() : writeFailure();
}

Result<> AtomicFile::commit(Durability)
{
    if (Result<> written = finishWriting(true); !written)
        return written;
    return moveIntoPlace();
}

void AtomicFile::discard()
{
    m_handle->file.reset(); // removes its temporary unless committed
}

FileBatch::~FileBatch() = default;

Result<> FileBatch::addChanged(const QString &path, QByteArrayView bytes)
{
    auto file = std::make_unique<AtomicFile>(path, m_messages);
    if (Result<> opened = file->open(); !opened)
        return opened;
    if (Result<> written = file->write(bytes); !written)
        return written;
    if (Result<> finished = file->finishWriting(true); !finished)
        return finished;
    m_files.push_back(std::move(file));
    return {};
}

Result<> FileBatch::commit()
{
    for (const auto &file : m_files) {
        if (Result<> moved = file->moveIntoPlace(); !moved)
            return moved;
    }
    return {};
}

} // namespace vl::app
