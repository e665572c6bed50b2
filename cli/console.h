#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QElapsedTimer>
#include <QtCore/QString>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace vl::cli {

/// What the program tells the shell.
enum class ExitStatus
{
    Done = 0,
    Findings = 1, ///< done, but with findings or conflicts
    Usage = 2,
    Failed = 3
};

/// Both outputs of the program. Results are UTF-8, whatever the locale says. When standard error is
/// a terminal, work that takes longer than a second shows itself there in one line that goes away
/// again.
class Console
{
public:
    Console();
    ~Console();
    Q_DISABLE_COPY_MOVE(Console)

    /// Writes a result to standard output.
    void writeBytes(QByteArrayView bytes);
    void write(const QString &text) { writeBytes(text.toUtf8()); }
    /// The same with a line feed behind it.
    void writeLine(const QString &text);
    /// Hands on to the system what was written; false when some of it could not be.
    bool flush();

    /// Writes a message to standard error, as a line of its own.
    void message(const QString &text);
    /// The same for a failure of the command, which is what is given back.
    ExitStatus fail(const QString &text);

    /// Names the work that begins now, for the line that shows it: "Reading the project…".
    void begin(const QString &work);

private:
    void showWork();
    void clearWorkLine();

    bool m_isOutputGood = true;
    bool m_showsWork;
    std::mutex m_mutex; ///< guards what stands below
    std::condition_variable m_wake;
    QString m_work;
    QElapsedTimer m_since;
    bool m_isLineShown = false;
    bool m_isEnding = false;
    std::thread m_ticker;
};

} // namespace vl::cli
