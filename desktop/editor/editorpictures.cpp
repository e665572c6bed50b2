#include "desktop/editor/editorpictures.h"

#include "app/base/files.h"

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtGui/QImageReader>

#include <algorithm>

namespace vl::desktop {

namespace {

constexpr int tallestPicture = 480;
constexpr int widestKept = 1600;
constexpr qint64 largestFile = 64 * 1024 * 1024;
constexpr qint64 mostPixels = 100'000'000;
constexpr qint64 mostBytesKept = 96 * 1024 * 1024;
constexpr qsizetype mostEntries = 500;

struct Read
{
    QImage image;
    QSize size;
};

/// Reads a picture, scaled down while it is decoded. An empty size tells that it cannot be shown.
Read readPicture(const QString &file)
{
    const app::Result<QByteArray> bytes =
        app::readRegularFile(file, QString(), largestFile, app::Links::Refuse);
    if (!bytes)
        return {};
    QBuffer buffer;
    buffer.setData(*bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > mostPixels)
        return {};
    if (size.width() > widestKept || size.height() > widestKept)
        reader.setScaledSize(size.scaled(widestKept, widestKept, Qt::KeepAspectRatio));
    const QImage image = reader.read();
    if (image.isNull())
        return {};
    const bool isTurned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    return {image.convertToFormat(QImage::Format_ARGB32_Premultiplied),
            isTurned ? size.transposed() : size};
}

/// The file that a path of the text names; empty when it leads out of the project's assets.
QString fileOf(const QString &folder, const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    if (folder.isEmpty() || !clean.startsWith(QLatin1String("assets/")))
        return {};
    return folder + u'/' + clean;
}

} // namespace

EditorPictures::EditorPictures(QObject *parent)
    : QObject(parent)
{
    m_threads.setMaxThreadCount(1);
}

EditorPictures::~EditorPictures()
{
    m_threads.clear();
    m_threads.waitForDone();
}

void EditorPictures::setFolder(const QString &folder)
{
    if (folder == m_folder)
        return;
    m_folder = folder;
    m_threads.clear();
    m_entries.clear();
}

QSize EditorPictures::sizeOf(const QString &path, int width)
{
    Entry &entry = m_entries[path];
    request(path, entry);
    if (entry.size.width() <= width && entry.size.height() <= tallestPicture)
        return entry.size;
    return entry.size.scaled(width, tallestPicture, Qt::KeepAspectRatio);
}

QImage EditorPictures::picture(const QString &path)
{
    Entry &entry = m_entries[path];
    entry.lastUse = ++m_uses;
    if (entry.image.isNull() && !entry.size.isEmpty())
        entry.isRequested = false; // was there once and made room for others
    request(path, entry);
    return entry.image;
}

void EditorPictures::request(const QString &path, Entry &entry)
{
    if (entry.isRequested)
        return;
    entry.isRequested = true;
    const QString file = fileOf(m_folder, path);
    if (file.isEmpty())
        return;
    const QString folder = m_folder;
    m_threads.start([this, folder, path, file] {
        const Read read = readPicture(file);
        QMetaObject::invokeMethod(
            this, [this, folder, path, read] { take(folder, path, read.image, read.size); });
    });
}

void EditorPictures::take(const QString &folder, const QString &path, const QImage &image,
                          const QSize &size)
{
    if (folder != m_folder)
        return;
    Entry &entry = m_entries[path];
    entry.image = image;
    entry.size = size;
    entry.lastUse = ++m_uses;
    dropOldest();
    Q_EMIT arrived();
}

void EditorPictures::dropOldest()
{
    qint64 bytes = 0;
    for (const Entry &entry : std::as_const(m_entries))
        bytes += entry.image.sizeInBytes();
    while (bytes > mostBytesKept || m_entries.size() > mostEntries) {
        const auto oldest =
            std::min_element(m_entries.begin(), m_entries.end(), [](const auto &a, const auto &b) {
                return std::pair(a.image.isNull(), a.lastUse)
                       < std::pair(b.image.isNull(), b.lastUse);
            });
        bytes -= oldest->image.sizeInBytes();
        if (m_entries.size() > mostEntries)
            m_entries.erase(oldest);
        else if (oldest->image.isNull())
            return;
        else
            oldest->image = QImage();
    }
}

} // namespace vl::desktop
