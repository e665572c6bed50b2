#pragma once

#include <QtCore/QStringView>

namespace vl::app {

/// White space as `\s` of our patterns means it: the six ASCII characters, no Unicode blanks.
constexpr bool isPatternSpace(char16_t c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

/// The characters that a backslash takes the meaning from.
constexpr bool isAsciiPunctuation(char16_t c)
{
    return (c >= 0x21 && c <= 0x2F) || (c >= 0x3A && c <= 0x40) || (c >= 0x5B && c <= 0x60)
           || (c >= 0x7B && c <= 0x7E);
}

/// The first place at or after `from` that is no `\s`.
inline qsizetype skipPatternSpace(QStringView text, qsizetype from = 0)
{
    while (from < text.size() && isPatternSpace(text[from].unicode()))
        ++from;
    return from;
}

} // namespace vl::app
