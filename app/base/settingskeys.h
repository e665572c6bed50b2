#pragma once

#include "app/base/settings.h"

namespace vl::app::settings {

inline constexpr SettingKey theme{"appearance/theme", "Light"};
inline constexpr SettingKey language{"appearance/language", ""};
inline constexpr SettingKey recentProjects{"recentProjects", ""};

} // namespace vl::app::settings
