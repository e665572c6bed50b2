#include "app/storage/reconcile.h"

#include "app/storage/linemerge.h"

#include <QtCore/QJsonDocument>

namespace vl::app {
namespace {

using enum ReconcileState;

const QString *find(const Reconcile::Files &files, const QString &path)
{
    const auto it = files.find(path);
    return it == files.end() ? nullptr : &it->second;
}

std::optional<QString> copyOf(const QString *text)
{
    return text ? std::optional(*text) : std::nullopt;
}

/// Fills in what a file in its state is to hold, merging it where both sides changed it.
void settle(ReconcileEntry &entry, const QString *base, const QString *local, const QString *remote)
{
    if (entry.state == ConflictEdited) {
        MergedText<QString> merged = mergeLines(*base, *local, *remote);
        if (merged.conflicts == 0)
            entry.state = Merged;
        else
            entry.conflictText = merged.text;
        entry.result = std::move(merged.text);
    } else if (!isDeletion(entry.state) && entry.state != ConflictAdded) {
        entry.result = copyOf(entry.state == RemoteChanged || !local ? remote : local);
    }
    if (isConflict(entry.state)) {
        entry.localText = copyOf(local);
        entry.remoteText = copyOf(remote);
    }
}

} // namespace

void ReconcileEntry::takeLocal()
{
    if (!localText && !remoteText)
        return;
    result = localText;
    state = localText ? LocalChanged : DeletedLocally;
}

void ReconcileEntry::takeRemote()
{
    if (!localText && !remoteText)
        return;
    result = remoteText;
    state = remoteText ? RemoteChanged : DeletedRemotely;
}

void ReconcileEntry::takeText(const QString &text)
{
    if (!localText && !remoteText)
        return;
    result = text;
    state = Merged;
}

std::vector<ReconcileEntry> Reconcile::build(const Files &base, const Files &local,
                                             const Files &remote)
{
    std::vector<ReconcileEntry> entries;
    entries.reserve(std::max(local.size(), remote.size()));
    const auto add = [&](const QString &path, const QString *here, const QString *there) {
        const QString *before = find(base, path);
        ReconcileEntry entry;
        entry.path = path;
        entry.state = *reconcileState(before, here, there);
        settle(entry, before, here, there);
        entries.push_back(std::move(entry));
    };
    auto here = local.begin();
    auto there = remote.begin();
    while (here != local.end() || there != remote.end()) {
        const bool atEnd = there == remote.end();
        if (atEnd || (here != local.end() && here->first < there->first)) {
            add(here->first, &here->second, nullptr);
            ++here;
        } else if (here == local.end() || there->first < here->first) {
            add(there->first, nullptr, &there->second);
            ++there;
        } else {
            add(here->first, &here->second, &there->second);
            ++here;
            ++there;
        }
    }
    return entries;
}

bool Reconcile::isValidFor(const QString &path, const QByteArray &bytes)
{
    return !path.endsWith(QLatin1String(".json")) || !QJsonDocument::fromJson(bytes).isNull();
}

Failure Reconcile::conflictsFailure()
{
    return failure(tr("the reconcile has conflicts to resolve first"));
}

QString Reconcile::invalidMessage(const QString &path)
{
    return tr("the merged file '%1' would not be valid").arg(path);
}

Result<ReconcileChanges> Reconcile::apply(const std::vector<ReconcileEntry> &entries)
{
    for (const ReconcileEntry &entry : entries) {
        if (isConflict(entry.state))
            return conflictsFailure();
    }
    ReconcileChanges changes;
    for (const ReconcileEntry &entry : entries) {
        if (isDeletion(entry.state)) {
            changes.remove.append(entry.path);
            continue;
        }
        if (!entry.result)
            continue; // nothing to write, and nobody asked for a removal
        if (entry.state != Unchanged && !isValidFor(entry.path, entry.result->toUtf8()))
            return failure(invalidMessage(entry.path));
        changes.write.insert_or_assign(entry.path, *entry.result);
    }
    return changes;
}

} // namespace vl::app
