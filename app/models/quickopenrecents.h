#pragma once

#include "core/id.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

namespace vl::app {

class Settings;
class Workspace;

/// What was worked on last, the latest first: documents and entities by project, commands in all of
/// them. It is kept in the user's settings, outside the project.
class QuickOpenRecents final : public QObject
{
    Q_OBJECT

public:
    /// Items and commands kept.
    static constexpr qsizetype maximum = 40;

    QuickOpenRecents(Workspace &workspace, Settings &settings, QObject *parent = nullptr);
    ~QuickOpenRecents() override;

    /// A selection that was just made counts too, from here on.
    const QList<core::ContentId> &items();
    const QStringList &commands() const { return m_commands; }
    void noteItem(const core::ContentId &id);
    void noteCommand(const QString &id);
    /// The document that was selected last, also when something else is selected now; null for
    /// none.
    const core::ContentId &lastDocument() const { return m_lastDocument; }

private:
    void selectionChanged();
    void notePending();
    void load();
    void store();

    Workspace &m_workspace;
    Settings &m_settings;
    QString m_projectPath;
    QList<core::ContentId> m_items;
    QStringList m_commands;
    core::ContentId m_lastDocument;
    core::ContentId m_pending; ///< selected now, perhaps only on the way to something else
    QTimer m_stays;
};

} // namespace vl::app
