#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/task.h"

namespace vl::app {

using core::Task;
using core::TaskSubmission;

template<>
struct JsonRecord<TaskSubmission>
{
    static constexpr auto fields = sortedFields<TaskSubmission>({
        member<TaskSubmission, &TaskSubmission::kind>("kind"),
        member<TaskSubmission, &TaskSubmission::notes>("notes"),
        member<TaskSubmission, &TaskSubmission::recipient>("recipient"),
        member<TaskSubmission, &TaskSubmission::submittedOn>("submittedOn"),
    });
};

static constexpr auto fields = sortedFields<Task>({
    field<Task, &Task::board, &Task::setBoard>("board"),
    field<Task, &Task::description, &Task::setDescription>("description"),
    field<Task, &Task::isDone, &Task::setDone>("done"),
    field<Task, &Task::dueDate, &Task::setDueDate>("dueDate"),
    field<Task, &Task::priority, &Task::setPriority>("priority"),
    field<Task, &Task::sortIndex, &Task::setSortIndex>("sortIndex"),
    field<Task, &Task::status, &Task::setStatus>("status"),
    field<Task, &Task::submission, &Task::setSubmission>("submission"),
    field<Task, &Task::targetId, &Task::setTargetId>("targetId"),
    field<Task, &Task::title, &Task::setTitle>("title"),
});

std::unique_ptr<core::ContentObject> readTask(const core::ContentId &id, const JsonValue &json)
{
    auto object = std::make_unique<Task>(id, QString());
    readFields<Task>(json, fields, *object);
    return object;
}

bool writeTask(JsonWriter &json, const core::ContentObject &object)
{
    return writeAs<Task>(json, object, fields);
}

} // namespace vl::app
