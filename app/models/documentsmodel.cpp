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

DocumentsModel::DocumentsModel(Workspace &workspace, QObject *parent)
    : FilteredRows(parent)
    , m_workspace(workspace)
{
    connect(&workspace, &Workspace::projectReplaced, this, &DocumentsModel::reset);
    connect(&workspace, &Workspace::changed, this, &DocumentsModel::apply);
    reset();
}

// --- following the project

void DocumentsModel::reset()
{
    beginResetModel();
    clearNodes();
    const auto places = m_workspace.project().documentTree().inOrder();
    const std::vector<qsizetype> words = wordsOf(places);
    auto count = words.begin();
    // A place's parent is the nearest place before it that is one step less deep.
    Nodes path{&root()};
    for (const core::DocumentTree::Place &place : places) {
        path.resize(size_t(place.depth) + 1);
        Node *node = addNode(place.document->id());
        node->parent = path.back();
        node->words = *count++;
        node->parent->children.push_back(node);
        path.push_back(node);
        for (Node *above = node; above; above = above->parent)
            above->treeWords += node->words;
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
            if (Node *node = find(id))
                removeNode(*node);
        } else if (auto *document = m_workspace.project().find<core::Document>(id)) {
            present.push_back(document);
        }
    }
    // In the order of the siblings, so that each finds those before it in place already.
    std::sort(present.begin(), present.end(),
              [this](const auto *a, const auto *b) { return standsBefore(*a, *b); });
    for (const core::Document *document : present)
        if (!find(document->id()))
            insertNode(*document);
    for (const core::Document *document : present) {
        Node &node = *find(document->id());
        placeNode(node);
        refresh(node);
    }
}

bool DocumentsModel::changesRows(const core::ChangeSet &changes) const
{
    return std::any_of(changes.objects().begin(), changes.objects().end(), [&](const auto &entry) {
        const auto &[id, change] = entry;
        const Node *node = find(id);
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

void DocumentsModel::removeNode(Node &node)
{
    // Documents below it that stay in the project come to the top level, in reach.
    while (!node.children.empty()) {
        Node &child = *node.children.back();
        if (const core::Document *below = document(child)) {
            const int row = wantedRow(*below, root());
            if (!isQuiet())
                beginMoveRows(indexOf(node), child.row, child.row, {}, row);
            take(child);
            changeWords(&node, -child.treeWords);
            changeWords(&root(), child.treeWords);
            put(root(), row, child);
            if (!isQuiet())
                endMoveRows();
        } else {
            removeNode(child);
        }
    }
    changeWords(node.parent, -node.treeWords);
    if (!isQuiet())
        beginRemoveRows(indexOf(*node.parent), node.row, node.row);
    take(node);
    dropNode(node);
    if (!isQuiet())
        endRemoveRows();
}

void DocumentsModel::insertNode(const core::Document &document)
{
    Node *parent = wantedParent(document);
    const int row = wantedRow(document, *parent);
    if (!isQuiet())
        beginInsertRows(indexOf(*parent), row, row);
    Node *added = addNode(document.id());
    put(*parent, row, *added);
    if (!isQuiet())
        endInsertRows();
    adoptLostChildren(*added);
}

void DocumentsModel::adoptLostChildren(Node &node)
{
    const std::vector<core::Document *> below =
        m_workspace.project().documentTree().children(node.id);
    for (const core::Document *child : below)
        if (Node *childNode = find(child->id()))
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
    if (!isQuiet())
        beginMoveRows(indexOf(*from), row, row, indexOf(*to), destination);
    take(node);
    if (from != to) {
        changeWords(from, -node.treeWords);
        changeWords(to, node.treeWords);
    }
    put(*to, wanted, node);
    if (!isQuiet())
        endMoveRows();
}

void DocumentsModel::take(Node &node)
{
    Node &parent = *node.parent;
    parent.children.erase(parent.children.begin() + placeOf(node));
    if (const int row = std::exchange(node.row, -1); row >= 0) {
        parent.shown.erase(parent.shown.begin() + row);
        renumber(parent, row);
    }
}

void DocumentsModel::put(Node &parent, int row, Node &node)
{
    node.parent = &parent;
    // While rows are hidden a new layout follows, which finds them all again.
    if (parent.shown.size() == parent.children.size()) {
        parent.shown.insert(parent.shown.begin() + row, &node);
        renumber(parent, row);
    }
    parent.children.insert(parent.children.begin() + row, &node);
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
        if (!isRoot(*above))
            emitRow(*above, WordsColumn, WordsColumn);
    }
}

void DocumentsModel::emitRow(const Node &node, int firstColumn, int lastColumn)
{
    // The rows of a hidden branch are nowhere to be seen.
    const QModelIndex first = isQuiet() ? QModelIndex() : indexOf(node, firstColumn);
    if (first.isValid())
        Q_EMIT dataChanged(first, first.siblingAtColumn(lastColumn));
}

DocumentNode *DocumentsModel::wantedParent(const core::Document &document) const
{
    Node *parent = find(document.parentId());
    if (!parent)
        return &root();
    // Only a damaged project holds a cycle of parents; it is opened where it would close here.
    for (const Node *above = parent; above; above = above->parent)
        if (above->id == document.id())
            return &root();
    return parent;
}

int DocumentsModel::wantedRow(const core::Document &document, const Node &parent) const
{
    int row = 0;
    for (const Node *child : parent.children) {
        const core::Document *sibling = this->document(*child);
        if (sibling && child->id != document.id() && standsBefore(*sibling, document))
            ++row;
    }
    return row;
}

bool DocumentsModel::standsBefore(const core::Document &a, const core::Document &b) const
{
    // Those whose parent is lost stand behind the others of the top level.
    const bool aIsLost = !a.parentId().isNull() && !find(a.parentId());
    const bool bIsLost = !b.parentId().isNull() && !find(b.parentId());
    if (aIsLost != bIsLost)
        return bIsLost;
    return a.sortIndex() != b.sortIndex() ? a.sortIndex() < b.sortIndex() : a.id() < b.id();
}

// --- the filter

bool DocumentsModel::passes(const Node &node) const
{
    if (!isFiltered())
        return true;
    const core::Document *shown = document(node);
    if (shown && node.searched.isNull())
        node.searched = searchText(titleText(*shown));
    return holdsTerms(node.searched);
}

QList<core::ContentId> DocumentsModel::branches() const
{
    QList<core::ContentId> ids;
    for (const Node *node : nodes())
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

int DocumentsModel::placeOf(const Node &node)
{
    const auto &siblings = node.parent->children;
    const auto found = std::find(siblings.begin(), siblings.end(), &node);
    return int(found - siblings.begin());
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
    // A cell that an undo closes hands in what was written there: no step for the middle of one.
    if (role != Qt::EditRole || !edited || index.column() != TitleColumn || text.isEmpty()
        || text == edited->title() || m_workspace.isStepping())
        return false;
    m_workspace.push<core::SetDocumentTitleCommand>(*edited, text);
    return true;
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
