#pragma once

#include "compositelayers.h"
#include "filestamp.h"
#include "framecache.h"
#include "imageframe.h"

#include <helpers/imageextras.h>
#include <helpers/imagepointer.h>
#include <image_library/iimagecore.h>

#include <cstdint>
#include <memory>
#include <set>
#include <string>

class ReadAhead;
struct AheadImage;

/// Asks for one frame.
struct LoadRequest {
    std::string path;
    std::string layer; ///< the layer selector's entry; empty when there is none yet
    bool premultiplied = true; ///< off: colours count as straight, whatever the file says
    std::int32_t downsampling = 0; ///< halvings of width and height, at most LoadRequest::kMaxDownsampling
    TImageLibrary::TLoadProgress progress = nullptr;
    void *user = nullptr; ///< handed to `progress`
    bool showIncomplete = false; ///< what there is of a file that is no whole one
    FrameCache::Keep isKept = nullptr; ///< frames that others make room before

    static constexpr std::int32_t kMaxDownsampling = 4;
};

enum class LoadOutcome {
    Shown,
    NotFound,
    Corrupted,
    Unreadable, ///< for a reason that is not the file's fault
    NothingShown, ///< the file is sound, but holds the layer in no form that can be shown
    Refused, ///< the file is sound, but the display cannot show it
};

/// What a load came to.
struct LoadResult {
    LoadOutcome outcome = LoadOutcome::NothingShown;
    bool decoded = false; ///< the frame was read from its file, not taken from the cache
    std::shared_ptr<const LayerList> layers; ///< of the frame; null when they could not be listed
    std::string layer; ///< the entry of `layers` that was loaded
    FileStamp stamp; ///< of the file, before it was read
    FarmHelpers::LoadFailure failure; ///< why the file does not load, where the image library tells
    Refusal refusal = Refusal::None; ///< why, where the outcome is Refused
    std::int32_t forcedHalvings = 0; ///< as in ImageFrame
    FarmHelpers::PartialLoad partial; ///< as in ImageFrame

    bool shown() const { return outcome == LoadOutcome::Shown; }
    /// Another look at the file may find more of it.
    bool isToBeWatched() const { return failed() || partial.isIncomplete(); }
    /// The file is missing or broken, which another look at it may find mended.
    bool failed() const
    {
        return outcome == LoadOutcome::NotFound || outcome == LoadOutcome::Corrupted
            || outcome == LoadOutcome::Unreadable;
    }
};

/// Brings one frame on the display, from the cache or from its file through the image library; blocks meanwhile. A frame
/// whose file was written since is read again. A load
/// that fails leaves the cache as it was.
class FrameLoader final {
public:
    /// Both must outlive the loader.
    FrameLoader(FrameCache &cache, FrameDisplay &display);
    /// Has images that were read ahead, or are about to be, taken from there; it outlives the loader.
    void takeFrom(ReadAhead &ahead) { m_ahead = &ahead; }

    LoadResult load(const LoadRequest &request);
    /// Puts an image that was read ahead into the cache, as the request, whose path does not matter, would load it. False
    /// where it has no room beside what is kept, or is not what the request would load.
    bool keep(AheadImage &&ahead, const LoadRequest &request);

private:
    bool showCached(ImageFrame &frame, LoadResult &result);
    FarmHelpers::ImagePointer loadImage(const LoadRequest &request, const std::string &format,
                                        LoadResult &result);
    LoadOutcome loadLayer(const LoadRequest &request, const std::string &format, LoadResult &result);
    bool loadAhead(const LoadRequest &request, LoadResult &result);
    void chooseLayer(const LoadRequest &request, const std::set<std::string> &names, LoadResult &result);
    bool isAsRequested(const AheadImage &ahead, const LoadRequest &request, LoadResult &result);
    /// A frame on the image, which takes another size; null when nothing of it can be shown.
    std::unique_ptr<ImageFrame> makeFrame(FarmHelpers::ImagePointer &image, const LoadRequest &request,
                                          const std::string &format, LoadResult &result);
    LoadOutcome showImage(FarmHelpers::ImagePointer image, const LoadRequest &request,
                          const std::string &format, LoadResult &result);
    /// Tells why in the result, and once for each reason in the log.
    LoadOutcome failure(const LoadRequest &request, LoadResult &result);
    void noteFailure(const LoadRequest &request, LoadResult &result);

    FrameCache &m_cache;
    FrameDisplay &m_display;
    ReadAhead *m_ahead = nullptr;
    std::shared_ptr<const LayerList> m_lastLayers; // most frames of a sequence have the same
    std::set<std::string> m_logged;
    std::string m_incomplete; // the file that was loaded last, where it was no whole one
};
