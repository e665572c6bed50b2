#include "app/storage/journal.h"
#include "app/storage/journalshelf.h"
#include "tests/support/folders.h"

#include <QtTest/QtTest>

using namespace vl;
using namespace vl::app;
using namespace vl::test;

namespace {

/// The changes of a journal, one a blank: "path=bytes", or "path-" for one that goes.
QString changesIn(const Journal &journal)
{
    QStringList texts;
    for (const auto &[path, file] : journal.files)
        texts.append(path
                     + (file.change.bytes ? u'=' + QString::fromUtf8(*file.change.bytes)
                                          : QStringLiteral("-")));
    return texts.join(u' ');
}

/// A program that ran on this machine and is gone.
LockHolder goneProgram()
{
    LockHolder holder = LockHolder::current();
    holder.processStart = QStringLiteral("1");
    return holder;
}

FileChange change(const char *path, const char *bytes)
{
    return {QString::fromLatin1(path), bytes ? std::optional(QByteArray(bytes)) : std::nullopt};
}

} // namespace

class TestJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writtenAndRead_data();
    void writtenAndRead();
    void tornAnywhere();
    void everyByteWrong();
    void staysSmall();
    void knowsWhatItGoesOnFrom_data();
    void knowsWhatItGoesOnFrom();
    void failedWritesAreMadeUpFor_data();
    void failedWritesAreMadeUpFor();
    void crashWhileWrittenAnew_data();
    void crashWhileWrittenAnew();
    void keptForAWhile_data();
    void keptForAWhile();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    JournalWriter writer(const FileMap &base = {})
    {
        return {at(QStringLiteral("x.journal")),
                {QStringLiteral("/a/novel"), LockHolder::current()},
                [base](const QString &path) {
                    return base.contains(path) ? std::optional(base.value(path)) : std::nullopt;
                }};
    }
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestJournal::init()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/jóurnal of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
}

void TestJournal::writtenAndRead_data()
{
    using Pieces = QList<std::vector<FileChange>>;
    QTest::addColumn<Pieces>("pieces");
    QTest::addColumn<QString>("read");
    QTest::newRow("nothing") << Pieces{{}} << "(none)";
    QTest::newRow("one") << Pieces{{change("a", "text")}} << "a=text";
    QTest::newRow("grows") << Pieces{{change("a", "text")}, {change("a", "text and more")}}
                           << "a=text and more";
    QTest::newRow("in the middle")
        << Pieces{{change("a", "one two three")}, {change("a", "one 2 three")}} << "a=one 2 three";
    QTest::newRow("repetition") << Pieces{{change("a", "aaaa")},
                                          {change("a", "aaaaaa")},
                                          {change("a", "aaa")}}
                                << "a=aaa";
    QTest::newRow("to nothing and back")
        << Pieces{{change("a", "x")}, {change("a", "")}, {change("a", "y")}} << "a=y";
    QTest::newRow("gone") << Pieces{{change("a", "x"), change("b", "y")}, {change("a", nullptr)}}
                          << "a- b=y";
    QTest::newRow("gone and back")
        << Pieces{{change("a", nullptr)}, {change("a", "again")}} << "a=again";
    QTest::newRow("the same again") << Pieces{{change("a", "x")}, {change("a", "x")}} << "a=x";
}

void TestJournal::writtenAndRead()
{
    using Pieces = QList<std::vector<FileChange>>;
    QFETCH(Pieces, pieces);
    QFETCH(QString, read);
    JournalWriter journal = writer();
    for (const auto &piece : pieces)
        QVERIFY(journal.write(piece));
    const Result<Journal> result = readJournal(journal.path());
    QCOMPARE(result ? changesIn(*result) : QStringLiteral("(none)"), read);
    if (result) {
        QCOMPARE(result->header.projectPath, QStringLiteral("/a/novel"));
        QVERIFY(!result->isTorn);
    }
    journal.clear();
    QVERIFY(!QFile::exists(journal.path()));
    QVERIFY(journal.write({change("c", "after")}));
    QCOMPARE(changesIn(*readJournal(journal.path())), QStringLiteral("c=after"));
}

void TestJournal::tornAnywhere()
{
    JournalWriter journal = writer();
    QList<qsizetype> ends; // of the pieces
    for (const char *text : {"one", "one two", "two"}) {
        QVERIFY(journal.write({change("a", text), change("b", text)}));
        ends.append(fileBytes(journal.path()).size());
    }
    const QByteArray whole = fileBytes(journal.path());
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const std::optional<Journal> read = parseJournal(whole.first(size));
        QString expected;
        if (size >= ends.at(1))
            expected = QStringLiteral("a=one two b=one two");
        else if (size >= ends.at(0))
            expected = QStringLiteral("a=one b=one");
        QCOMPARE(read ? changesIn(*read) : QString(), expected);
        if (read)
            QCOMPARE(read->isTorn, !read->files.empty() && !ends.contains(size));
        if (read && read->files.empty())
            return; // the head alone
    }
}

void TestJournal::everyByteWrong()
{
    JournalWriter journal = writer();
    QVERIFY(journal.write({change("a", "one")}));
    QVERIFY(journal.write({change("a", "one two")}));
    const QByteArray whole = fileBytes(journal.path());
    for (qsizetype i = 0; i < whole.size(); ++i) {
        QByteArray wrong = whole;
        wrong[i] = char(wrong.at(i) ^ 0x20);
        const std::optional<Journal> read = parseJournal(wrong);
        const QString changes = read ? changesIn(*read) : QString();
        QVERIFY(changes.isEmpty() || changes == QLatin1String("a=one"));
    }
}

void TestJournal::staysSmall()
{
    JournalWriter journal = writer();
    QByteArray text;
    for (int i = 0; i < 100; ++i) {
        text = QByteArray(500'000, char('a' + i % 26));
        QVERIFY(
            journal.write({{QStringLiteral("a"), text}, {QStringLiteral("b%1").arg(i % 3), "b"}}));
    }
    QVERIFY(QFileInfo(journal.path()).size() < 20'000'000);
    const Result<Journal> read = readJournal(journal.path());
    QCOMPARE(*read->files.at(QStringLiteral("a")).change.bytes, text);
    QVERIFY(read->pieces > 100);
    QCOMPARE(namesIn(m_folder->path()).size(), 1);
}

void TestJournal::knowsWhatItGoesOnFrom_data()
{
    QTest::addColumn<QString>("present"); // null: there is no file
    QTest::addColumn<bool>("goesOn");
    QTest::newRow("as before") << "base" << true;
    QTest::newRow("saved in between") << "first" << true;
    QTest::newRow("as the journal ends") << "second" << true;
    QTest::newRow("newer") << "third" << false;
    QTest::newRow("removed") << QString() << false;
}

void TestJournal::knowsWhatItGoesOnFrom()
{
    QFETCH(QString, present);
    QFETCH(bool, goesOn);
    JournalWriter journal = writer({{QStringLiteral("a"), "base"}});
    QVERIFY(journal.write({change("a", "first"), change("new", "x")}));
    QVERIFY(journal.write({change("a", "second")}));
    const Result<Journal> read = readJournal(journal.path());
    const auto bytes = present.isNull() ? std::nullopt : std::optional(present.toUtf8());
    QCOMPARE(read->files.at(QStringLiteral("a")).goesOnFrom(bytes), goesOn);
    QVERIFY(read->files.at(QStringLiteral("new")).goesOnFrom(std::nullopt));
}

void TestJournal::failedWritesAreMadeUpFor_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("it cannot be begun") << "before";
    QTest::newRow("it is gone in between") << "gone";
    QTest::newRow("its folder is gone in between") << "folder";
}

void TestJournal::failedWritesAreMadeUpFor()
{
    QFETCH(QString, fault);
    const QString folder = at(QStringLiteral("data"));
    JournalWriter journal(folder + QStringLiteral("/x.journal"),
                          {QStringLiteral("/a/novel"), LockHolder::current()},
                          [](const QString &) { return std::optional(QByteArray("base")); });
    if (fault == QLatin1String("before")) {
        putFile(folder, "no folder");
        const Result<> first = journal.write({change("a", "one")});
        QVERIFY(!first && !first.message().isEmpty());
        QVERIFY(!journal.write({change("b", "two")}));
        QVERIFY(QFile::remove(folder));
    } else {
        QVERIFY(journal.write({change("a", "one")}));
        QVERIFY(journal.write({change("b", "two")}));
        QVERIFY(fault == QLatin1String("gone") ? QFile::remove(journal.path())
                                               : QDir(folder).removeRecursively());
    }
    QVERIFY(journal.write({change("c", "three")}));
    const Result<Journal> read = readJournal(journal.path());
    QCOMPARE(changesIn(*read), QStringLiteral("a=one b=two c=three"));
    QCOMPARE(read->files.at(QStringLiteral("a")).base, std::optional(QByteArray("base")));
}

void TestJournal::crashWhileWrittenAnew_data()
{
    QTest::addColumn<int>("oldPieces"); // in the old journal, of three; -1: it is not there
    QTest::addColumn<int>("newPieces"); // in the one that was to take its place
    QTest::addColumn<bool>("isNewWhole");
    QTest::addColumn<QString>("stands");
    QTest::newRow("before the new one was whole") << 2 << 3 << false << "a=2";
    QTest::newRow("before it took the place") << 2 << 2 << true << "a=2";
    QTest::newRow("the new one is ahead") << 1 << 3 << true << "a=3";
    QTest::newRow("the old one is ahead") << 3 << 2 << true << "a=3";
    QTest::newRow("the old one is gone") << -1 << 3 << true << "a=3";
    QTest::newRow("nothing whole is left") << -1 << 3 << false << "";
}

void TestJournal::crashWhileWrittenAnew()
{
    QFETCH(int, oldPieces);
    QFETCH(int, newPieces);
    QFETCH(bool, isNewWhole);
    QFETCH(QString, stands);
    StorageLocations locations;
    locations.root = at(QStringLiteral("data"));
    const QString path = locations.workingFolder() + QStringLiteral("/x.000001-1.journal");
    const auto write = [&](int pieces) {
        JournalWriter journal(path, {QStringLiteral("/a/novel"), goneProgram()},
                              [](const QString &) { return std::nullopt; });
        for (int i = 1; i <= pieces; ++i)
            QVERIFY(journal.write({change("a", QByteArray::number(i).constData())}));
    };
    write(newPieces);
    const QByteArray anew = fileBytes(path);
    QVERIFY(QFile::remove(path));
    putFile(nextJournalPath(path), isNewWhole ? anew : anew.chopped(1));
    if (oldPieces >= 0)
        write(oldPieces);

    const std::vector<FoundJournal> found = JournalShelf(locations).left();
    const auto read = found.empty() ? Result<Journal>(failure({})) : readJournal(found[0].path);
    QCOMPARE(read ? changesIn(*read) : QString(), stands);
    QVERIFY(!QFile::exists(nextJournalPath(path)));
}

void TestJournal::keptForAWhile_data()
{
    QTest::addColumn<QList<int>>("days"); // on which the program was started, after the first
    QTest::addColumn<bool>("isListed");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("within the time") << QList<int>{10, 30} << true << true;
    QTest::newRow("too old, seen so for the first time") << QList<int>{31} << false << true;
    QTest::newRow("too old on three days") << QList<int>{31, 32, 33} << false << false;
    QTest::newRow("three times on one day") << QList<int>{40, 40, 40} << false << true;
    QTest::newRow("a clock that jumps ahead and back") << QList<int>{9000, 1, 2} << true << true;
    QTest::newRow("a clock set back by years") << QList<int>{-9000, -8999, -8998} << true << true;
}

void TestJournal::keptForAWhile()
{
    QFETCH(QList<int>, days);
    QFETCH(bool, isListed);
    QFETCH(bool, isThere);
    const QDateTime start(QDate(2024, 5, 6), QTime(12, 0), Qt::UTC);
    QDateTime now = start;
    StorageLocations locations;
    locations.root = at(QStringLiteral("data"));
    locations.now = [&now] { return now; };
    const JournalShelf shelf(locations);
    const QString path = locations.workingFolder() + QStringLiteral("/untitled-1.journal");
    {
        JournalWriter journal(path, {QString(), goneProgram()},
                              [](const QString &) { return std::nullopt; });
        QVERIFY(journal.write({change("a", "one")}));
    }
    QVERIFY(QDir().mkpath(JournalShelf::mediaFolderOf(path)));
    putFile(JournalShelf::mediaFolderOf(path) + QStringLiteral("/map.png"), "picture");
    QVERIFY(shelf.keep(path));
    QCOMPARE(shelf.left().size(), 0U);
    const QString kept = shelf.kept().at(0).path;
    for (const int day : days) {
        now = start.addDays(day);
        shelf.thin();
    }
    QCOMPARE(shelf.kept().size(), isListed ? 1U : 0U);
    QCOMPARE(QFile::exists(kept), isThere);
    const QString picture = JournalShelf::mediaFolderOf(kept) + QStringLiteral("/map.png");
    QCOMPARE(QFile::exists(picture), isThere);
}

QTEST_GUILESS_MAIN(TestJournal)
#include "tst_journal.moc"
