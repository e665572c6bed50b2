#include "desktop/panels/rowdelegate.h"

#include "desktop/shell/theme.h"

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
    if (!editor)
        return nullptr;
    const QWidget *view = option.widget;
    const bool hasColumns = qobject_cast<const QTreeView *>(view);
    const QString column = index.model()->headerData(index.column(), Qt::Horizontal).toString();
    editor->setAccessibleName(hasColumns || !view ? column : view->accessibleName());
    return editor;
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
