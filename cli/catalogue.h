#pragma once

#include "cli/arguments.h"
#include "cli/console.h"

#include <span>

namespace vl::cli {

/// One command: a row of the catalogue.
struct CommandRow
{
    const char *name;
    const char *usage; ///< what follows the name; Arguments reads it
    const char *help;  ///< one line, in the source language
    ExitStatus (*run)(const Arguments &arguments, Console &console);
};

/// All commands in the order of the help.
std::span<const CommandRow> commands();

/// The command of that name, or null.
const CommandRow *findCommand(const QString &name);

/// Tells that the arguments make no sense although they fit the usage line.
ExitStatus wrongUsage(Console &console, const CommandRow &command, const QString &reason);
/// The same for the command of that name, which exists.
ExitStatus wrongUsage(Console &console, const char *command, const QString &reason);

/// Runs the program with the words that follow its name.
ExitStatus run(const QStringList &words, Console &console);

/// The table of the manual that tells all commands, as Markdown.
QString commandTable();

} // namespace vl::cli
