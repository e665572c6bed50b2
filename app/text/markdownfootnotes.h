#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringView>

#include <vector>

namespace vl::app {

/// A footnote that a text defines.
struct MarkdownFootnote
{
    QStringView definition; ///< the raw text of the last definition of its id
    quint64 number = 0;     ///< its place in the order of first references, from 1; 0 while without
    quint64 references = 0; ///< how many references to it were rendered so far
};

/// A piece of a text, from its first unit to the one behind its last.
struct TextRange
{
    qsizetype start = 0;
    qsizetype end = 0;
};

/// The footnotes of one Markdown text. It keeps views of that text, which must outlive it.
class MarkdownFootnotes
{
public:
    /// Finds the definition lines and numbers the footnotes by their first reference in the others.
    explicit MarkdownFootnotes(QStringView text);

    /// The definition lines without their line feeds, in ascending order.
    const std::vector<TextRange> &definitionLines() const { return m_definitionLines; }
    bool hasNumbered() const { return !m_order.empty(); }
    /// The numbered footnotes, number 1 first.
    const std::vector<size_t> &order() const { return m_order; }
    MarkdownFootnote &at(size_t index) { return m_footnotes[index]; }
    /// The footnote with this id if it has a number, else null.
    MarkdownFootnote *numbered(QStringView id);

private:
    void collectDefinitions(const std::vector<qsizetype> &marks);
    void numberReferences(const std::vector<qsizetype> &marks);

    QStringView m_text;
    std::vector<TextRange> m_definitionLines;
    QHash<QStringView, size_t> m_indexes; // id -> place in m_footnotes
    std::vector<MarkdownFootnote> m_footnotes;
    std::vector<size_t> m_order;
};

} // namespace vl::app
