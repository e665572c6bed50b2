#include "app/text/stylechecker.h"

#include <QtCore/QString>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>

using namespace vl::app;

namespace {

/// Bytes as UTF-16 units, or as pieces that the rules react to.
QString textFrom(const uint8_t *data, size_t size)
{
    static const char16_t *const pieces[] = {
        u" ",      u" ",      u"\t",       u"\n",     u".",   u"!",
        u"\u00A0", u"\u0301", u"_",        u"9",      u"ſ",   u"\u212A",
        u"\xD801", u"\xDC00", u"was",      u"being",  u"not", u"ly",
        u"ed",     u"seen",   u"bad",      u"The",    u"the", u"very",
        u"kind",   u"of",     u"in",       u"order",  u"to",  u"at",
        u"end",    u"day",    u"majority", u"break",  u"ice", u"In order to win ",
        u"only",   u"É",      u"é",        u"\u0130", u"%1",  u"at the end of the day",
    };
    QString text;
    if (size == 0)
        return text;
    if (data[0] % 2 == 0) {
        text.resize(qsizetype((size - 1) / 2));
        if (!text.isEmpty())
            std::memcpy(text.data(), data + 1, size_t(text.size()) * 2);
        return text;
    }
    for (size_t i = 1; i < size; ++i)
        text += QStringView(pieces[data[i] % std::size(pieces)]);
    return text;
}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const StyleChecker checker;
    const QString text = textFrom(data, size);
    const QList<StyleIssue> issues = checker.check(text);
    qsizetype next = 0;
    for (const auto &rule : checker.rules()) {
        qint64 end = 0;
        for (const StyleIssue &issue : rule->check(text)) {
            // One walk for all rules finds what they find one by one, in the same order.
            require(next < issues.size() && issues[next] == issue);
            ++next;
            require(issue.kind == rule->kind() && issue.start >= end && issue.length > 0);
            end = issue.start + issue.length;
            require(end <= text.size());
        }
    }
    require(next == issues.size());
    return 0;
}
