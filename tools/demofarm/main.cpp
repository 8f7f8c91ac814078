#include "farmoptions.h"
#include "farmserver.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>

#include <cstdio>

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

/// Ctrl-C and SIGTERM end the event loop, so that the summary is still told.
void quitOnSignals(QCoreApplication &application)
{
#ifdef Q_OS_UNIX
    if (pipe(signalPipe) != 0)
        return;
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    std::signal(SIGINT, noteSignal);
    std::signal(SIGTERM, noteSignal);
#else
    Q_UNUSED(application);
#endif
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tarrow-demofarm"));
    const FarmCommandLine commandLine = parseFarmCommandLine(QCoreApplication::arguments());
    if (!commandLine.options) {
        std::fprintf(commandLine.exitCode == 0 ? stdout : stderr, "%s\n",
                     commandLine.text.toUtf8().constData());
        return commandLine.exitCode;
    }

    quitOnSignals(application);
    FarmServer server(*commandLine.options);
    if (!server.listen())
        return 1;
    QObject::connect(&server, &FarmServer::finished, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    const int status = QCoreApplication::exec();
    if (!server.isPlayed())
        server.logSummary();
    return status;
}
