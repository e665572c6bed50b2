#include "desktop/actions/catalogue.h"

#include <QtCore/QCoreApplication>

namespace vl::desktop {

namespace {

constexpr auto noKey = QKeySequence::UnknownKey;

// clang-format off
constexpr ActionRow rows[] = {
    {"file.open", QT_TRANSLATE_NOOP("Actions", "&Open…"), Menu::File, QKeySequence::Open, "", false},
    {"file.openFolder", QT_TRANSLATE_NOOP("Actions", "Open Project Fol&der…"), Menu::File, noKey, "", false},
    {"file.new", QT_TRANSLATE_NOOP("Actions", "&New Project…"), Menu::File, QKeySequence::New, "", false},
    {"file.quickOpen", QT_TRANSLATE_NOOP("Actions", "&Quick Open…"), Menu::File, noKey, "Ctrl+P", false},
    {"file.save", QT_TRANSLATE_NOOP("Actions", "&Save"), Menu::File, QKeySequence::Save, "", true},
    {"file.saveAs", QT_TRANSLATE_NOOP("Actions", "Save &As…"), Menu::File, QKeySequence::SaveAs, "", false},
    {"file.saveAsFolder", QT_TRANSLATE_NOOP("Actions", "Save as Fo&lder…"), Menu::File, noKey, "", false},
    {"file.saveAsTemplate", QT_TRANSLATE_NOOP("Actions", "Save as &Template…"), Menu::File, noKey, "", false},
    {"file.saveAsContentPack", QT_TRANSLATE_NOOP("Actions", "Save as Content &Pack…"), Menu::File, noKey, "", false},
    {"file.applyContentPack", QT_TRANSLATE_NOOP("Actions", "Apply &Content Pack…"), Menu::File, noKey, "", false},
    {"file.backUp", QT_TRANSLATE_NOOP("Actions", "&Back Up Project Now"), Menu::File, noKey, "", true},
    {"file.backups", QT_TRANSLATE_NOOP("Actions", "Bac&kups…"), Menu::File, noKey, "", false},
    {"file.unsavedWork", QT_TRANSLATE_NOOP("Actions", "Unsaved &Work…"), Menu::File, noKey, "", false},
    {"file.checkExternal", QT_TRANSLATE_NOOP("Actions", "Check for E&xternal Changes…"), Menu::File, noKey, "", false},
    {"file.mountedLibraries", QT_TRANSLATE_NOOP("Actions", "Mounted &Libraries…"), Menu::File, noKey, "", true},
    {"file.manageAudiences", QT_TRANSLATE_NOOP("Actions", "Mana&ge Audiences…"), Menu::File, noKey, "", false},
    {"file.openPdf", QT_TRANSLATE_NOOP("Actions", "Open PD&F…"), Menu::File, noKey, "", false},

    {"file.import.plainText", QT_TRANSLATE_NOOP("Actions", "&Plain Text…"), Menu::Import, noKey, "", false},
    {"file.import.obsidian", QT_TRANSLATE_NOOP("Actions", "&Obsidian Vault…"), Menu::Import, noKey, "", false},
    {"file.import.yWriter", QT_TRANSLATE_NOOP("Actions", "&yWriter…"), Menu::Import, noKey, "", false},
    {"file.import.scrivener", QT_TRANSLATE_NOOP("Actions", "Sc&rivener…"), Menu::Import, noKey, "", false},
    {"file.import.word", QT_TRANSLATE_NOOP("Actions", "&Word Document…"), Menu::Import, noKey, "", false},
    {"file.import.notion", QT_TRANSLATE_NOOP("Actions", "&Notion Export…"), Menu::Import, noKey, "", false,
     QT_TRANSLATE_NOOP("Actions", "Import a Notion “Export → Markdown & CSV” folder, preserving pages and folders")},
    {"file.import.manuskript", QT_TRANSLATE_NOOP("Actions", "&Manuskript…"), Menu::Import, noKey, "", false},
    {"file.import.folderWithAi", QT_TRANSLATE_NOOP("Actions", "Convert a &Folder with AI…"), Menu::Import, noKey, "", true,
     QT_TRANSLATE_NOOP("Actions", "Convert an entire folder of files into this project with your AI provider — entities, timeline, sheets, media, and more")},

    {"file.export.manuscript", QT_TRANSLATE_NOOP("Actions", "&Manuscript…"), Menu::Export, noKey, "", false},
    {"file.export.screenplay", QT_TRANSLATE_NOOP("Actions", "&Screenplay…"), Menu::Export, noKey, "", false},
    {"file.export.website", QT_TRANSLATE_NOOP("Actions", "&Website…"), Menu::Export, noKey, "", false},
    {"file.export.healthReport", QT_TRANSLATE_NOOP("Actions", "&Health Report…"), Menu::Export, noKey, "", true,
     QT_TRANSLATE_NOOP("Actions", "Export a manuscript-health report — statistics, readability, dialogue balance, point-of-view balance, style issues, and world coverage — as Markdown or HTML")},

    {"file.clearRecent", QT_TRANSLATE_NOOP("Actions", "&Clear Recent"), Menu::Recent, noKey, "", true},
    {"file.quit", QT_TRANSLATE_NOOP("Actions", "Q&uit"), Menu::Leave, QKeySequence::Quit, "", true},

    {"edit.undo", QT_TRANSLATE_NOOP("Actions", "&Undo"), Menu::Edit, QKeySequence::Undo, "", false},
    {"edit.redo", QT_TRANSLATE_NOOP("Actions", "&Redo"), Menu::Edit, QKeySequence::Redo, "", false},
    {"edit.find", QT_TRANSLATE_NOOP("Actions", "&Find && Replace…"), Menu::Edit, QKeySequence::Find, "", true},
    {"edit.replace", QT_TRANSLATE_NOOP("Actions", "&Replace…"), Menu::Edit, QKeySequence::Replace, "", false},
    {"edit.findInProject", QT_TRANSLATE_NOOP("Actions", "Find in &Project…"), Menu::Edit, noKey, "Ctrl+Shift+F", false},
    {"edit.recentlyDeleted", QT_TRANSLATE_NOOP("Actions", "Recently &Deleted…"), Menu::Edit, noKey, "", false},
    {"edit.preferences", QT_TRANSLATE_NOOP("Actions", "&Preferences…"), Menu::Edit, QKeySequence::Preferences, "", true},

    {"doc.add", QT_TRANSLATE_NOOP("Actions", "Document…"), Menu::None, noKey, "Ctrl+Shift+N", false},
    {"doc.addNote", QT_TRANSLATE_NOOP("Actions", "Note…"), Menu::None, noKey, "", false},
    {"doc.addInside", QT_TRANSLATE_NOOP("Actions", "Document Inside"), Menu::None, noKey, "", false},
    {"doc.addTask", QT_TRANSLATE_NOOP("Actions", "Task for Document…"), Menu::None, noKey, "", false},
    {"doc.changeKind", QT_TRANSLATE_NOOP("Actions", "Change Kind…"), Menu::None, noKey, "", false},
    {"doc.unsupportedClaims", QT_TRANSLATE_NOOP("Actions", "Show Unsupported Claims…"), Menu::None, noKey, "", false},
    {"doc.versionHistory", QT_TRANSLATE_NOOP("Actions", "Version History…"), Menu::None, noKey, "", false},
    {"doc.split", QT_TRANSLATE_NOOP("Actions", "Split Document at Cursor"), Menu::None, noKey, "Ctrl+Shift+K", false},
    {"doc.moveUp", QT_TRANSLATE_NOOP("Actions", "Move Document Up"), Menu::None, noKey, "Ctrl+Shift+Up", false},
    {"doc.moveDown", QT_TRANSLATE_NOOP("Actions", "Move Document Down"), Menu::None, noKey, "Ctrl+Shift+Down", false},
    {"doc.promote", QT_TRANSLATE_NOOP("Actions", "Promote Document"), Menu::None, noKey, "Ctrl+Shift+Left", false},
    {"doc.demote", QT_TRANSLATE_NOOP("Actions", "Demote"), Menu::None, noKey, "Ctrl+Shift+Right", false},
    {"text.strong", QT_TRANSLATE_NOOP("Actions", "Bold"), Menu::None, noKey, "Ctrl+B", false},
    {"text.emphasis", QT_TRANSLATE_NOOP("Actions", "Italic"), Menu::None, noKey, "Ctrl+I", false},
    {"edit.findNext", QT_TRANSLATE_NOOP("Actions", "Find Next"), Menu::None, noKey, "F3", false},
    {"edit.findPrevious", QT_TRANSLATE_NOOP("Actions", "Find Previous"), Menu::None, noKey, "Shift+F3", false},
    {"nav.nextMention", QT_TRANSLATE_NOOP("Actions", "Next Mention"), Menu::None, noKey, "", false},
    {"nav.previousMention", QT_TRANSLATE_NOOP("Actions", "Previous Mention"), Menu::None, noKey, "", false},
    {"note.todaysNote", QT_TRANSLATE_NOOP("Actions", "Today’s Note"), Menu::None, noKey, "Ctrl+Shift+D", false},

    {"view.distractionFree", QT_TRANSLATE_NOOP("Actions", "&Distraction-Free Mode"), Menu::View, noKey, "F11", false},
    {"view.pageLayout", QT_TRANSLATE_NOOP("Actions", "&Page Layout View"), Menu::View, noKey, "", false},
    {"view.saveLayout", QT_TRANSLATE_NOOP("Actions", "&Save Current Layout As…"), Menu::Layouts, noKey, "", true},
    {"view.deleteLayout", QT_TRANSLATE_NOOP("Actions", "&Delete Perspective…"), Menu::Layouts, noKey, "", false},
    {"view.resetLayout", QT_TRANSLATE_NOOP("Actions", "&Reset Layout"), Menu::Layouts, noKey, "", false},
    {"view.floatPanel", QT_TRANSLATE_NOOP("Actions", "&Float Panel"), Menu::Layouts, noKey, "", true},
    {"view.dockPanels", QT_TRANSLATE_NOOP("Actions", "Doc&k Floating Panels"), Menu::Layouts, noKey, "", false},
    {"view.nextPanel", QT_TRANSLATE_NOOP("Actions", "Ne&xt Panel"), Menu::Layouts, noKey, "F6; Ctrl+Tab", true},
    {"view.previousPanel", QT_TRANSLATE_NOOP("Actions", "Pre&vious Panel"), Menu::Layouts, noKey, "Shift+F6; Ctrl+Shift+Tab", false},

    {"ai.settings", QT_TRANSLATE_NOOP("Actions", "AI &Settings…"), Menu::Ai, noKey, "", false,
     QT_TRANSLATE_NOOP("Actions", "Configure your AI provider — endpoint, API key, and model")},
    {"ai.personas", QT_TRANSLATE_NOOP("Actions", "Manage &Personas…"), Menu::Ai, noKey, "", false},
    {"ai.commands", QT_TRANSLATE_NOOP("Actions", "Manage AI &Commands…"), Menu::Ai, noKey, "", false,
     QT_TRANSLATE_NOOP("Actions", "Add, edit, or remove reusable AI commands — named instructions you can apply to a selection, batch across documents, or chain")},
    {"ai.buildWorldIndex", QT_TRANSLATE_NOOP("Actions", "&Build World Index"), Menu::Ai, noKey, "", true},
    {"ai.askYourWorld", QT_TRANSLATE_NOOP("Actions", "As&k Your World…"), Menu::Ai, noKey, "", false},
    {"ai.findSimilar", QT_TRANSLATE_NOOP("Actions", "&Find Similar Entities…"), Menu::Ai, noKey, "", false},
    {"ai.semanticSearch", QT_TRANSLATE_NOOP("Actions", "Se&mantic Search…"), Menu::Ai, noKey, "", false,
     QT_TRANSLATE_NOOP("Actions", "Search your Codex by meaning or mood — type a phrase and find the most semantically related entities (needs a built World Index)")},
    {"ai.generateCodex", QT_TRANSLATE_NOOP("Actions", "Generate &Codex from Manuscript…"), Menu::Ai, noKey, "", false,
     QT_TRANSLATE_NOOP("Actions", "Let AI read your manuscript and propose the worldbuilding entities it mentions but your Codex is missing — review the suggestions and add the ones you want")},
    {"ai.askAgent", QT_TRANSLATE_NOOP("Actions", "Ask an A&gent…"), Menu::Ai, noKey, "", true},
    {"ai.generateImage", QT_TRANSLATE_NOOP("Actions", "&Generate Image…"), Menu::Ai, noKey, "", false},
    {"ai.generateSpeech", QT_TRANSLATE_NOOP("Actions", "Generate &Speech…"), Menu::Ai, noKey, "", false},
    {"ai.applyCommand", QT_TRANSLATE_NOOP("Actions", "&Apply AI Command…"), Menu::Ai, noKey, "", true},
    {"ai.batchCommand", QT_TRANSLATE_NOOP("Actions", "Batch AI Co&mmand…"), Menu::Ai, noKey, "", false},
    {"ai.runChain", QT_TRANSLATE_NOOP("Actions", "Run Command C&hain…"), Menu::Ai, noKey, "", false},
    {"ai.tokenUsage", QT_TRANSLATE_NOOP("Actions", "Token &Usage…"), Menu::Ai, noKey, "", true},

    {"help.welcome", QT_TRANSLATE_NOOP("Actions", "&Welcome…"), Menu::Help, noKey, "", false},
    {"help.checkUpdates", QT_TRANSLATE_NOOP("Actions", "Check for &Updates…"), Menu::Help, noKey, "", false},
    {"help.connectClaudeDesktop", QT_TRANSLATE_NOOP("Actions", "Connect Claude &Desktop…"), Menu::Help, noKey, "", false},
    {"help.about", QT_TRANSLATE_NOOP("Actions", "About Ivorel"), Menu::Help, noKey, "", true},
};
// clang-format on

} // namespace

std::span<const ActionRow> actionCatalogue()
{
    return rows;
}

} // namespace vl::desktop
