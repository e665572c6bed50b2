#include "desktop/widgets/flowlayout.h"

#include <QtWidgets/QWidget>

namespace vl::desktop {

FlowLayout::FlowLayout(QWidget *parent)
    : QLayout(parent)
{
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::insertBeforeLast(QWidget *widget)
{
    addChildWidget(widget);
    m_items.insert(qMax<qsizetype>(0, m_items.size() - 1), new QWidgetItem(widget));
    invalidate();
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

int FlowLayout::count() const
{
    return int(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const
{
    return place(QRect(0, 0, width, 0), true);
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size.grownBy(margins);
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    place(rect, false);
}

int FlowLayout::place(const QRect &rect, bool isTrial) const
{
    const QRect inside = rect.marginsRemoved(contentsMargins());
    int x = inside.x();
    int y = inside.y();
    int lineHeight = 0;
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const bool takesRest =
            item == m_items.last() && item->expandingDirections().testFlag(Qt::Horizontal);
        QSize size = takesRest ? item->minimumSize() : item->sizeHint();
        size.setWidth(qMin(size.width(), inside.width()));
        if (x > inside.x() && x + size.width() > inside.x() + inside.width()) {
            x = inside.x();
            y += lineHeight + spacing();
            lineHeight = 0;
        }
        if (takesRest) {
            size.setWidth(inside.x() + inside.width() - x);
            size.setHeight(item->sizeHint().height());
        }
        if (!isTrial)
            item->setGeometry(QRect(QPoint(x, y), size));
        x += size.width() + spacing();
        lineHeight = qMax(lineHeight, size.height());
    }
    return y + lineHeight - rect.y() + contentsMargins().bottom();
}

} // namespace vl::desktop
