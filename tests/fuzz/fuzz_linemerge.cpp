// Checks the laws of the line merge on any three texts: a side equal to the base yields the other
// side, equal sides yield themselves, swapping the sides swaps the bodies of the conflicts, lines
// that neither side touched survive in order, and no line that a side wrote is lost. The longest
// common subsequence by bit vectors is held against the one along diagonals.

#include "app/storage/lcsbits.h"
#include "app/storage/linediff.h"
#include "app/storage/linemerge.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QHash>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

using namespace vl::app;

namespace {

using Symbols = std::vector<int>;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

QByteArrayList linesOf(const QByteArray &text)
{
    QByteArrayList lines = text.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

Symbols numbered(const QByteArrayList &lines, QHash<QByteArray, int> &numbers)
{
    Symbols symbols;
    for (const QByteArray &line : lines) {
        const auto it = numbers.constFind(line);
        symbols.push_back(it != numbers.constEnd() ? *it : int(numbers.size()));
        if (it == numbers.constEnd())
            numbers.insert(line, symbols.back());
    }
    return symbols;
}

/// The merged text with the two bodies of each conflict in the other order.
QByteArray withSwappedBodies(const QByteArray &merged)
{
    QByteArray result;
    QByteArray body;
    QByteArray *to = &result;
    qsizetype position = 0;
    QByteArray local;
    while (position < merged.size()) {
        const qsizetype end = merged.indexOf('\n', position);
        const QByteArray line = merged.mid(position, end < 0 ? -1 : end + 1 - position);
        position += line.size();
        if (line == "<<<<<<< local\n") {
            result += line;
            local.clear();
            to = &local;
        } else if (line == "=======\n") {
            body.clear();
            to = &body;
        } else if (line == ">>>>>>> remote\n") {
            result += body + "=======\n" + local + line;
            to = &result;
        } else {
            *to += line;
        }
    }
    return result;
}

void checkAlignments(const Symbols &base, const Symbols &side, int symbolCount)
{
    if (base.empty() || side.empty())
        return;
    const Occurrences index(side, symbolCount);
    const BitLcs bits(base, side, index, symbolCount);
    const auto expected = longestCommonSubsequence(base, side, symbolCount);
    const auto baseSize = qint64(base.size());
    const auto sideSize = qint64(side.size());
    const auto length = qint64(expected.size());
    const qint64 wide = baseSize + sideSize;
    require(bits.align({1, 1, wide, wide}).size() == expected.size());
    // The band that must hold every longest alignment holds one.
    require(bits.align({1, 1, baseSize - length, sideSize - length}).size() == expected.size());
    MatchedPair last{-1, -1};
    for (const MatchedPair &pair : bits.align({sideSize, baseSize, 1, 1})) {
        require(pair.first > last.first && pair.second > last.second);
        require(base[size_t(pair.first)] == side[size_t(pair.second)]);
        last = pair;
    }
}

void checkSurvivors(const QByteArray &base, const QByteArray &local, const QByteArray &remote,
                    const QByteArray &merged)
{
    QHash<QByteArray, int> numbers;
    const Symbols baseLines = numbered(linesOf(base), numbers);
    const Symbols localLines = numbered(linesOf(local), numbers);
    const Symbols remoteLines = numbered(linesOf(remote), numbers);
    const Symbols mergedLines = numbered(linesOf(merged), numbers);
    const int symbolCount = int(numbers.size());
    checkAlignments(baseLines, localLines, symbolCount);
    checkAlignments(baseLines, remoteLines, symbolCount);

    std::vector<bool> touched(baseLines.size(), false);
    for (const Symbols *side : {&localLines, &remoteLines}) {
        int before = -1;
        for (const LineHunk &hunk : diffLines(baseLines, *side, symbolCount)) {
            require(hunk.baseBegin > before || before < 0);
            before = hunk.baseEnd;
            for (int i = hunk.baseBegin; i < hunk.baseEnd; ++i)
                touched[size_t(i)] = true;
        }
    }
    auto at = mergedLines.begin();
    for (size_t i = 0; i < baseLines.size(); ++i) {
        if (touched[i])
            continue;
        at = std::find(at, mergedLines.end(), baseLines[i]);
        require(at != mergedLines.end());
        ++at;
    }
    for (const Symbols *side : {&localLines, &remoteLines}) {
        for (const int line : *side) {
            if (std::count(baseLines.begin(), baseLines.end(), line) == 0)
                require(std::count(mergedLines.begin(), mergedLines.end(), line)
                        >= std::count(side->begin(), side->end(), line));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 3)
        return 0;
    // The first byte chooses between the bytes as they are and short lines of few letters; the next
    // two say where the three texts part.
    const bool raw = data[0] % 4 == 0;
    QByteArray all(reinterpret_cast<const char *>(data) + 3, qsizetype(size) - 3);
    if (!raw) {
        static const char letters[] = "\n\n\nabc\r\n";
        for (char &letter : all)
            letter = letters[uint8_t(letter) % 8];
    }
    qsizetype first = all.size() * data[1] / 255;
    qsizetype second = all.size() * data[2] / 255;
    if (first > second)
        std::swap(first, second);
    const QByteArray base = all.left(first);
    const QByteArray local = all.mid(first, second - first);
    const QByteArray remote = all.mid(second);

    require(mergeLines(QByteArrayView(base), base, remote).text == remote);
    require(mergeLines(QByteArrayView(base), local, base).text == local);
    require(mergeLines(QByteArrayView(base), local, local).text == local);
    const auto forth = mergeLines(QByteArrayView(base), local, remote);
    const auto back = mergeLines(QByteArrayView(base), remote, local);
    require(forth.conflicts == back.conflicts);
    require(forth.text.size() == back.text.size());
    if (!raw)
        require(withSwappedBodies(forth.text) == back.text);
    checkSurvivors(base, local, remote, forth.text);

    const QString wideBase = QString::fromLatin1(base);
    const auto wide = mergeLines(wideBase, QString::fromLatin1(local), QString::fromLatin1(remote));
    require(wide.text == QString::fromLatin1(forth.text));
    return 0;
}
