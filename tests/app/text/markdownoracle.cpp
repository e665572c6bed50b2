#include "markdownoracle.h"

#include <QtCore/QHash>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <functional>

namespace {

QRegularExpression re(const char *pattern)
{
    return QRegularExpression(QString::fromLatin1(pattern));
}

QString replaced(const QString &text, const QRegularExpression &pattern,
                 const std::function<QString(const QRegularExpressionMatch &)> &replacement)
{
    QString result;
    qsizetype copied = 0;
    for (auto it = pattern.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result += text.mid(copied, match.capturedStart() - copied) + replacement(match);
        copied = match.capturedEnd();
    }
    return result + text.mid(copied);
}

QString htmlEscaped(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if ((c < u' ' && c != u'\t' && c != u'\n' && c != u'\r') || c >= QChar(0xFFFE))
            continue;
        result += c;
    }
    result.replace(u'&', QLatin1String("&amp;")).replace(u'<', QLatin1String("&lt;"));
    return result.replace(u'>', QLatin1String("&gt;")).replace(u'"', QLatin1String("&quot;"));
}

bool isPunctuation(QChar c)
{
    return QLatin1String("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~").contains(c);
}

const char urlPart[] = "((?:[^()\\s]|\\([^()]*\\))++)\\)";

class Oracle
{
public:
    QString render(const QString &markdown)
    {
        static const auto definition = re("^\\[\\^([^\\]]+)\\]:\\s*(.*)$");
        static const auto reference = re("\\[\\^([^\\]]+)\\]");
        QStringList lines;
        for (const QString &line : markdown.split(u'\n')) {
            const auto match = definition.match(line.trimmed());
            if (match.hasMatch())
                m_definitions.insert(match.captured(1), match.captured(2));
            else
                lines.append(line);
        }
        for (const QString &line : lines) {
            for (auto it = reference.globalMatch(line); it.hasNext();) {
                const QString id = it.next().captured(1);
                if (m_definitions.contains(id) && !m_order.contains(id))
                    m_order.append(id);
            }
        }
        blocks(lines);
        flush();
        if (!m_order.isEmpty()) {
            m_out += QLatin1String("<section class=\"footnotes\">\n<hr>\n<ol>\n");
            for (qsizetype i = 0; i < m_order.size(); ++i) {
                const QString number = QString::number(i + 1);
                m_out += QLatin1String("<li id=\"fn-") + number + QLatin1String("\"><p>")
                         + inlineText(m_definitions.value(m_order[i]))
                         + QLatin1String(" <a href=\"#fnref-") + number
                         + QLatin1String("\" class=\"footnote-backref\">") + QChar(0x21A9)
                         + QLatin1String("</a></p></li>\n");
            }
            m_out += QLatin1String("</ol>\n</section>\n");
        }
        return m_out;
    }

private:
    void blocks(const QStringList &lines)
    {
        static const auto separator = re("^\\|?\\s*:?-+:?\\s*(\\|\\s*:?-+:?\\s*)*\\|?$");
        static const auto heading = re("^(#{1,6})\\s+(.*)$");
        static const auto rule = re("^([-*_])\\1{2,}$");
        static const auto item = re("^\\s*[-*]\\s+(.*)$");
        static const auto quote = re("^\\s*>\\s?(.*)$");
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QString line = lines[i].trimmed();
            const QString next = i + 1 < lines.size() ? lines[i + 1].trimmed() : QString();
            if (line.isEmpty()) {
                flush();
            } else if (line.contains(u'|') && next.contains(u'|')
                       && separator.match(next).hasMatch()) {
                flush();
                i = table(lines, i) - 1;
            } else if (const auto found = heading.match(line); found.hasMatch()) {
                flush();
                const QString level = QString::number(found.capturedLength(1));
                m_out += QLatin1String("<h") + level + u'>' + inlineText(found.captured(2))
                         + QLatin1String("</h") + level + QLatin1String(">\n");
            } else if (rule.match(line).hasMatch()) {
                flush();
                m_out += QLatin1String("<hr>\n");
            } else if (const auto found = item.match(line); found.hasMatch()) {
                flushAllBut(m_items);
                m_items.append(inlineText(found.captured(1)));
            } else if (const auto found = quote.match(line); found.hasMatch()) {
                flushAllBut(m_quotes);
                m_quotes.append(inlineText(found.captured(1)));
            } else {
                flushAllBut(m_paragraph);
                m_paragraph.append(inlineText(line));
            }
        }
    }

    void flushAllBut(const QStringList &kept)
    {
        if (kept.isEmpty())
            flush();
    }

    void flush()
    {
        if (!m_paragraph.isEmpty())
            m_out += QLatin1String("<p>") + m_paragraph.join(u' ') + QLatin1String("</p>\n");
        if (!m_items.isEmpty()) {
            m_out += QLatin1String("<ul>\n");
            for (const QString &entry : m_items)
                m_out += QLatin1String("<li>") + entry + QLatin1String("</li>\n");
            m_out += QLatin1String("</ul>\n");
        }
        if (!m_quotes.isEmpty())
            m_out += QLatin1String("<blockquote>\n<p>") + m_quotes.join(u' ')
                     + QLatin1String("</p>\n</blockquote>\n");
        m_paragraph.clear();
        m_items.clear();
        m_quotes.clear();
    }

    static QStringList cells(const QString &line)
    {
        static const auto bar = re("(?<!\\\\)\\|");
        QString row = line.trimmed();
        if (row.startsWith(u'|'))
            row.remove(0, 1);
        if (row.endsWith(u'|'))
            row.chop(1);
        QStringList split = row.split(bar);
        for (QString &cell : split)
            cell = cell.replace(QLatin1String("\\|"), QLatin1String("|")).trimmed();
        return split;
    }

    qsizetype table(const QStringList &lines, qsizetype at)
    {
        QStringList styles;
        for (const QString &cell : cells(lines[at + 1])) {
            const bool left = cell.startsWith(u':');
            const bool right = cell.endsWith(u':');
            const char *side = left && right ? "center" : left ? "left" : right ? "right" : "";
            styles.append(*side
                              ? QStringLiteral(" style=\"text-align:%1\"").arg(QLatin1String(side))
                              : QString());
        }
        const auto row = [&](const QString &line, QLatin1String tag) {
            const QStringList split = cells(line);
            for (qsizetype i = 0; i < split.size(); ++i)
                m_out += u'<' + tag + styles.value(i) + u'>' + inlineText(split[i])
                         + QLatin1String("</") + tag + QLatin1String(">\n");
        };
        m_out += QLatin1String("<table>\n<thead>\n<tr>\n");
        row(lines[at], QLatin1String("th"));
        m_out += QLatin1String("</tr>\n</thead>\n<tbody>\n");
        for (at += 2; at < lines.size() && lines[at].contains(u'|'); ++at) {
            m_out += QLatin1String("<tr>\n");
            row(lines[at], QLatin1String("td"));
            m_out += QLatin1String("</tr>\n");
        }
        m_out += QLatin1String("</tbody>\n</table>\n");
        return at;
    }

    QString escaped(const QString &raw, QString &escapes)
    {
        QString text;
        bool code = false;
        for (qsizetype i = 0; i < raw.size(); ++i) {
            if (raw[i] == u'`')
                code = !code;
            if (raw[i] == u'\\' && !code && i + 1 < raw.size() && isPunctuation(raw[i + 1])
                && escapes.size() < 6400) {
                text += QChar(0xE000 + int(escapes.size()));
                escapes += raw[++i];
            } else {
                text += raw[i];
            }
        }
        return text;
    }

    static QString restored(QString text, const QStringList &codes, const QString &escapes)
    {
        static const auto marker = re("\\x00([0-9]+)\\x00");
        text = replaced(text, marker,
                        [&](const auto &match) { return codes[match.captured(1).toInt()]; });
        QString result;
        for (const QChar c : text) {
            if (c >= QChar(0xE000) && c.unicode() < 0xE000 + escapes.size())
                result += htmlEscaped(escapes.mid(c.unicode() - 0xE000, 1));
            else
                result += c;
        }
        return result;
    }

    QString inlineText(const QString &raw)
    {
        static const auto code = re("`([^`]+)`");
        static const auto reference = re("\\[\\^([^\\]]+)\\]");
        static const auto image =
            QRegularExpression(QLatin1String("!\\[([^\\]]*)\\]\\(") + QLatin1String(urlPart));
        static const auto link =
            QRegularExpression(QLatin1String("\\[([^\\]]+)\\]\\(") + QLatin1String(urlPart));
        QString escapes;
        QStringList codes;
        QString text = htmlEscaped(escaped(raw, escapes));
        text = replaced(text, code, [&](const auto &match) {
            codes.append(QLatin1String("<code>") + match.captured(1) + QLatin1String("</code>"));
            return QChar(u'\0') + QString::number(codes.size() - 1) + QChar(u'\0');
        });
        text = replaced(text, reference, [&](const auto &match) {
            const qsizetype place = m_order.indexOf(match.captured(1));
            if (place < 0)
                return match.captured(0);
            const QString number = QString::number(place + 1);
            const int count = ++m_counts[match.captured(1)];
            const QString anchor = count == 1 ? number : number + u'-' + QString::number(count);
            return QLatin1String("<sup class=\"footnote-ref\" id=\"fnref-") + anchor
                   + QLatin1String("\"><a href=\"#fn-") + number + QLatin1String("\">") + number
                   + QLatin1String("</a></sup>");
        });
        const auto url = [&](const QString &written, bool isImage) {
            return isSafe(restored(written, codes, escapes), isImage) ? written
                                                                      : QStringLiteral("#");
        };
        text = replaced(text, image, [&](const auto &match) {
            return QLatin1String("<img src=\"") + url(match.captured(2), true)
                   + QLatin1String("\" alt=\"") + match.captured(1) + QLatin1String("\"/>");
        });
        text = replaced(text, link, [&](const auto &match) {
            return QLatin1String("<a href=\"") + url(match.captured(2), false)
                   + QLatin1String("\">") + match.captured(1) + QLatin1String("</a>");
        });
        text.replace(re("\\*\\*([^*]+)\\*\\*"), QStringLiteral("<strong>\\1</strong>"));
        text.replace(re("\\*([^*]+)\\*"), QStringLiteral("<em>\\1</em>"));
        text.replace(re("~~([^~]+)~~"), QStringLiteral("<del>\\1</del>"));
        return restored(text, codes, escapes);
    }

    static bool isSafe(const QString &url, bool isImage)
    {
        static const auto relative = re("^[^:]*[/?#]|^[^:]*$");
        if (relative.match(url).hasMatch())
            return true;
        const qsizetype colon = url.indexOf(u':');
        const QString scheme = url.left(colon).toLower();
        static const QStringList allowed = QStringLiteral("http https mailto tel ftp").split(u' ');
        return allowed.contains(scheme)
               || (isImage && scheme == QLatin1String("data")
                   && url.mid(colon + 1, 6).toLower() == QLatin1String("image/"));
    }

    QString m_out;
    QStringList m_paragraph;
    QStringList m_items;
    QStringList m_quotes;
    QHash<QString, QString> m_definitions;
    QStringList m_order;
    QHash<QString, int> m_counts;
};

/// Lone surrogates as characters of two planes that no test writes, and back.
QString withoutLoneSurrogates(const QString &text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            result += text.mid(i++, 2);
        else if (text[i].isSurrogate())
            result += QChar(text[i].unicode() - 0xD800 + 0x4000);
        else
            result += text[i];
    }
    return result;
}

QString withLoneSurrogates(QString text)
{
    for (QChar &c : text) {
        if (c.unicode() >= 0x4000 && c.unicode() < 0x4800)
            c = QChar(c.unicode() - 0x4000 + 0xD800);
    }
    return text;
}

} // namespace

QString renderedByPatterns(const QString &markdown)
{
    return withLoneSurrogates(Oracle().render(withoutLoneSurrogates(markdown)));
}

QString lineEscapedByPatterns(const QString &line)
{
    static const auto rule = re("^\\s*[-*_]([ \\t]*[-*_]){2,}[ \\t]*$");
    static const auto marker = re("^(\\s*)([-+*>]|#{1,6}|[0-9]+[.)])\\s");
    QString plain = withoutLoneSurrogates(line);
    if (rule.match(plain).hasMatch()) {
        plain.insert(plain.indexOf(re("\\S")), u'\\');
    } else if (const auto match = marker.match(plain); match.hasMatch()) {
        const bool numbered = match.captured(2).at(0).isDigit();
        plain.insert(numbered ? match.capturedEnd(2) - 1 : match.capturedStart(2), u'\\');
    }
    return withLoneSurrogates(plain);
}
