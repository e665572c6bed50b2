#include "app/models/editortext.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

using namespace vl::app;

class TestEditorText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editKeepsTheRest_data();
    void editKeepsTheRest();
    void differenceRebuildsTheText();
    void caretTellsTheEdit_data();
    void caretTellsTheEdit();
    void rebasedEditsLoseNothing_data();
    void rebasedEditsLoseNothing();
};

void TestEditorText::editKeepsTheRest_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("edited");
    QTest::addColumn<QString>("after");

    QTest::newRow("plain") << "One\nTwo"
                           << "One\nTwo"
                           << "One\nTwo!"
                           << "One\nTwo!";
    QTest::newRow("lines of another system keep their ends") << "One\r\nTwo\r\nThree\r\n"
                                                             << "One\nTwo\nThree\n"
                                                             << "One\nTwo more\nThree\n"
                                                             << "One\r\nTwo more\r\nThree\r\n";
    QTest::newRow("a joined line loses its whole end") << "One\r\nTwo"
                                                       << "One\nTwo"
                                                       << "OneTwo"
                                                       << "OneTwo";
    QTest::newRow("old line ends") << "One\rTwo\rThree"
                                   << "One\nTwo\nThree"
                                   << "One\n2\nThree"
                                   << "One\r2\rThree";
    QTest::newRow("paragraph separators") << QStringLiteral("One\u2029Two") << "One\nTwo"
                                          << "One\nTwo." << QStringLiteral("One\u2029Two.");
    QTest::newRow("no-break and line-separator characters stay")
        << QStringLiteral("a\u00a0b\u2028c\r\n") << QStringLiteral("a\u00a0b\u2028c\n")
        << QStringLiteral("a\u00a0bb\u2028c\n") << QStringLiteral("a\u00a0bb\u2028c\r\n");
    QTest::newRow("untouched") << "\r\n\r\r\n"
                               << "\n\n\n"
                               << "\n\n\n"
                               << "\r\n\r\r\n";
}

void TestEditorText::editKeepsTheRest()
{
    QFETCH(QString, body);
    QFETCH(QString, shown);
    QFETCH(QString, edited);
    QFETCH(QString, after);

    QCOMPARE(shownText(body), shown);
    QCOMPARE(bodyAfterEdit(body, edited), after);
    for (qsizetype place = 0; place <= shown.size(); ++place)
        QCOMPARE(shownPosition(body, bodyPosition(body, place)), place);
}

void TestEditorText::differenceRebuildsTheText()
{
    QRandomGenerator random(7);
    const QString alphabet = QStringLiteral("aab \n\U0001F600");
    const auto text = [&] {
        QString made;
        for (int i = random.bounded(12); i > 0; --i) {
            const int pick = random.bounded(6);
            made += pick == 5 ? QStringLiteral("\U0001F600") : QString(alphabet[pick]);
        }
        return made;
    };
    for (int round = 0; round < 5000; ++round) {
        const QString before = text();
        const QString after = text();
        const TextEdit edit = difference(before, after);
        QString rebuilt = before;
        rebuilt.replace(edit.position, edit.removed, edit.inserted);
        QCOMPARE(rebuilt, after);
        QVERIFY(edit.inserted.isEmpty() || !edit.inserted.front().isLowSurrogate());
        QVERIFY(edit.inserted.isEmpty() || !edit.inserted.back().isHighSurrogate());
    }
}

void TestEditorText::caretTellsTheEdit_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("position");

    QTest::newRow("undone typing ends at the caret") << "banana"
                                                     << "bana" << 3 << 1;
    QTest::newRow("at another place") << "banana"
                                      << "bana" << 5 << 3;
    QTest::newRow("undone deletion") << "bana"
                                     << "banana" << 1 << 1;
    QTest::newRow("undone deletion behind") << "bana"
                                            << "banana" << 3 << 3;
    QTest::newRow("the caret is elsewhere") << "banana"
                                            << "bana" << 0 << 4;
    QTest::newRow("one way only") << "abc"
                                  << "ac" << 0 << 1;
    QTest::newRow("replaced") << "abc"
                              << "axc" << 0 << 1;
    QTest::newRow("no half character")
        << QStringLiteral("\U0001F600\U0001F600") << QStringLiteral("\U0001F600") << 3 << 2;
}

void TestEditorText::caretTellsTheEdit()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(int, caret);
    QFETCH(int, position);

    const TextEdit edit = difference(before, after, caret);
    QCOMPARE(edit.position, qsizetype(position));
    QCOMPARE(before.replace(edit.position, edit.removed, edit.inserted), after);
}

void TestEditorText::rebasedEditsLoseNothing_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("fromOutside");
    QTest::addColumn<QString>("together");

    QTest::newRow("outside before") << "one two"
                                    << "one two three"
                                    << "ONE two"
                                    << "ONE two three";
    QTest::newRow("outside behind") << "one two"
                                    << "zero one two"
                                    << "one TWO"
                                    << "zero one TWO";
    QTest::newRow("both at the end") << "one"
                                     << "one typed"
                                     << "one other"
                                     << "one other typed";
    QTest::newRow("outside took away what was typed in") << "one two three"
                                                         << "one two!! three"
                                                         << "one three"
                                                         << "one t!!hree";
}

void TestEditorText::rebasedEditsLoseNothing()
{
    QFETCH(QString, base);
    QFETCH(QString, typed);
    QFETCH(QString, fromOutside);
    QFETCH(QString, together);

    const TextEdit edit = rebased(difference(base, fromOutside), difference(base, typed));
    QString result = typed;
    result.replace(edit.position, edit.removed, edit.inserted);
    const QString inserted = difference(base, typed).inserted.trimmed();
    QVERIFY2(result.contains(inserted), qPrintable(result));
    QCOMPARE(result, together);
}

QTEST_GUILESS_MAIN(TestEditorText)
#include "tst_editortext.moc"
