#include "cli/catalogue.h"
#include "cli/commands/commands.h"

#include "app/storage/openproject.h"
#include "app/text/import/importcommands.h"
#include "app/text/import/markdownfolder.h"
#include "app/text/import/markdownimport.h"
#include "app/text/import/plaintextimport.h"
#include "cli/projectwriting.h"
#include "cli/textfile.h"
#include "cli/writeaccess.h"
#include "core/commandstack.h"

#include <algorithm>

namespace vl::cli {

namespace {

app::Result<app::ImportedManuscript> readMarkdown(const QString &source, const QString &title)
{
    if (source != QLatin1String("-"))
        return app::importMarkdown(source);
    const app::Result<QByteArray> bytes = readInput(source);
    if (!bytes)
        return bytes.asFailure();
    return app::importMarkdownText(*bytes, title);
}

app::Result<app::ImportedManuscript> readText(const QString &source, const QString &title)
{
    if (source != QLatin1String("-"))
        return app::importTextFile(source);
    const app::Result<QByteArray> bytes = readInput(source);
    if (!bytes)
        return bytes.asFailure();
    return app::importPlainText(*bytes, title);
}

struct Format
{
    const char *name;
    app::Result<app::ImportedManuscript> (*read)(const QString &source, const QString &title);
};

const Format formats[] = {
    {"markdown", readMarkdown},
    {"text", readText},
};

app::Result<int> addToProject(const app::ImportedManuscript &manuscript, const QString &path)
{
    if (isFreeForProject(path)) {
        core::Project project;
        core::CommandStack history;
        const int count = app::importIntoProject(project, history, manuscript);
        const app::Result<> written = writeNewProject(project, path);
        return written ? app::Result<int>(count) : written.asFailure();
    }
    app::Result<std::unique_ptr<app::OpenProject>> open = app::OpenProject::open(path);
    if (!open)
        return open.asFailure();
    app::OpenProject &project = **open;
    const int count = app::importIntoProject(project.project(), project.history(), manuscript);
    const app::Result<> saved = project.save();
    return saved ? app::Result<int>(count) : saved.asFailure();
}

} // namespace

ExitStatus runImport(const Arguments &arguments, Console &console)
{
    const auto format =
        std::find_if(std::begin(formats), std::end(formats),
                     [&](const Format &row) { return arguments.at(0) == QLatin1String(row.name); });
    if (format == std::end(formats))
        return wrongUsage(console, "import",
                          Arguments::tr("Unknown format: %1").arg(arguments.at(0)));
    const QString path = fullPath(arguments.at(2));
    console.begin(Arguments::tr("Reading what is to be imported…"));
    const app::Result<app::ImportedManuscript> manuscript =
        format->read(arguments.at(1), projectName(path));
    if (!manuscript)
        return console.fail(manuscript.message());
    for (const QString &message : manuscript->skipped)
        console.message(message);
    const app::Result<WriteAccess> access =
        WriteAccess::to(path, arguments.has(QStringLiteral("anyway")));
    if (!access)
        return console.fail(access.message());
    console.begin(Arguments::tr("Writing the project…"));
    const app::Result<int> count = addToProject(*manuscript, path);
    if (!count)
        return console.fail(count.message());
    console.writeLine(Arguments::tr("Documents added: %1").arg(*count));
    return ExitStatus::Done;
}

} // namespace vl::cli
