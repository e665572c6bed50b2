#include "app/storage/assets.h"

#include "app/base/files.h"
#include "app/storage/projectpaths.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

namespace vl::app {

namespace {

struct Assets
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::Assets)
};

QString safeName(const QString &fileName)
{
    QString name = fileName;
    for (QChar &c : name)
        if (c.unicode() < 0x20 || c.unicode() == 0x7F || QStringLiteral("/\\:*?\"<>|").contains(c))
            c = u'_';
    // Names that begin with a dot are hidden, and "." and ".." are no names at all.
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    return name.isEmpty() ? QStringLiteral("file") : name;
}

} // namespace

QString newAssetPath(const QString &fileName,
                     const std::function<bool(const QString &path)> &isTaken)
{
    const QString name = safeName(fileName);
    const QString folder = assetsFolder() + u'/';
    QString path = folder + name;
    const QFileInfo info(name);
    for (int counter = 1; isTaken(path); ++counter) {
        path = info.suffix().isEmpty() ? folder + name + u'-' + QString::number(counter)
                                       : folder
                                             + QStringLiteral("%1-%2.%3")
                                                   .arg(info.completeBaseName(),
                                                        QString::number(counter), info.suffix());
    }
    return path;
}

Result<QString> importAsset(const QString &sourcePath, const QString &projectFolder)
{
    const Result<QByteArray> bytes =
        readRegularFile(sourcePath, Assets::tr("Cannot read file: %1"));
    if (!bytes)
        return bytes.asFailure();
    const QString folder = projectFolder + u'/';
    if (!makeFolder(folder + assetsFolder()))
        return failure(
            withPath(Assets::tr("Cannot create project folder: %1"), folder + assetsFolder()));
    QString path = newAssetPath(QFileInfo(sourcePath).fileName(), [&folder](const QString &taken) {
        return isThere(folder + taken);
    });
    const Result<> written =
        writeFile(folder + path, *bytes,
                  {Assets::tr("Cannot write file: %1"), Assets::tr("Failed to write file: %1")});
    if (!written)
        return written.asFailure();
    return path;
}

} // namespace vl::app
