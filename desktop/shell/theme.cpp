#include "desktop/shell/theme.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

#include <algorithm>
#include <cmath>

namespace vl::desktop {

namespace {

constexpr double legibleContrast = 4.6; ///< a little over what is asked of text
constexpr double offAmount = 0.6;       ///< of its colour that text keeps where it cannot be used
constexpr double highContrast = 7.1;
constexpr double visibleContrast = 3.1; ///< and of what is to be made out

constexpr Theme table[] = {
    {QT_TRANSLATE_NOOP("Themes", "Light"), false, 0xfff0f0f0, 0xff1a1a1a, 0xffffffff, 0xff1a1a1a,
     0xffe8e8e8, 0xff1a1a1a, 0xff2f6fdb, 0xffffffff, 0xff1a5fb4},
    {QT_TRANSLATE_NOOP("Themes", "Dark"), true, 0xff2b2b2b, 0xffe6e6e6, 0xff1e1e1e, 0xffe6e6e6,
     0xff3a3a3a, 0xffe6e6e6, 0xff4a86e8, 0xffffffff, 0xff8ab4f8},
    {QT_TRANSLATE_NOOP("Themes", "High Contrast"), true, 0xff000000, 0xffffffff, 0xff000000,
     0xffffffff, 0xff000000, 0xffffffff, 0xffffff00, 0xff000000, 0xff00ffff},
    {QT_TRANSLATE_NOOP("Themes", "Sepia"), false, 0xfff4ecd8, 0xff3b2f1e, 0xfffaf3e0, 0xff3b2f1e,
     0xffece0c8, 0xff3b2f1e, 0xffb5895f, 0xffffffff, 0xff7a4f1c},
};

} // namespace

std::span<const Theme> themes()
{
    return table;
}

const Theme &themeNamed(const QString &name)
{
    const auto *found = std::find_if(std::begin(table), std::end(table), [&](const Theme &theme) {
        return QLatin1String(theme.name) == name;
    });
    return found == std::end(table) ? table[0] : *found;
}

QColor mix(const QColor &over, const QColor &under, double amount)
{
    const auto channel = [amount](int a, int b) { return qRound(a * amount + b * (1 - amount)); };
    return {channel(over.red(), under.red()), channel(over.green(), under.green()),
            channel(over.blue(), under.blue())};
}

double textContrast(const QPalette &palette)
{
    const bool isHigh = palette.color(QPalette::Window) == palette.color(QPalette::Button);
    return isHigh ? highContrast : legibleContrast;
}

DifferenceColours differenceColours(const QPalette &palette)
{
    // Red and green of one lightness, laid over the ground so thinly that the text stands out.
    constexpr double amount = 0.28;
    constexpr double wordAmount = 0.5;
    const QColor base = palette.color(QPalette::Base);
    const QColor red(0xd0, 0x3a, 0x3a);
    const QColor green(0x1f, 0x96, 0x4a);
    return {mix(red, base, amount), mix(green, base, amount), mix(red, base, wordAmount),
            mix(green, base, wordAmount)};
}

QPalette paletteOf(const Theme &theme)
{
    QPalette palette;
    const QColor window(theme.window);
    const QColor text(theme.text);
    const QColor base(theme.base);
    const QColor button(theme.button);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, QColor(theme.windowText));
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, mix(window, base, 0.5));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, mix(text, base, quietAmount));
    palette.setColor(QPalette::Button, button);
    palette.setColor(QPalette::ButtonText, QColor(theme.buttonText));
    palette.setColor(QPalette::BrightText, QColor(theme.highlightedText));
    palette.setColor(QPalette::Highlight, QColor(theme.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(theme.highlightedText));
    palette.setColor(QPalette::Link, QColor(theme.link));
    palette.setColor(QPalette::LinkVisited, mix(QColor(theme.link), text, 0.7));
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    // The frames of the style; a dark window needs lighter edges than its ground, not darker ones.
    const QColor ink = theme.isDark ? QColor(Qt::white) : QColor(Qt::black);
    palette.setColor(QPalette::Light, mix(Qt::white, button, theme.isDark ? 0.12 : 0.6));
    palette.setColor(QPalette::Midlight, mix(Qt::white, button, theme.isDark ? 0.08 : 0.3));
    // Where all grounds are one colour, only lines part them.
    const double more = window == button ? 0.3 : 0.0;
    palette.setColor(QPalette::Mid, mix(ink, button, 0.25 + more));
    palette.setColor(QPalette::Dark, mix(ink, button, 0.4 + more));
    palette.setColor(QPalette::Shadow, mix(ink, button, 0.6 + more));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, mix(palette.color(role), window, offAmount));
    return palette;
}

double contrast(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double c) {
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
               + 0.0722 * linear(color.blueF());
    };
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QColor focusColour(const QPalette &palette)
{
    const QColor highlight = palette.color(QPalette::Highlight);
    const QColor ground = palette.color(QPalette::Window);
    QColor ring = highlight;
    for (double amount = 0; contrast(ring, ground) < visibleContrast && amount <= 1; amount += 0.02)
        ring = mix(palette.color(QPalette::WindowText), highlight, amount);
    return ring;
}

QPalette textPaletteOf(const Theme &theme)
{
    QPalette palette = paletteOf(theme);
    const QColor text(theme.highlightedText);
    const QColor away = text.lightnessF() > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
    QColor ground(theme.highlight);
    for (double amount = 0; contrast(text, ground) < legibleContrast; amount += 0.02)
        ground = mix(away, QColor(theme.highlight), amount);
    palette.setColor(QPalette::Highlight, ground);
    return palette;
}

void applyTheme(const Theme &theme)
{
    QApplication::setPalette(paletteOf(theme));
    const QPalette texts = textPaletteOf(theme);
    for (const char *shower : {"QAbstractItemView", "QMenu", "QMenuBar", "QLineEdit",
                               "QPlainTextEdit", "QTextEdit", "QLabel", "QProgressBar"})
        QApplication::setPalette(texts, shower);
}

} // namespace vl::desktop
