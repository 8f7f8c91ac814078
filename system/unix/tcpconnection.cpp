#include <system/tcpconnection.h>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace {

void setOption(std::intptr_t descriptor, int level, int option, long long value)
{
    const int number = int(value);
    setsockopt(int(descriptor), level, option, &number, sizeof number);
}

} // namespace

void TcpConnection::SetWatch(std::intptr_t descriptor, const Watch &watch)
{
    setOption(descriptor, SOL_SOCKET, SO_KEEPALIVE, 1);
#ifdef TCP_KEEPIDLE
    setOption(descriptor, IPPROTO_TCP, TCP_KEEPIDLE, watch.idle.count());
#elif defined(TCP_KEEPALIVE)
    setOption(descriptor, IPPROTO_TCP, TCP_KEEPALIVE, watch.idle.count());
#endif
#ifdef TCP_KEEPINTVL
    setOption(descriptor, IPPROTO_TCP, TCP_KEEPINTVL, watch.interval.count());
#endif
#ifdef TCP_KEEPCNT
    setOption(descriptor, IPPROTO_TCP, TCP_KEEPCNT, watch.probes);
#endif
#ifdef TCP_USER_TIMEOUT
    setOption(descriptor, IPPROTO_TCP, TCP_USER_TIMEOUT, std::chrono::milliseconds(watch.unanswered).count());
#elif defined(TCP_RXT_CONNDROPTIME)
    setOption(descriptor, IPPROTO_TCP, TCP_RXT_CONNDROPTIME, watch.unanswered.count());
#endif
}

bool TcpConnection::WaitUntilWritable(std::intptr_t descriptor, std::chrono::milliseconds time)
{
    pollfd waiting{int(descriptor), POLLOUT, 0};
    return poll(&waiting, 1, int(time.count())) > 0 && (waiting.revents & POLLOUT) != 0;
}

std::int64_t TcpConnection::Unacknowledged(std::intptr_t descriptor)
{
    int bytes = 0;
    return ioctl(int(descriptor), TIOCOUTQ, &bytes) == 0 ? bytes : -1;
}
