#include "app/storage/lock.h"

#include "app/base/files.h"
#include "app/base/sha256.h"
#include "app/storage/projectkey.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSysInfo>
#include <QtCore/QThread>
#include <QtCore/QUuid>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <unistd.h>
#endif

namespace vl::app {

namespace {

const QLatin1String folderLock(".ivorel.lock");
constexpr qint64 maxLockSize = 1 << 16;
constexpr int writingMilliseconds = 50; // what a lock may take to be written
constexpr int idDigits = 16;

/// One field of the lock's text and the member that it fills.
struct Field
{
    const char *key;
    QString LockHolder::*member;
};
constexpr Field fields[] = {
    {"host", &LockHolder::host},       {"user", &LockHolder::user},
    {"machine", &LockHolder::machine}, {"boot", &LockHolder::boot},
    {"space", &LockHolder::space},     {"processStart", &LockHolder::processStart},
    {"token", &LockHolder::token},     {"place", &LockHolder::place},
};

QString textOfFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(maxLockSize)) : QString();
}

/// When a process began; empty when there is none of that number or the system does not tell.
QString startOf(qint64 process)
{
    // The name of the program stands in brackets and may hold anything; behind it the first field
    // is the state, the 20th the start. One that has ended and whom nobody asked after is no more.
    const QString text = textOfFile(QStringLiteral("/proc/%1/stat").arg(process));
    const QString fields = text.mid(text.lastIndexOf(u')') + 1).simplified();
    const bool hasEnded = fields.startsWith(u'Z') || fields.startsWith(u'X');
    return hasEnded ? QString() : fields.section(u' ', 19, 19);
}

QString userName()
{
    for (const char *variable : {"USER", "LOGNAME", "USERNAME"}) {
        if (QString name = qEnvironmentVariable(variable); !name.isEmpty())
            return name;
    }
    return QFileInfo(QStringLiteral("/proc/self")).owner();
}

/// The identifier of the machine is private to it; what is written where others read is a sum.
QString hidden(const QByteArray &id)
{
    return id.isEmpty() ? QString()
                        : QString::fromLatin1(Sha256::of("ivorel lock " + id).first(idDigits));
}

HolderState processState(const LockHolder &holder)
{
#if defined(Q_OS_LINUX)
    return startOf(holder.process) == holder.processStart ? HolderState::Running
                                                          : HolderState::Gone;
#elif defined(Q_OS_UNIX)
    return ::kill(pid_t(holder.process), 0) == 0 || errno == EPERM ? HolderState::Running
                                                                   : HolderState::Gone;
#else
    return HolderState::Unknown;
#endif
}

/// Names the place of a lock, whichever way leads there.
QString placeOf(const QString &lockPath)
{
    const QFileInfo info(lockPath);
    return hidden(QFile::encodeName(info.dir().canonicalPath() + u'/' + info.fileName()));
}

Result<QByteArray> readLock(const QString &path)
{
    return readRegularFile(path, QString(), maxLockSize);
}

} // namespace

LockHolder LockHolder::current()
{
    LockHolder self;
    self.host = QSysInfo::machineHostName();
    self.user = userName();
    self.process = QCoreApplication::applicationPid();
    self.since = QDateTime::currentDateTimeUtc();
    self.machine = hidden(QSysInfo::machineUniqueId());
    self.boot = hidden(QSysInfo::bootUniqueId());
    self.space = QFileInfo(QStringLiteral("/proc/self/ns/pid")).symLinkTarget().section(u'/', -1);
    self.processStart = startOf(self.process);
    self.token = QUuid::createUuid().toString(QUuid::WithoutBraces);
    return self;
}

QByteArray LockHolder::toJson() const
{
    QJsonObject json{{QLatin1String("process"), process},
                     {QLatin1String("since"), since.toString(Qt::ISODateWithMs)}};
    for (const Field &field : fields)
        json.insert(QLatin1String(field.key), this->*field.member);
    return QJsonDocument(json).toJson();
}

std::optional<LockHolder> LockHolder::fromJson(const QByteArray &text)
{
    const QJsonObject json = QJsonDocument::fromJson(text).object();
    LockHolder holder;
    for (const Field &field : fields)
        holder.*field.member = json.value(QLatin1String(field.key)).toString();
    holder.process = json.value(QLatin1String("process")).toInteger();
    holder.since =
        QDateTime::fromString(json.value(QLatin1String("since")).toString(), Qt::ISODateWithMs);
    if (holder.token.isEmpty() || holder.process <= 0)
        return std::nullopt;
    return holder;
}

HolderState stateOf(const LockHolder &holder, const LockHolder &self)
{
    const bool isHere =
        self.machine.isEmpty() ? holder.host == self.host : holder.machine == self.machine;
    if (!isHere || holder.token.isEmpty())
        return HolderState::Unknown;
    if (!self.boot.isEmpty() && holder.boot != self.boot)
        return HolderState::Gone;
    // In another space of processes its number says nothing here, and neither does its path.
    if (holder.space != self.space)
        return HolderState::Unknown;
    const bool isCopy =
        !holder.place.isEmpty() && !self.place.isEmpty() && holder.place != self.place;
    return isCopy ? HolderState::Gone : processState(holder);
}

QString ProjectLock::filePath(const QString &projectPath)
{
    QString path = absoluteProjectPath(projectPath);
    // A link to a ".vellum" file is another name of it; saving goes through it.
    if (const QFileInfo link(path); link.isSymLink() && link.isFile())
        path = link.canonicalFilePath();
    const QFileInfo info(path);
    return info.isDir() ? path + u'/' + folderLock
                        : QStringLiteral("%1/.%2.lock").arg(info.path(), info.fileName());
}

bool isLockPath(QByteArrayView path)
{
    return path == QByteArrayView(folderLock.data(), folderLock.size());
}

LockAttempt ProjectLock::create(const QString &path, const LockHolder &self)
{
    LockAttempt attempt;
    const QByteArray text = self.toJson();
    if (createFile(path, text, {}))
        attempt.lock.reset(new ProjectLock(path, text));
    return attempt;
}

LockAttempt ProjectLock::take(const QString &projectPath, const LockHolder &program)
{
    const QString path = filePath(projectPath);
    LockHolder self = program;
    self.place = placeOf(path);
    LockAttempt attempt = create(path, self);
    if (attempt.lock || !QFileInfo::exists(path))
        return attempt;
    Result<QByteArray> text = readLock(path);
    std::optional<LockHolder> holder = text ? LockHolder::fromJson(*text) : std::nullopt;
    if (!holder) { // it may be being written this moment
        QThread::msleep(writingMilliseconds);
        text = readLock(path);
        holder = text ? LockHolder::fromJson(*text) : std::nullopt;
    }
    attempt.holder = holder.value_or(LockHolder());
    attempt.holderState = stateOf(*attempt.holder, self);
    if (attempt.holderState != HolderState::Gone)
        return attempt;
    if (removeStale(path, *text, self.token)) {
        LockAttempt second = create(path, self);
        if (second.lock)
            return second;
    }
    // Another program was faster, or the place may only be read.
    text = readLock(path);
    holder = text ? LockHolder::fromJson(*text) : std::nullopt;
    attempt.holder.reset();
    if (holder && stateOf(*holder, self) != HolderState::Gone) {
        attempt.holder = holder;
        attempt.holderState = stateOf(*holder, self);
    }
    return attempt;
}

LockAttempt ProjectLock::takeOver(const QString &projectPath, const LockHolder &self)
{
    removeFile(filePath(projectPath), Durability::Atomic);
    return take(projectPath, self);
}

/// Takes the lock away under another name first: what another program wrote meanwhile in its place
/// must not go.
bool ProjectLock::removeStale(const QString &path, const QByteArray &text, const QString &token)
{
    const QString aside = path + u'.' + token;
    if (!renamePath(path, aside, Durability::Atomic))
        return false;
    const Result<QByteArray> moved = readLock(aside);
    if (!moved || *moved != text) {
        const bool isBack = moved && createFile(path, *moved, {});
        if (isBack)
            removeFile(aside, Durability::Atomic);
        return false;
    }
    return removeFile(aside, Durability::Atomic);
}

bool ProjectLock::isFor(const QString &projectPath) const
{
    return filePath(projectPath) == m_path;
}

ProjectLock::~ProjectLock()
{
    // Somebody may have taken it over.
    const Result<QByteArray> text = readLock(m_path);
    if (text && *text == m_text)
        removeFile(m_path, Durability::Atomic);
}

} // namespace vl::app
