#include "app/text/entitymentions.h"
#include "app/text/healthreport.h"
#include "app/text/prosestatistics.h"
#include "core/content/entity.h"
#include "core/project.h"

#include <QtTest/QtTest>

using namespace vl::app;

/// The figures of the health report, and the report as a reader meets it.
class TestHealth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void prose_data();
    void prose();
    void syllables_data();
    void syllables();
    void names_data();
    void names();
    void styleSection_data();
    void styleSection();
    void report();
    void reportOfNothing();
    void projectGivesManuscriptAndWorld();
};

void TestHealth::prose_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("figures"); // words spoken narrated speeches sentences paragraphs

    const auto row = [](const char *name, const char *text, const char *figures) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromLatin1(figures);
    };
    row("empty", " \n\n", "0 0 0 0 0 0");
    row("straight marks", "\"Come here,\" he said. \"Now!\"", "5 3 2 2 2 1");
    row("curly marks", "“Come here,” he said.", "4 2 2 1 1 1");
    row("German marks", "„Komm her“, sagte er.", "4 2 2 1 1 1");
    row("low and high marks", "„Pojď sem” řekl.", "3 2 1 1 1 1");
    row("French marks", "« Viens ici », dit-il.", "5 2 1 1 1 1");
    row("French marks turned", "»Komm her«, sagte er.", "4 2 2 1 1 1");
    row("single marks", "‘Don’t go,’ he said, and the dogs’ tails fell.", "9 2 7 1 1 1");
    row("apostrophes alone", "It’s the dogs’ day, y’all.", "5 0 5 0 1 1");
    row("a quotation in a speech", "“He said ‘no’ to me,” she said.", "7 5 2 1 1 1");
    row("speech over two paragraphs", "\"One two.\n\n\"Three four.\" Five.", "5 4 1 2 3 2");
    row("forgotten mark", "“One two.\n\nThree.", "3 2 1 1 2 2");
    row("question inside a sentence", "“Really?” he said. He left.", "5 1 4 1 2 1");
    row("titles and initials", "Mr. Smith met J. R. Jones. So did I. He left.", "11 0 11 0 3 1");
    row("hard-wrapped lines", "One two\nthree four.\nFive.", "5 0 5 0 2 1");
    row("headings and rules are no prose", "# The End\n\n---\n\nHe left...", "6 0 2 0 1 1");
    row("numbers and joints", "He paid 3.50 for well-made things", "6 0 6 0 1 1");
    row("embeds and references", "One![[map of all]] two[^a b].", "5 0 2 0 1 1");
}

void TestHealth::prose()
{
    QFETCH(QString, text);
    const ProseStatistics found = measureProse(text);
    const QString figures = QStringLiteral("%1 %2 %3 %4 %5 %6")
                                .arg(found.words)
                                .arg(found.spokenWords)
                                .arg(found.narratedWords)
                                .arg(found.speeches)
                                .arg(found.sentences)
                                .arg(found.paragraphs);
    QTEST(figures, "figures");
}

void TestHealth::syllables_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("count");

    const std::pair<const char *, int> rows[] = {
        {"a", 1},      {"the", 1},     {"make", 1},   {"table", 2}, {"wanted", 2}, {"walked", 1},
        {"boxes", 2},  {"makes", 1},   {"window", 2}, {"café", 2},  {"naïve", 1},  {"sky", 1},
        {"agreed", 2}, {"evening", 3}, {"1984", 1},   {"hmm", 1},   {"pages", 2},  {"tables", 2},
    };
    for (const auto &[word, count] : rows)
        QTest::newRow(word) << QString::fromUtf8(word) << count;
}

void TestHealth::syllables()
{
    QFETCH(QString, word);
    QTEST(countSyllables(word), "count");
}

void TestHealth::names_data()
{
    QTest::addColumn<QString>("names"); // one thing a line, its names parted by "|"
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("counts"); // one number a thing

    const auto row = [](const char *title, const char *names, const char *text,
                        const char *counts) {
        QTest::newRow(title) << QString::fromUtf8(names) << QString::fromUtf8(text)
                             << QString::fromLatin1(counts);
    };
    row("whole words, possessives", "Al", "Al’s hat, Al's, Alan, (Al) _Al_ *Al*.", "5");
    row("name and aliases", "Anna Maria|Anna|Annie", "Anna met Annie; Anna\nMaria left Maria.",
        "3");
    row("the longest wins", "New York\nYork", "New York is not York.", "1 1");
    row("a longer name that breaks off", "The Red Keep\nRed\nThe", "The Red door", "0 1 1");
    row("capitals count", "Will", "Will will. WILL! wILL", "2");
    row("a small name in any case", "the sword", "The Sword, the sword, THE SWORD", "3");
    row("what parts the words counts", "Jean Luc", "Jean, Luc and Jean-Luc and Jean  Luc", "1");
    row("apostrophes are equal", "D’Arc\nO'Neil", "D'Arc saw O’Neil", "1 1");
    row("half of a double name", "Anne\nAnne-Marie\nMarie", "Anne-Marie and Anne--Marie", "1 1 1");
    row("one name for two", "Sam\nSam", "Sam", "1 1");
    row("decomposed accents", "Zo\u00EB", "Zoe\u0308 and Zoe", "1");
    row("nothing to find", " \n...", "... .", "0 0");
}

void TestHealth::names()
{
    QFETCH(QString, names);
    QFETCH(QString, text);
    NameFinder finder;
    const QStringList things = names.split(u'\n');
    for (int thing = 0; thing < things.size(); ++thing) {
        for (const QString &name : things[thing].split(u'|'))
            finder.add(name, thing);
    }
    const QHash<int, qint64> found = finder.count(text);
    QStringList counts;
    for (int thing = 0; thing < things.size(); ++thing)
        counts << QString::number(found.value(thing));
    QTEST(counts.join(u' '), "counts");
}

void TestHealth::styleSection_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("section");

    QTest::newRow("clean") << QStringList({QStringLiteral("He left."), QString()})
                           << QStringLiteral("## Writing style\n\nNo style issues flagged.\n");
    QTest::newRow("ascending, empty categories left out")
        << QStringList(
               {QStringLiteral("Break the ice very slowly."), QStringLiteral("It was was seen.")})
        << QStringLiteral(
               "## Writing style\n\n| Category | Issues |\n| --- | --- |\n| Passive voice | 1 |\n"
               "| Crutch words | 1 |\n| Repeated words | 1 |\n| Weak adverbs | 1 |\n"
               "| Clichés | 1 |\n| **Total** | 5 |\n");
}

void TestHealth::styleSection()
{
    QFETCH(QStringList, texts);
    QList<HealthDocument> documents;
    for (const QString &text : texts)
        documents.append({QString(), text, QString(), QString()});
    QTEST(HealthReport::styleSection(documents), "section");
}

void TestHealth::report()
{
    HealthInput input;
    input.title = QStringLiteral("A *star* | %1");
    input.documents = {
        {QStringLiteral("One | %2"), QStringLiteral("Ada saw Bo. \"Hello, Bo,\" she said."),
         QStringLiteral("Ada"), QStringLiteral("draft")},
        {QStringLiteral("Empty"), QStringLiteral(" \n"), QStringLiteral("Bo"), QString()},
        {QString(), QStringLiteral("Ada slept."), QStringLiteral("Ada"), QStringLiteral("draft")},
        {QStringLiteral("Three"), QStringLiteral("Bo went on to the far silent hill."),
         QStringLiteral("Bo"), QString()},
    };
    input.entities = {{QStringLiteral("Ada"), {}, QStringLiteral("People")},
                      {QStringLiteral("B_o"), {QStringLiteral("Bo")}, QStringLiteral("People")},
                      {QStringLiteral("Cy"), {}, QStringLiteral("People")},
                      {QStringLiteral("Rome"), {}, QString()}};
    const QString report = HealthReport::toMarkdown(input);
    const QStringList expected = {
        QStringLiteral(
            "# Manuscript health report: A \\*star\\* \\| %1\n\n## Overview\n\n- **Words:** 17\n"
            "- **Scenes:** 3\n- **Documents without text:** 1\n- **Average scene:** 6 words\n"
            "- **Median scene:** 7 words\n- **Longest scene:** Three (8 words)\n"
            "- **Shortest scene:** Untitled (3) (2 words)\n- **Reading time:** 1 min\n"),
        QStringLiteral("| (no status) | 1 | 8 | 47.1% |\n| draft | 2 | 9 | 52.9% |\n"),
        QStringLiteral("- **Dialogue:** 2 words (11.8%)\n- **Narration:** 15 words (88.2%)\n"),
        QStringLiteral("- **Most dialogue:** One \\| %2 (28.6%)\n"),
        QStringLiteral("- **Sentences:** 4\n- **Words in a sentence:** 4.3\n"),
        QStringLiteral("| Ada | 2 | 9 | 52.9% | 5 | 2 |\n| Bo | 1 | 8 | 47.1% | 8 | 1 |\n"),
        QStringLiteral("\n\n## Writing style\n\nNo style issues flagged.\n\n## World coverage\n"),
        QStringLiteral("### People\n\n| Entity | Mentions | Scenes | First scene | Last scene |\n"
                       "| --- | ---: | ---: | --- | --- |\n| B\\_o | 3 | 2 | One \\| %2 | Three |\n"
                       "| Ada | 2 | 2 | One \\| %2 | Untitled (3) |\n\nNever mentioned: Cy\n"),
        QStringLiteral("### Without a category\n\nNever mentioned: Rome\n"),
    };
    for (const QString &part : expected)
        QVERIFY2(report.contains(part),
                 qPrintable(part + QStringLiteral("\nis not in\n") + report));
    const QString page = HealthReport::toHtml(input);
    QVERIFY(
        page.contains(QStringLiteral("<title>Manuscript health report: A *star* | %1</title>")));
    QVERIFY(page.contains(QStringLiteral("<td>One | %2</td>")));
}

void TestHealth::reportOfNothing()
{
    const QString report = HealthReport::toMarkdown({});
    QCOMPARE(report.count(QStringLiteral("\n## ")), 6);
    QVERIFY(!report.contains(QStringLiteral("nan")) && !report.contains(QStringLiteral("inf")));
}

void TestHealth::projectGivesManuscriptAndWorld()
{
    using namespace vl::core;
    Project project;
    const auto addDocument = [&](DocumentKind kind, const char *title, int index) {
        auto document =
            std::make_unique<Document>(ContentId::create(), kind, QString::fromLatin1(title));
        document->setSortIndex(index);
        document->setBody(QStringLiteral("Body of ") + document->title());
        document->setPointOfView(QStringLiteral("View"));
        document->setStatus(QStringLiteral("Status"));
        QVERIFY(project.add(std::move(document)));
    };
    addDocument(DocumentKind::Screenplay, "second", 2);
    addDocument(DocumentKind::Note, "note", 1);
    addDocument(DocumentKind::Prose, "first", 0);
    const Category places{ContentId::create(), QStringLiteral("Places"), ContentId(), {}};
    const Category people{ContentId::create(), QStringLiteral("People"), ContentId(), {}};
    QVERIFY(project.editTaxonomy().add(places) && project.editTaxonomy().add(people));
    for (const auto &[category, name] :
         {std::pair(ContentId::create(), "lost"), std::pair(places.id, "Rome"),
          std::pair(people.id, "bo"), std::pair(people.id, "Ada")})
        QVERIFY(project.add(
            std::make_unique<Entity>(ContentId::create(), category, QString::fromLatin1(name))));

    const HealthInput input = readHealthInput(project, QStringLiteral("Title"));
    QStringList documents;
    for (const HealthDocument &document : input.documents)
        documents << document.title + u'/' + document.text + u'/' + document.pointOfView + u'/'
                         + document.status;
    QCOMPARE(documents, QStringList({QStringLiteral("first/Body of first/View/Status"),
                                     QStringLiteral("second/Body of second/View/Status")}));
    QStringList entities;
    for (const HealthEntity &entity : input.entities)
        entities << entity.category + u'/' + entity.name;
    QCOMPARE(entities, QStringList({QStringLiteral("People/Ada"), QStringLiteral("People/bo"),
                                    QStringLiteral("Places/Rome"), QStringLiteral("/lost")}));
}

QTEST_GUILESS_MAIN(TestHealth)
#include "tst_health.moc"
