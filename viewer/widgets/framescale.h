#pragma once

#include <cstdint>
#include <set>
#include <vector>

/// The frames that share one column of a ruler: a single one, or several where there are more frames than pixels.
struct FrameColumn {
    int x = 0;
    std::int32_t first = 0;
    std::int32_t last = 0;
    std::int64_t existing = 0; ///< how many of them the sequence has
    std::int32_t firstExisting = 0; ///< of use where there is one

    bool hasMissing() const { return existing <= std::int64_t{last} - first; }
};

/// The frames of a sequence and the range on show, and where they stand on a ruler of some width. The timeline and the
/// strips beside it each have one. Frames and ranges of any size cost as much as the ruler has pixels.
class FrameScale final {
public:
    /// In order.
    const std::vector<std::int32_t> &frames() const { return m_frames; }
    bool contains(std::int64_t frame) const;
    /// Of the range, whether the sequence has them or not; at least 1.
    std::int64_t frameCount() const;
    bool inRange(std::int32_t frame) const { return m_start <= frame && frame <= m_end; }

    /// Left edge of a frame in the range, in pixels.
    int position(std::int32_t frame, int width) const;
    /// Whole pixels of a frame, at least 1.
    int columnWidth(int width) const;
    /// From left to right.
    std::vector<FrameColumn> columns(int width) const;
    /// The frame under a pixel; one left of the ruler counts as its first.
    std::int32_t frameAt(int x, int width) const;

    /// Numbers beyond 32 bits are no frames.
    void setFrames(const std::set<long> &frames);
    void setRange(std::int64_t start, std::int64_t end);

private:
    float pixelsPerFrame(int width) const;

    std::vector<std::int32_t> m_frames;
    std::int32_t m_start = 1;
    std::int32_t m_end = 1;
};
