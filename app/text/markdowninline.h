#pragma once

#include "app/text/htmlsink.h"
#include "app/text/markdownfootnotes.h"

#include <vector>

namespace vl::app {

/// Renders the inside of blocks: escapes, code, footnote references, images, links, emphasis.
/// One object serves one text; it keeps its buffers from call to call.
class MarkdownInline
{
public:
    /// Writes to `out` and counts references in `footnotes`; both must outlive the object.
    MarkdownInline(HtmlSink &out, MarkdownFootnotes &footnotes);

    /// Appends the rendering of one piece of text without line feeds.
    void render(QStringView text);

private:
    enum class Target
    {
        Image,
        Link
    };
    /// What becomes of an asterisk or tilde.
    enum class Role : quint8
    {
        Text,
        Opening,
        Closing,
        PairOpening,
        PairClosing,
        Skipped
    };
    struct Mark
    {
        qsizetype place = 0; ///< counted from the start of the working text
        Role role = Role::Text;
    };

    QStringView working() const { return m_out.from(m_start); }
    void replaceWorking(qsizetype first, qsizetype copied);
    void dropMarksFrom(qsizetype place);

    void escapeAndShieldCode(QStringView text);
    void appendSpecial(char16_t c);
    void backtick(qsizetype &open);

    void replaceFootnoteReferences();
    void replaceTargets(Target kind);
    QStringView checkedUrl(QStringView url, Target kind);

    void collectMarks(qsizetype first);
    static void pairDoubled(std::vector<Mark> &marks);
    static void pairSingle(std::vector<Mark> &marks);
    void finish();
    qsizetype firstToFinish() const;
    void appendTag(Role role, bool isTilde);
    void appendRestored(QStringView text, HtmlSink &to) const;
    void appendUnescaped(QStringView text, HtmlSink &to) const;

    HtmlSink &m_out;
    MarkdownFootnotes &m_footnotes;
    HtmlSink m_scratch;
    HtmlSink m_url;
    HtmlSink m_codeText;
    qsizetype m_start = 0; // where in m_out the working text begins
    unsigned m_seen = 0;   // which marks the working text may hold
    std::vector<char16_t> m_escapes;
    std::vector<TextRange> m_codes; // in m_codeText
    // What the first pass saw in the working text; valid until a reference or target is replaced.
    std::vector<qsizetype> m_brackets;
    std::vector<Mark> m_asterisks;
    std::vector<Mark> m_tildes;
};

} // namespace vl::app
