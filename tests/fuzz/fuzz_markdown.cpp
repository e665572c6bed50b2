#include "app/text/footnotetext.h"
#include "app/text/markdownrenderer.h"
#include "app/text/markdowntext.h"
#include "tests/app/text/markdownoracle.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <cstdlib>
#include <cstring>

using namespace vl::app;

namespace {

constexpr qsizetype comparedSize = 1000; // longer texts take the patterns too long

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// UTF-16 as it comes, or mostly ASCII with the characters that a renderer may stumble over.
QString textOf(const uint8_t *data, size_t size)
{
    static const char16_t rare[] = {0x00A0, 0x0085, 0x2003, 0x2028, 0x3000, 0xD83D, 0xDE00, 0xE000,
                                    0xE001, 0xE002, 0xF8FF, 0xF900, 0xFFFD, 0xFFFE, 0xFFFF, 0x212A};
    if (size == 0)
        return {};
    QString text;
    if (data[0] & 1) {
        text.resize(qsizetype(size - 1) / 2);
        if (!text.isEmpty())
            std::memcpy(text.data(), data + 1, size_t(text.size()) * 2);
        return text;
    }
    for (size_t i = 1; i < size; ++i)
        text += QChar(data[i] < 0x80 ? char16_t(data[i]) : rare[data[i] & 15]);
    return text;
}

bool isSafeUrl(QStringView url, bool image)
{
    for (qsizetype i = 0; i < url.size(); ++i) {
        if (url[i] == u'/' || url[i] == u'?' || url[i] == u'#')
            return true;
        if (url[i] != u':')
            continue;
        const QString scheme = url.left(i).toString().toLower();
        static const QStringList allowed = QStringLiteral("http https mailto tel ftp").split(u' ');
        return allowed.contains(scheme)
               || (image && scheme == QLatin1String("data")
                   && url.mid(i + 1, 6).toString().toLower() == QLatin1String("image/"));
    }
    return true;
}

/// The pattern renderer has its own use for these characters.
bool hasPlaceholders(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() >= 0x4000 && c.unicode() < 0x4800; });
}

/// Only tags of our own, only URLs that may stand, no control characters.
void checkHtml(const QString &html)
{
    static const QStringList tags =
        QStringLiteral("p> /p> h1> h2> h3> h4> h5> h6> /h1> /h2> /h3> /h4> /h5> /h6> hr> ul> /ul> "
                       "li> /li> li|id=\"fn- blockquote> /blockquote> table> /table> thead> "
                       "/thead> tbody> /tbody> tr> /tr> th> th|style=\"text-align: td> "
                       "td|style=\"text-align: /th> /td> code> /code> sup|class=\"footnote-ref\" "
                       "/sup> a|href=\" /a> img|src=\" strong> /strong> em> /em> del> /del> "
                       "section|class=\"footnotes\"> /section> ol> /ol>")
            .replace(u' ', u'\n')
            .replace(u'|', u' ')
            .split(u'\n');
    const QStringView text(html);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        require(c >= 0x20 || c == u'\t' || c == u'\n' || c == u'\r');
        require(c < 0xFFFE);
        if (c != u'<')
            continue;
        const QStringView rest = text.mid(i + 1);
        bool known = false;
        for (const QString &tag : tags)
            known = known || rest.startsWith(tag);
        require(known);
        const bool image = rest.startsWith(u"img src=\"");
        if (image || rest.startsWith(u"a href=\"")) {
            const qsizetype start = rest.indexOf(u'"') + 1;
            require(isSafeUrl(rest.mid(start, rest.indexOf(u'"', start) - start), image));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = textOf(data, size);
    const QString html = MarkdownRenderer::toHtml(text);
    checkHtml(html);
    if (text.size() <= comparedSize && !hasPlaceholders(text)) {
        require(html == renderedByPatterns(text));
        require(escapeMarkdownLine(text) == lineEscapedByPatterns(text));
    }
    for (const FootnoteReference &reference : findFootnoteReferences(text))
        require(text.mid(reference.position, reference.length)
                == QLatin1String("[^") + reference.id + QLatin1Char(']'));
    for (const ObjectEmbed &embed : findObjectEmbeds(text))
        require(text.mid(embed.position, embed.length) == objectEmbed(embed.target));
    for (const QString &line : withoutFootnoteDefinitions(text).split(u'\n'))
        require(!isFootnoteDefinitionLine(line));
    return 0;
}
