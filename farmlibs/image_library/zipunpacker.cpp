#include "zipunpacker.h"

#include <libdeflate.h>

#include <cstring>
#include <new>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace TImageLibrary {

ZipUnpacker::ZipUnpacker()
    : m_decompressor(libdeflate_alloc_decompressor())
{
    if (!m_decompressor)
        throw std::bad_alloc();
}

void ZipUnpacker::Free::operator()(libdeflate_decompressor *decompressor) const
{
    libdeflate_free_decompressor(decompressor);
}

bool ZipUnpacker::inflate(ByteSpan packed, std::span<std::uint8_t> room)
{
    // Without a place for the size, a smaller one is an error too.
    return libdeflate_zlib_decompress(m_decompressor.get(), packed.data(), packed.size(), room.data(),
                                      room.size(), nullptr)
        == LIBDEFLATE_SUCCESS;
}

bool expandRuns(ByteSpan packed, std::span<std::uint8_t> room)
{
    std::size_t made = 0;
    for (std::size_t i = 0; i < packed.size();) {
        // A run is a count and a byte, or a negative count and so many bytes.
        const auto code = std::int8_t(packed[i++]);
        const bool repeats = code >= 0;
        const auto count = std::size_t(repeats ? code + 1 : -code);
        if (count > room.size() - made || (repeats ? 1 : count) > packed.size() - i)
            return false;
        if (repeats)
            std::memset(room.data() + made, packed[i], count);
        else
            std::memcpy(room.data() + made, packed.data() + i, count);
        made += count;
        i += repeats ? 1 : count;
    }
    return made == room.size();
}

std::uint8_t Plain::sumDifferences(std::span<std::uint8_t> bytes, std::uint8_t last)
{
    for (std::uint8_t &byte : bytes)
        last = byte = std::uint8_t(last + byte - 128);
    return last;
}

void Plain::interleave(const std::uint8_t *low, const std::uint8_t *high, std::size_t count,
                       std::uint8_t *samples)
{
    for (std::size_t i = 0; i < count; ++i) {
        samples[2 * i] = low[i];
        samples[2 * i + 1] = high[i];
    }
}

#ifdef __SSE2__

namespace {

constexpr std::size_t kWidth = sizeof(__m128i);

__m128i loaded(const std::uint8_t *bytes)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(bytes));
}

void store(std::uint8_t *bytes, __m128i value)
{
    _mm_storeu_si128(reinterpret_cast<__m128i *>(bytes), value);
}

/// The last byte in every place.
__m128i spreadLast(__m128i bytes)
{
    const __m128i doubled = _mm_unpackhi_epi8(bytes, bytes);
    const __m128i words = _mm_shufflehi_epi16(doubled, 0xff);
    return _mm_unpackhi_epi64(words, words);
}

} // namespace

void sumDifferences(std::span<std::uint8_t> bytes)
{
    const std::size_t whole = bytes.size() / kWidth * kWidth;
    const __m128i bias = _mm_set1_epi8(char(128));
    // Each vector is summed on its own and only then added to what came before it, so that no one waits for the last but
    // with a single addition.
    __m128i before = bias;
    for (std::size_t i = 0; i < whole; i += kWidth) {
        __m128i sums = _mm_xor_si128(loaded(bytes.data() + i), bias); // the same as to subtract 128
        sums = _mm_add_epi8(sums, _mm_slli_si128(sums, 1));
        sums = _mm_add_epi8(sums, _mm_slli_si128(sums, 2));
        sums = _mm_add_epi8(sums, _mm_slli_si128(sums, 4));
        sums = _mm_add_epi8(sums, _mm_slli_si128(sums, 8));
        store(bytes.data() + i, _mm_add_epi8(sums, before));
        before = _mm_add_epi8(before, spreadLast(sums));
    }
    const auto last = std::uint8_t(_mm_cvtsi128_si32(before) & 0xff);
    Plain::sumDifferences(bytes.subspan(whole), last);
}

void interleave(const std::uint8_t *low, const std::uint8_t *high, std::size_t count, std::uint8_t *samples)
{
    const std::size_t whole = count / kWidth * kWidth;
    for (std::size_t i = 0; i < whole; i += kWidth) {
        const __m128i lows = loaded(low + i);
        const __m128i highs = loaded(high + i);
        store(samples + 2 * i, _mm_unpacklo_epi8(lows, highs));
        store(samples + 2 * i + kWidth, _mm_unpackhi_epi8(lows, highs));
    }
    Plain::interleave(low + whole, high + whole, count - whole, samples + 2 * whole);
}

#else

void sumDifferences(std::span<std::uint8_t> bytes)
{
    Plain::sumDifferences(bytes);
}

void interleave(const std::uint8_t *low, const std::uint8_t *high, std::size_t count, std::uint8_t *samples)
{
    Plain::interleave(low, high, count, samples);
}

#endif

} // namespace TImageLibrary
