#include "desktop/shell/icons.h"
#include "desktop/shell/theme.h"

#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

using namespace vl::desktop;

namespace {

constexpr int side = 24;

QImage drawn(const QString &name, int pixels = side, QIcon::Mode mode = QIcon::Normal)
{
    return icon(name).pixmap(QSize(pixels, pixels), 1.0, mode).toImage();
}

/// The colour where the drawing covers a pixel fully; nothing when it covers none.
QColor ink(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() == 255)
                return image.pixelColor(x, y);
    return {};
}

/// How much the most covered pixel is covered, 0 to 255.
int darkest(const QImage &image)
{
    int alpha = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            alpha = qMax(alpha, image.pixelColor(x, y).alpha());
    return alpha;
}

} // namespace

class TestIcons final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { applyTheme(themeNamed(QStringLiteral("Light"))); }
    void everyDrawingIsItsOwn();
    void followsThePalette();
    void isSharpAtTwiceTheSize();
    void unknownName();
};

void TestIcons::everyDrawingIsItsOwn()
{
    QHash<QByteArray, QString> seen;
    const QStringList names = iconNames();
    QVERIFY(names.contains(QStringLiteral("open")));
    for (const QString &name : names) {
        const QImage image = drawn(name);
        QVERIFY2(darkest(image) > 128, qPrintable(name));
        const QByteArray bytes(reinterpret_cast<const char *>(image.constBits()),
                               image.sizeInBytes());
        QVERIFY2(!seen.contains(bytes), qPrintable(name + u' ' + seen.value(bytes)));
        seen.insert(bytes, name);
    }
    QVERIFY(ink(applicationIcon().pixmap(16, 16).toImage()).isValid());
}

void TestIcons::followsThePalette()
{
    const QIcon kept = icon(QStringLiteral("more"));
    for (const Theme &theme : themes()) {
        applyTheme(theme);
        const QPalette palette = QApplication::palette();
        const auto inkOf = [&](QIcon::Mode mode) {
            return ink(kept.pixmap(QSize(side, side), 1.0, mode).toImage());
        };
        QCOMPARE(inkOf(QIcon::Normal), QColor(theme.buttonText));
        QCOMPARE(inkOf(QIcon::Active), QColor(theme.buttonText));
        QCOMPARE(inkOf(QIcon::Selected), QColor(theme.highlightedText));
        QCOMPARE(inkOf(QIcon::Disabled), palette.color(QPalette::Disabled, QPalette::ButtonText));
    }
}

void TestIcons::isSharpAtTwiceTheSize()
{
    const QPixmap doubled = icon(QStringLiteral("add")).pixmap(QSize(side, side), 2.0);
    QCOMPARE(doubled.size(), QSize(2 * side, 2 * side));
    QCOMPARE(doubled.devicePixelRatio(), 2.0);
    const QImage enlarged = drawn(QStringLiteral("add")).scaled(doubled.size());
    QVERIFY(doubled.toImage() != enlarged);
}

void TestIcons::unknownName()
{
    QTest::ignoreMessage(QtWarningMsg, "There is no icon named nothing.");
    QVERIFY(icon(QStringLiteral("nothing")).isNull());
}

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
