// How long a save holds the interface thread: the call that chooses what is written, and the event
// that takes the result in. The writing itself happens on another thread.

#include "app/storage/openproject.h"
#include "benchmarks/support/generatedproject.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"

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

constexpr int rounds = 100;

double milliseconds(qint64 nanoseconds)
{
    return double(nanoseconds) / 1e6;
}

bool measure(const char *name, const QString &path, int objects)
{
    auto opened = app::OpenProject::open(path);
    if (!opened) {
        std::printf("%s: %s\n", name, qPrintable(opened.message()));
        return false;
    }
    app::OpenProject &open = **opened;
    const std::vector<core::Document *> documents = open.project().all<core::Document>();

    std::vector<double> held;
    std::vector<double> whole;
    for (int round = 0; round < rounds; ++round) {
        core::Document &document = *documents[size_t(round * 37) % documents.size()];
        open.push(std::make_unique<core::SetDocumentBodyCommand>(
            document, document.body() + QStringLiteral(" More words.")));
        bool failed = false;
        QEventLoop loop;
        QObject::connect(&open, &app::OpenProject::saved, &loop, &QEventLoop::quit);
        QObject::connect(&open, &app::OpenProject::saveFailed, &loop, [&] {
            failed = true;
            loop.quit();
        });
        QElapsedTimer timer;
        timer.start();
        open.saveInBackground();
        held.push_back(milliseconds(timer.nsecsElapsed()));
        loop.exec();
        whole.push_back(milliseconds(timer.nsecsElapsed()));
        if (failed || open.isDirty()) {
            std::printf("%s: a save failed\n", name);
            return false;
        }
    }
    std::sort(held.begin(), held.end());
    std::sort(whole.begin(), whole.end());
    std::printf("%-7s %6d objects: interface thread held %.2f ms (median), %.2f ms (99th "
                "percentile), %.2f ms (most); until it is on disk %.1f ms (median)\n",
                name, objects, held[rounds / 2], held[rounds - 2], held[rounds - 1],
                whole[rounds / 2]);
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const int objects = argc > 1 ? QByteArray(argv[1]).toInt() : 10000;
    const QTemporaryDir dir(QStringLiteral("/dev/shm/ivorel-bench-XXXXXX"));
    qputenv("XDG_DATA_HOME", dir.path().toLocal8Bit());

    app::OpenProject fresh;
    const std::unique_ptr<core::Project> made = bench::generateProject(objects);
    for (const core::ContentId &id : made->ids())
        fresh.project().add(made->take(id));
    const QString folder = dir.filePath(QStringLiteral("folder"));
    const QString bundle = dir.filePath(QStringLiteral("project.vellum"));
    if (!fresh.saveAsFolder(folder) || !fresh.saveAsBundle(bundle)) {
        std::printf("the project could not be written to %s\n", qPrintable(dir.path()));
        return 1;
    }
    return measure("folder", folder, objects) && measure("bundle", bundle, objects) ? 0 : 1;
}
