#include "app/models/outsidewatcher.h"

#include "app/base/files.h"
#include "app/storage/outsidescan.h"
#include "app/storage/projectpaths.h"

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace vl::app {

namespace {

constexpr int quietMilliseconds = 400;
constexpr int longestWait = 3000; ///< while it does not get quiet
constexpr int askingMilliseconds = 5000;
constexpr int idleFactor = 100; ///< asking takes no more than this part of the time

} // namespace

OutsideWatcher::OutsideWatcher(QObject *parent)
    : QObject(parent)
    , m_askingInterval(askingMilliseconds)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quietMilliseconds);
    m_asking.setSingleShot(true);
    m_asking.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &OutsideWatcher::stir);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &OutsideWatcher::stir);
    connect(&m_quiet, &QTimer::timeout, this, [this] {
        m_sinceFirst.invalidate();
        Q_EMIT stirred();
    });
    connect(&m_asking, &QTimer::timeout, this, &OutsideWatcher::askForTouched);
    connect(&m_answer, &QFutureWatcherBase::finished, this, &OutsideWatcher::takeSignature);
}

OutsideWatcher::~OutsideWatcher()
{
    m_answer.waitForFinished();
}

void OutsideWatcher::watch(const QString &path, bool isBundle)
{
    m_path = path;
    m_isBundle = isBundle;
    m_signature = 0;
    m_quiet.stop();
    m_sinceFirst.invalidate();
    m_asking.stop();
    m_nodes.clear();
    if (path.isEmpty())
        renew();
    // The look that follows the first answer begins to watch, and sees what came before it.
    m_isPutOff = m_openingDelay > 0 && !path.isEmpty();
    if (m_isPutOff)
        m_asking.start(m_openingDelay);
    else
        askForTouched();
}

void OutsideWatcher::setDelays(int quiet, int asking)
{
    m_quiet.setInterval(quiet);
    m_askingInterval = asking;
    if (m_asking.isActive())
        m_asking.start(asking);
}

QStringList OutsideWatcher::pathsToWatch() const
{
    if (m_path.isEmpty())
        return {};
    // The folder around it tells when the whole project is replaced.
    const QString parent = QFileInfo(m_path).absolutePath();
    QStringList paths = m_isBundle ? QStringList{parent, m_path}
                                   : QStringList{parent,
                                                 m_path,
                                                 m_path + u'/' + objectsFolder(),
                                                 m_path + u'/' + taxonomyFolder(),
                                                 m_path + u'/' + assetsFolder(),
                                                 m_path + u'/' + recordsPath()};
    paths.removeIf([](const QString &path) { return !QFileInfo::exists(path); });
    return paths;
}

void OutsideWatcher::renew()
{
    QStringList missing = pathsToWatch();
    QStringList old = m_watcher.files();
    const QStringList folders = m_watcher.directories();
    for (const QString &folder : folders) {
        // To begin to watch a folder of many files takes the system long.
        const quint64 node = missing.contains(folder) ? entryNode(folder) : 0;
        if (node != 0 && node == m_nodes.value(folder))
            missing.removeAll(folder);
        else
            old.append(folder);
    }
    if (!old.isEmpty())
        m_watcher.removePaths(old);
    for (const QString &path : std::as_const(missing))
        m_nodes.insert(path, entryNode(path));
    if (!missing.isEmpty())
        m_watcher.addPaths(missing);
}

void OutsideWatcher::stir()
{
    if (m_path.isEmpty() || m_isPutOff)
        return;
    if (!m_sinceFirst.isValid())
        m_sinceFirst.start();
    if (!m_quiet.isActive() || m_sinceFirst.elapsed() < longestWait)
        m_quiet.start();
}

void OutsideWatcher::askForTouched()
{
    m_isPutOff = false;
    if (m_path.isEmpty() || m_answer.isRunning())
        return;
    m_sinceAsked.start();
    m_askedPath = m_path;
    m_answer.setFuture(QtConcurrent::run([path = m_path] { return diskSignature(path); }));
}

void OutsideWatcher::takeSignature()
{
    if (m_path != m_askedPath) {
        askForTouched(); // the answer is about another project
        return;
    }
    if (m_path.isEmpty())
        return;
    const quint64 before = std::exchange(m_signature, m_answer.result());
    if (before != m_signature)
        stir(); // the first time too: what came before the first answer is seen by the look
    m_asking.start(std::max(m_askingInterval, int(m_sinceAsked.elapsed()) * idleFactor));
}

} // namespace vl::app
