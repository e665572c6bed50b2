#include "app/models/autosavecontroller.h"

#include "app/storage/openproject.h"

namespace vl::app {

namespace {

constexpr int groupWaitMilliseconds = 500;

} // namespace

AutosaveController::AutosaveController(OpenProject &project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{
    m_timer.setInterval(defaultInterval);
    m_groupWait.setInterval(groupWaitMilliseconds);
    m_groupWait.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &AutosaveController::saveNow);
    connect(&m_groupWait, &QTimer::timeout, this, &AutosaveController::saveNow);
    connect(&project, &OpenProject::saved, this, &AutosaveController::tellSaved);
    connect(&project, &OpenProject::saveFailed, this, &AutosaveController::tellFailed);
}

AutosaveController::~AutosaveController() = default;

void AutosaveController::start()
{
    m_timer.start();
}

void AutosaveController::stop()
{
    m_timer.stop();
    m_groupWait.stop();
}

void AutosaveController::saveNow()
{
    if (m_project.history().isGroupOpen()) {
        m_groupWait.start();
        return;
    }
    m_groupWait.stop();
    Q_EMIT aboutToSave();
    if (!m_project.isDirty() || !m_project.hasLocation())
        return;
    if (m_asked == Asked::Nothing)
        m_asked = m_project.isSaving() ? Asked::Waiting : Asked::Running;
    m_project.saveInBackground();
}

void AutosaveController::tellSaved()
{
    if (m_asked == Asked::Nothing)
        return;
    if (m_asked == Asked::Waiting && m_project.isDirty()) {
        m_asked = Asked::Running; // the other save came to its end, and this one starts
        return;
    }
    m_asked = Asked::Nothing;
    Q_EMIT saved();
}

void AutosaveController::tellFailed(const QString &message)
{
    // One that waits behind a save that failed is not begun; the next tick tries again.
    if (m_asked == Asked::Nothing)
        return;
    m_asked = Asked::Nothing;
    Q_EMIT saveFailed(message);
}

} // namespace vl::app
