#pragma once

#include <client_lib/tframesrange.h>
#include <net/protocol/packets.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

/// How a chunk or a job came out; a job is as bad as its worst chunk.
enum class Outcome { Success, Warnings, Errors };

/// Status of a job or chunk that is still at work.
inline constexpr int kRunningStatus = 1;

/// Success, warnings and errors are neighbouring bits.
constexpr int jobStatus(Outcome outcome)
{
    return 1024 << int(outcome);
}
constexpr int chunkStatus(Outcome outcome)
{
    return 4 << int(outcome);
}

/// Frames that a chunk, or a job with one final file, renders.
struct RenderOrder {
    std::int64_t jobId = 0;
    std::string folder; ///< of the whole job
    std::string path; ///< mask of the frames' files, or the one file
    TClientLib::TFramesRange frames;
    std::optional<Outcome> outcome; ///< none while it is at work
};

/// One event of the night. Its time is left at 0: it happens when it is sent.
struct FarmEvent {
    std::chrono::microseconds pause{0}; ///< quiet time before it
    NotificationPacket packet;
    std::optional<RenderOrder> render; ///< what is on disk when the event is told
};
