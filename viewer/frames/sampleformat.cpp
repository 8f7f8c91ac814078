#include "sampleformat.h"

#include <QtGui/qopengl.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

namespace {

struct FormatRow {
    std::int32_t depth;
    bool isFloat;
    std::uint32_t pixelType;
    std::uint32_t multiTexture;
    std::array<std::uint32_t, 3> singleTexture; ///< of 1, 3 and 4 samples
};

constexpr std::array<FormatRow, 6> kFormats = {{
    {1, false, GL_UNSIGNED_BYTE, GL_R8, {GL_LUMINANCE, GL_RGB, GL_RGBA}},
    {1, true, GL_UNSIGNED_BYTE, GL_R8, {GL_LUMINANCE, GL_RGB, GL_RGBA}},
    {2, false, GL_UNSIGNED_SHORT, GL_R16F, {GL_R16UI, GL_RGB16, GL_RGBA16}},
    {2, true, GL_HALF_FLOAT, GL_R16F, {GL_R16F, GL_RGB16F, GL_RGBA16F}},
    {4, false, GL_UNSIGNED_INT, GL_R32F, {GL_R32UI, GL_RGB32UI, GL_RGBA32UI}},
    {4, true, GL_FLOAT, GL_R32F, {GL_R32F, GL_RGB32F, GL_RGBA32F}},
}};

constexpr std::array<std::int32_t, 3> kSamples = {1, 3, 4};

const FormatRow *findFormat(std::int32_t bitDepth, std::int32_t bitType)
{
    const auto row = std::find_if(kFormats.begin(), kFormats.end(), [=](const FormatRow &format) {
        return format.depth == bitDepth && format.isFloat == (bitType == 1);
    });
    return row == kFormats.end() ? nullptr : &*row;
}

} // namespace

std::uint32_t samplePixelType(std::int32_t bitDepth, std::int32_t bitType)
{
    const FormatRow *format = findFormat(bitDepth, bitType);
    return format ? format->pixelType : 0;
}

std::uint32_t multiTextureFormat(std::int32_t bitDepth)
{
    const FormatRow *format = findFormat(bitDepth, 1);
    return format ? format->multiTexture : GL_R8;
}

std::uint32_t singleTextureFormat(std::int32_t bitDepth, std::int32_t bitType, std::int32_t samples)
{
    const FormatRow *format = findFormat(bitDepth, bitType);
    const auto column = std::find(kSamples.begin(), kSamples.end(), samples);
    if (!format || column == kSamples.end())
        return 0;
    return format->singleTexture[static_cast<std::size_t>(column - kSamples.begin())];
}

std::int32_t bytesPerSample(std::uint32_t pixelType)
{
    const auto row = std::find_if(kFormats.begin(), kFormats.end(),
                                  [=](const FormatRow &format) { return format.pixelType == pixelType; });
    return row == kFormats.end() ? 1 : row->depth;
}

std::optional<std::uint64_t> planeBytes(std::int32_t width, std::int32_t height, std::int32_t components,
                                        std::int32_t bytes)
{
    if (width <= 0 || height <= 0 || components <= 0 || bytes <= 0)
        return std::nullopt;
    // Either product of two such factors fits; only the product of both may not.
    const std::uint64_t pixels = std::uint64_t(width) * std::uint64_t(height);
    const std::uint64_t pixelBytes = std::uint64_t(components) * std::uint64_t(bytes);
    if (pixels > std::numeric_limits<std::uint64_t>::max() / pixelBytes)
        return std::nullopt;
    return pixels * pixelBytes;
}
