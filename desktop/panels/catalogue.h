#pragma once

#include "desktop/panels/panelcontext.h"

#include <QtWidgets/QWidget>

#include <span>

namespace vl::desktop {

/// Where a panel stands before the user moves it.
enum class DockSide
{
    Left,
    LeftBelow,
    Center,
    Right,
    Bottom
};

/// Whether a panel is shown before the user opens or closes it.
enum class FirstState
{
    Open,
    Closed
};

using PanelMaker = QWidget *(*)(const PanelContext &context, QWidget *parent);

/// One panel of the window. Saved layouts are keyed by its object name: never change one.
struct PanelRow
{
    const char *objectName;
    const char *title; ///< in the context "Panels"
    const char *icon;  ///< in the program's own family; empty for a panel that is to come
    DockSide side;
    FirstState firstState;
    PanelMaker make;
};

/// The panels that are built, in the order of the View menu.
std::span<const PanelRow> panelCatalogue();

} // namespace vl::desktop
