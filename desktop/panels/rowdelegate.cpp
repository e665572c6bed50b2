#include "desktop/panels/rowdelegate.h"

#include "desktop/shell/theme.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

namespace vl::desktop {

namespace {

constexpr double rowLines = 1.6;

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
    const auto *line = qobject_cast<const QLineEdit *>(m_editor);
    if (!m_editor || (line && !line->isModified()))
        return;
    const QScopedValueRollback<bool> committing(m_isCommitting, true);
    m_isHandedIn = true;
    Q_EMIT commitData(m_editor);
}

void RowDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    // Half a name stays as it is being written: no space at its end goes.
    if (m_isCommitting)
        return;
    QStyledItemDelegate::setEditorData(editor, index);
    m_isHandedIn = false;
    if (const auto *line = qobject_cast<const QLineEdit *>(editor))
        m_shown = line->text();
}

bool RowDelegate::eventFilter(QObject *editor, QEvent *event)
{
    auto *line = qobject_cast<QLineEdit *>(editor);
    if (line && m_isHandedIn && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        line->setText(m_shown);
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
