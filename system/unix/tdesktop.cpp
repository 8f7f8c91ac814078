#include <system/tdesktop.h>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

int g_signalPipe[2] = {-1, -1};

extern "C" void noteSignal(int)
{
    const char byte = 0;
    // A pipe that is full has told already.
    [[maybe_unused]] const ssize_t written = write(g_signalPipe[1], &byte, 1);
}

} // namespace

bool TDesktop::SetProcessDpiUnaware()
{
    return true;
}

void TDesktop::AddDropShadow(std::uintptr_t) { }

TDesktop::Opened TDesktop::OpenPath(const std::string &)
{
    return Opened::NotHere;
}

int TDesktop::TerminationDescriptor()
{
    if (pipe(g_signalPipe) != 0)
        return -1;
    for (const int end : g_signalPipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    struct sigaction action { };
    action.sa_handler = &noteSignal;
    // A second request ends a program that does not get round to the first.
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaction(number, &action, nullptr);
    return g_signalPipe[0];
}

void TDesktop::OpenStandardStreams()
{
    int opened = open("/dev/null", O_RDWR);
    while (opened >= 0 && opened <= STDERR_FILENO)
        opened = open("/dev/null", O_RDWR);
    if (opened >= 0)
        close(opened);
}

void TDesktop::ReturnFreedMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}
