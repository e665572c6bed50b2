#include "tests/cli/clitest.h"

#include "core/content/timeline.h"

#include <QtCore/QJsonArray>

using namespace vl::core;
using namespace vl::test;

class TestCliTexts : public CliTest
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void exportsRtf();
    void importsText();
    void importsMarkdown();
    void importAddsToAProject_data();
    void importAddsToAProject();
    void style();
    void conflicts();
};

void TestCliTexts::texts_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("output");

    const auto row = [](const char *name, const char *command, const char *input, int status,
                        const char *output) {
        QTest::newRow(name) << text(command) << QByteArray(input) << status << QByteArray(output);
    };
    row("render", "render", "*é*\n", 0, "<p><em>é</em></p>\n");
    row("render from a named input", "render -", "a", 0, "<p>a</p>\n");
    row("render a byte-order mark", "render", "\xEF\xBB\xBF# a", 0, "<h1>a</h1>\n");
    row("render nothing", "render", "", 0, "");
    row("style, nothing found", "style", "The sea was calm.\n", 0, "");
    row("style", "style", "The sea.\nIt was very calm.\n", 1, "-:2:8: Filler word: very [very]\n");
    row("style as JSON, nothing found", "style --json -", "The sea.\n", 0, "[\n]\n");
}

void TestCliTexts::texts()
{
    QFETCH(const QString, command);
    QFETCH(const QByteArray, input);
    QFETCH(const int, status);
    QFETCH(const QByteArray, output);
    Outcome outcome = run(command.toUtf8().constData(), input);
    QCOMPARE(outcome.output, output);
    QCOMPARE(outcome.messages, QString());
    QCOMPARE(outcome.status, status);

    outcome = run("render gone.md");
    QCOMPARE(outcome.messages, text("Cannot read file: gone.md"));
    QCOMPARE(outcome.status, 3);
}

void TestCliTexts::exportsRtf()
{
    makeFullProject();
    QCOMPARE(run("pack full full.vellum").status, 0);
    const QStringList options{text("--title"),   text("Die Größe"), text("--author=Ann Lee"),
                              text("--contact"), text("1 Road"),    text("--pen-name"),
                              text("A. Sea")};
    Outcome outcome =
        run(QStringList{text("export"), text("rtf"), text("full"), text("--output"), text("-")}
            + options);
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.output.startsWith("{\\rtf1"));
    for (const char *part : {"Die Gr\\u246?\\u223?e", "LEE", "1 Road", "A. Sea"})
        QVERIFY2(outcome.output.contains(part) || outcome.output.toUpper().contains(part), part);
    const QByteArray expected = outcome.output;
    outcome =
        run(QStringList{text("export"), text("rtf"), text("full.vellum"), text("--output=x.rtf")}
            + options);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, QByteArray());
    QVERIFY(fileBytes(at("x.rtf")) == expected);
    outcome = run("export rtf full --output full");
    QCOMPARE(outcome.messages, text("Cannot write file: full"));
    QCOMPARE(outcome.status, 3);
}

void TestCliTexts::importsText()
{
    QByteArray book("THE SEA\n\nby Nobody\n\n");
    for (int chapter = 1; chapter <= 3; ++chapter) {
        book += "\n\nCHAPTER " + QByteArray(chapter, 'I') + "\n\n";
        for (int paragraph = 0; paragraph < 4; ++paragraph)
            book += "The waves came in at dusk, one after the other, and nobody on the long\n"
                    "shore could say which of them was the first that had gone out again.\n\n";
    }
    putFile(at("sea.txt"), book);
    for (const char *project : {"sea", "sea.vellum"}) {
        const Outcome outcome = run({text("import"), text("text"), text("sea.txt"), text(project)});
        QCOMPARE(outcome.messages, QString());
        QVERIFY(outcome.output.startsWith("Documents added: "));
        QCOMPARE(outcome.status, 0);
        QVERIFY(infoOf(project).value(text("words")).toInt() >= 3 * 4 * 28);
        QVERIFY(infoOf(project)[text("kinds")].toObject()[text("document")].toInt() >= 3);
    }
    Outcome outcome = run("import text gone.txt new");
    QCOMPARE(outcome.status, 3);
    QVERIFY(outcome.messages.contains(text("gone.txt")));
    QVERIFY(!QFileInfo::exists(at("new")));
    outcome = run("import text - piped", book);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(infoOf("piped").value(text("words")), infoOf("sea").value(text("words")));
}

void TestCliTexts::importsMarkdown()
{
    putFile(at("book/1 Sea.md"), "# Part\n\nIntro.\n\n## Chapter\n\nText *here*.\n");
    putFile(at("book/2 Land/a.md"), "Plain.\n");
    QCOMPARE(run({text("import"), text("markdown"), text("book"), text("p")}).status, 0);
    QVERIFY(infoOf("p")[text("kinds")].toObject()[text("document")].toInt() >= 3);
    QCOMPARE(infoOf("p").value(text("words")).toInt(), 4);
    QCOMPARE(
        run({text("import"), text("markdown"), text("book/1 Sea.md"), text("p2.vellum")}).status,
        0);
    QCOMPARE(infoOf("p2.vellum").value(text("words")).toInt(), 3);
}

void TestCliTexts::importAddsToAProject_data()
{
    QTest::addColumn<QString>("project");

    QTest::newRow("folder") << text("p");
    QTest::newRow("bundle") << text("p.vellum");
}

void TestCliTexts::importAddsToAProject()
{
    QFETCH(const QString, project);
    makeFullProject();
    QCOMPARE(run({text("convert"), text("full"), project}).status, 0);
    const QByteArray name = project.toUtf8();
    const int before = infoOf(name)[text("kinds")].toObject()[text("document")].toInt();
    const Outcome outcome = run({text("import"), text("markdown"), text("-"), project},
                                "# New\n\nFour words of text.\n");
    QCOMPARE(outcome.messages, QString());
    QCOMPARE(outcome.output, QByteArray("Documents added: 1\n"));
    QCOMPARE(infoOf(name)[text("kinds")].toObject()[text("document")].toInt(), before + 1);
    QCOMPARE(run({text("convert"), project, text("after")}).status, 0);
    // All that was there is there as it was, the asset too.
    FileMap after = filesUnder(at("after"));
    const FileMap full = filesUnder(at("full"));
    for (auto file = full.begin(); file != full.end(); ++file)
        QCOMPARE(after.take(file.key()), file.value());
    QCOMPARE(after.size(), 1);
    QVERIFY(after.first().contains("Four words of text."));
}

void TestCliTexts::style()
{
    Project project;
    const auto add = [&project](const char *title, const char *body, qint32 index) {
        auto document =
            std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, text(title));
        document->setBody(text(body));
        document->setSortIndex(index);
        project.add(std::move(document));
    };
    add("Two", "The the sea.", 1);
    add("One", "Calm.\nIt was very calm.", 0);
    QVERIFY(vl::app::saveProject(project, at("p")));
    QCOMPARE(run("pack p p.vellum").status, 0);
    for (const char *path : {"p", "p.vellum"}) {
        Outcome outcome = run({text("style"), text(path)});
        QCOMPARE(outcome.output, QByteArray("One:2:8: Filler word: very [very]\n"
                                            "Two:1:1: Repeated word: The [The the]\n"));
        QCOMPARE(outcome.status, 1);
        outcome = run({text("style"), text("--json"), text(path)});
        const QJsonArray list = QJsonDocument::fromJson(outcome.output).array();
        QCOMPARE(outcome.status, 1);
        QCOMPARE(list.size(), 2);
        QCOMPARE(list[0][text("title")].toString(), text("One"));
        const QJsonObject issue = list[0][text("issues")][0].toObject();
        QCOMPARE(issue.value(text("start")).toInt(), 13);
        QCOMPARE(issue.value(text("length")).toInt(), 4);
        QCOMPARE(issue.value(text("kind")).toInt(), 2);
        QCOMPARE(issue.value(text("message")).toString(), text("Filler word: very"));
        QVERIFY(issue.contains(text("suggestion")));
    }
}

void TestCliTexts::conflicts()
{
    Project project;
    TimelineEventData data;
    data.title = text("Landing");
    data.participants = {ContentId::create()}; // nobody
    project.add(std::make_unique<TimelineEvent>(ContentId::create(), data));
    QVERIFY(vl::app::saveProject(project, at("p")));
    Outcome outcome = run("conflicts p");
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.output.contains("Landing"));
    const QJsonObject found = QJsonDocument::fromJson(run("conflicts --json p").output).object();
    QCOMPARE(found.value(text("rules")).toArray().size(), 0);
    const QJsonObject first = found[text("timeline")][0].toObject();
    QCOMPARE(first.value(text("message")).toString().toUtf8() + '\n', outcome.output);
    QCOMPARE(first[text("eventIds")][0].toString(), project.ids().front().toString());

    QCOMPARE(run("new fine").status, 0);
    outcome = run("conflicts fine");
    QCOMPARE(outcome.output, QByteArray());
    QCOMPARE(outcome.status, 0);
}

QTEST_GUILESS_MAIN(TestCliTexts)
#include "tst_clitexts.moc"
