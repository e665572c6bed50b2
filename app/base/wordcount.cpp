#include "app/base/wordcount.h"

namespace vl::app {

qsizetype countWords(QStringView text)
{
    qsizetype words = 0;
    bool insideWord = false;
    for (const QChar c : text) {
        const char16_t unit = c.unicode();
        const bool isSpace =
            unit < 0x80 ? unit == u' ' || (unit >= 0x09 && unit <= 0x0d) : c.isSpace();
        words += !isSpace && !insideWord;
        insideWord = !isSpace;
    }
    return words;
}

} // namespace vl::app
