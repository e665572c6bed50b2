#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

namespace {

struct Outcome
{
    int status = -1;
    QByteArray output;
    QString messages;
};

} // namespace

class TestMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void folders_data();
    void folders();
    void files_data();
    void files();

private:
    Outcome run(const QStringList &arguments) const;
    void write(const QString &path, const QByteArray &bytes) const;
    QByteArray read(const QString &path) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void TestMerge::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("un été"));
    QVERIFY(QDir().mkpath(m_path));
}

Outcome TestMerge::run(const QStringList &arguments) const
{
    QProcess process;
    process.setWorkingDirectory(m_path);
    process.start(QStringLiteral(IVOREL_CLI), arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished())
        return {};
    return {process.exitCode(), process.readAllStandardOutput(),
            QString::fromUtf8(process.readAllStandardError()).trimmed()};
}

void TestMerge::write(const QString &path, const QByteArray &bytes) const
{
    QFile file(m_path + QLatin1Char('/') + path);
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray TestMerge::read(const QString &path) const
{
    QFile file(m_path + QLatin1Char('/') + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void TestMerge::folders_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("remote"); // of notes.md; base 1 2 3, local 0 2 3
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("merged");

    const QStringList three = {QStringLiteral("base"), QStringLiteral("local"),
                               QStringLiteral("remote")};
    const QStringList writing = three + QStringList{QStringLiteral("--output=out")};
    const QByteArray none("(none)");
    QTest::newRow("clean") << three << QByteArray("1\n2\n4\n") << 0
                           << QByteArray("DeletedLocally a b.txt\nMerged notes.md\n") << "" << none;
    QTest::newRow("written") << writing << QByteArray("1\n2\n4\n") << 0
                             << QByteArray("DeletedLocally a b.txt\nMerged notes.md\n") << ""
                             << QByteArray("0\n2\n4\n");
    QTest::newRow("conflict") << writing << QByteArray("5\n2\n3\n") << 1
                              << QByteArray("DeletedLocally a b.txt\nConflictEdited notes.md\n")
                              << "the reconcile has conflicts to resolve first" << none;
    QTest::newRow("no such folder")
        << (three.mid(0, 2) + QStringList{QStringLiteral("gone")}) << QByteArray("1\n") << 3
        << QByteArray() << "The project folder does not exist: gone" << none;
    QTest::newRow("an argument is missing")
        << three.mid(0, 2) << QByteArray("1\n") << 2 << QByteArray()
        << "REMOTE is missing.\nUsage: ivorel-cli merge BASE LOCAL REMOTE [--output FOLDER]"
        << none;
}

void TestMerge::folders()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, remote);
    QFETCH(int, status);
    QFETCH(QByteArray, output);
    QFETCH(QString, message);
    QFETCH(QByteArray, merged);

    write(QStringLiteral("base/a b.txt"), "x");
    write(QStringLiteral("remote/a b.txt"), "x");
    write(QStringLiteral("base/notes.md"), "1\n2\n3\n");
    write(QStringLiteral("local/notes.md"), "0\n2\n3\n");
    write(QStringLiteral("remote/notes.md"), remote);
    const Outcome outcome = run(QStringList{QStringLiteral("merge")} + arguments);
    QCOMPARE(outcome.messages, message);
    QCOMPARE(outcome.status, status);
    QCOMPARE(outcome.output, output);
    QCOMPARE(read(QStringLiteral("out/notes.md")), merged);
}

void TestMerge::files_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("remote"); // base is 1 2 3, local is 0 2 3
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("local"); // what it holds afterwards

    const QByteArray before("0\n2\n3\n");
    const QByteArray marked("<<<<<<< local\n0\n=======\n5\n>>>>>>> remote\n2\n3\n");
    const QStringList none;
    const QStringList over = {QStringLiteral("--output"), QStringLiteral("local")};
    const QStringList json = {QStringLiteral("--path"), QStringLiteral("objects/%1.json")};
    QTest::newRow("clean") << none << QByteArray("1\n2\n4") << 0 << QByteArray("0\n2\n4") << ""
                           << before;
    QTest::newRow("conflict") << none << QByteArray("5\n2\n3\n") << 1 << marked << "" << before;
    QTest::newRow("over the local file")
        << over << QByteArray("1\n2\n4\n") << 0 << QByteArray() << "" << QByteArray("0\n2\n4\n");
    QTest::newRow("conflict over the local file")
        << over << QByteArray("5\n2\n3\n") << 1 << QByteArray() << "" << marked;
    QTest::newRow("no valid JSON")
        << json << QByteArray("1\n2\n4\n") << 1 << QByteArray("0\n2\n4\n")
        << "the merged file 'objects/%1.json' would not be valid" << before;
    QTest::newRow("bytes that are no UTF-8")
        << none << QByteArray("1\n2\n\xff\n") << 0 << QByteArray("0\n2\n\xff\n") << "" << before;
    QTest::newRow("not a text") << none << QByteArray("1\n2\0\n", 5) << 3 << QByteArray()
                                << "Not a text file, so it cannot be merged: local" << before;
}

void TestMerge::files()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, remote);
    QFETCH(int, status);
    QFETCH(QByteArray, output);
    QFETCH(QString, message);
    QFETCH(QByteArray, local);

    write(QStringLiteral("base"), "1\n2\n3\n");
    write(QStringLiteral("local"), "0\n2\n3\n");
    write(QStringLiteral("remote"), remote);
    const Outcome outcome = run(QStringList{QStringLiteral("merge-file"), QStringLiteral("base"),
                                            QStringLiteral("local"), QStringLiteral("remote")}
                                + options);
    QCOMPARE(outcome.messages, message);
    QCOMPARE(outcome.status, status);
    QCOMPARE(outcome.output, output);
    QCOMPARE(read(QStringLiteral("local")), local);
}

QTEST_GUILESS_MAIN(TestMerge)
#include "tst_merge.moc"
