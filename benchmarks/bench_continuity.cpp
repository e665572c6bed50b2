#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"
#include "app/time/continuitychecker.h"
#include "core/content/entity.h"
#include "core/content/map.h"
#include "core/content/timeline.h"
#include "core/project.h"

#include <QtConcurrent/QtConcurrentMap>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>

using namespace vl::core;

namespace {

constexpr int routeCount = 1000;
constexpr int placeCount = 500;

std::vector<ContentId> newIds(QRandomGenerator &random, qsizetype count)
{
    std::vector<ContentId> ids;
    for (qsizetype i = 0; i < count; ++i)
        ids.push_back(ContentId(QUuid(random.generate(), quint16(random.generate()), 0x4abc, 0x9a,
                                      1, 2, 3, 4, 5, quint8(random.generate()), quint8(i))));
    // In their order, as they come from a folder: objects then lie in memory in the order of ids.
    std::sort(ids.begin(), ids.end());
    return ids;
}

/// A project with a thousand routes whose events have so many participants each, out of so many
/// people; a few of the events contradict each other.
void fill(Project &project, qsizetype events, qsizetype people, int participants,
          qint64 minutesBetween)
{
    QRandomGenerator random(11);
    const std::vector<ContentId> peopleIds = newIds(random, people);
    const std::vector<ContentId> placeIds = newIds(random, placeCount);
    const std::vector<ContentId> eventIds = newIds(random, events);
    for (const std::vector<ContentId> *ids : {&peopleIds, &placeIds}) {
        for (const ContentId &id : *ids)
            project.add(std::make_unique<Entity>(id, ContentId(), id.toString().left(8)));
    }
    const auto pick = [&random](const std::vector<ContentId> &ids) {
        return ids[size_t(random.bounded(int(ids.size())))];
    };
    auto map = std::make_unique<Map>(ContentId::create(), QString());
    map->setTravelSettings({5, QStringLiteral("league"), 0});
    QList<MapRoute> routes;
    for (int i = 0; i < routeCount; ++i)
        routes.append({pick(placeIds), pick(placeIds), double(random.bounded(100))});
    map->setRoutes(routes);
    project.add(std::move(map));

    for (qsizetype i = 0; i < events; ++i) {
        TimelineEventData data;
        data.title = QStringLiteral("Event %1").arg(i);
        data.startMinute = qint64(i * 7919 % events) * minutesBetween + random.bounded(60);
        data.durationMinutes = random.bounded(60);
        data.locationId = pick(placeIds);
        for (int j = 0; j < participants; ++j)
            data.participants.append(pick(peopleIds));
        if (i % 10 == 0)
            data.constraints.append({pick(eventIds), QStringLiteral("after")});
        project.add(std::make_unique<TimelineEvent>(eventIds[size_t(i)], data));
    }
}

void check(benchmark::State &state, const Project &project)
{
    qsizetype findings = 0;
    for (auto _ : state)
        findings = vl::app::findTimelineConflicts(project).size();
    state.counters["findings"] = double(findings);
    state.SetComplexityN(state.range(0));
}

void manyPeople(benchmark::State &state)
{
    Project project;
    fill(project, state.range(0), state.range(0) / 10, 3, 60);
    check(state, project);
}

void onePerson(benchmark::State &state)
{
    Project project;
    fill(project, state.range(0), 1, 1, 110);
    check(state, project);
}

/// One person who stays at one place for very long, in events that all go on at once.
void longStays(benchmark::State &state)
{
    Project project;
    fill(project, state.range(0), 1, 1, 110);
    const std::vector<TimelineEvent *> events = project.all<TimelineEvent>();
    for (TimelineEvent *event : events) {
        TimelineEventData data = event->data();
        data.locationId = events.front()->data().locationId;
        data.durationMinutes = 1'000'000'000;
        event->setData(data);
    }
    check(state, project);
}

/// The folder of a project of the size that the benchmark asks for, written once; empty when it
/// could not be written.
QString projectFolder(const benchmark::State &state)
{
    static std::map<std::pair<qint64, qint64>, QTemporaryDir> folders;
    const auto [entry, isNew] = folders.try_emplace({state.range(0), state.range(1)});
    if (isNew) {
        Project project;
        const bool isOnePerson = state.range(1) == 1;
        fill(project, state.range(0), isOnePerson ? 1 : state.range(0) / 10, isOnePerson ? 1 : 3,
             100);
        if (!vl::app::saveProject(project, entry->second.path(), vl::app::Durability::Atomic))
            return {};
    }
    return entry->second.path();
}

void loadAndCheck(benchmark::State &state)
{
    const QString folder = projectFolder(state);
    for (auto _ : state) {
        const auto project = vl::app::loadProject(folder);
        if (!project) {
            state.SkipWithError("cannot read the project");
            break;
        }
        benchmark::DoNotOptimize(vl::app::findTimelineConflicts(**project).size());
    }
    state.SetComplexityN(state.range(0));
}

/// What reading the same files costs with the toolkit alone, on all cores.
void parseFiles(benchmark::State &state)
{
    const QString folder = projectFolder(state);
    for (auto _ : state) {
        QStringList paths;
        QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next());
        const auto parse = [](const QString &path) {
            QFile file(path);
            return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll())
                                                  : QJsonDocument();
        };
        benchmark::DoNotOptimize(QtConcurrent::blockingMapped<QList<QJsonDocument>>(paths, parse));
    }
    state.SetComplexityN(state.range(0));
}

} // namespace

BENCHMARK(manyPeople)
    ->Arg(12'500)
    ->Arg(25'000)
    ->Arg(50'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(onePerson)
    ->Arg(12'500)
    ->Arg(25'000)
    ->Arg(50'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(longStays)
    ->Arg(12'500)
    ->Arg(25'000)
    ->Arg(50'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

BENCHMARK(loadAndCheck)
    ->ArgsProduct({{12'500, 25'000, 50'000}, {0, 1}})
    ->ArgNames({"events", "onePerson"})
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();
BENCHMARK(parseFiles)
    ->ArgsProduct({{50'000}, {0, 1}})
    ->ArgNames({"events", "onePerson"})
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();
