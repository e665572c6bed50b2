#include "app/base/settings.h"
#include "app/models/backupkeeper.h"
#include "app/storage/autobackups.h"
#include "cli/commands/commands.h"
#include "cli/projectsource.h"

#include <QtCore/QDir>

namespace vl::cli {

ExitStatus runBackups(const Arguments &arguments, Console &console)
{
    console.begin(Arguments::tr("Reading the backups…"));
    const app::AutoBackups backups(fullPath(arguments.at(0)),
                                   app::StorageLocations::of(app::Settings()),
                                   &app::summarizeBackup);
    for (const app::BackupInfo &backup : backups.list()) {
        const app::Result<app::BackupSummary> summary = backups.summary(backup);
        // One that cannot be read is listed all the same; the reason is a message.
        if (!summary)
            console.message(summary.message());
        const auto figure = [&](qint64 app::BackupSummary::*member) {
            return summary ? QString::number((*summary).*member) : QStringLiteral("-");
        };
        const QString date =
            backup.time.isValid() ? backup.time.toString(Qt::ISODate) : QStringLiteral("-");
        console.writeLine(
            QStringList{QDir::toNativeSeparators(backup.path), date, QString::number(backup.size),
                        figure(&app::BackupSummary::documents), figure(&app::BackupSummary::words)}
                .join(u'\t'));
    }
    return ExitStatus::Done;
}

} // namespace vl::cli
