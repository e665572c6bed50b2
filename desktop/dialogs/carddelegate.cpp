#include "desktop/dialogs/carddelegate.h"

#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>

namespace vl::desktop {

namespace {

constexpr int marginSteps = 2;
constexpr int iconSteps = 7;

QFont titleFont(const QFont &font)
{
    QFont title = font;
    title.setBold(true);
    return title;
}

int detailLeft()
{
    return grid(marginSteps) * 2 + grid(iconSteps);
}

QRect detailBounds(const QStyleOptionViewItem &option, const QModelIndex &index, int width)
{
    const QString detail = index.data(CardDelegate::DetailRole).toString();
    const int flags =
        index.data(CardDelegate::IsPathRole).toBool() ? Qt::TextSingleLine : Qt::TextWordWrap;
    return option.fontMetrics.boundingRect(QRect(0, 0, width, 10000), flags, detail);
}

} // namespace

QSize CardDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    const int width = view ? view->viewport()->width() : option.rect.width();
    const int room = qMax(grid(10), width - detailLeft() - grid(marginSteps));
    const int height = QFontMetrics(titleFont(option.font)).height() + grid(1)
                       + detailBounds(option, index, room).height();
    return {grid(10), qMax(height, grid(iconSteps)) + 2 * grid(marginSteps)};
}

void CardDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QString title = row.text;
    const QIcon picture = row.icon;
    row.text.clear();
    row.icon = {};
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    const bool isEnabled =
        row.state.testFlag(QStyle::State_Enabled) && !index.data(IsDimRole).toBool();
    const QColor strong =
        row.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor quiet =
        isSelected ? strong : mix(strong, row.palette.color(QPalette::Base), quietAmount);
    const auto place = [&row](const QRect &rect) {
        return QStyle::visualRect(row.direction, row.rect, rect);
    };
    const int margin = grid(marginSteps);
    const QRect area = row.rect.adjusted(margin, margin, -margin, -margin);
    picture.paint(painter, place({area.left(), area.top(), grid(iconSteps), grid(iconSteps)}),
                  Qt::AlignCenter,
                  isSelected  ? QIcon::Selected
                  : isEnabled ? QIcon::Normal
                              : QIcon::Disabled);
    painter->save();
    const QFontMetrics titleMetrics(titleFont(row.font));
    QRect text = area;
    text.setLeft(row.rect.left() + detailLeft());
    painter->setFont(titleFont(row.font));
    painter->setPen(isEnabled ? strong : quiet);
    const QRect titleRect(text.left(), text.top(), text.width(), titleMetrics.height());
    painter->drawText(place(titleRect), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      titleMetrics.elidedText(title, Qt::ElideRight, text.width()));
    text.setTop(titleRect.bottom() + grid(1));
    painter->setFont(row.font);
    painter->setPen(quiet);
    const QString detail = index.data(DetailRole).toString();
    if (index.data(IsPathRole).toBool())
        painter->drawText(place(text), Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                          row.fontMetrics.elidedText(detail, Qt::ElideMiddle, text.width()));
    else
        painter->drawText(place(text), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, detail);
    painter->restore();
}

} // namespace vl::desktop
