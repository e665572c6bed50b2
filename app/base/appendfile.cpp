#include "app/base/appendfile.h"

#include "app/base/files.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace vl::app {

AppendFile::AppendFile(QString path)
    : m_path(std::move(path))
{
}

bool AppendFile::append(QByteArrayView bytes)
{
    if (!m_file) {
        auto file = std::make_unique<QFile>(m_path);
        if (!file->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered,
                        QFile::ReadOwner | QFile::WriteOwner)) {
            m_error = file->errorString();
            return false;
        }
        m_file = std::move(file);
        m_size = 0;
    }
    if (m_file->write(bytes.data(), bytes.size()) == bytes.size()) {
        m_size += bytes.size();
        return true;
    }
    m_error = m_file->errorString();
    // What follows must not stand behind half a piece.
    if (!m_file->resize(m_size) || !m_file->seek(m_size))
        m_file.reset();
    return false;
}

bool AppendFile::renameTo(const QString &path)
{
    if (!renamePath(m_path, path, Durability::Atomic)) {
        m_error = qt_error_string();
        return false;
    }
    m_path = path;
    return true;
}

bool AppendFile::sync()
{
#if defined(Q_OS_LINUX)
    const bool isSynced = m_file && ::fdatasync(m_file->handle()) == 0;
#elif defined(Q_OS_UNIX)
    const bool isSynced = m_file && ::fsync(m_file->handle()) == 0;
#else
    const bool isSynced = m_file != nullptr;
#endif
    if (!isSynced)
        m_error = qt_error_string();
    return isSynced;
}

bool AppendFile::remove()
{
    m_file.reset();
    m_size = 0;
    return removeFile(m_path, Durability::Atomic);
}

} // namespace vl::app
