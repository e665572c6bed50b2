#pragma once

#include "app/models/outsidemonitor.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <memory>

namespace vl::app {
class AutosaveController;
} // namespace vl::app

namespace vl::desktop {

class ExternalChangesDialog;
struct NoticeAction;

/// Keeps the work in the window safe while it is open: saves the project at regular times, and
/// tells what others do to its files, with what can be done about it.
class SafeKeeping final : public QObject
{
    Q_OBJECT

public:
    /// Everything handed in outlives it; the window shows the dialogs.
    SafeKeeping(const PanelContext &context, QWidget *window);
    ~SafeKeeping() override;

    app::AutosaveController &autosave() const { return *m_autosave; }
    app::OutsideMonitor &outside() { return m_outside; }

private:
    void followProject();
    void tellReadOnly();
    void tellMissingRecords();
    void check();
    void showOffer();
    void askAbout(const app::OutsideOffer &offer);
    void askAboutMedia(int files);
    void reloadMedia();
    void load();
    void merge();
    void review();
    void keepOwnBySaving();
    void tell(const QString &message);
    bool mayRemoveMuch();

    PanelContext m_context;
    QWidget *m_window;
    std::unique_ptr<app::AutosaveController> m_autosave; ///< of the open project
    app::OutsideMonitor m_outside;
    QPointer<ExternalChangesDialog> m_dialog; ///< while it is shown
    bool m_isAsked = false;                   ///< the user asked for a check
    bool m_savesOwn = false; ///< what is open is saved as soon as it was decided to keep it
};

} // namespace vl::desktop
