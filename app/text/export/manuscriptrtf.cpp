#include "app/text/export/manuscriptrtf.h"

#include "app/text/footnotetext.h"

#include <QtCore/QStringView>

#include <algorithm>
#include <utility>

namespace vl::app {

namespace {

constexpr QChar lineFeed = QLatin1Char('\n');

/// The white space of "\s" in a pattern without Unicode properties: ASCII only, so that a no-break
/// space holds its words together.
constexpr bool isAsciiSpace(QChar c)
{
    const char16_t unit = c.unicode();
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

constexpr bool isAsciiPunctuation(QChar c)
{
    const char16_t unit = c.unicode();
    return (unit >= 0x21 && unit <= 0x2F) || (unit >= 0x3A && unit <= 0x40)
           || (unit >= 0x5B && unit <= 0x60) || (unit >= 0x7B && unit <= 0x7E);
}

constexpr bool isPlainInRtf(QChar c)
{
    const char16_t unit = c.unicode();
    return unit < 0x80 && unit != u'\\' && unit != u'{' && unit != u'}'
           && (unit >= 0x20 || unit == u'\t' || unit == u'\n' || unit == u'\r');
}

void appendEscaped(QString &out, QStringView text)
{
    qsizetype runStart = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isPlainInRtf(c))
            continue;
        out += text.mid(runStart, i - runStart);
        runStart = i + 1;
        if (c.unicode() >= 0x80) {
            out += QLatin1String(R"(\u)");
            out += QString::number(static_cast<qint16>(c.unicode()));
            out += QLatin1Char('?');
        } else if (c.unicode() >= 0x20) {
            out += QLatin1Char('\\');
            out += c;
        }
    }
    out += text.mid(runStart);
}

/// Every "`code`" replaced by what stands between the marks. A mark that nothing closes stays, and
/// so does the first of two that touch.
QString withoutCodeMarks(const QString &text)
{
    const QLatin1Char mark('`');
    qsizetype open = text.indexOf(mark);
    if (open < 0)
        return text;
    QString out;
    out.reserve(text.size());
    qsizetype done = 0;
    while (open >= 0) {
        const qsizetype close = text.indexOf(mark, open + 1);
        if (close < 0)
            break;
        if (close == open + 1) {
            open = close;
            continue;
        }
        out += QStringView(text).mid(done, open - done);
        out += QStringView(text).mid(open + 1, close - open - 1);
        done = close + 1;
        open = text.indexOf(mark, done);
    }
    out += QStringView(text).mid(done);
    return out;
}

/// Finds the next place of one character from ever later positions, reading the text only once.
class ForwardFinder
{
public:
    ForwardFinder(const QString &text, QLatin1Char wanted)
        : m_text(text)
        , m_wanted(wanted)
    {
    }

    /// The first place at or after `from`, which never goes back; -1 when there is none.
    qsizetype find(qsizetype from)
    {
        if (m_found >= 0 && m_found < from)
            m_found = m_text.indexOf(m_wanted, from);
        return m_found;
    }

private:
    const QString &m_text;
    const QLatin1Char m_wanted;
    qsizetype m_found = m_text.indexOf(m_wanted);
};

/// Every "[text](target)" and "![alt](target)" replaced by its text. The text ends at the first "]"
/// and the target at the first ")", whatever lies between.
QString withoutLinkTargets(const QString &text)
{
    if (!text.contains(QLatin1String("](")))
        return text;
    QString out;
    out.reserve(text.size());
    ForwardFinder textEnds(text, QLatin1Char(']'));
    ForwardFinder targetEnds(text, QLatin1Char(')'));
    qsizetype done = 0;
    qsizetype open = text.indexOf(QLatin1Char('['));
    while (open >= 0) {
        const qsizetype textEnd = textEnds.find(open + 1);
        if (textEnd < 0)
            break;
        qsizetype next = open + 1;
        if (textEnd + 1 < text.size() && text[textEnd + 1] == QLatin1Char('(')) {
            const qsizetype targetEnd = targetEnds.find(textEnd + 2);
            if (targetEnd < 0)
                break;
            const bool isImage = open > done && text[open - 1] == QLatin1Char('!');
            out += QStringView(text).mid(done, open - done - (isImage ? 1 : 0));
            out += QStringView(text).mid(open + 1, textEnd - open - 1);
            done = next = targetEnd + 1;
        }
        open = text.indexOf(QLatin1Char('['), next);
    }
    out += QStringView(text).mid(done);
    return out;
}

void appendInline(QString &out, const QString &markdown)
{
    const QString text = withoutLinkTargets(withoutCodeMarks(markdown));
    const QStringView view(text);
    bool isBold = false;
    bool isItalic = false;
    qsizetype runStart = 0;
    qsizetype i = 0;
    while (i < view.size()) {
        const bool hasNext = i + 1 < view.size();
        if (view[i] == QLatin1Char('\\') && hasNext && isAsciiPunctuation(view[i + 1])) {
            appendEscaped(out, view.mid(runStart, i - runStart));
            runStart = i + 1; // the escaped character opens the next run
            i += 2;
        } else if (view[i] == QLatin1Char('*')) {
            appendEscaped(out, view.mid(runStart, i - runStart));
            if (hasNext && view[i + 1] == QLatin1Char('*')) {
                isBold = !isBold;
                out += isBold ? QLatin1String(R"(\b )") : QLatin1String(R"(\b0 )");
                i += 2;
            } else {
                isItalic = !isItalic;
                out += isItalic ? QLatin1String(R"(\i )") : QLatin1String(R"(\i0 )");
                ++i;
            }
            runStart = i;
        } else {
            ++i;
        }
    }
    appendEscaped(out, view.mid(runStart));
    if (isBold)
        out += QLatin1String(R"(\b0 )");
    if (isItalic)
        out += QLatin1String(R"(\i0 )");
}

/// A stretch of white space that parts two paragraphs: from its first to its last line feed.
struct BlankLines
{
    qsizetype start = -1; ///< -1 when there is none
    qsizetype end = -1;
};

BlankLines nextBlankLines(const QString &text, qsizetype from)
{
    qsizetype start = text.indexOf(lineFeed, from);
    while (start >= 0) {
        qsizetype last = start;
        qsizetype i = start + 1;
        for (; i < text.size() && isAsciiSpace(text[i]); ++i) {
            if (text[i] == lineFeed)
                last = i;
        }
        if (last > start)
            return {start, last + 1};
        start = text.indexOf(lineFeed, i);
    }
    return {};
}

void appendParagraph(QString &out, const QString &text)
{
    if (text.isEmpty())
        return;
    out += QLatin1String(R"(\pard\fi720\sl480\slmult1\ql )");
    appendInline(out, text);
    out += QLatin1String("\\par\n");
}

void appendParagraphs(QString &out, const QString &text)
{
    qsizetype done = 0;
    for (BlankLines gap = nextBlankLines(text, 0); gap.start >= 0;
         gap = nextBlankLines(text, done)) {
        appendParagraph(out, text.mid(done, gap.start - done));
        done = gap.end;
    }
    appendParagraph(out, text.mid(done));
}

qint64 wordCount(const QString &text)
{
    qint64 words = 0;
    bool isInWord = false;
    for (const QChar c : text) {
        const bool isSpace = isAsciiSpace(c);
        words += !isSpace && !isInWord ? 1 : 0;
        isInWord = !isSpace;
    }
    return words;
}

qint64 roundedForTitlePage(qint64 words)
{
    if (words >= 10000)
        return (words + 500) / 1000 * 1000;
    return std::max<qint64>(100, (words + 50) / 100 * 100);
}

QString surname(const QString &author)
{
    const auto words = QStringView(author).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return words.isEmpty() ? QString() : words.last().toString();
}

void appendFrontPage(QString &out, const ManuscriptRtfOptions &options, qint64 words)
{
    const QString title = options.title.isEmpty() ? QStringLiteral("Untitled") : options.title;
    const QString byline = options.penName.isEmpty() ? options.author : options.penName;

    out += QLatin1String("{\\rtf1\\ansi\\ansicpg1252\\deff0\n"
                         "{\\fonttbl{\\f0\\fmodern\\fcharset0 Courier New;}}\n"
                         "\\paperw12240\\paperh15840\\margl1440\\margr1440\\margt1440\\margb1440"
                         "\\titlepg\n"
                         "{\\headerf\\pard\\par}\n");

    out += QLatin1String(R"({\header\pard\qr\f0\fs24 )");
    appendEscaped(out, surname(options.author));
    out += QLatin1String(" / ");
    appendEscaped(out, title.toUpper());
    out += QLatin1String(" / \\chpgn\\par}\n");

    out += QLatin1String(R"(\pard\f0\fs24\sl240\slmult1\ql\tqr\tx9360 )");
    appendEscaped(out, options.author);
    out += QLatin1String(R"(\tab About )");
    out += QString::number(roundedForTitlePage(words));
    out += QLatin1String(" words\\line\n");
    if (!options.contact.isEmpty()) {
        for (const QStringView line : QStringView(options.contact).split(lineFeed)) {
            appendEscaped(out, line);
            out += QLatin1String("\\line\n");
        }
    }
    out += QLatin1String("\\par\n");

    out += QLatin1String(R"(\pard\qc\sl240\slmult1\sb3600 )");
    appendEscaped(out, title);
    out += QLatin1String("\\par\n\\pard\\qc\\par\nby\\par\n\\par\n");
    appendEscaped(out, byline);
    out += QLatin1String("\\par\n\\page\n");
}

} // namespace

QString rtfEscape(const QString &text)
{
    QString out;
    out.reserve(text.size());
    appendEscaped(out, text);
    return out;
}

QString markdownInlineToRtf(const QString &text)
{
    QString out;
    out.reserve(text.size());
    appendInline(out, text);
    return out;
}

QString markdownToRtfParagraphs(const QString &text)
{
    QString out;
    out.reserve(text.size() + text.size() / 4);
    appendParagraphs(out, text);
    return out;
}

QString exportManuscriptRtf(const ManuscriptRtfOptions &options,
                            const QList<ManuscriptEntry> &entries)
{
    QStringList texts;
    texts.reserve(entries.size());
    qint64 words = 0;
    qsizetype length = 0;
    for (const ManuscriptEntry &entry : entries) {
        texts.append(withoutFootnoteDefinitions(entry.text));
        words += wordCount(texts.last());
        length += texts.last().size() + entry.title.size() + 128;
    }

    QString out;
    out.reserve(length + length / 4 + 1024);
    appendFrontPage(out, options, words);
    bool isAfterHeading = false;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (entries[i].level <= 1) {
            if (i > 0)
                out += QLatin1String("\\page\n");
            out += QLatin1String(R"(\pard\qc\sl480\slmult1\sb3600 )");
            appendInline(out, entries[i].title);
            out += QLatin1String("\\par\n\\pard\\qc\\sl480\\slmult1\\par\n");
            isAfterHeading = true;
        } else {
            if (i > 0 && !isAfterHeading)
                out += QLatin1String("\\pard\\qc\\sl480\\slmult1 #\\par\n");
            isAfterHeading = false;
        }
        appendParagraphs(out, texts[i]);
    }
    out += QLatin1String("\\pard\\qc\\sl480\\slmult1\\sb480 THE END\\par\n}\n");
    return out;
}

} // namespace vl::app
