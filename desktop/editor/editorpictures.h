#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QSize>
#include <QtCore/QThreadPool>
#include <QtGui/QImage>

namespace vl::desktop {

/// The pictures that a text shows, read from the project's "assets" folder by another thread and
/// kept, scaled down, up to a bounded amount.
class EditorPictures final : public QObject
{
    Q_OBJECT

public:
    explicit EditorPictures(QObject *parent = nullptr);
    ~EditorPictures() override;

    /// The folder under which the paths of the texts stand; forgets what was read from another.
    void setFolder(const QString &folder);
    /// The size to show a picture at, in pixels, not wider than `width`; empty while it is being
    /// read, and for ever when it cannot be.
    QSize sizeOf(const QString &path, int width);
    /// The picture, null until it is there; asks for it when it is not.
    QImage picture(const QString &path);

Q_SIGNALS:
    /// A picture is there now.
    void arrived();

private:
    struct Entry
    {
        QImage image;
        QSize size; ///< of the file; empty when it cannot be read
        qint64 lastUse = 0;
        bool isRequested = false;
    };

    void request(const QString &path, Entry &entry);
    void take(const QString &folder, const QString &path, const QImage &image, const QSize &size);
    void dropOldest();

    QString m_folder;
    QHash<QString, Entry> m_entries;
    qint64 m_uses = 0;
    QThreadPool m_threads;
};

} // namespace vl::desktop
