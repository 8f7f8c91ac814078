#include "commandline.h"
#include "qtsingleapplication.h"
#include "splash.h"
#include "templates.h"

#include <framework/tframework.h>
#include <notify/alertor.h>
#include <notify/setup.h>
#include <system/tdesktop.h>
#include <ui/glprobe.h>
#include <ui/language.h>
#include <ui/logfile.h>
#include <ui/look.h>
#include <ui/product.h>
#include <ui/tappstate.h>

#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>

#include <cstdio>

namespace {

constexpr int kWakeUpTimeout = 5000; // milliseconds

/// Ends the program in order when the system asks it to, which may be while it starts: the splash handles events, and
/// there is no event loop yet to leave. `isEnding` is set then and outlives the application. What came before, the descriptor
/// has kept.
void quitOnTermination(QCoreApplication &application, int descriptor, bool &isEnding)
{
    if (descriptor < 0)
        return;
    auto *notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [notifier, &isEnding] {
        notifier->setEnabled(false);
        isEnding = true;
        QCoreApplication::exit(0);
    });
}

int run(QtSingleApplication &application, const CommandLine &line, Templates &templates, const bool &isEnding)
{
    Alertor alertor;
    alertor.setCommandLineOverrides(line.overrides);
    alertor.loadSettings();
    alertor.setCustomMessageHandler(
        [&templates](int id, const QByteArray &message) { templates.invokeCustomMessage(id, message); });
    QObject::connect(&application, &QtSingleApplication::messageReceived, &alertor, &Alertor::handleMessage);

    Look look(application);
    Splash splash;
    splash.say(Splash::tr("Initializing..."));
    splash.say(Splash::tr("Enumerating templates..."));
    TFramework::SetLibraryContext("Alertor", alertor.sendEntry());
    templates.loadTemplates([&splash](const QString &what) {
        splash.say(what);
        splash.appear();
    });
    TAppState::instance().forceGl2 = line.forceGl2;
    probeOpenGl(TAppState::instance());
    // Not of the window: it stays hidden, and the splash would wait a second for it to show.
    splash.finish(nullptr);
    alertor.minimize();
    QTimer::singleShot(0, &look, &Look::askDesktop);
    Setup::offer(alertor);
    const int code = isEnding ? 0 : QCoreApplication::exec();

    templates.shutdown();
    TFramework::ShutdownLibrary();
    return code;
}

} // namespace

int main(int argc, char *argv[])
{
    TDesktop::OpenStandardStreams();
    const CommandLine line = CommandLine::parse({argv, argv + argc});
    if (line.help || line.version) {
        std::fputs(qUtf8Printable(line.help ? commandLineHelp() : commandLineVersion()), stdout);
        return 0;
    }
    if (!TDesktop::SetProcessDpiUnaware())
        std::fputs("Failed to setup SetProcessDpiAwareness()\n", stderr);
    QCoreApplication::setOrganizationName(product::kOrganisation);
    QCoreApplication::setOrganizationDomain(product::kDomain);
    QCoreApplication::setApplicationName(product::kApplicationName);
    QGuiApplication::setDesktopFileName(QStringLiteral("tarrow-alertor"));
    const int termination = TDesktop::TerminationDescriptor();
    bool isEnding = false;
    QtSingleApplication application(argc, argv);
    QApplication::setFont(Look::font());
    if (application.isRunning()) {
        application.sendMessage(QStringLiteral("wakeup"), kWakeUpTimeout);
        return 0;
    }
    const LogFile log;
    quitOnTermination(application, termination, isEnding);
    if (!installLanguage(line.language) && !line.language.isEmpty())
        std::fprintf(stderr, "Cannot find texts in the language %s; --help lists the languages\n",
                     qUtf8Printable(line.language));
    TFramework::InitializeLibrary(argv[0]);
    Templates templates;
    QApplication::setQuitOnLastWindowClosed(false);
    return run(application, line, templates, isEnding);
}
