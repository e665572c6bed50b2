#include "tests/support/cliprogram.h"
#include "tests/support/projectbuilder.h"

#include "app/storage/projectwriter.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace vl::test;

namespace {

Outcome runBatch(const QByteArray &input)
{
    return runCli(QStringLiteral(IVOREL_CLI), {QStringLiteral("batch")}, input);
}

QByteArray quoted(const QString &path)
{
    const QByteArray list = QJsonDocument(QJsonArray{path}).toJson(QJsonDocument::Compact);
    return list.sliced(1, list.size() - 2);
}

} // namespace

class TestCliBatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replies_data();
    void replies();
    void repliesInOrder();
    void answersEachLineAtOnce();
    void longLineIsRefused();
    void deepNestingIsRefused();
    void projectOps();
};

void TestCliBatch::replies_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("reply");

    const auto row = [](const char *name, const char *request, const char *reply) {
        QTest::newRow(name) << QByteArray(request) << QByteArray(reply);
    };
    // The pipe itself.
    row("no JSON", "hello", R"({"error":"The line is not a JSON object."})");
    row("no object", "[1]", R"({"error":"The line is not a JSON object."})");
    row("empty line", "", R"({"error":"The line is not a JSON object."})");
    row("no UTF-8", "{\"op\":\"\xff\xfe\"}", R"({"error":"The line is not a JSON object."})");
    row("text behind the object", R"({"op":"calendar.steps"} x)",
        R"({"error":"The line is not a JSON object."})");
    row("op is missing", R"({"id":7})", R"({"error":"The member \"op\" is missing.","id":7})");
    row("op is no string", R"({"op":7})", R"({"error":"The member \"op\" must be a string."})");
    row("unknown op", R"({"op":"style.Check"})", R"({"error":"Unknown op: style.Check"})");
    row("any id comes back", R"({"op":"nix","id":[null,{"a":1.5}]})",
        R"({"error":"Unknown op: nix","id":[null,{"a":1.5}]})");
    row("null is an id", R"({"op":"nix","id":null})", R"({"error":"Unknown op: nix","id":null})");
    row("a large id is exact", R"({"op":"nix","id":9223372036854775807})",
        R"({"error":"Unknown op: nix","id":9223372036854775807})");
    row("carriage return", "{\"op\":\"rtf.escape\",\"text\":\"a\"}\r", R"({"result":"a"})");
    row("unknown members are passed over", R"({"op":"rtf.escape","text":"a","more":1})",
        R"({"result":"a"})");

    // Texts.
    row("text is missing", R"({"op":"rtf.escape"})",
        R"({"error":"The member \"text\" is missing."})");
    row("text is null", R"({"op":"rtf.escape","text":null})",
        R"({"error":"The member \"text\" must be a string."})");
    row("lone surrogates, NUL and letters beyond the first plane",
        R"({"op":"markdown.escapeInline","text":"\u0000\ud800x\udc00😀"})",
        R"({"result":"\u0000\ud800x\udc00😀"})");
    row("Markdown", R"({"op":"markdown.toHtml","text":"*a*"})",
        R"({"result":"<p><em>a</em></p>\n"})");
    row("Markdown, one line", R"({"op":"markdown.escapeLine","text":"# a"})",
        R"({"result":"\\# a"})");
    row("RTF", R"({"op":"rtf.escape","text":"{é}"})", R"({"result":"\\{\\u233?\\}"})");
    row("RTF, formatted", R"({"op":"rtf.inline","text":"**a**"})", R"({"result":"\\b a\\b0 "})");
    row("style: UTF-16 offsets", R"({"op":"style.check","text":"😀 very good"})",
        R"({"result":[{"kind":2,"length":4,"message":"Filler word: very","start":3,"suggestion":""}]})");
    row("manuscript: an entry's member is missing",
        R"({"op":"rtf.manuscript","options":{},"entries":[{"level":1,"title":"a"}]})",
        R"({"error":"The member \"entries[0].text\" is missing."})");
    row("manuscript: level is no integer",
        R"({"op":"rtf.manuscript","options":{},"entries":[{"level":1.5,"title":"","text":""}]})",
        R"({"error":"The member \"entries[0].level\" must be an integer of 64 bits."})");
    row("manuscript: options are missing", R"({"op":"rtf.manuscript","entries":[]})",
        R"({"error":"The member \"options\" is missing."})");

    // Instants over the whole range.
    row("the last instant", R"({"op":"calendar.breakDown","instant":9223372036854775807})",
        R"({"result":{"day":28,"hour":18,"minute":7,"month":2,"year":17548272520653}})");
    row("the first instant", R"({"op":"calendar.breakDown","instant":-9223372036854775808})",
        R"({"result":{"day":3,"hour":5,"minute":52,"month":11,"year":-17548272520652}})");
    row("and back to the last",
        R"({"op":"calendar.toInstant","date":{"year":17548272520653,)"
        R"("month":2,"day":28,"hour":18,"minute":7}})",
        R"({"result":9223372036854775807})");
    row("and back to the first",
        R"({"op":"calendar.toInstant","date":{"year":-17548272520652,)"
        R"("month":11,"day":3,"hour":5,"minute":52}})",
        R"({"result":-9223372036854775808})");
    row("no rounding to a double",
        R"({"op":"calendar.firstTick","unit":"minute","count":1,"instant":9007199254740993})",
        R"({"result":9007199254740993})");
    row("one beyond the range", R"({"op":"calendar.format","instant":9223372036854775808})",
        R"({"error":"The member \"instant\" must be an integer of 64 bits."})");
    row("a fraction", R"({"op":"calendar.format","instant":0.5})",
        R"({"error":"The member \"instant\" must be an integer of 64 bits."})");
    row("an instant as a text", R"({"op":"calendar.format","instant":"0"})",
        R"({"error":"The member \"instant\" must be an integer of 64 bits."})");
    row("a month beyond 32 bits",
        R"({"op":"calendar.toInstant","date":{"year":1,)"
        R"("month":4294967297,"day":1,"hour":0,"minute":0}})",
        R"({"error":"The member \"date.month\" must be an integer from -2147483648 to 2147483647."})");

    // Calendars.
    row("a calendar of one's own",
        R"({"op":"calendar.format","instant":1440,"calendar":{"name":"","months":)"
        R"([{"name":"Thaw","days":1},{"name":"Frost","days":9}],"weekdays":[],"eraName":"AR"}})",
        R"({"result":"1 Frost, Year 1 AR"})");
    row("a calendar that is no object", R"({"op":"calendar.format","instant":0,"calendar":1})",
        R"({"error":"The member \"calendar\" must be an object."})");
    row("a month without days",
        R"({"op":"calendar.format","instant":0,"calendar":{"months":[{"name":"a"}]}})",
        R"({"error":"The member \"calendar.months[0].days\" is missing."})");
    row("a weekday that is a number",
        R"({"op":"calendar.format","instant":0,"calendar":{"weekdays":["a",1]}})",
        R"({"error":"The member \"calendar.weekdays[1]\" must be a string."})");
    row("a date", R"({"op":"calendar.parse","text":"3 March 1270"})",
        R"({"result":{"day":3,"hour":0,"minute":0,"month":3,"year":1270}})");
    row("no date", R"({"op":"calendar.parse","text":"soon"})", R"({"result":null})");
    row("tick label", R"({"op":"calendar.tickLabel","unit":"hour","instant":90})",
        R"({"result":"01:30"})");
    row("context label", R"({"op":"calendar.contextLabel","unit":"day","instant":0})",
        R"({"result":"January 1"})");
    row("widest label", R"({"op":"calendar.widestLabel","unit":"month"})",
        R"({"result":"September"})");
    row("widest context", R"({"op":"calendar.widestContext","unit":"year"})", R"({"result":""})");
    row("nominal length", R"({"op":"calendar.nominalLength","unit":"day","count":2})",
        R"({"result":2880})");
    row("unknown unit", R"({"op":"calendar.nominalLength","unit":"week","count":2})",
        R"({"error":"Unknown unit: week"})");
    row("ticks, both ends included",
        R"({"op":"calendar.ticks","unit":"day","count":1,"start":0,"end":2880})",
        R"({"result":[0,1440,2880]})");

    // Merging.
    row("merge, clean",
        R"({"op":"merge.text","base":"a\nb\nc\n","local":"A\nb\nc\n","remote":"a\nb\nC\n"})",
        R"({"result":{"conflict":false,"text":"A\nb\nC\n"}})");
    row("merge, conflict", R"({"op":"merge.text","base":"a\n","local":"b\n","remote":"c\n"})",
        R"({"result":{"conflict":true,"text":"<<<<<<< local\nb\n=======\nc\n>>>>>>> remote\n"}})");
    row("merge of a project",
        R"({"op":"merge.project","base":{"a":"1\n","b":"1\n","c":"1\n"},)"
        R"("local":{"a":"1\n","c":"2\n"},"remote":{"b":"1\n","c":"3\n","d":"x"}})",
        R"({"result":[{"conflictText":"","path":"a","result":null,"state":9},)"
        R"({"conflictText":"","path":"b","result":null,"state":8},)"
        R"({"conflictText":"<<<<<<< local\n2\n=======\n3\n>>>>>>> remote\n","path":"c","result":null,"state":4},)"
        R"({"conflictText":"","path":"d","result":"x","state":6}]})");
    row("a file that is no text", R"({"op":"merge.project","base":{"a":1},"local":{},"remote":{}})",
        R"({"error":"The texts in \"base\" must be strings."})");
    row("apply",
        R"({"op":"merge.apply","entries":[{"path":"a","state":9,"result":null,)"
        R"("conflictText":""},{"path":"d","state":6,"result":"x","conflictText":""}]})",
        R"({"result":{"delete":["a"],"write":{"d":"x"}}})");
    row("apply with a conflict",
        R"({"op":"merge.apply","entries":[{"path":"c","state":4,"result":"x"}]})",
        R"({"result":{"error":"the reconcile has conflicts to resolve first"}})");
    row("apply what is no JSON",
        R"({"op":"merge.apply","entries":[{"path":"c.json","state":3,"result":"{"}]})",
        R"({"result":{"error":"the merged file 'c.json' would not be valid"}})");
    row("apply what has no result",
        R"({"op":"merge.apply","entries":[{"path":"c","state":3,"result":null}]})",
        R"({"error":"The entry \"c\" has no result."})");
    row("apply an unknown state",
        R"({"op":"merge.apply","entries":[{"path":"c","state":11,"result":"x"}]})",
        R"({"error":"The member \"entries[0].state\" must be an integer from 0 to 10."})");
}

void TestCliBatch::replies()
{
    QFETCH(const QByteArray, request);
    QFETCH(const QByteArray, reply);
    const Outcome outcome = runBatch(request + '\n');
    QCOMPARE(outcome.output, reply + '\n');
    QCOMPARE(outcome.messages, QString());
    QCOMPARE(outcome.status, 0);
}

void TestCliBatch::repliesInOrder()
{
    QByteArray input;
    QByteArray expected;
    for (int i = 0; i < 2000; ++i) {
        const QByteArray id = QByteArray::number(i);
        input += "{\"op\":\"" + QByteArray(i % 3 == 0 ? "nix" : "rtf.escape") + "\",\"id\":" + id
                 + ",\"text\":\"" + QByteArray(i, 'x') + "\"}\n";
        expected += i % 3 == 0 ? "{\"error\":\"Unknown op: nix\",\"id\":" + id + "}\n"
                               : "{\"id\":" + id + ",\"result\":\"" + QByteArray(i, 'x') + "\"}\n";
    }
    input.chop(1); // the last line may end without a line feed
    const Outcome outcome = runBatch(input);
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.output == expected);
    QCOMPARE(runBatch({}).output, QByteArray());
}

void TestCliBatch::answersEachLineAtOnce()
{
    QProcess process;
    process.start(QStringLiteral(IVOREL_CLI), {QStringLiteral("batch")});
    for (const char *text : {"a", "b"}) {
        process.write(QByteArray("{\"op\":\"rtf.escape\",\"text\":\"") + text + "\"}\n");
        QTRY_VERIFY(process.canReadLine());
        QCOMPARE(process.readLine(), QByteArray("{\"result\":\"") + text + "\"}\n");
    }
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

void TestCliBatch::longLineIsRefused()
{
    // Longer than any line may be: its bytes are dropped as they come.
    QProcess process;
    process.start(QStringLiteral(IVOREL_CLI), {QStringLiteral("batch")});
    const QByteArray piece(1 << 22, 'x');
    for (int i = 0; i < 66; ++i) {
        process.write(piece);
        QVERIFY(process.waitForBytesWritten());
    }
    process.write("\n{\"op\":\"rtf.escape\",\"text\":\"a\"}\n");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput(),
             QByteArray("{\"error\":\"The line is too long.\"}\n{\"result\":\"a\"}\n"));
    QCOMPARE(process.exitCode(), 0);
}

void TestCliBatch::deepNestingIsRefused()
{
    const QByteArray deep = QByteArray(1'000'000, '[') + QByteArray(1'000'000, ']');
    const Outcome outcome =
        runBatch("{\"id\":" + deep + "}\n{\"op\":\"rtf.escape\",\"text\":\"a\"}\n");
    QCOMPARE(outcome.output,
             QByteArray("{\"error\":\"The line is not a JSON object.\"}\n{\"result\":\"a\"}\n"));
}

void TestCliBatch::projectOps()
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("ein Übel/project"));
    const QString output = folder.filePath(QStringLiteral("ein Übel/copy"));
    const auto project = fullProject();
    QVERIFY(vl::app::saveProject(*project, source));
    const QMap<QString, QByteArray> before = filesUnder(source);

    Outcome outcome = runBatch("{\"op\":\"project.roundTrip\",\"project\":" + quoted(source)
                               + ",\"output\":" + quoted(output) + "}\n");
    QCOMPARE(outcome.output,
             "{\"result\":{\"objects\":" + QByteArray::number(project->size()) + "}}\n");
    QCOMPARE(filesUnder(output), before);
    QCOMPARE(filesUnder(source), before);

    outcome = runBatch("{\"op\":\"continuity.check\",\"project\":" + quoted(source) + "}\n");
    const QJsonObject found = QJsonDocument::fromJson(outcome.output).object();
    QVERIFY(found.value(QLatin1String("result")).toObject().contains(QLatin1String("timeline")));
    QVERIFY(found.value(QLatin1String("result")).toObject().contains(QLatin1String("rules")));

    QVERIFY(writeTestFile(source + QStringLiteral("/objects/x.json"), "{"));
    outcome = runBatch("{\"op\":\"project.roundTrip\",\"project\":" + quoted(source)
                       + ",\"output\":" + quoted(output) + "}\n");
    QCOMPARE(outcome.output,
             "{\"error\":"
                 + quoted(QStringLiteral("Invalid JSON in file: %1/objects/x.json").arg(source))
                 + "}\n");
    outcome = runBatch("{\"op\":\"project.roundTrip\",\"project\":" + quoted(output)
                       + ",\"output\":\"\"}\n");
    QCOMPARE(outcome.output, QByteArray("{\"error\":\"The member \\\"output\\\" is empty.\"}\n"));
}

QTEST_GUILESS_MAIN(TestCliBatch)
#include "tst_clibatch.moc"
