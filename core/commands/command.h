#pragma once

#include "core/changeset.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace vl::core {

class ContentObject;

/// One change of a project that can be undone. The old state is captured when redo() runs, so a
/// command tells of the state that it met. It refers to the project or the object it changes
/// without owning it; what it takes out of the project it owns.
class Command
{
    Q_DECLARE_TR_FUNCTIONS(vl::core::Command)

public:
    virtual ~Command();
    /// Applies the change; also used the first time.
    virtual void redo() = 0;
    /// Reverses exactly what the last redo() did.
    virtual void undo() = 0;
    /// What the step is called in the Edit menu, in the interface language.
    virtual QString text() const = 0;

    Command(const Command &) = delete;
    Command &operator=(const Command &) = delete;

    /// What the last redo() touched.
    const ChangeSet &changes() const { return m_changes; }

protected:
    Command() = default;

    /// Filled in by redo(), which starts by clearing it when what it touches depends on the state.
    ChangeSet m_changes;

    void touchObject(const ContentId &id) { m_changes.touchObject(id, ChangeSet::Change::Changed); }
    void touchCategory(const ContentId &id)
    {
        m_changes.touchCategory(id, ChangeSet::Change::Changed);
    }
};

} // namespace vl::core
