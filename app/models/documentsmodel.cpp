#include "app/models/documentsmodel.h"

#include "app/base/wordcount.h"
#include "app/models/documentoperations.h"
#include "app/models/workspace.h"
#include "core/commands/documentcommands.h"

#include <QtCore/QLocale>
#include <QtCore/QMimeData>
#include <QtCore/QSet>

#include <algorithm>

namespace vl::app {

namespace {

const QLatin1String idListType("application/x-ivorel-documents");

QList<core::ContentId> idsFrom(const QMimeData *data)
{
    QList<core::ContentId> ids;
    if (!data || !data->hasFormat(idListType))
        return ids;
    for (const QByteArray &line : data->data(idListType).split('\n')) {
        const auto id = core::ContentId::fromString(QString::fromLatin1(line));
        if (!id.isNull())
            ids.append(id);
    }
    return ids;
}

} // namespace

DocumentsModel::DocumentsModel(Workspace &workspace, QObject *parent)
    : QAbstractItemModel(parent)
    , m_workspace(workspace)
    , m_root(std::make_unique<Node>())
{
    connect(&workspace, &Workspace::projectReplaced, this, &DocumentsModel::reset);
    connect(&workspace, &Workspace::changed, this, &DocumentsModel::apply);
    reset();
}

DocumentsModel::~DocumentsModel() = default;

core::ContentId DocumentsModel::idAt(const QModelIndex &index) const
{
    return nodeAt(index)->id;
}

QModelIndex DocumentsModel::indexOf(const core::ContentId &id, int column) const
{
    const Node *node = m_nodes.value(id);
    return node ? indexOf(*node, column) : QModelIndex();
}

// --- following the project

void DocumentsModel::reset()
{
    beginResetModel();
    m_root = std::make_unique<Node>();
    m_nodes.clear();
    // A place's parent is the nearest place before it that is one step less deep.
    std::vector<Node *> path{m_root.get()};
    for (const core::DocumentTree::Place &place : m_workspace.project().documentTree().inOrder()) {
        path.resize(size_t(place.depth) + 1);
        auto node = std::make_unique<Node>();
        node->id = place.document->id();
        node->parent = path.back();
        node->words = countWords(place.document->body());
        m_nodes.insert(node->id, node.get());
        path.push_back(node.get());
        for (Node *above = node.get(); above; above = above->parent)
            above->treeWords += node->words;
        path[path.size() - 2]->children.push_back(std::move(node));
    }
    endResetModel();
}

void DocumentsModel::apply(const core::ChangeSet &changes)
{
    std::vector<core::Document *> present;
    for (const auto &[id, change] : changes.objects()) {
        if (change == core::ChangeSet::Change::Removed) {
            if (Node *node = m_nodes.value(id))
                removeNode(*node);
        } else if (auto *document = m_workspace.project().find<core::Document>(id)) {
            present.push_back(document);
        }
    }
    // In the order of the siblings, so that each finds those before it in place already.
    std::sort(present.begin(), present.end(),
              [this](const auto *a, const auto *b) { return standsBefore(*a, *b); });
    for (const core::Document *document : present)
        if (!m_nodes.contains(document->id()))
            insertNode(*document);
    for (const core::Document *document : present) {
        Node &node = *m_nodes.value(document->id());
        placeNode(node);
        refresh(node);
    }
}

void DocumentsModel::removeNode(Node &node)
{
    // Documents below it that stay in the project come to the top level, in reach.
    while (!node.children.empty()) {
        Node &child = *node.children.back();
        if (const core::Document *below = document(child)) {
            const int row = wantedRow(*below, *m_root);
            beginMoveRows(indexOf(node), rowOf(child), rowOf(child), {}, row);
            std::unique_ptr<Node> taken = std::move(node.children.back());
            node.children.pop_back();
            changeWords(&node, -taken->treeWords);
            changeWords(m_root.get(), taken->treeWords);
            taken->parent = m_root.get();
            m_root->children.insert(m_root->children.begin() + row, std::move(taken));
            endMoveRows();
        } else {
            removeNode(child);
        }
    }
    Node *parent = node.parent;
    const int row = rowOf(node);
    changeWords(parent, -node.treeWords);
    beginRemoveRows(indexOf(*parent), row, row);
    m_nodes.remove(node.id);
    parent->children.erase(parent->children.begin() + row);
    endRemoveRows();
}

void DocumentsModel::insertNode(const core::Document &document)
{
    Node *parent = wantedParent(document);
    const int row = wantedRow(document, *parent);
    auto node = std::make_unique<Node>();
    node->id = document.id();
    node->parent = parent;
    Node *added = node.get();
    beginInsertRows(indexOf(*parent), row, row);
    m_nodes.insert(document.id(), added);
    parent->children.insert(parent->children.begin() + row, std::move(node));
    endInsertRows();
    adoptLostChildren(*added);
}

void DocumentsModel::adoptLostChildren(Node &node)
{
    const std::vector<core::Document *> below =
        m_workspace.project().documentTree().children(node.id);
    for (const core::Document *child : below)
        if (Node *childNode = m_nodes.value(child->id()))
            placeNode(*childNode);
}

void DocumentsModel::placeNode(Node &node)
{
    const core::Document *moved = document(node);
    Node *from = node.parent;
    Node *to = wantedParent(*moved);
    const int row = rowOf(node);
    const int wanted = wantedRow(*moved, *to);
    if (from == to && row == wanted)
        return;
    // Rows are told as they stand before the move.
    const int destination = from == to && wanted > row ? wanted + 1 : wanted;
    beginMoveRows(indexOf(*from), row, row, indexOf(*to), destination);
    std::unique_ptr<Node> taken = std::move(from->children[size_t(row)]);
    from->children.erase(from->children.begin() + row);
    if (from != to) {
        changeWords(from, -node.treeWords);
        changeWords(to, node.treeWords);
    }
    node.parent = to;
    to->children.insert(to->children.begin() + wanted, std::move(taken));
    endMoveRows();
}

void DocumentsModel::refresh(Node &node)
{
    const qsizetype words = countWords(document(node)->body());
    const qsizetype difference = words - node.words;
    node.words = words;
    if (difference != 0)
        changeWords(&node, difference);
    emitRow(node, TitleColumn, StatusColumn);
}

void DocumentsModel::changeWords(Node *node, qsizetype difference)
{
    if (difference == 0)
        return;
    for (Node *above = node; above; above = above->parent) {
        above->treeWords += difference;
        if (above != m_root.get())
            emitRow(*above, WordsColumn, WordsColumn);
    }
}

void DocumentsModel::emitRow(const Node &node, int firstColumn, int lastColumn)
{
    Q_EMIT dataChanged(indexOf(node, firstColumn), indexOf(node, lastColumn));
}

DocumentsModel::Node *DocumentsModel::wantedParent(const core::Document &document) const
{
    Node *parent = m_nodes.value(document.parentId());
    if (!parent)
        return m_root.get();
    // Only a damaged project holds a cycle of parents; it is opened where it would close here.
    for (const Node *above = parent; above; above = above->parent)
        if (above->id == document.id())
            return m_root.get();
    return parent;
}

int DocumentsModel::wantedRow(const core::Document &document, const Node &parent) const
{
    int row = 0;
    for (const auto &child : parent.children) {
        const core::Document *sibling = this->document(*child);
        if (sibling && child->id != document.id() && standsBefore(*sibling, document))
            ++row;
    }
    return row;
}

bool DocumentsModel::standsBefore(const core::Document &a, const core::Document &b) const
{
    // Those whose parent is lost stand behind the others of the top level.
    const bool aIsLost = !a.parentId().isNull() && !m_nodes.contains(a.parentId());
    const bool bIsLost = !b.parentId().isNull() && !m_nodes.contains(b.parentId());
    if (aIsLost != bIsLost)
        return bIsLost;
    return a.sortIndex() != b.sortIndex() ? a.sortIndex() < b.sortIndex() : a.id() < b.id();
}

// --- rows

const core::Document *DocumentsModel::document(const Node &node) const
{
    return m_workspace.project().find<core::Document>(node.id);
}

DocumentsModel::Node *DocumentsModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<Node *>(index.internalPointer()) : m_root.get();
}

int DocumentsModel::rowOf(const Node &node)
{
    const auto &siblings = node.parent->children;
    const auto found = std::find_if(siblings.begin(), siblings.end(),
                                    [&](const auto &child) { return child.get() == &node; });
    return int(found - siblings.begin());
}

QModelIndex DocumentsModel::indexOf(const Node &node, int column) const
{
    if (&node == m_root.get())
        return {};
    return createIndex(rowOf(node), column, const_cast<Node *>(&node));
}

QModelIndex DocumentsModel::index(int row, int column, const QModelIndex &parent) const
{
    const Node *node = nodeAt(parent);
    if (row < 0 || row >= int(node->children.size()) || column < 0 || column >= ColumnCount
        || parent.column() > 0)
        return {};
    return createIndex(row, column, node->children[size_t(row)].get());
}

QModelIndex DocumentsModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOf(*nodeAt(index)->parent) : QModelIndex();
}

int DocumentsModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(nodeAt(parent)->children.size());
}

int DocumentsModel::columnCount(const QModelIndex & /*parent*/) const
{
    return ColumnCount;
}

QVariant DocumentsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Node &node = *nodeAt(index);
    const core::Document *shown = document(node);
    if (!shown)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        if (index.column() == WordsColumn)
            return QLocale().toString(qlonglong(node.treeWords));
        if (index.column() == StatusColumn)
            return shown->status();
        return shown->title().isEmpty() ? tr("Untitled") : shown->title();
    case Qt::EditRole:
        return index.column() == StatusColumn ? shown->status() : shown->title();
    case Qt::ToolTipRole:
        return shown->synopsis().isEmpty() ? shown->title()
                                           : shown->title() + u'\n' + shown->synopsis();
    case Qt::AccessibleTextRole:
        return tr("%1, %n word(s)", nullptr, int(node.treeWords)).arg(shown->title());
    case Qt::TextAlignmentRole:
        return index.column() == WordsColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                             : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case WordsRole:
        return qlonglong(node.words);
    case TreeWordsRole:
        return qlonglong(node.treeWords);
    case IsNoteRole:
        return shown->documentKind() == core::DocumentKind::Note;
    case IsScreenplayRole:
        return shown->documentKind() == core::DocumentKind::Screenplay;
    default:
        return {};
    }
}

QVariant DocumentsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case TitleColumn:
        return tr("Title");
    case WordsColumn:
        return tr("Words");
    case StatusColumn:
        return tr("Status");
    default:
        return {};
    }
}

bool DocumentsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    auto *edited = m_workspace.project().find<core::Document>(idAt(index));
    const QString text = value.toString().simplified();
    if (role != Qt::EditRole || !edited || index.column() != TitleColumn || text.isEmpty()
        || text == edited->title())
        return false;
    m_workspace.push<core::SetDocumentTitleCommand>(*edited, text);
    return true;
}

Qt::ItemFlags DocumentsModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const Qt::ItemFlags common =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
    return index.column() == TitleColumn ? common | Qt::ItemIsEditable : common;
}

// --- drag and drop

QStringList DocumentsModel::mimeTypes() const
{
    return {idListType};
}

QMimeData *DocumentsModel::mimeData(const QModelIndexList &indexes) const
{
    QByteArray list;
    for (const QModelIndex &index : indexes)
        if (index.column() == TitleColumn)
            list += idAt(index).toString().toLatin1() + '\n';
    auto *data = new QMimeData;
    data->setData(idListType, list);
    return data;
}

bool DocumentsModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int /*row*/,
                                     int /*column*/, const QModelIndex &parent) const
{
    return action == Qt::MoveAction
           && DocumentOperations(m_workspace).canMove(idsFrom(data), idAt(parent));
}

bool DocumentsModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                  int /*column*/, const QModelIndex &parent)
{
    if (action != Qt::MoveAction)
        return false;
    const QModelIndex parentIndex = parent.siblingAtColumn(TitleColumn);
    core::ContentId before; // the document that will stand behind those that are dropped
    if (row >= 0 && row < rowCount(parentIndex))
        before = idAt(index(row, TitleColumn, parentIndex));
    DocumentOperations(m_workspace).move(idsFrom(data), idAt(parentIndex), before);
    // The move is done; were this true, the view would remove the rows that it moved.
    return false;
}

} // namespace vl::app
