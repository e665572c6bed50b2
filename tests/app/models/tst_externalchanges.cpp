#include "app/models/externalchangesmodel.h"
#include "app/models/outsideoffer.h"
#include "app/models/textdifference.h"
#include "app/storage/jsonmerge.h"
#include "app/storage/openproject.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectstore.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"

#include <QtCore/QJsonDocument>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

using namespace vl;
using app::ExternalChangesModel;
using app::ReconcileState;
using Choice = ExternalChangesModel::Choice;

class TestExternalChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsEachFileInWords();
    void decidesFileByFile();
    void editsTheTextByHand();
    void mergesMembers_data();
    void mergesMembers();
    void wordDifferences_data();
    void wordDifferences();
    void offers_data();
    void offers();
};

namespace {

/// A project of five scenes on disk, edited in memory and by others.
struct Desk
{
    Desk()
    {
        for (int i = 0; i < 6; ++i) {
            auto document = std::make_unique<core::Document>(test::numberedId(quint32(i)),
                                                             core::DocumentKind::Prose,
                                                             QStringLiteral("Scene %1").arg(i));
            document->setBody(QStringLiteral("One.\n\nTwo.\n"));
            project.push(
                std::make_unique<core::AddObjectCommand>(project.project(), std::move(document)));
        }
        if (!project.saveAsFolder(dir.filePath(QStringLiteral("p"))))
            qFatal("not saved");
    }
    void mine(int i, const QString &body)
    {
        project.push(std::make_unique<core::SetDocumentBodyCommand>(
            *project.project().find<core::Document>(test::numberedId(quint32(i))), body));
    }
    void mineGone(int i)
    {
        project.push(std::make_unique<core::RemoveObjectCommand>(project.project(),
                                                                 test::numberedId(quint32(i))));
    }
    QString file(int i) const
    {
        return project.path() + u'/' + app::objectPath(test::numberedId(quint32(i)));
    }
    void theirs(int i, const char *from, const char *to)
    {
        test::putFile(file(i), test::fileBytes(file(i)).replace(from, to));
    }
    void scan() { state = project.prepareScan()->run(); }

    QTemporaryDir dir;
    app::OpenProject project;
    app::OutsideState state;
};

QStringList column(const ExternalChangesModel &model, int column)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, column).data().toString());
    return texts;
}

} // namespace

void TestExternalChanges::tellsEachFileInWords()
{
    Desk desk;
    desk.theirs(0, "One.", "Theirs.");
    desk.mine(1, QStringLiteral("Mine."));
    desk.theirs(1, "One.", "Theirs.");
    QVERIFY(QFile::remove(desk.file(2)));
    desk.mine(3, QStringLiteral("Mine."));
    QVERIFY(QFile::remove(desk.file(3)));
    desk.mineGone(4);
    desk.theirs(4, "One.", "Theirs.");
    test::putFile(desk.file(5).chopped(5) + QStringLiteral(" 2.json"),
                  test::fileBytes(desk.file(5)).replace("One.", "Copy."));
    desk.scan();
    ExternalChangesModel model(desk.state, desk.project.reconcile(desk.state));
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows.append(model.index(row, 0).data().toString() + QStringLiteral(": ")
                    + model.index(row, 1).data().toString());
    rows.sort();
    QCOMPARE(rows, QStringList({
                       QStringLiteral("Scene 0: Changed on disk"),
                       QStringLiteral("Scene 1: Changed by you and on disk"),
                       QStringLiteral("Scene 2: Deleted on disk"),
                       QStringLiteral("Scene 3: Changed by you, deleted on disk"),
                       QStringLiteral("Scene 4: Deleted by you, changed on disk"),
                       QStringLiteral("Scene 5: A sync client's second version of it"),
                   }));
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("File"));
    // Conflicts come first; the text reads as it was written, not as JSON.
    QCOMPARE(model.undecided(), 4);
    for (int row = 0; row < model.rowCount(); ++row)
        QCOMPARE(model.choice(row) == Choice::Undecided, row < 4);
    const int edited = int(column(model, 0).indexOf(QStringLiteral("Scene 1")));
    QCOMPARE(model.versions(edited).before, QStringLiteral("Title: Scene 1\n\nMine.\n"));
    QCOMPARE(model.versions(edited).after, QStringLiteral("Title: Scene 1\n\nTheirs.\n\nTwo.\n"));
}

void TestExternalChanges::decidesFileByFile()
{
    Desk desk;
    desk.theirs(0, "One.", "Theirs.");
    desk.mine(1, QStringLiteral("Mine."));
    desk.theirs(1, "One.", "Theirs.");
    desk.mine(2, QStringLiteral("Mine."));
    QVERIFY(QFile::remove(desk.file(2)));
    desk.scan();
    ExternalChangesModel model(desk.state, desk.project.reconcile(desk.state));
    const auto rowOf = [&](const char *title) {
        return int(column(model, 0).indexOf(QString::fromLatin1(title)));
    };
    model.chooseMine(rowOf("Scene 0")); // what is no conflict may be decided otherwise too
    model.chooseTheirs(rowOf("Scene 1"));
    QCOMPARE(model.undecided(), 1);
    QVERIFY(!desk.project.takeOver(desk.state, model.resolution(), QString()));
    model.chooseTheirs(rowOf("Scene 2"));
    QCOMPARE(model.index(rowOf("Scene 2"), ExternalChangesModel::Decision).data().toString(),
             QStringLiteral("Delete it here too"));
    model.chooseMine(rowOf("Scene 2")); // and then again
    QCOMPARE(model.undecided(), 0);
    QVERIFY(desk.project.takeOver(desk.state, model.resolution(), QStringLiteral("Merge")));
    QVERIFY(desk.project.isDirty());
    QVERIFY(desk.project.save());
    const auto opened = app::OpenProject::open(desk.project.path());
    QVERIFY(opened);
    const auto body = [&](quint32 i) {
        return (*opened)->project().find<core::Document>(test::numberedId(i))->body();
    };
    QCOMPARE(body(0), QStringLiteral("One.\n\nTwo.\n"));
    QCOMPARE(body(1), QStringLiteral("Theirs.\n\nTwo.\n"));
    QCOMPARE(body(2), QStringLiteral("Mine."));
}

void TestExternalChanges::editsTheTextByHand()
{
    Desk desk;
    desk.mine(1, QStringLiteral("Mine.\n\nTwo.\n"));
    desk.theirs(1, "One.", "Theirs.");
    desk.theirs(1, "\"status\": \"\"", "\"status\": \"Done\"");
    desk.scan();
    ExternalChangesModel model(desk.state, desk.project.reconcile(desk.state));
    QCOMPARE(model.rowCount(), 1);
    QVERIFY(model.canEdit(0));
    QCOMPARE(model.editableText(0),
             QStringLiteral("<<<<<<< local\nMine.\n=======\nTheirs.\n>>>>>>> remote\n\nTwo.\n"));
    const app::Result<> early = model.chooseText(0, model.editableText(0));
    QVERIFY(!early);
    QCOMPARE(model.undecided(), 1);
    QVERIFY(model.chooseText(0, QStringLiteral("Mine \"and\" theirs.\n\nTwo.\n")));
    QVERIFY(desk.project.takeOver(desk.state, model.resolution(), QString()));
    const auto *document = desk.project.project().find<core::Document>(test::numberedId(1));
    QCOMPARE(document->body(), QStringLiteral("Mine \"and\" theirs.\n\nTwo.\n"));
    QCOMPARE(document->status(), QStringLiteral("Done")); // the rest is merged as ever
}

void TestExternalChanges::mergesMembers_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("local");
    QTest::addColumn<QByteArray>("remote");
    QTest::addColumn<QByteArray>("merged"); // the local one where both differ
    QTest::addColumn<QStringList>("conflicts");
    const auto row = [](const char *name, const char *base, const char *local, const char *remote,
                        const char *merged, const QStringList &conflicts) {
        QTest::newRow(name) << QByteArray(base) << QByteArray(local) << QByteArray(remote)
                            << QByteArray(merged) << conflicts;
    };
    row("neighbouring members", R"({"a":1,"b":1})", R"({"a":2,"b":1})", R"({"a":1,"b":2})",
        R"({"a":2,"b":2})", {});
    row("one member", R"({"a":1})", R"({"a":2})", R"({"a":3})", R"({"a":2})",
        {QStringLiteral("a")});
    row("paragraphs", R"({"t":"1\n\n2\n\n3"})", R"({"t":"x\n\n2\n\n3"})", R"({"t":"1\n\n2\n\ny"})",
        R"({"t":"x\n\n2\n\ny"})", {});
    row("removed and changed", R"({"a":1,"b":1})", R"({"b":1})", R"({"a":2,"b":1})", R"({"b":1})",
        {QStringLiteral("a")});
    row("removed on one side", R"({"a":1,"b":1})", R"({"a":1,"b":2})", R"({"b":1})", R"({"b":2})",
        {});
    row("inside an object", R"({"v":{"x":"1","y":"1"}})", R"({"v":{"x":"2","y":"1"}})",
        R"({"v":{"x":"1","y":"2"}})", R"({"v":{"x":"2","y":"2"}})", {});
    row("lists are one thing", R"({"l":[1]})", R"({"l":[1,2]})", R"({"l":[3]})", R"({"l":[1,2]})",
        {QStringLiteral("l")});
    row("added alike", R"({})", R"({"a":[1]})", R"({"a":[1]})", R"({"a":[1]})", {});
    // Deeper than the program writes, as only a made-up file is, what both changed is not taken
    // apart.
    const auto deep = [](const char *inner) {
        return QByteArray("{\"k\":").repeated(40) + inner + QByteArray(40, '}');
    };
    QTest::newRow("deep inside objects")
        << deep(R"({"a":1,"b":1})") << deep(R"({"a":2,"b":1})") << deep(R"({"a":1,"b":2})")
        << deep(R"({"a":2,"b":1})") << QStringList{QStringLiteral("k.").repeated(32) + u'k'};
}

void TestExternalChanges::mergesMembers()
{
    const auto object = [](const QByteArray &bytes) {
        return QJsonDocument::fromJson(bytes).object();
    };
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, local);
    QFETCH(QByteArray, remote);
    QFETCH(QByteArray, merged);
    QFETCH(QStringList, conflicts);
    const app::JsonMerge merge = app::JsonMerge::merge(object(base), object(local), object(remote));
    QCOMPARE(merge.object, object(merged));
    QCOMPARE(merge.conflicts, conflicts);
}

void TestExternalChanges::wordDifferences_data()
{
    QTest::addColumn<QString>("before"); // in brackets what is marked
    QTest::addColumn<QString>("after");
    QTest::newRow("a word") << "She [walked] home."
                            << "She [ran] home.";
    QTest::newRow("put in") << "She walked home."
                            << "She walked [slowly ]home.";
    QTest::newRow("at the ends") << "[The] end"
                                 << "[An] end[ of it]";
    QTest::newRow("other scripts") << "Чёрный [кот] спит здесь"
                                   << "Чёрный [пёс] спит здесь";
    QTest::newRow("pairs of units") << "a night 😀[😁]"
                                    << "a night 😀[😂]";
    QTest::newRow("unlike lines") << "nothing of this"
                                  << "came to pass";
    QTest::newRow("one empty") << ""
                               << "all of it";
}

void TestExternalChanges::wordDifferences()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    const auto plain = [](QString text) { return text.remove(u'[').remove(u']'); };
    const auto marked = [](QString text, const std::vector<app::TextRun> &runs) {
        for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
            text.insert(run->position + run->length, u']');
            text.insert(run->position, u'[');
        }
        return text;
    };
    const app::WordDifference difference = app::wordDifference(plain(before), plain(after));
    QCOMPARE(marked(plain(before), difference.removed), before);
    QCOMPARE(marked(plain(after), difference.added), after);
}

void TestExternalChanges::offers_data()
{
    using Kind = app::OutsideOffer::Kind;
    QTest::addColumn<int>("known");
    QTest::addColumn<int>("changed");
    QTest::addColumn<int>("gone");
    QTest::addColumn<bool>("isDirty");
    QTest::addColumn<Kind>("kind");
    QTest::newRow("nothing") << 20 << 0 << 0 << false << Kind::None;
    QTest::newRow("nothing, with unsaved edits") << 20 << 0 << 0 << true << Kind::None;
    QTest::newRow("a file") << 20 << 1 << 0 << false << Kind::Notice;
    QTest::newRow("a file, with unsaved edits") << 20 << 1 << 0 << true << Kind::Merge;
    QTest::newRow("most files") << 20 << 11 << 0 << false << Kind::WholeProject;
    QTest::newRow("most files of few") << 3 << 3 << 0 << false << Kind::Notice;
    QTest::newRow("all gone") << 20 << 20 << 20 << true << Kind::Vanished;
}

void TestExternalChanges::offers()
{
    QFETCH(int, known);
    QFETCH(int, changed);
    QFETCH(int, gone);
    QFETCH(bool, isDirty);
    app::OutsideState state;
    state.knownFiles = known;
    state.goneFiles = gone;
    state.files.resize(std::size_t(changed));
    QTEST(app::OutsideOffer::of(state, {}, isDirty, QString()).kind, "kind");
}

QTEST_GUILESS_MAIN(TestExternalChanges)
#include "tst_externalchanges.moc"
