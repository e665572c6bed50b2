#include "app/storage/filemerge.h"
#include "app/storage/foldermerge.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace vl::app;

namespace {

using Contents = std::map<QString, QByteArray>;

void writeAll(const QString &folder, const Contents &files)
{
    QVERIFY(QDir().mkpath(folder));
    for (const auto &[path, bytes] : files) {
        const QString file = folder + QLatin1Char('/') + path;
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
    }
}

Contents readAll(const QString &folder)
{
    Contents files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        if (file.open(QIODevice::ReadOnly))
            files.emplace(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

/// "path=bytes" of each item; "-" for none.
Contents listed(const QByteArray &items)
{
    Contents files;
    for (const QByteArray &item : items.split(' ')) {
        const qsizetype at = item.indexOf('=');
        if (at > 0)
            files.emplace(QString::fromLatin1(item.left(at)), item.mid(at + 1).replace('|', '\n'));
    }
    return files;
}

} // namespace

class TestFolderMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void folders_data();
    void folders();
    void hiddenFilesAndLinksAreLeftOut();
    void whatCannotBeDone();
    void files_data();
    void files();

private:
    QString at(const char *name) const
    {
        return m_folder->filePath(QStringLiteral("un été ") + QLatin1String(name));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFolderMerge::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestFolderMerge::folders_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("local");
    QTest::addColumn<QByteArray>("remote");
    QTest::addColumn<QString>("states");
    QTest::addColumn<QByteArray>("merged"); // "!": refused

    QTest::newRow("texts") << QByteArray("a.md=1|2|3| b/c.md=1| d=1")
                           << QByteArray("a.md=0|2|3| b/c.md=1| e=1")
                           << QByteArray("a.md=1|2|4| b/c.md=2| d=1")
                           << "a.md 3, b/c.md 2, d 8, e 5"
                           << QByteArray("a.md=0|2|4| b/c.md=2| e=1");
    QTest::newRow("conflict") << QByteArray("a=1|") << QByteArray("a=2|") << QByteArray("a=3|")
                              << "a 4" << QByteArray("!");
    QTest::newRow("merged JSON is broken")
        << QByteArray("a.json={|1|2|}|") << QByteArray("a.json={|3|2|}|")
        << QByteArray("a.json={|1|4|}|") << "a.json 3" << QByteArray("!");
    QTest::newRow("assets are not merged by line")
        << QByteArray("assets/a=1|2| assets/b=1 assets/c=1")
        << QByteArray("assets/a=0|2| assets/b=2")
        << QByteArray("assets/a=1|3| assets/b=1 assets/c=1") << "assets/a 4, assets/b 1, assets/c 8"
        << QByteArray("!");
    QTest::newRow("assets taken whole")
        << QByteArray("assets/b=1 assets/c=1") << QByteArray("assets/b=2 assets/c=1 assets/d=7")
        << QByteArray("assets/b=1 assets/c=3 assets/d=7") << "assets/b 1, assets/c 2, assets/d 3"
        << QByteArray("assets/b=2 assets/c=3 assets/d=7");
    QTest::newRow("other encodings are not merged by line")
        << QByteArray("a=\xe9|2|") << QByteArray("a=\xe9|3|") << QByteArray("a=\xe8|2|") << "a 4"
        << QByteArray("!");
    QTest::newRow("other encodings are taken whole")
        << QByteArray("a=\xe9|2| b=1") << QByteArray("a=\xe9|3| b=1")
        << QByteArray("a=\xe9|2| b=\xff") << "a 1, b 2" << QByteArray("a=\xe9|3| b=\xff");
    QTest::newRow("byte-order marks stay") << QByteArray("a=\xef\xbb\xbf"
                                                         "1|2|")
                                           << QByteArray("a=\xef\xbb\xbf"
                                                         "0|2|")
                                           << QByteArray("a=\xef\xbb\xbf"
                                                         "1|3|")
                                           << "a 3"
                                           << QByteArray("a=\xef\xbb\xbf"
                                                         "0|3|");
}

void TestFolderMerge::folders()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, local);
    QFETCH(QByteArray, remote);
    QFETCH(QString, states);
    QFETCH(QByteArray, merged);

    writeAll(at("base"), listed(base));
    writeAll(at("local"), listed(local));
    writeAll(at("remote"), listed(remote));
    const auto merge = FolderMerge::compare(at("base"), at("local"), at("remote"));
    QVERIFY(merge);
    QStringList found;
    for (const FolderMergeFile &file : merge->files())
        found += file.path + QLatin1Char(' ') + QString::number(int(file.state));
    QCOMPARE(found.join(QStringLiteral(", ")), states);
    const bool refused = merged == "!";
    QCOMPARE(merge->check().hasFailed(), refused);
    QCOMPARE(merge->write(at("out")).hasFailed(), refused);
    QCOMPARE(QFileInfo::exists(at("out")), !refused);
    QCOMPARE(readAll(at("out")), refused ? Contents() : listed(merged));
}

void TestFolderMerge::hiddenFilesAndLinksAreLeftOut()
{
    writeAll(at("base"), {});
    writeAll(at("local"), listed("a=1 .git/config=2 .hidden=3"));
    writeAll(at("remote"), listed("a=1"));
    QVERIFY(QFile::link(at("local") + QStringLiteral("/a"), at("local") + QStringLiteral("/link")));
    const auto merge = FolderMerge::compare(at("base"), at("local"), at("remote"));
    QVERIFY(merge);
    QCOMPARE(merge->files(),
             (std::vector<FolderMergeFile>{{QStringLiteral("a"), ReconcileState::Merged}}));
}

void TestFolderMerge::whatCannotBeDone()
{
    writeAll(at("base"), listed("a=1"));
    const auto missing = FolderMerge::compare(at("base"), at("base"), at("none"));
    QVERIFY(missing.hasFailed());
    QCOMPARE(missing.message(), QStringLiteral("The project folder does not exist: ") + at("none"));

    const auto merge = FolderMerge::compare(at("base"), at("base"), at("base"));
    QVERIFY(merge);
    writeAll(at("out"), listed(".kept=1"));
    QVERIFY(merge->write(at("out")).hasFailed());
    QCOMPARE(readAll(at("out")), listed(".kept=1"));
}

void TestFolderMerge::files_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("local");
    QTest::addColumn<QByteArray>("remote");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("merged"); // "!": refused
    QTest::addColumn<bool>("needsCare");

    const QByteArray binary("\0\n1\n2\n", 6);
    const QByteArray other("\0\n1\n3\n", 6);
    QTest::newRow("clean") << QByteArray("1\n2\n") << QByteArray("0\n2\n") << QByteArray("1\n3\n")
                           << "a.txt" << QByteArray("0\n3\n") << false;
    QTest::newRow("clean, but no JSON")
        << QByteArray("[\n2\n]") << QByteArray("[\n2,\n]") << QByteArray("[\n2\n]") << "a/b.json"
        << QByteArray("[\n2,\n]") << true;
    QTest::newRow("conflict") << QByteArray("1\n") << QByteArray("2\n") << QByteArray("3\n")
                              << "a.json"
                              << QByteArray("<<<<<<< local\n2\n=======\n3\n>>>>>>> remote\n")
                              << true;
    QTest::newRow("binary, changed by one") << binary << binary << other << "a" << other << false;
    QTest::newRow("binary, changed by both") << binary << other << binary + "x"
                                             << "a" << QByteArray("!") << false;
}

void TestFolderMerge::files()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, local);
    QFETCH(QByteArray, remote);
    QFETCH(QString, path);
    QFETCH(QByteArray, merged);
    QFETCH(bool, needsCare);

    writeAll(at(""), {{QStringLiteral("base"), base},
                      {QStringLiteral("local"), local},
                      {QStringLiteral("remote"), remote}});
    const auto result = FileMerge::merge(at("/base"), at("/local"), at("/remote"), path);
    QCOMPARE(result.hasFailed(), merged == "!");
    if (result.hasFailed())
        return;
    QCOMPARE(result->bytes, merged);
    QCOMPARE(result->needsCare(), needsCare);
}

QTEST_GUILESS_MAIN(TestFolderMerge)
#include "tst_foldermerge.moc"
