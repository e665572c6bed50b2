#include "app/models/recentlydeleted.h"

#include "app/models/readablefile.h"
#include "app/models/workspace.h"
#include "app/storage/projectkey.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectwriter.h"
#include "core/commands/codexcommands.h"
#include "core/commands/compositecommand.h"
#include "core/commands/objectcommands.h"
#include "core/content/document.h"
#include "core/content/entity.h"

#include <QtCore/QSet>
#include <QtCore/QUuid>

#include <algorithm>

namespace vl::app {

namespace {

bool isThere(const core::Project &project, const QString &path)
{
    return project.contains(objectIdOf(path)) || project.taxonomy().contains(categoryIdOf(path));
}

/// The deleted things of one step: each below its parent, when that went along with it.
std::vector<DeletedItem> itemsOf(const core::Project &project, const std::vector<FileChange> &files)
{
    const ReadContents read = contentsOf(files);
    std::map<QString, core::ContentId> parents; // of documents
    for (const auto &object : read.contents.objects) {
        if (const auto *document = core::contentCast<core::Document>(object.get()))
            parents[objectPath(document->id())] = document->parentId();
    }
    std::map<core::ContentId, std::vector<const FileChange *>> children;
    std::vector<std::pair<const FileChange *, int>> open; // to be listed, with their depth
    for (const FileChange &file : files) {
        const auto parent = parents.find(file.path);
        if (read.unreadable.contains(file.path))
            continue;
        if (parent != parents.end() && parents.contains(objectPath(parent->second)))
            children[parent->second].push_back(&file);
        else
            open.emplace_back(&file, 0);
    }
    std::reverse(open.begin(), open.end());
    std::vector<DeletedItem> items;
    const auto list = [&] {
        while (!open.empty()) {
            const auto [file, depth] = open.back();
            open.pop_back();
            items.push_back({file->path, readableName(file->path, *file->bytes),
                             readableFile(*file->bytes, &project), depth});
            const auto below = children.find(objectIdOf(file->path));
            if (below == children.end())
                continue;
            for (auto child = below->second.rbegin(); child != below->second.rend(); ++child)
                open.emplace_back(*child, depth + 1);
            children.erase(below);
        }
    };
    list();
    while (!children.empty()) { // parents of each other
        open.emplace_back(children.begin()->second.back(), 0);
        children.begin()->second.pop_back();
        if (children.begin()->second.empty())
            children.erase(children.begin());
        list();
    }
    return items;
}

} // namespace

RecentlyDeleted::RecentlyDeleted(Workspace &workspace, StorageLocations locations, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_locations(std::move(locations))
    , m_untitled(QStringLiteral("untitled-") + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    m_pool.setMaxThreadCount(1);
    connect(&workspace, &Workspace::projectReplaced, this, [this] {
        m_key.clear();
        enter();
    });
    connect(&workspace, &Workspace::locationChanged, this, [this] {
        if (key() != m_key)
            enter();
    });
    connect(&workspace, &Workspace::changed, this, &RecentlyDeleted::follow);
    connect(&workspace, &Workspace::historyChanged, this, &RecentlyDeleted::keep);
    enter();
}

RecentlyDeleted::~RecentlyDeleted()
{
    m_workspace.project().setTakeListener(nullptr);
    m_pool.start([store = DeletedStore(m_untitled, m_locations)] { store.clear(); });
    m_pool.waitForDone();
}

QString RecentlyDeleted::key() const
{
    const OpenProject &project = m_workspace.current();
    return project.hasLocation() ? projectKey(project.path()) : m_untitled;
}

void RecentlyDeleted::enter()
{
    const QString before = std::exchange(m_key, key());
    const DeletedStore store(m_key, m_locations);
    // Saved at another place it is the same project, with the same past.
    if (!before.isEmpty())
        m_pool.start([store, other = DeletedStore(before, m_locations)] { store.copyFrom(other); });
    m_pool.start([store] { store.thin(); });
    core::Project &project = m_workspace.project();
    project.setTakeListener([this](const core::ContentObject &object) {
        m_taken[object.id()] = serializeObject(object);
    });
    m_taken.clear();
    m_step.clear();
    m_moves.clear();
    m_categories.clear();
    m_places.clear();
    m_pinned = project.pinned();
    for (const core::ContentId &id : project.taxonomy().ids())
        m_categories[id] = *project.taxonomy().find(id);
    for (const core::Entity *entity : std::as_const(project).all<core::Entity>())
        m_places[entity->id()] = entity->categoryId();
    m_redoCount = m_workspace.history().redoCount();
}

void RecentlyDeleted::follow(const core::ChangeSet &changes)
{
    using Change = core::ChangeSet::Change;
    // Undoing an addition deletes nothing: it can be done again.
    const bool isUndo = m_workspace.history().redoCount() > m_redoCount;
    for (const auto &[id, change] : changes.objects()) {
        const auto taken = m_taken.find(id);
        if (change == Change::Removed && taken != m_taken.end() && !isUndo)
            m_step[objectPath(id)] = taken->second;
        else if (change == Change::Added)
            m_step.erase(objectPath(id));
        if (const auto *entity = m_workspace.project().find<core::Entity>(id))
            followMove(objectPath(id), id, entity->categoryId());
        else
            m_places.remove(id);
    }
    for (const auto &[id, change] : changes.categories()) {
        const auto known = m_categories.find(id);
        if (change == Change::Removed && known != m_categories.end() && !isUndo)
            m_step[categoryPath(id)] = serializeCategory(known->second);
        if (const core::Category *present = m_workspace.project().taxonomy().find(id)) {
            if (known != m_categories.end())
                m_places[id] = known->second.parentId;
            followMove(categoryPath(id), id, present->parentId);
            m_categories[id] = *present;
        } else {
            m_categories.erase(id);
        }
    }
    m_taken.clear();
}

/// Notes where something stood before the step that is open, and where it stands now.
void RecentlyDeleted::followMove(const QString &path, const core::ContentId &id,
                                 const core::ContentId &parent)
{
    const core::ContentId before = m_places.value(id, parent);
    m_places[id] = parent;
    if (before == parent)
        return;
    DeletedMove &move = m_moves[path];
    if (move.path.isEmpty())
        move = {path, before.toString(), {}};
    move.to = parent.isNull() ? QString() : parent.toString();
}

void RecentlyDeleted::keep()
{
    const core::CommandStack &history = m_workspace.history();
    m_redoCount = history.redoCount();
    if (history.isGroupOpen())
        return;
    const std::map<QString, DeletedMove> moves = std::exchange(m_moves, {});
    const std::set<core::ContentId> pinned =
        std::exchange(m_pinned, m_workspace.project().pinned());
    if (m_step.empty())
        return;
    DeletedStep step;
    step.label = history.undoText();
    // A move counts that the deletion made: out of what went.
    for (const auto &[path, move] : moves) {
        if (m_step.contains(categoryPath(core::ContentId::fromString(move.from))))
            step.moves.push_back(move);
    }
    for (auto &[path, bytes] : std::exchange(m_step, {})) {
        if (pinned.contains(objectIdOf(path)))
            step.pins.append(path);
        step.files.push_back({path, std::move(bytes)});
    }
    m_pool.start([store = DeletedStore(m_key, m_locations), step = std::move(step)] {
        (void)store.add(step); // the step itself can still be undone
    });
}

std::vector<DeletedGroup> RecentlyDeleted::groups()
{
    finish();
    const core::Project &project = m_workspace.project();
    std::vector<DeletedGroup> groups;
    QSet<QString> listed; // what was deleted twice is told once, as it was last
    for (const DeletedStep &step : DeletedStore(m_key, m_locations).list()) {
        std::vector<FileChange> files;
        for (const ProjectFile &file : step.files) {
            if (!isThere(project, file.path) && !listed.contains(file.path))
                files.push_back({file.path, file.bytes});
            listed.insert(file.path);
        }
        DeletedGroup group{step.time, step.label, itemsOf(project, files)};
        if (!group.items.empty())
            groups.push_back(std::move(group));
    }
    return groups;
}

/// Takes everything that is kept, each as it was last.
std::map<QString, QByteArray> RecentlyDeleted::everythingDeleted()
{
    finish();
    std::map<QString, QByteArray> files;
    for (const DeletedStep &step : DeletedStore(m_key, m_locations).list()) {
        for (const ProjectFile &file : step.files)
            files.emplace(file.path, file.bytes);
    }
    return files;
}

/// What puts back what was moved out of the categories that come back, where it still stands where
/// it was put, and what pins again.
std::vector<std::unique_ptr<core::Command>>
RecentlyDeleted::movesBack(const core::NewContents &contents)
{
    core::Project &project = m_workspace.project();
    std::vector<std::unique_ptr<core::Command>> commands;
    QSet<QString> settled; // paths of what comes back; the last time that it went counts
    QSet<QString> comes;
    for (const core::Category &category : contents.categories)
        comes.insert(categoryPath(category.id));
    for (const auto &object : contents.objects)
        comes.insert(objectPath(object->id()));
    for (const DeletedStep &step : DeletedStore(m_key, m_locations).list()) {
        QSet<QString> here;
        for (const ProjectFile &file : step.files) {
            if (comes.contains(file.path) && !settled.contains(file.path))
                here.insert(file.path);
        }
        settled += here;
        for (const DeletedMove &move : step.moves) {
            const auto from = core::ContentId::fromString(move.from);
            const auto to = core::ContentId::fromString(move.to);
            if (!here.contains(categoryPath(from)))
                continue;
            auto *entity = project.find<core::Entity>(objectIdOf(move.path));
            const core::Category *below = project.taxonomy().find(categoryIdOf(move.path));
            if (entity && entity->categoryId() == to)
                commands.push_back(std::make_unique<core::SetEntityCategoryCommand>(*entity, from));
            else if (below && below->parentId == to)
                commands.push_back(
                    std::make_unique<core::MoveCategoryCommand>(project, below->id, from));
        }
        for (const QString &pin : step.pins) {
            if (here.contains(pin))
                commands.push_back(
                    std::make_unique<core::SetPinnedCommand>(project, objectIdOf(pin), true));
        }
    }
    return commands;
}

bool RecentlyDeleted::restore(const DeletedGroup &group, const QString &path)
{
    const std::map<QString, QByteArray> kept = everythingDeleted();
    core::Project &project = m_workspace.project();
    std::map<QString, QByteArray> wanted;
    int depth = -1; // of the chosen item while those below it are passed
    for (const DeletedItem &item : group.items) {
        if (item.depth <= depth)
            depth = -1;
        if (path.isEmpty() || item.path == path)
            depth = item.depth;
        const auto found = kept.find(item.path);
        if (depth >= 0 && found != kept.end() && !isThere(project, item.path))
            wanted.insert(*found);
    }
    // The categories that entities need come along, with those above them.
    ReadContents read;
    for (bool isComplete = false; !isComplete;) {
        std::vector<FileChange> files;
        for (const auto &[name, bytes] : wanted)
            files.push_back({name, bytes});
        read = contentsOf(files);
        isComplete = true;
        const auto need = [&](const core::ContentId &id) {
            const auto found = kept.find(categoryPath(id));
            if (!project.taxonomy().contains(id) && found != kept.end())
                isComplete = !wanted.insert(*found).second && isComplete;
        };
        for (const auto &object : read.contents.objects) {
            if (const auto *entity = core::contentCast<core::Entity>(object.get()))
                need(entity->categoryId());
        }
        for (const core::Category &category : read.contents.categories)
            need(category.parentId);
    }
    for (const auto &object : read.contents.objects) {
        auto *document = core::contentCast<core::Document>(object.get());
        if (document && !project.contains(document->parentId())
            && !wanted.contains(objectPath(document->parentId())))
            document->setParentId({});
    }
    for (core::Category &category : read.contents.categories) {
        if (!project.taxonomy().contains(category.parentId)
            && !wanted.contains(categoryPath(category.parentId)))
            category.parentId = {};
    }
    if (read.contents.isEmpty())
        return false;
    m_workspace.flush();
    auto step = std::make_unique<core::CompositeCommand>(tr("Restore what was deleted"));
    std::vector<std::unique_ptr<core::Command>> moves = movesBack(read.contents);
    step->append(std::make_unique<core::ReplaceContentsCommand>(project, std::move(read.contents),
                                                                QString()));
    for (std::unique_ptr<core::Command> &move : moves)
        step->append(std::move(move));
    m_workspace.push(std::move(step));
    return true;
}

} // namespace vl::app
