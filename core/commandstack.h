#pragma once

#include "core/changeset.h"
#include "core/commands/command.h"

#include <QtCore/QString>

#include <functional>
#include <memory>
#include <vector>

namespace vl::core {

class CompositeCommand;

/// Holds the steps of one project both ways, and knows which of its states is the one on disk.
class CommandStack
{
public:
    /// Called after each push, undo and redo with what it touched; with an empty set when only
    /// the steps or the clean mark changed. The listener may use the history again.
    using Listener = std::function<void(const ChangeSet &)>;

    CommandStack();
    ~CommandStack();
    CommandStack(const CommandStack &) = delete;
    CommandStack &operator=(const CommandStack &) = delete;

    void setListener(Listener listener) { m_listener = std::move(listener); }

    /// Executes the command as the newest step; undone steps are gone then. Null is ignored.
    void push(std::unique_ptr<Command> command);

    /// Opens a group: what is pushed until the matching endMacro() is one step. Inside an open
    /// group only the depth grows, and the label is dropped.
    void beginMacro(const QString &label);
    /// Closes the innermost group; the outermost one becomes a step unless it is empty.
    void endMacro();
    bool isGroupOpen() const { return m_openGroup != nullptr; }

    /// Nothing happens when there is no step, or while a group is open.
    void undo();
    void redo();
    bool canUndo() const { return !m_undo.empty() && !isGroupOpen(); }
    bool canRedo() const { return !m_redo.empty() && !isGroupOpen(); }
    /// The names of the next steps back and forth; empty when there is none.
    QString undoText() const;
    QString redoText() const;
    qsizetype undoCount() const { return qsizetype(m_undo.size()); }
    qsizetype redoCount() const { return qsizetype(m_redo.size()); }

    /// Whether the project differs from what was last saved.
    bool isDirty() const { return qsizetype(m_undo.size()) != m_cleanIndex; }
    /// The present state is the saved one.
    void setClean();
    /// The state after that many steps is the saved one; for a save that took its picture then.
    /// A number that the history no longer has, or -1, leaves no clean position.
    void setCleanIndex(qsizetype index);
    qsizetype cleanIndex() const { return m_cleanIndex; }
    /// What is on disk is no state of this history.
    void markUnrecoverablyDirty();
    /// Forgets all steps and any open group; the project counts as saved.
    void clear();

    /// Grows whenever undone steps are thrown away, so that an index noted earlier can be told
    /// from one that names another state.
    quint64 branch() const { return m_branch; }

private:
    void notify(const ChangeSet &changes) const;
    void dropRedo();

    std::vector<std::unique_ptr<Command>> m_undo; ///< newest step last
    std::vector<std::unique_ptr<Command>> m_redo; ///< next to redo last
    qsizetype m_cleanIndex = 0; ///< how many steps the saved state has; -1 for none of ours
    std::unique_ptr<CompositeCommand> m_openGroup;
    int m_groupDepth = 0;
    quint64 m_branch = 0;
    Listener m_listener;
};

} // namespace vl::core
