#include "exrlayout.h"

#include "exrplan.h"

#include <algorithm>
#include <bit>

namespace TImageLibrary {

namespace {

std::int64_t lengthOf(int min, int max)
{
    return std::int64_t(max) - min + 1;
}

std::int64_t dividedUp(std::int64_t value, std::int64_t by)
{
    return (value + by - 1) / by;
}

std::int64_t levelLength(std::int64_t length, int level, Imf::LevelRoundingMode rounding)
{
    const std::int64_t step = std::int64_t(1) << level;
    return std::max<std::int64_t>(rounding == Imf::ROUND_UP ? dividedUp(length, step) : length / step, 1);
}

int levelCount(std::int64_t length, Imf::LevelRoundingMode rounding)
{
    const auto value = std::uint64_t(length);
    const int whole = int(std::bit_width(value));
    return rounding == Imf::ROUND_UP && !std::has_single_bit(value) ? whole + 1 : whole;
}

} // namespace

std::size_t ExrLayout::unpackedSize(const Imf::ChannelList &channels, const Imath::Box2i &box)
{
    std::size_t bytes = 0;
    for (auto channel = channels.begin(); channel != channels.end(); ++channel) {
        const Imf::Channel &details = channel.channel();
        const ExrSpan columns = ExrSpan::within(box.min.x, box.max.x, details.xSampling);
        const ExrSpan rows = ExrSpan::within(box.min.y, box.max.y, details.ySampling);
        bytes += std::size_t(columns.count) * std::size_t(rows.count) * (details.type == Imf::HALF ? 2 : 4);
    }
    return bytes;
}

ExrLayout::ExrLayout(const ExrFile &file, int part)
    : m_header(file.header(part))
    , m_isTiled(file.isTiled(part))
    , m_isDeep(file.isDeep(part))
    , m_window(m_header.dataWindow())
    , m_width(m_isTiled ? std::int64_t(m_header.tileDescription().xSize)
                        : lengthOf(m_window.min.x, m_window.max.x))
    , m_height(file.chunkRows(part))
    , m_columns(dividedUp(lengthOf(m_window.min.x, m_window.max.x), m_width))
    , m_rows(dividedUp(lengthOf(m_window.min.y, m_window.max.y), m_height))
    , m_count(fullCount())
{
    if (!m_isTiled || m_header.tileDescription().mode == Imf::ONE_LEVEL)
        return;
    const Imf::TileDescription &tiles = m_header.tileDescription();
    m_levelsX = levelCount(lengthOf(m_window.min.x, m_window.max.x), tiles.roundingMode);
    m_levelsY = levelCount(lengthOf(m_window.min.y, m_window.max.y), tiles.roundingMode);
    if (tiles.mode == Imf::MIPMAP_LEVELS)
        m_levelsX = m_levelsY = std::max(m_levelsX, m_levelsY);
    const bool isMipmap = tiles.mode == Imf::MIPMAP_LEVELS;
    m_count = tilesBefore(isMipmap ? m_levelsX : 0, m_levelsY);
}

std::optional<std::uint64_t> ExrLayout::indexOf(const Coordinates &at) const
{
    if (!m_isTiled) {
        const std::int64_t line = at.y - m_window.min.y;
        if (line < 0 || line % m_height != 0 || line / m_height >= m_rows)
            return std::nullopt;
        return std::uint64_t(line / m_height);
    }
    if (at.levelX < 0 || at.levelX >= m_levelsX || at.levelY < 0 || at.levelY >= m_levelsY
        || (m_header.tileDescription().mode == Imf::MIPMAP_LEVELS && at.levelX != at.levelY))
        return std::nullopt;
    const Tiles tiles = tilesOf(at.levelX, at.levelY);
    if (at.x < 0 || at.x >= tiles.columns || at.y < 0 || at.y >= tiles.rows)
        return std::nullopt;
    return tilesBefore(at.levelX, at.levelY) + std::uint64_t(at.y * tiles.columns + at.x);
}

Imath::Box2i ExrLayout::box(std::uint64_t index) const
{
    const std::int64_t left = m_window.min.x + std::int64_t(index) % m_columns * m_width;
    const std::int64_t top = m_window.min.y + std::int64_t(index) / m_columns * m_height;
    return {{int(left), int(top)},
            {int(std::min<std::int64_t>(left + m_width - 1, m_window.max.x)),
             int(std::min<std::int64_t>(top + m_height - 1, m_window.max.y))}};
}

bool ExrLayout::canTake(std::uint64_t index, std::uint64_t bytes) const
{
    if (index < fullCount()) {
        const std::uint64_t most = unpackedSize(m_header.channels(), box(index));
        return m_header.compression() == Imf::NO_COMPRESSION ? bytes == most : bytes <= most;
    }
    return bytes <= unpackedSize(m_header.channels(), {{0, 0}, {int(m_width - 1), int(m_height - 1)}});
}

ExrLayout::Tiles ExrLayout::tilesOf(int levelX, int levelY) const
{
    const Imf::TileDescription &tiles = m_header.tileDescription();
    const auto count = [&tiles](int min, int max, int level, std::int64_t size) {
        return dividedUp(levelLength(lengthOf(min, max), level, tiles.roundingMode), size);
    };
    return {count(m_window.min.x, m_window.max.x, levelX, m_width),
            count(m_window.min.y, m_window.max.y, levelY, m_height)};
}

/// In the table, mipmaps stand one after the other, ripmaps row by row of their levels.
std::uint64_t ExrLayout::tilesBefore(int levelX, int levelY) const
{
    const bool isMipmap = m_header.tileDescription().mode == Imf::MIPMAP_LEVELS;
    std::uint64_t before = 0;
    for (int y = 0; y <= levelY && y < m_levelsY; ++y) {
        const int first = isMipmap ? y : 0;
        const int end = isMipmap ? std::min(y + 1, levelX) : y < levelY ? m_levelsX : levelX;
        for (int x = first; x < end; ++x) {
            const Tiles tiles = tilesOf(x, y);
            before += std::uint64_t(tiles.columns) * std::uint64_t(tiles.rows);
        }
    }
    return before;
}

} // namespace TImageLibrary
