#include "desktop/editor/pagelayout.h"

#include "app/text/markdownstyle.h"

#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtGui/QFontMetricsF>

#include <algorithm>

namespace vl::desktop {

namespace {

constexpr qreal pixelsPerMillimetre = 96 / 25.4;
constexpr int textPixels = 16; // 12 points
constexpr qreal paragraphIndent = 28;
constexpr qreal quoteIndent = 40;
constexpr qsizetype longestParagraph = 20'000; // beyond, it goes on as one of its own
constexpr qreal headingScales[] = {1.6, 1.4, 1.2, 1.1, 1.0, 1.0};

QTextCharFormat printedFormat(quint32 style)
{
    QTextCharFormat format;
    if ((style & app::HeadingText) || (style & app::StrongText))
        format.setFontWeight(QFont::Bold);
    if (style & app::EmphasisText)
        format.setFontItalic(true);
    if (style & app::StrikeText)
        format.setFontStrikeOut(true);
    if (style & app::CodeText)
        format.setFontFamilies({QStringLiteral("monospace")});
    if (style & app::FootnoteText)
        format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    return format;
}

/// Puts lines together to paragraphs.
class Printer
{
public:
    explicit Printer(const PageSetup &setup)
        : m_line(QFontMetricsF(setup.font).lineSpacing() * setup.lineSpacing)
    {
    }

    void add(QStringView line, qsizetype source)
    {
        using Kind = app::MarkdownLineKind;
        const app::MarkdownLine read = app::readMarkdownLine(line, m_state);
        m_state = read.after;
        switch (read.kind) {
        case Kind::Empty:
        case Kind::FootnoteDefinition:
        case Kind::Fence:
            m_isOpen = false;
            return;
        default:
            break;
        }
        const bool joins = m_isOpen && read.kind == m_kind
                           && (read.kind == Kind::Paragraph || read.kind == Kind::Quote)
                           && m_paragraphs.back().text.size() < longestParagraph;
        if (!joins)
            begin(read, source);
        else
            m_paragraphs.back().text += u' ';
        append(line, read);
        m_kind = read.kind;
        m_isOpen = true;
    }
    std::vector<PrintedParagraph> take() { return std::move(m_paragraphs); }

private:
    void begin(const app::MarkdownLine &read, qsizetype source)
    {
        using Kind = app::MarkdownLineKind;
        PrintedParagraph paragraph;
        paragraph.source = source;
        switch (read.kind) {
        case Kind::Heading:
            paragraph.scale = headingScales[read.level - 1];
            paragraph.spaceBefore = m_line;
            paragraph.keepsWithNext = true;
            break;
        case Kind::SceneBreak:
            paragraph.alignment = Qt::AlignHCenter;
            break;
        case Kind::Quote:
            paragraph.indent = quoteIndent;
            break;
        case Kind::ListItem:
            paragraph.indent = paragraphIndent;
            paragraph.firstIndent = -paragraphIndent / 2;
            break;
        case Kind::Paragraph:
            // The first one of a scene begins at the edge.
            if (!m_paragraphs.empty() && m_kind == Kind::Paragraph)
                paragraph.firstIndent = paragraphIndent;
            break;
        default:
            break;
        }
        m_paragraphs.push_back(std::move(paragraph));
    }
    void append(QStringView line, const app::MarkdownLine &read)
    {
        PrintedParagraph &paragraph = m_paragraphs.back();
        if (read.kind == app::MarkdownLineKind::ListItem)
            paragraph.text += QStringLiteral("• ");
        const bool keepsMarks = read.kind == app::MarkdownLineKind::SceneBreak;
        qsizetype done = 0;
        for (const app::MarkdownRange &range : read.ranges) {
            paragraph.text += line.sliced(done, range.start - done);
            done = range.start + range.length;
            if ((range.style & app::MarkText) && !keepsMarks)
                continue;
            const int start = int(paragraph.text.size());
            const QStringView piece = line.sliced(range.start, range.length);
            if (range.style & app::FootnoteText)
                paragraph.text += noteNumber(piece);
            else
                paragraph.text += piece;
            paragraph.formats.append(
                {start, int(paragraph.text.size()) - start, printedFormat(range.style)});
        }
        paragraph.text += line.sliced(done);
    }

    /// Notes are numbered in the order in which they are first referred to.
    QString noteNumber(QStringView reference)
    {
        const QString id = reference.toString();
        if (!m_notes.contains(id))
            m_notes.insert(id, m_notes.size() + 1);
        return QString::number(m_notes.value(id));
    }

    qreal m_line;
    QHash<QString, qsizetype> m_notes;
    std::vector<PrintedParagraph> m_paragraphs;
    app::MarkdownLineState m_state;
    app::MarkdownLineKind m_kind = app::MarkdownLineKind::Empty;
    bool m_isOpen = false;
};

/// How many of the rows that fit stay on a page.
int rowsToKeep(int fitting, int rows)
{
    if (fitting >= rows)
        return rows;
    int kept = rows - fitting == 1 ? fitting - 1 : fitting; // no last row alone on the next
    return kept < 2 ? 0 : kept;
}

} // namespace

PageSetup PageSetup::standard(const QString &fontFamily, double lineSpacing)
{
    PageSetup setup;
    const bool isLetter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    setup.page = (isLetter ? QSizeF(215.9, 279.4) : QSizeF(210, 297)) * pixelsPerMillimetre;
    setup.font.setFamily(fontFamily);
    setup.font.setStyleHint(QFont::Serif);
    setup.font.setPixelSize(textPixels);
    setup.font.setHintingPreference(QFont::PreferNoHinting); // rows break the same at every zoom
    setup.lineSpacing = lineSpacing;
    return setup;
}

std::vector<PrintedParagraph> printedParagraphs(const QString &text, const PageSetup &setup)
{
    Printer printer(setup);
    for (qsizetype start = 0; start <= text.size();) {
        qsizetype end = text.indexOf(u'\n', start);
        if (end < 0)
            end = text.size();
        QStringView line = QStringView(text).sliced(start, end - start);
        for (qsizetype at = start; !line.isEmpty() || at == start;) {
            const QStringView part = line.first(std::min(line.size(), longestParagraph));
            printer.add(part, at);
            line = line.sliced(part.size());
            at += std::max<qsizetype>(1, part.size());
        }
        start = end + 1;
    }
    return printer.take();
}

qreal layOutParagraph(QTextLayout &layout, const PrintedParagraph &paragraph,
                      const PageSetup &setup)
{
    QFont font = setup.font;
    font.setPixelSize(qRound(setup.font.pixelSize() * paragraph.scale));
    const QFontMetricsF metrics(font);
    const qreal step = metrics.lineSpacing() * (paragraph.scale > 1 ? 1.2 : setup.lineSpacing);
    QTextOption option(paragraph.alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setFont(font);
    layout.setText(paragraph.text);
    layout.setFormats(paragraph.formats);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
        const qreal indent = paragraph.indent + (row.lineNumber() == 0 ? paragraph.firstIndent : 0);
        row.setLineWidth(setup.room().width() - indent - paragraph.indent / 2);
        row.setPosition({indent, (step - metrics.height()) / 2 + metrics.ascent() - row.ascent()});
    }
    layout.endLayout();
    return step;
}

void fillPages(const std::vector<PrintedParagraph> &paragraphs, const PageSetup &setup,
               const std::function<void(Page)> &receive, const std::atomic_bool &isCancelled)
{
    const qreal room = setup.room().height();
    Page page;
    qreal y = 0;
    const auto finish = [&] {
        receive(std::exchange(page, {}));
        y = 0;
    };
    for (size_t i = 0; i < paragraphs.size() && !isCancelled; ++i) {
        const PrintedParagraph &paragraph = paragraphs[i];
        QTextLayout layout;
        const qreal step = layOutParagraph(layout, paragraph, setup);
        const int rows = std::max(1, layout.lineCount());
        const qreal before = page.empty() ? 0 : paragraph.spaceBefore;
        // A heading wants two rows of its text below it.
        const qreal needed = before + rows * step + (paragraph.keepsWithNext ? 2 * step : 0);
        if (paragraph.keepsWithNext && !page.empty() && y + needed > room)
            finish();
        y += page.empty() ? 0 : before;
        for (int row = 0; row < rows;) {
            const int fitting = int((room - y) / step);
            int kept = rowsToKeep(fitting, rows - row);
            if (kept == 0 && page.empty())
                kept = std::max(1, std::min(fitting, rows - row));
            for (int end = row + kept; row < end; ++row, y += step)
                page.push_back({int(i), row, y});
            if (row < rows)
                finish();
        }
    }
    if (!isCancelled && (!page.empty() || paragraphs.empty()))
        finish();
}

} // namespace vl::desktop
