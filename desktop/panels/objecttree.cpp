#include "desktop/panels/objecttree.h"

#include "app/models/objecttreemodel.h"
#include "app/models/workspace.h"
#include "desktop/widgets/emptystate.h"

#include <QtGui/QDragMoveEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

namespace vl::desktop {

using core::ContentId;

namespace {

constexpr int hoverDelay = 600; // ms until a branch opens under what is dragged

} // namespace

ObjectTree::ObjectTree(app::Workspace &workspace, app::ObjectTreeModel *model, QWidget *parent)
    : CellTree(parent)
    , m_workspace(workspace)
    , m_objects(model)
{
    setModel(model);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setTextElideMode(Qt::ElideMiddle);
    header()->setAccessibleName(tr("Columns"));
    header()->setStretchLastSection(false);
    header()->setResizeContentsPrecision(0); // the visible rows are enough to measure
    for (int column = 0; column < model->columnCount(); ++column)
        header()->setSectionResizeMode(column, column == 0 ? QHeaderView::Stretch
                                                           : QHeaderView::ResizeToContents);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ObjectTree::selectInWorkspace);
    // A click on what is selected here makes it the selection of the window again.
    connect(this, &QAbstractItemView::clicked, this, &ObjectTree::selectInWorkspace);
    connect(&workspace, &app::Workspace::selectionChanged, this, &ObjectTree::followWorkspace);
    connect(&workspace, &app::Workspace::flushRequested, this, [this] {
        if (auto *rows = qobject_cast<RowDelegate *>(itemDelegate()))
            rows->commit();
    });
    connect(model, &QAbstractItemModel::modelReset, this, &ObjectTree::showProject);
    expandToDepth(0);
}

ObjectTree::~ObjectTree() = default;

void ObjectTree::showProject()
{
    m_openBranches.clear();
    clearFilter();
    expandToDepth(0);
}

/// A header that is painted measures its columns, which lays out rows that changed just before. In
/// the middle of painting nothing else that becomes dirty is painted: it is once that is over.
void ObjectTree::doItemsLayout()
{
    QTreeView::doItemsLayout();
    if (header()->viewport()->testAttribute(Qt::WA_WState_InPaintEvent))
        QMetaObject::invokeMethod(
            viewport(), [this] { viewport()->update(); }, Qt::QueuedConnection);
}

// --- filter

QLineEdit *ObjectTree::makeFilter(const QString &accessibleName, QWidget *parent)
{
    Q_ASSERT(!m_filter);
    m_filter = new QLineEdit(parent);
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(accessibleName);
    m_filter->setToolTip(accessibleName);
    m_filter->setClearButtonEnabled(true);
    if (auto *clear = m_filter->findChild<QToolButton *>())
        clear->setAccessibleName(tr("Clear the filter"));
    m_filter->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, this, &ObjectTree::applyFilter);
    return m_filter;
}

void ObjectTree::clearFilter()
{
    if (m_filter)
        m_filter->clear();
}

void ObjectTree::applyFilter(const QString &text)
{
    const bool wasFiltered = m_objects->isFiltered();
    const QList<ContentId> branches = m_objects->branches();
    if (!wasFiltered) {
        m_openBranches.clear();
        for (const ContentId &id : branches)
            if (isExpanded(m_objects->indexOf(id)))
                m_openBranches.insert(id);
    }
    m_objects->setFilter(text);
    if (m_objects->isFiltered()) {
        expandAll();
    } else if (wasFiltered) {
        // All branches were opened to show what matched; now they stand as before.
        // The view lays its rows out once, when this is done.
        const QList<ContentId> all = m_objects->branches();
        for (const ContentId &id : all)
            setExpanded(m_objects->indexOf(id), m_openBranches.contains(id));
    }
    followWorkspace();
}

bool ObjectTree::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_filter || event->type() != QEvent::KeyPress)
        return CellTree::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape && !m_filter->text().isEmpty()) {
        m_filter->clear();
        return true;
    }
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Down)
        return CellTree::eventFilter(watched, event);
    if (const QModelIndex first = m_objects->firstMatch(); first.isValid()) {
        setFocus(Qt::OtherFocusReason);
        setCurrentIndex(first);
    }
    return true;
}

void ObjectTree::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // Enter that ends the editing of a name comes by here, too.
    if (isEnter && hasFocus() && currentIndex().isValid())
        Q_EMIT openRequested();
    else
        QTreeView::keyPressEvent(event);
}

// --- selection

QList<ContentId> ObjectTree::selectedIds() const
{
    QList<ContentId> ids;
    const QModelIndexList rows = selectionModel()->selectedRows();
    ids.reserve(rows.size());
    for (const QModelIndex &row : rows)
        ids.append(m_objects->idAt(row));
    return ids;
}

ContentId ObjectTree::currentId() const
{
    return m_objects->idAt(currentIndex());
}

void ObjectTree::selectInWorkspace()
{
    Q_EMIT selectionShown();
    if (m_isFollowing)
        return;
    const QList<ContentId> ids = selectedIds();
    if (ids.isEmpty())
        return;
    m_isFollowing = true;
    m_workspace.select(ids);
    m_isFollowing = false;
}

void ObjectTree::followWorkspace()
{
    if (m_isFollowing)
        return;
    QItemSelection selection;
    QModelIndex first;
    for (const ContentId &id : m_workspace.selection()) {
        const QModelIndex index = m_objects->indexOf(id);
        if (!index.isValid())
            continue;
        selection.select(index, index);
        if (!first.isValid())
            first = index;
    }
    if (!first.isValid())
        return;
    m_isFollowing = true;
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(first);
    m_isFollowing = false;
    Q_EMIT selectionShown();
}

void ObjectTree::rename(const ContentId &id)
{
    if (!m_objects->indexOf(id).isValid())
        clearFilter();
    const QModelIndex index = m_objects->indexOf(id);
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index);
    setFocus(Qt::OtherFocusReason);
    edit(index);
}

// --- what is dragged over it

// The delay that views have of their own shuts a branch as well as it opens one, and so takes the
// place away that somebody is aiming at.

void ObjectTree::dragMoveEvent(QDragMoveEvent *event)
{
    CellTree::dragMoveEvent(event);
    const QPersistentModelIndex hovered(indexAt(event->position().toPoint()).siblingAtColumn(0));
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    if (m_hovered.isValid())
        m_hoverTimer.start(hoverDelay, this);
    else
        m_hoverTimer.stop();
}

void ObjectTree::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_hoverTimer.stop();
    m_hovered = QModelIndex();
    CellTree::dragLeaveEvent(event);
}

void ObjectTree::dropEvent(QDropEvent *event)
{
    m_hoverTimer.stop();
    m_hovered = QModelIndex();
    CellTree::dropEvent(event);
}

void ObjectTree::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_hoverTimer.timerId()) {
        CellTree::timerEvent(event);
        return;
    }
    m_hoverTimer.stop();
    expand(m_hovered);
}

// --- pages

TreePages::TreePages(ObjectTree *tree, EmptyState *nothing, EmptyState *noMatch, QWidget *parent)
    : QStackedWidget(parent)
    , m_tree(tree)
    , m_nothing(nothing)
    , m_noMatch(noMatch)
{
    addWidget(tree);
    addWidget(nothing);
    addWidget(noMatch);
    const app::ObjectTreeModel *model = tree->objects();
    connect(model, &QAbstractItemModel::modelReset, this, &TreePages::showPage);
    connect(model, &QAbstractItemModel::rowsInserted, this, &TreePages::showPage);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &TreePages::showPage);
    connect(model, &QAbstractItemModel::layoutChanged, this, &TreePages::showPage);
    connect(noMatch, &EmptyState::activated, tree, &ObjectTree::clearFilter);
    showPage();
}

void TreePages::showPage()
{
    const app::ObjectTreeModel *model = m_tree->objects();
    QWidget *page = m_tree;
    if (model->rowCount() == 0)
        page = model->isFiltered() ? m_noMatch : m_nothing;
    setCurrentWidget(page);
}

} // namespace vl::desktop
