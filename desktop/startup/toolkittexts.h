#pragma once

#include <span>

namespace vl::desktop {

/// A text of the toolkit that this program shows.
struct ToolkitText
{
    const char *context;
    const char *text;
};

/// The texts of the toolkit's own dialogs, menus and keys. They stand in the program's catalogues,
/// so that they are in the language of the rest also where the toolkit's are not installed.
std::span<const ToolkitText> toolkitTexts();

} // namespace vl::desktop
