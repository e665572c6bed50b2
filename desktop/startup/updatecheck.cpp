#include "desktop/startup/updatecheck.h"

#include "app/base/files.h"
#include "app/base/settingskeys.h"
#include "app/base/sha256.h"
#include "app/models/prompts.h"
#include "app/update/updateschedule.h"
#include "desktop/startup/download.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkAccessManager>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace vl::desktop {

namespace {

constexpr int silentCheckMilliseconds = 3000;
constexpr qint64 mostManifestBytes = 64 * 1024;
constexpr DownloadLimits installerLimits{qint64(512) << 20, 60 * 60 * 1000};

/// Whether nobody else can have put a file there, or put another in its place.
bool isOwnFolder(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isDir() || info.isSymLink())
        return false;
#ifdef Q_OS_UNIX
    return info.ownerId() == geteuid()
           && !(info.permissions() & (QFileDevice::WriteGroup | QFileDevice::WriteOther));
#else
    return true;
#endif
}

} // namespace

UpdateService UpdateService::ofThisProgram()
{
    UpdateService service;
    service.hosts = {QStringLiteral(IVOREL_UPDATE_HOST), QStringLiteral(IVOREL_DOWNLOAD_HOST),
                     QStringLiteral(IVOREL_APEX_DOMAIN)};
    service.version = QCoreApplication::applicationVersion();
    service.folder = QDir(QDir::tempPath()).filePath(QStringLiteral("IvorelUpdate"));
    service.leave = [] { return true; };
    service.comeBack = [] {};
    service.launch = [](const QString &program, const QStringList &arguments) {
        return QProcess::startDetached(program, arguments);
    };
    service.makeNetwork = [] { return std::make_unique<QNetworkAccessManager>(); };
    return service;
}

UpdateCheck::UpdateCheck(UpdateService service, app::Settings &settings, app::Prompts &prompts,
                         QObject *parent)
    : QObject(parent)
    , m_service(std::move(service))
    , m_settings(settings)
    , m_prompts(prompts)
{
}

UpdateCheck::~UpdateCheck() = default;

void UpdateCheck::schedule()
{
    if (!m_settings.flag(app::settings::autoUpdateCheck))
        return;
    const QString now = QDateTime::currentDateTime().toString(Qt::ISODate);
    if (!app::shouldCheckForUpdates(m_settings.text(app::settings::lastUpdateCheck), now))
        return;
    m_settings.set(app::settings::lastUpdateCheck, now);
    QTimer::singleShot(silentCheckMilliseconds, this, [this] { check(Asked::Silently); });
}

void UpdateCheck::check(Asked asked)
{
    // A user who asks while a silent check is on its way gets the answer to that one.
    const bool isOnItsWay = m_manifestDownload != nullptr;
    m_asked = isOnItsWay && m_asked == Asked::ByUser ? Asked::ByUser : asked;
    showState();
    if (isOnItsWay)
        return;
    QUrl url;
    url.setScheme(QStringLiteral("https"));
    url.setHost(m_service.hosts.endpoint);
    url.setPath(QStringLiteral("/latest.json"));
    m_manifestDownload = std::make_unique<Download>(
        network(), url, DownloadLimits{mostManifestBytes, m_service.manifestMilliseconds});
    connect(m_manifestDownload.get(), &Download::finished, this, &UpdateCheck::takeManifest);
    showState();
}

void UpdateCheck::takeManifest(const app::Result<QByteArray> &body)
{
    const bool tells = m_asked == Asked::ByUser;
    const QString title = tr("Check for Updates");
    m_manifestDownload.release()->deleteLater(); // it is what calls
    const app::UpdateManifest manifest =
        body ? app::parseUpdateManifest(*body, m_service.hosts) : app::UpdateManifest();
    if (manifest.valid)
        m_newest = app::compareVersions(m_service.version, manifest.version) < 0
                       ? manifest
                       : app::UpdateManifest();
    showState();
    if (!tells)
        return;
    if (!body)
        m_prompts.showError(title,
                            tr("Could not reach the update service: %1").arg(body.message()));
    else if (!manifest.valid)
        m_prompts.showError(title, tr("The update information could not be read."));
    else if (!m_newest.valid)
        m_prompts.showInformation(
            title,
            tr("You're up to date — Ivorel %1 is the newest version.").arg(m_service.version));
}

void UpdateCheck::install()
{
    if (!m_newest.valid || m_installerDownload)
        return;
    m_fetched = m_newest; // another check may find another version meanwhile
    m_installerDownload = std::make_unique<Download>(
        network(), QUrl(m_fetched.installerUrl, QUrl::StrictMode), installerLimits);
    connect(m_installerDownload.get(), &Download::progressed, this, &UpdateCheck::progressed);
    connect(m_installerDownload.get(), &Download::finished, this, &UpdateCheck::takeInstaller);
    showState();
}

void UpdateCheck::cancel()
{
    m_installerDownload.reset();
    showState();
}

void UpdateCheck::takeInstaller(const app::Result<QByteArray> &body)
{
    const QString title = tr("Update");
    m_installerDownload.release()->deleteLater(); // it is what calls
    showState();
    if (!body) {
        m_prompts.showError(title, tr("The download failed: %1").arg(body.message()));
        return;
    }
    if (QString::fromLatin1(app::Sha256::of(*body)).toUpper() != m_fetched.sha256) {
        m_prompts.showError(title, tr("The downloaded installer failed its integrity check and was "
                                      "discarded. Nothing was installed."));
        return;
    }
    const app::Result<QString> installer = saveInstaller(*body);
    if (installer)
        start(*installer);
    else
        m_prompts.showError(title, installer.message());
}

app::Result<QString> UpdateCheck::saveInstaller(const QByteArray &bytes) const
{
    const QString message = tr("The installer could not be saved to disk.");
    QString path = QDir(m_service.folder)
                       .filePath(QStringLiteral("Ivorel-%1-Setup.exe").arg(m_fetched.version));
    if (!app::makePrivateFolder(m_service.folder) || !isOwnFolder(m_service.folder))
        return app::failure(message);
    const app::Result<> written = app::writeFile(path, bytes, {message, message});
    if (!written)
        return written.asFailure();
    QFile::setPermissions(path,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return path;
}

void UpdateCheck::start(const QString &installer)
{
    if (!m_service.leave())
        return;
    if (m_service.launch(installer, {QStringLiteral("/SILENT"), QStringLiteral("/RELAUNCH")})) {
        QCoreApplication::quit();
        return;
    }
    m_service.comeBack();
    m_prompts.showError(tr("Update"), tr("The installer could not be started."));
}

void UpdateCheck::showState()
{
    if (!m_manifestDownload && !m_installerDownload)
        m_network.reset();
    if (m_installerDownload)
        Q_EMIT downloading(m_fetched.version);
    else if (m_manifestDownload && m_asked == Asked::ByUser)
        Q_EMIT checking();
    else if (m_newest.valid)
        Q_EMIT available(m_newest.version);
    else
        Q_EMIT nothingToShow();
}

QNetworkAccessManager &UpdateCheck::network()
{
    if (!m_network)
        m_network = m_service.makeNetwork();
    return *m_network;
}

} // namespace vl::desktop
