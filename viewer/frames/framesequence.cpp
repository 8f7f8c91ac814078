#include "framesequence.h"

#include "framesondisk.h"

#include <client_lib/tframesrange.h>
#include <framework/filesystem.h>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

using TClientLib::TFramesRange;
using TFramework::TFileSystem;

namespace {

constexpr std::int64_t kMinFrame = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kMaxFrame = std::numeric_limits<std::int32_t>::max();

/// Frame 1 stands for a range that is empty, refused, or out of a frame number's reach.
void setFrames(FrameSequence &sequence, const std::vector<TFramesRange> &ranges)
{
    std::int64_t step = 1;
    sequence.frames = TFramesRange::NumberedFrames(ranges, step);
    sequence.byFrame = static_cast<std::int32_t>(std::clamp<std::int64_t>(step, 1, kMaxFrame));
    const bool isUsable = !sequence.frames.empty() && *sequence.frames.begin() >= kMinFrame
        && *sequence.frames.rbegin() <= kMaxFrame;
    if (!isUsable)
        sequence.frames = {1};
}

/// The frames of the record, and the given one among them or the first.
OpenedFrames framesOf(const FramesOrigin &origin, std::int32_t frame)
{
    OpenedFrames opened;
    FrameSequence &sequence = opened.sequence;
    if (origin.chunk)
        setFrames(sequence, {{origin.chunk->getStart(), origin.chunk->getEnd(), origin.chunk->getStep()}});
    else
        setFrames(sequence, origin.job->GetFrameRanges());
    const bool isAmong = frame >= sequence.first() && frame <= sequence.last();
    opened.frame = isAmong ? frame : static_cast<std::int32_t>(sequence.first());
    return opened;
}

struct PathMask {
    std::string mask; ///< empty when the path is neither a mask nor a numbered file
    bool showsSequence = false;
};

/// A numbered file sets the starting frame; so does, for want of a record, a mask that has no file of that frame.
PathMask maskOf(const FramesRequest &request, bool hasRecord, std::int32_t &start)
{
    const bool isMask = !TFileSystem::GetFileFromMask(request.path, 1).empty();
    if (isMask) {
        if (!hasRecord && !TFileSystem::CheckFile(TFileSystem::GetFileFromMask(request.path, start)))
            start = firstFrameOnDisk(request.path).value_or(start);
        return {request.path, request.maskIsSequence};
    }
    std::int32_t number = 0;
    std::string mask = TFileSystem::GetSequenceMask(request.path, true, number);
    if (mask.empty() || mask == request.path)
        return {};
    start = number;
    return {std::move(mask), true};
}

std::set<long> existingRun(const std::string &mask, std::int32_t start)
{
    std::set<long> frames;
    const auto exists = [&mask, &frames](std::int64_t frame) {
        return frame >= kMinFrame && frame <= kMaxFrame && frames.size() < TFramesRange::kMaxFrames
            && TFileSystem::CheckFile(TFileSystem::GetFileFromMask(mask, frame));
    };
    std::int64_t frame = start;
    for (; exists(frame); --frame)
        frames.insert(frames.begin(), static_cast<long>(frame));
    if (frames.empty())
        return frames;
    for (frame = std::int64_t(start) + 1; exists(frame); ++frame)
        frames.insert(frames.end(), static_cast<long>(frame));
    return frames;
}

} // namespace

std::string FrameSequence::fileOf(std::int32_t frame) const
{
    return isSequence ? TFileSystem::GetFileFromMask(framesPath, frame) : framesPath;
}

OpenedFrames openFrames(const FramesRequest &request, const FramesOrigin &origin)
{
    OpenedFrames opened;
    FrameSequence &sequence = opened.sequence;
    std::int32_t start = request.preferredFrame.value_or(0);
    const bool hasRecord = origin.job || origin.chunk;
    if (hasRecord) {
        opened = framesOf(origin, start);
        start = opened.frame;
    }
    sequence.framesPath = request.path;

    const auto [mask, showsSequence] = maskOf(request, hasRecord, start);
    if (mask.empty()) {
        sequence.frames = {1};
        opened.frame = 1;
        return opened;
    }
    if (!hasRecord && showsSequence) {
        sequence.frames = existingRun(mask, start);
        opened.frame = start;
    }
    sequence.isSequence = showsSequence && sequence.frames.size() >= 2;
    if (sequence.isSequence) {
        sequence.framesPath = mask;
        return opened;
    }
    sequence.frames = {start};
    sequence.framesPath = TFileSystem::GetFileFromMask(mask, start);
    opened.frame = start;
    return opened;
}
