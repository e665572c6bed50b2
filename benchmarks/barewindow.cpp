#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QPlainTextEdit>

/// The least a program of this toolkit can be: a window with an editor. What bench_startup holds
/// the start of the program against.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QPlainTextEdit);
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
