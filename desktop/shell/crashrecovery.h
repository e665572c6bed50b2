#pragma once

#include "app/models/journalkeeper.h"
#include "desktop/panels/panelcontext.h"
#include "desktop/shell/noticebar.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace vl::app {
class ProjectFlows;
class Recovery;
} // namespace vl::app

namespace vl::desktop {

/// Has what is not saved written down all the time, and offers what an earlier crash left of that:
/// to look at, to bring back or to do without.
class CrashRecovery final : public QObject
{
    Q_OBJECT

public:
    /// Everything handed in outlives it; the window shows the dialogs.
    CrashRecovery(const PanelContext &context, app::ProjectFlows &flows, QWidget *window);
    ~CrashRecovery() override;

    /// The window closes; what the user did not save is given up.
    void closing() { m_journal.giveUp(); }
    /// The program ends without a question; all that is not saved is on the disk when this returns.
    void cutOff() { m_journal.finish(); }

private:
    enum class Look
    {
        First,
        Skip
    };

    void ask(const QString &id, const QString &text, const QList<NoticeAction> &answers);
    void askAll();
    void askAboutOpen();
    void askAboutOthers();
    void askAboutUntitled(const app::FoundJournal &journal);
    void askAboutProject(const QString &path, const QStringList &journals);
    void restoreHere(Look look);
    void restoreAsNew(const QStringList &journals, Look look);
    void bringBack(const app::Recovery &recovery, const QStringList &paths,
                   const QStringList &journals);
    void showOne(const QStringList &paths);
    void discard(const QStringList &journals);
    void findProject(const QString &path, const QStringList &journals);
    void showAll();
    void showKept(const app::FoundJournal &journal);
    void tellBehind(const QString &message);

    PanelContext m_context;
    app::ProjectFlows &m_flows;
    QWidget *m_window;
    app::JournalKeeper m_journal;
    QTimer m_othersLater; ///< the project that the program starts with comes first
    QStringList m_asked;  ///< ids of the questions that are shown
};

} // namespace vl::desktop
