#pragma once

#include "desktop/preferences/preferencespage.h"

namespace vl::desktop {

struct Theme;

/// The theme, shown at once in the whole program, and the size of the interface's texts.
class AppearancePage final : public PreferencesPage
{
    Q_OBJECT

public:
    AppearancePage(const PreferencesContext &context, QWidget *parent);

private:
    void addThemes();
    void addScale();
};

} // namespace vl::desktop
