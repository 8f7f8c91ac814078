#pragma once

#include <viewer/frames/framestates.h>

#include <cstdint>
#include <set>
#include <vector>

/// One column of a ruler: a single frame, or several where there are more frames than pixels.
struct FrameColumn {
    int x = 0;
    std::int32_t first = 0;
    std::int32_t last = 0;
    std::int64_t existing = 0; ///< number of frames that the sequence has of these
    std::int32_t firstExisting = 0; ///< where `existing` is above 0

    FrameState worst = FrameState::Whole; ///< of these, as far as is known

    bool hasMissing() const { return existing <= std::int64_t{last} - first; }
};

/// Places the frames of a sequence on a ruler that shows a range of them; the timeline and each strip have one. Frames
/// and ranges of any size cost as much as the ruler has pixels.
class FrameScale final {
public:
    /// In ascending order.
    const std::vector<std::int32_t> &frames() const { return m_frames; }
    bool contains(std::int64_t frame) const;
    /// Counts the frames of the range, existing or not; at least 1.
    std::int64_t frameCount() const;
    bool inRange(std::int32_t frame) const { return m_start <= frame && frame <= m_end; }

    /// Gives the left edge of a frame in the range, in pixels.
    int position(std::int32_t frame, int width) const;
    /// Gives the whole pixels of a frame, at least 1.
    int columnWidth(int width) const;
    /// Lists the columns from left to right.
    std::vector<FrameColumn> columns(int width) const;
    /// Finds the frame under a pixel; pixels outside the ruler count as its ends.
    std::int32_t frameAt(int x, int width) const;

    void setStates(const FrameStates &states) { m_states = states; }
    /// Leaves out numbers beyond 32 bits.
    void setFrames(const std::set<long> &frames);
    void setRange(std::int64_t start, std::int64_t end);

private:
    float pixelsPerFrame(int width) const;

    std::vector<std::int32_t> m_frames;
    FrameStates m_states;
    std::int32_t m_start = 1;
    std::int32_t m_end = 1;
};
