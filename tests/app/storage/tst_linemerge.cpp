#include "app/storage/lcs.h"
#include "app/storage/linediff.h"
#include "app/storage/linemerge.h"

#include <QtTest/QtTest>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

using namespace vl::app;

namespace {

using Symbols = std::vector<int>;

/// The length of a longest common subsequence by the plain table.
int plainLength(const Symbols &first, const Symbols &second)
{
    Symbols above(second.size() + 1, 0);
    Symbols row = above;
    for (const int symbol : first) {
        for (size_t j = 0; j < second.size(); ++j)
            row[j + 1] = symbol == second[j] ? above[j] + 1 : std::max(row[j], above[j + 1]);
        std::swap(row, above);
    }
    return above.back();
}

/// A sequence in which `common` of each 100 numbers are 0 and the others are drawn from `alphabet`.
Symbols drawn(std::mt19937 &random, int size, int alphabet, int common)
{
    Symbols symbols(static_cast<size_t>(size));
    std::generate(symbols.begin(), symbols.end(), [&] {
        return int(random() % 100) < common ? 0 : int(random() % unsigned(alphabet));
    });
    return symbols;
}

QString conflict(const char *before, const char *local, const char *remote, const char *after)
{
    return QString::fromLatin1(before) + QLatin1String("<<<<<<< local\n") + QLatin1String(local)
           + QLatin1String("=======\n") + QLatin1String(remote) + QLatin1String(">>>>>>> remote\n")
           + QLatin1String(after);
}

} // namespace

class TestLineMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alignmentIsLongest_data();
    void alignmentIsLongest();
    void hunks_data();
    void hunks();
    void merge_data();
    void merge();
    void bytesStayAsTheyAre();
    void hostileTexts_data();
    void hostileTexts();
};

void TestLineMerge::alignmentIsLongest_data()
{
    QTest::addColumn<int>("firstSize");
    QTest::addColumn<int>("secondSize");
    QTest::addColumn<int>("alphabet");
    QTest::addColumn<int>("common");
    QTest::addColumn<int>("edits"); // of the first that make the second; 0: drawn anew

    QTest::newRow("short") << 30 << 40 << 5 << 0 << 0;
    QTest::newRow("few differences") << 2000 << 2000 << 50 << 0 << 200;
    QTest::newRow("many differences") << 5000 << 5000 << 6 << 0 << 2000;
    QTest::newRow("six lines") << 3000 << 3500 << 6 << 0 << 0;
    QTest::newRow("one word of columns") << 4000 << 64 << 6 << 0 << 0;
    QTest::newRow("the second is longer") << 65 << 4000 << 6 << 0 << 0;
    QTest::newRow("mostly distinct") << 2000 << 2000 << 1500 << 0 << 0;
    QTest::newRow("half of them blank") << 2500 << 2400 << 2500 << 50 << 0;
    QTest::newRow("many middling repeats") << 2500 << 2500 << 120 << 5 << 0;
}

void TestLineMerge::alignmentIsLongest()
{
    QFETCH(int, firstSize);
    QFETCH(int, secondSize);
    QFETCH(int, alphabet);
    QFETCH(int, common);
    QFETCH(int, edits);

    std::mt19937 random(7);
    const Symbols first = drawn(random, firstSize, alphabet, common);
    Symbols second = drawn(random, secondSize, alphabet, common);
    if (edits > 0) {
        second = first;
        for (int i = 0; i < edits; ++i) {
            second.erase(second.begin() + long(random() % second.size()));
            second.insert(second.begin() + long(random() % second.size()),
                          int(random() % unsigned(alphabet)));
        }
    }
    const auto pairs = longestCommonSubsequence(first, second, std::max(alphabet, 1));
    MatchedPair last{-1, -1};
    for (const MatchedPair &pair : pairs) {
        QVERIFY(pair.first > last.first && pair.second > last.second);
        QCOMPARE(first.at(size_t(pair.first)), second.at(size_t(pair.second)));
        last = pair;
    }
    QCOMPARE(int(pairs.size()), plainLength(first, second));
}

void TestLineMerge::hunks_data()
{
    QTest::addColumn<QString>("base"); // one letter a line
    QTest::addColumn<QString>("side");
    QTest::addColumn<QString>("hunks"); // base lines > side lines, "-" for none

    QTest::newRow("equal") << "abc"
                           << "abc"
                           << "";
    QTest::newRow("all new") << ""
                             << "ab"
                             << "->ab";
    QTest::newRow("all gone") << "ab"
                              << ""
                              << "ab>-";
    QTest::newRow("change and insertion") << "abcd"
                                          << "aBcxd"
                                          << "b>B ->x";
    QTest::newRow("insertion slides down") << "a_b_c"
                                           << "a_x_b_c"
                                           << "->x_";
    QTest::newRow("deletion slides down") << "aab"
                                          << "ab"
                                          << "a>-";
    QTest::newRow("sliding runs become one") << "aab"
                                             << "aaaB"
                                             << "b>aB";
}

void TestLineMerge::hunks()
{
    QFETCH(QString, base);
    QFETCH(QString, side);
    QFETCH(QString, hunks);

    const auto symbols = [](const QString &text) {
        Symbols result;
        for (const QChar letter : text)
            result.push_back(letter.unicode());
        return result;
    };
    QStringList found;
    for (const LineHunk &hunk : diffLines(symbols(base), symbols(side), 128)) {
        const QString from = base.mid(hunk.baseBegin, hunk.baseEnd - hunk.baseBegin);
        const QString to = side.mid(hunk.sideBegin, hunk.sideEnd - hunk.sideBegin);
        const QString none = QStringLiteral("-");
        found += (from.isEmpty() ? none : from) + QLatin1Char('>') + (to.isEmpty() ? none : to);
    }
    QCOMPARE(found.join(QLatin1Char(' ')), hunks);
}

void TestLineMerge::merge_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("local");
    QTest::addColumn<QString>("remote");
    QTest::addColumn<QString>("merged");
    QTest::addColumn<QString>("swapped"); // with the sides swapped; the same while empty

    const QString same;
    QTest::newRow("only local") << "a\nb\n"
                                << "a\nB\n"
                                << "a\nb\n"
                                << "a\nB\n"
                                << same;
    QTest::newRow("far apart") << "a\nb\nc\n"
                               << "A\nb\nc\n"
                               << "a\nb\nC\n"
                               << "A\nb\nC\n"
                               << same;
    QTest::newRow("neighbouring lines") << "a\nb\nc\n"
                                        << "a\nB\nc\n"
                                        << "a\nb\nC\n"
                                        << "a\nB\nC\n"
                                        << same;
    QTest::newRow("the same change, and another") << "a\nb\nc\nd\n"
                                                  << "a\nX\nc\nd\n"
                                                  << "a\nX\nc\nD\n"
                                                  << "a\nX\nc\nD\n"
                                                  << same;
    QTest::newRow("the same line")
        << "a\nb\nc\n"
        << "a\nL\nc\n"
        << "a\nR\nc\n"
        << conflict("a\n", "L\n", "R\n", "c\n") << conflict("a\n", "R\n", "L\n", "c\n");
    QTest::newRow("overlapping runs are one conflict")
        << "a\nb\nc\nd\n"
        << "A\nB\nc\nd\n"
        << "a\nX\nY\nd\n"
        << conflict("", "A\nB\nc\n", "a\nX\nY\n", "d\n")
        << conflict("", "a\nX\nY\n", "A\nB\nc\n", "d\n");
    QTest::newRow("a chain of overlaps is one conflict")
        << "a\nb\nc\nd\ne\nf\n"
        << "A\nb\nC\nD\ne\nf\n"
        << "X\nY\nZ\nd\ne\nF\n"
        << conflict("", "A\nb\nC\nD\n", "X\nY\nZ\nd\n", "e\nF\n")
        << conflict("", "X\nY\nZ\nd\n", "A\nb\nC\nD\n", "e\nF\n");
    QTest::newRow("changed and deleted")
        << "a\nb\nc\n"
        << "a\nc\n"
        << "a\nB\nc\n"
        << conflict("a\n", "", "B\n", "c\n") << conflict("a\n", "B\n", "", "c\n");
    QTest::newRow("both put in the same") << "a\nb\n"
                                          << "a\nx\nb\n"
                                          << "a\nx\nb\n"
                                          << "a\nx\nb\n"
                                          << same;
    QTest::newRow("both put in at one place")
        << "a\nb\n"
        << "a\nx\nb\n"
        << "a\ny\nb\n"
        << conflict("a\n", "x\n", "y\n", "b\n") << conflict("a\n", "y\n", "x\n", "b\n");
    QTest::newRow("put in above a changed line") << "a\nb\nc\n"
                                                 << "a\nx\nb\nc\n"
                                                 << "a\nB\nc\n"
                                                 << "a\nx\nB\nc\n"
                                                 << same;
    QTest::newRow("put in below a changed line") << "a\nb\nc\n"
                                                 << "a\nb\nx\nc\n"
                                                 << "a\nB\nc\n"
                                                 << "a\nB\nx\nc\n"
                                                 << same;
    QTest::newRow("put in beside deleted lines") << "a\nb\nc\n"
                                                 << "a\nx\nb\nc\n"
                                                 << "a\nc\n"
                                                 << "a\nx\nc\n"
                                                 << same;
    QTest::newRow("put in amid changed lines") << "a\nb\nc\nd\n"
                                               << "a\nb\nx\nc\nd\n"
                                               << "a\nB\nC\nd\n"
                                               << conflict("a\n", "b\nx\nc\n", "B\nC\n", "d\n")
                                               << conflict("a\n", "B\nC\n", "b\nx\nc\n", "d\n");
    QTest::newRow("put in by both, one changed the next line too")
        << "a\nb\n"
        << "a\nx\nb\n"
        << "a\nx\nB\n"
        << conflict("a\n", "x\nb\n", "x\nB\n", "") << conflict("a\n", "x\nB\n", "x\nb\n", "");
    QTest::newRow("put in by both, one changed the line before too")
        << "a\nb\n"
        << "a\nx\nb\n"
        << "A\nx\nb\n"
        << conflict("", "a\nx\n", "A\nx\n", "b\n") << conflict("", "A\nx\n", "a\nx\n", "b\n");

    QTest::newRow("no line feed at the end") << "a\nb\nc"
                                             << "A\nb\nc"
                                             << "a\nb\nC"
                                             << "A\nb\nC" << same;
    QTest::newRow("appended to a last line without line feed") << "a\nb\nc"
                                                               << "A\nb\nc"
                                                               << "a\nb\nc\nd"
                                                               << "A\nb\nc\nd" << same;
    QTest::newRow("last line changed without line feed, another appended") << "a\nb\n"
                                                                           << "a\nB"
                                                                           << "a\nb\nc\n"
                                                                           << "a\nB\nc" << same;
    QTest::newRow("only the line feed taken away") << "a\nb\nc\n"
                                                   << "a\nb\nc"
                                                   << "A\nb\nc\n"
                                                   << "A\nb\nc" << same;
    QTest::newRow("an empty last line keeps its line feed") << "a\n\nb\n"
                                                            << "a\n\n"
                                                            << "A\n\nb"
                                                            << "A\n\n"
                                                            << same;
    QTest::newRow("conflict without line feeds")
        << "a"
        << "b"
        << "c" << conflict("", "b\n", "c\n", "") << conflict("", "c\n", "b\n", "");
    QTest::newRow("conflict amid a text without line feed")
        << "a\nb"
        << "x\nb"
        << "y\nb" << conflict("", "x\n", "y\n", "b") << conflict("", "y\n", "x\n", "b");
    QTest::newRow("everything deleted, and changed")
        << "a\nb\n"
        << ""
        << "a\nB" << conflict("", "", "a\nB\n", "") << conflict("", "a\nB\n", "", "");
    QTest::newRow("from nothing") << ""
                                  << "a\n"
                                  << "b" << conflict("", "a\n", "b\n", "")
                                  << conflict("", "b\n", "a\n", "");
    QTest::newRow("carriage returns belong to the line") << "a\r\nb\r\nc\r\n"
                                                         << "A\r\nb\r\nc\r\n"
                                                         << "a\r\nb\nc\r\n"
                                                         << "A\r\nb\nc\r\n"
                                                         << same;
    QTest::newRow("a lone carriage return ends no line")
        << "a\rb\n"
        << "x\rb\n"
        << "a\ry\n"
        << conflict("", "x\rb\n", "a\ry\n", "") << conflict("", "a\ry\n", "x\rb\n", "");
}

void TestLineMerge::merge()
{
    QFETCH(QString, base);
    QFETCH(QString, local);
    QFETCH(QString, remote);
    QFETCH(QString, merged);
    QFETCH(QString, swapped);

    const bool clean = swapped.isEmpty();
    const auto forth = mergeLines(base, local, remote);
    QCOMPARE(forth.text, merged);
    QCOMPARE(forth.conflicts, clean ? 0 : 1);
    QCOMPARE(mergeLines(base, remote, local).text, clean ? merged : swapped);
    const auto bytes = mergeLines(QByteArrayView(base.toUtf8()), local.toUtf8(), remote.toUtf8());
    QCOMPARE(bytes.text, merged.toUtf8());
}

void TestLineMerge::bytesStayAsTheyAre()
{
    const QByteArray base("caf\xe9\n\0x\nlast\xff", 13);
    QByteArray local = base;
    QByteArray remote = base;
    local.replace("caf\xe9", "th\xe9");
    remote.append("\xfe");
    const auto merged = mergeLines(QByteArrayView(base), local, remote);
    QCOMPARE(merged.conflicts, 0);
    QCOMPARE(merged.text, QByteArray("th\xe9\n\0x\nlast\xff\xfe", 13));
}

void TestLineMerge::hostileTexts_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("local");
    QTest::addColumn<QString>("remote");

    const auto times = [](int count, const char *text) {
        return QString::fromLatin1(text).repeated(count);
    };
    QTest::newRow("line feeds alone")
        << times(60'000, "\n") << times(40'000, "\n") << times(80'000, "\n");
    QTest::newRow("two lines out of step")
        << times(20'000, "a\nb\n") << times(18'000, "b\na\n") << times(22'000, "a\nb\nb\n");
    QTest::newRow("one long line") << times(3'000'000, "x") << times(2'999'999, "x")
                                   << times(3'000'000, "x") + QStringLiteral("\n");
}

void TestLineMerge::hostileTexts()
{
    QFETCH(QString, base);
    QFETCH(QString, local);
    QFETCH(QString, remote);

    const auto forth = mergeLines(base, local, remote);
    const auto back = mergeLines(base, remote, local);
    QCOMPARE(forth.conflicts, back.conflicts);
    QCOMPARE(forth.text.size(), back.text.size());
}

QTEST_GUILESS_MAIN(TestLineMerge)
#include "tst_linemerge.moc"
