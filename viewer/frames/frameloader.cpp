#include "frameloader.h"

#include "framebuilder.h"
#include "framecache.h"
#include "framedisplay.h"
#include "viewerlog.h"

#include <framework/filesystem.h>
#include <helpers/imagepointer.h>

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
    const bool isCurrent = cached && (cached->stamp == result.stamp || !result.stamp.exists);
    if (isCurrent && showCached(*cached, result))
        return result;
    if (cached && !isCurrent)
        m_cache.remove(request.path); // also where the file is broken now
    if (!TFramework::TFileSystem::CheckFile(request.path)) {
        result.outcome = LoadOutcome::NotFound;
        return result;
    }
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
    LayerList layers = listLayers(names);
    if (!m_lastLayers || layers != *m_lastLayers)
        m_lastLayers = std::make_shared<const LayerList>(std::move(layers));
    result.layers = m_lastLayers;
    result.layer = result.layers->resolved(request.layer);
    result.outcome = loadLayer(request, format, result);
    result.decoded = result.shown();
    return result;
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
    return true;
}

LoadOutcome FrameLoader::loadLayer(const LoadRequest &request, const std::string &format, LoadResult &result)
{
    Image image(IImageCore::Load(request.path.c_str(), format.c_str(), result.layers->members(result.layer),
                                 request.progress, request.user));
    if (!image)
        return failure(request, result);
    const std::int32_t wanted = std::clamp(request.downsampling, 0, LoadRequest::kMaxDownsampling);
    result.forcedHalvings = halvingsToFit(*image, wanted, m_display.longestSide());
    image = downsampled(std::move(image), wanted + result.forcedHalvings);
    auto frame = image ? buildFrame(*image, *result.layers, result.layer) : nullptr;
    if (!frame)
        return LoadOutcome::NothingShown;

    frame->layers = result.layers;
    frame->layer = result.layer;
    frame->filePath = request.path;
    frame->stamp = result.stamp;
    frame->formatName = format;
    frame->premultiplied = frame->premultiplied && request.premultiplied;
    frame->forcedHalvings = result.forcedHalvings;
    frame->display = &m_display;
    m_display.uploadTextures(*frame);
    result.refusal = frame->refusal;
    if (result.refusal != Refusal::None)
        return LoadOutcome::Refused;
    ImageFrame &kept = m_cache.insert(std::move(frame), request.path);
    m_display.showFrame(&kept);
    kept.planes.clear(); // they go with the image
    return LoadOutcome::Shown;
}

LoadOutcome FrameLoader::failure(const LoadRequest &request, LoadResult &result)
{
    using FarmHelpers::LoadFailure;
    result.failure = FarmHelpers::lastFailure<IImageCore>();
    const std::string line = request.path + ": " + result.failure.reason;
    // A sequence that is played meets its broken frames again and again.
    if (m_logged.insert(line).second)
        qCWarning(lcViewer, "Cannot load %s", line.c_str());
    switch (result.failure.kind) {
    case LoadFailure::Missing:
        return LoadOutcome::NotFound;
    case LoadFailure::None:
    case LoadFailure::Damaged:
        return LoadOutcome::Corrupted;
    default:
        return LoadOutcome::Unreadable;
    }
}
