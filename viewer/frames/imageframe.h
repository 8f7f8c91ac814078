#pragma once

#include "filestamp.h"

#include <helpers/imageextras.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class FrameDisplay;
struct LayerList;

/// Width and height in pixels.
struct PlaneSize {
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const PlaneSize &other) const = default;
};

/// Says why a display cannot show a frame.
enum class Refusal {
    None,
    NoContext, ///< OpenGL does not come up
    NoShaders, ///< what draws pictures does not build
    NoMemory,
    TooLarge,
    UnknownSamples, ///< of a kind that this OpenGL does not take
    NoSamples, ///< planes that are not there, or shorter than their size says
};

/// One decoded frame: its planes, what GL makes of them, and who shows it. Built by buildFrame(), owned by the frame
/// cache, which also deletes the textures. Plane lists have one entry per texture; GL enums are plain numbers.
struct ImageFrame {
    std::vector<PlaneSize> planeSizes;
    std::string channelLayout; ///< "R,G,B,A", "R,G,B", "Y,Cb,Cr,A", "Y,Cb,Cr", or the one channel's name
    std::shared_ptr<const LayerList> layers; ///< of the file
    std::string layer; ///< the one of them that the frame was made of
    std::string filePath;
    FileStamp stamp; ///< of the file that was read
    std::string formatName; ///< as the image library's probe calls it, for example "exr"
    std::int32_t textureCount = 0; ///< 1, 3 or 4
    std::vector<std::uint32_t> textureNames; ///< empty unless uploaded
    std::uint32_t textureOwner = 0; ///< the display's context that has them; names of another mean nothing
    std::uint64_t uploadNumber = 0; ///< another for each upload of any frame
    Refusal refusal = Refusal::None; ///< what came of the last upload
    std::vector<const void *> planes; ///< into the library's image; empty once that is released
    std::vector<std::vector<std::byte>>
        ownedPlanes; ///< copies of the planes, of a frame kept in main memory only
    std::uint32_t internalFormat = 0;
    std::int32_t components = 0; ///< samples per texel in one plane
    std::uint32_t pixelType = 0; ///< of one sample
    std::int32_t storedComponents = 0; ///< of the file, which may hold what no texture does
    std::uint32_t storedPixelType = 0;
    bool inVideoMemory = true; ///< counts against the video-memory budget and keeps its textures
    bool isYCbCr = false;
    bool isDeep = false; ///< flattened from any number of samples in each pixel
    std::uint64_t byteSize = 0; ///< of all planes
    FarmHelpers::PartialLoad partial; ///< what of the file was there, where not all was
    std::int32_t forcedHalvings = 0; ///< of width and height, for a display that takes no larger picture
    bool yFlipped = false;
    bool premultiplied = false;
    std::int32_t displayCount = 0;
    FrameDisplay *display = nullptr; ///< whose GL context owns the textures; not owned

    /// Pixels of a plane, its own copy where there is one; null when neither is there any more.
    const void *planeData(std::size_t index) const;
    /// Bytes of a plane, 0 past the last.
    std::uint64_t planeBytes(std::size_t index) const;

    /// The display is about to show the frame: one that has no lasting textures gets some.
    void retain();
    /// The display has stopped showing the frame: textures that do not last go.
    void release();
    void deleteTextures();
};
