#include "app/base/files.h"
#include "app/storage/bundle.h"
#include "app/storage/projectfolder.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>

#include <algorithm>
#include <set>

namespace vl::app {

namespace {

/// Longer paths no system takes; without this bound an archive could ask for endless folders.
constexpr qsizetype maxPathSize = 4095;

/// Removes folders as far as they are empty, the last ones first.
void removeFolders(const QStringList &folders)
{
    std::for_each(folders.crbegin(), folders.crend(),
                  [](const QString &folder) { QDir().rmdir(folder); });
}

/// Unpacks one archive, and takes back what it made unless it gets to the end.
class Extraction
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::Bundle)

public:
    Extraction(const Archive &archive, const QString &folder)
        : m_archive(archive)
        , m_folder(folder)
    {
    }
    ~Extraction();
    Q_DISABLE_COPY_MOVE(Extraction)

    Result<> run();

private:
    bool makeTarget();
    bool makeParents(const QByteArray &name);
    Result<> writeEntry(const Archive::Entry &entry);

    const Archive &m_archive;
    QString m_folder;
    QStringList m_madeFiles;
    QStringList m_madeFolders; ///< outer ones before inner ones
    std::set<QByteArray> m_parents;
    bool m_isDone = false;
};

Extraction::~Extraction()
{
    if (m_isDone)
        return;
    for (const QString &file : m_madeFiles)
        QFile::remove(file);
    removeFolders(m_madeFolders);
}

bool Extraction::makeTarget()
{
    QStringList missing;
    QString path = QDir::cleanPath(QFileInfo(m_folder).absoluteFilePath());
    for (QFileInfo info(path); !info.exists() && !info.isRoot(); info.setFile(info.path()))
        missing.prepend(info.filePath());
    if (!makeFolder(m_folder, Durability::Atomic)) {
        removeFolders(missing);
        return false;
    }
    m_madeFolders = missing;
    return true;
}

/// Makes the folders that the entry lies in; the target was empty, so all of them are missing once.
bool Extraction::makeParents(const QByteArray &name)
{
    const qsizetype end = name.lastIndexOf('/');
    if (end < 0 || m_parents.contains(name.left(end)))
        return true;
    for (qsizetype slash = name.indexOf('/'); slash >= 0; slash = name.indexOf('/', slash + 1)) {
        const QByteArray parent = name.left(slash);
        if (!m_parents.insert(parent).second)
            continue;
        const QString path = pathInFolder(m_folder, parent);
        if (!makeFolder(path, Durability::Atomic))
            return false;
        m_madeFolders.append(path);
    }
    return true;
}

Result<> Extraction::writeEntry(const Archive::Entry &entry)
{
    const QString path = pathInFolder(m_folder, entry.name);
    if (QFile::encodeName(path).size() > maxPathSize || !makeParents(entry.name))
        return failure(withPath(tr("Could not create the folder for: %1"), path));
    const QString message = tr("Could not write a project file: %1");
    const std::optional<QByteArray> bytes = m_archive.content(entry);
    if (!bytes)
        return failure(withPath(message, path));
    Result<> written = createFile(path, *bytes, {message, message});
    if (written)
        m_madeFiles.append(path);
    return written;
}

Result<> Extraction::run()
{
    const QFileInfo info(m_folder);
    if (info.isDir()
        && !QDir(m_folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System
                                   | QDir::NoDotAndDotDot))
        return failure(withPath(tr("The extraction folder is not empty: %1"), m_folder));
    if (!makeTarget())
        return failure(withPath(tr("Could not create the folder: %1"), m_folder));
    for (const Archive::Entry &entry : m_archive.entries()) {
        if (Result<> written = writeEntry(entry); !written)
            return written;
    }
    m_isDone = true;
    return {};
}

} // namespace

Result<> extractArchive(const Archive &archive, const QString &folder)
{
    return Extraction(archive, folder).run();
}

Result<> extractBundle(const QString &bundlePath, const QString &folder)
{
    const Result<ReadBundle> bundle = readBundle(bundlePath);
    if (!bundle)
        return bundle.asFailure();
    return extractArchive(bundle->archive, folder);
}

} // namespace vl::app
