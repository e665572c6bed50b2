#include "desktop/dialogs/palettewords.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <iterator>

namespace vl::desktop {

namespace {

struct Words
{
    const char *id;
    const char *words;
};

// clang-format off
constexpr Words table[] = {
    {"file.new", QT_TRANSLATE_NOOP("PaletteWords", "create, start, template")},
    {"file.open", QT_TRANSLATE_NOOP("PaletteWords", "load")},
    {"file.openFolder", QT_TRANSLATE_NOOP("PaletteWords", "load directory")},
    {"file.quickOpen", QT_TRANSLATE_NOOP("PaletteWords", "command palette, go to, jump to, search")},
    {"file.saveAs", QT_TRANSLATE_NOOP("PaletteWords", "save a copy, duplicate project")},
    {"file.saveAsFolder", QT_TRANSLATE_NOOP("PaletteWords", "export project, unpack")},
    {"file.backUp", QT_TRANSLATE_NOOP("PaletteWords", "backup, snapshot, safety copy")},
    {"file.checkExternal", QT_TRANSLATE_NOOP("PaletteWords", "reload, sync, merge, conflicts")},
    {"file.import.plainText", QT_TRANSLATE_NOOP("PaletteWords", "txt, markdown")},
    {"file.import.word", QT_TRANSLATE_NOOP("PaletteWords", "docx, doc")},
    {"file.export.manuscript", QT_TRANSLATE_NOOP("PaletteWords", "compile, publish, book, docx, epub, pdf, rtf, print")},
    {"file.export.screenplay", QT_TRANSLATE_NOOP("PaletteWords", "script, fountain, fdx")},
    {"file.export.website", QT_TRANSLATE_NOOP("PaletteWords", "wiki, html, publish")},
    {"file.export.healthReport", QT_TRANSLATE_NOOP("PaletteWords", "statistics, readability, report")},
    {"file.quit", QT_TRANSLATE_NOOP("PaletteWords", "exit, close")},
    {"edit.undo", QT_TRANSLATE_NOOP("PaletteWords", "take back, revert")},
    {"edit.redo", QT_TRANSLATE_NOOP("PaletteWords", "repeat, again")},
    {"edit.find", QT_TRANSLATE_NOOP("PaletteWords", "search")},
    {"edit.replace", QT_TRANSLATE_NOOP("PaletteWords", "substitute, change all")},
    {"edit.findInProject", QT_TRANSLATE_NOOP("PaletteWords", "search everywhere, global search, replace everywhere")},
    {"edit.preferences", QT_TRANSLATE_NOOP("PaletteWords", "settings, options, configuration, shortcuts, font")},
    {"doc.add", QT_TRANSLATE_NOOP("PaletteWords", "new scene, new chapter, add")},
    {"doc.addInside", QT_TRANSLATE_NOOP("PaletteWords", "new child, new scene in chapter")},
    {"doc.addNote", QT_TRANSLATE_NOOP("PaletteWords", "new note, add")},
    {"doc.split", QT_TRANSLATE_NOOP("PaletteWords", "cut, divide scene")},
    {"doc.promote", QT_TRANSLATE_NOOP("PaletteWords", "outdent, move left")},
    {"doc.demote", QT_TRANSLATE_NOOP("PaletteWords", "indent, nest, move right")},
    {"doc.versionHistory", QT_TRANSLATE_NOOP("PaletteWords", "snapshots, drafts, revisions")},
    {"note.todaysNote", QT_TRANSLATE_NOOP("PaletteWords", "journal, diary, daily note")},
    {"view.distractionFree", QT_TRANSLATE_NOOP("PaletteWords", "focus mode, zen, full screen, composition mode")},
    {"view.pageLayout", QT_TRANSLATE_NOOP("PaletteWords", "print preview, pages")},
    {"view.resetLayout", QT_TRANSLATE_NOOP("PaletteWords", "restore panels, default windows")},
    {"view.floatPanel", QT_TRANSLATE_NOOP("PaletteWords", "detach, undock, own window")},
    {"view.dockPanels", QT_TRANSLATE_NOOP("PaletteWords", "attach, put back")},
    {"view.saveLayout", QT_TRANSLATE_NOOP("PaletteWords", "workspace, perspective")},
    {"help.welcome", QT_TRANSLATE_NOOP("PaletteWords", "start page, tutorial, sample, example")},
    {"help.checkUpdates", QT_TRANSLATE_NOOP("PaletteWords", "upgrade, new version")},
    {"help.about", QT_TRANSLATE_NOOP("PaletteWords", "version, licence, credits, folders")},
};
// clang-format on

} // namespace

QString paletteWords(const QString &actionId)
{
    const auto *found = std::find_if(std::begin(table), std::end(table), [&](const Words &row) {
        return actionId == QLatin1String(row.id);
    });
    return found == std::end(table) ? QString()
                                    : QCoreApplication::translate("PaletteWords", found->words);
}

} // namespace vl::desktop
