#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace vl::app {

class OpenProject;

/// Saves the open project at regular times while it has unsaved changes. What is written is chosen
/// on the interface thread and written on another one.
class AutosaveController final : public QObject
{
    Q_OBJECT

public:
    /// How long it waits between two saves unless told otherwise, in milliseconds.
    static constexpr int defaultInterval = 30000;

    /// The project outlives the controller and stays its owner's.
    explicit AutosaveController(OpenProject &project, QObject *parent = nullptr);
    ~AutosaveController() override;

    /// The time between two saves, in milliseconds, above 0.
    int interval() const { return m_timer.interval(); }
    void setInterval(int milliseconds) { m_timer.setInterval(milliseconds); }
    bool isActive() const { return m_timer.isActive(); }

public Q_SLOTS:
    void start();
    void stop();
    /// Has the editors hand in what is typed, then saves the project in the background when it is
    /// dirty and has a place. While a group of the history is open, which is half a change, it
    /// waits for the end of the group.
    void saveNow();

Q_SIGNALS:
    void aboutToSave();
    void saved();
    void saveFailed(const QString &message);

private:
    /// What became of the save that was asked for here.
    enum class Asked
    {
        Nothing,
        Running, ///< it runs
        Waiting, ///< it waits behind one that others asked for
    };

    void tellSaved();
    void tellFailed(const QString &message);

    OpenProject &m_project;
    QTimer m_timer;
    QTimer m_groupWait; ///< until an open group of the history is looked at again
    Asked m_asked = Asked::Nothing;
};

} // namespace vl::app
