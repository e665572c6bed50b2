#pragma once

#include "app/text/manuscript.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace vl::app {

/// What the title page and the running header of a standard manuscript say beside the text.
struct ManuscriptRtfOptions
{
    QString title;   ///< "Untitled" stands for an empty one
    QString author;  ///< the legal name; its last word is the surname in the header
    QString contact; ///< lines separated by line feeds; may be empty
    QString penName; ///< the byline; the author stands for an empty one
};

/// The whole manuscript as one RTF document of ASCII characters, in the standard submission layout.
/// The word count on the title page is rounded; an empty manuscript shows the lowest figure, 100.
QString exportManuscriptRtf(const ManuscriptRtfOptions &options,
                            const QList<ManuscriptEntry> &entries);

/// Plain text as RTF: control characters of RTF escaped, everything beyond ASCII as "\u" escapes,
/// one a UTF-16 code unit.
QString rtfEscape(const QString &text);

/// One paragraph or title of Markdown as RTF: bold, italics and backslash escapes are converted,
/// code and links keep their text, everything else is plain text. Formatting is closed at the end.
QString markdownInlineToRtf(const QString &text);

/// A whole Markdown text as body paragraphs, parted by its blank lines. Line breaks inside a
/// paragraph stay as they are.
QString markdownToRtfParagraphs(const QString &text);

} // namespace vl::app
