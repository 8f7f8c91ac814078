#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

namespace TClientLib {

/// Describes the frames start, start + step, … up to end. A step of 0 counts as 1; a range whose end cannot be reached
/// from its start in the step's direction holds no frame.
struct TFramesRange {
    std::int64_t start = 0;
    std::int64_t end = 0;
    std::int64_t step = 1;

    /// Most frames that are ever built from ranges.
    static constexpr std::size_t kMaxFrames = 1'000'000;

    /// Counts the frames of this range, computed without building them; kMaxFrames + 1 stands for any larger number.
    std::size_t FrameCount() const;
    /// Finds the lowest frame of the range; false when it holds none or more than kMaxFrames.
    bool FirstFrame(std::int64_t &frame) const;

    /// Lists the frames of all ranges in order, and in `step` the distance between frames of the first range: always
    /// positive, 1 where there is no range.
    /// Empty when the ranges hold more than kMaxFrames frames together.
    static std::set<long> NumberedFrames(const std::vector<TFramesRange> &ranges, std::int64_t &step);
};

} // namespace TClientLib
