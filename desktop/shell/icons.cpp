#include "desktop/shell/icons.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtGui/QGuiApplication>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmapCache>
#include <QtSvg/QSvgRenderer>

namespace vl::desktop {

namespace {

const QLatin1String folder(":/icons/");
const QLatin1String suffix(".svg");
const QLatin1String applicationName("application/ivorel");
constexpr int smallSide = 20; // pixels, below which the strokes are drawn thicker

QString fileOf(const QString &name)
{
    return folder + name + suffix;
}

QColor colourOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

/// Draws one drawing of the resources in whatever size is asked for, which keeps it sharp on every
/// screen, and keeps the pixels in the shared cache.
class DrawnIcon final : public QIconEngine
{
public:
    /// With `tinted`, every "currentColor" of the drawing becomes the colour of the palette.
    DrawnIcon(QString name, bool tinted)
        : m_name(std::move(name))
        , m_tinted(tinted)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatio() : 1.0;
        const QSize pixels = (QSizeF(rect.size()) * ratio).toSize();
        painter->drawPixmap(rect, pixmap(pixels, mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QColor colour = m_tinted ? colourOf(mode) : QColor();
        const QString key = QStringLiteral("icon %1 %2x%3 %4")
                                .arg(m_name)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(colour.rgba());
        QPixmap pixels;
        if (QPixmapCache::find(key, &pixels))
            return pixels;
        pixels = draw(size, colour);
        QPixmapCache::insert(key, pixels);
        return pixels;
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        if (m_tinted)
            return {};
        QList<QSize> sizes;
        for (const int side : {16, 32, 48, 128})
            sizes.append(QSize(side, side));
        return sizes;
    }

    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override { return size; }
    QString key() const override { return QStringLiteral("vl::desktop::DrawnIcon"); }
    bool isNull() override { return false; }
    QIconEngine *clone() const override { return new DrawnIcon(*this); }

private:
    QPixmap draw(const QSize &size, const QColor &colour) const
    {
        QPixmap pixels(size);
        pixels.fill(Qt::transparent);
        QFile file(fileOf(m_name));
        if (size.isEmpty() || !file.open(QIODevice::ReadOnly))
            return pixels;
        QByteArray drawing = file.readAll();
        const int side = qMin(size.width(), size.height());
        if (m_tinted) {
            drawing.replace("currentColor", colour.name().toLatin1());
            if (side < smallSide)
                drawing.replace(R"(stroke-width="1.75")", R"(stroke-width="2")");
        }
        QSvgRenderer renderer(drawing);
        QPainter painter(&pixels);
        QRect square(0, 0, side, side);
        square.moveCenter(pixels.rect().center());
        renderer.render(&painter, square);
        return pixels;
    }

    QString m_name;
    bool m_tinted;
};

} // namespace

QIcon icon(const QString &name)
{
    if (!QFile::exists(fileOf(name))) {
        qWarning("There is no icon named %s.", qUtf8Printable(name));
        return {};
    }
    return QIcon(new DrawnIcon(name, true));
}

QStringList iconNames()
{
    QStringList names;
    const QStringList files = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString &file : files)
        names.append(file.chopped(suffix.size()));
    return names;
}

QIcon applicationIcon()
{
    return QIcon(new DrawnIcon(applicationName, false));
}

} // namespace vl::desktop
