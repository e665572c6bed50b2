#pragma once

#include "desktop/preferences/preferencespage.h"

class QListWidget;

namespace vl::desktop {

/// Which entries the tool bar of the window has.
class ToolBarsPage final : public PreferencesPage
{
    Q_OBJECT

public:
    ToolBarsPage(const PreferencesContext &context, QWidget *parent);

    void reset() override;
    QStringList searchTexts() const override;

private:
    void show();

    QListWidget *m_list;
};

} // namespace vl::desktop
