#include "desktop/inspector/timedvalueseditor.h"

#include "app/models/inspectormodel.h"
#include "app/models/referencesmodel.h"
#include "app/models/timedvaluesmodel.h"
#include "app/models/workspace.h"
#include "desktop/panels/celltree.h"
#include "desktop/panels/panelcontext.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QAbstractProxyModel>
#include <QtGui/QAction>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

using app::TimedValuesModel;

namespace {

constexpr int mostRows = 8;

/// Fields and options are chosen, names of entities completed, all else is typed.
class CellDelegate final : public RowDelegate
{
public:
    CellDelegate(app::ReferencesModel &references, const TimedValuesModel &rows, QObject *parent)
        : RowDelegate(parent)
        , m_references(references)
        , m_rows(rows)
    {
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        const auto type = core::FieldType(index.data(TimedValuesModel::FieldTypeRole).toInt());
        const bool isField = index.column() == TimedValuesModel::FieldColumn;
        const bool isValue = index.column() == TimedValuesModel::ValueColumn;
        if (isField || (isValue && type == core::FieldType::Choice))
            return keep(makeList(parent, index, isField), option.widget, index);
        QWidget *editor = RowDelegate::createEditor(parent, option, index);
        if (auto *line = qobject_cast<QLineEdit *>(editor);
            line && isValue && type == core::FieldType::Reference)
            completeNames(line);
        return editor;
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        if (auto *box = qobject_cast<QComboBox *>(editor))
            box->setCurrentIndex(box->findData(index.data(Qt::EditRole)));
        else
            RowDelegate::setEditorData(editor, index);
    }
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override
    {
        const QVariant id = editor->property(idProperty);
        if (const auto *box = qobject_cast<QComboBox *>(editor))
            model->setData(index, box->currentData());
        else if (id.isValid())
            model->setData(index, id);
        else
            RowDelegate::setModelData(editor, model, index);
    }

private:
    static constexpr const char *idProperty = "chosenId";

    QWidget *makeList(QWidget *parent, const QModelIndex &index, bool isField) const
    {
        auto *box = new QComboBox(parent);
        if (isField) {
            for (const core::FieldDefinition &field : m_rows.fields())
                box->addItem(field.label, field.key);
        } else {
            for (const QString &option : index.data(TimedValuesModel::OptionsRole).toStringList())
                box->addItem(option, option);
        }
        return box;
    }
    void completeNames(QLineEdit *line) const
    {
        m_references.refresh();
        auto *completer = new QCompleter(&m_references, line);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        line->setCompleter(completer);
        QObject::connect(completer, qOverload<const QModelIndex &>(&QCompleter::activated), line,
                         [this, line, completer](const QModelIndex &chosen) {
                             const auto *shown = qobject_cast<const QAbstractProxyModel *>(
                                 completer->completionModel());
                             const QModelIndex row = shown ? shown->mapToSource(chosen) : chosen;
                             line->setProperty(idProperty, m_references.idAt(row).toString());
                         });
        QObject::connect(line, &QLineEdit::textEdited, line,
                         [line] { line->setProperty(idProperty, QVariant()); });
    }

    app::ReferencesModel &m_references;
    const TimedValuesModel &m_rows;
};

QToolButton *rowButton(const QString &iconName, const QString &text, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setIcon(icon(iconName));
    button->setAutoRaise(true);
    button->setAccessibleName(text);
    button->setToolTip(text);
    return button;
}

} // namespace

TimedValuesEditor::TimedValuesEditor(const app::InspectorField &field,
                                     const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_rows(new TimedValuesModel(context.panel.workspace, this))
    , m_table(new CellTree(this))
    , m_hint(quietLabel({}, this))
{
    m_table->setModel(m_rows);
    auto *cells = new CellDelegate(context.references, *m_rows, m_table);
    m_table->setItemDelegate(cells);
    connect(&context.panel.workspace, &app::Workspace::flushRequested, cells, &RowDelegate::commit);
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                             | QAbstractItemView::AnyKeyPressed);
    m_table->setTabKeyNavigation(false);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->header()->setAccessibleName(tr("Columns"));
    m_table->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *removeKey = new QAction(m_table);
    removeKey->setShortcut(QKeySequence::Delete);
    removeKey->setShortcutContext(Qt::WidgetShortcut);
    connect(removeKey, &QAction::triggered, this, &TimedValuesEditor::removeSelected);
    m_table->addAction(removeKey);

    m_add = rowButton(QStringLiteral("add"), tr("Add a value from a date on"), this);
    m_remove = rowButton(QStringLiteral("remove"), tr("Remove the selected values"), this);
    connect(m_add, &QToolButton::clicked, this, &TimedValuesEditor::addRow);
    connect(m_remove, &QToolButton::clicked, this, &TimedValuesEditor::removeSelected);
    auto *bar = new QHBoxLayout;
    bar->setSpacing(grid(1));
    bar->addWidget(m_hint, 1);
    bar->addWidget(m_add, 0, Qt::AlignTop);
    bar->addWidget(m_remove, 0, Qt::AlignTop);
    setControl(m_table);
    column()->insertLayout(2, bar);

    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TimedValuesEditor::update);
    connect(m_rows, &QAbstractItemModel::dataChanged, this, &TimedValuesEditor::update);
    connect(m_rows, &QAbstractItemModel::rowsRemoved, this, &TimedValuesEditor::update);
    connect(m_rows, &QAbstractItemModel::modelReset, this, &TimedValuesEditor::update);
}

void TimedValuesEditor::showValue()
{
    m_rows->show(model().only());
    update();
}

void TimedValuesEditor::addRow()
{
    const int row = m_rows->addRow();
    if (row < 0)
        return;
    update();
    const QModelIndex index = m_rows->index(row, TimedValuesModel::FieldColumn);
    m_table->setCurrentIndex(index);
    m_table->scrollTo(index);
    m_table->setFocus(Qt::OtherFocusReason);
    m_table->edit(m_rows->index(row, TimedValuesModel::FieldColumn));
}

void TimedValuesEditor::removeSelected()
{
    QList<int> rows;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows())
        rows.append(index.row());
    m_rows->removeRows(rows);
}

void TimedValuesEditor::update()
{
    const int rows = m_rows->rowCount();
    m_remove->setEnabled(!m_table->selectionModel()->selectedRows().isEmpty());
    m_table->setVisible(rows > 0);
    takeFocusBy(rows > 0, m_table, m_add);
    QString problem;
    for (int row = 0; row < rows && problem.isEmpty(); ++row)
        problem = m_rows->index(row, 0).data(TimedValuesModel::ProblemRole).toString();
    m_hint->setText(!problem.isEmpty() ? QStringLiteral("⚠ ") + problem
                    : rows == 0        ? tr("Values that hold from a date of the story on.")
                                       : QString());
    const int rowHeight = rows > 0 ? m_table->sizeHintForRow(0) : 0;
    m_table->setFixedHeight(m_table->header()->sizeHint().height()
                            + rowHeight * qMin(rows, mostRows) + 2 * m_table->frameWidth());
}

} // namespace vl::desktop
