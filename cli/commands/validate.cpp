#include "cli/commands/commands.h"

#include "cli/projectsource.h"

namespace vl::cli {

ExitStatus runValidate(const Arguments &arguments, Console &console)
{
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<ProjectSource> source = ProjectSource::open(arguments.at(0));
    return source ? ExitStatus::Done : console.fail(source.message());
}

} // namespace vl::cli
