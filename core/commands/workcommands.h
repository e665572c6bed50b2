#pragma once

#include "core/commands/setmember.h"
#include "core/content/chart.h"
#include "core/content/comment.h"
#include "core/content/spreadsheet.h"
#include "core/content/task.h"

#include <optional>
#include <vector>

namespace vl::core {

using SetChartCommand =
    SetMember<&Chart::data, &Chart::setData, QT_TRANSLATE_NOOP("vl::core::Command", "Edit chart")>;
using SetCommentCommand = SetMember<&Comment::data, &Comment::setData,
                                    QT_TRANSLATE_NOOP("vl::core::Command", "Edit comment")>;
using SetCommentTargetCommand = SetMember<&Comment::targetId, &Comment::setTargetId,
                                          QT_TRANSLATE_NOOP("vl::core::Command", "Move comment")>;

using SetSpreadsheetTitleCommand =
    SetMember<&Spreadsheet::title, &Spreadsheet::setTitle,
              QT_TRANSLATE_NOOP("vl::core::Command", "Rename spreadsheet")>;
using SetSpreadsheetGridCommand =
    SetMember<&Spreadsheet::grid, &Spreadsheet::setGrid,
              QT_TRANSLATE_NOOP("vl::core::Command", "Update spreadsheet")>;
using SetSpreadsheetSizesCommand = SetMember<&Spreadsheet::sizes, &Spreadsheet::setSizes,
                                             QT_TRANSLATE_NOOP("vl::core::Command", "Resize")>;
using SetSpreadsheetLinkedCategoryCommand =
    SetMember<&Spreadsheet::linkedCategoryId, &Spreadsheet::setLinkedCategoryId,
              QT_TRANSLATE_NOOP("vl::core::Command", "Bind spreadsheet to category")>;

using SetTaskTitleCommand =
    SetMember<&Task::title, &Task::setTitle, QT_TRANSLATE_NOOP("vl::core::Command", "Rename task")>;
using SetTaskDescriptionCommand =
    SetMember<&Task::description, &Task::setDescription,
              QT_TRANSLATE_NOOP("vl::core::Command", "Edit task details")>;
using SetTaskDueDateCommand =
    SetMember<&Task::dueDate, &Task::setDueDate,
              QT_TRANSLATE_NOOP("vl::core::Command", "Change task due date")>;
using SetTaskPriorityCommand =
    SetMember<&Task::priority, &Task::setPriority,
              QT_TRANSLATE_NOOP("vl::core::Command", "Change task priority")>;
using SetTaskStatusCommand =
    SetMember<&Task::status, &Task::setStatus,
              QT_TRANSLATE_NOOP("vl::core::Command", "Change task status")>;
using SetTaskBoardCommand = SetMember<&Task::board, &Task::setBoard,
                                      QT_TRANSLATE_NOOP("vl::core::Command", "Move task to board")>;
using SetTaskSubmissionCommand =
    SetMember<&Task::submission, &Task::setSubmission,
              QT_TRANSLATE_NOOP("vl::core::Command", "Change submission details")>;
using SetTaskTargetCommand = SetMember<&Task::targetId, &Task::setTargetId,
                                       QT_TRANSLATE_NOOP("vl::core::Command", "Link task")>;

/// Ticks a task off, or opens it again.
class SetTaskDoneCommand final : public Command
{
public:
    SetTaskDoneCommand(Task &task, bool done);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Task &m_task;
    bool m_done;
    bool m_wasDone = false;
};

/// Moves a task among the tasks of its board and numbers them anew.
class MoveTaskCommand final : public Command
{
public:
    /// A position that is negative or past the end appends.
    MoveTaskCommand(Project &project, const ContentId &taskId, int newPosition);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    struct Place
    {
        Task *task = nullptr;
        qint32 sortIndex = 0;
    };

    Project &m_project;
    ContentId m_taskId;
    int m_newPosition;
    std::vector<Place> m_snapshot;
};

/// Sets the text of one cell of a spreadsheet.
class SetSpreadsheetCellCommand final : public Command
{
public:
    SetSpreadsheetCellCommand(Spreadsheet &spreadsheet, const CellPosition &position,
                              const QString &cellText);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Spreadsheet &m_spreadsheet;
    CellPosition m_position;
    QString m_new;
    std::optional<QString> m_old; ///< nothing when the cell had no entry
};

/// Sets the looks of the cells; what the step is called is the caller's to say.
class SetCellFormatsCommand final : public Command
{
public:
    SetCellFormatsCommand(Spreadsheet &spreadsheet, CellFormats formats, const QString &label);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Spreadsheet &m_spreadsheet;
    CellFormats m_new;
    CellFormats m_old;
    QString m_label;
};

} // namespace vl::core
