// How long after the window's first paint it can be used: the project is open, a key that was
// pressed shows in the editor, a click into the tree of documents shows the document. Each round is
// a process of its own, which starts as the program does; key and click are given as soon as the
// project is open, as if they had waited until then, and count as done when the paint that shows
// them is over.
//
// bench_firstkey PROJECT [rounds]

#include "app/base/settingskeys.h"
#include "app/models/workspace.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/startup/startup.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTreeView>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

using namespace vl;

constexpr int longestMilliseconds = 20'000;

/// The application, which tells of every paint when it is over.
class Application final : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        const bool result = QApplication::notify(receiver, event);
        if (type == QEvent::Paint && painted)
            painted(receiver);
        return result;
    }

    std::function<void(QObject *)> painted;
};

double processorTime()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval &time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

/// What one start was like, in milliseconds after the first paint.
class Round
{
public:
    Round(Application &application, desktop::MainWindow &window)
        : m_application(application)
        , m_window(window)
    {
        application.painted = [this](QObject *receiver) { notePaint(receiver); };
    }

    bool run()
    {
        await("paint", [this] { return m_isPainted; });
        m_sinceProcessor = processorTime();
        await("project", [this] { return m_window.workspace().project().size() > 0; });
        const double opened = now();
        auto *text = m_window.findChild<QPlainTextEdit *>();
        QTreeView *tree = nullptr;
        for (auto *view : m_window.findChildren<QTreeView *>())
            if (view->isVisible() && view->accessibleName() == QLatin1String("Documents"))
                tree = view;
        if (!text || !tree)
            return false;
        const bool hasText = !text->isReadOnly() && text->isVisible();
        double key = -1;
        if (hasText) {
            const int before = text->document()->characterCount();
            m_awaited = text->viewport();
            send<QKeyEvent>(text, QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
            if (text->document()->characterCount() != before + 1)
                return false;
            await("key", [this] { return !m_awaited; });
            key = now();
        }
        // A document other than the one that is shown.
        const QString shown = text->toPlainText();
        QModelIndex index = tree->model()->index(0, 0);
        for (int row = 0; row < 5 && tree->selectionModel()->isSelected(index); ++row)
            index = tree->indexBelow(index);
        const QPoint place = tree->visualRect(index).center();
        m_awaited = text->viewport();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            send<QMouseEvent>(tree->viewport(), type, QPointF(place),
                              tree->viewport()->mapToGlobal(QPointF(place)), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
        await("click", [&] { return !m_awaited && tree->selectionModel()->isSelected(index); });
        std::printf("%f %f %f %f\n", opened, key, now(), processorTime() - m_sinceProcessor);
        return true;
    }

private:
    double now() const { return double(m_timer.nsecsElapsed()) / 1e6; }

    void notePaint(QObject *receiver)
    {
        if (receiver == &m_window && !std::exchange(m_isPainted, true))
            m_timer.start();
        if (receiver == m_awaited)
            m_awaited = nullptr;
    }

    template<typename Event, typename... Arguments>
    void send(QObject *receiver, Arguments &&...arguments)
    {
        Event event(std::forward<Arguments>(arguments)...);
        QCoreApplication::sendEvent(receiver, &event);
    }

    template<typename Condition>
    void await(const char *what, const Condition &condition) const
    {
        QElapsedTimer waited;
        waited.start();
        while (!condition()) {
            if (waited.elapsed() > longestMilliseconds)
                qFatal("the window does not answer: %s", what);
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
        }
    }

    Application &m_application;
    desktop::MainWindow &m_window;
    QElapsedTimer m_timer; ///< since the first paint
    double m_sinceProcessor = 0;
    bool m_isPainted = false;
    QObject *m_awaited = nullptr; ///< of which a paint is awaited
};

int runRound(int argc, char *argv[], const QString &project)
{
    Application application(argc, argv);
    using desktop::StartUp;
    StartUp::identify(QStringLiteral("0"));
    app::Settings settings;
    settings.set(app::settings::welcomed, QStringLiteral("true"));
    desktop::Launch launch;
    launch.options.projectPath = project;
    StartUp startUp(launch, settings);
    QTimer alarm; // so that waiting comes to an end
    alarm.start(longestMilliseconds / 2);
    startUp.showWindow();
    Round round(application, startUp.window());
    const bool isDone = round.run();
    application.painted = {};
    startUp.window().workspace().undo();
    return isDone ? 0 : 1;
}

void print(const char *what, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    std::printf("%-46s %6.1f ms (median), %6.1f ms (least), %6.1f ms (most)\n", what,
                times[times.size() / 2], times.front(), times.back());
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc > 2 && qstrcmp(argv[1], "--round") == 0)
        return runRound(argc, argv, QString::fromLocal8Bit(argv[2]));
    const QCoreApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("Usage: bench_firstkey PROJECT [ROUNDS]\n", stderr);
        return 2;
    }
    const int rounds = argc > 2 ? QByteArray(argv[2]).toInt() : 9;
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        environment.insert(QLatin1String(name), home.path());
    std::vector<double> times[4];
    for (int round = 0; round <= rounds; ++round) { // the first leaves a document to be shown
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--round"), QString::fromLocal8Bit(argv[1])});
        process.waitForFinished(-1);
        const QList<QByteArray> numbers = process.readAllStandardOutput().trimmed().split(' ');
        if (process.exitCode() != 0 || numbers.size() != 4) {
            std::fputs(process.readAllStandardError().constData(), stderr);
            return 1;
        }
        for (int i = 0; i < 4 && round > 0; ++i)
            times[i].push_back(numbers[i].toDouble());
    }
    std::printf("after the first paint, %d starts:\n", rounds);
    print("  the project is open", times[0]);
    print("  a key shows in the editor", times[1]);
    print("  a click into the tree has shown its document", times[2]);
    print("  processor time taken until then", times[3]);
    return 0;
}
