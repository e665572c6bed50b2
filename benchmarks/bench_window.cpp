#include "app/base/settingskeys.h"
#include "desktop/shell/appearance.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/programstyle.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

using namespace vl;

namespace {

constexpr int rounds = 5;

/// The longest of a few runs, in milliseconds, until all that the run asked for is painted.
template<typename Run>
double slowest(Run run)
{
    double longest = 0;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        run(i);
        QCoreApplication::processEvents();
        longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
    }
    return longest;
}

} // namespace

/// Prints how long the window takes to change its theme and to open each of its menus, with the
/// project that the first argument names.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(new desktop::ProgramStyle);
    const QTemporaryDir dir;
    app::Settings settings(dir.filePath(QStringLiteral("settings.ini")));
    desktop::Appearance::apply(settings);
    desktop::MainWindow window(settings);
    window.resize(1920, 1080);
    window.show();
    QTextStream out(stdout);
    if (argc > 1 && !window.openProject(QString::fromLocal8Bit(argv[1])))
        return 1;
    QCoreApplication::processEvents();

    const auto themes = desktop::themes();
    out << "theme: " << slowest([&](int round) {
        const auto &theme = themes[size_t(round + 1) % themes.size()];
        settings.set(app::settings::theme, QLatin1String(theme.name));
    }) << " ms\n";
    for (const QAction *action : window.menuBar()->actions()) {
        QMenu *menu = action->menu();
        out << action->text() << ": " << slowest([&](int) {
            menu->hide();
            menu->popup(window.mapToGlobal(QPoint(40, 40)));
        }) << " ms\n";
        menu->hide();
    }
    return 0;
}
