#include "framesteps.h"

#include <algorithm>
#include <iterator>

namespace {

auto atOrAfter(const std::set<long> &frames, std::int64_t frame)
{
    return frames.lower_bound(frame);
}

auto atOrAfter(const std::vector<std::int32_t> &frames, std::int64_t frame)
{
    return std::lower_bound(frames.begin(), frames.end(), frame);
}

template <typename Frames>
std::optional<std::int64_t> stepped(const Frames &frames, std::int64_t position, std::int64_t step)
{
    if (frames.empty())
        return std::nullopt;
    const std::int64_t first = *frames.begin();
    const std::int64_t last = *frames.rbegin();
    const std::int64_t next = std::clamp(position + step, first, last);
    if (next != position + step)
        return next;
    // From frame to frame and not from step to step: a gap may be a billion steps wide.
    const auto reached = [=](std::int64_t frame) { return (frame - position) % step == 0; };
    if (step > 0) {
        const auto found = std::find_if(atOrAfter(frames, next), frames.end(), reached);
        return found != frames.end() ? *found : last;
    }
    const auto from = std::make_reverse_iterator(atOrAfter(frames, next + 1));
    const auto found = std::find_if(from, frames.rend(), reached);
    return found != frames.rend() ? *found : first;
}

} // namespace

std::optional<std::int64_t> steppedFrame(const std::set<long> &frames, std::int64_t position,
                                         std::int64_t step)
{
    return stepped(frames, position, step);
}

std::optional<std::int64_t> steppedFrame(const std::vector<std::int32_t> &frames, std::int64_t position,
                                         std::int64_t step)
{
    return stepped(frames, position, step);
}
