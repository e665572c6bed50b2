#include "app/models/objectpath.h"

#include "core/content/entity.h"

namespace vl::app {

using namespace core;

QStringList objectPath(const Project &project, const ContentId &id)
{
    constexpr int deepest = 64; // parents in a circle end somewhere
    QStringList path;
    if (const auto *document = project.find<Document>(id)) {
        const auto *above = project.find<Document>(document->parentId());
        for (; above && path.size() < deepest; above = project.find<Document>(above->parentId()))
            path.prepend(above->title());
    } else if (const auto *entity = project.find<Entity>(id)) {
        const Category *above = project.taxonomy().find(entity->categoryId());
        for (; above && path.size() < deepest; above = project.taxonomy().find(above->parentId))
            path.prepend(above->name);
    }
    return path;
}

QString pathLine(const QStringList &path)
{
    return path.join(QStringLiteral(" › "));
}

} // namespace vl::app
