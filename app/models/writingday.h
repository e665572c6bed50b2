#pragma once

#include <QtCore/QDate>
#include <QtCore/QtGlobal>

#include <map>

namespace vl::app {

/// The words written on each day, kept beside the project.
///
/// What counts is typing: words typed less words deleted by key. Text that is pasted, dropped or
/// put in by other panels counts nothing, and neither does cutting it out, so that moving a passage
/// does not look like work done or lost. An undone step takes back exactly what it had counted, and
/// a redone one counts it again. A day may end below zero.
class WritingDay
{
public:
    /// Counts words as they are typed or deleted, before they are a step of the history.
    void type(const QDate &day, qsizetype words);
    /// What was typed since became a step of the history; `steps` is the number of steps then.
    void stepMade(qsizetype steps);
    /// A step of somebody else was made.
    void otherStepMade(qsizetype steps);
    /// A step was taken back, or made again; `steps` is the number of steps afterwards.
    void stepUndone(const QDate &day, qsizetype steps);
    void stepRedone(const QDate &day, qsizetype steps);
    /// Another history begins.
    void forgetSteps();

    qsizetype wordsOn(const QDate &day) const;
    const std::map<QDate, qsizetype> &days() const { return m_days; }
    void setDays(std::map<QDate, qsizetype> days) { m_days = std::move(days); }

private:
    std::map<QDate, qsizetype> m_days;
    std::map<qsizetype, qsizetype> m_steps; ///< words that the n-th step counted
    qsizetype m_typed = 0;                  ///< since the last step
};

} // namespace vl::app
