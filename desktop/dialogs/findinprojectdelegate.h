#pragma once

#include "desktop/panels/rowdelegate.h"

namespace vl::desktop {

/// The rows of a search: objects with their icon, place and number of places; under them the places
/// with what stands around, and what would come instead.
class FindInProjectDelegate final : public RowDelegate
{
    Q_OBJECT

public:
    using RowDelegate::RowDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintHeader(QPainter *painter, const QStyleOptionViewItem &row, const QRect &rect,
                     const QModelIndex &index) const;
    void paintPlace(QPainter *painter, const QStyleOptionViewItem &row, const QRect &rect,
                    const QModelIndex &index) const;
};

} // namespace vl::desktop
