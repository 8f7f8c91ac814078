#include "exrchunks.h"

#include "exrplan.h"
#include "imageerror.h"

#include <ImathBox.h>
#include <ImathFun.h>
#include <ImfChannelList.h>
#include <ImfInputPart.h>

#include <zlib.h>

#include <algorithm>
#include <span>
#include <string>
#include <vector>

namespace TImageLibrary {

namespace {

std::size_t sampleBytes(Imf::PixelType type)
{
    return type == Imf::HALF ? 2 : 4;
}

/// Bytes of all channels within a box of pixels.
std::size_t unpackedSize(const Imf::ChannelList &channels, const Imath::Box2i &box)
{
    std::size_t bytes = 0;
    for (auto channel = channels.begin(); channel != channels.end(); ++channel) {
        const Imf::Channel &details = channel.channel();
        const ExrSpan columns = ExrSpan::within(box.min.x, box.max.x, details.xSampling);
        const ExrSpan rows = ExrSpan::within(box.min.y, box.max.y, details.ySampling);
        bytes += std::size_t(columns.count) * std::size_t(rows.count) * sampleBytes(details.type);
    }
    return bytes;
}

bool inflatesTo(std::span<const char> bytes, std::size_t size)
{
    std::vector<Bytef> unpacked(size);
    auto length = uLongf(size);
    return uncompress(unpacked.data(), &length, reinterpret_cast<const Bytef *>(bytes.data()),
                      uLong(bytes.size()))
        == Z_OK
        && length == size;
}

/// A run is a count and a byte, or a negative count and so many bytes.
bool runsMake(std::span<const char> bytes, std::size_t size)
{
    std::size_t made = 0;
    for (std::size_t i = 0; i < bytes.size();) {
        const int byte = static_cast<unsigned char>(bytes[i]);
        const int count = byte < 128 ? byte : byte - 256;
        made += count < 0 ? std::size_t(-count) : std::size_t(count) + 1;
        i += count < 0 ? std::size_t(-count) + 1 : 2;
    }
    return made == size;
}

} // namespace

void checkLastChunk(ExrFile &file, int part)
{
    const Imf::Compression compression = file.header(part).compression();
    const bool deflates = compression == Imf::ZIP_COMPRESSION || compression == Imf::ZIPS_COMPRESSION;
    const bool runs = compression == Imf::RLE_COMPRESSION;
    if (file.isTiled(part) || !(deflates || runs))
        return;
    Imath::Box2i box = file.header(part).dataWindow();
    box.min.y = box.max.y - (box.max.y - box.min.y) % file.chunkRows(part);
    const std::size_t expected = unpackedSize(file.header(part).channels(), box);
    const char *data = nullptr;
    int size = 0;
    Imf::InputPart(file.parts(), part).rawPixelData(box.min.y, data, size);
    const std::span<const char> bytes(data, std::size_t(std::max(size, 0)));
    // What would not shrink is stored as it is.
    if (bytes.size() != expected && !(deflates ? inflatesTo(bytes, expected) : runsMake(bytes, expected)))
        throw ImageError(TLoadFailure::Damaged, "chunk of another size at line " + std::to_string(box.min.y));
}

} // namespace TImageLibrary
