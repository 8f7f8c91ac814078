#include "viewoptions.h"

#include <viewer/calibrationpanel.h>

#include <QtCore/QCommandLineParser>

#include <cmath>

namespace {

const QStringList kChannels{QStringLiteral("rgba"), QStringLiteral("red"),   QStringLiteral("green"),
                            QStringLiteral("blue"), QStringLiteral("alpha"), QStringLiteral("luminance")};

constexpr int kLargestZoom = 100;

struct Options {
    QCommandLineOption frame{QStringLiteral("frame"), QStringLiteral("Start at frame N."),
                             QStringLiteral("N")};
    QCommandLineOption layer{QStringLiteral("layer"), QStringLiteral("Show the layer NAME."),
                             QStringLiteral("NAME")};
    QCommandLineOption gl2{QStringLiteral("gl2"), QStringLiteral("Use OpenGL 2.1.")};
    QCommandLineOption set{
        QStringLiteral("set"),
        QStringLiteral("Calibrate; names: %1.").arg(CalibrationPanel::names().join(QStringLiteral(", "))),
        QStringLiteral("name=value,...")};
    QCommandLineOption channel{QStringLiteral("channel"),
                               QStringLiteral("Show one of: %1.").arg(kChannels.join(QStringLiteral(", "))),
                               QStringLiteral("MODE")};
    QCommandLineOption composite{
        QStringLiteral("composite"),
        QStringLiteral("Blend the picture over what is behind it; off, a grabbed picture keeps its alpha."),
        QStringLiteral("on|off"), QStringLiteral("on")};
    QCommandLineOption checker{QStringLiteral("checker"), QStringLiteral("Checker behind the picture."),
                               QStringLiteral("on|off"), QStringLiteral("on")};
    QCommandLineOption premultiplied{
        QStringLiteral("premultiplied"),
        QStringLiteral("Take the colours of files that say so as multiplied by alpha."),
        QStringLiteral("on|off"), QStringLiteral("on")};
    QCommandLineOption background{
        QStringLiteral("background"),
        QStringLiteral("Colour behind the picture without a checker, a name or #rrggbb."),
        QStringLiteral("COLOUR")};
    QCommandLineOption zoom{
        QStringLiteral("zoom"),
        QStringLiteral("Pixels of the screen, or of what is grabbed, for each of the picture."),
        QStringLiteral("FACTOR")};
    QCommandLineOption grab{QStringLiteral("grab"), QStringLiteral("Write the picture to FILE.png and end."),
                            QStringLiteral("FILE.png")};
    QCommandLineOption incomplete{
        QStringLiteral("incomplete"),
        QStringLiteral("With --grab, write what there is of a frame that is being written or damaged.")};
};

void parseFrame(const QString &text, ViewOptions &options)
{
    bool isNumber = false;
    options.frame = text.toInt(&isNumber);
    if (!isNumber)
        options.error = QStringLiteral("Cannot start at frame %1: give a whole number.").arg(text);
}

/// A mode by its name or its number.
void parseChannel(const QString &text, ViewOptions &options)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    options.channelViewMode = isNumber ? number : int(kChannels.indexOf(text.toLower()));
    if (options.channelViewMode < 0 || options.channelViewMode >= kChannels.size())
        options.error = QStringLiteral("Cannot show the channels %1: give one of the modes below.").arg(text);
}

bool parseSwitch(const QCommandLineParser &parser, const QCommandLineOption &option, QString &error)
{
    const QString text = parser.value(option);
    const bool on = text == QLatin1String("on");
    if (!on && text != QLatin1String("off"))
        error = QStringLiteral("Cannot set --%1 to %2: give on or off.").arg(option.names().first(), text);
    return on;
}

void parseLook(const QCommandLineParser &parser, const Options &known, ViewOptions &options)
{
    options.composite = parseSwitch(parser, known.composite, options.error);
    options.checker = parseSwitch(parser, known.checker, options.error);
    options.premultiplied = parseSwitch(parser, known.premultiplied, options.error);
    if (parser.isSet(known.background)) {
        const QString text = parser.value(known.background);
        options.background = QColor(text);
        const bool hasAlpha = options.background.alpha() != 255 || text.size() == 9; // #aarrggbb
        if (!options.background.isValid() || hasAlpha)
            options.error =
                QStringLiteral("Cannot show %1 behind the picture: give a colour's name or #rrggbb.")
                    .arg(text);
    }
    if (parser.isSet(known.zoom)) {
        const QString text = parser.value(known.zoom);
        options.zoom = text.toFloat();
        if (!(*options.zoom > 0.0F && *options.zoom <= kLargestZoom))
            options.error = QStringLiteral("Cannot zoom by %1: give a number above 0, at most %2.")
                                .arg(text)
                                .arg(kLargestZoom);
    }
}

void parseCalibration(const QString &text, ViewOptions &options)
{
    for (const QString &part : text.split(QLatin1Char(','))) {
        const QString name = part.section(QLatin1Char('='), 0, 0).trimmed();
        bool isNumber = false;
        const float value = part.section(QLatin1Char('='), 1).toFloat(&isNumber);
        if (!isNumber || !std::isfinite(value) || !CalibrationPanel::names().contains(name))
            options.error =
                QStringLiteral("Cannot calibrate by %1: give a name below, '=' and a number.").arg(part);
        else
            options.calibration.append({name, value});
    }
}

} // namespace

ViewOptions ViewOptions::parse(const QStringList &arguments)
{
    ViewOptions options;
    const Options known;
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows rendered frames without a farm."));
    const QCommandLineOption help = parser.addHelpOption();
    parser.addOptions({known.frame, known.layer, known.channel, known.set, known.composite, known.checker,
                       known.background, known.premultiplied, known.zoom, known.grab, known.incomplete,
                       known.gl2});
    parser.addPositionalArgument(
        QStringLiteral("PATH"),
        QStringLiteral("A file, a mask, a folder's first sequence, or files of a sequence."),
        QStringLiteral("[PATH...]"));
    if (!parser.parse(arguments))
        options.error = parser.errorText();
    options.help = options.error.isEmpty() && parser.isSet(help);
    // The parser takes the name from an application, and there is none yet.
    options.helpText =
        parser.helpText().replace(QStringLiteral("<executable_name>"), QStringLiteral("tarrow-view"));
    options.paths = parser.positionalArguments();
    options.layer = parser.value(known.layer);
    options.forceGl2 = parser.isSet(known.gl2);
    options.grab = parser.value(known.grab);
    options.incomplete = parser.isSet(known.incomplete);
    if (parser.isSet(known.grab) && options.grab.isEmpty())
        options.error = QStringLiteral("Cannot write a picture to a file without a name.");
    if (options.incomplete && !parser.isSet(known.grab))
        options.error = QStringLiteral("Give --incomplete together with --grab.");
    if (parser.isSet(known.frame))
        parseFrame(parser.value(known.frame), options);
    if (parser.isSet(known.channel))
        parseChannel(parser.value(known.channel), options);
    parseLook(parser, known, options);
    for (const QString &calibration : parser.values(known.set))
        parseCalibration(calibration, options);
    return options;
}
