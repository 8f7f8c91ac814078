#include "framesteps.h"

#include <algorithm>
#include <iterator>

std::optional<std::int64_t> steppedFrame(const std::vector<std::int32_t> &frames, std::int64_t position,
                                         std::int64_t step)
{
    if (frames.empty())
        return std::nullopt;
    const std::int64_t next = position + step;
    if (next < frames.front())
        return frames.front();
    if (next > frames.back())
        return frames.back();
    // From frame to frame and not from step to step: a gap may be a billion steps wide.
    const auto reached = [=](std::int64_t frame) { return (frame - position) % step == 0; };
    if (step > 0) {
        const auto from = std::lower_bound(frames.begin(), frames.end(), next);
        const auto found = std::find_if(from, frames.end(), reached);
        return found != frames.end() ? *found : frames.back();
    }
    const auto from = std::make_reverse_iterator(std::upper_bound(frames.begin(), frames.end(), next));
    const auto found = std::find_if(from, frames.rend(), reached);
    return found != frames.rend() ? *found : frames.front();
}
