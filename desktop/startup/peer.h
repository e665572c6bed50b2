#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <optional>

class QSocketNotifier;

namespace vl::desktop {

/// The process at the other end of a local socket.
struct Peer
{
    qint64 process = 0; ///< its id; of a listener, the one that began to listen
    bool isOfThisUser = false;
};

/// Who is at the other end of a connected local socket; nothing where the system does not tell.
std::optional<Peer> peerOf(qintptr socket);

/// Tells when another process has ended, however it ended. Says nothing where the system cannot.
class ProcessWatch final : public QObject
{
    Q_OBJECT

public:
    explicit ProcessWatch(QObject *parent = nullptr);
    ~ProcessWatch() override;

    /// Watches this process in place of the one before.
    void watch(qint64 process);
    void stop();

Q_SIGNALS:
    void ended();

private:
    QSocketNotifier *m_notifier = nullptr;
    int m_handle = -1;
};

} // namespace vl::desktop
