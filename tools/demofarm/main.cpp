#include "farmoptions.h"
#include "farmserver.h"
#include "framestore.h"

#include <system/tdesktop.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>

#include <cstdio>
#include <optional>

namespace {

/// Ctrl-C, SIGTERM and a closed terminal end the event loop: the summary is still told, the frames are removed.
void quitOnSignals(QCoreApplication &application)
{
    const int termination = TDesktop::TerminationDescriptor();
    if (termination < 0)
        return;
    auto *notifier = new QSocketNotifier(termination, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tarrow-demofarm"));
    FarmCommandLine commandLine = parseFarmCommandLine(QCoreApplication::arguments());
    if (!commandLine.options) {
        std::fprintf(commandLine.exitCode == 0 ? stdout : stderr, "%s\n",
                     commandLine.text.toUtf8().constData());
        return commandLine.exitCode;
    }

    quitOnSignals(application);
    FarmOptions &options = *commandLine.options;
    std::optional<FrameStore> frames;
    if (options.renders) {
        frames.emplace(options.framesIn, options.keepFrames, options.halfFrames);
        if (!frames->isUsable())
            return 1;
        options.night.folder = frames->folder();
    }
    FarmServer server(options, frames ? &*frames : nullptr);
    if (!server.listen())
        return 1;
    QObject::connect(&server, &FarmServer::finished, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    const int status = QCoreApplication::exec();
    if (!server.isPlayed())
        server.logSummary();
    return status;
}
