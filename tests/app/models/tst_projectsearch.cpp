#include "app/base/settings.h"
#include "app/models/projectsearchmodel.h"
#include "app/models/workspace.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "core/content/language.h"
#include "core/content/randomtable.h"
#include "core/content/spreadsheet.h"
#include "core/content/statblock.h"
#include "tests/support/fingerprint.h"
#include "tests/support/projectbuilder.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

using namespace vl;
using app::ProjectSearchModel;
using app::SearchMatch;
using app::SearchOptions;
using app::SearchPattern;
using core::ContentId;
using core::Document;

namespace {

struct Desk
{
    app::Workspace workspace;
    ProjectSearchModel model{workspace};
    QAbstractItemModelTester tester{&model};

    Document &addDocument(const QString &title, const QString &body)
    {
        auto document =
            std::make_unique<Document>(ContentId::create(), core::DocumentKind::Prose, title);
        document->setBody(body);
        document->setSortIndex(int(workspace.project().size()));
        Document &added = *document;
        workspace.push<core::AddObjectCommand>(workspace.project(), std::move(document));
        return added;
    }
    bool search(const SearchOptions &options, app::SearchScopes scopes = app::everywhere)
    {
        model.start(options, scopes);
        return QTest::qWaitFor([this] { return !model.isRunning(); });
    }
    bool search(const char *pattern) { return search(SearchOptions{QString::fromUtf8(pattern)}); }
    bool replace(const SearchOptions &options, const QString &by)
    {
        model.setReplacement(by, false);
        if (!search(options))
            return false;
        model.replaceTicked();
        return QTest::qWaitFor([this] { return !model.isRunning(); });
    }
    /// Headers as they are, places indented with the match in brackets.
    QStringList rows() const
    {
        QStringList list;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row);
            if (index.data(ProjectSearchModel::IsHeaderRole).toBool())
                list.append(index.data().toString());
            else
                list.append(QStringLiteral(" %1[%2]%3")
                                .arg(index.data(ProjectSearchModel::BeforeRole).toString(),
                                     index.data(ProjectSearchModel::MatchRole).toString(),
                                     index.data(ProjectSearchModel::AfterRole).toString()));
        }
        return list;
    }
};

/// The text with each match in brackets, or why there are none.
QString marked(const SearchOptions &options, const QString &text)
{
    const app::Result<SearchPattern> pattern = SearchPattern::compile(options);
    if (!pattern)
        return QStringLiteral("invalid");
    QString result;
    qsizetype at = 0;
    const SearchPattern::Outcome outcome = pattern->find(text, [&](const SearchMatch &match) {
        result += QStringView(text).mid(at, match.position - at);
        result += u'[' + text.mid(match.position, match.length) + u']';
        at = match.position + match.length;
        return true;
    });
    if (outcome == SearchPattern::Outcome::TooComplex)
        return QStringLiteral("too complex");
    return result += QStringView(text).mid(at);
}

} // namespace

class TestProjectSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data();
    void matches();
    void hostileExpressionsEnd_data();
    void hostileExpressionsEnd();
    void longTextsAreSearchedToTheirEnds();
    void replacements_data();
    void replacements();
    void everyTextOfEveryKindIsFound();
    void everyTextThatMayBeIsReplaced();
    void scopes_data();
    void scopes();
    void groupsAndContext();
    void replacingIsOneStep();
    void untickedAndChangedPlacesAreLeftAlone();
    void fixedTextsAreShownButStay();
    void whatIsFoundIsReached();
    void searchesAreStoppedAndReplaced();
    void tooMuchIsCut();
};

void TestProjectSearch::matches_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("flags"); // c case, w whole words, r expression
    QTest::addColumn<QString>("found");
    const auto row = [](const char *name, const char *pattern, const char *flags,
                        const char *found) {
        QTest::newRow(name) << QString::fromUtf8(pattern) << QString::fromUtf8(flags)
                            << QString::fromUtf8(found);
    };
    row("any case", "lamp", "", "A [Lamp], [LAMP]s, c[lamp]");
    row("same case", "Lamp", "c", "A [Lamp], LAMPs, clamp");
    row("whole words", "lamp", "w", "a [lamp], lamps, clamp, lamp2, la\u0301mp [lamp]");
    row("whole words with signs", "-x-", "w", "a[-x-] b[-x-]c");
    row("accents count", "elo", "", "Élo [elo]");
    row("other alphabets", "ΟΔΌΣ", "", "[οδός] [ΟΔΌΣ]");
    row("right to left", "שלום", "w", "[שלום] עולם, השלום");
    row("emoji", "🐉", "", "🐈[🐉]x[🐉]");
    row("no sign of its own", "a.c*", "", "abc [a.c*]");
    row("straight finds typographic", "don't", "", "[don't] [don’t]");
    row("typographic finds itself", "don’t", "", "don't [don’t]");
    row("quotation marks", "\"Yes", "", "[\"Yes] [“Yes] [„Yes]");
    row("no-break blanks", "10 km", "", "[10 km] [10\u00a0km] 10km");
    row("expression", "l(a|i)mp", "r", "[lamp] [LIMP] lump");
    row("expression by lines", "^- .*$", "r", "a\n[- b]\n[- c]");
    row("expression over lines", "b\\n.", "r", "a[b\nc]");
    row("whole words of an expression", "a|bc", "rw", "[a] ab [bc] abc");
    row("empty matches are none", "x*", "r", "a[xx]b🐉[x]");
    row("unicode classes", "\\w+", "r", "[žluťoučký] [кůň]");
    row("incomplete", "(a", "r", "invalid");
    row("no such class", "[[:x:]]", "r", "invalid");
    row("too large", "(?:a{1000}){1000}", "r", "invalid");
}

void TestProjectSearch::matches()
{
    QFETCH(QString, pattern);
    QFETCH(QString, flags);
    QFETCH(QString, found);
    SearchOptions options{pattern, flags.contains(u'c'), flags.contains(u'w'),
                          flags.contains(u'r')};
    QString text = found;
    if (!pattern.contains(u'['))
        text.remove(u'[').remove(u']');
    QCOMPARE(marked(options, text), found);
}

void TestProjectSearch::hostileExpressionsEnd_data()
{
    QTest::addColumn<QString>("pattern");
    // None of them has a letter that it cannot do without, by which it would be given up at once.
    QTest::newRow("nested repeats") << "(a+)+[bc]";
    QTest::newRow("overlapping choices") << "(a|aa|a*)*$[bc]";
    QTest::newRow("any of any") << "(.*)*(.*)*(.*)*[xy]";
    QTest::newRow("back reference") << "(a*)*\\1[bc]";
    QTest::newRow("look ahead") << "(?=(a+)+$)[bc]";
    QTest::newRow("each place to the end") << "a[\\s\\S]*?[bc]";
    QTest::newRow("recursion") << "(a(?R)?a?)+[bc]";
    QTest::newRow("without compiling") << "(*NO_JIT)(a+)+[bc]";
}

void TestProjectSearch::hostileExpressionsEnd()
{
    QFETCH(QString, pattern);
    const QString text(300000, u'a');
    const auto compiled = SearchPattern::compile({pattern, false, false, true});
    QVERIFY(compiled);
    int places = 0;
    compiled->find(text, [&](const SearchMatch &) { return ++places < 5; });
    QCOMPARE(places, 0);
}

void TestProjectSearch::longTextsAreSearchedToTheirEnds()
{
    // Stretches end with paragraphs; one sign more or less must not lose or move a match.
    for (const qsizetype length :
         {SearchPattern::stretch - 3, SearchPattern::stretch, SearchPattern::longestStretch + 5}) {
        const QString paragraph = QString(length, u'x') + QStringLiteral("lamp 🐉");
        QString text;
        QList<qsizetype> places;
        for (int i = 0; i < 5; ++i) {
            places.append(text.size() + length);
            text += paragraph + u'\n';
        }
        for (const bool isExpression : {false, true}) {
            QList<qsizetype> found;
            const auto pattern =
                SearchPattern::compile({QStringLiteral("lamp"), false, false, isExpression});
            QVERIFY(pattern);
            pattern->find(text, [&found](const SearchMatch &match) {
                found.append(match.position);
                return true;
            });
            QCOMPARE(found, places);
        }
    }
    // A lone half of a sign in a text does not hide the rest.
    const QString broken = QStringLiteral("lamp ") + QChar(0xd83d) + QStringLiteral(" lamp");
    QCOMPARE(marked({QStringLiteral("lamp")}, broken).count(u'['), 2);
}

void TestProjectSearch::replacements_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("flags"); // r expression, k keep case
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("plain") << "a"
                           << "b$1\\n"
                           << ""
                           << "a"
                           << "b$1\\n";
    QTest::newRow("groups") << "(\\w+) (\\w+)"
                            << "\\2 $1"
                            << "r"
                            << "one two"
                            << "two one";
    QTest::newRow("whole match") << "l.mp"
                                 << "<$&\\0>"
                                 << "r"
                                 << "lamp"
                                 << "<lamplamp>";
    QTest::newRow("line end and signs") << "a"
                                        << "\\n\\t$$\\\\$"
                                        << "r"
                                        << "a"
                                        << "\n\t$\\$";
    QTest::newRow("no such group") << "(a)"
                                   << "x$2y\\15"
                                   << "r"
                                   << "a"
                                   << "xya5";
    QTest::newRow("case of a name") << "ilen"
                                    << "mara"
                                    << "k"
                                    << "Ilen"
                                    << "Mara";
    QTest::newRow("capitals") << "ilen"
                              << "mara"
                              << "k"
                              << "ILEN"
                              << "MARA";
    QTest::newRow("small letters") << "ilen"
                                   << "Mara"
                                   << "k"
                                   << "ilen"
                                   << "Mara";
    QTest::newRow("one capital") << "i"
                                 << "you"
                                 << "k"
                                 << "I"
                                 << "You";
}

void TestProjectSearch::replacements()
{
    QFETCH(QString, pattern);
    QFETCH(QString, replacement);
    QFETCH(QString, flags);
    QFETCH(QString, before);
    QFETCH(QString, after);
    const bool isExpression = flags.contains(u'r');
    const auto compiled = SearchPattern::compile({pattern, false, false, isExpression});
    QVERIFY(compiled);
    QString replaced;
    compiled->find(before, [&](const SearchMatch &match) {
        replaced =
            app::replacementFor(match, before, replacement, isExpression, flags.contains(u'k'));
        return true;
    });
    QCOMPARE(replaced, after);
}

void TestProjectSearch::everyTextOfEveryKindIsFound()
{
    // Each text that a search hands out is found by it, in the object that it belongs to.
    const std::unique_ptr<core::Project> project = test::fullProject();
    const std::vector<app::SearchText> texts = app::searchTexts(*project, app::everywhere);
    QSet<int> kinds;
    for (const app::SearchText &text : texts) {
        QVERIFY(!text.text.isEmpty());
        if (const core::ContentObject *object = project->find(text.target.id))
            kinds.insert(int(object->kind()));
    }
    QCOMPARE(size_t(kinds.size()), core::contentKindTexts.size());
    QStringList wanted;
    for (const Document *document : project->all<Document>())
        for (const core::Footnote &footnote : document->footnotes())
            wanted.append(footnote.text);
    for (const auto *language : project->all<core::Language>())
        for (const core::LexiconEntry &entry : language->data().lexicon)
            wanted.append(entry.gloss);
    for (const auto *block : project->all<core::StatBlock>())
        for (const core::StatBlockAction &action : block->data().actions)
            wanted.append(action.text);
    for (const auto *sheet : project->all<core::Spreadsheet>())
        for (const auto &[position, cell] : sheet->grid().cells)
            wanted.append(cell);
    for (const core::PlotThread &thread : project->plotThreads())
        wanted.append(thread.description);
    for (const ContentId &id : project->taxonomy().ids())
        wanted.append(project->taxonomy().find(id)->name);
    wanted.removeAll(QString());
    QVERIFY(wanted.size() > 10);
    for (const QString &text : std::as_const(wanted))
        QVERIFY2(std::any_of(texts.begin(), texts.end(),
                             [&text](const app::SearchText &found) { return found.text == text; }),
                 qPrintable(text));
}

void TestProjectSearch::everyTextThatMayBeIsReplaced()
{
    auto project = test::fullProject();
    const auto before = app::searchTexts(*project, app::everywhere);
    std::map<ContentId, app::SearchTarget> targets;
    std::vector<std::unique_ptr<core::Command>> commands;
    const auto print = test::fingerprint(*project);
    for (size_t i = 0; i < before.size();) {
        const app::SearchTarget target = before[i].target;
        std::map<int, QString> changed;
        for (; i < before.size() && before[i].target == target; ++i)
            changed[before[i].number] = before[i].text + QStringLiteral("!");
        for (auto &command : app::replacementCommands(*project, target, changed)) {
            command->redo();
            commands.push_back(std::move(command));
        }
    }
    const auto after = app::searchTexts(*project, app::everywhere);
    QCOMPARE(after.size(), before.size());
    int replaced = 0;
    for (const app::SearchText &text : before) {
        const auto now = app::textsOf(*project, text.target);
        const QString &is = now.at(size_t(text.number)).text;
        QCOMPARE(is, text.isReplaceable ? text.text + u'!' : text.text);
        replaced += text.isReplaceable;
    }
    QVERIFY(replaced > 40);
    while (!commands.empty()) {
        commands.back()->undo();
        commands.pop_back();
    }
    QVERIFY(test::fingerprint(*project) == print);
}

void TestProjectSearch::scopes_data()
{
    QTest::addColumn<int>("scope");
    QTest::addColumn<int>("places");
    using S = app::SearchScope;
    QTest::newRow("manuscript") << int(S::Manuscript) << 2;
    QTest::newRow("notes") << int(S::Notes) << 1;
    QTest::newRow("synopses") << int(S::Synopses) << 1;
    QTest::newRow("codex") << int(S::Codex) << 2;
    QTest::newRow("comments") << int(S::Comments) << 0;
    QTest::newRow("everywhere") << int(app::everywhere) << 6;
}

void TestProjectSearch::scopes()
{
    QFETCH(int, scope);
    QFETCH(int, places);
    Desk desk;
    Document &scene = desk.addDocument(QStringLiteral("Lamp"), QStringLiteral("a lamp"));
    scene.setSynopsis(QStringLiteral("lamps"));
    desk.addDocument({}, QStringLiteral("lamp")).setDocumentKind(core::DocumentKind::Note);
    auto entity =
        std::make_unique<core::Entity>(ContentId::create(), ContentId(), QStringLiteral("Lamp"));
    entity->setAliases({QStringLiteral("the Lamplighter")});
    desk.workspace.push<core::AddObjectCommand>(desk.workspace.project(), std::move(entity));
    QVERIFY(desk.search({QStringLiteral("lamp")}, app::SearchScopes(scope)));
    QCOMPARE(desk.model.placeCount(), places);
}

void TestProjectSearch::groupsAndContext()
{
    Desk desk;
    desk.addDocument(QStringLiteral("One"),
                     QStringLiteral("first line\n\tThe lamp and\ta lamp.\nlast"));
    desk.addDocument(QStringLiteral("Two"), QStringLiteral("none"));
    const QString words = QStringLiteral("many words come before the place where ");
    desk.addDocument(QStringLiteral("Three"), words + words + QStringLiteral("a lamp stands"));
    QVERIFY(desk.search("lamp"));
    QCOMPARE(desk.rows(),
             (QStringList{QStringLiteral("One"), QStringLiteral("  The [lamp] and a lamp."),
                          QStringLiteral("  The lamp and a [lamp]."), QStringLiteral("Three"),
                          QStringLiteral(" …words come before the place where a [lamp] stands")}));
    QCOMPARE(desk.model.placeCount(), 3);
    QCOMPARE(desk.model.objectCount(), 2);
    QVERIFY(desk.search("line\n\tThe")); // a place may go over lines
    QCOMPARE(desk.rows().at(1), QStringLiteral(" first [line↵ The] lamp and a lamp."));
    QVERIFY(desk.search("nowhere"));
    QCOMPARE(desk.rows(), QStringList());
}

void TestProjectSearch::replacingIsOneStep()
{
    Desk desk;
    Document &one = desk.addDocument(QStringLiteral("Lamp"), QStringLiteral("lamp, Lamp; lamps"));
    Document &two = desk.addDocument(QStringLiteral("Two"), QStringLiteral("no light"));
    one.setSynopsis(QStringLiteral("the lamp"));
    const auto before = test::fingerprint(desk.workspace.project());
    const auto steps = desk.workspace.history().undoCount();
    QVERIFY(desk.replace({QStringLiteral("lamp")}, QStringLiteral("lantern")));
    QCOMPARE(one.title(), QStringLiteral("lantern"));
    QCOMPARE(one.body(), QStringLiteral("lantern, lantern; lanterns"));
    QCOMPARE(one.synopsis(), QStringLiteral("the lantern"));
    QCOMPARE(two.body(), QStringLiteral("no light"));
    QCOMPARE(desk.workspace.history().undoCount(), steps + 1);
    QCOMPARE(desk.workspace.history().undoText(), QStringLiteral("Replace in project"));
    QCOMPARE(desk.model.placeCount(), 0); // it was searched again
    desk.workspace.undo();
    QVERIFY(test::fingerprint(desk.workspace.project()) == before);
    // Nothing to replace is no step.
    QVERIFY(desk.replace({QStringLiteral("nowhere")}, QStringLiteral("x")));
    QCOMPARE(desk.workspace.history().undoCount(), steps);
}

void TestProjectSearch::untickedAndChangedPlacesAreLeftAlone()
{
    Desk desk;
    Document &one = desk.addDocument(QStringLiteral("One"), QStringLiteral("lamp lamp lamp"));
    Document &two = desk.addDocument(QStringLiteral("Two"), QStringLiteral("lamp"));
    desk.model.setReplacement(QStringLiteral("sun"), false);
    QVERIFY(desk.search("lamp"));
    QCOMPARE(desk.model.tickedCount(), 4);
    const auto state = [&](int row) {
        return desk.model.index(row).data(Qt::CheckStateRole).toInt();
    };
    QVERIFY(desk.model.setData(desk.model.index(2), Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(state(0), int(Qt::PartiallyChecked));
    QCOMPARE(desk.model.tickedCount(), 3);

    // What was changed since is not replaced by what was seen before.
    QSignalSpy outdated(&desk.model, &ProjectSearchModel::outdated);
    desk.workspace.push<core::SetDocumentBodyCommand>(two, QStringLiteral("a lamp"));
    QCOMPARE(outdated.size(), 1);
    ProjectSearchModel::Replaced replaced = desk.model.replaceTicked();
    QCOMPARE(replaced.places, 2);
    QCOMPARE(replaced.objects, 1);
    QCOMPARE(replaced.leftAlone, 1);
    QCOMPARE(one.body(), QStringLiteral("sun lamp sun"));
    QCOMPARE(two.body(), QStringLiteral("a lamp"));
    QTRY_VERIFY(!desk.model.isRunning());
    QCOMPARE(desk.model.placeCount(), 2);

    // A tick that was taken away stays away when the same is searched again.
    desk.model.tickAll(false);
    QVERIFY(desk.model.setData(desk.model.index(0), Qt::Checked, Qt::CheckStateRole));
    desk.model.restart();
    QTRY_VERIFY(!desk.model.isRunning());
    QCOMPARE(desk.model.tickedCount(), 1);
    QCOMPARE(state(0), int(Qt::Checked));
}

void TestProjectSearch::fixedTextsAreShownButStay()
{
    Desk desk;
    core::Project &project = desk.workspace.project();
    project.setPlotThreads({{QStringLiteral("Lamp thread"), QStringLiteral("a lamp"), {}, {}}});
    core::Category category{ContentId::create(), QStringLiteral("People"), {}, {}};
    category.fields = {
        {QStringLiteral("k"), QStringLiteral("Kin"), core::FieldType::Reference, false, {}, {}},
        {QStringLiteral("c"), QStringLiteral("Sort"), core::FieldType::Choice, false, {}, {}}};
    project.editTaxonomy().add(category);
    auto entity = std::make_unique<core::Entity>(ContentId::create(), category.id, QString());
    entity->setValue(QStringLiteral("k"), QStringLiteral("lamp"));
    entity->setValue(QStringLiteral("c"), QStringLiteral("lamp"));
    project.add(std::move(entity));
    desk.model.setReplacement(QStringLiteral("sun"), false);
    QVERIFY(desk.search("lamp"));
    QCOMPARE(desk.model.placeCount(), 3); // ids are not searched
    QCOMPARE(desk.model.tickedCount(), 1);
    desk.model.replaceTicked();
    QCOMPARE(project.plotThreads().first().name, QStringLiteral("Lamp thread"));
    QCOMPARE(project.plotThreads().first().description, QStringLiteral("a sun"));
}

void TestProjectSearch::whatIsFoundIsReached()
{
    Desk desk;
    const Document &one = desk.addDocument(QStringLiteral("One"), QStringLiteral("a lamp"));
    QVERIFY(desk.search("lamp"));
    QSignalSpy revealed(&desk.workspace, &app::Workspace::revealRequested);
    QCOMPARE(desk.model.open(1), ProjectSearchModel::Kind::Document);
    QCOMPARE(revealed.size(), 1);
    QCOMPARE(revealed.first().at(1).toInt(), 2);
    QCOMPARE(revealed.first().at(2).toInt(), 4);
    QCOMPARE(desk.workspace.selection(), QList<ContentId>{one.id()});
    QVERIFY(!desk.model.open(7));
    desk.workspace.push<core::RemoveObjectCommand>(desk.workspace.project(), one.id());
    QVERIFY(!desk.model.open(1));
}

void TestProjectSearch::searchesAreStoppedAndReplaced()
{
    Desk desk;
    for (int i = 0; i < 40; ++i)
        desk.addDocument(QStringLiteral("D"), QStringLiteral("lamp aaaa\n").repeated(5000));
    desk.model.start({QStringLiteral("lamp")}, app::everywhere);
    desk.model.start({QStringLiteral("(a*)+\\n"), false, false, true}, app::everywhere);
    desk.model.cancel();
    QVERIFY(!desk.model.isRunning());
    QVERIFY(!desk.model.error().isEmpty());
    // The one that is asked for last is the one that is answered.
    desk.model.start({QStringLiteral("aaaa")}, app::everywhere);
    QVERIFY(desk.search("nowhere"));
    QCOMPARE(desk.model.rowCount(), 0);
    QVERIFY(desk.model.error().isEmpty());
    QVERIFY(desk.search({QStringLiteral("(a"), false, false, true}));
    QVERIFY(!desk.model.error().isEmpty());
    // Another project is another search.
    QVERIFY(desk.search("lamp"));
    QVERIFY(desk.model.rowCount() > 0);
    desk.workspace.replaceProject(std::make_unique<app::OpenProject>());
    QCOMPARE(desk.model.rowCount(), 0);
}

void TestProjectSearch::tooMuchIsCut()
{
    Desk desk;
    desk.addDocument(QStringLiteral("D"),
                     QStringLiteral("e").repeated(ProjectSearchModel::maximumPlaces + 1));
    QVERIFY(desk.search("e"));
    QVERIFY(desk.model.isCut());
    QCOMPARE(desk.model.placeCount(), ProjectSearchModel::maximumPlaces);
}

QTEST_GUILESS_MAIN(TestProjectSearch)
#include "tst_projectsearch.moc"
