#pragma once

#include <cstdint>
#include <optional>

// Tells what GL calls the samples of the image library's channels. A channel gives the bytes of a sample (its bit depth),
// and a bit type that is 1 for floating point.

/// Type of one sample, 0 when GL has none.
std::uint32_t samplePixelType(std::int32_t bitDepth, std::int32_t bitType);

/// Internal format of a texture that holds one channel of several.
std::uint32_t multiTextureFormat(std::int32_t bitDepth);

/// Internal format of a texture that holds a whole frame; 0 when there is none for the depth or the samples per pixel.
std::uint32_t singleTextureFormat(std::int32_t bitDepth, std::int32_t bitType, std::int32_t samples);

/// Bytes of one sample in memory; 1 for a type that is not known.
std::int32_t bytesPerSample(std::uint32_t pixelType);

/// width * height * components * bytes; nothing when a factor is not positive or the product does not fit.
std::optional<std::uint64_t> planeBytes(std::int32_t width, std::int32_t height, std::int32_t components,
                                        std::int32_t bytes);
