#include "desktop/actions/catalogue.h"

#include <QtCore/QCoreApplication>

namespace vl::desktop {

namespace {

constexpr auto noKey = QKeySequence::UnknownKey;

// clang-format off
constexpr ActionRow rows[] = {
    {"file.new", QT_TRANSLATE_NOOP("Actions", "&New Project…"), Menu::File, QKeySequence::New, "", false},
    {"file.open", QT_TRANSLATE_NOOP("Actions", "&Open…"), Menu::File, QKeySequence::Open, "", false},
    {"file.openFolder", QT_TRANSLATE_NOOP("Actions", "Open Project Fol&der…"), Menu::File, noKey, "", false},
    {"file.save", QT_TRANSLATE_NOOP("Actions", "&Save"), Menu::File, QKeySequence::Save, "", true},
    {"file.saveAs", QT_TRANSLATE_NOOP("Actions", "Save &As…"), Menu::File, QKeySequence::SaveAs, "", false},
    {"file.saveAsFolder", QT_TRANSLATE_NOOP("Actions", "Save as Fo&lder…"), Menu::File, noKey, "", false},
    {"file.quit", QT_TRANSLATE_NOOP("Actions", "&Quit"), Menu::File, QKeySequence::Quit, "", true},

    {"edit.undo", QT_TRANSLATE_NOOP("Actions", "&Undo"), Menu::Edit, QKeySequence::Undo, "", false},
    {"edit.redo", QT_TRANSLATE_NOOP("Actions", "&Redo"), Menu::Edit, QKeySequence::Redo, "", false},

    {"doc.add", QT_TRANSLATE_NOOP("Actions", "Document…"), Menu::None, noKey, "Ctrl+Shift+N", false},
    {"doc.addNote", QT_TRANSLATE_NOOP("Actions", "Note…"), Menu::None, noKey, "", false},
    {"doc.addInside", QT_TRANSLATE_NOOP("Actions", "Document Inside"), Menu::None, noKey, "", false},
    {"doc.split", QT_TRANSLATE_NOOP("Actions", "Split Document at Cursor"), Menu::None, noKey, "Ctrl+Shift+K", false},
    {"doc.moveUp", QT_TRANSLATE_NOOP("Actions", "Move Document Up"), Menu::None, noKey, "Ctrl+Shift+Up", false},
    {"doc.moveDown", QT_TRANSLATE_NOOP("Actions", "Move Document Down"), Menu::None, noKey, "Ctrl+Shift+Down", false},
    {"doc.promote", QT_TRANSLATE_NOOP("Actions", "Promote Document"), Menu::None, noKey, "Ctrl+Shift+Left", false},
    {"doc.demote", QT_TRANSLATE_NOOP("Actions", "Demote"), Menu::None, noKey, "Ctrl+Shift+Right", false},

    {"view.nextPanel", QT_TRANSLATE_NOOP("Actions", "Next Panel"), Menu::View, noKey, "F6", false},
    {"view.resetLayout", QT_TRANSLATE_NOOP("Actions", "&Reset Layout"), Menu::View, noKey, "", false},

    {"help.about", QT_TRANSLATE_NOOP("Actions", "About Ivorel"), Menu::Help, noKey, "", false},
};
// clang-format on

} // namespace

std::span<const ActionRow> actionCatalogue()
{
    return rows;
}

} // namespace vl::desktop
