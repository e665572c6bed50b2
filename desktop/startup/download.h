#pragma once

#include "app/base/result.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtCore/QUrl>

class QNetworkAccessManager;
class QNetworkReply;

namespace vl::desktop {

/// What one download may take.
struct DownloadLimits
{
    qint64 bytes = 0;
    int milliseconds = 0; ///< for all of it, redirects included
};

/// Fetches one file into memory over https, and only from the host it was asked to. Deleting it
/// ends the transfer without a word.
class Download final : public QObject
{
    Q_OBJECT

public:
    /// The network outlives it.
    Download(QNetworkAccessManager &network, const QUrl &url, DownloadLimits limits,
             QObject *parent = nullptr);
    ~Download() override;

Q_SIGNALS:
    /// Bytes so far; of how many, -1 when the server does not tell.
    void progressed(qint64 received, qint64 total);
    /// Once, after the constructor has returned.
    void finished(const vl::app::Result<QByteArray> &bytes);

private:
    void request(const QUrl &url);
    void read();
    void end();
    void follow(const QUrl &target);
    void finish(const app::Result<QByteArray> &result);

    QNetworkAccessManager &m_network;
    QUrl m_url;
    DownloadLimits m_limits;
    QTimer m_deadline;
    QPointer<QNetworkReply> m_reply;
    QByteArray m_bytes;
    int m_redirects = 0;
    bool m_isFinished = false;
};

} // namespace vl::desktop
