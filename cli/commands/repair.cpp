#include "app/storage/repair.h"

#include "cli/commands/commands.h"
#include "cli/projectsource.h"
#include "cli/writeaccess.h"

namespace vl::cli {

ExitStatus runRepair(const Arguments &arguments, Console &console)
{
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<app::ProjectRepair> repair =
        app::ProjectRepair::examine(fullPath(arguments.at(0)), app::StorageLocations::standard());
    if (!repair)
        return console.fail(repair.message());
    const QString copy = fullPath(arguments.at(1));
    const app::Result<WriteAccess> access = WriteAccess::to(copy);
    if (!access)
        return console.fail(access.message());
    console.begin(Arguments::tr("Writing the project…"));
    const app::Result<> written = repair->writeCopy(copy);
    if (!written)
        return console.fail(written.message());
    for (const app::LeftOutFile &file : repair->leftOut())
        console.writeLine(QStringLiteral("%1: %2").arg(file.path, file.reason));
    return repair->leftOut().empty() ? ExitStatus::Done : ExitStatus::Findings;
}

} // namespace vl::cli
