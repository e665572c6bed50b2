#include "app/storage/readonlyplace.h"

#include "app/storage/bundle.h"
#include "app/storage/projectkey.h"
#include "app/storage/projectreader.h"

#include <QtCore/QFileInfo>

namespace vl::app {

Result<ReadOnlyProject> readReadOnly(const QString &path)
{
    auto place = std::make_unique<ReadOnlyPlace>();
    place->path = absoluteProjectPath(path);
    if (QFileInfo(place->path).isDir()) {
        place->folder = place->path;
    } else {
        const Result<ReadBundle> bundle = readBundle(place->path);
        if (!bundle)
            return bundle.asFailure();
        place->unpacked = std::make_unique<QTemporaryDir>();
        place->folder = place->unpacked->path();
        if (const Result<> done = extractArchive(bundle->archive, place->folder); !done)
            return done.asFailure();
    }
    Result<std::unique_ptr<core::Project>> project = loadProject(place->folder);
    if (!project)
        return project.asFailure();
    return ReadOnlyProject{std::move(place), *std::move(project)};
}

} // namespace vl::app
