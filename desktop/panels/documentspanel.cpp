#include "desktop/panels/documentspanel.h"

#include "app/models/codexoperations.h"
#include "app/models/documentoperations.h"
#include "app/models/documentsmodel.h"
#include "app/models/objecttexts.h"
#include "app/models/prompts.h"
#include "app/models/workspace.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/panels/objecttree.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/shell/notices.h"
#include "desktop/widgets/emptystate.h"
#include "desktop/widgets/grid.h"
#include "desktop/widgets/menubutton.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

using app::DocumentOperations;
using app::DocumentsModel;
using core::ContentId;

namespace {

constexpr int roomForStatus = 54; // characters of the panel's width
constexpr int roomForWords = 24;

} // namespace

DocumentsPanel::DocumentsPanel(const PanelContext &context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
    , m_model(new DocumentsModel(context.workspace, this))
{
    buildTree();
    buildLayout();
    bindActions();
    connect(m_tree, &QWidget::customContextMenuRequested, this, &DocumentsPanel::showContextMenu);
    connect(m_tree, &ObjectTree::selectionShown, this, &DocumentsPanel::updateActions);
    connect(m_tree, &ObjectTree::openRequested, this, &DocumentsPanel::openInEditor);
    connect(m_tree, &QAbstractItemView::doubleClicked, this, &DocumentsPanel::openInEditor);
    connect(m_model, &QAbstractItemModel::modelReset, this, &DocumentsPanel::showProject);
    updateActions();
}

DocumentsPanel::~DocumentsPanel() = default;

void DocumentsPanel::buildTree()
{
    m_tree = new ObjectTree(m_context.workspace, m_model, this);
    m_tree->setObjectName(QStringLiteral("documentsTree"));
    setFocusProxy(m_tree);
    m_tree->setAccessibleName(tr("Documents"));
    m_tree->setToolTip(tr("The manuscript: documents and notes. Drag to reorder or drop onto "
                          "another to nest; right-click for actions; Ins adds, F2 renames, Del "
                          "deletes."));
    auto *delegate = new RowDelegate(m_tree);
    delegate->setDimmedRole(DocumentsModel::IsNoteRole);
    m_tree->setItemDelegate(delegate);
    m_tree->setExpandsOnDoubleClick(false);
}

void DocumentsPanel::buildLayout()
{
    auto *menu = new QMenu(this);
    for (const char *id : {"doc.add", "doc.addInside", "doc.addNote", "doc.addTask"})
        menu->addAction(m_context.actions[id]);
    QToolButton *add = makeMenuButton(tr("New ▾"), tr("New document or note"), menu, this);
    add->setToolTip(tr("Add a document or a note behind the selected one."));
    auto *changes = new QMenu(this);
    addChanges(changes);
    QToolButton *more =
        makeMenuButton(tr("More ▾"), tr("Change the selected documents"), changes, this);
    auto *bar = new QHBoxLayout;
    bar->setSpacing(grid(1));
    bar->addWidget(add);
    bar->addWidget(more);
    QLineEdit *filter = m_tree->makeFilter(tr("Filter the documents by title"), this);
    bar->addWidget(filter, 1);
    setTabOrder(add, more);
    setTabOrder(more, filter);
    setTabOrder(filter, m_tree);

    auto *nothing = new EmptyState(tr("The chapters and scenes of your manuscript stand here."),
                                   tr("Write the First Document"), this);
    connect(nothing, &EmptyState::activated, this, &DocumentsPanel::addDocument);
    auto *noMatch = new EmptyState(tr("No document has this title."), tr("Clear the Filter"), this);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(1), grid(1), grid(1), grid(1));
    layout->setSpacing(grid(1));
    layout->addLayout(bar);
    layout->addWidget(new TreePages(m_tree, nothing, noMatch, this));
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
            const QList<ContentId> ids = m_tree->selectedIds();
            (DocumentOperations(m_context.workspace).*move)(ids);
            m_context.workspace.select(ids);
            m_tree->followWorkspace();
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
    const bool hasSelection = !m_tree->selectedIds().isEmpty();
    for (const char *id : {"doc.moveUp", "doc.moveDown", "doc.promote", "doc.demote",
                           "doc.addInside", "doc.addTask", "doc.changeKind"})
        m_context.actions[id]->setEnabled(hasSelection);
}

void DocumentsPanel::addChanges(QMenu *menu)
{
    for (const char *id : {"doc.changeKind", "doc.unsupportedClaims", "doc.versionHistory"})
        menu->addAction(m_context.actions[id]);
    menu->addSeparator();
    for (const char *id : {"doc.moveUp", "doc.moveDown", "doc.promote", "doc.demote"})
        menu->addAction(m_context.actions[id]);
}

void DocumentsPanel::showContextMenu(const QPoint &position)
{
    QMenu menu(this);
    for (const char *id : {"doc.add", "doc.addInside", "doc.addNote", "doc.addTask"})
        menu.addAction(m_context.actions[id]);
    menu.addSeparator();
    const ContentId current = m_tree->currentId();
    QAction *rename =
        menu.addAction(tr("&Rename"), this, [this, current] { m_tree->rename(current); });
    QAction *remove = menu.addAction(tr("&Delete…"), this, &DocumentsPanel::removeSelected);
    rename->setShortcut(Qt::Key_F2);
    remove->setShortcut(QKeySequence::Delete);
    rename->setEnabled(!current.isNull());
    remove->setEnabled(!m_tree->selectedIds().isEmpty());
    menu.addSeparator();
    addChanges(&menu);
    menu.exec(m_tree->viewport()->mapToGlobal(position));
}

void DocumentsPanel::addTask()
{
    const QList<ContentId> ids = m_tree->selectedIds();
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
        DocumentOperations(m_context.workspace)
            .setKind(m_tree->selectedIds(), kinds[chosen].second);
}

void DocumentsPanel::addDocument()
{
    m_tree->rename(DocumentOperations(m_context.workspace)
                       .add(core::DocumentKind::Prose, m_tree->currentId()));
}

void DocumentsPanel::addNote()
{
    m_tree->rename(
        DocumentOperations(m_context.workspace).add(core::DocumentKind::Note, m_tree->currentId()));
}

void DocumentsPanel::addInside()
{
    m_tree->rename(DocumentOperations(m_context.workspace)
                       .addChild(core::DocumentKind::Prose, m_tree->currentId()));
}

void DocumentsPanel::openInEditor()
{
    m_tree->selectInWorkspace();
    m_context.workspace.write();
}

void DocumentsPanel::removeSelected()
{
    const QList<ContentId> ids = m_tree->selectedIds();
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

} // namespace vl::desktop
