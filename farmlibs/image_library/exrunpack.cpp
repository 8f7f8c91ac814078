#include "exrunpack.h"

#include "exrcore.h"
#include "sharedwork.h"

#include <ImathBox.h>
#include <ImfChannelList.h>
#include <half.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <memory>

namespace TImageLibrary {

namespace {

std::size_t sampleBytes(Imf::PixelType type)
{
    return type == Imf::HALF ? 2 : 4;
}

/// The chunks of a part that a plane wants something of, counted row by row.
class ChunkGrid final {
public:
    ChunkGrid(const ExrFile &file, int part, const std::vector<ExrTarget *> &targets)
        : m_window(file.header(part).dataWindow())
        , m_isTiled(file.isTiled(part))
        , m_size(m_isTiled ? int(file.header(part).tileDescription().xSize) : m_window.size().x + 1,
                 file.chunkRows(part))
    {
        Imath::Box2i wanted;
        for (const ExrTarget *target : targets) {
            wanted.extendBy(Imath::V2i(target->columns.first, target->rows.first));
            wanted.extendBy(Imath::V2i(target->columns.end() - 1, target->rows.end() - 1));
        }
        m_columns = reached(wanted.min.x, wanted.max.x, m_window.min.x, m_window.max.x, m_size.x);
        m_rows = reached(wanted.min.y, wanted.max.y, m_window.min.y, m_window.max.y, m_size.y);
    }

    std::size_t count() const { return std::size_t(m_columns.count) * std::size_t(m_rows.count); }
    std::size_t pixelsOfOne() const { return std::size_t(m_size.x) * std::size_t(m_size.y); }

    Imath::Box2i box(std::size_t index) const
    {
        const Imath::V2i first = m_window.min + tile(index) * m_size;
        // A chunk may end behind the last pixel that an int can count.
        return {first,
                {first.x + std::min(m_size.x - 1, m_window.max.x - first.x),
                 first.y + std::min(m_size.y - 1, m_window.max.y - first.y)}};
    }

    ChunkPlace place(std::size_t index) const
    {
        return {m_isTiled, m_isTiled ? tile(index) : box(index).min};
    }

    /// As in an ExrLayout.
    std::uint64_t indexInPart(std::size_t index) const
    {
        const auto columns = m_isTiled ? (std::int64_t(m_window.max.x) - m_window.min.x) / m_size.x + 1 : 1;
        return std::uint64_t(std::int64_t(tile(index).y) * columns + tile(index).x);
    }

private:
    /// The chunks, of so many pixels from `first` to `last` along one axis, that reach into the pixels from `min` to `max`.
    static ExrSpan reached(int min, int max, int first, int last, int size)
    {
        const int begin = std::max(min, first);
        const int end = std::min(max, last);
        if (begin > end)
            return {};
        const int chunk = (begin - first) / size;
        return {chunk, (end - first) / size - chunk + 1};
    }

    Imath::V2i tile(std::size_t index) const
    {
        const auto columns = std::size_t(m_columns.count);
        return {m_columns.first + int(index % columns), m_rows.first + int(index / columns)};
    }

    Imath::Box2i m_window;
    bool m_isTiled;
    Imath::V2i m_size;
    ExrSpan m_columns;
    ExrSpan m_rows;
};

/// A channel that is wanted, and where in a line of a chunk it stands.
struct Piece {
    ExrTarget *target;
    std::size_t bytesBefore; ///< of the channels before it, for each pixel
};

/// Puts samples as they are stored into a plane.
void copySamples(const ChunkSamples &samples, std::size_t offset, std::size_t size, void *to)
{
    const std::uint8_t *bytes = samples.bytes.data();
    if (samples.isSplit) {
        const std::uint8_t *high = bytes + samples.bytes.size() / 2;
        interleave(bytes + offset / 2, high + offset / 2, size / 2, static_cast<std::uint8_t *>(to));
    } else {
        std::memcpy(to, bytes + offset, size);
    }
}

/// Puts chunks of one part into planes, one after the other.
class ChunkPlacer final {
public:
    ChunkPlacer(const Imf::ChannelList &channels, const std::vector<ExrTarget *> &targets)
    {
        for (auto channel = channels.begin(); channel != channels.end(); ++channel) {
            for (ExrTarget *target : targets) {
                if (target->channel.name == channel.name())
                    m_pieces.push_back({target, m_pixelBytes});
            }
            m_pixelBytes += sampleBytes(channel.channel().type);
        }
    }

    std::size_t pixelBytes() const { return m_pixelBytes; }

    void place(const Imath::Box2i &box, const ChunkSamples &samples)
    {
        const ExrSpan width = ExrSpan::within(box.min.x, box.max.x, 1);
        const ExrSpan height = ExrSpan::within(box.min.y, box.max.y, 1);
        for (const Piece &piece : m_pieces) {
            const std::size_t size = sampleBytes(piece.target->channel.type);
            const ExrSpan columns = ExrSpan::common(width, piece.target->columns);
            const ExrSpan rows = ExrSpan::common(height, piece.target->rows);
            if (columns.count == 0)
                continue;
            std::size_t offset = std::size_t(rows.first - height.first) * m_pixelBytes + piece.bytesBefore;
            offset = offset * std::size_t(width.count) + std::size_t(columns.first - width.first) * size;
            for (int row = rows.first; row < rows.end(); ++row) {
                placeLine(samples, offset, *piece.target, {columns.first, row}, std::size_t(columns.count));
                offset += m_pixelBytes * std::size_t(width.count);
            }
        }
    }

private:
    void placeLine(const ChunkSamples &samples, std::size_t offset, ExrTarget &target,
                   const Imath::V2i &first, std::size_t count)
    {
        const TPlaneFormat &format = target.plane.format();
        std::byte *to = target.plane.data() + std::size_t(first.y - target.rows.first) * format.rowBytes()
            + std::size_t(first.x - target.columns.first) * format.pixelBytes();
        if (target.type == target.channel.type)
            return copySamples(samples, offset, count * format.pixelBytes(), to);
        auto *wide = reinterpret_cast<float *>(to);
        if (target.channel.type == Imf::HALF) {
            m_halves.resize(count);
            copySamples(samples, offset, count * sizeof(half), m_halves.data());
            std::copy(m_halves.begin(), m_halves.end(), wide);
        } else {
            m_integers.resize(count);
            copySamples(samples, offset, count * sizeof(std::uint32_t), m_integers.data());
            std::transform(m_integers.begin(), m_integers.end(), wide,
                           [](std::uint32_t value) { return float(value); });
        }
    }

    std::vector<Piece> m_pieces;
    std::size_t m_pixelBytes = 0;
    std::vector<half> m_halves;
    std::vector<std::uint32_t> m_integers;
};

/// Turns with other loads are worth it after so many bytes, of which a picture makes enough for a progress bar.
std::size_t chunksAtOnce(std::size_t count, std::size_t chunkBytes)
{
    constexpr std::size_t kBytes = std::size_t(256) << 10;
    constexpr std::size_t kTurns = 64;
    return std::max<std::size_t>(1, std::min(kBytes / chunkBytes, count / kTurns));
}

} // namespace

bool canUnpack(const ExrFile &file, int part)
{
    const Imf::Header &header = file.header(part);
    const Imf::Compression compression = header.compression();
    bool can = std::endian::native == std::endian::little
        && (compression == Imf::NO_COMPRESSION || compression == Imf::RLE_COMPRESSION
            || compression == Imf::ZIPS_COMPRESSION || compression == Imf::ZIP_COMPRESSION)
        && (!file.isTiled(part) || header.tileDescription().mode == Imf::ONE_LEVEL);
    for (auto channel = header.channels().begin(); channel != header.channels().end(); ++channel)
        can = can && channel.channel().xSampling == 1 && channel.channel().ySampling == 1;
    return can;
}

bool unpackPart(const ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
                const std::function<void(double)> &report, PresentChunks *present)
{
    const ExrCore core(file.source());
    if (!core.isOpen())
        return false;
    const ChunkGrid grid(file, part, targets);
    const ChunkPlacer placer(file.header(part).channels(), targets);
    struct Worker {
        ChunkUnpacker unpacker;
        ChunkPlacer placer;
    };
    const auto makeStep = [&]() -> Step {
        // A step is copied.
        const auto worker = std::shared_ptr<Worker>(new Worker{{core, part}, placer});
        return [&grid, present, worker](std::size_t index) {
            const Imath::Box2i box = grid.box(index);
            const auto pixels = std::size_t(box.size().x + 1) * std::size_t(box.size().y + 1);
            const auto read = [&] {
                worker->placer.place(
                    box, worker->unpacker.unpack(grid.place(index), pixels * worker->placer.pixelBytes()));
            };
            const std::uint64_t inPart = grid.indexInPart(index);
            present ? static_cast<void>(present->read({inPart, inPart + 1}, read)) : read();
        };
    };
    const std::size_t chunkBytes = grid.pixelsOfOne() * placer.pixelBytes();
    shareWork({grid.count(), chunksAtOnce(grid.count(), chunkBytes), [&file] { return file.isAlone(); }},
              makeStep, report);
    return true;
}

} // namespace TImageLibrary
