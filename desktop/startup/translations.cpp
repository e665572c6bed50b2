#include "desktop/startup/translations.h"

#include "app/base/settingskeys.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>

namespace vl::desktop {

QLocale interfaceLocale(const QString &askedFor, const app::Settings &settings)
{
    if (!askedFor.isEmpty())
        return QLocale(askedFor);
    const QString chosen = settings.text(app::settings::language);
    return chosen.isEmpty() ? QLocale::system() : QLocale(chosen);
}

Translations::Translations(const QLocale &locale)
{
    const QString separator = QStringLiteral("_");
    const QString toolkit = QStringLiteral("qtbase");
    if (m_toolkit.load(locale, toolkit, separator,
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))
        || m_toolkit.load(locale, toolkit, separator,
                          QCoreApplication::applicationDirPath() + QLatin1String("/translations")))
        QCoreApplication::installTranslator(&m_toolkit);
    // The last one is asked first: what the program has of the toolkit's texts goes with its own.
    if (m_program.load(locale, QStringLiteral("ivorel"), separator, QStringLiteral(":/i18n"))
        || m_program.load(QStringLiteral(":/i18n/ivorel_en.qm"))) // for its plural forms
        QCoreApplication::installTranslator(&m_program);
}

Translations::~Translations()
{
    QCoreApplication::removeTranslator(&m_toolkit);
    QCoreApplication::removeTranslator(&m_program);
}

} // namespace vl::desktop
