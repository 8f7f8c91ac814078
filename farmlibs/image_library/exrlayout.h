#pragma once

#include "exrfile.h"

#include <ImathBox.h>
#include <ImfChannelList.h>

#include <cstdint>
#include <optional>

namespace TImageLibrary {

/// Counts the chunks of a part as its table does: scan lines from the top, tiles row by row, the full picture's before
/// those of its reduced levels.
class ExrLayout final {
public:
    /// What a chunk says of itself in the file.
    struct Coordinates {
        std::int64_t x = 0; ///< column of a tile
        std::int64_t y = 0; ///< row of a tile, or first line of pixels
        int levelX = 0;
        int levelY = 0;
    };

    ExrLayout(const ExrFile &file, int part);

    /// Bytes of all channels within a box of pixels.
    static std::size_t unpackedSize(const Imf::ChannelList &channels, const Imath::Box2i &box);

    /// Of all levels.
    std::uint64_t count() const { return m_count; }
    /// Of the full picture.
    std::uint64_t fullCount() const { return std::uint64_t(m_columns) * std::uint64_t(m_rows); }
    std::int64_t columns() const { return m_columns; }
    bool isTiled() const { return m_isTiled; }
    bool isDeep() const { return m_isDeep; }

    /// Nothing where the part has no such chunk.
    std::optional<std::uint64_t> indexOf(const Coordinates &at) const;
    /// Pixels of a chunk of the full picture.
    Imath::Box2i box(std::uint64_t index) const;
    /// Whether a chunk that is not deep may take so many bytes: no more than its samples do without compression.
    bool canTake(std::uint64_t index, std::uint64_t bytes) const;

private:
    struct Tiles {
        std::int64_t columns = 0;
        std::int64_t rows = 0;
    };

    Tiles tilesOf(int levelX, int levelY) const;
    std::uint64_t tilesBefore(int levelX, int levelY) const;

    const Imf::Header &m_header;
    bool m_isTiled;
    bool m_isDeep;
    Imath::Box2i m_window;
    std::int64_t m_width; ///< of a chunk, in pixels
    std::int64_t m_height;
    std::int64_t m_columns;
    std::int64_t m_rows;
    int m_levelsX = 1;
    int m_levelsY = 1;
    std::uint64_t m_count;
};

} // namespace TImageLibrary
