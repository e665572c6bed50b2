#pragma once

#include <QtCore/QStringView>

#include <vector>

namespace vl::app {

/// How a piece of a Markdown line is to look; the values are bits that combine.
enum MarkdownStyle : quint32
{
    PlainText = 0,
    EmphasisText = 1U << 0,
    StrongText = 1U << 1,
    StrikeText = 1U << 2,
    CodeText = 1U << 3,
    LinkText = 1U << 4,
    FootnoteText = 1U << 5,
    HeadingText = 1U << 6,
    QuoteText = 1U << 7,
    MarkText = 1U << 8, ///< syntax: no part of what the reader sees
};

/// What kind of line it is.
enum class MarkdownLineKind : quint8
{
    Paragraph,
    Empty,
    Heading,
    ListItem,
    Quote,
    SceneBreak,
    FootnoteDefinition,
    TableRow,
    Fence, ///< a line that opens or closes fenced code
    FencedCode,
};

struct MarkdownRange
{
    int start = 0; ///< UTF-16 units from the start of the line
    int length = 0;
    quint32 style = PlainText; ///< bits of MarkdownStyle, never none

    bool operator==(const MarkdownRange &) const = default;
};

/// One picture, `![text](path)`, in a line.
struct MarkdownImage
{
    int pathStart = 0; ///< UTF-16 units from the start of the line
    int pathLength = 0;

    bool operator==(const MarkdownImage &) const = default;
};

/// What the lines above leave to a line: the mark and length of the fence it stands in.
struct MarkdownLineState
{
    char16_t fence = 0; ///< a backtick or a tilde; 0 outside of fenced code
    quint8 length = 0;  ///< of the mark that opened it, at most 255

    bool operator==(const MarkdownLineState &) const = default;
};

struct MarkdownLine
{
    MarkdownLineKind kind = MarkdownLineKind::Paragraph;
    quint8 level = 0;                  ///< of a heading, 1 to 6
    int indent = 0;                    ///< units before the text of a list item or a quote
    MarkdownLineState after;           ///< for the next line
    std::vector<MarkdownRange> ranges; ///< in order, without overlap; plain text has none
    std::vector<MarkdownImage> images;
};

/// Units of a line that are looked at; the rest of a longer one stays plain.
inline constexpr qsizetype markdownStyleLimit = 32768;

/// The state after a line, without the work for its ranges.
MarkdownLineState markdownStateAfter(QStringView line, MarkdownLineState before);

/// Reads one line for the eye of a writer: emphasis and the like as the renderer means them, plus
/// fenced code. The time grows with the line's length alone, whatever stands in it.
MarkdownLine readMarkdownLine(QStringView line, MarkdownLineState before);

} // namespace vl::app
