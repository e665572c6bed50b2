#include "app/base/settings.h"
#include "app/models/projectsearchmodel.h"
#include "app/models/quickopenmodel.h"
#include "app/models/workspace.h"
#include "benchmarks/support/generatedproject.h"
#include "core/content/document.h"
#include "desktop/dialogs/palette.h"

#include <benchmark/benchmark.h>

#include <QtCore/QEventLoop>
#include <QtCore/QTemporaryDir>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

using namespace vl;

namespace {

constexpr int objects = 10000;

void needApplication()
{
    static int argc = 1;
    static char name[] = "bench_quickopen";
    static char *argv[] = {name, nullptr};
    if (!qApp) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        new QApplication(argc, argv); // lives as long as the program
    }
}

/// A workspace with a generated project of 10 000 objects.
struct Desk
{
    QTemporaryDir dir;
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    app::Workspace workspace;

    Desk()
    {
        const std::unique_ptr<core::Project> generated = bench::generateProject(objects);
        core::Project &project = workspace.project();
        for (const core::ContentId &id : generated->ids())
            project.add(generated->take(id));
        for (const core::ContentId &id : generated->taxonomy().ids())
            project.editTaxonomy().add(*generated->taxonomy().find(id));
    }
};

/// The first look at a project: the index is made, and everything is listed.
void openFirst(benchmark::State &state)
{
    Desk desk;
    for (auto _ : state) {
        app::QuickOpenModel model(desk.workspace, desk.settings);
        model.start({});
        benchmark::DoNotOptimize(model.rowCount());
        model.setQuery(QStringLiteral("l"));
        benchmark::DoNotOptimize(model.rowCount());
    }
}
BENCHMARK(openFirst)->Unit(benchmark::kMillisecond);

/// One key, from what matches almost everything to what matches nothing as it is typed.
void key(benchmark::State &state, const QString &query)
{
    Desk desk;
    app::QuickOpenModel model(desk.workspace, desk.settings);
    model.start({});
    for (auto _ : state) {
        model.setQuery(query);
        benchmark::DoNotOptimize(model.rowCount());
    }
    state.counters["found"] = double(model.totalCount());
}
BENCHMARK_CAPTURE(key, one_letter, QStringLiteral("e"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key, a_word, QStringLiteral("lamp"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key, two_words, QStringLiteral("harb scene"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key, mistyped, QStringLiteral("harbuorx"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key, long_nonsense, QStringLiteral("the quick lamp turned slowly and waited"))
    ->Unit(benchmark::kMillisecond);

/// The palette as it is opened and painted, and as it answers a key on the screen.
void paletteOnScreen(benchmark::State &state, bool opens)
{
    needApplication();
    Desk desk;
    app::QuickOpenModel model(desk.workspace, desk.settings);
    QWidget window;
    window.resize(1280, 800);
    window.show();
    QApplication::processEvents();
    std::unique_ptr<desktop::Palette> palette;
    const auto open = [&] {
        palette = std::make_unique<desktop::Palette>(
            model, [](const auto &) {}, &window);
        model.start({});
        palette->start();
        palette->repaint();
        QApplication::processEvents();
    };
    if (!opens)
        open();
    bool odd = false;
    for (auto _ : state) {
        if (opens) {
            open();
            continue;
        }
        auto *field = palette->findChild<QLineEdit *>();
        field->setText((odd = !odd) ? QStringLiteral("lam") : QStringLiteral("lamp"));
        QApplication::processEvents();
        palette->repaint();
    }
}
BENCHMARK_CAPTURE(paletteOnScreen, open, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paletteOnScreen, key, false)->Unit(benchmark::kMillisecond);

/// All texts of a project of at least 250 000 words.
std::vector<app::SearchText> texts(const Desk &desk)
{
    return app::searchTexts(desk.workspace.project(), app::everywhere);
}

/// The part of a search that holds the interface: taking the texts.
void collectTexts(benchmark::State &state)
{
    const Desk desk;
    for (auto _ : state)
        benchmark::DoNotOptimize(texts(desk));
}
BENCHMARK(collectTexts)->Unit(benchmark::kMillisecond);

void searchTexts(benchmark::State &state, bool isExpression)
{
    const Desk desk;
    const auto all = texts(desk);
    const auto pattern = app::SearchPattern::compile(
        {isExpression ? QStringLiteral("l[ao]mps?") : QStringLiteral("lamp"), false, false,
         isExpression});
    qsizetype places = 0;
    qsizetype units = 0;
    for (const app::SearchText &text : all)
        units += text.text.size();
    for (auto _ : state)
        for (const app::SearchText &text : all)
            pattern->find(text.text, [&places](const app::SearchMatch &) {
                ++places;
                return true;
            });
    state.SetBytesProcessed(int64_t(state.iterations()) * units * 2);
    state.counters["places"] = double(places) / double(state.iterations());
}
BENCHMARK_CAPTURE(searchTexts, plain, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchTexts, expression, true)->Unit(benchmark::kMillisecond);

/// The peer: the toolkit's expressions over the same texts, with nothing around them.
void peerLoop(benchmark::State &state, const QString &pattern)
{
    const Desk desk;
    const auto all = texts(desk);
    const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    qsizetype places = 0;
    for (auto _ : state)
        for (const app::SearchText &text : all)
            for (auto match = expression.globalMatch(text.text); match.hasNext(); match.next())
                ++places;
    state.counters["places"] = double(places) / double(state.iterations());
}
BENCHMARK_CAPTURE(peerLoop, plain, QStringLiteral("lamp"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(peerLoop, expression, QStringLiteral("l[ao]mps?"))->Unit(benchmark::kMillisecond);

/// From the start of a search to its end with all rows listed, on two threads.
void wholeSearch(benchmark::State &state)
{
    needApplication();
    Desk desk;
    app::ProjectSearchModel model(desk.workspace);
    for (auto _ : state) {
        model.start({QStringLiteral("lamp")}, app::everywhere);
        while (model.isRunning())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    state.counters["listed"] = model.placeCount();
}
BENCHMARK(wholeSearch)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
