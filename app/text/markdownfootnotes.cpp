#include "app/text/markdownfootnotes.h"

#include "app/text/markdownscan.h"

#include <cstring>

namespace vl::app {

namespace {

/// All places of "[^", found by the circumflex, which is the rarer of the two. The C library looks
/// for single bytes at several times the pace of a search for units.
std::vector<qsizetype> footnoteMarks(QStringView text)
{
    std::vector<qsizetype> marks;
    const auto *const bytes = reinterpret_cast<const char *>(text.utf16());
    const auto size = size_t(text.size()) * sizeof(char16_t);
    size_t at = 0;
    while (at < size) {
        const void *const found = std::memchr(bytes + at, '^', size - at);
        if (found == nullptr)
            break;
        at = size_t(static_cast<const char *>(found) - bytes) + 1;
        const auto unit = qsizetype((at - 1) / sizeof(char16_t));
        if (unit > 0 && text[unit] == u'^' && text[unit - 1] == u'[') {
            marks.push_back(unit - 1);
            at = size_t(unit + 1) * sizeof(char16_t);
        }
    }
    return marks;
}

/// Where the line begins whose first character that is no blank stands at `at`; -1 if another
/// character comes before it.
qsizetype lineStart(QStringView text, qsizetype at)
{
    while (at > 0 && text[at - 1] != u'\n') {
        if (!text[at - 1].isSpace())
            return -1;
        --at;
    }
    return at;
}

qsizetype lineEnd(QStringView text, qsizetype from)
{
    const qsizetype end = text.indexOf(u'\n', from);
    return end < 0 ? text.size() : end;
}

} // namespace

MarkdownFootnotes::MarkdownFootnotes(QStringView text)
    : m_text(text)
{
    const std::vector<qsizetype> marks = footnoteMarks(text);
    collectDefinitions(marks);
    if (!m_footnotes.empty())
        numberReferences(marks);
}

MarkdownFootnote *MarkdownFootnotes::numbered(QStringView id)
{
    const auto found = m_indexes.constFind(id);
    if (found == m_indexes.cend() || m_footnotes[*found].number == 0)
        return nullptr;
    return &m_footnotes[*found];
}

void MarkdownFootnotes::collectDefinitions(const std::vector<qsizetype> &marks)
{
    for (const qsizetype at : marks) {
        const qsizetype start = lineStart(m_text, at);
        if (start < 0)
            continue;
        const qsizetype end = lineEnd(m_text, at);
        const QStringView line = m_text.mid(at, end - at).trimmed();
        const qsizetype close = line.indexOf(u']', 2);
        if (close <= 2 || close + 1 == line.size() || line[close + 1] != u':')
            continue;
        m_definitionLines.push_back({start, end});
        const QStringView id = line.mid(2, close - 2);
        auto index = m_indexes.constFind(id);
        if (index == m_indexes.cend()) {
            index = m_indexes.insert(id, m_footnotes.size());
            m_footnotes.emplace_back();
        }
        m_footnotes[*index].definition = line.mid(skipPatternSpace(line, close + 2));
    }
}

void MarkdownFootnotes::numberReferences(const std::vector<qsizetype> &marks)
{
    auto definition = m_definitionLines.cbegin();
    qsizetype end = -1; // of the line of the last mark
    qsizetype next = 0; // where the next match may start
    for (const qsizetype at : marks) {
        if (at < next)
            continue;
        if (at > end)
            end = lineEnd(m_text, at);
        while (definition != m_definitionLines.cend() && definition->end < at)
            ++definition;
        const bool defines = definition != m_definitionLines.cend() && definition->start <= at;
        const qsizetype close = defines ? -1 : m_text.left(end).indexOf(u']', at + 2);
        next = close < 0 ? end : close + 1;
        if (close < 0)
            continue;
        const auto index = m_indexes.constFind(m_text.mid(at + 2, close - at - 2));
        if (index != m_indexes.cend() && m_footnotes[*index].number == 0) {
            m_order.push_back(*index);
            m_footnotes[*index].number = m_order.size();
        }
    }
}

} // namespace vl::app
