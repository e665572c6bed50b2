#include "app/models/documentoperations.h"
#include "app/models/documentsmodel.h"
#include "app/models/workspace.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"

#include <QtCore/QMimeData>
#include <QtCore/QRandomGenerator>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

using namespace vl;
using app::DocumentOperations;
using app::DocumentsModel;
using core::ContentId;
using core::Document;
using core::DocumentKind;

namespace {

/// A workspace with documents given as titles, one a line, indented under their parents; a title
/// that begins with "*" is a note. Each body has as many words as its title has letters.
struct Desk
{
    app::Workspace workspace;
    QHash<QString, ContentId> ids;

    explicit Desk(const QString &outline)
    {
        QList<ContentId> path;
        QHash<ContentId, int> count;
        for (const QString &line : outline.split(u'\n', Qt::SkipEmptyParts)) {
            const QString title = line.trimmed();
            const auto depth = line.indexOf(title);
            path.resize(depth);
            const ContentId parent = path.isEmpty() ? ContentId() : path.back();
            const bool isNote = title.startsWith(u'*');
            auto document = std::make_unique<Document>(
                ContentId::create(), isNote ? DocumentKind::Note : DocumentKind::Prose, title);
            document->setParentId(parent);
            document->setSortIndex(count[parent]++);
            document->setBody(QStringLiteral("w ").repeated(title.size()));
            ids.insert(title, document->id());
            path.append(document->id());
            workspace.project().add(std::move(document));
        }
    }

    QList<ContentId> all(const QString &titles) const
    {
        QList<ContentId> list;
        for (const QString &title : titles.split(u' ', Qt::SkipEmptyParts))
            list.append(ids.value(title));
        return list;
    }
};

QString printed(const QAbstractItemModel &model, const QModelIndex &parent = {}, int depth = 0)
{
    QString text;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        text += QString(depth, u' ') + index.data().toString() + u'\n';
        text += printed(model, index, depth + 1);
    }
    return text;
}

} // namespace

class TestDocumentsModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data();
    void operations();
    void removalQuestion_data();
    void removalQuestion();
    void splitKeepsEveryWord();
    void touchesOnlyTheRowsOfAChange();
    void dropsMoveWhatIsDragged();
    void damagedTreesStayReachable();
    void filters_data();
    void filters();
    void theFilterFollowsEdits();
    void aDropAmongFilteredRowsLandsWhereItWasSeen();
    void followsAnyHistory_data();
    void followsAnyHistory();
};

void TestDocumentsModel::operations_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("titles");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("beforeTitle");
    QTest::addColumn<QString>("after");

    const QString book = QStringLiteral("A\n a\n b\n c\nB\n d\nC\n");
    QTest::newRow("up") << book << "up"
                        << "b"
                        << ""
                        << ""
                        << "A\n b\n a\n c\nB\n d\nC\n";
    QTest::newRow("up together") << book << "up"
                                 << "b c"
                                 << ""
                                 << ""
                                 << "A\n b\n c\n a\nB\n d\nC\n";
    QTest::newRow("up at the edge") << book << "up"
                                    << "a b"
                                    << ""
                                    << "" << book;
    QTest::newRow("up, one stuck and one free") << book << "up"
                                                << "a c"
                                                << ""
                                                << ""
                                                << "A\n a\n c\n b\nB\n d\nC\n";
    QTest::newRow("down together") << book << "down"
                                   << "a b"
                                   << ""
                                   << ""
                                   << "A\n c\n a\n b\nB\n d\nC\n";
    QTest::newRow("down carries the branch") << book << "down"
                                             << "A"
                                             << ""
                                             << ""
                                             << "B\n d\nA\n a\n b\n c\nC\n";
    QTest::newRow("promote keeps the order") << book << "promote"
                                             << "a b"
                                             << ""
                                             << ""
                                             << "A\n c\na\nb\nB\n d\nC\n";
    QTest::newRow("promote at the top") << book << "promote"
                                        << "A"
                                        << ""
                                        << "" << book;
    QTest::newRow("demote") << book << "demote"
                            << "B C"
                            << ""
                            << ""
                            << "A\n a\n b\n c\n B\n  d\n C\n";
    QTest::newRow("demote the first") << book << "demote"
                                      << "A"
                                      << ""
                                      << "" << book;
    QTest::newRow("move before") << book << "move"
                                 << "d"
                                 << "A"
                                 << "b"
                                 << "A\n a\n d\n b\n c\nB\nC\n";
    QTest::newRow("move several to the end") << book << "move"
                                             << "a c"
                                             << "B"
                                             << ""
                                             << "A\n b\nB\n d\n a\n c\nC\n";
    QTest::newRow("move before itself changes nothing") << book << "move"
                                                        << "b c"
                                                        << "A"
                                                        << "b" << book;
    QTest::newRow("a child travels with its parent") << book << "move"
                                                     << "B d"
                                                     << "A"
                                                     << "a"
                                                     << "A\n B\n  d\n a\n b\n c\nC\n";
    QTest::newRow("not under itself") << book << "move"
                                      << "A"
                                      << "a"
                                      << "" << book;
    QTest::newRow("remove takes the branch and nothing else") << book << "remove"
                                                              << "A"
                                                              << ""
                                                              << ""
                                                              << "B\n d\nC\n";
    QTest::newRow("remove scattered") << book << "remove"
                                      << "c B"
                                      << ""
                                      << ""
                                      << "A\n a\n b\nC\n";
}

void TestDocumentsModel::operations()
{
    QFETCH(QString, before);
    QFETCH(QString, operation);
    QFETCH(QString, titles);
    QFETCH(QString, parent);
    QFETCH(QString, beforeTitle);
    QFETCH(QString, after);

    Desk desk(before);
    DocumentsModel model(desk.workspace);
    const QAbstractItemModelTester tester(&model);
    DocumentOperations operations(desk.workspace);
    const QList<ContentId> ids = desk.all(titles);
    if (operation == u"up")
        operations.moveUp(ids);
    else if (operation == u"down")
        operations.moveDown(ids);
    else if (operation == u"promote")
        operations.promote(ids);
    else if (operation == u"demote")
        operations.demote(ids);
    else if (operation == u"remove")
        operations.remove(ids);
    else
        operations.move(ids, desk.ids.value(parent), desk.ids.value(beforeTitle));

    QCOMPARE(printed(model), after);
    const auto steps = desk.workspace.history().undoCount();
    QVERIFY(steps <= 1);
    desk.workspace.undo();
    QCOMPARE(printed(model), before);
    desk.workspace.redo();
    QCOMPARE(printed(model), after);
}

void TestDocumentsModel::removalQuestion_data()
{
    QTest::addColumn<QString>("outline");
    QTest::addColumn<QString>("titles");
    QTest::addColumn<QString>("question");

    QTest::newRow("scenes") << "aaa\nbb\n"
                            << "aaa bb"
                            << "Delete 2 scenes, 5 words?";
    QTest::newRow("one") << "a\n"
                         << "a"
                         << "Delete 1 scene, 1 word?";
    QTest::newRow("a chapter names what lies in it") << "AAAA\n aaa\n bb\n"
                                                     << "AAAA"
                                                     << "Delete 3 documents, 9 words?";
    QTest::newRow("notes") << "*nn\n"
                           << "*nn"
                           << "Delete 1 note, 3 words?";
    QTest::newRow("many words") << QString(4210, u'x') + u'\n' << QString(4210, u'x')
                                << "Delete 1 scene, 4,210 words?";
}

void TestDocumentsModel::removalQuestion()
{
    QFETCH(QString, outline);
    QFETCH(QString, titles);
    QFETCH(QString, question);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const Desk desk(outline);
    app::Workspace &workspace = const_cast<Desk &>(desk).workspace;
    // Without a catalogue the plural marks stand as they are written.
    QString asked = DocumentOperations(workspace).removalQuestion(desk.all(titles));
    const bool isOneWord = question.contains(u" 1 word?");
    const bool isOne = question.startsWith(u"Delete 1 ");
    asked.replace(QLatin1String("word(s)"), QLatin1String(isOneWord ? "word" : "words"));
    asked.replace(QLatin1String("(s)"), QLatin1String(isOne ? "" : "s"));
    QCOMPARE(asked, question);
}

void TestDocumentsModel::splitKeepsEveryWord()
{
    Desk desk(QStringLiteral("A\n a\n b\n"));
    DocumentsModel model(desk.workspace);
    auto *document = desk.workspace.project().find<Document>(desk.ids.value(QStringLiteral("a")));
    document->setBody(QStringLiteral("One two.\nThree four."));
    document->setStatus(QStringLiteral("Draft"));
    document->setPointOfView(QStringLiteral("Mara"));

    const ContentId added = DocumentOperations(desk.workspace).split(document->id(), 9);
    const auto *tail = desk.workspace.project().find<Document>(added);
    QVERIFY(tail);
    QCOMPARE(document->body() + tail->body(), QStringLiteral("One two.\nThree four."));
    QCOMPARE(tail->status(), QStringLiteral("Draft"));
    QCOMPARE(tail->pointOfView(), QStringLiteral("Mara"));
    QCOMPARE(printed(model), QStringLiteral("A\n a\n a (continued)\n b\n"));
    desk.workspace.undo();
    QCOMPARE(document->body(), QStringLiteral("One two.\nThree four."));
    QCOMPARE(printed(model), QStringLiteral("A\n a\n b\n"));
    QVERIFY(DocumentOperations(desk.workspace).split(document->id(), 0).isNull());
}

void TestDocumentsModel::touchesOnlyTheRowsOfAChange()
{
    Desk desk(QStringLiteral("A\n a\n b\nB\n c\n"));
    DocumentsModel model(desk.workspace);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);

    auto *b = desk.workspace.project().find<Document>(desk.ids.value(QStringLiteral("b")));
    desk.workspace.push<core::SetDocumentTitleCommand>(*b, QStringLiteral("beta"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toModelIndex().data().toString(), QStringLiteral("beta"));

    changed.clear();
    desk.workspace.push<core::SetDocumentBodyCommand>(*b,
                                                      QStringLiteral("five words are here now"));
    for (const auto &signal : std::as_const(changed)) {
        const QString title = signal.first().toModelIndex().siblingAtColumn(0).data().toString();
        QVERIFY2(title == u"beta" || title == u"A", qPrintable(title));
    }
    QCOMPARE(model.indexOf(desk.ids.value(QStringLiteral("A"))).data(DocumentsModel::TreeWordsRole),
             QVariant(qlonglong(1 + 1 + 5)));

    DocumentOperations(desk.workspace).move({b->id()}, {}, desk.ids.value(QStringLiteral("B")));
    QCOMPARE(moved.size(), 1);
    QCOMPARE(model.indexOf(desk.ids.value(QStringLiteral("A"))).data(DocumentsModel::TreeWordsRole),
             QVariant(qlonglong(1 + 1)));
    QCOMPARE(reset.size(), 0);
}

void TestDocumentsModel::dropsMoveWhatIsDragged()
{
    Desk desk(QStringLiteral("A\n a\n b\nB\n"));
    DocumentsModel model(desk.workspace);
    const auto at = [&](const char *title) {
        return model.indexOf(desk.ids.value(QString::fromLatin1(title)));
    };
    const std::unique_ptr<QMimeData> dragged(model.mimeData({at("b"), at("b").siblingAtColumn(1)}));
    QVERIFY(!model.canDropMimeData(dragged.get(), Qt::MoveAction, -1, -1, at("b")));
    QVERIFY(model.canDropMimeData(dragged.get(), Qt::MoveAction, -1, -1, at("B")));
    model.dropMimeData(dragged.get(), Qt::MoveAction, 0, 0, at("A"));
    QCOMPARE(printed(model), QStringLiteral("A\n b\n a\nB\n"));
    model.dropMimeData(dragged.get(), Qt::MoveAction, -1, -1, at("B"));
    QCOMPARE(printed(model), QStringLiteral("A\n a\nB\n b\n"));

    QMimeData foreign;
    foreign.setText(QStringLiteral("text"));
    QVERIFY(!model.canDropMimeData(&foreign, Qt::MoveAction, -1, -1, at("B")));
}

void TestDocumentsModel::damagedTreesStayReachable()
{
    Desk desk(QStringLiteral("A\n a\nB\n"));
    core::Project &project = desk.workspace.project();
    auto *a = project.find<Document>(desk.ids.value(QStringLiteral("a")));
    auto *upper = project.find<Document>(desk.ids.value(QStringLiteral("A")));
    auto *lost = project.find<Document>(desk.ids.value(QStringLiteral("B")));
    upper->setParentId(a->id()); // a circle of two
    lost->setParentId(ContentId::create());
    DocumentsModel model(desk.workspace);
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(printed(model).split(u'\n', Qt::SkipEmptyParts).size(), 3);
    // Each can be put back where it belongs.
    DocumentOperations(desk.workspace).move({lost->id()}, {}, {});
    QVERIFY(lost->parentId().isNull());
    DocumentOperations(desk.workspace).remove({a->id()});
    desk.workspace.undo();
    QCOMPARE(printed(model).split(u'\n', Qt::SkipEmptyParts).size(), 3);
}

void TestDocumentsModel::filters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("firstMatch");
    QTest::newRow("a leaf keeps those above it") << "forge"
                                                 << "Book\n East\n  forge\n"
                                                 << "forge";
    QTest::newRow("a branch alone, not what it holds") << "east"
                                                       << "Book\n East\n"
                                                       << "East";
    QTest::newRow("in several branches") << "r"
                                         << "Book\n East\n  forge\n  Café Rio\nharbour\n"
                                         << "forge";
    QTest::newRow("all words, no accents, any case") << "rio CAFE"
                                                     << "Book\n East\n  Café Rio\n"
                                                     << "Café Rio";
    QTest::newRow("nothing") << "zzz"
                             << ""
                             << "";
}

void TestDocumentsModel::filters()
{
    QFETCH(QString, filter);
    QFETCH(QString, shown);
    QFETCH(QString, firstMatch);
    Desk desk(QStringLiteral("Book\n East\n  forge\n  Café Rio\n West\nharbour\n"));
    DocumentsModel model(desk.workspace);
    const QAbstractItemModelTester tester(&model);
    const QString whole = printed(model);
    const QPersistentModelIndex cafe = model.indexOf(desk.ids.value(QStringLiteral("Café Rio")));
    QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.setFilter(filter);
    QCOMPARE(printed(model), shown);
    QCOMPARE(model.firstMatch().data().toString(), firstMatch);
    QCOMPARE(cafe.isValid(), shown.contains(QStringLiteral("Café")));
    if (cafe.isValid())
        QCOMPARE(cafe.data().toString(), QStringLiteral("Café Rio"));
    model.setFilter(filter + u' '); // the same words
    QCOMPARE(layouts.size(), 1);
    model.setFilter({});
    QCOMPARE(printed(model), whole);
    QCOMPARE(layouts.size(), 2);
    QCOMPARE(inserted.size() + removed.size() + reset.size(), 0);
}

void TestDocumentsModel::theFilterFollowsEdits()
{
    Desk desk(QStringLiteral("A\n ann\n bob\nB\n C\n  hall\n"));
    DocumentsModel model(desk.workspace);
    const QAbstractItemModelTester tester(&model);
    model.setFilter(QStringLiteral("nn"));
    QCOMPARE(printed(model), QStringLiteral("A\n ann\n"));
    const auto id = [&](const char *title) { return desk.ids.value(QString::fromLatin1(title)); };
    const auto document = [&](const char *title) {
        return desk.workspace.project().find<Document>(id(title));
    };
    desk.workspace.push<core::SetDocumentTitleCommand>(*document("hall"), QStringLiteral("inn"));
    QCOMPARE(printed(model), QStringLiteral("A\n ann\nB\n C\n  inn\n"));

    // What leaves the rows where they are is told row by row, or not at all.
    QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    desk.workspace.push<core::SetDocumentStatusCommand>(*document("ann"), QStringLiteral("done"));
    QCOMPARE(changed.size(), 1);
    changed.clear();
    desk.workspace.push<core::SetDocumentStatusCommand>(*document("bob"), QStringLiteral("done"));
    QCOMPARE(changed.size() + layouts.size(), 0);

    DocumentOperations operations(desk.workspace);
    operations.move({id("ann")}, id("C"), {});
    QCOMPARE(printed(model), QStringLiteral("B\n C\n  inn\n  ann\n"));
    operations.remove({id("hall")});
    QCOMPARE(printed(model), QStringLiteral("B\n C\n  ann\n"));
    desk.workspace.push<core::SetDocumentTitleCommand>(*document("ann"), QStringLiteral("eva"));
    QCOMPARE(printed(model), QString());
    while (desk.workspace.history().canUndo())
        desk.workspace.undo();
    QCOMPARE(printed(model), QStringLiteral("A\n ann\n"));
}

void TestDocumentsModel::aDropAmongFilteredRowsLandsWhereItWasSeen()
{
    Desk desk(QStringLiteral("A\n x1\n b\n x2\n c\nB\n x3\n"));
    DocumentsModel model(desk.workspace);
    model.setFilter(QStringLiteral("x"));
    const auto at = [&](const char *title) {
        return model.indexOf(desk.ids.value(QString::fromLatin1(title)));
    };
    const std::unique_ptr<QMimeData> dragged(model.mimeData({at("x3")}));
    model.dropMimeData(dragged.get(), Qt::MoveAction, 1, 0, at("A")); // above x2
    model.setFilter({});
    QCOMPARE(printed(model), QStringLiteral("A\n x1\n b\n x3\n x2\n c\nB\n"));
    desk.workspace.undo();
    model.setFilter(QStringLiteral("x"));
    model.dropMimeData(dragged.get(), Qt::MoveAction, 2, 0, at("A")); // below x2
    model.setFilter({});
    QCOMPARE(printed(model), QStringLiteral("A\n x1\n b\n x2\n x3\n c\nB\n"));
}

void TestDocumentsModel::followsAnyHistory_data()
{
    QTest::addColumn<QString>("filter");
    QTest::newRow("whole") << QString();
    QTest::newRow("filtered") << QStringLiteral("d");
}

void TestDocumentsModel::followsAnyHistory()
{
    QFETCH(QString, filter);
    Desk desk(QStringLiteral("A\n a\n  x\n b\n c\nB\n d\nC\n*n\n"));
    DocumentsModel model(desk.workspace);
    model.setFilter(filter);
    const QAbstractItemModelTester tester(&model);
    DocumentOperations operations(desk.workspace);
    QRandomGenerator random(11);
    for (int step = 0; step < 600; ++step) {
        QList<ContentId> ids;
        for (const core::DocumentTree::Place &place :
             desk.workspace.project().documentTree().inOrder())
            ids.append(place.document->id());
        const auto any = [&] {
            return ids.isEmpty() ? ContentId() : ids[random.bounded(ids.size())];
        };
        switch (random.bounded(9)) {
        case 0:
            operations.add(DocumentKind::Prose, any());
            break;
        case 1:
            operations.addChild(DocumentKind::Note, any());
            break;
        case 2:
            operations.move({any(), any()}, any(), any());
            break;
        case 3:
            operations.promote({any(), any()});
            break;
        case 4:
            operations.demote({any(), any()});
            break;
        case 5:
            operations.moveUp({any(), any(), any()});
            break;
        case 6:
            if (ids.size() > 8)
                operations.remove({any()});
            break;
        case 7:
            desk.workspace.redo();
            break;
        default:
            desk.workspace.undo();
        }
        DocumentsModel fresh(desk.workspace);
        fresh.setFilter(filter);
        QCOMPARE(printed(model), printed(fresh));
    }
}

QTEST_GUILESS_MAIN(TestDocumentsModel)
#include "tst_documentsmodel.moc"
