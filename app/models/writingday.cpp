#include "app/models/writingday.h"

#include <utility>

namespace vl::app {

void WritingDay::type(const QDate &day, qsizetype words)
{
    if (words == 0)
        return;
    m_days[day] += words;
    m_typed += words;
}

void WritingDay::stepMade(qsizetype steps)
{
    const qsizetype typed = std::exchange(m_typed, 0);
    otherStepMade(steps);
    if (typed != 0)
        m_steps[steps] = typed;
}

void WritingDay::otherStepMade(qsizetype steps)
{
    m_steps.erase(m_steps.lower_bound(steps), m_steps.end());
}

void WritingDay::stepUndone(const QDate &day, qsizetype steps)
{
    const auto undone = m_steps.find(steps + 1);
    if (undone != m_steps.end())
        m_days[day] -= undone->second;
}

void WritingDay::stepRedone(const QDate &day, qsizetype steps)
{
    const auto redone = m_steps.find(steps);
    if (redone != m_steps.end())
        m_days[day] += redone->second;
}

void WritingDay::forgetSteps()
{
    m_steps.clear();
    m_typed = 0;
}

qsizetype WritingDay::wordsOn(const QDate &day) const
{
    const auto found = m_days.find(day);
    return found == m_days.end() ? 0 : found->second;
}

} // namespace vl::app
