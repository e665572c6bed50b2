#include "desktop/inspector/fieldlisteditor.h"

#include "app/models/codexoperations.h"
#include "app/models/inspectormodel.h"
#include "app/models/objecttexts.h"
#include "app/models/workspace.h"
#include "core/commands/codexcommands.h"
#include "desktop/dialogs/fielddialog.h"
#include "desktop/panels/panelcontext.h"
#include "desktop/panels/rowdelegate.h"
#include "desktop/shell/icons.h"
#include "desktop/shell/notices.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

namespace {

constexpr int mostRows = 12;

} // namespace

FieldListEditor::FieldListEditor(const app::InspectorField &field,
                                 const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_list(new QListWidget(this))
    , m_hint(
          quietLabel(tr("Every entity of the category, and of those below it, has these."), this))
{
    m_list->setItemDelegate(new RowDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *bar = new QHBoxLayout;
    bar->setSpacing(grid(1));
    bar->addStretch(1);
    m_add = addButton(bar, QStringLiteral("add"), tr("Add a field"), &FieldListEditor::add);
    m_change =
        addButton(bar, QStringLiteral("rename"), tr("Change the field"), &FieldListEditor::change);
    m_up = addButton(bar, QStringLiteral("up"), tr("Move the field up"), &FieldListEditor::moveUp);
    m_down = addButton(bar, QStringLiteral("down"), tr("Move the field down"),
                       &FieldListEditor::moveDown);
    m_remove = addButton(bar, QStringLiteral("remove"), tr("Remove the field"),
                         &FieldListEditor::removeField);
    setControl(m_list);
    column()->insertLayout(2, bar);
    column()->insertWidget(3, m_hint);
    connect(m_list, &QListWidget::currentRowChanged, this, &FieldListEditor::update);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &FieldListEditor::change);
}

QToolButton *FieldListEditor::addButton(QLayout *bar, const QString &iconName, const QString &text,
                                        void (FieldListEditor::*slot)())
{
    auto *button = new QToolButton(this);
    button->setIcon(icon(iconName));
    button->setAutoRaise(true);
    button->setAccessibleName(text);
    button->setToolTip(text);
    connect(button, &QToolButton::clicked, this, slot);
    static_cast<QHBoxLayout *>(bar)->addWidget(button, 0, Qt::AlignTop);
    return button;
}

void FieldListEditor::showValue()
{
    const int row = m_list->currentRow();
    m_list->clear();
    const core::Category *category =
        context().panel.workspace.project().taxonomy().find(model().only());
    if (category) {
        for (const core::FieldDefinition &field : category->fields) {
            QString text = tr("%1 – %2").arg(app::rowText(field.label), fieldTypeText(field.type));
            if (field.required)
                text = tr("%1, to be filled").arg(text);
            auto *item = new QListWidgetItem(text, m_list);
            item->setToolTip(
                app::plainToolTip(field.description.isEmpty() ? text : field.description));
            item->setData(Qt::UserRole, field.key);
        }
    }
    m_list->setCurrentRow(qMin(row, m_list->count() - 1));
    update();
}

void FieldListEditor::update()
{
    const int row = m_list->currentRow();
    m_change->setEnabled(row >= 0);
    m_remove->setEnabled(row >= 0);
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row < m_list->count() - 1);
    m_list->setVisible(m_list->count() > 0);
    takeFocusBy(m_list->count() > 0, m_list, m_add);
    const int rowHeight = m_list->count() > 0 ? m_list->sizeHintForRow(0) : 0;
    m_list->setFixedHeight(rowHeight * qMin(m_list->count(), mostRows) + 2 * m_list->frameWidth());
}

void FieldListEditor::add()
{
    app::Workspace &workspace = context().panel.workspace;
    const core::ContentId id = model().only();
    const core::Category *category = workspace.project().taxonomy().find(id);
    if (!category)
        return;
    const auto field = FieldDialog::askNew(app::rowText(category->name), window());
    if (field && app::CodexOperations(workspace).addField(id, *field))
        m_list->setCurrentRow(m_list->count() - 1);
}

void FieldListEditor::change()
{
    app::Workspace &workspace = context().panel.workspace;
    const core::ContentId id = model().only();
    const core::Category *category = workspace.project().taxonomy().find(id);
    const int row = m_list->currentRow();
    if (!category || row < 0 || row >= category->fields.size())
        return;
    const core::FieldDefinition before = category->fields.at(row);
    const auto field = FieldDialog::askChanged(before, window());
    if (field && *field != before)
        workspace.push<core::SetFieldCommand>(workspace.project(), id, *field);
}

void FieldListEditor::move(int step)
{
    app::Workspace &workspace = context().panel.workspace;
    const QListWidgetItem *item = m_list->currentItem();
    if (!item)
        return;
    const int target = m_list->currentRow() + step;
    workspace.push<core::MoveFieldCommand>(workspace.project(), model().only(),
                                           item->data(Qt::UserRole).toString(), target);
    m_list->setCurrentRow(target);
}

void FieldListEditor::removeField()
{
    app::Workspace &workspace = context().panel.workspace;
    const QListWidgetItem *item = m_list->currentItem();
    if (!item)
        return;
    const QString key = item->data(Qt::UserRole).toString();
    workspace.push<core::RemoveFieldCommand>(workspace.project(), model().only(), key);
    context().panel.notices.offerUndo(
        tr("The field was removed; what entities have in it is kept."));
}

bool FieldListEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Delete) {
            removeField();
            return true;
        }
        if (key == Qt::Key_F2 || key == Qt::Key_Return || key == Qt::Key_Enter) {
            change();
            return true;
        }
    }
    return FieldEditor::eventFilter(watched, event);
}

} // namespace vl::desktop
