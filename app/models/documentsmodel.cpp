#include "app/models/documentsmodel.h"

#include "app/base/wordcount.h"
#include "app/models/documentoperations.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "core/commands/documentcommands.h"

#include <QtConcurrent/QtConcurrentMap>
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

/// The words of each, counted on all processors when there are many.
template<typename Places>
std::vector<qsizetype> wordsOf(const Places &places)
{
    constexpr std::size_t documentsOfAPiece = 256;
    std::vector<qsizetype> words(places.size());
    std::vector<std::size_t> pieces;
    for (std::size_t first = 0; first < words.size(); first += documentsOfAPiece)
        pieces.push_back(first);
    const auto count = [&](std::size_t first) {
        const std::size_t end = std::min(first + documentsOfAPiece, words.size());
        for (std::size_t i = first; i < end; ++i)
            words[i] = countWords(places[i].document->body());
    };
    if (pieces.size() > 1)
        QtConcurrent::blockingMap(pieces, count);
    else
        std::for_each(pieces.begin(), pieces.end(), count);
    return words;
}

} // namespace

struct DocumentsModel::Node
{
    core::ContentId id;
    Node *parent = nullptr;
    std::vector<std::unique_ptr<Node>> children; ///< all, in order
    std::vector<Node *> shown;                   ///< those that are rows
    int row = -1;                                ///< among them, -1 while hidden
    bool passes = true;                          ///< the filter, by itself
    mutable QString searched;                    ///< null until a filter asks for it
    qsizetype words = 0;
    qsizetype treeWords = 0;
};

DocumentsModel::DocumentsModel(Workspace &workspace, QObject *parent)
    : ObjectTreeModel(parent)
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
    const auto places = m_workspace.project().documentTree().inOrder();
    const std::vector<qsizetype> words = wordsOf(places);
    auto count = words.begin();
    m_nodes.reserve(qsizetype(places.size()));
    // A place's parent is the nearest place before it that is one step less deep.
    std::vector<Node *> path{m_root.get()};
    for (const core::DocumentTree::Place &place : places) {
        path.resize(size_t(place.depth) + 1);
        auto node = std::make_unique<Node>();
        node->id = place.document->id();
        node->parent = path.back();
        node->words = *count++;
        m_nodes.insert(node->id, node.get());
        path.push_back(node.get());
        for (Node *above = node.get(); above; above = above->parent)
            above->treeWords += node->words;
        path[path.size() - 2]->children.push_back(std::move(node));
    }
    filterAll();
    endResetModel();
}

void DocumentsModel::apply(const core::ChangeSet &changes)
{
    if (isFiltered() && changesRows(changes))
        changeLayout([&] { follow(changes); });
    else
        follow(changes);
}

void DocumentsModel::follow(const core::ChangeSet &changes)
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

bool DocumentsModel::changesRows(const core::ChangeSet &changes) const
{
    return std::any_of(changes.objects().begin(), changes.objects().end(), [&](const auto &entry) {
        const auto &[id, change] = entry;
        const Node *node = m_nodes.value(id);
        if (change == core::ChangeSet::Change::Removed)
            return node != nullptr;
        const auto *document = m_workspace.project().find<core::Document>(id);
        if (!document || !node)
            return document != nullptr;
        Node now;
        now.id = id;
        return node->passes != passes(now) || node->parent != wantedParent(*document)
               || placeOf(*node) != wantedRow(*document, *node->parent);
    });
}

template<typename Work>
void DocumentsModel::changeLayout(const Work &work)
{
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<core::ContentId> ids;
    ids.reserve(size_t(before.size()));
    for (const QModelIndex &index : before)
        ids.push_back(idAt(index));
    m_isQuiet = true;
    work();
    filterAll();
    m_isQuiet = false;
    QModelIndexList after;
    after.reserve(before.size());
    for (qsizetype i = 0; i < before.size(); ++i)
        after.append(indexOf(ids[size_t(i)], before[i].column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

void DocumentsModel::removeNode(Node &node)
{
    // Documents below it that stay in the project come to the top level, in reach.
    while (!node.children.empty()) {
        Node &child = *node.children.back();
        if (const core::Document *below = document(child)) {
            const int row = wantedRow(*below, *m_root);
            if (!m_isQuiet)
                beginMoveRows(indexOf(node), child.row, child.row, {}, row);
            std::unique_ptr<Node> taken = take(child);
            changeWords(&node, -taken->treeWords);
            changeWords(m_root.get(), taken->treeWords);
            put(*m_root, row, std::move(taken));
            if (!m_isQuiet)
                endMoveRows();
        } else {
            removeNode(child);
        }
    }
    changeWords(node.parent, -node.treeWords);
    if (!m_isQuiet)
        beginRemoveRows(indexOf(*node.parent), node.row, node.row);
    m_nodes.remove(node.id);
    take(node).reset();
    if (!m_isQuiet)
        endRemoveRows();
}

void DocumentsModel::insertNode(const core::Document &document)
{
    Node *parent = wantedParent(document);
    const int row = wantedRow(document, *parent);
    auto node = std::make_unique<Node>();
    node->id = document.id();
    Node *added = node.get();
    if (!m_isQuiet)
        beginInsertRows(indexOf(*parent), row, row);
    m_nodes.insert(document.id(), added);
    put(*parent, row, std::move(node));
    if (!m_isQuiet)
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
    const int row = placeOf(node);
    const int wanted = wantedRow(*moved, *to);
    if (from == to && row == wanted)
        return;
    // Rows are told as they stand before the move.
    const int destination = from == to && wanted > row ? wanted + 1 : wanted;
    if (!m_isQuiet)
        beginMoveRows(indexOf(*from), row, row, indexOf(*to), destination);
    std::unique_ptr<Node> taken = take(node);
    if (from != to) {
        changeWords(from, -node.treeWords);
        changeWords(to, node.treeWords);
    }
    put(*to, wanted, std::move(taken));
    if (!m_isQuiet)
        endMoveRows();
}

std::unique_ptr<DocumentsModel::Node> DocumentsModel::take(Node &node)
{
    Node &parent = *node.parent;
    const auto place = parent.children.begin() + placeOf(node);
    std::unique_ptr<Node> taken = std::move(*place);
    parent.children.erase(place);
    if (const int row = std::exchange(node.row, -1); row >= 0) {
        parent.shown.erase(parent.shown.begin() + row);
        renumber(parent, row);
    }
    return taken;
}

void DocumentsModel::put(Node &parent, int row, std::unique_ptr<Node> node)
{
    node->parent = &parent;
    // While rows are hidden a new layout follows, which finds them all again.
    if (parent.shown.size() == parent.children.size()) {
        parent.shown.insert(parent.shown.begin() + row, node.get());
        renumber(parent, row);
    }
    parent.children.insert(parent.children.begin() + row, std::move(node));
}

void DocumentsModel::renumber(Node &parent, int firstRow)
{
    for (size_t row = size_t(firstRow); row < parent.shown.size(); ++row)
        parent.shown[row]->row = int(row);
}

void DocumentsModel::refresh(Node &node)
{
    node.searched = QString();
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
    // The rows of a hidden branch are nowhere to be seen.
    const QModelIndex first = m_isQuiet ? QModelIndex() : indexOf(node, firstColumn);
    if (first.isValid())
        Q_EMIT dataChanged(first, first.siblingAtColumn(lastColumn));
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

// --- the filter

void DocumentsModel::setFilter(const QString &text)
{
    const QStringList terms = searchText(text).simplified().split(u' ', Qt::SkipEmptyParts);
    if (terms == m_terms)
        return;
    changeLayout([&] { m_terms = terms; });
}

bool DocumentsModel::passes(const Node &node) const
{
    if (m_terms.isEmpty())
        return true;
    const core::Document *shown = document(node);
    if (shown && node.searched.isNull())
        node.searched = searchText(titleText(*shown));
    return std::all_of(m_terms.begin(), m_terms.end(),
                       [&](const QString &term) { return node.searched.contains(term); });
}

void DocumentsModel::filterAll()
{
    // Every document stands in the list before those below it.
    std::vector<Node *> nodes{m_root.get()};
    nodes.reserve(size_t(m_nodes.size()) + 1);
    for (size_t i = 0; i < nodes.size(); ++i)
        for (const auto &child : nodes[i]->children)
            nodes.push_back(child.get());
    for (auto each = nodes.rbegin(); each != nodes.rend(); ++each) {
        Node &node = **each;
        node.passes = passes(node);
        node.shown.clear();
        for (const auto &child : node.children) {
            const bool isShown = child->passes || !child->shown.empty();
            child->row = isShown ? int(node.shown.size()) : -1;
            if (isShown)
                node.shown.push_back(child.get());
        }
    }
}

QModelIndex DocumentsModel::firstMatch() const
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

QList<core::ContentId> DocumentsModel::branches() const
{
    QList<core::ContentId> ids;
    for (const Node *node : m_nodes)
        if (!node->shown.empty())
            ids.append(node->id);
    return ids;
}

// --- rows

QString DocumentsModel::titleText(const core::Document &document)
{
    return document.title().isEmpty() ? tr("Untitled") : document.title();
}

const core::Document *DocumentsModel::document(const Node &node) const
{
    return m_workspace.project().find<core::Document>(node.id);
}

DocumentsModel::Node *DocumentsModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<Node *>(index.internalPointer()) : m_root.get();
}

int DocumentsModel::placeOf(const Node &node)
{
    const auto &siblings = node.parent->children;
    const auto found = std::find_if(siblings.begin(), siblings.end(),
                                    [&](const auto &child) { return child.get() == &node; });
    return int(found - siblings.begin());
}

QModelIndex DocumentsModel::indexOf(const Node &node, int column) const
{
    for (const Node *above = &node; above != m_root.get(); above = above->parent)
        if (above->row < 0)
            return {};
    return &node == m_root.get() ? QModelIndex()
                                 : createIndex(node.row, column, const_cast<Node *>(&node));
}

QModelIndex DocumentsModel::index(int row, int column, const QModelIndex &parent) const
{
    const Node *node = nodeAt(parent);
    if (row < 0 || row >= int(node->shown.size()) || column < 0 || column >= ColumnCount
        || parent.column() > 0)
        return {};
    return createIndex(row, column, node->shown[size_t(row)]);
}

QModelIndex DocumentsModel::parent(const QModelIndex &index) const
{
    const Node *above = index.isValid() ? nodeAt(index)->parent : nullptr;
    return !above || above == m_root.get()
               ? QModelIndex()
               : createIndex(above->row, TitleColumn, const_cast<Node *>(above));
}

int DocumentsModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(nodeAt(parent)->shown.size());
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
        return titleText(*shown);
    case Qt::EditRole:
        return index.column() == StatusColumn ? shown->status() : shown->title();
    case Qt::ToolTipRole:
        return plainToolTip(shown->synopsis().isEmpty()
                                ? shown->title()
                                : shown->title() + u'\n' + shown->synopsis());
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
    const Node *above = nodeAt(parentIndex);
    if (row >= 0 && row < int(above->shown.size())) {
        before = above->shown[size_t(row)]->id;
    } else if (row > 0 && above->shown.size() < above->children.size() && !above->shown.empty()) {
        // Right behind the row that was seen there, not behind those that the filter hides.
        const auto next = size_t(placeOf(*above->shown.back())) + 1;
        if (next < above->children.size())
            before = above->children[next]->id;
    }
    DocumentOperations(m_workspace).move(idsFrom(data), idAt(parentIndex), before);
    // The move is done; were this true, the view would remove the rows that it moved.
    return false;
}

} // namespace vl::app
