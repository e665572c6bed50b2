#include "app/text/chapterheading.h"
#include "app/text/manuscript.h"
#include "core/project.h"

#include <QtTest/QtTest>

using namespace vl::app;
using namespace vl::core;

namespace {

ContentId idOf(int number)
{
    return ContentId(QUuid(uint(number), 0, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, 0));
}

} // namespace

class TestManuscript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void levels_data();
    void levels();
    void cyclesAndLostParents();
    void shownVariant();
    void deepTree();
    void headings_data();
    void headings();
    void letterSpacing_data();
    void letterSpacing();
};

void TestManuscript::levels_data()
{
    QTest::addColumn<QStringList>("tree"); // titles indented under their parent, notes with "?"
    QTest::addColumn<QString>("entries");

    QTest::newRow("flat") << QStringList{QStringLiteral("A"), QStringLiteral(" B"),
                                         QStringLiteral(" C"), QStringLiteral("D")}
                          << "1A 2B 2C 1D";
    QTest::newRow("deep") << QStringList{QStringLiteral("A"), QStringLiteral(" B"),
                                         QStringLiteral("  C"), QStringLiteral("   D"),
                                         QStringLiteral(" E")}
                          << "0A 1B 2C 2D 1E";
    QTest::newRow("each top document by itself")
        << QStringList{QStringLiteral("P"),   QStringLiteral("A"), QStringLiteral(" B"),
                       QStringLiteral("  C"), QStringLiteral("E"), QStringLiteral(" F")}
        << "1P 0A 1B 2C 1E 2F";
    QTest::newRow("chapters by title")
        << QStringList{QStringLiteral("A"), QStringLiteral(" Chapter 1"),
                       QStringLiteral(" Chapter 2")}
        << "0A 1Chapter 1 1Chapter 2";
    QTest::newRow("chapters by number")
        << QStringList{QStringLiteral("A"), QStringLiteral(" I"), QStringLiteral(" II")}
        << "0A 1I 1II";
    QTest::newRow("scenes by title")
        << QStringList{QStringLiteral("A"), QStringLiteral(" Scene 1")} << "1A 2Scene 1";
    QTest::newRow("note left out")
        << QStringList{QStringLiteral("A"), QStringLiteral(" ?N"), QStringLiteral(" B")} << "1A 2B";
    QTest::newRow("note above prose")
        << QStringList{QStringLiteral("?N"),   QStringLiteral(" A"), QStringLiteral("  ?M"),
                       QStringLiteral("   B"), QStringLiteral(" C"), QStringLiteral("D")}
        << "1A 2B 1C 1D";
    QTest::newRow("notes make no part")
        << QStringList{QStringLiteral("A"), QStringLiteral(" B"), QStringLiteral("  ?N")}
        << "1A 2B";
    QTest::newRow("nothing but notes")
        << QStringList{QStringLiteral("?N"), QStringLiteral(" ?M")} << "";
}

void TestManuscript::levels()
{
    QFETCH(QStringList, tree);
    Project project;
    QList<ContentId> path;
    for (int i = 0; i < tree.size(); ++i) {
        QString title = tree[i].trimmed();
        const int depth = int(tree[i].size() - title.size());
        const bool isNote = title.startsWith(QLatin1Char('?'));
        auto document = std::make_unique<Document>(
            idOf(i + 1), isNote ? DocumentKind::Note : DocumentKind::Prose, title);
        path = path.mid(0, depth);
        document->setParentId(path.isEmpty() ? ContentId() : path.last());
        document->setSortIndex(i);
        path.append(document->id());
        QVERIFY(project.add(std::move(document)));
    }
    QStringList entries;
    for (const ManuscriptEntry &entry : readManuscript(project).entries)
        entries += QString::number(entry.level) + entry.title;
    QTEST(entries.join(QLatin1Char(' ')), "entries");
}

void TestManuscript::cyclesAndLostParents()
{
    Project project;
    const auto add = [&](int id, int parent) {
        auto document =
            std::make_unique<Document>(idOf(id), DocumentKind::Prose, QString::number(id));
        document->setParentId(parent == 0 ? ContentId() : idOf(parent));
        QVERIFY(project.add(std::move(document)));
    };
    add(1, 0);
    add(2, 3); // 2 and 3 are parents of each other
    add(3, 2);
    add(4, 4);  // its own parent
    add(5, 77); // a parent that is gone
    add(6, 5);
    QStringList titles;
    for (const ManuscriptEntry &entry : readManuscript(project).entries)
        titles += entry.title;
    titles.sort();
    QCOMPARE(titles, (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                                  QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("6")}));
}

void TestManuscript::shownVariant()
{
    Project project;
    auto owned = std::make_unique<Document>(idOf(1), DocumentKind::Screenplay, QString());
    Document *document = owned.get();
    QVERIFY(project.add(std::move(owned)));
    document->setBody(QStringLiteral("main"));
    document->setVariants({{{QStringLiteral("b"), QStringLiteral("other")}}, QStringLiteral("b")});
    QCOMPARE(readManuscript(project).entries.first().text, QStringLiteral("other"));
    document->setVariants(
        {{{QStringLiteral("b"), QStringLiteral("other")}}, QStringLiteral("gone")});
    QCOMPARE(readManuscript(project).entries.first().text, QStringLiteral("main"));
}

void TestManuscript::deepTree()
{
    Project project;
    constexpr int depth = 10000;
    for (int i = 1; i <= depth; ++i) {
        auto document = std::make_unique<Document>(idOf(i), DocumentKind::Prose, QString());
        document->setParentId(i > 1 ? idOf(i - 1) : ContentId());
        QVERIFY(project.add(std::move(document)));
    }
    const QList<ManuscriptEntry> entries = readManuscript(project).entries;
    QCOMPARE(entries.size(), depth);
    QCOMPARE(entries.last().level, 2);
}

void TestManuscript::headings_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("rank"); // -1: no heading
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("hasTitle");

    const auto row = [](const char *line, int rank, int number = 0, bool hasTitle = false) {
        QTest::newRow(line) << QString::fromUtf8(line) << rank << number << hasTitle;
    };
    const auto is = [](HeadingRank rank) { return int(rank); };
    row("BOOK ONE: 1805", is(HeadingRank::Book), 1, true);
    row("BOOK FIVE: 1806 - 07", is(HeadingRank::Book), 5, true);
    row("FIRST EPILOGUE: 1813 - 20", is(HeadingRank::Matter), 1, true);
    row("SECOND EPILOGUE", is(HeadingRank::Matter), 2);
    row("PROLOGUE", is(HeadingRank::Matter));
    row("Epilogue.", is(HeadingRank::Matter));
    row("  CHAPTER XXVIII ", is(HeadingRank::Chapter), 28);
    row("Chapter 4. The Sea", is(HeadingRank::Chapter), 4, true);
    row("Chapter 4: the sea", is(HeadingRank::Chapter), 4, true);
    row("Chapter 1 Loomings", is(HeadingRank::Chapter), 1, true);
    row("CHAPTER TWENTY-ONE", is(HeadingRank::Chapter), 21);
    row("CHAPTER ONE\u2014THE SEA", is(HeadingRank::Chapter), 1, true);
    row("PART THE SECOND", is(HeadingRank::Part), 2);
    row("Erster Teil", is(HeadingRank::Part), 1);
    row("Drittes Kapitel", is(HeadingRank::Chapter), 3);
    row("1. Kapitel", is(HeadingRank::Chapter), 1);
    row("PREMI\u00c8RE PARTIE", is(HeadingRank::Part), 1);
    row("Cap\u00edtulo III", is(HeadingRank::Chapter), 3);
    row("IV", is(HeadingRank::Numeral), 4);
    row("XIX.", is(HeadingRank::Numeral), 19);
    row("12", is(HeadingRank::Numeral), 12);
    row("I. A SCANDAL IN BOHEMIA", is(HeadingRank::Numeral), 1, true);

    row("Chapter one was over.", -1);
    row("Part of the plan", -1);
    row("Letter I wrote", -1);
    row("Introduction to the theory", -1);
    row("I went home.", -1);
    row("I.  went", -1);
    row("IIII IV", -1);
    row("chapter 4", -1);
    row("MARY", -1);
    row("1805.5", -1);
    row("\u201cI...\u201d", -1);
    row("I...", -1);
    row("", -1);
}

void TestManuscript::headings()
{
    QFETCH(QString, line);
    QFETCH(int, rank);
    const auto heading = readChapterHeading(line);
    QCOMPARE(heading ? int(heading->rank) : -1, rank);
    if (!heading)
        return;
    QTEST(heading->number, "number");
    QTEST(heading->hasTitle, "hasTitle");
}

void TestManuscript::letterSpacing_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("joined"); // empty: not spaced out
    QTest::newRow("two words") << "  D I E  V E R W A N D L U N G"
                               << "DIE VERWANDLUNG";
    QTest::newRow("marks") << QStringLiteral("\u00bbD E R  T A G\u00ab")
                           << QStringLiteral("\u00bbDER TAG\u00ab");
    QTest::newRow("plain words") << "A plain line"
                                 << "";
    QTest::newRow("too short") << "A B C"
                               << "";
}

void TestManuscript::letterSpacing()
{
    QFETCH(QString, line);
    QTEST(withoutLetterSpacing(line).value_or(QString()), "joined");
}

QTEST_GUILESS_MAIN(TestManuscript)
#include "tst_manuscript.moc"
