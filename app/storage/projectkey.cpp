#include "app/storage/projectkey.h"

#include "app/base/sha256.h"
#include "app/storage/workingcopy.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace vl::app {

namespace {

constexpr int pathDigits = 12;

} // namespace

QString projectKey(const QString &projectPath)
{
    const QString path = absoluteProjectPath(projectPath);
    return bundleBaseName(path) + u'-'
           + QString::fromLatin1(Sha256::of(path.toUtf8()).first(pathDigits));
}

QString absoluteProjectPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace vl::app
