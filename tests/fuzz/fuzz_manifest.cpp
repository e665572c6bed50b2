#include "app/update/updatemanifest.h"
#include "app/update/updateschedule.h"

#include <QtCore/QUrl>

#include <cstdlib>

using namespace vl::app;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const UpdateHosts hosts{QStringLiteral("updates.vendor.example"),
                                   QStringLiteral("download.vendor.example"),
                                   QStringLiteral("vendor.example")};
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const UpdateManifest manifest = parseUpdateManifest(bytes, hosts);
    require(manifest.notesUrl.isEmpty() || isTrustedUpdateUrl(manifest.notesUrl, hosts));
    if (manifest.valid) {
        for (const QChar character : manifest.version)
            require(character == u'.' || (character >= u'0' && character <= u'9'));
        require(manifest.sha256.size() == 64);
        require(QUrl(manifest.installerUrl).host() == hosts.download);
        require(isTrustedUpdateUrl(manifest.installerUrl, hosts));
    }
    // Any two texts can be ordered, and the order does not depend on which stands first.
    const QString text = QString::fromUtf8(bytes);
    const QString first = text.section(u' ', 0, 0);
    const QString rest = text.section(u' ', 1);
    require((compareVersions(first, rest) < 0) == (compareVersions(rest, first) > 0));
    return 0;
}
