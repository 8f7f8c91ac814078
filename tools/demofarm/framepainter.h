#pragma once

#include <half.h>

#include <cstdint>
#include <vector>

/// A colour of light, not of a screen.
template <typename Number>
struct Light {
    Number r{};
    Number g{};
    Number b{};
};

/// What a renderer knows of a pixel. Colour is premultiplied, and the diffuse and the specular light add up to it.
struct RenderedPixel {
    Light<half> color;
    half alpha;
    Light<half> diffuse;
    Light<half> specular;
    float depth = 0; ///< in metres
};

/// Rows packed, top row first.
struct RenderedFrame {
    int width = 0;
    int height = 0;
    std::vector<RenderedPixel> pixels;

    RenderedPixel &at(int x, int y) { return pixels[std::size_t(y) * std::size_t(width) + std::size_t(x)]; }
};

/// A ball that bounces across a floor with nothing behind it, and the frame's number; every job has a ball of its own
/// colour.
RenderedFrame paintFrame(std::int64_t jobId, std::int64_t frame);
