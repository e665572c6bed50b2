#pragma once

#include "core/id.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtWidgets/QWidget>

class QLineEdit;
class QStackedWidget;
class QTreeView;

namespace vl::app {
class DocumentsModel;
}

namespace vl::desktop {

/// The manuscript tree: documents and notes, in the order in which they are read.
class DocumentsPanel final : public QWidget
{
    Q_OBJECT

public:
    DocumentsPanel(const PanelContext &context, QWidget *parent);
    ~DocumentsPanel() override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildToolBar(QLayout *layout);
    void buildTree(QLayout *layout);
    void bindActions();
    void applyFilter(const QString &text);
    void showProject();
    void updateEmptyState();
    void updateActions();
    void showContextMenu(const QPoint &position);

    void addDocument();
    void addNote();
    void addInside();
    void addTask();
    void askKind();
    void rename(const core::ContentId &id);
    void removeSelected();
    void selectFromWorkspace();
    void selectInWorkspace();
    QList<core::ContentId> selectedIds() const;
    core::ContentId currentId() const;

    PanelContext m_context;
    app::DocumentsModel *m_model;
    QLineEdit *m_filter = nullptr;
    QTreeView *m_tree = nullptr;
    QStackedWidget *m_pages = nullptr;
    QSet<core::ContentId> m_openBranches; ///< as they were before the filter opened them all
    bool m_isFollowing = false; ///< while one side's selection is carried over to the other
};

} // namespace vl::desktop
