#pragma once

#include "app/text/stylewords.h"

#include <QtCore/QChar>
#include <QtCore/QStringView>

#include <array>

namespace vl::app {

/// What a character is to the style rules; one bit each. The classes are those of PCRE2 10.42 with
/// Unicode properties: a word character is a letter, a number or "_" (a combining mark is not), and
/// white space includes U+0085 and U+180E. Half a surrogate pair is an Other.
namespace charclass {
enum : quint8
{
    Letter = 1,
    OtherWord = 2, ///< numbers and the underscore
    Blank = 4,     ///< space and tab
    OtherSpace = 8,
    Other = 16,
    AnyWord = Letter | OtherWord,
    AnySpace = Blank | OtherSpace
};

namespace detail {
constexpr std::array<quint8, 128> makeAsciiTable()
{
    std::array<quint8, 128> table{};
    for (unsigned c = 0; c < table.size(); ++c) {
        const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (isLetter) {
            table[c] = Letter;
        } else if ((c >= '0' && c <= '9') || c == '_') {
            table[c] = OtherWord;
        } else if (c == ' ' || c == '\t') {
            table[c] = Blank;
        } else if (c >= '\n' && c <= '\r') {
            table[c] = OtherSpace;
        } else {
            table[c] = Other;
        }
    }
    return table;
}
inline constexpr std::array<quint8, 128> asciiTable = makeAsciiTable();

constexpr std::array<quint8, 128> makeLowerTable()
{
    std::array<quint8, 128> table{};
    for (unsigned c = 0; c < table.size(); ++c)
        table[c] = asciiTable[c] == Letter ? quint8(c | 0x20) : 0;
    return table;
}
/// The small letter of every ASCII letter, 0 for all else.
inline constexpr std::array<quint8, 128> lowerTable = makeLowerTable();
} // namespace detail

inline quint8 of(char32_t character)
{
    if (character < detail::asciiTable.size())
        return detail::asciiTable[character];
    switch (QChar::category(character)) {
    case QChar::Letter_Uppercase:
    case QChar::Letter_Lowercase:
    case QChar::Letter_Titlecase:
    case QChar::Letter_Modifier:
    case QChar::Letter_Other:
        return Letter;
    case QChar::Number_DecimalDigit:
    case QChar::Number_Letter:
    case QChar::Number_Other:
        return OtherWord;
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return OtherSpace;
    default:
        return character == 0x85 || character == 0x180E ? OtherSpace : Other;
    }
}
} // namespace charclass

/// One character of a text: its class and its length in UTF-16 units.
struct ScannedCharacter
{
    quint8 charClass = charclass::Other;
    quint8 units = 1;
};

/// The character that begins at a unit of the text, which must lie inside it.
inline ScannedCharacter characterAt(QStringView text, qsizetype at)
{
    const char16_t unit = text.utf16()[at];
    if (unit < charclass::detail::asciiTable.size())
        return {charclass::detail::asciiTable[unit], 1};
    if (!QChar::isSurrogate(unit))
        return {charclass::of(unit), 1};
    if (QChar::isHighSurrogate(unit) && at + 1 < text.size()
        && QChar::isLowSurrogate(text.utf16()[at + 1]))
        return {charclass::of(QChar::surrogateToUcs4(unit, text.utf16()[at + 1])), 2};
    return {charclass::Other, 1};
}

/// A longest run of word characters.
struct ScannedWord
{
    qsizetype start = 0; ///< in UTF-16 units, as all offsets
    qsizetype end = 0;
    qsizetype pairs = 0;                 ///< surrogate pairs in the word
    quint32 hash = 0;                    ///< for StyleVocabulary::find
    quint8 classes = 0;                  ///< of its characters
    quint8 gapBefore = charclass::Other; ///< classes of what parts it from the word before
    bool isListable = true; ///< whether it consists of what foldToList gives letters for

    qsizetype length() const { return end - start; }
    qsizetype characterCount() const { return length() - pairs; }
    bool isAllLetters() const { return classes == charclass::Letter; }
    bool followsWhiteSpace() const { return (gapBefore & ~charclass::AnySpace) == 0; }
    bool followsBlanks() const { return gapBefore == charclass::Blank; }
};

/// Reads a word from its first character on and gives the offset behind it.
inline qsizetype readWord(QStringView text, qsizetype at, ScannedWord &word)
{
    const qsizetype size = text.size();
    const char16_t *units = text.utf16();
    quint32 hash = StyleVocabulary::hashSeed;
    // Nearly all words are ASCII letters from end to end.
    for (; at < size && units[at] < charclass::detail::lowerTable.size(); ++at) {
        const quint8 folded = charclass::detail::lowerTable[units[at]];
        if (folded == 0)
            break;
        hash = StyleVocabulary::hashStep(hash, folded);
    }
    word.classes = at > word.start ? charclass::Letter : 0;
    while (at < size) {
        const ScannedCharacter next = characterAt(text, at);
        if (!(next.charClass & charclass::AnyWord))
            break;
        const char16_t folded = foldToList(units[at]);
        word.isListable = word.isListable && folded < 0x80;
        hash = StyleVocabulary::hashStep(hash, folded);
        word.classes |= next.charClass;
        word.pairs += next.units - 1;
        at += next.units;
    }
    word.hash = hash;
    return at;
}

/// Calls visit(word) for every word of the text from left to right.
template<typename Visitor>
void scanWords(QStringView text, Visitor &&visit)
{
    const qsizetype size = text.size();
    quint8 gap = charclass::Other;
    qsizetype at = 0;
    while (at < size) {
        const ScannedCharacter next = characterAt(text, at);
        if (!(next.charClass & charclass::AnyWord)) {
            gap |= next.charClass;
            at += next.units;
            continue;
        }
        ScannedWord word;
        word.start = at;
        word.gapBefore = gap;
        at = readWord(text, at, word);
        word.end = at;
        visit(word);
        gap = 0;
    }
}

} // namespace vl::app
