#include "farmoptions.h"
#include "farmserver.h"
#include "framestore.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>

#include <cstdio>
#include <optional>

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_UNIX
int signalPipe[2] = {-1, -1};

void noteSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
}
#endif

/// Ctrl-C, SIGTERM and a closed terminal end the event loop: the summary is still told, the frames are removed.
void quitOnSignals(QCoreApplication &application)
{
#ifdef Q_OS_UNIX
    if (pipe(signalPipe) != 0)
        return;
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    std::signal(SIGINT, noteSignal);
    std::signal(SIGTERM, noteSignal);
    std::signal(SIGHUP, noteSignal);
#else
    Q_UNUSED(application);
#endif
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
