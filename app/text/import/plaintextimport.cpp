#include "app/text/import/plaintextimport.h"

#include "app/base/files.h"
#include "app/text/chapterheading.h"
#include "app/text/import/plaintextlayout.h"
#include "app/text/import/textdecoding.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace vl::app {

namespace {

struct PlainTextImport
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::PlainTextImport)
};

/// A heading, or the lines of a block, in the order of the text.
struct Piece
{
    std::optional<ChapterHeading> heading;
    bool isSpacedTitle = false; ///< a title set in spaced-out letters, with no word that marks it
    bool isEndOfBook = false;   ///< the line that parts a book from the licence behind it
    QString title;              ///< of a heading
    std::size_t first = 0;      ///< its lines
    std::size_t last = 0;       ///< behind the last
};

/// Where a heading stands among the others, for telling a table of contents from the chapters.
quint64 keyOf(const ChapterHeading &heading)
{
    return quint64(heading.rank) << 32U | quint64(quint32(heading.number));
}

bool isWider(const Piece &a, const Piece &b)
{
    return a.heading->rank < b.heading->rank;
}

qsizetype wordsIn(std::span<const QStringView> lines)
{
    qsizetype words = 0;
    for (const QStringView line : lines)
        words += line.trimmed().count(QLatin1Char(' ')) + 1;
    return words;
}

/// Whether a line could be a chapter's title on a line of its own.
bool looksLikeTitle(QStringView line)
{
    line = line.trimmed();
    if (line.isEmpty() || line.size() > 80 || !line.front().isLetterOrNumber())
        return false;
    if (isInCapitals(line))
        return true;
    if (QStringView(u".,;:!?\u2026\"'\u201d\u2019\u00bb\u00ab").contains(line.back()))
        return false;
    int words = 0;
    int capitals = 0;
    for (const QStringView word : line.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        ++words;
        capitals += word.front().isUpper() || word.front().isDigit() ? 1 : 0;
    }
    return line.front().isUpper() && capitals * 2 > words;
}

/// Reads one plain-text book: cuts it into headings and blocks, weeds out what only looks like a
/// heading, and nests what is left.
class PlainTextBook
{
public:
    explicit PlainTextBook(const QString &text);

    ImportedManuscript read(const QString &fallbackTitle);

private:
    void addBlock(std::size_t first, std::size_t last);
    bool addHeading(std::size_t first, std::size_t last);
    void demote(Piece &piece) { piece.heading.reset(); }
    bool isNumeralInSentence(std::size_t piece) const;
    void dropStrayNumerals();
    void dropNumeralsOfPages();
    void dropSpacedLines();
    void dropContents();
    void dropContentsRun(std::size_t first, std::size_t last, QHash<quint64, int> &later);
    void joinSubtitles();
    std::vector<int> levels() const;
    std::span<const QStringView> linesOf(const Piece &piece) const;
    QString bodyFrom(std::size_t &piece) const;

    std::vector<QStringView> m_lines;
    PlainTextLayout m_layout;
    std::vector<Piece> m_pieces;
    bool m_hasContents = false; ///< a table of contents stands before the first heading
};

PlainTextBook::PlainTextBook(const QString &text)
{
    for (const QStringView line : QStringView(text).tokenize(u'\n'))
        m_lines.push_back(line);
    m_layout = measureLayout(m_lines);
    std::size_t first = 0;
    for (std::size_t i = 0; i <= m_lines.size(); ++i) {
        const bool isEnd = i == m_lines.size() || m_lines[i].trimmed().isEmpty();
        if (isEnd && first < i)
            addBlock(first, i);
        if (isEnd)
            first = i + 1;
    }
}

/// A block is a heading, several of falling rank, a heading with text below it, or text.
void PlainTextBook::addBlock(std::size_t first, std::size_t last)
{
    while (first < last && addHeading(first, last)) {
        const Piece &heading = m_pieces.back();
        first = heading.last;
    }
    if (first < last) {
        Piece piece;
        piece.first = first;
        piece.last = last;
        m_pieces.push_back(std::move(piece));
    }
}

/// Adds the heading with which the lines begin; false when there is none.
bool PlainTextBook::addHeading(std::size_t first, std::size_t last)
{
    Piece piece;
    piece.first = first;
    piece.last = first + 1;
    const QStringView line = m_lines[first].trimmed();
    const auto joined = withoutLetterSpacing(line);
    piece.title = titleFromLine(joined ? QStringView(*joined) : line);
    piece.heading = readChapterHeading(piece.title);
    const std::size_t count = last - first;
    if (!piece.heading && joined && count == 1) {
        piece.heading = ChapterHeading{HeadingRank::Volume, 0, false, true};
        piece.isSpacedTitle = true;
    }
    if (!piece.heading && line.startsWith(QLatin1String("*** END OF "))) {
        piece.heading = ChapterHeading{HeadingRank::Matter, 0, false, true};
        piece.isEndOfBook = true;
        piece.title.remove(QLatin1Char('*'));
        piece.title = piece.title.trimmed();
    }
    if (!piece.heading)
        return false;
    if (count > 1) {
        const QStringView second = m_lines[first + 1].trimmed();
        const auto below = readChapterHeading(second);
        const bool isBroken = line.size() + 1 + second.indexOf(QLatin1Char(' ')) > m_layout.width;
        if (below && below->rank <= piece.heading->rank)
            return false; // a list of headings
        if (!below && piece.heading->hasTitle && count <= 3 && isBroken) {
            for (; piece.last < last; ++piece.last) // a long title over several lines
                piece.title += QLatin1Char(' ') + titleFromLine(m_lines[piece.last]);
        } else if (!below && count == 2 && !piece.heading->hasTitle && looksLikeTitle(second)) {
            piece.title += QLatin1String(": ") + titleFromLine(second);
            piece.heading->hasTitle = true;
            piece.last = last;
        } else if (!below && piece.heading->hasTitle && isBroken) {
            return false; // a sentence that begins like a heading
        }
    }
    m_pieces.push_back(std::move(piece));
    return true;
}

std::span<const QStringView> PlainTextBook::linesOf(const Piece &piece) const
{
    return std::span(m_lines).subspan(piece.first, piece.last - piece.first);
}

/// Whether a sentence goes on over a numeral, as over the end of a page.
bool PlainTextBook::isNumeralInSentence(std::size_t piece) const
{
    if (piece == 0 || piece + 1 >= m_pieces.size() || m_pieces[piece - 1].heading
        || m_pieces[piece + 1].heading)
        return false;
    const QStringView before = m_lines[m_pieces[piece - 1].last - 1].trimmed();
    const QStringView after = m_lines[m_pieces[piece + 1].first].trimmed();
    return after.front().isLower()
           && (before.back().isLower() || before.back() == QLatin1Char(',')
               || before.back() == QLatin1Char('-'));
}

/// The numbers of pages count up like those of chapters, but fall into sentences.
void PlainTextBook::dropNumeralsOfPages()
{
    std::array<int, 2> all{};
    std::array<int, 2> inSentence{};
    const auto isNumeral = [](const Piece &piece) {
        return piece.heading && piece.heading->rank == HeadingRank::Numeral;
    };
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        if (isNumeral(m_pieces[i])) {
            ++all[m_pieces[i].heading->isRoman];
            inSentence[m_pieces[i].heading->isRoman] += isNumeralInSentence(i) ? 1 : 0;
        }
    }
    for (Piece &piece : m_pieces) {
        if (isNumeral(piece)
            && inSentence[piece.heading->isRoman] * 5 > all[piece.heading->isRoman])
            demote(piece);
    }
}

/// A numeral alone on its line is a heading only as one of a row that counts up from 1.
void PlainTextBook::dropStrayNumerals()
{
    struct Run
    {
        int style = 0;
        int last = 0;
        std::vector<std::size_t> members;
    };
    std::vector<Run> runs; // those that may go on
    std::vector<std::size_t> strays;
    const auto close = [&](const Run &run) {
        if (run.members.size() < 2)
            strays.insert(strays.end(), run.members.begin(), run.members.end());
    };
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        if (!m_pieces[i].heading)
            continue;
        const ChapterHeading &heading = *m_pieces[i].heading;
        if (heading.rank != HeadingRank::Numeral) {
            std::for_each(runs.begin(), runs.end(), close);
            runs.clear();
            continue;
        }
        const int style = (heading.isRoman ? 2 : 0) + (heading.hasTitle ? 1 : 0);
        const auto found = std::find_if(runs.rbegin(), runs.rend(), [&](const Run &run) {
            const int step = heading.number - run.last;
            return run.style == style && (step == 1 || step == 2); // one may be missing
        });
        if (found != runs.rend()) {
            found->last = heading.number;
            found->members.push_back(i);
        } else if (heading.number == 1) {
            runs.push_back({style, 1, {i}});
            if (runs.size() > 8) {
                close(runs.front());
                runs.erase(runs.begin());
            }
        } else {
            strays.push_back(i);
        }
    }
    std::for_each(runs.begin(), runs.end(), close);
    for (const std::size_t stray : strays)
        demote(m_pieces[stray]);
}

/// A line of spaced-out letters is the title of a work when chapters or a good deal of text follow,
/// and not the publisher's name.
void PlainTextBook::dropSpacedLines()
{
    qsizetype words = 0; // since the next heading
    bool isBeforeChapter = false;
    for (std::size_t i = m_pieces.size(); i-- > 0;) {
        Piece &piece = m_pieces[i];
        if (!piece.heading) {
            words += wordsIn(linesOf(piece));
            continue;
        }
        if (piece.isSpacedTitle && words < 40 && !(isBeforeChapter && words == 0)) {
            demote(piece);
            words += wordsIn(linesOf(piece));
            continue;
        }
        isBeforeChapter = !piece.isSpacedTitle;
        words = 0;
    }
}

/// Headings that follow each other without text, and come again further on, are the contents.
void PlainTextBook::dropContents()
{
    QHash<quint64, int> later; // how often each heading comes behind the run at hand
    for (const Piece &piece : m_pieces)
        if (piece.heading)
            ++later[keyOf(*piece.heading)];
    std::size_t i = 0;
    while (i < m_pieces.size()) {
        std::size_t end = i;
        while (end < m_pieces.size() && m_pieces[end].heading)
            --later[keyOf(*m_pieces[end++].heading)];
        if (end - i >= 4)
            dropContentsRun(i, end, later);
        i = end + 1;
    }
}

void PlainTextBook::dropContentsRun(std::size_t first, std::size_t last, QHash<quint64, int> &later)
{
    const auto comesAgain = [&](std::size_t at) {
        return later.value(keyOf(*m_pieces[at].heading)) > 0;
    };
    // The last heading has the text below it, unless it only ends the list.
    std::size_t keep = last;
    const ChapterHeading &end = *m_pieces[last - 1].heading;
    const ChapterHeading &beforeEnd = *m_pieces[last - 2].heading;
    const bool endsList =
        end.rank == beforeEnd.rank && end.number == beforeEnd.number + 1 && comesAgain(last - 1);
    if (!endsList) {
        --keep;
        while (keep > first && isWider(m_pieces[keep - 1], m_pieces[keep]))
            --keep;
    }
    for (std::size_t i = keep; i < last; ++i)
        ++later[keyOf(*m_pieces[i].heading)];
    std::size_t hollow = 0; // with neither text nor a narrower heading below
    std::size_t again = 0;
    for (std::size_t i = first; i < keep; ++i) {
        hollow += i + 1 == last || !isWider(m_pieces[i], m_pieces[i + 1]) ? 1 : 0;
        again += comesAgain(i) ? 1 : 0;
    }
    for (std::size_t i = keep; i < last; ++i)
        --later[keyOf(*m_pieces[i].heading)];
    if (hollow < 3 || again * 2 < keep - first)
        return;
    m_hasContents = m_hasContents
                    || std::none_of(m_pieces.begin(), m_pieces.begin() + std::ptrdiff_t(first),
                                    [](const Piece &piece) { return piece.heading.has_value(); });
    for (std::size_t i = first; i < keep; ++i)
        demote(m_pieces[i]);
}

/// "CHAPTER I", an empty line, "The Sea": the title of a chapter on a line of its own, when most
/// chapters have one.
void PlainTextBook::joinSubtitles()
{
    std::array<int, 8> bare{};
    std::array<int, 8> titled{};
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i + 1 < m_pieces.size(); ++i) {
        const Piece &piece = m_pieces[i];
        if (!piece.heading || piece.heading->hasTitle)
            continue;
        ++bare[std::size_t(piece.heading->rank)];
        const Piece &next = m_pieces[i + 1];
        const bool hasTextBelow = i + 2 < m_pieces.size() && !m_pieces[i + 2].heading;
        const bool isText = !next.heading && next.last - next.first == 1 && hasTextBelow;
        if (isText && looksLikeTitle(m_lines[next.first])) {
            ++titled[std::size_t(piece.heading->rank)];
            found.push_back(i);
        }
    }
    for (const std::size_t i : found) {
        Piece &piece = m_pieces[i];
        Piece &subtitle = m_pieces[i + 1];
        const QStringView line = m_lines[subtitle.first];
        const auto rank = std::size_t(piece.heading->rank);
        if (titled[rank] * 2 < bare[rank] || (bare[rank] < 2 && !isInCapitals(line)))
            continue;
        const bool isClosed = piece.title.endsWith(QLatin1Char('.'));
        piece.title += (isClosed ? QLatin1String(" ") : QLatin1String(": ")) + titleFromLine(line);
        subtitle.first = subtitle.last; // its words stand in the title now
    }
}

/// The level of each heading, 0 for text: by rank, but a prologue, an epilogue and the like stand
/// beside what follows them.
std::vector<int> PlainTextBook::levels() const
{
    std::array<int, 7> ofRank{1, 2, 3, 0, 5, 6, 7};
    const auto firstOf = [&](HeadingRank rank) {
        return std::find_if(m_pieces.begin(), m_pieces.end(), [rank](const Piece &piece) {
            return piece.heading && piece.heading->rank == rank;
        });
    };
    if (firstOf(HeadingRank::Part) < firstOf(HeadingRank::Book)) // a part of several books
        std::swap(ofRank[std::size_t(HeadingRank::Part)], ofRank[std::size_t(HeadingRank::Book)]);
    const auto levelOf = [&](const Piece &piece) {
        return ofRank[std::size_t(piece.heading->rank)];
    };
    int widest = 5; // of the ranks that occur; a chapter's when none does
    for (const Piece &piece : m_pieces)
        if (piece.heading && piece.heading->rank != HeadingRank::Matter)
            widest = std::min(widest, levelOf(piece));

    std::vector<int> levels(m_pieces.size(), 0);
    int following = widest;
    for (std::size_t i = m_pieces.size(); i-- > 0;) {
        const Piece &piece = m_pieces[i];
        if (!piece.heading)
            continue;
        levels[i] = levelOf(piece);
        if (piece.heading->rank == HeadingRank::Matter) {
            const bool opensFamily = !piece.isEndOfBook && i + 1 < m_pieces.size()
                                     && m_pieces[i + 1].heading
                                     && m_pieces[i + 1].heading->rank > HeadingRank::Matter
                                     && m_pieces[i + 1].heading->number == 1;
            levels[i] = opensFamily ? std::min(widest, 4) : following;
        }
        following = levels[i];
    }
    return levels;
}

/// The text up to the next heading, which `piece` then names.
QString PlainTextBook::bodyFrom(std::size_t &piece) const
{
    QString body;
    for (; piece < m_pieces.size() && !m_pieces[piece].heading; ++piece) {
        const QString block = markdownFromBlock(linesOf(m_pieces[piece]), m_layout);
        if (!block.isEmpty() && !body.isEmpty())
            body += QLatin1String("\n\n");
        body += block;
    }
    return body;
}

ImportedManuscript PlainTextBook::read(const QString &fallbackTitle)
{
    dropNumeralsOfPages();
    dropStrayNumerals();
    dropSpacedLines();
    dropContents();
    joinSubtitles();
    const std::vector<int> levelOf = levels();

    std::vector<LevelledDocument> documents;
    std::size_t i = 0;
    const QString before = bodyFrom(i);
    const bool hasHeadings = i < m_pieces.size();
    if (!before.isEmpty() || !hasHeadings) {
        LevelledDocument front;
        front.level = hasHeadings ? levelOf[i] : 0;
        front.document.title = hasHeadings ? PlainTextImport::tr("Front Matter") : fallbackTitle;
        front.document.body = before;
        if (m_hasContents) // which a manuscript has none of
            front.document.kind = core::DocumentKind::Note;
        documents.push_back(std::move(front));
    }
    while (i < m_pieces.size()) {
        LevelledDocument next;
        next.level = levelOf[i];
        next.document.title = m_pieces[i].title;
        next.document.body = bodyFrom(++i);
        documents.push_back(std::move(next));
    }
    return {
        fallbackTitle, nestDocuments(std::move(documents)), {}, !before.isEmpty() || !hasHeadings};
}

} // namespace

ImportedManuscript importPlainText(QByteArrayView bytes, const QString &fallbackTitle)
{
    const QString text = decodeText(bytes);
    return PlainTextBook(text).read(fallbackTitle);
}

Result<ImportedManuscript> importTextFile(const QString &path)
{
    const auto bytes =
        readRegularFile(path, PlainTextImport::tr("Cannot read file: %1"), largestTextImport);
    if (!bytes)
        return bytes.asFailure();
    return importPlainText(*bytes, QFileInfo(path).completeBaseName());
}

} // namespace vl::app
