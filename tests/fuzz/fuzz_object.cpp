// Reads arbitrary bytes as each of the three sorts of project files. Whatever is taken must be
// written as a text that is taken as well and written again as the same bytes. Good seeds are the
// golden files in tests/data.

#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"

#include <cstdint>
#include <cstdlib>

using namespace vl::app;

namespace {

const QString folder = QStringLiteral("/project");

QByteArray rewritten(const vl::core::Project &project, const QString &path)
{
    QByteArray found;
    if (path == QLatin1String("project.json"))
        return serializeProjectRecords(project);
    serializeProject(project, [&](const QString &written, const QByteArray &bytes) {
        if (written != QLatin1String("project.json"))
            found = bytes;
    });
    return found;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QString paths[] = {QStringLiteral("objects/a.json"),
                                    QStringLiteral("taxonomy/a.json"),
                                    QStringLiteral("project.json")};
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QString &path : paths) {
        const ProjectFile files[] = {{path, bytes}};
        const auto project = loadProject(folder, files);
        if (!project) {
            if (project.message().isEmpty())
                std::abort();
            continue;
        }
        const QByteArray first = rewritten(**project, path);
        const ProjectFile again[] = {{path, first}};
        const auto reread = loadProject(folder, again);
        if (!reread || rewritten(**reread, path) != first)
            std::abort();
    }
    return 0;
}
