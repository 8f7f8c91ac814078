#pragma once

#include <notify/settings/settings.h>

#include <QtCore/QString>

#include <span>

/// The options of the program. They are matched exactly, anywhere among the arguments; an option that takes a value takes the
/// next argument, whatever it looks like, and is ignored as the last.
struct CommandLine {
    CommandLineOverrides overrides; ///< "-server", "-user", "-pass", "-port"
    QString language; ///< "--language" or "-language": code of the texts' language
    bool forceGl2 = false; ///< "-forcegl2"
    bool help = false; ///< "--help"
    bool version = false; ///< "--version"

    /// Reads the arguments as the system hands them over, the program's path included.
    static CommandLine parse(std::span<char *const> arguments);
};

/// Texts for "--help" and "--version", each ending in a line feed.
QString commandLineHelp();
QString commandLineVersion();
