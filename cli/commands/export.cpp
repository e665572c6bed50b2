#include "cli/catalogue.h"
#include "cli/commands/commands.h"

#include "app/text/export/manuscriptrtf.h"
#include "app/text/export/manuscriptrtfentries.h"
#include "cli/projectsource.h"
#include "cli/textfile.h"

#include <algorithm>

namespace vl::cli {

namespace {

QByteArray exportRtf(const core::Project &project, const Arguments &arguments)
{
    app::ManuscriptRtfOptions options;
    options.title = arguments.value(QStringLiteral("title"));
    options.author = arguments.value(QStringLiteral("author"));
    options.contact = arguments.value(QStringLiteral("contact"));
    options.penName = arguments.value(QStringLiteral("pen-name"));
    return app::exportManuscriptRtf(options,
                                    app::manuscriptRtfEntries(app::readManuscript(project)))
        .toLatin1();
}

struct Format
{
    const char *name;
    QByteArray (*run)(const core::Project &project, const Arguments &arguments);
};

const Format formats[] = {
    {"rtf", exportRtf},
};

} // namespace

ExitStatus runExport(const Arguments &arguments, Console &console)
{
    const auto format =
        std::find_if(std::begin(formats), std::end(formats),
                     [&](const Format &row) { return arguments.at(0) == QLatin1String(row.name); });
    if (format == std::end(formats))
        return wrongUsage(console, "export",
                          Arguments::tr("Unknown format: %1").arg(arguments.at(0)));
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<ProjectSource> source = ProjectSource::open(arguments.at(1));
    if (!source)
        return console.fail(source.message());
    console.begin(Arguments::tr("Exporting…"));
    const app::Result<> written = writeOutput(arguments.value(QStringLiteral("output")),
                                              format->run(source->project(), arguments), console);
    return written ? ExitStatus::Done : console.fail(written.message());
}

} // namespace vl::cli
