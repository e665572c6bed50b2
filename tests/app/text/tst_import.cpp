#include "app/text/import/importcommands.h"
#include "app/text/import/markdownfolder.h"
#include "app/text/import/markdownimport.h"
#include "app/text/import/plaintextimport.h"
#include "app/text/import/textdecoding.h"
#include "core/commandstack.h"
#include "core/project.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace vl::app;
using namespace vl::core;

namespace {

/// "title=body" of each document, "(...)" around those below it, "?" before the title of a note.
QString outline(const std::vector<ImportedDocument> &documents)
{
    QStringList parts;
    for (const ImportedDocument &document : documents) {
        QString part = document.kind == DocumentKind::Note ? QStringLiteral("?") : QString();
        part += document.title;
        if (!document.body.isEmpty())
            part += QLatin1Char('=') + document.body;
        if (!document.children.empty())
            part += QLatin1Char('(') + outline(document.children) + QLatin1Char(')');
        parts += part;
    }
    return parts.join(QLatin1String("; "));
}

QString plainOutline(const QByteArray &bytes)
{
    return outline(importPlainText(bytes, QStringLiteral("File")).documents);
}

/// The letters and digits of a text, which no import may change.
QString lettersOf(const QString &text)
{
    QString letters;
    for (const QChar c : text)
        if (c.isLetterOrNumber())
            letters += c;
    return letters;
}

QString lettersOf(const std::vector<ImportedDocument> &documents)
{
    QString letters;
    for (const ImportedDocument &document : documents) {
        if (document.title != QLatin1String("Front Matter"))
            letters += lettersOf(document.title);
        letters += lettersOf(document.body) + lettersOf(document.children);
    }
    return letters;
}

/// A piece of a plain-text book as it could stand between two empty lines.
QString randomBlock(QRandomGenerator &random)
{
    static const QStringList blocks{
        QStringLiteral("CHAPTER I"),
        QStringLiteral("CHAPTER II\nThe Sea"),
        QStringLiteral("BOOK ONE: 1805"),
        QStringLiteral("BOOK TWO\nCHAPTER 1"),
        QStringLiteral("I."),
        QStringLiteral("II"),
        QStringLiteral("3"),
        QStringLiteral("P A R T  O N E"),
        QStringLiteral("FIRST EPILOGUE"),
        QStringLiteral("Prologue"),
        QStringLiteral("* * *"),
        QStringLiteral("_all of it_ and *this* [a](b) \\_"),
        QStringLiteral("The Sea"),
        QStringLiteral("- a\n- b\n1. c"),
        QStringLiteral("a|b\n---|---\n1|2"),
        QStringLiteral("  In verse\n    it goes\n  _so\nfar_"),
        QStringLiteral("*** END OF THE BOOK"),
        QStringLiteral("CHAPTER I. A long title that goes on over\nmore than one line"),
        QStringLiteral(
            "It was a bright cold day in April, and the clocks were well-\nknown for that "
            "as long as anybody could remember them at all--\nor so it seemed.")};
    return blocks[random.bounded(int(blocks.size()))];
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray utf16(const QString &text, bool isBigEndian)
{
    QByteArray bytes;
    for (const QChar c : text) {
        bytes += char(isBigEndian ? c.row() : c.cell());
        bytes += char(isBigEndian ? c.cell() : c.row());
    }
    return bytes;
}

const QString wrapped =
    QStringLiteral("It is a truth universally acknowledged, that a single man in\n"
                   "possession of a good fortune, must be in want of a wife. How\n"
                   "little known the feelings of such a man may be to others.\n");

} // namespace

class TestImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decoding_data();
    void decoding();
    void plainHeadings_data();
    void plainHeadings();
    void plainBodies_data();
    void plainBodies();
    void plainKeepsEveryLetter();
    void markdown_data();
    void markdown();
    void folder();
    void missingPath();
    void naturalOrder_data();
    void naturalOrder();
    void hostileText_data();
    void hostileText();
    void intoProject();
};

void TestImport::decoding_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    const QString german = QStringLiteral("\u00bbWas?\u00ab dachte er.\n");
    QTest::newRow("UTF-8") << german.toUtf8() << german;
    QTest::newRow("UTF-8 with mark") << QByteArray("\xEF\xBB\xBF") + german.toUtf8() << german;
    QTest::newRow("UTF-16 LE with mark") << QByteArray("\xFF\xFE") + utf16(german, false) << german;
    QTest::newRow("UTF-16 BE with mark") << QByteArray("\xFE\xFF") + utf16(german, true) << german;
    QTest::newRow("UTF-16 LE") << utf16(german, false) << german;
    QTest::newRow("UTF-16 BE") << utf16(german, true) << german;
    QTest::newRow("Latin-1") << german.toLatin1() << german;
    QTest::newRow("Windows-1252") << QByteArray("\x93No\x94\x97\x85")
                                  << QStringLiteral("\u201cNo\u201d\u2014\u2026");
    QTest::newRow("one bad byte in UTF-8")
        << german.toUtf8() + "\x92s" << german + QStringLiteral("\u2019s");
    QTest::newRow("cut UTF-8") << QByteArray("\xC3\xA9 \xE2\x80")
                               << QStringLiteral("\u00e9 \u00e2\u20ac");
    QTest::newRow("overlong") << QByteArray("\xC0\xAF") << QStringLiteral("\u00c0\u00af");
    QTest::newRow("line ends") << QByteArray("a\r\nb\rc\n\fd") << QStringLiteral("a\nb\nc\n\n\nd");
    QTest::newRow("controls") << QByteArray("a\0b\x1A\tc", 6) << QStringLiteral("ab\tc");
    QTest::newRow("lone surrogate")
        << QByteArray("\xFF\xFE\x00\xD8\x61\x00", 6) << QStringLiteral("\uFFFDa");
    QTest::newRow("empty") << QByteArray() << QString();
}

void TestImport::decoding()
{
    QFETCH(QByteArray, bytes);
    QTEST(decodeText(bytes), "text");
}

void TestImport::plainHeadings_data()
{
    QTest::addColumn<QByteArray>("text"); // "/" stands for an empty line
    QTest::addColumn<QString>("documents");

    QTest::newRow("none") << QByteArray("Only text") << "File=Only text";
    QTest::newRow("empty") << QByteArray("") << "File";
    QTest::newRow("book and chapters")
        << QByteArray("BOOK ONE: 1805/CHAPTER I/a/CHAPTER II/b/BOOK TWO/CHAPTER I/c")
        << "BOOK ONE: 1805(CHAPTER I=a; CHAPTER II=b); BOOK TWO(CHAPTER I=c)";
    QTest::newRow("front matter") << QByteArray("Title/by me/CHAPTER I/a")
                                  << "Front Matter=Title\n\nby me; CHAPTER I=a";
    QTest::newRow("prologue and epilogue")
        << QByteArray("PROLOGUE/a/PART ONE/Chapter 1. The Sea/b/EPILOGUE/c")
        << "PROLOGUE=a; PART ONE(Chapter 1. The Sea=b); EPILOGUE=c";
    QTest::newRow("interlude between chapters")
        << QByteArray("CHAPTER I/a/INTERLUDE/b/CHAPTER II/c")
        << "CHAPTER I=a; INTERLUDE=b; CHAPTER II=c";
    QTest::newRow("epilogue with chapters")
        << QByteArray("BOOK ONE/CHAPTER I/a/FIRST EPILOGUE: 1813 - 20/CHAPTER I/b")
        << "BOOK ONE(CHAPTER I=a); FIRST EPILOGUE: 1813 - 20(CHAPTER I=b)";
    QTest::newRow("part of several books") << QByteArray("PART ONE/BOOK I/CHAPTER I/a/BOOK II/b")
                                           << "PART ONE(BOOK I(CHAPTER I=a); BOOK II=b)";
    QTest::newRow("numerals") << QByteArray("I./A/II./B") << "I.=A; II.=B";
    QTest::newRow("one numeral is none") << QByteArray("a/I./b") << "File=a\n\nI.\n\nb";
    QTest::newRow("numbers out of order")
        << QByteArray("a/7/b/1805/c") << "File=a\n\n7\n\nb\n\n1805\n\nc";
    QTest::newRow("numbers of pages")
        << QByteArray("and so/1/he went/2/away.") << "File=and so\n\n1\n\nhe went\n\n2\n\naway.";
    QTest::newRow("numerals below chapters") << QByteArray("CHAPTER ONE/I/A/II/B/CHAPTER TWO/C")
                                             << "CHAPTER ONE(I=A; II=B); CHAPTER TWO=C";
    QTest::newRow("contents")
        << QByteArray("CONTENTS/CHAPTER I/CHAPTER II/CHAPTER III/"
                      "CHAPTER I/a/CHAPTER II/b/CHAPTER III/c")
        << "?Front Matter=CONTENTS\n\nCHAPTER I\n\nCHAPTER II\n\nCHAPTER III; "
           "CHAPTER I=a; CHAPTER II=b; CHAPTER III=c";
    QTest::newRow("contents with a preface behind")
        << QByteArray("CHAPTER I/CHAPTER II/CHAPTER III/CHAPTER IV/p/CHAPTER I/a/CHAPTER II/b/"
                      "CHAPTER III/c/CHAPTER IV/d")
        << "?Front Matter=CHAPTER I\n\nCHAPTER II\n\nCHAPTER III\n\nCHAPTER IV\n\np; "
           "CHAPTER I=a; CHAPTER II=b; CHAPTER III=c; CHAPTER IV=d";
    QTest::newRow("contents with books")
        << QByteArray("BOOK ONE/CHAPTER I/CHAPTER II/BOOK TWO/CHAPTER I/CHAPTER II/"
                      "BOOK ONE/CHAPTER I/a/CHAPTER II/b/BOOK TWO/CHAPTER I/c/CHAPTER II/d")
        << "?Front Matter=BOOK ONE\n\nCHAPTER I\n\nCHAPTER II\n\nBOOK TWO\n\nCHAPTER I\n\n"
           "CHAPTER II; BOOK ONE(CHAPTER I=a; CHAPTER II=b); BOOK TWO(CHAPTER I=c; CHAPTER II=d)";
    QTest::newRow("contents in one block")
        << QByteArray("CHAPTER I\nCHAPTER II\nCHAPTER III/CHAPTER I/a")
        << "Front Matter=CHAPTER I\nCHAPTER II\nCHAPTER III; CHAPTER I=a";
    QTest::newRow("an outline without text is no contents")
        << QByteArray("CHAPTER I/CHAPTER II/CHAPTER III/CHAPTER IV")
        << "CHAPTER I; CHAPTER II; CHAPTER III; CHAPTER IV";
    QTest::newRow("titles on their own line")
        << QByteArray("CHAPTER I/Loomings/a/CHAPTER II/The Sea/b")
        << "CHAPTER I: Loomings=a; CHAPTER II: The Sea=b";
    QTest::newRow("title right below")
        << QByteArray("CHAPTER I\nLoomings/a") << "CHAPTER I: Loomings=a";
    QTest::newRow("text right below")
        << QByteArray("CHAPTER I\nhe said so/a") << "CHAPTER I=he said so\n\na";
    QTest::newRow("spaced heading") << QByteArray("P A R T  O N E/a") << "PART ONE=a";
    QTest::newRow("spaced title before its chapters")
        << QByteArray("D I E  V E R W A N D L U N G/I./A/II./B") << "DIE VERWANDLUNG(I.=A; II.=B)";
    QTest::newRow("publisher in spaced letters")
        << QByteArray("L E I P Z I G/1917 etc/I./A/II./B")
        << "Front Matter=L E I P Z I G\n\n1917 etc; I.=A; II.=B";
    QTest::newRow("licence behind the book")
        << QByteArray("CHAPTER I/a/*** END OF THE BOOK ***/b") << "CHAPTER I=a; END OF THE BOOK=b";
}

void TestImport::plainHeadings()
{
    QFETCH(QByteArray, text);
    QTEST(plainOutline(text.replace('/', "\n\n")), "documents");
}

void TestImport::plainBodies_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("body");

    const QString joined = wrapped.trimmed().replace(QLatin1Char('\n'), QLatin1Char(' '));
    QTest::newRow("wrapped lines") << wrapped << joined;
    QTest::newRow("verse") << wrapped + QStringLiteral("\n  In verse\n    it goes\n  its way\n")
                           << joined + QStringLiteral("\n\nIn verse\n  it goes\nits way");
    QTest::newRow("address") << wrapped + QStringLiteral("\nMr. Bennet\nLongbourn\n")
                             << joined + QStringLiteral("\n\nMr. Bennet\nLongbourn");
    QTest::newRow("speeches without empty lines")
        << wrapped + QStringLiteral("\n\u201cYes.\u201d\n\u201cNo.\u201d\n")
        << joined + QStringLiteral("\n\n\u201cYes.\u201d\n\n\u201cNo.\u201d");
    QTest::newRow("indented paragraphs")
        << QStringLiteral("  ") + wrapped + QStringLiteral("  ") + wrapped
        << joined + QStringLiteral("\n\n") + joined;
    QTest::newRow("short lines end paragraphs")
        << QStringLiteral("Short.\n") + wrapped << QStringLiteral("Short.\n\n") + joined;
    QTest::newRow("broken compound")
        << QStringLiteral(
               "It is a truth universally acknowledged, that a single man is well-\nknown to be in "
               "possession of a good fortune and in want of a wife--\nor not.\n")
        << QStringLiteral("It is a truth universally acknowledged, that a single man is well-known "
                          "to be in possession of a good fortune and in want of a wife--or not.");
    QTest::newRow("a line is a paragraph")
        << QString(200, QLatin1Char('a')) + QStringLiteral("\n") + QString(200, QLatin1Char('b'))
        << QString(200, QLatin1Char('a')) + QStringLiteral("\n\n") + QString(200, QLatin1Char('b'));
    QTest::newRow("emphasis") << QStringLiteral("It _was_ so, snake_case_name and _not")
                              << QStringLiteral("It *was* so, snake\\_case\\_name and \\_not");
    QTest::newRow("emphasis over lines of verse")
        << QStringLiteral("_one\ntwo_\nthree") << QStringLiteral("*one*\n*two*\nthree");
    QTest::newRow("marks") << QStringLiteral("*a* `b` ~c~ [d](e) [^1] ![[f]] \\*")
                           << QStringLiteral(
                                  "\\*a\\* \\`b\\` \\~c\\~ [d\\](e) \\[^1] !\\[[f]] \\\\\\*");
    QTest::newRow("block marks") << QStringLiteral("# no\n- no\n12. no")
                                 << QStringLiteral("\\# no\n\\- no\n12\\. no");
    QTest::newRow("table") << QStringLiteral("a|b\n-|-") << QStringLiteral("a|b\n-\\|-");
    QTest::newRow("rule") << QStringLiteral("a\n\n*  *  *\n\nb") << QStringLiteral("a\n\n***\n\nb");
    QTest::newRow("blank lines") << QStringLiteral("\n\n\na\n \n\t\n\nb\n\n")
                                 << QStringLiteral("a\n\nb");
}

void TestImport::plainBodies()
{
    QFETCH(QString, text);
    const ImportedManuscript result = importPlainText(text.toUtf8(), QStringLiteral("File"));
    QCOMPARE(result.documents.size(), std::size_t(1));
    QTEST(result.documents.front().body, "body");
}

void TestImport::plainKeepsEveryLetter()
{
    QRandomGenerator random(19610412);
    for (int round = 0; round < 3000; ++round) {
        QString text;
        for (int i = random.bounded(30); i > 0; --i)
            text += randomBlock(random) + QString(random.bounded(1, 4), QLatin1Char('\n'));
        const ImportedManuscript result = importPlainText(text.toUtf8(), QString());
        QCOMPARE(lettersOf(result.documents), lettersOf(text));
    }
}

void TestImport::markdown_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("documents");

    QTest::newRow("nested") << QByteArray("# A\na\n## B\nb\n### C\n## D\n# E #\ne")
                            << "A=a(B=b(C); D); E=e";
    QTest::newRow("levels skipped") << QByteArray("# A\n#### B\n## C") << "A(B; C)";
    QTest::newRow("text before") << QByteArray("x\n\n# A\na") << "Front Matter=x; A=a";
    QTest::newRow("no heading") << QByteArray("x\n\ny\n") << "File=x\n\ny";
    QTest::newRow("underlined") << QByteArray("A\n===\na\n\nB\n---\nb") << "A=a(B=b)";
    QTest::newRow("rule below a sentence")
        << QByteArray("He left.\n---\nb") << "File=He left.\n---\nb";
    QTest::newRow("underline below a paragraph")
        << QByteArray("a\nb\n---\nc") << "File=a\nb\n---\nc";
    QTest::newRow("no headings") << QByteArray("#a\n\n####### b\n\n    # c\n\n#")
                                 << "File=#a\n\n####### b\n\n    # c\n\n#";
    QTest::newRow("fence") << QByteArray("# A\n```\n# no\n~~~\n```\n# B")
                           << "A=```\n# no\n~~~\n```; B";
    QTest::newRow("fence left open") << QByteArray("# A\n```\n# B") << "A=```; B";
    QTest::newRow("longer fence") << QByteArray("````\n```\n# no\n````\n# B")
                                  << "Front Matter=````\n```\n# no\n````; B";
    QTest::newRow("yaml title") << QByteArray("---\ntitle: \"A: b\"\n---\ntext") << "A: b=text";
    QTest::newRow("yaml with more")
        << QByteArray("---\ntitle: A\ntags: [x]\n---\n# B\nb") << "?Metadata=tags: [x]; B=b";
    QTest::newRow("rule is no yaml")
        << QByteArray("---\nSome prose\n---\nb") << "File=---\nSome prose\n---\nb";
    QTest::newRow("footnote to its chapter")
        << QByteArray("# A\na[^n]\n# B\nb\n\n[^n]: note\n    more")
        << "A=a[^n]\n\n[^n]: note more; B=b";
    QTest::newRow("footnotes numbered by chapter")
        << QByteArray("# A\na[^1]\n\n[^1]: x\n# B\nb[^1]\n\n[^1]: y")
        << "A=a[^1]\n\n[^1]: x; B=b[^1]\n\n[^1]: y";
    QTest::newRow("footnote without reference") << QByteArray("# A\n[^n]: note") << "A=[^n]: note";
    QTest::newRow("carriage returns") << QByteArray("# A\r\na\r\n") << "A=a";
}

void TestImport::markdown()
{
    QFETCH(QByteArray, text);
    QTEST(outline(importMarkdownText(text, QStringLiteral("File")).documents), "documents");
}

void TestImport::folder()
{
    const QTemporaryDir temporary(QDir::tempPath() + QStringLiteral("/notes \u00e9 XXXXXX"));
    const QDir root(temporary.path());
    QVERIFY(root.mkpath(QStringLiteral("Part 10")) && root.mkpath(QStringLiteral("Part 2/deep"))
            && root.mkpath(QStringLiteral("empty")) && root.mkpath(QStringLiteral(".git")));
    writeFile(root.filePath(QStringLiteral("Part 2/10.md")), "ten");
    writeFile(root.filePath(QStringLiteral("Part 2/9.MARKDOWN")), "# Nine\nnine");
    writeFile(root.filePath(QStringLiteral("Part 2/deep/x.txt")), "_x_");
    writeFile(root.filePath(QStringLiteral("Part 10/a.md")), "front\n# A\n# B\n");
    writeFile(root.filePath(QStringLiteral("Part 10/yaml.md")), "---\nk: v\n---\n# Y\ny");
    writeFile(root.filePath(QStringLiteral("image.png")), "x");
    writeFile(root.filePath(QStringLiteral(".hidden.md")), "x");
    writeFile(root.filePath(QStringLiteral("binary.md")), QByteArray(100, '\1'));
    QVERIFY(QFile::link(temporary.path(), root.filePath(QStringLiteral("Part 2/loop"))));
    const auto result = importMarkdown(temporary.path());
    QVERIFY(result);
    QCOMPARE(outline(result->documents),
             QStringLiteral("Part 2(Nine=nine; 10=ten; deep(x=*x*)); "
                            "Part 10(a=front(A; B); Y=y(?Metadata=k: v))"));
    QCOMPARE(result->skipped.size(), 5); // .git, .hidden.md, binary.md, image.png, loop
    QVERIFY(result->skipped.join(QLatin1Char('\n')).contains(QLatin1String("loop")));
}

void TestImport::missingPath()
{
    const QString path = QStringLiteral("/no such place/x.md");
    QVERIFY(importMarkdown(path).hasFailed());
    QVERIFY(importTextFile(path).hasFailed());
    QVERIFY2(importTextFile(path).message().contains(path),
             qPrintable(importTextFile(path).message()));
}

void TestImport::naturalOrder_data()
{
    QTest::addColumn<QString>("sorted"); // parted by "|"
    QTest::newRow("numbers") << "1|2|10|010|11a|11b";
    QTest::newRow("words") << "a|B|b|c|ch 2 x|ch 10";
    QTest::newRow("huge numbers") << "x99999999999999999998|x99999999999999999999";
    QTest::newRow("prefix") << "|a|a1|ab";
}

void TestImport::naturalOrder()
{
    QFETCH(QString, sorted);
    const QStringList names = sorted.split(QLatin1Char('|'));
    for (int i = 0; i < names.size(); ++i)
        for (int j = 0; j < names.size(); ++j)
            if (i != j && names[i].toInt() != 10)
                QCOMPARE(isNaturallyBefore(names[i], names[j]), i < j);
}

void TestImport::hostileText_data()
{
    QTest::addColumn<QByteArray>("piece");
    for (const char *piece :
         {"_", "_a ", "[", "# ", "# a\n", "```\n", "I\n\n", "1\n\n", "CHAPTER I\n\n", "a b c d ",
          "A B C D\n\n", "a\n===\n", "[^a]: b\n", "[^a]", "x\n", "\n", "\\", "--\n"})
        QTest::newRow(piece) << QByteArray(piece);
}

// Something that grows with the square of the length would not come to an end here.
void TestImport::hostileText()
{
    QFETCH(QByteArray, piece);
    const QByteArray text = piece.repeated((1 << 20) / int(piece.size()));
    QVERIFY(!importPlainText(text, QString()).documents.empty());
    QVERIFY(!importMarkdownText(text, QString()).documents.empty());
}

void TestImport::intoProject()
{
    Project project;
    CommandStack history;
    const ImportedManuscript manuscript =
        importPlainText("BOOK ONE\n\nCHAPTER I\n\na\n\nCHAPTER II\n\nb\n\nBOOK TWO\n\nc", {});
    QCOMPARE(importIntoProject(project, history, manuscript), 4);
    QCOMPARE(importIntoProject(project, history, manuscript), 4);
    QCOMPARE(history.undoCount(), 2);
    QStringList titles;
    for (const auto &place : project.documentTree().inOrder())
        titles += QString(place.depth, QLatin1Char(' ')) + place.document->title();
    const QString once = QStringLiteral("BOOK ONE| CHAPTER I| CHAPTER II|BOOK TWO");
    QCOMPARE(titles.join(QLatin1Char('|')), once + QLatin1Char('|') + once);
    history.undo();
    history.undo();
    QCOMPARE(project.size(), 0);
    history.redo();
    QCOMPARE(project.size(), 4);
    QCOMPARE(importIntoProject(project, history, {}), 0);
    QCOMPARE(history.undoCount(), 1);
}

QTEST_GUILESS_MAIN(TestImport)
#include "tst_import.moc"
