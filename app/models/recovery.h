#pragma once

#include "app/models/newcontents.h"
#include "app/storage/journal.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace vl::app {

class Workspace;

/// One object, category or the records, as a journal has it and as the project has it.
struct RecoveredFile
{
    FileChange change;
    QString name;   ///< its title or name
    QString before; ///< as it is in the project, for people; empty when it is not there
    QString after;  ///< as it was when the program was cut off; empty when it was deleted
    bool changedElsewhere = false; ///< the project's file is newer than the journal, or another
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
    /// Those to be brought back unless the user says otherwise: all that were not changed
    /// elsewhere.
    QStringList advisedPaths() const;
    /// The titles of the first few, for a notice.
    QString summary() const;
    /// Brings these back into the open project as one step; false when none of them can be.
    bool restore(Workspace &workspace, const QStringList &paths) const;

private:
    std::vector<RecoveredFile> m_files;
};

} // namespace vl::app
