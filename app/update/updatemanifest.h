#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace vl::app {

/// The names of the vendor's hosts. A name compares without regard to case.
struct UpdateHosts
{
    QString endpoint; ///< where the manifest lies
    QString download; ///< where installers lie
    QString apex;     ///< the vendor's own domain, without "www."
};

/// What the vendor's server tells of the newest version. Every member is as the server sent it, so
/// none is to be used unless `valid`.
struct UpdateManifest
{
    QString version; ///< one to four numbers with dots between them
    QString installerUrl;
    QString sha256;   ///< of the installer, in upper-case hexadecimal
    QString notesUrl; ///< empty when there is none that can be trusted
    bool valid = false;
};

/// Reads a manifest; anything that is not quite one gives a manifest that is not valid.
UpdateManifest parseUpdateManifest(const QByteArray &json, const UpdateHosts &hosts);

/// Whether the address is one of the vendor's, reached over https.
bool isTrustedUpdateUrl(const QString &url, const UpdateHosts &hosts);

} // namespace vl::app
