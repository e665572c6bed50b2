#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <memory>

namespace vl::app {

/// A file to which whole pieces are added at the end. What was written is with the system when the
/// call returns, so that it outlives the program however that ends.
class AppendFile
{
public:
    /// Only this user may read the file.
    explicit AppendFile(QString path);

    bool isOpen() const { return m_file != nullptr; }
    /// In bytes.
    qint64 size() const { return m_size; }
    /// Why the last call failed, in the system's words.
    const QString &error() const { return m_error; }

    /// Adds the bytes; the file is made by the first call, and anything that stood there goes. On
    /// failure none of them stays, as far as the system lets them be taken away.
    bool append(QByteArrayView bytes);
    /// Gives the file another name, over what stands there; adding goes on.
    bool renameTo(const QString &path);
    /// Waits until what was written is on the disk; false when that failed.
    bool sync();
    /// Closes the file and removes it; true when it is gone.
    bool remove();

private:
    QString m_path;
    std::unique_ptr<QFile> m_file; ///< while it is open
    qint64 m_size = 0;
    QString m_error;
};

} // namespace vl::app
