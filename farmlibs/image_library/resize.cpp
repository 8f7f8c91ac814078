#include "resize.h"

#include "ctimagechannel.h"

#include <OpenImageIO/imagebufalgo.h>

#include <stdexcept>

namespace TImageLibrary {

namespace {

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

/// A view on a plane. OpenImageIO takes no pointer to constant pixels, though it only reads a source.
OIIO::ImageBuf wrapped(const TPlaneFormat &format, const void *data)
{
    const OIIO::ImageSpec spec(format.width, format.height, format.samples, sampleType(format));
    return OIIO::ImageBuf(spec, const_cast<void *>(data));
}

} // namespace

void resizeChannel(const CTImageChannel &source, CTImageChannel &target)
{
    OIIO::ImageBuf pixels = wrapped(target.format(), target.data());
    if (!OIIO::ImageBufAlgo::resize(pixels, wrapped(source.format(), source.GetChannelData()), "box"))
        throw std::runtime_error(pixels.geterror());
}

} // namespace TImageLibrary
