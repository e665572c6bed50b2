#include "app/base/settingskeys.h"
#include "app/base/wordcount.h"
#include "app/models/documentoperations.h"
#include "core/commands/documentcommands.h"
#include "desktop/editor/editorlayout.h"
#include "desktop/editor/findstrip.h"
#include "desktop/editor/livedocument.h"
#include "desktop/editor/pagelayout.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/shell/mainwindow.h"
#include "tests/support/deskwindow.h"

#include <QtCore/QRandomGenerator>
#include <QtGui/QClipboard>
#include <QtGui/QTextBlock>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

using namespace vl;
using core::Document;

namespace {

struct Window : test::DeskWindow
{
    desktop::EditorTextWidget *text = window.findChild<desktop::EditorTextWidget *>();
    desktop::FindStrip *strip = window.findChild<desktop::FindStrip *>();

    explicit Window(bool isTypographic = false)
    {
        settings.set(app::settings::editorSmartQuotes, isTypographic);
    }
    Document &add(const QString &body)
    {
        Document &document = openDocument(body);
        text->setFocus();
        return document;
    }
    void type(const QString &keys) { QTest::keyClicks(text, keys); }
    void undo() { window.actions()["edit.undo"]->trigger(); }
    void redo() { window.actions()["edit.redo"]->trigger(); }
    QString count() const
    {
        for (const QLabel *label : strip->findChildren<QLabel *>())
            if (label->accessibleName() == u"Hits")
                return label->text();
        return {};
    }
    QLineEdit *field(const QString &name) const
    {
        for (QLineEdit *field : strip->findChildren<QLineEdit *>())
            if (field->accessibleName() == name)
                return field;
        return nullptr;
    }
};

qsizetype countedWords(const desktop::LiveDocument &live)
{
    return live.layout()->wordCount();
}

} // namespace

class TestEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void longLinesAreHeldInPieces();
    void pendingTextIsWhatDiffers();
    void wordsAreCountedLineByLine();
    void stylesFollowFences();
    void undoPutsTheCaretBack();
    void burstsEndAfterManyWords();
    void theCaretStaysInView();
    void theLinesKeepTheirWidth();
    void undoReachesOtherDocuments();
    void removedDocumentsKeepWhatWasTyped();
    void placesComeBack();
    void pasteIsPlainAndItsOwnStep();
    void typographyCanBeTakenBack();
    void listsAndMarksByKey();
    void findsAndReplaces();
    void distractionFreeGivesTheTextBack();
    void pagesHoldEveryRowOnce_data();
    void pagesHoldEveryRowOnce();
    void pagesPrintWhatIsMeant();
    void hostileTexts_data();
    void hostileTexts();
};

void TestEditor::longLinesAreHeldInPieces()
{
    QRandomGenerator random(5);
    desktop::LiveDocument live(core::ContentId::create());
    QString text = QStringLiteral("short\n") + QStringLiteral("word ").repeated(40'000)
                   + QStringLiteral("\n\u00e9nd\n") + QStringLiteral("\U0001F600").repeated(50'000);
    live.setText(text);
    QCOMPARE(live.text(), text);
    QVERIFY(live.document()->blockCount() > 10);
    for (int round = 0; round < 300; ++round) {
        qsizetype at = random.bounded(int(text.size()));
        qsizetype removed = qMin<qsizetype>(random.bounded(3) ? 2 : 40'000, text.size() - at);
        if (at < text.size() && text[at].isLowSurrogate())
            --at;
        if (at + removed < text.size() && text[at + removed].isLowSurrogate())
            ++removed;
        const QString inserted = round % 7 == 0   ? QStringLiteral("x y ").repeated(20'000)
                                 : round % 3 == 0 ? QStringLiteral("\n")
                                                  : QStringLiteral("ab");
        text.replace(at, removed, inserted);
        const QTextCursor cursor = live.apply({at, removed, inserted});
        QCOMPARE(live.toShown(cursor.position()), at + inserted.size());
        QVERIFY(live.text() == text);
        for (const qsizetype place : {qsizetype(0), text.size() / 2, text.size()})
            QCOMPARE(live.toShown(live.toDocument(place)), place);
    }
    // What Return and typing do at the joints of the pieces.
    for (int i = 0; i < 50; ++i) {
        const QTextBlock block =
            live.document()->findBlockByNumber(random.bounded(live.document()->blockCount()));
        QTextCursor cursor(live.document());
        cursor.setPosition(i % 2 ? block.position() : block.position() + block.length() - 1);
        const qsizetype at = live.toShown(cursor.position());
        cursor.insertText(i % 3 ? QStringLiteral("\n") : QStringLiteral("z"));
        text.insert(at, i % 3 ? u'\n' : u'z');
        QVERIFY(live.text() == text);
    }
}

void TestEditor::pendingTextIsWhatDiffers()
{
    QRandomGenerator random(7);
    const QString alphabet = QStringLiteral("ab \n\u00a0\u2028\U0001F600");
    const auto anyText = [&] {
        QString text;
        for (int i = random.bounded(12); i > 0; --i)
            text += alphabet[random.bounded(int(alphabet.size()))];
        return text;
    };
    desktop::LiveDocument live(core::ContentId::create());
    QString base = anyText() + anyText();
    live.setText(base);
    live.noteInStep(base);
    bool isShort = false;
    for (int round = 0; round < 3000; ++round) {
        QTextCursor cursor(live.document());
        const int size = live.document()->characterCount() - 1;
        const int at = random.bounded(size + 1);
        cursor.setPosition(at);
        cursor.setPosition(at + random.bounded(size - at + 1) / 4, QTextCursor::KeepAnchor);
        if (round % 5 == 0)
            cursor.beginEditBlock();
        cursor.insertText(anyText());
        if (round % 5 == 0) {
            cursor.setPosition(random.bounded(live.document()->characterCount()));
            cursor.deletePreviousChar();
            cursor.endEditBlock();
        }
        const app::PendingText pending = live.pendingText();
        QVERIFY(pending.head + pending.tail <= base.size());
        QCOMPARE(base.first(pending.head) + pending.typed + base.last(pending.tail), live.text());
        isShort |= size > 40 && pending.head > size / 4 && pending.tail > size / 4;
        if (round % 3 == 2) {
            base = live.text();
            live.noteInStep(base);
        }
        if (round % 50 == 49)
            live.apply({0, base.size() / 2, QString()});
    }
    QVERIFY(isShort); // it is not the whole text each time
}

void TestEditor::wordsAreCountedLineByLine()
{
    QRandomGenerator random(11);
    desktop::LiveDocument live(core::ContentId::create());
    const QString alphabet = QStringLiteral("ab \n`\t");
    for (int round = 0; round < 500; ++round) {
        const int size = live.document()->characterCount() - 1;
        const int at = random.bounded(size + 1);
        QString inserted;
        for (int i = random.bounded(9); i > 0; --i)
            inserted += alphabet[random.bounded(int(alphabet.size()))];
        live.apply({at, random.bounded(size - at + 1) / 3, inserted});
        QCOMPARE(countedWords(live), app::countWords(live.text()));
    }
}

void TestEditor::stylesFollowFences()
{
    Window desk;
    desk.add(QStringLiteral("one\n*two*\n\nthree\n"));
    const auto kindOf = [&](int number) {
        const QTextBlock block = desk.text->document()->findBlockByNumber(number);
        desk.text->document()->documentLayout()->blockBoundingRect(block);
        return int(desktop::EditorLine::of(block)->kind);
    };
    using Kind = app::MarkdownLineKind;
    QCOMPARE(kindOf(1), int(Kind::Paragraph));
    desk.text->moveCursor(QTextCursor::Start);
    desk.type(QStringLiteral("```"));
    QTest::keyClick(desk.text, Qt::Key_Return);
    QCOMPARE(kindOf(2), int(Kind::FencedCode));
    QCOMPARE(kindOf(4), int(Kind::FencedCode));
    desk.undo();
    QCOMPARE(kindOf(1), int(Kind::Paragraph));
}

void TestEditor::undoPutsTheCaretBack()
{
    Window desk;
    Document &document = desk.add(QStringLiteral("banana\nend"));
    desk.text->select(1, 1);
    desk.type(QStringLiteral("an"));
    desk.undo();
    QCOMPARE(document.body(), QStringLiteral("banana\nend"));
    QCOMPARE(desk.text->caret(), qsizetype(1));
    desk.redo();
    QCOMPARE(desk.text->caret(), qsizetype(3));
    // A selection that is typed over comes back by a step of its own.
    desk.text->select(0, 8);
    desk.type(QStringLiteral("x"));
    desk.undo();
    QCOMPARE(desk.text->text(), QStringLiteral("bananana\nend"));
    desk.redo();
    QCOMPARE(document.body(), QStringLiteral("x\nend"));
}

void TestEditor::theCaretStaysInView()
{
    Window desk;
    desk.window.resize(1200, 800);
    desk.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.add(QStringLiteral("line\n").repeated(200));
    const auto isSeen = [&] {
        const QRect view = desk.text->viewport()->rect();
        return view.contains(desk.text->cursorRect().center());
    };
    // On the last line that is seen whole.
    QScrollBar *bar = desk.text->verticalScrollBar();
    const int last = int(desk.text->cursorForPosition(desk.text->viewport()->rect().bottomLeft())
                             .block()
                             .position())
                     - 10;
    desk.text->select(last, last);
    const int scrolled = bar->value();
    QVERIFY(isSeen());
    desk.window.resize(1200, 600);
    QTRY_VERIFY(bar->value() > scrolled);
    QVERIFY(isSeen());
    // One that the writer scrolled away from is not gone back to.
    bar->setValue(bar->maximum());
    QVERIFY(!isSeen());
    desk.window.resize(1200, 500);
    QTRY_VERIFY(desk.window.height() <= 500);
    QVERIFY(!isSeen());
}

void TestEditor::burstsEndAfterManyWords()
{
    Window desk;
    Document &document = desk.add(QString());
    const auto steps = desk.workspace.history().undoCount();
    for (int i = 0; i < 100; ++i)
        desk.type(QStringLiteral("word "));
    QCOMPARE(desk.workspace.history().undoCount(), steps + 2);
    QCOMPARE(document.body(), QStringLiteral("word ").repeated(80));
    desk.undo();
    desk.undo();
    QCOMPARE(desk.text->text(), QStringLiteral("word ").repeated(40));
}

void TestEditor::theLinesKeepTheirWidth()
{
    Window desk;
    desk.add(QStringLiteral("short"));
    const int width = desk.text->viewport()->width();
    desk.text->insertStep(QStringLiteral("many\n").repeated(200));
    QVERIFY(desk.text->verticalScrollBar()->maximum() > 0);
    QCOMPARE(desk.text->viewport()->width(), width);

    // Hardly any room, and none.
    for (const int narrow : {40, 1}) {
        desk.text->setFixedWidth(narrow);
        QTest::mouseClick(desk.text, Qt::LeftButton, {}, {0, 60});
        QTest::keyClicks(desk.text, QStringLiteral("x"));
    }
    QCOMPARE(desk.text->text().count(u'x'), 2);
}

void TestEditor::undoReachesOtherDocuments()
{
    Window desk;
    Document &first = desk.add(QStringLiteral("First."));
    desk.text->moveCursor(QTextCursor::End);
    desk.type(QStringLiteral(" One."));
    Document &second = desk.add(QStringLiteral("Second."));
    desk.text->moveCursor(QTextCursor::End);
    desk.type(QStringLiteral(" Two."));
    desk.workspace.select(first.id());
    desk.workspace.select(second.id());
    desk.undo(); // what was typed in the second
    QCOMPARE(desk.text->text(), QStringLiteral("Second."));
    desk.undo(); // that it was added
    desk.undo(); // what was typed in the first, which shows
    QCOMPARE(first.body(), QStringLiteral("First."));
    QCOMPARE(desk.text->text(), QStringLiteral("First."));
    QCOMPARE(desk.workspace.history().redoCount(), qsizetype(3));
    desk.redo();
    QCOMPARE(first.body(), QStringLiteral("First. One."));
    QCOMPARE(desk.text->text(), QStringLiteral("First. One."));
    QCOMPARE(desk.text->caret(), qsizetype(11));
}

void TestEditor::removedDocumentsKeepWhatWasTyped()
{
    Window desk;
    Document &document = desk.add(QStringLiteral("First."));
    const core::ContentId id = document.id();
    desk.text->moveCursor(QTextCursor::End);
    desk.type(QStringLiteral(" Typed."));
    app::DocumentOperations(desk.workspace).remove({id});
    QVERIFY(!desk.workspace.project().find<Document>(id));
    desk.undo();
    QCOMPARE(desk.workspace.project().find<Document>(id)->body(), QStringLiteral("First. Typed."));
}

void TestEditor::placesComeBack()
{
    QString saved;
    core::ContentId last;
    QTemporaryDir dir;
    {
        Window desk;
        Document &first = desk.add(QStringLiteral("A line of a text.\n").repeated(300));
        desk.text->select(4000, 4003);
        desk.text->centerCursor();
        const int scroll = desk.text->verticalScrollBar()->value();
        QVERIFY(scroll > 0);
        Document &second = desk.add(QStringLiteral("Another one."));
        desk.text->select(3, 3);
        desk.workspace.select(first.id());
        QCOMPARE(desk.text->textCursor().selectedText().size(), qsizetype(3));
        QCOMPARE(desk.text->verticalScrollBar()->value(), scroll);
        desk.workspace.select(second.id());
        QCOMPARE(desk.text->caret(), qsizetype(3));
        desk.workspace.select(first.id());
        saved = dir.filePath(QStringLiteral("saved"));
        desk.prompts.path = saved;
        desk.window.actions()["file.saveAsFolder"]->trigger();
        last = first.id();
    }
    Window desk;
    QVERIFY(desk.window.openProject(saved));
    QCOMPARE(desk.workspace.selection(), QList<core::ContentId>{last});
    QCOMPARE(desk.text->caret(), qsizetype(4003));
    QVERIFY(desk.text->viewport()->rect().contains(desk.text->cursorRect().center()));
}

void TestEditor::pasteIsPlainAndItsOwnStep()
{
    Window desk;
    Document &document = desk.add(QStringLiteral("a"));
    auto *data = new QMimeData;
    data->setHtml(QStringLiteral("<h1>Rich</h1><img src='x'>"));
    data->setText(QStringLiteral("Rich\r\ntext\u2029here"));
    data->setImageData(QImage(10, 10, QImage::Format_RGB32));
    QGuiApplication::clipboard()->setMimeData(data);
    desk.text->moveCursor(QTextCursor::End);
    desk.type(QStringLiteral("b"));
    desk.text->paste();
    desk.type(QStringLiteral("c"));
    desk.workspace.flush();
    QCOMPARE(document.body(), QStringLiteral("abRich\ntext\nherec"));
    desk.undo();
    desk.undo();
    QCOMPARE(document.body(), QStringLiteral("ab"));

    auto *picture = new QMimeData;
    picture->setImageData(QImage(10, 10, QImage::Format_RGB32));
    QGuiApplication::clipboard()->setMimeData(picture);
    desk.text->paste(); // into a project that was never saved
    desk.workspace.flush();
    QVERIFY(document.body().contains(QStringLiteral("![](assets/picture.png)")));
    desk.prompts.path = desk.dir.filePath(QStringLiteral("saved"));
    desk.window.actions()["file.saveAsFolder"]->trigger();
    desk.text->paste();
    desk.workspace.flush();
    QVERIFY(document.body().contains(QStringLiteral("![](assets/picture-1.png)")));
    for (const char *name : {"picture.png", "picture-1.png"})
        QVERIFY(
            QFile::exists(desk.prompts.path + QStringLiteral("/assets/") + QLatin1String(name)));
    QCOMPARE(desk.prompts.errors, QStringList());
}

void TestEditor::typographyCanBeTakenBack()
{
    Window desk(true);
    desk.add(QString());
    desk.type(QStringLiteral("\"So--`\"a\"`"));
    QCOMPARE(desk.text->text(), QStringLiteral("“So—`\"a\"`"));
    desk.type(QStringLiteral("..."));
    QTest::keyClick(desk.text, Qt::Key_Backspace);
    QVERIFY(desk.text->text().endsWith(QStringLiteral("...")));
    QTest::keyClick(desk.text, Qt::Key_Backspace);
    QVERIFY(desk.text->text().endsWith(QStringLiteral("`..")));
}

void TestEditor::listsAndMarksByKey()
{
    Window desk;
    Document &document = desk.add(QStringLiteral("- one"));
    desk.text->moveCursor(QTextCursor::End);
    QTest::keyClick(desk.text, Qt::Key_Return);
    desk.type(QStringLiteral("two"));
    QTest::keyClick(desk.text, Qt::Key_Tab);
    QTest::keyClick(desk.text, Qt::Key_Return);
    QTest::keyClick(desk.text, Qt::Key_Return);
    desk.type(QStringLiteral("three"));
    desk.window.actions()["text.strong"]->trigger();
    QCOMPARE(desk.text->text(), QStringLiteral("- one\n  - two\n**three**"));
    desk.window.actions()["text.strong"]->trigger();
    QTest::keyClick(desk.text, Qt::Key_J, Qt::AltModifier); // of no menu
    QTest::keyClick(desk.text, Qt::Key_J, Qt::AltModifier | Qt::ShiftModifier);
    desk.workspace.flush();
    QCOMPARE(document.body(), QStringLiteral("- one\n  - two\nthree"));
}

void TestEditor::findsAndReplaces()
{
    Window desk;
    Document &document = desk.add(QStringLiteral("Tide and tide.\n\nNo tides, TIDE."));
    desk.text->moveCursor(QTextCursor::Start);
    desk.window.actions()["edit.replace"]->trigger();
    QVERIFY(desk.strip->isVisible());
    QVERIFY(desk.field(QStringLiteral("Find"))->hasFocus());
    QTest::keyClick(desk.field(QStringLiteral("Find")), Qt::Key_Tab);
    QVERIFY(desk.field(QStringLiteral("Replace with"))->hasFocus());
    QTest::keyClicks(desk.field(QStringLiteral("Find")), QStringLiteral("tide"));
    QTRY_COMPARE(desk.count(), QStringLiteral("1 of 4"));
    QTest::keyClick(desk.field(QStringLiteral("Find")), Qt::Key_Return);
    QCOMPARE(desk.count(), QStringLiteral("2 of 4"));
    QTest::keyClick(desk.field(QStringLiteral("Find")), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(desk.field(QStringLiteral("Find")), Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(desk.count(), QStringLiteral("4 of 4"));
    desk.window.actions()["edit.findNext"]->trigger();
    QCOMPARE(desk.count(), QStringLiteral("1 of 4"));

    QTest::keyClicks(desk.field(QStringLiteral("Replace with")), QStringLiteral("ebb"));
    QTest::keyClick(desk.field(QStringLiteral("Replace with")), Qt::Key_Return);
    QTRY_COMPARE(desk.count(), QStringLiteral("1 of 3"));
    const auto steps = desk.workspace.history().undoCount();
    for (QPushButton *button : desk.strip->findChildren<QPushButton *>())
        if (button->text().contains(QStringLiteral("A&ll")))
            button->click();
    QCOMPARE(document.body(), QStringLiteral("ebb and ebb.\n\nNo ebbs, ebb."));
    QCOMPARE(desk.workspace.history().undoCount(), steps + 1);
    QVERIFY(!desk.text->textCursor().hasSelection());
    QCOMPARE(desk.text->caret(), qsizetype(11)); // behind what was the hit
    desk.undo();
    QCOMPARE(desk.text->text(), QStringLiteral("ebb and tide.\n\nNo tides, TIDE."));
    QTest::keyClick(desk.field(QStringLiteral("Find")), Qt::Key_Escape);
    QVERIFY(!desk.strip->isVisible());
    QVERIFY(desk.text->hasFocus());

    desk.window.actions()["edit.find"]->trigger();
    QVERIFY(desk.field(QStringLiteral("Find"))->hasFocus());
    QVERIFY(desk.field(QStringLiteral("Replace with"))->isVisible());
    desk.window.actions()["edit.replace"]->trigger(); // what is searched for is known
    QVERIFY(desk.field(QStringLiteral("Replace with"))->hasFocus());

    // What is wrong with an expression can be read, and goes when it is mended.
    desk.field(QStringLiteral("Find"))->setText(QStringLiteral("(tide"));
    for (QToolButton *toggle : desk.strip->findChildren<QToolButton *>())
        if (toggle->accessibleName() == u"Regular expression")
            toggle->click();
    const auto problem = [&desk] {
        for (const QLabel *label : desk.strip->findChildren<QLabel *>())
            if (label->isVisible() && label->text().startsWith(QStringLiteral("⚠")))
                return label->text();
        return QString();
    };
    QTRY_VERIFY(problem().contains(QStringLiteral("parenthesis")));
    QTest::keyClicks(desk.field(QStringLiteral("Find")), QStringLiteral(")"));
    QTRY_VERIFY(problem().isEmpty());
    QTRY_VERIFY(desk.count().endsWith(QStringLiteral("of 3")));

    // What only began like the pattern does not stay selected.
    QTest::keyClicks(desk.field(QStringLiteral("Find")), QStringLiteral("zz"));
    QTRY_COMPARE(desk.count(), QStringLiteral("Not found"));
    QVERIFY(!desk.text->textCursor().hasSelection());

    // In a narrow panel the fields keep their width, and the buttons their texts.
    desk.strip->parentWidget()->setFixedWidth(260);
    QTRY_COMPARE(desk.strip->width(), 260);
    for (const QPushButton *button : desk.strip->findChildren<QPushButton *>())
        QTRY_VERIFY(button->width() >= button->minimumSizeHint().width());
    QTRY_VERIFY(desk.field(QStringLiteral("Find"))->width() > 200);
}

void TestEditor::distractionFreeGivesTheTextBack()
{
    Window desk;
    desk.add(QStringLiteral("A line of a text.\n").repeated(300));
    desk.text->select(4000, 4003);
    desk.text->centerCursor();
    const QWidget *home = desk.text->parentWidget();
    const int scroll = desk.text->verticalScrollBar()->value();
    QAction *action = desk.window.actions()["view.distractionFree"];
    action->trigger();
    QVERIFY(desk.text->window() != &desk.window);
    QVERIFY(desk.text->window()->isFullScreen());
    QVERIFY(desk.text->viewport()->rect().contains(desk.text->cursorRect().center()));
    desk.type(QStringLiteral("new"));
    QTest::keyClick(desk.text, Qt::Key_F, Qt::ControlModifier); // the window's keys work
    QVERIFY(desk.strip->isVisible());
    QTest::keyClick(desk.field(QStringLiteral("Find")), Qt::Key_Escape);
    QVERIFY(action->isChecked());
    QTest::keyClick(desk.text, Qt::Key_Escape);
    QVERIFY(!action->isChecked());
    QCOMPARE(desk.text->parentWidget(), home);
    QCOMPARE(desk.text->window(), &desk.window);
    QVERIFY(desk.text->isVisible());
    QCOMPARE(desk.text->caret(), qsizetype(4003));
    QVERIFY(qAbs(desk.text->verticalScrollBar()->value() - scroll) < 30);
    QVERIFY(desk.text->text().contains(QStringLiteral("new")));
    action->trigger(); // a document that goes takes the mode along
    desk.workspace.undo();
    desk.workspace.undo();
    QVERIFY(!action->isChecked());
    QVERIFY(!action->isEnabled());
}

void TestEditor::pagesHoldEveryRowOnce_data()
{
    QTest::addColumn<QString>("text");
    const QString sentence = QStringLiteral("The lamps were lit from the water upward. ");
    QTest::newRow("prose") << (sentence.repeated(9) + QStringLiteral("\n\n")).repeated(120);
    QTest::newRow("one paragraph") << sentence.repeated(2000);
    QTest::newRow("headings") << (QStringLiteral("# Heading\n") + sentence.repeated(3)
                                  + QStringLiteral("\n\n"))
                                     .repeated(80);
    QTest::newRow("without a blank") << QString(100'000, u'x');
    QTest::newRow("empty") << QString();
}

void TestEditor::pagesHoldEveryRowOnce()
{
    QFETCH(QString, text);
    const desktop::PageSetup setup = desktop::PageSetup::standard(QStringLiteral("serif"), 1.5);
    const auto paragraphs = desktop::printedParagraphs(text, setup);
    std::vector<desktop::Page> pages;
    const std::atomic_bool isCancelled = false;
    desktop::fillPages(
        paragraphs, setup, [&](desktop::Page page) { pages.push_back(std::move(page)); },
        isCancelled);
    QVERIFY(!pages.empty());

    int paragraph = -1;
    int row = 0;
    int rows = 0;
    qreal step = 0;
    for (const desktop::Page &page : pages) {
        qreal y = -1;
        for (size_t i = 0; i < page.size(); ++i) {
            if (page[i].paragraph != paragraph) {
                QCOMPARE(row, rows); // the one before is whole
                QCOMPARE(page[i].paragraph, ++paragraph);
                QTextLayout layout;
                step = desktop::layOutParagraph(layout, paragraphs[size_t(paragraph)], setup);
                rows = qMax(1, layout.lineCount());
                row = 0;
            }
            QCOMPARE(page[i].row, row++);
            QVERIFY(page[i].y > y && page[i].y + step <= setup.room().height() + 0.01);
            y = page[i].y;
            // No first or last row alone.
            if (i == 0 && rows > 2)
                QVERIFY(page[i].row != rows - 1);
            if (i + 1 == page.size() && rows > 2)
                QVERIFY(page[i].row != 0);
            if (i + 1 == page.size() && &page != &pages.back())
                QVERIFY(!paragraphs[size_t(paragraph)].keepsWithNext);
        }
    }
    QCOMPARE(row, rows);
    QCOMPARE(paragraph + 1, int(paragraphs.size()));
}

void TestEditor::pagesPrintWhatIsMeant()
{
    const desktop::PageSetup setup = desktop::PageSetup::standard(QStringLiteral("serif"), 1.5);
    const QString text = QStringLiteral(
        "# A *title*\nOne\n**two**[^n]\n\n> three[^m] a[^n]\n\n- four\n\n***\n\n[^n]: note\nfive");
    QStringList printed;
    for (const desktop::PrintedParagraph &paragraph : desktop::printedParagraphs(text, setup)) {
        printed.append(paragraph.text);
        QVERIFY(paragraph.source >= 0 && paragraph.source < text.size());
    }
    QCOMPARE(printed.join(u'|'), QStringLiteral("A title|One two1|three2 a1|• four|***|five"));
}

void TestEditor::hostileTexts_data()
{
    QTest::addColumn<QString>("body");
    QTest::newRow("20 MB in one line") << QStringLiteral("word after word ").repeated(1'250'000);
    QTest::newRow("5 MB without a blank") << QString(5'000'000, u'x');
    QTest::newRow("right to left and joined emoji")
        << QStringLiteral("\u05e9\u05dc\u05d5\u05dd *\u0645\u0631\u062d\u0628\u0627* "
                          "\U0001F469\u200D\U0001F680 \u202Eabc\u202C e\u0301\u0301\u0301 ")
               .repeated(2000);
    QTest::newRow("unpaired surrogates and controls")
        << QString(QChar(0xD800)) + QStringLiteral("a\u0000b\u0007\uFFFE") + QString(QChar(0xDC00))
               + QStringLiteral("\nnext");
    QTest::newRow("300 000 empty lines") << QString(300'000, u'\n');
}

void TestEditor::hostileTexts()
{
    QFETCH(QString, body);
    Window desk;
    Document &document = desk.add(body);
    QVERIFY(desk.text->text() == app::shownText(body));
    for (const QTextCursor::MoveOperation place : {QTextCursor::End, QTextCursor::Start}) {
        desk.text->moveCursor(place);
        desk.type(QStringLiteral("!?"));
        QTest::keyClick(desk.text, Qt::Key_Backspace);
        QCoreApplication::processEvents();
    }
    desk.workspace.flush();
    QVERIFY(document.body() == u'!' + body + u'!');
    desk.undo();
    desk.undo();
    QVERIFY(document.body() == body);
    desk.text->selectAll();
    QTest::keyClick(desk.text, Qt::Key_Delete);
    desk.workspace.flush();
    QCOMPARE(document.body(), QString());
    desk.undo();
    QVERIFY(document.body() == body);
    QVERIFY(desk.text->text() == app::shownText(body));
}

QTEST_MAIN(TestEditor)
#include "tst_editor.moc"
