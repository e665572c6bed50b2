#include "cli/projectsource.h"

#include "app/storage/bundle.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>

namespace vl::cli {

namespace {

QString bundleEnding()
{
    return QStringLiteral(".vellum");
}

} // namespace

bool isBundlePath(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? !info.isDir() : path.endsWith(bundleEnding(), Qt::CaseInsensitive);
}

QString fullPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString projectName(const QString &path)
{
    QString name = QFileInfo(QFileInfo(path).absoluteFilePath()).fileName();
    if (isBundlePath(path) && name.endsWith(bundleEnding(), Qt::CaseInsensitive))
        name.chop(bundleEnding().size());
    return name;
}

ProjectSource::ProjectSource(QString path, app::LoadedProject loaded,
                             std::optional<app::Archive> archive)
    : m_path(std::move(path))
    , m_project(std::move(loaded.project))
    , m_archive(std::move(archive))
{
    m_readPaths.reserve(qsizetype(loaded.files.size()));
    for (const app::LoadedFile &file : loaded.files)
        m_readPaths.append(file.path);
}

app::Result<ProjectSource> ProjectSource::open(const QString &givenPath)
{
    const QString path = fullPath(givenPath);
    if (!isBundlePath(path)) {
        app::Result<app::LoadedProject> loaded = app::loadProjectFiles(path);
        if (!loaded)
            return loaded.asFailure();
        return ProjectSource(path, *std::move(loaded), std::nullopt);
    }
    app::Result<app::ReadBundle> bundle = app::readBundle(path);
    if (!bundle)
        return bundle.asFailure();
    app::Result<app::LoadedProject> loaded =
        app::loadProjectFiles(path, app::projectFilesIn(bundle->archive));
    if (!loaded)
        return loaded.asFailure();
    return ProjectSource(path, *std::move(loaded), std::move(bundle->archive));
}

qint64 ProjectSource::bytesOnDisk() const
{
    if (m_archive)
        return m_archive->bytes().size();
    qint64 bytes = 0;
    QDirIterator files(m_path, QDir::Files | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        if (const QFileInfo info = files.fileInfo(); !info.isSymLink())
            bytes += info.size();
    }
    return bytes;
}

} // namespace vl::cli
