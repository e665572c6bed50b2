#include "tests/support/folders.h"

#include "app/storage/projectwriter.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace vl::test {

void putFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).absolutePath()) || !file.open(QIODevice::WriteOnly)
        || file.write(bytes) != bytes.size() || !file.flush())
        qFatal("cannot write %s", qPrintable(path));
}

void putFiles(const QString &folder, const FileMap &files)
{
    if (!QDir().mkpath(folder))
        qFatal("cannot make %s", qPrintable(folder));
    for (auto it = files.begin(); it != files.end(); ++it)
        putFile(folder + QLatin1Char('/') + it.key(), it.value());
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(none)");
}

FileMap filesUnder(const QString &folder)
{
    FileMap files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(path.mid(folder.size() + 1), fileBytes(path));
    }
    return files;
}

FileMap filesOf(const core::Project &project)
{
    FileMap files;
    app::serializeProject(project, [&files](const QString &path, const QByteArray &bytes) {
        files.insert(path, bytes);
    });
    return files;
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace vl::test
