#include "app/text/stylechecker.h"
#include "app/text/stylewords.h"
#include "tests/support/styleoracle.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

using namespace vl::app;

/// Holds the hand-written style rules against known findings and against regular expressions.
class TestStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findings_data();
    void findings();
    void agreesWithExpressions_data();
    void agreesWithExpressions();
    void longSentenceBegins41Words_data();
    void longSentenceBegins41Words();
    void phrasePattern_data();
    void phrasePattern();
    void rulesAndCategories();
    void longUniformText_data();
    void longUniformText();

private:
    void compareWithOracle(const QString &text);

    StyleChecker m_checker;
    StyleOracle m_oracle;
};

namespace {

QString describe(const QList<StyleIssue> &issues)
{
    QStringList lines;
    for (const StyleIssue &issue : issues)
        lines << QStringLiteral("%1+%2 %3").arg(issue.start).arg(issue.length).arg(issue.message);
    return lines.join(u'\n');
}

QString words(int count)
{
    QString text = QStringLiteral("word ").repeated(count);
    text.chop(1);
    return text;
}

} // namespace

void TestStyle::compareWithOracle(const QString &text)
{
    QList<StyleIssue> all;
    for (size_t i = 0; i < m_oracle.rules().size(); ++i) {
        bool hasFailed = false;
        const QList<StyleIssue> expected = m_oracle.check(m_oracle.rules()[i], text, &hasFailed);
        QVERIFY2(!hasFailed, "an expression gave up");
        const QList<StyleIssue> found = m_checker.rules()[i]->check(text);
        if (found != expected) {
            QFAIL(qPrintable(QStringLiteral("%1\nexpected:\n%2\nfound:\n%3")
                                 .arg(QString::fromUtf8(QTest::toString(text)), describe(expected),
                                      describe(found))));
        }
        all += expected;
    }
    QCOMPARE(m_checker.check(text), all);
}

void TestStyle::findings_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("issues"); // start+length message, one a line, in the checker's order

    const auto row = [](const char *name, const QString &text, const char *issues) {
        QTest::newRow(name) << text << QString::fromUtf8(issues);
    };
    const auto plain = [&row](const char *text, const char *issues) {
        row(text, QString::fromUtf8(text), issues);
    };
    row("empty", QString(), "");
    plain("It was not seen.", "3+12 Passive voice: was not seen");
    plain("It was seen.", "3+8 Passive voice: was seen");
    plain("He was tired", "3+9 Passive voice: was tired");
    plain("He was red and is aged", "15+7 Passive voice: is aged");
    plain("The cat was only led.", "8+12 Passive voice: was only led");
    plain("That is fully", "8+5 Adverb: fully. Consider a stronger verb.");
    plain("They were badly-hurt", "10+5 Adverb: badly. Consider a stronger verb.");
    plain("It was ly ended", "");
    plain("It was 9ly ended", "3+13 Passive voice: was 9ly ended");
    plain("It was notle, was not not led", "18+7 Repeated word: not");
    plain("was being been held", "10+9 Passive voice: been held");
    plain("was really was quickly done", "11+16 Passive voice: was quickly done\n"
                                         "4+6 Filler word: really\n"
                                         "15+7 Adverb: quickly. Consider a stronger verb.");
    plain("was led said", "0+7 Passive voice: was led");
    plain("was\n\u00A0\u2003told", "0+10 Passive voice: was\n\u00A0\u2003told");
    plain("The the cat", "0+7 Repeated word: The");
    plain("the\nthe", "");
    plain("the the the", "0+7 Repeated word: the");
    plain("the the the THE", "0+7 Repeated word: the\n8+7 Repeated word: the");
    plain("ago \t ago, go-go go.", "0+9 Repeated word: ago\n14+5 Repeated word: go");
    plain("9the the the9 _a a", "");
    plain("ſeen SEEN \u212Aate kate", "0+9 Repeated word: ſeen\n10+9 Repeated word: \u212Aate");
    plain("été Été straße STRASSE", "0+7 Repeated word: été");
    plain("\U00010428x \U00010400X", "0+7 Repeated word: \U00010428x");
    plain("She really ran quickly.", "4+6 Filler word: really\n"
                                     "15+7 Adverb: quickly. Consider a stronger verb.");
    plain("only family fly Only \u212Aingly", "");
    plain("ſilly", "0+5 Adverb: ſilly. Consider a stronger verb.");
    plain("justice, adjust, just_, just9, just\u0301", "31+4 Filler word: just");
    plain("Kind of, kind  of, kind\u00A0of, sort of sort", "0+7 Filler word: Kind of\n"
                                                           "28+7 Filler word: sort of");
    plain("In order to win", "0+11 Wordy: In order to → to");
    plain("In spite of the fact that", "0+25 Wordy: In spite of the fact that → although");
    plain("aſ a matter of fact", "0+19 Wordy: aſ a matter of fact → in fact");
    plain("Break the ice", "0+13 Cliché: Break the ice");
    row("percent signs in the text", QStringLiteral("was\u00A0%1 %1 quickly"),
        "10+7 Adverb: quickly. Consider a stronger verb.");
    // The rules must not go silent on what a broken import left behind.
    row("half a surrogate pair",
        QStringLiteral("the the ") + QChar(0xD800) + QStringLiteral(" really") + QChar(0xDC00),
        "0+7 Repeated word: the\n10+6 Filler word: really");
    row("NUL",
        QStringLiteral("the ") + QChar(0) + QStringLiteral(" the was") + QChar(0)
            + QStringLiteral("led just"),
        "18+4 Filler word: just");
}

void TestStyle::findings()
{
    QFETCH(QString, text);
    QFETCH(QString, issues);
    QStringList expected = issues.split(u'\n');
    QStringList found = describe(m_checker.check(text)).split(u'\n');
    if (QByteArray(QTest::currentDataTag()).startsWith("was really")) {
        expected.sort();
        found.sort();
    }
    QCOMPARE(found, expected);
    compareWithOracle(text);
}

void TestStyle::agreesWithExpressions_data()
{
    QTest::addColumn<QStringList>("pieces");
    QTest::addColumn<int>("rounds");

    const QString capitalOfBeyond = QString::fromUcs4(U"\U00010400");
    const QString smallOfBeyond = QString::fromUcs4(U"\U00010428");
    const QStringList letters = {
        QStringLiteral("a"),      QStringLiteral("A"),      QStringLiteral("\u0430"),
        QStringLiteral("e"),      QStringLiteral("d"),      QStringLiteral("D"),
        QStringLiteral("l"),      QStringLiteral("y"),      QStringLiteral("Y"),
        QStringLiteral("s"),      QStringLiteral("ſ"),      QStringLiteral("K"),
        QStringLiteral("\u212A"), QStringLiteral("k"),      QStringLiteral("i"),
        QStringLiteral("I"),      QStringLiteral("\u0130"), QStringLiteral("\u0131"),
        QStringLiteral("ß"),      QStringLiteral("\u1E9E"), QStringLiteral("é"),
        QStringLiteral("É"),      QStringLiteral("\u0301"), QStringLiteral("\u03C3"),
        QStringLiteral("\u03C2"), QStringLiteral("\u03A3"), QStringLiteral("_"),
        QStringLiteral("9"),      QStringLiteral("\u00B2"), QStringLiteral("\u2167"),
        QStringLiteral("\u01C4"), QStringLiteral("\u01C5"), QStringLiteral("\u01C6"),
        QStringLiteral("'"),      QStringLiteral("-"),      QStringLiteral("\u00B5"),
        QStringLiteral("\u03BC"), capitalOfBeyond,          smallOfBeyond};
    const QStringList gaps = {
        QStringLiteral(" "),      QStringLiteral(" "),      QStringLiteral(" "),
        QStringLiteral("  "),     QStringLiteral("\t"),     QStringLiteral("\n"),
        QStringLiteral("\r\n"),   QStringLiteral("\u00A0"), QStringLiteral("\u2003"),
        QStringLiteral("\u2028"), QStringLiteral("\u0085"), QStringLiteral("\u180E"),
        QStringLiteral("\u200B"), QStringLiteral("\u3000"), QStringLiteral("."),
        QStringLiteral("!"),      QStringLiteral("?"),      QStringLiteral("..."),
        QStringLiteral(","),      QString(QChar(0)),        QString(QChar(0xD801)),
        QString(QChar(0xDC00))};
    QStringList listed = stylewords::formsOfToBe() + stylewords::irregularParticiples().mid(0, 9)
                         + stylewords::fillers() + stylewords::cliches().mid(0, 6)
                         + stylewords::adverbExceptions().mid(0, 5);
    for (const WordyPhrase &row : stylewords::wordyPhrases())
        listed << row.phrase;
    listed << QStringLiteral("not") << QStringLiteral("badly") << QStringLiteral("ly")
           << QStringLiteral("ended") << QStringLiteral("ed") << QStringLiteral("the")
           << QStringLiteral("The") << QStringLiteral("THE") << QStringLiteral("wo\u212Aed");
    QStringList phraseWords;
    for (const QString &phrase : stylewords::cliches() + listed)
        phraseWords += phrase.split(u' ');

    QTest::newRow("two letters and blanks") << QStringList(
        {QStringLiteral("a"), QStringLiteral("A"), QStringLiteral(" "), QStringLiteral(" "),
         QStringLiteral("\t"), QStringLiteral("\n"), QStringLiteral("_")})
                                            << 4000;
    QTest::newRow("letters and gaps") << letters + gaps << 4000;
    QTest::newRow("listed words") << listed
                                         + QStringList({QStringLiteral(" "), QStringLiteral(" "),
                                                        QStringLiteral("\n"), QStringLiteral(".")})
                                  << 2000;
    QTest::newRow("listed words, letters, gaps") << listed + letters + gaps + gaps << 4000;
    QTest::newRow("pieces of phrases")
        << phraseWords + QStringList({QStringLiteral(""), QStringLiteral(""), QStringLiteral(" ")})
        << 2000;
    QTest::newRow("passive voice") << QStringList(
        {QStringLiteral("was"), QStringLiteral("iſ"), QStringLiteral("be"), QStringLiteral("en"),
         QStringLiteral("not"), QStringLiteral("ly"), QStringLiteral("ed"), QStringLiteral("re"),
         QStringLiteral("led"), QStringLiteral(" "), QStringLiteral(" "), QStringLiteral(" "),
         QStringLiteral("\u2003"), QStringLiteral("-"), QStringLiteral("\u0301"),
         QStringLiteral("BADLY")}) << 4000;
}

void TestStyle::agreesWithExpressions()
{
    QFETCH(QStringList, pieces);
    QFETCH(int, rounds);
    QRandomGenerator random(20240229);
    for (int round = 0; round < rounds; ++round) {
        QString text;
        // Half of the texts put a blank between any two pieces, a few are long enough for
        // sentences.
        const bool isSpaced = random.bounded(2);
        const int count = random.bounded(round % 16 ? 24 : 160);
        for (int i = 0; i < count; ++i) {
            QString piece = pieces[random.bounded(int(pieces.size()))];
            if (random.bounded(8) == 0 && !piece.isEmpty()) {
                const int at = random.bounded(int(piece.size()));
                if (piece[at] == u's' && random.bounded(2))
                    piece[at] = QChar(0x017F);
                else if (piece[at] == u'k' && random.bounded(2))
                    piece[at] = QChar(0x212A);
                else if (!piece[at].isSurrogate())
                    piece[at] = piece[at].toUpper();
            }
            text += piece;
            if (isSpaced)
                text += u' ';
        }
        compareWithOracle(text);
        if (QTest::currentTestFailed())
            return;
    }
}

void TestStyle::longSentenceBegins41Words_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("issues");

    const QString message = QStringLiteral(" Long sentence (%1 words). Consider breaking it up.");
    QTest::newRow("40 words") << words(40) + u'.' << QString();
    QTest::newRow("41 words") << words(41) + u'.' << QStringLiteral("0+205") + message.arg(41);
    QTest::newRow("white space around it is left out")
        << QStringLiteral("Ha!\n\u2003") + words(41) + QStringLiteral("?! \n")
        << QStringLiteral("5+206") + message.arg(41);
    QTest::newRow("a lone end is a word")
        << words(40) + QStringLiteral(" .") << QStringLiteral("0+201") + message.arg(41);
    QTest::newRow("paragraphs do not part sentences")
        << words(21) + QStringLiteral("\n\n") + words(20)
        << QStringLiteral("0+205") + message.arg(41);
    QTest::newRow("ends without a sentence")
        << QStringLiteral("... ?!") + words(45) + QStringLiteral("...")
        << QStringLiteral("6+227") + message.arg(45);
}

void TestStyle::longSentenceBegins41Words()
{
    QFETCH(QString, text);
    QFETCH(QString, issues);
    QList<StyleIssue> found = LongSentenceRule().check(text);
    QCOMPARE(describe(found), issues);
    compareWithOracle(text);
}

void TestStyle::phrasePattern_data()
{
    QTest::addColumn<QStringList>("phrases");
    QTest::addColumn<QString>("pattern");

    QTest::newRow("none") << QStringList() << QStringLiteral("(?!)");
    QTest::newRow("longest first")
        << QStringList({QStringLiteral("kind"), QStringLiteral("kind of"), QStringLiteral("a+b+")})
        << QStringLiteral("(?<!\\w)(kind\\ of|a\\+b\\+|kind)(?!\\w)");
}

void TestStyle::phrasePattern()
{
    QFETCH(QStringList, phrases);
    QFETCH(QString, pattern);
    const QRegularExpression expression = buildPhrasePattern(phrases);
    QVERIFY(expression.isValid());
    QCOMPARE(expression.pattern(), pattern);
    QCOMPARE(expression.match(QStringLiteral("some KIND OF")).captured(1),
             phrases.isEmpty() ? QString() : QStringLiteral("KIND OF"));
}

void TestStyle::rulesAndCategories()
{
    QStringList lines;
    for (const auto &rule : m_checker.rules())
        lines << QStringLiteral("%1 %2 %3")
                     .arg(rule->id())
                     .arg(rule->kind())
                     .arg(styleCategoryName(rule->kind()));
    QCOMPARE(lines, QStringList({QStringLiteral("repeated-word 3 Repeated words"),
                                 QStringLiteral("crutch-word 2 Crutch words"),
                                 QStringLiteral("wordiness 4 Wordy phrases"),
                                 QStringLiteral("passive-voice 1 Passive voice"),
                                 QStringLiteral("long-sentence 0 Hard-to-read sentences"),
                                 QStringLiteral("adverb 5 Weak adverbs"),
                                 QStringLiteral("cliche 6 Clichés")}));
    QCOMPARE(styleCategoryName(-1), QStringLiteral("Other"));
    QCOMPARE(styleCategoryName(7), QStringLiteral("Other"));
    // No list has lost a word.
    QCOMPARE(stylewords::adverbExceptions().size(), 103);
    QCOMPARE(stylewords::fillers().size(), 23);
    QCOMPARE(stylewords::cliches().size(), 32);
    QCOMPARE(stylewords::wordyPhrases().size(), 22);
}

void TestStyle::longUniformText_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<int>("issues");

    constexpr int repeats = 300000; // long enough that the expressions give up on some of it
    QTest::newRow("one letter") << QStringLiteral("a") << 0;
    QTest::newRow("a letter and a blank") << QStringLiteral("a ") << repeats / 2 + 1;
    QTest::newRow("a filler") << QStringLiteral("very ") << repeats + repeats / 2 + 1;
    QTest::newRow("an auxiliary and blanks") << QStringLiteral("was \u2003 ") << 1;
}

void TestStyle::longUniformText()
{
    QFETCH(QString, piece);
    QTEST(int(m_checker.check(piece.repeated(300000)).size()), "issues");
}

QTEST_GUILESS_MAIN(TestStyle)
#include "tst_style.moc"
