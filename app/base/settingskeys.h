#pragma once

#include "app/base/settings.h"

namespace vl::app::settings {

inline constexpr SettingKey theme{"appearance/theme", "Light"};
inline constexpr SettingKey language{"appearance/language", ""};
inline constexpr SettingKey recentProjects{"recentProjects", ""};
inline constexpr SettingKey fontScale{"a11y/uiFontScale", "1.0"};
inline constexpr SettingKey reopenLast{"general/reopenLast", "true"};
inline constexpr SettingKey autoUpdateCheck{"general/autoUpdateCheck", "true"};
inline constexpr SettingKey lastUpdateCheck{"general/lastUpdateCheck", ""};
inline constexpr SettingKey welcomed{"onboarding/welcomed", ""};

/// Whether projects are backed up without being asked, and in which folder; an empty one is the
/// program's own.
inline constexpr SettingKey backupsByThemselves{"backups/automatic", "true"};
inline constexpr SettingKey backupFolder{"backups/folder", ""};

// The editor: an empty family is the best reading font that is installed, sizes are points, the
// line's width is in characters, its spacing in percent of a line.
inline constexpr SettingKey editorFontFamily{"editor/fontFamily", ""};
inline constexpr SettingKey editorFontSize{"editor/fontSize", "13"};
inline constexpr SettingKey editorLineWidth{"editor/lineWidth", "70"};
inline constexpr SettingKey editorLineSpacing{"editor/lineSpacing", "150"};
inline constexpr SettingKey editorSmartQuotes{"editor/smartQuotes", "true"};
inline constexpr SettingKey editorTypewriter{"editor/typewriter", "false"};
/// What was opened last in each of the recent projects: a JSON object of lists of ids by path.
inline constexpr SettingKey recentItems{"general/recentItems", ""};
/// The folder that the last new project was made in.
inline constexpr SettingKey newProjectPlace{"general/newProjectPlace", ""};
/// Ids of the actions used last from the palette, a line each.
inline constexpr SettingKey recentCommands{"general/recentCommands", ""};

} // namespace vl::app::settings
