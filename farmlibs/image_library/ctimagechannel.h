#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

namespace TImageLibrary {

/// Tells what a file holds where a plane holds something that GL can show in its place.
struct TStoredSamples {
    std::int32_t depth = 0; ///< bytes per sample; 0 where the plane holds what the file does
    bool isFloat = false;
    std::int32_t samples = 0; ///< per pixel
};

/// Tells the size of a plane in pixels and what one pixel of it holds.
struct TPlaneFormat {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t depth = 1; ///< bytes per sample: 1, 2 or 4
    bool isFloat = false;
    std::int32_t samples = 1; ///< per pixel, interleaved
    TStoredSamples stored = {};

    std::size_t pixelBytes() const { return std::size_t(depth) * std::size_t(samples); }
    std::size_t rowBytes() const { return pixelBytes() * std::size_t(width); }
    std::size_t byteSize() const { return rowBytes() * std::size_t(height); }
};

/// Owns one plane of samples: rows packed, first row as CTImage::GetIsYFlipped() says.
class CTImageChannel final {
public:
    enum class Fill { Zero, None };

    /// Throws std::bad_alloc when there is no memory for the plane.
    CTImageChannel(std::string name, const TPlaneFormat &format, Fill fill = Fill::Zero);

    /// Gives the name, which may be empty.
    const std::string &GetChannelName() const { return m_name; }
    const void *GetChannelData() const { return m_data.get(); }
    /// Give the pixels of this plane, which is smaller than the image where the file subsamples it.
    std::int32_t GetChannelWidth() const { return m_format.width; }
    std::int32_t GetChannelHeight() const { return m_format.height; }
    /// Gives the bytes per sample: 1, 2 or 4.
    std::int32_t GetChannelBitDepth() const { return m_format.depth; }
    /// Gives 1 for floating point, 0 for unsigned integers.
    std::int32_t GetChannelBitType() const { return m_format.isFloat ? 1 : 0; }
    /// Gives the samples per pixel: 1, 3 or 4. Two-byte integers come as four samples only and four-byte ones never, so
    /// that GL can show every plane.
    std::int32_t GetChannelBitSamples() const { return m_format.samples; }

    /// Give what the file holds: bytes per sample, the bit type and the samples per pixel. An addition to the interface:
    /// a farm's own library need not have it.
    std::int32_t GetStoredBitDepth() const { return stored().depth; }
    std::int32_t GetStoredBitType() const { return stored().isFloat ? 1 : 0; }
    std::int32_t GetStoredBitSamples() const { return stored().samples; }

    const TPlaneFormat &format() const { return m_format; }
    std::byte *data() { return m_data.get(); }

private:
    struct Free {
        void operator()(std::byte *data) const { std::free(data); }
    };

    TStoredSamples stored() const
    {
        return m_format.stored.depth > 0 ? m_format.stored
                                         : TStoredSamples{m_format.depth, m_format.isFloat, m_format.samples};
    }

    std::string m_name;
    TPlaneFormat m_format;
    std::unique_ptr<std::byte, Free> m_data;
};

} // namespace TImageLibrary
