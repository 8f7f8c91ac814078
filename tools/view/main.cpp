// tarrow-view [options] [PATH]
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

/// Empty when a folder holds nothing to show.
std::string pathToOpen(const QString &path)
{
    const QFileInfo info(path);
    const std::string absolute = info.absoluteFilePath().toStdString();
    return info.isDir() ? firstImageOf(absolute) : absolute;
}

/// What is wrong; empty when the picture is as asked for.
QString apply(const ViewOptions &options, ImageViewer &viewer)
{
    if (options.path.isEmpty())
        return options.grab.isEmpty() ? QString() : QStringLiteral("Cannot grab a picture without a PATH.");
    const std::string path = pathToOpen(options.path);
    if (path.empty())
        return QStringLiteral("Cannot find an image in %1").arg(options.path);
    ViewerSession &session = viewer.session();
    DisplayControls &display = viewer.display();
    display.setComposite(options.composite);
    display.setChecker(options.checker);
    display.setPremultiplied(options.premultiplied);
    if (options.background.isValid())
        display.setBackground(options.background);
    viewer.setFramesPath(
        {.path = path, .force = true, .preferredFrame = options.frame, .maskIsSequence = true});
    if (options.frame)
        session.setFrame(*options.frame);
    if (options.frame && session.frame() != *options.frame)
        return QStringLiteral("Cannot find frame %1 among those of %2").arg(*options.frame).arg(options.path);
    if (!session.lastLoad().shown())
        return QStringLiteral("Cannot show %1").arg(QString::fromStdString(session.file()));
    if (!options.layer.isEmpty()
        && !(session.setLayer(options.layer.toStdString()) && session.lastLoad().shown()))
        return QStringLiteral("Cannot show the layer %1 of %2").arg(options.layer, options.path);
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
    auto *viewer =
        new ImageViewer(totals, {settings.imageViewerExrImportGamma, settings.imageViewerDefaultImportGamma});
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
    // A single channel is a look at the picture; its alpha would say nothing.
    const bool keepsAlpha = !options.composite && options.channelViewMode == 0;
    const float zoom = options.zoom.value_or(1.0F);
    const QImage picture =
        keepsAlpha ? viewer->picture().grabWithAlpha(zoom) : viewer->picture().grabPicture(zoom);
    if (picture.isNull())
        return fail(QStringLiteral("Cannot render %1").arg(options.path), kNothingShown);
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
    QApplication::setFont(QFont(QStringLiteral("Lato")));
    Look::installFonts();
    Look::installPalette();
    Look::installStyle(application);
    TAppState::instance().forceGl2 = options.forceGl2;
    probeOpenGl(TAppState::instance());
    const int code = TAppState::instance().openGlUsable
        ? run(options)
        : fail(QStringLiteral("OpenGL not supported by your GPU! Image viewer cannot be used!"),
               kNothingShown);
    TFramework::ShutdownLibrary();
    return code;
}
