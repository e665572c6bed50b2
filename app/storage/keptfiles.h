#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

namespace vl::app {

/// Files of a folder that are kept for some days after they came there; their names begin with the
/// time. A clock that jumps ahead hides some of them while it is wrong, and removes none: what is
/// too old goes only after the folder was looked at on several days that say so.
class KeptFiles
{
public:
    using Clock = std::function<QDateTime()>;

    /// A file older than so many days is kept no more.
    static constexpr int days = 30;
    /// On so many days, or more, a file must have been found too old before it goes.
    static constexpr int provingDays = 3;

    /// The extension, such as ".json", is that of the files; others are left alone.
    KeptFiles(QString folder, QString extension, Clock now);

    /// A name for a file that comes now; `rest` goes before the extension.
    QString newName(const QString &rest) const;
    /// Those that are not too old, the latest first.
    QStringList names() const;
    /// UTC; invalid when it is unknown, or in the future.
    QDateTime timeIn(const QString &name) const;
    /// Takes note of the day, and gives the names of those to be removed: what is too old, and what
    /// goes beyond so many files, the earliest first.
    QStringList outworn(int most) const;

private:
    QStringList all() const;
    bool isTooOld(const QString &name) const;
    QList<QDate> noteDay() const;

    QString m_folder;
    QString m_extension;
    Clock m_now;
};

} // namespace vl::app
