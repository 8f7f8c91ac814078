#include "planes.h"

#include <OpenImageIO/imagebufalgo.h>
#include <half.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace TImageLibrary {

namespace {

/// A view on a plane. OpenImageIO takes no pointer to constant pixels, though it only reads a source.
OIIO::ImageBuf wrapped(const CTImageChannel &channel)
{
    const TPlaneFormat &format = channel.format();
    const OIIO::ImageSpec spec(format.width, format.height, format.samples, sampleType(format));
    return OIIO::ImageBuf(spec, const_cast<void *>(channel.GetChannelData()));
}

void require(bool done, const OIIO::ImageBuf &pixels)
{
    if (!done)
        throw std::runtime_error(pixels.geterror());
}

OIIO::ROI samples(const OIIO::ImageBuf &pixels, int begin, int end)
{
    OIIO::ROI region = pixels.roi();
    region.chbegin = begin;
    region.chend = end;
    return region;
}

/// Turns a stored picture upright. OpenImageIO's own function for this takes the orientations 5 and 7 for each other.
bool turn(OIIO::ImageBuf &upright, const OIIO::ImageBuf &stored, int orientation)
{
    switch (orientation) {
    case 2: // mirrored
        return OIIO::ImageBufAlgo::flop(upright, stored);
    case 3: // upside down
        return OIIO::ImageBufAlgo::rotate180(upright, stored);
    case 4: // mirrored, upside down
        return OIIO::ImageBufAlgo::flip(upright, stored);
    case 5: // rows are columns
        return OIIO::ImageBufAlgo::transpose(upright, stored);
    case 6: // turned to the left
        return OIIO::ImageBufAlgo::rotate90(upright, stored);
    default: // 8, turned to the right
        return OIIO::ImageBufAlgo::rotate270(upright, stored);
    }
}

/// Spreads in place: OpenImageIO's functions would need a second picture.
template <typename Sample>
void spreadGreyOf(CTImageChannel &channel)
{
    auto *pixel = reinterpret_cast<Sample *>(channel.data());
    const Sample *end = pixel + channel.format().byteSize() / sizeof(Sample);
    for (; pixel != end; pixel += 4) {
        pixel[3] = pixel[1];
        pixel[1] = pixel[2] = pixel[0];
    }
}

template <typename Sample>
Sample divided(Sample color, Sample alpha)
{
    if constexpr (std::is_integral_v<Sample>) {
        constexpr std::uint32_t kFull = std::numeric_limits<Sample>::max();
        return Sample(std::min((color * kFull + alpha / 2U) / alpha, kFull));
    } else {
        return Sample(float(color) / float(alpha));
    }
}

template <typename Sample>
void divideByAlphaOf(CTImageChannel &channel)
{
    auto *pixel = reinterpret_cast<Sample *>(channel.data());
    const Sample *end = pixel + channel.format().byteSize() / sizeof(Sample);
    const auto opaque = std::is_integral_v<Sample> ? std::numeric_limits<Sample>::max() : Sample(1);
    for (; pixel != end; pixel += 4) {
        if (pixel[3] == Sample(0) || pixel[3] == opaque)
            continue;
        for (int color = 0; color < 3; ++color)
            pixel[color] = divided(pixel[color], pixel[3]);
    }
}

} // namespace

OIIO::TypeDesc sampleType(const TPlaneFormat &format)
{
    switch (format.depth) {
    case 1:
        return OIIO::TypeDesc::UINT8;
    case 2:
        return format.isFloat ? OIIO::TypeDesc::HALF : OIIO::TypeDesc::UINT16;
    default:
        return OIIO::TypeDesc::FLOAT;
    }
}

void resizeChannel(const CTImageChannel &source, CTImageChannel &target)
{
    OIIO::ImageBuf pixels = wrapped(target);
    require(OIIO::ImageBufAlgo::resize(pixels, wrapped(source), "box"), pixels);
}

bool swapsSides(int orientation)
{
    return orientation >= 5 && orientation <= 8;
}

CTImageChannel upright(CTImageChannel channel, int orientation)
{
    if (orientation < 2 || orientation > 8)
        return channel;
    if (orientation == 7) // rows are columns, upside down
        return upright(upright(std::move(channel), 3), 5);
    TPlaneFormat format = channel.format();
    if (swapsSides(orientation))
        std::swap(format.width, format.height);
    CTImageChannel result(channel.GetChannelName(), format, CTImageChannel::Fill::None);
    OIIO::ImageBuf turned = wrapped(result);
    require(turn(turned, wrapped(channel), orientation), turned);
    return result;
}

CTImageChannel sampleOf(const CTImageChannel &whole, int index, const std::string &name)
{
    TPlaneFormat format = whole.format();
    format.samples = format.stored.samples = 1;
    CTImageChannel plane(name, format, CTImageChannel::Fill::None);
    const OIIO::ImageBuf pixels = wrapped(whole);
    require(pixels.get_pixels(samples(pixels, index, index + 1), sampleType(format), plane.data()), pixels);
    return plane;
}

void spreadGrey(CTImageChannel &channel)
{
    switch (channel.format().depth) {
    case 1:
        return spreadGreyOf<std::uint8_t>(channel);
    case 2:
        return spreadGreyOf<std::uint16_t>(channel);
    default:
        return spreadGreyOf<float>(channel);
    }
}

void makeOpaque(CTImageChannel &channel)
{
    OIIO::ImageBuf pixels = wrapped(channel);
    require(OIIO::ImageBufAlgo::fill(pixels, {1.0F, 1.0F, 1.0F, 1.0F}, samples(pixels, 3, 4)), pixels);
}

void divideByAlpha(CTImageChannel &channel)
{
    const TPlaneFormat &format = channel.format();
    if (format.depth == 1)
        divideByAlphaOf<std::uint8_t>(channel);
    else if (format.depth == 4)
        divideByAlphaOf<float>(channel);
    else if (format.isFloat)
        divideByAlphaOf<half>(channel);
    else
        divideByAlphaOf<std::uint16_t>(channel);
}

} // namespace TImageLibrary
