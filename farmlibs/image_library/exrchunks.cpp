#include "exrchunks.h"

#include "imageerror.h"

#include <ImfInputPart.h>

#include <zlib.h>

#include <algorithm>
#include <span>
#include <string>
#include <vector>

namespace TImageLibrary {

namespace {

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

bool takesShortChunks(const ExrFile &file, int part)
{
    const Imf::Compression compression = file.header(part).compression();
    return compression == Imf::RLE_COMPRESSION || compression == Imf::ZIPS_COMPRESSION
        || compression == Imf::ZIP_COMPRESSION;
}

void checkChunk(const Imf::Header &header, const Imath::Box2i &box, std::span<const char> packed)
{
    const std::size_t expected = ExrLayout::unpackedSize(header.channels(), box);
    const bool runs = header.compression() == Imf::RLE_COMPRESSION;
    // What would not shrink is stored as it is.
    if (packed.size() != expected && !(runs ? runsMake(packed, expected) : inflatesTo(packed, expected)))
        throw ImageError(TLoadFailure::Damaged, "chunk of another size at line " + std::to_string(box.min.y));
}

void checkLastChunk(ExrFile &file, int part)
{
    if (file.isTiled(part) || !takesShortChunks(file, part))
        return;
    const ExrLayout layout(file, part);
    const Imath::Box2i box = layout.box(layout.fullCount() - 1);
    const char *data = nullptr;
    int size = 0;
    Imf::InputPart(file.parts(), part).rawPixelData(box.min.y, data, size);
    checkChunk(file.header(part), box, {data, std::size_t(std::max(size, 0))});
}

} // namespace TImageLibrary
