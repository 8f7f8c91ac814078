#include "exrchunks.h"

#include "imageerror.h"

#include <ImathBox.h>
#include <ImathFun.h>
#include <ImfChannelList.h>
#include <ImfInputPart.h>

#include <zlib.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

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

bool hasPlainLines(const ExrFile &file, int part, const std::vector<ExrTarget *> &targets)
{
    const Imf::Header &header = file.header(part);
    bool plain = std::endian::native == std::endian::little && header.compression() == Imf::NO_COMPRESSION
        && !file.isTiled(part);
    for (auto channel = header.channels().begin(); channel != header.channels().end(); ++channel)
        plain = plain && channel.channel().xSampling == 1 && channel.channel().ySampling == 1;
    return plain && std::all_of(targets.begin(), targets.end(), [&targets](const ExrTarget *target) {
               return target->type == target->channel.type && target->rows == targets.front()->rows;
           });
}

void copyPlainLines(ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
                    const std::function<void(double)> &report)
{
    const Imath::Box2i &window = file.header(part).dataWindow();
    const Imf::ChannelList &channels = file.header(part).channels();
    const std::size_t lineBytes = unpackedSize(channels, {window.min, {window.max.x, window.min.y}});
    const ExrSpan stored = ExrSpan::within(window.min.x, window.max.x, 1);

    struct Copy {
        std::byte *to; ///< first byte in the plane's row 0
        std::size_t from; ///< in a line
        std::size_t bytes;
        std::size_t rowBytes;
    };
    std::vector<Copy> copies;
    for (ExrTarget *target : targets) {
        const std::size_t size = sampleBytes(target->type);
        const ExrSpan common = ExrSpan::common(stored, target->columns);
        std::size_t from = 0;
        for (auto channel = channels.begin(); channel.name() != target->channel.name; ++channel)
            from += std::size_t(stored.count) * sampleBytes(channel.channel().type);
        if (common.count > 0)
            copies.push_back({target->plane.data() + std::size_t(common.first - target->columns.first) * size,
                              from + std::size_t(common.first - stored.first) * size,
                              std::size_t(common.count) * size, target->plane.format().rowBytes()});
    }

    Imf::InputPart input(file.parts(), part);
    const ExrSpan visible = targets.front()->rows;
    const ExrSpan rows = ExrSpan::common(ExrSpan::within(window.min.y, window.max.y, 1), visible);
    for (int row = rows.first; row < rows.end(); ++row) {
        const char *line = nullptr;
        int size = 0;
        input.rawPixelData(row, line, size);
        if (size < 0 || std::size_t(size) != lineBytes)
            throw ImageError(TLoadFailure::Damaged, "line of another size at line " + std::to_string(row));
        for (const Copy &copy : copies)
            std::memcpy(copy.to + std::size_t(row - visible.first) * copy.rowBytes, line + copy.from,
                        copy.bytes);
        const int done = row + 1 - rows.first;
        if (done % (rows.count / 16 + 1) == 0)
            report(double(done) / double(rows.count));
    }
}

} // namespace TImageLibrary
