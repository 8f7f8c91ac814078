#include "exrsurvey.h"

#include "imageerror.h"

#include <ImfPartType.h>
#include <ImfVersion.h>

#include <algorithm>
#include <utility>

namespace TImageLibrary {

namespace {

// A lost block or two of a disk, and what a damaged chunk of any usual size takes.
constexpr std::uint64_t kMostSearched = std::uint64_t(16) << 20;
constexpr std::size_t kLongestHeading = 44;

std::uint64_t littleEndian(const std::uint8_t *bytes, int count)
{
    std::uint64_t value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value << 8 | bytes[i];
    return value;
}

} // namespace

/// Reads a file a block at a time.
class ExrSurvey::Window final {
public:
    Window(const SourceFile &file, std::size_t blockBytes)
        : m_file(file)
        , m_block(blockBytes)
    { }

    /// Null where the file has not got so many bytes, which are no more than a block has.
    const std::uint8_t *at(std::uint64_t place, std::size_t count)
    {
        if (place < m_place || place - m_place > m_held || m_held - (place - m_place) < count) {
            m_place = place;
            m_held = m_file.read(place, m_block.data(), m_block.size());
        }
        return m_held - (place - m_place) < count ? nullptr : m_block.data() + (place - m_place);
    }

private:
    const SourceFile &m_file;
    std::vector<std::uint8_t> m_block;
    std::uint64_t m_place = 0;
    std::size_t m_held = 0;
};

ExrSurvey::ExrSurvey(const ExrFile &file)
    : m_file(file)
    , m_isMultiPart(Imf::isMultiPart(file.version()))
    , m_size(file.source().size())
    , m_tablesEnd(file.tablesEnd())
    , m_searchLeft(kMostSearched)
    , m_decodeLeft(2 * m_size)
{
    for (int part = 0; part < file.partCount(); ++part) {
        if (!Imf::isSupportedType(file.header(part).type()))
            throw ImageError(TLoadFailure::Damaged, file.nameOf(part) + " is of an unknown kind");
        ExrLayout layout(file, part);
        // The file has a table of them: there is memory for as many.
        if (layout.count() > m_size / sizeof(std::uint64_t))
            throw ImageError(TLoadFailure::Damaged, file.nameOf(part) + " has no table of its chunks");
        const bool isFromBelow = file.header(part).lineOrder() == Imf::DECREASING_Y;
        const std::uint64_t minusOne = ~std::uint64_t(0);
        if (isFromBelow)
            m_parts.push_back({layout, {}, {}, {}, minusOne, minusOne, layout.count()});
        else
            m_parts.push_back({layout, {}, {}, {}, 1, layout.count(), minusOne});
    }
    m_areTablesTrue = readTables();
    if (!m_areTablesTrue)
        walk();
}

bool ExrSurvey::readTables()
{
    std::uint64_t total = 0;
    for (const Part &part : m_parts)
        total += part.layout.count();
    if (total > m_tablesEnd / sizeof(std::uint64_t))
        throw ImageError(TLoadFailure::Damaged, "the file has no tables of its chunks");
    std::vector<std::uint8_t> table;
    std::uint64_t place = m_tablesEnd - total * sizeof(std::uint64_t);
    Window window(m_file.source(), kLongestHeading);
    for (std::size_t i = 0; i < m_parts.size(); ++i) {
        Part &part = m_parts[i];
        table.assign(part.layout.count() * sizeof(std::uint64_t), 0);
        m_file.source().read(place, table.data(), table.size());
        place += table.size();
        for (std::uint64_t index = 0; index < part.layout.count(); ++index) {
            const std::uint64_t named = littleEndian(table.data() + index * 8, 8);
            const auto heading = named >= m_tablesEnd ? headingAt(window, named) : std::nullopt;
            const bool isThere = heading && heading->part == i && heading->index == index;
            const bool isFound = isThere && isWithin(*heading, named) && spend(heading->bytes);
            const bool isAhead = named == 0 || named >= m_size || (isThere && !isWithin(*heading, named));
            part.places.push_back(isFound ? named : 0);
            part.isSure.push_back(isFound);
            part.chunks.push_back(isFound ? Chunk::Found : isAhead ? Chunk::Unwritten : Chunk::Damaged);
            m_missing += isFound ? 0 : 1;
        }
    }
    return m_missing == 0;
}

void ExrSurvey::walk()
{
    // No file holds a chunk twice but for one that lies, where some are met again.
    std::uint64_t stepsLeft = 1000;
    for (const Part &part : m_parts)
        stepsLeft += 2 * part.layout.count();
    Window window(m_file.source(), kLongestHeading);
    for (std::uint64_t place = m_tablesEnd; place < m_size && m_missing > 0 && stepsLeft > 0; --stepsLeft) {
        const auto heading = headingAt(window, place);
        if (heading && isWithin(*heading, place)) {
            const std::uint64_t end = place + heading->bytes;
            note(*heading, place, headingAt(window, end));
            // Else its length may be a lie: the chunks behind it are looked for from here.
            if (isFollowed(window, end)) {
                place = end;
                continue;
            }
        }
        place = nextHeading(place + 1);
    }
}

/// Of two that claim to be the same chunk one lies: the one beside its neighbours is believed.
void ExrSurvey::note(const Heading &heading, std::uint64_t place, const std::optional<Heading> &next)
{
    Part &part = m_parts[heading.part];
    const std::uint64_t before = std::exchange(part.last, heading.index);
    const bool isFirst = part.chunks[heading.index] != Chunk::Found;
    const bool isBehind = heading.index == before + part.step;
    const bool isAhead = next ? next->part == heading.part && next->index == heading.index + part.step
                              : heading.index + part.step == part.end;
    const bool isSure = isBehind || isAhead;
    if (!(isFirst || (isSure && !part.isSure[heading.index])) || !spend(heading.bytes))
        return;
    m_missing -= isFirst ? 1 : 0;
    part.places[heading.index] = place;
    part.chunks[heading.index] = Chunk::Found;
    part.isSure[heading.index] = isSure;
}

bool ExrSurvey::isFollowed(Window &window, std::uint64_t end) const
{
    return m_size - end < headingBytes() || headingAt(window, end);
}

/// Gives the file's end where there is none.
std::uint64_t ExrSurvey::nextHeading(std::uint64_t from)
{
    constexpr std::size_t kBlock = std::size_t(64) << 10;
    Window window(m_file.source(), kBlock);
    Window beyond(m_file.source(), kLongestHeading);
    for (std::uint64_t place = from; place < m_size && m_searchLeft > 0; ++place, --m_searchLeft) {
        const auto heading = headingAt(window, place);
        if (!heading || !isWithin(*heading, place)
            || m_parts[heading->part].chunks[heading->index] == Chunk::Found)
            continue;
        // Each of these asks the file once more.
        m_searchLeft -= std::min<std::uint64_t>(m_searchLeft - 1, kLongestHeading * 8);
        if (isFollowed(beyond, place + heading->bytes))
            return place;
    }
    return m_size;
}

std::size_t ExrSurvey::headingBytes() const
{
    return m_isMultiPart ? 12 : 8;
}

std::optional<ExrSurvey::Heading> ExrSurvey::headingAt(Window &window, std::uint64_t place) const
{
    const std::size_t partBytes = m_isMultiPart ? 4 : 0;
    const std::uint8_t *bytes = window.at(place, headingBytes());
    if (!bytes)
        return std::nullopt;
    Heading heading;
    heading.part = m_isMultiPart ? littleEndian(bytes, 4) : 0;
    if (heading.part >= m_parts.size())
        return std::nullopt;
    const ExrLayout &layout = m_parts[heading.part].layout;
    const std::size_t coordinateBytes = layout.isTiled() ? 16 : 4;
    const std::size_t length = partBytes + coordinateBytes + (layout.isDeep() ? 24 : 4);
    bytes = window.at(place, length);
    if (!bytes)
        return std::nullopt;
    bytes += partBytes;
    const auto number = [&bytes](int index) { return std::int32_t(littleEndian(bytes + 4 * index, 4)); };
    const auto index =
        layout.indexOf(layout.isTiled() ? ExrLayout::Coordinates{number(0), number(1), number(2), number(3)}
                                        : ExrLayout::Coordinates{0, number(0), 0, 0});
    bytes += coordinateBytes;
    if (!index)
        return std::nullopt;
    heading.index = *index;
    std::uint64_t packed = littleEndian(bytes, layout.isDeep() ? 8 : 4);
    bool isSound = layout.isDeep() || layout.canTake(*index, packed);
    if (layout.isDeep()) {
        const std::uint64_t samples = littleEndian(bytes + 8, 8);
        isSound = packed <= m_size && samples <= m_size;
        packed += samples;
    }
    heading.length = length;
    heading.bytes = length + packed;
    return isSound && packed > 0 ? std::optional(heading) : std::nullopt;
}

bool ExrSurvey::isWithin(const Heading &heading, std::uint64_t place) const
{
    return place <= m_size && heading.bytes <= m_size - place;
}

/// A file may say of the same bytes that they are many chunks: each byte is decoded twice at most.
bool ExrSurvey::spend(std::uint64_t bytes)
{
    if (bytes > m_decodeLeft)
        return false;
    m_decodeLeft -= bytes;
    return true;
}

std::string ExrSurvey::packed(int part, std::uint64_t index) const
{
    Window window(m_file.source(), kLongestHeading);
    const std::uint64_t place = m_parts[std::size_t(part)].places[index];
    const auto heading = headingAt(window, place);
    if (!heading)
        return {}; // written to since it was found
    std::string bytes(heading->bytes - heading->length, '\0');
    bytes.resize(m_file.source().read(place + heading->length, bytes.data(), bytes.size()));
    return bytes;
}

SourceFile ExrSurvey::repaired() const
{
    std::string tables;
    for (const Part &part : m_parts) {
        for (const std::uint64_t place : part.places) {
            for (int byte = 0; byte < 8; ++byte)
                tables += char(place >> (8 * byte));
        }
    }
    const std::uint64_t begin = m_tablesEnd - tables.size();
    return m_file.source().patched(begin, std::move(tables));
}

} // namespace TImageLibrary
