#include "desktop/widgets/programstyle.h"

#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QFocusFrame>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

namespace vl::desktop {

namespace {

constexpr int ringPixels = 2;

/// Views and texts fill their panel: there the ring lies on their own edge.
bool isInside(const QWidget *frame)
{
    const auto *ring = qobject_cast<const QFocusFrame *>(frame);
    return ring && qobject_cast<const QAbstractScrollArea *>(ring->widget());
}

} // namespace

ProgramStyle::ProgramStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const
{
    switch (metric) {
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        return isInside(widget) ? 0 : ringPixels;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
    case PM_TabBarIconSize:
    case PM_ToolBarIconSize:
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return qRound(QProxyStyle::pixelMetric(metric, option, widget) * qMax(1.0, fontScale()));
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *data) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    if (hint != SH_FocusFrame_Mask || !option)
        return QProxyStyle::styleHint(hint, option, widget, data);
    if (auto *mask = qstyleoption_cast<QStyleHintReturnMask *>(data)) {
        const QRect &whole = option->rect;
        mask->region =
            QRegion(whole) - whole.adjusted(ringPixels, ringPixels, -ringPixels, -ringPixels);
    }
    return 1;
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    if (element == CE_FocusFrame)
        painter->fillRect(option->rect, focusColour(option->palette));
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

} // namespace vl::desktop
