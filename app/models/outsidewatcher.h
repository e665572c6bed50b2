#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QFutureWatcher>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>

namespace vl::app {

/// Tells when a project's place should be looked at, because something stirred there. It watches
/// the few folders of a project, never its files one by one; what is written into a file in place
/// does not show in its folder, so now and then it asks whether a file was touched.
class OutsideWatcher final : public QObject
{
    Q_OBJECT

public:
    explicit OutsideWatcher(QObject *parent = nullptr);
    ~OutsideWatcher() override;

    /// Watches a project folder, or a bundle; an empty path watches nothing.
    void watch(const QString &path, bool isBundle);
    const QString &path() const { return m_path; }
    /// Watches the folders that stand there now: one that was replaced is another one to the
    /// system.
    void renew();
    /// How long it waits after the last stir, and how often it asks for touched files, in
    /// milliseconds.
    void setDelays(int quiet, int asking);
    /// How long it leaves a project alone that was just opened, in milliseconds; the first look
    /// sees what happened meanwhile.
    void setOpeningDelay(int milliseconds) { m_openingDelay = milliseconds; }

public Q_SLOTS:
    /// As if something had stirred.
    void stir();

Q_SIGNALS:
    /// It has been quiet for a while after something stirred.
    void stirred();

private:
    QStringList pathsToWatch() const;
    void askForTouched();
    void takeSignature();

    QFileSystemWatcher m_watcher;
    QHash<QString, quint64> m_nodes; ///< of the folders, when they began to be watched
    QString m_path;
    bool m_isBundle = false;
    QTimer m_quiet;
    QElapsedTimer m_sinceFirst; ///< of the stirs that were not told yet
    QTimer m_asking;
    int m_askingInterval;
    int m_openingDelay = 0;
    bool m_isPutOff = false; ///< the first look, which comes in any case
    QElapsedTimer m_sinceAsked;
    QFutureWatcher<quint64> m_answer;
    QString m_askedPath;     ///< that the answer is about
    quint64 m_signature = 0; ///< 0 until it was taken
};

} // namespace vl::app
