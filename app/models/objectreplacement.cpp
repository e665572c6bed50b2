#include "app/models/objectreplacement.h"

#include "app/storage/json/jsonparser.h"
#include "app/storage/kindcodecs.h"
#include "app/storage/projectwriter.h"
#include "core/commands/objectcommands.h"

namespace vl::app {

std::unique_ptr<core::ContentObject> copyOf(const core::ContentObject &object)
{
    // The form in which it is stored holds all of it, whatever its kind.
    JsonParser parser;
    const std::optional<JsonValue> json = parser.parseObject(serializeObject(object));
    std::unique_ptr<core::ContentObject> copy = json ? readObject(*json) : nullptr;
    Q_ASSERT(copy);
    return copy;
}

void appendReplacement(core::CompositeCommand &step, core::Project &project,
                       std::unique_ptr<core::ContentObject> object)
{
    if (project.contains(object->id()))
        step.append(std::make_unique<core::RemoveObjectCommand>(project, object->id()));
    step.append(std::make_unique<core::AddObjectCommand>(project, std::move(object)));
}

} // namespace vl::app
