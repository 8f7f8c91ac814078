// What the viewer window adds to its picture: the processor's time of a step of playback beyond the paint of the frame alone,
// and the time from opening frames to the first of them against loading and painting that frame alone. Needs an X server.
// The processor's time of a step is that of the window's own thread: the threads of a software renderer draw in it what a
// graphics card draws elsewhere.

#include "ratio.h"

#include <ui/tappstate.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/frames/framecache.h>
#include <viewer/frames/frameloader.h>
#include <viewer/imageviewer.h>
#include <viewer/session/viewersession.h>
#include <viewer/widgets/imagetimeline.h>
#include <viewer/widgets/imagewidget.h>

#include <ImfRgbaFile.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTemporaryDir>
#include <QtGui/QSurfaceFormat>
#include <QtWidgets/QApplication>

#include <cstdlib>
#include <memory>

namespace {

constexpr QSize kPlayed(1920, 1080);
constexpr QSize kOpened(4096, 2160);
constexpr QSize kLargeWindow(1200, 780);
constexpr int kFrames = 100;
constexpr double kStepLimit = 1.0; // milliseconds
constexpr double kOpenPromise = 1.3;

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

/// A ramp with the grain of a rendered picture, which does not shrink to nothing in its file.
void writeFrame(const QString &path, QSize size, int number)
{
    Imf::RgbaOutputFile file(path.toLocal8Bit().constData(), size.width(), size.height(), Imf::WRITE_RGBA);
    std::vector<Imf::Rgba> pixels(std::size_t(size.width()) * std::size_t(size.height()));
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const auto hash = std::uint32_t((i + std::size_t(number)) * 2654435761U);
        const float value =
            float(i % std::size_t(size.width())) / float(size.width()) + float(hash >> 16U) / 2e6F;
        pixels[i] = {value, 0.5F * value, 1.0F - value, 1.0F};
    }
    file.setFrameBuffer(pixels.data(), 1, std::size_t(size.width()));
    file.writePixels(size.height());
}

/// All that waits in the event loop, down to the screen.
void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// Handles events until the picture has been drawn and brought to the screen once more; the time when it had been.
double paintedAt(const imageWidget &picture, const QElapsedTimer &timer)
{
    double painted = 0.0;
    QEventLoop events;
    QObject::connect(&picture, &imageWidget::frameSwapped, &events, [&] {
        painted = double(timer.nsecsElapsed()) * 1e-6;
        events.quit();
    });
    events.exec();
    return painted;
}

std::unique_ptr<ImageViewer> openViewer(CacheTotals &totals, const QString &path)
{
    auto viewer = std::make_unique<ImageViewer>(totals, ViewerSettings{.exrImportGamma = 2.2F});
    viewer->setAttribute(Qt::WA_DeleteOnClose, false);
    viewer->show();
    viewer->setFramesPath({.path = path.toStdString(), .force = true, .maskIsSequence = true});
    return viewer;
}

/// The widget alone, in a window of its own, with a loader to fill it.
struct BarePicture {
    CacheTotals totals;
    imageWidget picture;
    FrameCache cache{totals, picture};
    FrameLoader loader{cache, picture};

    void load(const QString &path)
    {
        LoadRequest request;
        request.path = path.toStdString();
        if (!loader.load(request).shown())
            fail("the frame does not load");
    }
};

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

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
    TAppState &state = TAppState::instance();
    state.openGlUsable = state.gl32Supported = state.gl21Supported = true;
    QSurfaceFormat format;
    format.setVersion(3, 2);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    measureOpening(folder);
    measurePlaying(folder);
    return 0;
}
