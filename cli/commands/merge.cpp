#include "cli/commands/commands.h"

#include "app/storage/foldermerge.h"

#include <QtCore/QLatin1String>

namespace vl::cli {

namespace {

/// The name of a state as the merge lists it, in place of its value.
QLatin1String nameOf(app::ReconcileState state)
{
    using enum app::ReconcileState;
    switch (state) {
    case Unchanged:
        return QLatin1String("Unchanged");
    case LocalChanged:
        return QLatin1String("LocalChanged");
    case RemoteChanged:
        return QLatin1String("RemoteChanged");
    case Merged:
        return QLatin1String("Merged");
    case ConflictEdited:
        return QLatin1String("ConflictEdited");
    case AddedLocally:
        return QLatin1String("AddedLocally");
    case AddedRemotely:
        return QLatin1String("AddedRemotely");
    case ConflictAdded:
        return QLatin1String("ConflictAdded");
    case DeletedLocally:
        return QLatin1String("DeletedLocally");
    case DeletedRemotely:
        return QLatin1String("DeletedRemotely");
    case ConflictDeleted:
        return QLatin1String("ConflictDeleted");
    }
    return {};
}

} // namespace

ExitStatus runMerge(const Arguments &arguments, Console &console)
{
    console.begin(Arguments::tr("Comparing the folders…"));
    const app::Result<app::FolderMerge> merge =
        app::FolderMerge::compare(arguments.at(0), arguments.at(1), arguments.at(2));
    if (!merge)
        return console.fail(merge.message());
    for (const app::FolderMergeFile &file : merge->files()) {
        // A name with a line feed in it must not look like two lines.
        QString path = file.path;
        path.replace(QLatin1Char('\n'), QLatin1String("\\n"));
        console.writeLine(nameOf(file.state) + QLatin1Char(' ') + path);
    }
    const bool writes = arguments.has(QStringLiteral("output"));
    if (merge->hasConflicts()) {
        if (writes)
            console.message(merge->check().message());
        return ExitStatus::Findings;
    }
    console.begin(Arguments::tr("Writing the merged folder…"));
    const app::Result<> done =
        writes ? merge->write(arguments.value(QStringLiteral("output"))) : merge->check();
    return done ? ExitStatus::Done : console.fail(done.message());
}

} // namespace vl::cli
