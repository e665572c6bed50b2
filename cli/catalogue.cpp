#include "cli/catalogue.h"

#include "cli/commands/commands.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace vl::cli {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::cli::Catalogue)
};

// Name, usage, help, function.
const CommandRow rows[] = {
    {"new", "PROJECT [--name NAME]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Make an empty project"), runNew},
    {"info", "PROJECT [--json]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Count what a project holds"), runInfo},
    {"validate", "PROJECT", QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Tell whether a project loads"),
     runValidate},
    {"convert", "SOURCE DESTINATION [--anyway]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Save a project as a folder or as a “.vellum” file"),
     runConvert},
    {"pack", "FOLDER BUNDLE [--anyway]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Pack a folder into a “.vellum” file"), runPack},
    {"unpack", "BUNDLE FOLDER",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Unpack a “.vellum” file into a folder"), runUnpack},
    {"render", "[FILE]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Turn Markdown into an HTML fragment"), runRender},
    {"style", "[FILE|PROJECT] [--json]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Check the style of a text, or of a project"),
     runStyle},
    {"conflicts", "PROJECT [--json]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue",
                       "Find where the story contradicts itself: the timeline, then the rules"),
     runConflicts},
    {"health", "PROJECT [--format FORMAT]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue",
                       "Report how the manuscript stands, as “markdown” or “html”"),
     runHealth},
    {"merge", "BASE LOCAL REMOTE [--output FOLDER]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Merge three copies of a project folder"), runMerge},
    {"merge-file", "BASE LOCAL REMOTE [--output FILE] [--path NAME]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue",
                       "Merge three versions of a file, for git too: prints the result or writes "
                       "it to FILE; a NAME that ends in “.json” must stay valid"),
     runMergeFile},
    {"export",
     "FORMAT PROJECT --output FILE [--title TITLE] [--author NAME] [--contact TEXT] "
     "[--pen-name NAME]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Write the manuscript as “rtf”"), runExport},
    {"import", "FORMAT SOURCE PROJECT [--anyway]",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue",
                       "Make a project from a “markdown” or “text” source, or add to one"),
     runImport},
    {"repair", "PROJECT COPY",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue",
                       "Write a copy that loads, and name each file that it leaves out"),
     runRepair},
    {"backups", "PROJECT",
     QT_TRANSLATE_NOOP("vl::cli::Catalogue",
                       "List the backups of a project, newest first: file, date, size in bytes, "
                       "documents, words"),
     runBackups},
    {"batch", "", QT_TRANSLATE_NOOP("vl::cli::Catalogue", "Answer JSON requests, one a line"),
     runBatch},
};

QString programName()
{
    return QStringLiteral("ivorel-cli");
}

QString usageLine(const CommandRow &command)
{
    const QString line =
        QStringLiteral("%1 %2 %3")
            .arg(programName(), QLatin1String(command.name), QLatin1String(command.usage));
    return line.trimmed();
}

QString helpOf(const CommandRow &command)
{
    return QCoreApplication::translate("vl::cli::Catalogue", command.help);
}

QString programHelp()
{
    QString text = Texts::tr("Usage: %1 COMMAND [ARGUMENT…]").arg(programName())
                   + QLatin1String("\n\n") + Texts::tr("Commands:") + QLatin1Char('\n');
    qsizetype width = 0;
    for (const CommandRow &command : rows)
        width = std::max(width, qsizetype(qstrlen(command.name)));
    for (const CommandRow &command : rows)
        text += QLatin1String("  ") + QString::fromLatin1(command.name).leftJustified(width + 2)
                + helpOf(command) + QLatin1Char('\n');
    text += QLatin1Char('\n')
            + Texts::tr("PROJECT is a project folder or a “.vellum” file. FILE may be “-” for "
                        "standard input or output.")
            + QLatin1Char('\n')
            + Texts::tr("“%1 COMMAND --help” tells more about a command, “%1 --version” the "
                        "version.")
                  .arg(programName())
            + QLatin1Char('\n')
            + Texts::tr("Exit status: 0 done; 1 done, with something to report; 2 wrong usage; "
                        "3 failed.")
            + QLatin1Char('\n');
    return text;
}

QString commandHelp(const CommandRow &command)
{
    return Texts::tr("Usage: %1").arg(usageLine(command)) + QLatin1String("\n\n") + helpOf(command)
           + QLatin1String(".\n");
}

/// Wrong use of the program as a whole.
ExitStatus wrongProgramUsage(Console &console, const QString &reason)
{
    console.message(reason);
    console.message(Texts::tr("Usage: %1 COMMAND [ARGUMENT…]").arg(programName()));
    return ExitStatus::Usage;
}

bool asksForHelp(const QStringList &words)
{
    const auto end = std::find(words.cbegin(), words.cend(), QLatin1String("--"));
    return std::find(words.cbegin(), end, QLatin1String("--help")) != end;
}

} // namespace

QString commandTable()
{
    QString table = QStringLiteral("| Command | What it does |\n|---|---|\n");
    for (const CommandRow &command : rows) {
        const QString usage =
            QStringLiteral("%1 %2").arg(QLatin1String(command.name), QLatin1String(command.usage));
        table += QStringLiteral("| `%1` | %2 |\n")
                     .arg(usage.trimmed().replace(QLatin1Char('|'), QLatin1String("\\|")),
                          QString::fromUtf8(command.help));
    }
    return table;
}

std::span<const CommandRow> commands()
{
    return rows;
}

const CommandRow *findCommand(const QString &name)
{
    const auto found = std::find_if(std::begin(rows), std::end(rows), [&](const CommandRow &row) {
        return name == QLatin1String(row.name);
    });
    return found == std::end(rows) ? nullptr : found;
}

ExitStatus wrongUsage(Console &console, const CommandRow &command, const QString &reason)
{
    console.message(reason);
    console.message(Texts::tr("Usage: %1").arg(usageLine(command)));
    return ExitStatus::Usage;
}

ExitStatus wrongUsage(Console &console, const char *command, const QString &reason)
{
    const CommandRow *row = findCommand(QLatin1String(command));
    Q_ASSERT(row);
    return wrongUsage(console, *row, reason);
}

ExitStatus run(const QStringList &words, Console &console)
{
    if (words.isEmpty())
        return wrongProgramUsage(console, Texts::tr("No command is given."));
    const QString &first = words.constFirst();
    if (first == QLatin1String("--help")) {
        console.write(programHelp());
        return ExitStatus::Done;
    }
    if (first == QLatin1String("--version")) {
        console.writeLine(programName() + QLatin1Char(' ')
                          + QCoreApplication::applicationVersion());
        return ExitStatus::Done;
    }
    if (first.startsWith(QLatin1Char('-')))
        return wrongProgramUsage(console, Texts::tr("Unknown option: %1").arg(first));
    const CommandRow *command = findCommand(first);
    if (!command)
        return wrongProgramUsage(console, Texts::tr("Unknown command: %1").arg(first));
    const QStringList rest = words.mid(1);
    if (asksForHelp(rest)) {
        console.write(commandHelp(*command));
        return ExitStatus::Done;
    }
    const app::Result<Arguments> arguments = Arguments::parse(QLatin1String(command->usage), rest);
    if (!arguments)
        return wrongUsage(console, *command, arguments.message());
    return command->run(*arguments, console);
}

} // namespace vl::cli
