#include "desktop/panels/catalogue.h"

#include "desktop/panels/codexpanel.h"
#include "desktop/panels/documentspanel.h"
#include "desktop/panels/editorpanel.h"
#include "desktop/panels/inspectorpanel.h"

#include <algorithm>
#include <vector>

namespace vl::desktop {

namespace {

template<typename Panel>
QWidget *make(const PanelContext &context, QWidget *parent)
{
    return new Panel(context, parent);
}

/// The line of a panel that is still to come: it keeps its place in the order.
constexpr PanelMaker notBuilt = nullptr;

// clang-format off
constexpr PanelRow rows[] = {
    {"codex", QT_TRANSLATE_NOOP("Panels", "Codex"), "codex", DockSide::LeftBelow, FirstState::Open, make<CodexPanel>},
    {"manuscript", QT_TRANSLATE_NOOP("Panels", "Documents"), "manuscript", DockSide::Left, FirstState::Open, make<DocumentsPanel>},
    {"editor", QT_TRANSLATE_NOOP("Panels", "Editor"), "editor", DockSide::Center, FirstState::Open, make<EditorPanel>},
    {"inspector", QT_TRANSLATE_NOOP("Panels", "Inspector"), "inspector", DockSide::Right, FirstState::Open, make<InspectorPanel>},
    {"documentInfo", QT_TRANSLATE_NOOP("Panels", "Document Info"), "info", DockSide::Right, FirstState::Closed, notBuilt},
    {"outline", QT_TRANSLATE_NOOP("Panels", "Outline"), "outline", DockSide::Center, FirstState::Closed, notBuilt},
    {"corkboard", QT_TRANSLATE_NOOP("Panels", "Corkboard"), "", DockSide::Center, FirstState::Closed, notBuilt},
    {"board", QT_TRANSLATE_NOOP("Panels", "Board"), "board", DockSide::Center, FirstState::Closed, notBuilt},
    {"submissions", QT_TRANSLATE_NOOP("Panels", "Submissions"), "", DockSide::Bottom, FirstState::Closed, notBuilt},
    {"agenda", QT_TRANSLATE_NOOP("Panels", "Agenda"), "calendar", DockSide::Right, FirstState::Closed, notBuilt},
    {"gallery", QT_TRANSLATE_NOOP("Panels", "Gallery"), "image", DockSide::Center, FirstState::Closed, notBuilt},
    {"media", QT_TRANSLATE_NOOP("Panels", "Media"), "", DockSide::Center, FirstState::Closed, notBuilt},
    {"canvas", QT_TRANSLATE_NOOP("Panels", "Canvas"), "", DockSide::Center, FirstState::Closed, notBuilt},
    {"maps", QT_TRANSLATE_NOOP("Panels", "Maps"), "map", DockSide::Center, FirstState::Closed, notBuilt},
    {"sources", QT_TRANSLATE_NOOP("Panels", "Sources"), "", DockSide::Center, FirstState::Closed, notBuilt},
    {"pdf", QT_TRANSLATE_NOOP("Panels", "PDF"), "page", DockSide::Center, FirstState::Closed, notBuilt},
    {"scriptConsole", QT_TRANSLATE_NOOP("Panels", "Script Console"), "play", DockSide::Bottom, FirstState::Closed, notBuilt},
    {"aiChat", QT_TRANSLATE_NOOP("Panels", "AI Chat"), "", DockSide::Right, FirstState::Closed, notBuilt},
    {"comments", QT_TRANSLATE_NOOP("Panels", "Comments"), "comment", DockSide::Right, FirstState::Closed, notBuilt},
    {"plotThreads", QT_TRANSLATE_NOOP("Panels", "Plot Threads"), "", DockSide::Center, FirstState::Closed, notBuilt},
    {"beatSheet", QT_TRANSLATE_NOOP("Panels", "Beat Sheet"), "", DockSide::Center, FirstState::Closed, notBuilt},
    {"screenplay", QT_TRANSLATE_NOOP("Panels", "Screenplay"), "scene", DockSide::Center, FirstState::Closed, notBuilt},
    {"relationships", QT_TRANSLATE_NOOP("Panels", "Relationships"), "link", DockSide::Center, FirstState::Closed, notBuilt},
    {"spreadsheet", QT_TRANSLATE_NOOP("Panels", "Spreadsheet"), "", DockSide::Center, FirstState::Closed, notBuilt},
    {"sprint", QT_TRANSLATE_NOOP("Panels", "Sprint"), "", DockSide::Right, FirstState::Closed, notBuilt},
    {"statistics", QT_TRANSLATE_NOOP("Panels", "Statistics"), "statistics", DockSide::Bottom, FirstState::Closed, notBuilt},
    {"goals", QT_TRANSLATE_NOOP("Panels", "Goals"), "", DockSide::Right, FirstState::Closed, notBuilt},
    {"pacing", QT_TRANSLATE_NOOP("Panels", "Pacing"), "", DockSide::Bottom, FirstState::Closed, notBuilt},
    {"povBalance", QT_TRANSLATE_NOOP("Panels", "POV Balance"), "", DockSide::Bottom, FirstState::Closed, notBuilt},
    {"tension", QT_TRANSLATE_NOOP("Panels", "Tension"), "", DockSide::Bottom, FirstState::Closed, notBuilt},
    {"genreTools", QT_TRANSLATE_NOOP("Panels", "Genre Tools"), "", DockSide::Right, FirstState::Closed, notBuilt},
    {"randomTables", QT_TRANSLATE_NOOP("Panels", "Random Tables"), "", DockSide::Right, FirstState::Closed, notBuilt},
    {"charts", QT_TRANSLATE_NOOP("Panels", "Charts"), "", DockSide::Center, FirstState::Closed, notBuilt},
    {"statBlocks", QT_TRANSLATE_NOOP("Panels", "Stat Blocks"), "", DockSide::Right, FirstState::Closed, notBuilt},
    {"footnotes", QT_TRANSLATE_NOOP("Panels", "Footnotes"), "", DockSide::Bottom, FirstState::Closed, notBuilt},
    {"languages", QT_TRANSLATE_NOOP("Panels", "Languages"), "", DockSide::Center, FirstState::Closed, notBuilt},
    {"timeline", QT_TRANSLATE_NOOP("Panels", "Timeline"), "timeline", DockSide::Bottom, FirstState::Closed, notBuilt},
    {"conflicts", QT_TRANSLATE_NOOP("Panels", "Conflicts"), "conflict", DockSide::Bottom, FirstState::Closed, notBuilt},
    {"style", QT_TRANSLATE_NOOP("Panels", "Style"), "", DockSide::Right, FirstState::Closed, notBuilt},
    {"pinned", QT_TRANSLATE_NOOP("Panels", "Pinned"), "pin", DockSide::LeftBelow, FirstState::Closed, notBuilt},
    {"tasks", QT_TRANSLATE_NOOP("Panels", "Tasks"), "task", DockSide::Bottom, FirstState::Closed, notBuilt},
};
// clang-format on

std::vector<PanelRow> builtRows()
{
    std::vector<PanelRow> built;
    std::copy_if(std::begin(rows), std::end(rows), std::back_inserter(built),
                 [](const PanelRow &row) { return row.make != notBuilt; });
    return built;
}

} // namespace

std::span<const PanelRow> panelCatalogue()
{
    static const std::vector<PanelRow> built = builtRows();
    return built;
}

} // namespace vl::desktop
