#pragma once

#include "app/base/result.h"
#include "app/update/updatemanifest.h"

#include <QtCore/QObject>

#include <functional>
#include <memory>

class QNetworkAccessManager;

namespace vl::app {
class Prompts;
class Settings;
} // namespace vl::app

namespace vl::desktop {

class Download;

/// What the check needs of the world outside; a test hands in its own.
struct UpdateService
{
    app::UpdateHosts hosts;
    QString version; ///< of the running program
    QString folder;  ///< where installers are kept, made when it is missing
    /// Closes the window as the user would; false when something speaks against it.
    std::function<bool()> leave;
    /// Comes back when leaving led nowhere.
    std::function<void()> comeBack;
    /// Starts a program that goes on without this one; false when it did not start.
    std::function<bool(const QString &program, const QStringList &arguments)> launch;
    std::function<std::unique_ptr<QNetworkAccessManager>()> makeNetwork;
    int manifestMilliseconds = 30'000; ///< how long the server may take for the manifest

    /// The vendor's hosts as the build has them, the running version and the network as it is.
    static UpdateService ofThisProgram();
};

/// Looks for a newer version at the vendor's, and fetches and starts its installer when the user
/// asks for it. Nothing is started whose bytes are not the ones that were announced.
class UpdateCheck final : public QObject
{
    Q_OBJECT

public:
    enum class Asked
    {
        Silently, ///< tells of a newer version and of nothing else
        ByUser
    };

    /// The settings and prompts outlive it.
    UpdateCheck(UpdateService service, app::Settings &settings, app::Prompts &prompts,
                QObject *parent = nullptr);
    ~UpdateCheck() override;

    /// Checks silently in a moment, unless the last time was less than a day ago or the user does
    /// not want it.
    void schedule();
    void check(Asked asked);
    /// Fetches and starts the installer of the version that was told.
    void install();
    /// Gives up fetching it.
    void cancel();

Q_SIGNALS:
    /// One of these tells what there is to see at the foot of the window.
    void nothingToShow();
    void checking();
    void available(const QString &version);
    void downloading(const QString &version);
    void progressed(qint64 received, qint64 total);

private:
    void takeManifest(const app::Result<QByteArray> &body);
    void takeInstaller(const app::Result<QByteArray> &body);
    app::Result<QString> saveInstaller(const QByteArray &bytes) const;
    void start(const QString &installer);
    void showState();
    QNetworkAccessManager &network();

    UpdateService m_service;
    app::Settings &m_settings;
    app::Prompts &m_prompts;
    std::unique_ptr<QNetworkAccessManager> m_network; ///< while something is fetched
    std::unique_ptr<Download> m_manifestDownload;
    std::unique_ptr<Download> m_installerDownload;
    app::UpdateManifest m_newest;  ///< valid when there is a newer version
    app::UpdateManifest m_fetched; ///< what the installer that is being fetched must be
    Asked m_asked = Asked::Silently;
};

} // namespace vl::desktop
