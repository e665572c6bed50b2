#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <span>

namespace vl::app {

/// How the lines of a plain text are broken, measured over the whole of it.
struct PlainTextLayout
{
    qsizetype width = 0;        ///< UTF-16 units that nearly all broken lines keep within
    bool isHardWrapped = false; ///< paragraphs go over several lines; else a line is a paragraph
};

/// Measures a text from its lines, empty ones included.
PlainTextLayout measureLayout(std::span<const QStringView> lines);

/// One block of lines without an empty one among them, as Markdown: wrapped lines are joined into
/// paragraphs, verse and lists keep their lines and their indentation, a row of stars or dashes
/// becomes a rule, "_emphasis_" is kept as emphasis and everything else that Markdown would read as
/// markup is escaped.
QString markdownFromBlock(std::span<const QStringView> lines, const PlainTextLayout &layout);

/// A plain line as the title of a document: single blanks, no emphasis marks.
QString titleFromLine(QStringView line);

} // namespace vl::app
