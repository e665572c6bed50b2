// A file of a project as text for people: whatever stands in it, the text is no longer than the
// file can account for.

#include "app/models/readablefile.h"
#include "core/project.h"

#include <cstdint>
#include <cstdlib>

using namespace vl::app;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const vl::core::Project project;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const qsizetype most = 64 * bytes.size() + 1000;
    const QByteArray first = bytes.left(bytes.indexOf('|'));
    const QByteArray second = bytes.mid(first.size() + 1);
    const QString text = readableFile(bytes, &project);
    if (text.size() > most || (text.isEmpty() && !bytes.isEmpty() && bytes.front() == '{'))
        std::abort();
    const ReadableVersions versions = readableVersions(first, second);
    if (versions.before.size() + versions.after.size() > most)
        std::abort();
    (void)readableName(QStringLiteral("objects/a.json"), bytes);
    return 0;
}
