#pragma once

#include "app/base/result.h"
#include "app/storage/bundle.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

namespace vl::app {

/// The folder of the backups: bundles of what was about to be replaced, the newest of each name
/// kept.
class Backups
{
public:
    /// How many are kept for one base name.
    static constexpr int kept = 15;

    using Clock = std::function<QDateTime()>;

    Backups(QString folder, Clock now);

    /// Packs a project folder into a new backup, then drops the oldest beyond those kept; the path
    /// of the new one.
    Result<QString> addFolder(const QString &baseName, const QString &folder) const;
    /// Packs what the source holds in the same way.
    Result<QString> addSource(const QString &baseName, const BundleSource &source) const;
    /// Keeps these bytes as a backup in the same way.
    Result<QString> addBytes(const QString &baseName, QByteArrayView bytes) const;
    /// Moves a folder that cannot be packed in beside the backups, whole, where it stays; its new
    /// path.
    Result<QString> moveAside(const QString &baseName, const QString &folder) const;

    /// Full paths of the backups with this base name, oldest first.
    QStringList list(const QString &baseName) const;
    /// When a backup of the list was made, in UTC.
    static QDateTime timeOf(const QString &path, const QString &baseName);

private:
    template<typename Content>
    Result<QString> add(const QString &baseName, const Content &content) const;
    QString newName(const QString &baseName) const;
    void thin(const QString &baseName, const QString &newest) const;

    QString m_folder;
    Clock m_now;
};

} // namespace vl::app
