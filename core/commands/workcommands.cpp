#include "core/commands/workcommands.h"

#include <algorithm>

namespace vl::core {

SetTaskDoneCommand::SetTaskDoneCommand(Task &task, bool done)
    : m_task(task)
    , m_done(done)
{
    touchObject(task.id());
}

void SetTaskDoneCommand::redo()
{
    m_wasDone = m_task.isDone();
    m_task.setDone(m_done);
}

void SetTaskDoneCommand::undo()
{
    m_task.setDone(m_wasDone);
}

QString SetTaskDoneCommand::text() const
{
    return m_done ? Command::tr("Complete task") : Command::tr("Reopen task");
}

MoveTaskCommand::MoveTaskCommand(Project &project, const ContentId &taskId, int newPosition)
    : m_project(project)
    , m_taskId(taskId)
    , m_newPosition(newPosition)
{
}

void MoveTaskCommand::redo()
{
    m_snapshot.clear();
    m_changes.clear();
    Task *moved = m_project.find<Task>(m_taskId);
    if (!moved)
        return;

    std::vector<Task *> tasks = m_project.all<Task>();
    std::erase_if(tasks, [&](const Task *task) { return task->board() != moved->board(); });
    for (Task *task : tasks)
        m_snapshot.push_back({task, task->sortIndex()});
    std::stable_sort(tasks.begin(), tasks.end(),
                     [](const Task *a, const Task *b) { return a->sortIndex() < b->sortIndex(); });
    std::erase(tasks, moved);
    const auto count = qsizetype(tasks.size());
    const qsizetype position =
        m_newPosition < 0 || m_newPosition > count ? count : qsizetype(m_newPosition);
    tasks.insert(tasks.begin() + position, moved);

    touchObject(m_taskId);
    qint32 index = 0;
    for (Task *task : tasks) {
        if (task->sortIndex() != index) {
            task->setSortIndex(index);
            touchObject(task->id());
        }
        ++index;
    }
}

void MoveTaskCommand::undo()
{
    for (const Place &place : m_snapshot)
        place.task->setSortIndex(place.sortIndex);
}

QString MoveTaskCommand::text() const
{
    return Command::tr("Move task");
}

SetSpreadsheetCellCommand::SetSpreadsheetCellCommand(Spreadsheet &spreadsheet,
                                                     const CellPosition &position,
                                                     const QString &cellText)
    : m_spreadsheet(spreadsheet)
    , m_position(position)
    , m_new(cellText)
{
    touchObject(spreadsheet.id());
}

void SetSpreadsheetCellCommand::redo()
{
    m_old = m_spreadsheet.cell(m_position);
    m_spreadsheet.setCell(m_position, m_new.isEmpty() ? std::nullopt : std::optional(m_new));
}

void SetSpreadsheetCellCommand::undo()
{
    m_spreadsheet.setCell(m_position, m_old);
}

QString SetSpreadsheetCellCommand::text() const
{
    return Command::tr("Edit cell");
}

SetCellFormatsCommand::SetCellFormatsCommand(Spreadsheet &spreadsheet, CellFormats formats,
                                             const QString &label)
    : m_spreadsheet(spreadsheet)
    , m_new(std::move(formats))
    , m_label(label)
{
    touchObject(spreadsheet.id());
}

void SetCellFormatsCommand::redo()
{
    m_old = m_spreadsheet.formats();
    m_spreadsheet.setFormats(m_new);
}

void SetCellFormatsCommand::undo()
{
    m_spreadsheet.setFormats(m_old);
}

QString SetCellFormatsCommand::text() const
{
    return m_label;
}

} // namespace vl::core
