#include "desktop/startup/handover.h"

#include "app/models/prompts.h"
#include "desktop/startup/commandline.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QThread>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace vl::desktop {

namespace {

constexpr int againMilliseconds = 200;
constexpr qsizetype mostWaiting = 16;

/// Whether the user is in the middle of something that a question must not interrupt.
bool isBusy()
{
    return QApplication::activeModalWidget() || QThread::currentThread()->loopLevel() > 1;
}

} // namespace

HandOver::HandOver(QWidget *window, app::Prompts &prompts, OpenHere openHere,
                   OpenElsewhere openElsewhere, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_prompts(prompts)
    , m_openHere(std::move(openHere))
    , m_openElsewhere(std::move(openElsewhere))
    , m_again(this)
{
    m_again.setSingleShot(true);
    m_again.setInterval(againMilliseconds);
    connect(&m_again, &QTimer::timeout, this, &HandOver::next);
}

void HandOver::receive(const QString &path)
{
    bringForward();
    if (path.trimmed().isEmpty() || m_waiting.contains(path) || m_waiting.size() >= mostWaiting)
        return;
    m_waiting.append(path);
    if (!m_isAsking)
        next();
}

void HandOver::bringForward()
{
    m_window->setWindowState((m_window->windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    // Behind an open dialog the window hears no key.
    if (QWidget *dialog = QApplication::activeModalWidget()) {
        dialog->raise();
        dialog->activateWindow();
    }
}

void HandOver::next()
{
    m_isAsking = true;
    while (!m_waiting.isEmpty() && !isBusy())
        ask(m_waiting.takeFirst());
    m_isAsking = false;
    if (!m_waiting.isEmpty())
        m_again.start();
}

void HandOver::ask(const QString &path)
{
    const QString title = tr("Open Project");
    const QFileInfo info(QDir::cleanPath(path)); // a folder's path may end with a slash
    if (!info.exists()) {
        m_prompts.showError(
            title, tr("The project could not be found: %1").arg(QDir::toNativeSeparators(path)));
        return;
    }
    const QString question =
        tr("Ivorel is already open. Where should “%1” open?").arg(info.completeBaseName());
    switch (m_prompts.choose(title, question, {tr("This Window"), tr("New Window")})) {
    case 0:
        m_openHere(path);
        break;
    case 1:
        if (!m_openElsewhere(path))
            m_prompts.showError(title, tr("A new window could not be opened."));
        break;
    default:
        break;
    }
}

bool startNewInstance(const QString &path)
{
    return QProcess::startDetached(QCoreApplication::applicationFilePath(),
                                   {QLatin1String(newInstanceOption), path});
}

} // namespace vl::desktop
