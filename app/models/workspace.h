#pragma once

#include "app/storage/openproject.h"

#include <QtCore/QList>
#include <QtCore/QObject>

#include <memory>

namespace vl::app {

/// What stands in an editor and is no step of the history yet: a beginning and an end in common
/// with the shown text of the document's body (see shownText()), and between them what was typed.
struct PendingText
{
    core::ContentId documentId;
    qsizetype head = 0; ///< length of what is in common at the beginning, in UTF-16 units
    qsizetype tail = 0; ///< and of that at the end
    QString typed;      ///< as the widget holds it
};
using PendingTexts = QList<PendingText>;

/// What all panels share: the open project and the objects selected in it.
class Workspace final : public QObject
{
    Q_OBJECT

public:
    Workspace();
    ~Workspace() override;

    /// The open project; there is always one, if only an empty one without a place.
    OpenProject &current() const { return *m_current; }
    core::Project &project() const { return m_current->project(); }
    core::CommandStack &history() const { return m_current->history(); }
    /// Puts another project in place of the present one, which goes.
    void replaceProject(std::unique_ptr<OpenProject> project);

    /// Runs a command as a step of the history.
    void push(std::unique_ptr<core::Command> command) { m_current->push(std::move(command)); }
    template<typename C, typename... Arguments>
    void push(Arguments &&...arguments)
    {
        push(std::make_unique<C>(std::forward<Arguments>(arguments)...));
    }

    /// Has the editors hand in what is typed and not yet a step of the history.
    void flush();
    /// Both flush first, so that what was typed last is what goes first.
    void undo();
    void redo();
    /// Whether there is a step to take back, or something typed that may become one.
    bool canUndo() const { return m_hasTyped || history().canUndo(); }
    /// Whether what changes now is an undone or redone step.
    bool isStepping() const { return m_isStepping; }

    /// The selected objects and categories, in the order of the panel that selected them.
    const QList<core::ContentId> &selection() const { return m_selection; }
    void select(const QList<core::ContentId> &ids);
    void select(const core::ContentId &id) { select(QList<core::ContentId>{id}); }
    /// Has the inspector shown, with the focus in it.
    void inspect() { Q_EMIT inspectRequested(); }
    /// Has the editor shown, with the focus in it.
    void write() { Q_EMIT writeRequested(); }
    /// Selects a document and has the editor show a place of its body with the selection laid over
    /// it; position and length are UTF-16 units, clamped to the text.
    void reveal(const core::ContentId &documentId, qsizetype position, qsizetype length);

Q_SIGNALS:
    /// Another project is open: everything shown is to be read anew.
    void projectReplaced();
    void changed(const vl::core::ChangeSet &changes);
    void historyChanged();
    void locationChanged();
    void saved();
    void saveFailed(const QString &message);
    void flushRequested();
    /// Something was typed that is not handed in yet.
    void typed();
    /// Editors add what they hold and have not handed in; nothing changes by it.
    void peekRequested(vl::app::PendingTexts &texts);
    void selectionChanged();
    void inspectRequested();
    void writeRequested();
    /// The document is selected already when this comes.
    void revealRequested(const vl::core::ContentId &documentId, qsizetype position,
                         qsizetype length);

private:
    void listen();
    void dropLostSelection(const core::ChangeSet &changes);
    void takeLostSelection();

    std::unique_ptr<OpenProject> m_current;
    QList<core::ContentId> m_selection;
    QList<core::ContentId> m_lostSelection; ///< what was selected when some of it was deleted
    bool m_isStepping = false;
    bool m_hasTyped = false; ///< since what was typed was handed in last
};

/// Opens a group of the history for the life of this object.
class MacroScope
{
public:
    MacroScope(Workspace &workspace, const QString &label)
        : m_history(workspace.history())
    {
        m_history.beginMacro(label);
    }
    ~MacroScope() { m_history.endMacro(); }
    Q_DISABLE_COPY_MOVE(MacroScope)

private:
    core::CommandStack &m_history;
};

} // namespace vl::app
