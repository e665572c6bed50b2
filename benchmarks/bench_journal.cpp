// What the journal costs a writer: how long the interface thread is held when a burst of typing is
// written down, and how long after that all of it is on the disk. In a document of two pages of a
// project of 50 000 objects, as a folder and as a bundle, and in one document of 250 000 words.
//
// bench_journal [objects] [bursts]

#include "app/models/journalkeeper.h"
#include "app/models/workspace.h"
#include "benchmarks/support/generatedproject.h"
#include "core/commands/documentcommands.h"
#include "desktop/editor/livedocument.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QTextCursor>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

using namespace vl;

constexpr qsizetype longBody = 1'500'000; // characters, some 250 000 words
constexpr int keysOfABurst = 12;          // what is typed in a second
constexpr int burstsOfAStep = 3;          // until what is typed becomes a step of the history

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

/// What this thread has taken of a processor, in milliseconds: other programs do not count.
double threadTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

void print(const char *what, const char *name, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    std::printf("%-34s %-14s %.3f ms (median), %.3f ms (99th percentile), %.3f ms (most)\n", what,
                name, times[times.size() / 2],
                times[std::max<std::size_t>(times.size() * 99 / 100, 1) - 1], times.back());
}

/// Types into a document as the editor does, and has the journal write each burst down.
void measure(const char *name, app::Workspace &workspace, core::Document &document,
             const app::StorageLocations &locations, int bursts)
{
    app::JournalKeeper keeper(workspace, locations);
    desktop::LiveDocument live(document.id());
    live.setText(document.body());
    live.noteInStep(document.body());
    QObject::connect(&workspace, &app::Workspace::peekRequested, &live,
                     [&](app::PendingTexts &texts) {
                         if (live.hasTyped)
                             texts.append(live.pendingText());
                     });
    QTextCursor cursor(live.document());
    cursor.setPosition(int(document.body().size() / 2));
    std::vector<double> held;
    std::vector<double> taken;
    std::vector<double> written;
    for (int burst = 0; burst < bursts; ++burst) {
        double signalled = 0;
        double processor = 0;
        for (int key = 0; key < keysOfABurst; ++key) {
            cursor.insertText(QStringLiteral("x"));
            live.hasTyped = true;
            const double before = threadTime();
            QElapsedTimer timer;
            timer.start();
            Q_EMIT workspace.typed();
            signalled += milliseconds(timer);
            processor += threadTime() - before;
        }
        if (burst % burstsOfAStep == burstsOfAStep - 1) {
            live.noteInStep(live.text());
            workspace.push<core::SetDocumentBodyCommand>(document, live.body);
        }
        const double before = threadTime();
        QElapsedTimer timer;
        timer.start();
        workspace.flush(); // what is due is chosen now instead of in a second
        held.push_back(signalled + milliseconds(timer));
        taken.push_back(processor + threadTime() - before);
        keeper.finish();
        written.push_back(milliseconds(timer));
    }
    print("a burst, interface thread held", name, held);
    print("  the same in processor time", name, taken);
    print("a burst, until it is on the disk", name, written);
    keeper.giveUp();
    keeper.finish();
}

bool open(app::Workspace &workspace, const QString &path)
{
    auto opened = app::OpenProject::open(path);
    if (opened)
        workspace.replaceProject(*std::move(opened));
    else
        std::printf("%s\n", qPrintable(opened.message()));
    return bool(opened);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const int objects = argc > 1 ? QByteArray(argv[1]).toInt() : 50000;
    const int bursts = argc > 2 ? QByteArray(argv[2]).toInt() : 300;
    const QTemporaryDir dir;
    app::StorageLocations locations;
    locations.root = dir.filePath(QStringLiteral("data"));
    const QString folder = dir.filePath(QStringLiteral("folder"));
    const QString bundle = dir.filePath(QStringLiteral("project.vellum"));
    {
        app::OpenProject fresh;
        const std::unique_ptr<core::Project> made = bench::generateProject(objects);
        for (const core::ContentId &id : made->ids())
            fresh.project().add(made->take(id));
        if (!fresh.saveAsFolder(folder) || !fresh.saveAsBundle(bundle)) {
            std::printf("the project could not be written to %s\n", qPrintable(dir.path()));
            return 1;
        }
    }
    app::Workspace workspace;
    for (const auto &[name, path] : {std::pair("folder", folder), std::pair("bundle", bundle)}) {
        if (!open(workspace, path))
            return 1;
        const auto documents = workspace.project().all<core::Document>();
        measure(name, workspace, *documents[documents.size() / 2], locations, bursts);
    }
    core::Document &document = *workspace.project().all<core::Document>().front();
    QString body;
    while (body.size() < longBody)
        body += workspace.project().all<core::Document>()[3]->body();
    document.setBody(body);
    measure("250 000 words", workspace, document, locations, bursts);
    return 0;
}
