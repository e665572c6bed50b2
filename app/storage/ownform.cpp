#include "app/storage/ownform.h"

#include "app/storage/categorycodec.h"
#include "app/storage/kindcodecs.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectrecordscodec.h"
#include "app/storage/projectwriter.h"

namespace vl::app {

ProjectFile inOwnForm(JsonParser &parser, const ProjectFile &file)
{
    const std::optional<JsonValue> json = parser.parseObject(file.bytes);
    if (!json)
        return file;
    if (file.path == recordsPath()) {
        core::Project project;
        readProjectRecords(*json, project);
        return {file.path, serializeProjectRecords(project)};
    }
    if (file.path.startsWith(objectsFolder() + u'/')) {
        const std::unique_ptr<core::ContentObject> object = readObject(*json);
        return object ? ProjectFile{objectPath(object->id()), serializeObject(*object)} : file;
    }
    core::Category category;
    if (readCategory(*json, category) != CategoryFault::None)
        return file;
    return {categoryPath(category.id), serializeCategory(category)};
}

} // namespace vl::app
