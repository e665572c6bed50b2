#include "app/models/repairflow.h"

#include "app/models/backupkeeper.h"
#include "app/models/prompts.h"
#include "app/storage/autobackups.h"
#include "app/storage/bundle.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>

namespace vl::app {

namespace {

QString nameOf(const QString &path)
{
    const QFileInfo info(path);
    return info.isDir() ? info.fileName() : info.completeBaseName();
}

QString beside(const QString &path, const QString &name)
{
    return QFileInfo(path).absoluteDir().filePath(name);
}

} // namespace

bool RepairFlow::offer(const QString &path, const QString &message)
{
    if (!QFileInfo::exists(path))
        return report(message);
    const Result<ProjectRepair> repair = ProjectRepair::examine(path, m_locations);
    DamagedProject damaged;
    damaged.path = path;
    damaged.message = message;
    if (repair) {
        damaged.leftOut = repair->leftOut();
        damaged.conflicts = repair->conflicts();
        damaged.fromWorkingCopy = repair->fromWorkingCopy();
        damaged.isRepairable = repair->isOfUse();
        damaged.isCutOff = repair->isCutOff() && repair->fromWorkingCopy().isEmpty();
    }
    QString backupPath;
    const AutoBackups backups(path, m_locations, &summarizeBackup);
    for (const BackupInfo &backup : backups.list()) {
        if (!loadBackup(backup.path))
            continue;
        damaged.hasBackup = true;
        damaged.newestBackup = backup.time;
        backupPath = backup.path;
        if (repair)
            compareWithBackup(*repair, backupPath, damaged);
        break;
    }
    if (!damaged.isRepairable && !damaged.hasBackup)
        return report(message);
    switch (m_prompts.askDamaged(damaged)) {
    case DamageAnswer::OpenBackup:
        return !backupPath.isEmpty() && openBackup(path, backupPath);
    case DamageAnswer::RepairedCopy:
        return repair && openRepairedCopy(*repair);
    case DamageAnswer::SetAside:
        return repair && setAside(*repair);
    case DamageAnswer::Close:
        break;
    }
    return false;
}

/// The backup tells what the damaged files were, and which are missing where no list tells that.
void RepairFlow::compareWithBackup(const ProjectRepair &repair, const QString &backupPath,
                                   DamagedProject &damaged)
{
    const Result<ReadBundle> backup = readBundle(backupPath);
    if (!backup)
        return;
    QSet<QString> leftOut;
    for (const LeftOutFile &file : damaged.leftOut)
        leftOut.insert(file.path);
    for (ProjectFile &file : projectFilesIn(backup->archive)) {
        const bool isMissing =
            damaged.isCutOff && !leftOut.contains(file.path) && !repair.holds(file.path);
        if (isMissing)
            damaged.leftOut.push_back(
                {file.path, tr("It is in the newest backup, and missing in this file.")});
        if (isMissing || leftOut.contains(file.path)) {
            file.bytes.detach(); // from the archive, which goes away
            damaged.inBackup.insert(file.path, std::move(file.bytes));
        }
    }
}

bool RepairFlow::openBackup(const QString &path, const QString &backupPath)
{
    const QString target =
        m_prompts.chooseBundleToSave(beside(path, tr("%1 (backup)").arg(nameOf(path))));
    if (target.isEmpty())
        return false;
    if (const Result<> copied = copyBackup(backupPath, target, m_locations); !copied)
        return report(copied.message());
    return m_open(target);
}

bool RepairFlow::openRepairedCopy(const ProjectRepair &repair)
{
    const QString target = m_prompts.chooseBundleToSave(
        beside(repair.path(), tr("%1 (repaired)").arg(nameOf(repair.path()))));
    if (target.isEmpty())
        return false;
    if (const Result<> written = repair.writeCopy(target); !written)
        return report(written.message());
    return m_open(target);
}

bool RepairFlow::setAside(const ProjectRepair &repair)
{
    if (const Result<> moved = repair.setConflictsAside(m_locations); !moved)
        return report(moved.message());
    return m_open(repair.path());
}

bool RepairFlow::report(const QString &message)
{
    m_prompts.showError(tr("Open Project"), message);
    return false;
}

} // namespace vl::app
