#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <optional>

namespace vl::app {

/// What a heading of a book opens, from the widest to the narrowest.
enum class HeadingRank
{
    Volume,  ///< "VOLUME I", and the titles of whole works
    Book,    ///< "BOOK ONE: 1805"
    Part,    ///< "PART TWO", "Act I", "Erster Teil"
    Matter,  ///< "PROLOGUE", "FIRST EPILOGUE: 1813 - 20": stands beside the numbered parts
    Chapter, ///< "CHAPTER IV", "Chapter 4. The Sea", "Drittes Kapitel"
    Scene,   ///< "SCENE II"
    Numeral, ///< "IV." or "12" and nothing else, or "I. A TITLE IN CAPITALS"
};

/// What a heading line says.
struct ChapterHeading
{
    HeadingRank rank = HeadingRank::Chapter;
    int number = 0;        ///< 0 when it has none
    bool isRoman = false;  ///< the number is a Roman numeral
    bool hasTitle = false; ///< more stands behind the number, or the keyword

    bool operator==(const ChapterHeading &) const = default;
};

/// Reads a line as the heading of a part of a book, in English, German, French, Spanish, Italian or
/// Portuguese; none when it reads as prose. Blanks at both ends are ignored.
std::optional<ChapterHeading> readChapterHeading(QStringView line);

/// The line with the blanks between the letters of spaced-out words taken away: "P A R T  I" gives
/// "PART I". Any other line gives nothing.
std::optional<QString> withoutLetterSpacing(QStringView line);

/// Whether letters occur in the text and all of them are capitals.
bool isInCapitals(QStringView text);

} // namespace vl::app
