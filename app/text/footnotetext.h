#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace vl::app {

/// One mark `[^id]` in a text.
struct FootnoteReference
{
    QString id;             ///< what stands between `[^` and `]`, never empty
    qsizetype position = 0; ///< UTF-16 offset of the `[`
    qsizetype length = 0;   ///< UTF-16 units from `[` to `]`, both included

    bool operator==(const FootnoteReference &) const = default;
};

/// The line that defines a footnote in a document's Markdown, with its line feed.
QString footnoteDefinitionLine(const QString &id, const QString &text);

/// The id for a new footnote: "fn" and the first number from 1 on that none of `usedIds` has.
QString newFootnoteId(const QStringList &usedIds);

/// All marks `[^id]` from left to right; the head of a definition line is one of them.
QList<FootnoteReference> findFootnoteReferences(const QString &text);

/// Whether the line defines a footnote: `[^id]:` after nothing but white space.
bool isFootnoteDefinitionLine(QStringView line);

/// The text without its footnote definition lines; all other lines stay as they are, parted by
/// line feeds as before.
QString withoutFootnoteDefinitions(const QString &text);

} // namespace vl::app
