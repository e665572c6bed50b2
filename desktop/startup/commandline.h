#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace vl::desktop {

/// What the program was asked to do with a project.
struct CommandLineOptions
{
    QString projectPath;      ///< as given; empty when none was
    bool newInstance = false; ///< open a window of its own even when one is open already

    bool operator==(const CommandLineOptions &) const = default;
};

/// Reads the arguments; the first is the program's own path.
CommandLineOptions parseCommandLine(const QStringList &arguments);

/// The argument that follows the option's first place, nothing when either is missing.
std::optional<QString> optionValue(const QStringList &arguments, const QString &option);

inline constexpr const char *captureOption = "--capture";
inline constexpr const char *languageOption = "--lang";
inline constexpr const char *newInstanceOption = "--new-instance";

} // namespace vl::desktop
