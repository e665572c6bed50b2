#pragma once

#include <QtCore/QHash>
#include <QtGui/QFont>
#include <QtGui/QPalette>
#include <QtGui/QTextCharFormat>

namespace vl::app {
class Settings;
}

namespace vl::desktop {

/// How the editor shows a text: its type, its measure, and the format of each Markdown style.
class EditorStyle
{
public:
    /// The look by the user's settings, in the colours of a palette.
    EditorStyle(const app::Settings &settings, QPalette palette);

    const QFont &font() const { return m_font; }
    /// The height of a line, in parts of the font's own.
    double lineSpacing() const { return m_lineSpacing; }
    /// The width of the column, in pixels.
    int columnWidth() const { return m_columnWidth; }
    const QPalette &palette() const { return m_palette; }
    /// The format of a combination of app::MarkdownStyle bits; `level` is that of a heading.
    QTextCharFormat format(quint32 style, int level) const;

    QColor markColor() const;
    QColor quoteBarColor() const;
    QColor codeGround() const;
    QColor hitGround() const { return m_hitGround; }

private:
    QColor findHitGround() const;

    QFont m_font;
    double m_lineSpacing;
    int m_columnWidth = 0;
    QPalette m_palette;
    QColor m_hitGround;
    mutable QHash<quint32, QTextCharFormat> m_formats;
};

/// The first reading serif that is installed, else the system's serif.
QString readingFontFamily();

} // namespace vl::desktop
