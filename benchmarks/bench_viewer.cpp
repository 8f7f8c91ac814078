// What the viewer window adds to its picture: the processor's time of a step of playback beyond the paint of the frame alone,
// and the time from opening frames to the first of them against loading and painting that frame alone. Needs an X server.
// The processor's time of a step is that of the window's own thread: the threads of a software renderer draw in it what a
// graphics card draws elsewhere.

#include "ratio.h"
#include "viewerbench.h"

#include <viewer/widgets/imagetimeline.h>

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

namespace {

constexpr QSize kPlayed(1920, 1080);
constexpr QSize kOpened(4096, 2160);
constexpr QSize kLargeWindow(1200, 780);
constexpr int kFrames = 100;
constexpr double kStepLimit = 1.0; // milliseconds
constexpr double kOpenPromise = 1.3;

/// Milliseconds of a step beyond the paint of the frame alone, in a view of the same size.
double measureSteps(imageTimeline &timeline, BarePicture &bare, QSize view, const auto &file)
{
    bare.picture.resize(view);
    settle();
    std::vector<double> steps;
    std::vector<double> paints;
    bool second = false;
    for (int frame = 0; frame < kFrames; ++frame) {
        double start = threadMilliseconds();
        if (!timeline.moveNext())
            timeline.moveFirst();
        settle();
        steps.push_back(threadMilliseconds() - start);
        second = !second;
        start = threadMilliseconds();
        bare.load(file(second ? 2 : 1)); // from the cache
        settle();
        paints.push_back(threadMilliseconds() - start);
    }
    std::printf("%d x %d: a step takes %.3f ms, the paint alone %.3f ms\n", view.width(), view.height(),
                median(steps), median(paints));
    return median(steps) - median(paints);
}

void measurePlaying(const QTemporaryDir &folder)
{
    const auto file = [&folder](int frame) {
        return folder.filePath(QStringLiteral("play.%1.exr").arg(frame, 4, 10, QLatin1Char('0')));
    };
    for (int frame = 1; frame <= kFrames; ++frame)
        writeFrame(file(frame), kPlayed, frame);
    CacheTotals totals;
    totals.videoMemoryBudget = 4'000'000'000;
    const auto viewer = openViewer(totals, file(1));
    auto *timeline = viewer->findChild<imageTimeline *>();
    while (timeline->moveNext()) { } // now each of them is cached
    BarePicture bare;
    bare.picture.show();
    bare.load(file(1));
    bare.load(file(2));
    for (const char *name : {"playing cached frames, ms a frame beyond its paint, to the limit",
                             "playing in a large window, ms a frame beyond its paint, to the limit"}) {
        const double beyond = measureSteps(*timeline, bare, viewer->picture().size(), file);
        printPromise(name, beyond, kStepLimit, 1.0);
        viewer->resize(kLargeWindow);
        settle();
    }
}

void measureOpening(const QTemporaryDir &folder)
{
    const QString file = folder.filePath(QStringLiteral("open.exr"));
    writeFrame(file, kOpened, 1);
    CacheTotals totals;
    BarePicture bare;
    bare.picture.resize(800, 500);
    bare.picture.setZoomFactor(800.0F / float(kOpened.width())); // as a viewer shows it at first
    QElapsedTimer timer;
    printRatio(
        "opening a 4096 x 2160 frame, ms until it shows, to loading and painting",
        [&] {
            bare.picture.hide(); // what covers it and goes has it painted again
            settle();
            timer.start();
            const auto viewer = openViewer(totals, file);
            const double time = paintedAt(viewer->picture(), timer);
            if (!viewer->session().lastLoad().shown())
                fail("the frame does not open");
            return time;
        },
        [&] {
            bare.cache.clear();
            bare.picture.show();
            paintedAt(bare.picture, timer);
            settle();
            timer.start();
            bare.load(file);
            return paintedAt(bare.picture, timer);
        },
        kOpenPromise);
}

} // namespace

int main(int argc, char **argv)
{
    useOpenGl();
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    measureOpening(folder);
    measurePlaying(folder);
    return 0;
}
