#include "cli/commands/commands.h"

#include "cli/projectwriting.h"

namespace vl::cli {

ExitStatus runConvert(const Arguments &arguments, Console &console)
{
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<ProjectSource> source = ProjectSource::open(arguments.at(0));
    if (!source)
        return console.fail(source.message());
    console.begin(Arguments::tr("Writing the project…"));
    const app::Result<> written = convertProject(*source, fullPath(arguments.at(1)));
    return written ? ExitStatus::Done : console.fail(written.message());
}

} // namespace vl::cli
