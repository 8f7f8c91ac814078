#include "commandline.h"

#include <ui/product.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace {

bool takesValue(std::string_view option)
{
    constexpr std::string_view kOptions[] = {"-server", "-user", "-pass", "-port", "--language", "-language"};
    return std::find(std::begin(kOptions), std::end(kOptions), option) != std::end(kOptions);
}

} // namespace

CommandLine CommandLine::parse(std::span<char *const> arguments)
{
    CommandLine line;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        const char *value = i + 1 < arguments.size() ? arguments[i + 1] : nullptr;
        // A password may look like anything; it does not keep the client from starting.
        const bool isValue = i > 0 && takesValue(arguments[i - 1]);
        if (argument == "-forcegl2")
            line.forceGl2 = true;
        else if (argument == "--help")
            line.help = line.help || !isValue;
        else if (argument == "--version")
            line.version = line.version || !isValue;
        else if (argument == "-server" && value)
            line.overrides.server = QString::fromLocal8Bit(value);
        else if (argument == "-user" && value)
            line.overrides.user = QString::fromLocal8Bit(value);
        else if (argument == "-pass" && value)
            line.overrides.password = QString::fromLocal8Bit(value);
        else if ((argument == "--language" || argument == "-language") && value)
            line.language = QString::fromLocal8Bit(value);
        else if (argument == "-port" && value)
            line.overrides.port = std::atoi(value);
    }
    return line;
}

QString commandLineVersion()
{
    return QStringLiteral("tarrow-alertor %1 (build %2)\n").arg(product::kVersion, product::kBuildNumber);
}

QString commandLineHelp()
{
    return QStringLiteral(
        "Usage: tarrow-alertor [options]\n"
        "\n"
        "Shows what happens to your jobs on the Tarrow render farm, from the system tray.\n"
        "\n"
        "  -server HOST    connect to the Dispatcher on HOST, not to the stored one\n"
        "  -port NUMBER    connect to its TCP port NUMBER\n"
        "  -user NAME      log in as NAME\n"
        "  -pass PASSWORD  log in with PASSWORD, which other users of this machine can read\n"
        "  --language CODE show the texts in de, en, es, fr, it, ja, ko or zh_CN\n"
        "  -forcegl2       show images with OpenGL 2.1 even where 3.2 is there\n"
        "  --help          print this text and exit\n"
        "  --version       print the version and exit\n"
        "\n"
        "Wakes up the instance that runs already, and exits, where there is one.\n");
}
