#include "desktop/panels/codexpanel.h"

#include "app/models/codexmerge.h"
#include "app/models/codexmodel.h"
#include "app/models/codexoperations.h"
#include "app/models/objecttexts.h"
#include "app/models/prompts.h"
#include "app/models/referencesmodel.h"
#include "app/models/workspace.h"
#include "core/content/entity.h"
#include "core/projectrecords.h"
#include "desktop/dialogs/codexdialogs.h"
#include "desktop/dialogs/fielddialog.h"
#include "desktop/dialogs/pickdialog.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/shell/icons.h"
#include "desktop/shell/notices.h"
#include "desktop/widgets/emptystate.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

using app::CodexModel;
using app::CodexOperations;
using core::ContentId;

namespace {

/// Rows with the sign of what they are, and a pin at the end of those that are pinned.
class CodexDelegate final : public RowDelegate
{
public:
    using RowDelegate::RowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        RowDelegate::initStyleOption(option, index);
        const bool isCategory = index.data(CodexModel::IsCategoryRole).toBool();
        if (index.column() == CodexModel::NameColumn) {
            static const QIcon categoryIcon = icon(QStringLiteral("category"));
            static const QIcon entityIcon = icon(QStringLiteral("entity"));
            option->icon = isCategory ? categoryIcon : entityIcon;
            option->features |= QStyleOptionViewItem::HasDecoration;
        } else if (index.data(CodexModel::IsPinnedRole).toBool()) {
            static const QIcon pinIcon = icon(QStringLiteral("pin"));
            option->icon = pinIcon;
            option->decorationPosition = QStyleOptionViewItem::Right;
            option->features |= QStyleOptionViewItem::HasDecoration;
        }
    }
};

QString joined(const core::StringSet &tags)
{
    return QStringList(tags.begin(), tags.end()).join(QLatin1String(", "));
}

} // namespace

CodexPanel::CodexPanel(const PanelContext &context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
    , m_model(new CodexModel(context.workspace, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(1), grid(1), grid(1), grid(1));
    layout->setSpacing(grid(1));
    makeEntries();
    buildToolBar(layout);
    buildTree(layout);
    makeOtherEntries();
    setFocusProxy(m_tree);

    connect(&m_context.workspace, &app::Workspace::selectionChanged, this,
            &CodexPanel::selectFromWorkspace);
    connect(&m_context.workspace, &app::Workspace::changed, this, &CodexPanel::updateEntries);
    connect(m_model, &QAbstractItemModel::modelReset, this, &CodexPanel::showProject);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(m_model, signal, this, &CodexPanel::updateEmptyState);
    connect(m_model, &QAbstractItemModel::layoutChanged, this, &CodexPanel::updateEmptyState);
    showProject();
}

CodexPanel::~CodexPanel() = default;

CodexOperations CodexPanel::operations() const
{
    return CodexOperations(m_context.workspace);
}

// --- building

QAction *CodexPanel::addEntry(const QString &text, Needs needs, void (CodexPanel::*slot)(),
                              const QKeySequence &keys)
{
    auto *action = new QAction(text, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    m_entries.push_back({action, needs});
    return action;
}

void CodexPanel::makeEntries()
{
    m_newMenu = new QMenu(this);
    const auto addNew = [this](const QString &text, Needs needs, void (CodexPanel::*slot)()) {
        m_newMenu->addAction(addEntry(text, needs, slot));
    };
    addNew(tr("Category…"), Needs::Nothing, &CodexPanel::addCategory);
    addNew(tr("Subcategory…"), Needs::Category, &CodexPanel::addSubcategory);
    addNew(tr("Entity…"), Needs::Nothing, &CodexPanel::addEntity);
    addNew(tr("Entity from Template…"), Needs::Template, &CodexPanel::addFromTemplate);
    addNew(tr("Field…"), Needs::Category, &CodexPanel::addField);
    addNew(tr("Task for Entity…"), Needs::OneEntity, &CodexPanel::addTask);

    m_moreMenu = new QMenu(this);
    const auto addMore = [this](const QString &text, Needs needs, void (CodexPanel::*slot)(),
                                const QKeySequence &keys = {}) {
        m_moreMenu->addAction(addEntry(text, needs, slot, keys));
    };
    addMore(tr("Rename Entity…"), Needs::OneEntity, &CodexPanel::renameCurrent);
    addMore(tr("Duplicate Entity"), Needs::Entities, &CodexPanel::duplicate,
            QKeySequence(tr("Ctrl+D")));
    addMore(tr("Rename Category…"), Needs::OneCategory, &CodexPanel::renameCurrent);
    addMore(tr("Delete Entity"), Needs::Entities, &CodexPanel::deleteSelected);
    addMore(tr("Delete Category"), Needs::Categories, &CodexPanel::deleteSelected);
    addMore(tr("Toggle Pin"), Needs::Entities, &CodexPanel::togglePin);
    addMore(tr("Edit Tags…"), Needs::Entities, &CodexPanel::editTags);
    addMore(tr("Save Entity as Template…"), Needs::OneEntity, &CodexPanel::saveAsTemplate);
    addMore(tr("Manage Entity Templates…"), Needs::Template, &CodexPanel::manageTemplates);
    addMore(tr("Merge Entity Into…"), Needs::OneEntity, &CodexPanel::mergeInto);
    addMore(tr("Split Entity…"), Needs::OneEntity, &CodexPanel::split);
    addMore(tr("State Over Time…"), Needs::NotYet, &CodexPanel::nothing);
    addMore(tr("Draft Details with AI…"), Needs::NotYet, &CodexPanel::nothing);
}

void CodexPanel::makeOtherEntries()
{
    m_clipboardActions = {
        addEntry(tr("Cu&t"), Needs::Rows, &CodexPanel::cut, QKeySequence::Cut),
        addEntry(tr("&Copy"), Needs::Rows, &CodexPanel::copy, QKeySequence::Copy),
        addEntry(tr("&Paste"), Needs::Clipboard, &CodexPanel::paste, QKeySequence::Paste),
    };
    addEntry(tr("Delete"), Needs::Rows, &CodexPanel::deleteSelected, QKeySequence::Delete);
    addEntry(tr("New Entity"), Needs::Nothing, &CodexPanel::addEntity, Qt::Key_Insert);
    for (const Entry &entry : m_entries)
        m_tree->addAction(entry.action);
}

QToolButton *CodexPanel::menuButton(const QString &text, const QString &name, QMenu *menu)
{
    auto *button = new QToolButton(this);
    button->setText(text);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    button->setMenu(menu);
    return button;
}

void CodexPanel::buildToolBar(QVBoxLayout *layout)
{
    auto *bar = new QHBoxLayout;
    bar->setSpacing(grid(1));
    bar->addWidget(menuButton(tr("New ▾"), tr("Add to the codex"), m_newMenu));
    bar->addWidget(
        menuButton(tr("More ▾"), tr("Change what is selected in the codex"), m_moreMenu));
    m_filter = new QLineEdit(this);
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter the codex by name, alias or tag"));
    m_filter->setToolTip(m_filter->accessibleName());
    m_filter->setClearButtonEnabled(true);
    if (auto *clear = m_filter->findChild<QToolButton *>())
        clear->setAccessibleName(tr("Clear the filter"));
    m_filter->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, this, &CodexPanel::applyFilter);
    bar->addWidget(m_filter, 1);
    layout->addLayout(bar);
}

void CodexPanel::buildTree(QVBoxLayout *layout)
{
    m_tree = new QTreeView(this);
    m_tree->setObjectName(QStringLiteral("codexTree"));
    m_tree->setAccessibleName(tr("Codex"));
    m_tree->setAccessibleDescription(
        tr("Your worldbuilding codex: categories and entities. Right-click for actions; F2 "
           "renames, Del deletes."));
    m_tree->setToolTip(m_tree->accessibleDescription());
    m_tree->setModel(m_model);
    m_tree->setItemDelegate(new CodexDelegate(m_tree));
    m_tree->setUniformRowHeights(true);
    m_tree->setHeaderHidden(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_tree->setDragDropMode(QAbstractItemView::DragDrop);
    m_tree->setDefaultDropAction(Qt::MoveAction);
    m_tree->setDragDropOverwriteMode(true); // rows stand by name: a drop is onto one, not between
    m_tree->setDropIndicatorShown(true);
    m_tree->setAutoExpandDelay(600);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_tree->setTextElideMode(Qt::ElideMiddle);
    m_tree->header()->setAccessibleName(tr("Columns"));
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(CodexModel::NameColumn, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(CodexModel::CountColumn, QHeaderView::ResizeToContents);
    m_tree->header()->setResizeContentsPrecision(0); // the visible rows are enough to measure
    m_tree->installEventFilter(this);

    auto *empty = new EmptyState(
        tr("The people, places and things of your world stand here, sorted into categories."),
        tr("Add the First Category"), this);
    connect(empty, &EmptyState::activated, this, &CodexPanel::addCategory);
    auto *noMatch = new EmptyState(tr("Nothing in the codex has this name, alias or tag."),
                                   tr("Clear the Filter"), this);
    connect(noMatch, &EmptyState::activated, m_filter, &QLineEdit::clear);
    m_pages = new QStackedWidget(this);
    m_pages->addWidget(m_tree);
    m_pages->addWidget(empty);
    m_pages->addWidget(noMatch);
    layout->addWidget(m_pages);

    connect(m_tree, &QWidget::customContextMenuRequested, this, &CodexPanel::showContextMenu);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CodexPanel::selectInWorkspace);
    // A click on what is selected here makes it the selection of the window again.
    connect(m_tree, &QAbstractItemView::clicked, this, &CodexPanel::selectInWorkspace);
    connect(m_tree, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        if (!m_model->isCategory(index))
            openInInspector();
    });
}

bool CodexPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    // Enter that ends the editing of a name comes by here, too.
    if (watched == m_tree && isEnter && m_tree->hasFocus()) {
        openInInspector();
        return true;
    }
    if (watched == m_filter && key->key() == Qt::Key_Escape && !m_filter->text().isEmpty()) {
        m_filter->clear();
        return true;
    }
    if (watched == m_filter && (isEnter || key->key() == Qt::Key_Down)) {
        const QModelIndex match = m_model->firstMatch();
        if (match.isValid())
            m_tree->setCurrentIndex(match);
        m_tree->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// --- what is shown

void CodexPanel::showProject()
{
    m_openBranches.clear();
    if (!m_filter->text().isEmpty())
        m_filter->clear();
    m_tree->expandToDepth(0);
    updateEmptyState();
    updateEntries();
}

void CodexPanel::updateEmptyState()
{
    m_pages->setCurrentIndex(m_model->rowCount() > 0 ? 0 : m_model->isFiltered() ? 2 : 1);
}

void CodexPanel::applyFilter(const QString &text)
{
    if (!m_model->isFiltered())
        noteBranches();
    m_model->setFilter(text);
    if (m_model->isFiltered())
        m_tree->expandAll();
    else
        restoreBranches();
}

void CodexPanel::noteBranches()
{
    m_openBranches.clear();
    const std::vector<ContentId> categories = m_context.workspace.project().taxonomy().ids();
    for (const ContentId &id : categories)
        if (m_tree->isExpanded(m_model->indexOf(id)))
            m_openBranches.insert(id);
}

void CodexPanel::restoreBranches()
{
    const std::vector<ContentId> categories = m_context.workspace.project().taxonomy().ids();
    for (const ContentId &id : categories)
        m_tree->setExpanded(m_model->indexOf(id), m_openBranches.contains(id));
    selectFromWorkspace();
    if (m_tree->currentIndex().isValid())
        m_tree->scrollTo(m_tree->currentIndex());
}

void CodexPanel::updateEntries()
{
    const CodexOperations codex = operations();
    const Ids ids = selectedIds();
    const auto entities = codex.entitiesOf(ids).size();
    const auto categories = codex.categoriesOf(ids).size();
    const bool hasCategory = !codex.categoryAt(currentId()).isNull();
    const bool hasTemplates = !m_context.workspace.project().entityTemplates().isEmpty();
    for (const Entry &entry : m_entries) {
        bool isOfUse = true;
        switch (entry.needs) {
        case Needs::Category:
            isOfUse = hasCategory;
            break;
        case Needs::OneCategory:
            isOfUse = categories == 1 && entities == 0;
            break;
        case Needs::Categories:
            isOfUse = categories > 0 && entities == 0;
            break;
        case Needs::OneEntity:
            isOfUse = entities == 1 && categories == 0;
            break;
        case Needs::Entities:
            isOfUse = entities > 0 && categories == 0;
            break;
        case Needs::Rows:
            isOfUse = entities + categories > 0;
            break;
        case Needs::Template:
            isOfUse = hasTemplates;
            break;
        case Needs::NotYet:
            isOfUse = false;
            break;
        case Needs::Nothing:
        case Needs::Clipboard: // whose contents others change
            break;
        }
        entry.action->setEnabled(isOfUse);
    }
}

void CodexPanel::showContextMenu(const QPoint &position)
{
    QMenu menu(this);
    menu.addActions(m_newMenu->actions());
    menu.addSeparator();
    menu.addActions(m_clipboardActions);
    menu.addSeparator();
    // What cannot be done with this selection would only be in the way here.
    for (QAction *action : m_moreMenu->actions())
        if (action->isEnabled())
            menu.addAction(action);
    menu.exec(m_tree->viewport()->mapToGlobal(position));
}

// --- what the entries do

void CodexPanel::addCategory()
{
    edit(operations().addCategory({}));
}

void CodexPanel::addSubcategory()
{
    CodexOperations codex = operations();
    edit(codex.addCategory(codex.categoryAt(currentId())));
}

void CodexPanel::addEntity()
{
    CodexOperations codex = operations();
    edit(codex.addEntity(codex.categoryAt(currentId())));
}

void CodexPanel::addFromTemplate()
{
    QStringList names;
    for (const core::EntityTemplate &row : m_context.workspace.project().entityTemplates())
        names.append(row.name);
    const int chosen = PickDialog::pick(tr("Entity from Template"), tr("Template:"), names,
                                        tr("Add Entity"), window());
    CodexOperations codex = operations();
    const ContentId added = codex.addFromTemplate(chosen, codex.categoryAt(currentId()));
    if (!added.isNull())
        edit(added);
}

void CodexPanel::addField()
{
    const ContentId category = operations().categoryAt(currentId());
    const core::Category *found = m_context.workspace.project().taxonomy().find(category);
    if (!found)
        return;
    const auto field = FieldDialog::askNew(app::rowText(found->name), window());
    if (field && operations().addField(category, *field))
        m_context.notices.offerUndo(
            tr("The field “%1” was added.").arg(app::rowText(field->label)));
}

void CodexPanel::addTask()
{
    const Ids ids = operations().entitiesOf(selectedIds());
    if (ids.isEmpty())
        return;
    const QString title = m_context.prompts.askText(tr("Task for Entity"), tr("Task:"), QString())
                              .value_or(QString())
                              .simplified();
    if (title.isEmpty())
        return;
    operations().addTask(ids.first(), title);
    m_context.notices.offerUndo(tr("The task “%1” was added.").arg(app::rowText(title)));
}

void CodexPanel::renameCurrent()
{
    edit(currentId());
}

void CodexPanel::duplicate()
{
    reveal(operations().duplicate(selectedIds()));
}

void CodexPanel::deleteSelected()
{
    const Ids ids = selectedIds();
    CodexOperations codex = operations();
    if (ids.isEmpty()
        || !m_context.prompts.confirm(codex.removalQuestion(ids), codex.removalDetail(ids),
                                      codex.removalAction(ids)))
        return;
    codex.remove(ids);
    m_context.notices.offerUndo(tr("%1 done.").arg(m_context.workspace.history().undoText()));
}

void CodexPanel::togglePin()
{
    operations().togglePin(selectedIds());
}

void CodexPanel::editTags()
{
    const Ids ids = selectedIds();
    const core::StringSet before = operations().commonTags(ids);
    const QString label = ids.size() > 1 ? tr("Tags that all of them have, separated by commas:")
                                         : tr("Tags, separated by commas:");
    const QString marked = joined(before);
    const std::optional<QString> text = m_context.prompts.askText(tr("Edit Tags"), label, marked);
    if (!text || *text == marked)
        return;
    core::StringSet tags;
    for (const QString &tag : text->split(u','))
        if (!tag.simplified().isEmpty())
            tags.insert(tag.simplified());
    operations().setCommonTags(ids, tags);
}

void CodexPanel::saveAsTemplate()
{
    const auto *entity = m_context.workspace.project().find<core::Entity>(currentId());
    if (!entity)
        return;
    const QString name =
        m_context.prompts
            .askText(tr("Save Entity as Template"), tr("Name:"), app::rowText(entity->name()))
            .value_or(QString());
    if (name.simplified().isEmpty())
        return;
    operations().saveAsTemplate(currentId(), name);
    m_context.notices.offerUndo(tr("The template “%1” was saved.").arg(app::rowText(name)));
}

void CodexPanel::manageTemplates()
{
    const auto kept = askTemplates(m_context.workspace.project().entityTemplates(), window());
    if (kept)
        operations().setTemplates(*kept);
}

void CodexPanel::mergeInto()
{
    const Ids ids = operations().entitiesOf(selectedIds());
    if (ids.isEmpty())
        return;
    const core::Project &project = m_context.workspace.project();
    app::ReferencesModel others(m_context.workspace);
    others.refresh();
    QStringList names;
    Ids targets;
    for (int row = 0; row < others.rowCount(); ++row) {
        const QModelIndex index = others.index(row);
        if (others.idAt(index) == ids.first())
            continue;
        names.append(index.data().toString());
        targets.append(others.idAt(index));
    }
    const QString source = app::rowText(project.find<core::Entity>(ids.first())->name());
    const int chosen = PickDialog::pick(tr("Merge Entity Into"), tr("Merge “%1” into:").arg(source),
                                        names, tr("Continue"), window());
    if (chosen < 0)
        return;
    const ContentId target = targets.at(chosen);
    app::CodexMerge merge(m_context.workspace);
    const auto taken =
        askMerge(source, names.at(chosen), merge.conflicts(ids.first(), target), window());
    if (!taken)
        return;
    merge.merge(ids.first(), target, *taken);
    reveal({target});
    m_context.notices.offerUndo(tr("“%1” was merged.").arg(source));
}

void CodexPanel::split()
{
    const core::Project &project = m_context.workspace.project();
    const auto *entity = project.find<core::Entity>(currentId());
    if (!entity)
        return;
    QList<std::pair<QString, QString>> values;
    QHash<QString, QString> labels;
    for (const core::FieldDefinition &field : app::codexFields(project, entity->categoryId()))
        labels.insert(field.key, field.label);
    for (const auto &[key, value] : entity->values()) {
        if (value.isEmpty())
            continue;
        const core::ContentObject *object = project.find(ContentId::fromString(value));
        values.append(
            {key, tr("%1: %2").arg(labels.value(key, key),
                                   app::rowText(object ? app::titleOf(*object) : value))});
    }
    const ContentId id = entity->id();
    const auto choice = askSplit(app::rowText(entity->name()), values, entity->aliases(), window());
    if (!choice)
        return;
    const ContentId part =
        app::CodexMerge(m_context.workspace).split(id, choice->name, choice->keys, choice->aliases);
    reveal({part});
}

void CodexPanel::cut()
{
    QApplication::clipboard()->setMimeData(operations().mimeData(selectedIds(), true));
}

void CodexPanel::copy()
{
    QApplication::clipboard()->setMimeData(operations().mimeData(selectedIds()));
}

void CodexPanel::paste()
{
    CodexOperations codex = operations();
    reveal(codex.paste(QApplication::clipboard()->mimeData(), codex.categoryAt(currentId())));
}

void CodexPanel::openInInspector()
{
    selectInWorkspace();
    m_context.workspace.inspect();
}

// --- selection

void CodexPanel::edit(const ContentId &id)
{
    if (!m_model->indexOf(id).isValid())
        m_filter->clear();
    const QModelIndex index = m_model->indexOf(id);
    if (!index.isValid())
        return;
    m_tree->setCurrentIndex(index);
    m_tree->scrollTo(index);
    m_tree->setFocus(Qt::OtherFocusReason);
    m_tree->edit(index);
}

void CodexPanel::reveal(const Ids &ids)
{
    if (ids.isEmpty())
        return;
    m_context.workspace.select(ids);
    selectFromWorkspace();
}

CodexPanel::Ids CodexPanel::selectedIds() const
{
    Ids ids;
    const QModelIndexList rows = m_tree->selectionModel()->selectedRows();
    ids.reserve(rows.size());
    for (const QModelIndex &row : rows)
        ids.append(m_model->idAt(row));
    return ids;
}

ContentId CodexPanel::currentId() const
{
    return m_model->idAt(m_tree->currentIndex());
}

void CodexPanel::selectInWorkspace()
{
    updateEntries();
    if (m_isFollowing)
        return;
    const Ids ids = selectedIds();
    if (ids.isEmpty())
        return;
    m_isFollowing = true;
    m_context.workspace.select(ids);
    m_isFollowing = false;
}

void CodexPanel::selectFromWorkspace()
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
    updateEntries();
}

} // namespace vl::desktop
