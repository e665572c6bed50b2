#include "app/storage/folderbackup.h"

#include "app/base/files.h"
#include "app/storage/archive.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectreader.h"

#include <QtCore/QDirIterator>

namespace vl::app {

bool leavesRoomForText(qsizetype files, qint64 bytes)
{
    return files < ArchiveWriter::maxEntries / 2 && bytes < ArchiveWriter::maxBytes / 4 * 3;
}

std::vector<QByteArray> mediaPathsIn(const QString &folder)
{
    std::vector<QByteArray> paths;
    qint64 bytes = 0;
    QDirIterator it(folder + u'/' + assetsFolder(), QDir::Files | QDir::NoSymLinks,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QByteArray path = it.next().mid(folder.size() + 1).toUtf8();
        if (isUnfinishedFileName(it.fileName()) || !isSafeEntryName(path))
            continue;
        paths.push_back(path);
        bytes += it.fileInfo().size();
    }
    return leavesRoomForText(qsizetype(paths.size()), bytes) ? paths : std::vector<QByteArray>();
}

Result<QString> backUpProjectFolder(const Backups &backups, const QString &baseName,
                                    const QString &folder)
{
    const Result<QStringList> read = listReadPaths(folder);
    if (!read)
        return read.asFailure();
    std::vector<QByteArray> paths = mediaPathsIn(folder);
    for (const QString &file : *read)
        if (isSafeEntryName(file.toUtf8()))
            paths.push_back(file.toUtf8());
    ProjectFiles records; // a backup has some in any case
    if (!read->contains(recordsPath()))
        records.push_back({recordsPath(), QByteArrayLiteral("{}\n")});
    const Result<BundleSource> source =
        BundleSource::ofFiles(folder, std::move(paths), std::move(records));
    return source ? backups.addSource(baseName, *source) : Result<QString>(source.asFailure());
}

} // namespace vl::app
