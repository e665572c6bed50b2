#include "app/text/footnotetext.h"
#include "app/text/markdownrenderer.h"
#include "app/text/markdowntext.h"
#include "markdownoracle.h"

#include <QtTest/QTest>

#include <random>

using namespace vl::app;

class TestMarkdown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void render_data();
    void render();
    void renderManyEscapes();
    void renderRandom_data();
    void renderRandom();
    void escapeLine_data();
    void escapeLine();
    void escapeLineRandom();
    void escapeInline();
    void footnotes();
    void withoutDefinitions_data();
    void withoutDefinitions();
    void embeds();
};

void TestMarkdown::render_data()
{
    QTest::addColumn<QString>("markdown");
    QTest::addColumn<QString>("html");
    const auto row = [](const char *name, const char16_t *markdown, const char16_t *html) {
        QTest::newRow(name) << QString::fromUtf16(markdown) << QString::fromUtf16(html);
    };

    row("nothing", u"", u"");
    row("definitions only", u"[^a]: one\n  [^b]: two", u"");
    row("heading closes a paragraph", u"Intro\n# Title", u"<p>Intro</p>\n<h1>Title</h1>\n");
    row("seven hashes", u"####### x", u"<p>####### x</p>\n");
    row("hash and a wide blank", u"#\u2003x", u"<p>#\u2003x</p>\n");
    row("blocks of one kind gather", u"- a\n* b\n> c\n>d\ne\r\nf\n---",
        u"<ul>\n<li>a</li>\n<li>b</li>\n</ul>\n<blockquote>\n<p>c d</p>\n</blockquote>\n"
        u"<p>e f</p>\n<hr>\n");
    row("spaced hyphens are an item", u"- - -", u"<ul>\n<li>- -</li>\n</ul>\n");
    row("no such markers", u"+ a\n1. b\n```", u"<p>+ a 1. b ```</p>\n");
    row("empty quote", u">", u"<blockquote>\n<p></p>\n</blockquote>\n");
    row("no separator, no table", u"a|b\nc|d", u"<p>a|b c|d</p>\n");
    row("table", u"# a|b|c\n:-|:-:|-:|-\nx \\| y | z\n|\n1|2|3|4|5\n\n",
        u"<table>\n<thead>\n<tr>\n<th style=\"text-align:left\"># a</th>\n"
        u"<th style=\"text-align:center\">b</th>\n<th style=\"text-align:right\">c</th>\n"
        u"</tr>\n</thead>\n<tbody>\n<tr>\n<td style=\"text-align:left\">x | y</td>\n"
        u"<td style=\"text-align:center\">z</td>\n</tr>\n"
        u"<tr>\n<td style=\"text-align:left\"></td>\n</tr>\n"
        u"<tr>\n<td style=\"text-align:left\">1</td>\n<td style=\"text-align:center\">2</td>\n"
        u"<td style=\"text-align:right\">3</td>\n<td>4</td>\n<td>5</td>\n</tr>\n"
        u"</tbody>\n</table>\n");
    row("bars of a cell", u"a|\n-|\n`p\\|q` | r\\\\|s\\|",
        u"<table>\n<thead>\n<tr>\n<th>a</th>\n</tr>\n</thead>\n<tbody>\n<tr>\n"
        u"<td><code>p|q</code></td>\n<td>r|s\\</td>\n</tr>\n</tbody>\n</table>\n");
    row("a definition between header and separator", u"a|b\n[^n]: x\n-|-",
        u"<table>\n<thead>\n<tr>\n<th>a</th>\n<th>b</th>\n</tr>\n</thead>\n<tbody>\n"
        u"</tbody>\n</table>\n");
    row("placeholders of templates", u"# %1 %2\n%1[^%2]\n[^%2]: %1",
        u"<h1>%1 %2</h1>\n<p>%1<sup class=\"footnote-ref\" id=\"fnref-1\"><a href=\"#fn-1\">1</a>"
        u"</sup></p>\n<section class=\"footnotes\">\n<hr>\n<ol>\n<li id=\"fn-1\"><p>%1 "
        u"<a href=\"#fnref-1\" class=\"footnote-backref\">\u21A9</a></p></li>\n</ol>\n"
        u"</section>\n");

    row("escapes and code", u"\\*not em\\* `a\\*b` \\` \\q",
        u"<p>*not em* <code>a\\*b</code> ` \\q</p>\n");
    row("emphasis", u"**bold** and *em* ***both*** ~~no~~ __x__ ** ~~",
        u"<p><strong>bold</strong> and <em>em</em> <em><strong>both</strong></em> <del>no</del> "
        u"__x__ ** ~~</p>\n");
    row("raw HTML", u"<b> & \"q\"", u"<p>&lt;b&gt; &amp; &quot;q&quot;</p>\n");
    row("code shields", u"`**a** [b](c) <` **d**",
        u"<p><code>**a** [b](c) &lt;</code> <strong>d</strong></p>\n");
    row("image in a link", u"[![a](b.png)](c(d e))",
        u"<p><a href=\"c(d e)\"><img src=\"b.png\" alt=\"a\"/></a></p>\n");
    row("nested twice", u"[a](b((c)))", u"<p>[a](b((c)))</p>\n");
    row("unclosed", u"[a](b [c](d(e", u"<p>[a](b [c](d(e</p>\n");
    row("urls kept", u"[x](page.html#a:b) [x](HTTPS://a) ![p](data:image/png;base64,AAA) [x](?:)",
        u"<p><a href=\"page.html#a:b\">x</a> <a href=\"HTTPS://a\">x</a> "
        u"<img src=\"data:image/png;base64,AAA\" alt=\"p\"/> <a href=\"?:\">x</a></p>\n");
    row("urls refused",
        u"[x](javascript:alert(1)) [p](data:image/png;base64,AAA) ![p](data:text/html,x) [x](:a)",
        u"<p><a href=\"#\">x</a> <a href=\"#\">p</a> <img src=\"#\" alt=\"p\"/> "
        u"<a href=\"#\">x</a></p>\n");
    row("a scheme with a long s", u"[x](http\u017F://a)", u"<p><a href=\"#\">x</a></p>\n");
    row("escaped colon", u"[x](javascript\\:a) [x](java\x01script\\:a) [x](http\\://a)",
        u"<p><a href=\"#\">x</a> <a href=\"#\">x</a> <a href=\"http://a\">x</a></p>\n");
    row("colon by a private-use character", u"[x](javascript\uE000a) \\:",
        u"<p><a href=\"#\">x</a> :</p>\n");
    row("private-use characters stay", u"\uE000\uE001\uF8FF \\*", u"<p>*\uE001\uF8FF *</p>\n");
    row("control characters", u"a\x01\x1f\x7f\uFFFE\uFFFF\tb\rc", u"<p>a\x7f\tb\rc</p>\n");
    row("footnotes by first reference",
        u"x[^b] y[^a] z[^b] [^c]\n[^a]: A\n[^b]: old\n[^b]: B *i*[^a]\n[^d]: D",
        u"<p>x<sup class=\"footnote-ref\" id=\"fnref-1\"><a href=\"#fn-1\">1</a></sup> "
        u"y<sup class=\"footnote-ref\" id=\"fnref-2\"><a href=\"#fn-2\">2</a></sup> "
        u"z<sup class=\"footnote-ref\" id=\"fnref-1-2\"><a href=\"#fn-1\">1</a></sup> [^c]</p>\n"
        u"<section class=\"footnotes\">\n<hr>\n<ol>\n<li id=\"fn-1\"><p>B <em>i</em>"
        u"<sup class=\"footnote-ref\" id=\"fnref-2-2\"><a href=\"#fn-2\">2</a></sup> "
        u"<a href=\"#fnref-1\" class=\"footnote-backref\">\u21A9</a></p></li>\n"
        u"<li id=\"fn-2\"><p>A <a href=\"#fnref-2\" class=\"footnote-backref\">\u21A9</a></p>"
        u"</li>\n</ol>\n</section>\n");
    row("a digit between code spans", u"`a` `b`1`c`",
        u"<p><code>a</code> <code>b</code>1<code>c</code></p>\n");
    QTest::newRow("NUL makes no code marker")
        << QStringLiteral("`a` ") + QChar(u'\0') + u'0' + QChar(u'\0')
        << QStringLiteral("<p><code>a</code> 0</p>\n");
}

void TestMarkdown::render()
{
    QFETCH(QString, markdown);
    QFETCH(QString, html);
    QCOMPARE(MarkdownRenderer::toHtml(markdown), html);
    QCOMPARE(renderedByPatterns(markdown), html);
}

void TestMarkdown::renderManyEscapes()
{
    const QString markdown = QStringLiteral("\\*").repeated(6402) + QStringLiteral("\\`*\uF8FF`");
    const QString html = MarkdownRenderer::toHtml(markdown);
    QVERIFY(html.endsWith(QLatin1String("**\\<em>\\</em>\\<code>**</code></p>\n")));
    QCOMPARE(html, renderedByPatterns(markdown));
}

void TestMarkdown::renderRandom_data()
{
    QTest::addColumn<QStringList>("pieces");
    QTest::addColumn<int>("length"); // most pieces a text has
    QTest::addColumn<int>("texts");

    const QString nul(1, QChar(u'\0'));
    const auto split = [](const char16_t *text) { return QString::fromUtf16(text).split(u' '); };
    const QStringList blanks{QStringLiteral(" "), QStringLiteral("\n"), QStringLiteral("\n"),
                             QStringLiteral("\r\n"), QStringLiteral("\t")};
    QTest::newRow("emphasis and code")
        << split(u"* ** *** ~ ~~ ` `` \\ a b \\* \\` \\~ \uE000 \uE001 \x01 _ <") + blanks << 24
        << 4000;
    QTest::newRow("links and images")
        << split(u"[ ] ( ) ]( ![ [a]( x) ! \\ \\: \\) : / javascript: http: data:image/ # ` `b` "
                 u"* & \" \uE000 \u00A0")
               + blanks
        << 24 << 4000;
    QTest::newRow("footnotes")
        << split(u"[^a] [^b] [^c] [^a]: [^b]: [^`a`]: [^`a`] [^ ] [ ^ : ! ]( a b ` [^]")
               + QStringList{QStringLiteral("\n[^a]: "), QStringLiteral("\n \u2003[^b]:"),
                             QStringLiteral("[^") + nul + u'0' + nul + u']',
                             QStringLiteral("\n[^") + nul + u'0' + nul + QStringLiteral("]: n")}
               + blanks
        << 20 << 4000;
    QTest::newRow("blocks")
        << split(u"# ## ####### - * _ --- *** > + 1. a b | ` %1 \u00A0 \u2003 \u2028 \v \f")
               + blanks
               + QStringList{QStringLiteral("# "), QStringLiteral("- "), QStringLiteral("> ")}
        << 20 << 4000;
    QTest::newRow("tables") << split(u"| || \\| \\ - -- :- -: :-: --- a `b` ` * %1 \u3000")
                                   + QStringList{QStringLiteral("\n|-|-|\n"),
                                                 QStringLiteral("\n:-:|--:\n"),
                                                 QStringLiteral("a|b")}
                                   + blanks
                            << 24 << 4000;
    QTest::newRow("any units")
        << split(u"a * ** ` [ ] ( ) \\ ~ ~~ & < > \" | - # ! ^ \uE000 \uE001 \uF8FF \uFFFE \uFFFF "
                 u"\uFFFD \u0085 \U0001F600")
               + QStringList{nul, QString(QChar(0xD83D)), QString(QChar(0xDE00)),
                             QStringLiteral("\x1f")}
               + blanks
        << 40 << 4000;
}

static QString randomText(std::mt19937 &random, const QStringList &pieces, int length)
{
    QString text;
    for (int i = int(random() % uint(length)); i >= 0; --i)
        text += pieces[qsizetype(random() % uint(pieces.size()))];
    return text;
}

void TestMarkdown::renderRandom()
{
    QFETCH(QStringList, pieces);
    QFETCH(int, length);
    QFETCH(int, texts);
    std::mt19937 random(20260); // NOLINT(bugprone-random-generator-seed): the same texts every time
    for (int i = 0; i < texts; ++i) {
        const QString text = randomText(random, pieces, length);
        const QString html = MarkdownRenderer::toHtml(text);
        const QString expected = renderedByPatterns(text);
        QVERIFY2(html == expected,
                 qPrintable(QStringLiteral("%1\nis %2\nnot %3")
                                .arg(QString::fromUtf8(
                                         text.toUtf8().toPercentEncoding(" []()!*`~\\|#:^-<>&\"")),
                                     html, expected)));
    }
}

void TestMarkdown::escapeLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("escaped");
    const auto row = [](const char *line, const char *escaped) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(escaped);
    };
    row("", "");
    row("plain", "plain");
    row("  - - _", "  \\- - _");
    row("---\n", "\\---\n");
    row("---\r", "---\r");
    row("--", "--");
    row("- item", "\\- item");
    row("\t+ item", "\t\\+ item");
    row("> quote", "\\> quote");
    row(">quote", ">quote");
    row("### h", "\\### h");
    row("####### h", "####### h");
    row("12. x", "12\\. x");
    row(" 3) x", " 3\\) x");
    row("3.14", "3.14");
}

void TestMarkdown::escapeLine()
{
    QFETCH(QString, line);
    QFETCH(QString, escaped);
    QCOMPARE(escapeMarkdownLine(line), escaped);
}

void TestMarkdown::escapeLineRandom()
{
    const QString units = QStringLiteral("-*_+># \t\n\r\v1٣.)a\u00A0") + QChar(0xD800) + QChar(0);
    std::mt19937 random(7); // NOLINT(bugprone-random-generator-seed): the same texts every time
    for (int i = 0; i < 50000; ++i) {
        const QString line = randomText(random, units.split(QString(), Qt::SkipEmptyParts), 9);
        QCOMPARE(escapeMarkdownLine(line), lineEscapedByPatterns(line));
    }
}

void TestMarkdown::escapeInline()
{
    const QString plain = QStringLiteral("a*b `c` ~d_ \\e");
    const QString escaped = escapeMarkdownInline(plain);
    QCOMPARE(escaped, QStringLiteral("a\\*b \\`c\\` \\~d\\_ \\e"));
    QCOMPARE(MarkdownRenderer::toHtml(escaped), QStringLiteral("<p>%1</p>\n").arg(plain));
}

void TestMarkdown::footnotes()
{
    QCOMPARE(footnoteDefinitionLine(QStringLiteral("%2"), QStringLiteral("%1 x")),
             QStringLiteral("[^%2]: %1 x\n"));
    QCOMPARE(newFootnoteId({}), QStringLiteral("fn1"));
    QCOMPARE(newFootnoteId({QStringLiteral("fn1"), QStringLiteral("fn3"), QStringLiteral("fn02")}),
             QStringLiteral("fn2"));
    const QList<FootnoteReference> expected{{QStringLiteral("a"), 1, 4},
                                            {QStringLiteral("b[^c"), 9, 7}};
    QCOMPARE(findFootnoteReferences(QStringLiteral("x[^a] [^][^b[^c][^d")), expected);
}

void TestMarkdown::withoutDefinitions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("body");
    const auto row = [](const char *name, const char *text, const char *body) {
        QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(body);
    };
    row("none", "a[^1]\n\nb\n", "a[^1]\n\nb\n");
    row("between", "a\n \t[^1]: x\r\nb", "a\nb");
    row("first and last", "[^1]:\na\n[^2]: y", "a");
    row("all", "[^1]: x\n", "");
    row("no definition", "[^]: x\n[^1] : y\nz [^1]: y", "[^]: x\n[^1] : y\nz [^1]: y");
}

void TestMarkdown::withoutDefinitions()
{
    QFETCH(QString, text);
    QFETCH(QString, body);
    QCOMPARE(withoutFootnoteDefinitions(text), body);
}

void TestMarkdown::embeds()
{
    const QString text =
        QStringLiteral("![[]]![[a] ![[b|c]]%1![[![[d]]").arg(objectEmbed(QStringLiteral("e")));
    const QList<ObjectEmbed> expected{{QStringLiteral("b|c"), 11, 8},
                                      {QStringLiteral("e"), 19, 6},
                                      {QStringLiteral("![[d"), 25, 9}};
    QCOMPARE(findObjectEmbeds(text), expected);
    QCOMPARE(withoutEmbedsAndReferences(QStringLiteral("a![[]]b![[x]]c[^]d[^![[e]]f][^g")),
             QStringLiteral("a b c d [^g"));
}

QTEST_GUILESS_MAIN(TestMarkdown)
#include "tst_markdown.moc"
