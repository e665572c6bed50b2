#include "cli/commands/commands.h"

#include "cli/projectwriting.h"
#include "cli/writeaccess.h"

namespace vl::cli {

ExitStatus runConvert(const Arguments &arguments, Console &console)
{
    const QString path = fullPath(arguments.at(1));
    const app::Result<WriteAccess> access =
        WriteAccess::to(path, arguments.has(QStringLiteral("anyway")));
    if (!access)
        return console.fail(access.message());
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<ProjectSource> source = ProjectSource::open(arguments.at(0));
    if (!source)
        return console.fail(source.message());
    console.begin(Arguments::tr("Writing the project…"));
    const app::Result<> written = convertProject(*source, path);
    return written ? ExitStatus::Done : console.fail(written.message());
}

} // namespace vl::cli
