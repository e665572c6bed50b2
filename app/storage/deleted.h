#pragma once

#include "app/base/result.h"
#include "app/storage/keptfiles.h"
#include "app/storage/projectfiles.h"
#include "app/storage/workingcopy.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <vector>

namespace vl::app {

/// Something that stayed and was moved out of what was deleted: an entity or category whose
/// category went.
struct DeletedMove
{
    QString path; ///< of its file
    QString from; ///< the id of the category that went
    QString to;   ///< of the one that it came to; empty for none

    bool operator==(const DeletedMove &) const = default;
};

/// What one step took out of a project.
struct DeletedStep
{
    QString file;       ///< where it is kept; empty until it is
    QDateTime time;     ///< UTC; invalid when unknown, or in the future
    QString label;      ///< the name of the step
    ProjectFiles files; ///< of the objects and categories, as they were
    std::vector<DeletedMove> moves;
    QStringList pins; ///< paths of those among the files that were pinned
};

/// What was deleted from a project, kept for a while beside its working copy, never among its own
/// files. Works on files alone; each step is a file of its own.
class DeletedStore
{
public:
    /// How long it is kept, in days, and how many steps at most.
    static constexpr int keptDays = KeptFiles::days;
    static constexpr int mostSteps = 500;

    /// The key names the project; see projectKey().
    DeletedStore(const QString &key, const StorageLocations &locations);

    Result<> add(const DeletedStep &step) const;
    /// The latest first. What cannot be read is left out.
    std::vector<DeletedStep> list() const;
    void remove(const DeletedStep &step) const;
    /// Removes what is too old, or too much.
    void thin() const;
    /// Takes over what another store keeps, for a project that was saved at a new place.
    void copyFrom(const DeletedStore &other) const;
    /// Removes everything.
    void clear() const;

private:
    QString m_folder;
    KeptFiles m_files;
};

} // namespace vl::app
