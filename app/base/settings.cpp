#include "app/base/settings.h"

#include "app/base/settingskeys.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace vl::app {

namespace {

constexpr qsizetype mostRecentProjects = 8;

QString nameOf(const SettingKey &key)
{
    return QString::fromLatin1(key.name);
}

/// The key as the toolkit has it after it has read it from a file: the group "general" alone comes
/// back with another letter than it went.
QString stored(const QString &key)
{
    static const QLatin1String group("general/");
    return key.startsWith(group) ? QLatin1String("General/") + key.mid(group.size()) : key;
}

} // namespace

Settings::Settings()
    : m_store(std::make_unique<QSettings>())
{
    keepDamaged();
}

Settings::Settings(const QString &iniFile)
    : m_store(std::make_unique<QSettings>(iniFile, QSettings::IniFormat))
{
    keepDamaged();
}

void Settings::keepDamaged()
{
    m_store->allKeys(); // or a part is first read when it is asked for
    if (m_store->status() != QSettings::FormatError)
        return;
    // The next value that is set writes the file anew with what could be read of it.
    const QString copy = place() + QLatin1String(".damaged");
    QFile::remove(copy);
    if (QFile::copy(place(), copy))
        m_damagedCopy = copy;
}

bool Settings::areKept() const
{
    m_store->sync();
    return m_store->status() != QSettings::AccessError && m_store->isWritable();
}

QString Settings::text(const SettingKey &key) const
{
    return m_store->value(stored(nameOf(key)), QString::fromUtf8(key.defaultValue)).toString();
}

bool Settings::flag(const SettingKey &key) const
{
    const QString value = text(key);
    if (value == QLatin1String("true") || value == QLatin1String("false"))
        return value == QLatin1String("true");
    return QLatin1String(key.defaultValue) == QLatin1String("true");
}

void Settings::set(const SettingKey &key, const QString &value)
{
    set(nameOf(key), value);
}

void Settings::set(const SettingKey &key, bool value)
{
    set(key, value ? QStringLiteral("true") : QStringLiteral("false"));
}

QString Settings::text(const QString &key) const
{
    return m_store->value(stored(key)).toString();
}

bool Settings::contains(const QString &key) const
{
    return m_store->contains(stored(key));
}

void Settings::set(const QString &key, const QString &value)
{
    if (contains(key) && text(key) == value)
        return;
    m_store->setValue(stored(key), value);
    Q_EMIT m_changes->changed(key);
}

void Settings::remove(const QString &key)
{
    if (!contains(key))
        return;
    m_store->remove(stored(key));
    Q_EMIT m_changes->changed(key);
}

QByteArray Settings::bytes(const QString &key) const
{
    return m_store->value(stored(key)).toByteArray();
}

void Settings::setBytes(const QString &key, const QByteArray &value)
{
    m_store->setValue(stored(key), value);
}

QStringList Settings::recentProjects() const
{
    return text(settings::recentProjects)
        .split(u'\n', Qt::SkipEmptyParts)
        .mid(0, mostRecentProjects);
}

void Settings::addRecentProject(const QString &path)
{
    // The list is kept as lines: a path that is two of them would come back as two others.
    if (path.isEmpty() || path.contains(u'\n'))
        return;
    m_store->sync(); // another window may have added one
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QStringList list = recentProjects();
    list.removeAll(absolute);
    list.prepend(absolute);
    if (list.size() > mostRecentProjects)
        list.resize(mostRecentProjects);
    set(settings::recentProjects, list.join(u'\n'));
}

void Settings::removeRecentProject(const QString &path)
{
    m_store->sync();
    QStringList list = recentProjects();
    if (list.removeAll(path) > 0)
        set(settings::recentProjects, list.join(u'\n'));
}

void Settings::clearRecentProjects()
{
    set(settings::recentProjects, QString());
}

} // namespace vl::app
