#include "garbage.h"

#include <net/protocol/packets.h>
#include <net/protocol/wire.h>

#include <iterator>

namespace {

QByteArray rawMessage(MessageHeader::Type type, qint32 length, quint32 command, const QByteArray &wire)
{
    QByteArray bytes;
    MessageHeader{type, length, 0, command}.appendTo(bytes);
    return bytes + wire;
}

Garbage notZlib()
{
    const QByteArray wire =
        QByteArray::fromHex("40000000") + QByteArrayLiteral("this is no compressed stream");
    return {QStringLiteral("payload that does not inflate"),
            rawMessage(MessageHeader::Compressed, qint32(wire.size()), CMD_NOTIFICATION, wire),
            Garbage::Effect::Ignored};
}

Garbage tooLarge()
{
    constexpr qsizetype kTwoMegabytes = 2'000'000;
    return {QStringLiteral("message over 1 MiB"),
            encodeMessage(MessageHeader::Plain, CMD_NOTIFICATION, QByteArray(kTwoMegabytes, 'x')),
            Garbage::Effect::Ignored};
}

Garbage unknownCommand()
{
    return {QStringLiteral("unknown command"), encodeMessage(MessageHeader::Plain, 999, "nobody knows this"),
            Garbage::Effect::Ignored};
}

Garbage shortNotification()
{
    return {QStringLiteral("notification of six fields"),
            encodeMessage(MessageHeader::Plain, CMD_NOTIFICATION, "lost\n2\n0\nmara\n\n"),
            Garbage::Effect::Ignored};
}

Garbage negativeLength()
{
    return {QStringLiteral("header of negative length"),
            rawMessage(MessageHeader::Plain, -13, CMD_NOTIFICATION, QByteArray(64, 'x')),
            Garbage::Effect::BreaksLink};
}

Garbage hugeLength()
{
    return {QStringLiteral("header that announces 790 MB"),
            rawMessage(MessageHeader::Plain, 790'000'000, CMD_NOTIFICATION, QByteArray(64, 'x')),
            Garbage::Effect::BreaksLink};
}

Garbage negativeInflatedSize()
{
    const QByteArray wire = QByteArray::fromHex("ffffffff789c030000000001");
    return {QStringLiteral("payload of negative inflated size"),
            rawMessage(MessageHeader::Compressed, qint32(wire.size()), CMD_NOTIFICATION, wire),
            Garbage::Effect::BreaksLink};
}

Garbage noPayloadType()
{
    return {QStringLiteral("message that says it has no payload and has one"),
            encodeMessage(MessageHeader::NoPayload, CMD_NOTIFICATION, "a\n1\n2\nb\n\n\n"),
            Garbage::Effect::Ignored};
}

constexpr Garbage (*kKinds[])() = {unknownCommand, notZlib,  shortNotification, negativeLength,
                                   noPayloadType,  tooLarge, hugeLength,        negativeInflatedSize};

} // namespace

Garbage garbage(int turn)
{
    return kKinds[std::size_t(turn) % std::size(kKinds)]();
}

int garbageKinds()
{
    return int(std::size(kKinds));
}
