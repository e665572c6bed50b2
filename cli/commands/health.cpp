#include "cli/catalogue.h"
#include "cli/commands/commands.h"

#include "app/text/healthreport.h"
#include "cli/projectsource.h"

namespace vl::cli {

ExitStatus runHealth(const Arguments &arguments, Console &console)
{
    const QString option = QStringLiteral("format");
    const QString format =
        arguments.has(option) ? arguments.value(option) : QStringLiteral("markdown");
    const bool isHtml = format == QLatin1String("html");
    if (!isHtml && format != QLatin1String("markdown"))
        return wrongUsage(console, "health", Arguments::tr("Unknown format: %1").arg(format));
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<ProjectSource> source = ProjectSource::open(arguments.at(0));
    if (!source)
        return console.fail(source.message());
    console.begin(Arguments::tr("Making the report…"));
    const app::HealthInput input =
        app::readHealthInput(source->project(), projectName(source->path()));
    console.write(isHtml ? app::HealthReport::toHtml(input) : app::HealthReport::toMarkdown(input));
    return ExitStatus::Done;
}

} // namespace vl::cli
