#pragma once

#include "app/models/objecttreemodel.h"

#include <QtCore/QCollator>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace vl::core {
class ChangeSet;
class Entity;
struct Category;
} // namespace vl::core

namespace vl::app {

class Workspace;

/// The codex of the open project: the tree of categories with their entities, each level by name,
/// and what of it passes a filter. It follows the history row by row; only a change of many rows
/// at once is told as one new layout, in which every row stays the row it was. Its setters push
/// commands.
class CodexModel final : public ObjectTreeModel
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        CountColumn,
        ColumnCount
    };
    enum Role
    {
        IsCategoryRole = Qt::UserRole,
        IsPinnedRole,
        EntityCountRole, ///< entities shown in a category and all below it (int)
    };

    explicit CodexModel(Workspace &workspace, QObject *parent = nullptr);
    ~CodexModel() override;

    core::ContentId idAt(const QModelIndex &index) const override;
    QModelIndex indexOf(const core::ContentId &id, int column = NameColumn) const override;
    bool isCategory(const QModelIndex &index) const;

    /// Names, aliases and tags are looked at.
    void setFilter(const QString &text) override;
    bool isFiltered() const override { return !m_terms.isEmpty(); }
    QModelIndex firstMatch() const override;
    /// The categories.
    QList<core::ContentId> branches() const override;
    int entityCount() const { return m_entityCount; }

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// Renames; an empty name, or the present one, is refused.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

private:
    struct Node;
    using Nodes = std::vector<Node *>;

    void reset();
    void apply(const core::ChangeSet &changes);
    void follow(const core::ChangeSet &changes);
    void refreshPins();
    template<typename Work>
    void changeLayout(const Work &work);

    Node *addNode(const core::ContentId &id, bool isCategory);
    void removeNode(Node &node);
    void updateCategory(const core::ContentId &id);
    void updateEntity(const core::ContentId &id);
    /// Puts the node where it belongs, with what it is called now.
    void place(Node &node, Node &parent);
    void moveShown(Node &node, Node &parent);
    void show(Node &node);
    void hide(Node &node);
    void hideEmptied(Node &category);
    /// Brings rows of the top level under their categories, where those are there now.
    void adoptLost(bool alsoEntities);
    void touchCounts(const Node *node);
    void emitCounts();

    void readTexts(Node &node) const;
    bool passes(const Node &node) const;
    void filterAll();
    void renumber(Node &parent, std::size_t first) const;
    static bool standsBefore(const Node *a, const Node *b);
    static Nodes::iterator placeIn(Nodes &nodes, const Node *node);

    Node &wantedParent(const core::Entity &entity) const;
    Node &wantedParent(const core::Category &category) const;
    Node &wantedParent(const Node &node) const;
    Node *nodeAt(const QModelIndex &index) const;
    QModelIndex indexOf(const Node &node, int column = NameColumn) const;
    int countIn(const Node &node) const;
    QString nameOf(const Node &node) const;
    QString toolTip(const Node &node) const;

    Workspace &m_workspace;
    QCollator m_collator;
    std::unique_ptr<Node> m_root;
    QHash<core::ContentId, Node *> m_nodes; ///< owned, but for the root
    QStringList m_terms;
    int m_entityCount = 0;
    bool m_isQuiet = false; ///< while a new layout is made, which tells of all rows at once
    QSet<core::ContentId> m_touchedCounts;
    QSet<core::ContentId> m_pinned;
};

} // namespace vl::app
