#include "commandline.h"

#include <cstdlib>

CommandLine CommandLine::parse(const QStringList &arguments)
{
    CommandLine line;
    const auto value = [&arguments](qsizetype at) -> std::optional<QString> {
        return at + 1 < arguments.size() ? std::optional(arguments[at + 1]) : std::nullopt;
    };
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        const auto take = [&](std::optional<QString> &into) {
            if (const auto given = value(i))
                into = given;
        };
        if (argument == QLatin1String("-server"))
            take(line.overrides.server);
        else if (argument == QLatin1String("-user"))
            take(line.overrides.user);
        else if (argument == QLatin1String("-pass"))
            take(line.overrides.password);
        else if (argument == QLatin1String("-port") && value(i))
            line.overrides.port = std::atoi(value(i)->toUtf8().constData());
        else if (argument == QLatin1String("-forcegl2"))
            line.forceGl2 = true;
        else if (argument == QLatin1String("--help"))
            line.help = true;
        else if (argument == QLatin1String("--version"))
            line.version = true;
    }
    return line;
}

QString commandLineHelp()
{
    return QStringLiteral("Usage: tarrow-alertor [options]\n"
                          "\n"
                          "Shows what happens to your jobs on the Tarrow render farm, from the system tray.\n"
                          "\n"
                          "  -server HOST    address of the Dispatcher, in place of the stored one\n"
                          "  -port NUMBER    its TCP port\n"
                          "  -user NAME      log-in name\n"
                          "  -pass PASSWORD  password, in clear: other users of this machine can read it\n"
                          "  -forcegl2       show images with OpenGL 2.1 even where 3.2 is there\n"
                          "  --help          print this text and exit\n"
                          "  --version       print the version and exit\n"
                          "\n"
                          "A program that runs already is told to wake up instead.\n");
}
