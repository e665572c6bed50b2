#include "app/text/markdownrenderer.h"

#include "app/text/markdowninline.h"
#include "app/text/markdownscan.h"

namespace vl::app {

namespace {

/// The lines of a text, trimmed, without those that define footnotes.
class BodyLines
{
public:
    BodyLines(QStringView text, const std::vector<TextRange> &definitionLines)
        : m_text(text)
        , m_definition(definitionLines.cbegin())
        , m_lastDefinition(definitionLines.cend())
    {
    }

    /// Gives the next line; false when there is none.
    bool next(QStringView &line)
    {
        while (m_definition != m_lastDefinition && m_definition->start == m_at)
            m_at = (m_definition++)->end + 1;
        if (m_at > m_text.size())
            return false;
        qsizetype end = m_text.indexOf(u'\n', m_at);
        if (end < 0)
            end = m_text.size();
        line = m_text.mid(m_at, end - m_at).trimmed();
        m_at = end + 1;
        return true;
    }

private:
    QStringView m_text;
    std::vector<TextRange>::const_iterator m_definition;
    std::vector<TextRange>::const_iterator m_lastDefinition;
    qsizetype m_at = 0; // behind the size once the last line is out
};

/// Whether the line parts a table's header from its rows: cells of hyphens, with a colon at either
/// end or both, between bars of which there is at least one.
bool isTableSeparator(QStringView line)
{
    qsizetype at = line.startsWith(u'|') ? 1 : 0;
    bool hasBar = at == 1;
    for (;;) {
        at = skipPatternSpace(line, at);
        if (at < line.size() && line[at] == u':')
            ++at;
        const qsizetype hyphens = at;
        while (at < line.size() && line[at] == u'-')
            ++at;
        if (at == hyphens)
            return false;
        if (at < line.size() && line[at] == u':')
            ++at;
        at = skipPatternSpace(line, at);
        if (at == line.size())
            return hasBar;
        if (line[at] != u'|')
            return false;
        hasBar = true;
        if (++at == line.size())
            return true;
    }
}

/// The cells of a table row, one after the other.
class TableCells
{
public:
    explicit TableCells(QStringView row)
        : m_row(row)
    {
        if (m_row.startsWith(u'|'))
            m_row = m_row.mid(1);
        if (m_row.endsWith(u'|'))
            m_row.chop(1);
    }

    /// Gives the next cell, trimmed, with "\|" as "|"; valid until the next call.
    bool next(QStringView &cell)
    {
        if (m_at > m_row.size())
            return false;
        qsizetype bar = m_at;
        bool hasEscapedBar = false;
        while ((bar = m_row.indexOf(u'|', bar)) > m_at && m_row[bar - 1] == u'\\') {
            hasEscapedBar = true;
            ++bar;
        }
        if (bar < 0)
            bar = m_row.size();
        cell = m_row.mid(m_at, bar - m_at);
        m_at = bar + 1;
        if (hasEscapedBar) {
            m_unescaped = cell.toString().replace(QLatin1String("\\|"), QLatin1String("|"));
            cell = m_unescaped;
        }
        cell = cell.trimmed();
        return true;
    }

private:
    QStringView m_row;
    qsizetype m_at = 0;
    QString m_unescaped;
};

enum class Alignment : quint8
{
    None,
    Left,
    Right,
    Center
};

std::vector<Alignment> columnAlignments(QStringView separator)
{
    std::vector<Alignment> alignments;
    TableCells cells(separator);
    for (QStringView cell; cells.next(cell);) {
        const bool left = cell.startsWith(u':');
        const bool right = cell.endsWith(u':');
        alignments.push_back(left ? (right ? Alignment::Center : Alignment::Left)
                                  : (right ? Alignment::Right : Alignment::None));
    }
    return alignments;
}

QStringView alignmentStyle(Alignment alignment)
{
    switch (alignment) {
    case Alignment::Left:
        return u" style=\"text-align:left\"";
    case Alignment::Right:
        return u" style=\"text-align:right\"";
    case Alignment::Center:
        return u" style=\"text-align:center\"";
    case Alignment::None:
        break;
    }
    return {};
}

/// Three or more of one of "-", "*" and "_", and nothing else.
bool isRule(QStringView line)
{
    if (line.size() < 3)
        return false;
    for (const QChar c : line) {
        if (c != line.front())
            return false;
    }
    return true;
}

/// Renders one text, block by block.
class BlockRenderer
{
public:
    explicit BlockRenderer(QStringView text)
        : m_footnotes(text)
        , m_lines(text, m_footnotes.definitionLines())
        , m_out(text.size() + text.size() / 2 + 64)
        , m_inline(m_out, m_footnotes)
    {
    }

    QString render()
    {
        QStringView line;
        QStringView following;
        bool more = m_lines.next(line);
        while (more) {
            more = m_lines.next(following);
            if (more && isTableSeparator(following) && line.contains(u'|')) {
                more = renderTable(line, following);
            } else {
                renderLine(line);
            }
            line = following;
        }
        enter(Block::None);
        renderFootnotes();
        return m_out.take();
    }

private:
    enum class Block : quint8
    {
        None,
        Paragraph,
        List,
        Quote
    };

    void renderLine(QStringView line)
    {
        if (line.isEmpty()) {
            enter(Block::None);
            return;
        }
        switch (line.front().unicode()) {
        case u'#':
            if (renderHeading(line))
                return;
            break;
        case u'-':
        case u'*':
        case u'_':
            if (isRule(line)) {
                enter(Block::None);
                m_out.append(u"<hr>\n");
                return;
            }
            if (line.front() != u'_' && line.size() > 1 && isPatternSpace(line[1].unicode())) {
                enter(Block::List);
                m_out.append(u"<li>");
                m_inline.render(line.mid(skipPatternSpace(line, 1)));
                m_out.append(u"</li>\n");
                return;
            }
            break;
        case u'>':
            if (!enter(Block::Quote))
                m_out.append(u' ');
            m_inline.render(line.mid(line.size() > 1 && isPatternSpace(line[1].unicode()) ? 2 : 1));
            return;
        default:
            break;
        }
        if (!enter(Block::Paragraph))
            m_out.append(u' ');
        m_inline.render(line);
    }

    bool renderHeading(QStringView line)
    {
        qsizetype level = 1;
        while (level < line.size() && line[level] == u'#')
            ++level;
        if (level > 6 || level == line.size() || !isPatternSpace(line[level].unicode()))
            return false;
        enter(Block::None);
        m_out.append(u"<h");
        m_out.append(quint64(level));
        m_out.append(u'>');
        m_inline.render(line.mid(skipPatternSpace(line, level)));
        m_out.append(u"</h");
        m_out.append(quint64(level));
        m_out.append(u">\n");
        return true;
    }

    /// Renders a table and gives the first line behind it in `line`; false when there is none.
    bool renderTable(QStringView header, QStringView &line)
    {
        enter(Block::None);
        const std::vector<Alignment> alignments = columnAlignments(line);
        m_out.append(u"<table>\n<thead>\n<tr>\n");
        renderCells(header, u"th", alignments);
        m_out.append(u"</tr>\n</thead>\n<tbody>\n");
        bool more = false;
        while ((more = m_lines.next(line)) && line.contains(u'|')) {
            m_out.append(u"<tr>\n");
            renderCells(line, u"td", alignments);
            m_out.append(u"</tr>\n");
        }
        m_out.append(u"</tbody>\n</table>\n");
        return more;
    }

    void renderCells(QStringView row, QStringView tag, const std::vector<Alignment> &alignments)
    {
        TableCells cells(row);
        size_t column = 0;
        for (QStringView cell; cells.next(cell); ++column) {
            m_out.append(u'<');
            m_out.append(tag);
            if (column < alignments.size())
                m_out.append(alignmentStyle(alignments[column]));
            m_out.append(u'>');
            m_inline.render(cell);
            m_out.append(u"</");
            m_out.append(tag);
            m_out.append(u">\n");
        }
    }

    void renderFootnotes()
    {
        if (!m_footnotes.hasNumbered())
            return;
        m_out.append(u"<section class=\"footnotes\">\n<hr>\n<ol>\n");
        for (const size_t index : m_footnotes.order()) {
            const MarkdownFootnote &note = m_footnotes.at(index);
            m_out.append(u"<li id=\"fn-");
            m_out.append(note.number);
            m_out.append(u"\"><p>");
            m_inline.render(note.definition);
            m_out.append(u" <a href=\"#fnref-");
            m_out.append(note.number);
            m_out.append(u"\" class=\"footnote-backref\">\u21A9</a></p></li>\n");
        }
        m_out.append(u"</ol>\n</section>\n");
    }

    /// Closes the open block unless it is of this kind, and opens one; whether it opened one.
    bool enter(Block block)
    {
        if (block == m_block)
            return false;
        switch (m_block) {
        case Block::None:
            break;
        case Block::Paragraph:
            m_out.append(u"</p>\n");
            break;
        case Block::List:
            m_out.append(u"</ul>\n");
            break;
        case Block::Quote:
            m_out.append(u"</p>\n</blockquote>\n");
            break;
        }
        m_block = block;
        switch (block) {
        case Block::None:
            break;
        case Block::Paragraph:
            m_out.append(u"<p>");
            break;
        case Block::List:
            m_out.append(u"<ul>\n");
            break;
        case Block::Quote:
            m_out.append(u"<blockquote>\n<p>");
            break;
        }
        return true;
    }

    MarkdownFootnotes m_footnotes;
    BodyLines m_lines;
    HtmlSink m_out;
    MarkdownInline m_inline;
    Block m_block = Block::None;
};

} // namespace

QString MarkdownRenderer::toHtml(const QString &markdown)
{
    return BlockRenderer(markdown).render();
}

} // namespace vl::app
