#pragma once

#include <QtCore/QObject>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace vl::app {

/// A key of the user's settings with the value that a missing entry stands for.
struct SettingKey
{
    const char *name;
    const char *defaultValue;
};

/// Tells of settings that change while the program runs.
class SettingsChanges final : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    /// The entry of this key has another value now, or is gone.
    void changed(const QString &key);
};

/// The user's settings. Values are texts, booleans "true" and "false".
class Settings
{
public:
    /// The store of this user and program.
    Settings();
    /// A store in a file, for tests.
    explicit Settings(const QString &iniFile);

    /// For whoever shows a setting; it lives as long as the settings.
    const SettingsChanges &changes() const { return *m_changes; }

    QString text(const SettingKey &key) const;
    /// What is neither "true" nor "false" counts as the default.
    bool flag(const SettingKey &key) const;
    void set(const SettingKey &key, const QString &value);
    void set(const SettingKey &key, bool value);
    /// The entry as it stands, empty when there is none; and whether there is one.
    QString text(const QString &key) const;
    bool contains(const QString &key) const;
    void set(const QString &key, const QString &value);
    void remove(const QString &key);

    QByteArray bytes(const QString &key) const;
    void setBytes(const QString &key, const QByteArray &value);

    /// The projects opened last, as absolute paths, the latest first; at most eight.
    QStringList recentProjects() const;
    void addRecentProject(const QString &path);
    void removeRecentProject(const QString &path);
    void clearRecentProjects();

    /// Where the settings are kept.
    QString place() const { return m_store->fileName(); }
    /// Whether what is set gets there; false where the file or its folder cannot be written to.
    bool areKept() const;
    /// The file that was put aside at the start because parts of it could not be read; empty when
    /// all of it was read.
    QString damagedCopy() const { return m_damagedCopy; }

private:
    void keepDamaged();

    std::unique_ptr<QSettings> m_store;
    QString m_damagedCopy;
    std::unique_ptr<SettingsChanges> m_changes = std::make_unique<SettingsChanges>();
};

} // namespace vl::app
