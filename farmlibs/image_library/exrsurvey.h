#pragma once

#include "exrlayout.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace TImageLibrary {

/// Finds the chunks that lie whole in a file: by its tables where those tell the truth, else by going from chunk to chunk.
/// Takes time in proportion to the file's bytes, whatever they are.
class ExrSurvey final {
public:
    enum class Chunk : std::uint8_t {
        Unwritten, ///< the file has not got so far
        Damaged, ///< it should be there and is not
        Found, ///< it says of itself that it is this one, and ends within the file
    };

    /// The file stays as it is while this lives.
    explicit ExrSurvey(const ExrFile &file);

    const ExrLayout &layout(int part) const { return m_parts[std::size_t(part)].layout; }
    Chunk chunk(int part, std::uint64_t index) const { return m_parts[std::size_t(part)].chunks[index]; }
    /// What a chunk that was found holds behind its heading; of one that is not deep.
    std::string packed(int part, std::uint64_t index) const;
    /// Whether the tables of the file name every chunk's place.
    bool areTablesTrue() const { return m_areTablesTrue; }
    /// The file with tables that name the chunks found, and no others.
    SourceFile repaired() const;

private:
    struct Part {
        ExrLayout layout;
        std::vector<std::uint64_t> places; ///< 0 where none is known
        std::vector<Chunk> chunks;
        std::vector<bool> isSure; ///< of its place
        std::uint64_t step; ///< from a chunk to the next in the file
        std::uint64_t end; ///< behind the last chunk in the file
        std::uint64_t last; ///< chunk that the walk has met last, or before the first
    };
    /// What a chunk says of itself.
    struct Heading {
        std::size_t part = 0;
        std::uint64_t index = 0;
        std::uint64_t length = 0; ///< of the heading itself
        std::uint64_t bytes = 0; ///< of all of the chunk
    };
    class Window;

    bool readTables();
    void walk();
    void note(const Heading &heading, std::uint64_t place, const std::optional<Heading> &next);
    bool isFollowed(Window &window, std::uint64_t end) const;
    std::uint64_t nextHeading(std::uint64_t from);
    std::optional<Heading> headingAt(Window &window, std::uint64_t place) const;
    bool isWithin(const Heading &heading, std::uint64_t place) const;
    bool spend(std::uint64_t bytes);
    std::size_t headingBytes() const;

    const ExrFile &m_file;
    bool m_isMultiPart;
    std::uint64_t m_size;
    std::uint64_t m_tablesEnd;
    std::vector<Part> m_parts;
    std::uint64_t m_missing = 0; ///< chunks without a known place
    std::uint64_t m_searchLeft; ///< bytes that may be searched for headings
    std::uint64_t m_decodeLeft; ///< bytes of chunks that may be decoded
    bool m_areTablesTrue = false;
};

} // namespace TImageLibrary
