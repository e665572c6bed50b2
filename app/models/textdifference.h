#pragma once

#include <QtCore/QString>

#include <vector>

namespace vl::app {

/// One line of two texts held against each other.
struct DifferenceLine
{
    enum class Kind
    {
        Same,
        Removed, ///< only in the first text
        Added,   ///< only in the second
        Skipped  ///< stands for same lines that are left out; its text is empty
    };

    Kind kind = Kind::Same;
    QString text; ///< without its end

    bool operator==(const DifferenceLine &) const = default;
};

/// The lines of both texts in order, removed ones before those that took their place. Of same lines
/// only so many next to a difference are told; a negative number tells all.
std::vector<DifferenceLine> differenceLines(const QString &before, const QString &after,
                                            int context = -1);

/// A run of characters of a line, in UTF-16 units.
struct TextRun
{
    qsizetype position = 0;
    qsizetype length = 0;

    bool operator==(const TextRun &) const = default;
};

/// What differs within two lines, word by word: the runs of the first that went and those of the
/// second that came. Lines that have next to nothing in common differ as a whole and give none.
struct WordDifference
{
    std::vector<TextRun> removed;
    std::vector<TextRun> added;
};
WordDifference wordDifference(const QString &before, const QString &after);

} // namespace vl::app
