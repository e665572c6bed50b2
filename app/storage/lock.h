#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace vl::app {

/// A running program, as a lock names it.
struct LockHolder
{
    QString host;
    QString user;
    qint64 process = 0;
    QDateTime since; ///< UTC; only to be shown, nothing depends on it

    // By these a program is told from others whose process has the same number.
    QString machine;      ///< what names the machine apart from its name
    QString boot;         ///< other after each start of the machine
    QString space;        ///< in which the numbers of processes are given; empty where there is one
    QString processStart; ///< in clock ticks of the machine; empty where that cannot be known
    QString token;        ///< drawn for this lock
    QString place;        ///< where the project lies; a lock copied along with it is nobody's

    /// This program, now.
    static LockHolder current();

    QByteArray toJson() const;
    /// Nothing when the text is no lock.
    static std::optional<LockHolder> fromJson(const QByteArray &text);
    bool operator==(const LockHolder &) const = default;
};

/// What is known of the program that holds a lock.
enum class HolderState
{
    Running,
    Gone,
    Unknown, ///< it is on another machine, or the lock cannot be read
};

HolderState stateOf(const LockHolder &holder, const LockHolder &self);

class ProjectLock;

/// What came of trying to lock a project.
struct LockAttempt
{
    /// Null when another program holds it, and also where no lock can be written, as in a place
    /// that may only be read.
    std::unique_ptr<ProjectLock> lock;
    std::optional<LockHolder> holder; ///< who else has it open
    HolderState holderState = HolderState::Running;
};

/// Tells other programs, here and on other machines that share the folder, that a project is open:
/// a small hidden file beside a ".vellum" file, or in a project folder, where no save or packing
/// takes it along. Released when the object goes; a crash leaves it behind, which is recognised.
class ProjectLock
{
public:
    /// Locks the project at the path. A lock whose program is gone for certain is replaced.
    static LockAttempt take(const QString &projectPath, const LockHolder &program);
    /// Locks it although another program's lock stands there, which the user says is left over.
    static LockAttempt takeOver(const QString &projectPath, const LockHolder &self);

    ~ProjectLock();
    Q_DISABLE_COPY_MOVE(ProjectLock)

    bool isFor(const QString &projectPath) const;

    /// Where the lock of a project stands.
    static QString filePath(const QString &projectPath);

private:
    ProjectLock(QString path, QByteArray text)
        : m_path(std::move(path))
        , m_text(std::move(text))
    {
    }

    static LockAttempt create(const QString &path, const LockHolder &self);
    static bool removeStale(const QString &path, const QByteArray &text, const QString &token);

    QString m_path;
    QByteArray m_text;
};

/// Whether the path, relative to a project folder, is that of its lock.
bool isLockPath(QByteArrayView path);

} // namespace vl::app
