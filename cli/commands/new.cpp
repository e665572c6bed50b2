#include "cli/commands/commands.h"

#include "app/base/files.h"
#include "app/text/markdowntext.h"
#include "cli/projectwriting.h"
#include "cli/writeaccess.h"

namespace vl::cli {

ExitStatus runNew(const Arguments &arguments, Console &console)
{
    const QString path = fullPath(arguments.at(0));
    if (!isFreeForProject(path))
        return console.fail(app::withPath(Arguments::tr("There is something already: %1"), path));
    const app::Result<WriteAccess> access = WriteAccess::to(path);
    if (!access)
        return console.fail(access.message());
    app::ProjectFiles carried;
    // A project is called like its file. The name stands in a file that goes along with it, and
    // that hosts of repositories show.
    if (const QString name = arguments.value(QStringLiteral("name")).simplified(); !name.isEmpty())
        carried.push_back({QStringLiteral("README.md"),
                           QStringLiteral("# %1\n").arg(app::escapeMarkdownInline(name)).toUtf8()});
    const app::Result<> written = writeNewProject(core::Project(), path, carried);
    return written ? ExitStatus::Done : console.fail(written.message());
}

} // namespace vl::cli
