#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

namespace vl::app {

/// One embedded object, `![[target]]`, in a text.
struct ObjectEmbed
{
    QString target;         ///< what stands between the brackets, never empty
    qsizetype position = 0; ///< UTF-16 offset of the `!`
    qsizetype length = 0;   ///< UTF-16 units from `!` to the last `]`, both included

    bool operator==(const ObjectEmbed &) const = default;
};

/// Puts a backslash before every `*`, backtick, `~` and `_`. Backslashes are not doubled, so the
/// way back is clear only for text that has no backslash escapes of its own.
QString escapeMarkdownInline(const QString &text);

/// Disarms a line that would start a block (rule, list, quote, heading) with one backslash at its
/// marker; any other comes back unchanged.
QString escapeMarkdownLine(const QString &line);

/// Embeds an object of the project: `![[target]]`.
QString objectEmbed(const QString &target);

/// All embedded objects, from left to right.
QList<ObjectEmbed> findObjectEmbeds(const QString &text);

/// The text with one blank in place of every embedded object and every footnote reference, those
/// with nothing between their brackets included.
QString withoutEmbedsAndReferences(const QString &text);

} // namespace vl::app
