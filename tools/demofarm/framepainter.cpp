#include "framepainter.h"

#include "digitpainter.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 360;
constexpr int kFramesPerRound = 96;
constexpr float kPi = 3.14159265F;

// The picture is 2 units high, with the origin in its centre and y upwards.
constexpr float kUnit = kHeight / 2.0F;
constexpr float kHorizon = 0.05F;
constexpr float kRadius = 0.42F;
constexpr float kGround = -0.35F; ///< of the ball's centre when it lies there
constexpr float kNowhere = 1000; ///< depth where there is nothing
constexpr float kBallDepth = 4;

using Colour = Light<float>;

constexpr Colour kBalls[] = {{0.80F, 0.16F, 0.08F}, {0.10F, 0.42F, 0.75F}, {0.20F, 0.60F, 0.18F},
                             {0.78F, 0.55F, 0.06F}, {0.50F, 0.15F, 0.62F}, {0.75F, 0.75F, 0.72F}};
constexpr Colour kNear{0.42F, 0.34F, 0.26F};
constexpr Colour kFar{0.10F, 0.16F, 0.26F};
// Unit vectors: to the light, and half way between it and the eye.
constexpr Colour kToLight{-0.48F, 0.64F, 0.60F};
constexpr Colour kHalfWay{-0.268F, 0.358F, 0.894F};

struct Ball {
    float x;
    float y;
    Colour color;
};

/// What one thing adds to a pixel, and how much of the pixel it covers.
struct Surface {
    Colour diffuse;
    Colour specular;
    float cover = 0;
    float depth = kNowhere;
};

float dot(const Colour &a, const Colour &b)
{
    return a.r * b.r + a.g * b.g + a.b * b.b;
}

Colour scaled(const Colour &color, float by)
{
    return {color.r * by, color.g * by, color.b * by};
}

Colour sum(const Colour &a, const Colour &b)
{
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}

Light<half> rounded(const Colour &color)
{
    return {half(color.r), half(color.g), half(color.b)};
}

Ball ballAt(std::int64_t jobId, std::int64_t frame)
{
    const auto phase = float(frame % kFramesPerRound) / kFramesPerRound * 2 * kPi;
    const auto color = std::size_t(jobId) % std::size(kBalls);
    return {1.2F * std::sin(phase), kGround + 0.75F * std::abs(std::sin(phase * 2)), kBalls[color]};
}

/// The floor fades into the distance; the ball's shadow grows soft as it rises.
Surface floorAt(const Ball &ball, float x, float y)
{
    if (y >= kHorizon)
        return {};
    const float near = std::min((kHorizon - y) / (1 + kHorizon), 1.0F);
    const float rise = ball.y - kGround;
    const float size = kRadius * (1 + rise);
    const float across = (x - ball.x) / size;
    const float along = (y - kGround + kRadius * 0.85F) / (size * 0.3F);
    const float shadow = std::max(1 - across * across - along * along, 0.0F) * 0.8F / (1 + rise * 2);
    const Colour color = sum(scaled(kNear, near), scaled(kFar, 1 - near));
    return {scaled(color, 1 - shadow), scaled({1, 1, 1}, near * near * 0.06F), std::min(near * 4, 1.0F),
            1 / near};
}

Surface ballSurfaceAt(const Ball &ball, float x, float y)
{
    const float dx = (x - ball.x) / kRadius;
    const float dy = (y - ball.y) / kRadius;
    const float square = dx * dx + dy * dy;
    if (square >= 1)
        return {};
    const Colour normal{dx, dy, std::sqrt(1 - square)};
    float shine = std::max(dot(normal, kHalfWay), 0.0F);
    for (int i = 0; i < 5; ++i) // to the 32nd power
        shine *= shine;
    const float light = 0.12F + 0.88F * std::max(dot(normal, kToLight), 0.0F);
    const float cover = std::min((1 - std::sqrt(square)) * kRadius * kUnit, 1.0F);
    return {scaled(ball.color, light), scaled({1, 1, 1}, shine * 0.9F), cover,
            kBallDepth - normal.b * kRadius};
}

RenderedPixel over(const Surface &front, const Surface &back)
{
    const float behind = back.cover * (1 - front.cover);
    const Colour diffuse = sum(scaled(front.diffuse, front.cover), scaled(back.diffuse, behind));
    const Colour specular = sum(scaled(front.specular, front.cover), scaled(back.specular, behind));
    return {rounded(sum(diffuse, specular)), half(front.cover + behind), rounded(diffuse), rounded(specular),
            front.cover > 0 ? front.depth : back.depth};
}

} // namespace

RenderedFrame paintFrame(std::int64_t jobId, std::int64_t frame)
{
    RenderedFrame picture{kWidth, kHeight, std::vector<RenderedPixel>(std::size_t(kWidth) * kHeight)};
    const Ball ball = ballAt(jobId, frame);
    for (int row = 0; row < kHeight; ++row) {
        const float y = 1 - (float(row) + 0.5F) / kUnit;
        for (int column = 0; column < kWidth; ++column) {
            const float x = (float(column) + 0.5F - kWidth / 2.0F) / kUnit;
            picture.at(column, row) = over(ballSurfaceAt(ball, x, y), floorAt(ball, x, y));
        }
    }
    paintNumber(picture, frame);
    return picture;
}
