#pragma once

#include <chrono>
#include <cstdint>

/// What the toolkit cannot ask of a TCP connection. A descriptor is the socket's number; a system that knows nothing of the
/// kind does nothing.
namespace TcpConnection {

/// How soon a connection whose other end is gone is noticed: after `idle` it is asked, again each `interval`, and given
/// up after `probes` without an answer. What was sent and not acknowledged for `unanswered` ends it as well.
struct Watch {
    std::chrono::seconds idle;
    std::chrono::seconds interval;
    int probes;
    std::chrono::seconds unanswered;
};

void SetWatch(std::intptr_t descriptor, const Watch &watch);

/// Waits until the system takes more bytes to send; false when it took none in this time.
bool WaitUntilWritable(std::intptr_t descriptor, std::chrono::milliseconds time);

/// Gives how many bytes the other end has not acknowledged yet; -1 where the system does not tell.
std::int64_t Unacknowledged(std::intptr_t descriptor);

} // namespace TcpConnection
