#include "desktop/startup/singleinstance.h"

#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>
#include <QtTest/QtTest>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace vl::desktop;

namespace {

constexpr uint nobody = 65534; // a user that is not root

/// A name that nothing else on the machine uses.
QString freshName()
{
    static int count = 0;
    return QStringLiteral("IvorelTest-%1-%2").arg(QCoreApplication::applicationPid()).arg(++count);
}

/// This program again, in one of the roles of main().
struct Child : QProcess
{
    explicit Child(const QStringList &arguments)
    {
        setProcessChannelMode(QProcess::ForwardedErrorChannel);
        setProgram(QCoreApplication::applicationFilePath());
        setArguments(arguments);
    }
    ~Child() override
    {
        kill();
        waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Child)
    bool begin()
    {
        start();
        return waitForStarted();
    }
    QByteArray line()
    {
        while (!canReadLine() && waitForReadyRead()) {
        }
        return readLine().trimmed();
    }
};

/// Whether somebody takes the message in the end.
bool arrives(const QString &name, const QString &message)
{
    return QTest::qWaitFor([&] { return sendToRunningInstance(name, message); });
}

/// Leaves behind what a process does that listened and was killed.
void leaveStaleName(const QString &name)
{
    Child gone({QStringLiteral("listen"), name});
    if (!gone.begin() || gone.line() != "listens")
        qFatal("the child does not listen");
    gone.kill();
    gone.waitForFinished();
}

/// The roles of the child: what it does with the name, printed in a word.
int runChild(const QStringList &arguments)
{
    const QString &role = arguments.at(1);
    const QString &name = arguments.at(2);
    const auto say = [](const char *word) {
        std::puts(word);
        std::fflush(stdout);
    };
    if (role == QLatin1String("send")) {
        say(sendToRunningInstance(name, arguments.at(3)) ? "sent" : "nobody");
        return 0;
    }
    const auto server =
        handOverOrListen(name, QStringLiteral("/hello"), role == QLatin1String("takeOver"));
    if (server)
        QObject::connect(server.get(), &SingleInstanceServer::messageReceived, server.get(),
                         [say](const QString &message) { say(qPrintable(message)); });
    say(server && server->isListening() ? "listens" : "sent");
    QSocketNotifier end(STDIN_FILENO, QSocketNotifier::Read); // ends with its parent's patience
    QObject::connect(&end, &QSocketNotifier::activated, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    return server ? QCoreApplication::exec() : 0;
}

} // namespace

class TestSingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void serverNames_data();
    void serverNames();
    void messages_data();
    void messages();
    void unfinishedMessages_data();
    void unfinishedMessages();
    void onlyThisUserMayConnect();
    void staleName();
    void launchesAtOneInstant_data();
    void launchesAtOneInstant();
    void nameComesBack_data();
    void nameComesBack();
    void orphanedNameIsTakenBack();
};

void TestSingleInstance::serverNames_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "ana-maria_2"
                           << "Ivorel-ana-maria_2";
    QTest::newRow("letters of any script")
        << QString::fromUtf8("Ángel") << QString::fromUtf8("Ivorel-Ángel");
    QTest::newRow("punctuation") << "../!"
                                 << "Ivorel-____";
    QTest::newRow("empty") << ""
                           << "Ivorel-default";
}

void TestSingleInstance::serverNames()
{
    QFETCH(QString, user);
    QTEST(singleInstanceServerName(user), "name");
}

void TestSingleInstance::messages_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    QTest::newRow("path") << QByteArray("/a/b.vellum\n") << "/a/b.vellum";
    QTest::newRow("empty") << QByteArray("\n") << "";
    QTest::newRow("carriage return") << QByteArray("/a\r\n") << "/a";
    QTest::newRow("only the first line") << QByteArray("/a\n/b\n") << "/a";
    QTest::newRow("UTF-8") << QByteArray("/\xc3\xa9\n") << QString::fromUtf8("/é");
    QTest::newRow("longest") << QByteArray(SingleInstanceServer::maxMessageBytes - 1, 'a') + '\n'
                             << QString(SingleInstanceServer::maxMessageBytes - 1, u'a');
}

void TestSingleInstance::messages()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    const QString name = freshName();
    const SingleInstanceServer server(name);
    QSignalSpy received(&server, &SingleInstanceServer::messageReceived);
    for (const qsizetype piece : {bytes.size(), qsizetype(1 + bytes.size() / 3)}) {
        QLocalSocket socket;
        socket.connectToServer(name);
        QVERIFY(socket.waitForConnected());
        for (qsizetype at = 0; at < bytes.size(); at += piece) {
            socket.write(bytes.mid(at, piece));
            socket.flush();
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(received.size(), 1);
        QCOMPARE(received.takeFirst().constFirst().toString(), message);
        QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);
    }
    QVERIFY(sendToRunningInstance(name, QStringLiteral("/sent")));
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.constFirst().constFirst().toString(), QStringLiteral("/sent"));
    // A path that the format cannot carry is not cut in two.
    QVERIFY(!sendToRunningInstance(name, QStringLiteral("/a\nb")));
}

void TestSingleInstance::unfinishedMessages_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("nothing") << qint64(0);
    QTest::newRow("no line feed") << qint64(10);
    QTest::newRow("one too many") << qint64(SingleInstanceServer::maxMessageBytes);
    QTest::newRow("100 MB") << qint64(100'000'000);
}

void TestSingleInstance::unfinishedMessages()
{
    QFETCH(qint64, bytes);
    const QString name = freshName();
    SingleInstanceServer server(name);
    server.setLineTimeout(300);
    const QSignalSpy received(&server, &SingleInstanceServer::messageReceived);
    QLocalSocket socket;
    socket.connectToServer(name);
    QVERIFY(socket.waitForConnected());
    socket.write(QByteArray(bytes, 'a'));
    QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(received.size(), 0);
    // And those who come after are heard.
    QVERIFY(sendToRunningInstance(name, {}));
    QTRY_COMPARE(received.size(), 1);
}

void TestSingleInstance::onlyThisUserMayConnect()
{
#ifdef Q_OS_UNIX
    const QString name = freshName();
    const SingleInstanceServer server(name);
    const QSignalSpy received(&server, &SingleInstanceServer::messageReceived);
    const QString path = QDir(QDir::tempPath()).filePath(name);
    const auto others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther
                        | QFileDevice::WriteOther;
    QVERIFY(!(QFile::permissions(path) & others));
    if (geteuid() != 0)
        QSKIP("only root can become another user");
    // Even where the way to the socket is open.
    QVERIFY(QFile::setPermissions(path, QFile::permissions(path) | others));
    Child other({QStringLiteral("send"), name, QStringLiteral("/x")});
    other.setChildProcessModifier([] { [[maybe_unused]] const int failed = ::setuid(nobody); });
    QVERIFY(other.begin());
    QTRY_VERIFY_WITH_TIMEOUT(other.canReadLine(), 60000); // a loaded machine takes its time
    QCOMPARE(other.line(), QByteArray("nobody"));
    QLocalSocket probe; // takes its turn after the other's connection
    probe.connectToServer(name);
    probe.write("/mine\n");
    QTRY_COMPARE(received.size(), 1);
#endif
}

void TestSingleInstance::staleName()
{
    const QString name = freshName();
    leaveStaleName(name);
    QVERIFY(QFile::exists(QDir(QDir::tempPath()).filePath(name)));
    QVERIFY(!sendToRunningInstance(name, QStringLiteral("/a")));
    const auto server = handOverOrListen(name, QStringLiteral("/a"), false);
    QVERIFY(server && server->isListening());
}

void TestSingleInstance::launchesAtOneInstant_data()
{
    QTest::addColumn<int>("launches");
    QTest::addColumn<int>("rounds");
    QTest::addColumn<bool>("isStale");
    QTest::newRow("two") << 2 << 12 << false;
    QTest::newRow("two, on a stale name") << 2 << 12 << true;
    QTest::newRow("many") << 8 << 2 << false;
}

void TestSingleInstance::launchesAtOneInstant()
{
    QFETCH(int, launches);
    QFETCH(int, rounds);
    QFETCH(bool, isStale);
    for (int round = 0; round < rounds; ++round) {
        const QString name = freshName();
        if (isStale)
            leaveStaleName(name);
        std::vector<std::unique_ptr<Child>> children;
        for (int i = 0; i < launches; ++i) {
            children.push_back(
                std::make_unique<Child>(QStringList{QStringLiteral("listen"), name}));
            children.back()->start();
        }
        Child *window = nullptr;
        for (const auto &child : children) {
            const QByteArray said = child->line();
            QVERIFY2(said == "sent" || (said == "listens" && !window), said.constData());
            if (said == "listens")
                window = child.get();
        }
        QVERIFY(window);
        for (int i = 1; i < launches; ++i)
            QCOMPARE(window->line(), QByteArray("/hello"));
    }
}

void TestSingleInstance::nameComesBack_data()
{
    QTest::addColumn<bool>("crashes");
    QTest::newRow("newcomer ends") << false;
    QTest::newRow("newcomer crashes") << true;
}

void TestSingleInstance::nameComesBack()
{
    QFETCH(bool, crashes);
    const QString name = freshName();
    // Two that were there before, so that they meet when both want the name back.
    SingleInstanceServer first(name);
    SingleInstanceServer second(name);
    QSignalSpy atFirst(&first, &SingleInstanceServer::messageReceived);
    QSignalSpy atSecond(&second, &SingleInstanceServer::messageReceived);
    const auto here = [&] { return atFirst.size() + atSecond.size(); };
    Child newcomer({QStringLiteral("takeOver"), name});
    QVERIFY(newcomer.begin());
    QCOMPARE(newcomer.line(), QByteArray("listens"));
    QTRY_VERIFY(first.waitsForName() && second.waitsForName());
    QVERIFY(sendToRunningInstance(name, QStringLiteral("/a")));
    QCOMPARE(newcomer.line(), QByteArray("/a"));
    QCOMPARE(here(), 0);

    if (crashes)
        newcomer.kill();
    else
        newcomer.closeWriteChannel();
    newcomer.waitForFinished();
    QVERIFY(arrives(name, QStringLiteral("/b")));
    QTRY_COMPARE(here(), 1);
    QTRY_VERIFY(first.waitsForName() != second.waitsForName());
    QVERIFY(sendToRunningInstance(name, QStringLiteral("/c")));
    QTRY_COMPARE(here(), 2);
}

void TestSingleInstance::orphanedNameIsTakenBack()
{
    const QString name = freshName();
    auto before = std::make_unique<SingleInstanceServer>(name);
    const SingleInstanceServer newcomer(name);
    QSignalSpy received(&newcomer, &SingleInstanceServer::messageReceived);
    QTRY_VERIFY(before->waitsForName());
    before.reset(); // which removes the name it had once
    QVERIFY(arrives(name, QStringLiteral("/a")));
    QTRY_COMPARE(received.size(), 1);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc > 2 && QByteArray(argv[2]).startsWith("IvorelTest-"))
        return runChild(QCoreApplication::arguments());
    const QTemporaryDir sockets;
    qputenv("TMPDIR", QFile::encodeName(sockets.path()));
    TestSingleInstance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_singleinstance.moc"
