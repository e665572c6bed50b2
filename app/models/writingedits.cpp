#include "app/models/writingedits.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace vl::app {

namespace {

bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c.isSurrogate() || c == u'\'' || c == u'’';
}

/// How many of a mark stand before or behind a place.
qsizetype marksBefore(QStringView text, qsizetype place, QChar mark)
{
    qsizetype count = 0;
    while (place - count > 0 && text[place - count - 1] == mark)
        ++count;
    return count;
}

qsizetype marksBehind(QStringView text, qsizetype place, QChar mark)
{
    qsizetype count = 0;
    while (place + count < text.size() && text[place + count] == mark)
        ++count;
    return count;
}

/// Whether so many marks hold the style that `size` of them give: of three asterisks, one is
/// emphasis and two are strong.
bool holdsMarks(qsizetype count, qsizetype size)
{
    return size == 1 ? count % 2 == 1 : count >= size;
}

struct Span
{
    qsizetype from;
    qsizetype to;
};

Span withoutBlanks(QStringView text, Span span)
{
    while (span.from < span.to && text[span.from].isSpace())
        ++span.from;
    while (span.to > span.from && text[span.to - 1].isSpace())
        --span.to;
    return span;
}

/// The span without marks of this kind at its ends.
Span withoutMarks(QStringView text, Span span, QChar mark)
{
    while (span.from < span.to && text[span.from] == mark)
        ++span.from;
    while (span.to > span.from && text[span.to - 1] == mark)
        --span.to;
    return span;
}

bool isMarked(QStringView text, Span inner, QStringView marks)
{
    return holdsMarks(marksBefore(text, inner.from, marks[0]), marks.size())
           && holdsMarks(marksBehind(text, inner.to, marks[0]), marks.size());
}

std::vector<Span> linesOf(QStringView text, Span span)
{
    std::vector<Span> lines;
    for (qsizetype start = span.from; start <= span.to;) {
        qsizetype end = text.indexOf(u'\n', start);
        if (end < 0 || end > span.to)
            end = span.to;
        const Span line = withoutBlanks(text, {start, end});
        if (line.from < line.to)
            lines.push_back(line);
        start = end + 1;
    }
    return lines;
}

SelectedText togglePair(const SelectedText &selected, QStringView marks)
{
    SelectedText result = selected;
    const qsizetype caret = selected.to;
    if (isMarked(selected.text, {caret, caret}, marks)) {
        result.text.remove(caret - marks.size(), 2 * marks.size());
        result.from = result.to = caret - marks.size();
    } else {
        result.text.insert(caret, marks.toString() + marks.toString());
        result.from = result.to = caret + marks.size();
    }
    return result;
}

/// The mark that a line begins with, blanks included; empty when it is no item and no quote.
qsizetype markerLength(QStringView line)
{
    qsizetype i = 0;
    while (i < line.size() && (line[i] == u' ' || line[i] == u'\t'))
        ++i;
    const qsizetype start = i;
    if (i < line.size() && (line[i] == u'-' || line[i] == u'*' || line[i] == u'>')) {
        ++i;
    } else {
        while (i < line.size() && i - start < 9 && line[i] >= u'0' && line[i] <= u'9')
            ++i;
        if (i == start || i >= line.size() || (line[i] != u'.' && line[i] != u')'))
            return 0;
        ++i;
    }
    if (i < line.size() && line[i] == u' ')
        return i + 1;
    return line[start] == u'>' ? i : 0;
}

QString nextMarker(QStringView marker)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    const auto first = std::find_if(marker.begin(), marker.end(), isDigit);
    const auto last = std::find_if_not(first, marker.end(), isDigit);
    if (first == last)
        return marker.toString();
    const qsizetype at = first - marker.begin();
    const qsizetype length = last - first;
    return marker.first(at).toString() + QString::number(marker.sliced(at, length).toLongLong() + 1)
           + marker.sliced(at + length).toString();
}

} // namespace

SelectedText toggledMarks(const SelectedText &selected, QStringView marks)
{
    Span span{std::min(selected.from, selected.to), std::max(selected.from, selected.to)};
    const bool hadSelection = span.from < span.to;
    if (!hadSelection) {
        while (span.from > 0 && isWordPart(selected.text[span.from - 1]))
            --span.from;
        while (span.to < selected.text.size() && isWordPart(selected.text[span.to]))
            ++span.to;
        if (span.from == span.to)
            return togglePair(selected, marks);
    }
    std::vector<Span> lines = linesOf(selected.text, span);
    if (lines.empty())
        return selected;
    for (Span &line : lines) {
        const Span inner = withoutMarks(selected.text, line, marks[0]);
        if (inner.from < inner.to)
            line = inner;
    }
    const bool takesAway = std::all_of(lines.begin(), lines.end(), [&](const Span &line) {
        return isMarked(selected.text, line, marks);
    });
    SelectedText result = selected;
    const qsizetype change = takesAway ? -marks.size() : marks.size();
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
        if (takesAway) {
            result.text.remove(line->to, marks.size());
            result.text.remove(line->from - marks.size(), marks.size());
        } else if (!isMarked(selected.text, *line, marks)) {
            result.text.insert(line->to, marks);
            result.text.insert(line->from, marks);
        }
    }
    if (!hadSelection) {
        result.from = result.to = selected.to + change;
        return result;
    }
    result.from = lines.front().from + change;
    // Everything up to the last inner end moved by all that changed before it.
    result.to = lines.back().to + (result.text.size() - selected.text.size()) - change;
    return result;
}

std::optional<LineEdit> lineBreakEdit(const QString &line, qsizetype caret)
{
    const qsizetype marker = markerLength(line);
    if (marker == 0 || caret < marker)
        return std::nullopt;
    if (QStringView(line).sliced(marker).trimmed().isEmpty())
        return LineEdit{{0, line.size(), QString()}, 0};
    const QString inserted = u'\n' + nextMarker(QStringView(line).first(marker));
    return LineEdit{{caret, 0, inserted}, caret + inserted.size()};
}

std::optional<LineEdit> indentEdit(const QString &line, qsizetype caret, bool inwards)
{
    const qsizetype marker = markerLength(line);
    if (marker == 0 || QStringView(line).trimmed().startsWith(u'>'))
        return std::nullopt;
    if (inwards)
        return LineEdit{{0, 0, QStringLiteral("  ")}, caret + 2};
    qsizetype blanks = 0;
    while (blanks < 2 && blanks < line.size() && (line[blanks] == u' ' || line[blanks] == u'\t'))
        ++blanks;
    return LineEdit{{0, blanks, QString()}, std::max<qsizetype>(0, caret - blanks)};
}

std::optional<TypographicEdit> typographicEdit(QStringView before, QChar typed,
                                               const QLocale &locale)
{
    const QChar last = before.isEmpty() ? QChar(u' ') : before.back();
    if (typed == u'"' || typed == u'\'') {
        const auto style = typed == u'"' ? QLocale::StandardQuotation : QLocale::AlternateQuotation;
        const bool opens = last.isSpace() || QStringView(u"([{<—–-*_«“‘¿¡").contains(last);
        if (typed == u'\'' && !opens)
            return TypographicEdit{0, QStringLiteral("’")};
        const QLocale quoting =
            locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
        const QString pair = quoting.quoteString(QStringView(), style);
        const qsizetype half = pair.size() / 2;
        return TypographicEdit{0, opens ? pair.first(half) : pair.sliced(half)};
    }
    if (typed == u'-' && last == u'-' && !before.isEmpty()) {
        const QStringView head = before.chopped(1);
        const bool isRule = head.trimmed().isEmpty() || head.endsWith(u'-');
        if (!isRule)
            return TypographicEdit{1, QStringLiteral("—")};
    }
    if (typed == u'.' && before.endsWith(QLatin1String("..")) && !before.endsWith(u"..."))
        return TypographicEdit{2, QStringLiteral("…")};
    return std::nullopt;
}

} // namespace vl::app
