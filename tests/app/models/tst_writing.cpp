// What the editor does with a text, below its widgets: typing comforts, searching, words of a day.

#include "app/models/textsearch.h"
#include "app/models/writingdesk.h"
#include "app/models/writingedits.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace vl::app;
using vl::core::ContentId;

namespace {

/// "a[bc]d" is "abcd" with "bc" selected, "ab|cd" has its caret in the middle.
SelectedText fromMarked(QString marked)
{
    SelectedText result;
    result.from = marked.indexOf(u'{');
    if (result.from < 0) {
        result.from = result.to = marked.indexOf(u'|');
        result.text = marked.remove(u'|');
        return result;
    }
    marked.remove(u'{');
    result.to = marked.indexOf(u'}');
    result.text = marked.remove(u'}');
    return result;
}

QString marked(const SelectedText &selected)
{
    QString text = selected.text;
    if (selected.from == selected.to)
        return text.insert(selected.to, u'|');
    return text.insert(selected.to, u'}').insert(selected.from, u'{');
}

QString applied(const QString &text, const TextEdit &edit)
{
    return QString(text).replace(edit.position, edit.removed, edit.inserted);
}

} // namespace

class TestWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marksToggle_data();
    void marksToggle();
    void listsGoOn_data();
    void listsGoOn();
    void typography_data();
    void typography();
    void searchingKeepsToItsPart();
    void searchingComesToAnEnd_data();
    void searchingComesToAnEnd();
    void replacing();
    void hitsMove();
    void wordsOfTheDay();
    void deskComesBack();
    void damagedDesksAreEmpty();
};

void TestWriting::marksToggle_data()
{
    QTest::addColumn<QString>("marks");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("selection") << "*"
                               << "a {b} c"
                               << "a *{b}* c";
    QTest::newRow("and back") << "*"
                              << "a *{b}* c"
                              << "a {b} c";
    QTest::newRow("marks selected too") << "*"
                                        << "a {*b*} c"
                                        << "a {b} c";
    QTest::newRow("word at the caret") << "**"
                                       << "a wo|rd c"
                                       << "a **wo|rd** c";
    QTest::newRow("and back at the caret") << "**"
                                           << "a **wo|rd** c"
                                           << "a wo|rd c";
    QTest::newRow("strong in emphasis") << "**"
                                        << "*{b}*"
                                        << "***{b}***";
    QTest::newRow("emphasis out of both") << "*"
                                          << "***{b}***"
                                          << "**{b}**";
    QTest::newRow("strong out of both") << "**"
                                        << "***{b}***"
                                        << "*{b}*";
    QTest::newRow("nothing there") << "*"
                                   << "a | c"
                                   << "a *|* c";
    QTest::newRow("an empty pair goes") << "*"
                                        << "a *|* c"
                                        << "a | c";
    QTest::newRow("blanks stay outside") << "*"
                                         << "a{ b }c"
                                         << "a *{b}* c";
    QTest::newRow("each line") << "*"
                               << "{a\n\nb}"
                               << "*{a*\n\n*b}*";
    QTest::newRow("each line and back") << "*"
                                        << "*{a*\n\n*b}*"
                                        << "{a\n\nb}";
    QTest::newRow("apostrophes are parts of words") << "*"
                                                    << "don’t|"
                                                    << "*don’t|*";
}

void TestWriting::marksToggle()
{
    QFETCH(QString, marks);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QCOMPARE(marked(toggledMarks(fromMarked(before), marks)), after);
}

void TestWriting::listsGoOn_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("item") << "return"
                          << "- a|b"
                          << "- a\n- |b";
    QTest::newRow("nested") << "return"
                            << "  * a|"
                            << "  * a\n  * |";
    QTest::newRow("number") << "return"
                            << "9. a|"
                            << "9. a\n10. |";
    QTest::newRow("quote") << "return"
                           << "> a|"
                           << "> a\n> |";
    QTest::newRow("an empty item ends the list") << "return"
                                                 << "- |"
                                                 << "|";
    QTest::newRow("before the mark") << "return"
                                     << "|- a"
                                     << "";
    QTest::newRow("no list") << "return"
                             << "a - b|"
                             << "";
    QTest::newRow("a rule is none") << "return"
                                    << "***|"
                                    << "";
    QTest::newRow("emphasis is none") << "return"
                                      << "*a* b|"
                                      << "";
    QTest::newRow("in") << "tab"
                        << "- a|"
                        << "  - a|";
    QTest::newRow("out") << "backtab"
                         << "   - a|"
                         << " - a|";
    QTest::newRow("out at the edge") << "backtab"
                                     << "- |a"
                                     << "- |a";
    QTest::newRow("tab in prose") << "tab"
                                  << "a|"
                                  << "";
}

void TestWriting::listsGoOn()
{
    QFETCH(QString, key);
    QFETCH(QString, before);
    QFETCH(QString, after);

    const SelectedText line = fromMarked(before);
    const auto edit = key == u"return" ? lineBreakEdit(line.text, line.to)
                                       : indentEdit(line.text, line.to, key == u"tab");
    QCOMPARE(edit.has_value(), !after.isEmpty());
    if (edit)
        QCOMPARE(marked({applied(line.text, edit->edit), edit->caret, edit->caret}), after);
}

void TestWriting::typography_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");

    const QLocale english(QLocale::English);
    QTest::newRow("quotes") << english << "\"Go,\" he said (\"now\")."
                            << "“Go,” he said (“now”).";
    QTest::newRow("apostrophes") << english << "don't, the dogs' 'a'"
                                 << "don’t, the dogs’ ‘a’";
    QTest::newRow("emphasised") << english << "*\"a\"*"
                                << "*“a”*";
    QTest::newRow("other language") << QLocale(QLocale::German) << "\"a\""
                                    << "„a“";
    QTest::newRow("dash") << english << "a--b"
                          << "a—b";
    QTest::newRow("after a dash") << english << "a--\"b\""
                                  << "a—“b”";
    QTest::newRow("rules stay") << english << "---"
                                << "---";
    QTest::newRow("hyphens stay") << english << "well-known"
                                  << "well-known";
    QTest::newRow("ellipsis") << english << "so..."
                              << "so…";
    QTest::newRow("two dots") << english << "so.."
                              << "so..";
}

void TestWriting::typography()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    QFETCH(QString, text);

    QString written;
    for (const QChar c : typed) {
        const auto edit = typographicEdit(written, c, locale);
        if (edit)
            written.chop(edit->removed);
        written += edit ? edit->inserted : QString(c);
    }
    QCOMPARE(written, text);
}

void TestWriting::searchingKeepsToItsPart()
{
    SearchTerms terms;
    terms.options.pattern = QStringLiteral("a");
    terms.from = 1;
    terms.to = 4;
    const std::vector<SearchHit> expected{{2, 1}, {3, 1}};
    QCOMPARE(findAll(QStringLiteral("abaaa"), terms).hits, expected);
    terms.to = -1;
    QCOMPARE(findAll(QStringLiteral("abaaa"), terms).hits.size(), size_t(3));
    const SearchResult most = findAll(QString(qsizetype(mostSearchHits) + 5, u'a'), terms);
    QCOMPARE(most.hits.size(), mostSearchHits);
    QVERIFY(most.isCut);
    terms.options = {QStringLiteral("(a"), false, false, true};
    QVERIFY(!findAll(QStringLiteral("abaaa"), terms).error.isEmpty());
}

void TestWriting::searchingComesToAnEnd_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");

    const QString letters = QString(20'000'000, u'a');
    QTest::newRow("nested repeats") << "(a+)+b" << letters;
    QTest::newRow("alternatives") << "(a|aa)+$x" << letters;
    QTest::newRow("repeats in a row") << "a*a*a*a*a*a*b" << letters;
    QTest::newRow("many lines")
        << "(a*)*b" << QStringLiteral("aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\n").repeated(200'000);
    QTest::newRow("recursion") << "(?R)?a(?R)?b" << letters;
    QTest::newRow("groups in groups") << QString(5000, u'(') + QString(5000, u')') << letters;
}

/// What does not come to an end, or takes minutes, fails by the time limit of tests.
void TestWriting::searchingComesToAnEnd()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    SearchTerms terms;
    terms.options.pattern = pattern;
    terms.options.isExpression = true;
    const SearchResult result = findAll(text, terms);
    QVERIFY(!result.error.isEmpty() || result.hits.empty());
}

void TestWriting::replacing()
{
    const QString text = QStringLiteral("ab cb ab\nAB");
    SearchTerms terms;
    terms.options = {QStringLiteral("(a)(b)"), false, false, true};
    terms.from = 1; // the first is no hit
    const std::vector<SearchHit> hits = findAll(text, terms).hits;
    QCOMPARE(replacedHits(text, hits, terms.options, QStringLiteral("\\2-\\1"), false),
             QStringLiteral("ab cb b-a\nB-A"));
    QCOMPARE(replacementOf(text, hits.back(), terms.options, QStringLiteral("x"), true),
             QStringLiteral("X"));
    QCOMPARE(replacedHits(text, {{3, 2}}, terms.options, QStringLiteral("x"), false), text);
    // "ab cb b-a\nB-A": before all, in the first hit, at its end, between the two, at the very end.
    for (const auto &[before, after] :
         {std::pair(2, 2), std::pair(7, 9), std::pair(8, 9), std::pair(9, 10), std::pair(11, 13)})
        QCOMPARE(placeAfterReplacing(before, text, hits, terms.options, QStringLiteral("\\2-\\1"),
                                     false),
                 qsizetype(after));
}

void TestWriting::hitsMove()
{
    std::vector<SearchHit> hits{{0, 2}, {10, 2}, {20, 2}};
    moveHits(hits, 5, 0, 3); // between two
    QCOMPARE(hits, (std::vector<SearchHit>{{0, 2}, {13, 2}, {23, 2}}));
    moveHits(hits, 14, 0, 1); // inside one
    QCOMPARE(hits, (std::vector<SearchHit>{{0, 2}, {24, 2}}));
    moveHits(hits, 1, 30, 0);
    QVERIFY(hits.empty());

    hits = {{3, 2}, {8, 1}};
    QCOMPARE(hitFrom(hits, 0), qsizetype(0));
    QCOMPARE(hitFrom(hits, 4), qsizetype(1));
    QCOMPARE(hitFrom(hits, 9), qsizetype(0)); // round the end
    QCOMPARE(hitBefore(hits, 8), qsizetype(0));
    QCOMPARE(hitBefore(hits, 3), qsizetype(1));
    QCOMPARE(hitBefore({}, 3), qsizetype(-1));
}

void TestWriting::wordsOfTheDay()
{
    const QDate today(2026, 3, 4);
    const QDate tomorrow = today.addDays(1);
    WritingDay day;
    day.type(today, 5);
    day.type(today, -2);
    day.stepMade(1);
    day.otherStepMade(2); // a paste
    day.type(today, 10);
    day.stepMade(3);
    QCOMPARE(day.wordsOn(today), qsizetype(13));
    day.stepUndone(today, 2);
    day.stepUndone(today, 1); // the paste had counted nothing
    QCOMPARE(day.wordsOn(today), qsizetype(3));
    day.stepRedone(today, 2);
    day.stepRedone(tomorrow, 3);
    QCOMPARE(day.wordsOn(today), qsizetype(3));
    QCOMPARE(day.wordsOn(tomorrow), qsizetype(10));
    day.stepUndone(tomorrow, 2);
    day.otherStepMade(3); // in place of the undone one
    day.stepUndone(tomorrow, 2);
    QCOMPARE(day.wordsOn(tomorrow), qsizetype(0));
}

void TestWriting::deskComesBack()
{
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("désks and more"));
    const ContentId id = ContentId::create();
    const QDate day(2026, 3, 4);
    {
        WritingDesk desk(folder);
        desk.setPlace(id, {1, 2, 3}); // of a project without a place: kept until it has one
        desk.save();
        QVERIFY(!QDir(folder).exists());
        desk.moveTo(QStringLiteral("/there/a"));
        desk.day().type(day, 7);
        desk.setLastDocument(id);
        desk.save();
        desk.open(QStringLiteral("/there/b"));
        QVERIFY(desk.lastDocument().isNull());
        for (int i = 0; i < 600; ++i)
            desk.setPlace(ContentId::create(), {i, i, i});
        desk.setPlace(id, {4, 5, 6});
        desk.save();
    }
    WritingDesk desk(folder);
    desk.open(QStringLiteral("/there/a"));
    QCOMPARE(desk.place(id), (WritingPlace{1, 2, 3}));
    QCOMPARE(desk.lastDocument(), id);
    QCOMPARE(desk.day().wordsOn(day), qsizetype(7));
    desk.open(QStringLiteral("/there/b"));
    QCOMPARE(desk.place(id), (WritingPlace{4, 5, 6}));
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files))
        QVERIFY(file.size() < 200'000);
}

void TestWriting::damagedDesksAreEmpty()
{
    QTemporaryDir dir;
    const ContentId id = ContentId::create();
    WritingDesk desk(dir.path());
    desk.open(QStringLiteral("/there"));
    desk.setPlace(id, {1, 2, 3});
    desk.save();
    const QString file = QDir(dir.path()).entryInfoList(QDir::Files).first().filePath();
    for (const QByteArray &bytes :
         {QByteArray("{"), QByteArray("[1]"), QByteArray(3'000'000, ' '),
          QByteArray(R"({"places": [1, {"document": 3}], "days": {"x": 1, "2026-01-01": "z"}})")}) {
        QFile damaged(file);
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write(bytes);
        damaged.close();
        WritingDesk again(dir.path());
        again.open(QStringLiteral("/there"));
        QCOMPARE(again.place(id), WritingPlace());
        QVERIFY(again.lastDocument().isNull());
    }
}

QTEST_GUILESS_MAIN(TestWriting)
#include "tst_writing.moc"
