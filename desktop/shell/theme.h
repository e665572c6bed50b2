#pragma once

#include <QtCore/QLatin1String>
#include <QtGui/QColor>
#include <QtGui/QPalette>

#include <span>

namespace vl::desktop {

/// The colours of the whole window.
struct Theme
{
    const char *name;
    bool isDark;
    QRgb window;
    QRgb windowText;
    QRgb base;
    QRgb text;
    QRgb button;
    QRgb buttonText;
    QRgb highlight;
    QRgb highlightedText;
    QRgb link;
};

std::span<const Theme> themes();
/// The theme of this name, "Light" when there is none.
const Theme &themeNamed(const QString &name);
QPalette paletteOf(const Theme &theme);
/// The same for whatever shows selected text: the highlight is so strong that the text reads on it.
QPalette textPaletteOf(const Theme &theme);
/// Shows the whole program in the theme.
void applyTheme(const Theme &theme);

/// How much of the text's colour secondary text has over its ground; it keeps a contrast of 4.5:1
/// in every theme.
inline constexpr double quietAmount = 0.72;

/// How well text of the one colour reads on the other: from 1 to 21, as the accessibility
/// guidelines reckon it.
double contrast(const QColor &a, const QColor &b);

/// What text needs against its ground in these colours: 7 where they are made for contrast,
/// else 4.5; a little more, for rounding.
double textContrast(const QPalette &palette);

/// The colour of the ring round what has the focus: the highlight, made strong enough to be seen.
QColor focusColour(const QPalette &palette);

/// A colour between the two: all of `over` at 1, all of `under` at 0.
QColor mix(const QColor &over, const QColor &under, double amount);

/// The grounds of lines that went and lines that came, as far from the text as is legible.
struct DifferenceColours
{
    QColor removed;
    QColor added;
    QColor removedWord; ///< stronger, for what differs within such a line
    QColor addedWord;
};
DifferenceColours differenceColours(const QPalette &palette);

} // namespace vl::desktop
