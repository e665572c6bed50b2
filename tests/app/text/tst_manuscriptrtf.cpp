#include "app/text/export/manuscriptrtf.h"
#include "app/text/export/manuscriptrtfentries.h"
#include "app/text/footnotetext.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

using namespace vl::app;

namespace {

// The conversions told a second time with the patterns that define them, to compare with.
namespace pattern {

QString escape(const QString &text)
{
    QString out;
    for (const QChar c : text) {
        const int unit = c.unicode();
        if (QStringLiteral("\\{}").contains(c))
            out += QLatin1Char('\\') + QString(c);
        else if (unit >= 0x80)
            out += QStringLiteral("\\u%1?").arg(unit > 0x7FFF ? unit - 65536 : unit);
        else if (unit >= 0x20 || QStringLiteral("\t\n\r").contains(c))
            out += c;
    }
    return out;
}

QString inlineText(QString text)
{
    static const QRegularExpression code(QStringLiteral("`([^`]+)`"));
    static const QRegularExpression link(QStringLiteral("!?\\[([^\\]]*)\\]\\([^)]*\\)"));
    static const QRegularExpression token(
        QStringLiteral("\\\\([!-/:-@\\[-`{-~])|(\\*\\*)|(\\*)|(.)"),
        QRegularExpression::DotMatchesEverythingOption);
    text.replace(code, QStringLiteral("\\1"));
    text.replace(link, QStringLiteral("\\1"));
    QString out;
    bool bold = false;
    bool italic = false;
    auto it = token.globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        if (match.hasCaptured(2))
            out += (bold = !bold) ? QStringLiteral("\\b ") : QStringLiteral("\\b0 ");
        else if (match.hasCaptured(3))
            out += (italic = !italic) ? QStringLiteral("\\i ") : QStringLiteral("\\i0 ");
        else
            out += escape(match.captured(match.hasCaptured(1) ? 1 : 4));
    }
    return out + (bold ? QStringLiteral("\\b0 ") : QString())
           + (italic ? QStringLiteral("\\i0 ") : QString());
}

QString paragraphs(const QString &text)
{
    static const QRegularExpression blankLines(QStringLiteral("\\n\\s*\\n"));
    QString out;
    for (const QString &piece : text.split(blankLines, Qt::SkipEmptyParts)) {
        out += QStringLiteral("\\pard\\fi720\\sl480\\slmult1\\ql ") + inlineText(piece)
               + QStringLiteral("\\par\n");
    }
    return out;
}

qsizetype words(const QString &text)
{
    static const QRegularExpression spaces(QStringLiteral("\\s+"));
    return text.split(spaces, Qt::SkipEmptyParts).size();
}

} // namespace pattern

/// Random text of the characters and sequences that the conversions look at.
QString randomText(QRandomGenerator &random)
{
    static const QStringList pieces{
        QStringLiteral("`"),        QStringLiteral("["),      QStringLiteral("]"),
        QStringLiteral("("),        QStringLiteral(")"),      QStringLiteral("]("),
        QStringLiteral("!["),       QStringLiteral("*"),      QStringLiteral("**"),
        QStringLiteral("\\"),       QStringLiteral("{"),      QStringLiteral("}"),
        QStringLiteral("\n"),       QStringLiteral("\n\n"),   QStringLiteral(" "),
        QStringLiteral("\t"),       QStringLiteral("\r\n"),   QStringLiteral("\v\f"),
        QStringLiteral("\u0085"),   QStringLiteral("\u00a0"), QStringLiteral("\u2003"),
        QStringLiteral("\u2028"),   QStringLiteral("%1"),     QStringLiteral("\u0001"),
        QStringLiteral("\u007f"),   QStringLiteral("_"),      QStringLiteral("word"),
        QStringLiteral("\u00e9"),   QString(QChar(0)),        QStringLiteral("\U0001F600"),
        QStringLiteral("[a](b)"),   QStringLiteral("`c`"),    QStringLiteral("\\*"),
        QStringLiteral("[^1]: n\n")};
    QString text;
    for (int i = random.bounded(24); i > 0; --i)
        text += pieces[random.bounded(int(pieces.size()))];
    return text;
}

QString words(int count)
{
    return QStringLiteral("word ").repeated(count);
}

} // namespace

class TestManuscriptRtf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inlineText_data();
    void inlineText();
    void patternsAgree();
    void longRunsOfMarks_data();
    void longRunsOfMarks();
    void roundedWords_data();
    void roundedWords();
    void wholeDocument();
    void openFields_data();
    void openFields();
    void entriesForTheLayout_data();
    void entriesForTheLayout();
};

void TestManuscriptRtf::inlineText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rtf");

    QTest::newRow("nested") << "**bold *both* bold**"
                            << "\\b bold \\i both\\i0  bold\\b0 ";
    QTest::newRow("bold left open") << "**open"
                                    << "\\b open\\b0 ";
    QTest::newRow("both left open") << "*a **b"
                                    << "\\i a \\b b\\b0 \\i0 ";
    QTest::newRow("three stars") << "***x***"
                                 << "\\b \\i x\\b0 \\i0 ";
    QTest::newRow("escaped stars") << "\\*literal\\*"
                                   << "*literal*";
    QTest::newRow("backslash kept") << "a\\b \\\\ \\"
                                    << "a\\\\b \\\\ \\\\";
    QTest::newRow("code keeps its stars as formatting") << "`*a*`"
                                                        << "\\i a\\i0 ";
    QTest::newRow("escaped mark is a mark all the same") << "\\`a`"
                                                         << "\\\\a";
    QTest::newRow("braces") << "{x}"
                            << "\\{x\\}";
    QTest::newRow("not formatting") << "_a_ ~~b~~ [^1]"
                                    << "_a_ ~~b~~ [^1]";
    QTest::newRow("link and image") << "![alt](p.png) [a](b)[]()"
                                    << "alt a";
    QTest::newRow("accent") << QStringLiteral("\u00e9") << "\\u233?";
    QTest::newRow("surrogates") << QStringLiteral("\U0001F600") << "\\u-10179?\\u-8704?";
    QTest::newRow("lone surrogate") << QString(QChar(0xD800)) << "\\u-10240?";
    QTest::newRow("controls") << QStringLiteral("a\u0001\t\n\r\u007fb")
                              << QStringLiteral("a\t\n\r\u007fb");
}

void TestManuscriptRtf::inlineText()
{
    QFETCH(QString, text);
    QTEST(markdownInlineToRtf(text), "rtf");
}

void TestManuscriptRtf::patternsAgree()
{
    QRandomGenerator random(20240229);
    for (int i = 0; i < 30000; ++i) {
        const QString text = randomText(random);
        QCOMPARE(rtfEscape(text), pattern::escape(text));
        QCOMPARE(markdownInlineToRtf(text), pattern::inlineText(text));
        QCOMPARE(markdownToRtfParagraphs(text), pattern::paragraphs(text));
        // Three hundred times the text: no rounding hides a word more or less.
        const qsizetype count = 300 * pattern::words(withoutFootnoteDefinitions(text));
        const QList<ManuscriptEntry> entries(300, {2, {}, text, {}});
        const QString about =
            QStringLiteral("\\tab About %1 words\\line").arg(count > 0 ? count : 100);
        QVERIFY2(i % 10 > 0 || exportManuscriptRtf({}, entries).contains(about),
                 qUtf8Printable(text));
    }
}

void TestManuscriptRtf::longRunsOfMarks_data()
{
    QTest::addColumn<QString>("piece");
    for (const char *piece :
         {"[", "`", "``a", "*", "](", "![", "[](", "[a](b)", "\\", "\n", " \n x"})
        QTest::newRow(piece) << piece;
}

// Something that grows with the square of the length would not come to an end here.
void TestManuscriptRtf::longRunsOfMarks()
{
    QFETCH(QString, piece);
    const QString text = piece.repeated(1 << 20);
    QVERIFY(markdownToRtfParagraphs(text).size() < 64 * text.size());
}

void TestManuscriptRtf::roundedWords_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("shown");
    QTest::newRow("none") << 0 << "About 100 words";
    QTest::newRow("99") << 99 << "About 100 words";
    QTest::newRow("149") << 149 << "About 100 words";
    QTest::newRow("150") << 150 << "About 200 words";
    QTest::newRow("9949") << 9949 << "About 9900 words";
    QTest::newRow("9950") << 9950 << "About 10000 words";
    QTest::newRow("10499") << 10499 << "About 10000 words";
    QTest::newRow("12499") << 12499 << "About 12000 words";
    QTest::newRow("12500") << 12500 << "About 13000 words";
}

void TestManuscriptRtf::roundedWords()
{
    QFETCH(int, count);
    QFETCH(QString, shown);
    const QString rtf = exportManuscriptRtf(
        {}, {{1, {}, words(count / 2), {}}, {2, {}, words(count - count / 2), {}}});
    QVERIFY2(rtf.contains(shown), qPrintable(rtf.left(600)));
}

void TestManuscriptRtf::wholeDocument()
{
    const ManuscriptRtfOptions options{
        QStringLiteral("Night %1 Tide"), QStringLiteral("Ann %2 Lee"),
        QStringLiteral("1 High Street\nann@example.org"), QStringLiteral("A. {Sea}")};
    const QList<ManuscriptEntry> entries{
        {0, QStringLiteral("Part *One*"), QString(), {}},
        {1,
         QStringLiteral("Chapter %1"),
         QStringLiteral("First[^1].\n\n[^1]: A note\n\nLast."),
         {}},
        {2, QStringLiteral("not shown"), QStringLiteral("Scene %2."), {}},
        {3, QStringLiteral("not shown"), QStringLiteral("Another."), {}},
        {1, QStringLiteral("Two"), QString(), {}}};
    const QString body = QStringLiteral("\\pard\\fi720\\sl480\\slmult1\\ql ");
    const QString expected =
        QStringLiteral("{\\rtf1\\ansi\\ansicpg1252\\deff0\n"
                       "{\\fonttbl{\\f0\\fmodern\\fcharset0 Courier New;}}\n"
                       "\\paperw12240\\paperh15840\\margl1440\\margr1440\\margt1440\\margb1440"
                       "\\titlepg\n"
                       "{\\headerf\\pard\\par}\n"
                       "{\\header\\pard\\qr\\f0\\fs24 Lee / NIGHT %1 TIDE / \\chpgn\\par}\n"
                       "\\pard\\f0\\fs24\\sl240\\slmult1\\ql\\tqr\\tx9360 Ann %2 Lee"
                       "\\tab About 100 words\\line\n"
                       "1 High Street\\line\nann@example.org\\line\n\\par\n"
                       "\\pard\\qc\\sl240\\slmult1\\sb3600 Night %1 Tide\\par\n"
                       "\\pard\\qc\\par\nby\\par\n\\par\nA. \\{Sea\\}\\par\n\\page\n")
        + QStringLiteral("\\pard\\qc\\sl480\\slmult1\\sb3600 Part \\i One\\i0 \\par\n"
                         "\\pard\\qc\\sl480\\slmult1\\par\n"
                         "\\page\n\\pard\\qc\\sl480\\slmult1\\sb3600 Chapter %1\\par\n"
                         "\\pard\\qc\\sl480\\slmult1\\par\n")
        + body + QStringLiteral("First[^1].\\par\n") + body + QStringLiteral("Last.\\par\n") + body
        + QStringLiteral("Scene %2.\\par\n\\pard\\qc\\sl480\\slmult1 #\\par\n") + body
        + QStringLiteral("Another.\\par\n"
                         "\\page\n\\pard\\qc\\sl480\\slmult1\\sb3600 Two\\par\n"
                         "\\pard\\qc\\sl480\\slmult1\\par\n"
                         "\\pard\\qc\\sl480\\slmult1\\sb480 THE END\\par\n}\n");
    QCOMPARE(exportManuscriptRtf(options, entries), expected);
}

void TestManuscriptRtf::openFields_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("author");
    QTest::addColumn<QString>("penName");
    QTest::addColumn<QString>("part"); ///< stands in the result

    QTest::newRow("no title") << ""
                              << "A B"
                              << ""
                              << "24 B / UNTITLED / \\chpgn";
    QTest::newRow("title shown") << ""
                                 << ""
                                 << ""
                                 << "\\sb3600 Untitled\\par";
    QTest::newRow("no author") << "T"
                               << ""
                               << ""
                               << "\\fs24  / T / ";
    QTest::newRow("author of blanks") << "T"
                                      << "  "
                                      << ""
                                      << "\\fs24  / T / ";
    QTest::newRow("blank behind the name") << "T"
                                           << "Ann Lee "
                                           << ""
                                           << "\\fs24 Lee / T / ";
    QTest::newRow("byline is the author") << "T"
                                          << "A B"
                                          << ""
                                          << "by\\par\n\\par\nA B\\par\n";
    QTest::newRow("byline is the pen name") << "T"
                                            << "A B"
                                            << "P"
                                            << "by\\par\n\\par\nP\\par\n";
    QTest::newRow("no contact") << "T"
                                << "A"
                                << ""
                                << "words\\line\n\\par\n";
    QTest::newRow("upper case grows") << QStringLiteral("Stra\u00dfe") << ""
                                      << ""
                                      << "/ STRASSE /";
}

void TestManuscriptRtf::openFields()
{
    QFETCH(QString, title);
    QFETCH(QString, author);
    QFETCH(QString, penName);
    QFETCH(QString, part);
    const QString rtf = exportManuscriptRtf({title, author, {}, penName}, {});
    QVERIFY2(rtf.contains(part), qPrintable(rtf));
}

void TestManuscriptRtf::entriesForTheLayout_data()
{
    QTest::addColumn<QString>("before"); // entries: level, title, text, parted by "|" and "/"
    QTest::addColumn<QString>("after");

    QTest::newRow("lines of a paragraph") << "1|T|one\n two\r\nthree  \n\n\n four"
                                          << "1|T|one two three\n\nfour";
    QTest::newRow("blanks inside a line") << "2|T|a  b"
                                          << "2|T|a  b";
    QTest::newRow("only white space") << "1|T| \n\n "
                                      << "1|T|";
    QTest::newRow("rule inside a scene") << "2|T|a\n\n* * *\n\nb"
                                         << "2|T|a/2|T|b";
    QTest::newRow("rules at the ends") << "2|T|***\na\n---"
                                       << "2|T|a";
    QTest::newRow("rule inside a chapter") << "1|T|a\n\n#\n\nb"
                                           << "1|T|/2|T|a/2|T|b";
    QTest::newRow("chapter with text and scenes") << "1|C|a/2|S|b"
                                                  << "1|C|a/2|S|b";
    QTest::newRow("chapter, then chapter") << "0|P|a/1|C|b"
                                           << "0|P|a/1|C|b";
    QTest::newRow("definitions first") << "1|T|a[^1]\n[^1]: n\nb"
                                       << "1|T|a[^1] b";
}

void TestManuscriptRtf::entriesForTheLayout()
{
    QFETCH(QString, before);
    Manuscript manuscript;
    for (const QString &entry : before.split(QLatin1Char('/'))) {
        const QStringList fields = entry.split(QLatin1Char('|'));
        manuscript.entries.append({fields[0].toInt(), fields[1], fields[2], {}});
    }
    QStringList after;
    for (const ManuscriptEntry &entry : manuscriptRtfEntries(manuscript))
        after += QString::number(entry.level) + QLatin1Char('|') + entry.title + QLatin1Char('|')
                 + entry.text;
    QTEST(after.join(QLatin1Char('/')), "after");
}

QTEST_GUILESS_MAIN(TestManuscriptRtf)
#include "tst_manuscriptrtf.moc"
