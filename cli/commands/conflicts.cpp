#include "cli/commands/commands.h"

#include "cli/continuityfindings.h"

#include <QtCore/QJsonDocument>

namespace vl::cli {

ExitStatus runConflicts(const Arguments &arguments, Console &console)
{
    console.begin(Arguments::tr("Reading the project…"));
    const app::Result<ProjectSource> source = ProjectSource::open(arguments.at(0));
    if (!source)
        return console.fail(source.message());
    console.begin(Arguments::tr("Checking the continuity…"));
    const ContinuityFindings findings = findContinuityFaults(*source);
    for (const QString &message : findings.unreadLibraries)
        console.message(message);
    if (arguments.has(QStringLiteral("json"))) {
        console.writeBytes(QJsonDocument(findings.toJson()).toJson());
    } else {
        for (const auto *list : {&findings.timeline, &findings.rules})
            for (const app::TimelineConflict &conflict : *list)
                console.writeLine(conflict.message);
    }
    return findings.isEmpty() ? ExitStatus::Done : ExitStatus::Findings;
}

} // namespace vl::cli
