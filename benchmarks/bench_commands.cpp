#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commands/workcommands.h"
#include "core/commandstack.h"

#include <benchmark/benchmark.h>

#include <random>

// One command and its undo in a project of 50 000 objects.

using namespace vl::core;

namespace {

constexpr int documentCount = 40000;
constexpr int entityCount = 9000;
constexpr int taskCount = 1000;
constexpr int categoryCount = 200;

/// Twenty books of forty chapters with fifty scenes each, and their world.
struct World
{
    World()
    {
        std::vector<ContentId> books;
        std::vector<ContentId> chapters;
        const auto addDocument = [this](const ContentId &parentId, qint32 index) {
            auto document = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose,
                                                       QStringLiteral("A scene"));
            document->setParentId(parentId);
            document->setSortIndex(index);
            document->setBody(QString(2000, QLatin1Char('x')));
            const ContentId id = document->id();
            project.add(std::move(document));
            return id;
        };
        for (int i = 0; i < 20; ++i)
            books.push_back(addDocument(ContentId(), i));
        for (int i = 0; i < 800; ++i)
            chapters.push_back(addDocument(books[std::size_t(i / 40)], i % 40));
        for (int i = 820; i < documentCount; ++i)
            scenes.push_back(addDocument(chapters[std::size_t(i % 800)], i / 800));
        target = chapters.back();

        for (int i = 0; i < categoryCount; ++i) {
            Category category;
            category.id = ContentId::create();
            category.name = QStringLiteral("Category %1").arg(i);
            category.parentId = i < 20 ? ContentId() : categories[std::size_t(i % 20)];
            project.editTaxonomy().add(category);
            categories.push_back(category.id);
        }
        for (int i = 0; i < entityCount; ++i) {
            entities.push_back(ContentId::create());
            project.add(std::make_unique<Entity>(entities.back(),
                                                 categories[std::size_t(i % categoryCount)],
                                                 QStringLiteral("Somebody")));
        }
        for (int i = 0; i < taskCount; ++i) {
            tasks.push_back(ContentId::create());
            auto task = std::make_unique<Task>(tasks.back(), QStringLiteral("To do"));
            task->setSortIndex(i);
            project.add(std::move(task));
        }
    }

    Project project;
    std::vector<ContentId> scenes;
    std::vector<ContentId> entities;
    std::vector<ContentId> tasks;
    std::vector<ContentId> categories;
    ContentId target;
    std::minstd_rand random{1};

    const ContentId &any(const std::vector<ContentId> &ids) { return ids[random() % ids.size()]; }
};

World &world()
{
    static World instance;
    return instance;
}

template<typename Make>
void run(benchmark::State &state, const Make &make)
{
    World &all = world();
    CommandStack stack;
    qsizetype touched = 0;
    stack.setListener([&touched](const ChangeSet &changes) {
        touched += qsizetype(changes.objects().size() + changes.categories().size());
    });
    for (auto _ : state) {
        stack.push(make(all));
        stack.undo();
    }
    state.counters["touched"] =
        benchmark::Counter(double(touched), benchmark::Counter::kAvgIterations);
}

void moveDocument(benchmark::State &state)
{
    run(state, [](World &all) {
        return std::make_unique<MoveDocumentCommand>(all.project, all.any(all.scenes), all.target,
                                                     0);
    });
}
BENCHMARK(moveDocument);

void setTitle(benchmark::State &state)
{
    run(state, [](World &all) {
        return std::make_unique<SetDocumentTitleCommand>(
            *all.project.find<Document>(all.any(all.scenes)), QStringLiteral("Another title"));
    });
}
BENCHMARK(setTitle);

void setBody(benchmark::State &state)
{
    run(state, [](World &all) {
        Document &document = *all.project.find<Document>(all.any(all.scenes));
        return std::make_unique<SetDocumentBodyCommand>(document,
                                                        document.body() + QLatin1Char('y'));
    });
}
BENCHMARK(setBody);

void addObject(benchmark::State &state)
{
    run(state, [](World &all) {
        return std::make_unique<AddObjectCommand>(
            all.project, std::make_unique<Document>(ContentId::create(), DocumentKind::Prose,
                                                    QStringLiteral("New")));
    });
}
BENCHMARK(addObject);

void removeObject(benchmark::State &state)
{
    run(state, [](World &all) {
        return std::make_unique<RemoveObjectCommand>(all.project, all.any(all.scenes));
    });
}
BENCHMARK(removeObject);

void removeCategory(benchmark::State &state)
{
    run(state, [](World &all) {
        return std::make_unique<RemoveCategoryCommand>(all.project, all.any(all.categories));
    });
}
BENCHMARK(removeCategory);

void moveTask(benchmark::State &state)
{
    run(state, [](World &all) {
        return std::make_unique<MoveTaskCommand>(all.project, all.any(all.tasks), 0);
    });
}
BENCHMARK(moveTask);

} // namespace
