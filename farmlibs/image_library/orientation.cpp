#include "orientation.h"

#include <cstring>
#include <utility>

namespace TImageLibrary {

namespace {

/// Where the walk over a stored picture begins, and how far apart, in pixels, neighbours of the upright one lie in it.
struct Walk {
    std::ptrdiff_t start;
    std::ptrdiff_t right;
    std::ptrdiff_t down;
};

Walk walkOver(std::ptrdiff_t width, std::ptrdiff_t height, int orientation)
{
    const std::ptrdiff_t lastColumn = width - 1;
    const std::ptrdiff_t lastRow = (height - 1) * width;
    switch (orientation) {
    case 2: // mirrored
        return {lastColumn, -1, width};
    case 3: // upside down
        return {lastRow + lastColumn, -1, -width};
    case 4: // mirrored, upside down
        return {lastRow, 1, -width};
    case 5: // rows are columns
        return {0, width, 1};
    case 6: // turned to the left
        return {lastRow, -width, 1};
    case 7: // rows are columns, upside down
        return {lastRow + lastColumn, -width, -1};
    case 8: // turned to the right
        return {lastColumn, width, -1};
    default:
        return {0, 1, width};
    }
}

} // namespace

bool swapsSides(int orientation)
{
    return orientation >= 5 && orientation <= 8;
}

CTImageChannel upright(CTImageChannel channel, int orientation)
{
    if (orientation < 2 || orientation > 8)
        return channel;
    TPlaneFormat format = channel.format();
    const Walk walk = walkOver(format.width, format.height, orientation);
    if (swapsSides(orientation))
        std::swap(format.width, format.height);
    CTImageChannel result(channel.GetChannelName(), format, CTImageChannel::Fill::None);
    const std::size_t bytes = format.pixelBytes();
    std::byte *to = result.data();
    for (std::ptrdiff_t y = 0; y < format.height; ++y) {
        std::ptrdiff_t pixel = walk.start + y * walk.down;
        for (std::ptrdiff_t x = 0; x < format.width; ++x, pixel += walk.right, to += bytes)
            std::memcpy(to, channel.data() + std::size_t(pixel) * bytes, bytes);
    }
    return result;
}

} // namespace TImageLibrary
