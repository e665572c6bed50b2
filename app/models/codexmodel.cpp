#include "app/models/codexmodel.h"

#include "app/models/codexoperations.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "app/time/calendartext.h"
#include "core/commands/codexcommands.h"

#include <QtCore/QLocale>
#include <QtCore/QMimeData>

#include <algorithm>

namespace vl::app {

using core::Category;
using core::ChangeSet;
using core::ContentId;
using core::Entity;

namespace {

/// More rows than this that come, go or move at once are told as one new layout.
constexpr int fewRows = 48;
constexpr int toolTipFields = 4;
constexpr int toolTipLength = 160;

/// The order of the interface language, and that of English where the system names none.
QLocale sortingLocale()
{
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

} // namespace

CodexModel::CodexModel(Workspace &workspace, QObject *parent)
    : FilteredRows(parent)
    , m_workspace(workspace)
    , m_collator(sortingLocale())
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    connect(&workspace, &Workspace::projectReplaced, this, &CodexModel::reset);
    connect(&workspace, &Workspace::changed, this, &CodexModel::apply);
    reset();
}

bool CodexModel::isCategory(const QModelIndex &index) const
{
    return index.isValid() && nodeAt(index)->isCategory;
}

// --- following the project

void CodexModel::reset()
{
    beginResetModel();
    clearNodes();
    m_entityCount = 0;
    const core::Project &project = m_workspace.project();
    const std::set<ContentId> &pinned = project.pinned();
    m_pinned = {pinned.begin(), pinned.end()};

    const auto join = [this](Node *node, Node *parent) {
        readTexts(*node);
        node->parent = parent;
        parent->children.push_back(node);
    };
    // A place's parent is the nearest place before it that is one step less deep.
    Nodes path{&root()};
    for (const core::Taxonomy::Place &place : project.taxonomy().inTreeOrder()) {
        path.resize(std::size_t(place.depth) + 1);
        Node *node = addNode(place.category->id, true);
        join(node, path.back());
        path.push_back(node);
    }
    for (const Entity *entity : project.all<Entity>())
        join(addNode(entity->id(), false), &wantedParent(*entity));
    std::sort(root().children.begin(), root().children.end(), standsBefore);
    for (Node *node : nodes())
        std::sort(node->children.begin(), node->children.end(), standsBefore);
    filterAll();
    endResetModel();
}

void CodexModel::apply(const ChangeSet &changes)
{
    if (changes.objects().size() + changes.categories().size() > fewRows)
        changeLayout([&] {
            follow(changes);
            m_touchedCounts.clear(); // the whole layout is drawn anew
        });
    else
        follow(changes);
    emitCounts();
    if (changes.touches(core::ProjectRecord::Pinned))
        refreshPins();
}

void CodexModel::follow(const ChangeSet &changes)
{
    const core::Project &project = m_workspace.project();
    for (const auto &[id, change] : changes.categories())
        if (project.taxonomy().contains(id))
            updateCategory(id);
    for (const auto &[id, change] : changes.objects())
        if (project.find<Entity>(id))
            updateEntity(id);
    for (const ChangeSet::Changes *gone : {&changes.objects(), &changes.categories()}) {
        for (const auto &[id, change] : *gone) {
            Node *node = change == ChangeSet::Change::Removed ? find(id) : nullptr;
            if (node && !project.contains(id) && !project.taxonomy().contains(id))
                removeNode(*node);
        }
    }
}

void CodexModel::refreshPins()
{
    const std::set<ContentId> &ids = m_workspace.project().pinned();
    const QSet<ContentId> now(ids.begin(), ids.end());
    const QSet<ContentId> before = std::exchange(m_pinned, now);
    for (const ContentId &id : (before - now) + (now - before))
        if (const QModelIndex index = indexOf(id); index.isValid())
            Q_EMIT dataChanged(index, index, {IsPinnedRole, Qt::AccessibleTextRole});
}

CodexNode *CodexModel::addNode(const ContentId &id, bool isCategory)
{
    Node *node = FilteredRows::addNode(id);
    node->isCategory = isCategory;
    m_entityCount += !isCategory;
    return node;
}

void CodexModel::removeNode(Node &node)
{
    // What lies below it and stays in the project comes to the top level, in reach.
    while (!node.children.empty())
        place(*node.children.back(), root());
    if (node.row >= 0)
        hide(node);
    Node &parent = *node.parent;
    parent.children.erase(placeIn(parent.children, &node));
    m_entityCount -= !node.isCategory;
    dropNode(node);
    touchCounts(&parent);
    hideEmptied(parent);
}

void CodexModel::updateCategory(const ContentId &id)
{
    const Category &category = *m_workspace.project().taxonomy().find(id);
    Node *node = find(id);
    const bool isNew = !node;
    if (isNew)
        node = addNode(id, true);
    place(*node, wantedParent(category));
    adoptLost(isNew);
}

void CodexModel::updateEntity(const ContentId &id)
{
    Node *node = find(id);
    if (!node)
        node = addNode(id, false);
    place(*node, wantedParent(*m_workspace.project().find<Entity>(id)));
}

CodexNode &CodexModel::wantedParent(const Node &node) const
{
    const core::Project &project = m_workspace.project();
    if (const Category *category = node.isCategory ? project.taxonomy().find(node.id) : nullptr)
        return wantedParent(*category);
    const Entity *entity = node.isCategory ? nullptr : project.find<Entity>(node.id);
    return entity ? wantedParent(*entity) : root();
}

void CodexModel::adoptLost(bool alsoEntities)
{
    Nodes lost;
    for (Node *node : root().children) {
        if (!node->isCategory && !alsoEntities)
            break;
        if (!isRoot(wantedParent(*node)))
            lost.push_back(node);
    }
    for (Node *node : lost)
        place(*node, wantedParent(*node)); // asked anew: the others have moved meanwhile
}

void CodexModel::place(Node &node, Node &parent)
{
    Node *from = node.parent;
    const bool wasShown = node.row >= 0;
    if (from)
        from->children.erase(placeIn(from->children, &node));
    if (isQuiet() || !wasShown) {
        if (wasShown) // the rows are in order only while it has its old name
            from->shown.erase(placeIn(from->shown, &node));
        node.row = -1;
        readTexts(node);
        node.parent = &parent;
        if (!isQuiet() && (node.passes || !node.shown.empty()))
            show(node);
    } else {
        moveShown(node, parent);
    }
    parent.children.insert(placeIn(parent.children, &node), &node);
    if (from == &parent && wasShown == (node.row >= 0))
        return;
    touchCounts(&parent);
    hideEmptied(parent);
    if (from && from != &parent) {
        touchCounts(from);
        hideEmptied(*from);
    }
}

void CodexModel::moveShown(Node &node, Node &parent)
{
    Node &from = *node.parent;
    if (!isRoot(parent) && parent.row < 0)
        show(parent);
    readTexts(node);
    if (!node.passes && node.shown.empty()) {
        hide(node);
        node.parent = &parent;
        return;
    }
    // But for the row itself, which may have a new name, all are in order.
    const int row = node.row;
    const auto source = from.shown.begin() + row;
    auto place = from.shown.begin();
    if (&from != &parent)
        place = placeIn(parent.shown, &node);
    else if (row > 0 && standsBefore(&node, *(source - 1)))
        place = std::lower_bound(from.shown.begin(), source, &node, standsBefore);
    else
        place = std::lower_bound(source + 1, from.shown.end(), &node, standsBefore);
    int target = int(place - parent.shown.begin()); // in the rows as they are before the move
    if (&from != &parent || (target != row && target != row + 1)) {
        beginMoveRows(indexOf(from), row, row, indexOf(parent), target);
        from.shown.erase(source);
        if (&from == &parent && target > row)
            --target;
        parent.shown.insert(parent.shown.begin() + target, &node);
        node.parent = &parent;
        renumber(from, &from == &parent ? std::min(row, target) : row);
        renumber(parent, &from == &parent ? std::min(row, target) : target);
        endMoveRows();
    }
    Q_EMIT dataChanged(indexOf(node), indexOf(node, CountColumn));
}

void CodexModel::show(Node &node)
{
    Node &parent = *node.parent;
    const bool isVisible = isRoot(parent) || parent.row >= 0;
    const auto position = placeIn(parent.shown, &node);
    const int row = int(position - parent.shown.begin());
    if (isVisible)
        beginInsertRows(indexOf(parent), row, row);
    parent.shown.insert(position, &node);
    renumber(parent, row);
    if (isVisible)
        endInsertRows();
    else
        show(parent);
}

void CodexModel::hide(Node &node)
{
    Node &parent = *node.parent;
    if (!isQuiet())
        beginRemoveRows(indexOf(parent), node.row, node.row);
    const int row = std::exchange(node.row, -1);
    if (isQuiet()) {
        parent.shown.erase(std::find(parent.shown.begin(), parent.shown.end(), &node));
    } else {
        parent.shown.erase(parent.shown.begin() + row);
        renumber(parent, row);
        endRemoveRows();
    }
}

void CodexModel::hideEmptied(Node &category)
{
    if (isQuiet())
        return;
    for (Node *node = &category; !isRoot(*node); node = node->parent) {
        if (node->row < 0 || node->passes || !node->shown.empty())
            return;
        hide(*node);
    }
}

void CodexModel::touchCounts(const Node *node)
{
    for (; node && !isRoot(*node); node = node->parent)
        m_touchedCounts.insert(node->id);
}

void CodexModel::emitCounts()
{
    for (const ContentId &id : std::exchange(m_touchedCounts, {}))
        if (const QModelIndex index = indexOf(id, CountColumn); index.isValid())
            Q_EMIT dataChanged(index, index);
}

CodexNode &CodexModel::wantedParent(const Entity &entity) const
{
    Node *category = find(entity.categoryId());
    return category && category->isCategory ? *category : root();
}

CodexNode &CodexModel::wantedParent(const Category &category) const
{
    Node *parent = find(category.parentId);
    if (!parent || !parent->isCategory)
        return root();
    // Only a damaged project holds a cycle of parents; it is opened where it would close here.
    for (const Node *above = parent; above; above = above->parent)
        if (above->id == category.id)
            return root();
    return *parent;
}

// --- names, order and filter

void CodexModel::readTexts(Node &node) const
{
    const core::Project &project = m_workspace.project();
    const auto take = [&](const QString &name, const QStringList &more) {
        if (!node.sortKey || name != node.name) {
            node.name = name;
            node.sortKey = m_collator.sortKey(name);
        }
        node.searched = searchText(more.isEmpty() ? name : name + u'\n' + more.join(u'\n'));
    };
    if (node.isCategory) {
        if (const Category *category = project.taxonomy().find(node.id))
            take(category->name, {});
    } else if (const auto *entity = project.find<Entity>(node.id)) {
        QStringList more = entity->aliases();
        more.append(QStringList(entity->tags().begin(), entity->tags().end()));
        take(entity->name(), more);
    }
    node.passes = passes(node);
}

bool CodexModel::passes(const Node &node) const
{
    return holdsTerms(node.searched);
}

bool CodexModel::standsBefore(const Node *a, const Node *b)
{
    if (a->isCategory != b->isCategory)
        return a->isCategory;
    const int order = a->sortKey->compare(*b->sortKey);
    return order != 0 ? order < 0 : a->id < b->id;
}

std::vector<CodexNode *>::iterator CodexModel::placeIn(Nodes &nodes, const Node *node)
{
    return std::lower_bound(nodes.begin(), nodes.end(), node, standsBefore);
}

QList<ContentId> CodexModel::branches() const
{
    const std::vector<ContentId> ids = m_workspace.project().taxonomy().ids();
    return {ids.begin(), ids.end()};
}

int CodexModel::countIn(const Node &node) const
{
    int count = 0;
    Nodes stack;
    const auto add = [&](const Node &category) {
        for (Node *child : category.shown) {
            if (!child->isCategory)
                break;
            stack.push_back(child);
            --count;
        }
        count += int(category.shown.size());
    };
    add(node);
    while (!stack.empty()) {
        const Node *category = stack.back();
        stack.pop_back();
        add(*category);
    }
    return count;
}

// --- rows

int CodexModel::columnCount(const QModelIndex & /*parent*/) const
{
    return ColumnCount;
}

bool CodexModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QString CodexModel::nameOf(const Node &node) const
{
    return node.name.isEmpty() ? tr("Untitled") : rowText(node.name);
}

QVariant CodexModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Node &node = *nodeAt(index);
    switch (role) {
    case Qt::DisplayRole:
        if (index.column() == CountColumn)
            return node.isCategory ? QLocale().toString(countIn(node)) : QString();
        return nameOf(node);
    case Qt::EditRole:
        return node.name;
    case Qt::ToolTipRole:
        return toolTip(node);
    case Qt::AccessibleTextRole:
        if (index.column() == CountColumn)
            return {};
        if (node.isCategory)
            return tr("%1, category, %n entity(ies)", nullptr, countIn(node)).arg(nameOf(node));
        return m_pinned.contains(node.id) ? tr("%1, pinned").arg(nameOf(node)) : nameOf(node);
    case Qt::TextAlignmentRole:
        return index.column() == CountColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                             : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case IsCategoryRole:
        return node.isCategory;
    case IsPinnedRole:
        return m_pinned.contains(node.id);
    case EntityCountRole:
        return node.isCategory ? countIn(node) : 0;
    default:
        return {};
    }
}

QString CodexModel::toolTip(const Node &node) const
{
    const core::Project &project = m_workspace.project();
    const auto line = [](const QString &text) {
        return QStringLiteral("<br>") + text.left(toolTipLength).toHtmlEscaped();
    };
    QString text = QStringLiteral("<b>%1</b>").arg(nameOf(node).toHtmlEscaped());
    if (node.isCategory)
        return text + line(tr("%n entity(ies)", nullptr, countIn(node)));
    const auto *entity = project.find<Entity>(node.id);
    if (!entity)
        return {};
    if (!entity->aliases().isEmpty())
        text += line(tr("Also: %1").arg(entity->aliases().join(QLatin1String(", "))));
    const auto date = [&](const std::optional<qint64> &instant) {
        return instant ? formatInstant(project.calendar(), *instant) : QStringLiteral("…");
    };
    const core::Lifespan &life = entity->lifespan();
    if (life.birthInstant || life.deathInstant)
        text += line(tr("%1 to %2").arg(date(life.birthInstant), date(life.deathInstant)));
    int lines = 0;
    for (const core::FieldDefinition &field : codexFields(project, entity->categoryId())) {
        const QString value = entity->value(field.key).value_or(QString()).simplified();
        if (value.isEmpty() || ++lines > toolTipFields)
            continue;
        const core::ContentObject *other = field.type == core::FieldType::Reference
                                               ? project.find(ContentId::fromString(value))
                                               : nullptr;
        text += line(tr("%1: %2").arg(field.label, other ? titleOf(*other) : value));
    }
    return text;
}

QVariant CodexModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == NameColumn ? tr("Name") : section == CountColumn ? tr("Count") : QVariant();
}

bool CodexModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    // A cell that an undo closes hands in what was written there: no step for the middle of one.
    if (role != Qt::EditRole || !index.isValid() || index.column() != NameColumn
        || m_workspace.isStepping())
        return false;
    return CodexOperations(m_workspace).rename(idAt(index), value.toString());
}

// --- drag and drop

QStringList CodexModel::mimeTypes() const
{
    return {codexMimeType()};
}

QMimeData *CodexModel::mimeData(const QModelIndexList &indexes) const
{
    QList<ContentId> ids;
    for (const QModelIndex &index : indexes)
        if (index.column() == NameColumn)
            ids.append(idAt(index));
    return CodexOperations(m_workspace).mimeData(ids);
}

bool CodexModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int /*row*/,
                                 int /*column*/, const QModelIndex &parent) const
{
    const CodexOperations operations(m_workspace);
    return action == Qt::MoveAction
           && operations.canMove(CodexOperations::idsFrom(data),
                                 operations.categoryAt(idAt(parent)));
}

bool CodexModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int /*row*/,
                              int /*column*/, const QModelIndex &parent)
{
    if (action != Qt::MoveAction)
        return false;
    CodexOperations operations(m_workspace);
    operations.move(CodexOperations::idsFrom(data), operations.categoryAt(idAt(parent)));
    // The move is done; were this true, the view would remove the rows that it moved.
    return false;
}

} // namespace vl::app
