// What autosave and the watch over the project's files cost: how long a save by the timer holds the
// interface thread, with one changed document and with nothing changed, and how long it takes from
// the end of the quiet time until one outside change is noticed and reconciled.
//
// bench_autosave [objects of the saves] [files of the look] [saves]

#include "app/base/files.h"
#include "app/models/autosavecontroller.h"
#include "app/models/outsidemonitor.h"
#include "app/models/workspace.h"
#include "app/storage/openproject.h"
#include "app/storage/projectpaths.h"
#include "benchmarks/support/generatedproject.h"
#include "core/commands/documentcommands.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace vl;

int rounds = 100;

double milliseconds(qint64 nanoseconds)
{
    return double(nanoseconds) / 1e6;
}

void print(const char *what, const char *name, int objects, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    std::printf("%-34s %-7s %6d objects: %.3f ms (median), %.3f ms (99th percentile), %.3f ms "
                "(most)\n",
                what, name, objects, times[times.size() / 2],
                times[std::max<std::size_t>(times.size() * 99 / 100, 1) - 1], times.back());
}

/// Notes how long each event holds the thread; the sum of all while it is told to.
class HoldingTimer final : public QObject
{
public:
    double most = 0;

    template<typename Work>
    void run(const Work &work)
    {
        QElapsedTimer timer;
        timer.start();
        work();
        most = std::max(most, milliseconds(timer.nsecsElapsed()));
    }
};

/// The application, which measures every event that it delivers.
class Application final : public QCoreApplication
{
public:
    using QCoreApplication::QCoreApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        bool result = false;
        if (isInside) // of an event that is measured already
            return QCoreApplication::notify(receiver, event);
        isInside = true;
        holding.run([&] { result = QCoreApplication::notify(receiver, event); });
        isInside = false;
        return result;
    }

    HoldingTimer holding;
    bool isInside = false;
};

bool measureSaves(Application &application, const char *name, const QString &path, int objects)
{
    auto opened = app::OpenProject::open(path);
    if (!opened) {
        std::printf("%s: %s\n", name, qPrintable(opened.message()));
        return false;
    }
    app::OpenProject &open = **opened;
    app::AutosaveController autosave(open);
    const std::vector<core::Document *> documents = open.project().all<core::Document>();
    std::vector<double> held;
    std::vector<double> idle;
    bool failed = false;
    QEventLoop loop;
    QObject::connect(&autosave, &app::AutosaveController::saved, &loop, &QEventLoop::quit);
    QObject::connect(&autosave, &app::AutosaveController::saveFailed, &loop, [&] {
        failed = true;
        loop.quit();
    });
    for (int round = 0; round < rounds && !failed; ++round) {
        core::Document &document = *documents[size_t(round * 37) % documents.size()];
        open.push(std::make_unique<core::SetDocumentBodyCommand>(
            document, document.body() + QStringLiteral(" More words.")));
        application.holding.most = 0;
        application.holding.run([&] { autosave.saveNow(); });
        loop.exec(); // the events with the result are measured too
        held.push_back(application.holding.most);
        QElapsedTimer timer;
        timer.start();
        autosave.saveNow();
        idle.push_back(milliseconds(timer.nsecsElapsed()));
    }
    if (failed || open.isDirty()) {
        std::printf("%s: a save failed\n", name);
        return false;
    }
    print("one changed document, thread held", name, objects, held);
    print("nothing changed, thread held", name, objects, idle);
    return true;
}

bool measureLook(const char *name, const QString &path, int files)
{
    constexpr int looks = 20;
    auto opened = app::OpenProject::open(path);
    if (!opened) {
        std::printf("%s: %s\n", name, qPrintable(opened.message()));
        return false;
    }
    app::Workspace workspace;
    workspace.replaceProject(*std::move(opened));
    app::OutsideMonitor monitor(workspace);
    QEventLoop loop;
    QObject::connect(&monitor, &app::OutsideMonitor::nothingFound, &loop, &QEventLoop::quit);
    QObject::connect(&monitor, &app::OutsideMonitor::offerChanged, &loop, &QEventLoop::quit);
    QObject::connect(&monitor, &app::OutsideMonitor::done, &loop, &QEventLoop::quit);
    monitor.check();
    loop.exec();

    std::vector<double> times;
    for (int look = 0; look < looks; ++look) {
        const auto *document = workspace.project().all<core::Document>()[size_t(look)];
        // Others write a file while an edit of another paragraph of it is unsaved here.
        const QString body = document->body();
        const auto theirs = app::OpenProject::open(path);
        if (!theirs)
            return false;
        (*theirs)->push(std::make_unique<core::SetDocumentBodyCommand>(
            *(*theirs)->project().find<core::Document>(document->id()),
            body + QStringLiteral("\n\nTheirs.")));
        if (!(*theirs)->save())
            return false;
        monitor.watcher().setDelays(60000, 60000); // the quiet time is over
        QElapsedTimer timer;
        timer.start();
        monitor.check();
        loop.exec();
        times.push_back(milliseconds(timer.nsecsElapsed()));
        if (monitor.offer().files != 1) {
            std::printf("%s: the change was not found\n", name);
            return false;
        }
        monitor.load();
        loop.exec();
    }
    print("noticing one outside change", name, files, times);
    return true;
}

/// Writes a generated project as a folder and as a bundle.
bool generate(int objects, const QString &folder, const QString &bundle)
{
    app::OpenProject fresh;
    const std::unique_ptr<core::Project> made = bench::generateProject(objects);
    for (const core::ContentId &id : made->ids())
        fresh.project().add(made->take(id));
    return fresh.saveAsFolder(folder) && fresh.saveAsBundle(bundle);
}

} // namespace

int main(int argc, char *argv[])
{
    Application application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const int objects = argc > 1 ? QByteArray(argv[1]).toInt() : 50000;
    const int files = argc > 2 ? QByteArray(argv[2]).toInt() : 10000;
    rounds = argc > 3 ? QByteArray(argv[3]).toInt() : rounds;
    const QTemporaryDir dir(QStringLiteral("/dev/shm/ivorel-bench-XXXXXX"));
    qputenv("XDG_DATA_HOME", dir.path().toLocal8Bit());
    const QString paths[] = {
        dir.filePath(QStringLiteral("folder")), dir.filePath(QStringLiteral("project.vellum")),
        dir.filePath(QStringLiteral("small")), dir.filePath(QStringLiteral("small.vellum"))};
    if (!generate(objects, paths[0], paths[1]) || !generate(files, paths[2], paths[3])) {
        std::printf("the project could not be written to %s\n", qPrintable(dir.path()));
        return 1;
    }
    return measureSaves(application, "folder", paths[0], objects)
                   && measureSaves(application, "bundle", paths[1], objects)
                   && measureLook("folder", paths[2], files)
                   && measureLook("bundle", paths[3], files)
               ? 0
               : 1;
}
