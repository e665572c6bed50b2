#pragma once

#include "desktop/panels/rowdelegate.h"

namespace vl::desktop {

/// The rows of the palette: icon, text with the letters that matched, where it stands in a quieter
/// colour, and the shortcut at the end.
class PaletteDelegate final : public RowDelegate
{
    Q_OBJECT

public:
    using RowDelegate::RowDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

/// Draws one line of text with some of its letters marked, cut with an ellipsis where it does not
/// fit; gives the width it took in pixels.
int drawMarkedText(QPainter *painter, const QRect &rect, const QString &text,
                   const QList<int> &marks, const QColor &colour, const QColor &markColour,
                   const QFont &font, Qt::LayoutDirection direction);

} // namespace vl::desktop
