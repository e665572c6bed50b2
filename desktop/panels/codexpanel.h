#pragma once

#include "core/id.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QList>
#include <QtWidgets/QWidget>

#include <vector>

class QAction;
class QMenu;

namespace vl::app {
class CodexModel;
class CodexOperations;
} // namespace vl::app

namespace vl::desktop {

class ObjectTree;

/// The codex: the categories of the invented world and the entities in them.
class CodexPanel final : public QWidget
{
    Q_OBJECT

public:
    CodexPanel(const PanelContext &context, QWidget *parent);
    ~CodexPanel() override;

private:
    using Ids = QList<core::ContentId>;
    /// What an entry of the menus needs to be of use.
    enum class Needs
    {
        Nothing,
        Category, ///< the selected one, or that of the selected entity
        OneCategory,
        Categories,
        OneEntity,
        Entities,
        Rows,
        Template,
        Clipboard,
        NotYet, ///< stands for what is still to come
    };
    struct Entry
    {
        QAction *action;
        Needs needs;
    };

    void makeEntries();
    void makeOtherEntries();
    QAction *addEntry(const QString &text, Needs needs, void (CodexPanel::*slot)(),
                      const QKeySequence &keys = {});
    void buildTree();
    void buildLayout();
    void updateEntries();
    void showContextMenu(const QPoint &position);

    void addCategory();
    void addSubcategory();
    void addEntity();
    void addFromTemplate();
    void addField();
    void addTask();
    void renameCurrent();
    void duplicate();
    void deleteSelected();
    void togglePin();
    void editTags();
    void saveAsTemplate();
    void manageTemplates();
    void mergeInto();
    void split();
    void cut();
    void copy();
    void paste();
    void openInInspector();
    void nothing() {}

    void reveal(const Ids &ids);
    app::CodexOperations operations() const;

    PanelContext m_context;
    app::CodexModel *m_model;
    ObjectTree *m_tree = nullptr;
    QMenu *m_newMenu = nullptr;
    QMenu *m_moreMenu = nullptr;
    std::vector<Entry> m_entries;
    QList<QAction *> m_clipboardActions;
};

} // namespace vl::desktop
