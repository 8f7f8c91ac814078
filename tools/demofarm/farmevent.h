#pragma once

#include "packets.h"

#include <chrono>

/// What an event is about, as the farm numbers it.
enum FarmEventType : int {
    JobCompleted = 1,
    ChunkCompleted = 2,
    JobStarted = 4,
    ChunkStarted = 8,
    ServiceActivity = 512,
    Alert = 1024,
    ServiceActivityDetail = 2048,
    AlertDetail = 4096,
};

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

/// One event of the night. Its time is left at 0: it happens when it is sent.
struct FarmEvent {
    std::chrono::microseconds pause{0}; ///< quiet time before it
    NotificationPacket packet;
};
