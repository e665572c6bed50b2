#include "app/text/markdowntext.h"

#include "app/text/markdownscan.h"

namespace vl::app {

namespace {

bool isRuleMark(QChar c)
{
    return c == u'-' || c == u'*' || c == u'_';
}

/// Where the first mark of a rule stands, three marks or more with blanks between; -1: no rule.
/// Like the `$` of a pattern it lets one line feed stand at the end.
qsizetype ruleStart(QStringView line)
{
    const qsizetype start = skipPatternSpace(line);
    const qsizetype end = line.endsWith(u'\n') ? line.size() - 1 : line.size();
    int marks = 0;
    for (qsizetype i = start; i < end; ++i) {
        if (isRuleMark(line[i]))
            marks = qMin(marks + 1, 3);
        else if (marks == 0 || (line[i] != u' ' && line[i] != u'\t'))
            return -1;
    }
    return marks == 3 ? start : -1;
}

/// Where a backslash takes a block marker its meaning; -1 when the line starts with none.
qsizetype markerBreak(QStringView line)
{
    const qsizetype start = skipPatternSpace(line);
    qsizetype end = start;
    qsizetype where = start;
    const auto at = [line](qsizetype i) { return i < line.size() ? line[i].unicode() : u'\0'; };
    if (QStringView(u"-+*>").contains(QChar(at(start))) && start < line.size()) {
        end = start + 1;
    } else if (at(start) == u'#') {
        while (at(end) == u'#')
            ++end;
        if (end - start > 6)
            return -1;
    } else {
        while (at(end) >= u'0' && at(end) <= u'9')
            ++end;
        if (end == start || (at(end) != u'.' && at(end) != u')'))
            return -1;
        where = end++;
    }
    return isPatternSpace(at(end)) ? where : -1;
}

/// Calls `found(start, close)` for every piece from `opening` to the first "]" behind it, if
/// `closing` stands there. All starts before a "]" share it, so a miss moves on behind it.
template<typename Found>
void forEachBracketed(QStringView text, QLatin1String opening, QLatin1String closing,
                      bool mayBeEmpty, Found found)
{
    qsizetype at = 0;
    while ((at = text.indexOf(opening, at)) >= 0) {
        const qsizetype content = at + opening.size();
        const qsizetype close = text.indexOf(u']', content);
        if (close < 0)
            return;
        at = close + 1;
        if (text.mid(close).startsWith(closing) && (mayBeEmpty || close > content)) {
            found(content - opening.size(), close);
            at = close + closing.size();
        }
    }
}

QString blanked(const QString &text, QLatin1String opening, QLatin1String closing)
{
    QString result;
    qsizetype copied = 0;
    forEachBracketed(text, opening, closing, true, [&](qsizetype at, qsizetype close) {
        result += QStringView(text).mid(copied, at - copied);
        result += u' ';
        copied = close + closing.size();
    });
    if (copied == 0)
        return text;
    result += QStringView(text).mid(copied);
    return result;
}

} // namespace

QString escapeMarkdownInline(const QString &text)
{
    QString escaped;
    escaped.reserve(text.size() + text.size() / 16);
    for (const QChar c : text) {
        if (c == u'*' || c == u'`' || c == u'~' || c == u'_')
            escaped += u'\\';
        escaped += c;
    }
    return escaped;
}

QString escapeMarkdownLine(const QString &line)
{
    qsizetype where = ruleStart(line);
    if (where < 0)
        where = markerBreak(line);
    return where < 0 ? line : QString(line).insert(where, u'\\');
}

QString objectEmbed(const QString &target)
{
    return QLatin1String("![[") + target + QLatin1String("]]");
}

QList<ObjectEmbed> findObjectEmbeds(const QString &text)
{
    QList<ObjectEmbed> found;
    forEachBracketed(text, QLatin1String("![["), QLatin1String("]]"), false,
                     [&](qsizetype at, qsizetype close) {
                         found.append({text.mid(at + 3, close - at - 3), at, close + 2 - at});
                     });
    return found;
}

QString withoutEmbedsAndReferences(const QString &text)
{
    return blanked(blanked(text, QLatin1String("![["), QLatin1String("]]")), QLatin1String("[^"),
                   QLatin1String("]"));
}

} // namespace vl::app
