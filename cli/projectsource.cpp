#include "cli/projectsource.h"

#include "app/base/files.h"
#include "app/storage/projectfolder.h"
#include "app/storage/projectreader.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>

namespace vl::cli {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::cli::ProjectSource)
};

QString bundleEnding()
{
    return QStringLiteral(".vellum");
}

/// The files of a bundle that make up the model; nothing when one of them is damaged.
std::optional<std::vector<app::ProjectFile>> modelFiles(const app::Archive &archive)
{
    std::vector<app::ProjectFile> files;
    for (const app::Archive::Entry &entry : archive.entries()) {
        if (!app::isReadPath(entry.name))
            continue;
        std::optional<QByteArray> bytes = archive.content(entry);
        if (!bytes)
            return std::nullopt;
        files.push_back({QString::fromUtf8(entry.name), *std::move(bytes)});
    }
    return files;
}

} // namespace

bool isBundlePath(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? !info.isDir() : path.endsWith(bundleEnding(), Qt::CaseInsensitive);
}

QString projectName(const QString &path)
{
    QString name = QFileInfo(QFileInfo(path).absoluteFilePath()).fileName();
    if (isBundlePath(path) && name.endsWith(bundleEnding(), Qt::CaseInsensitive))
        name.chop(bundleEnding().size());
    return name;
}

ProjectSource::ProjectSource(QString path, std::unique_ptr<core::Project> project,
                             std::optional<app::Archive> archive)
    : m_path(std::move(path))
    , m_project(std::move(project))
    , m_archive(std::move(archive))
{
}

app::Result<ProjectSource> ProjectSource::open(const QString &path)
{
    if (!isBundlePath(path)) {
        app::Result<std::unique_ptr<core::Project>> project = app::loadProject(path);
        if (!project)
            return project.asFailure();
        return ProjectSource(path, *std::move(project), std::nullopt);
    }
    app::Result<QByteArray> bytes = app::readRegularFile(
        path, Texts::tr("Could not open the project file: %1"), app::ArchiveWriter::maxBytes);
    if (!bytes)
        return bytes.asFailure();
    std::optional<app::Archive> archive = app::Archive::parse(*std::move(bytes));
    const QString invalid = app::withPath(Texts::tr("Not a valid Ivorel project file: %1"), path);
    if (!archive || !archive->find("project.json"))
        return app::failure(invalid);
    const std::optional<std::vector<app::ProjectFile>> files = modelFiles(*archive);
    if (!files)
        return app::failure(invalid);
    app::Result<std::unique_ptr<core::Project>> project = app::loadProject(path, *files);
    if (!project)
        return project.asFailure();
    return ProjectSource(path, *std::move(project), std::move(archive));
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
