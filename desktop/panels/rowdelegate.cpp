#include "desktop/panels/rowdelegate.h"

#include "desktop/shell/theme.h"

#include <QtCore/QMetaProperty>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

namespace vl::desktop {

namespace {

constexpr double rowLines = 1.6;

QVariant written(const QWidget &editor)
{
    return editor.metaObject()->userProperty().read(&editor);
}

} // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(qMax(size.height(), qRound(option.fontMetrics.height() * rowLines)));
    return size;
}

QWidget *RowDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    return editor ? keep(editor, option.widget, index) : nullptr;
}

QWidget *RowDelegate::keep(QWidget *editor, const QWidget *view, const QModelIndex &index) const
{
    m_editor = editor;
    m_shown = m_handedIn = {};
    const bool hasColumns = qobject_cast<const QTreeView *>(view);
    const QString column = index.model()->headerData(index.column(), Qt::Horizontal).toString();
    editor->setAccessibleName(hasColumns || !view ? column : view->accessibleName());
    return editor;
}

// The view has let go of it by then, long before it is gone.
void RowDelegate::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    if (editor == m_editor)
        m_editor = nullptr;
    QStyledItemDelegate::destroyEditor(editor, index);
}

void RowDelegate::commit()
{
    // Once: where the rows are not told at once, an undo would be undone by the next.
    if (!m_editor || written(*m_editor) == m_handedIn)
        return;
    m_handedIn = written(*m_editor);
    const QScopedValueRollback<bool> committing(m_isCommitting, true);
    Q_EMIT commitData(m_editor);
}

void RowDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    // Half a name stays as it is being written: no space at its end goes.
    if (m_isCommitting)
        return;
    QStyledItemDelegate::setEditorData(editor, index);
    m_shown = m_handedIn = written(*editor);
}

bool RowDelegate::eventFilter(QObject *editor, QEvent *event)
{
    auto *line = qobject_cast<QLineEdit *>(editor);
    if (line && m_handedIn != m_shown && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        line->setText(m_shown.toString());
        Q_EMIT commitData(line);
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

void RowDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const bool isDimmed = m_dimmedRole >= 0 && index.data(m_dimmedRole).toBool();
    if (index.column() == 0 && !isDimmed)
        return;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = option->palette.color(group, QPalette::Text);
        const QColor base = option->palette.color(group, QPalette::Base);
        option->palette.setColor(group, QPalette::Text, mix(text, base, quietAmount));
    }
}

} // namespace vl::desktop
