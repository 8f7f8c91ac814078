#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

struct libdeflate_decompressor;

/// The steps that the bytes of a chunk of the compressions ZIP, ZIPS and RLE go through to become samples. Its low and high
/// bytes are stored apart, each as the difference to the byte before it.
namespace TImageLibrary {

using ByteSpan = std::span<const std::uint8_t>;

/// Inflates streams, one after the other.
class ZipUnpacker final {
public:
    ZipUnpacker();

    /// False unless the stream makes just as many bytes as there is room for.
    bool inflate(ByteSpan packed, std::span<std::uint8_t> room);

private:
    struct Free {
        void operator()(libdeflate_decompressor *decompressor) const;
    };
    std::unique_ptr<libdeflate_decompressor, Free> m_decompressor;
};

/// False unless the runs make just as many bytes as there is room for.
bool expandRuns(ByteSpan packed, std::span<std::uint8_t> room);

/// Makes bytes of their differences.
void sumDifferences(std::span<std::uint8_t> bytes);
/// Puts `count` samples' low and high bytes together.
void interleave(const std::uint8_t *low, const std::uint8_t *high, std::size_t count, std::uint8_t *samples);

/// The same two without vectors, for processors that have none and for the ends of spans.
namespace Plain {

/// `last` is the byte before the span, or 128; gives the span's last.
std::uint8_t sumDifferences(std::span<std::uint8_t> bytes, std::uint8_t last = 128);
void interleave(const std::uint8_t *low, const std::uint8_t *high, std::size_t count, std::uint8_t *samples);

} // namespace Plain

} // namespace TImageLibrary
