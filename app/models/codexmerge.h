#pragma once

#include "core/id.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace vl::core {
class Command;
class Entity;
} // namespace vl::core

namespace vl::app {

class Workspace;

/// A field that both of two entities fill, each in its own way.
struct MergeConflict
{
    QString key;
    QString label;
    QString kept; ///< what the entity that stays has, as it is shown
    QString other;
};

/// Makes one entity of two, and two of one.
class CodexMerge
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::CodexMerge)

public:
    explicit CodexMerge(Workspace &workspace)
        : m_workspace(workspace)
    {
    }

    /// The fields in which the two differ.
    QList<MergeConflict> conflicts(const core::ContentId &source,
                                   const core::ContentId &target) const;
    /// Puts the source into the target, as one step: its values where the target has none or the
    /// key is among those to take over, its names as aliases, its tags, pictures and values over
    /// time. Whatever referred to the source refers to the target, and the source goes. The target
    /// is withheld from whoever either was withheld from.
    void merge(const core::ContentId &source, const core::ContentId &target,
               const QSet<QString> &takenKeys);
    /// Adds an entity beside another that takes over some of its fields, with their values over
    /// time, and some of its aliases. Gives its id.
    core::ContentId split(const core::ContentId &id, const QString &name, const QSet<QString> &keys,
                          const QStringList &aliases);

private:
    using Commands = std::vector<std::unique_ptr<core::Command>>;

    core::Entity *entity(const core::ContentId &id) const;
    QString shown(const QString &value) const;
    void combine(const core::Entity &source, core::Entity &target, const QSet<QString> &takenKeys,
                 Commands &commands) const;
    void repointEntities(const core::Entity &source, const core::Entity &target,
                         Commands &commands) const;
    void repointObjects(const core::Entity &source, const core::Entity &target,
                        Commands &commands) const;
    void repointMaps(const core::Entity &source, const core::Entity &target,
                     Commands &commands) const;
    void repointCanvases(const core::Entity &source, const core::Entity &target,
                         Commands &commands) const;
    void repointRecords(const core::Entity &source, const core::Entity &target,
                        Commands &commands) const;
    void pushAll(const QString &label, Commands commands);

    Workspace &m_workspace;
};

} // namespace vl::app
