#include "desktop/shell/recentmenu.h"

#include "app/base/settingskeys.h"
#include "app/models/objecttexts.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QFutureWatcher>
#include <QtCore/QSet>
#include <QtWidgets/QMenu>

namespace vl::desktop {

namespace {

constexpr int pathCharacters = 60;

QSet<QString> missingOf(const QStringList &paths)
{
    QSet<QString> missing;
    for (const QString &path : paths)
        if (!QFileInfo::exists(path))
            missing.insert(path);
    return missing;
}

QString entryText(int number, const QString &path)
{
    const QFileInfo file(path);
    QString place = QDir::toNativeSeparators(file.path());
    if (place.size() > pathCharacters)
        place = QStringLiteral("…") + place.right(pathCharacters);
    QString text = QStringLiteral("%1 – %2").arg(file.completeBaseName(), place);
    text.replace(u'&', QLatin1String("&&"));
    return QStringLiteral("&%1 %2").arg(number).arg(text);
}

} // namespace

RecentMenu::RecentMenu(QMenu *menu, QAction *clear, app::Settings &settings)
    : QObject(menu)
    , m_menu(menu)
    , m_clear(clear)
    , m_settings(settings)
{
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToShow, this, &RecentMenu::lookForMissing);
    connect(&settings.changes(), &app::SettingsChanges::changed, this, [this](const QString &key) {
        if (key == QLatin1String(app::settings::recentProjects.name))
            fill();
    });
    fill();
}

void RecentMenu::fill()
{
    qDeleteAll(m_entries);
    m_entries.clear();
    const QStringList paths = m_settings.recentProjects();
    QAction *before = m_menu->actions().value(0);
    for (const QString &path : paths) {
        auto *entry = new QAction(entryText(int(m_entries.size()) + 1, path), this);
        entry->setData(path);
        connect(entry, &QAction::triggered, this, [this, path] { Q_EMIT chosen(path); });
        m_menu->insertAction(before, entry);
        m_entries.append(entry);
    }
    m_clear->setEnabled(!paths.isEmpty());
    lookForMissing();
}

void RecentMenu::lookForMissing()
{
    // A drive that does not answer must not hold up the menu.
    auto *watcher = new QFutureWatcher<QSet<QString>>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher] {
        const QSet<QString> missing = watcher->result();
        for (qsizetype i = 0; i < m_entries.size(); ++i) {
            QAction *entry = m_entries[i];
            const QString path = entry->data().toString();
            const QString text = entryText(int(i) + 1, path);
            entry->setText(missing.contains(path) ? tr("%1 (not found)").arg(text) : text);
            const QString shown = QDir::toNativeSeparators(path);
            entry->setToolTip(
                app::plainToolTip(missing.contains(path) ? tr("Not found: %1").arg(shown) : shown));
        }
        watcher->deleteLater();
    });
    watcher->setFuture(QtConcurrent::run(missingOf, m_settings.recentProjects()));
}

} // namespace vl::desktop
