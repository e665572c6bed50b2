#include "app/text/markdownfootnotes.h"

#include "app/text/markdownscan.h"

namespace vl::app {

namespace {

/// The next "[^" at or after `from`, or -1. The circumflex is the rarer of the two.
qsizetype nextFootnoteMark(QStringView text, qsizetype from)
{
    for (qsizetype at = from + 1; (at = text.indexOf(u'^', at)) >= 0; ++at) {
        if (text[at - 1] == u'[')
            return at - 1;
    }
    return -1;
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
    collectDefinitions();
    if (!m_footnotes.empty())
        numberReferences();
}

MarkdownFootnote *MarkdownFootnotes::numbered(QStringView id)
{
    const auto found = m_indexes.constFind(id);
    if (found == m_indexes.cend() || m_footnotes[*found].number == 0)
        return nullptr;
    return &m_footnotes[*found];
}

void MarkdownFootnotes::collectDefinitions()
{
    qsizetype at = 0;
    while ((at = nextFootnoteMark(m_text, at)) >= 0) {
        const qsizetype start = lineStart(m_text, at);
        if (start < 0) {
            at += 2;
            continue;
        }
        const qsizetype end = lineEnd(m_text, at);
        const QStringView line = m_text.mid(at, end - at).trimmed();
        at = end;
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

void MarkdownFootnotes::numberReferences()
{
    auto definition = m_definitionLines.cbegin();
    qsizetype end = -1; // of the line that `at` is in
    qsizetype at = 0;
    while ((at = nextFootnoteMark(m_text, at)) >= 0) {
        if (at > end)
            end = lineEnd(m_text, at);
        while (definition != m_definitionLines.cend() && definition->end < at)
            ++definition;
        const bool defines = definition != m_definitionLines.cend() && definition->start <= at;
        const qsizetype close = defines ? -1 : m_text.left(end).indexOf(u']', at + 2);
        if (close < 0) {
            at = end;
            continue;
        }
        if (const auto index = m_indexes.constFind(m_text.mid(at + 2, close - at - 2));
            index != m_indexes.cend() && m_footnotes[*index].number == 0) {
            m_order.push_back(*index);
            m_footnotes[*index].number = m_order.size();
        }
        at = close + 1;
    }
}

} // namespace vl::app
