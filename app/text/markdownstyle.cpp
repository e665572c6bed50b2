#include "app/text/markdownstyle.h"

#include "app/text/footnotetext.h"
#include "app/text/markdownscan.h"

#include <algorithm>

namespace vl::app {

namespace {

constexpr qsizetype leastFence = 3;

QStringView trimmedLine(QStringView line)
{
    return line.trimmed();
}

/// The number of equal marks at the start.
qsizetype runLength(QStringView text, QChar mark)
{
    return std::find_if(text.begin(), text.end(), [mark](QChar c) { return c != mark; })
           - text.begin();
}

/// Whether a line closes the fence that it stands in.
bool closesFence(QStringView line, MarkdownLineState fence)
{
    const QStringView text = trimmedLine(line);
    return text.size() >= fence.length && runLength(text, QChar(fence.fence)) == text.size();
}

MarkdownLineState openedFence(QStringView line)
{
    const QStringView text = trimmedLine(line);
    if (text.size() < leastFence || (text[0] != u'`' && text[0] != u'~'))
        return {};
    const qsizetype length = runLength(text, text[0]);
    // Behind backticks another one makes it a code span, not a fence.
    if (length < leastFence || (text[0] == u'`' && text.sliced(length).contains(u'`')))
        return {};
    return {text[0].unicode(), quint8(std::min<qsizetype>(length, 255))};
}

/// "#", or three or more of one mark, with or without blanks between them; as the exports have it.
bool isSceneBreak(QStringView line)
{
    const QStringView text = trimmedLine(line);
    if (text.isEmpty() || !QStringView(u"-*_#").contains(text[0]))
        return false;
    qsizetype marks = 0;
    for (const QChar c : text) {
        if (c != text[0] && !c.isSpace())
            return false;
        marks += c == text[0];
    }
    return text[0] == u'#' || marks >= 3;
}

/// Reads the inside of a line: one pass for escapes and code, one for brackets, one for each kind
/// of paired marks.
class InlineReader
{
public:
    InlineReader(QStringView line, qsizetype from, MarkdownLine &result)
        : m_line(line)
        , m_from(from)
        , m_result(result)
        , m_styles(size_t(line.size()))
        , m_isText(size_t(line.size()), true)
    {
    }

    void read()
    {
        readEscapesAndCode();
        readBrackets();
        collectPairs();
        readPairs(u'~', StrikeText, 2);
    }
    void add(qsizetype from, qsizetype to, quint32 style)
    {
        for (qsizetype i = std::max<qsizetype>(from, 0); i < std::min(to, m_line.size()); ++i)
            m_styles[size_t(i)] |= style;
    }
    void finish()
    {
        const auto size = qsizetype(m_styles.size());
        for (qsizetype i = 0; i < size;) {
            qsizetype end = i + 1;
            while (end < size && m_styles[size_t(end)] == m_styles[size_t(i)])
                ++end;
            if (m_styles[size_t(i)] != PlainText)
                m_result.ranges.push_back({int(i), int(end - i), m_styles[size_t(i)]});
            i = end;
        }
    }

private:
    bool isMark(qsizetype i, char16_t mark) const
    {
        return i < m_line.size() && m_line[i] == mark && m_isText[size_t(i)];
    }
    void hide(qsizetype from, qsizetype to)
    {
        std::fill(m_isText.begin() + from, m_isText.begin() + to, false);
    }

    void readEscapesAndCode()
    {
        qsizetype open = -1;
        for (qsizetype i = m_from; i < m_line.size(); ++i) {
            const char16_t c = m_line[i].unicode();
            if (c == u'`') {
                if (open < 0 || i == open + 1) {
                    open = i;
                    continue;
                }
                add(open, i + 1, CodeText);
                add(open, open + 1, MarkText);
                add(i, i + 1, MarkText);
                hide(open, i + 1);
                open = -1;
            } else if (c == u'\\' && open < 0 && i + 1 < m_line.size()
                       && isAsciiPunctuation(m_line[i + 1].unicode())) {
                add(i, i + 1, MarkText);
                hide(i, i + 2);
                ++i;
            }
        }
    }

    /// Footnote references, embedded objects, pictures and links.
    void readBrackets()
    {
        qsizetype open = -1;
        for (qsizetype i = m_from; i < m_line.size(); ++i) {
            if (isMark(i, u'['))
                open = i;
            else if (open >= 0 && isMark(i, u']')) {
                i = closeBracket(open, i);
                open = -1;
            }
        }
    }
    qsizetype closeBracket(qsizetype open, qsizetype close)
    {
        if (close > open + 2 && m_line[open + 1] == u'^') {
            add(open, close + 1, FootnoteText);
            hide(open, close + 1);
            return close;
        }
        if (open > m_from && m_line[open - 1] == u'[' && isMark(close + 1, u']')
            && close > open + 1) {
            const bool isEmbed = open > m_from + 1 && isMark(open - 2, u'!');
            add(open - (isEmbed ? 2 : 1), open + 1, MarkText);
            add(open + 1, close, LinkText);
            add(close, close + 2, MarkText);
            hide(open - 1, close + 2);
            return close + 1;
        }
        const qsizetype end = isMark(close + 1, u'(') ? endOfUrl(close + 2) : -1;
        if (end < 0)
            return close;
        const bool isImage = open > m_from && isMark(open - 1, u'!');
        if (!isImage && close == open + 1)
            return close;
        if (isImage)
            m_result.images.push_back({int(close + 2), int(end - close - 2)});
        add(isImage ? open - 1 : open, open + 1, MarkText);
        add(open + 1, close, LinkText);
        add(close, end + 1, MarkText);
        hide(close, end + 1);
        return end;
    }
    /// The place of the parenthesis that ends a URL, -1 when there is none: no white space in it,
    /// and one level of parentheses at most.
    qsizetype endOfUrl(qsizetype from) const
    {
        bool isInside = false;
        for (qsizetype i = from; i < m_line.size(); ++i) {
            const QChar c = m_line[i];
            if (c == u'(') {
                if (isInside)
                    return -1;
                isInside = true;
            } else if (c == u')') {
                if (!isInside)
                    return i > from ? i : -1;
                isInside = false;
            } else if (c.isSpace() && !isInside) {
                return -1;
            }
        }
        return -1;
    }

    std::vector<qsizetype> placesOf(char16_t mark) const
    {
        std::vector<qsizetype> places;
        for (qsizetype i = m_from; i < m_line.size(); ++i)
            if (isMark(i, mark))
                places.push_back(i);
        return places;
    }
    void mark(qsizetype from, qsizetype to, qsizetype width, quint32 style)
    {
        add(from + width, to, style);
        add(from, from + width, MarkText);
        add(to, to + width, MarkText);
    }
    /// Strong pairs first; what they leave may be emphasis.
    void collectPairs()
    {
        const std::vector<qsizetype> left = readPairs(u'*', StrongText, 2);
        for (size_t i = 0; i + 1 < left.size();) {
            if (left[i + 1] == left[i] + 1) {
                ++i;
                continue;
            }
            mark(left[i], left[i + 1], 1, EmphasisText);
            i += 2;
        }
    }
    /// Marks what stands between two doubled marks with nothing of their kind between them; the
    /// places of the marks that found no partner.
    std::vector<qsizetype> readPairs(char16_t sign, quint32 style, qsizetype width)
    {
        const std::vector<qsizetype> places = placesOf(sign);
        std::vector<qsizetype> left;
        for (size_t i = 0; i < places.size();) {
            const bool isPair = i + 3 < places.size() && places[i + 1] == places[i] + 1
                                && places[i + 2] > places[i + 1] + 1
                                && places[i + 3] == places[i + 2] + 1;
            if (!isPair) {
                left.push_back(places[i++]);
                continue;
            }
            mark(places[i], places[i + 2], width, style);
            i += 4;
        }
        return left;
    }

    QStringView m_line;
    qsizetype m_from;
    MarkdownLine &m_result;
    std::vector<quint32> m_styles;
    std::vector<bool> m_isText; ///< neither code nor taken by an escape or a target
};

/// The kind of a line outside of fenced code, and where its own text begins.
qsizetype readStart(QStringView line, MarkdownLine &result)
{
    const qsizetype start = skipPatternSpace(line);
    if (start == line.size()) {
        result.kind = MarkdownLineKind::Empty;
        return start;
    }
    const QChar first = line[start];
    const auto isBlankAt = [&line](qsizetype i) {
        return i < line.size() && isPatternSpace(line[i].unicode());
    };
    if (first == u'#') {
        const qsizetype level = runLength(line.sliced(start), u'#');
        if (level <= 6 && isBlankAt(start + level)) {
            result.kind = MarkdownLineKind::Heading;
            result.level = quint8(level);
            return skipPatternSpace(line, start + level);
        }
    } else if ((first == u'-' || first == u'*') && isBlankAt(start + 1)) {
        result.kind = MarkdownLineKind::ListItem;
        return skipPatternSpace(line, start + 1);
    } else if (first == u'>') {
        result.kind = MarkdownLineKind::Quote;
        return start + (isBlankAt(start + 1) ? 2 : 1);
    } else if (first == u'|') {
        result.kind = MarkdownLineKind::TableRow;
    } else if (first == u'[' && isFootnoteDefinitionLine(line)) {
        result.kind = MarkdownLineKind::FootnoteDefinition;
    }
    return 0;
}

} // namespace

MarkdownLineState markdownStateAfter(QStringView line, MarkdownLineState before)
{
    if (before.fence == 0)
        return openedFence(line.first(std::min(line.size(), markdownStyleLimit)));
    return closesFence(line, before) ? MarkdownLineState() : before;
}

MarkdownLine readMarkdownLine(QStringView whole, MarkdownLineState before)
{
    const QStringView line = whole.first(std::min(whole.size(), markdownStyleLimit));
    MarkdownLine result;
    result.after = markdownStateAfter(whole, before);
    const int length = int(line.size());
    if (before.fence != 0 || result.after.fence != 0) {
        const bool isFence = before.fence != result.after.fence;
        result.kind = isFence ? MarkdownLineKind::Fence : MarkdownLineKind::FencedCode;
        if (length > 0)
            result.ranges.push_back({0, length, CodeText | (isFence ? MarkText : PlainText)});
        return result;
    }
    if (isSceneBreak(line)) {
        result.kind = MarkdownLineKind::SceneBreak;
        result.ranges.push_back({0, length, MarkText});
        return result;
    }
    const qsizetype from = readStart(line, result);
    result.indent = result.kind == MarkdownLineKind::Heading ? 0 : int(from);
    InlineReader reader(line, from, result);
    reader.read();
    reader.add(0, from, MarkText);
    if (result.kind == MarkdownLineKind::Heading)
        reader.add(0, length, HeadingText);
    else if (result.kind == MarkdownLineKind::Quote)
        reader.add(from, length, QuoteText);
    else if (result.kind == MarkdownLineKind::FootnoteDefinition)
        reader.add(line.indexOf(u':'), line.indexOf(u':') + 1, MarkText | FootnoteText);
    else if (result.kind == MarkdownLineKind::TableRow)
        for (qsizetype i = 0; i < line.size(); ++i)
            if (line[i] == u'|')
                reader.add(i, i + 1, MarkText);
    reader.finish();
    return result;
}

} // namespace vl::app
