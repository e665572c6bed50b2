#include "core/commandstack.h"

#include "core/commands/compositecommand.h"

namespace vl::core {

namespace {

/// Destroys the steps from the last one run back to the first: a later command may refer to an
/// object that an earlier one owns.
void destroyBackwards(std::vector<std::unique_ptr<Command>> &commands)
{
    while (!commands.empty())
        commands.pop_back();
}

/// The same for undone steps, of which the first run stands at the end.
void destroyForwards(std::vector<std::unique_ptr<Command>> &commands)
{
    for (auto &command : commands)
        command.reset();
    commands.clear();
}

} // namespace

CommandStack::CommandStack() = default;

CommandStack::~CommandStack()
{
    m_listener = nullptr;
    m_openGroup.reset();
    destroyForwards(m_redo);
    destroyBackwards(m_undo);
}

void CommandStack::push(std::unique_ptr<Command> command)
{
    if (!command)
        return;
    if (m_cleanIndex >= 1 && m_cleanIndex > qsizetype(m_undo.size()))
        m_cleanIndex = -1; // the saved state is among the steps that go
    command->redo();
    const ChangeSet changes = command->changes();
    if (m_openGroup)
        m_openGroup->append(std::move(command));
    else
        m_undo.push_back(std::move(command));
    dropRedo();
    notify(changes);
}

void CommandStack::beginMacro(const QString &label)
{
    if (m_openGroup) {
        ++m_groupDepth;
        return;
    }
    m_openGroup = std::make_unique<CompositeCommand>(label);
    m_groupDepth = 1;
}

void CommandStack::endMacro()
{
    if (!m_openGroup || --m_groupDepth > 0)
        return;
    std::unique_ptr<CompositeCommand> group = std::move(m_openGroup);
    if (!group->isEmpty())
        m_undo.push_back(std::move(group));
    notify({});
}

void CommandStack::undo()
{
    if (!canUndo())
        return;
    std::unique_ptr<Command> command = std::move(m_undo.back());
    m_undo.pop_back();
    command->undo();
    const ChangeSet changes = command->changes().inverted();
    m_redo.push_back(std::move(command));
    notify(changes);
}

void CommandStack::redo()
{
    if (!canRedo())
        return;
    std::unique_ptr<Command> command = std::move(m_redo.back());
    m_redo.pop_back();
    command->redo();
    const ChangeSet changes = command->changes();
    m_undo.push_back(std::move(command));
    notify(changes);
}

QString CommandStack::undoText() const
{
    return m_undo.empty() ? QString() : m_undo.back()->text();
}

QString CommandStack::redoText() const
{
    return m_redo.empty() ? QString() : m_redo.back()->text();
}

void CommandStack::setClean()
{
    setCleanIndex(qsizetype(m_undo.size()));
}

void CommandStack::setCleanIndex(qsizetype index)
{
    const qsizetype steps = qsizetype(m_undo.size() + m_redo.size());
    m_cleanIndex = index >= 0 && index <= steps ? index : -1;
    notify({});
}

void CommandStack::markUnrecoverablyDirty()
{
    m_cleanIndex = -1;
    notify({});
}

void CommandStack::clear()
{
    m_openGroup.reset();
    dropRedo();
    destroyBackwards(m_undo);
    m_cleanIndex = 0;
    m_groupDepth = 0;
    notify({});
}

void CommandStack::dropRedo()
{
    if (m_redo.empty())
        return;
    destroyForwards(m_redo);
    ++m_branch;
}

void CommandStack::notify(const ChangeSet &changes) const
{
    if (m_listener)
        m_listener(changes);
}

} // namespace vl::core
