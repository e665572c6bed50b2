#pragma once

#include "app/storage/repair.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QString>

#include <functional>
#include <vector>

namespace vl::app {

class Prompts;

/// A project that does not load, as the user is told of it.
struct DamagedProject
{
    QString path;
    QString message;        ///< of the loader
    QDateTime newestBackup; ///< UTC, invalid when its time is unknown
    bool hasBackup = false; ///< one that loads
    bool isRepairable = false;
    std::vector<LeftOutFile> leftOut;
    std::vector<ConflictingCopy> conflicts;
    QStringList fromWorkingCopy; ///< what a repaired copy takes from there
    /// What is left out, as the newest backup has it; by the paths.
    QHash<QString, QByteArray> inBackup;
    bool isCutOff = false; ///< more may be missing than is known
};

/// What the user does about it.
enum class DamageAnswer
{
    Close,
    OpenBackup,
    RepairedCopy,
    SetAside,
};

/// What there is to offer when a project does not load: its newest backup, a repaired copy, setting
/// aside what a client that keeps folders in step left there. The project itself is not written to,
/// but for the last of these.
class RepairFlow
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::RepairFlow)

public:
    /// `open` opens a project without asking what becomes of the present one.
    RepairFlow(Prompts &prompts, StorageLocations locations,
               std::function<bool(const QString &)> open)
        : m_prompts(prompts)
        , m_locations(std::move(locations))
        , m_open(std::move(open))
    {
    }

    /// Tells why the project did not load, and does what the user chooses; true when a project was
    /// opened in the end.
    bool offer(const QString &path, const QString &message);

private:
    static void compareWithBackup(const ProjectRepair &repair, const QString &backupPath,
                                  DamagedProject &damaged);
    bool openBackup(const QString &path, const QString &backupPath);
    bool openRepairedCopy(const ProjectRepair &repair);
    bool setAside(const ProjectRepair &repair);
    bool report(const QString &message);

    Prompts &m_prompts;
    StorageLocations m_locations;
    std::function<bool(const QString &)> m_open;
};

} // namespace vl::app
