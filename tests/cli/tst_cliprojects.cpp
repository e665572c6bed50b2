#include "tests/cli/clitest.h"

#include "app/storage/lock.h"
#include "core/content/task.h"

#include <QtCore/QProcess>

using namespace vl::core;
using namespace vl::test;

class TestCliProjects : public CliTest
{
    Q_OBJECT

private Q_SLOTS:
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
    void openElsewhere_data();
    void openElsewhere();
    void repairsACopy();
    void listsBackups();
    void fullOutput();
};

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
    row("convert a", "DESTINATION is missing.", "convert SOURCE DESTINATION [--anyway]");
    row("health a --format pdf", "Unknown format: pdf", "health PROJECT [--format FORMAT]");
    row("import docx a b", "Unknown format: docx", "import FORMAT SOURCE PROJECT [--anyway]");
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

void TestCliProjects::openElsewhere_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("project"); // the one that somebody has open
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("status");

    const auto row = [](const char *command, const char *project, const char *state, int status) {
        QTest::addRow("%s, %s", command, state)
            << text(command) << text(project) << text(state) << status;
    };
    for (const char *project : {"full", "full.vellum"}) {
        const bool isFolder = !text(project).contains(QLatin1Char('.'));
        const char *import = isFolder ? "import text - full" : "import text - full.vellum";
        const char *convert = isFolder ? "convert full.vellum full" : "convert full full.vellum";
        const char *itself = isFolder ? "convert full full" : "convert full.vellum full.vellum";
        for (const char *command : {import, convert, itself})
            for (const char *state : {"here", "elsewhere", "unreadable"})
                row(command, project, state, 3);
        row(import, project, "gone", 0);
        for (const char *command : {"info %1", "validate %1", "backups %1", "convert %1 other"})
            row(text(command).arg(text(project)).toLatin1().constData(), project, "here", 0);
    }
    row("pack full full.vellum", "full.vellum", "here", 3);
    row("pack full full.vellum", "full", "here", 0); // it is only read
    row("repair full gone.vellum", "gone.vellum", "here", 3);
    row("new gone.vellum", "gone.vellum", "elsewhere", 3);
    row("convert full full.vellum --anyway", "full.vellum", "elsewhere", 0);
    row("import text - full --anyway", "full", "unreadable", 0);
    row("pack full full.vellum --anyway", "full.vellum", "here", 3); // that one runs for certain
}

void TestCliProjects::openElsewhere()
{
    QFETCH(const QString, command);
    QFETCH(const QString, project);
    QFETCH(const QString, state);
    QFETCH(const int, status);
    makeFullProject();
    QCOMPARE(run("pack full full.vellum").status, 0);
    vl::app::LockHolder holder = vl::app::LockHolder::current();
    holder.user = text("ann");
    holder.host = text("attic");
    if (state == text("elsewhere"))
        holder.machine = text("another one");
    if (state == text("gone"))
        holder.boot = text("before the last start");
    const QString lock = vl::app::ProjectLock::filePath(at(project.toUtf8().constData()));
    putFile(lock, state == text("unreadable") ? QByteArray("half a lo") : holder.toJson());
    const FileMap before = filesUnder(m_path);
    const Outcome outcome = run(command.toUtf8().constData(), "Words.\n");
    QCOMPARE(outcome.status, status);
    if (status == 0) {
        // Its own lock goes when it is done; that of a program that runs stays.
        const bool isLeftOver = state != text("here");
        QCOMPARE(QFileInfo::exists(lock), !isLeftOver);
        return;
    }
    QCOMPARE(filesUnder(m_path), before);
    QCOMPARE(outcome.output, QByteArray());
    QVERIFY2(outcome.messages.contains(at(project.toUtf8().constData())),
             qUtf8Printable(outcome.messages));
    QCOMPARE(outcome.messages.contains(text("ann has it open on “attic”")),
             state != text("unreadable"));
    QCOMPARE(outcome.messages.contains(text("--anyway")), state != text("here"));
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
