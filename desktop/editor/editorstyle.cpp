#include "desktop/editor/editorstyle.h"

#include "app/base/settingskeys.h"
#include "app/text/markdownstyle.h"
#include "desktop/shell/theme.h"

#include <QtCore/QStringList>
#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>
#include <QtGui/QFontMetricsF>

#include <algorithm>

namespace vl::desktop {

namespace {

constexpr int widestLine = 80;
constexpr int narrowestLine = 30;
constexpr double headingScales[] = {1.6, 1.4, 1.22, 1.1, 1.0, 1.0};

double number(const app::Settings &settings, const app::SettingKey &key, double least, double most)
{
    bool isNumber = false;
    const double value = settings.text(key).toDouble(&isNumber);
    return isNumber ? qBound(least, value, most) : QByteArray(key.defaultValue).toDouble();
}

/// A font that is installed: where the system names none of its own, the toolkit gives an alias,
/// which it then does not find.
QString fixedFontFamily()
{
    static const QString family = [] {
        QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        fixed.setStyleHint(QFont::Monospace);
        QString found = QFontInfo(fixed).family();
        if (QFontDatabase::isFixedPitch(found))
            return found;
        const QStringList installed = QFontDatabase::families();
        const auto fixedPitch =
            std::find_if(installed.begin(), installed.end(),
                         [](const QString &name) { return QFontDatabase::isFixedPitch(name); });
        return fixedPitch == installed.end() ? found : *fixedPitch;
    }();
    return family;
}

/// The width of a character as running text has it.
double characterWidth(const QFont &font)
{
    const QString sample = QStringLiteral("The lamps were lit on the quay, and every bell "
                                          "answered the tide from the water upward.");
    return QFontMetricsF(font).horizontalAdvance(sample) / double(sample.size());
}

} // namespace

QString readingFontFamily()
{
    static const QString family = [] {
        const QStringList installed = QFontDatabase::families();
        for (const char *name :
             {"Source Serif 4", "Source Serif Pro", "Libertinus Serif", "EB Garamond", "Charis SIL",
              "Charter", "Georgia", "Noto Serif", "Liberation Serif", "DejaVu Serif"})
            if (installed.contains(QLatin1String(name)))
                return QString::fromLatin1(name);
        QFont serif;
        serif.setStyleHint(QFont::Serif);
        serif.setFamily(QStringLiteral("serif"));
        return QFontInfo(serif).family();
    }();
    return family;
}

EditorStyle::EditorStyle(const app::Settings &settings, QPalette palette)
    : m_palette(std::move(palette))
{
    const QString family = settings.text(app::settings::editorFontFamily);
    m_font.setFamily(family.isEmpty() ? readingFontFamily() : family);
    m_font.setStyleHint(QFont::Serif);
    m_font.setPointSizeF(number(settings, app::settings::editorFontSize, 6, 72));
    m_font.setKerning(true);
    m_lineSpacing = number(settings, app::settings::editorLineSpacing, 100, 300) / 100;
    const double characters =
        number(settings, app::settings::editorLineWidth, narrowestLine, widestLine);
    m_columnWidth = qCeil(characters * characterWidth(m_font));
    m_hitGround = findHitGround();
}

QTextCharFormat EditorStyle::format(quint32 style, int level) const
{
    const quint32 key = style | quint32(level) << 24;
    const auto known = m_formats.constFind(key);
    if (known != m_formats.constEnd())
        return *known;

    QTextCharFormat format;
    if (style & app::HeadingText) {
        format.setFontWeight(QFont::Bold);
        format.setFontPointSize(m_font.pointSizeF() * headingScales[qBound(1, level, 6) - 1]);
    }
    if (style & (app::EmphasisText | app::QuoteText))
        format.setFontItalic((style & app::EmphasisText) == 0 || (style & app::QuoteText) == 0);
    if (style & app::StrongText)
        format.setFontWeight(QFont::Bold);
    if (style & app::StrikeText)
        format.setFontStrikeOut(true);
    if (style & app::CodeText) {
        format.setFontFamilies({fixedFontFamily(), m_font.family()});
        format.setFontPointSize(m_font.pointSizeF() * 0.88);
        format.setBackground(codeGround());
    }
    if (style & app::LinkText) {
        format.setForeground(m_palette.color(QPalette::Link));
        format.setFontUnderline(true);
    }
    if (style & app::FootnoteText)
        format.setForeground(m_palette.color(QPalette::Link));
    if (style & app::MarkText) {
        format.setForeground(markColor());
        format.setFontUnderline(false);
        format.setFontStrikeOut(false);
    }
    m_formats.insert(key, format);
    return format;
}

QColor EditorStyle::markColor() const
{
    return mix(m_palette.color(QPalette::Text), m_palette.color(QPalette::Base), quietAmount);
}

QColor EditorStyle::quoteBarColor() const
{
    return mix(m_palette.color(QPalette::Text), m_palette.color(QPalette::Base), 0.35);
}

QColor EditorStyle::codeGround() const
{
    return mix(m_palette.color(QPalette::Text), m_palette.color(QPalette::Base), 0.07);
}

QColor EditorStyle::findHitGround() const
{
    const QColor base = m_palette.color(QPalette::Base);
    const double least = textContrast(m_palette);
    QColor ground = base;
    // As strong as the faintest text on it allows.
    for (int percent = 25; percent > 4; --percent) {
        ground = mix(m_palette.color(QPalette::Highlight), base, percent / 100.0);
        if (contrast(markColor(), ground) >= least
            && contrast(m_palette.color(QPalette::Link), ground) >= least)
            break;
    }
    return ground;
}

} // namespace vl::desktop
