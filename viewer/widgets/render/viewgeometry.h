#pragma once

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtGui/QMatrix4x4>

#include <array>

/// Places the picture in the view, in device pixels; y grows downward.
struct ViewGeometry {
    static constexpr QSize kSizeWithoutFrame{320, 240};

    QSize view;
    QSize frame = kSizeWithoutFrame;
    float zoom = 1.0F;
    QPoint pan;

    QSize displayedSize() const;
    /// Limits each coordinate to what the picture reaches beyond the view; 0 where the picture is the smaller one.
    QPoint clampedPan(QPoint wanted) const;
    /// Centres a picture smaller than the view, on whole pixels; starts a larger one at 0.
    QRect quad() const;
    /// Gives where in the view pixels of the frame are shown.
    QRect placeOf(const QRect &pixels) const;
    /// Gives the quad's top left corner in window coordinates, which count from the bottom.
    QPoint checkerOffset() const;
    QMatrix4x4 projection() const;
};

inline constexpr int kQuadCorners = 6;
inline constexpr int kLoopCorners = 4;

/// Corners of two triangles: top left, top right, bottom right, bottom right, bottom left, top left; three floats a
/// position, two a texture coordinate.
using QuadVertices = std::array<float, 18>;
using QuadTexCoords = std::array<float, 12>;
using LoopVertices = std::array<float, 12>;

QuadVertices quadVertices(const QRectF &quad);
/// Gives the quad's four corners, each pushed outward on both sides.
LoopVertices loopVertices(const QRectF &quad, qreal outward);

inline constexpr QuadTexCoords kBottomUp = {0, 1, 1, 1, 1, 0, 1, 0, 0, 0, 0, 1};
inline constexpr QuadTexCoords kTopDown = {0, 0, 1, 0, 1, 1, 1, 1, 0, 1, 0, 0};
