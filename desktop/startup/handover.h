#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <functional>

class QWidget;

namespace vl::app {
class Prompts;
}

namespace vl::desktop {

/// Does in this window what a later launch of the program handed over: comes forward, and asks
/// where the project shall open. While a dialog is open the question waits until it is closed.
class HandOver final : public QObject
{
    Q_OBJECT

public:
    using OpenHere = std::function<void(const QString &path)>;
    using OpenElsewhere = std::function<bool(const QString &path)>;

    /// The window and the prompts outlive it. `openElsewhere` starts another window with the
    /// project, false when it could not.
    HandOver(QWidget *window, app::Prompts &prompts, OpenHere openHere, OpenElsewhere openElsewhere,
             QObject *parent = nullptr);

    /// Takes a project's path, empty for the window alone.
    void receive(const QString &path);

private:
    void bringForward();
    void next();
    void ask(const QString &path);

    QWidget *m_window;
    app::Prompts &m_prompts;
    OpenHere m_openHere;
    OpenElsewhere m_openElsewhere;
    QStringList m_waiting; ///< the paths nobody was asked about yet, each once
    QTimer m_again;        ///< runs while something waits for a dialog to close
    bool m_isAsking = false;
};

/// Starts the program again, with a window of its own for the project; false when it did not start.
bool startNewInstance(const QString &path);

} // namespace vl::desktop
