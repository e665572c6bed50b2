#pragma once

#include "app/base/result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <atomic>
#include <functional>

namespace vl::app {

/// What is searched for, and how.
struct SearchOptions
{
    QString pattern;
    bool isCaseSensitive = false;
    bool wholeWords = false;
    bool isExpression = false; ///< the pattern is a regular expression

    bool operator==(const SearchOptions &) const = default;
};

/// A place of a text.
struct SearchMatch
{
    qsizetype position = 0; ///< UTF-16 units
    qsizetype length = 0;   ///< never 0
    QStringList groups;     ///< of an expression: the whole match, then its groups

    bool operator==(const SearchMatch &) const = default;
};

/// A compiled search. In a plain one a straight quotation mark or apostrophe also finds the
/// typographic ones, and a blank also finds no-break blanks. An expression is searched in stretches
/// of paragraphs, so that no expression, however it is written, holds a search for long.
class SearchPattern
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::SearchPattern)

public:
    /// Longer patterns are refused.
    static constexpr qsizetype maximumLength = 4096;
    /// An expression finds nothing that crosses the end of such a stretch, in UTF-16 units; a
    /// stretch ends with a paragraph unless that one is longer by far.
    static constexpr qsizetype stretch = 8192;
    static constexpr qsizetype longestStretch = 16384;

    /// Fails with what is wrong in the pattern and where.
    static Result<SearchPattern> compile(const SearchOptions &options);

    enum class Outcome
    {
        Done,
        Stopped,   ///< the receiver had enough
        TooComplex ///< the expression needs more steps than it is given
    };
    /// Hands all matches of a text on, from left to right, until the receiver gives false. Between
    /// stretches it looks whether the search was cancelled. Safe on several threads.
    Outcome find(const QString &text, const std::function<bool(SearchMatch)> &receive,
                 const std::function<bool()> &isCancelled = {}) const;

private:
    Outcome findIn(const QString &text, qsizetype offset,
                   const std::function<bool(SearchMatch)> &receive,
                   const std::function<bool()> &isCancelled) const;

    QRegularExpression m_expression;
    bool m_isExpression = false;
};

/// What a match is replaced with. For an expression "\1" and "$1" to "\99" and "$99" stand for its
/// groups ("\0", "$0" and "$&" for all of it), "\n" and "\t" for line end and tab, and "\\" and
/// "$$" for the signs themselves; a group that there is not is empty.
QString replacementFor(const SearchMatch &match, const QString &matched, const QString &replacement,
                       bool isExpression, bool keepsCase);

} // namespace vl::app
