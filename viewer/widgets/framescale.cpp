#include "framescale.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();

std::int64_t dividedUp(std::int64_t value, std::int64_t by)
{
    return (value + by - 1) / by;
}

} // namespace

bool FrameScale::contains(std::int64_t frame) const
{
    return std::binary_search(m_frames.begin(), m_frames.end(), frame);
}

std::int64_t FrameScale::frameCount() const
{
    return std::max<std::int64_t>(std::int64_t{m_end} - m_start + 1, 1);
}

float FrameScale::pixelsPerFrame(int width) const
{
    return static_cast<float>(std::max(width, 1)) / static_cast<float>(frameCount());
}

int FrameScale::position(std::int32_t frame, int width) const
{
    const std::int64_t index = std::int64_t{frame} - m_start;
    // A float counts frames exactly only up to 16 million.
    if (frameCount() > width)
        return static_cast<int>(index * width / frameCount());
    return static_cast<int>(static_cast<float>(index) * pixelsPerFrame(width));
}

int FrameScale::columnWidth(int width) const
{
    return std::max(static_cast<int>(pixelsPerFrame(width)), 1);
}

std::vector<FrameColumn> FrameScale::columns(int width) const
{
    const std::int64_t count = frameCount();
    const std::int64_t number = std::clamp<std::int64_t>(width, 0, count);
    std::vector<FrameColumn> columns(static_cast<std::size_t>(number));
    auto frame = std::lower_bound(m_frames.begin(), m_frames.end(), m_start);
    for (std::int64_t i = 0; i < number; ++i) {
        FrameColumn &column = columns[static_cast<std::size_t>(i)];
        column.first = static_cast<std::int32_t>(m_start + dividedUp(i * count, number));
        column.last = static_cast<std::int32_t>(m_start + dividedUp((i + 1) * count, number) - 1);
        column.x = position(column.first, width);
        const auto end = std::upper_bound(frame, m_frames.end(), column.last);
        column.existing = end - frame;
        column.firstExisting = frame != end ? *frame : 0;
        column.worst = m_states.worst(column.first, column.last);
        if (column.hasMissing() && column.worst < FrameState::Missing)
            column.worst = FrameState::Missing;
        frame = end;
    }
    return columns;
}

std::int32_t FrameScale::frameAt(int x, int width) const
{
    const int pixel = std::clamp(x, 0, std::max(width, 0));
    if (frameCount() <= width) {
        const auto index = static_cast<std::int64_t>(static_cast<float>(pixel) / pixelsPerFrame(width));
        return static_cast<std::int32_t>(std::min<std::int64_t>(m_start + index, m_end));
    }
    const std::int64_t pixels = std::max(width, 1);
    const std::int64_t start = m_start + pixel * frameCount() / pixels;
    const std::int64_t next = m_start + dividedUp((std::int64_t{pixel} + 1) * frameCount(), pixels);
    // A pixel stands for many frames: it gives one that can be picked, if there is any.
    const auto found = std::lower_bound(m_frames.begin(), m_frames.end(), start);
    const bool pickable = found != m_frames.end() && *found < next;
    return static_cast<std::int32_t>(std::min<std::int64_t>(pickable ? *found : start, m_end));
}

void FrameScale::setFrames(const std::set<long> &frames)
{
    m_frames.clear();
    m_frames.reserve(frames.size());
    for (const std::int64_t frame : frames) {
        if (kLowest <= frame && frame <= kHighest)
            m_frames.push_back(static_cast<std::int32_t>(frame));
    }
}

void FrameScale::setRange(std::int64_t start, std::int64_t end)
{
    m_start = static_cast<std::int32_t>(std::clamp(start, kLowest, kHighest));
    m_end = static_cast<std::int32_t>(std::clamp(end, kLowest, kHighest));
}
