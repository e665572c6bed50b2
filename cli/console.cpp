#include "cli/console.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace vl::cli {

namespace {

void writeTo(FILE *file, const QByteArray &bytes)
{
    // A message that cannot be told has nowhere else to go.
    static_cast<void>(std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), file));
    std::fflush(file);
}

} // namespace

Console::Console()
    : m_showsWork(isatty(STDERR_FILENO) == 1)
{
}

Console::~Console()
{
    if (!m_ticker.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_wake.notify_all();
    m_ticker.join();
    clearWorkLine();
}

void Console::writeBytes(QByteArrayView bytes)
{
    if (bytes.isEmpty())
        return; // there may be no address then
    const auto size = std::size_t(bytes.size());
    if (std::fwrite(bytes.data(), 1, size, stdout) != size)
        m_isOutputGood = false;
}

void Console::writeLine(const QString &text)
{
    writeBytes(text.toUtf8() + '\n');
}

bool Console::flush()
{
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        m_isOutputGood = false;
    return m_isOutputGood;
}

void Console::message(const QString &text)
{
    const std::lock_guard lock(m_mutex);
    clearWorkLine();
    writeTo(stderr, text.toUtf8() + '\n');
}

ExitStatus Console::fail(const QString &text)
{
    message(text);
    return ExitStatus::Failed;
}

void Console::begin(const QString &work)
{
    if (!m_showsWork)
        return;
    const std::lock_guard lock(m_mutex);
    m_work = work;
    if (m_ticker.joinable())
        return;
    m_since.start();
    m_ticker = std::thread([this] { showWork(); });
}

void Console::showWork()
{
    using namespace std::chrono_literals;
    std::unique_lock lock(m_mutex);
    while (!m_wake.wait_for(lock, 1s, [this] { return m_isEnding; })) {
        clearWorkLine();
        writeTo(stderr,
                QStringLiteral("%1 %2 s").arg(m_work).arg(m_since.elapsed() / 1000).toUtf8());
        m_isLineShown = true;
    }
}

void Console::clearWorkLine()
{
    if (m_isLineShown)
        writeTo(stderr, "\r\033[K");
    m_isLineShown = false;
}

} // namespace vl::cli
