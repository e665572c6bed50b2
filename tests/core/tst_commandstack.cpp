#include "core/commands/compositecommand.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commandstack.h"

#include <QtTest/QtTest>

using namespace vl::core;

namespace {

/// Appends its letter to a text, and takes it away again.
class LetterCommand final : public Command
{
public:
    LetterCommand(QString &text, QChar letter)
        : m_text(text)
        , m_letter(letter)
    {
    }
    void redo() override { m_text += m_letter; }
    void undo() override { m_text.chop(1); }
    QString text() const override { return m_letter; }

private:
    QString &m_text;
    QChar m_letter;
};

/// Letters are pushed as commands; the other signs: "!" saves, "<" undoes, ">" redoes, "(" opens a
/// group, ")" closes one, "?" marks as dirty for good, "0" clears, "_" pushes null.
void run(CommandStack &stack, QString &text, const QString &script)
{
    for (const QChar sign : script) {
        switch (sign.unicode()) {
        case u'!':
            stack.setClean();
            break;
        case u'<':
            stack.undo();
            break;
        case u'>':
            stack.redo();
            break;
        case u'(':
            stack.beginMacro(QStringLiteral("g%1").arg(text));
            break;
        case u')':
            stack.endMacro();
            break;
        case u'?':
            stack.markUnrecoverablyDirty();
            break;
        case u'0':
            stack.clear();
            break;
        case u'_':
            stack.push(nullptr);
            break;
        default:
            stack.push(std::make_unique<LetterCommand>(text, sign));
        }
    }
}

} // namespace

class TestCommandStack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scripts_data();
    void scripts();
    void cleanIndexOfASnapshot();
    void listenerHearsWhatChanged();
    void objectsOutliveTheStepsThatReferToThem();
};

void TestCommandStack::scripts_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("undoCount");
    QTest::addColumn<int>("redoCount");
    QTest::addColumn<int>("cleanIndex");
    QTest::addColumn<bool>("dirty");
    QTest::addColumn<QString>("undoText");

    const auto row = [](const char *script, const char *text, int undoCount, int redoCount,
                        int cleanIndex, bool dirty, const char *undoText) {
        QTest::newRow(script) << QString::fromLatin1(script) << QString::fromLatin1(text)
                              << undoCount << redoCount << cleanIndex << dirty
                              << QString::fromLatin1(undoText);
    };
    row("", "", 0, 0, 0, false, "");
    row("_", "", 0, 0, 0, false, "");
    row("<>", "", 0, 0, 0, false, "");
    row("A", "A", 1, 0, 0, true, "A");
    row("A!", "A", 1, 0, 1, false, "A");
    row("A!<", "", 0, 1, 1, true, "");
    row("A!<>", "A", 1, 0, 1, false, "A");
    row("!A<", "", 0, 1, 0, false, "");
    // The saved state lay among the steps that a new one discards.
    row("AB!<<C", "C", 1, 0, -1, true, "C");
    row("AB!<<C<", "", 0, 1, -1, true, "");
    row("AB!<C", "AC", 2, 0, -1, true, "C");
    row("AB!<<C!", "C", 1, 0, 1, false, "C");
    // It did not: the saved position is still reachable.
    row("A!B<C", "AC", 2, 0, 1, true, "C");
    row("A!B<C<", "A", 1, 1, 1, false, "A");
    row("AB<!C", "AC", 2, 0, 1, true, "C");
    // An empty history saved: position 0 is never lost.
    row("!A<B<", "", 0, 1, 0, false, "");
    row("AB!<<_", "", 0, 2, 2, true, "");
    row("A!?", "A", 1, 0, -1, true, "A");
    row("A!?<>", "A", 1, 0, -1, true, "A");
    row("A!?!", "A", 1, 0, 1, false, "A");
    row("A?0", "A", 0, 0, 0, false, "");
    // Groups.
    row("()", "", 0, 0, 0, false, "");
    row("A<()", "", 0, 1, 0, false, "");
    row("A<(B)", "B", 1, 0, 0, true, "g");
    row("A(BC)", "ABC", 2, 0, 0, true, "gA");
    row("A(BC)<", "A", 1, 1, 0, true, "A");
    row("A(BC)<>", "ABC", 2, 0, 0, true, "gA");
    row("((A))", "A", 1, 0, 0, true, "g");
    row("(A(B)C)", "ABC", 1, 0, 0, true, "g");
    row("(A(B)C)<", "", 0, 1, 0, false, "");
    row("(A()", "A", 0, 0, 0, false, "");  // still open
    row("A(B<", "AB", 1, 0, 0, true, "A"); // no undo while a group is open
    row("A<(>", "", 0, 1, 0, false, "");   // and no redo
    row("A<(B", "B", 0, 0, 0, false, "");  // the push discards what was undone at once
    row("A!<(B", "B", 0, 0, -1, true, ""); // with it the saved state
    row("A!<(B)<", "", 0, 1, -1, true, "");
    row(")A", "A", 1, 0, 0, true, "A");
    row("(A))B", "AB", 2, 0, 0, true, "B");
    row("((A0)B", "AB", 1, 0, 0, true, "B"); // clear closes every group
}

void TestCommandStack::scripts()
{
    QFETCH(const QString, script);
    QFETCH(const int, undoCount);
    QFETCH(const int, redoCount);
    QFETCH(const int, cleanIndex);
    QFETCH(const bool, dirty);
    QFETCH(const QString, undoText);
    QString text;
    CommandStack stack;
    run(stack, text, script);
    QTEST(text, "text");
    QCOMPARE(stack.undoCount(), undoCount);
    QCOMPARE(stack.redoCount(), redoCount);
    QCOMPARE(stack.cleanIndex(), cleanIndex);
    QCOMPARE(stack.isDirty(), dirty);
    QCOMPARE(stack.undoText(), undoText);
}

void TestCommandStack::cleanIndexOfASnapshot()
{
    QString text;
    CommandStack stack;
    run(stack, text, QStringLiteral("ABC"));
    stack.setCleanIndex(2);
    QVERIFY(stack.isDirty());
    stack.undo();
    QVERIFY(!stack.isDirty());
    stack.setCleanIndex(3); // among the undone steps
    stack.redo();
    QVERIFY(!stack.isDirty());
    for (const qsizetype gone : {qsizetype(4), qsizetype(-1), qsizetype(-7)}) {
        stack.setCleanIndex(gone);
        QCOMPARE(stack.cleanIndex(), -1);
    }

    const quint64 branch = stack.branch();
    run(stack, text, QStringLiteral("<>D<"));
    QCOMPARE(stack.branch(), branch);
    run(stack, text, QStringLiteral("E")); // what was undone is gone
    QVERIFY(stack.branch() != branch);
}

void TestCommandStack::listenerHearsWhatChanged()
{
    Project project;
    CommandStack stack;
    QStringList heard;
    stack.setListener([&](const ChangeSet &changes) {
        QString line;
        for (const auto &[id, change] : changes.objects())
            line += change == ChangeSet::Change::Added     ? QLatin1Char('a')
                    : change == ChangeSet::Change::Removed ? QLatin1Char('r')
                                                           : QLatin1Char('c');
        heard.append(line);
    });
    const ContentId id = ContentId::create();
    stack.beginMacro(QStringLiteral("make"));
    auto made = std::make_unique<Document>(id, DocumentKind::Prose, QStringLiteral("a"));
    Document &document = *made;
    stack.push(std::make_unique<AddObjectCommand>(project, std::move(made)));
    stack.push(std::make_unique<SetDocumentTitleCommand>(document, QStringLiteral("b")));
    stack.endMacro();
    stack.undo();
    stack.redo();
    stack.push(std::make_unique<RemoveObjectCommand>(project, id));
    stack.undo();
    stack.setClean();
    const auto is = [](const char *text) { return QString::fromLatin1(text); };
    QCOMPARE(heard,
             (QStringList{is("a"), is("c"), is(""), is("r"), is("a"), is("r"), is("a"), is("")}));
}

void TestCommandStack::objectsOutliveTheStepsThatReferToThem()
{
    // Run under a sanitizer this shows a reference to a destroyed object.
    Project project;
    {
        CommandStack stack;
        for (int i = 0; i < 3; ++i) {
            auto made = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose,
                                                   QStringLiteral("a"));
            Document &document = *made;
            stack.beginMacro(QStringLiteral("make"));
            stack.push(std::make_unique<AddObjectCommand>(project, std::move(made)));
            stack.push(std::make_unique<SetDocumentTitleCommand>(document, QStringLiteral("b")));
            stack.endMacro();
            stack.push(std::make_unique<SetDocumentBodyCommand>(document, QStringLiteral("c")));
            stack.push(std::make_unique<RemoveObjectCommand>(project, document.id()));
            stack.undo();
            stack.undo();
        }
        stack.undo();
        stack.undo();
        QCOMPARE(project.size(), 1);
    }
    QCOMPARE(project.size(), 1);
    QCOMPARE(project.all<Document>().front()->title(), QStringLiteral("b"));
}

QTEST_GUILESS_MAIN(TestCommandStack)
#include "tst_commandstack.moc"
