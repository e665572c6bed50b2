#pragma once

#include "app/models/editortext.h"

#include <QtCore/QLocale>

#include <optional>

namespace vl::app {

/// A text with a selection; the caret is its end. Places are UTF-16 units.
struct SelectedText
{
    QString text;
    qsizetype from = 0;
    qsizetype to = 0;

    bool operator==(const SelectedText &) const = default;
};

/// Puts marks ("*", "**" or "~~") round the selection, or takes them away where they are. Without a
/// selection the word at the caret is meant, and where there is none, a pair to write into. White
/// space at the ends stays outside, each line has marks of its own.
SelectedText toggledMarks(const SelectedText &selected, QStringView marks);

/// What a key does to a line instead of what it always does; places are those of the line.
struct LineEdit
{
    TextEdit edit;
    qsizetype caret = 0; ///< afterwards

    bool operator==(const LineEdit &) const = default;
};

/// Return in a list or a quote: the next line begins like this one, numbers count on; on a line
/// that holds nothing but its mark, the mark goes.
std::optional<LineEdit> lineBreakEdit(const QString &line, qsizetype caret);
/// Tab and Shift+Tab in a list: the item moves in or out by two blanks.
std::optional<LineEdit> indentEdit(const QString &line, qsizetype caret, bool inwards);

/// Real quotes, dashes and ellipses for what is typed: how many characters before the caret give
/// way to which text; nothing when the character is to be taken as it is. `before` is the line up
/// to the caret. "--" becomes a dash, but not at the start of a line, where it may become a rule.
struct TypographicEdit
{
    qsizetype removed = 0;
    QString inserted;

    bool operator==(const TypographicEdit &) const = default;
};
std::optional<TypographicEdit> typographicEdit(QStringView before, QChar typed,
                                               const QLocale &locale);

} // namespace vl::app
