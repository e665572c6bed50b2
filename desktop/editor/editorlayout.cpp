#include "desktop/editor/editorlayout.h"

#include "app/base/wordcount.h"
#include "desktop/editor/editorpictures.h"
#include "desktop/editor/editorstyle.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QFontMetricsF>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

namespace vl::desktop {

using app::MarkdownLineKind;

namespace {

constexpr qreal unknownWidth = 10000;  // before the window has one
constexpr qreal headingSpacing = 1.25; // of lines; titles stand closer than running text
constexpr qreal headingSpaceAbove = 0.5;
constexpr qreal headingSpaceBelow = 0.2;
constexpr qreal pictureSpace = 8;

} // namespace

EditorLayout::EditorLayout(QTextDocument *document)
    : QPlainTextDocumentLayout(document)
{
}

EditorLayout::~EditorLayout() = default;

void EditorLayout::setStyle(std::shared_ptr<const EditorStyle> style)
{
    m_style = std::move(style);
    document()->setDefaultFont(m_style->font());
    forgetLayouts();
}

void EditorLayout::setPictures(EditorPictures *pictures)
{
    m_pictures = pictures;
}

void EditorLayout::setWidth(int width)
{
    if (width == m_width)
        return;
    m_width = width;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        block.clearLayout();
}

void EditorLayout::forgetLayouts()
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        lineOf(block).isStyled = false;
        block.clearLayout();
    }
    estimateLines();
    Q_EMIT update();
}

void EditorLayout::estimateLines()
{
    if (!m_style)
        return;
    const qreal perLine =
        textWidth() / qMax(1.0, QFontMetricsF(m_style->font()).averageCharWidth() * 0.95);
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        if (block.layout()->lineCount() == 0)
            block.setLineCount(1 + int((block.length() - 1) / qMax(1.0, perLine)));
    tellSize();
}

void EditorLayout::tellSize() const
{
    if (m_tellsSize)
        return; // who hears of it lays out more, and so on
    const QScopedValueRollback<bool> telling(m_tellsSize, true);
    Q_EMIT const_cast<EditorLayout *>(this)->documentSizeChanged(documentSize());
}

EditorLine &EditorLayout::lineOf(const QTextBlock &block) const
{
    EditorLine *line = EditorLine::of(block);
    if (!line) {
        line = new EditorLine(m_words); // the block owns it
        QTextBlock(block).setUserData(line);
    }
    return *line;
}

void EditorLayout::read(const QTextBlock &block)
{
    EditorLine &line = lineOf(block);
    const QTextBlock previous = block.previous();
    const QString text = block.text();
    line.before = previous.isValid() ? lineOf(previous).after : app::MarkdownLineState();
    line.after = app::markdownStateAfter(text, line.before);
    line.setWords(app::countWords(text));
    line.isStyled = false;
}

void EditorLayout::documentChanged(int from, int removed, int added)
{
    if (m_restyled.isValid() && from == m_restyled.position() && removed == m_restyled.length()
        && added == removed)
        return; // only told of the formats that this layout sets itself
    const QScopedValueRollback<bool> changing(m_isInChange, true);
    QTextDocument *text = document();
    const QTextBlock first = text->findBlock(from);
    QTextBlock last = text->findBlock(from + added);
    if (!last.isValid())
        last = text->lastBlock();
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        read(block);
        if (block == last)
            break;
    }
    const QTextBlock lastRead = last;
    for (QTextBlock next = last.next(); next.isValid(); next = next.next()) {
        const EditorLine *line = EditorLine::of(next);
        if (line && line->before == lineOf(next.previous()).after)
            break;
        read(next);
        last = next;
    }

    const bool isOneBlock = first.isValid() && first == last && text->blockCount() == m_blockCount;
    if (isOneBlock) {
        relayOneBlock(first);
        return;
    }
    m_blockCount = text->blockCount();
    const int end = lastRead == last ? 0 : last.position() + last.length() - from - added;
    QPlainTextDocumentLayout::documentChanged(from, removed, added + qMax(0, end));
    // What the base class laid out in passing lacks spacing and indents.
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        block.clearLayout();
        if (block == last)
            break;
    }
}

void EditorLayout::relayOneBlock(const QTextBlock &block)
{
    if (block.layout()->lineCount() == 0)
        return; // laid out when it is shown
    const EditorLine &line = lineOf(block);
    const qreal before = line.height + picturesHeight(line);
    layOut(block);
    if (line.height + picturesHeight(line) == before)
        Q_EMIT updateBlock(block);
    else
        Q_EMIT update();
}

void EditorLayout::applyStyles(const QTextBlock &block) const
{
    EditorLine &line = lineOf(block);
    line.isStyled = true;
    const QString text = block.text();
    const app::MarkdownLine read = app::readMarkdownLine(text, line.before);
    line.kind = read.kind;
    line.level = read.level;
    line.pictures.clear();
    for (const app::MarkdownImage &image : read.images)
        line.pictures.append(text.mid(image.pathStart, image.pathLength));

    QList<QTextLayout::FormatRange> formats;
    formats.reserve(qsizetype(read.ranges.size()));
    for (const app::MarkdownRange &range : read.ranges)
        formats.append({range.start, range.length, m_style->format(range.style, read.level)});
    QTextLayout *layout = block.layout();
    if (formats.isEmpty() && layout->formats().isEmpty())
        return;
    layout->setFormats(formats);
    if (m_isInChange)
        return;
    // The document takes new formats for a change of the text and would add it to the next one.
    const QScopedValueRollback<QTextBlock> restyling(m_restyled, block);
    document()->markContentsDirty(block.position(), block.length());
}

qreal EditorLayout::textWidth() const
{
    const qreal width = m_width > 0 ? m_width : unknownWidth;
    return width - 2 * document()->documentMargin();
}

qreal EditorLayout::hangingIndent(const QTextBlock &block, const EditorLine &line) const
{
    if (line.kind != MarkdownLineKind::ListItem && line.kind != MarkdownLineKind::Quote)
        return 0;
    const QString text = block.text();
    qsizetype marker = 0;
    while (marker < text.size() && text[marker].isSpace())
        ++marker;
    ++marker;
    while (marker < text.size() && text[marker].isSpace())
        ++marker;
    return qMin(textWidth() / 3,
                QFontMetricsF(m_style->font()).horizontalAdvance(text.left(marker)));
}

qreal EditorLayout::layLines(const QTextBlock &block, const EditorLine &line) const
{
    QTextLayout *layout = block.layout();
    const QFontMetricsF metrics(m_style->font());
    const qreal margin = document()->documentMargin();
    const qreal hanging = hangingIndent(block, line);
    const bool isRightToLeft = block.textDirection() == Qt::RightToLeft;
    qreal y = 0;
    if (line.kind == MarkdownLineKind::Heading && block.blockNumber() > 0)
        y += metrics.height() * headingSpaceAbove;
    layout->beginLayout();
    for (QTextLine row = layout->createLine(); row.isValid(); row = layout->createLine()) {
        const qreal indent = row.lineNumber() == 0 ? 0 : hanging;
        row.setLeadingIncluded(true);
        row.setLineWidth(textWidth() - indent);
        // Baselines keep their distance where a row mixes fonts.
        const qreal ascent = qMax(metrics.ascent(), row.ascent());
        const qreal natural = qMax(metrics.lineSpacing(), row.height());
        const qreal step =
            natural
            * (line.kind == MarkdownLineKind::Heading ? qMin(headingSpacing, m_style->lineSpacing())
                                                      : m_style->lineSpacing());
        qreal x = margin + (isRightToLeft ? 0 : indent);
        if (line.kind == MarkdownLineKind::SceneBreak && !block.text().contains(u'#'))
            x = margin + qMax(0.0, (textWidth() - row.naturalTextWidth()) / 2);
        row.setPosition({x, y + (step - natural) / 2 + ascent - row.ascent()});
        y += step;
    }
    layout->endLayout();
    if (line.kind == MarkdownLineKind::Heading)
        y += metrics.height() * headingSpaceBelow;
    return y;
}

void EditorLayout::layOut(const QTextBlock &block) const
{
    if (!m_style)
        return;
    EditorLine &line = lineOf(block);
    if (!line.isStyled)
        applyStyles(block);
    QTextOption option = document()->defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setAlignment((block.textDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft)
                        | Qt::AlignAbsolute);
    option.setTabStopDistance(4 * QFontMetricsF(m_style->font()).horizontalAdvance(u' '));
    block.layout()->setTextOption(option);
    line.height = qCeil(layLines(block, line));
    const int lines = block.layout()->lineCount();
    if (block.lineCount() != lines) {
        QTextBlock(block).setLineCount(lines);
        tellSize();
    }
}

QRectF EditorLayout::blockBoundingRect(const QTextBlock &block) const
{
    if (!block.isValid() || !block.isVisible())
        return {};
    if (block.layout()->lineCount() == 0)
        layOut(block);
    const EditorLine &line = lineOf(block);
    qreal height = line.height + picturesHeight(line);
    if (!block.next().isValid())
        height += document()->documentMargin();
    return {0, 0, m_width > 0 ? m_width : unknownWidth, height};
}

QSizeF EditorLayout::documentSize() const
{
    return {0, qreal(document()->lineCount())};
}

qreal EditorLayout::picturesHeight(const EditorLine &line) const
{
    qreal height = 0;
    if (m_pictures)
        for (const QString &path : line.pictures)
            height += m_pictures->sizeOf(path, int(textWidth())).height() + pictureSpace;
    return height;
}

QRectF EditorLayout::pictureRect(const QTextBlock &block, int number) const
{
    const EditorLine &line = lineOf(block);
    if (!m_pictures || number >= line.pictures.size())
        return {};
    qreal y = line.height;
    for (int i = 0; i < number; ++i)
        y += m_pictures->sizeOf(line.pictures[i], int(textWidth())).height() + pictureSpace;
    const QSizeF size = m_pictures->sizeOf(line.pictures[number], int(textWidth()));
    const qreal x = document()->documentMargin() + qMax(0.0, (textWidth() - size.width()) / 2);
    return {QPointF(x, y), size};
}

} // namespace vl::desktop
