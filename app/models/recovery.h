#pragma once

#include "app/models/newcontents.h"
#include "app/models/readablefile.h"
#include "app/storage/journal.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace vl::app {

class OpenProject;
class Workspace;

/// One object, category or the records, as a journal has it and as the project has it.
struct RecoveredFile
{
    /// How it comes back.
    enum class Way
    {
        AsItWas, ///< nobody changed it since
        Merged,  ///< with what others, or later work, changed in other places
        Beside,  ///< as a second object, next to the one that was changed in the same places
        Instead, ///< in place of what the project has, which is newer
    };

    FileChange change;
    Way way = Way::AsItWas;
    QString name; ///< its title or name
    /// As it is in the project, empty when it is not there, and as it comes back, empty when it was
    /// deleted.
    ReadableVersions versions;
};

/// What was not saved when the program was cut off, held against the project as it stands.
class Recovery
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::Recovery)

public:
    /// Reads the journals, the earliest first, against the open project. What is in it already is
    /// left out.
    static Recovery read(const QStringList &journals, const Workspace &workspace);

    const std::vector<RecoveredFile> &files() const { return m_files; }
    /// Those to be brought back unless the user says otherwise: all that take the place of nothing
    /// newer.
    QStringList advisedPaths() const;
    /// The titles of the first few, for a notice.
    QString summary() const;
    /// Whether nothing that is brought back meets later work.
    bool comesBackAsItWas() const;
    /// Brings these back into the open project as one step; false when none of them can be.
    bool restore(Workspace &workspace, const QStringList &paths) const;
    /// Brings the media that stand beside the journal of a project which was never saved among
    /// those of the open one. Goes on after a failure, and tells one of them.
    static Result<> restoreMedia(const QString &journal, const OpenProject &project);

private:
    class Reader;

    std::vector<RecoveredFile> m_files;
};

} // namespace vl::app
