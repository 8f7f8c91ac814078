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

/// Adds the unbroken run of existing files from a frame on, up or down.
void addRun(std::set<long> &frames, const std::string &mask, std::int64_t frame, int step)
{
    const auto exists = [&mask, &frames](std::int64_t number) {
        return number >= kMinFrame && number <= kMaxFrame && frames.size() < TFramesRange::kMaxFrames
            && TFileSystem::CheckFile(TFileSystem::GetFileFromMask(mask, number));
    };
    for (; exists(frame); frame += step)
        frames.insert(step < 0 ? frames.begin() : frames.end(), static_cast<long>(frame));
}

bool isRound(long frame)
{
    for (; frame >= 10 && frame % 10 == 0; frame /= 10) { }
    return frame == 1;
}

/// Numbers without padding get shorter below 10, 100 and so on: the run goes on there by a mask that is narrower.
void addShorterNumbers(std::set<long> &frames, std::string &mask)
{
    while (!frames.empty() && *frames.begin() >= 10 && isRound(*frames.begin())) {
        const long first = *frames.begin();
        const auto ends = endsOf(mask);
        const auto unpadded = [&ends](long frame) {
            return ends->before + std::to_string(frame) + ends->after;
        };
        if (!ends || TFileSystem::GetFileFromMask(mask, first) != unpadded(first))
            return;
        std::int32_t frame = 0;
        std::string narrower = TFileSystem::GetSequenceMask(unpadded(first - 1), true, frame);
        if (narrower.empty() || frame != first - 1 || !TFileSystem::CheckFile(unpadded(frame)))
            return;
        mask = std::move(narrower);
        addRun(frames, mask, frame, -1);
    }
}

std::set<long> existingRun(std::string &mask, std::int32_t start, const FramesRequest &request)
{
    std::set<long> frames;
    addRun(frames, mask, start, -1);
    if (frames.empty())
        return frames;
    addRun(frames, mask, std::int64_t(start) + 1, 1);
    if (mask != request.path)
        addShorterNumbers(frames, mask);
    for (const std::string &other : request.others) {
        if (const auto frame = frameOf(other, mask))
            frames.insert(*frame);
    }
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

    auto [mask, showsSequence] = maskOf(request, hasRecord, start);
    if (mask.empty()) {
        sequence.frames = {1};
        opened.frame = 1;
        return opened;
    }
    if (!hasRecord && showsSequence) {
        sequence.frames = existingRun(mask, start, request);
        opened.frame = start;
    }
    const bool staysMask = !hasRecord && showsSequence && mask == request.path;
    if (staysMask && sequence.frames.empty()) {
        sequence.isAwaited = true;
        sequence.frames = {start};
        return opened;
    }
    sequence.isSequence = showsSequence && (staysMask || sequence.frames.size() >= 2);
    if (sequence.isSequence) {
        sequence.framesPath = mask;
        return opened;
    }
    sequence.frames = {start};
    sequence.framesPath = TFileSystem::GetFileFromMask(mask, start);
    opened.frame = start;
    return opened;
}
