#include "app/models/newcontents.h"

#include "app/storage/categorycodec.h"
#include "app/storage/json/jsonparser.h"
#include "app/storage/kindcodecs.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectrecordscodec.h"
#include "app/storage/projectwriter.h"

namespace vl::app {

namespace {

core::ContentId idIn(const QString &path, const QString &folder)
{
    const QString start = folder + u'/';
    if (!path.startsWith(start) || !path.endsWith(QLatin1String(".json")))
        return {};
    return core::ContentId::fromString(path.mid(start.size()).chopped(5));
}

bool addFile(core::NewContents &contents, JsonParser &parser, const FileChange &file)
{
    const core::ContentId objectId = objectIdOf(file.path);
    const core::ContentId categoryId = categoryIdOf(file.path);
    const bool isRecords = file.path == recordsPath();
    if (!file.bytes) {
        if (!objectId.isNull())
            contents.goneObjects.push_back(objectId);
        else if (!categoryId.isNull())
            contents.goneCategories.push_back(categoryId);
        return !objectId.isNull() || !categoryId.isNull();
    }
    const std::optional<JsonValue> json = parser.parseObject(*file.bytes);
    if (!json)
        return false;
    if (isRecords) {
        contents.records = std::make_unique<core::Project>();
        readProjectRecords(*json, *contents.records);
        return true;
    }
    if (!objectId.isNull()) {
        std::unique_ptr<core::ContentObject> object = readObject(*json);
        if (!object || object->id() != objectId)
            return false;
        contents.objects.push_back(std::move(object));
        return true;
    }
    core::Category category;
    if (categoryId.isNull() || readCategory(*json, category) != CategoryFault::None
        || category.id != categoryId)
        return false;
    contents.categories.push_back(category);
    return true;
}

} // namespace

core::ContentId objectIdOf(const QString &path)
{
    return idIn(path, objectsFolder());
}

core::ContentId categoryIdOf(const QString &path)
{
    return idIn(path, taxonomyFolder());
}

ReadContents contentsOf(const std::vector<FileChange> &files)
{
    ReadContents read;
    JsonParser parser;
    for (const FileChange &file : files) {
        if (!addFile(read.contents, parser, file))
            read.unreadable.append(file.path);
    }
    return read;
}

std::optional<QByteArray> presentFile(const core::Project &project, const QString &path)
{
    if (path == recordsPath())
        return serializeProjectRecords(project);
    if (const core::ContentObject *object = project.find(objectIdOf(path)))
        return serializeObject(*object);
    if (const core::Category *category = project.taxonomy().find(categoryIdOf(path)))
        return serializeCategory(*category);
    return std::nullopt;
}

} // namespace vl::app
