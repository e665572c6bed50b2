#include "cli/commands/commands.h"

#include "app/storage/bundle.h"
#include "cli/projectsource.h"
#include "cli/writeaccess.h"

namespace vl::cli {

ExitStatus runPack(const Arguments &arguments, Console &console)
{
    const QString bundle = fullPath(arguments.at(1));
    const app::Result<WriteAccess> access =
        WriteAccess::to(bundle, arguments.has(QStringLiteral("anyway")));
    if (!access)
        return console.fail(access.message());
    console.begin(Arguments::tr("Packing…"));
    const app::Result<> packed = app::packFolder(fullPath(arguments.at(0)), bundle);
    return packed ? ExitStatus::Done : console.fail(packed.message());
}

ExitStatus runUnpack(const Arguments &arguments, Console &console)
{
    console.begin(Arguments::tr("Unpacking…"));
    const app::Result<> extracted =
        app::extractBundle(fullPath(arguments.at(0)), fullPath(arguments.at(1)));
    return extracted ? ExitStatus::Done : console.fail(extracted.message());
}

} // namespace vl::cli
