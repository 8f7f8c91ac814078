#include "fuzzing.h"

#include <net/protocol/packets.h>
#include <notify/events/eventbuilder.h>
#include <notify/events/notifyevent.h>

namespace {

void notification(QByteArrayView payload)
{
    const auto packet = decodeNotification(payload);
    if (!packet)
        return;
    const auto event = buildEvent(*packet, 1);
    require(event && bool(event->job) == !packet->job.isEmpty()
            && bool(event->chunk) == !packet->chunk.isEmpty());
    const auto again = decodeNotification(encodeNotification(*packet));
    require(again && again->eventTime == packet->eventTime && again->job == packet->job
            && again->chunk == packet->chunk);
}

void customMessage(QByteArrayView payload)
{
    if (const auto packet = decodeCustomMessage(payload))
        require(decodeCustomMessage(encodeCustomMessage(*packet)) == packet);
}

void login(QByteArrayView payload)
{
    if (const auto packet = decodeLogin(payload))
        require(bool(decodeLogin(encodeLogin(*packet))));
}

} // namespace

/// A byte that says which command, then its payload.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 1)
        return 0;
    const QByteArrayView payload(data + 1, qsizetype(size - 1));
    constexpr void (*kReaders[])(QByteArrayView) = {notification, customMessage, login};
    kReaders[data[0] % 3](payload);
    return 0;
}
