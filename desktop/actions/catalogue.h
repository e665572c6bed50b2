#pragma once

#include <QtGui/QKeySequence>

#include <span>

namespace vl::desktop {

/// The menus of the window and their parts, from left to right; an action without one is reached by
/// its keys, its panel and the palette.
enum class Menu
{
    None,
    File,
    Import,
    Export,
    Recent, ///< after the recent projects
    Leave,  ///< the end of the File menu
    Edit,
    View,
    Layouts, ///< in the View menu, after themes and languages
    Ai,
    Help
};

/// One action of the program. Its id is stored with the user's own keys: never change one.
struct ActionRow
{
    const char *id;
    const char *text; ///< in the context "Actions"
    Menu menu;
    QKeySequence::StandardKey standardKey;
    const char *keys;              ///< where there is no standard key; several are parted by "; "
    bool startsGroup;              ///< a separator stands before it in the menu
    const char *toolTip = nullptr; ///< in the context "Actions"; null where the text says it all
};

/// All actions, in the order of the menus.
std::span<const ActionRow> actionCatalogue();

} // namespace vl::desktop
