#pragma once

#include "app/base/result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <map>
#include <optional>
#include <vector>

namespace vl::app {

/// What became of a project file since the last save, on the user's side and on disk.
enum class ReconcileState
{
    Unchanged = 0,       ///< local and remote are equal
    LocalChanged = 1,    ///< only local differs from the base
    RemoteChanged = 2,   ///< only remote differs from the base
    Merged = 3,          ///< both changed and merged, or both added the same text
    ConflictEdited = 4,  ///< both changed the same lines
    AddedLocally = 5,    ///< in neither base nor remote
    AddedRemotely = 6,   ///< in neither base nor local
    ConflictAdded = 7,   ///< both added it, not with the same text
    DeletedLocally = 8,  ///< gone locally, remote as in the base
    DeletedRemotely = 9, ///< gone on disk, local as in the base
    ConflictDeleted = 10 ///< one side removed it, one edited it
};

/// Whether a file in this state waits for the user's decision.
constexpr bool isConflict(ReconcileState state)
{
    return state == ReconcileState::ConflictEdited || state == ReconcileState::ConflictAdded
           || state == ReconcileState::ConflictDeleted;
}

/// Whether applying a file in this state removes it.
constexpr bool isDeletion(ReconcileState state)
{
    return state == ReconcileState::DeletedLocally || state == ReconcileState::DeletedRemotely;
}

/// The state of a file by its three contents, each null where the file is missing; nothing when
/// only the base has it. Contents that differ on all three sides give ConflictEdited: whether they
/// can be merged is for the caller to try.
template<typename Content>
std::optional<ReconcileState> reconcileState(const Content *base, const Content *local,
                                             const Content *remote)
{
    using enum ReconcileState;
    if (!local && !remote)
        return std::nullopt;
    if (!base) {
        if (!local || !remote)
            return local ? AddedLocally : AddedRemotely;
        return *local == *remote ? Merged : ConflictAdded;
    }
    if (!remote)
        return *local == *base ? DeletedRemotely : ConflictDeleted;
    if (!local)
        return *remote == *base ? DeletedLocally : ConflictDeleted;
    if (*local == *remote)
        return Unchanged;
    if (*local == *base)
        return RemoteChanged;
    return *remote == *base ? LocalChanged : ConflictEdited;
}

/// One file of a reconcile: what is to become of it and, while it is in conflict, both sides of it.
struct ReconcileEntry
{
    QString path; ///< relative to the project
    ReconcileState state = ReconcileState::Unchanged;
    /// The text to write; nothing when the file is to be deleted. In a conflict it is provisional:
    /// the text with markers, nothing, or the side that survived.
    std::optional<QString> result;
    QString conflictText;              ///< of ConflictEdited: the merged text with markers
    std::optional<QString> localText;  ///< of a conflict; nothing when deleted locally
    std::optional<QString> remoteText; ///< of a conflict; nothing when deleted on disk

    /// Settles a conflict with the user's version, a deletion included. Once settled, a conflict
    /// can be settled anew another way; an entry that never was in conflict stays as it is.
    void takeLocal();
    /// Settles a conflict with the version on disk, a deletion included.
    void takeRemote();
    /// Settles a conflict with a text of the user's own.
    void takeText(const QString &text);

    bool operator==(const ReconcileEntry &) const = default;
};

/// The files a reconcile writes and removes, paths relative to the project.
struct ReconcileChanges
{
    std::map<QString, QString> write; ///< unchanged files too: who writes leaves right bytes alone
    QStringList remove;               ///< in path order

    bool operator==(const ReconcileChanges &) const = default;
};

/// Brings together a project's files as they were saved, as the user has them and as they lie on
/// disk.
class Reconcile
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::Reconcile)

public:
    /// The full text of each file by its path relative to the project.
    using Files = std::map<QString, QString>;

    /// One entry, in path order, for each path that exists locally or remotely.
    static std::vector<ReconcileEntry> build(const Files &base, const Files &local,
                                             const Files &remote);
    /// What to write and to remove. Fails while a conflict is unresolved, or when a ".json" file
    /// that would be written with new contents holds neither a JSON object nor a JSON array.
    static Result<ReconcileChanges> apply(const std::vector<ReconcileEntry> &entries);
    /// Whether the bytes may stand in the path: any bytes, but in a ".json" file a JSON document.
    static bool isValidFor(const QString &path, const QByteArray &bytes);
    /// What a reconcile with unresolved conflicts fails with.
    static Failure conflictsFailure();
    /// What a merged file that is no JSON document is refused with.
    static QString invalidMessage(const QString &path);
};

} // namespace vl::app
