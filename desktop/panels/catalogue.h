#pragma once

#include "desktop/panels/panelcontext.h"

#include <QtWidgets/QWidget>

#include <span>

namespace vl::desktop {

/// Where a panel stands before the user moves it.
enum class DockSide
{
    Left,
    Center,
    Right,
    Bottom
};

/// One panel of the window. Saved layouts are keyed by its object name: never change one.
struct PanelRow
{
    const char *objectName;
    const char *title; ///< in the context "Panels"
    DockSide side;
    QWidget *(*make)(const PanelContext &context, QWidget *parent);
};

/// All panels, in the order of the View menu.
std::span<const PanelRow> panelCatalogue();

} // namespace vl::desktop
