#include "desktop/startup/download.h"

#include <QtCore/QCoreApplication>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

namespace vl::desktop {

namespace {

constexpr int mostRedirects = 5;
constexpr qint64 readBufferBytes = 256 * 1024;

bool isSecure(const QUrl &url)
{
    return url.isValid() && url.scheme() == QLatin1String("https") && !url.host().isEmpty();
}

bool haveSameOrigin(const QUrl &a, const QUrl &b)
{
    constexpr int securePort = 443;
    return a.scheme() == b.scheme() && a.host() == b.host()
           && a.port(securePort) == b.port(securePort);
}

} // namespace

Download::Download(QNetworkAccessManager &network, const QUrl &url, DownloadLimits limits,
                   QObject *parent)
    : QObject(parent)
    , m_network(network)
    , m_limits(limits)
{
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this,
            [this] { finish(app::failure(tr("The server took too long to answer."))); });
    m_deadline.start(limits.milliseconds);
    QMetaObject::invokeMethod(
        this, [this, url] { request(url); }, Qt::QueuedConnection);
}

Download::~Download()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
}

void Download::request(const QUrl &url)
{
    if (!isSecure(url)) {
        finish(app::failure(tr("The address is not a secure one.")));
        return;
    }
    m_url = url;
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // The bytes as they lie there: a packed body may grow without bounds.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      QString(QCoreApplication::applicationName() + u'/'
                              + QCoreApplication::applicationVersion()));
    m_reply = m_network.get(request);
    m_reply->setReadBufferSize(readBufferBytes);
    connect(m_reply, &QNetworkReply::readyRead, this, &Download::read);
    connect(m_reply, &QNetworkReply::finished, this, &Download::end);
}

void Download::read()
{
    if (m_isFinished || !m_reply)
        return;
    const qint64 total = m_reply->header(QNetworkRequest::ContentLengthHeader).isValid()
                             ? m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong()
                             : -1;
    // The body of a redirect is nobody's business, but counts.
    m_bytes += m_reply->read(qMin(m_reply->bytesAvailable(), m_limits.bytes - m_bytes.size() + 1));
    if (qMax(total, qint64(m_bytes.size())) > m_limits.bytes)
        finish(app::failure(tr("The server sent more than was expected.")));
    else
        Q_EMIT progressed(m_bytes.size(), total);
}

void Download::end()
{
    read();
    if (m_isFinished || !m_reply)
        return;
    const QVariant target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute);
    if (m_reply->error() != QNetworkReply::NoError)
        finish(app::failure(m_reply->errorString()));
    else if (target.isValid())
        follow(m_url.resolved(target.toUrl()));
    else
        finish(m_bytes);
}

void Download::follow(const QUrl &target)
{
    m_reply->deleteLater();
    m_reply.clear();
    m_bytes.clear();
    if (!haveSameOrigin(target, m_url))
        finish(app::failure(tr("The server sent the program elsewhere.")));
    else if (++m_redirects > mostRedirects)
        finish(app::failure(tr("The server sent the program round in circles.")));
    else
        request(target);
}

void Download::finish(const app::Result<QByteArray> &result)
{
    if (m_isFinished)
        return;
    m_isFinished = true;
    m_deadline.stop();
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
        m_reply->deleteLater();
        m_reply.clear();
    }
    Q_EMIT finished(result);
}

} // namespace vl::desktop
