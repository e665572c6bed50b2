#include "app/storage/workingcopy.h"

#include "app/base/files.h"
#include "app/base/settings.h"
#include "app/base/settingskeys.h"
#include "app/base/sha256.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStandardPaths>

#include <set>

namespace vl::app {

namespace {

const QLatin1String bundlePathKey("bundlePath");
const QLatin1String bundleSumKey("bundleSha256");
constexpr qint64 maxMarkerSize = 1 << 20;
constexpr int pathDigits = 12;
/// With digits, extensions and a time stamp behind it the name stays within 255 bytes.
constexpr qsizetype maxBaseNameBytes = 150;

struct WorkingFolder
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::WorkingFolder)
};

/// A copy being filled; takes the copy's name when it is whole.
QString partPath(const QString &folder)
{
    return folder + QStringLiteral(".part");
}

/// A copy being removed, of which there is a backup.
QString discardedPath(const QString &folder)
{
    return folder + QStringLiteral(".discarded");
}

bool removeTree(const QString &path)
{
    if (!isThere(path))
        return true;
    const QFileInfo info(path);
    return info.isDir() && !info.isSymLink() ? QDir(path).removeRecursively() : QFile::remove(path);
}

bool isEmptyFolder(const QString &path)
{
    return QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System
                              | QDir::NoDotAndDotDot);
}

QString firstDigits(const QString &text)
{
    return QString::fromLatin1(Sha256::of(text.toUtf8()).first(pathDigits));
}

} // namespace

StorageLocations StorageLocations::standard()
{
    StorageLocations locations;
    locations.root = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return locations;
}

StorageLocations StorageLocations::of(const Settings &settings)
{
    StorageLocations locations = standard();
    // Below which folder a relative path would lie nobody could tell.
    const QString chosen = settings.text(settings::backupFolder);
    if (QDir::isAbsolutePath(chosen))
        locations.chosenAutoBackups = QDir::cleanPath(chosen);
    return locations;
}

QString absoluteBundlePath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString bundleBaseName(const QString &path)
{
    QString name;
    for (const char32_t c : QFileInfo(path).completeBaseName().toUcs4()) {
        const bool safe =
            QChar::isLetterOrNumber(c) || QChar::isMark(c)
            || (c < 0x80 && QLatin1String(" -_.,()[]'&+=@!#").contains(QChar(char16_t(c))));
        name += safe ? QString::fromUcs4(&c, 1) : QStringLiteral("_");
    }
    while (name.toUtf8().size() > maxBaseNameBytes)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    while (name.startsWith(QLatin1Char('.')) || name.startsWith(QLatin1Char(' ')))
        name.remove(0, 1);
    while (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')))
        name.chop(1);
    return name.isEmpty() ? QStringLiteral("project") : name;
}

WorkingCopy::WorkingCopy(QString bundlePath, QString folder, QString baseName)
    : m_bundlePath(std::move(bundlePath))
    , m_folder(std::move(folder))
    , m_baseName(std::move(baseName))
{
}

WorkingCopy WorkingCopy::of(const QString &bundlePath, const StorageLocations &locations)
{
    const QString path = absoluteBundlePath(bundlePath);
    const QString baseName = bundleBaseName(path);
    const QString start =
        locations.workingFolder() + QLatin1Char('/') + baseName + QLatin1Char('-');
    const WorkingCopy shared(path, start + firstDigits(path.toLower()), baseName);
    const std::optional<Marker> marker = shared.readMarker();
    if (marker && marker->bundlePath == path)
        return shared;
    const bool isAnothers = marker && FileIdentity::of(marker->bundlePath).isFile()
                            && !areSameFile(marker->bundlePath, path);
    if (!isAnothers)
        return shared;
    return WorkingCopy(path, shared.m_folder + QLatin1Char('-') + firstDigits(path), baseName);
}

WorkingCopy WorkingCopy::at(const QString &bundlePath, const QString &folder)
{
    return WorkingCopy(absoluteBundlePath(bundlePath), folder, bundleBaseName(bundlePath));
}

WorkingCopyState WorkingCopy::stateAgainst(const Archive &archive) const
{
    if (!isThere(m_folder))
        return WorkingCopyState::Absent;
    const QFileInfo info(m_folder);
    if (!info.isDir() || info.isSymLink())
        return WorkingCopyState::Unreadable;
    if (info.isReadable() && isEmptyFolder(m_folder))
        return WorkingCopyState::Absent;
    switch (compareFolder(m_folder, archive)) {
    case FolderComparison::Same:
        return WorkingCopyState::Same;
    case FolderComparison::Different:
        return WorkingCopyState::Modified;
    case FolderComparison::Unreadable:
        break;
    }
    return WorkingCopyState::Unreadable;
}

std::optional<WorkingCopy::Marker> WorkingCopy::readMarker() const
{
    const Result<QByteArray> bytes = readRegularFile(markerPath(), QString(), maxMarkerSize);
    if (!bytes)
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(*bytes).object();
    if (!object.value(bundlePathKey).isString() || !object.value(bundleSumKey).isString())
        return std::nullopt;
    return Marker{object.value(bundlePathKey).toString(),
                  object.value(bundleSumKey).toString().toLatin1()};
}

bool WorkingCopy::markerMatches(const QByteArray &sha256) const
{
    const std::optional<Marker> marker = readMarker();
    return marker && !sha256.isEmpty() && marker->sha256 == sha256;
}

bool WorkingCopy::removeMarker() const
{
    return removeFile(markerPath());
}

Result<> WorkingCopy::writeMarker(const QByteArray &sha256) const
{
    const QJsonObject object{{bundlePathKey, m_bundlePath},
                             {bundleSumKey, QString::fromLatin1(sha256)}};
    const QByteArray bytes = QJsonDocument(object).toJson();
    if (fileHolds(markerPath(), bytes))
        return {};
    if (!writeFile(markerPath(), bytes, {}))
        return prepareFailure();
    return {};
}

void WorkingCopy::removeLeftovers() const
{
    removeTree(partPath(m_folder));
    removeTree(discardedPath(m_folder));
    removeUnfinishedFilesOf(markerPath());
}

Result<> WorkingCopy::clear() const
{
    // Renamed first, so that at no moment half a copy stands under the name of the whole.
    if (!isThere(m_folder))
        return {};
    const QString discarded = discardedPath(m_folder);
    if (!removeTree(discarded) || !renamePath(m_folder, discarded))
        return failure(
            withPath(WorkingFolder::tr("Could not clear the stale working copy: %1"), m_folder));
    removeTree(discarded); // if not all of it goes now, the rest does at the next opening
    return {};
}

Result<> WorkingCopy::fill(const Archive &archive) const
{
    const QString part = partPath(m_folder);
    if (!makePrivateFolder(QFileInfo(m_folder).absolutePath()) || !removeTree(part))
        return prepareFailure();
    if (Result<> extracted = extractArchive(archive, part); !extracted)
        return extracted;
    if (!syncFileSystem(part) || !renamePath(part, m_folder)) {
        removeTree(part);
        return prepareFailure();
    }
    return {};
}

Result<> WorkingCopy::update(const BundleSource &source) const
{
    const QString message = WorkingFolder::tr("Could not refresh the project's working folder: %1");
    const Failure failed = failure(withPath(message, m_folder));
    if (!makePrivateFolder(QFileInfo(m_folder).absolutePath()))
        return failed;
    std::set<QString> folders;
    FileBatch batch({message, message}, Durability::Synced);
    for (const ProjectFile &file : source.files()) {
        const QString path = m_folder + QLatin1Char('/') + file.path;
        const QString folder = path.left(path.lastIndexOf(QLatin1Char('/')));
        if (folders.insert(folder).second && !makeFolder(folder))
            return failed;
        if (!batch.add(path, file.bytes))
            return failed;
    }
    if (!batch.commit())
        return failed;
    folders.clear();
    for (const QString &path : source.goneFiles()) {
        if (!removeFile(path, Durability::Atomic))
            return failed;
        folders.insert(path.left(path.lastIndexOf(QLatin1Char('/'))));
    }
    for (const QString &folder : folders) {
        if (!syncFolder(folder))
            return failed;
    }
    return {};
}

Failure WorkingCopy::prepareFailure() const
{
    return failure(withPath(WorkingFolder::tr("Could not prepare the project's working folder: %1"),
                            m_folder));
}

} // namespace vl::app
