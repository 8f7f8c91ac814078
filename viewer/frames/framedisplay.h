#pragma once

#include <cstdint>
#include <limits>

struct ImageFrame;

/// What shows frames and owns the GL context of their textures: the picture widget. It outlives the cache and every frame
/// that names it.
class FrameDisplay {
public:
    virtual ~FrameDisplay() = default;

    /// Longest side of a picture that can be shown, in pixels.
    virtual std::int32_t longestSide() { return std::numeric_limits<std::int32_t>::max(); }
    /// Makes a texture of each plane and notes their names in the frame, which has none; or notes there why it makes none.
    virtual void uploadTextures(ImageFrame &frame) = 0;
    /// Makes the context current, deletes every texture whose name is not 0, and empties the frame's names.
    virtual void deleteTextures(ImageFrame &frame) = 0;
    /// Takes another frame (retaining it and releasing the one before) and repaints; null shows none.
    virtual void showFrame(ImageFrame *frame) = 0;
    /// The frame is about to be destroyed: a display that shows it lets go of it now.
    virtual void frameDies(const ImageFrame &frame) = 0;
};
