#pragma once

#include <cstdint>
#include <optional>
#include <vector>

/// Steps from a position to the next of `frames`, in ascending order, that is whole steps away, backwards when `step` is
/// negative; stops at the end of the frames on that side. Nothing when there are no frames. Position and step fit 32 bits,
/// and step is not 0.
std::optional<std::int64_t> steppedFrame(const std::vector<std::int32_t> &frames, std::int64_t position,
                                         std::int64_t step);
