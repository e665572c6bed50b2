#include "desktop/startup/endsignals.h"

#include <QtCore/QSocketNotifier>

#ifdef Q_OS_LINUX
#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace vl::desktop {

#ifdef Q_OS_LINUX

namespace {

constexpr std::array endings = {SIGTERM, SIGINT, SIGHUP};

/// What a handler may reach, which is called with nothing but the number of its signal.
volatile std::sig_atomic_t writeEnd = -1;

/// Only what a handler may do: Qt is not to be called here.
void wake(int /*signal*/)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(int(writeEnd), &byte, 1);
}

void handle(void (*handler)(int), int flags)
{
    for (const int number : endings) {
        struct sigaction action = {};
        sigaction(number, nullptr, &action);
        if (action.sa_handler == SIG_IGN) // by who started the program, as nohup does
            continue;
        action = {};
        action.sa_handler = handler;
        action.sa_flags = flags;
        sigaction(number, &action, nullptr);
    }
}

} // namespace

EndSignals::EndSignals(QObject *parent)
    : QObject(parent)
{
    std::array<int, 2> ends{};
    if (writeEnd >= 0 || pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_readEnd = ends[0];
    writeEnd = ends[1];
    auto *notifier = new QSocketNotifier(m_readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        Q_EMIT asked();
    });
    handle(wake, int(SA_RESTART | SA_RESETHAND));
}

EndSignals::~EndSignals()
{
    if (m_readEnd < 0)
        return;
    handle(SIG_DFL, 0);
    close(int(writeEnd));
    writeEnd = -1;
    close(m_readEnd);
}

#else

EndSignals::EndSignals(QObject *parent)
    : QObject(parent)
{
}

EndSignals::~EndSignals() = default;

#endif

} // namespace vl::desktop
