#pragma once

#include <cstdint>
#include <optional>

// What GL calls the samples of the image library's channels. A channel gives the bytes of a sample (its bit depth),
// and a bit type that is 1 for floating point.

struct SampleType {
    std::uint32_t pixelType = 0; ///< GL enum, 0 when GL has no such type
    std::int32_t bytes = 0;
};

SampleType sampleType(std::int32_t bitDepth, std::int32_t bitType);

/// Internal format of a texture that holds one channel of several.
std::uint32_t multiTextureFormat(std::int32_t bitDepth);

/// Internal format of a texture that holds a whole frame; 0 when there is none for the depth or the samples per pixel.
std::uint32_t singleTextureFormat(std::int32_t bitDepth, std::int32_t bitType, std::int32_t samples);

/// Bytes of one sample in memory; 1 for a type that is not known.
std::int32_t bytesPerSample(std::uint32_t pixelType);

/// width * height * components * bytes; nothing when a factor is not positive or the product does not fit.
std::optional<std::uint64_t> planeBytes(std::int32_t width, std::int32_t height, std::int32_t components,
                                        std::int32_t bytes);
