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
#include "desktop/panels/objecttree.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/shell/icons.h"
#include "desktop/shell/notices.h"
#include "desktop/widgets/emptystate.h"
#include "desktop/widgets/grid.h"
#include "desktop/widgets/menubutton.h"

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>
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
    buildTree();
    makeEntries();
    makeOtherEntries();
    buildLayout();

    connect(&m_context.workspace, &app::Workspace::changed, this, &CodexPanel::updateEntries);
    connect(m_model, &QAbstractItemModel::modelReset, this, &CodexPanel::updateEntries);
    connect(m_tree, &ObjectTree::selectionShown, this, &CodexPanel::updateEntries);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &CodexPanel::showContextMenu);
    connect(m_tree, &ObjectTree::openRequested, this, &CodexPanel::openInInspector);
    connect(m_tree, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        if (!m_model->isCategory(index))
            openInInspector();
    });
    updateEntries();
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

void CodexPanel::buildTree()
{
    m_tree = new ObjectTree(m_context.workspace, m_model, this);
    m_tree->setObjectName(QStringLiteral("codexTree"));
    setFocusProxy(m_tree);
    m_tree->setAccessibleName(tr("Codex"));
    m_tree->setAccessibleDescription(
        tr("Your worldbuilding codex: categories and entities. Right-click for actions; F2 "
           "renames, Del deletes."));
    m_tree->setToolTip(m_tree->accessibleDescription());
    m_tree->setItemDelegate(new CodexDelegate(m_tree));
    m_tree->setHeaderHidden(true);
    m_tree->setDragDropOverwriteMode(true); // rows stand by name: a drop is onto one, not between
}

void CodexPanel::buildLayout()
{
    auto *bar = new QHBoxLayout;
    bar->setSpacing(grid(1));
    QToolButton *add = makeMenuButton(tr("New ▾"), tr("Add to the codex"), m_newMenu, this);
    QToolButton *more =
        makeMenuButton(tr("More ▾"), tr("Change what is selected in the codex"), m_moreMenu, this);
    QLineEdit *filter = m_tree->makeFilter(tr("Filter the codex by name, alias or tag"), this);
    bar->addWidget(add);
    bar->addWidget(more);
    bar->addWidget(filter, 1);
    setTabOrder(add, more);
    setTabOrder(more, filter);
    setTabOrder(filter, m_tree);

    auto *nothing = new EmptyState(
        tr("The people, places and things of your world stand here, sorted into categories."),
        tr("Add the First Category"), this);
    connect(nothing, &EmptyState::activated, this, &CodexPanel::addCategory);
    auto *noMatch = new EmptyState(tr("Nothing in the codex has this name, alias or tag."),
                                   tr("Clear the Filter"), this);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid(1), grid(1), grid(1), grid(1));
    layout->setSpacing(grid(1));
    layout->addLayout(bar);
    layout->addWidget(new TreePages(m_tree, nothing, noMatch, this));
}

void CodexPanel::updateEntries()
{
    const CodexOperations codex = operations();
    const Ids ids = m_tree->selectedIds();
    const auto entities = codex.entitiesOf(ids).size();
    const auto categories = codex.categoriesOf(ids).size();
    const bool hasCategory = !codex.categoryAt(m_tree->currentId()).isNull();
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
    m_tree->rename(operations().addCategory({}));
}

void CodexPanel::addSubcategory()
{
    CodexOperations codex = operations();
    m_tree->rename(codex.addCategory(codex.categoryAt(m_tree->currentId())));
}

void CodexPanel::addEntity()
{
    CodexOperations codex = operations();
    m_tree->rename(codex.addEntity(codex.categoryAt(m_tree->currentId())));
}

void CodexPanel::addFromTemplate()
{
    QStringList names;
    for (const core::EntityTemplate &row : m_context.workspace.project().entityTemplates())
        names.append(row.name);
    const int chosen = PickDialog::pick(tr("Entity from Template"), tr("Template:"), names,
                                        tr("Add Entity"), window());
    CodexOperations codex = operations();
    const ContentId added = codex.addFromTemplate(chosen, codex.categoryAt(m_tree->currentId()));
    if (!added.isNull())
        m_tree->rename(added);
}

void CodexPanel::addField()
{
    const ContentId category = operations().categoryAt(m_tree->currentId());
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
    const Ids ids = operations().entitiesOf(m_tree->selectedIds());
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
    m_tree->rename(m_tree->currentId());
}

void CodexPanel::duplicate()
{
    reveal(operations().duplicate(m_tree->selectedIds()));
}

void CodexPanel::deleteSelected()
{
    const Ids ids = m_tree->selectedIds();
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
    operations().togglePin(m_tree->selectedIds());
}

void CodexPanel::editTags()
{
    const Ids ids = m_tree->selectedIds();
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
    operations().setCommonTags(ids, tags); // clazy:exclude=writing-to-temporary
}

void CodexPanel::saveAsTemplate()
{
    const auto *entity = m_context.workspace.project().find<core::Entity>(m_tree->currentId());
    if (!entity)
        return;
    const QString name =
        m_context.prompts
            .askText(tr("Save Entity as Template"), tr("Name:"), app::rowText(entity->name()))
            .value_or(QString());
    if (name.simplified().isEmpty())
        return;
    operations().saveAsTemplate(m_tree->currentId(), name);
    m_context.notices.offerUndo(tr("The template “%1” was saved.").arg(app::rowText(name)));
}

void CodexPanel::manageTemplates()
{
    const auto kept = askTemplates(m_context.workspace.project().entityTemplates(), window());
    if (kept)
        operations().setTemplates(*kept); // clazy:exclude=writing-to-temporary
}

void CodexPanel::mergeInto()
{
    const Ids ids = operations().entitiesOf(m_tree->selectedIds());
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
    const auto *entity = project.find<core::Entity>(m_tree->currentId());
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
    QApplication::clipboard()->setMimeData(operations().mimeData(m_tree->selectedIds(), true));
}

void CodexPanel::copy()
{
    QApplication::clipboard()->setMimeData(operations().mimeData(m_tree->selectedIds()));
}

void CodexPanel::paste()
{
    CodexOperations codex = operations();
    reveal(
        codex.paste(QApplication::clipboard()->mimeData(), codex.categoryAt(m_tree->currentId())));
}

void CodexPanel::openInInspector()
{
    m_tree->selectInWorkspace();
    m_context.workspace.inspect();
}

void CodexPanel::reveal(const Ids &ids)
{
    if (ids.isEmpty())
        return;
    m_context.workspace.select(ids);
    m_tree->followWorkspace();
}

} // namespace vl::desktop
