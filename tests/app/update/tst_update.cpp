#include "app/update/updatemanifest.h"
#include "app/update/updateschedule.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

using namespace vl::app;

namespace {

const UpdateHosts hosts{QStringLiteral("updates.vendor.example"),
                        QStringLiteral("Download.vendor.example"),
                        QStringLiteral("vendor.example")};
const QString hash(64, u'A');

} // namespace

class TestUpdate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void manifest_data();
    void manifest();
    void notManifests_data();
    void notManifests();
    void notes_data();
    void notes();
    void versions_data();
    void versions();
    void schedule_data();
    void schedule();
};

void TestUpdate::manifest_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("sha256");
    QTest::addColumn<bool>("valid");

    const QString version = QStringLiteral("1.2.3");
    const QString url = QStringLiteral("https://download.vendor.example/setup.exe");
    QTest::newRow("plain") << version << url << hash << true;
    QTest::newRow("one number") << "7" << url << hash << true;
    QTest::newRow("four numbers") << "1.2.3.4" << url << hash << true;
    QTest::newRow("five numbers") << "1.2.3.4.5" << url << hash << false;
    QTest::newRow("no version") << "" << url << hash << false;
    QTest::newRow("line feed after the version") << "1.2\n" << url << hash << false;
    QTest::newRow("path in the version") << "1.2/../../x" << url << hash << false;
    QTest::newRow("other digits") << QString::fromUtf8("1.٣") << url << hash << false;
    QTest::newRow("hash in lower case") << version << url << hash.toLower() << true;
    QTest::newRow("63 digits") << version << url << hash.chopped(1) << false;
    QTest::newRow("line feed after the hash") << version << url << hash + u'\n' << false;
    QTest::newRow("not hexadecimal") << version << url << hash.chopped(1) + u'G' << false;
    QTest::newRow("http") << version << "http://download.vendor.example/s" << hash << false;
    QTest::newRow("file") << version << "file:///download.vendor.example/s" << hash << false;
    QTest::newRow("apex") << version << "https://vendor.example/s.exe" << hash << false;
    QTest::newRow("subdomain") << version << "https://a.download.vendor.example/s" << hash << false;
    QTest::newRow("name before an at sign")
        << version << "https://download.vendor.example@evil.example/s" << hash << false;
    QTest::newRow("capitals") << version << "https://DOWNLOAD.Vendor.example/s" << hash << true;
    QTest::newRow("blank in the address")
        << version << "https://download.vendor.example/a b" << hash << false;
}

void TestUpdate::manifest()
{
    QFETCH(QString, version);
    QFETCH(QString, url);
    QFETCH(QString, sha256);
    const QJsonObject object{{QStringLiteral("version"), version},
                             {QStringLiteral("installerUrl"), url},
                             {QStringLiteral("sha256"), sha256}};
    const UpdateManifest read = parseUpdateManifest(QJsonDocument(object).toJson(), hosts);
    QTEST(read.valid, "valid");
    QCOMPARE(read.version, version);
    QCOMPARE(read.sha256, sha256.toUpper());
}

void TestUpdate::notManifests_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no object") << QByteArray("[1]");
    QTest::newRow("cut off") << QByteArray(R"({"version":"1.2")");
    QTest::newRow("numbers in place of texts") << QByteArray(R"({"version":1,"sha256":2})");
    QTest::newRow("deep") << QByteArray(100'000, '[');
}

void TestUpdate::notManifests()
{
    QFETCH(QByteArray, json);
    QVERIFY(!parseUpdateManifest(json, hosts).valid);
}

void TestUpdate::notes_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("kept");
    QTest::newRow("apex") << "https://vendor.example/notes" << true;
    QTest::newRow("www") << "https://WWW.vendor.example/notes" << true;
    QTest::newRow("download") << "https://download.vendor.example/notes" << true;
    QTest::newRow("with a port") << "https://vendor.example:444/notes" << true;
    QTest::newRow("http") << "http://vendor.example/notes" << false;
    QTest::newRow("endpoint") << "https://updates.vendor.example/notes" << false;
    QTest::newRow("longer") << "https://vendor.example.evil.example/notes" << false;
    QTest::newRow("script") << "javascript:alert(1)" << false;
}

void TestUpdate::notes()
{
    QFETCH(QString, url);
    QTEST(isTrustedUpdateUrl(url, hosts), "kept");
    const QJsonObject object{
        {QStringLiteral("version"), QStringLiteral("2")},
        {QStringLiteral("installerUrl"), QStringLiteral("https://download.vendor.example/s")},
        {QStringLiteral("sha256"), hash},
        {QStringLiteral("notesUrl"), url}};
    const UpdateManifest read = parseUpdateManifest(QJsonDocument(object).toJson(), hosts);
    QVERIFY(read.valid);
    QTEST(!read.notesUrl.isEmpty(), "kept");
}

void TestUpdate::versions_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("sign");
    QTest::newRow("numbers, not texts") << "1.9"
                                        << "1.10" << -1;
    QTest::newRow("missing parts") << "1.2"
                                   << "1.2.0" << 0;
    QTest::newRow("first difference") << "2.0.9"
                                      << "1.9.9" << 1;
    QTest::newRow("leading zeros") << "1.02"
                                   << "1.2" << 0;
    QTest::newRow("no number") << "1.beta"
                               << "1.0" << 0;
    QTest::newRow("beyond 64 bits") << "1.99999999999999999999"
                                    << "1.100000000000000000000" << -1;
    QTest::newRow("empty") << ""
                           << "0.1" << -1;
}

void TestUpdate::versions()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    const auto sign = [](int order) { return (order > 0) - (order < 0); };
    QTEST(sign(compareVersions(a, b)), "sign");
    QCOMPARE(sign(compareVersions(b, a)), -sign(compareVersions(a, b)));
}

void TestUpdate::schedule_data()
{
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("now");
    QTest::addColumn<bool>("should");
    QTest::newRow("never") << ""
                           << "2026-03-02T10:00:00" << true;
    QTest::newRow("a second short") << "2026-03-01T10:00:01"
                                    << "2026-03-02T10:00:00" << false;
    QTest::newRow("a day") << "2026-03-01T10:00:00"
                           << "2026-03-02T10:00:00" << true;
    QTest::newRow("damaged") << "yesterday"
                             << "2026-03-02T10:00:00" << true;
    QTest::newRow("no present") << "2026-03-01T10:00:00"
                                << "" << false;
    QTest::newRow("years ahead") << "2099-01-01T00:00:00"
                                 << "2026-03-02T10:00:00" << true;
}

void TestUpdate::schedule()
{
    QFETCH(QString, last);
    QFETCH(QString, now);
    QTEST(shouldCheckForUpdates(last, now), "should");
}

QTEST_GUILESS_MAIN(TestUpdate)
#include "tst_update.moc"
