#include "core/id.h"

namespace vl::core {

namespace {

constexpr qsizetype textLength = 36;

bool isUuidText(QStringView text)
{
    if (text.size() != textLength)
        return false;
    for (qsizetype i = 0; i < textLength; ++i) {
        const char16_t c = text[i].unicode();
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            if (c != u'-')
                return false;
        } else if (!((c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f')
                     || (c >= u'A' && c <= u'F'))) {
            return false;
        }
    }
    return true;
}

} // namespace

QUuid uuidFromText(QStringView text)
{
    if (text.size() == textLength + 2 && text.front() == u'{' && text.back() == u'}')
        text = text.mid(1, textLength);
    // The toolkit's reader also takes text after the UUID, so the form is checked here.
    return isUuidText(text) ? QUuid::fromString(text) : QUuid();
}

QString uuidToText(const QUuid &uuid)
{
    return uuid.toString(QUuid::WithoutBraces);
}

} // namespace vl::core
