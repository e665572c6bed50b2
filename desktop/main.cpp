#include "app/base/settingskeys.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/focusring.h"
#include "desktop/widgets/programstyle.h"

#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Ivorel"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quessel Games"));
    QCoreApplication::setApplicationVersion(QStringLiteral(IVOREL_VERSION));
    QApplication::setStyle(new vl::desktop::ProgramStyle); // the application owns it
    const vl::desktop::FocusRing focusRing;

    vl::app::Settings settings;
    const QString language = settings.text(vl::app::settings::language);
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    QLocale::setDefault(locale);
    QTranslator texts;
    if (texts.load(locale, QStringLiteral("ivorel"), QStringLiteral("_"), QStringLiteral(":/i18n"))
        || texts.load(QStringLiteral(":/i18n/ivorel_en.qm"))) // for its plural forms
        QCoreApplication::installTranslator(&texts);
    QTranslator toolkitTexts;
    if (toolkitTexts.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitTexts);

    vl::desktop::applyTheme(vl::desktop::themeNamed(settings.text(vl::app::settings::theme)));

    vl::desktop::MainWindow window(settings);
    window.show();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1)
        window.openProject(arguments.at(1));
    return QApplication::exec();
}
