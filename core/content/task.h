#pragma once

#include "core/content/contentobject.h"

#include <QtCore/QDate>

namespace vl::core {

/// To whom a work was sent, and what became of it.
struct TaskSubmission
{
    QString recipient;
    QString kind;
    QDate submittedOn; ///< invalid while it was not sent
    QString notes;

    bool operator==(const TaskSubmission &) const = default;
};

/// Something to do.
class Task final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::Task;

    Task(const ContentId &id, const QString &title)
        : ContentObject(id, staticKind)
        , m_title(title)
    {
    }

    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    const QString &description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }

    bool isDone() const { return m_done; }
    void setDone(bool done) { m_done = done; }

    /// "Tasks", "Submissions", or a board that the user named.
    const QString &board() const { return m_board; }
    void setBoard(const QString &board) { m_board = board; }

    const QString &priority() const { return m_priority; }
    void setPriority(const QString &priority) { m_priority = priority; }

    /// Invalid while the task is not due.
    const QDate &dueDate() const { return m_dueDate; }
    void setDueDate(const QDate &date) { m_dueDate = date; }

    const QString &status() const { return m_status; }
    void setStatus(const QString &status) { m_status = status; }

    /// The object that the task is about; null for none.
    const ContentId &targetId() const { return m_targetId; }
    void setTargetId(const ContentId &id) { m_targetId = id; }

    qint32 sortIndex() const { return m_sortIndex; }
    void setSortIndex(qint32 index) { m_sortIndex = index; }

    const TaskSubmission &submission() const { return m_submission; }
    void setSubmission(const TaskSubmission &submission) { m_submission = submission; }

private:
    QString m_title;
    QString m_description;
    bool m_done = false;
    QString m_board = QStringLiteral("Tasks");
    QString m_priority;
    QDate m_dueDate;
    QString m_status = QStringLiteral("To Do");
    ContentId m_targetId;
    qint32 m_sortIndex = 0;
    TaskSubmission m_submission;
};

} // namespace vl::core
