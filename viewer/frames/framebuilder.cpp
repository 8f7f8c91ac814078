#include "framebuilder.h"

#include "sampleformat.h"

#include <helpers/imageextras.h>

#include <limits>

using TImageLibrary::CTImage;
using TImageLibrary::CTImageChannel;
using TImageLibrary::CTImageLayer;

namespace {

bool addPlane(ImageFrame &frame, const CTImageChannel &channel)
{
    const std::int32_t width = channel.GetChannelWidth();
    const std::int32_t height = channel.GetChannelHeight();
    const auto bytes = planeBytes(width, height, frame.components, bytesPerSample(frame.pixelType));
    if (!bytes || !channel.GetChannelData()
        || *bytes > std::numeric_limits<std::uint64_t>::max() - frame.byteSize)
        return false;
    frame.planeSizes.push_back({width, height});
    frame.planes.push_back(channel.GetChannelData());
    frame.textureCount += 1;
    frame.byteSize += *bytes;
    return true;
}

std::string layoutOf(const CTImageChannel &channel)
{
    if (!channel.GetChannelName().empty())
        return channel.GetChannelName();
    switch (FarmHelpers::storedSamples(channel).samples) {
    case 1:
        return "Luminance";
    case 2:
        return "Luminance,A";
    case 3:
        return "RGB";
    default:
        return "RGBA";
    }
}

const CTImageChannel *channelOf(const CTImageLayer *layer)
{
    return layer ? layer->GetDefaultChannel() : nullptr;
}

std::uint32_t pixelTypeOf(const CTImageChannel *channel)
{
    return channel ? samplePixelType(channel->GetChannelBitDepth(), channel->GetChannelBitType()) : 0;
}

void setStored(ImageFrame &frame, const CTImageChannel &channel)
{
    const FarmHelpers::StoredSamples stored = FarmHelpers::storedSamples(channel);
    frame.storedComponents = stored.samples;
    frame.storedPixelType = samplePixelType(stored.depth, stored.type);
}

} // namespace

std::unique_ptr<ImageFrame> buildFrame(const CTImage &image, const CompositeLayer &composite)
{
    auto frame = std::make_unique<ImageFrame>();
    frame->channelLayout = composite.layout;
    frame->components = 1;
    frame->pixelType = pixelTypeOf(channelOf(image.GetDefaultLayer()));
    frame->isYCbCr = composite.isYCbCr;
    frame->yFlipped = image.GetIsYFlipped();
    frame->premultiplied = image.GetIsPremultiplied();
    frame->isDeep = FarmHelpers::isDeep(image);
    for (const std::string &member : composite.members) {
        const CTImageChannel *channel = channelOf(image.GetLayer(member.c_str()));
        // A plane of another type would be read with the wrong size of samples, past its end.
        if (!channel || channel->GetChannelBitSamples() != 1 || frame->pixelType == 0
            || pixelTypeOf(channel) != frame->pixelType || !addPlane(*frame, *channel))
            return nullptr;
        frame->internalFormat = multiTextureFormat(channel->GetChannelBitDepth());
        setStored(*frame, *channel);
    }
    return frame;
}

std::unique_ptr<ImageFrame> buildFrame(const CTImage &image, const std::string &layerName)
{
    const CTImageLayer *layer = image.GetLayer(layerName.c_str());
    if (!layer)
        layer = image.GetDefaultLayer();
    const CTImageChannel *channel = layer ? layer->GetChannel(layerName.c_str()) : nullptr;
    if (!channel)
        channel = channelOf(layer);
    if (!channel)
        return nullptr;

    auto frame = std::make_unique<ImageFrame>();
    const std::string &name = channel->GetChannelName();
    frame->channelLayout = layoutOf(*channel);
    frame->components = channel->GetChannelBitSamples();
    setStored(*frame, *channel);
    frame->pixelType = pixelTypeOf(channel);
    frame->internalFormat =
        singleTextureFormat(channel->GetChannelBitDepth(), channel->GetChannelBitType(), frame->components);
    frame->isYCbCr = name == "Y" || name == "YCbCr" || name == "YCbCrA";
    frame->yFlipped = image.GetIsYFlipped();
    frame->isDeep = FarmHelpers::isDeep(image);
    if (frame->internalFormat == 0 || !addPlane(*frame, *channel))
        return nullptr;
    return frame;
}
