#include "desktop/panels/documentspanel.h"

#include "app/models/codexoperations.h"
#include "app/models/documentoperations.h"
#include "app/models/documentsmodel.h"
#include "app/models/objecttexts.h"
#include "app/models/prompts.h"
#include "app/models/workspace.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/shell/notices.h"
#include "desktop/widgets/emptystate.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

using app::DocumentOperations;
using app::DocumentsModel;
using core::ContentId;

namespace {

constexpr int roomForStatus = 46; // characters of the panel's width
constexpr int roomForWords = 24;

} // namespace

DocumentsPanel::DocumentsPanel(const PanelContext &context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
    , m_model(new DocumentsModel(context.workspace, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    buildToolBar(layout);
    buildTree(layout);
    bindActions();

    connect(&m_context.workspace, &app::Workspace::selectionChanged, this,
            &DocumentsPanel::selectFromWorkspace);
    connect(m_model, &QAbstractItemModel::modelReset, this, &DocumentsPanel::showProject);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &DocumentsPanel::updateEmptyState);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &DocumentsPanel::updateEmptyState);
    updateEmptyState();
    updateActions();
}

DocumentsPanel::~DocumentsPanel() = default;

void DocumentsPanel::buildToolBar(QLayout *layout)
{
    auto *bar = new QHBoxLayout;
    bar->setSpacing(4);

    auto *add = new QToolButton(this);
    add->setText(tr("New ▾"));
    add->setAccessibleName(tr("New document or note"));
    add->setToolTip(tr("Add a document or a note behind the selected one."));
    add->setPopupMode(QToolButton::InstantPopup);
    add->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    auto *menu = new QMenu(add);
    for (const char *id : {"doc.add", "doc.addInside", "doc.addNote", "doc.addTask"})
        menu->addAction(m_context.actions[id]);
    add->setMenu(menu);
    bar->addWidget(add);

    m_filter = new QLineEdit(this);
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter the documents by title"));
    m_filter->setClearButtonEnabled(true);
    if (auto *clear = m_filter->findChild<QToolButton *>())
        clear->setAccessibleName(tr("Clear the filter"));
    m_filter->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, this, &DocumentsPanel::applyFilter);
    bar->addWidget(m_filter, 1);
    static_cast<QVBoxLayout *>(layout)->addLayout(bar);
}

void DocumentsPanel::buildTree(QLayout *layout)
{
    m_tree = new QTreeView(this);
    m_tree->setObjectName(QStringLiteral("documentsTree"));
    setFocusProxy(m_tree);
    m_tree->setAccessibleName(tr("Documents"));
    m_tree->setToolTip(tr("The manuscript: documents and notes. Drag to reorder or drop onto "
                          "another to nest; right-click for actions; Ins adds, F2 renames, Del "
                          "deletes."));
    m_tree->setModel(m_model);
    auto *delegate = new RowDelegate(m_tree);
    delegate->setDimmedRole(DocumentsModel::IsNoteRole);
    m_tree->setItemDelegate(delegate);
    m_tree->setUniformRowHeights(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_tree->setDragDropMode(QAbstractItemView::DragDrop);
    m_tree->setDefaultDropAction(Qt::MoveAction);
    m_tree->setDropIndicatorShown(true);
    m_tree->setAutoExpandDelay(600);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_tree->setTextElideMode(Qt::ElideMiddle);
    m_tree->setExpandsOnDoubleClick(false);
    m_tree->header()->setAccessibleName(tr("Columns"));
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(DocumentsModel::TitleColumn, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(DocumentsModel::WordsColumn,
                                           QHeaderView::ResizeToContents);
    m_tree->header()->setSectionResizeMode(DocumentsModel::StatusColumn,
                                           QHeaderView::ResizeToContents);
    m_tree->header()->setResizeContentsPrecision(0); // the visible rows are enough to measure

    m_pages = new QStackedWidget(this);
    m_pages->addWidget(m_tree);
    auto *empty = new EmptyState(tr("The chapters and scenes of your manuscript stand here."),
                                 tr("Write the First Document"), this);
    connect(empty, &EmptyState::activated, this, &DocumentsPanel::addDocument);
    m_pages->addWidget(empty);
    layout->addWidget(m_pages);

    connect(m_tree, &QWidget::customContextMenuRequested, this, &DocumentsPanel::showContextMenu);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DocumentsPanel::selectInWorkspace);
    // A click on what is selected here makes it the selection of the window again.
    connect(m_tree, &QAbstractItemView::clicked, this, &DocumentsPanel::selectInWorkspace);
}

void DocumentsPanel::applyFilter(const QString &text)
{
    if (!m_model->isFiltered()) {
        m_openBranches.clear();
        const QList<ContentId> branches = m_model->branches();
        for (const ContentId &id : branches)
            if (m_tree->isExpanded(m_model->indexOf(id)))
                m_openBranches.insert(id);
    }
    const bool wasFiltered = m_model->isFiltered();
    m_model->setFilter(text);
    if (m_model->isFiltered()) {
        m_tree->expandAll();
    } else if (wasFiltered) {
        // All branches were opened to show what matched; now they stand as before.
        // The view lays its rows out once, when this is done.
        const QList<ContentId> branches = m_model->branches();
        for (const ContentId &id : branches)
            m_tree->setExpanded(m_model->indexOf(id), m_openBranches.contains(id));
    }
    updateEmptyState();
    selectFromWorkspace();
}

bool DocumentsPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_filter || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape && !m_filter->text().isEmpty()) {
        m_filter->clear();
        return true;
    }
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Down)
        return QWidget::eventFilter(watched, event);
    if (const QModelIndex first = m_model->firstMatch(); first.isValid()) {
        m_tree->setFocus(Qt::OtherFocusReason);
        m_tree->setCurrentIndex(first);
    }
    return true;
}

void DocumentsPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // The titles need the room before anything else does.
    const int characters = width() / fontMetrics().averageCharWidth();
    m_tree->setColumnHidden(DocumentsModel::StatusColumn, characters < roomForStatus);
    m_tree->setColumnHidden(DocumentsModel::WordsColumn, characters < roomForWords);
}

void DocumentsPanel::showProject()
{
    updateEmptyState();
    m_filter->clear();
    m_tree->expandToDepth(0);
    if (!m_context.workspace.selection().isEmpty())
        return; // the one written last
    // Something to read is a better first sight than an empty editor.
    for (const core::DocumentTree::Place &place :
         m_context.workspace.project().documentTree().inOrder()) {
        if (!place.document->body().isEmpty()) {
            m_context.workspace.select(place.document->id());
            break;
        }
    }
}

void DocumentsPanel::updateEmptyState()
{
    m_pages->setCurrentIndex(m_model->rowCount() > 0 || m_model->isFiltered() ? 0 : 1);
}

void DocumentsPanel::bindActions()
{
    ActionRegistry &actions = m_context.actions;
    actions.bind("doc.add", this, &DocumentsPanel::addDocument);
    actions.bind("doc.addNote", this, &DocumentsPanel::addNote);
    actions.bind("doc.addInside", this, &DocumentsPanel::addInside);
    actions.bind("doc.addTask", this, &DocumentsPanel::addTask);
    actions.bind("doc.changeKind", this, &DocumentsPanel::askKind);

    const auto bindMove = [&](const char *id,
                              void (DocumentOperations::*move)(const QList<ContentId> &)) {
        actions.bind(id, this, [this, move] {
            const QList<ContentId> ids = selectedIds();
            (DocumentOperations(m_context.workspace).*move)(ids);
            m_context.workspace.select(ids);
            selectFromWorkspace();
        });
    };
    bindMove("doc.moveUp", &DocumentOperations::moveUp);
    bindMove("doc.moveDown", &DocumentOperations::moveDown);
    bindMove("doc.promote", &DocumentOperations::promote);
    bindMove("doc.demote", &DocumentOperations::demote);

    const auto addKey = [this](const QKeySequence &keys, auto slot) {
        auto *action = new QAction(m_tree);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, slot);
        m_tree->addAction(action);
    };
    addKey(Qt::Key_Insert, &DocumentsPanel::addDocument);
    addKey(QKeySequence::Delete, &DocumentsPanel::removeSelected);
}

void DocumentsPanel::updateActions()
{
    const bool hasSelection = !selectedIds().isEmpty();
    for (const char *id : {"doc.moveUp", "doc.moveDown", "doc.promote", "doc.demote",
                           "doc.addInside", "doc.addTask", "doc.changeKind"})
        m_context.actions[id]->setEnabled(hasSelection);
}

void DocumentsPanel::showContextMenu(const QPoint &position)
{
    QMenu menu(this);
    for (const char *id : {"doc.add", "doc.addInside", "doc.addNote", "doc.addTask"})
        menu.addAction(m_context.actions[id]);
    menu.addSeparator();
    const ContentId current = currentId();
    QAction *rename =
        menu.addAction(tr("&Rename"), this, [this, current] { this->rename(current); });
    QAction *remove = menu.addAction(tr("&Delete…"), this, &DocumentsPanel::removeSelected);
    rename->setShortcut(Qt::Key_F2);
    remove->setShortcut(QKeySequence::Delete);
    rename->setEnabled(!current.isNull());
    remove->setEnabled(!selectedIds().isEmpty());
    menu.addSeparator();
    for (const char *id : {"doc.changeKind", "doc.unsupportedClaims", "doc.versionHistory"})
        menu.addAction(m_context.actions[id]);
    menu.addSeparator();
    for (const char *id : {"doc.moveUp", "doc.moveDown", "doc.promote", "doc.demote"})
        menu.addAction(m_context.actions[id]);
    menu.exec(m_tree->viewport()->mapToGlobal(position));
}

void DocumentsPanel::addTask()
{
    const QList<ContentId> ids = selectedIds();
    if (ids.isEmpty())
        return;
    const QString title = m_context.prompts.askText(tr("Task for Document"), tr("Task:"), QString())
                              .value_or(QString())
                              .simplified();
    if (title.isEmpty())
        return;
    app::CodexOperations(m_context.workspace).addTask(ids.first(), title);
    m_context.notices.offerUndo(tr("The task “%1” was added.").arg(app::rowText(title)));
}

void DocumentsPanel::askKind()
{
    const std::pair<QString, core::DocumentKind> kinds[] = {
        {tr("Prose"), core::DocumentKind::Prose},
        {tr("Screenplay"), core::DocumentKind::Screenplay},
        {tr("Note"), core::DocumentKind::Note},
    };
    QStringList texts;
    for (const auto &[text, kind] : kinds)
        texts.append(text);
    const qsizetype chosen =
        texts.indexOf(m_context.prompts.chooseOne(tr("Change Kind"), tr("Kind:"), texts));
    if (chosen >= 0)
        DocumentOperations(m_context.workspace).setKind(selectedIds(), kinds[chosen].second);
}

void DocumentsPanel::addDocument()
{
    rename(DocumentOperations(m_context.workspace).add(core::DocumentKind::Prose, currentId()));
}

void DocumentsPanel::addNote()
{
    rename(DocumentOperations(m_context.workspace).add(core::DocumentKind::Note, currentId()));
}

void DocumentsPanel::addInside()
{
    rename(
        DocumentOperations(m_context.workspace).addChild(core::DocumentKind::Prose, currentId()));
}

void DocumentsPanel::rename(const ContentId &id)
{
    m_filter->clear();
    const QModelIndex index = m_model->indexOf(id);
    if (!index.isValid())
        return;
    m_tree->setCurrentIndex(index);
    m_tree->scrollTo(index);
    m_tree->edit(index);
}

void DocumentsPanel::removeSelected()
{
    const QList<ContentId> ids = selectedIds();
    if (ids.isEmpty())
        return;
    DocumentOperations operations(m_context.workspace);
    const int count = int(operations.withAllBelow(ids).size());
    if (!m_context.prompts.confirm(operations.removalQuestion(ids),
                                   tr("Edit › Undo will restore it."),
                                   tr("Delete %n Document(s)", nullptr, count)))
        return;
    operations.remove(ids);
    m_context.notices.offerUndo(tr("Deleted %n document(s).", nullptr, count));
}

QList<ContentId> DocumentsPanel::selectedIds() const
{
    QList<ContentId> ids;
    const QModelIndexList rows = m_tree->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        ids.append(m_model->idAt(row));
    return ids;
}

ContentId DocumentsPanel::currentId() const
{
    return m_model->idAt(m_tree->currentIndex());
}

void DocumentsPanel::selectInWorkspace()
{
    updateActions();
    if (m_isFollowing)
        return;
    const QList<ContentId> ids = selectedIds();
    if (ids.isEmpty())
        return;
    m_isFollowing = true;
    m_context.workspace.select(ids);
    m_isFollowing = false;
}

void DocumentsPanel::selectFromWorkspace()
{
    if (m_isFollowing)
        return;
    QItemSelection selection;
    QModelIndex first;
    for (const ContentId &id : m_context.workspace.selection()) {
        const QModelIndex index = m_model->indexOf(id);
        if (!index.isValid())
            continue;
        selection.select(index, index);
        if (!first.isValid())
            first = index;
    }
    if (!first.isValid())
        return;
    m_isFollowing = true;
    m_tree->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    m_tree->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect
                                                    | QItemSelectionModel::Rows);
    m_tree->scrollTo(first);
    m_isFollowing = false;
    updateActions();
}

} // namespace vl::desktop
