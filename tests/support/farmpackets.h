#pragma once

#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>
#include <net/protocol/packets.h>
#include <net/protocol/wire.h>

/// What a Dispatcher would send, with as little to say for each test as possible.
namespace farm {

inline QByteArray base64(const std::string &record)
{
    return QByteArray::fromStdString(record).toBase64();
}

inline TClientLib::TJob job(int status = 1024)
{
    TClientLib::TJob job;
    job.setJobId(1234);
    job.setName("Shot010");
    job.setOwner("ann");
    job.setStatus(status);
    return job;
}

/// One whose only result is this file.
inline TClientLib::TJob stillJob(const std::string &file)
{
    TClientLib::TJob still = job();
    still.setPacketType(2);
    still.setTasksMask(2);
    still.attributeSetString("final_filename", file);
    return still;
}

inline TClientLib::TChunk chunk(int status = 4)
{
    TClientLib::TChunk chunk;
    chunk.setChunkId(7);
    chunk.setJobId(1234);
    chunk.setStatus(status);
    return chunk;
}

inline NotificationPacket notification(qint64 type, const TClientLib::TJob *job = nullptr,
                                       const TClientLib::TChunk *chunk = nullptr)
{
    NotificationPacket packet;
    packet.message = QStringLiteral("event of type %1").arg(type);
    packet.eventType = type;
    packet.eventTime = 1'700'000'000;
    packet.user = QStringLiteral("ann");
    if (job)
        packet.job = base64(job->Marshall());
    if (chunk)
        packet.chunk = base64(chunk->Marshall());
    return packet;
}

inline QByteArray frame(const NotificationPacket &packet)
{
    return encodeMessage(MessageHeader::Plain, CMD_NOTIFICATION, encodeNotification(packet));
}

} // namespace farm
