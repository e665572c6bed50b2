#include "app/base/settingskeys.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/theme.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Ivorel"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quessel Games"));
    QCoreApplication::setApplicationVersion(QStringLiteral(IVOREL_VERSION));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));

    vl::app::Settings settings;
    vl::desktop::applyTheme(vl::desktop::themeNamed(settings.text(vl::app::settings::theme)));

    vl::desktop::MainWindow window(settings);
    window.show();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1)
        window.openProject(arguments.at(1));
    return QApplication::exec();
}
