#include "app/storage/backups.h"

#include "app/base/files.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <optional>

namespace vl::app {

namespace {

const QLatin1String extension(".vlbackup");
constexpr QStringView timeFormat(u"yyyyMMdd'T'HHmmsszzz'Z'");
constexpr int timeSize = 19;
constexpr int counterSize = 4;
constexpr int stampSize = timeSize + 1 + counterSize;
constexpr int lastCounter = 9999;
constexpr int lastYear = 9000; ///< later ones are no dates, and would leave nothing to count up to

struct BackupFolder
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::BackupFolder)
};

/// Names a backup's moment: UTC to the millisecond, and a counter for equal ones. In text it sorts
/// like the moments.
struct Stamp
{
    QDateTime time;
    int counter = 0;

    static std::optional<Stamp> fromText(const QString &text);
    QString toText() const
    {
        return time.toString(timeFormat) + QLatin1Char('-')
               + QString::number(counter).rightJustified(counterSize, QLatin1Char('0'));
    }
    Stamp next() const
    {
        return counter < lastCounter ? Stamp{time, counter + 1} : Stamp{time.addMSecs(1), 0};
    }
};

std::optional<Stamp> Stamp::fromText(const QString &text)
{
    bool isNumber = false;
    Stamp stamp;
    stamp.time = QDateTime::fromString(text.left(timeSize), timeFormat);
    stamp.time.setTimeSpec(Qt::UTC);
    stamp.counter = text.mid(timeSize + 1).toInt(&isNumber);
    // Written back it must be the same text: that leaves out whatever readers are lenient about.
    if (!stamp.time.isValid() || stamp.time.date().year() >= lastYear || !isNumber
        || stamp.toText() != text)
        return std::nullopt;
    return stamp;
}

/// The stamp in a backup's file name, when that is a backup with exactly this base name.
std::optional<Stamp> stampIn(const QString &fileName, const QString &baseName)
{
    const QString start = baseName + QLatin1Char('-');
    if (fileName.size() != start.size() + stampSize + extension.size()
        || !fileName.startsWith(start) || !fileName.endsWith(extension))
        return std::nullopt;
    return Stamp::fromText(fileName.mid(start.size(), stampSize));
}

} // namespace

Backups::Backups(QString folder, Clock now)
    : m_folder(std::move(folder))
    , m_now(std::move(now))
{
}

QStringList Backups::list(const QString &baseName) const
{
    QStringList paths;
    // Compared name by name, since a base name such as "[draft]" would be a pattern.
    const QStringList names = QDir(m_folder).entryList(QDir::Files | QDir::Hidden, QDir::NoSort);
    for (const QString &name : names) {
        if (stampIn(name, baseName))
            paths.append(m_folder + QLatin1Char('/') + name);
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

QDateTime Backups::timeOf(const QString &path, const QString &baseName)
{
    const std::optional<Stamp> stamp = stampIn(QFileInfo(path).fileName(), baseName);
    return stamp ? stamp->time : QDateTime();
}

QString Backups::newName(const QString &baseName) const
{
    Stamp stamp{m_now().toUTC(), 0};
    if (!stamp.time.isValid() || stamp.time.date().year() < 1970
        || stamp.time.date().year() >= lastYear)
        stamp.time = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    // A clock that was set back must not make the newest backup the oldest by name.
    const QStringList existing = list(baseName);
    if (!existing.isEmpty()) {
        const std::optional<Stamp> newest =
            stampIn(QFileInfo(existing.last()).fileName(), baseName);
        if (newest && stamp.toText() <= newest->toText())
            stamp = newest->next();
    }
    const auto pathOf = [&] {
        return m_folder + QLatin1Char('/') + baseName + QLatin1Char('-') + stamp.toText();
    };
    while (QFileInfo::exists(pathOf()) || QFileInfo::exists(pathOf() + extension))
        stamp = stamp.next();
    return pathOf();
}

template<typename Content>
Result<QString> Backups::add(const QString &baseName, const Content &content) const
{
    QString path = newName(baseName) + extension;
    if (!makePrivateFolder(m_folder))
        return failure(withPath(BackupFolder::tr("Could not create the folder for: %1"), path));
    BundleWriter writer(path);
    if (const Result<> written = writer.write(content); !written)
        return written.asFailure();
    thin(baseName, path);
    return path;
}

Result<QString> Backups::addFolder(const QString &baseName, const QString &folder) const
{
    const Result<BundleSource> source = BundleSource::ofFolder(folder);
    if (!source)
        return source.asFailure();
    return add(baseName, *source);
}

Result<QString> Backups::addSource(const QString &baseName, const BundleSource &source) const
{
    return add(baseName, source);
}

Result<QString> Backups::addBytes(const QString &baseName, QByteArrayView bytes) const
{
    return add(baseName, bytes);
}

Result<QString> Backups::moveAside(const QString &baseName, const QString &folder) const
{
    QString path = newName(baseName);
    if (!makePrivateFolder(m_folder) || !renamePath(folder, path))
        return failure(
            withPath(BackupFolder::tr("Could not clear the stale working copy: %1"), folder));
    return path;
}

/// One that cannot be removed now goes at the next turn.
void Backups::thin(const QString &baseName, const QString &newest) const
{
    QStringList paths = list(baseName);
    while (paths.size() > kept) {
        const QString oldest = paths.takeFirst();
        if (oldest != newest)
            removeFile(oldest, Durability::Atomic);
    }
}

} // namespace vl::app
