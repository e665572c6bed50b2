#pragma once

#include "desktop/startup/peer.h"

#include <QtCore/QByteArray>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QHash>
#include <QtCore/QObject>

#include <memory>
#include <optional>

class QLocalServer;
class QLocalSocket;

namespace vl::desktop {

/// The name under which the windows of this user find each other.
QString singleInstanceServerName(const QString &userName);
/// The user's name as the environment has it, empty when it has none.
QString environmentUserName();

/// Hands a message to the process that listens on the name: false when none does, which is found
/// out in 300 ms; one that is there has 1000 ms to take the message. A listener of another user
/// counts as none, and so does everybody when the message holds a line feed, which ends a message.
bool sendToRunningInstance(const QString &serverName, const QString &message);

/// One message with its line feed, as it goes over the socket; and back again from bytes that hold
/// a line feed.
QByteArray encodeHandOver(const QString &message);
QString decodeHandOver(const QByteArray &bytes);

/// Listens for what later launches of the program hand over. A newcomer takes the name over; the
/// one that had it stays in the background, and listens again as soon as nobody does.
class SingleInstanceServer final : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstanceServer(QString name, QObject *parent = nullptr);
    ~SingleInstanceServer() override;

    bool isListening() const;
    /// Whether another window answers to the name now, so that this one waits for its end.
    bool waitsForName() const { return m_waitsForName; }

    /// A message is at most this many bytes long, its line feed included.
    static constexpr qsizetype maxMessageBytes = qsizetype(64) * 1024;
    /// A connection that has not sent its line by then is cut off.
    void setLineTimeout(int milliseconds) { m_lineTimeout = milliseconds; }

Q_SIGNALS:
    void messageReceived(const QString &message);

private:
    void listen();
    void takeConnections();
    void read(QLocalSocket *socket);
    void nameChanged();
    void listenUnlessAnswered();
    void watchName();
    bool holdsName() const;

    QString m_name;
    QLocalServer *m_server;
    QHash<QLocalSocket *, QByteArray> m_buffers; ///< what each connection has sent so far
    QFileSystemWatcher m_nameWatch;
    ProcessWatch m_successor; ///< the process that holds the name now
    quint64 m_node = 0;       ///< of the socket's own entry in the file system
    bool m_waitsForName = false;
    int m_lineTimeout = 5000; ///< in milliseconds
    int m_lockTries = 0;      ///< in vain, since the lock was had last
};

/// The one place where a launch decides between handing over and listening, so that of two launches
/// at the same instant one listens and the other reaches it. Nothing when the message was taken by
/// a running instance, which a new instance does not look for.
std::unique_ptr<SingleInstanceServer> handOverOrListen(const QString &serverName,
                                                       const QString &message, bool newInstance);

} // namespace vl::desktop
