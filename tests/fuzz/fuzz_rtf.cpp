// The inline conversion to RTF: whatever the text, the result is ASCII, opens no group, writes only
// its own control words and closes all formatting.

#include "app/text/export/manuscriptrtf.h"

#include <QtCore/QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace vl::app;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Reads RTF as a reader would and checks that it is whole.
void checkRtf(const QString &rtf)
{
    int bold = 0;
    int italic = 0;
    for (qsizetype i = 0; i < rtf.size(); ++i) {
        const char16_t c = rtf[i].unicode();
        require(c < 0x80 && c != u'{' && c != u'}');
        require(c >= 0x20 || c == u'\t' || c == u'\n' || c == u'\r');
        if (c != u'\\')
            continue;
        const QStringView rest = QStringView(rtf).mid(i + 1);
        require(!rest.isEmpty());
        if (rest.front() == QLatin1Char('\\') || rest.front() == QLatin1Char('{')
            || rest.front() == QLatin1Char('}')) {
            ++i;
        } else if (rest.front() == QLatin1Char('u')) {
            const qsizetype end = rest.indexOf(QLatin1Char('?'));
            bool isNumber = false;
            const int unit = end > 1 ? rest.mid(1, end - 1).toInt(&isNumber) : 0;
            require(isNumber && unit >= -32768 && unit <= 32767 && (unit < 0 || unit >= 0x80));
            i += end + 1;
        } else if (rest.startsWith(QLatin1String("b0 "))) {
            require(--bold == 0);
        } else if (rest.startsWith(QLatin1String("i0 "))) {
            require(--italic == 0);
        } else if (rest.startsWith(QLatin1String("b "))) {
            require(++bold == 1);
        } else {
            require(rest.startsWith(QLatin1String("i ")) && ++italic == 1);
        }
    }
    require(bold == 0 && italic == 0);
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that libFuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const auto *bytes = reinterpret_cast<const char *>(data + 1);
    const auto length = qsizetype(size - 1);
    // Half of the inputs as UTF-16 as it comes, so that lone surrogates occur.
    const QString text =
        data[0] % 2 == 0
            ? QString::fromUtf8(bytes, length)
            : QString(reinterpret_cast<const QChar *>(QByteArray(bytes, length).constData()),
                      length / 2);
    checkRtf(markdownInlineToRtf(text));
    if (data[0] % 16 >= 2)
        return 0; // the whole document takes far longer and has less to go wrong
    const QString document = exportManuscriptRtf({text, text, text, {}}, {{1, text, text, {}, {}}});
    require(document.startsWith(QLatin1String("{\\rtf1"))
            && document.endsWith(QLatin1String("}\n")));
    int depth = 0;
    for (qsizetype i = 0; i < document.size(); ++i) {
        if (document[i] == QLatin1Char('\\'))
            ++i;
        else if (document[i] == QLatin1Char('{'))
            ++depth;
        else if (document[i] == QLatin1Char('}'))
            require(--depth > 0 || i == document.size() - 2);
    }
    require(depth == 0);
    return 0;
}
