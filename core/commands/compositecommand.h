#pragma once

#include "core/commands/command.h"

#include <memory>
#include <vector>

namespace vl::core {

/// Several commands that are one step of the history.
class CompositeCommand final : public Command
{
public:
    explicit CompositeCommand(const QString &label);
    ~CompositeCommand() override;

    void redo() override;
    void undo() override;
    QString text() const override;

    bool isEmpty() const { return m_children.empty(); }
    /// Takes the child as the last one; a child that ran already is not run again.
    void append(std::unique_ptr<Command> child);

private:
    QString m_label;
    std::vector<std::unique_ptr<Command>> m_children;
};

} // namespace vl::core
