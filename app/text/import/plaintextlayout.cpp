#include "app/text/import/plaintextlayout.h"

#include "app/text/markdowntext.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <array>

namespace vl::app {

namespace {

constexpr QChar lineFeed = QLatin1Char('\n');
constexpr QChar underscore = QLatin1Char('_');

// Texts are wrapped between these widths; narrower ones are verse, wider ones one line a paragraph.
constexpr qsizetype narrowestWrap = 50;
constexpr qsizetype widestWrap = 130;
constexpr qsizetype surelyProse = 60;

qsizetype indentation(QStringView line)
{
    qsizetype columns = 0;
    for (const QChar c : line) {
        if (!c.isSpace())
            break;
        columns += c == QLatin1Char('\t') ? 8 - columns % 8 : 1;
    }
    return columns;
}

QStringView withoutEnd(QStringView line)
{
    while (!line.isEmpty() && line.back().isSpace())
        line.chop(1);
    return line;
}

qsizetype firstWordLength(QStringView line)
{
    const QStringView text = line.trimmed();
    const qsizetype blank = text.indexOf(QLatin1Char(' '));
    return blank < 0 ? text.size() : blank;
}

bool isOpeningQuote(QChar c)
{
    return QStringView(u"\"'\u201c\u2018\u201e\u201a\u00ab\u00bb\u2039\u203a").contains(c);
}

bool isDash(QChar c)
{
    return QStringView(u"-\u2013\u2014").contains(c);
}

/// What a line starts with once marks of quotation and emphasis are passed over.
QChar firstLetter(QStringView line)
{
    for (const QChar c : line) {
        if (!c.isSpace() && !isOpeningQuote(c) && c != underscore && c != QLatin1Char('('))
            return c;
    }
    return {};
}

bool startsWithSmallLetter(QStringView line)
{
    return firstLetter(line).isLower();
}

bool endsSentence(QStringView line)
{
    const QStringView text = withoutEnd(line);
    return !text.isEmpty()
           && QStringView(u".!?:;,\u2026\"'\u201d\u2019\u201c\u00bb\u00ab)_-\u2014")
                  .contains(text.back());
}

/// What one line break of a block says of its lines.
struct Break
{
    bool isForced = false; ///< the next word had no room on the line
    bool isLikely = false; ///< it nearly had none
    bool isEarly = false;  ///< much more had room
    bool isBeforeSmall = false;
};

Break breakBetween(QStringView line, QStringView next, qsizetype width)
{
    const qsizetype needed = withoutEnd(line).size() + 1 + firstWordLength(next);
    return {needed * 100 >= width * 85, needed * 100 >= width * 75, needed * 100 < width * 60,
            startsWithSmallLetter(next)};
}

enum class BlockShape
{
    Prose, ///< lines are joined, but for breaks that are paragraphs by themselves
    Lines, ///< each line stays one
};

BlockShape shapeOf(std::span<const QStringView> lines, const PlainTextLayout &layout)
{
    if (!layout.isHardWrapped) {
        const bool areShort = std::all_of(lines.begin(), lines.end(), [](QStringView line) {
            return line.size() <= surelyProse;
        });
        return areShort ? BlockShape::Lines : BlockShape::Prose;
    }
    int forced = 0;
    int likely = 0;
    int small = 0;
    const int breaks = int(lines.size()) - 1;
    for (int i = 0; i < breaks; ++i) {
        const Break found = breakBetween(lines[i], lines[i + 1], layout.width);
        forced += found.isForced ? 1 : 0;
        likely += found.isLikely ? 1 : 0;
        small += found.isBeforeSmall ? 1 : 0;
    }
    if (breaks == 1) {
        const bool isIndented = std::min(indentation(lines[0]), indentation(lines[1])) >= 4;
        return likely == 1 || (small == 1 && !isIndented) ? BlockShape::Prose : BlockShape::Lines;
    }
    if (forced * 10 <= breaks * 4)
        return BlockShape::Lines;
    const bool hasCapitalLines = small * 10 <= breaks * 2;
    if (hasCapitalLines && (forced * 10 <= breaks * 7 || layout.width < surelyProse))
        return BlockShape::Lines;
    return BlockShape::Prose;
}

/// A row of three or more stars, dashes or underscores and nothing else, as a rule; else nothing.
QString ruleFromLine(QStringView line)
{
    const QStringView text = line.trimmed();
    if (text.isEmpty())
        return {};
    const QChar mark = text.front();
    qsizetype marks = 0;
    for (const QChar c : text) {
        if (c == mark)
            ++marks;
        else if (!c.isSpace())
            return {};
    }
    if (marks < 3)
        return {};
    if (mark == QLatin1Char('*'))
        return QStringLiteral("***");
    return mark == QLatin1Char('-') || mark == underscore ? QStringLiteral("---") : QString();
}

bool isAsciiPunctuation(QChar c)
{
    return c.unicode() < 0x80 && c.isPrint() && !c.isLetterOrNumber() && c != QLatin1Char(' ');
}

/// Plain text as it stands between marks of emphasis.
QString escapedRun(QStringView run)
{
    QString prepared;
    prepared.reserve(run.size());
    for (qsizetype i = 0; i < run.size(); ++i) {
        const QChar c = run[i];
        const QChar next = i + 1 < run.size() ? run[i + 1] : QChar();
        const bool isEscape = c == QLatin1Char('\\') && (isAsciiPunctuation(next) || next.isNull());
        const bool isMark = c == QLatin1Char('[') && (next == QLatin1Char('^') || next == c);
        const bool isLink = c == QLatin1Char(']') && next == QLatin1Char('(');
        if (isEscape || isMark || isLink)
            prepared += QLatin1Char('\\');
        prepared += c;
    }
    return escapeMarkdownInline(prepared);
}

/// Whether an underscore opens emphasis, or closes it, by what stands on its sides.
bool opensEmphasis(QStringView text, qsizetype at)
{
    return (at == 0 || !text[at - 1].isLetterOrNumber()) && at + 1 < text.size()
           && !text[at + 1].isSpace() && text[at + 1] != underscore;
}

bool closesEmphasis(QStringView text, qsizetype at)
{
    return !text[at - 1].isSpace() && (at + 1 >= text.size() || !text[at + 1].isLetterOrNumber());
}

/// Emphasis ends with each line and begins again on the next, because Markdown reads it by lines.
QString emphasised(QStringView run)
{
    QString out;
    for (const QStringView line : run.split(lineFeed)) {
        const QStringView text = line.trimmed();
        if (!out.isEmpty())
            out += lineFeed;
        out += line.left(text.isEmpty() ? 0 : text.data() - line.data());
        if (!text.isEmpty())
            out += QLatin1Char('*') + escapedRun(text) + QLatin1Char('*');
    }
    return out;
}

/// Whether Markdown would read a table out of the line and its neighbours.
bool isTableRule(QStringView line)
{
    return line.contains(QLatin1Char('|')) && line.contains(QLatin1Char('-'))
           && std::all_of(line.cbegin(), line.cend(),
                          [](QChar c) { return c.isSpace() || QStringView(u"|:-").contains(c); });
}

/// A paragraph, or several lines that stay lines, as Markdown.
QString markdownFromPlain(QStringView text)
{
    QString inlined;
    qsizetype done = 0;
    qsizetype open = text.indexOf(underscore);
    while (open >= 0) {
        const qsizetype close = text.indexOf(underscore, open + 1);
        if (close < 0)
            break;
        if (!opensEmphasis(text, open) || !closesEmphasis(text, close)) {
            open = close;
            continue;
        }
        inlined += escapedRun(text.mid(done, open - done));
        inlined += emphasised(text.mid(open + 1, close - open - 1));
        done = close + 1;
        open = text.indexOf(underscore, done);
    }
    inlined += escapedRun(text.mid(done));

    QStringList lines;
    for (const QStringView line : QStringView(inlined).split(lineFeed)) {
        lines += escapeMarkdownLine(line.toString());
        if (isTableRule(line))
            lines.last().replace(QLatin1Char('|'), QLatin1String("\\|"));
    }
    return lines.join(lineFeed);
}

/// Puts the next line of a paragraph behind the others. A compound that was broken at its hyphen
/// or dash closes up again.
void joinLine(QString &paragraph, QStringView line)
{
    const QStringView text = line.trimmed();
    if (!paragraph.isEmpty()) {
        const auto fromEnd = [&](qsizetype i) {
            return i < paragraph.size() ? paragraph[paragraph.size() - 1 - i] : QChar();
        };
        const bool isHyphen = fromEnd(0) == QLatin1Char('-');
        const bool isCompound =
            isHyphen && fromEnd(1).isLetter() && startsWithSmallLetter(text.left(1));
        const bool isDashed =
            text.front().isLetter()
            && ((fromEnd(0) == QChar(0x2014) && fromEnd(1).isLetterOrNumber())
                || (isHyphen && fromEnd(1) == fromEnd(0) && fromEnd(2).isLetterOrNumber()));
        if (!isCompound && !isDashed)
            paragraph += QLatin1Char(' ');
    }
    paragraph += text;
}

QString linesAsMarkdown(std::span<const QStringView> lines)
{
    qsizetype margin = indentation(lines.front());
    bool isDialogue = lines.size() > 1;
    for (const QStringView line : lines) {
        margin = std::min(margin, indentation(line));
        const QChar first = line.trimmed().front();
        isDialogue = isDialogue && (isOpeningQuote(first) || isDash(first));
    }
    if (isDialogue) { // one speech a line: paragraphs, not verse
        QStringList speeches;
        for (const QStringView line : lines)
            speeches += markdownFromPlain(line.trimmed());
        return speeches.join(QStringLiteral("\n\n"));
    }
    QString plain;
    for (const QStringView line : lines) {
        if (!plain.isEmpty())
            plain += lineFeed;
        const qsizetype deeper = std::min<qsizetype>(indentation(line) - margin, 40);
        plain += QString(deeper, QLatin1Char(' '));
        plain += line.trimmed();
    }
    return markdownFromPlain(plain);
}

QString proseAsMarkdown(std::span<const QStringView> lines, const PlainTextLayout &layout)
{
    qsizetype margin = indentation(lines.front());
    for (const QStringView line : lines)
        margin = std::min(margin, indentation(line));
    QStringList paragraphs;
    QString paragraph;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        bool begins = i == 0 || !layout.isHardWrapped;
        if (!begins) {
            const Break found = breakBetween(lines[i - 1], lines[i], layout.width);
            begins = (indentation(lines[i]) > margin && indentation(lines[i - 1]) == margin
                      && endsSentence(lines[i - 1]))
                     || (found.isEarly && !found.isBeforeSmall && endsSentence(lines[i - 1]));
        }
        if (begins && !paragraph.isEmpty()) {
            paragraphs += markdownFromPlain(paragraph);
            paragraph.clear();
        }
        joinLine(paragraph, lines[i]);
    }
    paragraphs += markdownFromPlain(paragraph);
    return paragraphs.join(QStringLiteral("\n\n"));
}

} // namespace

PlainTextLayout measureLayout(std::span<const QStringView> lines)
{
    // Only lines that another one follows at once: the last of a paragraph may be of any length.
    std::array<qsizetype, 512> histogram{};
    qsizetype count = 0;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const QStringView line = withoutEnd(lines[i]);
        if (line.isEmpty() || lines[i + 1].trimmed().isEmpty())
            continue;
        ++histogram[std::min<std::size_t>(std::size_t(line.size()), histogram.size() - 1)];
        ++count;
    }
    PlainTextLayout layout;
    qsizetype below = 0;
    for (std::size_t length = 0; length < histogram.size() && below * 10 < count * 9; ++length) {
        below += histogram[length];
        layout.width = qsizetype(length);
    }
    layout.isHardWrapped = count > 0 && layout.width >= narrowestWrap && layout.width <= widestWrap;
    return layout;
}

QString markdownFromBlock(std::span<const QStringView> lines, const PlainTextLayout &layout)
{
    if (lines.empty())
        return {};
    if (lines.size() == 1) {
        const QString rule = ruleFromLine(lines.front());
        return rule.isEmpty() ? markdownFromPlain(lines.front().trimmed()) : rule;
    }
    return shapeOf(lines, layout) == BlockShape::Lines ? linesAsMarkdown(lines)
                                                       : proseAsMarkdown(lines, layout);
}

QString titleFromLine(QStringView line)
{
    QString title = line.toString().simplified();
    if (title.size() > 2 && title.startsWith(underscore) && title.endsWith(underscore))
        title = title.mid(1, title.size() - 2);
    return title;
}

} // namespace vl::app
