#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

class QAction;
class QMenu;

namespace vl::app {
class Settings;
}

namespace vl::desktop {

/// The projects opened last as entries of a menu; those that are gone are told as such.
class RecentMenu final : public QObject
{
    Q_OBJECT

public:
    /// The menu holds nothing but what comes after the projects; the settings outlive it.
    RecentMenu(QMenu *menu, QAction *clear, app::Settings &settings);

Q_SIGNALS:
    void chosen(const QString &path);

private:
    void fill();
    void lookForMissing();

    QMenu *m_menu;
    QAction *m_clear;
    app::Settings &m_settings;
    QList<QAction *> m_entries;
};

} // namespace vl::desktop
