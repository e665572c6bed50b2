#include "app/base/files.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace vl::app;

namespace {

const WriteMessages messages{QStringLiteral("no open: %1"), QStringLiteral("no write: %1")};
const QString unreadable = QStringLiteral("no read: %1");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(none)");
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

class TestFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writeReplacesTheWhole_data();
    void writeReplacesTheWhole();
    void writeRefuses_data();
    void writeRefuses();
    void linkAndPermissionsAreKept();
    void uncommittedWriteLeavesNothing();
    void batchChangesAllOrNone();
    void batchLeavesRightFilesAlone();
    void readRefuses_data();
    void readRefuses();
    void foldersAreMade();

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                               + QStringLiteral("/fìles of a test-XXXXXX"));
    QVERIFY(m_folder->isValid());
}

void TestFiles::writeReplacesTheWhole_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QList<qsizetype>>("pieces");
    QTest::newRow("nothing") << QByteArray("old text") << QList<qsizetype>{};
    QTest::newRow("shorter than before") << QByteArray(5000, 'o') << QList<qsizetype>{3};
    QTest::newRow("many small pieces") << QByteArray() << QList<qsizetype>(2000, 331);
    QTest::newRow("small, large, small")
        << QByteArray("o") << QList<qsizetype>{7, 900000, 1, 200000, 262144, 5};
}

void TestFiles::writeReplacesTheWhole()
{
    QFETCH(QByteArray, before);
    QFETCH(QList<qsizetype>, pieces);
    put(at(QStringLiteral("file")), before);
    QByteArray wanted;
    AtomicFile file(at(QStringLiteral("file")), messages);
    QVERIFY(file.open());
    for (const qsizetype size : pieces) {
        const QByteArray piece(size, char('a' + wanted.size() % 26));
        QVERIFY(file.write(piece));
        wanted += piece;
    }
    QCOMPARE(contentOf(at(QStringLiteral("file"))), before);
    QVERIFY(file.commit());
    QCOMPARE(contentOf(at(QStringLiteral("file"))), wanted);
    QCOMPARE(names(), QStringList{QStringLiteral("file")});
}

void TestFiles::writeRefuses_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a folder stands there") << QStringLiteral("folder");
    QTest::newRow("no such folder") << QStringLiteral("absent/file");
#ifdef Q_OS_UNIX
    QTest::newRow("a pipe") << QStringLiteral("pipe");
    QTest::newRow("links in a circle") << QStringLiteral("circle");
#endif
}

void TestFiles::writeRefuses()
{
    QFETCH(QString, path);
    QVERIFY(QDir().mkpath(at(QStringLiteral("folder"))));
#ifdef Q_OS_UNIX
    QCOMPARE(::mkfifo(QFile::encodeName(at(QStringLiteral("pipe"))).constData(), 0600), 0);
    QVERIFY(QFile::link(at(QStringLiteral("circle")), at(QStringLiteral("circle"))));
#endif
    const QStringList before = names();
    const Result<> result = writeFile(at(path), "text", messages);
    QVERIFY(result.hasFailed());
    QCOMPARE(result.message(), QStringLiteral("no open: ") + QDir::toNativeSeparators(at(path)));
    QCOMPARE(names(), before);
}

void TestFiles::linkAndPermissionsAreKept()
{
#ifndef Q_OS_UNIX
    QSKIP("links and modes are a matter of Unix");
#else
    QVERIFY(QDir().mkpath(at(QStringLiteral("elsewhere"))));
    put(at(QStringLiteral("elsewhere/file")), "old");
    QCOMPARE(::chmod(QFile::encodeName(at(QStringLiteral("elsewhere/file"))).constData(), 0640), 0);
    QVERIFY(QFile::link(QStringLiteral("elsewhere/file"), at(QStringLiteral("link"))));
    QVERIFY(writeFile(at(QStringLiteral("link")), "new", messages));

    QVERIFY(QFileInfo(at(QStringLiteral("link"))).isSymLink());
    QCOMPARE(contentOf(at(QStringLiteral("elsewhere/file"))), QByteArray("new"));
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(at(QStringLiteral("link"))).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0640);
#endif
}

void TestFiles::uncommittedWriteLeavesNothing()
{
    put(at(QStringLiteral("file")), "old");
    {
        AtomicFile file(at(QStringLiteral("file")), messages);
        QVERIFY(file.open());
        QVERIFY(file.write(QByteArray(1 << 20, 'x')));
        QCOMPARE(names().size(), 2);
        const QStringList there = names();
        QVERIFY(isUnfinishedFileName(there.at(0)) || isUnfinishedFileName(there.at(1)));
        QVERIFY(!isUnfinishedFileName(QStringLiteral("file")));
    }
    QCOMPARE(names(), QStringList{QStringLiteral("file")});
    QCOMPARE(contentOf(at(QStringLiteral("file"))), QByteArray("old"));
}

void TestFiles::batchChangesAllOrNone()
{
    for (int i = 0; i < 20; ++i)
        put(at(QString::number(i)), "old");
    {
        FileBatch batch(messages, Durability::Synced);
        for (int i = 0; i < 20; ++i)
            QVERIFY(batch.add(at(QString::number(i)), "new"));
        QVERIFY(batch.add(at(QStringLiteral("absent/file")), "new").hasFailed());
    }
    for (int i = 0; i < 20; ++i)
        QCOMPARE(contentOf(at(QString::number(i))), QByteArray("old"));
    QCOMPARE(names().size(), 20);

    FileBatch batch(messages, Durability::Synced);
    for (int i = 0; i < 20; ++i)
        QVERIFY(batch.add(at(QString::number(i)), "new"));
    QVERIFY(batch.commit());
    for (int i = 0; i < 20; ++i)
        QCOMPARE(contentOf(at(QString::number(i))), QByteArray("new"));
    QCOMPARE(names().size(), 20);
}

void TestFiles::batchLeavesRightFilesAlone()
{
    const QByteArray large(200000, 'l');
    put(at(QStringLiteral("right")), large);
    put(at(QStringLiteral("longer")), large + 'x');
    put(at(QStringLiteral("other end")), large);
    FileBatch batch(messages, Durability::Atomic);
    QVERIFY(batch.add(at(QStringLiteral("right")), large));
    QCOMPARE(batch.count(), 0);
    QVERIFY(batch.add(at(QStringLiteral("longer")), large));
    QVERIFY(batch.add(at(QStringLiteral("other end")), large.chopped(1) + 'x'));
    QVERIFY(batch.add(at(QStringLiteral("absent")), QByteArray()));
    QCOMPARE(batch.count(), 3);
    QVERIFY(batch.commit());
    QCOMPARE(contentOf(at(QStringLiteral("longer"))), large);
    QCOMPARE(contentOf(at(QStringLiteral("other end"))), large.chopped(1) + 'x');
    QCOMPARE(contentOf(at(QStringLiteral("absent"))), QByteArray());
}

void TestFiles::readRefuses_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("follow");
    QTest::addColumn<bool>("reads");
    QTest::newRow("a file at the limit") << QStringLiteral("ten") << false << true;
    QTest::newRow("a file above the limit") << QStringLiteral("eleven") << false << false;
    QTest::newRow("a folder") << QStringLiteral("folder") << true << false;
    QTest::newRow("nothing") << QStringLiteral("absent") << true << false;
#ifdef Q_OS_UNIX
    QTest::newRow("a pipe") << QStringLiteral("pipe") << true << false;
    QTest::newRow("a device") << QStringLiteral("zero") << true << false;
    QTest::newRow("a link followed") << QStringLiteral("link") << true << true;
    QTest::newRow("a link refused") << QStringLiteral("link") << false << false;
#endif
}

void TestFiles::readRefuses()
{
    QFETCH(QString, path);
    QFETCH(bool, follow);
    QFETCH(bool, reads);
    put(at(QStringLiteral("ten")), "0123456789");
    put(at(QStringLiteral("eleven")), "0123456789x");
    QVERIFY(QDir().mkpath(at(QStringLiteral("folder"))));
#ifdef Q_OS_UNIX
    QCOMPARE(::mkfifo(QFile::encodeName(at(QStringLiteral("pipe"))).constData(), 0600), 0);
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), at(QStringLiteral("zero"))));
    QVERIFY(QFile::link(QStringLiteral("ten"), at(QStringLiteral("link"))));
#endif
    const Result<QByteArray> result =
        readRegularFile(at(path), unreadable, 10, follow ? Links::Follow : Links::Refuse);
    QCOMPARE(bool(result), reads);
    if (reads)
        QCOMPARE(*result, QByteArray("0123456789"));
    else
        QCOMPARE(result.message(),
                 QStringLiteral("no read: ") + QDir::toNativeSeparators(at(path)));
}

void TestFiles::foldersAreMade()
{
    QVERIFY(makeFolder(at(QStringLiteral("a/b/c"))));
    QVERIFY(QFileInfo(at(QStringLiteral("a/b/c"))).isDir());
    QVERIFY(makeFolder(at(QStringLiteral("a/b/c"))));
    put(at(QStringLiteral("a/file")), "x");
    QVERIFY(!makeFolder(at(QStringLiteral("a/file"))));
    QVERIFY(!makeFolder(at(QStringLiteral("a/file/d"))));
    QVERIFY(renamePath(at(QStringLiteral("a/b")), at(QStringLiteral("moved"))));
    QVERIFY(QFileInfo(at(QStringLiteral("moved/c"))).isDir());
    QVERIFY(removeFile(at(QStringLiteral("a/file"))));
    QVERIFY(removeFile(at(QStringLiteral("a/file"))));
    QVERIFY(!removeFile(at(QStringLiteral("moved"))));
}

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
