#include "desktop/startup/singleinstance.h"

#include "app/base/files.h"

#include <QtCore/QDir>
#include <QtCore/QLockFile>
#include <QtCore/QTimer>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

namespace vl::desktop {

namespace {

constexpr int connectMilliseconds = 300;
constexpr int writeMilliseconds = 1000;
constexpr int lockMilliseconds = 2000; // longer than whoever holds it may need for a hand-over
constexpr int lockAgainMilliseconds = 50;
constexpr qsizetype maxConnections = 32;

/// Held while a process finds out who listens and then listens itself.
QString lockPath(const QString &serverName)
{
    return QDir(QDir::tempPath()).filePath(serverName + QLatin1String(".lock"));
}

/// Connects to whoever of this user listens on the name.
std::optional<Peer> connectTo(const QString &serverName, QLocalSocket &socket)
{
    socket.connectToServer(serverName, QIODevice::ReadWrite);
    if (!socket.waitForConnected(connectMilliseconds))
        return std::nullopt;
    const std::optional<Peer> peer = peerOf(socket.socketDescriptor());
    if (peer && !peer->isOfThisUser)
        return std::nullopt;
    return peer.value_or(Peer{0, true});
}

} // namespace

QString singleInstanceServerName(const QString &userName)
{
    QString cleaned = userName;
    for (QChar &character : cleaned) {
        const bool isKept =
            character.isLetter() || character.isDigit() || character == u'-' || character == u'_';
        if (!isKept)
            character = u'_';
    }
    if (cleaned.isEmpty())
        cleaned = QStringLiteral("default");
    return QStringLiteral("Ivorel-") + cleaned;
}

QString environmentUserName()
{
    const QString name = qEnvironmentVariable("USERNAME");
    return name.isEmpty() ? qEnvironmentVariable("USER") : name;
}

QByteArray encodeHandOver(const QString &message)
{
    return message.toUtf8() + '\n';
}

QString decodeHandOver(const QByteArray &bytes)
{
    QByteArray line = bytes.left(bytes.indexOf('\n'));
    if (line.endsWith('\r'))
        line.chop(1);
    return QString::fromUtf8(line);
}

bool sendToRunningInstance(const QString &serverName, const QString &message)
{
    QLocalSocket socket;
    if (message.contains(u'\n') || !connectTo(serverName, socket))
        return false;
    socket.write(encodeHandOver(message));
    socket.flush();
    if (socket.bytesToWrite() > 0)
        socket.waitForBytesWritten(writeMilliseconds);
    socket.disconnectFromServer();
    return true;
}

std::unique_ptr<SingleInstanceServer> handOverOrListen(const QString &serverName,
                                                       const QString &message, bool newInstance)
{
    // Where the lock cannot be had, two windows are better than none.
    QLockFile lock(lockPath(serverName));
    lock.tryLock(lockMilliseconds);
    if (!newInstance && sendToRunningInstance(serverName, message))
        return nullptr;
    return std::make_unique<SingleInstanceServer>(serverName);
}

SingleInstanceServer::SingleInstanceServer(QString name, QObject *parent)
    : QObject(parent)
    , m_name(std::move(name))
    , m_server(new QLocalServer(this))
{
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &SingleInstanceServer::takeConnections);
    connect(&m_nameWatch, &QFileSystemWatcher::fileChanged, this,
            &SingleInstanceServer::nameChanged, Qt::QueuedConnection);
    connect(&m_successor, &ProcessWatch::ended, this, &SingleInstanceServer::listenUnlessAnswered);
    listen();
}

// The server's end removes the name, whoever holds it by then: that one notices and takes it back.
SingleInstanceServer::~SingleInstanceServer() = default;

bool SingleInstanceServer::isListening() const
{
    return m_server->isListening();
}

void SingleInstanceServer::listen()
{
    m_successor.stop();
    m_waitsForName = false;
    if (!m_server->listen(m_name)) {
        QLocalServer::removeServer(m_name);
        m_server->listen(m_name);
    }
    m_node = app::entryNode(m_server->fullServerName());
    watchName();
}

void SingleInstanceServer::watchName()
{
    // A watch stays with the entry it was set on, so it is set anew on the one that is there now.
    const QString path = m_server->fullServerName();
    if (path.isEmpty())
        return;
    m_nameWatch.removePath(path);
    m_nameWatch.addPath(path);
}

bool SingleInstanceServer::holdsName() const
{
    return m_node != 0 && app::entryNode(m_server->fullServerName()) == m_node;
}

void SingleInstanceServer::nameChanged()
{
    watchName();
    if (!holdsName())
        listenUnlessAnswered();
}

void SingleInstanceServer::listenUnlessAnswered()
{
    // A window that is at work does not stand still for it: it asks again in a moment.
    QLockFile lock(lockPath(m_name));
    if (!lock.tryLock(0) && lock.error() == QLockFile::LockFailedError
        && ++m_lockTries <= lockMilliseconds / lockAgainMilliseconds) {
        QTimer::singleShot(lockAgainMilliseconds, this,
                           &SingleInstanceServer::listenUnlessAnswered);
        return;
    }
    m_lockTries = 0;
    QLocalSocket probe;
    if (const std::optional<Peer> successor = connectTo(m_name, probe)) {
        probe.abort();
        watchName();
        m_successor.watch(successor->process);
        m_waitsForName = true;
        return;
    }
    m_server->close();
    listen();
}

void SingleInstanceServer::takeConnections()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        const std::optional<Peer> peer = peerOf(socket->socketDescriptor());
        if (m_buffers.size() >= maxConnections || (peer && !peer->isOfThisUser)) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        m_buffers.insert(socket, {});
        socket->setReadBufferSize(maxMessageBytes);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
            m_buffers.remove(socket);
            socket->deleteLater();
        });
        QTimer::singleShot(m_lineTimeout, socket, [socket] { socket->abort(); });
        // What came with the connection is told by no signal.
        read(socket);
    }
}

void SingleInstanceServer::read(QLocalSocket *socket)
{
    const QHash<QLocalSocket *, QByteArray>::iterator buffer = m_buffers.find(socket);
    if (buffer == m_buffers.end())
        return;
    buffer->append(socket->read(maxMessageBytes - buffer->size()));
    if (buffer->contains('\n')) {
        const QString message = decodeHandOver(*buffer);
        m_buffers.erase(buffer);
        // Before anybody hears of it: who does may run an event loop, in which the socket goes.
        socket->disconnectFromServer();
        Q_EMIT messageReceived(message);
    } else if (buffer->size() >= maxMessageBytes) {
        socket->abort();
    }
}

} // namespace vl::desktop
