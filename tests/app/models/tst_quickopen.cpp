#include "app/base/settings.h"
#include "app/models/documentoperations.h"
#include "app/models/quickopenmodel.h"
#include "app/models/workspace.h"
#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/content/entity.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

using namespace vl;
using app::FuzzyText;
using app::QuickOpenModel;
using core::ContentId;
using core::Document;
using core::DocumentKind;
using core::Entity;

namespace {

struct Desk
{
    QTemporaryDir dir;
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    app::Workspace workspace;
    QuickOpenModel model{workspace, settings};
    QAbstractItemModelTester tester{&model};

    ContentId addDocument(const QString &title, const ContentId &parent = {},
                          const QString &body = {})
    {
        const auto id = app::DocumentOperations(workspace).addChild(DocumentKind::Prose, parent);
        auto &document = *workspace.project().find<Document>(id);
        workspace.push<core::SetDocumentTitleCommand>(document, title);
        workspace.push<core::SetDocumentBodyCommand>(document, body);
        return id;
    }
    ContentId addCategory(const QString &name, const ContentId &parent = {})
    {
        core::Category category{ContentId::create(), name, parent, {}};
        workspace.push<core::AddCategoryCommand>(workspace.project(), category);
        return category.id;
    }
    ContentId addEntity(const QString &name, const QStringList &aliases = {},
                        const ContentId &category = {})
    {
        auto entity = std::make_unique<Entity>(ContentId::create(), category, name);
        entity->setAliases(aliases);
        const ContentId id = entity->id();
        workspace.push<core::AddObjectCommand>(workspace.project(), std::move(entity));
        return id;
    }
    QStringList listed(const QString &query)
    {
        model.setQuery(query);
        QStringList list;
        for (int row = 0; row < model.rowCount(); ++row)
            list.append(model.index(row, 0).data().toString());
        return list;
    }
    QString detail(int row) const
    {
        return model.index(row, 0).data(QuickOpenModel::DetailRole).toString();
    }
};

QList<app::QuickOpenCommand> commands()
{
    return {
        {QStringLiteral("edit.preferences"),
         QStringLiteral("Preferences…"),
         QStringLiteral("settings, options"),
         QStringLiteral("Edit"),
         {},
         true,
         {}},
        {QStringLiteral("view.resetLayout"), QStringLiteral("Reset Layout"), {}, {}, {}, true, {}},
        {QStringLiteral("edit.redo"),
         QStringLiteral("Redo"),
         {},
         {},
         {},
         false,
         QStringLiteral("Nothing to redo")}};
}

} // namespace

class TestQuickOpen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ranks_data();
    void ranks();
    void marks_data();
    void marks();
    void hostileTextsMatchWithoutHarm();
    void findsByNameAliasAndPlace_data();
    void findsByNameAliasAndPlace();
    void followsTheHistory();
    void listsCommands();
    void listsTags();
    void listsHeadings_data();
    void listsHeadings();
    void headingsAreReached();
    void recentOnesComeFirst();
    void recentOnesAreRemembered();
    void longListsAreCut();
};

void TestQuickOpen::ranks_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QStringList>("texts"); // the better one first; those behind "|" do not match
    const auto row = [](const char *name, const char *query,
                        std::initializer_list<const char *> texts) {
        QStringList list;
        for (const char *text : texts)
            list.append(QString::fromUtf8(text));
        QTest::newRow(name) << QString::fromUtf8(query) << list;
    };
    row("whole before beginning", "ash", {"Ash", "Ashgrave", "The Ash", "Splash"});
    row("start of a word before the middle", "man", {"Man of War", "Old Man", "Roman"});
    row("initials before letters here and there", "hl",
        {"Harbour Light", "The Hall", "|", "Shale"});
    row("run before scattered", "dust", {"Dust", "Stardust", "|", "Dull blunt"});
    row("case and accents do not matter", "elodie", {"Élodie", "The Élodie Affair"});
    row("accents may be typed", "Élo", {"Elodie"});
    row("decomposed accents", "e\u0301lo", {"Élodie"});
    row("letters without decomposition", "lodz oresund", {"Øresund and Łódź"});
    row("greek final letters", "ΟΔΟΣ", {"οδος"});
    row("right to left", "שלום", {"שלום עולם", "|", "מולש"});
    row("emoji", "🐉", {"The 🐉 Wakes", "|", "The 🐈 Sleeps"});
    row("words in any order", "storm 12", {"Chapter 12: Storm", "|", "Chapter 1: Storm"});
    row("numbers behind letters", "c12", {"Chapter 12", "|", "Chapter 2"});
    row("wrong order of letters", "tac", {"Tac", "|", "Cat"});
    row("too far apart to be meant", "ilne", {"|", "Oil for the Drowned"});
}

void TestQuickOpen::ranks()
{
    QFETCH(QString, query);
    QFETCH(QStringList, texts);
    const QList<app::FuzzyWord> words = app::fuzzyWords(query);
    bool mayMatch = true;
    int last = std::numeric_limits<int>::max();
    for (const QString &text : std::as_const(texts)) {
        if (text == u"|") {
            mayMatch = false;
            continue;
        }
        int total = 0;
        bool matches = true;
        for (const app::FuzzyWord &word : words) {
            const std::optional<int> score = word.score(FuzzyText(text));
            matches = matches && score;
            total += score.value_or(0);
        }
        QVERIFY2(matches == mayMatch, qPrintable(text));
        QVERIFY2(!matches || total < last, qPrintable(text));
        last = total;
    }
}

void TestQuickOpen::marks_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("marked"); // "^" under each marked unit
    QTest::newRow("run") << "ash"
                         << "The Ashes"
                         << "    ^^^  ";
    QTest::newRow("initials") << "tld"
                              << "The Long Dark"
                              << "^   ^    ^   ";
    QTest::newRow("the later run is better") << "lamp"
                                             << "low amp lamp"
                                             << "        ^^^^";
    QTest::newRow("accents stand in their places") << "elo"
                                                   << "Élodie"
                                                   << "^^^   ";
    QTest::newRow("with a mistake") << "ilne"
                                    << "Ilen"
                                    << "^^^ ";
    QTest::newRow("none") << "xyz"
                          << "Ilen"
                          << "    ";
}

void TestQuickOpen::marks()
{
    QFETCH(QString, word);
    QFETCH(QString, text);
    QFETCH(QString, marked);
    QString found(text.size(), u' ');
    for (const int place : app::FuzzyWord(word).places(FuzzyText(text)))
        found[place] = u'^';
    QCOMPARE(found, marked);
}

void TestQuickOpen::hostileTextsMatchWithoutHarm()
{
    const QString loneHalves = QStringLiteral("a") + QChar(0xd83d) + u'b' + QChar(0xdc09);
    const QStringList texts{{},
                            QString(100000, u'a'),
                            loneHalves,
                            QString(300, QChar(0x301)),
                            QStringLiteral("\n\t\u2028 "),
                            QString(QChar(0)) + u'x'};
    for (const QString &query : texts)
        for (const QString &text : texts)
            for (const app::FuzzyWord &word : app::fuzzyWords(query)) {
                const FuzzyText prepared(text);
                const QList<int> places = word.places(prepared);
                QVERIFY(places.isEmpty() || places.last() < text.size());
                QVERIFY(std::is_sorted(places.begin(), places.end()));
            }
    // A sign of two units is matched whole or not at all.
    QVERIFY(!app::FuzzyWord(u"🐉").score(FuzzyText(u"🐈 x 𐐉")));
}

void TestQuickOpen::findsByNameAliasAndPlace_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("detail");
    QTest::newRow("title") << "arriv"
                           << "Arrival"
                           << "Book One › Chapter 1";
    QTest::newRow("parent tells twins apart") << "storm ch2"
                                              << "Storm"
                                              << "Book One › Chapter 2";
    QTest::newRow("name") << "mara"
                          << "Mara Venn"
                          << "People › Smugglers";
    QTest::newRow("alias") << "hollow q"
                           << "Mara Venn"
                           << "People › Smugglers – also “The Hollow Queen”";
    QTest::newRow("category") << "smugglers venn"
                              << "Mara Venn"
                              << "People › Smugglers";
    QTest::newRow("mistyped") << "arrvial"
                              << "Arrival"
                              << "Book One › Chapter 1";
    QTest::newRow("only mistyped words of some length") << "vz"
                                                        << ""
                                                        << "";
    QTest::newRow("parents alone find nothing") << "smugglers people"
                                                << ""
                                                << "";
}

void TestQuickOpen::findsByNameAliasAndPlace()
{
    QFETCH(QString, query);
    QFETCH(QString, first);
    QFETCH(QString, detail);
    Desk desk;
    const ContentId book = desk.addDocument(QStringLiteral("Book One"));
    const ContentId one = desk.addDocument(QStringLiteral("Chapter 1"), book);
    const ContentId two = desk.addDocument(QStringLiteral("Chapter 2"), book);
    desk.addDocument(QStringLiteral("Arrival"), one);
    desk.addDocument(QStringLiteral("Storm"), one);
    desk.addDocument(QStringLiteral("Storm"), two);
    const ContentId people = desk.addCategory(QStringLiteral("People"));
    desk.addEntity(QStringLiteral("Mara Venn"), {QStringLiteral("The Hollow Queen")},
                   desk.addCategory(QStringLiteral("Smugglers"), people));
    desk.model.start({});
    const QStringList found = desk.listed(query);
    QCOMPARE(found.value(0), first);
    if (!first.isEmpty())
        QCOMPARE(desk.detail(0), detail);
}

void TestQuickOpen::followsTheHistory()
{
    Desk desk;
    const ContentId scene = desk.addDocument(QStringLiteral("Lantern"));
    const ContentId category = desk.addCategory(QStringLiteral("Places"));
    const ContentId entity = desk.addEntity(QStringLiteral("Lantern House"), {}, category);
    desk.model.start({});
    QCOMPARE(desk.listed(QStringLiteral("lantern")).size(), 2);

    desk.workspace.push<core::SetDocumentTitleCommand>(
        *desk.workspace.project().find<Document>(scene), QStringLiteral("Candle"));
    QCOMPARE(desk.listed(QStringLiteral("lantern")), QStringList{QStringLiteral("Lantern House")});
    QCOMPARE(desk.listed(QStringLiteral("candle")), QStringList{QStringLiteral("Candle")});
    desk.workspace.push<core::RenameCategoryCommand>(desk.workspace.project(), category,
                                                     QStringLiteral("Towers"));
    QCOMPARE(desk.listed(QStringLiteral("house towers")).size(), 1);
    desk.workspace.push<core::RemoveObjectCommand>(desk.workspace.project(), scene);
    QCOMPARE(desk.listed(QStringLiteral("candle")), QStringList());
    QCOMPARE(desk.listed(QStringLiteral("house")).size(), 1);
    for (int i = 0; i < 3; ++i)
        desk.workspace.undo();
    QCOMPARE(desk.listed(QStringLiteral("lantern")).size(), 2);
    desk.workspace.push<core::SetEntityAliasesCommand>(
        *desk.workspace.project().find<Entity>(entity), QStringList{QStringLiteral("Beacon")});
    QCOMPARE(desk.listed(QStringLiteral("beacon")).size(), 1);

    desk.workspace.replaceProject(std::make_unique<app::OpenProject>());
    QCOMPARE(desk.listed(QStringLiteral("lantern")), QStringList());
}

void TestQuickOpen::listsCommands()
{
    Desk desk;
    desk.addDocument(QStringLiteral("Settings of the Play"));
    desk.model.start(commands());
    QCOMPARE(desk.listed(QStringLiteral(">")).size(), 3);
    QCOMPARE(desk.listed(QStringLiteral(">")).last(), QStringLiteral("Redo")); // not to be had
    QCOMPARE(desk.listed(QStringLiteral("> reset")), QStringList{QStringLiteral("Reset Layout")});
    QCOMPARE(desk.listed(QStringLiteral(">edit.pref")).value(0), QStringLiteral("Preferences…"));
    QCOMPARE(desk.listed(QStringLiteral(">settings")), QStringList{QStringLiteral("Preferences…")});
    QCOMPARE(desk.listed(QStringLiteral("settings")).size(), 2);

    desk.listed(QStringLiteral(">redo"));
    QCOMPARE(desk.detail(0), QStringLiteral("Nothing to redo"));
    QCOMPARE(desk.model.choose(0).next, QuickOpenModel::Choice::Next::Nothing);
    desk.listed(QStringLiteral(">layout"));
    const QuickOpenModel::Choice choice = desk.model.choose(0);
    QCOMPARE(choice.next, QuickOpenModel::Choice::Next::Trigger);
    QCOMPARE(choice.text, QStringLiteral("view.resetLayout"));
    QCOMPARE(desk.model.choose(5).next, QuickOpenModel::Choice::Next::Nothing);
    desk.model.start(commands());
    QCOMPARE(desk.listed(QStringLiteral(">")).first(), QStringLiteral("Reset Layout"));
}

void TestQuickOpen::listsTags()
{
    Desk desk;
    const ContentId a = desk.addDocument(QStringLiteral("Arrival"));
    const ContentId b = desk.addEntity(QStringLiteral("Lantern"));
    core::Project &project = desk.workspace.project();
    desk.workspace.push<core::SetObjectTagsCommand>(
        *project.find(a), core::StringSet{QStringLiteral("act/one"), QStringLiteral("magic")});
    desk.workspace.push<core::SetObjectTagsCommand>(*project.find(b),
                                                    core::StringSet{QStringLiteral("magic")});
    desk.model.start({});
    QCOMPARE(desk.listed(QStringLiteral("#")),
             (QStringList{QStringLiteral("act/one"), QStringLiteral("magic")}));
    QCOMPARE(desk.listed(QStringLiteral("#mag")), QStringList{QStringLiteral("magic")});
    const QuickOpenModel::Choice choice = desk.model.choose(0);
    QCOMPARE(choice.next, QuickOpenModel::Choice::Next::Query);
    QCOMPARE(desk.listed(choice.text),
             (QStringList{QStringLiteral("Arrival"), QStringLiteral("Lantern")}));
    QCOMPARE(desk.listed(choice.text + QStringLiteral("lan")),
             QStringList{QStringLiteral("Lantern")});
    QCOMPARE(desk.listed(QStringLiteral("#act/one/")), QStringList{QStringLiteral("Arrival")});
    QCOMPARE(desk.listed(QStringLiteral("#none")), QStringList());
    QCOMPARE(desk.model.emptyText(), QStringLiteral("No tag matches."));
}

void TestQuickOpen::listsHeadings_data()
{
    QTest::addColumn<DocumentKind>("kind");
    QTest::addColumn<QString>("body");
    QTest::addColumn<QStringList>("headings"); // level, position, text
    const auto list = [](std::initializer_list<const char *> texts) {
        QStringList headings;
        for (const char *text : texts)
            headings.append(QString::fromUtf8(text));
        return headings;
    };
    QTest::newRow("none") << DocumentKind::Prose << "text\n#tag\n####### seven\n#" << QStringList();
    QTest::newRow("levels") << DocumentKind::Prose << "# A\ntext\n\n### B c "
                            << list({"1 0 A", "3 10 B c"});
    QTest::newRow("other line ends")
        << DocumentKind::Prose << "x\r\n# A\r\n# B\r# C" << list({"1 3 A", "1 8 B", "1 12 C"});
    QTest::newRow("prose has no scene headings")
        << DocumentKind::Prose << "INT. HOUSE" << QStringList();
    QTest::newRow("screenplay") << DocumentKind::Screenplay
                                << "# Act\nINT. HOUSE - DAY\n...and\n.FLASH\nint/ext. car\nINTRO x"
                                << list({"1 0 Act", "3 6 INT. HOUSE - DAY", "3 30 FLASH",
                                         "3 37 int/ext. car"});
}

void TestQuickOpen::listsHeadings()
{
    QFETCH(DocumentKind, kind);
    QFETCH(QString, body);
    QFETCH(QStringList, headings);
    QStringList found;
    for (const app::TextHeading &heading : app::textHeadings(body, kind))
        found.append(
            QStringLiteral("%1 %2 %3").arg(heading.level).arg(heading.position).arg(heading.text));
    QCOMPARE(found, headings);
}

void TestQuickOpen::headingsAreReached()
{
    Desk desk;
    const ContentId id =
        desk.addDocument(QStringLiteral("Scene"), {}, QStringLiteral("One\n# Two\n## Three"));
    desk.workspace.select(id);
    desk.workspace.select(desk.addEntity(QStringLiteral("Lamp"))); // the text stays where it was
    desk.model.start({});
    QCOMPARE(desk.listed(QStringLiteral("@")),
             (QStringList{QStringLiteral("Two"), QStringLiteral("Three")}));
    QCOMPARE(desk.listed(QStringLiteral("@thr")), QStringList{QStringLiteral("Three")});
    QSignalSpy revealed(&desk.workspace, &app::Workspace::revealRequested);
    QCOMPARE(desk.model.choose(0).next, QuickOpenModel::Choice::Next::ShowText);
    QCOMPARE(revealed.size(), 1);
    QCOMPARE(revealed.first().at(1).toLongLong(), 10);
    QCOMPARE(revealed.first().at(2).toLongLong(), 8);
    QCOMPARE(desk.workspace.selection(), QList<ContentId>{id});
}

void TestQuickOpen::recentOnesComeFirst()
{
    Desk desk;
    const ContentId first = desk.addDocument(QStringLiteral("Storm at Sea"));
    const ContentId second = desk.addDocument(QStringLiteral("Storm on Land"));
    desk.model.start({});
    QCOMPARE(desk.listed({}).first(), QStringLiteral("Storm at Sea"));
    desk.workspace.select(second);
    desk.workspace.select(first);
    desk.model.start({});
    desk.workspace.select(second);
    desk.model.start({});
    // The first row leads back to where the user was before.
    QCOMPARE(desk.listed({}).first(), QStringLiteral("Storm at Sea"));
    QCOMPARE(desk.listed(QStringLiteral("storm")).first(), QStringLiteral("Storm on Land"));
    // It does not get ahead of what matches far better.
    desk.addDocument(QStringLiteral("Last"));
    desk.model.start({});
    QCOMPARE(desk.listed(QStringLiteral("last")).first(), QStringLiteral("Last"));
}

void TestQuickOpen::recentOnesAreRemembered()
{
    Desk desk;
    desk.addDocument(QStringLiteral("Alpha"));
    const ContentId omega = desk.addDocument(QStringLiteral("Omega"));
    const QString path = desk.dir.filePath(QStringLiteral("project"));
    QVERIFY(desk.workspace.current().saveAsFolder(path));
    desk.settings.addRecentProject(path);
    desk.workspace.select(omega);
    desk.workspace.replaceProject(std::make_unique<app::OpenProject>());
    desk.model.start({});
    QCOMPARE(desk.listed({}), QStringList());

    auto opened = app::OpenProject::open(path);
    QVERIFY(opened);
    desk.workspace.replaceProject(*std::move(opened));
    desk.model.start({});
    QCOMPARE(desk.listed({}).first(), QStringLiteral("Omega"));
}

void TestQuickOpen::longListsAreCut()
{
    Desk desk;
    for (int i = 0; i < QuickOpenModel::maximumRows + 50; ++i)
        desk.addEntity(QStringLiteral("Scene %1").arg(i));
    desk.model.start({});
    for (const QString &query : {QString(), QStringLiteral("scene")}) {
        desk.model.setQuery(query);
        QCOMPARE(desk.model.rowCount(), QuickOpenModel::maximumRows);
        QCOMPARE(desk.model.totalCount(), qsizetype(QuickOpenModel::maximumRows + 50));
    }
    QCOMPARE(desk.listed(QStringLiteral("scene")).at(2), QStringLiteral("Scene 2"));
}

QTEST_GUILESS_MAIN(TestQuickOpen)
#include "tst_quickopen.moc"
