#pragma once

#include "app/models/filteredrows.h"

#include <QtCore/QCollator>
#include <QtCore/QSet>

#include <optional>

namespace vl::core {
class ChangeSet;
class Entity;
struct Category;
} // namespace vl::core

namespace vl::app {

class Workspace;

/// A category or an entity in the codex tree; categories stand before entities.
struct CodexNode : FilteredNode<CodexNode>
{
    bool isCategory = true;
    QString name;
    QString searched;
    std::optional<QCollatorSortKey> sortKey;
};

/// The codex of the open project: the tree of categories with their entities, each level by name,
/// and what of it passes a filter. It follows the history row by row; only a change of many rows
/// at once is told as one new layout, in which every row stays the row it was. Its setters push
/// commands.
class CodexModel final : public FilteredRows<CodexNode>
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

    bool isCategory(const QModelIndex &index) const;

    /// The categories.
    QList<core::ContentId> branches() const override;
    int entityCount() const { return m_entityCount; }

    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// Renames; an empty name, or the present one, is refused.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

private:
    using Node = CodexNode;

    void reset();
    void apply(const core::ChangeSet &changes);
    void follow(const core::ChangeSet &changes);
    void refreshPins();

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
    /// Names, aliases and tags are looked at.
    bool passes(const Node &node) const override;
    static bool standsBefore(const Node *a, const Node *b);
    static Nodes::iterator placeIn(Nodes &nodes, const Node *node);

    Node &wantedParent(const core::Entity &entity) const;
    Node &wantedParent(const core::Category &category) const;
    Node &wantedParent(const Node &node) const;
    int countIn(const Node &node) const;
    QString nameOf(const Node &node) const;
    QString toolTip(const Node &node) const;

    Workspace &m_workspace;
    QCollator m_collator;
    int m_entityCount = 0;
    QSet<core::ContentId> m_touchedCounts;
    QSet<core::ContentId> m_pinned;
};

} // namespace vl::app
