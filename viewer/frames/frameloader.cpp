#include "frameloader.h"

#include "framebuilder.h"
#include "framedisplay.h"
#include "readahead.h"
#include "viewerlog.h"

#include <framework/filesystem.h>

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

using TImageLibrary::CTImage;
using TImageLibrary::IImageCore;

namespace {

using Image = FarmHelpers::ImagePointer;

/// Halvings that a display needs beyond those that are wanted.
std::int32_t halvingsToFit(const CTImage &image, std::int32_t wanted, std::int32_t longestSide)
{
    const std::int32_t side = std::max(image.GetWidth(), image.GetHeight()) >> wanted;
    std::int32_t halvings = 0;
    while (side >> halvings > std::max(longestSide, 1))
        ++halvings;
    return halvings;
}

/// Null when the smaller image cannot be made. No side becomes less than a pixel.
Image downsampled(Image image, std::int32_t halvings)
{
    const std::int32_t divisor = 1 << halvings;
    if (divisor == 1)
        return image;
    CTImage *smaller = nullptr;
    image->Resize(std::max(1, image->GetWidth() / divisor), std::max(1, image->GetHeight() / divisor),
                  smaller);
    return Image(smaller);
}

/// Brings boxes of the picture to the size that it is shown in, where they may reach into pixels that they share.
void scale(FarmHelpers::PartialLoad &partial, const PlaneSize &from, const PlaneSize &to)
{
    const auto scaled = [](std::int32_t &first, std::int32_t &length, std::int64_t full, std::int64_t shown) {
        const std::int64_t end = ((std::int64_t(first) + length) * shown + full - 1) / full;
        first = std::int32_t(first * shown / full);
        length = std::int32_t(end - first);
    };
    for (FarmHelpers::PartialLoad::Box &box : partial.unread) {
        scaled(box.x, box.width, from.width, to.width);
        scaled(box.y, box.height, from.height, to.height);
    }
}

LoadOutcome outcomeOf(const FarmHelpers::LoadFailure &failure)
{
    using FarmHelpers::LoadFailure;
    switch (failure.kind) {
    case LoadFailure::Missing:
        return LoadOutcome::NotFound;
    case LoadFailure::None:
    case LoadFailure::Damaged:
        return LoadOutcome::Corrupted;
    default:
        return LoadOutcome::Unreadable;
    }
}

std::unique_ptr<ImageFrame> buildFrame(const CTImage &image, const LayerList &layers,
                                       const std::string &entry)
{
    const CompositeLayer *composite = layers.composite(entry);
    return composite ? ::buildFrame(image, *composite) : ::buildFrame(image, LayerList::layerName(entry));
}

} // namespace

FrameLoader::FrameLoader(FrameCache &cache, FrameDisplay &display)
    : m_cache(cache)
    , m_display(display)
{ }

LoadResult FrameLoader::load(const LoadRequest &request)
{
    LoadResult result;
    result.stamp = FileStamp::of(request.path);
    ImageFrame *cached = m_cache.find(request.path);
    const bool isWanted = cached && (request.showIncomplete || !cached->partial.isIncomplete());
    const bool isCurrent = isWanted && (cached->stamp == result.stamp || !result.stamp.exists);
    if (isCurrent && showCached(*cached, result))
        return result;
    if (cached && !isCurrent)
        m_cache.remove(request.path); // also where the file is broken now
    if (!TFramework::TFileSystem::CheckFile(request.path)) {
        result.outcome = LoadOutcome::NotFound;
        return result;
    }
    if (loadAhead(request, result))
        return result;
    const char *format = IImageCore::Probe(request.path.c_str());
    if (!format) {
        m_display.showFrame(nullptr);
        result.outcome = failure(request, result);
        return result;
    }
    std::set<std::string> names;
    if (!IImageCore::LoadLayers(request.path.c_str(), format, names)) {
        result.outcome = failure(request, result);
        return result;
    }
    chooseLayer(request, names, result);
    result.outcome = loadLayer(request, format, result);
    result.decoded = result.shown();
    return result;
}

void FrameLoader::chooseLayer(const LoadRequest &request, const std::set<std::string> &names,
                              LoadResult &result)
{
    LayerList layers = listLayers(names);
    if (!m_lastLayers || layers != *m_lastLayers)
        m_lastLayers = std::make_shared<const LayerList>(std::move(layers));
    result.layers = m_lastLayers;
    result.layer = result.layers->resolved(request.layer);
}

bool FrameLoader::isAsRequested(const AheadImage &ahead, const LoadRequest &request, LoadResult &result)
{
    chooseLayer(request, ahead.names, result);
    return result.layers->members(result.layer) == ahead.asked;
}

/// False where there is no such image, or the file is another by now.
bool FrameLoader::loadAhead(const LoadRequest &request, LoadResult &result)
{
    auto ahead = m_ahead ? m_ahead->take(request.path) : std::nullopt;
    if (!ahead || ahead->stamp != result.stamp || !isAsRequested(*ahead, request, result))
        return false;
    m_incomplete.clear();
    result.outcome = showImage(std::move(ahead->image), request, ahead->format, result);
    result.decoded = result.shown();
    return true;
}

bool FrameLoader::keep(AheadImage &&ahead, const LoadRequest &request)
{
    LoadResult result;
    result.stamp = ahead.stamp;
    LoadRequest own = request;
    own.path = ahead.path;
    auto frame =
        isAsRequested(ahead, request, result) ? makeFrame(ahead.image, own, ahead.format, result) : nullptr;
    const auto memory = frame ? m_cache.makeRoom(frame->byteSize, request.isKept) : std::nullopt;
    if (!memory)
        return false;
    if (memory == FrameCache::Memory::Video)
        m_display.uploadTextures(*frame);
    ImageFrame &made = *frame;
    if (made.refusal != Refusal::None || !m_cache.insert(std::move(frame), ahead.path, *memory))
        return false;
    made.planes.clear(); // they go with the image
    return true;
}

/// A frame in main memory is uploaded anew, which may be refused this time: it is read again then, which fits it.
bool FrameLoader::showCached(ImageFrame &frame, LoadResult &result)
{
    m_display.showFrame(&frame);
    if (frame.refusal != Refusal::None) {
        m_cache.remove(std::string(frame.filePath));
        return false;
    }
    result.outcome = LoadOutcome::Shown;
    result.layers = frame.layers;
    result.layer = frame.layer;
    result.forcedHalvings = frame.forcedHalvings;
    result.partial = frame.partial;
    return true;
}

/// A file that was incomplete the last time is so again, most likely: its parts are asked for first.
Image FrameLoader::loadImage(const LoadRequest &request, const std::string &format, LoadResult &result)
{
    using FarmHelpers::LoadFailure;
    const char *path = request.path.c_str();
    const std::set<std::string> names = result.layers->members(result.layer);
    const auto loadPart = [&] {
        return Image(FarmHelpers::loadPartial<IImageCore>(
            path, format.c_str(), names, std::pair(request.progress, request.user), result.partial));
    };
    const bool isPartFirst = request.showIncomplete && m_incomplete == request.path;
    m_incomplete.clear();
    Image image = isPartFirst ? loadPart() : nullptr;
    if (!image)
        image.reset(IImageCore::Load(path, format.c_str(), names, request.progress, request.user));
    if (!image) {
        noteFailure(request, result);
        const bool isDamaged =
            result.failure.kind == LoadFailure::Damaged || result.failure.kind == LoadFailure::None;
        if (request.showIncomplete && isDamaged)
            image = loadPart();
    }
    if (result.partial.isIncomplete()) {
        m_incomplete = request.path;
        // What was written to just now may be written to again without another time or size.
        if (result.stamp.isFresh())
            result.stamp.modified = FileStamp::kUnsettled;
    }
    return image;
}

LoadOutcome FrameLoader::loadLayer(const LoadRequest &request, const std::string &format, LoadResult &result)
{
    Image image = loadImage(request, format, result);
    return image ? showImage(std::move(image), request, format, result) : outcomeOf(result.failure);
}

std::unique_ptr<ImageFrame> FrameLoader::makeFrame(Image &image, const LoadRequest &request,
                                                   const std::string &format, LoadResult &result)
{
    const std::int32_t wanted = std::clamp(request.downsampling, 0, LoadRequest::kMaxDownsampling);
    result.forcedHalvings = halvingsToFit(*image, wanted, m_display.longestSide());
    const PlaneSize full{image->GetWidth(), image->GetHeight()};
    image = downsampled(std::move(image), wanted + result.forcedHalvings);
    auto frame = image ? buildFrame(*image, *result.layers, result.layer) : nullptr;
    if (!frame)
        return nullptr;
    scale(result.partial, full, frame->planeSizes.front());

    frame->layers = result.layers;
    frame->layer = result.layer;
    frame->filePath = request.path;
    frame->stamp = result.stamp;
    frame->formatName = format;
    frame->premultiplied = frame->premultiplied && request.premultiplied;
    frame->forcedHalvings = result.forcedHalvings;
    frame->partial = result.partial;
    frame->display = &m_display;
    return frame;
}

LoadOutcome FrameLoader::showImage(Image image, const LoadRequest &request, const std::string &format,
                                   LoadResult &result)
{
    auto frame = makeFrame(image, request, format, result);
    if (!frame)
        return LoadOutcome::NothingShown;
    m_display.uploadTextures(*frame);
    result.refusal = frame->refusal;
    if (result.refusal != Refusal::None)
        return LoadOutcome::Refused;
    if (request.isKept)
        m_cache.makeRoom(frame->byteSize, request.isKept);
    ImageFrame &kept = m_cache.insert(std::move(frame), request.path);
    m_display.showFrame(&kept);
    kept.planes.clear(); // they go with the image
    return LoadOutcome::Shown;
}

LoadOutcome FrameLoader::failure(const LoadRequest &request, LoadResult &result)
{
    noteFailure(request, result);
    return outcomeOf(result.failure);
}

void FrameLoader::noteFailure(const LoadRequest &request, LoadResult &result)
{
    result.failure = FarmHelpers::lastFailure<IImageCore>();
    const std::string line = request.path + ": " + result.failure.reason;
    // A sequence that is played meets its broken frames again and again.
    if (m_logged.insert(line).second)
        qCWarning(lcViewer, "Cannot load %s", line.c_str());
}
