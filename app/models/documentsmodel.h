#pragma once

#include "app/models/filteredrows.h"

namespace vl::core {
class ChangeSet;
class Document;
} // namespace vl::core

namespace vl::app {

class Workspace;

/// A document in the manuscript tree.
struct DocumentNode : FilteredNode<DocumentNode>
{
    mutable QString searched; ///< null until a filter asks for it
    qsizetype words = 0;
    qsizetype treeWords = 0;
};

/// The manuscript tree of the open project, and what of it passes a filter. It follows the history
/// row by row and never rebuilds itself for a change; only while it is filtered are rows that come,
/// go or move told as one new layout, in which every row stays the row it was. Its setters push
/// commands.
class DocumentsModel final : public FilteredRows<DocumentNode>
{
    Q_OBJECT

public:
    enum Column
    {
        TitleColumn,
        WordsColumn,
        StatusColumn,
        ColumnCount
    };
    enum Role
    {
        WordsRole = Qt::UserRole, ///< words of the document alone (qlonglong)
        TreeWordsRole,            ///< words of the document and all below it (qlonglong)
        IsNoteRole,               ///< whether it is a note, which stands beside the manuscript
        IsScreenplayRole,
    };

    explicit DocumentsModel(Workspace &workspace, QObject *parent = nullptr);

    /// The documents with others below them.
    QList<core::ContentId> branches() const override;

    int columnCount(const QModelIndex &parent = {}) const override;
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
    using Node = DocumentNode;

    void reset();
    void apply(const core::ChangeSet &changes);
    void follow(const core::ChangeSet &changes);
    /// Whether a change makes rows come, go or move, those that the filter hides among them.
    bool changesRows(const core::ChangeSet &changes) const;
    /// Titles are looked at.
    bool passes(const Node &node) const override;
    void removeNode(Node &node);
    void insertNode(const core::Document &document);
    void placeNode(Node &node);
    void adoptLostChildren(Node &node);
    void refresh(Node &node);
    void changeWords(Node *node, qsizetype difference);
    /// Takes the node out of the children of its parent, and puts one among those of another.
    static void take(Node &node);
    static void put(Node &parent, int row, Node &node);
    void emitRow(const Node &node, int firstColumn, int lastColumn);

    Node *wantedParent(const core::Document &document) const;
    /// Where the document belongs among the children, itself not counted.
    int wantedRow(const core::Document &document, const Node &parent) const;
    bool standsBefore(const core::Document &a, const core::Document &b) const;
    /// Where it stands among all children of its parent, those that are hidden among them.
    static int placeOf(const Node &node);
    const core::Document *document(const Node &node) const;
    static QString titleText(const core::Document &document);

    Workspace &m_workspace;
};

} // namespace vl::app
