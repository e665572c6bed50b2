#pragma once

#include "app/models/newcontents.h"
#include "app/storage/deleted.h"
#include "core/changeset.h"
#include "core/content/contentobject.h"
#include "core/taxonomy.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QThreadPool>

#include <map>
#include <set>
#include <vector>

namespace vl::app {

class Workspace;

/// One object or category that was deleted and is not there now.
struct DeletedItem
{
    QString path;  ///< of its file
    QString name;  ///< its title or name
    QString text;  ///< what stands in it, for people
    int depth = 0; ///< below others of the same step
};

/// Things that went in one step.
struct DeletedGroup
{
    QDateTime time; ///< UTC; invalid when unknown
    QString label;
    std::vector<DeletedItem> items;
};

/// Keeps what is deleted from the open project, and brings it back.
class RecentlyDeleted final : public QObject
{
    Q_OBJECT

public:
    /// The workspace outlives it.
    RecentlyDeleted(Workspace &workspace, StorageLocations locations, QObject *parent = nullptr);
    ~RecentlyDeleted() override;

    /// What was deleted in the last days and is not there again, the latest first.
    std::vector<DeletedGroup> groups();
    /// Brings an item back, with what lay below it and went in the same step, and the category that
    /// it needs; as one step. What the deletion moved out of a category goes back into it, unless
    /// it was moved again since. Without a path all of the group. False when nothing can be.
    bool restore(const DeletedGroup &group, const QString &path = {});
    /// Waits until all is written.
    void finish() { m_pool.waitForDone(); }

private:
    void enter();
    void follow(const core::ChangeSet &changes);
    void followMove(const QString &path, const core::ContentId &id, const core::ContentId &parent);
    void keep();
    QString key() const;
    std::map<QString, QByteArray> everythingDeleted();
    std::vector<std::unique_ptr<core::Command>> movesBack(const core::NewContents &contents);

    Workspace &m_workspace;
    StorageLocations m_locations;
    QThreadPool m_pool; ///< of one thread
    QString m_untitled; ///< names what is kept for a project without a place
    QString m_key;
    std::map<core::ContentId, QByteArray> m_taken;          ///< by the command that runs
    std::map<core::ContentId, core::Category> m_categories; ///< as they are in the project
    QHash<core::ContentId, core::ContentId> m_places;       ///< the category above each
    std::set<core::ContentId> m_pinned;                     ///< before the step that is open
    std::map<QString, QByteArray> m_step;                   ///< gone in the step that is open
    std::map<QString, DeletedMove> m_moves;                 ///< in that step, by path
    qsizetype m_redoCount = 0;
};

} // namespace vl::app
