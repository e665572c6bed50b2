#pragma once

#include <QtCore/QString>

namespace vl::app {

/// A change of a text: at `position` (UTF-16 units), `removed` units give way to `inserted`.
struct TextEdit
{
    qsizetype position = 0;
    qsizetype removed = 0;
    QString inserted;

    bool isEmpty() const { return removed == 0 && inserted.isEmpty(); }
    bool operator==(const TextEdit &) const = default;
};

/// The smallest single edit that makes one text of the other. It never cuts a surrogate pair.
TextEdit difference(QStringView before, QStringView after);
/// The same where the caret tells which of several equal edits is meant: in "banana" with one "an"
/// less, the one that ends or begins at `caret`, a place of `before`.
TextEdit difference(QStringView before, QStringView after, qsizetype caret);

/// The edit as it applies after another one changed the same text first. Where the two overlap,
/// the text that either put in stays, so that no side loses a word.
TextEdit rebased(const TextEdit &edit, const TextEdit &other);

/// The body as a text widget holds it: every line end that the toolkit knows ("\r\n", "\r", the
/// paragraph separator and the frame marks U+FDD0 and U+FDD1) is one "\n" there.
QString shownText(const QString &body);

/// The body after its shown text was edited into `edited`. Whatever the edit does not touch keeps
/// its bytes, line ends of other systems included.
QString bodyAfterEdit(const QString &body, const QString &edited);

/// Where a place of the body stands in its shown text, and the other way round; both in UTF-16
/// units, clamped to the text.
qsizetype shownPosition(const QString &body, qsizetype bodyPosition);
qsizetype bodyPosition(const QString &body, qsizetype shownPosition);

} // namespace vl::app
