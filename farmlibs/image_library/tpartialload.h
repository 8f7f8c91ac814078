#pragma once

#include <cstdint>
#include <vector>

namespace TImageLibrary {

/// Hears how far a load has come, from 0 to 1, with the pointer that it was handed.
using TLoadProgress = void (*)(float fraction, void *user);

/// Tells what was read of a file that is being written, was cut short or is damaged.
struct TPartialLoad {
    TLoadProgress progress = nullptr; ///< as in IImageCore::Load(), set by who asks; so is the next
    void *user = nullptr;

    /// In pixels of the picture, from its top left corner.
    struct Box {
        std::int32_t x = 0;
        std::int32_t y = 0;
        std::int32_t width = 0;
        std::int32_t height = 0;

        bool operator==(const Box &other) const = default;
    };

    std::int64_t chunks = 0; ///< that the layers should have
    std::int64_t unwritten = 0; ///< of these the file has not, or not to their ends
    std::int64_t damaged = 0; ///< others that could not be read
    bool isWhole = false; ///< every chunk was read, and the file's own table finds them all
    std::vector<Box> unread; ///< where a layer is clear for want of a chunk
};

} // namespace TImageLibrary
