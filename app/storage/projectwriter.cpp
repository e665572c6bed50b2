#include "app/storage/projectwriter.h"

#include "app/storage/categorycodec.h"
#include "app/storage/folderstore.h"
#include "app/storage/kindcodecs.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectrecordscodec.h"

#include <algorithm>

namespace vl::app {

QByteArray serializeObject(const core::ContentObject &object)
{
    JsonWriter json;
    writeObject(json, object);
    return json.finish();
}

QByteArray serializeCategory(const core::Category &category)
{
    JsonWriter json;
    writeCategory(json, category);
    return json.finish();
}

QByteArray serializeProjectRecords(const core::Project &project)
{
    JsonWriter json;
    writeProjectRecords(json, project);
    return json.finish();
}

void serializeProject(const core::Project &project, const ProjectFileSink &sink)
{
    JsonWriter json; // one for all, so that its buffer grows once
    // The order of ids is that of their texts only among ids of one variant.
    std::vector<std::pair<QString, const core::ContentObject *>> objects;
    objects.reserve(project.objects().size());
    for (const auto &[id, object] : project.objects())
        objects.emplace_back(objectPath(id), object.get());
    std::sort(objects.begin(), objects.end());
    for (const auto &[path, object] : objects) {
        writeObject(json, *object);
        sink(path, json.finish());
    }

    sink(recordsPath(), serializeProjectRecords(project));

    std::vector<std::pair<QString, const core::Category *>> categories;
    for (const core::ContentId &id : project.taxonomy().ids())
        categories.emplace_back(categoryPath(id), project.taxonomy().find(id));
    std::sort(categories.begin(), categories.end());
    for (const auto &[path, category] : categories) {
        writeCategory(json, *category);
        sink(path, json.finish());
    }
}

Result<> saveProject(const core::Project &project, const QString &folder, Durability durability)
{
    const FolderStore store(folder);
    return commitFolderSave(store.prepare(project), OutsideChanges::Overwrite, durability);
}

} // namespace vl::app
