#pragma once

#include <settings.h>

#include <QtCore/QStringList>

/// The options of the program. They are matched exactly, anywhere among the arguments; an option that takes a value is
/// ignored as the last argument.
struct CommandLine {
    CommandLineOverrides overrides; ///< "-server", "-user", "-pass", "-port"
    bool forceGl2 = false; ///< "-forcegl2"
    bool help = false; ///< "--help"
    bool version = false; ///< "--version"

    static CommandLine parse(const QStringList &arguments);
};

/// Text for "--help".
QString commandLineHelp();
