#include "desktop/preferences/catalogue.h"

#include "desktop/preferences/appearancepage.h"
#include "desktop/preferences/plainpages.h"
#include "desktop/preferences/shortcutspage.h"
#include "desktop/preferences/toolbarspage.h"

#include <QtCore/QCoreApplication>

namespace vl::desktop {

namespace {

template<typename Page>
PreferencesPage *make(const PreferencesContext &context, QWidget *parent)
{
    return new Page(context, parent);
}

constexpr PreferencesRow rows[] = {
    {QT_TRANSLATE_NOOP("Preferences", "General"), "settings", make<GeneralPage>},
    {QT_TRANSLATE_NOOP("Preferences", "Appearance"), "theme", make<AppearancePage>},
    {QT_TRANSLATE_NOOP("Preferences", "Editor"), "editor", make<EditorPage>},
    {QT_TRANSLATE_NOOP("Preferences", "Shortcuts"), "quickOpen", make<ShortcutsPage>},
    {QT_TRANSLATE_NOOP("Preferences", "Tool Bars"), "menu", make<ToolBarsPage>},
    {QT_TRANSLATE_NOOP("Preferences", "Backups"), "backup", make<BackupsPage>},
    {QT_TRANSLATE_NOOP("Preferences", "Updates"), "update", make<UpdatesPage>},
};

} // namespace

std::span<const PreferencesRow> preferencesCatalogue()
{
    return rows;
}

} // namespace vl::desktop
