#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtCore/QThread>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <vector>

#include <unistd.h>

namespace {

constexpr int rounds = 9;
constexpr int longestMilliseconds = 20'000;
constexpr int idleSeconds = 30;
constexpr int settleMilliseconds = 6000; // the check for updates and the like are over by then
constexpr quint32 ground = 0x123456;     // a colour that no window has

struct Free
{
    void operator()(void *pointer) const { std::free(pointer); }
};
template<typename T>
using Reply = std::unique_ptr<T, Free>;

/// The screen, looked at from outside: a window counts as painted when none of a row of points on
/// it shows the ground any more.
class Screen
{
public:
    Screen()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(m_connection) != 0)
            qFatal("There is no X server; try xvfb-run.");
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        xcb_change_window_attributes(m_connection, m_screen->root, XCB_CW_BACK_PIXEL, &ground);
        xcb_clear_area(m_connection, 0, m_screen->root, 0, 0, 0, 0);
        xcb_flush(m_connection);
    }
    ~Screen() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(Screen)

    /// Waits until no window is left that could be taken for the one of the next run.
    void awaitBare() const
    {
        QElapsedTimer waited;
        waited.start();
        while (hasPaintedWindow()) {
            if (waited.elapsed() > longestMilliseconds)
                qFatal("Another window is on the screen.");
            QThread::msleep(5);
        }
    }

    bool hasPaintedWindow() const
    {
        const Reply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
            m_connection, xcb_query_tree(m_connection, m_screen->root), nullptr));
        if (!tree)
            return false;
        const xcb_window_t *children = xcb_query_tree_children(tree.get());
        for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i)
            if (isPainted(children[i]))
                return true;
        return false;
    }

private:
    bool isPainted(xcb_window_t window) const
    {
        const Reply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
            m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
        const Reply<xcb_get_geometry_reply_t> place(
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
        constexpr int smallest = 300; // pixels, of what is no tool tip or helper
        if (!attributes || !place || attributes->map_state != XCB_MAP_STATE_VIEWABLE
            || place->width < smallest || place->height < smallest)
            return false;
        const int right = std::min<int>(m_screen->width_in_pixels, place->x + place->width);
        const Reply<xcb_get_image_reply_t> row(xcb_get_image_reply(
            m_connection,
            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root,
                          qint16(std::max<int>(0, place->x)), qint16(place->y + place->height / 2),
                          quint16(right - std::max<int>(0, place->x)), 1, ~0U),
            nullptr));
        if (!row)
            return false;
        const auto *pixels = reinterpret_cast<const quint32 *>(xcb_get_image_data(row.get()));
        const auto *end = pixels + xcb_get_image_data_length(row.get()) / int(sizeof *pixels);
        constexpr quint32 colour = 0xffffff;
        return std::none_of(pixels, end, [](quint32 pixel) {
            const quint32 seen = pixel & colour;
            return seen == ground || seen == 0; // a window without a ground of its own is black
        });
    }

    xcb_connection_t *m_connection;
    xcb_screen_t *m_screen;
};

double medianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The processor time that a process has taken so far, ended threads included, in milliseconds.
double processorTime(qint64 process)
{
    clockid_t clock{};
    timespec time{};
    if (clock_getcpuclockid(pid_t(process), &clock) != 0 || clock_gettime(clock, &time) != 0)
        qFatal("the program has ended");
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// A program run in a fresh home of its own: nothing of the user's is touched, and no run finds
/// what another one left.
class Run
{
public:
    Run(const QString &program, const QStringList &arguments)
    {
        const QString home = m_home.path();
        QSettings settings(m_home.filePath(QStringLiteral(".config/Quessel Games/Ivorel.conf")),
                           QSettings::NativeFormat);
        settings.setValue(QStringLiteral("onboarding/welcomed"), QStringLiteral("true"));
        settings.setValue(QStringLiteral("general/autoUpdateCheck"), QStringLiteral("false"));
        settings.sync();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home);
        environment.insert(QStringLiteral("TMPDIR"), home);
        environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
        environment.remove(QStringLiteral("XDG_DATA_HOME"));
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        m_process.setProcessEnvironment(environment);
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_timer.start();
        m_process.start(program, arguments);
        if (!m_process.waitForStarted())
            qFatal("%s does not start", qUtf8Printable(program));
    }
    ~Run()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Run)

    qint64 id() const { return m_process.processId(); }
    /// Milliseconds from the start until a window is painted.
    double firstPaint(const Screen &screen) const
    {
        while (!screen.hasPaintedWindow()) {
            if (m_timer.elapsed() > longestMilliseconds)
                qFatal("no window was painted");
            QThread::usleep(500);
        }
        return double(m_timer.nsecsElapsed()) / 1e6;
    }
    /// Milliseconds from the start until the process begins to rest for a while, with all its
    /// threads: while the project is read, the one of the interface waits.
    double rest() const
    {
        constexpr int restMilliseconds = 150;
        QElapsedTimer still;
        still.start();
        double before = processorTime(id());
        double last = double(m_timer.nsecsElapsed()) / 1e6;
        while (still.elapsed() < restMilliseconds && m_timer.elapsed() < longestMilliseconds) {
            QThread::msleep(2);
            const double now = processorTime(id());
            if (now - before < 0.5)
                continue; // a blinking caret is no work
            before = now;
            last = double(m_timer.nsecsElapsed()) / 1e6;
            still.restart();
        }
        return last;
    }

private:
    QTemporaryDir m_home;
    QProcess m_process;
    QElapsedTimer m_timer;
};

/// What the starts of one program took until the first painted window.
struct Starts
{
    std::vector<double> wall;
    std::vector<double> processor; ///< of all its threads

    void add(const QString &program, const Screen &screen)
    {
        screen.awaitBare();
        const Run run(program, {});
        add(run, screen);
    }
    void add(const Run &run, const Screen &screen)
    {
        wall.push_back(run.firstPaint(screen));
        processor.push_back(processorTime(run.id()));
    }
};

void print(QTextStream &out, const QString &what, const Starts &starts, const Starts &least)
{
    const double wall = medianOf(starts.wall);
    const double processor = medianOf(starts.processor);
    out << what << wall << " ms (" << wall / medianOf(least.wall) << " times the bare one), "
        << processor << " ms of processor time (" << processor / medianOf(least.processor)
        << " times)\n";
}

} // namespace

/// Prints how long the program takes from its start to the first painted window, beside the least
/// program of its toolkit, in turns; how soon after that it is at hand with the project that the
/// first argument names; and, without --starts-only, what it takes of the processor while nobody
/// does anything.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const Screen screen;
    const QString bare = QStringLiteral(IVOREL_BARE);
    const QString program = QStringLiteral(IVOREL_PROGRAM);
    QStringList project = QCoreApplication::arguments().mid(1);
    const bool isIdleMeasured = project.removeAll(QStringLiteral("--starts-only")) == 0;
    Starts least;
    Starts empty;
    Starts withProject;
    std::vector<double> restTimes;
    for (int round = 0; round < rounds; ++round) {
        least.add(bare, screen);
        empty.add(program, screen);
        if (project.isEmpty())
            continue;
        screen.awaitBare();
        const Run run(program, project);
        withProject.add(run, screen);
        restTimes.push_back(run.rest() - withProject.wall.back());
    }
    QTextStream out(stdout);
    print(out, QStringLiteral("bare window:   "), least, least);
    print(out, QStringLiteral("empty:         "), empty, least);
    if (!project.isEmpty()) {
        print(out, QStringLiteral("with project:  "), withProject, least);
        out << "at hand with the project " << medianOf(restTimes) << " ms after that\n";
    }
    out.flush();
    if (!isIdleMeasured)
        return 0;

    screen.awaitBare();
    const Run run(program, project);
    run.firstPaint(screen);
    QThread::msleep(settleMilliseconds);
    const double before = processorTime(run.id());
    QThread::sleep(idleSeconds);
    out << "idle:               " << (processorTime(run.id()) - before) / idleSeconds
        << " ms of processor time a second\n";
    return 0;
}
