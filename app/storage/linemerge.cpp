#include "app/storage/linemerge.h"

#include "app/storage/linediff.h"

#include <QtCore/QHash>

#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>

namespace vl::app {
namespace {

constexpr size_t firstTableSize = size_t(1) << 20; ///< different lines
constexpr size_t maxLines = size_t(1) << 25; ///< of a text; a longer one is merged as a single line

template<typename View>
struct TextOf;
template<>
struct TextOf<QStringView>
{
    using Type = QString;
    static constexpr char16_t lineFeed = u'\n';
};
template<>
struct TextOf<QByteArrayView>
{
    using Type = QByteArray;
    static constexpr char lineFeed = '\n';
};

/// A text cut into lines. Numbers stand for the lines' contents without "\n".
template<typename View>
struct LineText
{
    View text;
    std::vector<qsizetype> starts; ///< of each line, and one past the end
    std::vector<int> lines;

    int count() const { return int(lines.size()); }
    bool endsWithLineFeed() const { return text.back() == TextOf<View>::lineFeed; }
    /// The lines [begin, end) as they stand, the "\n" of the last one included where it has one.
    View slice(int begin, int end) const
    {
        return text.sliced(starts[size_t(begin)], starts[size_t(end)] - starts[size_t(begin)]);
    }
};

template<typename View>
LineText<View> cutIntoLines(View text)
{
    LineText<View> cut{text, {}, {}};
    qsizetype position = 0;
    while (position < text.size()) {
        cut.starts.push_back(position);
        const qsizetype end = text.indexOf(TextOf<View>::lineFeed, position);
        position = end < 0 ? text.size() : end + 1;
    }
    cut.starts.push_back(text.size());
    return cut;
}

/// Gives equal lines equal numbers, from 0 on.
template<typename View>
class LineTable
{
public:
    /// Sized for so many different lines; it grows when there are more.
    explicit LineTable(size_t expected)
        : m_slots(std::bit_ceil(std::max(size_t(16), expected * 2)), Slot{0, -1})
        , m_seed(QHashSeed::globalSeed())
    {
        m_contents.reserve(expected);
    }

    void number(LineText<View> &cut)
    {
        cut.lines.reserve(cut.starts.size() - 1);
        for (size_t i = 0; i + 1 < cut.starts.size(); ++i) {
            View line = cut.slice(int(i), int(i) + 1);
            if (line.back() == TextOf<View>::lineFeed)
                line.chop(1);
            if (m_contents.size() * 4 >= m_slots.size() * 3)
                grow();
            cut.lines.push_back(numberOf(line));
        }
    }

    int count() const { return int(m_contents.size()); }

private:
    struct Slot
    {
        quint32 hash;
        int number;
    };

    static size_t byteCount(View line) { return size_t(line.size()) * sizeof(*line.data()); }
    quint64 hashOf(View line) const { return qHashBits(line.data(), byteCount(line), m_seed); }

    void grow()
    {
        m_slots.assign(m_slots.size() * 2, Slot{0, -1});
        const size_t mask = m_slots.size() - 1;
        for (int number = 0; number < count(); ++number) {
            const quint64 hash = hashOf(m_contents[size_t(number)]);
            size_t at = hash & mask;
            while (m_slots[at].number >= 0)
                at = (at + 1) & mask;
            m_slots[at] = {quint32(hash >> 32), number};
        }
    }

    int numberOf(View line)
    {
        const quint64 hash = hashOf(line);
        const size_t mask = m_slots.size() - 1;
        for (size_t at = hash & mask;; at = (at + 1) & mask) {
            Slot &slot = m_slots[at];
            if (slot.number < 0) {
                slot = {quint32(hash >> 32), count()};
                m_contents.push_back(line);
                return slot.number;
            }
            if (slot.hash != quint32(hash >> 32))
                continue;
            const View known = m_contents[size_t(slot.number)];
            if (known.size() == line.size()
                && std::memcmp(known.data(), line.data(), byteCount(line)) == 0)
                return slot.number;
        }
    }

    std::vector<Slot> m_slots;
    std::vector<View> m_contents;
    size_t m_seed;
};

/// Whether the result ends with "\n": as both sides have it, or as the side that changed it.
template<typename View>
bool mergedLineFeed(const LineText<View> &base, const LineText<View> &local,
                    const LineText<View> &remote)
{
    const auto ending = [](const LineText<View> &text) {
        return text.count() > 0 ? std::optional(text.endsWithLineFeed()) : std::nullopt;
    };
    const std::optional<bool> before = ending(base);
    if (!before)
        return ending(local).value_or(false) || ending(remote).value_or(false);
    const bool here = ending(local).value_or(*before);
    const bool there = ending(remote).value_or(*before);
    return here == *before ? there : here;
}

/// Walks the hunks of both sides down the base and writes the merged text.
template<typename View>
class Merger
{
    using Text = typename TextOf<View>::Type;
    using Lines = LineText<View>;

public:
    Merger(const Lines &base, const Lines &local, const Lines &remote, int symbolCount)
        : m_base(base)
        , m_local{local, diffLines(base.lines, local.lines, symbolCount)}
        , m_remote{remote, diffLines(base.lines, remote.lines, symbolCount)}
    {
    }

    MergedText<Text> merge()
    {
        m_result.text.reserve(std::max(m_local.lines.text.size(), m_remote.lines.text.size()) + 64);
        while (m_local.hunk() || m_remote.hunk())
            writeGroup();
        writeLines(m_base, m_written, m_base.count());
        Text &text = m_result.text;
        // An empty last line is there only by its "\n", so it keeps it.
        const bool isBlank = text.size() < 2 || text[text.size() - 2] == TextOf<View>::lineFeed;
        if (!m_endsWithMarker && !isBlank && !mergedLineFeed(m_base, m_local.lines, m_remote.lines))
            text.chop(1);
        return std::move(m_result);
    }

private:
    struct Side
    {
        const Lines &lines;
        std::vector<LineHunk> hunks;
        size_t next = 0;
        const LineHunk *taken = nullptr; ///< the last hunk taken into the group being made
        int shift = 0; ///< how far lines stand below their place in the base, after the last group

        const LineHunk *hunk() const { return next < hunks.size() ? &hunks[next] : nullptr; }
    };

    struct Range
    {
        int begin;
        int end;
    };

    static bool meet(const Side &one, const LineHunk &a, const Side &other, const LineHunk &b);
    void writeGroup();
    void writeConflict(Range local, Range remote);
    void writeLines(const Lines &from, int begin, int end);
    void writeMarker(const char *marker);

    const Lines &m_base;
    Side m_local;
    Side m_remote;
    int m_written = 0; ///< lines of the base that are dealt with
    bool m_endsWithMarker = false;
    MergedText<Text> m_result;
};

/// Whether hunks of different sides change the same lines, or put in different lines at one place.
template<typename View>
bool Merger<View>::meet(const Side &one, const LineHunk &a, const Side &other, const LineHunk &b)
{
    if (a.baseBegin < b.baseEnd && b.baseBegin < a.baseEnd)
        return true;
    const bool isInsertion = a.baseBegin == a.baseEnd;
    if (isInsertion == (b.baseBegin == b.baseEnd))
        return isInsertion && a.baseBegin == b.baseBegin;
    if (a.sideBegin == a.sideEnd || b.sideBegin == b.sideEnd)
        return false;
    // An insertion beside changed lines: do both sides have the same line where they meet?
    const bool above = isInsertion ? a.baseBegin == b.baseBegin : b.baseBegin == a.baseBegin;
    const bool below = isInsertion ? a.baseBegin == b.baseEnd : b.baseBegin == a.baseEnd;
    const std::vector<int> &lines = one.lines.lines;
    const std::vector<int> &others = other.lines.lines;
    return (above && lines[size_t(a.sideBegin)] == others[size_t(b.sideBegin)])
           || (below && lines[size_t(a.sideEnd) - 1] == others[size_t(b.sideEnd) - 1]);
}

/// Writes the base up to the next hunk, and that hunk with all hunks that hang together with it.
template<typename View>
void Merger<View>::writeGroup()
{
    const LineHunk *local = m_local.hunk();
    const LineHunk *remote = m_remote.hunk();
    const bool localFirst = !remote
                            || (local
                                && std::pair(local->baseBegin, local->baseEnd)
                                       < std::pair(remote->baseBegin, remote->baseEnd));
    Side &leader = localFirst ? m_local : m_remote;
    const int begin = leader.hunk()->baseBegin;
    int end = begin;
    m_local.taken = m_remote.taken = nullptr;
    const auto take = [&](Side &side) {
        side.taken = side.hunk();
        end = std::max(end, side.taken->baseEnd);
        ++side.next;
    };
    const auto joins = [](const Side &side, const Side &other) {
        return side.hunk() && other.taken && meet(side, *side.hunk(), other, *other.taken);
    };
    take(leader);
    for (;;) {
        if (joins(m_local, m_remote))
            take(m_local);
        else if (joins(m_remote, m_local))
            take(m_remote);
        else
            break;
    }

    writeLines(m_base, m_written, begin);
    m_written = end;
    const auto rangeOf = [begin, end](Side &side) {
        const int from = begin + side.shift;
        if (side.taken)
            side.shift = side.taken->sideEnd - side.taken->baseEnd;
        return Range{from, end + side.shift};
    };
    const Range here = rangeOf(m_local);
    const Range there = rangeOf(m_remote);
    const auto bodyOf = [](const Side &side, Range range) {
        return std::span(side.lines.lines)
            .subspan(size_t(range.begin), size_t(range.end - range.begin));
    };
    if (!m_local.taken)
        writeLines(m_remote.lines, there.begin, there.end);
    else if (!m_remote.taken || std::ranges::equal(bodyOf(m_local, here), bodyOf(m_remote, there)))
        writeLines(m_local.lines, here.begin, here.end);
    else
        writeConflict(here, there);
}

template<typename View>
void Merger<View>::writeConflict(Range local, Range remote)
{
    ++m_result.conflicts;
    writeMarker("<<<<<<< local\n");
    writeLines(m_local.lines, local.begin, local.end);
    writeMarker("=======\n");
    writeLines(m_remote.lines, remote.begin, remote.end);
    writeMarker(">>>>>>> remote\n");
    m_endsWithMarker = true;
}

/// Writes lines, each with its "\n", the last one of a text too: merge() takes it away at the end.
template<typename View>
void Merger<View>::writeLines(const Lines &from, int begin, int end)
{
    if (begin >= end)
        return;
    m_endsWithMarker = false;
    m_result.text.append(from.slice(begin, end));
    if (end == from.count() && !from.endsWithLineFeed())
        m_result.text.append(TextOf<View>::lineFeed);
}

template<typename View>
void Merger<View>::writeMarker(const char *marker)
{
    m_result.text.append(QLatin1String(marker));
}

template<typename View>
MergedText<typename TextOf<View>::Type> mergeTexts(View base, View local, View remote)
{
    const auto same = [](View one, View other) {
        return one.size() == other.size()
               && (one.empty()
                   || std::memcmp(one.data(), other.data(),
                                  size_t(one.size()) * sizeof(*one.data()))
                          == 0);
    };
    const auto whole = [](View text) {
        return MergedText<typename TextOf<View>::Type>{
            typename TextOf<View>::Type(text.data(), text.size()), 0};
    };
    if (same(local, remote) || same(base, remote))
        return whole(local);
    if (same(base, local))
        return whole(remote);

    LineText<View> cuts[] = {cutIntoLines(base), cutIntoLines(local), cutIntoLines(remote)};
    size_t most = 0;
    for (const LineText<View> &cut : cuts)
        most = std::max(most, cut.starts.size());
    if (most > maxLines) {
        for (LineText<View> &cut : cuts) {
            if (!cut.text.empty())
                cut.starts = {0, cut.text.size()};
        }
        most = 1;
    }
    LineTable<View> table(std::min(most, firstTableSize));
    for (LineText<View> &cut : cuts)
        table.number(cut);
    return Merger<View>(cuts[0], cuts[1], cuts[2], table.count()).merge();
}

} // namespace

MergedText<QString> mergeLines(QStringView base, QStringView local, QStringView remote)
{
    return mergeTexts(base, local, remote);
}

MergedText<QByteArray> mergeLines(QByteArrayView base, QByteArrayView local, QByteArrayView remote)
{
    return mergeTexts(base, local, remote);
}

} // namespace vl::app
