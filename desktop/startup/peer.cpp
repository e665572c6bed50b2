#include "desktop/startup/peer.h"

#include <QtCore/QSocketNotifier>

#ifdef Q_OS_LINUX
#include <cerrno>

#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace vl::desktop {

std::optional<Peer> peerOf([[maybe_unused]] qintptr socket)
{
#ifdef Q_OS_LINUX
    ucred credentials{};
    socklen_t size = sizeof credentials;
    if (getsockopt(int(socket), SOL_SOCKET, SO_PEERCRED, &credentials, &size) == 0)
        return Peer{credentials.pid, credentials.uid == geteuid()};
#endif
    return std::nullopt;
}

ProcessWatch::ProcessWatch(QObject *parent)
    : QObject(parent)
{
}

ProcessWatch::~ProcessWatch()
{
    stop();
}

void ProcessWatch::watch([[maybe_unused]] qint64 process)
{
    stop();
#if defined(Q_OS_LINUX) && defined(SYS_pidfd_open)
    m_handle = int(syscall(SYS_pidfd_open, pid_t(process), 0));
    if (m_handle < 0) {
        if (errno == ESRCH) // it ended a moment ago
            QMetaObject::invokeMethod(this, &ProcessWatch::ended, Qt::QueuedConnection);
        return;
    }
    m_notifier = new QSocketNotifier(m_handle, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        stop();
        Q_EMIT ended();
    });
#endif
}

void ProcessWatch::stop()
{
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier->deleteLater(); // it may be what calls
        m_notifier = nullptr;
    }
#ifdef Q_OS_LINUX
    if (m_handle >= 0)
        close(m_handle);
#endif
    m_handle = -1;
}

} // namespace vl::desktop
