#include "desktop/widgets/programstyle.h"

#include "desktop/shell/icons.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QFocusFrame>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

namespace vl::desktop {

namespace {

constexpr int ringPixels = 2;
constexpr int tickPixels = 4;
constexpr int darkLightness = 128;   // of 255
constexpr double controlLines = 1.7; // the height of buttons and fields in lines of text

/// Views and texts fill their panel: there the ring lies on their own edge.
bool isInside(const QWidget *frame)
{
    const auto *ring = qobject_cast<const QFocusFrame *>(frame);
    return ring && qobject_cast<const QAbstractScrollArea *>(ring->widget());
}

/// The style draws its edges darker than the window, which a dark window swallows.
bool needsOutlines(const QStyleOption *option)
{
    return option->palette.color(QPalette::Window).lightness() < darkLightness;
}

enum class Shape
{
    Square,
    Round,
};

void drawOutline(QPainter *painter, const QRect &rect, const QStyleOption *option,
                 Shape shape = Shape::Square)
{
    const bool isEnabled = option->state.testFlag(QStyle::State_Enabled);
    // Where windows and buttons are of one colour, nothing else tells them apart.
    const bool isStrong =
        isEnabled
        && option->palette.color(QPalette::Window) == option->palette.color(QPalette::Button);
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(option->palette.color(isStrong ? QPalette::Dark : QPalette::Mid));
    if (shape == Shape::Round) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawEllipse(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5));
    } else {
        painter->drawRect(rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
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
    case PM_TreeViewIndentation:
        return grid(4);
    case PM_MenuPanelWidth: // the line that the outline is drawn on
        return 1;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return widget && widget->isWindow() ? grid(6) : grid(2);
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return grid(2);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize ProgramStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                     const QSize &contents, const QWidget *widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto *entry = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    switch (type) {
    case CT_PushButton:
        size += QSize(grid(2), 0);
        [[fallthrough]];
    case CT_ComboBox:
    case CT_SpinBox:
    case CT_LineEdit:
        size.setHeight(qMax(size.height(), qRound(option->fontMetrics.height() * controlLines)));
        break;
    case CT_MenuItem:
        if (entry && entry->menuItemType != QStyleOptionMenuItem::Separator) {
            size.setHeight(
                qMax(size.height(), qRound(option->fontMetrics.height() * controlLines)));
            // The column of the ticks is drawn as wide as the entry is high, but counted as narrow:
            // the longest text would lose its middle.
            size.rwidth() += size.height();
        }
        break;
    case CT_MenuBarItem:
        size += QSize(grid(1), grid(1));
        break;
    default:
        break;
    }
    return size;
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *data) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    if (hint == SH_FocusFrame_AboveWidget || hint == SH_ItemView_ShowDecorationSelected)
        return 1;
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
    const auto *entry = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (element == CE_FocusFrame)
        painter->fillRect(option->rect, focusColour(option->palette));
    else if (element == CE_MenuItem && entry)
        drawMenuItem(*entry, painter, widget);
    else if (element == CE_MenuBarItem && entry)
        drawMenuTitle(*entry, painter, widget);
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

void ProgramStyle::drawMenuTitle(QStyleOptionMenuItem entry, QPainter *painter,
                                 const QWidget *widget) const
{
    // The style lights a title only while its menu is open; the keys go from title to title too.
    if (entry.state.testFlag(State_Selected) && widget && widget->hasFocus())
        entry.state |= State_Sunken;
    QProxyStyle::drawControl(CE_MenuBarItem, &entry, painter, widget);
}

void ProgramStyle::drawMenuItem(QStyleOptionMenuItem entry, QPainter *painter,
                                const QWidget *widget) const
{
    // The style asks for the icon of a button under the mouse, which has another ground.
    const bool isLit = entry.state.testFlag(State_Selected) && entry.state.testFlag(State_Enabled);
    if (isLit && !entry.icon.isNull()) {
        const int side = pixelMetric(PM_SmallIconSize, &entry, widget);
        entry.icon = QIcon(entry.icon.pixmap(
            QSize(side, side), painter->device()->devicePixelRatio(), QIcon::Selected));
    }
    QProxyStyle::drawControl(CE_MenuItem, &entry, painter, widget);
    if (entry.menuItemType == QStyleOptionMenuItem::Separator && needsOutlines(&entry)) {
        const QRect &line = entry.rect;
        drawOutline(painter, {line.left() + grid(1), line.center().y(), line.width() - grid(2), 1},
                    &entry);
    }
}

QIcon ProgramStyle::standardIcon(StandardPixmap which, const QStyleOption *option,
                                 const QWidget *widget) const
{
    switch (which) {
    case SP_MessageBoxInformation:
        return icon(QStringLiteral("info"));
    case SP_MessageBoxQuestion:
        return icon(QStringLiteral("question"));
    case SP_MessageBoxWarning:
        return icon(QStringLiteral("warning"));
    case SP_MessageBoxCritical:
        return icon(QStringLiteral("error"));
    case SP_LineEditClearButton:
        return icon(QStringLiteral("close"));
    case SP_ArrowBack:
        return icon(QStringLiteral("previous"));
    case SP_ArrowForward:
    case SP_CommandLink:
        return icon(QStringLiteral("next"));
    case SP_FileDialogToParent:
        return icon(QStringLiteral("up"));
    case SP_FileDialogNewFolder:
        return icon(QStringLiteral("add"));
    case SP_FileDialogListView:
        return icon(QStringLiteral("board"));
    case SP_FileDialogDetailedView:
        return icon(QStringLiteral("menu"));
    case SP_DirIcon:
    case SP_DirLinkIcon:
    case SP_DirHomeIcon:
    case SP_ComputerIcon:
    case SP_DriveHDIcon:
        return icon(QStringLiteral("open"));
    case SP_FileIcon:
    case SP_FileLinkIcon:
        return icon(QStringLiteral("document"));
    default:
        return QProxyStyle::standardIcon(which, option, widget);
    }
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
    if (element == PE_PanelItemViewItem && item && item->state.testFlag(State_Selected)) {
        const auto group =
            item->state.testFlag(State_Enabled) ? QPalette::Active : QPalette::Disabled;
        painter->fillRect(item->rect, item->palette.brush(group, QPalette::Highlight));
        return;
    }
    if (element == PE_FrameFocusRect) {
        // A selected row is seen as it is, and a control has its ring.
        if (qobject_cast<const QAbstractItemView *>(widget)
            && !option->state.testFlag(State_Selected))
            drawOutline(painter, option->rect, option);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!needsOutlines(option))
        return;
    switch (element) {
    case PE_PanelButtonTool:
        if (option->state.testFlag(State_AutoRaise) && !option->state.testFlag(State_MouseOver)
            && !option->state.testFlag(State_On))
            break;
        [[fallthrough]];
    case PE_PanelButtonCommand:
    case PE_FrameLineEdit:
    case PE_Frame:
    case PE_FrameMenu:
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        drawOutline(painter, option->rect, option);
        break;
    case PE_IndicatorRadioButton:
        drawOutline(painter, option->rect, option, Shape::Round);
        break;
    default:
        break;
    }
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const
{
    const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    if (control == CC_ToolButton && button && button->text.endsWith(QChar(0x25be))) {
        // The text shows itself that there is a menu.
        QStyleOptionToolButton plain = *button;
        plain.features &= ~QStyleOptionToolButton::HasMenu;
        QProxyStyle::drawComplexControl(control, &plain, painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!needsOutlines(option))
        return;
    if (control == CC_ComboBox || control == CC_SpinBox)
        drawOutline(painter, option->rect, option);
    else if (control == CC_ScrollBar)
        drawOutline(painter, subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget),
                    option);
    else if (control == CC_Slider)
        drawSliderOutlines(*option, painter, widget);
}

void ProgramStyle::drawSliderOutlines(const QStyleOptionComplex &option, QPainter *painter,
                                      const QWidget *widget) const
{
    const QRect handle = subControlRect(CC_Slider, &option, SC_SliderHandle, widget);
    if (option.subControls.testFlag(SC_SliderGroove)) {
        painter->save();
        painter->setClipRegion(QRegion(option.rect) - handle); // it runs below the handle
        drawOutline(painter, subControlRect(CC_Slider, &option, SC_SliderGroove, widget), &option);
        painter->restore();
    }
    if (option.subControls.testFlag(SC_SliderHandle))
        drawOutline(painter, handle, &option);
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(&option);
    if (!slider || slider->tickPosition != QSlider::TicksBelow
        || slider->orientation != Qt::Horizontal)
        return;
    const int room = pixelMetric(PM_SliderSpaceAvailable, slider, widget);
    const int margin = pixelMetric(PM_SliderLength, slider, widget) / 2;
    const int step = qMax(1, slider->tickInterval > 0 ? slider->tickInterval : slider->pageStep);
    for (int value = slider->minimum; value <= slider->maximum; value += step) {
        const int x = margin
                      + sliderPositionFromValue(slider->minimum, slider->maximum, value, room,
                                                slider->upsideDown);
        drawOutline(painter, QRect(slider->rect.left() + x, handle.bottom() + 2, 1, tickPixels),
                    &option);
    }
}

} // namespace vl::desktop
