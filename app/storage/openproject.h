#pragma once

#include "app/base/result.h"
#include "app/storage/folderstore.h"
#include "app/storage/outsidescan.h"
#include "app/storage/reconcile.h"
#include "app/storage/workingcopy.h"
#include "core/commandstack.h"
#include "core/project.h"

#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vl::app {

class ProjectStore;
struct ReadOnlyPlace;

/// The project that is open: its model, its history, and the place where it is saved.
class OpenProject final : public QObject
{
    Q_OBJECT

public:
    /// An empty project that has no place yet; its media files stand in a folder of the program's
    /// own data until it has.
    explicit OpenProject(const StorageLocations &locations = StorageLocations::standard());
    ~OpenProject() override;

    /// Opens a ".vellum" file or a project folder.
    static Result<std::unique_ptr<OpenProject>> open(const QString &path);
    /// Opens it to be read, writing nothing there: the project has no place until it is saved
    /// elsewhere.
    static Result<std::unique_ptr<OpenProject>> openReadOnly(const QString &path);
    bool isReadOnly() const { return m_readOnly != nullptr; }

    core::Project &project() { return *m_project; }
    const core::Project &project() const { return *m_project; }
    const core::CommandStack &history() const { return m_history; }
    core::CommandStack &history() { return m_history; }

    /// Runs a command as a step of the history, or as a part of the open group.
    void push(std::unique_ptr<core::Command> command) { m_history.push(std::move(command)); }

    bool isDirty() const { return m_history.isDirty(); }
    bool hasLocation() const { return m_store != nullptr; }
    /// The ".vellum" file or the folder; empty while the project has no place.
    QString path() const;
    bool isBundle() const;
    /// What the project is called: the name of its file or folder, or "Untitled".
    QString name() const;
    /// The same, or the place from which it was opened to be read only.
    QString origin() const;
    /// The folder under which "assets/…" paths stand; for a project without a place it may not be
    /// there yet.
    QString folder() const;
    /// Copies a file among the project's media; gives its path as the project's contents name it.
    Result<QString> addMedia(const QString &file);
    /// Leaves the media of a project without a place where they are when this goes: the program
    /// ends before it was said what becomes of them.
    void leaveMedia() { m_leavesMedia = true; }

    /// Saves to the place of the project and marks the history clean. Emits aboutToSave() first,
    /// so that editors hand in what is typed. Without a place it fails.
    Result<> save(OutsideChanges outside = OutsideChanges::Refuse);
    /// The same with the writing on another thread. What is saved is the state at the call; the
    /// history is clean there once saved() comes, and saveFailed() tells why it did not. A call
    /// while another save runs starts when that one ends.
    void saveInBackground(OutsideChanges outside = OutsideChanges::Refuse);
    bool isSaving() const { return m_running != nullptr; }
    /// Waits for a save that runs in the background, and for the one that waits behind it.
    void finishSaving();
    /// Whether others changed what a save would write over now; false while one runs.
    bool meetsOutsideChanges();
    /// Saves as a ".vellum" file, or as a folder, which becomes the project's place. The files
    /// under "assets/" and others that the project carries come along.
    Result<> saveAsBundle(const QString &path, Carry carry = Carry::Everything);
    Result<> saveAsFolder(const QString &folder, Carry carry = Carry::Everything);
    /// Files that the project carries and that cannot be read, by their paths in it.
    QStringList unreadableFiles() const;

    /// Every file of the project as a save would leave it now, to be asked for on any thread. Only
    /// for a project with a place.
    std::function<ProjectFiles()> snapshot() const;

    /// A look for what others did to the project's files, to be run on any thread; null without a
    /// place.
    std::unique_ptr<PendingScan> prepareScan() const;
    /// Grows whenever the program itself may have changed or taken over files; what a look found
    /// that was prepared before tells of the past.
    quint64 filesGeneration() const { return m_filesGeneration; }
    /// Takes note of what need not be told again: media, and files that were only touched.
    void note(const OutsideState &state);
    /// The three-way reconcile of what others changed with what the project would write now, in
    /// path order. A merge that would be no valid file is a conflict here, to be settled by hand.
    /// A sync client's second version of a file conflicts with the object that has its id. Entries
    /// that are no conflicts carry both sides too.
    std::vector<ReconcileEntry> reconcile(const OutsideState &state) const;
    /// What has to be done, on any thread, before the outside changes are taken over.
    std::function<Result<>()> prepareTakeOver(const OutsideState &state) const;
    /// Brings the model to what the settled entries say, as one step of that name; entries that are
    /// missing leave their files for later. When the model is on disk as it then is, the history is
    /// clean there, otherwise dirty. The look must be of the present generation. Fails, changing
    /// nothing, for entries in conflict and for results that are no valid files.
    Result<> takeOver(const OutsideState &state, const std::vector<ReconcileEntry> &entries,
                      const QString &stepName);
    /// Keeps the model as it is: the next save writes it over what others left.
    void keepOwn(const OutsideState &state);

Q_SIGNALS:
    /// The model changed, by a push, an undo or a redo.
    void changed(const vl::core::ChangeSet &changes);
    /// The steps, their names or the clean mark may be others now.
    void historyChanged();
    void aboutToSave();
    void saved();
    void saveFailed(const QString &message);
    void locationChanged();

private:
    struct RunningSave;

    OpenProject(std::unique_ptr<core::Project> project, std::unique_ptr<ProjectStore> store);

    void listen();
    QString carriedFolder() const;
    std::unique_ptr<RunningSave> beginSave(ProjectStore &store, bool everything);
    Result<> endSave(RunningSave &save, const Result<> &result);
    Result<> saveInto(std::unique_ptr<ProjectStore> store);
    void backgroundSaveEnded();
    std::optional<QByteArray> localBytes(const OutsideFile &file) const;
    void touch(const OutsideFile &file);

    std::unique_ptr<core::Project> m_project;
    core::CommandStack m_history; ///< goes before the project that its commands refer to
    std::unique_ptr<ProjectStore> m_store;
    QString m_mediaFolder; ///< of the media while the project has no place
    bool m_leavesMedia = false;
    std::unique_ptr<ReadOnlyPlace>
        m_readOnly;            ///< where it was read from, when it was opened for that
    core::ChangeSet m_unsaved; ///< what changed since the files were last read or written
    std::unique_ptr<RunningSave> m_running; ///< the save that another thread carries out
    std::optional<OutsideChanges> m_next;   ///< another save was asked for meanwhile, like this
    bool m_writesAnew = false;   ///< the next save writes all of it, where others removed it
    bool m_nextIsOnDisk = false; ///< the step that comes next brings in what the disk holds
    quint64 m_filesGeneration = 0;
};

} // namespace vl::app
