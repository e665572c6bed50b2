#pragma once

#include <QtCore/QObject>

class QMenu;

namespace vl::app {
class Settings;
}

namespace vl::desktop {

/// Keeps the look of the program at what the settings say, from one change to the next.
class Appearance final : public QObject
{
    Q_OBJECT

public:
    /// The settings outlive it.
    explicit Appearance(app::Settings &settings, QObject *parent = nullptr);

    /// Shows the theme and the font scale of the settings.
    static void apply(const app::Settings &settings);
    /// Adds an entry a theme, the present one ticked.
    void addThemes(QMenu *menu);

private:
    app::Settings &m_settings;
};

/// A language that the interface speaks, under its own name.
struct InterfaceLanguage
{
    const char *code;
    const char *name;
};

/// The languages of the interface, in the order of the menu.
QList<InterfaceLanguage> interfaceLanguages();
/// The code of the language that is chosen in the settings, else of the one the system asks for.
QString presentLanguage(const app::Settings &settings);
/// What to tell a user who chose this language.
QString languageNotice(const InterfaceLanguage &language);

} // namespace vl::desktop
