#include "farmoptions.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFileInfo>

#include <cmath>
#include <limits>

namespace {

constexpr int kUsageError = 2;

struct OptionRow {
    const char *name;
    const char *value; ///< null for a switch
    const char *help; ///< %1 stands for the default
    double (*byDefault)(const FarmOptions &options) = nullptr;
};

constexpr OptionRow kRows[] = {
    {"port", "port", "Listen on this port (%1); 0 takes any free one.",
     [](const FarmOptions &options) { return double(options.port); }},
    {"jobs", "count", "Jobs of the night (%1); 0 for a night without an end.",
     [](const FarmOptions &options) { return double(options.night.jobs); }},
    {"rate", "events", "Events a second, on average (%1).",
     [](const FarmOptions &options) { return options.night.eventsPerSecond; }},
    {"seed", "number", "The same seed plays the same night (%1).",
     [](const FarmOptions &options) { return double(options.night.seed); }},
    {"burst", "events", "Send so many events as fast as the client takes them, in place of a night."},
    {"compress", nullptr, "Compress the payloads."},
    {"fragment", "bytes", "Write so many bytes at a time."},
    {"custom", "ID=TEXT",
     "Send this message to the client's template of that ID after each log-in; may be repeated."},
    {"deny-login", nullptr, "Refuse every log-in."},
    {"drop-after", "seconds", "Hang up so long after each log-in."},
    {"garbage", nullptr, "Send broken messages between the events, a seventh as many."},
    {"frames-in", "folder",
     "Make the folder of the run's frames in this one, in place of the user's temporary folder."},
    {"keep-frames", nullptr, "Leave that folder at the end."},
    {"half-frames", nullptr, "Write the first frame of a chunk bit by bit while the chunk is at work."},
    {"no-frames", nullptr, "Render nothing; a burst never does."},
    {"once", nullptr, "End when the night is played and the clients have taken everything."},
};

/// Reads the values and notes the first one that cannot be used.
class ValueReader {
public:
    explicit ValueReader(const QCommandLineParser &parser)
        : m_parser(parser)
    { }

    const QString &error() const { return m_error; }
    bool isSet(const char *name) const { return m_parser.isSet(QLatin1String(name)); }

    template <typename Number>
    void read(const char *name, Number &number, double least, double most)
    {
        if (!isSet(name))
            return;
        bool isNumber = false;
        const double value = m_parser.value(QLatin1String(name)).toDouble(&isNumber);
        const bool isWhole = value == std::floor(value) || !std::numeric_limits<Number>::is_integer;
        if (isNumber && value >= least && value <= most && isWhole)
            number = Number(value);
        else if (m_error.isEmpty())
            m_error = QStringLiteral("--%1 takes a number from %2 to %3")
                          .arg(QLatin1String(name), QString::number(least, 'g', 10),
                               QString::number(most, 'g', 10));
    }

    void read(const char *name, QString &folder)
    {
        if (!isSet(name))
            return;
        folder = m_parser.value(QLatin1String(name));
        if (!QFileInfo(folder).isDir() && m_error.isEmpty())
            m_error = QStringLiteral("--%1 takes an existing folder").arg(QLatin1String(name));
    }

    void read(QList<CustomMessagePacket> &messages)
    {
        for (const QString &value : m_parser.values(QStringLiteral("custom"))) {
            bool isNumber = false;
            const qsizetype separator = value.indexOf(QLatin1Char('='));
            const int id = value.left(separator).toInt(&isNumber);
            if (separator > 0 && isNumber)
                messages.append({id, value.mid(separator + 1).toUtf8()});
            else if (m_error.isEmpty())
                m_error = QStringLiteral("--custom takes a template's ID, '=' and a text");
        }
    }

private:
    const QCommandLineParser &m_parser;
    QString m_error;
};

FarmOptions readOptions(ValueReader &values)
{
    constexpr double kMostInt = std::numeric_limits<int>::max();
    FarmOptions options;
    values.read("port", options.port, 0, 65535);
    values.read("jobs", options.night.jobs, 0, kMostInt);
    values.read("rate", options.night.eventsPerSecond, 0.001, 1e6);
    values.read("seed", options.night.seed, 0, std::numeric_limits<quint32>::max());
    values.read("burst", options.burst, 1, kMostInt);
    values.read("fragment", options.fragmentSize, 1, kMostInt);
    if (values.isSet("drop-after")) {
        double seconds = 0;
        values.read("drop-after", seconds, 0, 86400);
        options.dropAfter = std::chrono::milliseconds(qint64(seconds * 1000));
    }
    values.read(options.customMessages);
    options.compress = values.isSet("compress");
    options.denyLogin = values.isSet("deny-login");
    options.garbage = values.isSet("garbage");
    options.once = values.isSet("once");
    values.read("frames-in", options.framesIn);
    options.keepFrames = values.isSet("keep-frames");
    options.halfFrames = values.isSet("half-frames");
    options.renders = !values.isSet("no-frames") && options.burst == 0;
    // As many jobs as the events take.
    if (options.burst > 0)
        options.night.jobs = 0;
    return options;
}

} // namespace

FarmCommandLine parseFarmCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A stand-in for the render farm: plays a night of jobs "
                       "to every client that logs in and tells on standard\n"
                       "output what it received. The night begins with the "
                       "first log-in and waits while nobody is logged in.\n"
                       "Its jobs render EXR files: where a chunk fails one frame "
                       "is missing, where it warns one is cut short. The frames\n"
                       "of the last jobs stay until the program ends."));
    const QCommandLineOption helpOption = parser.addHelpOption();
    for (const OptionRow &row : kRows) {
        const QString help = QString::fromUtf8(row.help);
        QCommandLineOption option(QLatin1String(row.name),
                                  row.byDefault ? help.arg(row.byDefault({})) : help);
        if (row.value)
            option.setValueName(QLatin1String(row.value));
        parser.addOption(option);
    }

    if (!parser.parse(arguments))
        return {std::nullopt, parser.errorText(), kUsageError};
    if (parser.isSet(helpOption))
        return {std::nullopt, parser.helpText(), 0};
    if (!parser.positionalArguments().isEmpty()) {
        const QString first = parser.positionalArguments().constFirst();
        return {std::nullopt,
                QStringLiteral("Unexpected argument \"%1\"; --help lists the options").arg(first),
                kUsageError};
    }
    ValueReader values(parser);
    FarmOptions options = readOptions(values);
    if (!values.error().isEmpty())
        return {std::nullopt, values.error(), kUsageError};
    return {options, {}, 0};
}
