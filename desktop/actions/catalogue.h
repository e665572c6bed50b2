#pragma once

#include <QtGui/QKeySequence>

#include <span>

namespace vl::desktop {

/// The menus of the window, from left to right; an action without one is reached by its keys, its
/// panel and the palette.
enum class Menu
{
    None,
    File,
    Edit,
    View,
    Help
};

/// One action of the program. Its id is stored with the user's own keys: never change one.
struct ActionRow
{
    const char *id;
    const char *text; ///< in the context "Actions"
    Menu menu;
    QKeySequence::StandardKey standardKey;
    const char *keys; ///< where there is no standard key
    bool startsGroup; ///< a separator stands before it in the menu
};

/// All actions, in the order of the menus.
std::span<const ActionRow> actionCatalogue();

} // namespace vl::desktop
