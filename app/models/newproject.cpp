#include "app/models/newproject.h"

#include "app/storage/openproject.h"
#include "app/story/projecttemplates.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

#include <algorithm>

namespace vl::app {

namespace {

constexpr qsizetype longestName = 120;
constexpr int mostCopies = 1000;
const QLatin1String bundleSuffix(".vellum");

/// Whether there is anything at the path, a link that leads nowhere included.
bool isTaken(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool isFileName(const QString &name)
{
    // What one of the systems refuses is refused on all: projects travel.
    static const QString refused = QStringLiteral("/\\:*?\"<>|");
    return std::none_of(name.begin(), name.end(), [](QChar c) {
        return refused.contains(c) || c.category() == QChar::Other_Control;
    });
}

} // namespace

Result<QString> ProjectMaker::pathFor(const NewProject &wanted)
{
    QString name = wanted.name.trimmed();
    if (name.endsWith(bundleSuffix, Qt::CaseInsensitive))
        name.chop(bundleSuffix.size());
    if (name.isEmpty())
        return failure(tr("The project needs a name."));
    if (!isFileName(name))
        return failure(tr("The name must do without / \\ : * ? \" < > and |."));
    if (name.startsWith(u'.') || name.endsWith(u'.') || name.size() > longestName)
        return failure(tr("The name must not begin or end with a point, nor be longer than %n "
                          "character(s).",
                          nullptr, int(longestName)));
    if (wanted.place.trimmed().isEmpty())
        return failure(tr("The project needs a place."));
    const QFileInfo place(wanted.place);
    if (place.exists() && !place.isDir())
        return failure(tr("This is no folder: %1").arg(QDir::toNativeSeparators(wanted.place)));
    QString path =
        QDir(place.absoluteFilePath()).filePath(wanted.isFolder ? name : name + bundleSuffix);
    if (isTaken(path))
        return failure(
            tr("There is something of this name already: %1").arg(QDir::toNativeSeparators(path)));
    return path;
}

Result<QString> ProjectMaker::make(const NewProject &wanted)
{
    Result<QString> path = pathFor(wanted);
    if (!path)
        return path;
    if (!QDir().mkpath(QFileInfo(*path).absolutePath()))
        return failure(tr("The folder could not be made: %1")
                           .arg(QDir::toNativeSeparators(QFileInfo(*path).absolutePath())));
    OpenProject project;
    if (!fillFromTemplate(wanted.templateId, project.project()))
        return failure(tr("There is no such template."));
    const Result<> saved =
        wanted.isFolder ? project.saveAsFolder(*path) : project.saveAsBundle(*path);
    if (!saved)
        return failure(saved.message());
    return path;
}

Result<QString> ProjectMaker::copy(const QString &path, const QString &folder, const QString &name)
{
    if (!QDir().mkpath(folder))
        return failure(
            tr("The folder could not be made: %1").arg(QDir::toNativeSeparators(folder)));
    QString target = QDir(folder).filePath(name);
    for (int number = 2; isTaken(target) && number < mostCopies; ++number)
        target = QDir(folder).filePath(QStringLiteral("%1 %2").arg(name).arg(number));
    if (isTaken(target))
        return failure(tr("There is something of this name already: %1")
                           .arg(QDir::toNativeSeparators(target)));
    Result<std::unique_ptr<OpenProject>> source = OpenProject::openReadOnly(path);
    if (!source)
        return failure(source.message());
    const Result<> saved = (*source)->saveAsFolder(target);
    if (!saved)
        return failure(saved.message());
    return target;
}

QString ProjectMaker::samplePath()
{
    // Installed beside the program's other data, or in the tree that it was built from.
    const QDir program(QCoreApplication::applicationDirPath());
    for (const QLatin1String place :
         {QLatin1String("../share/ivorel/examples/sample"), QLatin1String("examples/sample"),
          QLatin1String("../../../examples/sample")}) {
        QString path = QDir::cleanPath(program.filePath(place));
        if (QFileInfo::exists(path + QStringLiteral("/project.json")))
            return path;
    }
    return {};
}

QString ProjectMaker::suggestedPlace()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace vl::app
