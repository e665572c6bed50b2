#include "desktop/shell/appearance.h"

#include "app/base/settingskeys.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtGui/QActionGroup>
#include <QtWidgets/QMenu>

#include <algorithm>

namespace vl::desktop {

namespace {

const InterfaceLanguage languages[] = {{"en", "English"}, {"es", "Español"}};

/// What is no number is taken for the scale of the system.
double scaleOf(const app::Settings &settings)
{
    bool isNumber = false;
    const double scale = settings.text(app::settings::fontScale).toDouble(&isNumber);
    return isNumber ? scale : 1.0;
}

} // namespace

Appearance::Appearance(app::Settings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
    connect(&settings.changes(), &app::SettingsChanges::changed, this, [this](const QString &key) {
        if (key == QLatin1String(app::settings::theme.name))
            applyTheme(themeNamed(m_settings.text(app::settings::theme)));
        else if (key == QLatin1String(app::settings::fontScale.name))
            applyFontScale(scaleOf(m_settings));
    });
}

void Appearance::apply(const app::Settings &settings)
{
    applyTheme(themeNamed(settings.text(app::settings::theme)));
    applyFontScale(scaleOf(settings));
}

void Appearance::addThemes(QMenu *menu)
{
    auto *group = new QActionGroup(menu);
    for (const Theme &theme : themes()) {
        QAction *entry = menu->addAction(QCoreApplication::translate("Themes", theme.name));
        entry->setCheckable(true);
        group->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, name = theme.name] {
            m_settings.set(app::settings::theme, QLatin1String(name));
        });
    }
    const auto tick = [this, group] {
        const Theme &present = themeNamed(m_settings.text(app::settings::theme));
        group->actions().at(&present - themes().data())->setChecked(true);
    };
    connect(&m_settings.changes(), &app::SettingsChanges::changed, group, tick);
    tick();
}

QList<InterfaceLanguage> interfaceLanguages()
{
    return {std::begin(languages), std::end(languages)};
}

QString presentLanguage(const app::Settings &settings)
{
    const QString chosen = settings.text(app::settings::language);
    const QString name = chosen.isEmpty() ? QLocale::system().name() : chosen;
    const auto *found = std::find_if(
        std::begin(languages), std::end(languages), [&](const InterfaceLanguage &language) {
            return name.startsWith(QLatin1String(language.code), Qt::CaseInsensitive);
        });
    return QLatin1String(found == std::end(languages) ? languages[0].code : found->code);
}

QString languageNotice(const InterfaceLanguage &language)
{
    return QCoreApplication::translate(
               "Languages", "The interface language will change to “%1” when you restart Ivorel.")
        .arg(QString::fromUtf8(language.name));
}

} // namespace vl::desktop
