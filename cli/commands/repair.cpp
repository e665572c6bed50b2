#include "app/storage/repair.h"

#include "cli/commands/commands.h"
#include "cli/projectsource.h"

namespace vl::cli {

ExitStatus runRepair(const Arguments &arguments, Console &console)
{
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<app::ProjectRepair> repair =
        app::ProjectRepair::examine(fullPath(arguments.at(0)), app::StorageLocations::standard());
    if (!repair)
        return console.fail(repair.message());
    console.begin(Arguments::tr("Writing the project…"));
    const app::Result<> written = repair->writeCopy(fullPath(arguments.at(1)));
    if (!written)
        return console.fail(written.message());
    for (const app::LeftOutFile &file : repair->leftOut())
        console.writeLine(QStringLiteral("%1: %2").arg(file.path, file.reason));
    return repair->leftOut().empty() ? ExitStatus::Done : ExitStatus::Findings;
}

} // namespace vl::cli
