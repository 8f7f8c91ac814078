#include <system/tcpconnection.h>

#include <winsock2.h>

#include <ws2tcpip.h>

namespace {

// Of headers newer than those that some compilers bring.
constexpr int kKeepIdle = 3; // TCP_KEEPIDLE
constexpr int kUnanswered = 5; // TCP_MAXRT
constexpr int kKeepProbes = 16; // TCP_KEEPCNT
constexpr int kKeepInterval = 17; // TCP_KEEPINTVL

void setOption(std::intptr_t descriptor, int level, int option, long long value)
{
    const DWORD number = static_cast<DWORD>(value);
    setsockopt(static_cast<SOCKET>(descriptor), level, option, reinterpret_cast<const char *>(&number),
               sizeof number);
}

} // namespace

void TcpConnection::SetWatch(std::intptr_t descriptor, const Watch &watch)
{
    setOption(descriptor, SOL_SOCKET, SO_KEEPALIVE, 1);
    setOption(descriptor, IPPROTO_TCP, kKeepIdle, watch.idle.count());
    setOption(descriptor, IPPROTO_TCP, kKeepInterval, watch.interval.count());
    setOption(descriptor, IPPROTO_TCP, kKeepProbes, watch.probes);
    setOption(descriptor, IPPROTO_TCP, kUnanswered, watch.unanswered.count());
}

bool TcpConnection::WaitUntilWritable(std::intptr_t descriptor, std::chrono::milliseconds time)
{
    WSAPOLLFD waiting{static_cast<SOCKET>(descriptor), POLLOUT, 0};
    return WSAPoll(&waiting, 1, static_cast<INT>(time.count())) > 0 && (waiting.revents & POLLOUT) != 0;
}

std::int64_t TcpConnection::Unacknowledged(std::intptr_t)
{
    return -1;
}
