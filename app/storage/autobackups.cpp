#include "app/storage/autobackups.h"

#include "app/base/files.h"
#include "app/base/sha256.h"
#include "app/storage/folderbackup.h"
#include "app/storage/lock.h"
#include "app/storage/projectfolder.h"
#include "app/storage/projectkey.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectreader.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSet>
#include <QtCore/QStorageInfo>

#include <algorithm>

namespace vl::app {

namespace {

const QLatin1String extension(".vlbackup");
constexpr QStringView timeFormat(u"yyyyMMdd'T'HHmmsszzz'Z'");
constexpr int timeSize = 19;
constexpr int numberSize = 6;
constexpr int lastNumber = 999999;
constexpr qint64 maxSummarySize = 1 << 16;
/// A backup leaves so much room on the disk.
constexpr qint64 roomLeft = qint64(64) << 20;
/// So many old ones at most go for each new one, so that a clock that is wrong for one day does
/// not clear out years.
constexpr int removedAtOnce = 2;
/// Backups whose time says nothing are kept up to this number, which is more than the rules of age
/// ever leave: a clock set back must not clear them out either.
constexpr int undatedKept = 30;

struct AutoBackupText
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::AutoBackups)
};

constexpr std::pair<BackupReason, const char *> reasonTexts[] = {
    {BackupReason::Opened, "opened"},
    {BackupReason::Closed, "closed"},
    {BackupReason::Daily, "daily"},
    {BackupReason::ByHand, "byhand"},
};

QLatin1String reasonText(BackupReason reason)
{
    for (const auto &[value, text] : reasonTexts) {
        if (value == reason)
            return QLatin1String(text);
    }
    return QLatin1String("other");
}

QString summaryPath(const QString &backupPath)
{
    return backupPath + QLatin1String(".json");
}

/// What the program knows of a backup without reading it.
struct KnownSummary
{
    QByteArray sha256;
    BackupSummary summary;
};

std::optional<KnownSummary> readSummary(const BackupInfo &backup)
{
    const Result<QByteArray> bytes =
        readRegularFile(summaryPath(backup.path), QString(), maxSummarySize);
    if (!bytes)
        return std::nullopt;
    const QJsonObject json = QJsonDocument::fromJson(*bytes).object();
    const auto number = [&json](const char *key) {
        return json.value(QLatin1String(key)).toInteger(-1);
    };
    const KnownSummary known{json.value(QLatin1String("sha256")).toString().toLatin1(),
                             {number("documents"), number("scenes"), number("words")}};
    if (known.sha256.size() != 64 || number("size") != backup.size || known.summary.documents < 0
        || known.summary.scenes < 0 || known.summary.words < 0)
        return std::nullopt;
    return known;
}

/// A remembered summary only saves time, so it does not matter when it cannot be written.
void writeSummary(const BackupInfo &backup, const KnownSummary &known)
{
    const QJsonObject json{{QLatin1String("sha256"), QString::fromLatin1(known.sha256)},
                           {QLatin1String("size"), backup.size},
                           {QLatin1String("documents"), known.summary.documents},
                           {QLatin1String("scenes"), known.summary.scenes},
                           {QLatin1String("words"), known.summary.words}};
    (void)writeFile(summaryPath(backup.path), QJsonDocument(json).toJson(), {}, Durability::Atomic);
}

/// The files of a project folder that belong in a backup. What is hidden (version control, private
/// notes of other programs), links and devices are no part of the project.
std::vector<QByteArray> filesToKeep(const QString &folder, const QString &below = {})
{
    std::vector<QByteArray> paths;
    QDirIterator entries(below.isEmpty() ? folder : folder + u'/' + below,
                         QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        const QString path = below.isEmpty() ? name : below + u'/' + name;
        if (entries.fileInfo().isDir()) {
            const std::vector<QByteArray> inside = filesToKeep(folder, path);
            paths.insert(paths.end(), inside.begin(), inside.end());
        } else if (isSafeEntryName(path.toUtf8())) {
            paths.push_back(path.toUtf8());
        }
    }
    return paths;
}

/// Leaves the text alone where what stands beside it fills a backup by itself.
void leaveOutTooMuch(std::vector<QByteArray> &paths, const QString &folder)
{
    qsizetype files = 0;
    qint64 bytes = 0;
    for (const QByteArray &path : paths) {
        if (isReadPath(path))
            continue;
        ++files;
        bytes += QFileInfo(pathInFolder(folder, path)).size();
    }
    if (!leavesRoomForText(files, bytes))
        std::erase_if(paths, [](const QByteArray &path) { return !isReadPath(path); });
}

Result<BundleSource> sourceOf(const BackupContent &content)
{
    const bool isFolder = QFileInfo(content.path).isDir();
    std::vector<QByteArray> paths =
        isFolder ? filesToKeep(content.path) : std::vector<QByteArray>();
    leaveOutTooMuch(paths, content.path);
    ProjectFiles files = content.files;
    if (!files.empty()) {
        std::erase_if(paths, [](const QByteArray &path) { return isReadPath(path); });
    } else if (!isFolder) {
        return failure(
            withPath(AutoBackupText::tr("The project folder does not exist: %1"), content.path));
    }
    // A folder may do without its records; a bundle may not.
    const QByteArray records = recordsPath().toUtf8();
    const bool hasRecords = std::find(paths.begin(), paths.end(), records) != paths.end()
                            || std::any_of(files.begin(), files.end(), [](const ProjectFile &file) {
                                   return file.path == recordsPath();
                               });
    if (!hasRecords)
        files.push_back({recordsPath(), QByteArrayLiteral("{\n}\n")});
    return BundleSource::ofFiles(content.path, std::move(paths), std::move(files));
}

/// What is to be written: the bytes of a bundle as it is, or what a source packs into.
class Packed
{
public:
    static Result<Packed> of(const BackupContent &content)
    {
        Packed packed;
        if (content.files.empty() && QFileInfo(content.path).isFile()) {
            Result<ReadBundle> bundle = readBundle(content.path);
            if (!bundle)
                return bundle.asFailure();
            packed.m_bytes = bundle->archive.bytes();
            packed.m_size = packed.m_bytes.size();
            packed.m_sha256 = Sha256::of(packed.m_bytes);
            return packed;
        }
        Result<BundleSource> source = sourceOf(content);
        if (!source)
            return source.asFailure();
        packed.m_source = *std::move(source);
        Sha256 sum;
        const auto sink = [&](QByteArrayView piece) {
            packed.m_size += piece.size();
            sum.add(piece);
            return Result<>();
        };
        if (const Result<> summed = packed.m_source->packInto(sink, content.path); !summed)
            return summed.asFailure();
        packed.m_sha256 = sum.finish();
        return packed;
    }

    const QByteArray &sha256() const { return m_sha256; }
    qint64 size() const { return m_size; }

    /// The sum of what was written.
    Result<QByteArray> writeTo(const QString &path) const
    {
        BundleWriter writer(path);
        const Result<> written =
            m_source ? writer.write(*m_source) : writer.write(QByteArrayView(m_bytes));
        if (!written)
            return written.asFailure();
        return writer.written()->sha256;
    }

private:
    std::optional<BundleSource> m_source;
    QByteArray m_bytes;
    QByteArray m_sha256;
    qint64 m_size = 0;
};

} // namespace

struct AutoBackups::Kept
{
    int number = 0; ///< counts up, whatever the clock says
    BackupInfo info;

    /// What a file name says, matched as a whole.
    static std::optional<Kept> fromName(const QString &fileName, const QString &baseName);
};

std::optional<AutoBackups::Kept> AutoBackups::Kept::fromName(const QString &fileName,
                                                             const QString &baseName)
{
    const QString start = baseName + u'-';
    for (const auto &[reason, text] : reasonTexts) {
        const QString end = u'-' + QLatin1String(text) + extension;
        if (fileName.size() != start.size() + numberSize + 1 + timeSize + end.size()
            || !fileName.startsWith(start) || !fileName.endsWith(end))
            continue;
        const QString stamp = fileName.mid(start.size(), numberSize + 1 + timeSize);
        Kept kept;
        bool isNumber = false;
        kept.number = stamp.left(numberSize).toInt(&isNumber);
        kept.info.reason = reason;
        kept.info.time = QDateTime::fromString(stamp.mid(numberSize + 1), timeFormat);
        kept.info.time.setTimeSpec(Qt::UTC);
        const QString again = QString::number(kept.number).rightJustified(numberSize, u'0') + u'-'
                              + kept.info.time.toString(timeFormat);
        if (isNumber && again == stamp)
            return kept;
    }
    return std::nullopt;
}

AutoBackups::AutoBackups(const QString &projectPath, const StorageLocations &locations,
                         Summarize summarize)
    : m_projectPath(projectPath)
    , m_folder(locations.autoBackups() + u'/' + projectKey(projectPath))
    , m_baseName(bundleBaseName(projectPath))
    , m_locations(locations)
    , m_summarize(std::move(summarize))
{
    const QString standard = locations.standardAutoBackups() + u'/' + projectKey(projectPath);
    if (standard != m_folder)
        m_earlierFolder = standard;
}

/// The oldest first, by the order in which they were made.
std::vector<AutoBackups::Kept> AutoBackups::keptIn(const QString &folder) const
{
    std::vector<Kept> list;
    const QDateTime now = m_locations.now();
    QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (entries.hasNext()) {
        entries.next();
        std::optional<Kept> kept = Kept::fromName(entries.fileName(), m_baseName);
        if (!kept)
            continue;
        kept->info.path = entries.filePath();
        kept->info.size = entries.fileInfo().size();
        if (kept->info.time > now)
            kept->info.time = QDateTime();
        list.push_back(*std::move(kept));
    }
    std::sort(list.begin(), list.end(), [](const Kept &a, const Kept &b) {
        return a.number != b.number ? a.number < b.number : a.info.path < b.info.path;
    });
    return list;
}

std::vector<AutoBackups::Kept> AutoBackups::kept() const
{
    return keptIn(m_folder);
}

Result<QByteArray> AutoBackups::sumOf(const Kept &backup) const
{
    if (const std::optional<KnownSummary> known = readSummary(backup.info))
        return known->sha256;
    const Result<QByteArray> bytes =
        readRegularFile(backup.info.path, QString(), ArchiveWriter::maxBytes + 65535);
    if (!bytes)
        return bytes.asFailure();
    return Sha256::of(*bytes);
}

Result<BackupSummary> AutoBackups::verify(const QString &path, const QByteArray &sha256) const
{
    const Result<ReadBundle> bundle = readBundle(path);
    if (!bundle)
        return bundle.asFailure();
    if (Sha256::of(bundle->archive.bytes()) != sha256)
        return failure(
            withPath(AutoBackupText::tr("The backup does not hold what was written: %1"), path));
    const Result<std::unique_ptr<core::Project>> project =
        loadProject(path, projectFilesIn(bundle->archive));
    if (!project)
        return project.asFailure();
    return m_summarize(**project);
}

/// Makes the folder, and looks whether there is room in it.
Result<> AutoBackups::makeFolderFor(qint64 bytes) const
{
    const QString &chosen = m_locations.chosenAutoBackups;
    // A disk that is not there now must not be taken for an empty folder.
    if (!chosen.isEmpty() && !QFileInfo(chosen).isDir())
        return failure(
            withPath(AutoBackupText::tr("The folder for backups does not exist: %1"), chosen));
    const QString project = QDir::cleanPath(m_projectPath) + u'/';
    if ((m_folder + u'/').startsWith(project))
        return failure(withPath(
            AutoBackupText::tr("The folder for backups lies in the project itself: %1"), chosen));
    // Some disks that can be taken along know of no permissions.
    if (!makePrivateFolder(m_folder) && (chosen.isEmpty() || !QFileInfo(m_folder).isDir()))
        return failure(
            withPath(AutoBackupText::tr("Could not create the folder for: %1"), m_folder));
    const qint64 room = QStorageInfo(m_folder).bytesAvailable();
    if (room >= 0 && room < bytes + roomLeft)
        return failure(
            withPath(AutoBackupText::tr("There is not enough room for a backup in: %1"), m_folder));
    return {};
}

Result<std::optional<BackupInfo>> AutoBackups::add(const BackupContent &content,
                                                   BackupReason reason) const
{
    const Result<Packed> packed = Packed::of(content);
    if (!packed)
        return packed.asFailure();
    const std::vector<Kept> before = kept();
    if (!before.empty()) {
        const Result<QByteArray> newest = sumOf(before.back());
        if (newest && *newest == packed->sha256())
            return std::optional<BackupInfo>();
    }
    if (const Result<> made = makeFolderFor(packed->size()); !made)
        return made.asFailure();

    QDateTime now = m_locations.now().toUTC();
    if (!now.isValid() || now.date().year() < 1970 || now.date().year() > 9999)
        now = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    const int number = before.empty() ? 1 : std::min(before.back().number + 1, lastNumber);
    BackupInfo made;
    made.time = now;
    made.reason = reason;
    made.path =
        QStringLiteral("%1/%2-%3-%4-%5%6")
            .arg(m_folder, m_baseName, QString::number(number).rightJustified(numberSize, u'0'),
                 now.toString(timeFormat), reasonText(reason), extension);
    removeUnfinishedFiles(m_folder);
    const Result<QByteArray> written = packed->writeTo(made.path);
    if (!written)
        return written.asFailure();
    const Result<BackupSummary> summary = verify(made.path, *written);
    if (!summary) {
        removeFile(made.path, Durability::Atomic);
        return summary.asFailure();
    }
    made.size = QFileInfo(made.path).size();
    writeSummary(made, {*written, *summary});
    thin();
    return std::optional(made);
}

/// One that cannot be removed now goes at the next turn.
void AutoBackups::thin() const
{
    std::vector<Kept> list = kept();
    std::reverse(list.begin(), list.end());
    const QDateTime now = m_locations.now();
    int automatic = 0;
    int byHand = 0;
    int undated = 0;
    QSet<qint64> days;
    QSet<qint64> weeks;
    std::vector<QString> surplus; // the newest first
    for (std::size_t i = 0; i < list.size(); ++i) {
        const BackupInfo &backup = list[i].info;
        bool isKept = i == 0;
        if (backup.reason == BackupReason::ByHand) {
            isKept = ++byHand <= byHandKept || isKept;
        } else {
            isKept = ++automatic <= lastKept || isKept;
            if (!backup.time.isValid()) {
                isKept = ++undated <= undatedKept || isKept;
            } else {
                const qint64 age = backup.time.daysTo(now);
                const qint64 day = backup.time.date().toJulianDay();
                const bool firstOfDay = !days.contains(day);
                const bool firstOfWeek = !weeks.contains(day / 7);
                days.insert(day);
                weeks.insert(day / 7);
                isKept =
                    isKept || (age < dailyDays && firstOfDay) || (age < weeklyDays && firstOfWeek);
            }
        }
        if (!isKept)
            surplus.push_back(backup.path);
    }
    for (int i = 0; i < removedAtOnce && !surplus.empty(); ++i) {
        removeFile(surplus.back(), Durability::Atomic);
        removeFile(summaryPath(surplus.back()), Durability::Atomic);
        surplus.pop_back();
    }
}

std::vector<BackupInfo> AutoBackups::list() const
{
    std::vector<BackupInfo> list;
    std::vector<Kept> own = kept();
    std::reverse(own.begin(), own.end());
    for (Kept &backup : own)
        list.push_back(std::move(backup.info));
    // By time, without changing the order of its own.
    const auto insert = [&list](const BackupInfo &backup) {
        auto place = std::find_if(list.begin(), list.end(), [&](const BackupInfo &other) {
            return backup.time.isValid() && other.time.isValid() && other.time < backup.time;
        });
        list.insert(place, backup);
    };
    if (!m_earlierFolder.isEmpty()) {
        std::vector<Kept> earlier = keptIn(m_earlierFolder);
        std::reverse(earlier.begin(), earlier.end());
        for (const Kept &backup : earlier)
            insert(backup.info);
    }
    QStringList replaced = m_locations.backups().list(m_baseName);
    std::reverse(replaced.begin(), replaced.end());
    const QDateTime now = m_locations.now();
    for (const QString &path : std::as_const(replaced)) {
        BackupInfo backup;
        backup.path = path;
        backup.reason = BackupReason::Replaced;
        backup.size = QFileInfo(path).size();
        backup.time = Backups::timeOf(path, m_baseName);
        if (backup.time > now)
            backup.time = QDateTime();
        insert(backup);
    }
    return list;
}

Result<BackupSummary> AutoBackups::summary(const BackupInfo &backup) const
{
    if (const std::optional<KnownSummary> known = readSummary(backup))
        return known->summary;
    const Result<ReadBundle> bundle = readBundle(backup.path);
    if (!bundle)
        return bundle.asFailure();
    const Result<std::unique_ptr<core::Project>> project =
        loadProject(backup.path, projectFilesIn(bundle->archive));
    if (!project)
        return project.asFailure();
    const BackupSummary summary = m_summarize(**project);
    if (backup.reason != BackupReason::Replaced)
        writeSummary(backup, {Sha256::of(bundle->archive.bytes()), summary});
    return summary;
}

Result<std::unique_ptr<core::Project>> loadBackup(const QString &path)
{
    const Result<ReadBundle> bundle = readBundle(path);
    if (!bundle)
        return bundle.asFailure();
    return loadProject(path, projectFilesIn(bundle->archive));
}

Result<> copyBackup(const QString &backupPath, const QString &bundlePath,
                    const StorageLocations &locations)
{
    const Result<ReadBundle> bundle = readBundle(backupPath);
    if (!bundle)
        return bundle.asFailure();
    const Result<std::unique_ptr<core::Project>> project =
        loadProject(backupPath, projectFilesIn(bundle->archive));
    if (!project)
        return project.asFailure();
    // Released again with the end of this call.
    const LockAttempt attempt = ProjectLock::take(bundlePath, LockHolder::current());
    if (attempt.holder && attempt.holderState != HolderState::Unknown)
        return failure(withPath(AutoBackupText::tr("A project that is open cannot be replaced: %1"),
                                bundlePath));
    if (FileIdentity::of(bundlePath).size > 0) {
        const Result<QByteArray> bytes =
            readRegularFile(bundlePath, AutoBackupText::tr("Cannot read file: %1"), maxBundleBytes);
        if (!bytes)
            return bytes.asFailure();
        const Result<QString> kept =
            locations.backups().addBytes(bundleBaseName(bundlePath), *bytes);
        if (!kept)
            return kept.asFailure();
    }
    return writeBundle(bundlePath, bundle->archive.bytes());
}

} // namespace vl::app
