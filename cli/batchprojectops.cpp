#include "cli/batchops.h"

#include "app/storage/projectwriter.h"
#include "cli/continuityfindings.h"
#include "cli/projectsource.h"
#include "cli/writeaccess.h"

namespace vl::cli {

namespace {

app::Result<QJsonValue> roundTrip(BatchMembers &request)
{
    const QString path = request.text("project");
    const QString output = request.text("output");
    if (!request.hasFailed() && output.isEmpty())
        request.refuse(
            BatchMembers::tr("The member \"%1\" is empty.").arg(QLatin1String("output")));
    if (request.hasFailed())
        return request.failure();
    const app::Result<ProjectSource> source = ProjectSource::open(path);
    if (!source)
        return source.asFailure();
    const app::Result<WriteAccess> access = WriteAccess::to(fullPath(output));
    if (!access)
        return access.asFailure();
    if (const app::Result<> saved = app::saveProject(source->project(), output); !saved)
        return saved.asFailure();
    return QJsonValue(QJsonObject{{QStringLiteral("objects"), source->project().size()}});
}

app::Result<QJsonValue> checkContinuity(BatchMembers &request)
{
    const QString path = request.text("project");
    if (request.hasFailed())
        return request.failure();
    const app::Result<ProjectSource> source = ProjectSource::open(path);
    if (!source)
        return source.asFailure();
    return QJsonValue(findContinuityFaults(*source).toJson());
}

const BatchOp rows[] = {
    {"continuity.check", checkContinuity},
    {"project.roundTrip", roundTrip},
};

} // namespace

std::span<const BatchOp> batchProjectOps()
{
    return rows;
}

} // namespace vl::cli
