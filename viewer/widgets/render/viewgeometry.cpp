#include "viewgeometry.h"

#include <algorithm>
#include <cmath>

namespace {

// Far beyond any view, and small enough that sums with pans and views stay within an int.
constexpr float kLongestSide = 1.0e9F;

int scaled(int length, float zoom)
{
    return static_cast<int>(std::round(std::min(static_cast<float>(length) * zoom, kLongestSide)));
}

int clamped(int wanted, int room)
{
    return room >= 0 ? std::min(wanted, room) : 0;
}

/// On a whole pixel: at zoom 1 half a pixel aside would blur all of them.
int centred(int view, int displayed)
{
    return displayed < view ? (view - displayed) / 2 : 0;
}

} // namespace

QSize ViewGeometry::displayedSize() const
{
    return {scaled(frame.width(), zoom), scaled(frame.height(), zoom)};
}

QPoint ViewGeometry::clampedPan(QPoint wanted) const
{
    const QSize room = displayedSize() - view;
    return {clamped(wanted.x(), room.width()), clamped(wanted.y(), room.height())};
}

QRect ViewGeometry::quad() const
{
    const QSize displayed = displayedSize();
    return {{centred(view.width(), displayed.width()), centred(view.height(), displayed.height())},
            displayed};
}

QRect ViewGeometry::placeOf(const QRect &pixels) const
{
    const QRect shown = quad();
    const auto scaledX = [&](int x) { return int(std::llround(double(x) * shown.width() / frame.width())); };
    const auto scaledY = [&](int y) {
        return int(std::llround(double(y) * shown.height() / frame.height()));
    };
    const QPoint first(scaledX(pixels.x()), scaledY(pixels.y()));
    const QPoint end(scaledX(pixels.x() + pixels.width()), scaledY(pixels.y() + pixels.height()));
    return QRect(first, end - QPoint(1, 1)).translated(shown.topLeft() - pan);
}

QPoint ViewGeometry::checkerOffset() const
{
    const QPoint origin = quad().topLeft() - pan;
    return {origin.x(), view.height() - origin.y()};
}

QMatrix4x4 ViewGeometry::projection() const
{
    QMatrix4x4 matrix;
    matrix.ortho(QRect(pan, view));
    return matrix;
}

QuadVertices quadVertices(const QRectF &quad)
{
    const auto left = static_cast<float>(quad.left());
    const auto top = static_cast<float>(quad.top());
    const auto right = static_cast<float>(quad.right());
    const auto bottom = static_cast<float>(quad.bottom());
    return {left,  top,    0, right, top,    0, right, bottom, 0, //
            right, bottom, 0, left,  bottom, 0, left,  top,    0};
}

LoopVertices loopVertices(const QRectF &quad, qreal outward)
{
    const QRectF loop = quad.adjusted(-outward, -outward, outward, outward);
    const auto left = static_cast<float>(loop.left());
    const auto top = static_cast<float>(loop.top());
    const auto right = static_cast<float>(loop.right());
    const auto bottom = static_cast<float>(loop.bottom());
    return {left, top, 0, right, top, 0, right, bottom, 0, left, bottom, 0};
}
