#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace vl::desktop {

/// Rows that are read before they are chosen: a large icon, a title, and below it a text of one or
/// two lines in a quieter colour.
class CardDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    enum Role
    {
        DetailRole = Qt::UserRole + 100, ///< the text below the title
        IsPathRole,                      ///< it is a path: cut in its middle, on one line
        IsDimRole,                       ///< it is drawn as if it were off
    };

    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace vl::desktop
