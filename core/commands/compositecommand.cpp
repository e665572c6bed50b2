#include "core/commands/compositecommand.h"

namespace vl::core {

CompositeCommand::CompositeCommand(const QString &label)
    : m_label(label)
{
}

CompositeCommand::~CompositeCommand()
{
    // Later children may refer to objects that earlier ones own.
    while (!m_children.empty())
        m_children.pop_back();
}

void CompositeCommand::redo()
{
    m_changes.clear();
    for (const auto &child : m_children) {
        child->redo();
        m_changes.append(child->changes());
    }
}

void CompositeCommand::undo()
{
    for (auto child = m_children.rbegin(); child != m_children.rend(); ++child)
        (*child)->undo();
}

QString CompositeCommand::text() const
{
    return m_label;
}

void CompositeCommand::append(std::unique_ptr<Command> child)
{
    Q_ASSERT(child);
    m_changes.append(child->changes());
    m_children.push_back(std::move(child));
}

} // namespace vl::core
