#pragma once

#include "desktop/preferences/preferencespage.h"

#include <span>

namespace vl::desktop {

/// One page of the preferences.
struct PreferencesRow
{
    const char *title; ///< in the context "Preferences"
    const char *icon;
    PreferencesPage *(*make)(const PreferencesContext &context, QWidget *parent);
};

/// All pages, from top to bottom.
std::span<const PreferencesRow> preferencesCatalogue();

} // namespace vl::desktop
