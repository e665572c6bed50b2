#pragma once

#include "app/models/objecttexts.h"
#include "app/models/objecttreemodel.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <algorithm>
#include <memory>
#include <vector>

namespace vl::app {

/// What every object of a filtered tree knows of its place; the kinds of tree add their own.
template<typename Node>
struct FilteredNode
{
    core::ContentId id;
    Node *parent = nullptr;       ///< never null but for the root and a node that is being moved
    std::vector<Node *> children; ///< all, in order
    std::vector<Node *> shown;    ///< those that are rows
    int row = -1;                 ///< among them, -1 while hidden
    bool passes = true;           ///< the filter, by itself
};

/// An object tree whose rows are nodes under an invisible root. It owns the nodes and answers for
/// indexes and filter; what the rows are and say is left to the tree that derives from it.
template<typename Node>
class FilteredRows : public ObjectTreeModel
{
public:
    ~FilteredRows() override { qDeleteAll(m_nodes); }

    core::ContentId idAt(const QModelIndex &index) const override { return nodeAt(index)->id; }

    QModelIndex indexOf(const core::ContentId &id, int column = 0) const override
    {
        const Node *node = m_nodes.value(id);
        return node ? indexOf(*node, column) : QModelIndex();
    }

    void setFilter(const QString &text) override
    {
        const QStringList terms = searchText(text).simplified().split(u' ', Qt::SkipEmptyParts);
        if (terms != m_terms)
            changeLayout([&] { m_terms = terms; });
    }

    bool isFiltered() const override { return !m_terms.isEmpty(); }

    QModelIndex firstMatch() const override
    {
        std::vector<const Node *> stack{m_root.get()};
        while (!stack.empty()) {
            const Node *node = stack.back();
            stack.pop_back();
            if (node != m_root.get() && node->passes)
                return indexOf(*node);
            stack.insert(stack.end(), node->shown.rbegin(), node->shown.rend());
        }
        return {};
    }

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override
    {
        const Node *node = nodeAt(parent);
        if (row < 0 || row >= int(node->shown.size()) || column < 0 || column >= columnCount()
            || parent.column() > 0)
            return {};
        return createIndex(row, column, node->shown[std::size_t(row)]);
    }

    QModelIndex parent(const QModelIndex &index) const override
    {
        const Node *above = index.isValid() ? nodeAt(index)->parent : nullptr;
        return !above || above == m_root.get()
                   ? QModelIndex()
                   : createIndex(above->row, 0, const_cast<Node *>(above));
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.column() > 0 ? 0 : int(nodeAt(parent)->shown.size());
    }

    /// Every row can be dragged and dropped upon, and edited in its first column.
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        if (!index.isValid())
            return Qt::ItemIsDropEnabled;
        const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                     | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
        return index.column() == 0 ? common | Qt::ItemIsEditable : common;
    }

    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

protected:
    using Nodes = std::vector<Node *>;

    using ObjectTreeModel::ObjectTreeModel;

    /// Whether the node passes the filter by itself.
    virtual bool passes(const Node &node) const = 0;
    /// Whether a text, as searchText() gives it, holds all words of the filter.
    bool holdsTerms(const QString &text) const
    {
        return std::all_of(m_terms.begin(), m_terms.end(),
                           [&](const QString &term) { return text.contains(term); });
    }

    Node &root() const { return *m_root; }
    bool isRoot(const Node &node) const { return &node == m_root.get(); }
    /// The node of an object, null when it has none.
    Node *find(const core::ContentId &id) const { return m_nodes.value(id); }
    const QHash<core::ContentId, Node *> &nodes() const { return m_nodes; }
    Node *nodeAt(const QModelIndex &index) const
    {
        return index.isValid() ? static_cast<Node *>(index.internalPointer()) : m_root.get();
    }

    /// The row of the node; none when it is hidden, or lies in a branch that is.
    QModelIndex indexOf(const Node &node, int column = 0) const
    {
        for (const Node *above = &node; above != m_root.get(); above = above->parent)
            if (above->row < 0)
                return {};
        return isRoot(node) ? QModelIndex()
                            : createIndex(node.row, column, const_cast<Node *>(&node));
    }

    /// A node without a place yet.
    Node *addNode(const core::ContentId &id)
    {
        auto *node = new Node;
        node->id = id;
        m_nodes.insert(id, node);
        return node;
    }

    /// Deletes a node that has been taken out of its place.
    void dropNode(Node &node)
    {
        m_nodes.remove(node.id);
        delete &node;
    }

    void clearNodes()
    {
        qDeleteAll(m_nodes);
        m_nodes.clear();
        m_root = std::make_unique<Node>();
    }

    static void renumber(Node &parent, int firstRow)
    {
        for (auto row = std::size_t(firstRow); row < parent.shown.size(); ++row)
            parent.shown[row]->row = int(row);
    }

    /// Finds anew what passes the filter and what has rows.
    void filterAll()
    {
        // Every node stands in the list before those below it.
        Nodes nodes{m_root.get()};
        nodes.reserve(std::size_t(m_nodes.size()) + 1);
        for (std::size_t i = 0; i < nodes.size(); ++i)
            nodes.insert(nodes.end(), nodes[i]->children.begin(), nodes[i]->children.end());
        for (auto each = nodes.rbegin(); each != nodes.rend(); ++each) {
            Node &node = **each;
            node.passes = passes(node);
            node.shown.clear();
            for (Node *child : node.children) {
                const bool isShown = child->passes || !child->shown.empty();
                child->row = isShown ? int(node.shown.size()) : -1;
                if (isShown)
                    node.shown.push_back(child);
            }
        }
    }

    /// While a new layout is made, which tells of all rows at once, none is told of by itself.
    bool isQuiet() const { return m_isQuiet; }

    /// Does the work and finds the rows anew, told as one new layout in which every row stays the
    /// row it was.
    template<typename Work>
    void changeLayout(const Work &work)
    {
        Q_EMIT layoutAboutToBeChanged();
        const QModelIndexList before = persistentIndexList();
        std::vector<core::ContentId> ids;
        ids.reserve(std::size_t(before.size()));
        for (const QModelIndex &index : before)
            ids.push_back(idAt(index));
        m_isQuiet = true;
        work();
        filterAll();
        m_isQuiet = false;
        QModelIndexList after;
        after.reserve(before.size());
        for (qsizetype i = 0; i < before.size(); ++i)
            after.append(indexOf(ids[std::size_t(i)], before[i].column()));
        changePersistentIndexList(before, after);
        Q_EMIT layoutChanged();
    }

private:
    std::unique_ptr<Node> m_root = std::make_unique<Node>();
    QHash<core::ContentId, Node *> m_nodes; ///< owned, but for the root
    QStringList m_terms;
    bool m_isQuiet = false;
};

} // namespace vl::app
