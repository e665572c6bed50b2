#pragma once

#include "core/id.h"
#include "desktop/panels/celltree.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QList>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QSet>
#include <QtWidgets/QStackedWidget>

class QLineEdit;

namespace vl::app {
class ObjectTreeModel;
class Workspace;
} // namespace vl::app

namespace vl::desktop {

class EmptyState;

/// A tree of the project's objects: what is selected here and what is selected in the window are
/// one, a line of text filters it, and a branch opens when something is dragged over it.
class ObjectTree final : public CellTree
{
    Q_OBJECT

public:
    /// The workspace and the model must outlive the tree.
    ObjectTree(app::Workspace &workspace, app::ObjectTreeModel *model, QWidget *parent);
    ~ObjectTree() override;

    /// Makes the line that filters this tree: Esc clears it, Enter and Down go to the first row
    /// that fits. The parent owns it; called once.
    QLineEdit *makeFilter(const QString &accessibleName, QWidget *parent);
    app::ObjectTreeModel *objects() const { return m_objects; }

    QList<core::ContentId> selectedIds() const;
    core::ContentId currentId() const;

    /// Selects the rows of what is selected in the window; where none has a row, nothing changes.
    void followWorkspace();
    /// Makes what is selected here the selection of the window.
    void selectInWorkspace();
    void clearFilter();
    /// Goes to the object and lets its name be written, without the filter if that hides it.
    void rename(const core::ContentId &id);
    void doItemsLayout() override;

Q_SIGNALS:
    /// Other rows are selected, by the user's hand or the window's.
    void selectionShown();
    /// Enter was pressed on a row.
    void openRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void showProject();
    void applyFilter(const QString &text);

    app::Workspace &m_workspace;
    app::ObjectTreeModel *m_objects;
    QLineEdit *m_filter = nullptr;
    QSet<core::ContentId> m_openBranches; ///< as they were before the filter opened them all
    QPersistentModelIndex m_hovered;      ///< the row that something is dragged over
    QBasicTimer m_hoverTimer;
    bool m_isFollowing = false; ///< while one side's selection is carried over to the other
};

/// A tree, or what to do about its having no rows: of the project, or none that pass the filter.
class TreePages final : public QStackedWidget
{
    Q_OBJECT

public:
    /// Takes the three over. The button of the last clears the filter.
    TreePages(ObjectTree *tree, EmptyState *nothing, EmptyState *noMatch, QWidget *parent);

private:
    void showPage();

    ObjectTree *m_tree;
    EmptyState *m_nothing;
    EmptyState *m_noMatch;
};

} // namespace vl::desktop
