#include "app/storage/reconcile.h"

#include <QtTest/QtTest>

using namespace vl::app;
using Files = Reconcile::Files;
using enum ReconcileState;

namespace {

const QString path = QStringLiteral("objects/a.json");

/// The files of one side: one file, or none for "-".
Files side(const QString &text)
{
    return text == QLatin1String("-") ? Files{} : Files{{path, text}};
}

QString textOr(const std::optional<QString> &text)
{
    return text.value_or(QStringLiteral("-"));
}

ReconcileEntry entry(const QString &file, ReconcileState state, std::optional<QString> result)
{
    ReconcileEntry made;
    made.path = file;
    made.state = state;
    made.result = std::move(result);
    return made;
}

} // namespace

class TestReconcile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decision_data();
    void decision();
    void entriesComeInPathOrder();
    void resolution_data();
    void resolution();
    void apply_data();
    void apply();
    void brokenMergeIsRefused();
};

void TestReconcile::decision_data()
{
    QTest::addColumn<QString>("base"); // "-": the file is missing
    QTest::addColumn<QString>("local");
    QTest::addColumn<QString>("remote");
    QTest::addColumn<int>("state"); // -1: no entry
    QTest::addColumn<QString>("result");

    const QString marked = QStringLiteral("<<<<<<< local\n2\n=======\n3\n>>>>>>> remote\n");
    QTest::newRow("nobody has it any more") << "1\n"
                                            << "-"
                                            << "-" << -1 << "-";
    QTest::newRow("same everywhere") << "1\n"
                                     << "1\n"
                                     << "1\n"
                                     << 0 << "1\n";
    QTest::newRow("changed alike") << "1\n"
                                   << "2\n"
                                   << "2\n"
                                   << 0 << "2\n";
    QTest::newRow("changed here") << "1\n"
                                  << "2\n"
                                  << "1\n"
                                  << 1 << "2\n";
    QTest::newRow("changed there") << "1\n"
                                   << "1\n"
                                   << "2\n"
                                   << 2 << "2\n";
    QTest::newRow("merged") << "1\n2\n"
                            << "0\n2\n"
                            << "1\n3\n"
                            << 3 << "0\n3\n";
    QTest::newRow("added alike") << "-"
                                 << "1\n"
                                 << "1\n"
                                 << 3 << "1\n";
    QTest::newRow("edited on both sides") << "1\n"
                                          << "2\n"
                                          << "3\n"
                                          << 4 << marked;
    QTest::newRow("added here") << "-"
                                << "1\n"
                                << "-" << 5 << "1\n";
    QTest::newRow("added there") << "-"
                                 << "-"
                                 << "1\n"
                                 << 6 << "1\n";
    QTest::newRow("added differently") << "-"
                                       << "1\n"
                                       << "2\n"
                                       << 7 << "-";
    QTest::newRow("deleted here") << "1\n"
                                  << "-"
                                  << "1\n"
                                  << 8 << "-";
    QTest::newRow("deleted there") << "1\n"
                                   << "1\n"
                                   << "-" << 9 << "-";
    QTest::newRow("deleted here, changed there") << "1\n"
                                                 << "-"
                                                 << "2\n"
                                                 << 10 << "2\n";
    QTest::newRow("deleted there, changed here") << "1\n"
                                                 << "2\n"
                                                 << "-" << 10 << "2\n";
    QTest::newRow("emptied is not deleted") << "1\n"
                                            << ""
                                            << "1\n"
                                            << 1 << "";
    QTest::newRow("an empty file deleted there") << ""
                                                 << ""
                                                 << "-" << 9 << "-";
}

void TestReconcile::decision()
{
    QFETCH(QString, base);
    QFETCH(QString, local);
    QFETCH(QString, remote);
    QFETCH(int, state);
    QFETCH(QString, result);

    const auto entries = Reconcile::build(side(base), side(local), side(remote));
    QCOMPARE(int(entries.size()), state < 0 ? 0 : 1);
    if (state < 0)
        return;
    const ReconcileEntry &found = entries.front();
    QCOMPARE(found.path, path);
    QCOMPARE(int(found.state), state);
    QCOMPARE(textOr(found.result), result);
    QCOMPARE(found.conflictText, state == 4 ? result : QString());
    const bool conflicts = state == 4 || state == 7 || state == 10;
    QCOMPARE(isConflict(found.state), conflicts);
    QCOMPARE(textOr(found.localText), conflicts ? local : QStringLiteral("-"));
    QCOMPARE(textOr(found.remoteText), conflicts ? remote : QStringLiteral("-"));
}

void TestReconcile::entriesComeInPathOrder()
{
    const auto name = [](const char *text) { return QString::fromLatin1(text); };
    const Files base = {{name("c"), {}}, {name("gone"), {}}};
    const Files local = {{name("a"), {}}, {name("c"), {}}, {name("e"), {}}};
    const Files remote = {{name("b"), {}}, {name("c"), {}}, {name("d"), {}}};
    QStringList paths;
    for (const ReconcileEntry &found : Reconcile::build(base, local, remote))
        paths += found.path;
    QCOMPARE(paths.join(QLatin1Char(' ')), name("a b c d e"));
}

void TestReconcile::resolution_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("local");
    QTest::addColumn<QString>("remote");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("result");

    QTest::newRow("edited: local") << "[1]"
                                   << "[2]"
                                   << "[3]"
                                   << "local" << 1 << "[2]";
    QTest::newRow("edited: remote") << "[1]"
                                    << "[2]"
                                    << "[3]"
                                    << "remote" << 2 << "[3]";
    QTest::newRow("edited: own text") << "[1]"
                                      << "[2]"
                                      << "[3]"
                                      << "[2,3]" << 3 << "[2,3]";
    QTest::newRow("added: local") << "-"
                                  << "[2]"
                                  << "[3]"
                                  << "local" << 1 << "[2]";
    QTest::newRow("deleted here: local") << "[1]"
                                         << "-"
                                         << "[3]"
                                         << "local" << 8 << "-";
    QTest::newRow("deleted here: remote") << "[1]"
                                          << "-"
                                          << "[3]"
                                          << "remote" << 2 << "[3]";
    QTest::newRow("deleted there: local") << "[1]"
                                          << "[2]"
                                          << "-"
                                          << "local" << 1 << "[2]";
    QTest::newRow("deleted there: remote") << "[1]"
                                           << "[2]"
                                           << "-"
                                           << "remote" << 9 << "-";
    QTest::newRow("nothing to resolve") << "[1]"
                                        << "[2]"
                                        << "[1]"
                                        << "remote" << 1 << "[2]";
}

void TestReconcile::resolution()
{
    QFETCH(QString, base);
    QFETCH(QString, local);
    QFETCH(QString, remote);
    QFETCH(QString, choice);
    QFETCH(int, state);
    QFETCH(QString, result);

    auto entries = Reconcile::build(side(base), side(local), side(remote));
    ReconcileEntry &found = entries.front();
    const auto choose = [&found](const QString &what) {
        if (what == QLatin1String("local"))
            found.takeLocal();
        else if (what == QLatin1String("remote"))
            found.takeRemote();
        else
            found.takeText(what);
    };
    choose(QStringLiteral("something else first"));
    choose(choice);
    QCOMPARE(int(found.state), state);
    QCOMPARE(textOr(found.result), result);
    const auto changes = Reconcile::apply(entries);
    QVERIFY(changes);
    QCOMPARE(changes->remove.size(), result == QLatin1String("-") ? 1 : 0);
    QCOMPARE(changes->write, side(result));
}

void TestReconcile::apply_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("message"); // empty: it is written

    const QString conflicts = QStringLiteral("the reconcile has conflicts to resolve first");
    const auto invalid = [](const char *file) {
        return QStringLiteral("the merged file '") + QLatin1String(file)
               + QStringLiteral("' would not be valid");
    };
    QTest::newRow("edited") << "a.txt" << 4 << "x" << conflicts;
    QTest::newRow("added") << "a.txt" << 7 << "x" << conflicts;
    QTest::newRow("deleted and changed") << "a.txt" << 10 << "x" << conflicts;
    QTest::newRow("broken object") << "a.json" << 3 << "{\"a\": 1 \"b\": 2}" << invalid("a.json");
    QTest::newRow("broken on disk") << "a.json" << 2 << "{" << invalid("a.json");
    QTest::newRow("emptied") << "a.json" << 1 << "" << invalid("a.json");
    QTest::newRow("path with a placeholder") << "%1/%2.json" << 6 << "" << invalid("%1/%2.json");
    QTest::newRow("an array is a document") << "a.json" << 3 << "[1]"
                                            << "";
    QTest::newRow("unchanged is not looked at") << "a.json" << 0 << "{"
                                                << "";
    QTest::newRow("other files are not looked at") << "a.md" << 3 << "{"
                                                   << "";
    QTest::newRow("the ending is of small letters") << "a.JSON" << 3 << "{"
                                                    << "";
}

void TestReconcile::apply()
{
    QFETCH(QString, file);
    QFETCH(int, state);
    QFETCH(QString, result);
    QFETCH(QString, message);

    const std::vector<ReconcileEntry> entries = {
        entry(QStringLiteral("0.json"), DeletedLocally, std::nullopt),
        entry(file, ReconcileState(state), result),
    };
    const auto changes = Reconcile::apply(entries);
    QCOMPARE(changes.hasFailed(), !message.isEmpty());
    if (changes.hasFailed()) {
        QCOMPARE(changes.message(), message);
        return;
    }
    QCOMPARE(changes->write, (Files{{file, result}}));
    QCOMPARE(changes->remove, QStringList{QStringLiteral("0.json")});
}

void TestReconcile::brokenMergeIsRefused()
{
    // Each side takes out one of two neighbouring members; what is left ends in a comma.
    const QString base = QStringLiteral("{\n    \"a\": 1,\n    \"b\": 2,\n    \"c\": 3\n}\n");
    const QString local = QStringLiteral("{\n    \"a\": 1,\n    \"c\": 3\n}\n");
    const QString remote = QStringLiteral("{\n    \"a\": 1,\n    \"b\": 2\n}\n");
    const auto conflicting = Reconcile::build(side(base), side(local), side(remote));
    QCOMPARE(conflicting.front().state, ConflictEdited); // both changed the line of "b"

    const QString broken = QStringLiteral("{\n    \"a\": 1,\n    \"b\": 2,\n}\n");
    const auto merged = Reconcile::build(side(base), side(local), side(broken));
    QCOMPARE(merged.front().state, Merged);
    QCOMPARE(Reconcile::apply(merged).message(),
             QStringLiteral("the merged file 'objects/a.json' would not be valid"));
}

QTEST_GUILESS_MAIN(TestReconcile)
#include "tst_reconcile.moc"
