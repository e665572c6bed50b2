#include "app/base/settingskeys.h"
#include "app/base/sha256.h"
#include "desktop/startup/download.h"
#include "desktop/startup/updatecheck.h"
#include "desktop/startup/updatestatus.h"
#include "tests/support/fakeprompts.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

using namespace vl;
using namespace vl::desktop;

namespace {

const QByteArray setup("these bytes are the installer");

/// What the vendor's server says to one path; a hostile one goes on for ever.
struct Answer
{
    QByteArray head = "HTTP/1.1 200 OK";
    QByteArray headers;
    QByteArray body;
    bool isEndless = false; ///< repeats the body until the other side has had enough
    bool isSlow = false;    ///< a byte at a time, for ever
};

/// A server on this machine that stands for all of the vendor's hosts.
class Vendor final : public QTcpServer
{
public:
    QMap<QString, Answer> answers; ///< by "host/path"
    QStringList asked;

    Vendor()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { reply(socket); });
        });
    }

private:
    void reply(QTcpSocket *socket)
    {
        const QByteArray request = socket->peek(64 * 1024);
        if (!request.contains("\r\n\r\n"))
            return;
        const QString path = QString::fromLatin1(socket->readAll().split(' ').at(1)).mid(1);
        asked.append(path);
        const Answer answer = answers.value(path, {"HTTP/1.1 404 Not Found", {}, {}, false, false});
        socket->write(answer.head + "\r\nConnection: close\r\n" + answer.headers + "\r\n");
        if (answer.isSlow) {
            auto *drip = new QTimer(socket);
            connect(drip, &QTimer::timeout, socket, [socket] { socket->write(" "); });
            drip->start(20);
        } else if (answer.isEndless) {
            const auto more = [socket, body = answer.body] {
                if (socket->bytesToWrite() < body.size())
                    socket->write(body);
            };
            connect(socket, &QTcpSocket::bytesWritten, socket, more);
            more();
        } else {
            socket->write(answer.body);
            socket->disconnectFromHost();
        }
    }
};

/// Leads every secure request to the server on this machine, with its host as the first folder.
class Network final : public QNetworkAccessManager
{
public:
    explicit Network(quint16 port)
        : m_port(port)
    {
    }

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *data) override
    {
        QNetworkRequest led = request;
        const QUrl url = request.url();
        // An insecure request, which must not be, reaches nobody.
        const quint16 port = url.scheme() == QLatin1String("https") ? m_port : 1;
        led.setUrl(
            QUrl(QStringLiteral("http://127.0.0.1:%1/%2%3").arg(port).arg(url.host(), url.path())));
        return QNetworkAccessManager::createRequest(operation, led, data);
    }

private:
    quint16 m_port;
};

QByteArray manifestOf(const QByteArray &version, const QByteArray &sha256)
{
    const QJsonObject object{{QStringLiteral("version"), QString::fromLatin1(version)},
                             {QStringLiteral("installerUrl"),
                              QStringLiteral("https://download.vendor.example/setup.exe")},
                             {QStringLiteral("sha256"), QString::fromLatin1(sha256)}};
    return QJsonDocument(object).toJson();
}

/// A check against that server, with what it asked of the world written down.
struct Check
{
    QTemporaryDir dir;
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    test::FakePrompts prompts;
    Vendor vendor;
    QStringList launched;
    bool leaves = true;
    bool starts = true;
    std::unique_ptr<UpdateCheck> check;
    std::unique_ptr<UpdateStatus> status;

    Check()
    {
        UpdateService service = UpdateService::ofThisProgram();
        service.hosts = {QStringLiteral("updates.vendor.example"),
                         QStringLiteral("download.vendor.example"),
                         QStringLiteral("vendor.example")};
        service.version = QStringLiteral("1.2");
        service.folder = dir.filePath(QStringLiteral("IvorelUpdate"));
        service.manifestMilliseconds = 500;
        service.leave = [this] { return leaves; };
        service.launch = [this](const QString &program, const QStringList &arguments) {
            launched = QStringList{program} + arguments;
            return starts;
        };
        service.makeNetwork = [this] { return std::make_unique<Network>(vendor.serverPort()); };
        check = std::make_unique<UpdateCheck>(std::move(service), settings, prompts);
        status = std::make_unique<UpdateStatus>(*check);
    }
    Answer &manifest()
    {
        return vendor.answers[QStringLiteral("updates.vendor.example/latest.json")];
    }
    Answer &installer()
    {
        return vendor.answers[QStringLiteral("download.vendor.example/setup.exe")];
    }
    QPushButton *button() const { return status->findChild<QPushButton *>(); }
    QString saved() const
    {
        return dir.filePath(QStringLiteral("IvorelUpdate/Ivorel-1.10-Setup.exe"));
    }
    void offer(const QByteArray &sha256)
    {
        manifest().body = manifestOf("1.10", sha256);
        installer().body = setup;
        QSignalSpy available(check.get(), &UpdateCheck::available);
        check->check(UpdateCheck::Asked::Silently);
        QTRY_COMPARE(available.size(), 1);
    }
    /// Everything that was told, once something was.
    QString told()
    {
        const bool tells = QTest::qWaitFor(
            [this] { return !prompts.errors.isEmpty() || !prompts.notices.isEmpty(); });
        return tells ? (prompts.errors + prompts.notices).join(u'\n') : QString();
    }
};

} // namespace

class TestUpdateCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void manifests_data();
    void manifests();
    void offersANewerVersion();
    void anAskingUserIsAnswered();
    void schedule_data();
    void schedule();
    void installs();
    void installsWhatWasOffered();
    void refuses_data();
    void refuses();
    void cancelled();
    void staysWhenTheUserStays();
};

void TestUpdateCheck::manifests_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("headers");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("told"); // how it begins
    const QByteArray ok = "HTTP/1.1 200 OK";
    const QByteArray moved = "HTTP/1.1 302 Found";
    const QByteArray hash(64, 'a');
    const QString unreachable = QStringLiteral("Could not reach the update service: ");
    const QString unreadable = QStringLiteral("The update information could not be read.");
    QTest::newRow("same version") << ok << QByteArray() << manifestOf("1.2.0", hash) << ""
                                  << QString::fromUtf8(
                                         "You're up to date — Ivorel 1.2 is the newest version.");
    QTest::newRow("older") << ok << QByteArray() << manifestOf("1.1.9", hash) << ""
                           << QString::fromUtf8("You're up to date — Ivorel 1.2");
    QTest::newRow("no server path")
        << QByteArray("HTTP/1.1 500 Down") << QByteArray() << QByteArray() << "" << unreachable;
    QTest::newRow("no manifest") << ok << QByteArray() << QByteArray("<html>") << "" << unreadable;
    QTest::newRow("path in the version")
        << ok << QByteArray() << manifestOf("9/../../x", hash) << "" << unreadable;
    QTest::newRow("redirect within the host")
        << moved << QByteArray("Location: /newer.json\r\n") << QByteArray() << ""
        << QString::fromUtf8("You're up to date");
    QTest::newRow("redirect to http")
        << moved << QByteArray("Location: http://updates.vendor.example/newer.json\r\n")
        << QByteArray() << ""
        << unreachable + QStringLiteral("The server sent the program elsewhere.");
    QTest::newRow("redirect to another host")
        << moved << QByteArray("Location: https://download.vendor.example/x.json\r\n")
        << QByteArray() << "" << unreachable;
    QTest::newRow("redirect to another port")
        << moved << QByteArray("Location: https://updates.vendor.example:444/newer.json\r\n")
        << QByteArray() << "" << unreachable;
    QTest::newRow("redirect to a file") << moved << QByteArray("Location: file:///etc/passwd\r\n")
                                        << QByteArray() << "" << unreachable;
    QTest::newRow("round in circles")
        << moved << QByteArray("Location: /latest.json\r\n") << QByteArray() << ""
        << unreachable + QStringLiteral("The server sent the program round in circles.");
    QTest::newRow("announced as huge")
        << ok << QByteArray("Content-Length: 1000000000000\r\n") << QByteArray("{") << ""
        << unreachable + QStringLiteral("The server sent more than was expected.");
    QTest::newRow("without an end") << ok << QByteArray() << QByteArray(50'000, ' ') << "endless"
                                    << unreachable + QStringLiteral("The server sent more");
    QTest::newRow("a byte at a time") << ok << QByteArray() << QByteArray() << "slow"
                                      << unreachable + QStringLiteral("The server took too long");
}

void TestUpdateCheck::manifests()
{
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, headers);
    QFETCH(QByteArray, body);
    QFETCH(QString, kind);
    QFETCH(QString, told);
    Check update;
    update.manifest() = {head, headers, body, kind == QLatin1String("endless"),
                         kind == QLatin1String("slow")};
    update.vendor.answers[QStringLiteral("updates.vendor.example/newer.json")].body =
        manifestOf("1.2", QByteArray(64, 'a'));
    update.check->check(UpdateCheck::Asked::ByUser);
    QVERIFY2(update.told().startsWith(told), qPrintable(update.told()));
    QVERIFY(update.status->isHidden());

    // Nobody is told of the same when nobody asked.
    const qsizetype before = update.vendor.asked.size();
    QSignalSpy ended(update.check.get(), &UpdateCheck::nothingToShow);
    update.prompts.errors.clear();
    update.prompts.notices.clear();
    update.check->check(UpdateCheck::Asked::Silently);
    QTRY_VERIFY(update.vendor.asked.size() > before && ended.size() >= 3);
    QVERIFY(update.prompts.errors.isEmpty() && update.prompts.notices.isEmpty());
    QVERIFY(update.launched.isEmpty());
}

void TestUpdateCheck::offersANewerVersion()
{
    Check update;
    update.offer(QByteArray(64, 'a'));
    QVERIFY(!update.status->isHidden());
    QCOMPARE(update.button()->text(), QString::fromUtf8("Update available: 1.10 — Install…"));
    QVERIFY(update.prompts.notices.isEmpty());
    QCOMPARE(update.vendor.asked.size(), 1); // nothing is fetched unasked

    // Who asks again hears of a fault, and keeps the offer.
    update.manifest().head = "HTTP/1.1 500 Down";
    update.check->check(UpdateCheck::Asked::ByUser);
    QVERIFY(update.told().startsWith(QLatin1String("Could not reach the update service: ")));
    QVERIFY(update.button()->isVisibleTo(update.status.get()));
}

void TestUpdateCheck::anAskingUserIsAnswered()
{
    Check update;
    update.manifest().body = "[]";
    update.check->check(UpdateCheck::Asked::Silently);
    update.check->check(UpdateCheck::Asked::ByUser); // while the other is on its way
    QCOMPARE(update.told(), QStringLiteral("The update information could not be read."));
    QCOMPARE(update.vendor.asked.size(), 1);
}

void TestUpdateCheck::schedule_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<qint64>("secondsAgo");
    QTest::addColumn<bool>("checks");
    QTest::newRow("never before") << "true" << qint64(-1) << true;
    QTest::newRow("an hour ago") << "true" << qint64(3600) << false;
    QTest::newRow("two days ago") << "true" << qint64(172800) << true;
    QTest::newRow("not wanted") << "false" << qint64(-1) << false;
}

void TestUpdateCheck::schedule()
{
    QFETCH(QString, wanted);
    QFETCH(qint64, secondsAgo);
    QFETCH(bool, checks);
    Check update;
    const QString before =
        secondsAgo < 0 ? QString()
                       : QDateTime::currentDateTime().addSecs(-secondsAgo).toString(Qt::ISODate);
    update.settings.set(app::settings::autoUpdateCheck, wanted);
    update.settings.set(app::settings::lastUpdateCheck, before);
    update.check->schedule();
    QCOMPARE(update.settings.text(app::settings::lastUpdateCheck) != before, checks);
    update.check->schedule(); // a second one on the same day does nothing
    QTRY_COMPARE_WITH_TIMEOUT(update.vendor.asked.size(), checks ? 1 : 0, 8000);
}

void TestUpdateCheck::installs()
{
    Check update;
    update.offer(app::Sha256::of(setup));
    update.button()->click();
    const auto *text = update.status->findChild<QLabel *>();
    QCOMPARE(text->text(), QString::fromUtf8("Downloading Ivorel 1.10…"));
    QTRY_VERIFY(!update.launched.isEmpty());
    QCOMPARE(update.launched,
             (QStringList{update.saved(), QStringLiteral("/SILENT"), QStringLiteral("/RELAUNCH")}));
    QFile file(update.saved());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), setup);
    QVERIFY(update.prompts.errors.isEmpty());
}

void TestUpdateCheck::installsWhatWasOffered()
{
    Check update;
    update.offer(app::Sha256::of(setup));
    update.manifest().body = manifestOf("1.11", QByteArray(64, 'b')); // found meanwhile
    update.check->check(UpdateCheck::Asked::ByUser);
    update.check->install();
    QTRY_VERIFY(!update.launched.isEmpty() || !update.prompts.errors.isEmpty());
    QCOMPARE(update.launched.value(0), update.saved());
}

void TestUpdateCheck::refuses_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("told"); // how it begins
    QTest::newRow("wrong hash")
        << "hash"
        << "The downloaded installer failed its integrity check and was discarded. Nothing was "
           "installed.";
    QTest::newRow("cut off") << "cut"
                             << "The download failed: ";
    QTest::newRow("redirect to http") << "http"
                                      << "The download failed: The server sent";
    QTest::newRow("redirect to another host") << "host"
                                              << "The download failed: The server sent";
    QTest::newRow("gone") << "gone"
                          << "The download failed: ";
    QTest::newRow("announced as huge") << "huge"
                                       << "The download failed: The server sent more";
    QTest::newRow("no folder can be made") << "file"
                                           << "The installer could not be saved to disk.";
    QTest::newRow("a folder in its place") << "folder"
                                           << "The installer could not be saved to disk.";
    QTest::newRow("a folder that others may write to")
        << "open"
        << "The installer could not be saved to disk.";
    QTest::newRow("a link for a folder") << "link"
                                         << "The installer could not be saved to disk.";
}

void TestUpdateCheck::refuses()
{
    QFETCH(QString, fault);
    QFETCH(QString, told);
    Check update;
    update.offer(fault == QLatin1String("hash") ? QByteArray(64, 'a') : app::Sha256::of(setup));
    const QString folder = update.dir.filePath(QStringLiteral("IvorelUpdate"));
    Answer &installer = update.installer();
    if (fault == QLatin1String("cut"))
        installer.headers = "Content-Length: 1000\r\n";
    else if (fault == QLatin1String("http"))
        installer = {"HTTP/1.1 301 Moved", "Location: http://download.vendor.example/setup.exe\r\n",
                     setup, false, false};
    else if (fault == QLatin1String("host"))
        installer = {"HTTP/1.1 301 Moved", "Location: https://vendor.example/setup.exe\r\n", setup,
                     false, false};
    else if (fault == QLatin1String("gone"))
        update.vendor.answers.remove(QStringLiteral("download.vendor.example/setup.exe"));
    else if (fault == QLatin1String("huge"))
        installer.headers = "Content-Length: 9000000000\r\n";
    else if (fault == QLatin1String("file"))
        QVERIFY(QFile(folder).open(QIODevice::WriteOnly));
    else if (fault == QLatin1String("folder"))
        QVERIFY(QDir().mkpath(update.saved()));
    else if (fault == QLatin1String("link"))
        QVERIFY(QFile::link(update.dir.path(), folder));
    else if (fault == QLatin1String("open"))
        QVERIFY(QDir().mkpath(folder)
                && QFile::setPermissions(folder, QFileDevice::Permissions(0x7777)));
    update.check->install();
    QVERIFY2(update.told().startsWith(told), qPrintable(update.told()));
    QVERIFY(update.launched.isEmpty());
    QVERIFY(!QFileInfo(update.saved()).isFile());
    QVERIFY(update.button()->isVisibleTo(update.status.get())); // to try again
}

void TestUpdateCheck::cancelled()
{
    Check update;
    update.offer(app::Sha256::of(setup));
    update.installer() = {"HTTP/1.1 200 OK", {}, setup, true, false};
    QSignalSpy progressed(update.check.get(), &UpdateCheck::progressed);
    update.check->install();
    QTRY_VERIFY(progressed.size() > 1);
    update.status->findChild<QToolButton *>()->click();
    QVERIFY(update.button()->isVisibleTo(update.status.get()));
    QVERIFY(update.prompts.errors.isEmpty());
}

void TestUpdateCheck::staysWhenTheUserStays()
{
    Check update;
    update.offer(app::Sha256::of(setup));
    update.leaves = false;
    update.check->install();
    QTRY_VERIFY(QFile::exists(update.saved()));
    QTRY_VERIFY(update.button()->isVisibleTo(update.status.get()));
    QVERIFY(update.launched.isEmpty());

    update.leaves = true;
    update.starts = false;
    update.check->install();
    QCOMPARE(update.told(), QStringLiteral("The installer could not be started."));
}

QTEST_MAIN(TestUpdateCheck)
#include "tst_updatecheck.moc"
