#include "desktop/startup/startup.h"

#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    using vl::desktop::StartUp;
    StartUp::identify(QStringLiteral(IVOREL_VERSION));

    vl::app::Settings settings;
    StartUp startUp(vl::desktop::Launch::from(QCoreApplication::arguments()), settings);
    if (startUp.handOver(vl::desktop::singleInstanceServerName(vl::desktop::environmentUserName())))
        return 0;
    startUp.showWindow();
    return QApplication::exec();
}
