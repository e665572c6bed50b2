#include "app/base/files.h"
#include "app/base/sha256.h"
#include "app/storage/archive.h"
#include "tests/support/zipbuilder.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <zip.h>

using namespace vl::app;
using vl::test::crc32;
using vl::test::ZipArchive;
using vl::test::ZipEntry;

Q_DECLARE_METATYPE(ZipArchive)

namespace {

using Files = QMap<QByteArray, QByteArray>;

QByteArray packed(const Files &files)
{
    QByteArray bytes;
    ArchiveWriter writer([&bytes](QByteArrayView piece) {
        bytes += piece;
        return Result<>();
    });
    for (auto it = files.begin(); it != files.end(); ++it)
        Q_UNUSED(writer.add(it.key(), it.value()).hasFailed());
    Q_UNUSED(writer.finish().hasFailed());
    return bytes;
}

/// What the archive holds, as the reader tells it; nothing when it refuses.
std::optional<Files> unpacked(const QByteArray &bytes)
{
    const std::optional<Archive> archive = Archive::parse(bytes);
    if (!archive || !archive->isSound())
        return std::nullopt;
    Files files;
    for (const Archive::Entry &entry : archive->entries()) {
        QByteArray content = *archive->content(entry);
        content.detach();
        files.insert(entry.name, content);
    }
    return files;
}

ZipEntry deflatedZeros(quint32 size)
{
    // One stored block would do for small ones; this is the toolkit's, without its frame.
    const QByteArray zeros(size, '\0');
    ZipEntry entry{"zeros", qCompress(zeros).mid(4 + 2).chopped(4)};
    entry.method = 8;
    entry.size = size;
    entry.crc = crc32(zeros);
    return entry;
}

} // namespace

class TestArchive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesAreFixed();
    void whatIsPackedComesBack_data();
    void whatIsPackedComesBack();
    void limits();
    void names_data();
    void names();
    void accepts_data();
    void accepts();
    void refuses_data();
    void refuses();
    void everyCutIsRefused();
    void everyFlippedBitIsRefusedOrHarmless();
    void archivesOfOtherTools_data();
    void archivesOfOtherTools();
    void checksums();
};

void TestArchive::bytesAreFixed()
{
    const QByteArray wanted = QByteArray::fromHex("504b0304"
                                                  "1400"
                                                  "0000"
                                                  "0000"
                                                  "0000"
                                                  "2100"
                                                  "86a61036"
                                                  "05000000"
                                                  "05000000"
                                                  "0100"
                                                  "0000"
                                                  "61"
                                                  "68656c6c6f"
                                                  "504b0304"
                                                  "1400"
                                                  "0000"
                                                  "0000"
                                                  "0000"
                                                  "2100"
                                                  "00000000"
                                                  "00000000"
                                                  "00000000"
                                                  "0400"
                                                  "0000"
                                                  "622fc3a9"
                                                  "504b0102"
                                                  "1400"
                                                  "1400"
                                                  "0000"
                                                  "0000"
                                                  "0000"
                                                  "2100"
                                                  "86a61036"
                                                  "05000000"
                                                  "05000000"
                                                  "0100"
                                                  "0000"
                                                  "0000"
                                                  "0000"
                                                  "0000"
                                                  "00000000"
                                                  "00000000"
                                                  "61"
                                                  "504b0102"
                                                  "1400"
                                                  "1400"
                                                  "0000"
                                                  "0000"
                                                  "0000"
                                                  "2100"
                                                  "00000000"
                                                  "00000000"
                                                  "00000000"
                                                  "0400"
                                                  "0000"
                                                  "0000"
                                                  "0000"
                                                  "0000"
                                                  "00000000"
                                                  "24000000"
                                                  "622fc3a9"
                                                  "504b0506"
                                                  "0000"
                                                  "0000"
                                                  "0200"
                                                  "0200"
                                                  "61000000"
                                                  "46000000"
                                                  "0000");
    QCOMPARE(packed({{"a", "hello"}, {"b/\xc3\xa9", ""}}).toHex(), wanted.toHex());
}

void TestArchive::whatIsPackedComesBack_data()
{
    QTest::addColumn<Files>("files");
    QTest::newRow("nothing") << Files{};
    QTest::newRow("an empty file") << Files{{"project.json", ""}};
    QTest::newRow("an archive inside") << Files{{"a", packed({{"x", "y"}})},
                                                {"project.json", "{}"},
                                                {"zz", "PK\x05\x06" + QByteArray(18, 0)}};
    QTest::newRow("hidden and nested")
        << Files{{".hidden", "h"}, {"a/b/c/d", "deep"}, {"a/b.c", "by"}};
    Files many;
    for (int i = 0; i < 3000; ++i)
        many.insert("objects/" + QByteArray::number(i), QByteArray(i, char(i)));
    QTest::newRow("many") << many;
}

void TestArchive::whatIsPackedComesBack()
{
    QFETCH(Files, files);
    const std::optional<Files> back = unpacked(packed(files));
    QVERIFY(back);
    QCOMPARE(*back, files);
}

void TestArchive::limits()
{
    qint64 written = 0;
    ArchiveWriter writer([&written](QByteArrayView piece) {
        written += piece.size();
        return Result<>();
    });
    const QByteArray long1(70000, 'n');
    const qint64 overhead = 2 * 65535 + 30 + 46 + 22;
    QVERIFY(writer.fits(long1, ArchiveWriter::maxBytes - overhead));
    QVERIFY(!writer.fits(long1, ArchiveWriter::maxBytes - overhead + 1));
    QVERIFY(writer.add(long1, "x"));
    for (int i = 1; i < 65535; ++i) {
        QVERIFY(writer.fits("n", 0));
        QVERIFY(writer.add("n", ""));
    }
    QVERIFY(!writer.fits("n", 0));
    QVERIFY(writer.finish());
    QCOMPARE(written, overhead + 1 + 65534 * (30 + 46 + 2));
}

void TestArchive::names_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("safe");
    QTest::newRow("plain") << QByteArray("objects/a.json") << true;
    QTest::newRow("dots inside") << QByteArray("a..b/...c/d..") << true;
    QTest::newRow("hidden") << QByteArray(".git/config") << true;
    QTest::newRow("colon later") << QByteArray("assets/a:b") << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("absolute") << QByteArray("/etc/passwd") << false;
    QTest::newRow("climbing") << QByteArray("../a") << false;
    QTest::newRow("climbing inside") << QByteArray("a/../../b") << false;
    QTest::newRow("climbing at the end") << QByteArray("a/..") << false;
    QTest::newRow("dot") << QByteArray("a/./b") << false;
    QTest::newRow("only a dot") << QByteArray(".") << false;
    QTest::newRow("empty part") << QByteArray("a//b") << false;
    QTest::newRow("slash at the end") << QByteArray("a/") << false;
    QTest::newRow("backslash") << QByteArray("a\\b") << false;
    QTest::newRow("climbing with backslashes") << QByteArray("..\\a") << false;
    QTest::newRow("drive") << QByteArray("C:/a") << false;
    QTest::newRow("drive, relative") << QByteArray("c:a") << false;
    QTest::newRow("share") << QByteArray("//host/a") << false;
    QTest::newRow("zero byte") << QByteArray("a\0b", 3) << false;
    QTest::newRow("not UTF-8") << QByteArray("caf\xe9") << false;
    QTest::newRow("overlong slash") << QByteArray("a\xc0\xaf"
                                                  "b")
                                    << false;
}

void TestArchive::names()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, safe);
    QCOMPARE(isSafeEntryName(name), safe);
    QCOMPARE(Archive::parse(ZipArchive{{ZipEntry{name, "x"}}}.bytes()).has_value(), safe);
}

void TestArchive::accepts_data()
{
    QTest::addColumn<ZipArchive>("archive");
    QTest::addColumn<QByteArrayList>("names");
    const QByteArrayList one{"a"};

    QTest::newRow("as it is written") << ZipArchive{{ZipEntry{"a", "x"}}} << one;
    ZipArchive archive{{ZipEntry{"a", "x"}}};
    archive.comment = QByteArray(65535, 'c');
    QTest::newRow("the largest comment") << archive << one;
    archive.comment = "PK\x05\x06" + QByteArray(40, 'c');
    QTest::newRow("an end record in the comment") << archive << one;
    archive.comment.clear();
    archive.garbage = "\r\n";
    QTest::newRow("bytes behind the end") << archive << one;
    archive.garbage.clear();
    archive.prefix = "#!/bin/sh\n";
    QTest::newRow("bytes before the first entry") << archive << one;

    ZipEntry entry{"a", "x"};
    entry.externalAttributes = 0100644U << 16;
    entry.localExtra = "extra";
    entry.centralExtra = "more extra";
    QTest::newRow("a mode and extra fields") << ZipArchive{{entry}} << one;
    entry.flags = 0x0808;
    entry.localCrc = entry.localSize = entry.localStoredSize = 0;
    entry.trailer = QByteArray(16, 't');
    QTest::newRow("sizes that follow")
        << ZipArchive{{entry, ZipEntry{"b", "y"}}} << QByteArrayList{"a", "b"};

    ZipEntry folder{"f/"};
    folder.externalAttributes = (040755U << 16) | 0x10;
    QTest::newRow("folders") << ZipArchive{{ZipEntry{"f/g/h", "x"}, folder, ZipEntry{"f/g/"}}}
                             << QByteArrayList{"f/g/h"};
    QTest::newRow("a name and its neighbours")
        << ZipArchive{{ZipEntry{"a/b"}, ZipEntry{"a-b"}, ZipEntry{"a.b"}, ZipEntry{"a0"}}}
        << QByteArrayList{"a-b", "a.b", "a/b", "a0"};
    QTest::newRow("not in order") << ZipArchive{{ZipEntry{"b"}, ZipEntry{"a"}}}
                                  << QByteArrayList{"a", "b"};
    QTest::newRow("deflated") << ZipArchive{{deflatedZeros(100000)}} << QByteArrayList{"zeros"};
}

void TestArchive::accepts()
{
    QFETCH(ZipArchive, archive);
    QFETCH(QByteArrayList, names);
    const std::optional<Files> files = unpacked(archive.bytes());
    QVERIFY(files);
    QCOMPARE(files->keys(), names);
}

void TestArchive::refuses_data()
{
    QTest::addColumn<ZipArchive>("archive");
    const ZipEntry good{"a", "xyz"};
    const auto row = [](const char *name, const ZipArchive &archive) {
        QTest::newRow(name) << archive;
    };
    const auto entryRow = [&row](const char *name, auto change) {
        ZipEntry entry{"a", "xyz"};
        change(entry);
        row(name, ZipArchive{{entry, ZipEntry{"b", "uvw"}}});
    };
    const auto endRow = [&row, &good](const char *name, auto change) {
        ZipArchive archive{{good}};
        change(archive);
        row(name, archive);
    };

    row("a name twice", {{good, good}});
    row("a file and a folder entry", {{good, ZipEntry{"a/"}}});
    row("a file that is also a folder", {{ZipEntry{"a-b"}, ZipEntry{"a/b/c"}, good}});
    row("a folder twice", {{ZipEntry{"f/"}, ZipEntry{"f/"}}});
    row("a folder with bytes", {{ZipEntry{"f/", "x"}}});

    entryRow("symbolic link", [](ZipEntry &e) { e.externalAttributes = 0120777U << 16; });
    entryRow("device", [](ZipEntry &e) { e.externalAttributes = 0020666U << 16; });
    entryRow("pipe", [](ZipEntry &e) { e.externalAttributes = 0010666U << 16; });
    entryRow("folder mode, file name", [](ZipEntry &e) { e.externalAttributes = 0040755U << 16; });
    entryRow("encrypted", [](ZipEntry &e) { e.flags = 1; });
    entryRow("strongly encrypted", [](ZipEntry &e) { e.flags = 0x41; });
    entryRow("hidden headers", [](ZipEntry &e) { e.flags = 0x2000; });
    entryRow("unknown method", [](ZipEntry &e) { e.method = 12; });
    entryRow("stored with two sizes", [](ZipEntry &e) { e.size = 4; });
    entryRow("larger than it is", [](ZipEntry &e) { e.storedSize = 100; });
    entryRow("64-bit marker for sizes", [](ZipEntry &e) { e.storedSize = 0xFFFFFFFF; });
    entryRow("64-bit marker for the place", [](ZipEntry &e) { e.offset = 0xFFFFFFFF; });
    entryRow("wrong checksum", [](ZipEntry &e) { e.crc = 1; });
    entryRow("headers differ: name", [](ZipEntry &e) { e.localName = "c"; });
    entryRow("headers differ: length of name", [](ZipEntry &e) { e.localName = "ab"; });
    entryRow("headers differ: method", [](ZipEntry &e) { e.localMethod = 8; });
    entryRow("headers differ: flags", [](ZipEntry &e) { e.localFlags = 8; });
    entryRow("headers differ: checksum", [](ZipEntry &e) { e.localCrc = 1; });
    entryRow("headers differ: size", [](ZipEntry &e) { e.localSize = 2; });
    entryRow("headers differ: stored size", [](ZipEntry &e) { e.localStoredSize = 2; });
    entryRow("sizes follow, but some are told", [](ZipEntry &e) {
        e.flags = 8;
        e.localCrc = e.localSize = 0;
    });
    entryRow("header elsewhere", [](ZipEntry &e) { e.offset = 1; });
    entryRow("local extra beyond the end", [](ZipEntry &e) {
        e.localExtra = QByteArray(60, 'e');
        e.offset = 34;
    });

    ZipArchive nested{
        {ZipEntry{"a", ZipArchive{{ZipEntry{"b", "x"}}}.bytes()}, ZipEntry{"b", "x"}}};
    nested.entries[1].offset = 31;
    row("overlapping", nested);
    nested.entries[1] = nested.entries[0];
    nested.entries[1].name = "a";
    nested.entries[1].offset = 0;
    row("one header for two", nested);

    ZipEntry zeros = deflatedZeros(100000);
    ZipEntry changed = zeros;
    changed.size = 100001;
    row("deflated, larger than told", {{changed}});
    changed.size = 99999;
    row("deflated, smaller than told", {{changed}});
    changed = zeros;
    changed.data += "x";
    row("deflated, bytes left over", {{changed}});
    changed = zeros;
    changed.data.chop(1);
    row("deflated, cut", {{changed}});
    changed = zeros;
    changed.size = 0xFFFFFFF0;
    row("deflated, could not be so large", {{changed}});

    ZipArchive bomb;
    ZipEntry piece = deflatedZeros(64 << 20);
    for (int i = 0; i < 10; ++i) {
        piece.name = QByteArray::number(i);
        bomb.entries.push_back(piece);
    }
    row("bomb", bomb);

    endRow("two disks", [](ZipArchive &a) { a.disks = 1; });
    endRow("directory on another disk", [](ZipArchive &a) { a.disks = 0x10000; });
    endRow("counts differ", [](ZipArchive &a) { a.countHere = 2; });
    endRow("more entries than there are", [](ZipArchive &a) { a.countHere = a.count = 2; });
    endRow("fewer entries than there are", [](ZipArchive &a) { a.countHere = a.count = 0; });
    endRow("64-bit marker for the count", [](ZipArchive &a) { a.countHere = a.count = 0xFFFF; });
    endRow("64-bit marker for the directory",
           [](ZipArchive &a) { a.directoryOffset = 0xFFFFFFFF; });
    endRow("directory too long", [](ZipArchive &a) { a.directorySize = 48; });
    endRow("directory too short", [](ZipArchive &a) { a.directorySize = 46; });
    endRow("directory elsewhere", [](ZipArchive &a) { a.directoryOffset = 0; });
    endRow("64-bit records", [](ZipArchive &a) { a.afterDirectory = QByteArray(56 + 20, 'z'); });
    endRow("comment cut", [](ZipArchive &a) { a.commentSize = 1; });
    endRow("end record out of reach", [](ZipArchive &a) { a.garbage = QByteArray(65536, 'g'); });
}

void TestArchive::refuses()
{
    QFETCH(ZipArchive, archive);
    QVERIFY(!unpacked(archive.bytes()));
}

void TestArchive::everyCutIsRefused()
{
    const QByteArray whole = packed({{"a", "first"}, {"b/c", "second"}, {"project.json", "{}"}});
    QVERIFY(unpacked(whole));
    for (qsizetype size = 0; size < whole.size(); ++size)
        QVERIFY2(!unpacked(whole.first(size)), qPrintable(QString::number(size)));
    for (qsizetype start = 1; start <= whole.size(); ++start)
        QVERIFY2(!unpacked(whole.sliced(start)), qPrintable(QString::number(start)));
}

void TestArchive::everyFlippedBitIsRefusedOrHarmless()
{
    const Files files{{"a", "first"}, {"b/c", "second"}, {"project.json", "{}"}};
    const QByteArray whole = packed(files);
    int harmless = 0;
    for (qsizetype bit = 0; bit < whole.size() * 8; ++bit) {
        QByteArray changed = whole;
        changed[bit / 8] = char(changed[bit / 8] ^ (1 << (bit % 8)));
        const std::optional<Files> back = unpacked(changed);
        if (!back)
            continue;
        ++harmless;
        QCOMPARE(*back, files);
    }
    // Versions, dates, attributes: the fields that are not looked at.
    QVERIFY(harmless > 0);
}

void TestArchive::archivesOfOtherTools_data()
{
    QTest::addColumn<int>("method");
    QTest::newRow("stored") << int(ZIP_CM_STORE);
    QTest::newRow("deflated") << int(ZIP_CM_DEFLATE);
}

void TestArchive::archivesOfOtherTools()
{
    QFETCH(int, method);
    const Files files{{"assets/b\xc3\xbc"
                       "cher.txt",
                       QByteArray(300000, 'b')},
                      {"empty", ""},
                      {"project.json", "{\n}\n"}};
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("other.zip"));
    zip_t *zip = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE, nullptr);
    QVERIFY(zip);
    QVERIFY(zip_dir_add(zip, "assets", ZIP_FL_ENC_UTF_8) >= 0);
    for (auto it = files.begin(); it != files.end(); ++it) {
        zip_source_t *source = zip_source_buffer(zip, it->constData(), zip_uint64_t(it->size()), 0);
        const zip_int64_t index = zip_file_add(zip, it.key().constData(), source, ZIP_FL_ENC_UTF_8);
        QVERIFY(index >= 0);
        QCOMPARE(zip_set_file_compression(zip, zip_uint64_t(index), method, 0), 0);
    }
    QCOMPARE(zip_close(zip), 0);

    const Result<QByteArray> bytes = readRegularFile(path, QString());
    QVERIFY(bytes);
    const std::optional<Files> back = unpacked(*bytes);
    QVERIFY(back);
    QCOMPARE(*back, files);
}

void TestArchive::checksums()
{
    QCOMPARE(crc32("123456789"), 0xCBF43926U); // the check value of the algorithm's definition
    const QByteArray text(1000003, 's');
    QCOMPARE(Sha256::of(text), QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex());
}

QTEST_GUILESS_MAIN(TestArchive)
#include "tst_archive.moc"
