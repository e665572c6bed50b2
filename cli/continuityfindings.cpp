#include "cli/continuityfindings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>

namespace vl::cli {

namespace {

QJsonArray asJson(const QList<app::TimelineConflict> &conflicts)
{
    QJsonArray list;
    for (const app::TimelineConflict &conflict : conflicts) {
        QJsonArray ids;
        for (const core::ContentId &id : conflict.eventIds)
            ids.append(id.toString());
        list.append(QJsonObject{{QStringLiteral("message"), conflict.message},
                                {QStringLiteral("eventIds"), ids}});
    }
    return list;
}

/// The path of a library; a relative one is meant from where the project lies.
QString libraryPath(const ProjectSource &source, const QString &path)
{
    const QFileInfo info(source.path());
    return QDir::cleanPath((source.archive() ? info.absoluteDir() : QDir(info.absoluteFilePath()))
                               .absoluteFilePath(path));
}

} // namespace

QJsonObject ContinuityFindings::toJson() const
{
    return {{QStringLiteral("timeline"), asJson(timeline)},
            {QStringLiteral("rules"), asJson(rules)}};
}

ContinuityFindings findContinuityFaults(const ProjectSource &source)
{
    ContinuityFindings findings;
    std::vector<ProjectSource> libraries;
    QList<const core::Project *> mounted;
    for (const core::LibraryMount &mount : source.project().mounts()) {
        app::Result<ProjectSource> library = ProjectSource::open(libraryPath(source, mount.path));
        if (!library) {
            findings.unreadLibraries.append(library.message());
            continue;
        }
        mounted.append(&library->project());
        libraries.push_back(*std::move(library));
    }
    findings.timeline = app::findTimelineConflicts(source.project(), mounted);
    findings.rules = app::checkContinuityRules(source.project());
    return findings;
}

} // namespace vl::cli
