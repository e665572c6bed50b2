#include "app/update/updatemanifest.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>

namespace vl::app {

namespace {

/// The host of an https address in lower case; empty for any other address.
QString secureHost(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    if (!url.isValid() || url.scheme() != QLatin1String("https"))
        return {};
    return url.host(QUrl::FullyDecoded).toLower();
}

bool isWhole(const QRegularExpression &pattern, const QString &text)
{
    return pattern.match(text).hasMatch();
}

} // namespace

bool isTrustedUpdateUrl(const QString &url, const UpdateHosts &hosts)
{
    const QString host = secureHost(url);
    const QString apex = hosts.apex.toLower();
    return !host.isEmpty()
           && (host == hosts.download.toLower() || host == apex
               || host == QLatin1String("www.") + apex);
}

UpdateManifest parseUpdateManifest(const QByteArray &json, const UpdateHosts &hosts)
{
    // To the very end of the text: the version becomes part of a file's name.
    static const QRegularExpression version(QStringLiteral(R"(\A[0-9]+(\.[0-9]+){0,3}\z)"));
    static const QRegularExpression hash(QStringLiteral(R"(\A[0-9A-F]{64}\z)"));

    const QJsonObject object = QJsonDocument::fromJson(json).object();
    UpdateManifest manifest;
    manifest.version = object.value(QLatin1String("version")).toString();
    manifest.installerUrl = object.value(QLatin1String("installerUrl")).toString();
    manifest.sha256 = object.value(QLatin1String("sha256")).toString().toUpper();
    manifest.notesUrl = object.value(QLatin1String("notesUrl")).toString();
    if (!isTrustedUpdateUrl(manifest.notesUrl, hosts))
        manifest.notesUrl.clear();
    const QString host = secureHost(manifest.installerUrl);
    manifest.valid = isWhole(version, manifest.version) && isWhole(hash, manifest.sha256)
                     && !host.isEmpty() && host == hosts.download.toLower();
    return manifest;
}

} // namespace vl::app
