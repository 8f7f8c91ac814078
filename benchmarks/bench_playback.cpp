// How a sequence plays the first time, its files in the system's memory: at the rate that is asked for, or at that of a bare loop
// that reads a frame and paints it, where the machine takes longer than that; how long the event loop stands still meanwhile;
// and what a step to a frame that nobody has read costs while others are read. Needs an X server.

#include "ratio.h"
#include "viewerbench.h"

#include <viewer/session/playback.h>

#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <cmath>
#include <filesystem>

namespace {

constexpr int kFrames = 48;
constexpr int kWritten = 6; // the others are these again
constexpr double kAsked = 24.0;
constexpr double kRateLimit = 20.0; // milliseconds in ten seconds, by which 24 would be another number
constexpr double kStopLimit = 16.0; // milliseconds

struct Sequence {
    const char *name;
    QSize size;
    Imf::Compression compression;
    double promise; ///< of the rate
};

constexpr double kPlayed = 0.95;
constexpr double kPlayedLarge = 0.90;
const Sequence kSequences[] = {
    {"1920 x 1080 ZIP", {1920, 1080}, Imf::ZIP_COMPRESSION, kPlayed},
    {"1920 x 1080 PIZ", {1920, 1080}, Imf::PIZ_COMPRESSION, kPlayed},
    {"1920 x 1080 DWAA", {1920, 1080}, Imf::DWAA_COMPRESSION, kPlayed},
    {"1920 x 1080 uncompressed", {1920, 1080}, Imf::NO_COMPRESSION, kPlayed},
    {"4096 x 2160 ZIP", {4096, 2160}, Imf::ZIP_COMPRESSION, kPlayedLarge},
};

class Files final {
public:
    explicit Files(const Sequence &sequence)
    {
        for (int frame = 1; frame <= kFrames; ++frame) {
            if (frame <= kWritten)
                writeFrame((*this)(frame), sequence.size, frame, sequence.compression);
            else
                std::filesystem::create_hard_link((*this)(1 + (frame - 1) % kWritten).toStdString(),
                                                  (*this)(frame).toStdString());
        }
    }
    QString operator()(int frame) const
    {
        return m_folder.filePath(QStringLiteral("play.%1.exr").arg(frame, 4, 10, QLatin1Char('0')));
    }

private:
    const QTemporaryDir m_folder;
};

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) * 1e-6;
}

struct Played {
    double frame = 0.0; ///< milliseconds from one to the next
    double longestStop = 0.0; ///< of the event loop
};

/// Plays on from the frame on show, once round or to the last frame.
Played play(ImageViewer &viewer, int steps)
{
    ViewerSession &session = viewer.session();
    session.playback().setFramesPerSecond(float(kAsked));
    Played played;
    QElapsedTimer timer;
    QElapsedTimer sinceTick;
    QTimer ticks;
    ticks.setTimerType(Qt::PreciseTimer);
    QObject::connect(&ticks, &QTimer::timeout, &ticks, [&] {
        played.longestStop = std::max(played.longestStop, milliseconds(sinceTick));
        sinceTick.start();
    });
    int loaded = 0;
    QObject context;
    QObject::connect(&session, &ViewerSession::loaded, &context, [&] { ++loaded; });
    ticks.start(1);
    timer.start();
    sinceTick.start();
    session.togglePlaying();
    double last = 0.0;
    while (loaded < steps)
        last = paintedAt(viewer.picture(), timer);
    session.togglePlaying();
    played.frame = last / steps;
    return played;
}

struct Cold {
    CacheTotals totals;
    std::unique_ptr<ImageViewer> viewer;

    explicit Cold(const QString &file)
    {
        totals.videoMemoryBudget = 8'000'000'000;
        viewer = openViewer(totals, file, true);
        viewer->session().setReadAhead(false); // until it plays
        settle();
    }
};

/// Reads each frame and paints it, as large as the viewer shows it.
double bareLoop(BarePicture &bare, const Files &files, const imageWidget &like)
{
    bare.picture.resize(like.size());
    bare.picture.setZoomFactor(like.zoomFactor());
    bare.picture.show();
    bare.load(files(1));
    settle();
    QElapsedTimer timer;
    timer.start();
    double last = 0.0;
    for (int frame = 2; frame <= kFrames; ++frame) {
        bare.load(files(frame));
        last = paintedAt(bare.picture, timer);
        bare.cache.remove(files(frame - 1).toStdString());
    }
    bare.cache.clear();
    bare.picture.hide();
    return last / (kFrames - 1);
}

void measureRates(const Sequence &sequence)
{
    constexpr int kRounds = 3;
    const Files files(sequence);
    BarePicture bare;
    std::vector<double> played;
    std::vector<double> loops;
    std::vector<double> stops;
    std::vector<double> warmStops;
    for (int round = 0; round < kRounds; ++round) {
        const Cold cold(files(1));
        loops.push_back(bareLoop(bare, files, cold.viewer->picture()));
        cold.viewer->session().setReadAhead(true);
        const Played first = play(*cold.viewer, kFrames - 1);
        const Played again = play(*cold.viewer, kFrames);
        played.push_back(first.frame);
        stops.push_back(first.longestStop);
        warmStops.push_back(again.longestStop);
    }
    std::printf(
        "%s: the bare loop %.1f fps, played %.2f fps, the event loop stood still for %.1f ms at most, "
        "from the cache %.1f\n",
        sequence.name, 1e3 / median(loops), 1e3 / median(played), median(stops), median(warmStops));
    printPromise(qPrintable(QStringLiteral("playing %1 cold, ms a frame").arg(QLatin1String(sequence.name))),
                 median(played), std::max(1e3 / kAsked, median(loops)), 1.0 / sequence.promise);
    if (&sequence == kSequences)
        printPromise("longest stop beyond a paint while playing cold, ms, to the limit",
                     std::max(0.0, median(stops) - median(warmStops)), kStopLimit, 1.0);
}

void measureSteps(const Sequence &sequence)
{
    constexpr int kRounds = 11;
    constexpr int kFar = 40;
    constexpr double kRatio = 1.15;
    constexpr double kMore = 10.0; // milliseconds
    const Files files(sequence);
    BarePicture bare;
    bare.picture.show();
    bare.load(files(1));
    settle();
    std::vector<double> steps;
    std::vector<double> loads;
    QElapsedTimer timer;
    for (int round = 0; round < kRounds; ++round) {
        const Cold cold(files(1));
        cold.viewer->session().setReadAhead(true);
        while (!cold.viewer->session().lookAhead().isReading())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        timer.start();
        cold.viewer->session().setFrame(kFar + round % kWritten);
        steps.push_back(milliseconds(timer));
        if (!cold.viewer->session().lastLoad().decoded)
            fail("the frame was there");
        cold.viewer->session().setReadAhead(false);
        timer.start();
        bare.load(files(kFar + round % kWritten));
        loads.push_back(milliseconds(timer));
        bare.cache.clear();
    }
    std::printf("%s: a step to a frame that is not there takes %.1f ms, its load %.1f ms\n", sequence.name,
                median(steps), median(loads));
    printPromise(qPrintable(QStringLiteral("step while reading ahead, %1, ms, to 1.15 loads and 10 ms")
                                .arg(QLatin1String(sequence.name))),
                 median(steps), kRatio * median(loads) + kMore, 1.0);
}

/// How far steps that take half a period are from where they should be after ten seconds.
double clockError(float framesPerSecond)
{
    constexpr double kLength = 10.0; // seconds
    Playback playback;
    playback.setFramesPerSecond(framesPerSecond);
    const double period = 1e3 / double(framesPerSecond);
    const int steps = int(kLength * double(framesPerSecond));
    int count = 0;
    double last = 0.0;
    QElapsedTimer timer;
    QEventLoop events;
    QObject::connect(&playback, &Playback::stepDue, &events, [&] {
        last = milliseconds(timer);
        if (++count == steps)
            events.quit();
        while (milliseconds(timer) - last < period / 2) { }
    });
    timer.start();
    playback.start();
    events.exec();
    playback.stop();
    return std::abs(last - steps * period);
}

void measureClock(float framesPerSecond)
{
    const double error =
        median({clockError(framesPerSecond), clockError(framesPerSecond), clockError(framesPerSecond)});
    printPromise(qPrintable(QStringLiteral("%1 steps a second, ms off after 10 s, to the limit")
                                .arg(double(framesPerSecond))),
                 error, kRateLimit, 1.0);
}

} // namespace

int main(int argc, char **argv)
{
    useOpenGl();
    const QApplication application(argc, argv);
    for (const Sequence &sequence : kSequences)
        measureRates(sequence);
    for (const int index : {0, 1, 4})
        measureSteps(kSequences[index]);
    for (const float rate : {24.0F, 25.0F, 30.0F, 60.0F})
        measureClock(rate);
    return 0;
}
