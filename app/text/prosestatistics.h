#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace vl::app {

/// What can be counted in prose. Records of several texts are added up.
struct ProseStatistics
{
    qint64 words = 0;      ///< as countWords counts them
    qint64 paragraphs = 0; ///< blocks between blank lines that hold a letter or digit, no headings
    qint64 sentences = 0;
    qint64 spokenWords = 0;     ///< words inside quotation marks
    qint64 narratedWords = 0;   ///< all other words that hold a letter or digit, without headings
    qint64 speeches = 0;        ///< passages between quotation marks
    qint64 syllables = 0;       ///< by the rules of English
    qint64 longWords = 0;       ///< words of three syllables and more
    qint64 longestSentence = 0; ///< in words

    qint64 proseWords() const { return spokenWords + narratedWords; }
    ProseStatistics &operator+=(const ProseStatistics &other);
    bool operator==(const ProseStatistics &) const = default;
};

/// Counts a Markdown text in one walk. Speech stands in "…", “…”, „…“, «…», »…« or ‘…’ and ends
/// with the paragraph at the latest; an apostrophe is no quotation mark. A sentence ends at . ! ?
/// or … unless a small letter follows or the point belongs to a title such as "Mr.", and at the end
/// of a paragraph.
ProseStatistics measureProse(const QString &text);

/// Syllables of one English word, counted by its groups of vowels; at least 1.
int countSyllables(QStringView word);

} // namespace vl::app
