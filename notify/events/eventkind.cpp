#include "eventkind.h"

#include "notifyevent.h"

#include <net/protocol/packets.h>

#include <QtCore/QCoreApplication>

namespace {

constexpr int kSingleFramePacket = 2; // packet type of the jobs that make one frame

enum class Outcome { None, Success, Warnings, Errors };

Outcome outcomeOf(int status, int success, int warnings, int errors)
{
    if (status == success)
        return Outcome::Success;
    if (status == warnings)
        return Outcome::Warnings;
    return status == errors ? Outcome::Errors : Outcome::None;
}

Outcome outcomeOf(const TClientLib::TJob &job)
{
    return outcomeOf(job.getStatus(), 1024, 2048, 4096);
}

Outcome outcomeOf(const TClientLib::TChunk &chunk)
{
    return outcomeOf(chunk.getStatus(), 4, 8, 16);
}

/// Outcome of the record that a completion came with; None for other events.
Outcome outcomeOf(const NotifyEvent &event)
{
    if (event.eventType == EventType::JobCompleted && event.job)
        return outcomeOf(*event.job);
    if (event.eventType == EventType::ChunkCompleted && event.chunk)
        return outcomeOf(*event.chunk);
    return Outcome::None;
}

struct OutcomeFilters {
    bool Settings::*success;
    bool Settings::*warnings;
    bool Settings::*errors;
};

EventHandling completionHandling(Outcome outcome, const OutcomeFilters &filters)
{
    switch (outcome) {
    case Outcome::Success:
        return {filters.success, &Settings::successSound};
    case Outcome::Warnings:
        return {filters.warnings, &Settings::warningSound};
    case Outcome::Errors:
        return {filters.errors, &Settings::errorSound};
    case Outcome::None:
        break;
    }
    return {};
}

EventLook completionLook(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Success:
        return {QCoreApplication::translate("EventKind", "Success"), QStringLiteral(":/icons/itemCompleted")};
    case Outcome::Warnings:
        return {QCoreApplication::translate("EventKind", "Warning"), QStringLiteral(":/icons/itemWarning")};
    case Outcome::Errors:
        return {QCoreApplication::translate("EventKind", "Error"), QStringLiteral(":/icons/itemError")};
    case Outcome::None:
        break;
    }
    return {};
}

} // namespace

EventHandling handlingOf(const NotifyEvent &event)
{
    const EventHandling service{&Settings::filterServiceActivities, &Settings::serviceSound};
    if (event.eventType == EventType::ChunkCompleted && event.chunk)
        return completionHandling(outcomeOf(*event.chunk),
                                  {&Settings::filterChunkCompletedWithSuccess,
                                   &Settings::filterChunkCompletedWithWarnings,
                                   &Settings::filterChunkCompletedWithErrors});
    if (!event.job)
        return service;
    switch (event.eventType) {
    case EventType::JobCompleted: {
        const Outcome outcome = outcomeOf(*event.job);
        EventHandling handling = completionHandling(outcome,
                                                    {&Settings::filterJobCompletedWithSuccess,
                                                     &Settings::filterJobCompletedWithWarnings,
                                                     &Settings::filterJobCompletedWithErrors});
        handling.singleFrame = outcome != Outcome::None && event.has(EventKey::kFramesMask)
            && event.text(EventKey::kPacketType).toInt() == kSingleFramePacket;
        return handling;
    }
    case EventType::JobStarted:
        return {&Settings::filterJobStart, &Settings::startSound};
    case EventType::ChunkStarted:
        return {&Settings::filterChunkStart, &Settings::startSound};
    default:
        return service;
    }
}

EventLook lookOf(const NotifyEvent &event)
{
    switch (event.eventType) {
    case EventType::JobCompleted:
    case EventType::ChunkCompleted:
        return event.job ? completionLook(outcomeOf(event)) : EventLook{};
    case EventType::JobStarted:
    case EventType::ChunkStarted:
        return {QCoreApplication::translate("EventKind", "Start"), QStringLiteral(":/icons/itemStart")};
    case EventType::ServiceActivity:
    case EventType::ServiceActivityDetail:
        return {QCoreApplication::translate("EventKind", "Service"), QStringLiteral(":/icons/service")};
    case EventType::Alert:
    case EventType::AlertDetail:
        return {QCoreApplication::translate("EventKind", "Alert"), QStringLiteral(":/icons/service")};
    default:
        return {};
    }
}

PendingLevel pendingLevelOf(const NotifyEvent &event)
{
    switch (event.eventType) {
    case EventType::ServiceActivity:
    case EventType::ServiceActivityDetail:
    case EventType::Alert:
    case EventType::AlertDetail:
        return OtherPending;
    default:
        break;
    }
    switch (outcomeOf(event)) {
    case Outcome::Success:
        return SuccessPending;
    case Outcome::Warnings:
        return WarningPending;
    case Outcome::Errors:
        return ErrorPending;
    case Outcome::None:
        break;
    }
    return NothingPending;
}
