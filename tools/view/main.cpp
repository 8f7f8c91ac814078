// tarrow-view [options] [PATH...]
//
// Opens the farm's viewer without a farm, or renders one picture into a file. Ends with 0, with 1 when nothing can be
// shown, with 2 when it is called wrongly.

#include "viewoptions.h"

#include <framework/tframework.h>
#include <notify/settings/settings.h>
#include <ui/glprobe.h>
#include <ui/language.h>
#include <ui/look.h>
#include <ui/product.h>
#include <ui/tappstate.h>
#include <viewer/calibrationpanel.h>
#include <viewer/displaycontrols.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/frames/framepaths.h>
#include <viewer/frames/framesondisk.h>
#include <viewer/imageviewer.h>
#include <viewer/session/viewersession.h>
#include <viewer/widgets/imagewidget.h>

#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <memory>

namespace {

constexpr int kNothingShown = 1;
constexpr int kUsageError = 2;

int fail(const QString &text, int code)
{
    std::fputs(qUtf8Printable(text + QLatin1Char('\n')), stderr);
    return code;
}

FramesRequest requestOf(const QStringList &paths)
{
    QStringList absolute;
    for (const QString &path : paths) {
        const QStringList known = pathsIn(path); // white space parts nothing here
        absolute += QFileInfo(known.size() == 1 ? known.first() : path).absoluteFilePath();
    }
    return requestFor(absolute);
}

/// Says which of the paths are not among the frames that are shown.
void tellWhatIsLeftOut(const FramesRequest &request, const FrameSequence &shown)
{
    for (std::size_t i = 1; i < request.others.size(); ++i) {
        const std::string &other = request.others[i];
        if (other != request.path && !frameOf(other, shown.framesPath))
            fail(QStringLiteral("Left out, being of another sequence: %1").arg(QString::fromStdString(other)),
                 0);
    }
}

QString cannotShow(const ViewerSession &session)
{
    const LoadResult &load = session.lastLoad();
    const QString reason = load.outcome == LoadOutcome::NotFound
        ? QStringLiteral("there is no such file, or it is in a folder that may not be read")
        : QString::fromStdString(load.failure.reason);
    const QString what = QStringLiteral("Cannot show %1").arg(QString::fromStdString(session.file()));
    return reason.isEmpty() ? what : what + QStringLiteral(": ") + reason;
}

/// What is wrong; empty when the picture is as asked for.
QString apply(const ViewOptions &options, ImageViewer &viewer)
{
    if (options.paths.isEmpty())
        return options.grab.isEmpty() ? QString() : QStringLiteral("Cannot grab a picture without a PATH.");
    FramesRequest request = requestOf(options.paths);
    const QString path = QString::fromStdString(request.path);
    if (QFileInfo(path).isDir())
        return QStringLiteral("Cannot find an image in %1").arg(path);
    request.force = true;
    request.preferredFrame = options.frame;
    ViewerSession &session = viewer.session();
    DisplayControls &display = viewer.display();
    display.setComposite(options.composite);
    display.setChecker(options.checker);
    display.setPremultiplied(options.premultiplied);
    if (options.background.isValid())
        display.setBackground(options.background);
    viewer.setFramesPath(request);
    tellWhatIsLeftOut(request, session.sequence());
    if (options.frame)
        session.setFrame(*options.frame);
    if (options.frame && session.frame() != *options.frame)
        return QStringLiteral("Cannot find frame %1 among those of %2").arg(*options.frame).arg(path);
    if (!session.lastLoad().shown())
        return cannotShow(session);
    if (!options.layer.isEmpty()
        && !(session.setLayer(options.layer.toStdString()) && session.lastLoad().shown()))
        return QStringLiteral("Cannot show the layer %1 of %2").arg(options.layer, path);
    for (const auto &[name, value] : options.calibration)
        viewer.calibration().setValue(name, value);
    display.setChannelViewMode(options.channelViewMode);
    if (options.zoom)
        viewer.setZoom(*options.zoom);
    return {};
}

int run(const ViewOptions &options)
{
    const Settings settings = loadImageViewerSettings();
    CacheTotals totals;
    totals.videoMemoryBudget = settings.imageViewerMaxGPUCache;
    totals.mainMemoryBudget = settings.imageViewerMaxRAMCache;
    // What is grabbed is taken for the picture.
    const bool showIncomplete =
        options.grab.isEmpty() ? settings.viewerShowIncompleteFrames : options.incomplete;
    const bool readAhead = options.grab.isEmpty() && settings.viewerReadAhead;
    auto *viewer = new ImageViewer(totals,
                                   {settings.imageViewerExrImportGamma,
                                    settings.imageViewerDefaultImportGamma, showIncomplete, readAhead});
    if (options.grab.isEmpty()) {
        viewer->show();
        // A fault shows in the window, which can open something else.
        const QString fault = apply(options, *viewer);
        if (!fault.isEmpty())
            fail(fault, kNothingShown);
        return QApplication::exec();
    }
    const std::unique_ptr<ImageViewer> owner(viewer);
    const QString fault = apply(options, *viewer);
    if (!fault.isEmpty())
        return fail(fault, kNothingShown);
    if (const int halvings = viewer->session().lastLoad().forcedHalvings; halvings > 0)
        fail(QStringLiteral("Too large for OpenGL: rendered at 1/%1 of its size")
                 .arg(qulonglong(1) << halvings),
             0);
    if (const auto &partial = viewer->session().lastLoad().partial; partial.isIncomplete())
        fail(QStringLiteral("Incomplete: %1 of %2 chunks").arg(partial.sound()).arg(partial.chunks), 0);
    // A single channel is a look at the picture; its alpha would say nothing.
    const bool keepsAlpha = !options.composite && options.channelViewMode == 0;
    const float zoom = options.zoom.value_or(1.0F);
    const QImage picture =
        keepsAlpha ? viewer->picture().grabWithAlpha(zoom) : viewer->picture().grabPicture(zoom);
    if (picture.isNull())
        return fail(QStringLiteral("Cannot render %1").arg(QString::fromStdString(viewer->session().file())),
                    kNothingShown);
    if (!picture.save(options.grab, "PNG"))
        return fail(QStringLiteral("Cannot write %1").arg(options.grab), kNothingShown);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setOrganizationName(product::kOrganisation);
    QCoreApplication::setOrganizationDomain(product::kDomain);
    QCoreApplication::setApplicationName(product::kApplicationName);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    const ViewOptions options = ViewOptions::parse(arguments);
    if (!options.error.isEmpty())
        return fail(options.error + QLatin1Char('\n') + options.helpText, kUsageError);
    if (options.help) {
        std::fputs(qUtf8Printable(options.helpText), stdout);
        return 0;
    }
    QApplication application(argc, argv);
    TFramework::InitializeLibrary(argv[0]);
    installLanguage(QString());
    Look look(application);
    look.askDesktop();
    TAppState::instance().forceGl2 = options.forceGl2;
    probeOpenGl(TAppState::instance());
    const int code = TAppState::instance().openGlUsable
        ? run(options)
        : fail(QStringLiteral("OpenGL not supported by your GPU! Image viewer cannot be used!"),
               kNothingShown);
    TFramework::ShutdownLibrary();
    return code;
}
