// How an open project follows what others did to its files.

#include "app/storage/categorycodec.h"
#include "app/storage/json/jsonparser.h"
#include "app/storage/kindcodecs.h"
#include "app/storage/openproject.h"
#include "app/storage/ownform.h"
#include "app/storage/projectpaths.h"
#include "app/storage/projectrecordscodec.h"
#include "app/storage/projectstore.h"
#include "app/storage/projectwriter.h"
#include "app/storage/runningsave.h"
#include "core/commands/replacecontents.h"

#include <algorithm>
#include <map>
#include <set>

namespace vl::app {

namespace {

bool isObject(const OutsideFile &file)
{
    return file.path.startsWith(objectsFolder() + u'/');
}

/// Whether the file is gone and what was in it stands in another one.
bool isGoneCopy(const OutsideFile &file)
{
    return file.isCopy && !file.remote;
}

/// What the result of an entry makes of the model.
struct Parsed
{
    std::unique_ptr<core::ContentObject> object;
    std::optional<core::Category> category;
    std::unique_ptr<core::Project> records;
};

Result<Parsed> parse(JsonParser &parser, const QString &path, const QByteArray &bytes)
{
    const Failure invalid = failure(Reconcile::invalidMessage(path));
    const std::optional<JsonValue> json = parser.parseObject(bytes);
    if (!json)
        return invalid;
    Parsed parsed;
    if (path == recordsPath()) {
        parsed.records = std::make_unique<core::Project>();
        readProjectRecords(*json, *parsed.records);
    } else if (path.startsWith(objectsFolder() + u'/')) {
        parsed.object = readObject(*json);
        if (!parsed.object)
            return invalid;
    } else {
        parsed.category.emplace();
        if (readCategory(*json, *parsed.category) != CategoryFault::None)
            return invalid;
    }
    return parsed;
}

/// The three sides of one file.
struct Sides
{
    std::optional<QByteArray> base;
    std::optional<QByteArray> local;
    std::optional<QByteArray> remote;

    ReconcileEntry reconcile(const QString &path) const
    {
        Reconcile::Files files[3];
        const std::optional<QByteArray> *sides[] = {&base, &local, &remote};
        for (int i = 0; i < 3; ++i)
            if (*sides[i])
                files[i].emplace(path, QString::fromUtf8(**sides[i]));
        std::vector<ReconcileEntry> entries = Reconcile::build(files[0], files[1], files[2]);
        return entries.empty() ? ReconcileEntry() : std::move(entries.front());
    }

    Sides inOwnForm(JsonParser &parser, const QString &path) const
    {
        Sides own = *this;
        for (std::optional<QByteArray> *side : {&own.base, &own.local, &own.remote})
            if (*side)
                *side = app::inOwnForm(parser, {path, **side}).bytes;
        return own;
    }
};

std::optional<QString> textOf(const std::optional<QByteArray> &bytes)
{
    return bytes ? std::optional(QString::fromUtf8(*bytes)) : std::nullopt;
}

/// Whether the entry's result can stand in its file.
bool isSound(JsonParser &parser, const ReconcileEntry &entry)
{
    return !entry.result || parse(parser, entry.path, entry.result->toUtf8());
}

} // namespace

std::function<ProjectFiles()> OpenProject::snapshot() const
{
    return m_store ? m_store->snapshot(*m_project, m_unsaved) : [] { return ProjectFiles(); };
}

std::unique_ptr<PendingScan> OpenProject::prepareScan() const
{
    return m_store ? m_store->prepareScan() : nullptr;
}

void OpenProject::note(const OutsideState &state)
{
    if (m_store)
        m_store->note(state);
}

/// What the project would write to the file now.
std::optional<QByteArray> OpenProject::localBytes(const OutsideFile &file) const
{
    // What a running save holds is unsaved until it has succeeded.
    const auto isUnsaved = [this](const auto &isTouchedIn) {
        return isTouchedIn(m_unsaved) || (m_running && isTouchedIn(m_running->touched));
    };
    if (file.path == recordsPath())
        return isUnsaved([](const core::ChangeSet &set) { return set.touchesAnyRecord(); })
                   ? serializeProjectRecords(*m_project)
                   : file.base;
    if (isObject(file)) {
        const auto isTouched = [&file](const core::ChangeSet &set) {
            return set.objects().contains(file.id);
        };
        if (!file.isCopy && !isUnsaved(isTouched))
            return file.base;
        const core::ContentObject *object = m_project->find(file.id);
        return object ? std::optional(serializeObject(*object)) : std::nullopt;
    }
    const auto isTouched = [&file](const core::ChangeSet &set) {
        return set.categories().contains(file.id);
    };
    if (!file.isCopy && !isUnsaved(isTouched))
        return file.base;
    const core::Category *category = m_project->taxonomy().find(file.id);
    return category ? std::optional(serializeCategory(*category)) : std::nullopt;
}

std::vector<ReconcileEntry> OpenProject::reconcile(const OutsideState &state) const
{
    std::set<core::ContentId> own; // ids that come in their own file
    for (const OutsideFile &file : state.files)
        if (!file.isCopy)
            own.insert(file.id);
    JsonParser parser;
    std::vector<ReconcileEntry> entries;
    for (const OutsideFile &file : state.files) {
        if (isGoneCopy(file))
            continue; // what was in it stands in another file
        if (file.isCopy && !own.insert(file.id).second)
            continue; // after the others: it is compared with what became of them
        const Sides sides{file.base, localBytes(file), file.remote};
        if (!sides.local && !sides.remote)
            continue; // gone on both sides
        ReconcileEntry entry = sides.reconcile(file.path);
        const bool isMerge = entry.state == ReconcileState::Merged
                             || entry.state == ReconcileState::ConflictEdited
                             || entry.state == ReconcileState::ConflictAdded;
        if (isMerge && (isConflict(entry.state) || !isSound(parser, entry))) {
            // Another program's layout of the same contents is no difference.
            entry = sides.inOwnForm(parser, file.path).reconcile(file.path);
            if (!isConflict(entry.state) && !isSound(parser, entry)) {
                entry.conflictText = *entry.result;
                entry.state = ReconcileState::ConflictEdited;
            }
        }
        // Both sides come along, so that the user may decide otherwise.
        entry.localText = textOf(sides.local);
        entry.remoteText = textOf(sides.remote);
        entries.push_back(std::move(entry));
    }
    return entries;
}

std::function<Result<>()> OpenProject::prepareTakeOver(const OutsideState &state) const
{
    return m_store ? m_store->prepareAdoption(state) : [] { return Result<>(); };
}

/// Has the next save write, or remove, the file of what the model holds under its id.
void OpenProject::touch(const OutsideFile &file)
{
    using Change = core::ChangeSet::Change;
    if (file.path == recordsPath())
        m_unsaved.touch(core::ProjectRecord::Pinned); // one stands for all: they share a file
    else if (isObject(file))
        m_unsaved.touchObject(file.id,
                              m_project->contains(file.id) ? Change::Changed : Change::Removed);
    else
        m_unsaved.touchCategory(file.id, m_project->taxonomy().contains(file.id) ? Change::Changed
                                                                                 : Change::Removed);
}

Result<> OpenProject::takeOver(const OutsideState &state,
                               const std::vector<ReconcileEntry> &entries, const QString &stepName)
{
    const Result<ReconcileChanges> changes = Reconcile::apply(entries);
    if (!changes)
        return changes.asFailure();
    std::map<QString, const ReconcileEntry *> byPath;
    for (const ReconcileEntry &entry : entries)
        byPath.emplace(entry.path, &entry);

    JsonParser parser;
    core::NewContents contents;
    OutsideState taken = state;
    taken.files.clear();
    std::vector<OutsideFile> toWrite; // where the disk does not hold the result
    std::set<core::ContentId> ids;
    for (const OutsideFile &file : state.files) {
        if (isGoneCopy(file)) {
            taken.files.push_back(file);
            continue;
        }
        const auto found = byPath.find(file.path);
        const std::optional<QByteArray> local = localBytes(file);
        if (found == byPath.end() && (local || file.remote)) {
            taken.unsettled.append(file.path);
            continue;
        }
        taken.files.push_back(file);
        std::optional<QByteArray> result;
        if (found != byPath.end() && !isDeletion(found->second->state) && found->second->result)
            result = found->second->result->toUtf8();
        if (result != file.remote || file.isCopy)
            toWrite.push_back(file);
        if (result == local || (!result && (file.isCopy || file.path == recordsPath())))
            continue;
        if (!result) {
            (isObject(file) ? contents.goneObjects : contents.goneCategories).push_back(file.id);
            continue;
        }
        Result<Parsed> parsed = parse(parser, file.path, *result);
        if (!parsed)
            return parsed.asFailure();
        const core::ContentId id = parsed->object     ? parsed->object->id()
                                   : parsed->category ? parsed->category->id
                                                      : core::ContentId();
        if (id != file.id || (!id.isNull() && !ids.insert(id).second))
            return failure(Reconcile::invalidMessage(file.path)); // another id than its file had
        if (!file.baseId.isNull() && file.baseId != id)
            (isObject(file) ? contents.goneObjects : contents.goneCategories)
                .push_back(file.baseId);
        if (parsed->object)
            contents.objects.push_back(std::move(parsed->object));
        else if (parsed->category)
            contents.categories.push_back(*std::move(parsed->category));
        else
            contents.records = std::move(parsed->records);
    }

    // A folder keeps its unsettled files apart; in a bundle ours stand in for them from now on.
    const bool isOnDisk =
        !isDirty() && toWrite.empty() && (!isBundle() || taken.unsettled.isEmpty());
    ++m_filesGeneration;
    m_store->adopt(taken);
    m_store->note(state);
    qsizetype steps = m_history.undoCount();
    if (!contents.isEmpty()) {
        ++steps;
        m_nextIsOnDisk = true;
        push(std::make_unique<core::ReplaceContentsCommand>(*m_project, std::move(contents),
                                                            stepName));
        m_nextIsOnDisk = false; // also when the step turned out to change nothing
    }
    for (const OutsideFile &file : toWrite)
        touch(file);
    // Who listened may have made further steps. Where no file is another, nothing is said of them.
    if (!state.files.empty() || !state.unsettled.isEmpty())
        m_history.setCleanIndex(isOnDisk ? steps : -1);
    return {};
}

void OpenProject::keepOwn(const OutsideState &state)
{
    if (!m_store)
        return;
    ++m_filesGeneration;
    if (state.place != OutsideState::Place::There || state.hasVanished()) {
        m_writesAnew = true;
    } else {
        m_store->adopt(state);
        for (const OutsideFile &file : state.files)
            touch(file);
    }
    m_history.markUnrecoverablyDirty();
}

} // namespace vl::app
