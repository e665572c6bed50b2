#include "app/text/markdownstyle.h"

#include <QtTest/QtTest>

using namespace vl::app;

namespace {

QString letters(quint32 style)
{
    QString text;
    const std::pair<quint32, char16_t> names[] = {
        {EmphasisText, u'e'}, {StrongText, u's'}, {StrikeText, u'd'},
        {CodeText, u'c'},     {LinkText, u'l'},   {FootnoteText, u'n'},
        {HeadingText, u'h'},  {QuoteText, u'q'},  {MarkText, u'.'}};
    for (const auto &[bit, letter] : names)
        if (style & bit)
            text += QChar(letter);
    return text;
}

/// "e:word" for each styled piece.
QString describe(const QString &line, const MarkdownLine &read)
{
    QStringList parts;
    for (const MarkdownRange &range : read.ranges)
        parts.append(letters(range.style) + u':' + line.mid(range.start, range.length));
    return parts.join(u'|');
}

} // namespace

class TestMarkdownStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void fencesCarryOn();
    void longLinesTakeLinearTime_data();
    void longLinesTakeLinearTime();
};

void TestMarkdownStyle::lines_data()
{
    using Kind = MarkdownLineKind;
    QTest::addColumn<QString>("line");
    QTest::addColumn<MarkdownLineKind>("kind");
    QTest::addColumn<QString>("styles");

    QTest::newRow("plain") << "no marks" << Kind::Paragraph << "";
    QTest::newRow("emphasis") << "a *b* c" << Kind::Paragraph << ".:*|e:b|.:*";
    QTest::newRow("strong") << "**b**" << Kind::Paragraph << ".:**|s:b|.:**";
    QTest::newRow("both") << "***b***" << Kind::Paragraph << ".:*|e.:**|es:b|e.:**|.:*";
    QTest::newRow("strong in emphasis")
        << "*a **b***" << Kind::Paragraph << ".:*|e:a |e.:**|es:b|e.:**|.:*";
    QTest::newRow("strike") << "~~b~~ ~c~" << Kind::Paragraph << ".:~~|d:b|.:~~";
    QTest::newRow("underscores mean nothing") << "__a__ _b_" << Kind::Paragraph << "";
    QTest::newRow("no partner") << "a * b **c" << Kind::Paragraph << ".:*|e: b |.:*";
    QTest::newRow("empty pair") << "a ** b" << Kind::Paragraph << "";
    QTest::newRow("escapes") << "\\*a\\* \\z" << Kind::Paragraph << ".:\\|.:\\";
    QTest::newRow("code shields") << "`*a*` *b*" << Kind::Paragraph
                                  << "c.:`|c:*a*|c.:`|.:*|e:b|.:*";
    QTest::newRow("two backticks are no code") << "``a`" << Kind::Paragraph << "c.:`|c:a|c.:`";
    QTest::newRow("link") << "[a](b(c)d)" << Kind::Paragraph << ".:[|l:a|.:](b(c)d)";
    QTest::newRow("no link with a blank") << "[a](b c)" << Kind::Paragraph << "";
    QTest::newRow("picture") << "![a](p.png)" << Kind::Paragraph << ".:![|l:a|.:](p.png)";
    QTest::newRow("reference") << "x[^1] [^]" << Kind::Paragraph << "n:[^1]";
    QTest::newRow("definition") << "[^1]: *x*" << Kind::FootnoteDefinition
                                << "n:[^1]|n.::|.:*|e:x|.:*";
    QTest::newRow("embed") << "![[Mara]] [[b]]" << Kind::Paragraph
                           << ".:![[|l:Mara|.:]]|.:[[|l:b|.:]]";
    QTest::newRow("heading") << "## A *b*" << Kind::Heading << "h.:## |h:A |h.:*|eh:b|h.:*";
    QTest::newRow("seven marks") << "####### x" << Kind::Paragraph << "";
    QTest::newRow("list") << " - a" << Kind::ListItem << ".: - ";
    QTest::newRow("no list with a plus") << "+ a" << Kind::Paragraph << "";
    QTest::newRow("quote") << "> a" << Kind::Quote << ".:> |q:a";
    QTest::newRow("scene break") << "* * *" << Kind::SceneBreak << ".:* * *";
    QTest::newRow("two are none") << "--" << Kind::Paragraph << "";
    QTest::newRow("table") << "| a | b" << Kind::TableRow << ".:||.:|";
    QTest::newRow("blank") << " \t" << Kind::Empty << ".: \t";
    QTest::newRow("empty") << "" << Kind::Empty << "";
    QTest::newRow("code, not a fence") << "```a```" << Kind::Paragraph << "c.:`|c:a|c.:`";
}

void TestMarkdownStyle::lines()
{
    QFETCH(QString, line);
    QFETCH(MarkdownLineKind, kind);
    QFETCH(QString, styles);

    const MarkdownLine read = readMarkdownLine(line, {});
    QCOMPARE(int(read.kind), int(kind));
    QCOMPARE(describe(line, read), styles);
}

void TestMarkdownStyle::fencesCarryOn()
{
    MarkdownLineState state;
    QString kinds;
    for (const char *line : {"a", "````", "*b*", "```", "~~~~", "`````  ", "*c*", "~~~", "x"}) {
        const MarkdownLine read = readMarkdownLine(QString::fromLatin1(line), state);
        QCOMPARE(read.after, markdownStateAfter(QString::fromLatin1(line), state));
        kinds += read.kind == MarkdownLineKind::Fence        ? u'F'
                 : read.kind == MarkdownLineKind::FencedCode ? u'c'
                                                             : u'-';
        state = read.after;
    }
    QCOMPARE(kinds, QStringLiteral("-FcccF-Fc"));
}

void TestMarkdownStyle::longLinesTakeLinearTime_data()
{
    QTest::addColumn<QString>("piece");
    for (const char *piece : {"*", "**a", "[", "[a](", "[a](b(", "`", "\\", "~~", "![", "[^a", "#",
                              "- ", "](", "*a `b* [c]("})
        QTest::newRow(piece) << QString::fromLatin1(piece);
}

/// What takes quadratic time would not end before the time limit of a test.
void TestMarkdownStyle::longLinesTakeLinearTime()
{
    QFETCH(QString, piece);
    const QString line = piece.repeated(20'000'000 / piece.size());
    const MarkdownLine read = readMarkdownLine(line, {});
    for (const MarkdownRange &range : read.ranges)
        QVERIFY(range.start >= 0 && range.length > 0
                && range.start + range.length <= markdownStyleLimit);
}

QTEST_GUILESS_MAIN(TestMarkdownStyle)
#include "tst_markdownstyle.moc"
