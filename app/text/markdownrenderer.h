#pragma once

#include <QtCore/QString>

namespace vl::app {

/// Turns the Markdown of documents and entities into an HTML fragment, the same bytes for preview,
/// pages and books. Any text renders; the work is linear in its length.
class MarkdownRenderer
{
public:
    /// The whole text as blocks and, if it refers to footnotes it defines, their section. Safe to
    /// call on any thread.
    ///
    /// Choices a writer may meet: the last definition of a footnote id holds; ids are compared with
    /// the text after escaping, so one with `&`, `<`, `>`, `"` or a backslash escape finds no
    /// definition; `\|` in a table cell is a literal `|` inside code too, but the one `|` that ends
    /// a row goes whatever stands before it; private-use characters of the text that fall among
    /// the n first from U+E000, n being the escapes of the same paragraph line, heading, item or
    /// cell, come out as those escaped characters, and all others stay; lone surrogates are
    /// characters like any other.
    static QString toHtml(const QString &markdown);
};

} // namespace vl::app
