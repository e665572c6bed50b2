#include "app/storage/kindcodecs.h"
#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"
#include "core/content/document.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <cstdio>

using namespace vl::app;
using namespace vl::core;
using namespace vl::test;

namespace {

/// What the toolkit makes of a text when its objects are built anew, key by key.
QJsonValue rebuilt(const QJsonValue &value)
{
    if (value.isArray()) {
        QJsonArray array;
        const QJsonArray old = value.toArray();
        for (const QJsonValue &element : old)
            array.append(rebuilt(element));
        return array;
    }
    if (!value.isObject())
        return value;
    QJsonObject object;
    const QJsonObject old = value.toObject();
    for (auto member = old.begin(); member != old.end(); ++member)
        object.insert(member.key(), rebuilt(member.value()));
    return object;
}

QByteArray goldenFile(const QString &name)
{
    return fileBytes(QStringLiteral(IVOREL_TEST_DATA "/") + name);
}

const QString anId = QStringLiteral("0b7e1c52-3f4a-4d6b-8c9d-0e1f2a3b4c5d");

/// An object file with the id above and the members given.
QByteArray objectFile(const QByteArray &members)
{
    return "{\"id\":\"" + anId.toLatin1() + "\"," + members + '}';
}

} // namespace

class TestProjectFolder final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void goldenKinds_data();
    void goldenKinds();
    void goldenRecords_data();
    void goldenRecords();
    void everyFieldIsKept();
    void writesAsTheToolkit();
    void loads_data();
    void loads();
    void refuses_data();
    void refuses();
    void readsTolerantly_data();
    void readsTolerantly();
    void readsRecordsTolerantly();
    void namesInAnotherEncoding();
    void missingFolder();
    void firstFailureOfManyFiles();
    void dateTimesKeepTheirZone_data();
    void dateTimesKeepTheirZone();

private:
    QString at(const QString &path) const { return m_folder->filePath(path); }
    QString folder() const { return at(QStringLiteral("project")); }
    void put(const QString &path, const QByteArray &bytes)
    {
        putFile(folder() + u'/' + path, bytes);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestProjectFolder::init()
{
    m_folder =
        std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/ivorel é XXXXXX"));
    QVERIFY(m_folder->isValid());
}

void TestProjectFolder::goldenKinds_data()
{
    QTest::addColumn<QString>("type");
    for (const KindCodec &codec : kindCodecs()) {
        const QString type = contentKindTexts.text(codec.kind);
        QTest::newRow(qPrintable(type)) << type;
    }
}

void TestProjectFolder::goldenKinds()
{
    QFETCH(QString, type);
    const QByteArray golden = goldenFile(QStringLiteral("kinds/%1.json").arg(type));
    QVERIFY2(!golden.isEmpty(), "a kind needs its file in tests/data/kinds");
    const QString id = QJsonDocument::fromJson(golden)[QLatin1String("id")].toString();
    const ProjectFile files[] = {{QStringLiteral("objects/%1.json").arg(id), golden}};
    const auto project = loadProject(folder(), files);
    QVERIFY2(project, qPrintable(project ? QString() : project.message()));
    QCOMPARE((*project)->size(), 1);
    const ContentObject &object = *(*project)->objects().begin()->second;
    QCOMPARE(QString(contentKindTexts.text(object.kind())), type);
    QCOMPARE(serializeObject(object), golden);
}

void TestProjectFolder::goldenRecords_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("category") << "taxonomy/category.json";
    QTest::newRow("records") << "project.json";
}

void TestProjectFolder::goldenRecords()
{
    QFETCH(QString, path);
    const QByteArray golden = goldenFile(path);
    QVERIFY(!golden.isEmpty());
    const ProjectFile files[] = {{path, golden}};
    const auto project = loadProject(folder(), files);
    QVERIFY2(project, qPrintable(project ? QString() : project.message()));
    const std::vector<ContentId> categories = (*project)->taxonomy().ids();
    QCOMPARE(categories.empty() ? serializeProjectRecords(**project)
                                : serializeCategory(*(*project)->taxonomy().find(categories[0])),
             golden);
}

// Compares the file of a full object with that of one read from its bare name: a key that is the
// same in both is one that the builder, the reader or the writer forgot.
void TestProjectFolder::everyFieldIsKept()
{
    for (quint32 seed = 1; seed <= 20; ++seed) {
        const auto project = fullProject(seed);
        const FileMap written = filesOf(*project);
        QVERIFY(saveProject(*project, folder(), Durability::Atomic));
        const auto loaded = loadProject(folder());
        QVERIFY2(loaded, qPrintable(loaded ? QString() : loaded.message()));
        QCOMPARE(filesOf(**loaded), written);
        QVERIFY(QDir(folder()).removeRecursively());
    }

    std::set<ContentKind> kinds;
    const auto project = fullProject();
    const auto compare = [](const QByteArray &full, const QByteArray &bare,
                            const QStringList &same) {
        const QJsonObject fullObject = QJsonDocument::fromJson(full).object();
        const QJsonObject bareObject = QJsonDocument::fromJson(bare).object();
        for (const QString &key : fullObject.keys())
            QVERIFY2(fullObject[key] != bareObject[key] || same.contains(key), qPrintable(key));
        for (const QString &key : bareObject.keys())
            QVERIFY2(fullObject.contains(key), qPrintable(key));
    };
    const QStringList fixed{QStringLiteral("id"), QStringLiteral("type")};
    for (const auto &[id, object] : project->objects()) {
        kinds.insert(object->kind());
        const QByteArray bare = "{\"kind\":\"prose\",\"type\":\""
                                + QByteArray(contentKindTexts.text(object->kind()).data())
                                + "\",\"id\":\"" + id.toString().toLatin1() + "\"}";
        const ProjectFile files[] = {{QStringLiteral("objects/a.json"), bare}};
        const auto bareProject = loadProject(folder(), files);
        QVERIFY(bareProject);
        const auto *document = contentCast<Document>(object.get());
        const bool isProse = document && document->documentKind() == DocumentKind::Prose;
        compare(serializeObject(*object), serializeObject(*(*bareProject)->find(id)),
                isProse ? fixed + QStringList{QStringLiteral("kind")} : fixed);
    }
    QCOMPARE(kinds.size(), contentKindTexts.size());
    compare(serializeProjectRecords(*project), serializeProjectRecords(Project()), {});
}

void TestProjectFolder::writesAsTheToolkit()
{
    for (quint32 seed = 1; seed <= 50; ++seed) {
        QString last;
        serializeProject(*fullProject(seed), [&last](const QString &path, const QByteArray &bytes) {
            QVERIFY2(last < path, qPrintable(path));
            last = path;
            const QJsonObject object = rebuilt(QJsonDocument::fromJson(bytes).object()).toObject();
            QCOMPARE(QString::fromUtf8(bytes),
                     QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Indented)));
        });
    }
}

void TestProjectFolder::loads_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("objects");
    const QByteArray timeline = objectFile(R"("type":"timeline")");
    QTest::newRow("an empty folder") << "assets/picture.png" << QByteArray("x") << 0;
    QTest::newRow("an object") << "objects/a.json" << timeline << 1;
    QTest::newRow("its suffix in capitals") << "objects/A.JSON" << timeline << 1;
    QTest::newRow("another suffix") << "objects/a.json.orig" << timeline << 0;
    QTest::newRow("a hidden file") << "objects/._a.json" << QByteArray("\0\1\2", 3) << 0;
    QTest::newRow("a folder that is named like a file") << "objects/a.json/b" << QByteArray() << 0;
    QTest::newRow("a file in a folder below") << "objects/old/a.json" << QByteArray("?") << 0;
    QTest::newRow("the id in braces and capitals")
        << "objects/a.json"
        << QByteArray(R"({"type":"timeline","id":"{0B7E1C52-3F4A-4D6B-8C9D-0E1F2A3B4C5D}"})") << 1;
    QTest::newRow("a byte-order mark") << "objects/a.json" << ("\xEF\xBB\xBF" + timeline) << 1;
    QTest::newRow("half a pair") << "objects/a.json"
                                 << objectFile(R"("type":"timeline","title":"\ud800")") << 1;
}

void TestProjectFolder::loads()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, bytes);
    put(path, bytes);
    const auto project = loadProject(folder());
    QVERIFY2(project, qPrintable(project ? QString() : project.message()));
    QTEST(int((*project)->size()), "objects");
    for (const auto &[id, object] : (*project)->objects())
        QCOMPARE(id.toString(), anId);

    const ProjectFile files[] = {{path, bytes}};
    const auto fromMemory = loadProject(folder(), files);
    QVERIFY(fromMemory);
    QCOMPARE(filesOf(**fromMemory), filesOf(**project));
}

void TestProjectFolder::refuses_data()
{
    QTest::addColumn<FileMap>("files");
    QTest::addColumn<QString>("message"); // "/" stands for the folder
    const auto row = [](const char *name, const FileMap &files, const QString &message) {
        QTest::newRow(name) << files << message;
    };
    const QString a = QStringLiteral("objects/a.json");
    const QString b = QStringLiteral("objects/b.json");
    const QString category = QStringLiteral("taxonomy/c.json");
    const QString records = QStringLiteral("project.json");
    const QByteArray timeline = objectFile(R"("type":"timeline")");
    const auto categoryFile = [](const QByteArray &fields) {
        return objectFile(R"("name":"Places","fields":)" + fields);
    };

    row("not JSON", {{a, "{"}}, QStringLiteral("Invalid JSON in file: /objects/a.json"));
    row("empty", {{a, ""}}, QStringLiteral("Invalid JSON in file: /objects/a.json"));
    row("an array", {{a, "[]"}}, QStringLiteral("Invalid JSON in file: /objects/a.json"));
    row("not UTF-8", {{a, "{\"title\":\"\xFF\"}"}},
        QStringLiteral("Invalid JSON in file: /objects/a.json"));
    row("no id", {{a, R"({"type":"timeline"})"}},
        QStringLiteral("Malformed object file: /objects/a.json"));
    row("the null id", {{a, R"({"type":"timeline","id":"00000000-0000-0000-0000-000000000000"})"}},
        QStringLiteral("Malformed object file: /objects/a.json"));
    row("an id and more",
        {{a, R"({"type":"timeline","id":"0b7e1c52-3f4a-4d6b-8c9d-0e1f2a3b4c5dx"})"}},
        QStringLiteral("Malformed object file: /objects/a.json"));
    row("an id that is a number", {{a, R"({"type":"timeline","id":5})"}},
        QStringLiteral("Malformed object file: /objects/a.json"));
    row("no type", {{a, objectFile(R"("title":"x")")}},
        QStringLiteral("Malformed object file: /objects/a.json"));
    row("a type in capitals", {{a, objectFile(R"("type":"Document","kind":"prose")")}},
        QStringLiteral("Malformed object file: /objects/a.json"));
    row("a document of no kind", {{a, objectFile(R"("type":"document","kind":"poem")")}},
        QStringLiteral("Malformed object file: /objects/a.json"));
    row("a document without a kind", {{a, objectFile(R"("type":"document")")}},
        QStringLiteral("Malformed object file: /objects/a.json"));
    row("one id twice", {{a, timeline}, {b, timeline}},
        QStringLiteral("Duplicate object id %1 in /objects/b.json").arg(anId));
    row("the first failure by name",
        {{a, timeline}, {b, "{"}, {QStringLiteral("objects/c.json"), timeline}},
        QStringLiteral("Invalid JSON in file: /objects/b.json"));
    row("objects before categories", {{category, "{"}, {b, "["}},
        QStringLiteral("Invalid JSON in file: /objects/b.json"));
    row("categories before records", {{category, "{"}, {records, "["}},
        QStringLiteral("Invalid JSON in file: /taxonomy/c.json"));
    row("a category without an id", {{category, R"({"name":"Places"})"}},
        QStringLiteral("Malformed category file: /taxonomy/c.json"));
    row("a field type in capitals", {{category, categoryFile(R"([{"key":"k","type":"Choice"}])")}},
        QStringLiteral("Malformed field in category: Places"));
    row("a field without a type", {{category, categoryFile(R"([{"key":"k"}])")}},
        QStringLiteral("Malformed field in category: Places"));
    row("a field that is a text", {{category, categoryFile(R"(["text"])")}},
        QStringLiteral("Malformed field in category: Places"));
    row("one category twice",
        {{category, categoryFile("[]")}, {QStringLiteral("taxonomy/d.json"), categoryFile("[]")}},
        QStringLiteral("Duplicate object id %1 in /taxonomy/d.json").arg(anId));
    row("records that are no JSON", {{records, "{,}"}},
        QStringLiteral("Invalid JSON in file: /project.json"));
    row("records that are a folder", {{QStringLiteral("project.json/x"), ""}},
        QStringLiteral("Cannot read file: /project.json"));
    row("objects in one file", {{QStringLiteral("objects"), "{}"}},
        QStringLiteral("Cannot read file: /objects"));
    row("too deep", {{a, "{\"a\":" + QByteArray(100000, '[') + QByteArray(100000, ']') + '}'}},
        QStringLiteral("Invalid JSON in file: /objects/a.json"));
}

void TestProjectFolder::refuses()
{
    QFETCH(FileMap, files);
    QFETCH(QString, message);
    const auto nativeMessage = [&message](const QString &folder) {
        return QString(message).replace(QStringLiteral(" /"),
                                        u' ' + QDir::toNativeSeparators(folder + u'/'));
    };
    std::vector<ProjectFile> inMemory;
    for (auto file = files.begin(); file != files.end(); ++file) {
        put(file.key(), file.value());
        inMemory.push_back({file.key(), file.value()});
    }
    const auto project = loadProject(folder());
    QVERIFY(!project);
    QCOMPARE(project.message(), nativeMessage(folder()));

    if (!message.startsWith(QLatin1String("Cannot read"))) {
        std::reverse(inMemory.begin(), inMemory.end());
        const auto fromMemory = loadProject(folder(), inMemory);
        QVERIFY(!fromMemory);
        QCOMPARE(fromMemory.message(), nativeMessage(folder()));
    }
}

void TestProjectFolder::readsTolerantly_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("value"); // as it is written back, in an array
    const auto row = [](const char *name, const QByteArray &members, const char *key,
                        const QByteArray &value) {
        QTest::newRow(name) << members << QString::fromLatin1(key) << value;
    };
    const QByteArray document = R"("type":"document","kind":"prose",)";
    const QByteArray id = anId.toLatin1();
    row("a text that is a number", document + R"("title":5)", "title", R"([""])");
    row("the last of two keys", document + R"("title":"a","title":"b")", "title", R"(["b"])");
    row("an integer as 3.0", document + R"("tensionLevel":3.0)", "tensionLevel", "[3]");
    row("a fraction", document + R"("tensionLevel":3.5)", "tensionLevel", "[0]");
    row("more than 32 bits", document + R"("tensionLevel":2147483648)", "tensionLevel", "[0]");
    row("the most of 32 bits", document + R"("tensionLevel":2147483647)", "tensionLevel",
        "[2147483647]");
    row("beyond 2^53", document + R"("sceneInstant":9007199254740993)", "sceneInstant",
        "[9007199254740993]");
    row("an instant that is a text", document + R"("sceneInstant":"5")", "sceneInstant", "[null]");
    row("a parent that is no id", document + R"("parentId":"x")", "parentId", "[null]");
    row("sources that are no ids", document + R"("sourceIds":["x","",7,null,")" + id + R"("])",
        "sourceIds", "[\"" + id + "\"]");
    row("a list that is none", document + R"("sourceIds":{})", "sourceIds", "[[]]");
    row("elements of another type", document + R"("plotThreadIds":["a",1,null,"b"])",
        "plotThreadIds", R"([["a","b"]])");
    row("records that are none", document + R"("footnotes":[5,{"id":"1"}])", "footnotes",
        R"([[{"id":"1","text":"","endnote":false}]])");
    row("tags in disorder", document + R"("tags":["b","a","b"])", "tags", R"([["a","b"]])");
    row("no tags", document + R"("tags":[])", "tags", "[null]");
    row("not excluded", document + R"("aiExcluded":false)", "aiExcluded", "[null]");
    row("unknown keys", document + R"("colour":"red")", "colour", "[null]");
    row("a version without a date", document + R"("versions":[{"createdAt":"yesterday"}])",
        "versions", R"([[{"label":"","createdAt":"","body":""}]])");
    row("gallery", R"("type":"entity","gallery":["x",")" + id + R"("])", "gallery",
        "[[\"" + id + "\"]]");
    row("values that are no texts", R"("type":"entity","values":{"a":1,"b":"x"})", "values",
        R"([{"b":"x"}])");
    row("no category", R"("type":"entity")", "categoryId", R"([""])");
    row("an unknown qualifier", R"("type":"timeline_event","dateQualifier":"around")",
        "dateQualifier", R"(["exact"])");
    row("constraints",
        R"("type":"timeline_event","constraints":[{"otherId":")" + id
            + R"(","kind":"near"},{"otherId":"","kind":"after"},{"otherId":")" + id
            + R"(","kind":"during"}])",
        "constraints", R"([[{"otherId":")" + id + R"(","kind":"during"}]])");
    row("an unknown grid", R"("type":"map","gridKind":"Hex")", "gridKind", R"(["none"])");
    row("a task's board", R"("type":"task")", "board", R"(["Tasks"])");
    row("a task's status", R"("type":"task")", "status", R"(["To Do"])");
    row("a date that is none", R"("type":"task","dueDate":"2026-02-30")", "dueDate", R"([""])");
    row("a date with a time", R"("type":"task","dueDate":"2026-02-03T00:00")", "dueDate",
        R"([""])");
    row("numbers that are none", R"("type":"chart","series":[{"values":[1,null,"x",2.5]}])",
        "series", R"([[{"name":"","values":[1,0,0,2.5]}]])");
    row("a weight", R"("type":"random_table","entries":[{"text":"x"}])", "entries",
        R"([[{"text":"x","weight":1}]])");
    row("cells twice and nowhere",
        R"("type":"spreadsheet","cells":[{"row":1,"column":0,"text":"a"},{"row":-1,"text":"b"},{"row":0,"column":5,"text":"c"},{"row":1,"column":0,"text":"d"}])",
        "cells", R"([[{"row":0,"column":5,"text":"c"},{"row":1,"column":0,"text":"d"}]])");
}

void TestProjectFolder::readsTolerantly()
{
    QFETCH(QByteArray, members);
    QFETCH(QString, key);
    QFETCH(QByteArray, value);
    const ProjectFile files[] = {{QStringLiteral("objects/a.json"), objectFile(members)}};
    const auto project = loadProject(folder(), files);
    QVERIFY2(project, qPrintable(project ? QString() : project.message()));
    const QByteArray written = serializeObject(*(*project)->objects().begin()->second);
    const QJsonValue actual = QJsonDocument::fromJson(written).object().value(key);
    const QJsonArray expected = QJsonDocument::fromJson(value).array();
    QCOMPARE(actual, expected == QJsonArray{QJsonValue()} ? QJsonValue(QJsonValue::Undefined)
                     : key == QLatin1String("sourceIds") && expected[0].isString()
                         ? QJsonValue(expected)
                         : expected[0]);
}

void TestProjectFolder::readsRecordsTolerantly()
{
    const QByteArray text = R"({"pinned": ["x", "", null, ")" + anId.toLatin1() + R"("],
        "writingLog": [{"date": "2026-01-02", "words": 5}, {"date": "2]26-01-02", "words": 1},
                       {"date": "0000-01-02"}, {"words": 3}, {"date": "2026-01-02", "words": 6}],
        "timelineView": {"rowHeight": null, "colorBy": 3, "groupBy": "layer"},
        "calendar": {"eraName": "AR"}, "audiences": {}})";
    const ProjectFile files[] = {{QStringLiteral("project.json"), text}};
    const auto project = loadProject(folder(), files);
    QVERIFY(project);
    QCOMPARE((*project)->pinned(), std::set<ContentId>{ContentId::fromString(anId)});
    QCOMPARE((*project)->writingLog(), (WritingLog{{QDate(2026, 1, 2), 6}}));
    TimelineViewSettings settings;
    settings.groupBy = QStringLiteral("layer");
    QCOMPARE((*project)->timelineView(), settings);
    Calendar calendar = Calendar::defaultCalendar();
    calendar.eraName = QStringLiteral("AR");
    QCOMPARE((*project)->calendar(), calendar);
    QVERIFY((*project)->audiences().isEmpty());
}

void TestProjectFolder::namesInAnotherEncoding()
{
#ifndef Q_OS_LINUX
    QSKIP("names are text here");
#endif
    // A file that cannot even be named does not keep all the others from being read.
    const QString folder = m_folder->filePath(QStringLiteral("project"));
    QVERIFY(QDir().mkpath(folder + QStringLiteral("/objects")));
    const QByteArray path = QFile::encodeName(folder) + "/objects/caf\xe9.json";
    std::FILE *file = std::fopen(path.constData(), "w");
    QVERIFY(file);
    std::fclose(file);
    const auto loaded = loadProject(folder);
    std::remove(path.constData()); // no toolkit would find it
    QVERIFY2(loaded, qPrintable(loaded ? QString() : loaded.message()));
}

void TestProjectFolder::missingFolder()
{
    const auto project = loadProject(folder());
    QVERIFY(!project);
    QCOMPARE(project.message(), QStringLiteral("The project folder does not exist: %1")
                                    .arg(QDir::toNativeSeparators(folder())));
}

// Enough files for several cores: the failure told must be that of a reading one by one.
void TestProjectFolder::firstFailureOfManyFiles()
{
    std::vector<ProjectFile> files;
    for (int i = 0; i < 1000; ++i)
        files.push_back({QStringLiteral("objects/%1.json").arg(i, 4, 10, QLatin1Char('0')),
                         "{\"type\":\"timeline\",\"id\":\""
                             + numberedId(quint32(i + 1)).toString().toLatin1() + "\"}"});
    const auto project = loadProject(folder(), files);
    QVERIFY(project);
    QCOMPARE((*project)->size(), 1000);

    const auto nameOfFailure = [&] { return loadProject(folder(), files).message().right(9); };
    files[900].bytes = "{";
    files[733].bytes = "{}";
    QCOMPARE(nameOfFailure(), QStringLiteral("0733.json"));
    files[250].bytes = files[900].bytes;
    QCOMPARE(nameOfFailure(), QStringLiteral("0250.json"));
    files[251].bytes = files[3].bytes; // behind the failure, so it does not count
    QCOMPARE(nameOfFailure(), QStringLiteral("0250.json"));
    files[249].bytes = files[3].bytes;
    QCOMPARE(loadProject(folder(), files).message(),
             QStringLiteral("Duplicate object id %1 in %2")
                 .arg(numberedId(4).toString(),
                      QDir::toNativeSeparators(folder() + QStringLiteral("/objects/0249.json"))));
}

void TestProjectFolder::dateTimesKeepTheirZone_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    const auto row = [](const char *text, const char *written) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(written);
    };
    row("2026-03-29T02:30:00.007Z", "2026-03-29T02:30:00.007Z");
    row("2026-03-29T02:30:00.007+05:30", "2026-03-29T02:30:00.007+05:30");
    row("2026-03-29T12:30:00.000", "2026-03-29T12:30:00.000");
    row("2026-03-29T02:30:00Z", "2026-03-29T02:30:00.000Z");
    row("2026-03-29T24:00:00.000Z", "2026-03-30T00:00:00.000Z");
    row("2026-03-29T2x:30:00.007Z", "");
    row("", "");
}

void TestProjectFolder::dateTimesKeepTheirZone()
{
    QFETCH(QString, text);
    const ProjectFile files[] = {
        {QStringLiteral("objects/a.json"),
         objectFile("\"type\":\"comment\",\"createdAt\":\"" + text.toUtf8() + "\"")}};
    const auto project = loadProject(folder(), files);
    QVERIFY(project);
    const QByteArray written = serializeObject(*(*project)->objects().begin()->second);
    QTEST(QJsonDocument::fromJson(written)[QLatin1String("createdAt")].toString(), "written");
}

QTEST_GUILESS_MAIN(TestProjectFolder)
#include "tst_projectfolder.moc"
