#include "desktop/startup/commandline.h"

namespace vl::desktop {

CommandLineOptions parseCommandLine(const QStringList &arguments)
{
    CommandLineOptions options;
    for (qsizetype at = 1; at < arguments.size(); ++at) {
        const QString &argument = arguments.at(at);
        if (argument == QLatin1String(captureOption) || argument == QLatin1String(languageOption))
            ++at; // and its value
        else if (argument == QLatin1String(newInstanceOption))
            options.newInstance = true;
        else if (!argument.startsWith(QLatin1String("--")) && options.projectPath.isEmpty())
            options.projectPath = argument;
    }
    return options;
}

std::optional<QString> optionValue(const QStringList &arguments, const QString &option)
{
    const qsizetype at = arguments.indexOf(option, 1);
    if (at < 0 || at + 1 >= arguments.size())
        return std::nullopt;
    return arguments.at(at + 1);
}

} // namespace vl::desktop
