#include "tests/support/cliprogram.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"

#include "app/storage/projectwriter.h"
#include "core/content/task.h"
#include "core/content/timeline.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace vl::core;
using namespace vl::test;

namespace {

QString text(const char *literal)
{
    return QString::fromUtf8(literal);
}

} // namespace

class TestCliProjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void usage_data();
    void usage();
    void helpNamesWhatThereIs();
    void newProjects();
    void info();
    void validate_data();
    void validate();
    void conversionsKeepEverything();
    void conversionLeavesItsNeighbours();
    void conversionDropsWhatIsGone();
    void conversionRefuses_data();
    void conversionRefuses();
    void packAndUnpack();
    void readingTouchesNothing_data();
    void readingTouchesNothing();
    void repairsACopy();
    void listsBackups();
    void texts_data();
    void texts();
    void exportsRtf();
    void importsText();
    void importsMarkdown();
    void importAddsToAProject_data();
    void importAddsToAProject();
    void style();
    void conflicts();
    void fullOutput();

private:
    Outcome run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return runCli(text(IVOREL_CLI), arguments, input, m_path);
    }
    /// The same with the arguments in one text, parted by blanks.
    Outcome run(const char *arguments, const QByteArray &input = {}) const
    {
        return run(text(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts), input);
    }
    QString at(const char *path) const { return m_path + QLatin1Char('/') + text(path); }
    /// A project of every kind in the folder "full", with an asset and a hidden file.
    void makeFullProject() const;
    QJsonObject infoOf(const char *path) const
    {
        return QJsonDocument::fromJson(run({text("info"), text(path), text("--json")}).output)
            .object();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void TestCliProjects::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(text("un été"));
    QVERIFY(QDir().mkpath(m_path));
    // Working copies are kept apart from those of whoever runs the tests.
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->filePath(text("data"))));
}

void TestCliProjects::makeFullProject() const
{
    QVERIFY(vl::app::saveProject(*fullProject(), at("full")));
    putFile(at("full/assets/maps/é.png"), QByteArray("\x89PNG\0\n", 6));
    putFile(at("full/.gitattributes"), "*.json text\n");
}

void TestCliProjects::usage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("messages");

    const auto row = [](const char *arguments, const char *reason, const char *usage) {
        QTest::newRow(*arguments ? arguments : "nothing")
            << text(arguments) << text(reason) + text("\nUsage: ivorel-cli ") + text(usage);
    };
    row("", "No command is given.", "COMMAND [ARGUMENT…]");
    row("nix", "Unknown command: nix", "COMMAND [ARGUMENT…]");
    row("--nix", "Unknown option: --nix", "COMMAND [ARGUMENT…]");
    row("Info a", "Unknown command: Info", "COMMAND [ARGUMENT…]");
    row("mend a b", "Unknown command: mend", "COMMAND [ARGUMENT…]");
    row("info", "PROJECT is missing.", "info PROJECT [--json]");
    row("info a b", "Too many arguments: b", "info PROJECT [--json]");
    row("info a --name", "Unknown option: --name", "info PROJECT [--json]");
    row("info a -j", "Unknown option: -j", "info PROJECT [--json]");
    row("info a --json=1", "The option --json takes no value.", "info PROJECT [--json]");
    row("info a --json --json", "The option --json is given twice.", "info PROJECT [--json]");
    row("new a --name", "The option --name needs a value.", "new PROJECT [--name NAME]");
    row("convert a", "DESTINATION is missing.", "convert SOURCE DESTINATION");
    row("health a --format pdf", "Unknown format: pdf", "health PROJECT [--format FORMAT]");
    row("import docx a b", "Unknown format: docx", "import FORMAT SOURCE PROJECT");
    const char *exportUsage = "export FORMAT PROJECT --output FILE [--title TITLE] [--author NAME] "
                              "[--contact TEXT] [--pen-name NAME]";
    row("export rtf a", "The option --output is missing.", exportUsage);
    row("export docx a --output b", "Unknown format: docx", exportUsage);
    row("batch a", "Too many arguments: a", "batch");
}

void TestCliProjects::usage()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, messages);
    const Outcome outcome = run(arguments.toUtf8().constData());
    QCOMPARE(outcome.messages, messages);
    QCOMPARE(outcome.output, QByteArray());
    QCOMPARE(outcome.status, 2);
}

void TestCliProjects::helpNamesWhatThereIs()
{
    const Outcome help = run("--help");
    QCOMPARE(help.status, 0);
    QCOMPARE(help.messages, QString());
    QStringList commands;
    for (const QByteArray &line : help.output.split('\n'))
        if (line.startsWith("  "))
            commands.append(QString::fromUtf8(line.trimmed().split(' ').constFirst()));
    QVERIFY(commands.size() >= 15);
    for (const QString &command : commands) {
        const Outcome each = run({command, text("--help")});
        QCOMPARE(each.status, 0);
        QVERIFY(each.output.startsWith("Usage: ivorel-cli " + command.toUtf8()));
    }
    for (const char *later : {"ask"})
        QVERIFY(!commands.contains(text(later)));
    QVERIFY(run("--version").output.startsWith("ivorel-cli "));
}

void TestCliProjects::newProjects()
{
    for (const char *command : {"new folder", "new bundle.vellum", "new deep/down/folder"}) {
        Outcome outcome = run(command);
        QCOMPARE(outcome.messages, QString());
        QCOMPARE(outcome.status, 0);
        outcome = run(command); // never over what is there
        QCOMPARE(outcome.messages, text("There is something already: %1/").arg(m_path)
                                       + text(command).section(QLatin1Char(' '), 1));
        QCOMPARE(outcome.status, 3);
    }
    QVERIFY(QFileInfo(at("folder/project.json")).isFile());
    QVERIFY(QFileInfo(at("bundle.vellum")).isFile());
    QCOMPARE(run("validate folder").status, 0);
    QCOMPARE(run("validate bundle.vellum").status, 0);

    QVERIFY(QDir().mkpath(at("empty")));
    QCOMPARE(run("new empty").status, 0);
    QCOMPARE(run({text("new"), text("named.vellum"), text("--name"), text("The *Sea*")}).status, 0);
    QCOMPARE(run("unpack named.vellum named").status, 0);
    QCOMPARE(fileBytes(at("named/README.md")), QByteArray("# The \\*Sea\\*\n"));
    QCOMPARE(infoOf("named").value(text("kinds")), infoOf("folder").value(text("kinds")));
}

void TestCliProjects::info()
{
    Project project;
    auto prose = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, text("a"));
    prose->setBody(text("Three words here."));
    auto note = std::make_unique<Document>(ContentId::create(), DocumentKind::Note, text("b"));
    note->setBody(text("not of the manuscript"));
    auto play =
        std::make_unique<Document>(ContentId::create(), DocumentKind::Screenplay, text("c"));
    play->setBody(text("INT. ROOM"));
    project.add(std::move(prose));
    project.add(std::move(note));
    project.add(std::move(play));
    project.add(std::make_unique<Task>(ContentId::create(), text("t")));
    project.editTaxonomy().add({ContentId::create(), text("Places"), {}, {}});
    QVERIFY(vl::app::saveProject(project, at("p")));
    qint64 bytes = 0;
    for (const QByteArray &file : filesUnder(at("p")))
        bytes += file.size();

    const QJsonObject figures = infoOf("p");
    const QJsonObject kinds = figures.value(text("kinds")).toObject();
    QCOMPARE(kinds.size(), 15);
    QCOMPARE(kinds.value(text("document")).toInt(), 3);
    QCOMPARE(kinds.value(text("task")).toInt(), 1);
    QCOMPARE(kinds.value(text("timeline_event")).toInt(-1), 0);
    QCOMPARE(figures.value(text("categories")).toInt(), 1);
    QCOMPARE(figures.value(text("words")).toInt(), 5);
    QCOMPARE(figures.value(text("bytes")).toInteger(), bytes);
    QCOMPARE(figures.size(), 4);

    QCOMPARE(run("convert p p.vellum").status, 0);
    QJsonObject ofBundle = infoOf("p.vellum");
    QCOMPARE(ofBundle.value(text("bytes")).toInteger(), QFileInfo(at("p.vellum")).size());
    ofBundle.insert(text("bytes"), bytes);
    QCOMPARE(ofBundle, figures);
}

void TestCliProjects::validate_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("message"); // "%1" stands for the folder that all lies in

    QTest::newRow("no such folder")
        << text("gone") << text("The project folder does not exist: %1/gone");
    QTest::newRow("no such file") << text("gone.vellum")
                                  << text("Could not open the project file: %1/gone.vellum");
    QTest::newRow("no bundle") << text("text.vellum")
                               << text("Not a valid Ivorel project file: %1/text.vellum");
    QTest::newRow("a file") << text("text.txt")
                            << text("Not a valid Ivorel project file: %1/text.txt");
    QTest::newRow("malformed object")
        << text("broken") << text("Malformed object file: %1/broken/objects/x.json");
    QTest::newRow("no JSON") << text("torn") << text("Invalid JSON in file: %1/torn/project.json");
    QTest::newRow("malformed object in a bundle")
        << text("broken.vellum") << text("Malformed object file: %1/broken.vellum/objects/x.json");
}

void TestCliProjects::validate()
{
    QFETCH(const QString, path);
    QFETCH(const QString, message);
    putFile(at("text.vellum"), "hello");
    putFile(at("text.txt"), "hello");
    putFile(at("broken/objects/x.json"), R"({"id":"x","type":"Document"})");
    putFile(at("broken/project.json"), "{}");
    putFile(at("torn/project.json"), "{");
    QCOMPARE(run("pack broken broken.vellum").status, 0);
    const Outcome outcome = run({text("validate"), path});
    QCOMPARE(outcome.messages, message.arg(m_path));
    QCOMPARE(outcome.output, QByteArray());
    QCOMPARE(outcome.status, 3);
    for (const char *command : {"info", "health", "conflicts"})
        QCOMPARE(run({text(command), path}).messages, outcome.messages);
}

void TestCliProjects::conversionsKeepEverything()
{
    makeFullProject();
    const FileMap before = filesUnder(at("full"));
    for (const char *command :
         {"convert full a.vellum", "convert a.vellum b", "convert b c", "convert c c",
          "convert a.vellum d.vellum", "convert d.vellum d.vellum", "pack full e.vellum",
          "convert a.vellum b", "convert b a.vellum"}) {
        const Outcome outcome = run(command);
        QCOMPARE(outcome.messages, QString());
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.status, 0);
    }
    for (const char *folder : {"full", "b", "c"})
        QCOMPARE(filesUnder(at(folder)), before);
    // The bytes of a bundle are those of packing the folder, whichever way it came about.
    for (const char *bundle : {"a.vellum", "d.vellum"})
        QVERIFY(fileBytes(at(bundle)) == fileBytes(at("e.vellum")));
    QCOMPARE(namesIn(m_path), (QStringList{text("a.vellum"), text("b"), text("c"), text("d.vellum"),
                                           text("e.vellum"), text("full")}));
}

// The folder is written under another name first, which must not be that of something there.
void TestCliProjects::conversionLeavesItsNeighbours()
{
    makeFullProject();
    putFile(at("copy.unfinished/chapter.txt"), "mine");
    QCOMPARE(run("convert full copy").status, 0);
    QCOMPARE(namesIn(m_path), (QStringList{text("copy"), text("copy.unfinished"), text("full")}));
    QCOMPARE(fileBytes(at("copy.unfinished/chapter.txt")), QByteArray("mine"));
}

void TestCliProjects::conversionDropsWhatIsGone()
{
    makeFullProject();
    QCOMPARE(run("convert full copy").status, 0);
    const QString gone = QDir(at("full/objects")).entryList(QDir::Files).constFirst();
    QVERIFY(QFile::remove(at("full/objects/") + gone));
    putFile(at("copy/my notes.txt"), "kept");
    QCOMPARE(run("convert full copy").status, 0);
    FileMap expected = filesUnder(at("full"));
    expected.insert(text("my notes.txt"), "kept");
    QCOMPARE(filesUnder(at("copy")), expected);
}

void TestCliProjects::conversionRefuses_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("destination");

    QTest::newRow("another project, a folder") << text("full") << text("other");
    QTest::newRow("another project, a bundle") << text("full") << text("other.vellum");
    QTest::newRow("an empty one over a full one") << text("empty") << text("other.vellum");
    QTest::newRow("another one of categories only") << text("full") << text("codex");
    QTest::newRow("a folder that is no project") << text("full") << text("notes");
    QTest::newRow("a file that is no bundle") << text("full") << text("text.txt");
    QTest::newRow("a project that does not load") << text("full") << text("torn");
    QTest::newRow("from one that does not load") << text("torn") << text("new");
    QTest::newRow("from nothing") << text("gone") << text("new");
}

void TestCliProjects::conversionRefuses()
{
    QFETCH(const QString, source);
    QFETCH(const QString, destination);
    makeFullProject();
    Project other;
    other.add(std::make_unique<Task>(ContentId::create(), text("t")));
    QVERIFY(vl::app::saveProject(other, at("other")));
    QVERIFY(vl::app::saveProject(Project(), at("empty")));
    QCOMPARE(run("pack other other.vellum").status, 0);
    Project codex;
    codex.editTaxonomy().add({ContentId::create(), text("People"), {}, {}});
    QVERIFY(vl::app::saveProject(codex, at("codex")));
    putFile(at("notes/assets/map.png"), "mine");
    putFile(at("text.txt"), "hello");
    putFile(at("torn/project.json"), "{");
    const FileMap before = filesUnder(m_path);
    const Outcome outcome = run({text("convert"), source, destination});
    QCOMPARE(outcome.status, 3);
    QVERIFY(!outcome.messages.isEmpty());
    QCOMPARE(filesUnder(m_path), before);
}

void TestCliProjects::packAndUnpack()
{
    makeFullProject();
    // Nothing is loaded: what does not load is packed like anything else.
    putFile(at("full/objects/broken.json"), "{");
    QCOMPARE(run("pack full a.vellum").status, 0);
    QCOMPARE(run("pack full b.vellum").status, 0);
    QVERIFY(fileBytes(at("a.vellum")) == fileBytes(at("b.vellum")));
    QCOMPARE(run("unpack a.vellum out").status, 0);
    QCOMPARE(filesUnder(at("out")), filesUnder(at("full")));

    Outcome outcome = run("unpack a.vellum full");
    QCOMPARE(outcome.messages, text("The extraction folder is not empty: %1/full").arg(m_path));
    QCOMPARE(outcome.status, 3);
    outcome = run("pack gone c.vellum");
    QCOMPARE(outcome.messages, text("The project folder does not exist: %1/gone").arg(m_path));
    QCOMPARE(outcome.status, 3);
    QVERIFY(QFile::remove(at("out/project.json")));
    QCOMPARE(run("pack out c.vellum").messages,
             text("The folder is not an Ivorel project (no project.json): %1/out").arg(m_path));
    QVERIFY(!QFileInfo::exists(at("c.vellum")));
}

void TestCliProjects::readingTouchesNothing_data()
{
    QTest::addColumn<QString>("command");

    for (const char *command : {"info %1", "info %1 --json", "validate %1", "style %1",
                                "style --json %1", "conflicts %1", "conflicts --json %1",
                                "health %1", "health --format html %1", "export rtf %1 --output -"})
        QTest::newRow(command) << text(command);
}

void TestCliProjects::readingTouchesNothing()
{
    QFETCH(const QString, command);
    makeFullProject();
    QCOMPARE(run("pack full full.vellum").status, 0);
    const QString folder = m_folder->path();
    const FileMap before = filesUnder(folder);
    for (const char *project : {"full", "full.vellum"}) {
        const Outcome outcome = run(command.arg(text(project)).toUtf8().constData());
        QVERIFY2(outcome.status == 0 || outcome.status == 1, qUtf8Printable(outcome.messages));
        QVERIFY(!outcome.output.isEmpty() || !command.contains(text("--json")));
    }
    QCOMPARE(filesUnder(folder), before);
    QCOMPARE(namesIn(folder), QStringList{text("un été")}); // no working copy either
}

void TestCliProjects::repairsACopy()
{
    makeFullProject();
    const QString damaged =
        text("objects/%1.json").arg(QString::fromStdString("0f8b2a34-5c6d-4e7f-8a9b-0c1d2e3f4a5b"));
    Outcome outcome = run("repair full same");
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, QByteArray());
    QCOMPARE(filesUnder(at("same")), filesUnder(at("full")));

    putFile(at("full/") + damaged, "{\"id\": ");
    const FileMap before = filesUnder(at("full"));
    outcome = run("repair full copy.vellum");
    QCOMPARE(outcome.status, 1);
    QCOMPARE(QString::fromUtf8(outcome.output),
             text("%1: Invalid JSON in file: %2\n").arg(damaged, at("full/") + damaged));
    QCOMPARE(run("validate copy.vellum").status, 0);
    QCOMPARE(filesUnder(at("full")), before);
    QCOMPARE(run("repair full copy.vellum").status, 3); // it stands there already
    QCOMPARE(run("repair nowhere.vellum other").status, 3);
}

void TestCliProjects::listsBackups()
{
    makeFullProject();
    QCOMPARE(run("backups full").output, QByteArray());
    const QString name = text("full-20240506T070809010Z-0000.vlbackup");
    QCOMPARE(run("pack full one.vellum").status, 0);
    const QString folder = m_folder->filePath(text("data/Quessel Games/Ivorel/backups"));
    putFile(folder + text("/") + name, fileBytes(at("one.vellum")));
    putFile(folder + text("/full-20230506T070809010Z-0000.vlbackup"), "damaged");
    const Outcome outcome = run("backups full");
    QCOMPARE(outcome.status, 0);
    const QStringList lines = QString::fromUtf8(outcome.output).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    const QStringList first = lines.at(0).split(QLatin1Char('\t'));
    QCOMPARE(first.value(0), folder + text("/") + name);
    QCOMPARE(first.value(1), text("2024-05-06T07:08:09Z"));
    QCOMPARE(first.value(2).toLongLong(), qint64(fileBytes(at("one.vellum")).size()));
    QCOMPARE(first.value(3), text("3"));
    QVERIFY(first.value(4).toInt() > 0);
    QVERIFY(lines.at(1).endsWith(text("\t7\t-\t-")));
    QVERIFY(!outcome.messages.isEmpty());
}

void TestCliProjects::texts_data()
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

void TestCliProjects::texts()
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

void TestCliProjects::exportsRtf()
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

void TestCliProjects::importsText()
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

void TestCliProjects::importsMarkdown()
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

void TestCliProjects::importAddsToAProject_data()
{
    QTest::addColumn<QString>("project");

    QTest::newRow("folder") << text("p");
    QTest::newRow("bundle") << text("p.vellum");
}

void TestCliProjects::importAddsToAProject()
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

void TestCliProjects::style()
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

void TestCliProjects::conflicts()
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

void TestCliProjects::fullOutput()
{
    if (!QFileInfo::exists(text("/dev/full")))
        QSKIP("there is no device that is always full");
    QProcess process;
    process.setStandardOutputFile(text("/dev/full"));
    process.start(text(IVOREL_CLI), {text("--help")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 3);
    QCOMPARE(process.readAllStandardError(), QByteArray("Cannot write to standard output.\n"));
}

QTEST_GUILESS_MAIN(TestCliProjects)
#include "tst_cliprojects.moc"
