#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace vl::app {

struct DamagedProject;
struct LockHolder;
enum class DamageAnswer;
enum class HolderState;

/// What a flow asks of the user. The program answers with dialogs, a test with what it likes.
class Prompts
{
public:
    enum class Unsaved
    {
        Save,
        Discard,
        Cancel
    };

    /// What becomes of a project that somebody else has open.
    enum class Locked
    {
        Cancel,
        OpenCopy,
        ReadOnly,
        OpenAnyway
    };

    virtual ~Prompts() = default;

    /// What becomes of unsaved work in the project of this name.
    virtual Unsaved askUnsaved(const QString &projectName) = 0;
    /// Whether to go on with something that costs work; `action` names the button that does it.
    virtual bool confirm(const QString &question, const QString &detail, const QString &action) = 0;
    /// These give an empty path when the user calls it off.
    virtual QString chooseProjectToOpen() = 0;
    virtual QString chooseProjectFolderToOpen() = 0;
    /// The suggestion is a name, or a path when the place of the open project is not the one.
    virtual QString chooseBundleToSave(const QString &suggestion) = 0;
    virtual QString chooseFolderToSave(const QString &suggestion) = 0;
    /// A short text such as a name, which may be empty; none when called off.
    virtual std::optional<QString> askText(const QString &title, const QString &label,
                                           const QString &text) = 0;
    /// One of the texts; nothing when called off.
    virtual QString chooseOne(const QString &title, const QString &label,
                              const QStringList &texts) = 0;
    /// Which of the answers is chosen, the first being the one at hand; -1 when it is called off.
    virtual int choose(const QString &title, const QString &question,
                       const QStringList &answers) = 0;
    virtual void showInformation(const QString &title, const QString &message) = 0;
    virtual void showError(const QString &title, const QString &message) = 0;
    /// Tells why a project does not load, and asks what to do about it.
    virtual DamageAnswer askDamaged(const DamagedProject &project) = 0;
    /// Tells who has the project open. Opening it anyway is offered where nobody knows whether that
    /// program still runs.
    virtual Locked askLocked(const QString &projectName, const LockHolder &holder,
                             HolderState state) = 0;

protected:
    Prompts() = default;
    Prompts(const Prompts &) = default;
    Prompts &operator=(const Prompts &) = default;
};

} // namespace vl::app
