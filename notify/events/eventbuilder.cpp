#include "eventbuilder.h"

#include "notifyevent.h"

#include <framework/filesystem.h>
#include <framework/stringhelper.h>
#include <net/protocol/packets.h>

#include <string_view>

using TClientLib::TChunk;
using TClientLib::TJob;
using TFramework::TFileSystem;
using TFramework::TStringHelper;

namespace {

constexpr quint32 kTaskWithFinalFile = 2; // bit of the tasks mask: the job makes one named file

std::vector<std::string> recordValues(const QByteArray &base64)
{
    const std::string text =
        TStringHelper::FromBase64(std::string_view{base64.constData(), std::size_t(base64.size())});
    return TStringHelper::TokenizeString(text, "\n");
}

void setText(NotifyEvent &event, const QString &key, const std::string &value)
{
    event.setText(key, QString::fromStdString(value));
}

void setFrames(NotifyEvent &event, const TJob &job)
{
    const std::vector<std::string> masks =
        TStringHelper::DecodeFramesMask(job.attributeGetString("frames_mask"));
    if (!masks.empty()) {
        setText(event, EventKey::kFramesMask, masks.front());
        setText(event, EventKey::kFramesPath, TFileSystem::GetFilePath(masks.front()));
    }
    std::int64_t first = 0;
    if (!masks.empty() && !job.GetFrameRanges().empty() && job.GetFrameRanges().front().FirstFrame(first))
        setText(event, EventKey::kFramesFilePath, TFileSystem::GetFileFromMask(masks.front(), first));
}

void setFinalFile(NotifyEvent &event, const TJob &job)
{
    const std::string file = job.attributeGetString("final_filename");
    setText(event, EventKey::kFramesMask, file);
    setText(event, EventKey::kFramesPath, TFileSystem::GetFilePath(file));
}

void setJobTexts(NotifyEvent &event, const TJob &job)
{
    setText(event, EventKey::kSubmitter, job.getOwner());
    event.setText(EventKey::kPacketType, QString::number(job.getPacketType()));
    event.setText(EventKey::kTasksMask, QString::number(job.getTasksMask()));
    const std::string output = job.attributeGetString("output_folder");
    setText(event, EventKey::kFramesPath, output.empty() ? job.attributeGetString("job_project") : output);
    if (job.getTasksMask() & kTaskWithFinalFile)
        setFinalFile(event, job);
    else
        setFrames(event, job);
}

} // namespace

std::unique_ptr<NotifyEvent> buildEvent(const NotificationPacket &packet, quint64 eventId)
{
    auto event = std::make_unique<NotifyEvent>();
    event->setText(EventKey::kMessage, packet.message);
    event->eventType = packet.eventType;
    event->eventTime = packet.eventTime;
    event->eventId = eventId;
    event->setText(EventKey::kUser, packet.user);
    if (!packet.job.isEmpty()) {
        event->job = std::make_unique<TJob>();
        event->job->Unmarshall(recordValues(packet.job), nullptr);
        setJobTexts(*event, *event->job);
    }
    if (!packet.chunk.isEmpty()) {
        event->chunk = std::make_unique<TChunk>();
        event->chunk->Unmarshall(recordValues(packet.chunk));
        if (event->job)
            setText(*event, EventKey::kSubmitter, event->job->getOwner());
    }
    return event;
}
