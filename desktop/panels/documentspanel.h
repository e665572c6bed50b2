#pragma once

#include "core/id.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QList>
#include <QtWidgets/QWidget>

class QMenu;

namespace vl::app {
class DocumentsModel;
}

namespace vl::desktop {

class ObjectTree;

/// The manuscript tree: documents and notes, in the order in which they are read.
class DocumentsPanel final : public QWidget
{
    Q_OBJECT

public:
    DocumentsPanel(const PanelContext &context, QWidget *parent);
    ~DocumentsPanel() override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildTree();
    void buildLayout();
    void bindActions();
    void showProject();
    void updateActions();
    void addChanges(QMenu *menu);
    void showContextMenu(const QPoint &position);

    void addDocument();
    void addNote();
    void addInside();
    void addTask();
    void askKind();
    void removeSelected();
    void openInEditor();

    PanelContext m_context;
    app::DocumentsModel *m_model;
    ObjectTree *m_tree = nullptr;
};

} // namespace vl::desktop
