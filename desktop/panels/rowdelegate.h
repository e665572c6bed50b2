#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace vl::desktop {

/// The rows of all lists and trees: of a comfortable height, secondary columns and dimmed rows in
/// a quieter colour. What a cell is edited with has the name of its column, or of the list.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Rows for which this role is true are shown quieter as a whole.
    void setDimmedRole(int role) { m_dimmedRole = role; }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    int m_dimmedRole = -1;
};

} // namespace vl::desktop
