#pragma once

#include "compositelayers.h"
#include "filestamp.h"

#include <image_library/iimagecore.h>

#include <cstdint>
#include <optional>
#include <string>

class FrameCache;
class FrameDisplay;

/// Asks for one frame.
struct LoadRequest {
    std::string path;
    std::string layer; ///< the layer selector's entry; empty when there is none yet
    bool fresh = false; ///< the first frame of a frame set: the selector is to be filled anew
    bool premultiplied = true; ///< off: colours count as straight, whatever the file says
    std::int32_t downsampling = 0; ///< halvings of width and height, at most LoadRequest::kMaxDownsampling
    TImageLibrary::TLoadProgress progress = nullptr;
    void *user = nullptr; ///< handed to `progress`

    static constexpr std::int32_t kMaxDownsampling = 4;
};

enum class LoadOutcome {
    Shown,
    NotFound,
    Corrupted,
    NothingShown, ///< the file is sound, but holds the layer in no form that can be shown
};

/// What a load came to.
struct LoadResult {
    LoadOutcome outcome = LoadOutcome::NothingShown;
    std::optional<LayerList>
        layers; ///< set when the file's layers were listed, which a cached frame does not need
    std::string layer; ///< the entry of `layers` that was loaded
    FileStamp stamp; ///< of the file, before it was read

    bool shown() const { return outcome == LoadOutcome::Shown; }
    /// The file is missing or broken, which another look at it may find mended.
    bool failed() const { return outcome == LoadOutcome::NotFound || outcome == LoadOutcome::Corrupted; }
};

/// Brings one frame on the display, from the cache or from its file through the image library; blocks meanwhile. A frame
/// whose file was written since is read again. A load
/// that fails leaves the cache as it was.
class FrameLoader final {
public:
    /// Both must outlive the loader.
    FrameLoader(FrameCache &cache, FrameDisplay &display);

    LoadResult load(const LoadRequest &request);

private:
    LoadOutcome loadLayer(const LoadRequest &request, const std::string &format, const LoadResult &result);

    FrameCache &m_cache;
    FrameDisplay &m_display;
};
