#pragma once

#include <ui/tappstate.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/frames/framecache.h>
#include <viewer/frames/frameloader.h>
#include <viewer/imageviewer.h>
#include <viewer/session/viewersession.h>
#include <viewer/widgets/imagewidget.h>

#include <ImfRgbaFile.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QString>
#include <QtGui/QSurfaceFormat>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

/// What the benchmarks of the viewer window share.

[[noreturn]] inline void fail(const char *what)
{
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

/// Before the application object is made.
inline void useOpenGl()
{
    TAppState &state = TAppState::instance();
    state.openGlUsable = state.gl32Supported = state.gl21Supported = true;
    QSurfaceFormat format;
    format.setVersion(3, 2);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
}

/// A ramp with the grain of a rendered picture, which does not shrink to nothing in its file.
inline void writeFrame(const QString &path, QSize size, int number,
                       Imf::Compression compression = Imf::PIZ_COMPRESSION)
{
    Imf::RgbaOutputFile file(path.toLocal8Bit().constData(), size.width(), size.height(), Imf::WRITE_RGBA,
                             1.0F, Imath::V2f(0.0F, 0.0F), 1.0F, Imf::INCREASING_Y, compression);
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
inline void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// Handles events until the picture has been drawn and brought to the screen once more; the time when it had been.
inline double paintedAt(const imageWidget &picture, const QElapsedTimer &timer)
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

inline std::unique_ptr<ImageViewer> openViewer(CacheTotals &totals, const QString &path,
                                               bool readAhead = false)
{
    auto viewer =
        std::make_unique<ImageViewer>(totals, ViewerSettings{.exrImportGamma = 2.2F, .readAhead = readAhead});
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

inline double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}
