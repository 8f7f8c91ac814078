#include "tframesrange.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace TClientLib {

namespace {

// Differences of 64-bit frames need not fit 64 signed bits: all arithmetic is unsigned.

std::uint64_t strideOf(std::int64_t step)
{
    const auto bits = static_cast<std::uint64_t>(step);
    if (step == 0)
        return 1;
    return step < 0 ? 0 - bits : bits;
}

} // namespace

std::size_t TFramesRange::FrameCount() const
{
    const auto [low, high] = step < 0 ? std::pair{end, start} : std::pair{start, end};
    if (low > high)
        return 0;
    const std::uint64_t distance = static_cast<std::uint64_t>(high) - static_cast<std::uint64_t>(low);
    const std::uint64_t steps = distance / strideOf(step);
    return steps < kMaxFrames ? static_cast<std::size_t>(steps) + 1 : kMaxFrames + 1;
}

bool TFramesRange::FirstFrame(std::int64_t &frame) const
{
    const std::size_t count = FrameCount();
    if (count == 0 || count > kMaxFrames)
        return false;
    const std::uint64_t back = step < 0 ? strideOf(step) * (count - 1) : 0;
    frame = static_cast<std::int64_t>(static_cast<std::uint64_t>(start) - back);
    return true;
}

std::set<long> TFramesRange::NumberedFrames(const std::vector<TFramesRange> &ranges, std::int64_t &step)
{
    constexpr std::uint64_t kMaxStep = std::numeric_limits<std::int64_t>::max();
    step = ranges.empty() ? 1 : static_cast<std::int64_t>(std::min(strideOf(ranges.front().step), kMaxStep));

    std::size_t total = 0;
    for (const TFramesRange &range : ranges) {
        total += range.FrameCount();
        if (total > kMaxFrames)
            return {};
    }
    std::set<long> frames;
    for (const TFramesRange &range : ranges) {
        std::int64_t first = 0;
        range.FirstFrame(first);
        auto bits = static_cast<std::uint64_t>(first);
        for (std::size_t left = range.FrameCount(); left > 0; --left) {
            const auto frame = static_cast<std::int64_t>(bits);
            if (std::in_range<long>(frame)) // a long has 32 bits on Windows
                frames.insert(frames.end(), static_cast<long>(frame));
            bits += strideOf(range.step);
        }
    }
    return frames;
}

} // namespace TClientLib
