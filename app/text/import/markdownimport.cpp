#include "app/text/import/markdownimport.h"

#include "app/text/footnotetext.h"
#include "app/text/import/textdecoding.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QSet>

#include <algorithm>
#include <optional>
#include <vector>

namespace vl::app {

namespace {

struct MarkdownImport
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::MarkdownImport)
};

constexpr QChar lineFeed = QLatin1Char('\n');
constexpr std::size_t longestYaml = 500; // lines

/// The line without the indentation that a block may have, three blanks; nothing when it has more.
std::optional<QStringView> unindented(QStringView line)
{
    qsizetype blanks = 0;
    while (blanks < line.size() && line[blanks] == QLatin1Char(' '))
        ++blanks;
    if (blanks > 3 || (blanks < line.size() && line[blanks] == QLatin1Char('\t')))
        return std::nullopt;
    return line.mid(blanks).trimmed();
}

/// The marks with which fenced code begins or ends.
struct Fence
{
    QChar mark;
    qsizetype length = 0; ///< 0 for no fence
    bool isBare = false;  ///< nothing else on the line, so that it can close as well
};

Fence fenceIn(QStringView line)
{
    const auto text = unindented(line);
    if (!text || text->size() < 3)
        return {};
    const QChar mark = text->front();
    if (mark != QLatin1Char('`') && mark != QLatin1Char('~'))
        return {};
    qsizetype length = 0;
    while (length < text->size() && (*text)[length] == mark)
        ++length;
    const QStringView info = text->mid(length);
    if (length < 3 || (mark == QLatin1Char('`') && info.contains(mark)))
        return {};
    return {mark, length, info.isEmpty()};
}

struct Heading
{
    int level = 0; ///< 0 for no heading
    QString title;
};

/// "## Title" or "## Title ##"
Heading hashHeading(QStringView line)
{
    const auto text = unindented(line);
    if (!text)
        return {};
    int level = 0;
    while (level < text->size() && (*text)[level] == QLatin1Char('#'))
        ++level;
    if (level < 1 || level > 6 || level >= text->size() || !(*text)[level].isSpace())
        return {};
    QStringView title = text->mid(level).trimmed();
    qsizetype end = title.size();
    while (end > 0 && title[end - 1] == QLatin1Char('#'))
        --end;
    if (end == 0 || title[end - 1].isSpace())
        title = title.left(end).trimmed();
    return title.isEmpty() ? Heading{} : Heading{level, title.toString()};
}

bool consistsOf(QStringView text, QChar mark)
{
    return std::all_of(text.cbegin(), text.cend(), [mark](QChar c) { return c == mark; });
}

/// A single line that the next one underlines. A sentence above a row of dashes is no title, but
/// the last line before a break between scenes.
Heading underlinedHeading(QStringView line, QStringView next)
{
    const auto text = unindented(line);
    const auto rule = unindented(next);
    if (!text || !rule || text->isEmpty() || rule->size() < 2)
        return {};
    if (QStringView(u"#>|-*+`~").contains(text->front()) || text->contains(QLatin1Char('|')))
        return {};
    if (consistsOf(*rule, QLatin1Char('=')))
        return {1, text->toString()};
    const bool isSentence =
        text->size() > 100
        || QStringView(u".,;:!?\u2026\"'\u201d\u2019\u00bb\u00ab").contains(text->back());
    if (consistsOf(*rule, QLatin1Char('-')) && !isSentence)
        return {2, text->toString()};
    return {};
}

/// A footnote's definition, taken out of the document in which it stood.
struct Definition
{
    QString id;
    QString text;
    std::size_t home = 0; ///< the document
};

/// What a YAML block says.
struct Yaml
{
    QString title;
    QString text;              ///< empty when there is none beside the title
    std::size_t lineCount = 0; ///< of the block with its marks; 0 when there is none
};

QString unquoted(QStringView value)
{
    value = value.trimmed();
    for (const char16_t quote : {u'"', u'\''})
        if (value.size() >= 2 && value.front() == QChar(quote) && value.back() == QChar(quote))
            value = value.mid(1, value.size() - 2);
    return value.toString();
}

Yaml readYaml(const std::vector<QStringView> &lines)
{
    if (lines.empty() || lines.front().trimmed() != QLatin1String("---"))
        return {};
    const std::size_t limit = std::min(lines.size(), longestYaml);
    std::size_t end = 1;
    while (end < limit && lines[end].trimmed() != QLatin1String("---")
           && lines[end].trimmed() != QLatin1String("..."))
        ++end;
    if (end == limit)
        return {};
    Yaml yaml;
    bool hasKey = false;
    for (std::size_t i = 1; i < end; ++i) {
        const QStringView line = lines[i];
        const qsizetype colon = line.indexOf(QLatin1Char(':'));
        const bool isKey = colon > 0 && line.front().isLetter()
                           && (colon + 1 == line.size() || line[colon + 1].isSpace());
        if (!hasKey && !isKey && !line.trimmed().isEmpty() && line.front() != QLatin1Char('#'))
            return {}; // a rule and some prose
        hasKey = hasKey || isKey;
        if (isKey && yaml.title.isEmpty()
            && line.left(colon).compare(QLatin1String("title"), Qt::CaseInsensitive) == 0)
            yaml.title = unquoted(line.mid(colon + 1));
        else if (!line.trimmed().isEmpty() || !yaml.text.isEmpty())
            yaml.text += line.toString() + QLatin1Char('\n');
    }
    yaml.text = yaml.text.trimmed();
    yaml.lineCount = end + 1;
    return yaml;
}

/// Cuts one Markdown text at its headings.
class MarkdownSplitter
{
public:
    explicit MarkdownSplitter(const QString &text);

    ImportedManuscript read(const QString &fallbackTitle);

private:
    void findClosers();
    bool opensFence(const Fence &fence, std::size_t line) const;
    void split(std::size_t from);
    bool readHeading(std::size_t &line);
    bool readDefinition(std::size_t &line);
    void appendLine(QStringView line);
    void distributeDefinitions();
    ImportedDocument &current() { return m_documents.back().document; }

    std::vector<QStringView> m_lines;
    std::vector<LevelledDocument> m_documents; ///< the first is the text before all headings
    std::vector<Definition> m_definitions;
    /// For "`" and "~": the longest fence from each line on that can close another.
    std::vector<qsizetype> m_longestCloser[2];
    bool m_isInParagraph = false; ///< the line above holds text
};

MarkdownSplitter::MarkdownSplitter(const QString &text)
{
    for (const QStringView line : QStringView(text).tokenize(u'\n'))
        m_lines.push_back(line);
    findClosers();
    m_documents.emplace_back();
}

void MarkdownSplitter::findClosers()
{
    for (auto &longest : m_longestCloser)
        longest.resize(m_lines.size() + 1, 0);
    for (std::size_t i = m_lines.size(); i-- > 0;) {
        for (auto &longest : m_longestCloser)
            longest[i] = longest[i + 1];
        const Fence fence = fenceIn(m_lines[i]);
        if (fence.isBare) {
            qsizetype &longest = m_longestCloser[fence.mark == QLatin1Char('~')][i];
            longest = std::max(longest, fence.length);
        }
    }
}

/// A fence that nothing closes is text: the headings below it are not lost in it.
bool MarkdownSplitter::opensFence(const Fence &fence, std::size_t line) const
{
    return fence.length > 0
           && m_longestCloser[fence.mark == QLatin1Char('~')][line + 1] >= fence.length;
}

void MarkdownSplitter::appendLine(QStringView line)
{
    current().body += line;
    current().body += QLatin1Char('\n');
}

void MarkdownSplitter::split(std::size_t from)
{
    Fence open;
    for (std::size_t i = from; i < m_lines.size(); ++i) {
        const Fence fence = fenceIn(m_lines[i]);
        if (open.length > 0) {
            if (fence.isBare && fence.mark == open.mark && fence.length >= open.length)
                open = {};
        } else if (opensFence(fence, i)) {
            open = fence;
        } else if (readHeading(i) || readDefinition(i)) {
            m_isInParagraph = false;
            continue;
        }
        appendLine(m_lines[i]);
        m_isInParagraph = !m_lines[i].trimmed().isEmpty();
    }
}

/// Begins a document at a heading and moves to the heading's last line.
bool MarkdownSplitter::readHeading(std::size_t &line)
{
    Heading heading = hashHeading(m_lines[line]);
    if (heading.level == 0 && !m_isInParagraph && line + 1 < m_lines.size()) {
        heading = underlinedHeading(m_lines[line], m_lines[line + 1]);
        line += heading.level > 0 ? 1 : 0;
    }
    if (heading.level == 0)
        return false;
    LevelledDocument next;
    next.level = heading.level;
    next.document.title = heading.title;
    m_documents.push_back(std::move(next));
    return true;
}

/// Takes a footnote's definition out, with its further lines, which are indented, made one line.
bool MarkdownSplitter::readDefinition(std::size_t &line)
{
    if (!isFootnoteDefinitionLine(m_lines[line]))
        return false;
    QString text = m_lines[line].trimmed().toString();
    const qsizetype idEnd = text.indexOf(QLatin1Char(']'));
    Definition definition{text.mid(2, idEnd - 2), {}, m_documents.size() - 1};
    while (line + 1 < m_lines.size()) {
        const QStringView next = m_lines[line + 1];
        const bool isIndented =
            next.startsWith(QLatin1String("    ")) || next.startsWith(QLatin1Char('\t'));
        if (!isIndented || next.trimmed().isEmpty() || isFootnoteDefinitionLine(next))
            break;
        text += QLatin1Char(' ');
        text += next.trimmed();
        ++line;
    }
    definition.text = text;
    m_definitions.push_back(std::move(definition));
    return true;
}

/// A definition stays in its document, and goes to those that refer to it and have none of their
/// own; it leaves its document when only others refer to it.
void MarkdownSplitter::distributeDefinitions()
{
    if (m_definitions.empty())
        return;
    QHash<QString, QList<std::size_t>> byId; // into m_definitions
    for (std::size_t i = 0; i < m_definitions.size(); ++i)
        byId[m_definitions[i].id].append(i);
    std::vector<QList<std::size_t>> below(m_documents.size());
    std::vector<bool> isPlaced(m_definitions.size(), false);
    for (std::size_t i = 0; i < m_documents.size(); ++i) {
        QSet<QString> seen;
        for (const FootnoteReference &reference : findFootnoteReferences(
                 m_documents[i].document.title + lineFeed + m_documents[i].document.body)) {
            const auto found = byId.constFind(reference.id);
            if (found == byId.constEnd() || seen.contains(reference.id))
                continue;
            seen.insert(reference.id);
            const auto home = std::find_if(found->cbegin(), found->cend(), [&](std::size_t at) {
                return m_definitions[at].home == i;
            });
            const std::size_t chosen = home == found->cend() ? found->last() : *home;
            below[i].append(chosen);
            isPlaced[chosen] = true;
        }
    }
    for (std::size_t i = 0; i < m_definitions.size(); ++i)
        if (!isPlaced[i])
            below[m_definitions[i].home].append(i);
    for (std::size_t i = 0; i < m_documents.size(); ++i) {
        if (below[i].isEmpty())
            continue;
        QString &body = m_documents[i].document.body;
        body = body.trimmed();
        body += body.isEmpty() ? QString() : QStringLiteral("\n\n");
        std::sort(below[i].begin(), below[i].end());
        for (const std::size_t at : std::as_const(below[i]))
            body += m_definitions[at].text + lineFeed;
    }
}

QString withoutBlankEnds(const QString &text)
{
    qsizetype start = 0; // of the first line with text
    for (qsizetype i = 0; i < text.size() && text[i].isSpace(); ++i)
        start = text[i] == lineFeed ? i + 1 : start;
    qsizetype end = text.size();
    while (end > start && text[end - 1].isSpace())
        --end;
    return text.mid(start, end - start);
}

ImportedManuscript MarkdownSplitter::read(const QString &fallbackTitle)
{
    const Yaml yaml = readYaml(m_lines);
    split(yaml.lineCount);
    distributeDefinitions();
    for (LevelledDocument &next : m_documents)
        next.document.body = withoutBlankEnds(next.document.body);

    ImportedManuscript result;
    result.title = yaml.title.isEmpty() ? fallbackTitle : yaml.title;
    LevelledDocument &before = m_documents.front();
    const bool hasHeadings = m_documents.size() > 1;
    before.document.title = hasHeadings ? MarkdownImport::tr("Front Matter") : result.title;
    before.level = 7; // narrower than any heading, so that none comes below it
    result.hasFrontText = !hasHeadings || !before.document.body.isEmpty();
    if (!result.hasFrontText)
        m_documents.erase(m_documents.begin());
    result.documents = nestDocuments(std::move(m_documents));
    if (!yaml.text.isEmpty()) {
        ImportedDocument note;
        note.kind = core::DocumentKind::Note;
        note.title = MarkdownImport::tr("Metadata");
        note.body = yaml.text;
        result.documents.insert(result.documents.begin(), std::move(note));
    }
    return result;
}

} // namespace

ImportedManuscript importMarkdownText(QByteArrayView bytes, const QString &fallbackTitle)
{
    const QString text = decodeText(bytes);
    return MarkdownSplitter(text).read(fallbackTitle);
}

} // namespace vl::app
