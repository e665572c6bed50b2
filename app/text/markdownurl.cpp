#include "app/text/markdownurl.h"

#include "app/text/markdownscan.h"

namespace vl::app {

namespace {

/// Whether the text is this lower-case one, capitals of ASCII apart; other letters have no kin
/// here, although Unicode folds a long s to an s.
bool isText(QStringView text, QLatin1String lower)
{
    if (text.size() != lower.size())
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if ((c >= u'A' && c <= u'Z' ? char16_t(c + 0x20) : c) != lower[i].unicode())
            return false;
    }
    return true;
}

bool isAllowedScheme(QStringView scheme)
{
    for (const char *const allowed : {"http", "https", "mailto", "tel", "ftp"}) {
        if (isText(scheme, QLatin1String(allowed)))
            return true;
    }
    return false;
}

} // namespace

qsizetype markdownUrlEnd(QStringView text, qsizetype at)
{
    const qsizetype start = at;
    for (; at < text.size(); ++at) {
        const char16_t c = text[at].unicode();
        if (c == u')')
            return at > start ? at : -1;
        if (isPatternSpace(c))
            return -1;
        if (c == u'(') {
            do {
                if (++at == text.size() || text[at] == u'(')
                    return -1;
            } while (text[at] != u')');
        }
    }
    return -1;
}

bool isSafeMarkdownUrl(QStringView url, bool image)
{
    qsizetype colon = 0;
    for (; colon < url.size() && url[colon] != u':'; ++colon) {
        if (url[colon] == u'/' || url[colon] == u'?' || url[colon] == u'#')
            return true;
    }
    if (colon == url.size() || isAllowedScheme(url.left(colon)))
        return true;
    return image && isText(url.left(colon), QLatin1String("data"))
           && isText(url.mid(colon + 1, 6), QLatin1String("image/"));
}

} // namespace vl::app
