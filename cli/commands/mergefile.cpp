#include "cli/commands/commands.h"

#include "app/base/files.h"
#include "app/storage/filemerge.h"

namespace vl::cli {

ExitStatus runMergeFile(const Arguments &arguments, Console &console)
{
    const QString path = arguments.has(QStringLiteral("path"))
                             ? arguments.value(QStringLiteral("path"))
                             : arguments.at(1);
    const app::Result<app::FileMerge> merge =
        app::FileMerge::merge(arguments.at(0), arguments.at(1), arguments.at(2), path);
    if (!merge)
        return console.fail(merge.message());
    const QString output = arguments.value(QStringLiteral("output"));
    if (output.isEmpty() || output == QLatin1String("-")) {
        console.writeBytes(merge->bytes);
    } else {
        const app::Result<> written = app::writeFile(
            output, merge->bytes,
            {Arguments::tr("Cannot write file: %1"), Arguments::tr("Failed to write file: %1")});
        if (!written)
            return console.fail(written.message());
    }
    if (!merge->problem.isEmpty())
        console.message(merge->problem);
    return merge->needsCare() ? ExitStatus::Findings : ExitStatus::Done;
}

} // namespace vl::cli
