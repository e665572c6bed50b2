#include "desktop/panels/catalogue.h"

#include "desktop/panels/documentspanel.h"
#include "desktop/panels/editorpanel.h"

namespace vl::desktop {

namespace {

template<typename Panel>
QWidget *make(const PanelContext &context, QWidget *parent)
{
    return new Panel(context, parent);
}

constexpr PanelRow rows[] = {
    {"manuscript", QT_TRANSLATE_NOOP("Panels", "Documents"), DockSide::Left, make<DocumentsPanel>},
    {"editor", QT_TRANSLATE_NOOP("Panels", "Editor"), DockSide::Center, make<EditorPanel>},
};

} // namespace

std::span<const PanelRow> panelCatalogue()
{
    return rows;
}

} // namespace vl::desktop
